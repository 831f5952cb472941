// SPDX-License-Identifier: MIT
#include "display/assessment.h"

#include "display/assessmentparts.h"
#include "display/valuetexts.h"
#include "display/wallassessment.h"

#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>
#include <gamutmodel/tolerances.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using ceiechart::targetAt;
using Vertex = ceiechart::GamutVertex;

constexpr Vertex primaries[] = {Vertex::Red, Vertex::Green, Vertex::Blue};

struct AssessmentText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::Assessment)
};

QString displayName(const KnownDisplay &display)
{
    return display.isMeasured ? AssessmentText::tr("measured gamut") : AssessmentText::tr("original");
}

QString handleName(Vertex vertex)
{
    return AssessmentText::tr("handle “%1” of the target").arg(gamutVertexName(vertex));
}

QString drivesText(const Model::Drive &drive)
{
    QStringList texts;
    for (const Model::Primary primary : {Model::Primary::Red, Model::Primary::Green, Model::Primary::Blue}) {
        texts.append(AssessmentText::tr("%1 %2", "primary and its drive: red 71.0 %")
                         .arg(gamutVertexName(vertexOf(primary)), percent(drive.of(primary))));
    }
    return texts.join(AssessmentText::tr(", ", "between drives"));
}

//! A value and its limit as they are shown.
struct ShownDeviation {
    QString value;
    QString limit;
    bool isApart = true; //!< whether the texts of a value that fails differ
};

/*!
 * With \a decimals, and up to two more if it takes them to tell a value that \a fails from its limit. One that passes
 * needs no more: rounded, it is still on the right side of its limit, or equal.
 */
ShownDeviation shownDeviation(double value, double limit, int decimals, bool fails)
{
    const auto areEqual = [&](int digits) { return fixedText(value, digits) == fixedText(limit, digits); };
    int digits = decimals;
    while (fails && digits < decimals + 2 && areEqual(digits)) {
        ++digits;
    }
    if (fails && areEqual(digits)) {
        return {fixedText(value, decimals), fixedText(limit, decimals), false};
    }
    return {fixedText(value, digits), fixedText(limit, digits), true};
}

