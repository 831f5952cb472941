// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/report.h"

#include "display/assessment.h"
#include "display/chromaticity.h"
#include "display/gamutfiles.h"
#include "display/reportvalues.h"
#include "display/wallreport.h"

#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/dominantwavelength.h>
#include <gamutmodel/gamutcoverage.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace gamutviewer {

namespace {

QJsonObject colorObject(const Model::Target &target, const Model::Target &white)
{
    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {target.x, target.y});
    QJsonObject object{{QStringLiteral("Y"), target.Y}, {QStringLiteral("x"), target.x},
        {QStringLiteral("y"), target.y}, {QStringLiteral("u"), uv.x}, {QStringLiteral("v"), uv.y}};
    const auto temperature = ceiechart::colorTemperature({target.x, target.y});
    object.insert(QStringLiteral("cct"), temperature ? QJsonValue(temperature->kelvin) : QJsonValue::Null);
    object.insert(QStringLiteral("duv"), temperature ? QJsonValue(temperature->duv) : QJsonValue::Null);
    const auto hue = Model::dominantWavelength({target.x, target.y}, {white.x, white.y});
    object.insert(QStringLiteral("dominantWavelength"), hue ? QJsonValue(hue->wavelength) : QJsonValue::Null);
    object.insert(QStringLiteral("purity"), hue ? QJsonValue(hue->purity) : QJsonValue::Null);
    return object;
}

QJsonObject standardObject(const Model::ColorGamut &gamut, const Model::ColorGamut &standard)
{
    QJsonObject object = perDiagram([&](Model::Diagram diagram) {
        const auto comparison = Model::gamutCoverage(gamut.getTargets(), standard.getTargets(), diagram);
        return QJsonObject{
            {QStringLiteral("coverage"), comparison.coverage}, {QStringLiteral("areaRatio"), comparison.areaRatio}};
    });
    object.insert(QStringLiteral("standard"), nameOf(standard));
    return object;
}

QJsonObject gamutObject(const DisplayGamut &gamut, const std::vector<DisplayGamut> &standards)
{
    const Model::Targets &targets = gamut.getTargets();
    QJsonArray comparisons;
    for (const Model::ColorGamut &standard : standards) {
        comparisons.append(standardObject(gamut, standard));
    }
    return {{QStringLiteral("name"), nameOf(gamut)}, {QStringLiteral("unit"), unitValue(gamut.unit)},
        {QStringLiteral("referenceWhite"),
            QJsonObject{{QStringLiteral("x"), targets.white.x}, {QStringLiteral("y"), targets.white.y}}},
        {QStringLiteral("red"), colorObject(targets.red, targets.white)},
        {QStringLiteral("green"), colorObject(targets.green, targets.white)},
        {QStringLiteral("blue"), colorObject(targets.blue, targets.white)},
        {QStringLiteral("white"), colorObject(targets.white, targets.white)},
        {QStringLiteral("area"),
            perDiagram([&targets](Model::Diagram diagram) { return Model::gamutArea(targets, diagram); })},
        {QStringLiteral("standards"), comparisons}};
}

QJsonValue validValue(Judgement judgement)
{
    return judgement == Judgement::NotKnown ? QJsonValue(QJsonValue::Null) : QJsonValue(judgement == Judgement::Pass);
}

QJsonObject validityObject(const Model::Targets &target, const Model::Targets &original, const Assessment &assessment)
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
    return {{QStringLiteral("valid"), validValue(assessment.judgement())}, {QStringLiteral("outside"), names}};
}

QString subjectName(AssessmentLine::Subject subject)
{
    switch (subject) {
    case AssessmentLine::Subject::Target:
        return QStringLiteral("target");
    case AssessmentLine::Subject::Display:
        return QStringLiteral("display");
    case AssessmentLine::Subject::Gamut:
        return QStringLiteral("gamut");
    case AssessmentLine::Subject::Luminance:
        return QStringLiteral("luminance");
    case AssessmentLine::Subject::Wall:
        return QStringLiteral("wall");
    case AssessmentLine::Subject::Tolerance:
        break;
    }
    return QStringLiteral("tolerance");
}

QString displayPart(bool isMeasured)
{
    return isMeasured ? QStringLiteral("measured") : QStringLiteral("original");
}

QJsonValue againstValue(const Assessment &assessment)
{
    if (assessment.displays.empty()) {
        return QJsonValue::Null;
    }
    return assessment.displays.size() > 1 ? QStringLiteral("both")
                                          : displayPart(assessment.displays.front().display.isMeasured);
}

QJsonObject verdictObject(const Assessment &assessment)
{
    QJsonArray lines;
    for (const AssessmentLine &line : assessment.lines) {
        lines.append(QJsonObject{{QStringLiteral("subject"), subjectName(line.subject)},
            {QStringLiteral("status"), judgementName(line.judgement)},
            {QStringLiteral("against"), line.isOfMeasured ? QJsonValue(displayPart(*line.isOfMeasured)) : QJsonValue()},
            {QStringLiteral("color"), line.vertex ? QJsonValue(colorName(*line.vertex)) : QJsonValue::Null},
            {QStringLiteral("text"), line.text}});
    }
    return {{QStringLiteral("status"), judgementName(assessment.judgement())},
        {QStringLiteral("against"), againstValue(assessment)}, {QStringLiteral("text"), assessment.headline()},
        {QStringLiteral("lines"), lines}};
}

