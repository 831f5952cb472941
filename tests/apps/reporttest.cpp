// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/report.h"
#include <gamutfiles/displaydescription.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;

class ReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void colors();
    void colorTemperatureOfThePrimaries();
    void coverage();
    void areas();
    void ownStandardsComeFirst();
    void validity_data();
    void validity();
    void givenUp();
    void units();
    void dominantWavelengths();
    void verdict();
    void drive();
    void driveThatIsNotKnown();
    void notes();
    void lists();
    void emptyDescription();
    void textIsTheReport();
    void documentedKeys();
};

namespace {

DisplayDescription wall()
{
    DisplayDescription description;
    description.name = QStringLiteral("Wall");
    description.gamuts.push_back(Model::ColorGamut("native",
        {Model::Target::fromYxy(240, 0.7, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
            Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)}));
    description.original = QStringLiteral("native");
    description.target = QStringLiteral("Rec.709");
    return description;
}

//! Rec.709 with a white of \a luminance in cd/m².
DisplayGamut absolute(const char *name, double luminance)
{
    const Model::Targets t = Model::rec709().getTargets();
    const auto at = [luminance](const Model::Target &c) { return Model::Target::fromYxy(c.Y * luminance, c.x, c.y); };
    return {Model::ColorGamut(name, {at(t.red), at(t.green), at(t.blue), at(t.white)}),
        LuminanceUnit::CandelaPerSquareMetre};
}

QJsonValue at(QJsonValue value, const char *path)
{
    for (const QString &key : QString::fromLatin1(path).split('.')) {
        bool isIndex = false;
        const int index = key.toInt(&isIndex);
        value = isIndex ? value.toArray().at(index) : value.toObject().value(key);
    }
    return value;
}

bool isNear(const QJsonValue &value, double expected, double tolerance)
{
    return value.isDouble() && std::fabs(value.toDouble() - expected) <= tolerance;
}

} // namespace

void ReportTest::parts()
{
    DisplayDescription description = wall();
    QJsonObject all = report(description);
    QCOMPARE(at(all, "version").toInt(), 1);
    QCOMPARE(at(all, "name").toString(), QStringLiteral("Wall"));
    QCOMPARE(at(all, "original.name").toString(), QStringLiteral("native"));
    QCOMPARE(at(all, "target.name").toString(), QStringLiteral("Rec.709"));
    QVERIFY(!all.contains("measured"));
    QVERIFY(!all.contains("declared"));
    description.measured = QStringLiteral("Rec.2020");
    description.declared = QStringLiteral("DCI-P3(D65)");
    all = report(description);
    QCOMPARE(at(all, "measured.name").toString(), QStringLiteral("Rec.2020"));
    QCOMPARE(at(all, "declared.name").toString(), QStringLiteral("DCI-P3(D65)"));
}

void ReportTest::colors()
{
    const QJsonObject all = report(wall());
    QVERIFY(at(all, "original.green.Y").toDouble() == 634.0);
    QVERIFY(at(all, "original.green.x").toDouble() == 0.189);
    QVERIFY(at(all, "original.green.y").toDouble() == 0.718);
    QVERIFY(isNear(at(all, "target.red.u"), 0.4507, 0.00005));
    QVERIFY(isNear(at(all, "target.red.v"), 0.5229, 0.00005));
    QVERIFY(isNear(at(all, "target.white.u"), 0.1978, 0.00005));
    QVERIFY(isNear(at(all, "target.white.v"), 0.4683, 0.00005));
    QVERIFY(isNear(at(all, "target.white.cct"), 6504.0, 1.0));
    QVERIFY(isNear(at(all, "target.white.duv"), 0.0032, 0.0001));
}

void ReportTest::colorTemperatureOfThePrimaries()
{
    const QJsonObject all = report(wall());
    for (const char *path : {"target.green.cct", "target.green.duv", "target.blue.cct"}) {
        QVERIFY2(at(all, path).isNull(), path);
    }
    // Beyond the end of the locus, and near it
    DisplayDescription p3 = wall();
    p3.target = QStringLiteral("DCI-P3(D65)");
    QVERIFY(at(report(p3), "target.red.cct").isNull());
    QVERIFY(at(report(p3), "target.red.duv").isNull());
}

