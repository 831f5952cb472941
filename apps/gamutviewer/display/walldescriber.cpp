// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/walldescriber.h"

#include "display/assessmentparts.h"
#include "display/assessmenttexts.h"
#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"

#include <algorithm>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;

constexpr int namedCabinets = 2; // in a headline

//! Makes the headline and the lines of an assessment that has all else.
class WallDescriber {
public:
    WallDescriber(const DisplayWall &wall, const DisplayGamut &target, WallAssessment &assessment)
        : m_wall(wall)
        , m_target(target)
        , m_result(assessment)
    {
        for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
            (wall.cabinets[i].isLeftOut ? m_leftOut : m_counted).push_back(i);
        }
    }

    void describe()
    {
        const auto failing = cabinetsThat(Judgement::Fail);
        const auto unknown = cabinetsThat(Judgement::NotKnown);
        describeCabinets(Judgement::Fail, failing);
        const QString problem = commonGamutProblem(m_wall, m_result.common);
        if (!problem.isEmpty() && m_result.common.shape != Model::CommonShape::NotKnown) {
            add(Judgement::Fail, WallText::tr("%1: no target can be shown by all.").arg(problem));
        }
        describeLuminances(unknown.size());
        describeIncomplete();
        describeCorrections();
        // What the largest white is a ground for comes before all that is none.
        const bool isPass = m_result.judgement == Judgement::Pass;
        if (isPass) {
            describeWhite(failing.size());
        }
        QStringList warnings = exchangeTexts(m_wall);
        warnings.append(offSumText(m_wall, m_result, m_counted));
        if (m_result.correction.fault == Model::WallFault::None) {
            warnings.append(mixtureText(m_target, m_result.correction.target));
        }
        // The colours of the target are judged, over the blacks as well. What is darker, a bright black shifts by more.
        warnings.append(darkContentText(m_wall, m_result, m_counted));
        warnings.removeAll(QString());
        for (const QString &text : qAsConst(warnings)) {
            m_result.lines.append({std::nullopt, text, std::nullopt, true});
        }
        if (!isPass) {
            describeWhite(failing.size());
        }
        describeWays(failing, unknown);
        headline(failing, unknown.size() + m_wall.incomplete.size());
    }

