// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/wallcorrections.h"

#include "display/assessment.h"
#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"

#include <gamutfiles/correctionsfile.h>
#include <gamutfiles/cubepair.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace gamutviewer {

namespace {

struct WrittenText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallCommand)
};

constexpr std::size_t namedCabinets = 4; // in a note

//! What a cabinet can be called.
struct Called {
    QString label;
    QString name;
    QString place;
};

//! All cabinets of \a wall, those that were measured incompletely last.
std::vector<Called> calledCabinets(const DisplayWall &wall)
{
    std::vector<Called> result;
    for (const WallCabinet &cabinet : wall.cabinets) {
        result.push_back({cabinet.label(), cabinet.name, cabinetLabel(QString(), cabinet.row, cabinet.column)});
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        result.push_back({incompleteLabel(cabinet), cabinet.name, incompleteLabel({{}, cabinet.position, {}})});
    }
    return result;
}

//! The index of the only cabinet that is called \a wanted.
Outcome<std::size_t> cabinetCalled(const DisplayWall &wall, const QString &wanted)
{
    using Failure = Outcome<std::size_t>;
    const std::vector<Called> all = calledCabinets(wall);
    std::vector<std::size_t> found;
    for (const auto &text : {&Called::label, &Called::name, &Called::place}) {
        for (std::size_t i = 0; i < all.size() && found.size() < 2; ++i) {
            if ((all[i].*text).compare(wanted, Qt::CaseInsensitive) == 0) {
                found.push_back(i);
            }
        }
        if (!found.empty()) {
            break;
        }
    }
    if (found.empty()) {
        return Failure::failure(WrittenText::tr("no cabinet of the wall is called \"%1\"").arg(oneLine(wanted)));
    }
    if (found.size() > 1) {
        return Failure::failure(WrittenText::tr("several cabinets are called \"%1\": %2 and %3, for example")
                                    .arg(oneLine(wanted), oneLine(all[found[0]].label), oneLine(all[found[1]].label)));
    }
    if (found.front() >= wall.cabinets.size()) {
        const IncompleteCabinet &incomplete = wall.incomplete[found.front() - wall.cabinets.size()];
        return Failure::failure(WrittenText::tr("there is no correction for %1: %2", "cabinet, and why")
                                    .arg(cabinetName(wall, incomplete), oneLine(incompleteReasonText(incomplete))));
    }
    return found.front();
}

//! The first of \a cabinets and then of \a incomplete, and how many there are besides.
QString namesOf(const DisplayWall &wall, const std::vector<std::size_t> &cabinets,
    const std::vector<IncompleteCabinet> &incomplete = {})
{
    QStringList names;
    for (std::size_t i = 0; i < cabinets.size() && i < namedCabinets; ++i) {
        names.append(cabinetName(wall, cabinets[i]));
    }
    for (std::size_t i = 0; i < incomplete.size() && names.size() < int(namedCabinets); ++i) {
        names.append(WrittenText::tr("%1 (%2)", "cabinet, and why nothing is known of it")
                         .arg(cabinetName(wall, incomplete[i]), oneLine(incompleteReasonText(incomplete[i]))));
    }
    const QString text = names.join(QStringLiteral(", "));
    const std::size_t all = cabinets.size() + incomplete.size();
    return all > namedCabinets
        ? WrittenText::tr("%1 and %2 more", "names of cabinets and a number").arg(text).arg(all - namedCabinets)
        : text;
}

//! What is to be corrected: a wall, or a single display as a wall of one.
struct Corrected {
    DisplayWall wall;
    bool isWall = true;
    DisplayGamut target;
    WallAssessment assessment; //!< of \a wall
    std::vector<std::size_t> cabinets; //!< of \a wall, those that are written
};

Corrected correctedWall(const DisplayWall &wall, bool isWall, const DisplayGamut &target)
{
    Corrected result{wall, isWall, target, assessWall(wall, target), std::vector<std::size_t>(wall.cabinets.size())};
    std::iota(result.cabinets.begin(), result.cabinets.end(), std::size_t(0));
    return result;
}

//! The part of the wall that is written.
DisplayWall writtenWall(const Corrected &corrected)
{
    if (corrected.cabinets.size() == corrected.wall.cabinets.size()) {
        return corrected.wall;
    }
    DisplayWall wall;
    wall.unit = corrected.wall.unit;
    for (const std::size_t cabinet : corrected.cabinets) {
        wall.cabinets.push_back(corrected.wall.cabinets[cabinet]);
    }
    return wall;
}