void ReportTest::coverage()
{
    DisplayDescription description = wall();
    description.target = QStringLiteral("Rec.2020");
    const QJsonObject all = report(description);
    QCOMPARE(at(all, "target.standards").toArray().size(), 3);
    QCOMPARE(at(all, "target.standards.0.standard").toString(), QStringLiteral("Rec.709"));
    QVERIFY(isNear(at(all, "target.standards.0.xy.coverage"), 1.0, 1e-12));
    QVERIFY(isNear(at(all, "target.standards.0.uv.coverage"), 1.0, 1e-12));
    QVERIFY(isNear(at(all, "target.standards.0.xy.areaRatio"), 1 / 0.52887, 0.0001));
    QVERIFY(isNear(at(all, "target.standards.0.uv.areaRatio"), 1 / 0.58031, 0.0001));
    QVERIFY(isNear(at(all, "target.standards.1.xy.coverage"), 1.0, 0.0));
    const double of2020 = at(all, "original.standards.1.xy.coverage").toDouble();
    QVERIFY(of2020 > 0.7 && of2020 < 1.0);
}

void ReportTest::areas()
{
    const QJsonObject all = report(wall());
    QVERIFY(isNear(at(all, "target.area.xy"), 0.11205, 1e-9));
    QVERIFY(isNear(at(all, "target.area.uv"), 0.0648918, 1e-6));
}

void ReportTest::ownStandardsComeFirst()
{
    DisplayDescription description = wall();
    description.standards = QStringList{"native", "Rec.2020"};
    const QJsonArray standards = at(report(description), "target.standards").toArray();
    QStringList names;
    for (const QJsonValue &standard : standards) {
        names << at(standard, "standard").toString();
    }
    QCOMPARE(names, (QStringList{"native", "Rec.2020", "Rec.709", "DCI-P3(D65)"}));
}

void ReportTest::validity_data()
{
    QTest::addColumn<QString>("original");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QJsonValue>("valid");
    QTest::addColumn<QStringList>("outside");
    // The luminances of published gamuts are relative: that of the target is not judged.
    QTest::newRow("inside") << "Rec.2020"
                            << "Rec.709" << QJsonValue(QJsonValue::Null) << QStringList();
    QTest::newRow("itself") << "Rec.709"
                            << "Rec.709" << QJsonValue(QJsonValue::Null) << QStringList();
    QTest::newRow("bright enough") << "bright"
                                   << "dark" << QJsonValue(true) << QStringList();
    QTest::newRow("too bright") << "dark"
                                << "bright" << QJsonValue(false) << QStringList();
    QTest::newRow("around") << "Rec.709"
                            << "Rec.2020" << QJsonValue(false) << QStringList{"red", "green", "blue"};
    QTest::newRow("shared blue") << "Rec.709"
                                 << "DCI-P3(D65)" << QJsonValue(false) << QStringList{"red", "green"};
    QTest::newRow("blue of Rec.709") << "native"
                                     << "Rec.709" << QJsonValue(false) << QStringList{"blue"};
}

void ReportTest::validity()
{
    QFETCH(QString, original);
    QFETCH(QString, target);
    QFETCH(QJsonValue, valid);
    QFETCH(QStringList, outside);
    DisplayDescription description = wall();
    description.gamuts.push_back(absolute("bright", 1000.0));
    description.gamuts.push_back(absolute("dark", 500.0));
    description.original = original;
    description.target = target;
    const QJsonObject all = report(description);
    QCOMPARE(at(all, "validity.valid"), valid);
    QCOMPARE(at(all, "validity.outside").toArray(), QJsonArray::fromStringList(outside));
}

void ReportTest::givenUp()
{
    DisplayDescription description = wall();
    description.original = QStringLiteral("Rec.2020");
    const QJsonObject all = report(description);
    QVERIFY(isNear(at(all, "givenUp.xy.area"), 0.2118665 - 0.11205, 1e-6));
    QVERIFY(isNear(at(all, "givenUp.xy.share"), 1.0 - 0.52887, 0.0001));
    QVERIFY(isNear(at(all, "givenUp.uv.share"), 1.0 - 0.58031, 0.0001));
    description.target = description.original;
    QVERIFY(isNear(at(report(description), "givenUp.uv.area"), 0.0, 0.0));
}

