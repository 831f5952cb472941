// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_MEASUREMENTLIST_H
#define GAMUTFILES_MEASUREMENTLIST_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/measurementoptions.h>
#include <gamutfiles/outcome.h>

#include <gamutmodel/colorgamut.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace gamutfiles {

/*! \brief Longer measurement lists are refused. There is room for five colours of each of some 20 000 cabinets. */
constexpr int maximumMeasurementBytes = 8 * 1024 * 1024;

/*! \brief One line of a measurement list. */
struct Measurement {
    QString name; //!< as the list calls it; empty when it has no names
    double luminance = 0.0; //!< in the unit of the list
    /*!
     * \brief Luminance and chromaticity, in the unit of the list.
     *
     * Nothing when the list has no chromaticity for it: of black, and of what is too dark for the instrument.
     */
    std::optional<Model::Target> color;
    MeasurementPart part = MeasurementPart::None; //!< by its name and level, or as chosen
    int line = 0; //!< of the file, from 1
    QString cabinet; //!< the cabinet, module, panel or tile that was measured; empty: the list does not say
    std::optional<int> row; //!< of the cabinet, as the list counts
    std::optional<int> column; //!< of the cabinet, as the list counts
    /*!
     * \brief Whether the numbers of its line could not be read, so that the colour is not known; only of a list that is
     * followed.
     */
    bool isUnread = false;
};

/*! \brief A column of a measurement list that was understood. */
struct RecognizedColumn {
    QString part; //!< what it gives: name, Y, x, y, u', v', X, Z, cabinet, row or column
    int column = 0; //!< its place, from 1
    QString header; //!< as the list calls it; empty when the list has no header line
};

/*! \brief A measurement that plays a part. */
struct RecognizedPart {
    MeasurementPart part = MeasurementPart::None; //!< never None
    QString name; //!< of the measurement
    int line = 0; //!< of the file, from 1
};

/*! \brief The name of \a part in messages, for example "red"; empty for None. */
GAMUTFILES_EXPORT QString measurementPartName(MeasurementPart part);

/*! \brief How a measurement list was understood, for the user to check. */
struct MeasurementRecognition {
    TextEncoding encoding = TextEncoding::Utf8; //!< how the text is stored
    QChar separator; //!< between fields
    std::optional<QChar> decimalSign; //!< nothing when no number has one
    QString thousandsSeparators; //!< each that occurs, once
    int headerLine = 0; //!< the line that names the columns, from 1; 0: there is none
    QVector<RecognizedColumn> columns; //!< those that are read
    MeasuredUnit unit = MeasuredUnit::NotStated; //!< as the list states it, or as chosen
    QString unitText; //!< as the list writes it, with m2 for m² and without spaces; empty when it does not
    std::optional<double>
        fullLevel; //!< of levels without a unit, for example 255; nothing: there is none, or not known
    QVector<RecognizedPart> parts; //!< in the order of the file

    /*! \brief All of this for people: one line for each statement, separated by line feeds. */
    GAMUTFILES_EXPORT QString text() const;
};

struct CabinetMeasurements;

/*! \brief What a meter measured, in the order of the file. */
struct MeasurementList {
    QVector<Measurement> measurements; //!< every line, in this order
    /*!
     * \brief The lines that name a colour of a cabinet and have no numbers: only name, line and cabinet are known.
     *
     * A cabinet of which there is nothing else has been measured in vain: it is one of cabinets(), without
     * measurements.
     */
    QVector<Measurement> withoutNumbers;
    /*! \brief The unit of all luminances. Foot-lamberts have been converted to cd/m². */
    LuminanceUnit unit = LuminanceUnit::NotKnown;
    bool whiteIsSum = false; //!< whether gamut() takes a missing white as the sum of the primaries
    MeasurementRecognition recognized; //!< how the list was understood

    /*!
     * \brief The gamut that the list holds, named \a gamutName.
     *
     * Nothing unless red, green, blue and white are there once each, with chromaticities, and the primaries span a
     * triangle; the white may be missing with whiteIsSum. Nothing for a list of several cabinets. It has the black that
     * was measured: black() with its chromaticity, or without light; otherwise the luminance of the brightest.
     */
    GAMUTFILES_EXPORT std::optional<DisplayGamut> gamut(const QString &gamutName) const;
    /*! \brief The measurements that gamut() does not use: all of them when there is no gamut. */
    GAMUTFILES_EXPORT QVector<Measurement> others() const;
    /*! \brief The measured black; nothing unless there is exactly one. */
    GAMUTFILES_EXPORT std::optional<Measurement> black() const;
    /*!
     * \brief The measurements of each cabinet, in the order of the file, those without any last; empty when the list
     * names no cabinets.
     */
    GAMUTFILES_EXPORT QVector<CabinetMeasurements> cabinets() const;
};

/*! \brief The part of a measurement list that belongs to one cabinet. */
struct CabinetMeasurements {
    QString cabinet; //!< its name; empty when it is known by row and column only
    std::optional<int> row; //!< as the list counts
    std::optional<int> column; //!< as the list counts
    MeasurementList list; //!< its measurements; \a recognized is that of the whole list

    /*! \brief How people call it: its name, row and column as "3/4", or both, "A 3/4". */
    GAMUTFILES_EXPORT QString label() const;
};

/*!
 * \brief Reads a measurement list: text with one measurement in each line, as instruments and spreadsheets write it.
 *
 * docs/measurement-lists.md describes what is understood. What \a options do not state is recognised from the whole
 * list. Where the list allows two readings it is refused, and the failure says what to state. Warnings say what else a
 * user must know: a colour that occurs twice, a missing white, a unit that is not stated, not known, or another one
 * than \a options state, several cabinets with primaries. A list whose primaries span no triangle is refused, unless it
 * has several cabinets. A choice in \a options that no measurement answers to is refused. At most
 * maximumMeasurementBytes are read, in a time proportional to their number.
 */
GAMUTFILES_EXPORT Outcome<MeasurementList> readMeasurementList(
    const QByteArray &bytes, const MeasurementOptions &options = MeasurementOptions());

/*!
 * \brief The cabinets of \a list as a wall, in the order of the file and in the unit of the list.
 *
 * A cabinet needs red, green and blue once each, with chromaticities. White and black are taken where they are there; a
 * black whose luminance is 0 has no light. All other cabinets are in DisplayWall::incomplete, and warnings name them
 * and what they lack. Those that have no name of their own are called "?", "? 2" and so on.
 *
 * Where two cabinets of different names have the same row and column, these count inside of something else, such as
 * modules in a cabinet. Rows and columns are then parts of the names, and no cabinet has a place.
 *
 * A failure for a list that names no cabinets, or has none with red, green and blue.
 */
GAMUTFILES_EXPORT Outcome<DisplayWall> wallFromMeasurements(const MeasurementList &list);

} // namespace gamutfiles

#endif // GAMUTFILES_MEASUREMENTLIST_H
