// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/wallcommand.h"

#include "display/assessment.h"
#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/targetedits.h"

#include <gamutfiles/correctionsfile.h>
#include <gamutfiles/cubepair.h>
#include <gamutfiles/filebytes.h>
#include <gamutmodel/publishedgamuts.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

struct CommandText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallCommand)
};

constexpr std::size_t namedCabinets = 4; // in a note

//! What a name on the command line stands for: the only one of \a names that is it, in any case of letters.
std::optional<QString> meantName(const QStringList &names, const QString &wanted)
{
    if (names.contains(wanted)) {
        return wanted;
    }
    const QStringList found
        = names.filter(QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(wanted)),
            QRegularExpression::CaseInsensitiveOption));
    return found.size() == 1 ? std::make_optional(found.first()) : std::nullopt;
}

QStringList gamutNames(const DisplayDescription &description)
{
    QStringList names;
    for (const DisplayGamut &gamut : description.gamuts) {
        names.append(QString::fromStdString(gamut.colorGamutName()));
    }
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        names.append(QString::fromStdString(published.gamut.colorGamutName()));
    }
    names.removeDuplicates();
    return names;
}

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
        return Failure::failure(CommandText::tr("no cabinet of the wall is called \"%1\"").arg(oneLine(wanted)));
    }
    if (found.size() > 1) {
        return Failure::failure(CommandText::tr("several cabinets are called \"%1\": %2 and %3, for example")
                                    .arg(oneLine(wanted), oneLine(all[found[0]].label), oneLine(all[found[1]].label)));
    }
    if (found.front() >= wall.cabinets.size()) {
        const IncompleteCabinet &incomplete = wall.incomplete[found.front() - wall.cabinets.size()];
        return Failure::failure(
            CommandText::tr("there is no correction for %1: %2", "cabinet, and why")
                .arg(oneLine(incompleteLabel(incomplete)), oneLine(incompleteReasonText(incomplete))));
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
        names.append(CommandText::tr("%1 (%2)", "cabinet, and why nothing is known of it")
                         .arg(oneLine(incompleteLabel(incomplete[i])), oneLine(incompleteReasonText(incomplete[i]))));
    }
    const QString text = names.join(QStringLiteral(", "));
    const std::size_t all = cabinets.size() + incomplete.size();
    return all > namedCabinets
        ? CommandText::tr("%1 and %2 more", "names of cabinets and a number").arg(text).arg(all - namedCabinets)
        : text;
}

//! What is to be corrected: a wall, or a single display as a wall of one.
struct Corrected {
    DisplayWall wall;
    Model::WallCorrection solved;
    bool luminancesCompare = false;
    bool isReachKnownOfAll = false; //!< of the whole wall
    std::vector<std::size_t> notAdditive; //!< the cabinets whose white is not the sum of their primaries
};

Corrected correctedWall(const DisplayWall &wall, const DisplayGamut &target)
{
    const WallAssessment assessment = assessWall(wall, target);
    Corrected result{wall, assessment.correction, assessment.luminancesCompare, assessment.isReachKnownOfAll, {}};
    for (std::size_t i = 0; i < assessment.cabinets.size(); ++i) {
        if (!assessment.cabinets[i].isAdditive) {
            result.notAdditive.push_back(i);
        }
    }
    return result;
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
    cabinet.name = QString::fromStdString(gamut->colorGamutName());
    cabinet.red = targets.red;
    cabinet.green = targets.green;
    cabinet.blue = targets.blue;
    cabinet.white = targets.white;
    DisplayWall wall;
    wall.unit = gamut->unit;
    wall.cabinets.push_back(cabinet);
    return wall;
}