void ReportTest::units()
{
    DisplayDescription description = wall();
    QVERIFY(at(report(description), "original.unit").isNull());
    QCOMPARE(at(report(description), "target.unit").toString(), QStringLiteral("relative"));
    description.gamuts[0].unit = LuminanceUnit::CandelaPerSquareMetre;
    QCOMPARE(at(report(description), "original.unit").toString(), QStringLiteral("cd/m2"));
}

void ReportTest::dominantWavelengths()
{
    DisplayDescription description = wall();
    description.target = QStringLiteral("Rec.2020");
    const QJsonObject all = report(description);
    // The primaries of Rec.2020 are the monochromatic stimuli of 630, 532 and 467 nm (BT.2020-2, table 3), rounded.
    QVERIFY(isNear(at(all, "target.red.dominantWavelength"), 630.0, 0.5));
    QVERIFY(isNear(at(all, "target.green.dominantWavelength"), 532.0, 0.2));
    QVERIFY(isNear(at(all, "target.blue.dominantWavelength"), 467.0, 0.2));
    QVERIFY(isNear(at(all, "target.green.purity"), 1.0, 0.01));
    QVERIFY(at(all, "target.white.dominantWavelength").isNull());
    QVERIFY(at(all, "target.white.purity").isNull());
    QVERIFY(isNear(at(all, "target.referenceWhite.x"), 0.3127, 0.0));
    QVERIFY(isNear(at(all, "target.referenceWhite.y"), 0.3290, 0.0));
    // Relative to its own white, not to that of the target.
    QVERIFY(isNear(at(all, "original.referenceWhite.x"), 0.2829, 0.0));
    Model::Targets halfWay = description.gamuts[0].getTargets();
    halfWay.green = Model::Target::fromYxy(634, (0.170 + 0.2829) / 2, (0.797 + 0.2971) / 2);
    description.gamuts[0] = Model::ColorGamut("native", halfWay);
    QVERIFY(isNear(at(report(description), "original.green.dominantWavelength"), 532.0, 0.2));
    QVERIFY(isNear(at(report(description), "original.green.purity"), 0.5, 0.005));
    Model::Targets purple = description.gamuts[0].getTargets();
    purple.blue = Model::Target::fromYxy(126, 0.32, 0.12);
    description.gamuts[0] = Model::ColorGamut("native", purple);
    QVERIFY(at(report(description), "original.blue.dominantWavelength").toDouble() < -380.0);
}

void ReportTest::verdict()
{
    DisplayDescription description = wall();
    description.gamuts.push_back(absolute("bright", 1000.0));
    description.gamuts.push_back(absolute("dark", 500.0));
    description.original = QStringLiteral("bright");
    description.target = QStringLiteral("dark");
    QJsonObject all = report(description);
    QCOMPARE(at(all, "verdict.status").toString(), QStringLiteral("pass"));
    QCOMPARE(at(all, "verdict.against").toString(), QStringLiteral("original"));
    QCOMPARE(at(all, "verdict.lines.0.subject").toString(), QStringLiteral("gamut"));
    QCOMPARE(at(all, "verdict.lines.0.against").toString(), QStringLiteral("original"));
    QCOMPARE(at(all, "verdict.lines.1.subject").toString(), QStringLiteral("luminance"));
    QCOMPARE(at(all, "verdict.lines.1.color").toString(), QStringLiteral("white"));
    QVERIFY(!all.contains("measuredDrive"));
    description.measured = QStringLiteral("DCI-P3(D65)");
    all = report(description);
    QCOMPARE(at(all, "verdict.against").toString(), QStringLiteral("both"));
    QCOMPARE(at(all, "verdict.status").toString(), QStringLiteral("not known"));
    QCOMPARE(at(all, "verdict.lines.2.against").toString(), QStringLiteral("measured"));
    QCOMPARE(at(all, "drive.against").toString(), QStringLiteral("original"));
    QCOMPARE(at(all, "drive.comparable").toBool(), true);
    QCOMPARE(at(all, "measuredDrive.against").toString(), QStringLiteral("measured"));
    QCOMPARE(at(all, "measuredDrive.comparable").toBool(true), false);
    description.measured.clear();
    std::swap(description.original, description.target);
    QCOMPARE(at(report(description), "verdict.status").toString(), QStringLiteral("fail"));
    std::swap(description.original, description.measured);
    QCOMPARE(at(report(description), "verdict.against").toString(), QStringLiteral("measured"));
    description.measured.clear();
    all = report(description);
    QCOMPARE(at(all, "verdict.status").toString(), QStringLiteral("not known"));
    QVERIFY(at(all, "verdict.against").isNull());
    QVERIFY(!all.contains("drive"));
    QVERIFY(!all.contains("tolerances"));
    Tolerances tolerances;
    tolerances.name = QStringLiteral("Stage");
    tolerances.source = QStringLiteral("contract");
    tolerances.limits.whiteUv = 0.004;
    all = report(description, tolerances);
    QCOMPARE(at(all, "tolerances.name").toString(), QStringLiteral("Stage"));
    QCOMPARE(at(all, "tolerances.source").toString(), QStringLiteral("contract"));
    QCOMPARE(at(all, "verdict.lines.1.subject").toString(), QStringLiteral("tolerance"));
}

