// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessment.h"

#include "display/assessmenttexts.h"
#include "display/displayassessor.h"
#include "display/toleranceassessor.h"
#include "display/wallassessment.h"

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
    const bool hasTolerances = std::any_of(lines.begin(), lines.end(),
        [](const AssessmentLine &line) { return line.subject == AssessmentLine::Subject::Tolerance; });
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

Assessment assess(const DisplayDescription &description, const std::optional<Tolerances> &tolerances, bool needsChoice)
{
    Assessment result;
    if (needsChoice) {
        result.lines.append({AssessmentLine::Subject::Display, Judgement::NotKnown,
            AssessmentText::tr(
                "A measurement list needs a choice: not all that it says of the display can be judged. Make the "
                "choice that the warnings ask for."),
            std::nullopt, QString(), std::nullopt});
    }
    assessDisplays(description, result);
    assessTheWall(description, result);
    if (tolerances) {
        assessTolerances(description, *tolerances, result);
    }
    return result;
}

} // namespace gamutviewer
