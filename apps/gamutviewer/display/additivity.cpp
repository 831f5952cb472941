// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/additivity.h"

#include "display/assessment.h"
#include "display/assessmentparts.h"
#include "display/chromaticity.h"
#include "display/knowndisplay.h"

#include <gamutmodel/nearestinside.h>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

constexpr double rounding = 1e-9;

} // namespace

bool differsInLuminance(const Model::Target &measured, const Model::Target &sum)
{
    return !(std::fabs(measured.Y - sum.Y) <= sum.Y * (additiveLuminance + rounding));
}

Additivity additivityOf(const Model::DisplayDrive &drive, const Model::Target &measured)
{
    Additivity result;
    const auto sum = drive.lightAt({1.0, 1.0, 1.0});
    if (!sum) {
        return result;
    }
    result.sum = *sum;
    result.differsInLuminance = differsInLuminance(measured, *sum);
    const auto difference = Model::uvDifference(measured, *sum);
    result.isAdditive = !result.differsInLuminance && difference && *difference <= additiveUv + rounding;
    const auto white = drive.driveOf(measured);
    // A white without a luminance has not been measured: there may be light of its own in it.
    result.isUpperBound
        = result.isAdditive || (measured.Y > 0.0 && white && highest(*white) <= 1.0 + additiveLuminance + rounding);
    return result;
}

bool isMeasuredWhite(const Model::Target &measured, const Model::Target &white)
{
    constexpr double writtenUv = 0.0002; // of 0.00005 in x and in y
    const auto difference = Model::uvDifference(measured, white);
    return difference && *difference <= writtenUv;
}

double measuredShare(const Model::DisplayDrive &drive, const Model::Target &measured, const Model::Target &white)
{
    const auto sum = drive.largestLuminance(pointOf(measured));
    if (!sum || !(sum->luminance > 0.0) || !(measured.Y > 0.0)) {
        return 1.0;
    }
    const double share = measured.Y / sum->luminance;
    if (std::fabs(share - 1.0) <= fullDrive - 1.0) {
        return 1.0;
    }
    return isMeasuredWhite(measured, white) ? share : std::min(share, 1.0);
}

std::optional<double> reachableLuminance(const DisplayDescription &description, const Model::Target &white)
{
    std::optional<double> least;
    for (const KnownDisplay &display : knownDisplays(description)) {
        if (display.gamut.unit != LuminanceUnit::CandelaPerSquareMetre) {
            continue;
        }
        const Model::Targets &targets = display.gamut.getTargets();
        if (targets.white.Y > 0.0 && isMeasuredWhite(targets.white, white)) {
            least = std::min(least.value_or(targets.white.Y), targets.white.Y);
            continue;
        }
        const Model::DisplayDrive drive(targets, display.gamut.black);
        const bool isAdditive
            = drive.fault() == Model::DisplayFault::None && additivityOf(drive, targets.white).isAdditive;
        const auto largest = isAdditive ? drive.largestLuminance(pointOf(white)) : std::nullopt;
        if (!largest) {
            return std::nullopt;
        }
        const double reached = largest->luminance * measuredShare(drive, targets.white, white);
        least = std::min(least.value_or(reached), reached);
    }
    return least;
}

} // namespace gamutviewer
