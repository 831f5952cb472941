// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallassessmenttexts.h"

#include "display/additivity.h"
#include "display/assessmentparts.h"
#include "display/assessmenttexts.h"
#include "display/chromaticity.h"
#include "display/valuetexts.h"

#include <gamutmodel/exchangedprimaries.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using ceiechart::targetAt;
using Vertex = ceiechart::GamutVertex;

//! Of a cabinet whose name \a isUnique or not.
QString nameFor(const QString &name, bool isUnique, const QString &label)
{
    return oneLine(isUnique && !name.isEmpty() ? name : label);
}

bool isUniqueName(const DisplayWall &wall, const QString &name)
{
    const auto isSame = [&name](const auto &cabinet) { return cabinet.name == name; };
    return std::count_if(wall.cabinets.begin(), wall.cabinets.end(), isSame)
        + std::count_if(wall.incomplete.begin(), wall.incomplete.end(), isSame)
        == 1;
}

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

//! Of a cabinet whose white is not the sum of its primaries.
QString notAdditiveText(const DisplayWall &wall, const DisplayGamut &target, const CabinetAssessment &cabinet,
    const Model::Target &measured, const Model::Target &sum)
{
    if (cabinet.largestWhite && isTooBright(target.getTargets().white.Y, *cabinet.largestWhite)) {
        return WallText::tr("white reaches %1 only, of %2")
            .arg(reachableText(*cabinet.largestWhite, wall.unit),
                luminanceText(target.getTargets().white.Y, target.unit));
    }
    const QString is
        = differsInLuminance(measured, sum) ? luminanceText(measured.Y, wall.unit) : pointText(pointOf(measured));
    const QString adds = differsInLuminance(measured, sum) ? luminanceText(sum.Y, wall.unit) : pointText(pointOf(sum));
    return cabinet.largestWhite
        ? WallText::tr("the white is %1, the primaries add to %2: what it shows with its correction cannot be worked "
                       "out")
              .arg(is, adds)
        : WallText::tr("the white is %1, the primaries add to %2: what it reaches cannot be worked out").arg(is, adds);
}

/*!
 * \brief What a cabinet makes of a colour of \a target that lies outside of its gamut by \a distance.
 *
 * Where \a isLightKnown and a black was measured, that is what it shows with its correction. A target that is set to it
 * can have another luminance, over which the black counts more or less, so it is not called reached.
 */
QString outsideText(const WallCabinet &cabinet, const Model::Correction &correction, const Model::Targets &target,
    Vertex vertex, double distance, bool isLightKnown)
{
    const Model::Targets colors{cabinet.red, cabinet.green, cabinet.blue, {}};
    const QString color = gamutVertexName(vertex);
    const bool hasBlack = cabinet.black && cabinet.black->Y > 0.0;
    if (hasBlack && isLightKnown && correction.matrix) {
        const auto shown = shownWithoutLimit(Model::DisplayDrive(colors, cabinet.black), *correction.matrix, vertex);
        const auto off = shown ? Model::uvDifference(*shown, targetAt(target, vertex)) : std::nullopt;
        if (off) {
            return WallText::tr("corrected, %1 is %2 over the black, Δu′v′ %3 off")
                .arg(color, pointText(pointOf(*shown)), distanceText(*off));
        }
    }
    const auto nearest = Model::nearestInside(colors, pointOf(targetAt(target, vertex)), chromaticityDecimals);
    if (!nearest) {
        return WallText::tr("%1 is out of reach").arg(color);
    }
    return (hasBlack ? WallText::tr("%1 reaches %2 at most, without its black, Δu′v′ %3 off")
                     : WallText::tr("%1 reaches %2 only, Δu′v′ %3 off"))
        .arg(color, pointText(nearest->xy), distanceText(distance));
}

//! What a black that is not known can keep a cabinet off; empty where that is nothing.
QString possibleBlackText(
    const DisplayWall &wall, const DisplayGamut &target, const WallAssessment &assessment, std::size_t index)
{
    const CabinetAssessment &cabinet = assessment.cabinets[index];
    const bool hasOwn = wall.cabinets[index].blackLuminance.has_value();
    const QString other = assessment.brightestBlack ? cabinetName(wall, *assessment.brightestBlack) : QString();
    const QString off = offByBlackText(cabinet.offByPossibleBlack);
    if (!off.isEmpty()) {
        return hasOwn
            ? WallText::tr("the chromaticity of its black is not known, and one of this luminance can keep it "
                           "off %1: measure it",
                "colours and distances")
                  .arg(off)
            : WallText::tr("its black was not measured, and one as bright as that of %1 can keep it off %2: "
                           "measure it",
                "name of a cabinet, colours and distances")
                  .arg(other, off);
    }
    const double wanted = target.getTargets().white.Y;
    const bool isTooDark = cabinet.leastWhite && isTooBright(wanted, *cabinet.leastWhite);
    if (assessment.luminancesCompare && hasOwn && cabinet.isAdditive && cabinet.luminance == Judgement::NotKnown
        && !cabinet.largestWhite && !isTooDark) {
        return WallText::tr("the chromaticity of its black is not known, nor whether its white is the sum of its "
                            "primaries over it: measure it");
    }
    if (!assessment.luminancesCompare || !isTooDark) {
        return QString();
    }
    const QString reached = reachableText(*cabinet.leastWhite, wall.unit);
    return hasOwn
        ? WallText::tr("the chromaticity of its black is not known, and over one of this luminance white can reach %1 "
                       "only, of %2: measure it")
              .arg(reached, luminanceText(wanted, target.unit))
        : WallText::tr("its black was not measured, and over one as bright as that of %1 white can reach %2 only, of "
                       "%3: measure it",
            "name of a cabinet, luminances")
              .arg(other, reached, luminanceText(wanted, target.unit));
}

