// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallassessor.h"

#include "display/assessmentparts.h"
#include "display/assessmenttexts.h"
#include "display/cabinetluminance.h"

#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <QHash>

#include <algorithm>
#include <iterator>
#include <limits>
#include <tuple>
#include <utility>

namespace gamutviewer {

namespace {

using ceiechart::targetAt;
using Vertex = ceiechart::GamutVertex;

constexpr Vertex primaries[] = {Vertex::Red, Vertex::Green, Vertex::Blue};
constexpr double rounding = 1e-9;

Judgement worse(Judgement a, Judgement b)
{
    return a == Judgement::Fail || b == Judgement::Fail ? Judgement::Fail : a == Judgement::NotKnown ? a : b;
}

//! Of primaries that cannot be told apart, chromaticities say nothing either.
bool isGamutKnown(Model::DisplayFault fault, const Model::Targets &colors)
{
    return fault != Model::DisplayFault::NearlySingular && fault != Model::DisplayFault::NotFinite
        && Model::spanTriangle(colors);
}

//! Sets what is known of the chromaticities of a cabinet whose gamut is known.
void judgeGamut(CabinetAssessment &result, const Model::Targets &colors, const Model::Targets &target)
{
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
        const double distance
            = distanceFrom(colors, targetAt(target, primary)).value_or(std::numeric_limits<double>::infinity());
        // What the chart allows for is an area: of a small gamut it reaches farther.
        if (isOutside[int(primary)] || distance > visibleUv) {
            note(primary, distance);
        }
    }
}

bool isAnyOff(const std::array<double, 4> &off)
{
    return std::any_of(off.begin(), off.end(), [](double distance) { return distance > 0.0; });
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
        judgeGamutsAndLuminances();
        correct();
        judgeCabinets();
        judgeWall();
        compareNeighbors();
        findCommonGamut();
        sort();
        return std::move(m_result);
    }

private:
    const Model::Targets &target() const { return m_target.getTargets(); }
    bool hasLuminance() const { return m_result.luminancesCompare && target().white.Y > 0.0; }

