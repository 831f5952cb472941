// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TOLERANCEASSESSOR_H
#define GAMUTVIEWER_TOLERANCEASSESSOR_H

#include "display/assessment.h"

namespace gamutviewer {

/*!
 * \brief Adds to \a assessment whether the measured gamut is within \a tolerances of the target, and covers the
 * standards as they want. \a isOfCabinet says whether the measured gamut is only that of a cabinet.
 */
void assessTolerances(
    const DisplayDescription &description, const Tolerances &tolerances, bool isOfCabinet, Assessment &assessment);

} // namespace gamutviewer

#endif
