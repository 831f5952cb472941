// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_GAMUTCOVERAGE_H
#define GAMUTMODEL_GAMUTCOVERAGE_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>

#include <vector>

/*!
 * \file
 * \brief Areas of gamuts on a chromaticity diagram, and the coverage of one gamut by another.
 *
 * A gamut is the triangle of its three primaries; its white point and luminances are not used. The functions read only
 * x and y of the primaries. They have no state and report no error: the area of a triangle with a coordinate that is
 * infinite or not a number is 0, and so is that of a triangle whose corners lie on a line. Such a triangle has no area
 * in common with any other. The order of the corners does not matter.
 *
 * \code
 * const Model::GamutCoverage coverage
 *     = Model::gamutCoverage(gamut.getTargets(), Model::rec2020().getTargets(), Model::Diagram::Cie1976);
 * \endcode
 */
namespace Model {

/*! \brief The area of \a gamut in square units of the coordinates of \a diagram, 0 or more. */
GAMUTMODEL_EXPORT double gamutArea(const Targets &gamut, Diagram diagram);

/*! \brief Whether the primaries of \a gamut are far enough from one line to mix anything: an area of 1e-6 in x, y. */
GAMUTMODEL_EXPORT bool spanTriangle(const Targets &gamut);

/*!
 * \brief The corners of the area that \a a and \a b have in common, in the coordinates of \a diagram.
 *
 * A convex polygon of three to six corners, counter-clockwise; empty if the gamuts have no area in common.
 */
GAMUTMODEL_EXPORT std::vector<DiagramPoint> commonPolygon(const Targets &a, const Targets &b, Diagram diagram);

/*! \brief The area that \a a and \a b have in common, in square units of the coordinates of \a diagram. */
GAMUTMODEL_EXPORT double commonArea(const Targets &a, const Targets &b, Diagram diagram);

/*! \brief The comparison of a gamut with a standard on a diagram. Ratios are numbers: 1.0 is 100 %. */
struct GamutCoverage {
    double area = 0.0; //!< area of the gamut
    double standardArea = 0.0; //!< area of the standard
    double commonArea = 0.0; //!< area that both have in common
    double coverage = 0.0; //!< share of the standard that lies in the gamut, from 0 to 1; 0 if the standard has no area
    double areaRatio = 0.0; //!< area of the gamut divided by that of the standard; 0 if the standard has no area
};

/*! \brief Compares \a gamut with \a standard on \a diagram. */
GAMUTMODEL_EXPORT GamutCoverage gamutCoverage(const Targets &gamut, const Targets &standard, Diagram diagram);

/*!
 * \brief The primaries of a gamut that lie outside another gamut.
 *
 * The test uses the triangles between a primary and the sides of the other gamut. The primary is outside if their total
 * area exceeds the area of that gamut by 0.0001 or more in x, y, which is about 0.0002 beyond a side. The charts use
 * the same tolerance. A primary that is not finite is outside. If the other gamut is not finite or has no area, all
 * primaries are outside.
 */
struct PrimariesOutside {
    bool red = false; //!< whether the red primary is outside
    bool green = false; //!< whether the green primary is outside
    bool blue = false; //!< whether the blue primary is outside

    /*! \brief Whether at least one primary is outside. */
    bool any() const { return red || green || blue; }
};

/*! \brief The primaries of \a gamut that lie outside \a container. */
GAMUTMODEL_EXPORT PrimariesOutside primariesOutside(const Targets &gamut, const Targets &container);

} // namespace Model

#endif // GAMUTMODEL_GAMUTCOVERAGE_H
