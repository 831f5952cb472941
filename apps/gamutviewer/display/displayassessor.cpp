// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/displayassessor.h"

#include "display/additivity.h"
#include "display/assessmentparts.h"
#include "display/assessmenttexts.h"
#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"

#include <gamutmodel/correction.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using ceiechart::targetAt;
using Vertex = ceiechart::GamutVertex;

constexpr Vertex primaries[] = {Vertex::Red, Vertex::Green, Vertex::Blue};

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
        const QString name = nameOf(standard);
        const double area = Model::gamutArea(standard.getTargets(), Model::Diagram::Cie1976);
        if (name != description.target && area > bestArea && isInside(standard.getTargets())) {
            best = name;
            bestArea = area;
        }
    }
    return best;
}

//! Makes the lines of what the display can show.
class DisplayAssessor {
public:
    DisplayAssessor(const DisplayDescription &description, bool isOfCabinet, Assessment &result)
        : m_description(description)
        , m_isOfCabinet(isOfCabinet)
        , m_target(description.gamut(description.target))
        , m_result(result)
    {
    }

    void assess()
    {
        for (KnownDisplay display : knownDisplays(m_description)) {
            display.isOfCabinet = display.isMeasured && m_isOfCabinet;
            m_result.displays.push_back({display, false, std::nullopt, std::nullopt});
        }
        judgeTarget();
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

    void judgeTarget()
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
        const auto distance = distanceFrom(displayTargets(), m_target->getTargets().white);
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
        const QString move = nearest ? moveText(*nearest) : QString();
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

    //! Over a black, what lies on the edge of the gamut is out of reach as well.
    QString moveText(const Model::NearestInside &nearest) const
    {
        const auto &black = m_current->display.gamut.black;
        const QString text = black && black->Y > 0.0
            ? AssessmentText::tr("move it beyond %1, towards the white, as the black makes it paler")
            : AssessmentText::tr("move it to %1");
        return text.arg(pointText(nearest.xy));
    }

    void judgeLuminance()
    {
        const KnownDisplay &display = m_current->display;
        const QString name = displayName(display);
        const Model::DisplayDrive displayDrive(displayTargets(), display.gamut.black);
        if (displayDrive.fault() != Model::DisplayFault::None) {
            addFault(displayDrive);
            return;
        }
        const Model::Target &white = m_target->getTargets().white;
        const Additivity additivity = additivityOf(displayDrive, displayTargets().white);
        auto largest = displayDrive.largestLuminance(pointOf(white));
        const double share = measuredShare(displayDrive, displayTargets().white, white);
        if (additivity.isAdditive && largest) {
            largest->luminance *= share;
        }
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
        auto drive = displayDrive.driveFor(m_target->getTargets());
        if (!drive || !(white.Y > 0.0)) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr(
                    "The luminance of the target is not known: its white has none. Enter it, beside Y in the window."));
            return;
        }
        if (!largest) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr("The drive of the %1 is not known: the white lies outside of it.").arg(name));
            return;
        }
        if (!additivity.isAdditive) {
            judgeWithoutAdditivity(additivity, *drive, largest->luminance);
            judgeBlack(false);
            return;
        }
        for (double *of : {&drive->white.red, &drive->white.green, &drive->white.blue}) {
            *of /= share;
        }
        // A primary on its own is not as dark as the white of all.
        const double brightest = std::max({highest(drive->red), highest(drive->green), highest(drive->blue)});
        const double ofWhite = largest->luminance / white.Y;
        drive->headroom = brightest > 0.0 ? std::min(ofWhite, 1.0 / brightest) : ofWhite;
        m_current->drive = drive;
        judgeWhiteLuminance(drive->white, largest->luminance);
        judgePrimaryLuminances(*drive);
        judgeBlack(true);
    }

    //! Whether the black, which is in all that the display shows, keeps it off colours that lie inside of its gamut.
    void judgeBlack(bool isAdditive)
    {
        const DisplayGamut &display = m_current->display.gamut;
        const Model::Targets &target = m_target->getTargets();
        const Model::Cabinet cabinet{display.getTargets(), display.black, std::nullopt};
        std::array<double, 4> outside{};
        for (const Vertex primary : primaries) {
            outside[std::size_t(primary)] = distanceOutside(target, primary, display.getTargets());
        }
        if (display.blackLuminance && isAdditive) {
            judgeLuminanceOver(blacksOf(*display.blackLuminance, possibleChromaticities(cabinet)));
        }
        if (display.blackLuminance) {
            judgePossibleBlack(offByBlacks(
                cabinet, blacksOf(*display.blackLuminance, possibleChromaticities(cabinet)), target, outside));
        }
        if (!display.black || !(display.black->Y > 0.0)) {
            return;
        }
        const Model::WallCorrection solved = Model::wallCorrection({cabinet}, target, target.white.Y);
        if (!solved.corrections.front().matrix) {
            add(Subject::Luminance, Judgement::NotKnown,
                AssessmentText::tr("Whether the black of the %1 keeps it off the target is not known: the primaries "
                                   "of the target do not mix to its white.")
                    .arg(displayName(m_current->display)));
            return;
        }
        const auto off = offByBlack(cabinet, solved.corrections.front().matrix, target, outside);
        const QString colors = offByBlackText(off);
        if (colors.isEmpty()) {
            return;
        }
        const Vertex vertex = farthest(off);
        const QString name = displayName(m_current->display);
        if (isAdditive) {
            add(Subject::Luminance, Judgement::Fail,
                AssessmentText::tr("The black of the %1 is too bright, and keeps it off %2: raise the white of the "
                                   "target, move these colours towards it, or measure the black without stray light.",
                    "gamut, colours and distances")
                    .arg(name, colors),
                vertex, handleName(vertex));
        } else {
            add(Subject::Luminance, Judgement::NotKnown,
                AssessmentText::tr("Whether the black of the %1 keeps it off the target is not known, as its primaries "
                                   "do not add to its white. If they did, it would be off %2.",
                    "gamut, colours and distances")
                    .arg(name, colors),
                vertex, handleName(vertex));
        }
    }

    static Vertex farthest(const std::array<double, 4> &off)
    {
        return Vertex(std::max_element(off.begin(), off.end()) - off.begin());
    }

    //! \a blacks are those that the display may have: what is darker over one of them is not known.
    void judgeLuminanceOver(const std::vector<Model::Target> &blacks)
    {
        const Model::Target &white = m_target->getTargets().white;
        const Model::Target &measured = displayTargets().white;
        std::optional<double> least;
        for (const Model::Target &black : blacks) {
            const Model::DisplayDrive over(displayTargets(), black);
            const auto largest = over.fault() == Model::DisplayFault::None && additivityOf(over, measured).isAdditive
                ? over.largestLuminance(pointOf(white))
                : std::nullopt;
            const double reached = largest ? largest->luminance * measuredShare(over, measured, white) : 0.0;
            least = std::min(least.value_or(reached), reached);
        }
        if (!least || !m_current->largestWhite || !isTooBright(m_current->largestWhite->luminance, *least)) {
            return;
        }
        m_current->largestWhite.reset();
        if (isTooBright(white.Y, *least)) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr(
                    "Whether the %1 reaches the luminance of the target is not known: its black may take "
                    "too much of it. Measure the black once, with its chromaticity.")
                    .arg(displayName(m_current->display)));
        }
    }

    //! \a off is how far the target is kept off by a black that the display may have.
    void judgePossibleBlack(const std::array<double, 4> &off)
    {
        const QString colors = offByBlackText(off);
        if (colors.isEmpty()) {
            return;
        }
        add(Subject::Luminance, Judgement::NotKnown,
            AssessmentText::tr("Whether the black of the %1 keeps it off the target is not known: one of its "
                               "luminance can keep it off %2. Measure it once, with its chromaticity.",
                "gamut, colours and distances")
                .arg(displayName(m_current->display), colors),
            farthest(off), handleName(farthest(off)));
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
        const double measured = displayTargets().white.Y;
        if (measured > 0.0 && isMeasuredWhite(displayTargets().white, white)) {
            judgeAtMeasuredWhite(measured);
            judgePrimaryLuminances(drive);
            return;
        }
        if (additivity.isUpperBound && highest(drive.white) > fullDrive) {
            addOfWhite(Judgement::Fail,
                AssessmentText::tr("The target is too bright: the %1 reaches at most %2 at this white, if its "
                                   "primaries add up, and the target has %3. Lower the luminance of the white.")
                    .arg(name, reachableText(largest, unit), luminanceText(white.Y, unit)));
            return;
        }
        const Model::Target &stated = displayTargets().white;
        if (!(measured > 0.0)) {
            addOfWhite(Judgement::NotKnown,
                AssessmentText::tr("What luminance the %1 reaches is not known: its white has no luminance.")
                    .arg(name));
            return;
        }
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

    //! Whether its primaries add up or not: this is what a meter read.
    void judgeAtMeasuredWhite(double reached)
    {
        const QString name = displayName(m_current->display);
        const LuminanceUnit unit = m_target->unit;
        const double luminance = m_target->getTargets().white.Y;
        if (luminance <= reached * fullDrive) {
            addOfWhite(Judgement::Pass,
                AssessmentText::tr("The white of the %1 is the one of the target, and reaches %2 (headroom %3).")
                    .arg(name, reachedText(reached, luminance, unit), fixedText(reached / luminance, 2)));
            return;
        }
        addOfWhite(Judgement::Fail,
            AssessmentText::tr("The target is too bright: the %1 reaches %2 at this white, and the target has %3. "
                               "Lower the luminance of the white to %2.")
                .arg(name, reachableText(reached, unit), luminanceText(luminance, unit)));
    }

    void addFault(const Model::DisplayDrive &drive)
    {
        const QString name = displayName(m_current->display);
        const auto primary = drive.faultyPrimary();
        const QString text = drive.fault() == Model::DisplayFault::NoLight && primary
            ? (targetAt(displayTargets(), vertexOf(*primary)).Y > 0.0
                    ? AssessmentText::tr("What luminance the display reaches is not known: %1 of the %2 has no more "
                                         "luminance than its black.")
                    : AssessmentText::tr(
                        "What luminance the display reaches is not known: %1 of the %2 has no luminance."))
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
                      .arg(luminanceText(white.Y, unit), name, drivesText(drive), reachedText(reached, white.Y, unit),
                          fixedText(reached / white.Y, 2));
            if (highest(drive) > 1.0 + Model::driveRounding) {
                text += QLatin1Char(' ') + countsAsFullText();
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

    const DisplayDescription &m_description;
    const bool m_isOfCabinet;
    const std::optional<DisplayGamut> m_target;
    Assessment &m_result;
    DriveAssessment *m_current = nullptr; // of m_result.displays, while it is judged
};

} // namespace

void assessDisplays(const DisplayDescription &description, bool isOfCabinet, Assessment &assessment)
{
    DisplayAssessor(description, isOfCabinet, assessment).assess();
}

} // namespace gamutviewer