//! \a cabinet over the black that was measured, or over those that it may have where only the luminance is known.
std::vector<Model::DisplayDrive> overItsBlacks(const WallCabinet &cabinet)
{
    Model::Cabinet measured;
    measured.colors = {cabinet.red, cabinet.green, cabinet.blue, {}};
    std::vector<Model::Target> blacks;
    if (cabinet.black && cabinet.black->Y > 0.0) {
        blacks.push_back(*cabinet.black);
    } else if (cabinet.blackLuminance) {
        blacks = blacksOf(*cabinet.blackLuminance, possibleChromaticities(measured));
    }
    std::vector<Model::DisplayDrive> drives;
    for (const Model::Target &black : blacks) {
        drives.emplace_back(measured.colors, black);
    }
    return drives;
}

//! What the primaries of a cabinet seem to be: "red and green seem to be exchanged"; empty where they seem right.
QString exchangeText(const std::optional<Model::SeemingPrimaries> &seeming)
{
    if (!seeming) {
        return QString();
    }
    const bool isCycle = seeming->red != Model::Primary::Red && seeming->green != Model::Primary::Green
        && seeming->blue != Model::Primary::Blue;
    return isCycle                              ? WallText::tr("red, green and blue seem to be exchanged")
        : seeming->blue == Model::Primary::Blue ? WallText::tr("red and green seem to be exchanged")
        : seeming->red == Model::Primary::Red   ? WallText::tr("green and blue seem to be exchanged")
                                                : WallText::tr("red and blue seem to be exchanged");
}

} // namespace

QString sentence(const QString &text)
{
    return WallText::tr("%1.", "a sentence").arg(text);
}

QString ofCabinets(const QString &names, const QString &text)
{
    return sentence(WallText::tr("%1: %2", "a cabinet and what is known of it").arg(names, text));
}

QString cabinetName(const DisplayWall &wall, std::size_t cabinet)
{
    const WallCabinet &of = wall.cabinets[cabinet];
    return nameFor(of.name, isUniqueName(wall, of.name), of.label());
}

QString cabinetName(const DisplayWall &wall, const IncompleteCabinet &cabinet)
{
    return nameFor(cabinet.name, isUniqueName(wall, cabinet.name), incompleteLabel(cabinet));
}

