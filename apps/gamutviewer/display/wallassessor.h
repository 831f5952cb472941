// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLASSESSOR_H
#define GAMUTVIEWER_WALLASSESSOR_H

#include "display/wallassessment.h"

namespace gamutviewer {

/*! \brief All of assessWall() but the sentences. */
WallAssessment judgedWall(const DisplayWall &wall, const DisplayGamut &target);

/*! \brief Whether a luminance \a wanted is more than a cabinet shows that has \a reached, but for fullDrive. */
bool isTooBright(double wanted, double reached);
/*! \brief Whether it is more than that at all, also by as little as isTooBright() lets pass. */
bool isAbove(double wanted, double reached);

/*!
 * \brief The luminance of the white of \a target, or what all cabinets reach as far as known, if that is less.
 *
 * The latter is rounded down to the digits that are shown, so that all places show the same number.
 */
double fittedLuminance(const DisplayGamut &target, const WallAssessment &assessment);

} // namespace gamutviewer

#endif
