// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessmenttexts.h"

#include "display/assessment.h"
#include "display/chromaticity.h"
#include "display/valuetexts.h"

#include <QStringList>

#include <cmath>

namespace gamutviewer {

namespace {

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

QString capitalised(QString text)
{
    if (!text.isEmpty()) {
        text[0] = text.at(0).toUpper();
    }
    return text;
}

QString displayName(const KnownDisplay &display)
{
    return display.isOfCabinet ? AssessmentText::tr("measured gamut “%1”").arg(oneLine(nameOf(display.gamut)))
        : display.isMeasured   ? AssessmentText::tr("measured gamut")
                               : AssessmentText::tr("original");
}

QString handleName(ceiechart::GamutVertex vertex)
{
    return AssessmentText::tr("handle “%1” of the target").arg(ceiechart::gamutVertexName(vertex));
}

QString pointText(const Model::DiagramPoint &point)
{
    return QStringLiteral("%1, %2").arg(
        fixedText(point.x, chromaticityDecimals), fixedText(point.y, chromaticityDecimals));
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

double roundedDown(double luminance)
{
    constexpr double rounding = 1e-6;
    const double step = std::fabs(luminance) < 10.0 ? 1e4 : 10.0;
    return std::floor(luminance * step + rounding) / step;
}

QString reachableText(double luminance, LuminanceUnit unit)
{
    return luminanceText(roundedDown(luminance), unit);
}

QString reachableText(double luminance)
{
    return luminanceText(roundedDown(luminance));
}

QString reachedText(double luminance, double wanted, LuminanceUnit unit)
{
    const bool isReached = luminance >= wanted * (1.0 - Model::driveRounding);
    const bool looksLess = reachableText(luminance).toDouble() < luminanceText(wanted).toDouble();
    return isReached && looksLess ? luminanceText(wanted, unit) : reachableText(luminance, unit);
}

QString drivesText(const Model::Drive &drive)
{
    QStringList texts;
    for (const Model::Primary primary : {Model::Primary::Red, Model::Primary::Green, Model::Primary::Blue}) {
        texts.append(AssessmentText::tr("%1 %2", "primary and its drive: red 71.0 %")
                         .arg(ceiechart::gamutVertexName(vertexOf(primary)), percent(drive.of(primary))));
    }
    return texts.join(AssessmentText::tr(", ", "between drives"));
}

QString countsAsFullText()
{
    return AssessmentText::tr("That is within %1 of full drive, and counts as full.").arg(percent(fullDrive - 1.0));
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
        : AssessmentText::tr("Choose the unit of the target, beside Y in the window.");
    return why + QLatin1Char(' ') + what;
}

} // namespace gamutviewer
