// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessmentparts.h"

#include "display/chromaticity.h"
#include "display/wallassessment.h"

#include <gamutmodel/nearestinside.h>
#include <gamutmodel/tolerances.h>

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace gamutviewer {

using Vertex = ceiechart::GamutVertex;

double highest(const Model::Drive &drive)
{
    return std::max({drive.red, drive.green, drive.blue});
}

std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color)
{
    const auto nearest = Model::nearestPoint(display, pointOf(color), Model::Diagram::Cie1976);
    return nearest ? Model::uvDifference(Model::Target::fromYxy(1.0, nearest->x, nearest->y), color) : std::nullopt;
}

bool isTooBright(double wanted, double reached)
{
    return wanted > reached * fullDrive;
}

bool isAbove(double wanted, double reached)
{
    return wanted > reached * (1.0 + Model::driveRounding);
}

Model::Drive contentOf(Vertex vertex)
{
    const double white = vertex == Vertex::White ? 1.0 : 0.0;
    const auto level = [&](Vertex primary) { return vertex == primary ? 1.0 : white; };
    return {level(Vertex::Red), level(Vertex::Green), level(Vertex::Blue)};
}

std::optional<Model::Target> shownWithoutLimit(
    const Model::DisplayDrive &display, const Model::CorrectionMatrix &correction, const Model::Drive &content)
{
    const Model::Drive drive = correction.driveFor(content);
    return display.lightAt({std::max(drive.red, 0.0), std::max(drive.green, 0.0), std::max(drive.blue, 0.0)});
}

std::optional<Model::Target> shownWithoutLimit(
    const Model::DisplayDrive &display, const Model::CorrectionMatrix &correction, Vertex vertex)
{
    return shownWithoutLimit(display, correction, contentOf(vertex));
}

std::array<double, 4> offByBlack(const Model::Cabinet &cabinet,
    const std::optional<Model::CorrectionMatrix> &correction, const Model::Targets &target,
    const std::array<double, 4> &outside)
{
    std::array<double, 4> off{};
    std::optional<Model::DisplayDrive> display;
    for (const Vertex vertex : ceiechart::allGamutVertices) {
        if (outside[std::size_t(vertex)] > 0.0) {
            continue;
        }
        if (!correction) {
            off[std::size_t(vertex)] = std::numeric_limits<double>::infinity();
            continue;
        }
        if (!Model::isOutside(correction->driveFor(contentOf(vertex)))) {
            continue;
        }
        if (!display) {
            display.emplace(cabinet.colors, cabinet.black);
        }
        const auto shown = shownWithoutLimit(*display, *correction, vertex);
        const auto difference = shown ? Model::uvDifference(*shown, ceiechart::targetAt(target, vertex)) : std::nullopt;
        if (!difference || *difference > visibleUv) {
            off[std::size_t(vertex)] = difference.value_or(std::numeric_limits<double>::infinity());
        }
    }
    return off;
}

std::vector<Model::Target> possibleChromaticities(const Model::Cabinet &cabinet)
{
    const Model::Targets &colors = cabinet.colors;
    std::vector<Model::Target> result{colors.red, colors.green, colors.blue};
    if (const auto white = Model::DisplayDrive(colors, std::nullopt).lightAt({1.0, 1.0, 1.0})) {
        result.push_back(*white);
    }
    return result;
}

std::vector<Model::Target> farthestOut(const std::vector<Model::Target> &lights)
{
    constexpr int directions = 8;
    std::vector<std::size_t> found;
    for (int k = 0; k < directions && !lights.empty(); ++k) {
        const double angle = 2.0 * M_PI * k / directions;
        const double x = std::cos(angle);
        const double y = std::sin(angle);
        const auto reach = [x, y](const Model::Target &of) { return of.x * x + of.y * y; };
        const auto farthest = std::max_element(
            lights.begin(), lights.end(), [&](const auto &a, const auto &b) { return reach(a) < reach(b); });
        const auto index = std::size_t(farthest - lights.begin());
        if (std::find(found.begin(), found.end(), index) == found.end()) {
            found.push_back(index);
        }
    }
    std::vector<Model::Target> result;
    for (const std::size_t index : found) {
        result.push_back(lights[index]);
    }
    return result;
}

std::vector<Model::Target> blacksOf(double luminance, const std::vector<Model::Target> &chromaticities)
{
    std::vector<Model::Target> result;
    for (const Model::Target &of : chromaticities) {
        result.push_back(Model::Target::fromYxy(luminance, of.x, of.y));
    }
    return result;
}

std::array<double, 4> offByBlacks(const Model::Cabinet &cabinet, const std::vector<Model::Target> &blacks,
    const Model::Targets &target, const std::array<double, 4> &outside)
{
    std::vector<Model::Cabinet> blackened;
    for (const Model::Target &black : blacks) {
        blackened.push_back(cabinet);
        blackened.back().black = black;
    }
    const Model::WallCorrection solved = Model::wallCorrection(blackened, target, target.white.Y);
    std::array<double, 4> most{};
    if (solved.fault == Model::WallFault::None) {
        for (std::size_t i = 0; i < blackened.size(); ++i) {
            const auto off = offByBlack(blackened[i], solved.corrections[i].matrix, target, outside);
            std::transform(off.begin(), off.end(), most.begin(), most.begin(),
                [](double one, double other) { return std::max(one, other); });
        }
    }
    return most;
}

} // namespace gamutviewer
