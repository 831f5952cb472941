// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_MEASUREMENTOPTIONS_H
#define GAMUTFILES_MEASUREMENTOPTIONS_H

#include <QChar>
#include <QString>

#include <optional>

namespace gamutfiles {

/*! \brief How a text is stored. */
enum class TextEncoding {
    Utf8, //!< with or without a byte order mark; ASCII is part of it
    Utf16LittleEndian, //!< with or without a byte order mark
    Utf16BigEndian, //!< with or without a byte order mark
    Windows1252, //!< Western European; ISO 8859-1 (Latin-1) is part of it
    Gb18030 //!< Chinese; GBK and GB 2312 are part of it
};

/*! \brief The unit of the luminances in a measurement list. */
enum class MeasuredUnit {
    NotStated, //!< the list does not say
    NotKnown, //!< the list names a unit that is not one of those below
    CandelaPerSquareMetre, //!< cd/m², also called nit
    FootLambert, //!< fL; converted to cd/m² when the list is read
    Relative //!< a share of an unstated white or maximum
};

/*! \brief The part that a measurement plays. */
enum class MeasurementPart {
    None, //!< a measured point
    Red, //!< the red primary at its full level
    Green, //!< the green primary at its full level
    Blue, //!< the blue primary at its full level
    White, //!< the white at its full level
    Black //!< the display showing black
};

/*! \brief Which measurement a part of the gamut is taken from: that of a line, or else that of a name. */
struct MeasurementChoice {
    int line = 0; //!< line of the file, from 1; 0: not chosen by the line
    QString name; //!< as the list writes it, in any case; empty: not chosen by the name

    /*! \brief Whether anything is chosen. */
    bool isEmpty() const { return line <= 0 && name.isEmpty(); }
};

/*! \brief What the caller knows of a measurement list. What is left out is recognised from the list. */
struct MeasurementOptions {
    std::optional<TextEncoding> encoding; //!< how the text is stored
    std::optional<QChar> separator; //!< between fields, for example a semicolon
    std::optional<QChar> decimalSign; //!< a point or a comma; anything else is refused
    std::optional<MeasuredUnit> unit; //!< of the luminances; takes the place of what the list states
    MeasurementChoice red; //!< which measurement is the red primary
    MeasurementChoice green; //!< which measurement is the green primary
    MeasurementChoice blue; //!< which measurement is the blue primary
    MeasurementChoice white; //!< which measurement is the white
    bool whiteIsSum = false; //!< a missing white is the sum of red, green and blue
    /*!
     * \brief The only cabinet whose measurements are kept, by its CabinetMeasurements::label() or its name, in any
     * case; empty: all of them are kept.
     */
    QString cabinet;
    /*! \brief Whether the list is wanted for its cabinets: nothing is then said of a gamut that it has not as a whole.
     */
    bool isWall = false;
};

} // namespace gamutfiles

#endif // GAMUTFILES_MEASUREMENTOPTIONS_H
