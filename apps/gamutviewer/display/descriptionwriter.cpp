// SPDX-License-Identifier: MIT
#include "display/descriptionwriter.h"

#include "display/displaydescription.h"
#include "display/filebytes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace gamutviewer {

namespace {

QJsonObject colorObject(const Model::Target &target)
{
    return {{QStringLiteral("Y"), target.Y}, {QStringLiteral("x"), target.x}, {QStringLiteral("y"), target.y}};
}

QJsonObject gamutObject(const Model::ColorGamut &gamut)
{
    const Model::Targets &targets = gamut.getTargets();
    return {{QStringLiteral("name"), QString::fromStdString(gamut.colorGamutName())},
        {QStringLiteral("red"), colorObject(targets.red)}, {QStringLiteral("green"), colorObject(targets.green)},
        {QStringLiteral("blue"), colorObject(targets.blue)}, {QStringLiteral("white"), colorObject(targets.white)}};
}

void insertText(QJsonObject &object, const QString &key, const QString &text)
{
    if (!text.isEmpty()) {
        object.insert(key, text);
    }
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
    for (const Model::ColorGamut &gamut : description.gamuts) {
        gamuts.append(gamutObject(gamut));
    }
    QJsonObject object{{QStringLiteral("version"), 1}, {QStringLiteral("gamuts"), gamuts},
        {QStringLiteral("original"), description.original}, {QStringLiteral("target"), description.target}};
    insertText(object, QStringLiteral("name"), description.name);
    insertText(object, QStringLiteral("notes"), description.notes);
    insertText(object, QStringLiteral("declared"), description.declared);
    insertText(object, QStringLiteral("measured"), description.measured);
    if (!description.standards.isEmpty()) {
        object.insert(QStringLiteral("standards"), QJsonArray::fromStringList(description.standards));
    }
    insertPoints(object, QStringLiteral("colorTemperaturePoints"), description.colorTemperaturePoints);
    insertPoints(object, QStringLiteral("measurePoints"), description.measurePoints);
    insertPoints(object, QStringLiteral("cmyPoints"), description.cmyPoints);
    return QJsonDocument(object).toJson();
}

QString writeDescription(const DisplayDescription &description, const QString &fileName)
{
    return writeBytes(descriptionText(description), fileName);
}

} // namespace gamutviewer