//! The corrections of \a wall, which is writtenWall().
Outcome<WallCorrections> writtenCorrections(const Corrected &corrected, const DisplayWall &wall)
{
    Model::WallCorrection solved = corrected.assessment.correction;
    solved.corrections.clear();
    for (const std::size_t cabinet : corrected.cabinets) {
        solved.corrections.push_back(corrected.assessment.correction.corrections[cabinet]);
    }
    return wallCorrections(wall, solved, nameOf(corrected.target));
}

//! The gamut that was measured is what a correction is for; the original is what a maker states.
std::optional<DisplayWall> singleDisplay(const DisplayDescription &description)
{
    const auto measured = description.gamut(description.measured);
    const auto gamut = measured ? measured : description.gamut(description.original);
    if (!gamut) {
        return std::nullopt;
    }
    const Model::Targets &targets = gamut->getTargets();
    WallCabinet cabinet;
    cabinet.name = nameOf(*gamut);
    cabinet.red = targets.red;
    cabinet.green = targets.green;
    cabinet.blue = targets.blue;
    cabinet.white = targets.white;
    cabinet.black = gamut->black;
    cabinet.blackLuminance = gamut->blackLuminance;
    DisplayWall wall;
    wall.unit = gamut->unit;
    wall.cabinets.push_back(cabinet);
    return wall;
}

//! What remains between the target and what cabinets show of it with their corrections.
class Remainder {
public:
    //! Returns whether there is any that can be noticed in the digits that are shown.
    bool add(const Model::DeviationValues &remaining, const CabinetAssessment &cabinet)
    {
        double uv = 0.0;
        for (const auto &color : {remaining.whiteUv, remaining.redUv, remaining.greenUv, remaining.blueUv}) {
            uv = std::max(uv, color.value_or(0.0));
        }
        double luminance = std::fabs(remaining.luminance.value_or(0.0));
        if (cabinet.luminance == Judgement::Pass) {
            // What is known to be reached remains by no more than the primaries are off the measured white.
            luminance = std::min(luminance, std::max(1.0 - cabinet.headroom.value_or(1.0), 0.0));
        }
        if (uv < noticeableUv && luminance < noticeableLuminance) {
            return false;
        }
        m_uv = std::max(m_uv, uv);
        m_luminance = std::max(m_luminance, luminance);
        return true;
    }
    QString text() const
    {
        // What cannot be noticed in the digits that are shown would read as if it were something.
        const QString uv = WrittenText::tr("Δu′v′ %1", "how much remains").arg(fixedText(m_uv, chromaticityDecimals));
        const QString luminance = WrittenText::tr("%1 of the luminance", "how much remains").arg(percent(m_luminance));
        return m_luminance < noticeableLuminance ? uv
            : m_uv < noticeableUv                ? luminance
                                                 : WrittenText::tr("%1 and %2", "how much remains").arg(uv, luminance);
    }

private:
    static constexpr double noticeableUv = 0.00005;
    static constexpr double noticeableLuminance = 0.0005;

    double m_uv = 0.0;
    double m_luminance = 0.0;
};

//! For which white they are, where that is not the target's.
QString whiteNote(const Corrected &corrected)
{
    const WallAssessment &assessment = corrected.assessment;
    const bool hasLuminance = corrected.target.getTargets().white.Y > 0.0;
    if (assessment.luminancesCompare && hasLuminance) {
        return QString();
    }
    const bool isOne = corrected.wall.cabinets.size() + corrected.wall.incomplete.size() == 1;
    const QString why = !hasLuminance ? WrittenText::tr("the white of the target has no luminance")
        : corrected.isWall && isOne
        ? WrittenText::tr("the luminance of the target cannot be compared with those of the cabinet")
        : corrected.isWall
        ? WrittenText::tr("the luminance of the target cannot be compared with theirs")
        : WrittenText::tr("the luminance of the target cannot be compared with those of the display");
    const double luminance = assessment.correction.target.white.Y;
    // What cabinets reach that are not additive is not known.
    constexpr double rounding = 1e-9;
    const bool isReached
        = assessment.largestWhite && luminance >= assessment.largestWhite->luminance * (1.0 - rounding);
    const QString text = !corrected.isWall && isReached
        ? WrittenText::tr("the correction is for a white of %1, the largest that the display reaches, as %2")
        : !corrected.isWall
        ? WrittenText::tr("the correction is for a white of %1, the largest that the primaries of the display add to, "
                          "as %2")
        : isOne && isReached
        ? WrittenText::tr("the correction is for a white of %1, the largest that the cabinet reaches, as %2")
        : isOne
        ? WrittenText::tr("the correction is for a white of %1, the largest that the primaries of the cabinet add to, "
                          "as %2")
        : !isReached
        ? WrittenText::tr("the corrections are for a white of %1, the largest that the primaries of all cabinets add "
                          "to, as %2")
        : assessment.isReachKnownOfAll
        ? WrittenText::tr("the corrections are for a white of %1, the largest that all cabinets reach, as %2")
        : WrittenText::tr("the corrections are for a white of %1, the largest that all cabinets reach of which it is "
                          "known, as %2");
    return text.arg(reachableText(luminance, corrected.wall.unit), why);
}