private:
    bool hasLuminance() const { return m_result.luminancesCompare && m_target.getTargets().white.Y > 0.0; }

    std::vector<std::size_t> cabinetsThat(Judgement judgement) const
    {
        std::vector<std::size_t> found;
        for (const std::size_t i : m_result.worstFirst) {
            if (!m_result.cabinets[i].isLeftOut && m_result.cabinets[i].judgement == judgement) {
                found.push_back(i);
            }
        }
        return found;
    }

    void add(std::optional<Judgement> judgement, const QString &text, std::optional<std::size_t> cabinet = std::nullopt)
    {
        m_result.lines.append({judgement, text, cabinet, false});
    }

    //! Of those that count and are as \a isMeant says.
    template <typename Condition>
    std::optional<Model::WallWhite> largestWhiteOf(const Condition &isMeant) const
    {
        std::optional<Model::WallWhite> least;
        for (const std::size_t i : m_counted) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            const bool isLess = cabinet.largestWhite && (!least || *cabinet.largestWhite < least->luminance);
            if (isLess && isMeant(cabinet)) {
                least = {*cabinet.largestWhite, i, m_result.correction.corrections[i].largestWhite->limit};
            }
        }
        return least;
    }

    void describeCabinets(Judgement judgement, const std::vector<std::size_t> &cabinets)
    {
        const std::size_t described = describedOf(cabinets.size());
        for (std::size_t i = 0; i < described; ++i) {
            add(judgement, cabinetText(m_wall, m_target, m_result, cabinets[i]), cabinets[i]);
        }
        countOthers(judgement, cabinets.size() - described);
    }

    //! A line that says that there is one more would be no shorter than that one.
    static std::size_t describedOf(std::size_t count)
    {
        return count <= describedCabinets + 1 ? count : describedCabinets;
    }

    void countOthers(Judgement judgement, std::size_t others)
    {
        if (others > 0) {
            add(judgement,
                judgement == Judgement::Fail
                    ? WallText::tr("%1 other cabinets do not show it either.").arg(others)
                    : WallText::tr("Of %1 other cabinets it is not known either.").arg(others));
        }
    }

    void describeIncomplete()
    {
        const std::size_t described = describedOf(m_wall.incomplete.size());
        for (std::size_t i = 0; i < described; ++i) {
            const IncompleteCabinet &cabinet = m_wall.incomplete[i];
            add(Judgement::NotKnown, ofCabinets(cabinetName(m_wall, cabinet), incompleteReasonText(cabinet)));
        }
        countOthers(Judgement::NotKnown, m_wall.incomplete.size() - described);
    }

    void describeLuminances(std::size_t unknownCount)
    {
        if (!m_result.luminancesCompare) {
            add(Judgement::NotKnown, incomparableText(m_target.unit, m_wall.unit, WallText::tr("wall")));
        } else if (!hasLuminance()) {
            add(Judgement::NotKnown,
                WallText::tr(
                    "The luminance of the target is not known: its white has none. Enter it, beside Y in the window."));
        }
        if (unknownCount == 0) {
            return;
        }
        // What holds for all is said once: that luminances cannot be compared, or that there are no corrections.
        std::vector<std::size_t> reasons;
        std::vector<std::size_t> withoutWhite;
        for (const std::size_t i : cabinetsThat(Judgement::NotKnown)) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            const auto &off = cabinet.offByPossibleBlack;
            const bool hasReason = hasLuminance()
                && (cabinet.luminance != Judgement::Pass
                    || std::any_of(off.begin(), off.end(), [](double distance) { return distance > 0.0; }));
            if (!m_wall.cabinets[i].white && !cabinet.isAdditive && cabinet.gamut != Judgement::NotKnown) {
                withoutWhite.push_back(i);
            } else if (hasReason || cabinet.gamut == Judgement::NotKnown || !cabinet.largestWhite) {
                reasons.push_back(i);
            }
        }
        describeCabinets(Judgement::NotKnown, reasons);
        if (withoutWhite.size() == 1) {
            describeCabinets(Judgement::NotKnown, withoutWhite);
        } else if (!withoutWhite.empty()) {
            add(Judgement::NotKnown,
                WallText::tr("The whites of %1 cabinets were not measured, and that of %2 is not the sum of its "
                             "primaries: measure them.")
                    .arg(withoutWhite.size())
                    .arg(cabinetName(m_wall, *m_result.notAdditive)));
        }
    }

    void describeCorrections()
    {
        const auto cannot = [this](const QString &why) {
            add(Judgement::NotKnown, WallText::tr("There are no corrections: %1").arg(why));
        };
        switch (m_result.correction.fault) {
        case Model::WallFault::None:
            break;
        case Model::WallFault::NotFinite:
            cannot(WallText::tr("a colour of the target has no chromaticity."));
            break;
        case Model::WallFault::NearlySingular:
            cannot(WallText::tr("the primaries of the target lie too close to a line."));
            break;
        case Model::WallFault::WhiteOutside:
            cannot(WallText::tr("the white of the target is not a mixture of its primaries."));
            break;
        case Model::WallFault::NoLuminance:
            cannot(WallText::tr("no cabinet reaches the white of the target."));
            break;
        }
    }

    QString largestText(const Model::WallWhite &white) const
    {
        if (!m_result.cabinets[white.cabinet].isAdditive) {
            return WallText::tr("%1 (%2 is the limit)", "luminance, cabinet")
                .arg(reachableText(white.luminance, m_wall.unit), cabinetName(m_wall, white.cabinet));
        }
        return WallText::tr("%1 (%2 is the limit, with %3 at full drive)", "luminance, cabinet, primary")
            .arg(reachableText(white.luminance, m_wall.unit), cabinetName(m_wall, white.cabinet),
                gamutVertexName(vertexOf(white.limit)));
    }

    //! "All reach a white of %1." of those that do not fail; \a known of them are known, or all.
    QString reachText(bool isOfOthers, bool isKnownOfAll, int known) const
    {
        if (isOfOthers && known == 1) {
            return isKnownOfAll ? WallText::tr("The other reaches a white of %1.")
                                : WallText::tr("The only other of which it is known reaches a white of %1.");
        }
        if (isOfOthers) {
            return isKnownOfAll ? WallText::tr("All others reach a white of %1.")
                                : WallText::tr("All others of which it is known reach a white of %1.");
        }
        if (!isKnownOfAll) {
            return known == 1 ? WallText::tr("The only one of which it is known reaches a white of %1.")
                              : WallText::tr("All of which it is known reach a white of %1.");
        }
        return known == 1        ? WallText::tr("It reaches a white of %1.")
            : !m_leftOut.empty() ? WallText::tr("All that are not left out reach a white of %1.")
            : known == 2         ? WallText::tr("Both reach a white of %1.")
                                 : WallText::tr("All reach a white of %1.");
    }

    //! What those reach that do not fail.
    void describeWhite(std::size_t failing)
    {
        const auto white
            = largestWhiteOf([](const CabinetAssessment &cabinet) { return cabinet.judgement != Judgement::Fail; });
        if (!white) {
            return;
        }
        const bool isKnownOfAll
            = m_wall.incomplete.empty() && std::all_of(m_counted.begin(), m_counted.end(), [this](std::size_t i) {
                  const CabinetAssessment &cabinet = m_result.cabinets[i];
                  return cabinet.judgement == Judgement::Fail || cabinet.largestWhite;
              });
        const auto known = std::count_if(m_counted.begin(), m_counted.end(), [this](std::size_t i) {
            return m_result.cabinets[i].judgement != Judgement::Fail && m_result.cabinets[i].largestWhite;
        });
        QString text = reachText(failing > 0, isKnownOfAll, int(known)).arg(largestText(*white));
        const double wanted = m_target.getTargets().white.Y;
        if (m_result.cabinets[white->cabinet].luminance == Judgement::Pass && isAbove(wanted, white->luminance)) {
            text += QLatin1Char(' ')
                + WallText::tr("The target has %1.", "luminance of its white").arg(luminanceText(wanted, m_target.unit))
                + QLatin1Char(' ') + countsAsFullText();
        }
        const bool isGround = failing == 0 && m_result.judgement == Judgement::Pass;
        add(isGround ? std::make_optional(Judgement::Pass) : std::nullopt, text, white->cabinet);
        if (!hasLuminance() && m_result.correction.fault == Model::WallFault::None) {
            add(std::nullopt,
                WallText::tr("The corrections are for a white of %1.")
                    .arg(reachableText(m_result.correction.target.white.Y, m_wall.unit)));
        }
    }

    //! Which cabinets keep the primaries of the fitted target from staying where they are, after a space.
    QString limitsText() const
    {
        const Model::GamutFit &fit = m_result.fit;
        const std::pair<ceiechart::GamutVertex, const Model::FittedPrimary &> primaries[]
            = {{ceiechart::GamutVertex::Red, fit.red}, {ceiechart::GamutVertex::Green, fit.green},
                {ceiechart::GamutVertex::Blue, fit.blue}};
        QStringList limits;
        for (const auto &[vertex, primary] : primaries) {
            if (primary.limit) {
                limits.append(WallText::tr("%1 for %2", "name of a cabinet, and the primary that it limits")
                                  .arg(cabinetName(m_wall, *primary.limit), gamutVertexName(vertex)));
            }
        }
        return limits.isEmpty()
            ? QString()
            : QLatin1Char(' ') + WallText::tr("Limited by %1.").arg(limits.join(WallText::tr(", ", "between names")));
    }

    void describeWays(const std::vector<std::size_t> &failing, const std::vector<std::size_t> &unknown)
    {
        if (!failing.empty()) {
            const QString problem = fitProblem(m_wall, m_result);
            const auto fitted = fittedToWall(m_target, m_result);
            if (fitted) {
                const QString text = isCommonOfAll(m_wall, m_result)
                    ? WallText::tr("Fitted to the wall, the target keeps %1 of its area in u′, v′ and has a white of "
                                   "%2.")
                    : WallText::tr("Fitted to the cabinets of which it is known, the target keeps %1 of its area in "
                                   "u′, v′ and has a white of %2.");
                add(std::nullopt,
                    text.arg(percent(m_result.fit.costUv.coverage),
                        m_result.luminancesCompare ? reachableText(fitted->white.Y, m_target.unit)
                                                   : luminanceText(fitted->white.Y, m_target.unit))
                        + limitsText());
            } else if (!problem.isEmpty() && m_result.common.shape == Model::CommonShape::Area) {
                add(std::nullopt, problem);
            }
        }
        if (!failing.empty() && failing.size() <= namedCabinets && unknown.empty() && m_wall.incomplete.empty()
            && failing.size() < m_counted.size()) {
            const QString text = m_counted.size() - failing.size() == 1
                ? WallText::tr("Without %1, the other cabinet shows the target.")
                : WallText::tr("Without %1, all show the target.");
            add(std::nullopt, text.arg(namesOf(m_wall, failing)));
        }
        if (!m_leftOut.empty() && m_leftOut.size() <= describedCabinets) {
            add(std::nullopt,
                WallText::tr("Left out of this verdict: %1.", "names of cabinets").arg(namesOf(m_wall, m_leftOut)));
        } else if (!m_leftOut.empty()) {
            add(std::nullopt, WallText::tr("Left out of this verdict: %1 cabinets.").arg(m_leftOut.size()));
        }
    }

    static QString showText(int showing, int all)
    {
        return showing == 1
            ? WallText::tr("1 of %1 cabinets shows this target").arg(all)
            : WallText::tr("%1 of %2 cabinets show this target", "count that do, and of all").arg(showing).arg(all);
    }

    static QString ofUnknown(const QString &text, std::size_t unknown)
    {
        return WallText::tr("%1; of %2 it is not known", "which cabinets show a target").arg(text).arg(unknown);
    }

    //! \a text, and how many are left out.
    QString withLeftOut(const QString &text) const
    {
        return m_leftOut.empty() ? text
            : m_leftOut.size() == 1
            ? WallText::tr("%1; one is left out", "how many cabinets show a target").arg(text)
            : WallText::tr("%1; %2 are left out", "how many cabinets show a target, and a count")
                  .arg(text)
                  .arg(m_leftOut.size());
    }

    //! \a unknown counts those that were measured incompletely as well.
    void headline(const std::vector<std::size_t> &failing, std::size_t unknown)
    {
        const int all = int(m_counted.size() + m_wall.incomplete.size());
        const int fails = int(failing.size());
        QString &text = m_result.headline;
        if (all == 1) {
            const QString name = m_counted.empty() ? cabinetName(m_wall, m_wall.incomplete.front())
                                                   : cabinetName(m_wall, m_counted.front());
            text = (fails > 0     ? WallText::tr("The cabinet %1 does not show this target").arg(name)
                    : unknown > 0 ? WallText::tr("Not known whether the cabinet %1 shows this target").arg(name)
                                  : WallText::tr("The cabinet %1 shows this target").arg(name));
        } else if (all == 0) {
            text = WallText::tr("Nothing is judged: all cabinets are left out");
        } else if (fails == 0 && unknown > 0) {
            text = int(unknown) == all ? WallText::tr("Not known whether the cabinets show this target")
                                       : ofUnknown(showText(all - int(unknown), all), unknown);
        } else if (fails == 0) {
            text = m_leftOut.empty() && all == 2 ? WallText::tr("Both cabinets show this target")
                : m_leftOut.empty()              ? WallText::tr("All %1 cabinets show this target").arg(all)
                                                 : WallText::tr("%1 cabinets show this target").arg(all);
        } else if (fails == all) {
            text = all == 2 ? WallText::tr("Neither cabinet shows this target")
                            : WallText::tr("None of the %1 cabinets shows this target").arg(all);
        } else if (fails + int(unknown) == all) {
            const QString fail = fails == 1
                ? WallText::tr("1 of %1 cabinets does not show this target").arg(all)
                : WallText::tr("%1 of %2 cabinets do not show this target", "count that do not, and of all")
                      .arg(fails)
                      .arg(all);
            text = unknown == 1 ? WallText::tr("%1; of the other it is not known", "how many cabinets fail").arg(fail)
                                : WallText::tr("%1; of the others it is not known", "how many cabinets fail").arg(fail);
        } else {
            const QString shows = showText(all - fails - int(unknown), all);
            const QString others = fails == 1
                ? WallText::tr("%1 does not", "name of a cabinet").arg(cabinetName(m_wall, failing.front()))
                : fails <= namedCabinets ? WallText::tr("%1 do not", "names of cabinets").arg(namesOf(m_wall, failing))
                                         : WallText::tr("%1 and %2 others do not", "name of a cabinet and how many")
                                               .arg(cabinetName(m_wall, failing.front()))
                                               .arg(fails - 1);
            text = WallText::tr("%1; %2", "how many cabinets show a target, and which do not").arg(shows, others);
            if (unknown > 0) {
                text = ofUnknown(text, unknown);
            }
        }
        if (all > 0) {
            text = withLeftOut(text);
        }
    }

    const DisplayWall &m_wall;
    const DisplayGamut &m_target;
    WallAssessment &m_result;
    std::vector<std::size_t> m_counted; // all that are not left out
    std::vector<std::size_t> m_leftOut;
};

} // namespace

void describeWall(const DisplayWall &wall, const DisplayGamut &target, WallAssessment &assessment)
{
    WallDescriber(wall, target, assessment).describe();
}

} // namespace gamutviewer
