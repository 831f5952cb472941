// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/openedfiles.h"

#include "display/valuetexts.h"

#include <ceiechart/diagram/targetrules.h>

#include <QCoreApplication>

#include <algorithm>

namespace gamutviewer {

namespace {

struct OpenText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::OpenedFiles)
};

using Content = GamutFile::Content;

QString wantedName(const DisplayGamut &gamut)
{
    const QString wanted = nameOf(gamut);
    return wanted.trimmed().isEmpty() ? OpenText::tr("Gamut") : wanted;
}

using GamutPlaces = QHash<QString, int>; // DisplayDescription::gamutPlaces()

/*!
 * \brief The name that \a description has \a gamut by, or that is free for it.
 *
 * The same numbers, with the same black, are the same gamut in the same unit, or where one of the units is not known.
 */
QString nameFor(const DisplayDescription &description, const GamutPlaces &places, const DisplayGamut &gamut)
{
    QString name = wantedName(gamut);
    QString sameNumbers;
    for (int number = 2; const auto taken = description.gamut(name, places); ++number) {
        const bool isSame = ceiechart::sameTargets(taken->getTargets(), gamut.getTargets())
            && sameBlacks(taken->black, gamut.black) && taken->blackLuminance == gamut.blackLuminance;
        if (isSame && taken->unit == gamut.unit) {
            return name;
        }
        const bool mayBeSame = taken->unit == LuminanceUnit::NotKnown || gamut.unit == LuminanceUnit::NotKnown;
        if (isSame && mayBeSame && sameNumbers.isEmpty()) {
            sameNumbers = name;
        }
        name = QStringLiteral("%1 (%2)").arg(wantedName(gamut), QString::number(number));
    }
    return sameNumbers.isEmpty() ? name : sameNumbers;
}

//! Whether adding \a gamut tells the unit of the gamut that \a description has by \a name.
bool tellsUnit(
    const DisplayDescription &description, const GamutPlaces &places, const QString &name, const DisplayGamut &gamut)
{
    const auto there = description.gamut(name, places);
    return there && there->unit == LuminanceUnit::NotKnown && gamut.unit != LuminanceUnit::NotKnown;
}

//! Returns the name by which \a description has \a gamut, which is added unless it is there already.
QString addGamut(DisplayDescription &description, GamutPlaces &places, const DisplayGamut &gamut)
{
    const QString name = nameFor(description, places, gamut);
    if (tellsUnit(description, places, name, gamut)) {
        description.gamuts.at(std::size_t(places.value(name))).unit = gamut.unit;
    } else if (!description.gamut(name, places)) {
        places.insert(name, int(description.gamuts.size()));
        description.gamuts.push_back(gamut.renamed(name));
    }
    return name;
}

//! What \a file says that its display is called; empty when it does not.
QString displayName(const GamutFile &file)
{
    return file.content == Content::Description ? file.description.name : file.displayName;
}

//! Whether the names may be of one display: the longer one can say more, such as "calibrated".
bool mayBeSameDisplay(const QString &a, const QString &b)
{
    const QString longer = (a.size() < b.size() ? b : a).simplified().toCaseFolded();
    const QString shorter = (a.size() < b.size() ? a : b).simplified().toCaseFolded();
    return longer.startsWith(shorter)
        && (longer.size() == shorter.size() || !longer.at(shorter.size()).isLetterOrNumber());
}

//! Whether \a name may be that of the display of \a open, which may be named anew: its declared gamut keeps its own.
bool mayBeDisplayOf(const DisplayDescription &open, const QString &name)
{
    return mayBeSameDisplay(name, open.name) || (!open.declared.isEmpty() && mayBeSameDisplay(name, open.declared));
}

bool replacesPoints(const GamutFile &file, std::optional<GamutRole> role)
{
    return file.content == Content::Measurements
        && (role == GamutRole::Measured || !file.measurements.others().isEmpty());
}

} // namespace

std::optional<DisplayGamut> gamutOf(const GamutFile &file)
{
    switch (file.content) {
    case Content::DeclaredGamut:
        return file.gamut;
    case Content::Measurements:
        if (const auto gamut = file.measurements.gamut(file.name)) {
            return *gamut;
        }
        break;
    case Content::Description:
        break;
    }
    return std::nullopt;
}