//! Of one or several cabinets, or of a single display, of which nothing is told when there are none.
QString noteOn(const Corrected &corrected, const std::vector<std::size_t> &cabinets, const QString &ofDisplay,
    const QString &ofOne, const QString &ofSeveral, const std::vector<IncompleteCabinet> &incomplete = {})
{
    const QString &ofCabinets = cabinets.size() + incomplete.size() == 1 ? ofOne : ofSeveral;
    if (cabinets.empty() && incomplete.empty()) {
        return QString();
    }
    return corrected.isWall ? WrittenText::tr("%1: %2", "what is true of cabinets, and their names")
                                  .arg(ofCabinets, namesOf(corrected.wall, cabinets, incomplete))
                            : ofDisplay;
}

//! \a written is writtenWall().
QStringList notesOn(const Corrected &corrected, const DisplayWall &written)
{
    Remainder beyondReach;
    Remainder withinReach;
    std::vector<std::size_t> beyond;
    std::vector<std::size_t> within;
    std::vector<std::size_t> failing;
    std::vector<std::size_t> notAdditive;
    std::vector<std::size_t> unknownWhite;
    std::vector<std::size_t> without;
    std::vector<std::size_t> unknownBlack;
    for (const std::size_t i : corrected.cabinets) {
        const CabinetAssessment &cabinet = corrected.assessment.cabinets[i];
        const Model::Correction &correction = corrected.assessment.correction.corrections[i];
        if (!correction.matrix) {
            without.push_back(i);
        } else if (cabinet.judgement == Judgement::Pass) {
            if (withinReach.add(correction.remaining, cabinet)) {
                within.push_back(i);
            }
        } else if (beyondReach.add(correction.remaining, cabinet)) {
            beyond.push_back(i);
        } else if (cabinet.judgement == Judgement::Fail) {
            failing.push_back(i);
        }
        if (correction.matrix && !cabinet.isAdditive) {
            (corrected.wall.cabinets[i].white ? notAdditive : unknownWhite).push_back(i);
        }
        const auto &off = cabinet.offByPossibleBlack;
        const bool isOff = std::any_of(off.begin(), off.end(), [](double distance) { return distance > 0.0; });
        if (correction.matrix && cabinet.judgement == Judgement::NotKnown && (isOff || cabinet.leastWhite)) {
            unknownBlack.push_back(i);
        }
    }
    QStringList notes{whiteNote(corrected), mixtureText(corrected.target, corrected.assessment.correction.target),
        noteOn(corrected, without, QString(), WrittenText::tr("cabinet without a correction"),
            WrittenText::tr("cabinets without a correction"), written.incomplete),
        noteOn(corrected, unknownBlack,
            WrittenText::tr(
                "the black of the display is not known, so that it is not known whether it shows the target"),
            WrittenText::tr("cabinet whose black is not known, so that it is not known whether it shows the target"),
            WrittenText::tr(
                "cabinets whose blacks are not known, so that it is not known whether they show the target")),
        noteOn(corrected, beyond,
            WrittenText::tr("the display differs from the target even so, by up to %1, as it cannot show all of it")
                .arg(beyondReach.text()),
            WrittenText::tr("cabinet that differs from the target even so, by up to %1, as it cannot show all of it")
                .arg(beyondReach.text()),
            WrittenText::tr("cabinets that differ from the target even so, by up to %1, as they cannot show all of it")
                .arg(beyondReach.text())),
        noteOn(corrected, within,
            WrittenText::tr("the display shows the target, but for up to %1").arg(withinReach.text()),
            WrittenText::tr("cabinet that shows the target, but for up to %1").arg(withinReach.text()),
            WrittenText::tr("cabinets that show the target, but for up to %1").arg(withinReach.text())),
        noteOn(corrected, failing, WrittenText::tr("the display does not show the target even so"),
            WrittenText::tr("cabinet that does not show the target even so"),
            WrittenText::tr("cabinets that do not show the target even so")),
        noteOn(corrected, notAdditive,
            WrittenText::tr("the white of the display is not the sum of its primaries, which the correction is for; "
                            "what it shows is not known"),
            WrittenText::tr("cabinet whose measured white is not the sum of its primaries, which the correction is "
                            "for, so that it is not known what it shows"),
            WrittenText::tr("cabinets whose measured white is not the sum of their primaries, which the corrections "
                            "are for, so that it is not known what they show")),
        noteOn(corrected, unknownWhite, QString(),
            WrittenText::tr("cabinet whose white was not measured, so that it is not known what it shows, as another "
                            "white is not the sum of its primaries"),
            WrittenText::tr("cabinets whose whites were not measured, so that it is not known what they show, as "
                            "another white is not the sum of its primaries"))};
    notes.append(offSumText(corrected.wall, corrected.assessment, corrected.cabinets));
    notes.removeAll(QString());
    return notes + exchangeTexts(written);
}

