// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallassessment.h"

#include "display/wallassessor.h"
#include "display/walldescriber.h"

#include <algorithm>

namespace gamutviewer {

bool isCommonOfAll(const DisplayWall &wall, const WallAssessment &assessment)
{
    return assessment.notInCommon.empty() && wall.incomplete.empty();
}

std::optional<Model::Targets> fittedToWall(const DisplayGamut &target, const WallAssessment &assessment)
{
    const Model::GamutFit &fit = assessment.fit;
    const double luminance = fittedLuminance(target, assessment);
    const bool isDimmer = luminance != target.getTargets().white.Y;
    if (fit.fault != Model::FitFault::None) {
        return std::nullopt;
    }
    // Also where the tolerance of the verdict passes a target for which a correction would need drives below 0.
    const bool hasMoved = fit.red.limit || fit.green.limit || fit.blue.limit;
    const bool failsInLuminance = std::any_of(assessment.cabinets.begin(), assessment.cabinets.end(),
        [](const CabinetAssessment &c) { return !c.isLeftOut && c.luminance == Judgement::Fail; });
    if (!hasMoved && !isDimmer && !failsInLuminance) {
        return std::nullopt;
    }
    return isDimmer ? ceiechart::withLuminance(fit.target, ceiechart::GamutVertex::White, luminance, true) : fit.target;
}

WallAssessment assessWall(const DisplayWall &wall, const DisplayGamut &target)
{
    WallAssessment assessment = judgedWall(wall, target);
    describeWall(wall, target, assessment);
    return assessment;
}

} // namespace gamutviewer