std::optional<GamutRole> usualRole(const GamutFile &file)
{
    if (!gamutOf(file)) {
        return std::nullopt;
    }
    return file.content == Content::DeclaredGamut ? GamutRole::Declared : GamutRole::Measured;
}

DisplayDescription withFile(const DisplayDescription &open, const GamutFile &file, std::optional<GamutRole> role)
{
    DisplayDescription result = open;
    GamutPlaces places = open.gamutPlaces();
    if (file.content == Content::Description) {
        if (isEmpty(open)) {
            return file.description;
        }
        for (const DisplayGamut &gamut : file.description.gamuts) {
            addGamut(result, places, gamut);
        }
        return result;
    }
    if (result.name.isEmpty()) {
        result.name = displayName(file);
    }
    if (const auto gamut = gamutOf(file)) {
        const QString name = addGamut(result, places, *gamut);
        if (role) {
            result = withRole(result, name, *role, true);
        }
    }
    if (replacesPoints(file, role)) {
        result.measurePoints.clear();
        for (const Measurement &point : file.measurements.others()) {
            if (point.color) { // black has no place on a diagram
                result.measurePoints.append({point.name, {point.color->x, point.color->y}});
            }
        }
    }
    return result;
}

DisplayDescription withFile(const DisplayDescription &open, const ReadFile &added)
{
    if (!added.wall) {
        return withFile(open, added.file, added.role);
    }
    DisplayDescription result = open;
    if (result.name.isEmpty()) {
        result.name = displayName(added.file);
    }
    result.wall = *added.wall;
    return result;
}

Outcome<ReadFile> asWall(const ReadFile &file)
{
    if (file.file.content != Content::Measurements) {
        return Outcome<ReadFile>::failure(OpenText::tr("is no measurement list"));
    }
    const Outcome<DisplayWall> wall = wallFromMeasurements(file.file.measurements);
    if (!wall) {
        return Outcome<ReadFile>::failure(wall.problem());
    }
    ReadFile result = file;
    result.wall = *wall;
    result.warnings += wall.warnings();
    return result;
}

QVector<Problem> remarksOnAdding(const DisplayDescription &open, const ReadFile &added)
{
    QVector<Problem> remarks;
    const auto remark = [&remarks](const QString &text) { remarks.append({oneLine(text), QString(), 0, 0}); };
    const GamutPlaces places = open.gamutPlaces();
    const QString name = displayName(added.file);
    if (!name.isEmpty() && !open.name.isEmpty() && !mayBeDisplayOf(open, name)) {
        remark(OpenText::tr("is of the display \"%1\", not of \"%2\"").arg(name, open.name));
    }
    const auto remarkOnUnit = [&](const DisplayGamut &gamut) {
        const QString there = nameFor(open, places, gamut);
        if (tellsUnit(open, places, there, gamut)) {
            remark(OpenText::tr("tells the unit of \"%1\", which was not known: %2", "gamut and unit")
                       .arg(there, luminanceUnitText(gamut.unit)));
        }
    };
    if (added.wall) {
        if (!open.wall.cabinets.empty()) {
            const auto count = open.wall.cabinets.size() + open.wall.incomplete.size();
            remark(count == 1 ? OpenText::tr("takes the place of the wall that there was, of one cabinet")
                              : OpenText::tr("takes the place of the wall that there was, of %1 cabinets").arg(count));
        }
        return remarks;
    }
    if (added.file.content == Content::Description && !isEmpty(open)) {
        remark(OpenText::tr("adds its gamuts only, in no role"));
        for (const DisplayGamut &gamut : added.file.description.gamuts) {
            remarkOnUnit(gamut);
        }
        return remarks;
    }
    const auto gamut = gamutOf(added.file);
    if (gamut) {
        const QString here = nameFor(open, places, *gamut);
        if (here != wantedName(*gamut)) {
            remark(OpenText::tr("is called \"%1\" here, since another gamut has its name").arg(here));
        }
        remarkOnUnit(*gamut);
    }
    const DisplayDescription result = withFile(open, added.file, added.role);
    const QString before = added.role ? gamutInRole(open, *added.role) : QString();
    if (!before.isEmpty() && gamutInRole(result, *added.role) != before) {
        remark(OpenText::tr("takes the place of \"%1\" as %2", "gamut and part")
                   .arg(before, gamutRolePhrase(*added.role)));
    }
    if (!open.measurePoints.isEmpty() && replacesPoints(added.file, added.role)) {
        remark(OpenText::tr("takes the place of all measured points there were: %1").arg(open.measurePoints.size()));
    }
    return remarks;
}