Outcome<QVector<CorrectionsOutput>> tableFiles(const WallCorrections &corrections, const QString &fileName)
{
    using Failure = Outcome<QVector<CorrectionsOutput>>;
    if (corrections.cabinets.size() > 1) {
        return Failure::failure(WrittenText::tr(
            "a pair of tables is for one display: choose a cabinet by --cabinet, or write csv or json"));
    }
    const CabinetCorrection &cabinet = corrections.cabinets.front();
    const auto pair = cubePair(*cabinet.matrix);
    if (!pair) {
        return Failure::failure(WrittenText::tr("%1; csv and json have the matrix as it is").arg(pair.error()));
    }
    const QFileInfo file(fileName);
    const QString base = file.path() == QLatin1String(".") && !fileName.startsWith(QLatin1String("./"))
        ? file.completeBaseName()
        : file.path() + QLatin1Char('/') + file.completeBaseName();
    const QString title = cabinet.label() + QStringLiteral(": ") + corrections.target.name;
    const QStringList comments = cubeComments(corrections);
    return QVector<CorrectionsOutput>{{base + QStringLiteral("-3x3.cube"), matrixCube(*pair, title, comments)},
        {base + QStringLiteral("-1d.cube"), gainsCube(*pair, title, comments)}};
}

} // namespace

std::optional<CorrectionsFormat> correctionsFormat(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    return suffix == QLatin1String("csv") ? std::make_optional(CorrectionsFormat::Csv)
        : suffix == QLatin1String("json") ? std::make_optional(CorrectionsFormat::Json)
        : suffix == QLatin1String("cube") ? std::make_optional(CorrectionsFormat::Cube)
                                          : std::nullopt;
}

Outcome<CorrectionsOutputs> corrections(
    const DisplayDescription &description, const QString &cabinet, const QString &fileName)
{
    using Failure = Outcome<CorrectionsOutputs>;
    const auto target = description.gamut(description.target);
    if (!target) {
        return Failure::failure(
            WrittenText::tr("there is no target, which corrections are for: choose one by --target"));
    }
    const bool isWall = !description.wall.cabinets.empty();
    const auto wall = isWall ? std::make_optional(description.wall) : singleDisplay(description);
    if (!wall) {
        return Failure::failure(
            WrittenText::tr("there is nothing to correct: no wall, and no measured or original gamut"));
    }
    Corrected corrected = correctedWall(*wall, isWall, *target);
    if (isWall && !cabinet.isEmpty()) {
        const auto found = cabinetCalled(*wall, cabinet);
        if (!found) {
            return Failure::failure(found.problem());
        }
        corrected.cabinets = {*found};
    }
    const DisplayWall written = writtenWall(corrected);
    const auto made = writtenCorrections(corrected, written);
    if (!made) {
        return Failure::failure(made.problem());
    }
    CorrectionsOutputs outputs;
    outputs.notes = notesOn(corrected, written);
    switch (correctionsFormat(fileName).value_or(CorrectionsFormat::Csv)) {
    case CorrectionsFormat::Csv:
        outputs.files = {{fileName, correctionsCsv(*made)}};
        break;
    case CorrectionsFormat::Json:
        outputs.files = {{fileName, correctionsJson(*made)}};
        break;
    case CorrectionsFormat::Cube: {
        const auto files = tableFiles(*made, fileName);
        if (!files) {
            return Failure::failure(files.problem());
        }
        outputs.files = *files;
        break;
    }
    }
    return outputs;
}

} // namespace gamutviewer
