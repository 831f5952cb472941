// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/documentcontent.h"
#include "drawing/layerswitches.h"

#include <QtTest>

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramGamut;
using ceiechart::GamutRole;

class DocumentContentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyPartHasItsRole();
    void partsThatNoGamutPlaysAreLeftOut();
    void gamutsKeepTheirValues();
    void namesAreThoseOfTheInterface();
    void pointsKeepOrderAndNames();
    void cabinetsAreMarks();
    void ringsAreRoundTheWhiteOfTheTarget();
};

namespace {

DisplayDescription wall()
{
    DisplayDescription description;
    const Model::Targets targets{Model::Target::fromYxy(21, 0.64, 0.33), Model::Target::fromYxy(71, 0.3, 0.6),
        Model::Target::fromYxy(7, 0.15, 0.06), Model::Target::fromYxy(99, 0.31, 0.32)};
    description.gamuts = {Model::ColorGamut("native", targets), Model::ColorGamut("Rec.709 (edited 2)", targets),
        Model::ColorGamut("two\nlines", targets)};
    description.original = QStringLiteral("native");
    description.measured = QStringLiteral("two\nlines");
    description.declared = QStringLiteral("DCI-P3(D65)");
    description.target = QStringLiteral("Rec.709 (edited 2)");
    description.standards = QStringList{"Rec.2020", "native", "no such gamut"};
    return description;
}

QVector<QPair<int, QString>> rolesAndNames(const DiagramContent &content)
{
    QVector<QPair<int, QString>> found;
    for (const DiagramGamut &gamut : content.gamuts) {
        found.append({int(gamut.role), QString::fromStdString(gamut.gamut.colorGamutName())});
    }
    return found;
}

} // namespace

void DocumentContentTest::everyPartHasItsRole()
{
    const DiagramContent content = documentContent(wall());
    const QVector<QPair<int, QString>> expected{{int(GamutRole::Target), "Rec.709 (edited 2)"},
        {int(GamutRole::Original), "native"}, {int(GamutRole::Measured), "two\\u000alines"},
        {int(GamutRole::Declared), "DCI-P3(D65)"}, {int(GamutRole::Standard), "Rec.2020"},
        {int(GamutRole::Standard), "native"}};
    QCOMPARE(rolesAndNames(content), expected);
    QCOMPARE(content.layers, ceiechart::allDiagramLayers);
    QVERIFY(content.trail.isEmpty());
}

void DocumentContentTest::partsThatNoGamutPlaysAreLeftOut()
{
    const DiagramContent content = documentContent(DisplayDescription());
    QVERIFY(content.gamuts.isEmpty());
    QVERIFY(content.rings.isEmpty());
}

void DocumentContentTest::gamutsKeepTheirValues()
{
    const DiagramContent content = documentContent(wall());
    const Model::Targets targets = content.find(GamutRole::Target)->gamut.getTargets();
    QCOMPARE(targets.red.x, 0.64);
    QCOMPARE(targets.green.Y, 71.0);
    QCOMPARE(targets.blue.y, 0.06);
    QCOMPARE(targets.white.x, 0.31);
}

void DocumentContentTest::namesAreThoseOfTheInterface()
{
    class Shouting : public QTranslator {
    public:
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QString::fromUtf8(source).toUpper();
        }
        bool isEmpty() const override { return false; }
    };
    Shouting translator;
    QCoreApplication::installTranslator(&translator);
    const QString name = rolesAndNames(documentContent(wall())).first().second;
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(name, QStringLiteral("Rec.709 (EDITED 2)"));
}

void DocumentContentTest::pointsKeepOrderAndNames()
{
    DisplayDescription description;
    description.colorTemperaturePoints = {{QString(), {0.4, 0.39}}, {QStringLiteral("warm"), {0.3, 0.31}}};
    description.measurePoints = {{QStringLiteral("a\tb"), {0.6, 0.3}}};
    description.cmyPoints = {{QString(), {0.2, 0.3}}, {QString(), {0.3, 0.1}}, {QString(), {0.4, 0.5}}};
    const DiagramContent content = documentContent(description);
    QCOMPARE(content.colorTemperaturePoints.size(), 2);
    QCOMPARE(content.colorTemperaturePoints.at(1).xy, QPointF(0.3, 0.31));
    QCOMPARE(content.colorTemperaturePoints.at(1).name, QStringLiteral("warm"));
    QCOMPARE(content.measurePoints.size(), 1);
    QCOMPARE(content.measurePoints.at(0).name, QStringLiteral("a\\u0009b"));
    QCOMPARE(content.cmyPoints.size(), 3);
    QCOMPARE(content.cmyPoints.at(2).xy, QPointF(0.4, 0.5));
}

void DocumentContentTest::cabinetsAreMarks()
{
    DisplayDescription description = wall();
    description.measurePoints = {{QStringLiteral("grey"), {0.31, 0.33}}};
    for (const double redX : {0.69, 0.70}) {
        WallCabinet cabinet;
        cabinet.red = Model::Target::fromYxy(240, redX, 0.29);
        cabinet.green = Model::Target::fromYxy(600, 0.18, 0.72);
        cabinet.blue = Model::Target::fromYxy(80, 0.14, 0.05);
        description.wall.cabinets.push_back(cabinet);
    }
    const DiagramContent content = LayerSwitches().content(description);
    QCOMPARE(content.measurePoints.size(), 7);
    QCOMPARE(content.measurePoints.at(0).xy, QPointF(0.69, 0.29));
    QCOMPARE(content.measurePoints.at(3).xy, QPointF(0.70, 0.29));
    QCOMPARE(content.measurePoints.at(5).xy, QPointF(0.14, 0.05));
    QVERIFY(content.measurePoints.at(3).color.red() > content.measurePoints.at(3).color.green());
    QVERIFY(content.measurePoints.at(3).name.isEmpty());
    QCOMPARE(content.measurePoints.at(6).name, QStringLiteral("grey")); // over all others
}

void DocumentContentTest::ringsAreRoundTheWhiteOfTheTarget()
{
    const DiagramContent content = documentContent(wall());
    QCOMPARE(content.rings.size(), 1);
    QCOMPARE(content.rings.at(0).xy, QPointF(0.31, 0.32));
    QCOMPARE(content.rings.at(0).radii, (QVector<double>{0.001, 0.003, 0.005}));
}

QTEST_GUILESS_MAIN(DocumentContentTest)
#include "documentcontenttest.moc"
