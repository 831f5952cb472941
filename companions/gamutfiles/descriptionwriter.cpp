// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>

#include "descriptionformat_p.h"
#include <gamutfiles/filebytes.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace gamutfiles {

namespace {

struct WriterText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::DescriptionWriter)
};

QJsonObject colorObject(const Model::Target &target)
{
    return {{QStringLiteral("Y"), target.Y}, {QStringLiteral("x"), target.x}, {QStringLiteral("y"), target.y}};
}

void insertText(QJsonObject &object, const QString &key, const QString &text)
{
    if (!text.isEmpty()) {
        object.insert(key, text);
    }
}

//! Where there is no light there is no chromaticity, and where there is little it may not be known.
void insertBlack(QJsonObject &object, const std::optional<Model::Target> &black, const std::optional<double> &luminance)
{
    const QString key = QStringLiteral("black");
    const bool hasNoLight = black && black->Y == 0.0 && black->x == 0.0 && black->y == 0.0;
    if (black && !hasNoLight) {
        object.insert(key, colorObject(*black));
    } else if (black || luminance) {
        object.insert(key, QJsonObject{{QStringLiteral("Y"), black ? black->Y : *luminance}});
    }
}

QJsonObject gamutObject(const DisplayGamut &gamut)
{
    const Model::Targets &targets = gamut.getTargets();
    QJsonObject object{{QStringLiteral("name"), nameOf(gamut)}, {QStringLiteral("red"), colorObject(targets.red)},
        {QStringLiteral("green"), colorObject(targets.green)}, {QStringLiteral("blue"), colorObject(targets.blue)},
        {QStringLiteral("white"), colorObject(targets.white)}};
    insertBlack(object, gamut.black, gamut.blackLuminance);
    insertText(object, luminanceUnitKey(), luminanceUnitName(gamut.unit));
    return object;
}

QJsonObject cabinetObject(const WallCabinet &cabinet)
{
    QJsonObject object{{QStringLiteral("red"), colorObject(cabinet.red)},
        {QStringLiteral("green"), colorObject(cabinet.green)}, {QStringLiteral("blue"), colorObject(cabinet.blue)}};
    insertText(object, QStringLiteral("name"), cabinet.name);
    if (cabinet.row && cabinet.column) {
        object.insert(QStringLiteral("row"), *cabinet.row);
        object.insert(QStringLiteral("column"), *cabinet.column);
    }
    if (cabinet.white) {
        object.insert(QStringLiteral("white"), colorObject(*cabinet.white));
    }
    insertBlack(object, cabinet.black, cabinet.blackLuminance);
    if (cabinet.isLeftOut) {
        object.insert(QStringLiteral("leftOut"), true);
    }
    return object;
}

QJsonObject incompleteObject(const IncompleteCabinet &cabinet)
{
    QJsonObject object{{QStringLiteral("reason"), cabinet.reason}};
    insertText(object, QStringLiteral("name"), cabinet.name);
    if (cabinet.position) {
        object.insert(QStringLiteral("row"), cabinet.position->row);
        object.insert(QStringLiteral("column"), cabinet.position->column);
    }
    return object;
}

void insertWall(QJsonObject &object, const DisplayWall &wall)
{
    if (wall.cabinets.empty()) {
        return;
    }
    QJsonArray cabinets;
    for (const WallCabinet &cabinet : wall.cabinets) {
        cabinets.append(cabinetObject(cabinet));
    }
    QJsonObject entry{{QStringLiteral("cabinets"), cabinets}};
    QJsonArray incomplete;
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        incomplete.append(incompleteObject(cabinet));
    }
    if (!incomplete.isEmpty()) {
        entry.insert(QStringLiteral("incomplete"), incomplete);
    }
    insertText(entry, luminanceUnitKey(), luminanceUnitName(wall.unit));
    object.insert(QStringLiteral("wall"), entry);
}

void insertPoints(QJsonObject &object, const QString &key, const QVector<NamedPoint> &points)
{
    QJsonArray array;
    for (const NamedPoint &point : points) {
        QJsonObject entry{{QStringLiteral("x"), point.xy.x()}, {QStringLiteral("y"), point.xy.y()}};
        insertText(entry, QStringLiteral("name"), point.name);
        array.append(entry);
    }
    if (!array.isEmpty()) {
        object.insert(key, array);
    }
}

} // namespace

QByteArray descriptionText(const DisplayDescription &description)
{
    QJsonArray gamuts;
    for (const DisplayGamut &gamut : description.gamuts) {
        gamuts.append(gamutObject(gamut));
    }
    QJsonObject object{{QStringLiteral("version"), descriptionVersion}, {QStringLiteral("gamuts"), gamuts}};
    insertText(object, QStringLiteral("name"), description.name);
    insertText(object, QStringLiteral("notes"), description.notes);
    insertText(object, QStringLiteral("original"), description.original);
    insertText(object, QStringLiteral("declared"), description.declared);
    insertText(object, QStringLiteral("measured"), description.measured);
    insertText(object, QStringLiteral("target"), description.target);
    if (!description.standards.isEmpty()) {
        object.insert(QStringLiteral("standards"), QJsonArray::fromStringList(description.standards));
    }
    insertPoints(object, QStringLiteral("colorTemperaturePoints"), description.colorTemperaturePoints);
    insertPoints(object, QStringLiteral("measurePoints"), description.measurePoints);
    insertPoints(object, QStringLiteral("cmyPoints"), description.cmyPoints);
    insertWall(object, description.wall);
    const QJsonDocument document(object);
    const QByteArray indented = document.toJson();
    return indented.size() <= maximumDescriptionBytes ? indented : document.toJson(QJsonDocument::Compact);
}

QString writeDescription(const DisplayDescription &description, const QString &fileName)
{
    if (description.gamuts.size() > std::size_t(maximumDescriptionGamuts)) {
        return WriterText::tr("has more than %1 gamuts, and could not be read again").arg(maximumDescriptionGamuts);
    }
    const QByteArray text = descriptionText(description);
    if (text.size() > maximumDescriptionBytes) {
        return WriterText::tr("would be larger than %1 KiB, and could not be read again")
            .arg(maximumDescriptionBytes / 1024);
    }
    return writeBytes(text, fileName);
}

} // namespace gamutfiles
