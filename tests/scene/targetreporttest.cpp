// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/samplegamuts.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QtTest>

#include <array>
#include <limits>
#include <memory>

using reference::describe;
using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Between the green and the blue fence: a placement there changes no vertex, only what depends on them.
const QPointF inNoFence(0.16, 0.31);

struct Bench {
    Scene scene;
    reference::SceneSignalLog<Scene> log;

    explicit Bench(const QList<ColorTriangleObject> &triangles, bool whiteHeld)
        : scene(triangles)
        , log(&scene)
    {
        scene.setImageWidth(512);
        scene.setImageHeight(512);
        scene.setColorTempertureChecked(whiteHeld);
        log.takeUpdate();
    }

    TrianglePoint placed(const QPointF &chroma)
    {
        reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(chroma));
        scene.AddLedColorAndPoint();
        return scene.getLsColorTriangleObject().at(1).trianglePoint();
    }
};

struct Luminances {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

Luminances luminancesFor(const TrianglePoint &points, double white)
{
    Luminances found;
    ChromaSets::RGBCxCyFromWhiteCxCy(found.red, points.redPos().x(), points.redPos().y(), found.green,
        points.greenPos().x(), points.greenPos().y(), found.blue, points.bluePos().x(), points.bluePos().y(), white,
        points.whitePos().x(), points.whitePos().y());
    return found;
}

struct White {
    double luminance = 0.0;
    double x = 0.0;
    double y = 0.0;
};

White whiteOf(const TrianglePoint &points)
{
    White white;
    ChromaSets::rgbCxCyToWhiteCxCy(points.redLum(), points.redPos().x(), points.redPos().y(), points.greenLum(),
        points.greenPos().x(), points.greenPos().y(), points.blueLum(), points.bluePos().x(), points.bluePos().y(),
        white.luminance, white.x, white.y);
    return white;
}

// An original and a target of the same primaries; the target's white is theirs, or lies outside of them.
QList<ColorTriangleObject> equalPair(const std::array<double, 3> &luminances, bool whiteInReach)
{
    ColorTriangleObject original = reference::wideGamut();
    TrianglePoint &points = original.trianglePoint();
    points.setRedLum(luminances[0]);
    points.setGreenLum(luminances[1]);
    points.setBlueLum(luminances[2]);
    ColorTriangleObject target = original;
    target.setType(1);
    const White white = whiteOf(points);
    target.trianglePoint().setWhitePos(whiteInReach ? QPointF(white.x, white.y) : QPointF(0.6, 0.6));
    return {original, target};
}

} // namespace

class TargetReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movedVertexMovesTheWhite();
    void placementReportsTheWholeTarget();
    void placementInNoFenceStillRecomputesAndEmits();
    void heldWhiteStaysWhereItIs();
    void equalTargetStopsAtOnce_data();
    void equalTargetStopsAtOnce();
    void unreachableWhiteFallsInStepsOfTen_data();
    void unreachableWhiteFallsInStepsOfTen();
    void noPrimaryMayBeNegative_data();
    void noPrimaryMayBeNegative();
    void reducedWhiteStopsWhereTheOriginalCanDeliver();
    void startsFromTheWhiteOfTheOriginal();
    void eachLimitCounts_data();
    void eachLimitCounts();
    void limitsHaveARelativeTolerance_data();
    void limitsHaveARelativeTolerance();
    void balancingEndsForMeaninglessLuminances_data();
    void balancingEndsForMeaninglessLuminances();
    void temperatureIsTheTruncatedInteger();
    void temperatureOfMeaninglessWhiteIsZero();
    void whiteReportCarriesTheTarget();
    void whiteReportTakesTheTemperatureFromDoubles();
    void whiteReportLeavesTheBeyondType();
    void updateComesBeforeTheReport();
    void reportsOutlastTheirCause();
    void getOriginalWhiteLightDoesNothing();
};