std::vector<QString> cabinetNames(const DisplayWall &wall)
{
    QHash<QString, int> counts;
    for (const WallCabinet &cabinet : wall.cabinets) {
        ++counts[cabinet.name];
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        ++counts[cabinet.name];
    }
    std::vector<QString> names;
    names.reserve(wall.cabinets.size());
    for (const WallCabinet &cabinet : wall.cabinets) {
        names.push_back(nameFor(cabinet.name, counts.value(cabinet.name) == 1, cabinet.label()));
    }
    return names;
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

QString cabinetText(
    const DisplayWall &wall, const DisplayGamut &target, const WallAssessment &assessment, std::size_t index)
{
    const CabinetAssessment &cabinet = assessment.cabinets[index];
    const Model::Correction &correction = assessment.correction.corrections[index];
    const WallCabinet &of = wall.cabinets[index];
    const Model::Targets colors{of.red, of.green, of.blue, {}};
    QStringList parts;
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue, Vertex::White}) {
        const double distance = cabinet.outside[std::size_t(vertex)];
        if (distance == 0.0) {
            continue;
        }
        parts.append(outsideText(of, correction, target.getTargets(), vertex, distance,
            assessment.luminancesCompare && cabinet.isAdditive && target.getTargets().white.Y > 0.0));
    }
    const QString offByBlack = offByBlackText(cabinet.offByBlack);
    if (!offByBlack.isEmpty()) {
        parts.append(
            WallText::tr("the black is too bright, and keeps it off %1: raise the white of the target, fit the "
                         "target to the wall, or measure the black without stray light",
                "colours and distances")
                .arg(offByBlack));
    }
    const QString possible = possibleBlackText(wall, target, assessment, index);
    if (!possible.isEmpty()) {
        parts.append(possible);
    }
    const bool hasSaidWhy = cabinet.largestWhite && isTooBright(target.getTargets().white.Y, *cabinet.largestWhite);
    const QString fault = faultText(correction);
    if (!fault.isEmpty()) {
        parts.append(fault);
    } else if (cabinet.gamut == Judgement::NotKnown && !Model::spanTriangle(colors)) {
        parts.append(WallText::tr("the primaries span no triangle"));
    } else if (!cabinet.isAdditive && !of.white) {
        parts.append(WallText::tr("its white was not measured, and that of %1 is not the sum of its primaries: measure "
                                  "it",
            "name of a cabinet")
                         .arg(cabinetName(wall, *assessment.notAdditive)));
    } else if (cabinet.luminance == Judgement::NotKnown && hasSaidWhy && !of.white && assessment.darkestWhite) {
        parts.append(
            WallText::tr("its white was not measured, and reaches %1 only, of %2, if it is as far below the sum "
                         "of the primaries as that of %3: measure it",
                "luminances, name of a cabinet")
                .arg(reachableText(*cabinet.largestWhite, wall.unit),
                    luminanceText(target.getTargets().white.Y, target.unit),
                    cabinetName(wall, *assessment.darkestWhite)));
    } else if (!cabinet.isAdditive) {
        parts.append(notAdditiveText(wall, target, cabinet, *of.white, *correction.uncorrectedWhite));
    } else if (cabinet.luminance == Judgement::Fail && !of.white && assessment.darkestWhite && cabinet.notTooBright) {
        parts.append(WallText::tr("white reaches %1 at most, of %2")
                         .arg(reachableText(*cabinet.notTooBright, wall.unit),
                             luminanceText(target.getTargets().white.Y, target.unit)));
    } else if (cabinet.largestWhite && (cabinet.luminance == Judgement::Fail ? hasSaidWhy : parts.isEmpty())) {
        parts.append(whiteText(wall, target, cabinet, correction));
    }
    if (cabinet.luminance == Judgement::Fail && !hasSaidWhy) {
        parts.append(cabinet.isAdditive && cabinet.tooBright
                ? WallText::tr("the %1 of the target is too bright for it", "a primary")
                      .arg(gamutVertexName(*cabinet.tooBright))
                : WallText::tr("the target is too bright for it in any case"));
    }
    if (parts.isEmpty()) {
        parts.append(WallText::tr("not known whether it shows the target"));
    }
    const QString exchange = exchangeText(Model::exchangedPrimaries(colors));
    if (!exchange.isEmpty()) {
        parts.append(exchange);
    }
    return ofCabinets(cabinetName(wall, index), parts.join(WallText::tr("; ", "between parts of a sentence")));
}

QString offByBlackText(const std::array<double, 4> &offByBlack)
{
    QStringList colors;
    for (const Vertex vertex : ceiechart::allGamutVertices) {
        const double distance = offByBlack[std::size_t(vertex)];
        if (distance > 0.0) {
            colors.append(std::isfinite(distance) ? WallText::tr("%1 by Δu′v′ %2", "colour and distance")
                                                        .arg(gamutVertexName(vertex), distanceText(distance))
                                                  : gamutVertexName(vertex));
        }
    }
    return colors.join(WallText::tr(", ", "between names"));
}

QStringList exchangeTexts(const DisplayWall &wall)
{
    QStringList texts; // in the order of the first cabinet of each
    QHash<QString, std::vector<std::size_t>> cabinets;
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        const WallCabinet &of = wall.cabinets[i];
        const QString text = exchangeText(Model::exchangedPrimaries({of.red, of.green, of.blue, {}}));
        if (text.isEmpty()) {
            continue;
        }
        if (!cabinets.contains(text)) {
            texts.append(text);
        }
        cabinets[text].push_back(i);
    }
    QStringList result;
    for (const QString &text : qAsConst(texts)) {
        const std::vector<std::size_t> &of = cabinets[text];
        const QString names = of.size() <= describedCabinets
            ? namesOf(wall, of)
            : WallText::tr("%1 and %2 others", "name of a cabinet and how many")
                  .arg(cabinetName(wall, of.front()))
                  .arg(of.size() - 1);
        result.append(ofCabinets(names, text) + QLatin1Char(' ')
            + WallText::tr("Check the measurement: a correction drives the primaries as they are named."));
    }
    return result;
}

