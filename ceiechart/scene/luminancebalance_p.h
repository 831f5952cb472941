// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_LUMINANCEBALANCE_P_H
#define CEIECHART_SCENE_LUMINANCEBALANCE_P_H

#include <ceiechart/model/trianglepoint.h>

namespace ceiechart {

/*! \brief Sets the white of \a target to what its primaries mix to. */
void mixWhite(TrianglePoint &target);

/*!
 * \brief Holds the white position of \a target and sets the luminances that give it: the white luminance starts at what
 * \a original's primaries mix to and is lowered in steps of 10 until no primary has to be negative or brighter than
 * the original's, or until it is below 10. A luminance that is not finite, or too large for a step to change, is
 * not lowered.
 */
void balanceHeldWhite(TrianglePoint &target, const TrianglePoint &original);

} // namespace ceiechart

#endif
