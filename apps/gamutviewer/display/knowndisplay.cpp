// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/knowndisplay.h"

#include "display/assessmentparts.h"
#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "display/wallassessment.h"

#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <limits>

namespace gamutviewer {

using Vertex = ceiechart::GamutVertex;

std::vector<KnownDisplay> knownDisplays(const DisplayDescription &description)
{
    std::vector<KnownDisplay> displays;
    if (const auto original = description.gamut(description.original)) {
        displays.push_back({*original, false});
    }
    const auto measured = description.gamut(description.measured);
    if (measured && (displays.empty() || description.measured != description.original)) {
        displays.push_back({*measured, true});
    }
    return displays;
}

std::optional<KnownDisplay> knownDisplay(const DisplayDescription &description)
{
    const std::vector<KnownDisplay> displays = knownDisplays(description);
    return displays.empty() ? std::nullopt : std::make_optional(displays.front());
}

std::optional<KnownDisplay> exceededDisplay(const DisplayDescription &description)
{
    const auto target = description.gamut(description.target);
    for (const KnownDisplay &display : knownDisplays(description)) {
        if (target && Model::primariesOutside(target->getTargets(), display.gamut.getTargets()).any()) {
            return display;
        }
    }
    return std::nullopt;
}

double distanceOutside(const Model::Targets &target, Vertex primary, const Model::Targets &display)
{
    const Model::PrimariesOutside outside = Model::primariesOutside(target, display);
    const bool isOutside = primary == Vertex::Red ? outside.red
        : primary == Vertex::Green                ? outside.green
        : primary == Vertex::Blue                 ? outside.blue
                                                  : false;
    const Model::Target &color = ceiechart::targetAt(target, primary);
    if (!isOutside) {
        // What the chart allows for is an area: of a small gamut it reaches farther.
        const auto distance = distanceFrom(display, color);
        if (!distance || *distance <= visibleUv) {
            return 0.0;
        }
    }
    const auto nearest = Model::nearestInside(display, pointOf(color), chromaticityDecimals);
    return nearest ? nearest->distance : std::numeric_limits<double>::infinity();
}

std::optional<OutsideOf> outsideOf(const DisplayDescription &description, Vertex primary)
{
    const auto target = description.gamut(description.target);
    for (const KnownDisplay &display : knownDisplays(description)) {
        const double distance
            = target ? distanceOutside(target->getTargets(), primary, display.gamut.getTargets()) : 0.0;
        if (distance > 0.0) {
            return OutsideOf{display, distance};
        }
    }
    return std::nullopt;
}

bool luminancesCompare(LuminanceUnit a, LuminanceUnit b)
{
    // The scales of two relative ones need not be the same: 100 here can be 1 there.
    return a == LuminanceUnit::CandelaPerSquareMetre && b == LuminanceUnit::CandelaPerSquareMetre;
}

} // namespace gamutviewer