void keepOnly(std::size_t cabinet, Corrected &corrected)
{
    corrected.wall.cabinets = {corrected.wall.cabinets[cabinet]};
    corrected.wall.incomplete.clear();
    corrected.solved.corrections = {corrected.solved.corrections[cabinet]};
    const bool isNotAdditive
        = std::find(corrected.notAdditive.begin(), corrected.notAdditive.end(), cabinet) != corrected.notAdditive.end();
    corrected.notAdditive.clear();
    if (isNotAdditive) {
        corrected.notAdditive.push_back(0);
    }
}

//! What remains between the target and what cabinets show of it with their corrections.
class Remainder {
public:
    //! Returns whether there is any that can be noticed in the digits that are shown.
    bool add(const Model::DeviationValues &remaining)
    {
        constexpr double noticeableUv = 0.00005;
        constexpr double noticeableLuminance = fullDrive - 1.0;
        double uv = 0.0;
        for (const auto &color : {remaining.whiteUv, remaining.redUv, remaining.greenUv, remaining.blueUv}) {
            uv = std::max(uv, color.value_or(0.0));
        }
        const double luminance = std::fabs(remaining.luminance.value_or(0.0));
        if (uv < noticeableUv && luminance < noticeableLuminance) {
            return false;
        }
        m_uv = std::max(m_uv, uv);
        m_luminance = std::max(m_luminance, luminance);
        return true;
    }
    QString text() const
    {
        return CommandText::tr("Δu′v′ %1 and %2 of the luminance", "how much remains")
            .arg(fixedText(m_uv, chromaticityDecimals), percent(m_luminance));
    }

private:
    double m_uv = 0.0;
    double m_luminance = 0.0;
};

QStringList notesOn(const Corrected &corrected, bool isWall)
{
    QStringList notes;
    if (!corrected.luminancesCompare) {
        const QString white = reachableText(corrected.solved.target.white.Y, corrected.wall.unit);
        notes.append(isWall && corrected.isReachKnownOfAll
                ? CommandText::tr("the corrections are for a white of %1, the largest that all cabinets reach, as the "
                                  "luminance of the target cannot be compared with theirs")
                      .arg(white)
                : isWall
                ? CommandText::tr("the corrections are for a white of %1, the largest that all cabinets reach of which "
                                  "it is known, as the luminance of the target cannot be compared with theirs")
                      .arg(white)
                : CommandText::tr("the correction is for a white of %1, the largest that the display "
                                  "reaches, as the luminance of the target cannot be compared with it")
                      .arg(white));
    }
    Remainder remainder;
    std::vector<std::size_t> beyond;
    std::vector<std::size_t> without;
    for (std::size_t i = 0; i < corrected.solved.corrections.size(); ++i) {
        const Model::Correction &correction = corrected.solved.corrections[i];
        if (!correction.matrix) {
            without.push_back(i);
        } else if (remainder.add(correction.remaining)) {
            beyond.push_back(i);
        }
    }
    if (!without.empty() || !corrected.wall.incomplete.empty()) {
        notes.append(CommandText::tr("cabinets without a correction: %1")
                         .arg(namesOf(corrected.wall, without, corrected.wall.incomplete)));
    }
    if (!beyond.empty()) {
        notes.append(
            CommandText::tr("cabinets that differ from the target even so, by up to %1, as they cannot show all "
                            "of it: %2")
                .arg(remainder.text(), namesOf(corrected.wall, beyond)));
    }
    if (!corrected.notAdditive.empty()) {
        notes.append(CommandText::tr("cabinets whose measured white is not the sum of their primaries, for which the "
                                     "corrections are: %1")
                         .arg(namesOf(corrected.wall, corrected.notAdditive)));
    }
    return notes + exchangeTexts(corrected.wall);
}

