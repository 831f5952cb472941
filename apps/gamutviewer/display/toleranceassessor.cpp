// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/toleranceassessor.h"

#include "display/assessmenttexts.h"
#include "display/valuetexts.h"

#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/tolerances.h>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using Vertex = ceiechart::GamutVertex;

//! Of deviations and limits. A double has more only of numbers below 1000.
constexpr int mostDecimals = 12;

//! A value and its limit as they are shown.
struct ShownDeviation {
    QString value;
    QString limit;
    bool isApart = true; //!< whether the texts of a value that fails differ
};

//! The decimals that \a limit is written with, at least \a least: what it is must not be hidden by rounding.
int decimalsOf(double limit, int least)
{
    QString digits = fixedText(limit, mostDecimals);
    while (digits.endsWith(QLatin1Char('0'))) {
        digits.chop(1);
    }
    return std::max(least, int(digits.size() - digits.indexOf(QLatin1Char('.')) - 1));
}

/*!
 * With the digits of the limit, but at least \a decimals, and up to two more if it takes them to tell a value that \a
 * fails from its limit. One that passes needs no more: rounded, it is still on the right side of its limit, or equal.
 */
ShownDeviation shownDeviation(double value, double limit, int decimals, bool fails)
{
    const auto areEqual = [&](int digits) { return fixedText(value, digits) == fixedText(limit, digits); };
    const int least = decimalsOf(limit, decimals);
    int digits = least;
    while (fails && digits < least + 2 && areEqual(digits)) {
        ++digits;
    }
    if (fails && areEqual(digits)) {
        return {fixedText(value, least), fixedText(limit, least), false};
    }
    return {fixedText(value, digits), fixedText(limit, digits), true};
}

//! What is beyond the last of the decimals of a deviation comes from its computation.
void round(std::optional<double> &deviation)
{
    const double perUnit = std::pow(10.0, mostDecimals);
    // A luminance can be so many times that of the target that it has no such decimals.
    if (deviation && std::fabs(*deviation) < perUnit / 1000.0) {
        deviation = std::round(*deviation * perUnit) / perUnit;
    }
}

Model::DeviationValues rounded(Model::DeviationValues values)
{
    for (std::optional<double> *value : {&values.whiteUv, &values.redUv, &values.greenUv, &values.blueUv,
             &values.luminance, &values.temperature, &values.coverage}) {
        round(*value);
    }
    return values;
}

//! Makes the lines of what was measured.
class ToleranceAssessor {
public:
    ToleranceAssessor(
        const DisplayDescription &description, const Tolerances &tolerances, bool isOfCabinet, Assessment &result)
        : m_description(description)
        , m_tolerances(tolerances)
        , m_isOfCabinet(isOfCabinet)
        , m_target(description.gamut(description.target))
        , m_measured(description.gamut(description.measured))
        , m_result(result)
    {
    }

    void assess()
    {
        Model::DeviationValues values;
        if (m_measured && m_target) {
            const bool isSame = luminancesCompare(m_measured->unit, m_target->unit);
            values = Model::deviations(m_measured->getTargets(), m_target->getTargets(),
                isSame ? Model::LuminanceUnits::Same : Model::LuminanceUnits::Different, m_tolerances.coverageDiagram);
            const Model::Target &is = m_measured->getTargets().white;
            const Model::Target &should = m_target->getTargets().white;
            const auto temperature = ceiechart::colorTemperature(ceiechart::xyOf(is));
            const auto wanted = ceiechart::colorTemperature(ceiechart::xyOf(should));
            if (temperature && wanted) {
                values.temperature = temperature->kelvin - wanted->kelvin;
            }
        }
        for (const Model::ToleranceResult &result : Model::judged(rounded(values), m_tolerances.limits)) {
            addResult(result);
        }
        for (const StandardCoverage &limit : m_tolerances.standards) {
            judgeStandard(limit);
        }
    }

private:
    void add(
        Judgement judgement, const QString &text, std::optional<Vertex> vertex = {}, const QString &mark = QString())
    {
        m_result.lines.append({AssessmentLine::Subject::Tolerance, judgement, text, vertex, mark, std::nullopt});
    }

