// SPDX-License-Identifier: MIT
#include "display/wallassessment.h"

#include "display/additivity.h"
#include "display/assessmentparts.h"
#include "display/assessmenttexts.h"
#include "display/chromaticity.h"
#include "display/knowndisplay.h"
#include "display/valuetexts.h"

#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>
#include <utility>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using ceiechart::targetAt;
using Vertex = ceiechart::GamutVertex;

constexpr Vertex primaries[] = {Vertex::Red, Vertex::Green, Vertex::Blue};
constexpr double rounding = 1e-9;
constexpr int namedCabinets = 2; // in a headline
constexpr int describedCabinets = 3; // with a line of their own

struct WallText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallAssessment)
};

QString sentence(const QString &text)
{
    return WallText::tr("%1.", "a sentence").arg(text);
}

Model::Targets targetsOf(const WallCabinet &cabinet)
{
    return {cabinet.red, cabinet.green, cabinet.blue, cabinet.white.value_or(Model::Target())};
}

QString namesOf(const DisplayWall &wall, const std::vector<std::size_t> &cabinets)
{
    QStringList names;
    for (const std::size_t cabinet : cabinets) {
        names.append(cabinetName(wall, cabinet));
    }
    if (names.size() < 2) {
        return names.join(QString());
    }
    const QString last = names.takeLast();
    return WallText::tr("%1 and %2", "names of cabinets").arg(names.join(WallText::tr(", ", "between names")), last);
}

Judgement worse(Judgement a, Judgement b)
{
    return a == Judgement::Fail || b == Judgement::Fail ? Judgement::Fail : a == Judgement::NotKnown ? a : b;
}

//! Whether a primary that lies inside is brighter in the target than \a drive says that the cabinet reaches.
bool hasTooBrightPrimary(const Model::TargetDrive &drive, const std::array<double, 4> &outside)
{
    const Model::Drive drives[] = {drive.red, drive.green, drive.blue};
    return std::any_of(std::begin(primaries), std::end(primaries), [&](Vertex primary) {
        return outside[std::size_t(primary)] == 0.0 && highest(drives[int(primary)]) > fullDrive;
    });
}

bool isTooBright(double wanted, double reached)
{
    return wanted > reached * fullDrive;
}

//! Sets what is known of the chromaticities of a cabinet whose gamut is known.
void judgeGamut(CabinetAssessment &result, const WallCabinet &cabinet, const Model::Targets &target)
{
    const Model::Targets colors = targetsOf(cabinet);
    const Model::PrimariesOutside outside = Model::primariesOutside(target, colors);
    const bool isOutside[] = {outside.red, outside.green, outside.blue};
    result.gamut = Judgement::Pass;
    double most = 0.0;
    const auto note = [&](Vertex vertex, double distance) {
        result.gamut = Judgement::Fail;
        result.outside[std::size_t(vertex)] = distance;
        if (distance > most) {
            most = distance;
            result.limit = vertex;
        }
    };
    const auto white = distanceFrom(colors, target.white);
    if (!white) {
        result.gamut = Judgement::NotKnown;
    } else if (*white > rounding) {
        note(Vertex::White, *white);
    }
    for (const Vertex primary : primaries) {
        if (isOutside[int(primary)]) {
            note(primary,
                distanceFrom(colors, targetAt(target, primary)).value_or(std::numeric_limits<double>::infinity()));
        }
    }
}