void TargetReportTest::movedVertexMovesTheWhite()
{
    Bench bench(reference::gamutPair(), false);
    const TrianglePoint points = bench.placed(QPointF(0.55, 0.3));
    const White white = whiteOf(points);
    QCOMPARE(describe(points.whiteLum()), describe(white.luminance));
    QCOMPARE(describe(points.whitePos()), describe(QPointF(white.x, white.y)));
    const TrianglePoint before = reference::narrowGamut().trianglePoint();
    QCOMPARE(points.redLum(), before.redLum());
    QCOMPARE(points.greenLum(), before.greenLum());
    QCOMPARE(points.blueLum(), before.blueLum());
    QVERIFY(points.whitePos().x() != before.whitePos().x());
}

void TargetReportTest::placementReportsTheWholeTarget()
{
    for (const bool held : {false, true}) {
        Bench bench(reference::gamutPair() + reference::gamutPair(), held);
        bench.placed(QPointF(0.55, 0.3));
        QCOMPARE(bench.log.takeSignals(),
            QStringList(QStringLiteral("signal_colorGamutValueChanged ")
                + describe(bench.scene.getLsColorTriangleObject().at(1))));
        QVERIFY(bench.log.takeUpdate());
        QCOMPARE(describe(bench.scene.getLsColorTriangleObject().mid(2)), describe(reference::gamutPair()));
        QCOMPARE(describe(bench.scene.getLsColorTriangleObject().at(0)), describe(reference::wideGamut()));
    }
}

void TargetReportTest::placementInNoFenceStillRecomputesAndEmits()
{
    Bench bench(reference::gamutPair(), false);
    const TrianglePoint points = bench.placed(inNoFence);
    const White white = whiteOf(reference::narrowGamut().trianglePoint());
    QCOMPARE(describe(points.whitePos()), describe(QPointF(white.x, white.y)));
    QCOMPARE(describe(points.redPos()), describe(reference::narrowGamut().trianglePoint().redPos()));
    QCOMPARE(bench.log.takeSignals().size(), 1);
}

void TargetReportTest::heldWhiteStaysWhereItIs()
{
    Bench bench(reference::gamutPair(), true);
    const TrianglePoint points = bench.placed(QPointF(0.55, 0.3));
    QCOMPARE(describe(points.whitePos()), describe(reference::narrowGamut().trianglePoint().whitePos()));
    const Luminances expected = luminancesFor(points, points.whiteLum());
    QCOMPARE(describe(points.redLum()), describe(expected.red));
    QCOMPARE(describe(points.greenLum()), describe(expected.green));
    QCOMPARE(describe(points.blueLum()), describe(expected.blue));
}

void TargetReportTest::equalTargetStopsAtOnce_data()
{
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    for (const double scale : {0.01, 1.0, 3.7, 1e6, 1e18}) {
        QTest::newRow(qPrintable(QString::number(scale))) << 31.0 * scale << 62.0 * scale << 7.0 * scale;
    }
    QTest::newRow("hardly any red") << 0.005 << 70.0 << 20.0;
    QTest::newRow("hardly any green") << 20.0 << 0.005 << 70.0;
    QTest::newRow("hardly any blue") << 20.0 << 70.0 << 0.005;
}

void TargetReportTest::equalTargetStopsAtOnce()
{
    QFETCH(double, red);
    QFETCH(double, green);
    QFETCH(double, blue);
    const QList<ColorTriangleObject> pair = equalPair({red, green, blue}, true);
    Bench bench(pair, true);
    const TrianglePoint points = bench.placed(inNoFence);
    const double white = whiteOf(pair.first().trianglePoint()).luminance;
    QCOMPARE(describe(points.whiteLum()), describe(white));
    const Luminances expected = luminancesFor(pair.last().trianglePoint(), white);
    QCOMPARE(describe(points.redLum()), describe(expected.red));
    QCOMPARE(describe(points.greenLum()), describe(expected.green));
    QCOMPARE(describe(points.blueLum()), describe(expected.blue));
}

void TargetReportTest::unreachableWhiteFallsInStepsOfTen_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::newRow("35 ends at 5") << 35.0 << 5.0;
    QTest::newRow("just above 10") << 10.5 << 0.5;
    QTest::newRow("10 is not below 10") << 10.0 << 0.0;
    QTest::newRow("below 10 stays") << 9.5 << 9.5;
    QTest::newRow("30 ends where nothing is asked for") << 30.0 << 0.0;
    QTest::newRow("a thousand") << 1000.25 << 0.25;
}

