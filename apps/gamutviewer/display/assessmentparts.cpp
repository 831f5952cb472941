// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessmentparts.h"

#include "display/chromaticity.h"

#include <gamutmodel/nearestinside.h>
#include <gamutmodel/tolerances.h>

#include <algorithm>

namespace gamutviewer {

double highest(const Model::Drive &drive)
{
    return std::max({drive.red, drive.green, drive.blue});
}

std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color)
{
    const auto nearest = Model::nearestPoint(display, pointOf(color), Model::Diagram::Cie1976);
    return nearest ? Model::uvDifference(Model::Target::fromYxy(1.0, nearest->x, nearest->y), color) : std::nullopt;
}

} // namespace gamutviewer