//! Sets what is known of the luminances; \a drive is that of the cabinet and has no fault.
void judgeLuminance(CabinetAssessment &result, const WallCabinet &cabinet, const Model::Targets &target,
    const Model::DisplayDrive &drive, const std::optional<Model::LargestLuminance> &largest, bool luminancesCompare)
{
    bool isUpperBound = true;
    if (cabinet.white) {
        const Additivity additivity = additivityOf(drive, *cabinet.white);
        result.isAdditive = additivity.isAdditive;
        isUpperBound = additivity.isUpperBound;
    }
    if (!largest) {
        return; // the white is outside
    }
    if (result.isAdditive) {
        result.largestWhite = largest->luminance;
        if (!result.limit) {
            result.limit = vertexOf(largest->limit);
        }
    }
    if (!luminancesCompare || !(target.white.Y > 0.0)) {
        return;
    }
    if (result.isAdditive) {
        result.headroom = largest->luminance / target.white.Y;
    }
    const auto needed = drive.driveFor(target);
    if (!needed) {
        return;
    }
    const bool isExceeded
        = isTooBright(target.white.Y, largest->luminance) || hasTooBrightPrimary(*needed, result.outside);
    if (isExceeded && isUpperBound) {
        result.luminance = Judgement::Fail;
    } else if (result.isAdditive) {
        result.luminance = Judgement::Pass;
    }
}

//! Whether a cabinet is off the target by more than anyone sees in spite of its correction.
bool leavesColor(const Model::DeviationValues &remaining)
{
    constexpr double visibleUv = 0.0005;
    const std::optional<double> differences[]
        = {remaining.whiteUv, remaining.redUv, remaining.greenUv, remaining.blueUv};
    return std::any_of(std::begin(differences), std::end(differences),
        [](const std::optional<double> &uv) { return uv && *uv > visibleUv; });
}

//! Makes a WallAssessment step by step.
class WallAssessor {
public:
    WallAssessor(const DisplayWall &wall, const DisplayGamut &target)
        : m_wall(wall)
        , m_target(target)
        , m_cabinets(wall.modelCabinets())
    {
        m_result.cabinets.resize(m_cabinets.size());
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            m_result.cabinets[i].isLeftOut = wall.cabinets[i].isLeftOut;
            if (!wall.cabinets[i].isLeftOut) {
                m_counted.push_back(i);
            }
        }
        m_result.luminancesCompare = luminancesCompare(target.unit, wall.unit);
    }

    WallAssessment result()
    {
        correct();
        judgeCabinets();
        compareNeighbors();
        findCommonGamut();
        sort();
        findLargestWhite();
        describe();
        return m_result;
    }