void TargetReportTest::noPrimaryMayBeNegative_data()
{
    QTest::addColumn<QPointF>("white");
    QTest::newRow("red") << QPointF(0.05, 0.3);
    QTest::newRow("green") << QPointF(0.4, 0.05);
    QTest::newRow("blue") << QPointF(0.6, 0.6);
}

// However low the white, one primary stays negative, while the others soon are within their limits.
void TargetReportTest::noPrimaryMayBeNegative()
{
    QFETCH(QPointF, white);
    QList<ColorTriangleObject> pair = equalPair({100.0, 300.0, 50.0}, true);
    pair[1].trianglePoint().setWhitePos(white);
    const Luminances within = luminancesFor(pair.at(1).trianglePoint(), 10.0);
    QVERIFY(within.red <= 100.0 && within.green <= 300.0 && within.blue <= 50.0);
    QCOMPARE(int(within.red < 0.0) + int(within.green < 0.0) + int(within.blue < 0.0), 1);
    Bench bench(pair, true);
    QCOMPARE(describe(bench.placed(inNoFence).whiteLum()), describe(0.0));
}

void TargetReportTest::unreachableWhiteFallsInStepsOfTen()
{
    QFETCH(double, start);
    QFETCH(double, end);
    Bench bench(equalPair({start / 4, start / 2, start / 4}, false), true);
    const TrianglePoint points = bench.placed(inNoFence);
    QCOMPARE(describe(points.whiteLum()), describe(end));
    const Luminances expected = luminancesFor(points, end);
    QCOMPARE(describe(points.redLum()), describe(expected.red));
    QCOMPARE(describe(points.blueLum()), describe(expected.blue));
    QVERIFY(points.blueLum() < 0.0 || end == 0.0);
}

// With green half as strong as the target's white needs, the white stops at the first step that green can deliver.
void TargetReportTest::reducedWhiteStopsWhereTheOriginalCanDeliver()
{
    QList<ColorTriangleObject> pair = equalPair({262.7, 678.0, 59.3}, true);
    pair[0].trianglePoint().setGreenLum(339.0);
    Bench bench(pair, true);
    const TrianglePoint points = bench.placed(inNoFence);
    QCOMPARE(describe(points.whiteLum()), describe(661.0 - 10.0 * 17));
    QVERIFY(points.greenLum() <= 339.0);
    QVERIFY(luminancesFor(points, points.whiteLum() + 10.0).green > 339.0);
}

void TargetReportTest::startsFromTheWhiteOfTheOriginal()
{
    QList<ColorTriangleObject> pair = equalPair({20.0, 70.0, 10.0}, true);
    pair[0].trianglePoint().setWhiteLum(12345.0); // not read
    pair[1].trianglePoint().setWhiteLum(54321.0);
    pair[1].trianglePoint().setRedLum(1.0);
    pair[1].trianglePoint().setGreenLum(1.0);
    pair[1].trianglePoint().setBlueLum(1.0);
    Bench bench(pair, true);
    QCOMPARE(describe(bench.placed(inNoFence).whiteLum()), describe(100.0));
}

void TargetReportTest::eachLimitCounts_data()
{
    QTest::addColumn<int>("primary");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
}

// A white a little on the side of one primary asks more of that primary than the original has.
void TargetReportTest::eachLimitCounts()
{
    QFETCH(int, primary);
    QList<ColorTriangleObject> pair = equalPair({100.0, 300.0, 50.0}, true);
    TrianglePoint more(pair[1].trianglePoint());
    more.setRedLum(primary == 0 ? 101.0 : 100.0);
    more.setGreenLum(primary == 1 ? 303.0 : 300.0);
    more.setBlueLum(primary == 2 ? 50.5 : 50.0);
    const White white = whiteOf(more);
    pair[1].trianglePoint().setWhitePos(QPointF(white.x, white.y));
    Bench bench(pair, true);
    QCOMPARE(describe(bench.placed(inNoFence).whiteLum()), describe(440.0));
}

void TargetReportTest::limitsHaveARelativeTolerance_data()
{
    QTest::addColumn<double>("excess");
    QTest::addColumn<bool>("stopsAtOnce");
    QTest::newRow("within") << 0.8e-9 << true;
    QTest::newRow("beyond") << 1.2e-9 << false;
    QTest::newRow("far beyond") << 1e-7 << false;
}