    static Judgement judgementOf(Model::ToleranceVerdict verdict)
    {
        return verdict == Model::ToleranceVerdict::Passed ? Judgement::Pass
            : verdict == Model::ToleranceVerdict::Failed  ? Judgement::Fail
                                                          : Judgement::NotKnown;
    }

    QString measuredName() const
    {
        return displayName({m_measured ? *m_measured : DisplayGamut(), true, m_measured && m_isOfCabinet});
    }

    //! Why a deviation is not known.
    QString notKnownText(Model::ToleranceSubject subject) const
    {
        if (!m_measured) {
            return AssessmentText::tr("no measured gamut of the display is known.");
        }
        if (!m_target) {
            return AssessmentText::tr("there is no target. Choose one.");
        }
        if (subject == Model::ToleranceSubject::Temperature) {
            return AssessmentText::tr("one of the whites has no colour temperature.");
        }
        return AssessmentText::tr("a colour has no chromaticity or no luminance.");
    }

    void addResult(const Model::ToleranceResult &result)
    {
        using ToleranceSubject = Model::ToleranceSubject;
        const auto vertex = [&]() -> std::optional<Vertex> {
            switch (result.subject) {
            case ToleranceSubject::RedUv:
                return Vertex::Red;
            case ToleranceSubject::GreenUv:
                return Vertex::Green;
            case ToleranceSubject::BlueUv:
                return Vertex::Blue;
            case ToleranceSubject::Coverage:
                return std::nullopt;
            case ToleranceSubject::WhiteUv:
            case ToleranceSubject::Luminance:
            case ToleranceSubject::Temperature:
                break;
            }
            return Vertex::White;
        }();
        const bool isColor = vertex && result.subject != ToleranceSubject::Luminance
            && result.subject != ToleranceSubject::Temperature;
        const QString what = isColor ? AssessmentText::tr("Measured %1").arg(gamutVertexName(*vertex))
            : result.subject == ToleranceSubject::Luminance ? AssessmentText::tr("Measured luminance of the white")
            : result.subject == ToleranceSubject::Temperature
            ? AssessmentText::tr("Measured colour temperature of the white")
            : AssessmentText::tr("Coverage of the target");
        const QString is = result.value && result.verdict != Model::ToleranceVerdict::NotKnown ? deviationText(result)
            : m_measured && m_target && result.subject == ToleranceSubject::Luminance
                && !luminancesCompare(m_measured->unit, m_target->unit)
            ? AssessmentText::tr("not known. %1", "and why, in sentences")
                  .arg(incomparableText(m_target->unit, m_measured->unit, measuredName()))
            : AssessmentText::tr("not known, as %1").arg(notKnownText(result.subject));
        QString text = AssessmentText::tr("%1: %2", "what was judged and the judgement").arg(what, is);
        if (result.verdict == Model::ToleranceVerdict::Failed) {
            text += QLatin1Char(' ')
                + (isColor ? AssessmentText::tr("Calibrate the display, or move %1 of the target.")
                                 .arg(gamutVertexName(*vertex))
                           : AssessmentText::tr("Calibrate the display, or change the target."));
        }
        const Judgement judgement = judgementOf(result.verdict);
        if (!vertex) {
            add(judgement, text);
        } else {
            add(judgement, text, vertex,
                isColor ? AssessmentText::tr("ring around %1 of the target").arg(gamutVertexName(*vertex))
                        : handleName(*vertex));
        }
    }