private:
    const Model::Targets &target() const { return m_target.getTargets(); }
    //! Of primaries that cannot be told apart, chromaticities say nothing either.
    bool isGamutKnown(std::size_t cabinet) const
    {
        const Model::DisplayFault fault = m_result.correction.corrections[cabinet].fault;
        return fault != Model::DisplayFault::NearlySingular && fault != Model::DisplayFault::NotFinite
            && Model::spanTriangle(m_cabinets[cabinet].colors);
    }
    bool hasLuminance() const { return m_result.luminancesCompare && target().white.Y > 0.0; }

    void correct()
    {
        Model::WallCorrection &correction = m_result.correction;
        const auto luminance = hasLuminance() ? std::make_optional(target().white.Y) : std::nullopt;
        if (m_counted.size() == m_cabinets.size()) {
            correction = Model::wallCorrection(m_cabinets, target(), luminance);
            return;
        }
        // What is left out limits nothing, but it is corrected as far as it can be.
        std::vector<Model::Cabinet> counted;
        for (const std::size_t i : m_counted) {
            counted.push_back(m_cabinets[i]);
        }
        const Model::WallCorrection of = Model::wallCorrection(counted, target(), luminance);
        const auto common = of.fault == Model::WallFault::None ? std::make_optional(of.target.white.Y) : std::nullopt;
        correction = Model::wallCorrection(m_cabinets, target(), luminance ? luminance : common);
        correction.largestWhite = of.largestWhite;
        if (correction.largestWhite) {
            correction.largestWhite->cabinet = m_counted[correction.largestWhite->cabinet];
        }
        correction.without = of.without;
        for (std::size_t &cabinet : correction.without) {
            cabinet = m_counted[cabinet];
        }
    }

    void judgeCabinets()
    {
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            const WallCabinet &cabinet = m_wall.cabinets[i];
            const Model::Correction &correction = m_result.correction.corrections[i];
            CabinetAssessment &result = m_result.cabinets[i];
            if (isGamutKnown(i)) {
                judgeGamut(result, cabinet, target());
            }
            if (correction.fault == Model::DisplayFault::None) {
                const Model::DisplayDrive drive(m_cabinets[i].colors, m_cabinets[i].black);
                judgeLuminance(result, cabinet, target(), drive, correction.largestWhite, m_result.luminancesCompare);
            }
            result.white = cabinet.white ? cabinet.white : correction.uncorrectedWhite;
            result.uvBefore = result.white ? Model::uvDifference(*result.white, target().white) : std::nullopt;
            result.uvAfter = result.isAdditive ? correction.remaining.whiteUv : std::nullopt;
            // A chromaticity that is outside fails at any luminance.
            result.judgement = result.gamut == Judgement::Fail ? Judgement::Fail
                : result.gamut == Judgement::NotKnown          ? worse(result.luminance, Judgement::NotKnown)
                                                               : result.luminance;
            // The primaries alone say nothing of the black, which takes colour away where the target is dark.
            if (cabinet.black && result.judgement == Judgement::Pass && leavesColor(correction.remaining)) {
                result.judgement = Judgement::NotKnown;
            }
        }
    }

    void compareNeighbors()
    {
        std::vector<std::optional<Model::Target>> before(m_cabinets.size());
        std::vector<std::optional<Model::Target>> after = Model::whitesAfter(m_result.correction);
        QHash<QPair<int, int>, int> places;
        places.reserve(int(m_cabinets.size()));
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            before[i] = m_result.cabinets[i].white;
            if (!m_result.cabinets[i].isAdditive) {
                after[i].reset();
            }
            const auto &position = m_cabinets[i].position;
            if (position && !places.contains({position->row, position->column})) {
                places.insert({position->row, position->column}, int(i));
            }
        }
        const auto compare = [](std::optional<NeighborDifference> &worst, std::size_t neighbor,
                                 const std::optional<Model::Target> &a, const std::optional<Model::Target> &b) {
            const auto difference = a && b ? Model::uvDifference(*a, *b) : std::nullopt;
            if (difference && (!worst || *difference > worst->uv)) {
                worst = {neighbor, *difference};
            }
        };
        const auto comparePair = [&](std::size_t i, std::size_t neighbor) {
            compare(m_result.cabinets[i].neighborBefore, neighbor, before[i], before[neighbor]);
            compare(m_result.cabinets[neighbor].neighborBefore, i, before[i], before[neighbor]);
            compare(m_result.cabinets[i].neighborAfter, neighbor, after[i], after[neighbor]);
            compare(m_result.cabinets[neighbor].neighborAfter, i, after[i], after[neighbor]);
        };
        for (auto place = places.cbegin(); place != places.cend(); ++place) {
            const auto [row, column] = place.key();
            for (const QPair<int, int> &next : {qMakePair(row + 1, column), qMakePair(row, column + 1)}) {
                const auto neighbor = places.constFind(next);
                if (neighbor != places.cend()) {
                    comparePair(std::size_t(place.value()), std::size_t(neighbor.value()));
                }
            }
        }
        const auto positions = Model::positionsOf(m_cabinets);
        m_result.before = uniformityOf(std::move(before), positions);
        m_result.after = uniformityOf(std::move(after), positions);
    }

    Model::Uniformity uniformityOf(std::vector<std::optional<Model::Target>> whites,
        const std::vector<std::optional<Model::GridPosition>> &positions) const
    {
        for (std::size_t i = 0; i < whites.size(); ++i) {
            if (m_result.cabinets[i].isLeftOut) {
                whites[i].reset();
            }
        }
        Model::Uniformity uniformity = Model::uniformity(whites, positions);
        for (std::vector<std::size_t> *cabinets : {&uniformity.unknownChromaticity, &uniformity.unknownLuminance}) {
            cabinets->erase(std::remove_if(cabinets->begin(), cabinets->end(),
                                [this](std::size_t i) { return m_result.cabinets[i].isLeftOut; }),
                cabinets->end());
        }
        return uniformity;
    }

    void findCommonGamut()
    {
        std::vector<std::size_t> known;
        std::vector<Model::GamutTriangle> triangles;
        for (const std::size_t i : m_counted) {
            if (isGamutKnown(i)) {
                known.push_back(i);
                triangles.push_back(Model::gamutTriangle(m_cabinets[i]));
            }
        }
        Model::CommonGamut &common = m_result.common;
        common = Model::commonGamut(triangles);
        m_result.fit = Model::fittedTarget(common, target());
        const auto number = [&known](std::size_t &cabinet) { cabinet = known[cabinet]; };
        for (Model::CommonSide &side : common.sides) {
            number(side.cabinet);
        }
        std::for_each(common.excluding.begin(), common.excluding.end(), number);
        std::for_each(common.invalid.begin(), common.invalid.end(), number);
        for (Model::FittedPrimary *primary : {&m_result.fit.red, &m_result.fit.green, &m_result.fit.blue}) {
            if (primary->limit) {
                number(*primary->limit);
            }
        }
        if (m_result.fit.whiteLimit) {
            number(*m_result.fit.whiteLimit);
        }
    }

    void sort()
    {
        const auto rank = [this](std::size_t i) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            const int group = cabinet.isLeftOut            ? 3
                : cabinet.judgement == Judgement::Fail     ? 0
                : cabinet.judgement == Judgement::NotKnown ? 1
                                                           : 2;
            const double farthest = *std::max_element(cabinet.outside.begin(), cabinet.outside.end());
            return std::make_tuple(group, cabinet.largestWhite.value_or(-1.0), -farthest, i);
        };
        std::vector<decltype(rank(0))> ranks;
        ranks.reserve(m_cabinets.size());
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            ranks.push_back(rank(i));
        }
        std::sort(ranks.begin(), ranks.end());
        for (const auto &of : ranks) {
            m_result.worstFirst.push_back(std::get<3>(of));
        }
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

    void findLargestWhite()
    {
        m_result.largestWhite = largestWhiteOf([](const CabinetAssessment &) { return true; });
    }

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
        m_result.lines.append({judgement, text, cabinet});
    }

    void describe()
    {
        const auto failing = cabinetsThat(Judgement::Fail);
        const auto unknown = cabinetsThat(Judgement::NotKnown);
        m_result.judgement = !failing.empty()       ? Judgement::Fail
            : !unknown.empty() || m_counted.empty() ? Judgement::NotKnown
                                                    : Judgement::Pass;
        describeCabinets(Judgement::Fail, failing);
        const QString problem = commonGamutProblem(m_wall, m_result.common);
        if (!problem.isEmpty() && m_result.common.shape != Model::CommonShape::NotKnown) {
            add(Judgement::Fail, WallText::tr("%1: no target can be shown by all.").arg(problem));
        }
        describeLuminances(unknown.size());
        describeCorrections();
        describeWhite(failing.size());
        describeWays(failing, unknown);
        headline(failing, unknown.size());
    }

    void describeCabinets(Judgement judgement, const std::vector<std::size_t> &cabinets)
    {
        const std::size_t described
            = cabinets.size() <= describedCabinets + 1 ? cabinets.size() : std::size_t(describedCabinets);
        for (std::size_t i = 0; i < described; ++i) {
            add(judgement, cabinetText(m_wall, m_target, m_result, cabinets[i]), cabinets[i]);
        }
        if (described < cabinets.size()) {
            const int others = int(cabinets.size() - described);
            add(judgement,
                judgement == Judgement::Fail
                    ? WallText::tr("%1 other cabinets do not show it either.").arg(others)
                    : WallText::tr("Of %1 other cabinets it is not known either.").arg(others));
        }
    }

    void describeLuminances(std::size_t unknownCount)
    {
        if (!m_result.luminancesCompare) {
            add(Judgement::NotKnown, incomparableText(m_target.unit, m_wall.unit, WallText::tr("wall")));
        } else if (!hasLuminance()) {
            add(Judgement::NotKnown,
                WallText::tr("The luminance of the target is not known: its white has none. Enter it beside Y."));
        }
        if (unknownCount == 0) {
            return;
        }
        // Where luminances cannot be compared that is said once, and not of each cabinet.
        std::vector<std::size_t> reasons;
        for (const std::size_t i : cabinetsThat(Judgement::NotKnown)) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            if (hasLuminance() || cabinet.gamut == Judgement::NotKnown || !cabinet.largestWhite) {
                reasons.push_back(i);
            }
        }
        describeCabinets(Judgement::NotKnown, reasons);
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
        return WallText::tr("%1 (%2 is the limit, with %3 at full drive)", "luminance, cabinet, primary")
            .arg(reachableText(white.luminance, m_wall.unit), cabinetName(m_wall, white.cabinet),
                gamutVertexName(vertexOf(white.limit)));
    }

    //! What those reach that do not fail.
    void describeWhite(std::size_t failing)
    {
        const auto white
            = largestWhiteOf([](const CabinetAssessment &cabinet) { return cabinet.judgement != Judgement::Fail; });
        if (!white) {
            return;
        }
        const bool isKnownOfAll = std::all_of(m_counted.begin(), m_counted.end(), [this](std::size_t i) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            return cabinet.judgement == Judgement::Fail || cabinet.largestWhite;
        });
        const QString reached = largestText(*white);
        const QString text = failing > 0 && isKnownOfAll ? WallText::tr("All others reach a white of %1.").arg(reached)
            : failing > 0   ? WallText::tr("All others of which it is known reach a white of %1.").arg(reached)
            : !isKnownOfAll ? WallText::tr("All of which it is known reach a white of %1.").arg(reached)
                            : WallText::tr("All reach a white of %1.").arg(reached);
        const bool isGround = failing == 0 && m_result.judgement == Judgement::Pass;
        add(isGround ? std::make_optional(Judgement::Pass) : std::nullopt, text, white->cabinet);
        if (!hasLuminance() && m_result.correction.fault == Model::WallFault::None) {
            add(std::nullopt,
                WallText::tr("The corrections are for a white of %1.")
                    .arg(reachableText(m_result.correction.target.white.Y, m_wall.unit)));
        }
    }

    void describeWays(const std::vector<std::size_t> &failing, const std::vector<std::size_t> &unknown)
    {
        if (!failing.empty()) {
            const QString problem = fitProblem(m_wall, m_result);
            const auto fitted = fittedToWall(m_target, m_result);
            if (fitted) {
                add(std::nullopt,
                    WallText::tr("Fitted to the wall, the target keeps %1 of its area in u′, v′ and has a white of %2.")
                        .arg(percent(m_result.fit.costUv.coverage),
                            m_result.luminancesCompare ? reachableText(fitted->white.Y, m_target.unit)
                                                       : luminanceText(fitted->white.Y, m_target.unit)));
            } else if (!problem.isEmpty() && m_result.common.shape == Model::CommonShape::Area) {
                add(std::nullopt, problem);
            }
        }
        if (!failing.empty() && failing.size() <= namedCabinets && unknown.empty()
            && failing.size() < m_counted.size()) {
            add(std::nullopt, WallText::tr("Without %1, all show the target.").arg(namesOf(m_wall, failing)));
        }
        std::vector<std::size_t> leftOut;
        for (std::size_t i = 0; i < m_result.cabinets.size(); ++i) {
            if (m_result.cabinets[i].isLeftOut) {
                leftOut.push_back(i);
            }
        }
        if (!leftOut.empty() && leftOut.size() <= describedCabinets) {
            add(std::nullopt,
                WallText::tr("Left out of this verdict: %1.", "names of cabinets").arg(namesOf(m_wall, leftOut)));
        } else if (!leftOut.empty()) {
            add(std::nullopt, WallText::tr("Left out of this verdict: %1 cabinets.").arg(leftOut.size()));
        }
    }

    void headline(const std::vector<std::size_t> &failing, std::size_t unknown)
    {
        const int all = int(m_counted.size());
        const int fails = int(failing.size());
        QString &text = m_result.headline;
        if (m_cabinets.size() == 1 && all == 1) {
            const QString name = cabinetName(m_wall, 0);
            text = fails > 0  ? WallText::tr("The cabinet %1 does not show this target").arg(name)
                : unknown > 0 ? WallText::tr("Not known whether the cabinet %1 shows this target").arg(name)
                              : WallText::tr("The cabinet %1 shows this target").arg(name);
        } else if (all == 0) {
            text = WallText::tr("Nothing is judged: all cabinets are left out");
        } else if (fails == 0 && unknown > 0) {
            text = int(unknown) == all ? WallText::tr("Not known whether the cabinets show this target")
                                       : WallText::tr("%1 of %2 cabinets show this target; of %3 it is not known")
                                             .arg(all - int(unknown))
                                             .arg(all)
                                             .arg(unknown);
        } else if (fails == 0) {
            const int leftOut = int(m_cabinets.size()) - all;
            text = leftOut == 0 ? WallText::tr("All %1 cabinets show this target").arg(all)
                : leftOut == 1  ? WallText::tr("%1 cabinets show this target; one is left out").arg(all)
                                : WallText::tr("%1 cabinets show this target; %2 are left out").arg(all).arg(leftOut);
        } else if (fails == all) {
            text = WallText::tr("None of the %1 cabinets shows this target").arg(all);
        } else if (fails + int(unknown) == all) {
            text = WallText::tr("%1 of %2 cabinets do not show this target; of the others it is not known")
                       .arg(fails)
                       .arg(all);
        } else {
            const QString shows = WallText::tr("%1 of %2 cabinets show this target", "count that do, and of all")
                                      .arg(all - fails - int(unknown))
                                      .arg(all);
            const QString others = fails == 1
                ? WallText::tr("%1 does not", "name of a cabinet").arg(cabinetName(m_wall, failing.front()))
                : fails <= namedCabinets ? WallText::tr("%1 do not", "names of cabinets").arg(namesOf(m_wall, failing))
                                         : WallText::tr("%1 and %2 others do not", "name of a cabinet and how many")
                                               .arg(cabinetName(m_wall, failing.front()))
                                               .arg(fails - 1);
            text = WallText::tr("%1; %2", "how many cabinets show a target, and which do not").arg(shows, others);
            if (unknown > 0) {
                text = WallText::tr("%1; of %2 it is not known", "which cabinets show a target").arg(text).arg(unknown);
            }
        }
    }

    const DisplayWall &m_wall;
    const DisplayGamut &m_target;
    const std::vector<Model::Cabinet> m_cabinets;
    std::vector<std::size_t> m_counted; // all that are not left out
    WallAssessment m_result;
};

