// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessment.h"

#include "display/assessmenttexts.h"
#include "display/displayassessor.h"
#include "display/toleranceassessor.h"
#include "display/wallassessment.h"
#include "display/wallassessmenttexts.h"

#include <algorithm>

namespace gamutviewer {

namespace {

Judgement worst(const QVector<AssessmentLine> &lines, bool ofTolerances)
{
    Judgement found = Judgement::Pass;
    for (const AssessmentLine &line : lines) {
        if ((line.subject == AssessmentLine::Subject::Tolerance) != ofTolerances) {
            continue;
        }
        if (line.judgement == Judgement::Fail) {
            return Judgement::Fail;
        }
        if (line.judgement == Judgement::NotKnown) {
            found = Judgement::NotKnown;
        }
    }
    return found;
}

bool hasLines(const Assessment &assessment, AssessmentLine::Subject subject)
{
    return std::any_of(assessment.lines.begin(), assessment.lines.end(),
        [subject](const AssessmentLine &line) { return line.subject == subject; });
}

//! The cabinet that all that is known of the display was measured of, but for its original; empty for none.
QString onlyCabinet(const DisplayDescription &description, const QString &measuredCabinet)
{
    const DisplayWall &wall = description.wall;
    if (wall.cabinets.empty()) {
        const bool isApart = description.measured != description.original;
        return isApart && description.gamut(description.measured) ? measuredCabinet : QString();
    }
    const bool isAlone = wall.cabinets.size() == 1 && wall.incomplete.empty() && knownDisplays(description).empty();
    return isAlone ? cabinetName(wall, 0) : QString();
}

//! Adds to \a result what the cabinets of the wall show of the target, where both are known.
void assessTheWall(const DisplayDescription &description, Assessment &result)
{
    const auto target = description.gamut(description.target);
    if (description.wall.cabinets.empty() || !target) {
        return;
    }
    const auto add = [&result](Judgement judgement, const QString &text) {
        result.lines.append({AssessmentLine::Subject::Wall, judgement, text, std::nullopt, QString(), std::nullopt});
    };
    const auto wall = std::make_shared<const WallAssessment>(assessWall(description.wall, *target));
    add(wall->judgement, AssessmentText::tr("%1.", "a sentence").arg(wall->headline));
    for (const WallLine &line : wall->lines) {
        if (line.judgement) {
            add(*line.judgement, line.text);
        }
    }
    result.wall = wall;
}

} // namespace

QString judgementMark(Judgement judgement)
{
    switch (judgement) {
    case Judgement::Pass:
        return QStringLiteral("✓");
    case Judgement::Fail:
        return QStringLiteral("✗");
    case Judgement::NotKnown:
        break;
    }
    return QStringLiteral("?");
}

QString judgementName(Judgement judgement)
{
    switch (judgement) {
    case Judgement::Pass:
        return QStringLiteral("pass");
    case Judgement::Fail:
        return QStringLiteral("fail");
    case Judgement::NotKnown:
        break;
    }
    return QStringLiteral("not known");
}

Judgement Assessment::judgement() const
{
    const Judgement display = worst(lines, false);
    const Judgement tolerances = worst(lines, true);
    return display == Judgement::Fail || tolerances == Judgement::Fail ? Judgement::Fail
        : display == Judgement::NotKnown                               ? display
                                                                       : tolerances;
}

QString Assessment::headline() const
{
    const auto failsElsewhere = [](const AssessmentLine &line) {
        return line.judgement == Judgement::Fail && line.isOfMeasured == std::make_optional(false);
    };
    if (!cabinet.isEmpty() && std::none_of(lines.begin(), lines.end(), failsElsewhere)) {
        return cabinetHeadline();
    }
    const bool hasTolerances = hasLines(*this, AssessmentLine::Subject::Tolerance);
    switch (judgement()) {
    case Judgement::Pass:
        return hasTolerances ? AssessmentText::tr("The display shows the target within tolerance")
                             : AssessmentText::tr("The display can show the target");
    case Judgement::Fail:
        return worst(lines, false) == Judgement::Fail ? AssessmentText::tr("The display cannot show the target")
                                                      : AssessmentText::tr("The display is out of tolerance");
    case Judgement::NotKnown:
        break;
    }
    return worst(lines, false) == Judgement::Pass ? AssessmentText::tr("Not known whether it is in tolerance")
                                                  : AssessmentText::tr("Not known whether it can show the target");
}

// Short, as names of cabinets may be long and the headline has one line.
QString Assessment::cabinetHeadline() const
{
    const auto text = [this](const QString &ofCabinet) { return ofCabinet.arg(oneLine(cabinet)); };
    switch (judgement()) {
    case Judgement::Pass:
        return text(hasLines(*this, AssessmentLine::Subject::Tolerance)
                ? AssessmentText::tr("Cabinet %1 is within tolerance")
                : AssessmentText::tr("Cabinet %1 can show the target"));
    case Judgement::Fail:
        return text(worst(lines, false) == Judgement::Fail ? AssessmentText::tr("Cabinet %1 cannot show the target")
                                                           : AssessmentText::tr("Cabinet %1 is out of tolerance"));
    case Judgement::NotKnown:
        break;
    }
    return text(AssessmentText::tr("The verdict on cabinet %1 is not known"));
}

Assessment assess(const DisplayDescription &description, const std::optional<Tolerances> &tolerances, bool needsChoice,
    const QString &measuredCabinet)
{
    Assessment result;
    result.cabinet = onlyCabinet(description, measuredCabinet);
    if (needsChoice) {
        result.lines.append({AssessmentLine::Subject::Display, Judgement::NotKnown,
            AssessmentText::tr(
                "A measurement list needs a choice: not all that it says of the display can be judged. Make the "
                "choice that the warnings ask for."),
            std::nullopt, QString(), std::nullopt});
    }
    assessDisplays(description, !measuredCabinet.isEmpty(), result);
    assessTheWall(description, result);
    if (tolerances) {
        assessTolerances(description, *tolerances, !measuredCabinet.isEmpty(), result);
    }
    return result;
}

} // namespace gamutviewer