Outcome<QVector<CorrectionsOutput>> tableFiles(const WallCorrections &corrections, const QString &fileName)
{
    using Failure = Outcome<QVector<CorrectionsOutput>>;
    if (corrections.cabinets.size() > 1) {
        return Failure::failure(CommandText::tr(
            "a pair of tables is for one display: choose a cabinet by --cabinet, or write csv or json"));
    }
    const CabinetCorrection &cabinet = corrections.cabinets.front();
    const auto pair = cubePair(*cabinet.matrix);
    if (!pair) {
        return Failure::failure(CommandText::tr("%1; csv and json have the matrix as it is").arg(pair.error()));
    }
    const QFileInfo file(fileName);
    const QString base = file.path() == QLatin1String(".") && !fileName.startsWith(QLatin1String("./"))
        ? file.completeBaseName()
        : file.path() + QLatin1Char('/') + file.completeBaseName();
    const QString title = cabinet.label() + QStringLiteral(": ") + corrections.target.name;
    return QVector<CorrectionsOutput>{{base + QStringLiteral("-3x3.cube"), matrixCube(*pair, title)},
        {base + QStringLiteral("-1d.cube"), gainsCube(*pair, title)}};
}

} // namespace

Outcome<OpenedFiles> withWall(const OpenedFiles &opened, const QString &fileName, MeasurementOptions options)
{
    using Failure = Outcome<OpenedFiles>;
    const auto failure = [&fileName](const Problem &problem) { return Failure::failure(problem.message(fileName)); };
    options.cabinet.clear();
    options.isWall = true;
    const auto file = readGamutFile(fileName, options);
    if (!file) {
        return failure(file.problem());
    }
    OpenedFiles result = opened;
    QVector<Problem> warnings = file.warnings();
    DisplayWall wall = file->description.wall;
    if (file->content == GamutFile::Content::Measurements) {
        const auto measured = wallFromMeasurements(file->measurements);
        if (!measured) {
            return failure(measured.problem());
        }
        wall = *measured;
        warnings += measured.warnings();
        result.hasLists = true;
        result.notes.lists.append({fileName, file->measurements.recognized});
        if (file->measurements.recognized.unit == MeasuredUnit::NotKnown) {
            result.needsChoice = true;
        }
    }
    if (wall.cabinets.empty()) {
        return failure({CommandText::tr("has no wall: that is in a measurement list with a column for the cabinet, or "
                                        "in a display description"),
            {}, 0, 0});
    }
    if (!opened.description.wall.cabinets.empty()) {
        warnings.append({CommandText::tr("takes the place of the wall that there was"), {}, 0, 0});
    }
    for (const Problem &warning : warnings) {
        result.warnings.append({fileName, warning});
    }
    result.description.wall = wall;
    result.fileNames.append(fileName);
    return result;
}

QString wallAmong(const QStringList &fileNames, MeasurementOptions options)
{
    options.cabinet.clear();
    QStringList found;
    for (const QString &fileName : fileNames) {
        if (isStandardInput(fileName) || !QFileInfo(fileName).isFile()) {
            continue;
        }
        const auto file = readGamutFile(fileName, options);
        if (!file || file->content != GamutFile::Content::Measurements) {
            continue;
        }
        const auto wall = wallFromMeasurements(file->measurements);
        if (wall && wall->cabinets.size() + wall->incomplete.size() > 1) {
            found.append(fileName);
        }
    }
    return found.size() == 1 ? found.first() : QString();
}

Outcome<DisplayDescription> withChosenTarget(const DisplayDescription &description, const QString &gamutName)
{
    using Failure = Outcome<DisplayDescription>;
    const QStringList names = gamutNames(description);
    const auto meant = meantName(names, gamutName);
    if (!meant) {
        return Failure::failure(CommandText::tr("there is no gamut called \"%1\" for the target; there are %2")
                                    .arg(oneLine(gamutName), oneLine(names.join(QStringLiteral(", ")))));
    }
    if (!canBeTarget(description.gamut(*meant)->getTargets())) {
        return Failure::failure(CommandText::tr("no display can show \"%1\"").arg(oneLine(*meant)));
    }
    return withTargetNamed(description, *meant);
}