//! Why a cabinet has no drives; empty without a fault.
QString faultText(const Model::Correction &correction)
{
    const QString primary = correction.faultyPrimary ? gamutVertexName(vertexOf(*correction.faultyPrimary)) : QString();
    switch (correction.fault) {
    case Model::DisplayFault::None:
        break;
    case Model::DisplayFault::NotFinite:
        return WallText::tr("a colour has no chromaticity");
    case Model::DisplayFault::NoLight:
        return primary.isEmpty() ? WallText::tr("a primary has no luminance")
                                 : WallText::tr("%1 has no luminance of its own", "a primary").arg(primary);
    case Model::DisplayFault::NearlySingular:
        return primary.isEmpty()
            ? WallText::tr("the primaries cannot be told apart")
            : WallText::tr("the primaries cannot be told apart: the others almost mix %1").arg(primary);
    }
    return QString();
}

QString whiteText(const DisplayWall &wall, const DisplayGamut &target, const CabinetAssessment &cabinet,
    const Model::Correction &correction)
{
    const QString reached = reachableText(*cabinet.largestWhite, wall.unit);
    const QString limit = gamutVertexName(vertexOf(correction.largestWhite->limit));
    const QString wanted = luminanceText(target.getTargets().white.Y, target.unit);
    if (!cabinet.headroom) {
        return WallText::tr("white reaches %1 (%2 is the limit)").arg(reached, limit);
    }
    return isTooBright(target.getTargets().white.Y, *cabinet.largestWhite)
        ? WallText::tr("white reaches %1 only, of %2 (%3 is the limit)").arg(reached, wanted, limit)
        : WallText::tr("white reaches %1, of %2 (%3 is the limit)").arg(reached, wanted, limit);
}

} // namespace

