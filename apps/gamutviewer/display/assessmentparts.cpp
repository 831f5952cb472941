// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessmentparts.h"

#include "display/chromaticity.h"
#include "display/wallassessment.h"

#include <gamutmodel/nearestinside.h>
#include <gamutmodel/tolerances.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

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

std::array<double, 4> offByBlack(const Model::Cabinet &cabinet, const Model::CorrectionMatrix &correction,
    const Model::Targets &target, const std::array<double, 4> &outside)
{
    constexpr std::pair<ceiechart::GamutVertex, Model::Drive> contents[]
        = {{ceiechart::GamutVertex::Red, {1.0, 0.0, 0.0}}, {ceiechart::GamutVertex::Green, {0.0, 1.0, 0.0}},
            {ceiechart::GamutVertex::Blue, {0.0, 0.0, 1.0}}, {ceiechart::GamutVertex::White, {1.0, 1.0, 1.0}}};
    std::array<double, 4> off{};
    std::optional<Model::DisplayDrive> display;
    for (const auto &[vertex, content] : contents) {
        const Model::Drive drive = correction.driveFor(content);
        if (outside[std::size_t(vertex)] > 0.0 || !Model::isOutside(drive)) {
            continue;
        }
        if (!display) {
            display.emplace(cabinet.colors, cabinet.black);
        }
        const auto shown
            = display->lightAt({std::max(drive.red, 0.0), std::max(drive.green, 0.0), std::max(drive.blue, 0.0)});
        const auto difference = shown ? Model::uvDifference(*shown, ceiechart::targetAt(target, vertex)) : std::nullopt;
        if (!difference || *difference > visibleUv) {
            off[std::size_t(vertex)] = difference.value_or(std::numeric_limits<double>::infinity());
        }
    }
    return off;
}

} // namespace gamutviewer
