// SPDX-License-Identifier: MIT
#include "drawing/chartscene.h"
#include "display/displaydescription.h"

#include <QtTest>

using namespace gamutviewer;

class ChartSceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void trianglesWithMeasuredGamut();
    void trianglesWithoutMeasuredGamut();
    void declaredGamutHasItsOwnColor();
    void trianglesCarryEveryValue();
    void standards();
    void unknownPartsAreLeftOut();
    void pointsKeepTheirOrder();
    void measurePointsAreColoredByName();
    void layersThatAreOffAreLeftOut_data();
    void layersThatAreOffAreLeftOut();
};

namespace {

Model::ColorGamut gamut(const char *name, double offset)
{
    return Model::ColorGamut(name,
        {Model::Target::fromYxy(21 + offset, 0.64 + offset, 0.33),
            Model::Target::fromYxy(71 + offset, 0.3 + offset, 0.6),
            Model::Target::fromYxy(7 + offset, 0.15 + offset, 0.06),
            Model::Target::fromYxy(99 + offset, 0.31 + offset, 0.32)});
}

DisplayDescription wall()
{
    DisplayDescription description;
    description.gamuts = {gamut("native", 0.0), gamut("measured", 0.01), gamut("wanted", 0.02)};
    description.original = QStringLiteral("native");
    description.measured = QStringLiteral("measured");
    description.target = QStringLiteral("wanted");
    return description;
}

void verify(ColorTriangleObject triangle, int type, const QColor &color, const std::string &name)
{
    QCOMPARE(triangle.type(), type);
    QCOMPARE(triangle.foreColor(), color);
    QCOMPARE(triangle.gamutName(), name);
    QCOMPARE(triangle.trigleLineWidth(), 2);
    QCOMPARE(triangle.isShow(), true);
}

bool isAt(const QPointF &point, double x, double y)
{
    return point.x() == x && point.y() == y;
}

} // namespace

void ChartSceneTest::trianglesWithMeasuredGamut()
{
    const ChartScene scene = chartScene(wall());
    QCOMPARE(scene.triangles.size(), 3);
    verify(scene.triangles[0], 2, QColor(13, 189, 73, 255), "native");
    verify(scene.triangles[1], 3, QColor(27, 241, 255, 255), "measured");
    verify(scene.triangles[2], 1, QColor(255, 163, 56, 255), "wanted");
    QVERIFY(isAt(scene.original.redPos(), 0.64, 0.33));
    QVERIFY(isAt(scene.target.redPos(), 0.64 + 0.02, 0.33));
}

void ChartSceneTest::trianglesWithoutMeasuredGamut()
{
    DisplayDescription description = wall();
    description.measured.clear();
    const ChartScene scene = chartScene(description);
    QCOMPARE(scene.triangles.size(), 2);
    verify(scene.triangles[0], 2, QColor(22, 241, 255, 255), "native");
    verify(scene.triangles[1], 1, QColor(255, 163, 56, 255), "wanted");
}

void ChartSceneTest::declaredGamutHasItsOwnColor()
{
    DisplayDescription description = wall();
    description.declared = QStringLiteral("DCI-P3(D65)");
    const ChartScene scene = chartScene(description);
    QCOMPARE(scene.triangles.size(), 4);
    verify(scene.triangles[2], 3, QColor(196, 146, 255), "DCI-P3(D65)");
    verify(scene.triangles[3], 1, QColor(255, 163, 56, 255), "wanted");
    QVERIFY(isAt(scene.target.redPos(), 0.64 + 0.02, 0.33));
}

void ChartSceneTest::trianglesCarryEveryValue()
{
    const ChartScene scene = chartScene(wall());
    const TrianglePoint triangle = scene.triangles[0].trianglePoint();
    QVERIFY(isAt(triangle.redPos(), 0.64, 0.33));
    QVERIFY(isAt(triangle.greenPos(), 0.3, 0.6));
    QVERIFY(isAt(triangle.bluePos(), 0.15, 0.06));
    QVERIFY(isAt(triangle.whitePos(), 0.31, 0.32));
    QCOMPARE(triangle.redLum(), 21.0);
    QCOMPARE(triangle.greenLum(), 71.0);
    QCOMPARE(triangle.blueLum(), 7.0);
    QCOMPARE(triangle.whiteLum(), 99.0);
}

void ChartSceneTest::standards()
{
    DisplayDescription description = wall();
    description.standards = QStringList{"DCI-P3(D65)", "Rec.709", "wanted", "Rec.2020"};
    const ChartScene scene = chartScene(description);
    QCOMPARE(scene.standards.size(), 4);
    verify(scene.standards[0], 0, QColor(255, 255, 255, 25), "DCI-P3(D65)");
    verify(scene.standards[1], 0, QColor(255, 255, 255, 17), "Rec.709");
    verify(scene.standards[2], 0, QColor(255, 255, 255, 25), "wanted");
    verify(scene.standards[3], 0, QColor(255, 255, 255, 51), "Rec.2020");
    QCOMPARE(scene.standards[0].opacity(), 0.05);
    QCOMPARE(scene.standards[1].opacity(), 0.07);
    QCOMPARE(scene.standards[2].opacity(), 0.05);
    QCOMPARE(scene.standards[3].opacity(), 0.1);
    QVERIFY(isAt(scene.standards[1].trianglePoint().greenPos(), 0.3, 0.6));
    QVERIFY(isAt(scene.standards[3].trianglePoint().bluePos(), 0.131, 0.046));
}