Outcome<FittedTarget> withTargetFittedToWall(const DisplayDescription &description)
{
    using Failure = Outcome<FittedTarget>;
    const auto target = description.gamut(description.target);
    if (description.wall.cabinets.empty() || !target) {
        return Failure::failure(target ? CommandText::tr("there is no wall to fit the target to")
                                       : CommandText::tr("there is no target to fit to the wall"));
    }
    FittedTarget result{description, {}};
    auto wanted = target;
    const WallAssessment before = assessWall(description.wall, *target);
    const auto &largestWhite = before.largestWhite;
    if (target->unit == LuminanceUnit::Relative && description.wall.unit == LuminanceUnit::CandelaPerSquareMetre
        && largestWhite) {
        result.description = withLuminanceUnit(description, description.wall.unit, largestWhite->luminance);
        wanted = result.description.gamut(result.description.target);
        result.notes.append((before.isReachKnownOfAll
                ? CommandText::tr("the luminance of the target is relative; its white is taken at %1, the largest that "
                                  "all cabinets reach")
                : CommandText::tr("the luminance of the target is relative; its white is taken at %1, the largest that "
                                  "all cabinets reach of which it is known"))
                                .arg(reachableText(largestWhite->luminance, description.wall.unit)));
    }
    const WallAssessment assessment = assessWall(description.wall, *wanted);
    const auto fitted = fittedToWall(*wanted, assessment);
    if (!fitted) {
        const QString problem = fitProblem(description.wall, assessment);
        if (!problem.isEmpty()) {
            return Failure::failure(problem);
        }
        result.notes.append(CommandText::tr("the target fits the wall as it is, as far as that is known"));
        return result;
    }
    result.description = withEditedTarget(result.description, *fitted);
    const struct {
        const Model::FittedPrimary &primary;
        QString name;
    } primaries[] = {{assessment.fit.red, CommandText::tr("red")}, {assessment.fit.green, CommandText::tr("green")},
        {assessment.fit.blue, CommandText::tr("blue")}};
    QStringList parts;
    for (const auto &of : primaries) {
        if (of.primary.limit) {
            parts.append(CommandText::tr("%1 by Δu′v′ %2 (%3 is the limit)", "primary, how far, and cabinet")
                             .arg(of.name, fixedText(of.primary.moved, chromaticityDecimals),
                                 cabinetName(description.wall, *of.primary.limit)));
        }
    }
    if (!parts.isEmpty()) {
        result.notes.append(CommandText::tr("fitted to the wall, the target has moved towards its white: %1")
                                .arg(parts.join(QStringLiteral(", "))));
    }
    if (fitted->white.Y != wanted->getTargets().white.Y) {
        result.notes.append(CommandText::tr("fitted to the wall, the target has a white of %1 instead of %2")
                                .arg(assessment.luminancesCompare ? reachableText(fitted->white.Y, wanted->unit)
                                                                  : luminanceText(fitted->white.Y, wanted->unit),
                                    luminanceText(wanted->getTargets().white.Y, wanted->unit)));
    }
    return result;
}

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
            CommandText::tr("there is no target, which corrections are for: choose one by --target"));
    }
    const bool isWall = !description.wall.cabinets.empty();
    const auto wall = isWall ? std::make_optional(description.wall) : singleDisplay(description);
    if (!wall) {
        return Failure::failure(
            CommandText::tr("there is nothing to correct: no wall, and no measured or original gamut"));
    }
    Corrected corrected = correctedWall(*wall, *target);
    if (isWall && !cabinet.isEmpty()) {
        const auto found = cabinetCalled(*wall, cabinet);
        if (!found) {
            return Failure::failure(found.problem());
        }
        keepOnly(*found, corrected);
    }
    const auto made = wallCorrections(corrected.wall, corrected.solved, description.target);
    if (!made) {
        return Failure::failure(made.problem());
    }
    CorrectionsOutputs outputs;
    outputs.notes = notesOn(corrected, isWall);
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
