// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_LUMINANCEBALANCE_P_H
#define CEIECHART_SCENE_LUMINANCEBALANCE_P_H

#include <ceiechart/model/trianglepoint.h>

#include <cstdint>

namespace ceiechart {

/*! \brief Sets the white point of \a target, with its luminance, to the additive mixture of the primaries. */
void mixWhite(TrianglePoint &target);

/*!
 * \brief Keeps the white point of \a target and sets the luminances of white and primaries.
 *
 * The luminance of the white starts at that of the additive mixture of the primaries of \a original. It is decreased in
 * steps of 10 until no primary needs a negative luminance or one above that of the original, or until it is below 10. A
 * luminance that is not finite, or so large that a step does not change it, is not decreased.
 */
void balanceHeldWhite(TrianglePoint &target, const TrianglePoint &original);

/*!
 * \brief \a white after \a steps subtractions of 10, each rounded to double precision.
 *
 * Up to 2^54 each subtraction is exact. Above, the result is rounded to a multiple of the distance between neighbouring
 * numbers, so that the steps between two powers of two have the same size, but not 10.
 */
double lowered(double white, std::uint64_t steps);

} // namespace ceiechart

#endif