QString offSumText(const DisplayWall &wall, const WallAssessment &assessment, const std::vector<std::size_t> &cabinets)
{
    double luminance = 0.0;
    double uv = 0.0;
    std::optional<std::size_t> worst;
    std::optional<std::size_t> farthest;
    for (const std::size_t i : cabinets) {
        const auto &off = assessment.cabinets[i].offSum;
        if (!off) {
            continue;
        }
        if (!worst || std::fabs(off->luminance) > luminance) {
            worst = i;
        }
        if (!farthest || off->uv > uv) {
            farthest = i;
        }
        luminance = std::max(luminance, std::fabs(off->luminance));
        uv = std::max(uv, off->uv);
    }
    if (luminance <= fullDrive - 1.0 && uv <= visibleUv) {
        return QString();
    }
    // What looks like 0 is not said.
    const bool hasLuminance = percent(luminance) != percent(0.0);
    const QString distance = fixedText(uv, chromaticityDecimals);
    const bool hasDistance = distance != fixedText(0.0, chromaticityDecimals);
    const QString name = cabinetName(wall, hasLuminance ? *worst : *farthest);
    const QString text = hasLuminance && hasDistance
        ? WallText::tr("Measured whites are up to %1 and Δu′v′ %2 off the sums of the primaries (%3).")
              .arg(percent(luminance), distance, name)
        : hasLuminance
        ? WallText::tr(
            "Measured whites are up to %1 off the sums of the primaries (%2).", "part of a luminance, cabinet")
              .arg(percent(luminance), name)
        : WallText::tr("Measured whites are up to Δu′v′ %1 off the sums of the primaries (%2).", "distance, cabinet")
              .arg(distance, name);
    return text + QLatin1Char(' ')
        + WallText::tr("What corrections leave is worked out from the primaries, and known no better than that.");
}

QString darkContentText(
    const DisplayWall &wall, const WallAssessment &assessment, const std::vector<std::size_t> &cabinets)
{
    constexpr double level = 0.1; // as the text says
    if (assessment.correction.fault != Model::WallFault::None) {
        return QString();
    }
    constexpr std::pair<Vertex, Model::Drive> contents[] = {{Vertex::Red, {level, 0.0, 0.0}},
        {Vertex::Green, {0.0, level, 0.0}}, {Vertex::Blue, {0.0, 0.0, level}}, {Vertex::White, {level, level, level}}};
    double most = visibleUv;
    std::optional<std::size_t> worst;
    Vertex shifted = Vertex::White;
    for (const std::size_t i : cabinets) {
        const auto &matrix = assessment.correction.corrections[i].matrix;
        if (!matrix || !assessment.cabinets[i].isAdditive) {
            continue;
        }
        for (const Model::DisplayDrive &display : overItsBlacks(wall.cabinets[i])) {
            for (const auto &[vertex, content] : contents) {
                if (assessment.cabinets[i].outside[std::size_t(vertex)] > 0.0) {
                    continue; // not the black's doing
                }
                const auto shown = shownWithoutLimit(display, *matrix, content);
                const auto shift = shown ? Model::uvDifference(*shown, targetAt(assessment.correction.target, vertex))
                                         : std::nullopt;
                if (shift && *shift > most) {
                    most = *shift;
                    worst = i;
                    shifted = vertex;
                }
            }
        }
    }
    if (!worst) {
        return QString();
    }
    const QString text = wall.cabinets[*worst].black
        ? WallText::tr("Content that is darker than the target is not judged: at a tenth of its luminance, the black "
                       "of %1 shifts %2 by Δu′v′ %3.")
        : WallText::tr("Content that is darker than the target is not judged: at a tenth of its luminance, the black "
                       "of %1, whose chromaticity is not known, can shift %2 by up to Δu′v′ %3.");
    return text.arg(cabinetName(wall, *worst), gamutVertexName(shifted), distanceText(most));
}

QString mixtureText(const DisplayGamut &target, const Model::Targets &mixed)
{
    constexpr double rounding = 0.01; // of what files and people write
    const Model::Targets &stated = target.getTargets();
    const bool isStated = stated.red.Y != 0.0 || stated.green.Y != 0.0 || stated.blue.Y != 0.0;
    if (!isStated || !(stated.white.Y > 0.0) || !(mixed.white.Y > 0.0)) {
        return QString();
    }
    const double scale = stated.white.Y / mixed.white.Y;
    bool differs = false;
    QStringList luminances;
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
        const double luminance = targetAt(mixed, vertex).Y * scale;
        differs = differs || !(std::fabs(targetAt(stated, vertex).Y - luminance) <= rounding * std::fabs(luminance));
        luminances.append(WallText::tr("%1 %2", "colour and luminance")
                              .arg(gamutVertexName(vertex), luminanceText(luminance, target.unit)));
    }
    return differs ? WallText::tr("The luminances of the target's primaries do not mix to its white. A correction is "
                                  "for those that do: %1.")
                         .arg(luminances.join(WallText::tr(", ", "between names")))
                   : QString();
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

} // namespace gamutviewer
