// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_CORRECTION_H
#define GAMUTMODEL_CORRECTION_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/drive.h>
#include <gamutmodel/gamutmodel_export.h>
#include <gamutmodel/tolerances.h>
#include <gamutmodel/wall.h>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief The correction of each cabinet of a wall with which all of them show the same target.
 *
 * A correction is a matrix of linear drives. With the content's linear levels (r, g, b) from 0 to 1 as a column, the
 * drives of the cabinet are
 *
 *     drive of red   = m00 r + m01 g + m02 b
 *     drive of green = m10 r + m11 g + m12 b
 *     drive of blue  = m20 r + m21 g + m22 b
 *
 * so that the first column drives the cabinet for the red primary of the target, and the sums of the rows for its
 * white. Transfer functions are applied before and after, not here.
 *
 * The cabinets are additive, as drive.h defines it. Let A have the columns R - K, G - K and B - K of a cabinet, K be
 * its black and W the white of the target, all as tristimulus values. The matrix has the columns A⁻¹(P - K) for the
 * primaries P of the target. These have the chromaticities of the target and the luminances with which the white is
 * right with the black counted in, W = K + Σ(P - K). So the cabinet shows the chromaticities of the four colours and
 * the luminance of the white; without a black also the luminances of the primaries.
 *
 * \code
 * const Model::WallCorrection wall = Model::wallCorrection(cabinets, fit.target);
 * if (wall.largestWhite) {
 *     // wall.largestWhite->luminance, and wall.largestWhite->cabinet that limits it
 * }
 * for (const Model::Correction &correction : wall.corrections) {
 *     // correction.matrix, or correction.fault
 * }
 * \endcode
 */
namespace Model {

/*! \brief The linear drives of a cabinet for linear levels of the content. */
struct CorrectionMatrix {
    /*! \brief The rows: the drives of red, green and blue; in each the parts for red, green and blue of the content. */
    std::array<std::array<double, 3>, 3> rows{};

    /*! \brief The drive of the cabinet's primary \a drive for the content's \a content at 1. */
    double at(Primary drive, Primary content) const { return rows[std::size_t(drive)][std::size_t(content)]; }
    /*! \brief The drives for \a content: the matrix times the column. They can be below 0 or above 1. */
    Drive driveFor(const Drive &content) const
    {
        const auto of = [&content](const std::array<double, 3> &row) {
            return row[0] * content.red + row[1] * content.green + row[2] * content.blue;
        };
        return {of(rows[0]), of(rows[1]), of(rows[2])};
    }
};

/*! \brief An entry of a matrix. */
struct MatrixEntry {
    Primary drive = Primary::Red; //!< the row: the cabinet's primary
    Primary content = Primary::Red; //!< the column: the primary of the target
    double value = 0.0; //!< the entry
};

/*!
 * \brief The entries of \a matrix below 0, but for driveRounding: the cabinet cannot show that primary of the target,
 * which lies outside of its gamut or is darker than its black allows. Row by row.
 */
GAMUTMODEL_EXPORT std::vector<MatrixEntry> entriesBelowZero(const CorrectionMatrix &matrix);
/*!
 * \brief The entries of \a matrix above 1, but for driveRounding: the cabinet does not have the luminance for that
 * primary of the target. Row by row.
 */
GAMUTMODEL_EXPORT std::vector<MatrixEntry> entriesAboveOne(const CorrectionMatrix &matrix);

/*! \brief The correction of a cabinet. */
struct Correction {
    DisplayFault fault = DisplayFault::None; //!< why the cabinet has no drives; DisplayFault::None if it has
    std::optional<Primary> faultyPrimary; //!< as DisplayDrive::faultyPrimary()
    /*! \brief The matrix; nothing with a fault, with a fault of the wall, or where a value would not be finite. */
    std::optional<CorrectionMatrix> matrix;
    /*! \brief The largest luminance of the target's white; nothing with a fault, or if it lies outside of the gamut. */
    std::optional<LargestLuminance> largestWhite;
    /*! \brief The light at full drive of all three primaries, without the correction. Nothing with a fault. */
    std::optional<Target> uncorrectedWhite;
    /*!
     * \brief What the cabinet shows of the target with the correction. Nothing without a matrix.
     *
     * Drives below 0 are 0, and drives above 1 are 1.
     */
    std::optional<Targets> shown;
    /*!
     * \brief What remains: deviations() of what is shown from the target.
     *
     * All that is not known without a matrix. The coverage is that in u', v'.
     */
    DeviationValues remaining;
};

/*! \brief What keeps a whole wall from being corrected. */
enum class WallFault {
    None, //!< nothing
    NotFinite, //!< a colour of the target or the luminance is infinite, not a number, or has no chromaticity
    NearlySingular, //!< the primaries of the target lie too close to a line: see DisplayDrive::largestCondition
    WhiteOutside, //!< the white of the target is not a mixture of its primaries
    NoLuminance //!< the luminance is not above 0, or none was given and no cabinet can show the white
};

/*! \brief The largest luminance of a white that the cabinets of a wall have in common. */
struct WallWhite {
    double luminance = 0.0; //!< in the unit of the cabinets
    std::size_t cabinet = 0; //!< the cabinet that limits it; the first of them if several do
    Primary limit = Primary::Red; //!< the primary of that cabinet that is at full drive
};

/*! \brief The corrections of a wall. */
struct WallCorrection {
    WallFault fault = WallFault::None; //!< why there are no matrices at all
    /*! \brief The target: with the luminance that the matrices are for, and its primaries' for a black without light.
     */
    Targets target;
    /*! \brief The largest luminance of the target's white that all cabinets reach but those in \a without. */
    std::optional<WallWhite> largestWhite;
    std::vector<std::size_t> without; //!< the cabinets that do not show the white at any luminance
    std::vector<Correction> corrections; //!< in the order of the cabinets
};

/*!
 * \brief The corrections with which \a cabinets show \a target.
 *
 * Of \a target x and y are used; the luminances of its primaries follow from the white.
 *
 * \param luminance that of the white, in the unit of the cabinets. Without it, the largest that all cabinets reach
 * which can show the white.
 */
GAMUTMODEL_EXPORT WallCorrection wallCorrection(
    const std::vector<Cabinet> &cabinets, const Targets &target, std::optional<double> luminance = std::nullopt);

/*! \brief The white of each cabinet without a correction: Correction::uncorrectedWhite. For uniformity(). */
GAMUTMODEL_EXPORT std::vector<std::optional<Target>> whitesBefore(const WallCorrection &wall);
/*! \brief The white of each cabinet with its correction: that of Correction::shown. For uniformity(). */
GAMUTMODEL_EXPORT std::vector<std::optional<Target>> whitesAfter(const WallCorrection &wall);

} // namespace Model

#endif // GAMUTMODEL_CORRECTION_H