//! What is beyond the ninth decimal of a deviation comes from its computation.
void round(std::optional<double> &deviation)
{
    if (deviation) {
        deviation = std::round(*deviation * 1e9) / 1e9;
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

//! The gamut with the largest area in u′, v′ that could be the target instead; nothing without one.
QString otherTarget(const DisplayDescription &description)
{
    const std::vector<KnownDisplay> displays = knownDisplays(description);
    const auto isInside = [&displays](const Model::Targets &target) {
        return std::none_of(displays.begin(), displays.end(), [&target](const KnownDisplay &display) {
            return Model::primariesOutside(target, display.gamut.getTargets()).any();
        });
    };
    QString best;
    double bestArea = 0.0;
    for (const DisplayGamut &standard : description.allStandards()) {
        const QString name = QString::fromStdString(standard.colorGamutName());
        const double area = Model::gamutArea(standard.getTargets(), Model::Diagram::Cie1976);
        if (name != description.target && area > bestArea && isInside(standard.getTargets())) {
            best = name;
            bestArea = area;
        }
    }
    return best;
}

/*! \brief Makes the lines of an assessment. */
class Assessor {
public:
    Assessor(const DisplayDescription &description, const std::optional<Tolerances> &tolerances)
        : m_description(description)
        , m_tolerances(tolerances)
        , m_target(description.gamut(description.target))
        , m_measured(description.gamut(description.measured))
    {
        for (const KnownDisplay &display : knownDisplays(description)) {
            m_result.displays.push_back({display, false, std::nullopt, std::nullopt});
        }
    }

    Assessment result()
    {
        judgeDisplays();
        if (m_tolerances) {
            judgeTolerances();
        }
        return m_result;
    }

private:
    using Subject = AssessmentLine::Subject;

    void add(Subject subject, Judgement judgement, const QString &text)
    {
        m_result.lines.append({subject, judgement, text, std::nullopt, QString(), isOfMeasured()});
    }
    void add(Subject subject, Judgement judgement, const QString &text, Vertex vertex, const QString &mark)
    {
        m_result.lines.append({subject, judgement, text, vertex, mark, isOfMeasured()});
    }

    std::optional<bool> isOfMeasured() const
    {
        return m_current ? std::make_optional(m_current->display.isMeasured) : std::nullopt;
    }

    const Model::Targets &displayTargets() const { return m_current->display.gamut.getTargets(); }

    void judgeDisplays()
    {
        if (!m_target) {
            add(Subject::Target, Judgement::NotKnown,
                AssessmentText::tr(
                    "What the display is to show is not known: nobody has chosen a target. Choose one, or edit the "
                    "default."));
        }
        if (m_result.displays.empty() && m_description.wall.cabinets.empty()) {
            add(Subject::Display, Judgement::NotKnown,
                AssessmentText::tr("What the display can show is not known: no gamut of the display is known, neither "
                                   "its original nor a measured one."));
        }
        if (!m_target) {
            return;
        }
        for (DriveAssessment &display : m_result.displays) {
            m_current = &display;
            judgeDisplay();
        }
        m_current = nullptr;
        judgeWall();
    }

    void judgeWall()
    {
        if (m_description.wall.cabinets.empty()) {
            return;
        }
        const WallAssessment wall = assessWall(m_description.wall, *m_target);
        add(Subject::Wall, wall.judgement, AssessmentText::tr("%1.", "a sentence").arg(wall.headline));
        for (const WallLine &line : wall.lines) {
            if (line.judgement) {
                add(Subject::Wall, *line.judgement, line.text);
            }
        }
        m_result.wall = std::make_shared<const WallAssessment>(wall);
    }

    void judgeDisplay()
    {
        if (!Model::spanTriangle(displayTargets())) {
            add(Subject::Display, Judgement::NotKnown,
                AssessmentText::tr("What the display can show is not known: the primaries of the %1 span no triangle.")
                    .arg(displayName(m_current->display)));
            return;
        }
        judgeGamut();
        judgeLuminance();
    }

    void judgeGamut()
    {
        const Model::Targets &target = m_target->getTargets();
        const QString other = otherTarget(m_description);
        const QString name = displayName(m_current->display);
        bool isInside = true;
        for (const Vertex primary : primaries) {
            const double distance = distanceOutside(target, primary, displayTargets());
            if (distance > 0.0) {
                isInside = false;
                addOutside(primary, distance, other);
            }
        }
        const auto distance = distanceFrom(displayTargets(), target.white);
        constexpr double rounding = 1e-9;
        if (!distance) {
            add(Subject::Gamut, Judgement::NotKnown,
                AssessmentText::tr("Whether the white lies inside of the %1 is not known: it has no chromaticity.")
                    .arg(name),
                Vertex::White, handleName(Vertex::White));
        } else if (*distance > rounding) {
            addOutside(Vertex::White, *distance, other);
        } else if (isInside) {
            add(Subject::Gamut, Judgement::Pass,
                AssessmentText::tr("All primaries and the white lie inside of the %1.").arg(name));
        }
    }

    void addOutside(Vertex vertex, double distance, const QString &other)
    {
        const Model::Target &color = targetAt(m_target->getTargets(), vertex);
        const auto nearest = Model::nearestInside(displayTargets(), pointOf(color), chromaticityDecimals);
        const QString what
            = AssessmentText::tr("%1 lies outside of the %2 by Δu′v′ %3")
                  .arg(capitalised(gamutVertexName(vertex)), displayName(m_current->display), distanceText(distance));
        const QString move = nearest ? AssessmentText::tr("move it to %1").arg(pointText(nearest->xy)) : QString();
        const QString choose = other.isEmpty()
            ? QString()
            : AssessmentText::tr("choose %1 as the target, which lies inside").arg(oneLine(other));
        QString text = what;
        if (!move.isEmpty() || !choose.isEmpty()) {
            const QString either = move.isEmpty() ? choose
                : choose.isEmpty()                ? move
                                                  : AssessmentText::tr("%1, or %2").arg(move, choose);
            text = AssessmentText::tr("%1: %2", "what is wrong and what to do").arg(what, either);
        }
        add(Subject::Gamut, Judgement::Fail, AssessmentText::tr("%1.", "a sentence").arg(text), vertex,
            handleName(vertex));
    }

    void judgeLuminance()
    {
        const KnownDisplay &display = m_current->display;
        const QString name = displayName(display);
        const Model::DisplayDrive displayDrive(displayTargets());
        if (displayDrive.fault() != Model::DisplayFault::None) {
            addFault(displayDrive);
            return;
        }
        const Model::Target &white = m_target->getTargets().white;
        const Additivity additivity = additivityOf(displayDrive, displayTargets().white);
        const auto largest = displayDrive.largestLuminance(pointOf(white));
        m_current->luminancesCompare = luminancesCompare(m_target->unit, display.gamut.unit);
        if (additivity.isAdditive) {
            m_current->largestWhite = largest;
        }
        if (!m_current->luminancesCompare) {
            QString text = incomparableText(m_target->unit, display.gamut.unit, name);
            if (m_current->largestWhite) {
                text += QLatin1Char(' ')
                    + AssessmentText::tr("At this white the %1 reaches %2.")
                          .arg(name, reachableText(m_current->largestWhite->luminance, display.gamut.unit));
            }
            addOfWhite(Judgement::NotKnown, text);
            return;
        }
        const auto drive = displayDrive.driveFor(m_target->getTargets());
        if (!drive || !(white.Y > 0.0)) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr("The luminance of the target is not known: its white has none. Enter it beside Y."));
            return;
        }
        if (!largest) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr("The drive of the %1 is not known: the white lies outside of it.").arg(name));
            return;
        }
        if (!additivity.isAdditive) {
            judgeWithoutAdditivity(additivity, *drive, largest->luminance);
            return;
        }
        m_current->drive = drive;
        judgeWhiteLuminance(drive->white, largest->luminance);
        judgePrimaryLuminances(*drive);
    }

    void addOfWhite(Judgement judgement, const QString &text)
    {
        add(Subject::Luminance, judgement, text, Vertex::White, handleName(Vertex::White));
    }

    //! What it reaches is not known, but where the sum of the primaries is the most that it can be, that can fail.
    void judgeWithoutAdditivity(const Additivity &additivity, const Model::TargetDrive &drive, double largest)
    {
        const QString name = displayName(m_current->display);
        const LuminanceUnit unit = m_target->unit;
        const Model::Target &white = m_target->getTargets().white;
        if (additivity.isUpperBound && highest(drive.white) > fullDrive) {
            addOfWhite(Judgement::Fail,
                AssessmentText::tr("The target is too bright: the %1 reaches at most %2 at this white, if its "
                                   "primaries add up, and the target has %3. Lower the luminance of the white.")
                    .arg(name, reachableText(largest, unit), luminanceText(white.Y, unit)));
            return;
        }
        const Model::Target &stated = displayTargets().white;
        const QString is = additivity.differsInLuminance ? luminanceText(stated.Y, unit) : pointText(pointOf(stated));
        const QString sum = additivity.differsInLuminance ? luminanceText(additivity.sum.Y, unit)
                                                          : pointText(pointOf(additivity.sum));
        addOfWhite(Judgement::NotKnown,
            AssessmentText::tr("The white of the %1 is %2, its primaries add to %3: what luminance it reaches at the "
                               "white of the target cannot be worked out. Measure it there.")
                .arg(name, is, sum));
        if (additivity.isUpperBound) {
            judgePrimaryLuminances(drive);
        }
    }

    void addFault(const Model::DisplayDrive &drive)
    {
        const QString name = displayName(m_current->display);
        const auto primary = drive.faultyPrimary();
        const QString text = drive.fault() == Model::DisplayFault::NoLight && primary
            ? AssessmentText::tr("What luminance the display reaches is not known: %1 of the %2 has no luminance.")
                  .arg(gamutVertexName(vertexOf(*primary)), name)
            : AssessmentText::tr("What luminance the display reaches is not known: the primaries of the %1 cannot be "
                                 "told apart.")
                  .arg(name);
        add(Subject::Luminance, Judgement::NotKnown, text);
    }

    void judgeWhiteLuminance(const Model::Drive &drive, double reached)
    {
        const Model::Target &white = m_target->getTargets().white;
        const QString name = displayName(m_current->display);
        const LuminanceUnit unit = m_target->unit;
        if (highest(drive) <= fullDrive) {
            QString text
                = AssessmentText::tr("The white of %1 needs of the %2: %3. It reaches %4 at this white (headroom %5).")
                      .arg(luminanceText(white.Y, unit), name, drivesText(drive), reachableText(reached, unit),
                          fixedText(reached / white.Y, 2));
            if (highest(drive) > 1.0 + Model::driveRounding) {
                text += QLatin1Char(' ')
                    + AssessmentText::tr("That is within %1 of full drive, and counts as full.")
                          .arg(percent(fullDrive - 1.0));
            }
            addOfWhite(Judgement::Pass, text);
            return;
        }
        QString text
            = AssessmentText::tr("The target is too bright: the %1 reaches %2 at this white, and the target has %3. It "
                                 "would need %4. Lower the luminance of the white to %2.")
                  .arg(name, reachableText(reached, unit), luminanceText(white.Y, unit), drivesText(drive));
        if (percent(highest(drive)) == percent(fullDrive)) {
            text += QLatin1Char(' ')
                + AssessmentText::tr("That is more than %1 above full drive.").arg(percent(fullDrive - 1.0));
        }
        addOfWhite(Judgement::Fail, text);
    }

    //! They follow from the white, unless a file has luminances that do not mix to it.
    void judgePrimaryLuminances(const Model::TargetDrive &target)
    {
        const Model::Drive drives[] = {target.red, target.green, target.blue};
        for (const Vertex primary : primaries) {
            const Model::Drive &drive = drives[int(primary)];
            const bool isShownAtAll = distanceOutside(m_target->getTargets(), primary, displayTargets()) == 0.0;
            if (!isShownAtAll || highest(drive) <= fullDrive || highest(target.white) > fullDrive) {
                continue;
            }
            const double luminance = targetAt(m_target->getTargets(), primary).Y;
            add(Subject::Luminance, Judgement::Fail,
                AssessmentText::tr("The luminance %1 of %2 is more than the %3 reaches: %4. Lower it to that.")
                    .arg(luminanceText(luminance, m_target->unit), gamutVertexName(primary),
                        displayName(m_current->display), reachableText(luminance / highest(drive), m_target->unit)),
                primary, handleName(primary));
        }
    }

    void judgeTolerances()
    {
        const Model::Tolerances &limits = m_tolerances->limits;
        Model::DeviationValues values;
        if (m_measured && m_target) {
            const bool isSame = luminancesCompare(m_measured->unit, m_target->unit);
            values = Model::deviations(m_measured->getTargets(), m_target->getTargets(),
                isSame ? Model::LuminanceUnits::Same : Model::LuminanceUnits::Different, m_tolerances->coverageDiagram);
            const Model::Target &is = m_measured->getTargets().white;
            const Model::Target &should = m_target->getTargets().white;
            const auto temperature = ceiechart::colorTemperature(ceiechart::xyOf(is));
            const auto wanted = ceiechart::colorTemperature(ceiechart::xyOf(should));
            if (temperature && wanted) {
                values.temperature = temperature->kelvin - wanted->kelvin;
            }
        }
        for (const Model::ToleranceResult &result : Model::judged(rounded(values), limits)) {
            addResult(result);
        }
        for (const StandardCoverage &limit : m_tolerances->standards) {
            judgeStandard(limit);
        }
    }

    static Judgement judgementOf(Model::ToleranceVerdict verdict)
    {
        return verdict == Model::ToleranceVerdict::Passed ? Judgement::Pass
            : verdict == Model::ToleranceVerdict::Failed  ? Judgement::Fail
                                                          : Judgement::NotKnown;
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
        if (subject == Model::ToleranceSubject::Luminance && !luminancesCompare(m_measured->unit, m_target->unit)) {
            return incomparableText(m_target->unit, m_measured->unit, AssessmentText::tr("measured gamut"));
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
        const QString is = result.value && result.verdict != Model::ToleranceVerdict::NotKnown
            ? deviationText(result)
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
            add(Subject::Tolerance, judgement, text);
        } else {
            add(Subject::Tolerance, judgement, text, *vertex,
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
            = AssessmentText::tr("Coverage of %1 in %2 by the measured gamut").arg(oneLine(limit.standard), diagram);
        if (!standard || !m_measured) {
            const QString why = standard ? AssessmentText::tr("no measured gamut of the display is known.")
                                         : AssessmentText::tr("there is no gamut of that name.");
            add(Subject::Tolerance, Judgement::NotKnown,
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
        add(Subject::Tolerance, judgementOf(result.verdict),
            AssessmentText::tr("%1: %2", "what was judged and the judgement").arg(what, is));
    }

    const DisplayDescription &m_description;
    const std::optional<Tolerances> &m_tolerances;
    const std::optional<DisplayGamut> m_target;
    const std::optional<DisplayGamut> m_measured;
    Assessment m_result;
    DriveAssessment *m_current = nullptr; // of m_result.displays, while it is judged
};

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
    if (!isOutside) {
        return 0.0;
    }
    const auto nearest = Model::nearestInside(display, pointOf(targetAt(target, primary)), chromaticityDecimals);
    return nearest ? nearest->distance : std::numeric_limits<double>::infinity();
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

Assessment assess(const DisplayDescription &description, const std::optional<Tolerances> &tolerances)
{
    return Assessor(description, tolerances).result();
}

} // namespace gamutviewer
