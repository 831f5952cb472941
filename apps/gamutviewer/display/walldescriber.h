// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLDESCRIBER_H
#define GAMUTVIEWER_WALLDESCRIBER_H

#include "display/wallassessment.h"

namespace gamutviewer {

/*! \brief Sets the headline and the lines of \a assessment, which has all else. */
void describeWall(const DisplayWall &wall, const DisplayGamut &target, WallAssessment &assessment);

} // namespace gamutviewer

#endif
