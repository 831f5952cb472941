// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallreport.h"

#include "display/reportvalues.h"
#include "display/wallassessment.h"

#include <QJsonArray>

namespace gamutviewer {

namespace {

QJsonValue numberOrNull(const std::optional<double> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue cabinetOrNull(const DisplayWall &wall, const std::optional<std::size_t> &cabinet)
{
    return cabinet ? QJsonValue(wall.cabinets[*cabinet].label()) : QJsonValue(QJsonValue::Null);
}

QJsonObject pointObject(const Model::DiagramPoint &xy)
{
    return {{QStringLiteral("x"), xy.x}, {QStringLiteral("y"), xy.y}};
}

QString shapeName(Model::CommonShape shape)
{
    switch (shape) {
    case Model::CommonShape::Empty:
        return QStringLiteral("empty");
    case Model::CommonShape::Point:
        return QStringLiteral("point");
    case Model::CommonShape::Line:
        return QStringLiteral("line");
    case Model::CommonShape::Area:
        return QStringLiteral("area");
    case Model::CommonShape::NotKnown:
        break;
    }
    return QStringLiteral("not known");
}

//! \a without are those of \a wall that are not in \a common.
QJsonObject commonObject(
    const DisplayWall &wall, const Model::CommonGamut &common, const std::vector<std::size_t> &without)
{
    QJsonArray others;
    for (const std::size_t cabinet : without) {
        others.append(wall.cabinets[cabinet].label());
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        others.append(incompleteLabel(cabinet));
    }
    QJsonArray corners;
    for (const Model::DiagramPoint &corner : common.corners) {
        corners.append(pointObject(corner));
    }
    QJsonArray excluding;
    for (const std::size_t cabinet : common.excluding) {
        excluding.append(wall.cabinets[cabinet].label());
    }
    return {{QStringLiteral("shape"), shapeName(common.shape)}, {QStringLiteral("corners"), corners},
        {QStringLiteral("area"),
            perDiagram([&common](Model::Diagram diagram) { return Model::commonGamutArea(common, diagram); })},
        {QStringLiteral("excluding"), excluding}, {QStringLiteral("without"), others}};
}

QJsonValue fitValue(const DisplayWall &wall, const Model::GamutFit &fit)
{
    if (fit.fault != Model::FitFault::None) {
        return QJsonValue::Null;
    }
    QJsonObject object{
        {QStringLiteral("coverage"),
            QJsonObject{{QStringLiteral("xy"), fit.costXy.coverage}, {QStringLiteral("uv"), fit.costUv.coverage}}},
        {QStringLiteral("areaRatio"),
            QJsonObject{{QStringLiteral("xy"), fit.costXy.areaRatio}, {QStringLiteral("uv"), fit.costUv.areaRatio}}}};
    const auto insert = [&](const QString &key, const Model::Target &color, const Model::FittedPrimary &primary) {
        QJsonObject entry = pointObject({color.x, color.y});
        entry.insert(QStringLiteral("moved"), primary.moved);
        entry.insert(QStringLiteral("limit"), cabinetOrNull(wall, primary.limit));
        object.insert(key, entry);
    };
    insert(QStringLiteral("red"), fit.target.red, fit.red);
    insert(QStringLiteral("green"), fit.target.green, fit.green);
    insert(QStringLiteral("blue"), fit.target.blue, fit.blue);
    return object;
}

QJsonObject uniformityObject(const DisplayWall &wall, const Model::Uniformity &uniformity)
{
    const auto pair = [&wall](const std::optional<Model::CabinetPair> &of) {
        return of ? QJsonValue(
                   QJsonObject{{QStringLiteral("cabinets"),
                                   QJsonArray{wall.cabinets[of->first].label(), wall.cabinets[of->second].label()}},
                       {QStringLiteral("difference"), of->difference}})
                  : QJsonValue(QJsonValue::Null);
    };
    return {{QStringLiteral("uv"), pair(uniformity.chromaticity)},
        {QStringLiteral("luminance"), pair(uniformity.luminance)},
        {QStringLiteral("neighborUv"), pair(uniformity.neighborChromaticity)},
        {QStringLiteral("neighborLuminance"), pair(uniformity.neighborLuminance)}};
}

QJsonValue matrixValue(const std::optional<Model::CorrectionMatrix> &matrix)
{
    if (!matrix) {
        return QJsonValue::Null;
    }
    QJsonArray rows;
    for (const auto &row : matrix->rows) {
        rows.append(QJsonArray{row[0], row[1], row[2]});
    }
    return rows;
}

QJsonObject offByBlackObject(const std::array<double, 4> &offByBlack)
{
    QJsonObject object;
    for (const ceiechart::GamutVertex vertex : ceiechart::allGamutVertices) {
        const double distance = offByBlack[std::size_t(vertex)];
        if (distance > 0.0) {
            // What is infinite is not known, and null in a file.
            object.insert(colorName(vertex), distance);
        }
    }
    return object;
}

void insertAssessment(QJsonObject &object, const DisplayWall &wall, const CabinetAssessment &assessment)
{
    const auto neighbor = [&wall](const std::optional<NeighborDifference> &of) {
        return of ? QJsonValue(QJsonObject{
                   {QStringLiteral("cabinet"), wall.cabinets[of->cabinet].label()}, {QStringLiteral("uv"), of->uv}})
                  : QJsonValue(QJsonValue::Null);
    };
    object.insert(QStringLiteral("status"), judgementName(assessment.judgement));
    object.insert(QStringLiteral("gamut"), judgementName(assessment.gamut));
    object.insert(QStringLiteral("luminance"), judgementName(assessment.luminance));
    object.insert(QStringLiteral("limit"),
        assessment.limit ? QJsonValue(colorName(*assessment.limit)) : QJsonValue(QJsonValue::Null));
    object.insert(QStringLiteral("offByBlack"), offByBlackObject(assessment.offByBlack));
    object.insert(QStringLiteral("offByPossibleBlack"), offByBlackObject(assessment.offByPossibleBlack));
    object.insert(QStringLiteral("largestWhite"), numberOrNull(assessment.largestWhite));
    object.insert(QStringLiteral("leastWhite"), numberOrNull(assessment.leastWhite));
    object.insert(QStringLiteral("headroom"), numberOrNull(assessment.headroom));
    object.insert(QStringLiteral("uvBefore"), numberOrNull(assessment.uvBefore));
    object.insert(QStringLiteral("uvAfter"), numberOrNull(assessment.uvAfter));
    object.insert(QStringLiteral("neighborBefore"), neighbor(assessment.neighborBefore));
    object.insert(QStringLiteral("neighborAfter"), neighbor(assessment.neighborAfter));
}

QJsonValue placeValue(const std::optional<int> &place)
{
    return place ? QJsonValue(*place) : QJsonValue(QJsonValue::Null);
}

QJsonObject incompleteObject(const IncompleteCabinet &cabinet)
{
    const auto &position = cabinet.position;
    return {{QStringLiteral("cabinet"), incompleteLabel(cabinet)},
        {QStringLiteral("row"), placeValue(position ? std::make_optional(position->row) : std::nullopt)},
        {QStringLiteral("column"), placeValue(position ? std::make_optional(position->column) : std::nullopt)},
        {QStringLiteral("reason"), cabinet.reason}};
}

QJsonObject cabinetObject(const WallCabinet &cabinet)
{
    return {{QStringLiteral("cabinet"), cabinet.label()}, {QStringLiteral("row"), placeValue(cabinet.row)},
        {QStringLiteral("column"), placeValue(cabinet.column)}, {QStringLiteral("leftOut"), cabinet.isLeftOut}};
}

QJsonValue largestWhiteValue(const DisplayWall &wall, const WallAssessment &assessment)
{
    const auto &white = assessment.largestWhite;
    if (!white) {
        return QJsonValue::Null;
    }
    // That of a cabinet whose primaries do not add up was measured at full drive of all.
    const bool isSum = assessment.cabinets[white->cabinet].isAdditive;
    return QJsonObject{{QStringLiteral("Y"), white->luminance},
        {QStringLiteral("cabinet"), wall.cabinets[white->cabinet].label()},
        {QStringLiteral("fullDrive"), isSum ? QJsonValue(primaryName(white->limit)) : QJsonValue()}};
}

} // namespace

QJsonObject wallReport(
    const DisplayWall &wall, const WallAssessment *assessment, const std::optional<Model::GamutFit> &done)
{
    QJsonArray cabinets;
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        QJsonObject cabinet = cabinetObject(wall.cabinets[i]);
        if (assessment) {
            insertAssessment(cabinet, wall, assessment->cabinets[i]);
            // Without a measured white there is nothing to compare the sum with.
            cabinet.insert(QStringLiteral("additive"),
                wall.cabinets[i].white ? QJsonValue(assessment->cabinets[i].isAdditive) : QJsonValue());
            cabinet.insert(QStringLiteral("matrix"), matrixValue(assessment->correction.corrections[i].matrix));
        }
        cabinets.append(cabinet);
    }
    QJsonArray incomplete;
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        incomplete.append(incompleteObject(cabinet));
    }
    QJsonObject object{{QStringLiteral("unit"), unitValue(wall.unit)}, {QStringLiteral("cabinets"), cabinets},
        {QStringLiteral("incomplete"), incomplete}};
    if (!assessment) {
        return object;
    }
    QJsonArray lines;
    for (const WallLine &line : assessment->lines) {
        lines.append(
            QJsonObject{{QStringLiteral("status"),
                            line.judgement ? QJsonValue(judgementName(*line.judgement)) : QJsonValue(QJsonValue::Null)},
                {QStringLiteral("warning"), line.isWarning},
                {QStringLiteral("cabinet"), cabinetOrNull(wall, line.cabinet)}, {QStringLiteral("text"), line.text}});
    }
    object.insert(QStringLiteral("status"), judgementName(assessment->judgement));
    object.insert(QStringLiteral("text"), assessment->headline);
    object.insert(QStringLiteral("lines"), lines);
    object.insert(QStringLiteral("comparable"), assessment->luminancesCompare);
    object.insert(QStringLiteral("largestWhite"), largestWhiteValue(wall, *assessment));
    const bool hasCorrections = assessment->correction.fault == Model::WallFault::None;
    object.insert(QStringLiteral("correctedWhite"),
        hasCorrections ? QJsonValue(assessment->correction.target.white.Y) : QJsonValue(QJsonValue::Null));
    object.insert(QStringLiteral("commonGamut"), commonObject(wall, assessment->common, assessment->notInCommon));
    object.insert(QStringLiteral("fit"), fitValue(wall, assessment->fit));
    if (done) {
        object.insert(QStringLiteral("fitted"), fitValue(wall, *done));
    }
    object.insert(QStringLiteral("uniformity"),
        QJsonObject{{QStringLiteral("before"), uniformityObject(wall, assessment->before)},
            {QStringLiteral("after"), uniformityObject(wall, assessment->after)}});
    return object;
}

} // namespace gamutviewer
