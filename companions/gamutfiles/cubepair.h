// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CUBEPAIR_H
#define GAMUTFILES_CUBEPAIR_H

#include <gamutfiles/correctionsfile.h>
#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/outcome.h>

#include <gamutmodel/correction.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>

/*!
 * \file
 * \brief The correction of a single display as two look-up tables in .cube files.
 *
 * A matrix is linear, and so is the interpolation in a table: between the eight corners of a table of size 2 both the
 * trilinear and the tetrahedral interpolation give the matrix itself. So no precision is lost, as long as no value in
 * the table is below 0 or above 1, where programs and devices cut values off.
 *
 * The format is that of the Cube LUT Specification, version 1.0 (Adobe Systems, 2013), which keeps tables of one and
 * of three dimensions in separate files. docs/corrections.md has an example.
 */
namespace gamutfiles {

/*! \brief Longer .cube files are refused: those of a pair have a few hundred bytes. */
constexpr int maximumCubeBytes = 64 * 1024;

/*!
 * \brief A correction matrix in two steps: first \a matrix, which is the table of three dimensions, then \a gains,
 * which is the table of one dimension.
 *
 * Drive = gain × (matrix × content), in linear light, with the rows and columns of Model::CorrectionMatrix.
 */
struct CubePair {
    /*! \brief The rows of the correction, each divided by its gain: their sum is 1, and white stays as it is. */
    Model::CorrectionMatrix matrix;
    std::array<double, 3> gains{}; //!< the drives of red, green and blue for white, from 0 to 1
};

/*!
 * \brief The pair for \a matrix.
 *
 * A failure that names the entry, if one is below 0, or if the drives for white are above 1: the tables would not be
 * exact. Entries and drives that are so by no more than Model::driveRounding are taken as 0 or 1.
 */
GAMUTFILES_EXPORT Outcome<CubePair> cubePair(const Model::CorrectionMatrix &matrix);

/*! \brief Comments for a .cube file that say what target \a corrections are for, in the words of correctionsCsv(). */
GAMUTFILES_EXPORT QStringList cubeComments(const WallCorrections &corrections);

/*!
 * \brief The .cube file with the table of three dimensions, which is applied first.
 *
 * \a title and \a comments, such as cubeComments(), are for people. A comment is one line.
 */
GAMUTFILES_EXPORT QByteArray matrixCube(
    const CubePair &pair, const QString &title, const QStringList &comments = QStringList());
/*! \brief The .cube file with the table of one dimension, which is applied second; otherwise as matrixCube(). */
GAMUTFILES_EXPORT QByteArray gainsCube(
    const CubePair &pair, const QString &title, const QStringList &comments = QStringList());

/*!
 * \brief Reads what matrixCube() and gainsCube() wrote: the same pair to the last bit.
 *
 * A failure for other tables: of another size or domain, or with values that are not those of a matrix, or of gains.
 */
GAMUTFILES_EXPORT Outcome<CubePair> readCubePair(const QByteArray &matrixText, const QByteArray &gainsText);

} // namespace gamutfiles

#endif // GAMUTFILES_CUBEPAIR_H
