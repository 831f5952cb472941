// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>

#include "descriptionformat_p.h"
#include <gamutfiles/filebytes.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace gamutfiles {

namespace {

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

QJsonObject gamutObject(const DisplayGamut &gamut)
{
    const Model::Targets &targets = gamut.getTargets();
    QJsonObject object{{QStringLiteral("name"), nameOf(gamut)}, {QStringLiteral("red"), colorObject(targets.red)},
        {QStringLiteral("green"), colorObject(targets.green)}, {QStringLiteral("blue"), colorObject(targets.blue)},
        {QStringLiteral("white"), colorObject(targets.white)}};
    insertText(object, luminanceUnitKey(), luminanceUnitName(gamut.unit));
    return object;
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
    return QJsonDocument(object).toJson();
}

QString writeDescription(const DisplayDescription &description, const QString &fileName)
{
    return writeBytes(descriptionText(description), fileName);
}

} // namespace gamutfiles
