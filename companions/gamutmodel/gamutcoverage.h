// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_GAMUTCOVERAGE_H
#define GAMUTMODEL_GAMUTCOVERAGE_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>

#include <vector>

/*!
 * \file
 * \brief Areas of gamuts on a chromaticity diagram, and how much of one gamut another covers.
 *
 * A gamut is the triangle of its three primaries; its white and its luminances play no part. All functions read the
 * x and y of the primaries and derive what else they need. They have no state and report no error: a triangle with
 * a coordinate that is infinite or not a number has the area 0 and shares nothing with any other, and so has one
 * whose corners lie on a line. In which direction the corners go round does not matter.
 */
namespace Model {

/*! \brief The area of \a gamut in square units of \a diagram, never negative. */
GAMUTMODEL_EXPORT double gamutArea(const Targets &gamut, Diagram diagram);

/*!
 * \brief The corners of the area that \a a and \a b have in common, in the coordinates of \a diagram.
 *
 * A convex polygon of three to six corners, counter-clockwise, or none when they share no area.
 */
GAMUTMODEL_EXPORT std::vector<DiagramPoint> commonPolygon(const Targets &a, const Targets &b, Diagram diagram);

/*! \brief The area that \a a and \a b have in common, in square units of \a diagram. */
GAMUTMODEL_EXPORT double commonArea(const Targets &a, const Targets &b, Diagram diagram);

/*! \brief How a gamut compares with a standard on one diagram. Ratios are plain numbers: 1.0 is 100 %. */
struct GamutCoverage {
    double area = 0.0; //!< of the gamut
    double standardArea = 0.0; //!< of the standard
    double commonArea = 0.0; //!< of what both have in common
    double coverage = 0.0; //!< share of the standard that lies in the gamut, 0 to 1; 0 for a standard without area
    double areaRatio = 0.0; //!< area of the gamut by that of the standard, 0 or more; 0 for a standard without area
};

/*! \brief The comparison of \a gamut with \a standard on \a diagram. */
GAMUTMODEL_EXPORT GamutCoverage gamutCoverage(const Targets &gamut, const Targets &standard, Diagram diagram);

/*!
 * \brief Which primaries of a gamut another gamut cannot show.
 *
 * A primary is outside when the triangles that it spans with the sides of the other gamut exceed that gamut's area
 * by 0.0001 or more in x, y: about 0.0002 beyond a side. This is the tolerance of the charts' own check. A primary
 * that is not finite is outside, and outside a gamut that is not finite or has no area everything is.
 */
struct PrimariesOutside {
    bool red = false; //!< the red primary is outside
    bool green = false; //!< the green primary is outside
    bool blue = false; //!< the blue primary is outside

    /*! \brief Whether at least one is outside. */
    bool any() const { return red || green || blue; }
};

/*! \brief The primaries of \a gamut that lie outside \a container. */
GAMUTMODEL_EXPORT PrimariesOutside primariesOutside(const Targets &gamut, const Targets &container);

} // namespace Model

#endif // GAMUTMODEL_GAMUTCOVERAGE_H
