// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/tolerances.h>

#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <algorithm>
#include <cmath>

namespace Model {

namespace {

/*! \brief The part of a limit by which rounding can miss it. */
constexpr double rounding = 1e-9;

ToleranceVerdict verdictOf(const ToleranceResult &result)
{
    if (!result.value || !std::isfinite(*result.value) || !std::isfinite(result.limit) || result.limit < 0.0) {
        return ToleranceVerdict::NotKnown;
    }
    const bool passes = result.subject == ToleranceSubject::Coverage
        ? *result.value >= result.limit * (1.0 - rounding)
        : std::fabs(*result.value) <= result.limit * (1.0 + rounding);
    return passes ? ToleranceVerdict::Passed : ToleranceVerdict::Failed;
}

} // namespace

DeviationValues deviations(const Targets &shown, const Targets &target, LuminanceUnits units, Diagram diagram)
{
    DeviationValues values;
    values.whiteUv = uvDifference(shown.white, target.white);
    values.redUv = uvDifference(shown.red, target.red);
    values.greenUv = uvDifference(shown.green, target.green);
    values.blueUv = uvDifference(shown.blue, target.blue);
    if (units == LuminanceUnits::Same && shown.white.Y > 0.0 && target.white.Y > 0.0) {
        const double ratio = shown.white.Y / target.white.Y;
        values.luminance = std::isfinite(ratio) ? std::make_optional(ratio - 1.0) : std::nullopt;
    }
    if (values.redUv && values.greenUv && values.blueUv) {
        const GamutCoverage coverage = gamutCoverage(shown, target, diagram);
        values.coverage = coverage.standardArea > 0.0 ? std::make_optional(coverage.coverage) : std::nullopt;
    }
    return values;
}

std::vector<ToleranceResult> judged(const DeviationValues &values, const Tolerances &limits)
{
    std::vector<ToleranceResult> results;
    const auto judge = [&results](ToleranceSubject subject, std::optional<double> value, std::optional<double> limit) {
        if (limit) {
            ToleranceResult result{subject, value, *limit, ToleranceVerdict::NotKnown};
            result.verdict = verdictOf(result);
            results.push_back(result);
        }
    };
    judge(ToleranceSubject::WhiteUv, values.whiteUv, limits.whiteUv);
    judge(ToleranceSubject::RedUv, values.redUv, limits.primariesUv);
    judge(ToleranceSubject::GreenUv, values.greenUv, limits.primariesUv);
    judge(ToleranceSubject::BlueUv, values.blueUv, limits.primariesUv);
    judge(ToleranceSubject::Luminance, values.luminance, limits.luminance);
    judge(ToleranceSubject::Temperature, values.temperature, limits.temperature);
    judge(ToleranceSubject::Coverage, values.coverage, limits.coverage);
    return results;
}

ToleranceVerdict overallVerdict(const std::vector<ToleranceResult> &results)
{
    const auto has = [&results](ToleranceVerdict verdict) {
        return std::any_of(results.begin(), results.end(),
            [verdict](const ToleranceResult &result) { return result.verdict == verdict; });
    };
    if (has(ToleranceVerdict::Failed)) {
        return ToleranceVerdict::Failed;
    }
    return results.empty() || has(ToleranceVerdict::NotKnown) ? ToleranceVerdict::NotKnown : ToleranceVerdict::Passed;
}

} // namespace Model