void ReportTest::drive()
{
    DisplayDescription description = wall();
    QJsonObject all = report(description);
    QCOMPARE(at(all, "drive.comparable").toBool(true), false);
    QVERIFY(at(all, "drive.headroom").isNull());
    QVERIFY(at(all, "drive.white").isNull());
    QVERIFY(at(all, "drive.largestWhite.Y").toDouble() > 0.0);
    description.gamuts.push_back(absolute("bright", 1000.0));
    description.gamuts.push_back(absolute("dark", 500.0));
    description.original = QStringLiteral("bright");
    description.target = QStringLiteral("dark");
    all = report(description);
    QCOMPARE(at(all, "drive.comparable").toBool(), true);
    QCOMPARE(at(all, "drive.unit").toString(), QStringLiteral("cd/m2"));
    QVERIFY(isNear(at(all, "drive.headroom"), 2.0, 1e-9));
    QVERIFY(isNear(at(all, "drive.white.red"), 0.5, 1e-9));
    QVERIFY(isNear(at(all, "drive.white.blue"), 0.5, 1e-9));
    QVERIFY(isNear(at(all, "drive.largestWhite.Y"), 1000.0, 1e-6));
}

void ReportTest::driveThatIsNotKnown()
{
    // As the verdict says: for a white outside, for a target without light, and for a display that is not additive.
    const auto isUnknown = [](const DisplayDescription &description) {
        const QJsonObject drive = report(description).value("drive").toObject();
        return drive.value("headroom").isNull() && drive.value("red").isNull() && drive.value("white").isNull();
    };
    DisplayDescription description = wall();
    description.gamuts.push_back(absolute("bright", 1000.0));
    description.gamuts.push_back(absolute("dark", 500.0));
    description.original = QStringLiteral("bright");
    description.target = QStringLiteral("dark");
    QVERIFY(!isUnknown(description));
    const auto withWhite = [&description](std::size_t gamut, const Model::Target &white) {
        DisplayDescription changed = description;
        Model::Targets targets = changed.gamuts.at(gamut).getTargets();
        targets.white = white;
        changed.gamuts[gamut] = {
            Model::ColorGamut(changed.gamuts[gamut].colorGamutName(), targets), LuminanceUnit::CandelaPerSquareMetre};
        return changed;
    };
    QVERIFY(isUnknown(withWhite(2, Model::Target::fromYxy(500, 0.05, 0.4))));
    QVERIFY(isUnknown(withWhite(2, Model::Target::fromYxy(0, 0.3127, 0.3290))));
    const DisplayDescription limited = withWhite(1, Model::Target::fromYxy(400, 0.3130, 0.3300));
    QVERIFY(isUnknown(limited));
    QVERIFY(at(report(limited), "drive.largestWhite").isNull());
    QVERIFY(at(report(limited), "validity.valid").isNull());
}

void ReportTest::notes()
{
    const QJsonObject none = report(wall());
    QVERIFY(none.value("warnings").isArray() && none.value("warnings").toArray().isEmpty());
    QVERIFY(none.value("facts").isArray() && none.value("facts").toArray().isEmpty());
    ReportNotes notes;
    notes.warnings = QStringList{"a.csv: line 3: odd", "b.csv: odder"};
    notes.facts = {{QStringLiteral("a.edid"), {QStringLiteral("made by"), QStringLiteral("XYZ")}}};
    const QJsonObject all = QJsonDocument::fromJson(reportText(wall(), std::nullopt, notes)).object();
    QCOMPARE(all.value("warnings").toArray(), QJsonArray::fromStringList(notes.warnings));
    QCOMPARE(at(all, "facts").toArray().size(), 1);
    QCOMPARE(at(all, "facts.0.file").toString(), QStringLiteral("a.edid"));
    QCOMPARE(at(all, "facts.0.fact").toString(), QStringLiteral("made by"));
    QCOMPARE(at(all, "facts.0.value").toString(), QStringLiteral("XYZ"));
}

