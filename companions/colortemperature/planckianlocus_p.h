// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef COLORTEMPERATURE_PLANCKIANLOCUS_P_H
#define COLORTEMPERATURE_PLANCKIANLOCUS_P_H

namespace ceiechart {

/*! \brief The point of the Planckian locus that is nearest to a chromaticity. */
struct LocusFoot {
    double mired; //!< reciprocal temperature of the point in mired, 1e6 / K
    double duv; //!< distance of the chromaticity from the point, positive above the locus and negative below
};

/*!
 * \brief The reach of the locus, 0.1001, rounded down (Federer, Curvature measures, 1959).
 *
 * A chromaticity that is nearer to the locus than the reach has a single nearest point, and no other local minimum of
 * the distance is below the reach. The reach is the smallest radius of curvature, which the locus has at 5100 K. Above
 * the locus there is no limit: the locus is convex and turns by less than a right angle, so that the nearest point is
 * the only local minimum there.
 */
constexpr double locusReach = 0.1;

/*!
 * \brief The nearest point of the Planckian locus between 1000 K and 100 000 K, in the CIE 1960 diagram.
 *
 * \a u and \a v must be finite and not large. If several points are equally near, one of them is returned.
 */
LocusFoot nearestOnLocus(double u, double v);

} // namespace ceiechart

#endif
