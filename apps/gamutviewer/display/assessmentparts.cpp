// SPDX-License-Identifier: MIT
#include "display/assessmentparts.h"

#include "display/assessment.h"
#include "display/valuetexts.h"

#include <gamutmodel/nearestinside.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

using Vertex = ceiechart::GamutVertex;

struct AssessmentText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::Assessment)
};

QString unitPhrase(LuminanceUnit unit)
{
    switch (unit) {
    case LuminanceUnit::CandelaPerSquareMetre:
        return AssessmentText::tr("in cd/m²");
    case LuminanceUnit::Relative:
        return AssessmentText::tr("relative");
    case LuminanceUnit::NotKnown:
        break;
    }
    return AssessmentText::tr("in a unit that is not known");
}

} // namespace

Vertex vertexOf(Model::Primary primary)
{
    return primary == Model::Primary::Red  ? Vertex::Red
        : primary == Model::Primary::Green ? Vertex::Green
                                           : Vertex::Blue;
}

QString capitalised(QString text)
{
    if (!text.isEmpty()) {
        text[0] = text.at(0).toUpper();
    }
    return text;
}

Model::DiagramPoint pointOf(const Model::Target &target)
{
    return {target.x, target.y};
}

QString pointText(const Model::DiagramPoint &point)
{
    return QStringLiteral("%1, %2").arg(
        fixedText(point.x, chromaticityDecimals), fixedText(point.y, chromaticityDecimals));
}

QString reachableText(double luminance, LuminanceUnit unit)
{
    constexpr double rounding = 1e-6;
    const double step = std::fabs(luminance) < 10.0 ? 1e4 : 10.0;
    return luminanceText(std::floor(luminance * step + rounding) / step, unit);
}

QString distanceText(double distance)
{
    constexpr int most = 6;
    int decimals = 4;
    while (decimals < most && fixedText(distance, decimals) == fixedText(0.0, decimals)) {
        ++decimals;
    }
    return fixedText(distance, decimals);
}

double highest(const Model::Drive &drive)
{
    return std::max({drive.red, drive.green, drive.blue});
}

bool luminancesCompare(LuminanceUnit a, LuminanceUnit b)
{
    // The scales of two relative ones need not be the same: 100 here can be 1 there.
    return a == LuminanceUnit::CandelaPerSquareMetre && b == LuminanceUnit::CandelaPerSquareMetre;
}

QString incomparableText(LuminanceUnit target, LuminanceUnit other, const QString &otherName)
{
    const QString why = target == LuminanceUnit::Relative && other == LuminanceUnit::Relative
        ? AssessmentText::tr("The luminances cannot be compared: those of the target and those of the %1 are relative, "
                             "and their scales need not be the same.")
              .arg(otherName)
        : AssessmentText::tr("The luminances cannot be compared: those of the target are %1, those of "
                             "the %2 %3.")
              .arg(unitPhrase(target), otherName, unitPhrase(other));
    const QString what = other == LuminanceUnit::NotKnown
        ? AssessmentText::tr("State the unit of the %1 in its file.").arg(otherName)
        : other == LuminanceUnit::Relative
        ? AssessmentText::tr("It takes luminances of the %1 in cd/m².").arg(otherName)
        : AssessmentText::tr("Choose the unit of the target beside Y.");
    return why + QLatin1Char(' ') + what;
}

std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color)
{
    const auto nearest = Model::nearestPoint(display, pointOf(color), Model::Diagram::Cie1976);
    return nearest ? Model::uvDifference(Model::Target::fromYxy(1.0, nearest->x, nearest->y), color) : std::nullopt;
}

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

} // namespace gamutviewer