// The white is asked to be so much on the red side that red exceeds the original's by a given fraction.
void TargetReportTest::limitsHaveARelativeTolerance()
{
    QFETCH(double, excess);
    QFETCH(bool, stopsAtOnce);
    for (const double scale : {0.2, 1.0, 5000.0}) {
        QList<ColorTriangleObject> pair = equalPair({100.0 * scale, 300.0 * scale, 50.0 * scale}, true);
        TrianglePoint more(pair[1].trianglePoint());
        more.setRedLum(100.0 * scale * (1.0 + excess * 450.0 / 350.0)); // the white's luminance stays the same
        const White white = whiteOf(more);
        pair[1].trianglePoint().setWhitePos(QPointF(white.x, white.y));
        const Luminances first = luminancesFor(pair.at(1).trianglePoint(), 450.0 * scale);
        QVERIFY(qAbs((first.red / (100.0 * scale) - 1.0) / excess - 1.0) < 0.01);
        Bench bench(pair, true);
        QCOMPARE(
            describe(bench.placed(inNoFence).whiteLum()), describe(stopsAtOnce ? 450.0 * scale : 450.0 * scale - 10.0));
    }
}

void TargetReportTest::balancingEndsForMeaninglessLuminances_data()
{
    QTest::addColumn<double>("luminance");
    QTest::newRow("infinite") << infinity;
    QTest::newRow("minus infinite") << -infinity;
    QTest::newRow("not a number") << notANumber;
    QTest::newRow("a step of ten lost in rounding") << 1e18;
    QTest::newRow("at the end of the range") << 1e308;
    QTest::newRow("negative") << -100.0;
    QTest::newRow("zero") << 0.0;
}

void TargetReportTest::balancingEndsForMeaninglessLuminances()
{
    QFETCH(double, luminance);
    for (const bool whiteInReach : {true, false}) {
        for (int primary = 0; primary < 3; ++primary) {
            std::array<double, 3> luminances{100.0, 300.0, 50.0};
            luminances.at(static_cast<std::size_t>(primary)) = luminance;
            Bench bench(equalPair(luminances, whiteInReach), true);
            reference::SceneModel model(bench.scene.getLsColorTriangleObject());
            model.setImageWidth(512);
            model.setImageHeight(512);
            model.setColorTempertureChecked(true);
            model.setRequestedPoint(model.toScene(inNoFence));
            model.AddLedColorAndPoint();
            QCOMPARE(describe(bench.placed(inNoFence)), describe(model.triangles().at(1).trianglePoint()));
        }
    }
}

void TargetReportTest::temperatureIsTheTruncatedInteger()
{
    Bench bench(reference::gamutPair(), false);
    int expected = 0;
    ChromaSets::GetColorTemperatureNew(0.3127, 0.3291, expected);
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(0.3127, 0.3291)), expected);
    QVERIFY(expected > 6490 && expected < 6510);
    // Doubles: as floats these two come out one higher and one lower.
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(0.3383, 0.3164)), 5183);
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(0.2637, 0.2684)), 14789);
}

void TargetReportTest::temperatureOfMeaninglessWhiteIsZero()
{
    Bench bench(reference::gamutPair(), false);
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(notANumber, 0.3)), 0);
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(0.3, infinity)), 0);
    QCOMPARE(bench.scene.GetColourTemperatureValue(QPointF(0, 0)), 0);
}

void TargetReportTest::whiteReportCarriesTheTarget()
{
    for (const bool reasonable : {true, false}) {
        QList<ColorTriangleObject> pair = reference::gamutPair();
        if (!reasonable) {
            pair[1].trianglePoint().setGreenPos(QPointF(0.5, 0.6));
        }
        Bench bench(pair, false);
        reference::setRequestedPoint(bench.scene, bench.scene.ChromaToCurCoordinate(QPointF(0.4, 0.35)));
        bench.scene.MoveCentreTriangle();
        TargetInfoChangedEventArgs report;
        report.setColorTriangleObject(pair.at(1));
        int temperature = 0;
        ChromaSets::GetColorTemperatureNew(0.3127, 0.3290, temperature);
        report.setColourTemperature(temperature);
        report.setIsReasonableData(reasonable);
        QCOMPARE(bench.log.takeSignals(), QStringList(QStringLiteral("signal_targetInfoChanged ") + describe(report)));
    }
}