void ChartSceneTest::unknownPartsAreLeftOut()
{
    DisplayDescription description;
    description.standards = QStringList{"sRGB"};
    const ChartScene scene = chartScene(description);
    QVERIFY(scene.triangles.isEmpty());
    QVERIFY(scene.standards.isEmpty());
    QVERIFY(scene.target.isEmpty());
    QVERIFY(scene.original.isEmpty());
}

void ChartSceneTest::pointsKeepTheirOrder()
{
    DisplayDescription description;
    description.colorTemperaturePoints = {{QString(), {0.4, 0.39}}, {QString(), {0.3, 0.31}}};
    description.measurePoints = {{QString(), {0.6, 0.3}}};
    description.cmyPoints = {{QString(), {0.2, 0.3}}, {QString(), {0.3, 0.1}}, {QString(), {0.4, 0.5}}};
    const ChartScene scene = chartScene(description);
    QCOMPARE(scene.colorTemperaturePoints.size(), 2);
    QVERIFY(isAt(scene.colorTemperaturePoints[1], 0.3, 0.31));
    QCOMPARE(scene.measurePoints.size(), 1);
    QVERIFY(isAt(scene.measurePoints[0].xy, 0.6, 0.3));
    QCOMPARE(scene.cmyPoints.size(), 3);
    QVERIFY(isAt(scene.cmyPoints[2], 0.4, 0.5));
}

void ChartSceneTest::measurePointsAreColoredByName()
{
    DisplayDescription description;
    const QStringList names{"skin", "B", "Green", "grey", " red ", "white", "", "green", "W"};
    for (const QString &name : names) {
        description.measurePoints.append({name, {0.3, 0.3}});
    }
    QVector<QColor> colors;
    for (const PointMark &mark : chartScene(description).measurePoints) {
        colors.append(mark.color);
    }
    // Of two of the same name the first.
    QCOMPARE(colors,
        (QVector<QColor>{
            Qt::black, Qt::blue, Qt::green, Qt::black, Qt::red, Qt::white, Qt::black, Qt::black, Qt::black}));
}

void ChartSceneTest::layersThatAreOffAreLeftOut_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("part"); // of describe()
    QTest::newRow("original") << int(Layer::Original) << 0;
    QTest::newRow("measured") << int(Layer::Measured) << 0;
    QTest::newRow("declared") << int(Layer::Declared) << 0;
    QTest::newRow("target") << int(Layer::Target) << 0;
    QTest::newRow("standards") << int(Layer::Standards) << 1;
    QTest::newRow("common area") << int(Layer::CommonArea) << 2;
    QTest::newRow("axes") << int(Layer::Axes) << 3;
    QTest::newRow("wavelengths") << int(Layer::Wavelengths) << 4;
    QTest::newRow("Planckian locus") << int(Layer::PlanckianLocus) << 5;
    QTest::newRow("measure points") << int(Layer::MeasurePoints) << 6;
    QTest::newRow("colour temperatures") << int(Layer::ColorTemperaturePoints) << 7;
    QTest::newRow("CMY points") << int(Layer::CmyPoints) << 8;
}

void ChartSceneTest::layersThatAreOffAreLeftOut()
{
    QFETCH(int, layer);
    QFETCH(int, part);
    DisplayDescription description = wall();
    description.declared = QStringLiteral("DCI-P3(D65)");
    description.standards = QStringList{"Rec.709"};
    description.measurePoints = description.colorTemperaturePoints = description.cmyPoints = {{QString(), {0.3, 0.3}}};
    const auto describe = [](const ChartScene &scene) {
        return QVector<int>{int(scene.triangles.size()), int(scene.standards.size()),
            !scene.original.isEmpty() && !scene.target.isEmpty(), scene.axes, scene.wavelengths, scene.planckianLocus,
            int(scene.measurePoints.size()), int(scene.colorTemperaturePoints.size()), int(scene.cmyPoints.size())};
    };
    QVector<int> expected = describe(chartScene(description));
    QCOMPARE(expected, (QVector<int>{4, 1, 1, 1, 1, 1, 1, 1, 1}));
    --expected[part];
    QCOMPARE(describe(chartScene(description, allLayers & ~Layers(Layer(layer)))), expected);
}

QTEST_GUILESS_MAIN(ChartSceneTest)
#include "chartscenetest.moc"