//! How a gamut of the display is driven for the target. What is not known is null.
QJsonObject driveObject(const DriveAssessment &assessment)
{
    QJsonObject object{{QStringLiteral("against"), displayPart(assessment.display.isMeasured)},
        {QStringLiteral("unit"), unitValue(assessment.display.gamut.unit)},
        {QStringLiteral("comparable"), assessment.luminancesCompare}, {QStringLiteral("headroom"), QJsonValue::Null},
        {QStringLiteral("largestWhite"), QJsonValue::Null}};
    if (const auto &largest = assessment.largestWhite) {
        object.insert(QStringLiteral("largestWhite"),
            QJsonObject{
                {QStringLiteral("Y"), largest->luminance}, {QStringLiteral("fullDrive"), primaryName(largest->limit)}});
    }
    const auto drives = [](const Model::Drive &drive) {
        return QJsonObject{{QStringLiteral("red"), drive.red}, {QStringLiteral("green"), drive.green},
            {QStringLiteral("blue"), drive.blue}};
    };
    const auto &drive = assessment.drive;
    object.insert(QStringLiteral("red"), drive ? QJsonValue(drives(drive->red)) : QJsonValue::Null);
    object.insert(QStringLiteral("green"), drive ? QJsonValue(drives(drive->green)) : QJsonValue::Null);
    object.insert(QStringLiteral("blue"), drive ? QJsonValue(drives(drive->blue)) : QJsonValue::Null);
    object.insert(QStringLiteral("white"), drive ? QJsonValue(drives(drive->white)) : QJsonValue::Null);
    if (drive && drive->headroom) {
        object.insert(QStringLiteral("headroom"), *drive->headroom);
    }
    return object;
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

QJsonArray factsArray(const QVector<FileFact> &facts)
{
    QJsonArray array;
    for (const FileFact &of : facts) {
        array.append(QJsonObject{{QStringLiteral("file"), of.fileName}, {QStringLiteral("fact"), of.fact.name},
            {QStringLiteral("value"), of.fact.value}});
    }
    return array;
}

QJsonValue measuredUnitValue(MeasuredUnit unit)
{
    switch (unit) {
    case MeasuredUnit::CandelaPerSquareMetre:
        return unitValue(LuminanceUnit::CandelaPerSquareMetre);
    case MeasuredUnit::FootLambert:
        return QStringLiteral("fL");
    case MeasuredUnit::Relative:
        return unitValue(LuminanceUnit::Relative);
    case MeasuredUnit::NotStated:
    case MeasuredUnit::NotKnown:
        break;
    }
    return QJsonValue::Null;
}

QJsonObject listObject(const FileRecognition &list)
{
    const MeasurementRecognition &recognized = list.recognized;
    QJsonArray columns;
    for (const RecognizedColumn &column : recognized.columns) {
        columns.append(QJsonObject{{QStringLiteral("column"), column.column}, {QStringLiteral("part"), column.part},
            {QStringLiteral("header"), column.header.isEmpty() ? QJsonValue() : QJsonValue(column.header)}});
    }
    QJsonArray colors;
    for (const RecognizedPart &part : recognized.parts) {
        colors.append(QJsonObject{{QStringLiteral("line"), part.line}, {QStringLiteral("name"), part.name},
            {QStringLiteral("color"), measurementPartName(part.part)}});
    }
    return {{QStringLiteral("file"), list.fileName}, {QStringLiteral("separator"), QString(recognized.separator)},
        {QStringLiteral("decimalSign"),
            recognized.decimalSign ? QJsonValue(QString(*recognized.decimalSign)) : QJsonValue()},
        {QStringLiteral("unit"), measuredUnitValue(recognized.unit)}, {QStringLiteral("columns"), columns},
        {QStringLiteral("colors"), colors},
        {QStringLiteral("text"), QJsonArray::fromStringList(recognized.text().split(QLatin1Char('\n')))}};
}

QJsonArray listsArray(const QVector<FileRecognition> &lists)
{
    QJsonArray array;
    for (const FileRecognition &list : lists) {
        array.append(listObject(list));
    }
    return array;
}

} // namespace

QJsonObject report(
    const DisplayDescription &description, const std::optional<Tolerances> &tolerances, const ReportNotes &notes)
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
    const Assessment assessment = assess(description, tolerances, notes.needsChoice);
    const auto original = description.gamut(description.original);
    const auto target = description.gamut(description.target);
    if (original && target) {
        object.insert(
            QStringLiteral("validity"), validityObject(target->getTargets(), original->getTargets(), assessment));
        object.insert(QStringLiteral("givenUp"), unusedObject(target->getTargets(), original->getTargets()));
    }
    object.insert(QStringLiteral("verdict"), verdictObject(assessment));
    if (!assessment.displays.empty() && target) {
        object.insert(QStringLiteral("drive"), driveObject(assessment.displays.front()));
    }
    if (assessment.displays.size() > 1 && target) {
        object.insert(QStringLiteral("measuredDrive"), driveObject(assessment.displays.at(1)));
    }
    if (!description.wall.cabinets.empty()) {
        object.insert(QStringLiteral("wall"), wallReport(description.wall, assessment.wall.get(), notes.fit));
    }
    if (tolerances) {
        object.insert(QStringLiteral("tolerances"),
            QJsonObject{{QStringLiteral("name"), tolerances->name}, {QStringLiteral("source"), tolerances->source}});
    }
    object.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(notes.warnings));
    object.insert(QStringLiteral("remarks"), QJsonArray::fromStringList(notes.remarks));
    object.insert(QStringLiteral("facts"), factsArray(notes.facts));
    object.insert(QStringLiteral("lists"), listsArray(notes.lists));
    return object;
}

QByteArray reportText(
    const DisplayDescription &description, const std::optional<Tolerances> &tolerances, const ReportNotes &notes)
{
    return QJsonDocument(report(description, tolerances, notes)).toJson();
}

} // namespace gamutviewer
