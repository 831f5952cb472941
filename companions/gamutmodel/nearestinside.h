// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_NEARESTINSIDE_H
#define GAMUTMODEL_NEARESTINSIDE_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>

#include <optional>

/*!
 * \file
 * \brief Distances in CIE 1976 u', v', and the point of a gamut that is nearest to a colour outside of it.
 *
 * \code
 * const Model::Targets &wall = original.getTargets();
 * if (Model::primariesOutside(target, wall).green) {
 *     const auto nearest = Model::nearestInside(wall, {target.green.x, target.green.y}, 4);
 *     // "Green lies outside by Δu'v' 0.0041: move it to 0.2310, 0.6940": nearest->distance and nearest->xy
 * }
 * \endcode
 */
namespace Model {

/*!
 * \brief Δu'v': the distance of two colours in CIE 1976 u', v' (ISO 11664-5:2009). Luminances do not count.
 *
 * Only x and y are used. Nothing if a colour has no chromaticity: if x or y is infinite or not a number, if both are 0,
 * as of a patch without light, or if -2x + 12y + 3 is not above 0, where no u', v' belong to a colour.
 */
GAMUTMODEL_EXPORT std::optional<double> uvDifference(const Target &a, const Target &b);

/*!
 * \brief The point of the triangle of \a gamut, its inside and its edge, that is nearest to the chromaticity \a xy in
 * \a diagram. CIE 1931 x, y.
 *
 * \a xy itself where it lies inside. Nothing if the triangle has no area or if a coordinate is not finite.
 */
GAMUTMODEL_EXPORT std::optional<DiagramPoint> nearestPoint(const Targets &gamut, DiagramPoint xy, Diagram diagram);

/*! \brief Where a colour would lie inside of a gamut. */
struct NearestInside {
    DiagramPoint xy; //!< CIE 1931 x, y of the point
    double distance = 0.0; //!< Δu'v' between the colour and the gamut; 0 if the colour lies in its triangle
};

/*!
 * \brief The point inside of \a gamut, with coordinates of \a decimals decimals, that is nearest to \a xy in u', v'.
 *
 * A point that is rounded to the digits shown would often lie outside again. Of all points with that many decimals,
 * this is the nearest that lies in the triangle of \a gamut or on its edge, so that primariesOutside() has nothing
 * against it. The distance is that of the triangle itself, which can be slightly less than that of the point.
 *
 * If \a xy lies in the triangle it is returned as it is, not rounded.
 *
 * \param decimals the decimals of the coordinates, from 1 to 9.
 * \return Nothing if \a gamut has no area; if a coordinate is not finite, or -2x + 12y + 3 not above 0; if \a decimals
 * is out of range; if no point with that many decimals lies inside of a very narrow gamut.
 */
GAMUTMODEL_EXPORT std::optional<NearestInside> nearestInside(const Targets &gamut, DiagramPoint xy, int decimals);

} // namespace Model

#endif // GAMUTMODEL_NEARESTINSIDE_H
