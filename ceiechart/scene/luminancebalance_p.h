// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_LUMINANCEBALANCE_P_H
#define CEIECHART_SCENE_LUMINANCEBALANCE_P_H

#include <ceiechart/model/trianglepoint.h>

#include <cstdint>

namespace ceiechart {

/*! Sets the white of \a target to what its primaries mix to. */
void mixWhite(TrianglePoint &target);

/*!
 * Holds the white position of \a target and sets the luminances that give it: the white luminance starts at what
 * \a original's primaries mix to and is lowered in steps of 10 until no primary has to be negative or brighter than
 * the original's, or until it is below 10. A luminance that is not finite, or too large for a step to change, is
 * not lowered.
 */
void balanceHeldWhite(TrianglePoint &target, const TrianglePoint &original);

/*!
 * \a white after \a steps subtractions of 10, each rounded to double precision.
 *
 * Up to 2^54 every one of them is exact. Above, the difference is rounded to a multiple of the spacing of the numbers,
 * which makes equal steps of another size between two powers of two.
 */
double lowered(double white, std::uint64_t steps);

} // namespace ceiechart

#endif
