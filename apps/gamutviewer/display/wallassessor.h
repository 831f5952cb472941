// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLASSESSOR_H
#define GAMUTVIEWER_WALLASSESSOR_H

#include "display/wallassessment.h"

namespace gamutviewer {

/*! \brief All of assessWall() but the sentences. */
WallAssessment judgedWall(const DisplayWall &wall, const DisplayGamut &target);

/*!
 * \brief The luminance of the white of \a target, or what all cabinets reach as far as known, if that is less.
 *
 * The latter is rounded down to the digits that are shown, so that all places show the same number.
 */
double fittedLuminance(const DisplayGamut &target, const WallAssessment &assessment);

} // namespace gamutviewer

#endif