void ReportTest::lists()
{
    QVERIFY(report(wall()).value("lists").isArray() && report(wall()).value("lists").toArray().isEmpty());
    const auto read = readMeasurementList("Patch;Lv [fL];x;y\nW 100;1,5;0,31;0,33\n");
    QVERIFY2(read, qPrintable(read.error()));
    ReportNotes notes;
    notes.lists = {{QStringLiteral("meter.csv"), read->recognized}, {QStringLiteral("b.csv"), {}}};
    const QJsonObject all = QJsonDocument::fromJson(reportText(wall(), std::nullopt, notes)).object();
    QCOMPARE(at(all, "lists").toArray().size(), 2);
    QCOMPARE(at(all, "lists.0.file").toString(), QStringLiteral("meter.csv"));
    QCOMPARE(at(all, "lists.0.separator").toString(), QStringLiteral(";"));
    QCOMPARE(at(all, "lists.0.decimalSign").toString(), QStringLiteral(","));
    QCOMPARE(at(all, "lists.0.unit").toString(), QStringLiteral("fL"));
    QCOMPARE(at(all, "lists.0.columns").toArray().size(), 4);
    QCOMPARE(at(all, "lists.0.columns.1.column").toInt(), 2);
    QCOMPARE(at(all, "lists.0.columns.1.part").toString(), QStringLiteral("Y"));
    QCOMPARE(at(all, "lists.0.columns.1.header").toString(), QStringLiteral("Lv [fL]"));
    QCOMPARE(at(all, "lists.0.colors.0.line").toInt(), 2);
    QCOMPARE(at(all, "lists.0.colors.0.name").toString(), QStringLiteral("W 100"));
    QCOMPARE(at(all, "lists.0.colors.0.color").toString(), QStringLiteral("white"));
    QStringList lines;
    for (const QJsonValue &line : at(all, "lists.0.text").toArray()) {
        lines.append(line.toString());
    }
    QCOMPARE(lines.join('\n'), read->recognized.text());
    QVERIFY(at(all, "lists.1.unit").isNull() && at(all, "lists.1.decimalSign").isNull());
}

void ReportTest::emptyDescription()
{
    const QJsonObject all = report(DisplayDescription());
    QVERIFY(!all.contains("original"));
    QVERIFY(!all.contains("validity"));
    QVERIFY(!all.contains("givenUp"));
}

void ReportTest::textIsTheReport()
{
    const QByteArray text = reportText(wall());
    QVERIFY(text.endsWith("}\n"));
    QCOMPARE(QJsonDocument::fromJson(text).object(), report(wall()));
}

void ReportTest::documentedKeys()
{
    QFile file(QStringLiteral(VIEWER_DOCUMENTATION));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray documentation = file.readAll();
    for (const char *key :
        {"version", "name", "declared", "original", "measured", "target", "red", "green", "blue", "white", "cct", "duv",
            "area", "standards", "standard", "coverage", "areaRatio", "validity", "valid", "outside", "givenUp",
            "share", "xy", "uv", "unit", "referenceWhite", "dominantWavelength", "purity", "verdict", "status",
            "against", "text", "lines", "subject", "color", "drive", "comparable", "headroom", "largestWhite",
            "fullDrive", "tolerances", "source", "measuredDrive", "warnings", "facts", "fact", "value", "file", "wall",
            "correctedWhite", "commonGamut", "shape", "corners", "excluding", "fit", "moved", "limit", "uniformity",
            "before", "after", "neighborUv", "neighborLuminance", "luminance", "difference", "cabinets", "cabinet",
            "row", "column", "leftOut", "gamut", "additive", "uvBefore", "uvAfter", "neighborBefore", "neighborAfter",
            "matrix", "lists", "separator", "decimalSign", "columns", "column", "part", "header", "colors", "line"}) {
        QVERIFY2(documentation.contains('`' + QByteArray(key) + '`'), key);
    }
}

QTEST_GUILESS_MAIN(ReportTest)
#include "reporttest.moc"
