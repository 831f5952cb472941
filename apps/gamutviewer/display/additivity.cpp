// SPDX-License-Identifier: MIT
#include "display/additivity.h"

#include "display/assessmentparts.h"
#include "display/chromaticity.h"
#include "display/knowndisplay.h"

#include <gamutmodel/nearestinside.h>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

Additivity additivityOf(const Model::DisplayDrive &drive, const Model::Target &measured)
{
    Additivity result;
    const auto sum = drive.lightAt({1.0, 1.0, 1.0});
    if (!sum) {
        return result;
    }
    result.sum = *sum;
    constexpr double rounding = 1e-9;
    result.differsInLuminance = !(std::fabs(measured.Y - sum->Y) <= sum->Y * (additiveLuminance + rounding));
    const auto difference = Model::uvDifference(measured, *sum);
    result.isAdditive = !result.differsInLuminance && difference && *difference <= additiveUv + rounding;
    const auto white = drive.driveOf(measured);
    result.isUpperBound = result.isAdditive || (white && highest(*white) <= 1.0 + additiveLuminance + rounding);
    return result;
}

std::optional<double> reachableLuminance(const DisplayDescription &description, const Model::Target &white)
{
    std::optional<double> least;
    for (const KnownDisplay &display : knownDisplays(description)) {
        if (display.gamut.unit != LuminanceUnit::CandelaPerSquareMetre) {
            continue;
        }
        const Model::Targets &targets = display.gamut.getTargets();
        const Model::DisplayDrive drive(targets);
        const bool isAdditive
            = drive.fault() == Model::DisplayFault::None && additivityOf(drive, targets.white).isAdditive;
        const auto largest = isAdditive ? drive.largestLuminance(pointOf(white)) : std::nullopt;
        if (!largest) {
            return std::nullopt;
        }
        least = std::min(least.value_or(largest->luminance), largest->luminance);
    }
    return least;
}

} // namespace gamutviewer
