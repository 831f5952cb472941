// SPDX-License-Identifier: MIT
#include "editing/openedfiles.h"

#include <QCoreApplication>

namespace gamutviewer {

namespace {

struct OpenText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::OpenedFiles)
};

bool same(const Model::Target &a, const Model::Target &b)
{
    return a.Y == b.Y && a.x == b.x && a.y == b.y;
}

bool same(const Model::Targets &a, const Model::Targets &b)
{
    return same(a.red, b.red) && same(a.green, b.green) && same(a.blue, b.blue) && same(a.white, b.white);
}

//! Returns the name by which \a description has \a gamut, which is added unless it is there already.
QString addGamut(DisplayDescription &description, const DisplayGamut &gamut)
{
    const QString wanted = QString::fromStdString(gamut.colorGamutName());
    const QString base = wanted.trimmed().isEmpty() ? OpenText::tr("Gamut") : wanted;
    QString name = base;
    for (int number = 2; const auto taken = description.gamut(name); ++number) {
        if (same(taken->getTargets(), gamut.getTargets())) {
            return name;
        }
        name = QStringLiteral("%1 (%2)").arg(base).arg(number);
    }
    description.gamuts.emplace_back(Model::ColorGamut(name.toStdString(), gamut.getTargets()), gamut.unit);
    return name;
}

void completeEmpty(DisplayDescription &description, const QString &original, const QString &name)
{
    if (!description.original.isEmpty()) {
        return;
    }
    description.name = description.name.isEmpty() ? name : description.name;
    description.original = original;
    description.target = QString::fromStdString(Model::rec709().colorGamutName());
    for (const Model::ColorGamut &standard : Model::standardGamuts()) {
        description.standards.append(QString::fromStdString(standard.colorGamutName()));
    }
}

} // namespace

DisplayDescription withFile(const DisplayDescription &open, const GamutFile &file)
{
    DisplayDescription result = open;
    switch (file.content) {
    case GamutFile::Content::Description:
        return file.description;
    case GamutFile::Content::DeclaredGamut:
        result.declared = addGamut(result, file.gamut);
        completeEmpty(result, result.declared, result.declared);
        break;
    case GamutFile::Content::Measurements:
        if (const auto measured = file.measurements.gamut(file.name)) {
            result.measured = addGamut(result, *measured);
            completeEmpty(result, result.measured, file.name);
        } else {
            completeEmpty(result, QString::fromStdString(Model::rec709().colorGamutName()), file.name);
        }
        result.measurePoints.clear();
        for (const Measurement &point : file.measurements.others()) {
            if (point.color) { // black has no place on a diagram
                result.measurePoints.append({point.name, {point.color->x, point.color->y}});
            }
        }
        break;
    }
    return result;
}

Outcome<OpenedFiles> openFiles(const QStringList &fileNames)
{
    OpenedFiles opened;
    QVector<GamutFile> additions;
    for (const QString &fileName : fileNames) {
        const Outcome<GamutFile> file = readGamutFile(fileName);
        if (!file) {
            return Outcome<OpenedFiles>::failure(file.problem().message(fileName));
        }
        if (file->content != GamutFile::Content::Description) {
            additions.append(*file);
            continue;
        }
        if (!opened.descriptionFile.isEmpty()) {
            return Outcome<OpenedFiles>::failure(
                oneLine(OpenText::tr("%1: is a second display description; the first is %2")
                            .arg(fileName, opened.descriptionFile)));
        }
        opened.descriptionFile = fileName;
        opened.description = file->description;
    }
    for (const GamutFile &addition : qAsConst(additions)) {
        opened.description = withFile(opened.description, addition);
    }
    return opened;
}

} // namespace gamutviewer
