// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/wallcommand.h"

#include "display/assessment.h"
#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/targetedits.h"

#include <gamutfiles/filebytes.h>
#include <gamutmodel/publishedgamuts.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

struct CommandText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallCommand)
};

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
        names.append(nameOf(gamut));
    }
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        names.append(nameOf(published.gamut));
    }
    names.removeDuplicates();
    return names;
}

//! It can be long, and takes time to read for nothing.
bool beginsAsDescription(const QString &fileName)
{
    constexpr int mostSpace = 1024;
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && file.peek(mostSpace).trimmed().startsWith('{');
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

QString wallAmong(const QStringList &fileNames, const MeasurementOptions &options, FilesRead *read)
{
    MeasurementOptions ofAll = options;
    ofAll.cabinet.clear();
    QStringList found;
    for (const QString &fileName : fileNames) {
        if (isStandardInput(fileName) || !QFileInfo(fileName).isFile() || beginsAsDescription(fileName)) {
            continue;
        }
        const auto file = readGamutFile(fileName, ofAll);
        if (read && options.cabinet.isEmpty()) {
            read->insert(fileName, file);
        }
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
    const bool hasLuminance = target->getTargets().white.Y > 0.0;
    const bool takesLargest = target->unit == LuminanceUnit::Relative
        || (target->unit == LuminanceUnit::CandelaPerSquareMetre && !hasLuminance);
    if (takesLargest && description.wall.unit == LuminanceUnit::CandelaPerSquareMetre && largestWhite) {
        const double luminance = roundedDown(largestWhite->luminance);
        // Luminances of 0 cannot be scaled: those that mix to the white are what the corrections are for.
        const auto mixed = hasLuminance
            ? std::nullopt
            : ceiechart::withLuminance(before.correction.target, ceiechart::GamutVertex::White, luminance, true);
        result.description = mixed ? withEditedTarget(description, *mixed, description.wall.unit)
                                   : withLuminanceUnit(description, description.wall.unit, luminance);
        wanted = result.description.gamut(result.description.target);
        const QString why = hasLuminance ? CommandText::tr("the luminance of the target is relative")
                                         : CommandText::tr("the white of the target has no luminance");
        result.notes.append((before.isReachKnownOfAll
                ? CommandText::tr("%1; its white is taken at %2, the largest that all cabinets reach")
                : CommandText::tr("%1; its white is taken at %2, the largest that all cabinets reach of which it is "
                                  "known"))
                                .arg(why, reachableText(largestWhite->luminance, description.wall.unit)));
    }
    const WallAssessment assessment = assessWall(description.wall, *wanted);
    result.fit = assessment.fit;
    const auto fitted = fittedToWall(*wanted, assessment);
    if (!fitted) {
        const QString problem = fitProblem(description.wall, assessment);
        if (!problem.isEmpty()) {
            return Failure::failure(problem);
        }
        result.notes.append(CommandText::tr("the target fits the wall as it is, as far as that is known"));
        return result;
    }
    if (!mixtureText(*wanted, assessment.correction.target).isEmpty()) {
        result.notes.append(
            CommandText::tr("the luminances of the target's primaries did not mix to its white, and do now"));
    }
    result.description = withEditedTarget(result.description, *fitted);
    const struct {
        const Model::FittedPrimary &primary;
        QString name;
    } primaries[] = {{assessment.fit.red, CommandText::tr("red")}, {assessment.fit.green, CommandText::tr("green")},
        {assessment.fit.blue, CommandText::tr("blue")}};
    const bool isOfAll = isCommonOfAll(description.wall, assessment);
    QStringList parts;
    for (const auto &of : primaries) {
        if (of.primary.limit) {
            parts.append(
                CommandText::tr("%1 by Δu′v′ %2 (%3 is the limit)", "primary, how far, and cabinet")
                    .arg(of.name, distanceText(of.primary.moved), cabinetName(description.wall, *of.primary.limit)));
        }
    }
    if (!parts.isEmpty()) {
        result.notes.append(
            (isOfAll ? CommandText::tr("fitted to the wall, the target has moved towards its white: %1")
                     : CommandText::tr("fitted to the cabinets of which it is known, the target has moved towards its "
                                       "white: %1"))
                .arg(parts.join(QStringLiteral(", "))));
        result.notes.append(
            CommandText::tr("the fitted target covers %1 of the area of the wished one in x, y and %2 in u′, v′")
                .arg(percent(result.fit.costXy.coverage), percent(result.fit.costUv.coverage)));
    }
    if (fitted->white.Y != wanted->getTargets().white.Y) {
        result.notes.append((isOfAll
                ? CommandText::tr("fitted to the wall, the target has a white of %1 instead of %2")
                : CommandText::tr("fitted to the cabinets of which it is known, the target has a white of %1 instead "
                                  "of %2"))
                                .arg(assessment.luminancesCompare ? reachableText(fitted->white.Y, wanted->unit)
                                                                  : luminanceText(fitted->white.Y, wanted->unit),
                                    luminanceText(wanted->getTargets().white.Y, wanted->unit)));
    }
    return result;
}

} // namespace gamutviewer
