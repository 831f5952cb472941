// SPDX-License-Identifier: MIT
#ifndef COLORTEMPERATURE_PLANCKIANLOCUS_P_H
#define COLORTEMPERATURE_PLANCKIANLOCUS_P_H

namespace ceiechart {

/*! \brief The point of the Planckian locus that is nearest to a chromaticity. */
struct LocusFoot {
    double mired; //!< its reciprocal temperature, 1e6 / K
    double duv; //!< distance of the chromaticity from it, positive above the locus and negative below
};

/*!
 * \brief The reach of the locus, 0.1001, rounded down (Federer, Curvature measures, 1959).
 *
 * What is nearer to the locus than that has a single nearest point, and no other local minimum of the distance is as
 * near. It is the least radius of curvature, which the locus has at 5100 K. Above the locus there is no limit: the
 * locus is convex and turns by less than a right angle, so there the only local minimum is the nearest point.
 */
constexpr double locusReach = 0.1;

/*!
 * \brief The nearest point of the Planckian locus between 1000 K and 100 000 K, in the CIE 1960 diagram.
 *
 * \a u and \a v are finite and of ordinary size. If several points are equally near, one of them is returned.
 */
LocusFoot nearestOnLocus(double u, double v);

} // namespace ceiechart

#endif