void TargetReportTest::whiteReportTakesTheTemperatureFromDoubles()
{
    QList<ColorTriangleObject> pair = reference::gamutPair();
    pair[1].trianglePoint().setWhitePos(QPointF(0.3383, 0.3164));
    Bench bench(pair, false);
    reference::setRequestedPoint(bench.scene, bench.scene.ChromaToCurCoordinate(QPointF(0.4, 0.35)));
    bench.scene.MoveCentreTriangle();
    const QStringList emitted = bench.log.takeSignals();
    QCOMPARE(emitted.size(), 1);
    QVERIFY(emitted.first().contains(QLatin1String(", 5183 K, ")));
}

void TargetReportTest::whiteReportLeavesTheBeyondType()
{
    QList<ColorTriangleObject> pair = reference::gamutPair();
    pair[1].trianglePoint().setGreenPos(QPointF(0.5, 0.6));
    Bench bench(pair, false);
    reference::setRequestedPoint(bench.scene, bench.scene.ChromaToCurCoordinate(QPointF(0.4, 0.35)));
    bench.scene.MoveCentreTriangle();
    QVERIFY(bench.log.takeSignals().value(0).endsWith(QLatin1String(", beyond 3, unreasonable")));
}

// A receiver that repaints at once shows the scene as reported.
void TargetReportTest::updateComesBeforeTheReport()
{
    Bench bench(reference::gamutPair(), false);
    QList<bool> updated;
    QObject context;
    QObject::connect(
        &bench.scene, &Scene::signal_colorGamutValueChanged, &context, [&] { updated << bench.log.takeUpdate(); });
    QObject::connect(
        &bench.scene, &Scene::signal_targetInfoChanged, &context, [&] { updated << bench.log.takeUpdate(); });
    bench.placed(QPointF(0.55, 0.3));
    reference::setRequestedPoint(bench.scene, bench.scene.ChromaToCurCoordinate(QPointF(0.33, 0.34)));
    bench.scene.MoveCentreTriangle();
    QCOMPARE(updated, QList<bool>({true, true}));
    QVERIFY(!bench.log.takeUpdate());
}

// Signals carry copies: what a receiver keeps does not change with the scene.
void TargetReportTest::reportsOutlastTheirCause()
{
    auto scene = std::make_unique<Scene>(reference::gamutPair());
    scene->setImageWidth(512);
    scene->setImageHeight(512);
    QList<ColorTriangleObject> kept;
    QObject context;
    QObject::connect(scene.get(), &Scene::signal_colorGamutValueChanged, &context,
        [&kept](const ColorTriangleObject &triangle) { kept << triangle; });
    QObject::connect(scene.get(), &Scene::signal_targetInfoChanged, &context,
        [&kept](const TargetInfoChangedEventArgs &report) { kept << report.colorTriangleObject(); });
    reference::setRequestedPoint(*scene, scene->ChromaToCurCoordinate(QPointF(0.55, 0.3)));
    scene->AddLedColorAndPoint();
    reference::setRequestedPoint(*scene, scene->ChromaToCurCoordinate(QPointF(0.33, 0.34)));
    scene->MoveCentreTriangle();
    const QString reported = describe(scene->getLsColorTriangleObject().at(1));
    scene->setLsColorTriangleObject({});
    scene.reset();
    QCOMPARE(kept.size(), 2);
    QCOMPARE(describe(kept.at(0)), reported);
    QCOMPARE(describe(kept.at(1)), reported);
}

void TargetReportTest::getOriginalWhiteLightDoesNothing()
{
    Bench bench(reference::gamutPair(), false);
    bench.scene.GetOriginalWhiteLight();
    QVERIFY(bench.log.takeSignals().isEmpty());
    QVERIFY(!bench.log.takeUpdate());
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), describe(reference::gamutPair()));
}

QTEST_MAIN(TargetReportTest)
#include "targetreporttest.moc"
