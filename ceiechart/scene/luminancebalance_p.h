// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_LUMINANCEBALANCE_P_H
#define CEIECHART_SCENE_LUMINANCEBALANCE_P_H

#include <ceiechart/model/trianglepoint.h>

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

} // namespace ceiechart

#endif
