// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CORRECTIONSFILE_H
#define GAMUTFILES_CORRECTIONSFILE_H

#include <gamutfiles/displaywall.h>
#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/luminanceunit.h>
#include <gamutfiles/outcome.h>

#include <gamutmodel/correction.h>
#include <gamutmodel/diagram.h>

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/*!
 * \file
 * \brief Files with the corrections of the cabinets of a wall, for whoever loads them into the cabinets.
 *
 * docs/corrections.md describes the formats. The matrices are those of gamutmodel/correction.h: of linear drives, by
 * which the first column of a matrix drives the cabinet for the red primary of the target.
 *
 * \code
 * const auto wall = wallFromMeasurements(list);
 * const auto solved = Model::wallCorrection(wall->modelCabinets(), target.getTargets());
 * const auto corrections = wallCorrections(*wall, solved, QStringLiteral("Stage"));
 * if (corrections) {
 *     writeBytes(correctionsCsv(*corrections), QStringLiteral("corrections.csv"));
 * }
 * \endcode
 */
namespace gamutfiles {

/*! \brief Longer files of corrections are refused. There is room for some 10 000 cabinets. */
constexpr int maximumCorrectionsBytes = 16 * 1024 * 1024;

/*! \brief The correction of one cabinet. */
struct CabinetCorrection {
    QString name; //!< as WallCabinet::name
    std::optional<int> row; //!< as WallCabinet::row
    std::optional<int> column; //!< as WallCabinet::column
    std::optional<Model::CorrectionMatrix> matrix; //!< the matrix; nothing where there is none, and \a fault says why
    /*!
     * \brief The largest luminance of the target's white that the cabinet reaches; nothing if it does not show that
     * white, or where it is not known.
     */
    std::optional<double> largestWhite;
    QString fault; //!< why there is no matrix, in English; empty with a matrix

    /*! \brief How people call it, as WallCabinet::label(). */
    GAMUTFILES_EXPORT QString label() const;
};

/*! \brief What the matrices of the cabinets are for. */
struct CorrectionTarget {
    QString name; //!< of the target; can be empty
    Model::DiagramPoint red; //!< CIE 1931 x, y of what a cabinet shows for the content's red
    Model::DiagramPoint green; //!< CIE 1931 x, y of green
    Model::DiagramPoint blue; //!< CIE 1931 x, y of blue
    Model::DiagramPoint white; //!< CIE 1931 x, y of white
    double luminance = 0.0; //!< of the white, for which the content's red, green and blue are 1; above 0
};

/*! \brief The corrections of a wall, or of a single display. */
struct WallCorrections {
    LuminanceUnit unit = LuminanceUnit::NotKnown; //!< of all luminances
    CorrectionTarget target; //!< what the matrices are for
    std::vector<CabinetCorrection> cabinets; //!< each label() once
};

/*!
 * \brief What is to be stored of \a solved, which was computed for wall.modelCabinets() and the target \a targetName.
 *
 * Those of wall.incomplete have no matrix, and their reason as fault. They stand at their places where the wall is
 * listed row by row, and come last otherwise.
 *
 * A failure if there are no matrices at all: the fault of the target, or no cabinet that has one. The same for cabinets
 * that no file can hold: two with the same label(), or one without, or with characters in it that cannot be
 * stored: null, or half of a surrogate pair.
 */
GAMUTFILES_EXPORT Outcome<WallCorrections> wallCorrections(
    const DisplayWall &wall, const Model::WallCorrection &solved, const QString &targetName);

/*!
 * \brief \a corrections as a CSV text in UTF-8, which spreadsheets read: one line for each cabinet.
 *
 * The convention and the target are in lines before it that begin with #. Numbers have the fewest digits that are read
 * back as the same double.
 */
GAMUTFILES_EXPORT QByteArray correctionsCsv(const WallCorrections &corrections);

/*! \brief \a corrections as a JSON text in UTF-8. */
GAMUTFILES_EXPORT QByteArray correctionsJson(const WallCorrections &corrections);

/*!
 * \brief Reads what correctionsCsv() or correctionsJson() wrote: the same corrections to the last bit.
 *
 * Of names in a CSV text, all line ends have become line feeds. A text is taken whole or not at all: one of another
 * version or convention, with a cabinet twice, or with a number that is none, is refused, and the failure names the
 * place.
 */
GAMUTFILES_EXPORT Outcome<WallCorrections> readCorrections(const QByteArray &utf8);

/*! \brief Reads the file \a fileName as readCorrections() reads a text. */
GAMUTFILES_EXPORT Outcome<WallCorrections> readCorrectionsFile(const QString &fileName);

} // namespace gamutfiles

#endif // GAMUTFILES_CORRECTIONSFILE_H
