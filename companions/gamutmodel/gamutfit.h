// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_GAMUTFIT_H
#define GAMUTMODEL_GAMUTFIT_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/commongamut.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/drive.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/gamutmodel_export.h>
#include <gamutmodel/wall.h>

#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief Targets that every cabinet of a wall can show: as much of a wished one as possible, and the largest of all.
 *
 * \code
 * const Model::GamutFit fit = Model::fittedTarget(Model::commonGamut(cabinets), Model::rec2020().getTargets());
 * if (fit.fault == Model::FitFault::None) {
 *     // fit.target; fit.costXy.coverage is what is left of the wish, fit.green.limit the cabinet that limits green
 * }
 * \endcode
 */
namespace Model {

/*! \brief What keeps a target from being fitted. */
enum class FitFault {
    None, //!< nothing
    NotFinite, //!< a colour of the wish is infinite, not a number, or has no u', v'
    NoCommonArea, //!< the cabinets have no area in common
    /*!
     * \brief Not all cabinets can show the white.
     *
     * GamutFit::target has the nearest white that they can show, and nothing else. It lies on the edge of the common
     * gamut, where the primary beyond the edge would have to move all the way to the white. A wish with a white farther
     * inside can be fitted.
     */
    WhiteOutside,
    WhiteOutsideOfWish, //!< the white is not inside of the wished triangle
    /*!
     * \brief What is left has less area than spanTriangle() asks for, is nearly singular (see
     * DisplayDrive::largestCondition), or has a primary that lies on the white: with a share below a millionth.
     * FittedPrimary::share and limit say why.
     */
    NoTriangle,
    /*!
     * \brief The black of a cabinet is too bright for the luminance of the white, wherever the primaries lie.
     *
     * GamutFit::whiteLimit is that cabinet. A brighter white can be fitted.
     */
    BlackTooBright
};

/*! \brief What became of a primary of the wish. */
struct FittedPrimary {
    /*!
     * \brief The distance of the primary from the white as a part of the wished one, in x, y: 1 if it stayed where it
     * was.
     *
     * A fit moves a primary along its hue line, which is straight in every diagram.
     */
    double share = 1.0;
    double moved = 0.0; //!< Δu'v' between the wished primary and this one
    std::optional<std::size_t> limit; //!< the cabinet that cannot show more; nothing if the primary stayed
};

/*! \brief A target inside of the common gamut. With a fault only those fields have a meaning that it mentions. */
struct GamutFit {
    FitFault fault = FitFault::NoCommonArea; //!< why there is no target
    /*!
     * \brief The target.
     *
     * Its white has the luminance that was wished. Those of the primaries are the ones that mix to it, whatever the
     * luminances of the wished primaries were.
     */
    Targets target;
    FittedPrimary red; //!< the red primary
    FittedPrimary green; //!< the green primary
    FittedPrimary blue; //!< the blue primary
    /*!
     * \brief With FitFault::WhiteOutside a cabinet that cannot show more than the nearest white, in u', v'. With
     * FitFault::BlackTooBright the cabinet whose black it is.
     */
    std::optional<std::size_t> whiteLimit;
    double whiteMoved = 0.0; //!< Δu'v' between the wished white and that of the target
    GamutCoverage costXy; //!< the target compared with the wish in x, y
    GamutCoverage costUv; //!< the target compared with the wish in u', v'

    /*! \brief What became of \a primary. */
    const FittedPrimary &of(Primary primary) const
    {
        return primary == Primary::Red ? red : primary == Primary::Green ? green : blue;
    }
};

/*!
 * \brief The largest target inside of \a common whose colours have the hues of \a wish.
 *
 * The white stays where it is. If it lies outside of the common gamut there is no such target, and
 * FitFault::WhiteOutside comes with the nearest white. Each primary moves towards the white on a straight line, only as
 * far as needed. The three do not depend on each other, so that this is the largest triangle with these hues.
 *
 * Of \a wish x and y are used, and Y of the white.
 */
GAMUTMODEL_EXPORT GamutFit fittedTarget(const CommonGamut &common, const Targets &wish);

/*!
 * \brief The same for \a cabinets, of which \a common is what they have in common, with their blacks counted in.
 *
 * A cabinet shows its primaries at full drive only. A primary of the target that is darker lies between that and the
 * black, and so inside of what the chromaticities of the primaries promise. Each primary therefore moves on towards the
 * white, until no cabinet needs a drive below 0 for it in the correction for this target: see correction.h. As the
 * primaries have to mix to the white, how far one moves depends on the others.
 *
 * The luminance of the white of \a wish has to be in the unit of the cabinets. The darker it is, the more the blacks
 * take. Whether the cabinets reach it does not matter here.
 *
 * Cabinets without a black, and those that have no drives (see DisplayDrive::fault()), take nothing more.
 */
GAMUTMODEL_EXPORT GamutFit fittedTarget(
    const CommonGamut &common, const Targets &wish, const std::vector<Cabinet> &cabinets);

/*!
 * \brief The triangle with the largest area inside of \a common: by its area in the coordinates of \a diagram, as the
 * largest in x, y is not the largest in u', v'.
 *
 * The largest triangle in a convex polygon has its corners on corners of the polygon. All that can be the largest are
 * compared, in a time that grows with the square of the number of corners.
 *
 * \a wish decides which corner is called red, green and blue: they lie, counter-clockwise in this order, as near to the
 * primaries of \a wish as possible, by the sum of squares in \a diagram. The white is that of \a wish if it lies in the
 * triangle, else the nearest in u', v' (GamutFit::whiteMoved is above 0): one primary then has no luminance.
 *
 * The faults WhiteOutside and WhiteOutsideOfWish do not occur. FittedPrimary::share has no meaning here
 * and stays 1. FittedPrimary::limit is the cabinet of the side that leads away from the corner,
 * counter-clockwise; another may limit the other side.
 */
GAMUTMODEL_EXPORT GamutFit largestTarget(const CommonGamut &common, const Targets &wish, Diagram diagram);

} // namespace Model

#endif // GAMUTMODEL_GAMUTFIT_H