QString cabinetName(const DisplayWall &wall, std::size_t cabinet)
{
    const QString &name = wall.cabinets[cabinet].name;
    const auto same = std::count_if(
        wall.cabinets.begin(), wall.cabinets.end(), [&name](const WallCabinet &other) { return other.name == name; });
    return oneLine(name.isEmpty() || same > 1 ? wall.cabinets[cabinet].label() : name);
}

std::vector<QString> cabinetNames(const DisplayWall &wall)
{
    QHash<QString, int> counts;
    for (const WallCabinet &cabinet : wall.cabinets) {
        ++counts[cabinet.name];
    }
    std::vector<QString> names;
    names.reserve(wall.cabinets.size());
    for (const WallCabinet &cabinet : wall.cabinets) {
        const bool isUnique = !cabinet.name.isEmpty() && counts.value(cabinet.name) == 1;
        names.push_back(oneLine(isUnique ? cabinet.name : cabinet.label()));
    }
    return names;
}

QString cabinetText(
    const DisplayWall &wall, const DisplayGamut &target, const WallAssessment &assessment, std::size_t index)
{
    const CabinetAssessment &cabinet = assessment.cabinets[index];
    const Model::Correction &correction = assessment.correction.corrections[index];
    const Model::Targets colors = targetsOf(wall.cabinets[index]);
    QStringList parts;
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue, Vertex::White}) {
        const double distance = cabinet.outside[std::size_t(vertex)];
        if (distance == 0.0) {
            continue;
        }
        const auto nearest
            = Model::nearestInside(colors, pointOf(targetAt(target.getTargets(), vertex)), chromaticityDecimals);
        parts.append(nearest ? WallText::tr("%1 reaches %2 only, Δu′v′ %3 off")
                                   .arg(gamutVertexName(vertex), pointText(nearest->xy), distanceText(distance))
                             : WallText::tr("%1 is out of reach").arg(gamutVertexName(vertex)));
    }
    const QString fault = faultText(correction);
    if (!fault.isEmpty()) {
        parts.append(fault);
    } else if (cabinet.gamut == Judgement::NotKnown && !Model::spanTriangle(colors)) {
        parts.append(WallText::tr("the primaries span no triangle"));
    } else if (!cabinet.isAdditive) {
        const Model::Target &measured = *wall.cabinets[index].white;
        const Model::Target &sum = *correction.uncorrectedWhite;
        const bool differ = luminanceText(measured.Y) != luminanceText(sum.Y);
        parts.append(WallText::tr("the white is %1, the primaries add to %2: what it reaches cannot be worked out")
                         .arg(differ ? luminanceText(measured.Y, wall.unit) : pointText(pointOf(measured)),
                             differ ? luminanceText(sum.Y, wall.unit) : pointText(pointOf(sum))));
    } else if (cabinet.largestWhite && (parts.isEmpty() || cabinet.luminance == Judgement::Fail)) {
        parts.append(whiteText(wall, target, cabinet, correction));
    }
    const bool hasSaidWhy = cabinet.largestWhite && isTooBright(target.getTargets().white.Y, *cabinet.largestWhite);
    if (cabinet.luminance == Judgement::Fail && !hasSaidWhy) {
        parts.append(cabinet.isAdditive ? WallText::tr("a primary of the target is too bright for it")
                                        : WallText::tr("the target is too bright for it in any case"));
    }
    if (parts.isEmpty()) {
        parts.append(WallText::tr("not known whether it shows the target"));
    }
    return sentence(WallText::tr("%1: %2", "a cabinet and what is known of it")
                        .arg(cabinetName(wall, index), parts.join(WallText::tr("; ", "between parts of a sentence"))));
}