    void judgeGamutsAndLuminances()
    {
        // Those whose white was measured say what can be expected of the others.
        for (const bool isMeasured : {true, false}) {
            for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
                if (m_wall.cabinets[i].white.has_value() == isMeasured) {
                    judgeGamutAndLuminance(i);
                }
            }
        }
    }

    void judgeGamutAndLuminance(std::size_t i)
    {
        const Model::DisplayDrive drive(m_cabinets[i].colors, m_cabinets[i].black);
        CabinetAssessment &result = m_result.cabinets[i];
        if (isGamutKnown(drive.fault(), m_cabinets[i].colors)) {
            judgeGamut(result, m_cabinets[i].colors, target());
        }
        if (drive.fault() != Model::DisplayFault::None) {
            return;
        }
        const CabinetLuminance luminance(m_wall.cabinets[i], drive, target(), m_whites);
        luminance.reach(result);
        if (hasLuminance()) {
            luminance.judge(result);
        }
        if (m_wall.cabinets[i].white) {
            learnFromWhite(i, luminance);
        }
        const auto correctable = luminance.correctable();
        if (correctable && !result.isLeftOut) {
            m_correctable = std::min(m_correctable.value_or(*correctable), *correctable);
        }
    }

    //! What one cabinet shows, others may, also if it is left out.
    void learnFromWhite(std::size_t i, const CabinetLuminance &luminance)
    {
        if (!m_result.cabinets[i].isAdditive) {
            m_result.notAdditive = m_result.notAdditive.value_or(i);
            m_whites.areAdditive = false;
            m_whites.haveUpperBounds = m_whites.haveUpperBounds && luminance.isUpperBound();
        } else if (luminance.shareOfSum() < m_whites.leastShare) {
            m_result.darkestWhite = i;
            m_whites.leastShare = luminance.shareOfSum();
        }
    }

    //! What is left out limits nothing, but it is corrected as far as it can be.
    void correct()
    {
        m_result.correction = Model::wallCorrection(
            m_cabinets, target(), hasLuminance() ? std::make_optional(target().white.Y) : m_correctable);
    }

    //! Corrections come from primaries alone, which say too much where the white was measured.
    static void keepWhatIsKnown(Model::Correction &correction, const CabinetAssessment &known)
    {
        if (!known.largestWhite) {
            correction.largestWhite.reset();
        } else if (correction.largestWhite) {
            correction.largestWhite->luminance = *known.largestWhite;
        }
        if (!known.isAdditive) {
            correction.shown.reset();
            correction.remaining = {};
        }
    }

    std::optional<double> blackLuminance(std::size_t i) const
    {
        const auto &black = m_cabinets[i].black;
        return black ? std::make_optional(black->Y) : m_wall.cabinets[i].blackLuminance;
    }

    //! Finds brightestBlack and the chromaticities that blacks were measured to have.
    void findBlacks()
    {
        std::optional<double> most;
        std::vector<Model::Target> lights;
        // A black is mostly light of the room, so that of a cabinet that is left out says as much.
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            const auto luminance = blackLuminance(i);
            if (luminance && (!most || *luminance > *most)) {
                most = luminance;
                m_result.brightestBlack = i;
            }
            if (m_cabinets[i].black && m_cabinets[i].black->Y > 0.0) {
                lights.push_back(*m_cabinets[i].black);
            }
        }
        const bool isAnyUnknown = std::any_of(
            m_cabinets.begin(), m_cabinets.end(), [](const Model::Cabinet &cabinet) { return !cabinet.black; });
        if (isAnyUnknown) {
            m_blackChromaticities = farthestOut(lights);
        }
    }

    //! The blacks that a cabinet may have whose own is not known.
    std::vector<Model::Target> possibleBlacks(std::size_t i) const
    {
        const auto &own = m_wall.cabinets[i].blackLuminance;
        if (m_cabinets[i].black || (!own && !m_result.brightestBlack)) {
            return {};
        }
        const double luminance = own ? *own : *blackLuminance(*m_result.brightestBlack);
        if (!(luminance > 0.0)) {
            return {};
        }
        return blacksOf(luminance,
            own || m_blackChromaticities.empty() ? possibleChromaticities(m_cabinets[i]) : m_blackChromaticities);
    }

    //! Sets what may become of cabinets whose black is not known.
    void judgePossibleBlacks()
    {
        findBlacks();
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            CabinetAssessment &result = m_result.cabinets[i];
            const std::vector<Model::Target> blacks = possibleBlacks(i);
            if (blacks.empty() || !result.isAdditive
                || m_result.correction.corrections[i].fault != Model::DisplayFault::None) {
                continue;
            }
            if (hasLuminance()) {
                result.offByPossibleBlack = offByBlacks(m_cabinets[i], blacks, target(), result.outside);
            }
            for (const Model::Target &black : blacks) {
                judgeLuminanceOver(black, i);
            }
        }
    }

    //! What is darker over \a black, which the cabinet may have, is not known.
    void judgeLuminanceOver(const Model::Target &black, std::size_t i)
    {
        CabinetAssessment &result = m_result.cabinets[i];
        CabinetAssessment over;
        over.outside = result.outside;
        const Model::DisplayDrive drive(m_cabinets[i].colors, black);
        if (drive.fault() == Model::DisplayFault::None) {
            const CabinetLuminance luminance(m_wall.cabinets[i], drive, target(), m_whites);
            luminance.reach(over);
            if (hasLuminance()) {
                luminance.judge(over);
            }
        }
        // A white that is the sum without a black, and not over it, speaks against such a black, if it was not
        // measured.
        if (!over.isAdditive && !m_wall.cabinets[i].blackLuminance) {
            return;
        }
        if (over.luminance != Judgement::Pass && result.luminance == Judgement::Pass) {
            result.luminance = Judgement::NotKnown;
        }
        const auto reached = over.largestWhite;
        if (!reached) { // nor is it known how dark it can be
            result.largestWhite.reset();
            result.headroom.reset();
            result.leastWhite.reset();
        } else if (result.leastWhite || (result.largestWhite && isTooBright(*result.largestWhite, *reached))) {
            result.leastWhite = std::min(result.leastWhite.value_or(*reached), *reached);
            result.largestWhite.reset();
            result.headroom.reset();
        }
    }

    void judgeCabinets()
    {
        judgePossibleBlacks();
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            const WallCabinet &cabinet = m_wall.cabinets[i];
            Model::Correction &correction = m_result.correction.corrections[i];
            CabinetAssessment &result = m_result.cabinets[i];
            keepWhatIsKnown(correction, result);
            result.white = cabinet.white ? cabinet.white
                : result.isAdditive      ? correction.uncorrectedWhite
                                         : std::nullopt;
            result.uvBefore = result.white ? Model::uvDifference(*result.white, target().white) : std::nullopt;
            result.uvAfter = correction.remaining.whiteUv;
            // How much a black takes depends on the luminance, and on what the primaries add to.
            if (cabinet.black && cabinet.black->Y > 0.0 && correction.matrix && hasLuminance() && result.isAdditive) {
                result.offByBlack = offByBlack(m_cabinets[i], correction.matrix, target(), result.outside);
            }
            const auto farthest = std::max_element(result.offByBlack.begin(), result.offByBlack.end());
            if (*farthest > 0.0 && result.gamut != Judgement::Fail) {
                result.limit = Vertex(farthest - result.offByBlack.begin());
            }
            // A chromaticity that is outside fails at any luminance.
            result.judgement = result.gamut == Judgement::Fail || *farthest > 0.0 ? Judgement::Fail
                : result.gamut == Judgement::NotKnown || isAnyOff(result.offByPossibleBlack)
                ? worse(result.luminance, Judgement::NotKnown)
                : result.luminance;
            // A target whose primaries do not mix to its white is not shown by any correction.
            const Model::WallFault fault = m_result.correction.fault;
            if (fault != Model::WallFault::None && fault != Model::WallFault::NoLuminance) {
                result.judgement = worse(result.judgement, Judgement::NotKnown);
            }
        }
    }

    void judgeWall()
    {
        const auto isAny = [this](Judgement judgement) {
            return std::any_of(m_counted.begin(), m_counted.end(),
                [&](std::size_t i) { return m_result.cabinets[i].judgement == judgement; });
        };
        m_result.judgement = isAny(Judgement::Fail)                                         ? Judgement::Fail
            : isAny(Judgement::NotKnown) || m_counted.empty() || !m_wall.incomplete.empty() ? Judgement::NotKnown
                                                                                            : Judgement::Pass;
        m_result.isReachKnownOfAll = m_wall.incomplete.empty();
        for (const std::size_t i : m_counted) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            if (cabinet.notTooBright) {
                m_result.notTooBright
                    = std::min(m_result.notTooBright.value_or(*cabinet.notTooBright), *cabinet.notTooBright);
            }
            if (!cabinet.largestWhite) {
                m_result.isReachKnownOfAll = false;
                continue;
            }
            if (!m_result.largestWhite || *cabinet.largestWhite < m_result.largestWhite->luminance) {
                m_result.largestWhite
                    = {*cabinet.largestWhite, i, m_result.correction.corrections[i].largestWhite->limit};
            }
        }
        Model::WallCorrection &correction = m_result.correction;
        correction.largestWhite = m_result.largestWhite;
        correction.without.clear();
        std::copy_if(m_counted.begin(), m_counted.end(), std::back_inserter(correction.without),
            [this](std::size_t i) { return !m_result.cabinets[i].largestWhite; });
    }

    void compareNeighbors()
    {
        std::vector<std::optional<Model::Target>> before(m_cabinets.size());
        std::vector<std::optional<Model::Target>> after = Model::whitesAfter(m_result.correction);
        QHash<QPair<int, int>, int> places;
        places.reserve(int(m_cabinets.size()));
        for (std::size_t i = 0; i < m_cabinets.size(); ++i) {
            before[i] = m_result.cabinets[i].white;
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
        known.reserve(m_counted.size());
        for (const std::size_t i : m_counted) {
            if (isGamutKnown(m_result.correction.corrections[i].fault, m_cabinets[i].colors)) {
                known.push_back(i);
            } else {
                m_result.notInCommon.push_back(i);
            }
        }
        std::vector<Model::Cabinet> some; // if not all, which are many to copy
        if (known.size() < m_cabinets.size()) {
            some.reserve(known.size());
            for (const std::size_t i : known) {
                some.push_back(m_cabinets[i]);
            }
        }
        const std::vector<Model::Cabinet> &cabinets = known.size() < m_cabinets.size() ? some : m_cabinets;
        Model::CommonGamut &common = m_result.common;
        common = Model::commonGamut(cabinets);
        m_result.fit = fitted(cabinets);
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

    //! Whether a correction would need a drive below 0, by however little.
    bool needsNegativeDrive() const
    {
        return std::any_of(m_counted.begin(), m_counted.end(), [this](std::size_t i) {
            const auto &matrix = m_result.correction.corrections[i].matrix;
            return matrix
                && std::any_of(ceiechart::allGamutVertices.begin(), ceiechart::allGamutVertices.end(),
                    [&](Vertex vertex) { return Model::isOutside(matrix->driveFor(contentOf(vertex))); });
        });
    }

    //! The target fitted to \a cabinets.
    Model::GamutFit fitted(const std::vector<Model::Cabinet> &cabinets) const
    {
        const double luminance
            = hasLuminance() ? fittedLuminance(m_target, m_result) : m_result.correction.target.white.Y;
        const bool staysAsItIs = m_result.judgement != Judgement::Fail && luminance == target().white.Y
            && !(hasLuminance() && needsNegativeDrive());
        if (staysAsItIs || m_result.correction.fault != Model::WallFault::None) {
            return Model::fittedTarget(m_result.common, target());
        }
        Model::Targets wish = target();
        wish.white = Model::Target::fromYxy(luminance, wish.white.x, wish.white.y);
        Model::GamutFit fit = Model::fittedTarget(m_result.common, wish, cabinets);
        if (fit.fault == Model::FitFault::None) {
            fit.target
                = ceiechart::withLuminance(fit.target, Vertex::White, target().white.Y, true).value_or(fit.target);
        } else {
            fit.target.white = Model::Target::fromYxy(target().white.Y, fit.target.white.x, fit.target.white.y);
        }
        return fit;
    }

    //! The part of the target's luminance that \a cabinet reaches, where it fails by that; else more than any such.
    double reachedShare(const CabinetAssessment &cabinet) const
    {
        if (cabinet.luminance != Judgement::Fail) {
            return std::numeric_limits<double>::infinity();
        }
        const auto most = cabinet.largestWhite ? cabinet.largestWhite : cabinet.notTooBright;
        return most ? std::min(*most / target().white.Y, 1.0) : 1.0; // a primary is too bright then
    }

    void sort()
    {
        const auto rank = [this](std::size_t i) {
            const CabinetAssessment &cabinet = m_result.cabinets[i];
            const int group = cabinet.isLeftOut            ? 3
                : cabinet.judgement == Judgement::Fail     ? 0
                : cabinet.judgement == Judgement::NotKnown ? 1
                                                           : 2;
            const double farthest = std::max(*std::max_element(cabinet.outside.begin(), cabinet.outside.end()),
                *std::max_element(cabinet.offByBlack.begin(), cabinet.offByBlack.end()));
            // How bright a cabinet is that misses a colour says nothing of how badly it fails.
            const double reach = group == 0 ? reachedShare(cabinet) : cabinet.largestWhite.value_or(-1.0);
            return std::make_tuple(group, reach, -farthest, i);
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

    const DisplayWall &m_wall;
    const DisplayGamut &m_target;
    const std::vector<Model::Cabinet> m_cabinets;
    std::vector<std::size_t> m_counted; // all that are not left out
    std::vector<Model::Target> m_blackChromaticities; // of the blacks that were measured, those that lie farthest out
    MeasuredWhites m_whites;
    std::optional<double> m_correctable; // the largest white that corrections of these can be for
    WallAssessment m_result;
};

} // namespace

double fittedLuminance(const DisplayGamut &target, const WallAssessment &assessment)
{
    const double wanted = target.getTargets().white.Y;
    // What a white was measured to be can be more than the primaries add to. Where that is enough, it is known.
    constexpr double noLimit = std::numeric_limits<double>::infinity();
    double most = assessment.judgement == Judgement::Pass ? noLimit : assessment.notTooBright.value_or(noLimit);
    for (const CabinetAssessment &cabinet : assessment.cabinets) {
        const auto reached = cabinet.largestWhite ? cabinet.largestWhite : cabinet.leastWhite;
        most = reached && !cabinet.isLeftOut ? std::min(most, *reached) : most;
    }
    if (!assessment.luminancesCompare || !isAbove(wanted, most)) {
        return wanted;
    }
    const double shown = roundedDown(most);
    return shown > 0.0 ? shown : most;
}

WallAssessment judgedWall(const DisplayWall &wall, const DisplayGamut &target)
{
    return WallAssessor(wall, target).result();
}

} // namespace gamutviewer
