// SPDX-License-Identifier: MIT
#include "display/report.h"

#include "display/gamutfiles.h"
#include "display/valuetexts.h"

#include <gamutmodel/gamutcoverage.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace gamutviewer {

namespace {

constexpr Model::Diagram diagrams[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976};

QString diagramName(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? QStringLiteral("xy") : QStringLiteral("uv");
}

QJsonObject colorObject(const Model::Target &target)
{
    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {target.x, target.y});
    QJsonObject object{{QStringLiteral("Y"), target.Y}, {QStringLiteral("x"), target.x},
        {QStringLiteral("y"), target.y}, {QStringLiteral("u"), uv.x}, {QStringLiteral("v"), uv.y}};
    const auto temperature = ceiechart::colorTemperature({target.x, target.y});
    object.insert(QStringLiteral("cct"), temperature ? QJsonValue(temperature->kelvin) : QJsonValue::Null);
    object.insert(QStringLiteral("duv"), temperature ? QJsonValue(temperature->duv) : QJsonValue::Null);
    return object;
}

//! One entry for each diagram.
template <typename Value>
QJsonObject perDiagram(Value value)
{
    QJsonObject object;
    for (const Model::Diagram diagram : diagrams) {
        object.insert(diagramName(diagram), value(diagram));
    }
    return object;
}

QJsonObject standardObject(const Model::ColorGamut &gamut, const Model::ColorGamut &standard)
{
    QJsonObject object = perDiagram([&](Model::Diagram diagram) {
        const auto comparison = Model::gamutCoverage(gamut.getTargets(), standard.getTargets(), diagram);
        return QJsonObject{
            {QStringLiteral("coverage"), comparison.coverage}, {QStringLiteral("areaRatio"), comparison.areaRatio}};
    });
    object.insert(QStringLiteral("standard"), QString::fromStdString(standard.colorGamutName()));
    return object;
}

QJsonObject gamutObject(const Model::ColorGamut &gamut, const std::vector<DisplayGamut> &standards)
{
    const Model::Targets &targets = gamut.getTargets();
    QJsonArray comparisons;
    for (const Model::ColorGamut &standard : standards) {
        comparisons.append(standardObject(gamut, standard));
    }
    return {{QStringLiteral("name"), QString::fromStdString(gamut.colorGamutName())},
        {QStringLiteral("red"), colorObject(targets.red)}, {QStringLiteral("green"), colorObject(targets.green)},
        {QStringLiteral("blue"), colorObject(targets.blue)}, {QStringLiteral("white"), colorObject(targets.white)},
        {QStringLiteral("area"),
            perDiagram([&targets](Model::Diagram diagram) { return Model::gamutArea(targets, diagram); })},
        {QStringLiteral("standards"), comparisons}};
}

QJsonObject validityObject(const Model::Targets &target, const Model::Targets &original)
{
    const Model::PrimariesOutside outside = Model::primariesOutside(target, original);
    QJsonArray names;
    const auto name = [&names](bool isOutside, const QString &primary) {
        if (isOutside) {
            names.append(primary);
        }
    };
    name(outside.red, QStringLiteral("red"));
    name(outside.green, QStringLiteral("green"));
    name(outside.blue, QStringLiteral("blue"));
    return {{QStringLiteral("valid"), !outside.any()}, {QStringLiteral("outside"), names}};
}

//! What of the original the target does not use.
QJsonObject unusedObject(const Model::Targets &target, const Model::Targets &original)
{
    return perDiagram([&](Model::Diagram diagram) {
        const auto comparison = Model::gamutCoverage(target, original, diagram);
        return QJsonObject{{QStringLiteral("area"), comparison.standardArea - comparison.commonArea},
            {QStringLiteral("share"), comparison.standardArea > 0.0 ? 1.0 - comparison.coverage : 0.0}};
    });
}

} // namespace

QJsonObject report(const DisplayDescription &description)
{
    const std::vector<DisplayGamut> comparedWith = description.allStandards();
    QJsonObject object{{QStringLiteral("version"), 1}, {QStringLiteral("name"), description.name}};
    const auto insertPart = [&](const QString &part, const QString &name) {
        if (const auto gamut = description.gamut(name)) {
            object.insert(part, gamutObject(*gamut, comparedWith));
        }
    };
    insertPart(QStringLiteral("declared"), description.declared);
    insertPart(QStringLiteral("original"), description.original);
    insertPart(QStringLiteral("measured"), description.measured);
    insertPart(QStringLiteral("target"), description.target);
    const auto original = description.gamut(description.original);
    const auto target = description.gamut(description.target);
    if (original && target) {
        object.insert(QStringLiteral("validity"), validityObject(target->getTargets(), original->getTargets()));
        object.insert(QStringLiteral("givenUp"), unusedObject(target->getTargets(), original->getTargets()));
    }
    return object;
}

QByteArray reportText(const DisplayDescription &description)
{
    return QJsonDocument(report(description)).toJson();
}

} // namespace gamutviewer