QString commonGamutProblem(const DisplayWall &wall, const Model::CommonGamut &common)
{
    switch (common.shape) {
    case Model::CommonShape::Area:
        break;
    case Model::CommonShape::NotKnown:
        return WallText::tr("It is not known what the cabinets have in common");
    case Model::CommonShape::Empty:
        return WallText::tr("%1 have no colour in common", "names of cabinets").arg(namesOf(wall, common.excluding));
    case Model::CommonShape::Point:
    case Model::CommonShape::Line:
        return WallText::tr("The gamuts of the cabinets only touch");
    }
    return QString();
}

QString fitProblem(const DisplayWall &wall, const WallAssessment &assessment)
{
    const Model::GamutFit &fit = assessment.fit;
    const auto limit = [&](const std::optional<std::size_t> &cabinet) {
        return cabinet ? cabinetName(wall, *cabinet) : undefinedText();
    };
    switch (fit.fault) {
    case Model::FitFault::None:
        break;
    case Model::FitFault::NotFinite:
        return WallText::tr("The target cannot be fitted: a colour of it has no chromaticity.");
    case Model::FitFault::NoCommonArea:
        return WallText::tr("The target cannot be fitted: %1.", "why").arg(commonGamutProblem(wall, assessment.common));
    case Model::FitFault::WhiteOutside:
        return WallText::tr("The target cannot be fitted: not all cabinets can show its white (%1 is the limit). The "
                            "nearest that they can show is %2. Move the white beyond that, towards the middle.")
            .arg(limit(fit.whiteLimit), pointText(pointOf(fit.target.white)));
    case Model::FitFault::WhiteOutsideOfWish:
        return WallText::tr("The target cannot be fitted: its white is not inside of its primaries.");
    case Model::FitFault::NoTriangle:
        return WallText::tr("The target cannot be fitted: too little of it would be left.");
    case Model::FitFault::BlackTooBright:
        return WallText::tr("The target cannot be fitted: its white is too dark over the black of %1. Raise the "
                            "luminance of the white, or measure the black again without stray light.")
            .arg(limit(fit.whiteLimit));
    }
    return QString();
}

std::optional<Model::Targets> fittedToWall(const DisplayGamut &target, const WallAssessment &assessment)
{
    const Model::GamutFit &fit = assessment.fit;
    if (fit.fault != Model::FitFault::None || assessment.judgement == Judgement::Pass) {
        return std::nullopt;
    }
    const double wanted = target.getTargets().white.Y;
    const bool isDimmer = assessment.luminancesCompare && assessment.largestWhite
        && isTooBright(wanted, assessment.largestWhite->luminance);
    const bool hasMoved = fit.red.limit || fit.green.limit || fit.blue.limit;
    const bool failsInLuminance = std::any_of(assessment.cabinets.begin(), assessment.cabinets.end(),
        [](const CabinetAssessment &c) { return !c.isLeftOut && c.isAdditive && c.luminance == Judgement::Fail; });
    if (!hasMoved && !isDimmer && !failsInLuminance) {
        return std::nullopt;
    }
    return isDimmer ? ceiechart::withLuminance(fit.target, Vertex::White, assessment.largestWhite->luminance, true)
                    : fit.target;
}

WallAssessment assessWall(const DisplayWall &wall, const DisplayGamut &target)
{
    return WallAssessor(wall, target).result();
}

} // namespace gamutviewer