    static QString deviationText(const Model::ToleranceResult &result)
    {
        const bool fails = result.verdict == Model::ToleranceVerdict::Failed;
        const double value = *result.value;
        const auto beyond = [](const QString &text, const ShownDeviation &shown) {
            return shown.isApart ? text : AssessmentText::tr("beyond %1", "a limit, by less than is shown").arg(text);
        };
        const QString sign = value < 0.0 ? QStringLiteral("-") : QStringLiteral("+");
        switch (result.subject) {
        case Model::ToleranceSubject::Luminance: {
            const ShownDeviation shown = shownDeviation(std::fabs(value) * 100.0, result.limit * 100.0, 1, fails);
            return AssessmentText::tr("%1 % from the target, limit ±%2 %.")
                .arg(beyond(sign + shown.value, shown), shown.limit);
        }
        case Model::ToleranceSubject::Temperature: {
            const ShownDeviation shown = shownDeviation(std::fabs(value), result.limit, 0, fails);
            return AssessmentText::tr("%1 K from the target, limit ±%2 K.")
                .arg(beyond(sign + shown.value, shown), shown.limit);
        }
        case Model::ToleranceSubject::Coverage: {
            const ShownDeviation shown = shownDeviation(value * 100.0, result.limit * 100.0, 1, fails);
            return AssessmentText::tr("%1 %, at least %2 %.")
                .arg(shown.isApart ? shown.value : AssessmentText::tr("less than %1").arg(shown.value), shown.limit);
        }
        case Model::ToleranceSubject::WhiteUv:
        case Model::ToleranceSubject::RedUv:
        case Model::ToleranceSubject::GreenUv:
        case Model::ToleranceSubject::BlueUv:
            break;
        }
        const ShownDeviation shown = shownDeviation(value, result.limit, 4, fails);
        return AssessmentText::tr("Δu′v′ %1 from the target, limit %2.").arg(beyond(shown.value, shown), shown.limit);
    }

    void judgeStandard(const StandardCoverage &limit)
    {
        const auto standard = m_description.gamut(limit.standard);
        const QString diagram
            = limit.diagram == Model::Diagram::Cie1931 ? AssessmentText::tr("x, y") : AssessmentText::tr("u′, v′");
        const QString what
            = AssessmentText::tr("Coverage of %1 in %2 by the %3", "gamut, diagram, and which gamut of the display")
                  .arg(oneLine(limit.standard), diagram, measuredName());
        if (!standard || !m_measured) {
            const QString why = standard ? AssessmentText::tr("no measured gamut of the display is known.")
                                         : AssessmentText::tr("there is no gamut of that name.");
            add(Judgement::NotKnown,
                AssessmentText::tr("%1: %2", "what was judged and the judgement")
                    .arg(what, AssessmentText::tr("not known, as %1").arg(why)));
            return;
        }
        Model::DeviationValues values;
        values.coverage = Model::deviations(
            m_measured->getTargets(), standard->getTargets(), Model::LuminanceUnits::Different, limit.diagram)
                              .coverage;
        Model::Tolerances limits;
        limits.coverage = limit.coverage;
        const Model::ToleranceResult result = Model::judged(rounded(values), limits).front();
        const QString is = result.verdict == Model::ToleranceVerdict::NotKnown
            ? AssessmentText::tr("not known, as %1")
                  .arg(AssessmentText::tr("a colour has no chromaticity or no luminance."))
            : deviationText(result);
        add(judgementOf(result.verdict),
            AssessmentText::tr("%1: %2", "what was judged and the judgement").arg(what, is));
    }

    const DisplayDescription &m_description;
    const Tolerances &m_tolerances;
    const bool m_isOfCabinet;
    const std::optional<DisplayGamut> m_target;
    const std::optional<DisplayGamut> m_measured;
    Assessment &m_result;
};

} // namespace

void assessTolerances(
    const DisplayDescription &description, const Tolerances &tolerances, bool isOfCabinet, Assessment &assessment)
{
    ToleranceAssessor(description, tolerances, isOfCabinet, assessment).assess();
}

} // namespace gamutviewer
