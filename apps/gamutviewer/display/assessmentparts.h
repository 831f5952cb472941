// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ASSESSMENTPARTS_H
#define GAMUTVIEWER_ASSESSMENTPARTS_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/drive.h>

#include <optional>

/*!
 * \file
 * \brief What the judgements of a display and of a wall compute alike.
 */
namespace gamutviewer {

/*! \brief The highest of the three values of \a drive. */
double highest(const Model::Drive &drive);

/*!
 * \brief How far \a color lies outside of the triangle of \a display, in Δu′v′: 0 inside, but for rounding. Nothing
 * without a chromaticity, or if the triangle has no area.
 *
 * It takes no luminances.
 */
std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color);

} // namespace gamutviewer

#endif
