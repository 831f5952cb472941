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
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QStringList>("outside");
    QTest::newRow("inside") << "Rec.2020"
                            << "Rec.709" << true << QStringList();
    QTest::newRow("itself") << "Rec.709"
                            << "Rec.709" << true << QStringList();
    QTest::newRow("around") << "Rec.709"
                            << "Rec.2020" << false << QStringList{"red", "green", "blue"};
    QTest::newRow("shared blue") << "Rec.709"
                                 << "DCI-P3(D65)" << false << QStringList{"red", "green"};
    QTest::newRow("blue of Rec.709") << "native"
                                     << "Rec.709" << false << QStringList{"blue"};
}

void ReportTest::validity()
{
    QFETCH(QString, original);
    QFETCH(QString, target);
    QFETCH(bool, valid);
    QFETCH(QStringList, outside);
    DisplayDescription description = wall();
    description.original = original;
    description.target = target;
    const QJsonObject all = report(description);
    QCOMPARE(at(all, "validity.valid").toBool(), valid);
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
    for (const char *key : {"version", "name", "declared", "original", "measured", "target", "red", "green", "blue",
             "white", "cct", "duv", "area", "standards", "standard", "coverage", "areaRatio", "validity", "valid",
             "outside", "givenUp", "share", "xy", "uv"}) {
        QVERIFY2(documentation.contains('`' + QByteArray(key) + '`'), key);
    }
}

QTEST_GUILESS_MAIN(ReportTest)
#include "reporttest.moc"