Outcome<QVector<ReadFile>> readFiles(const QStringList &fileNames, const FileReader &reader)
{
    using Failure = Outcome<QVector<ReadFile>>;
    QVector<ReadFile> files;
    for (const QString &fileName : fileNames) {
        const Outcome<GamutFile> file = reader(fileName);
        if (!file) {
            return Failure::failure(file.problem().message(fileName));
        }
        const ReadFile read{fileName, *file, file.warnings(), usualRole(*file), std::nullopt};
        if (file->content != Content::Description) {
            files.append(read);
            continue;
        }
        if (!files.isEmpty() && files.first().file.content == Content::Description) {
            return Failure::failure(oneLine(OpenText::tr("%1: is a second display description; the first is %2")
                                                .arg(fileName, files.first().fileName)));
        }
        files.prepend(read);
    }
    return files;
}

bool needsChoice(const GamutFile &file)
{
    if (file.content != Content::Measurements) {
        return false;
    }
    const auto isOfGamut = [](const Measurement &measurement) {
        return measurement.part != MeasurementPart::None && measurement.part != MeasurementPart::Black;
    };
    const QVector<Measurement> &all = file.measurements.measurements;
    const auto isPrimary = [&isOfGamut](const Measurement &measurement) {
        return isOfGamut(measurement) && measurement.part != MeasurementPart::White;
    };
    // White alone is what there is of each cabinet where uniformity was measured.
    const bool hasCabinets = file.measurements.cabinets().size() > 1;
    const bool isIncomplete = !gamutOf(file)
        && (hasCabinets ? std::any_of(all.begin(), all.end(), isPrimary)
                        : std::any_of(all.begin(), all.end(), isOfGamut));
    return isIncomplete || file.measurements.recognized.unit == MeasuredUnit::NotKnown;
}

OpenedFiles openedWith(const DisplayDescription &open, const QVector<ReadFile> &files)
{
    OpenedFiles opened;
    opened.description = open;
    for (const ReadFile &file : files) {
        opened.description = withFile(opened.description, file);
        opened.fileNames.append(file.fileName);
        opened.needsChoice = opened.needsChoice || (!file.wall && needsChoice(file.file));
        opened.hasLists = opened.hasLists || file.file.content == Content::Measurements;
        for (const Problem &warning : file.warnings) {
            opened.warnings.append({file.fileName, warning});
        }
        for (const DisplayFact &fact : file.file.facts) {
            opened.notes.facts.append({file.fileName, fact});
        }
        if (file.file.content == Content::Measurements) {
            opened.notes.lists.append({file.fileName, file.file.measurements.recognized});
        }
    }
    return opened;
}

OpenedFiles openedAlone(const QVector<ReadFile> &files)
{
    OpenedFiles opened;
    for (const ReadFile &file : files) {
        const OpenedFiles next = openedWith(opened.description, {file});
        opened.warnings += next.warnings;
        opened.notes += next.notes;
        for (const Problem &remark : remarksOnAdding(opened.description, file)) {
            opened.warnings.append({file.fileName, remark});
        }
        opened.description = next.description;
        opened.fileNames += next.fileNames;
        opened.needsChoice = opened.needsChoice || next.needsChoice;
        opened.hasLists = opened.hasLists || next.hasLists;
        if (file.file.content == Content::Description) {
            opened.descriptionFile = file.fileName;
            opened.inDescriptionFile = file.file.description;
        }
    }
    return opened;
}

Outcome<OpenedFiles> openFiles(const QStringList &fileNames, const MeasurementOptions &options, const FilesRead &read)
{
    const auto files = readFiles(fileNames, [&](const QString &fileName) {
        const auto before = read.constFind(fileName);
        return before != read.constEnd() ? *before : readGamutFile(fileName, options);
    });
    if (!files) {
        return Outcome<OpenedFiles>::failure(files.problem());
    }
    return openedAlone(*files);
}

} // namespace gamutviewer
