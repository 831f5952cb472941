// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DISPLAYASSESSOR_H
#define GAMUTVIEWER_DISPLAYASSESSOR_H

#include "display/assessment.h"

namespace gamutviewer {

/*!
 * \brief Adds to \a assessment what the target is held against, how it is driven, and whether the display can show it:
 * its chromaticities and its luminances. \a isOfCabinet says whether the measured gamut is only that of a cabinet.
 */
void assessDisplays(const DisplayDescription &description, bool isOfCabinet, Assessment &assessment);

} // namespace gamutviewer

#endif
