// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/mixedwhites.h>
#include <reference/samplegamuts.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QtTest>

#include <array>
#include <limits>
#include <memory>

using reference::describe;
using reference::Luminances;
using reference::luminancesFor;
using reference::White;
using reference::whiteOf;
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
    void balancingEndsForMeaninglessLuminances_data();
    void balancingEndsForMeaninglessLuminances();
    void heldWhiteIsLoweredUntilItCanBeDelivered();
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

void TargetReportTest::heldWhiteIsLoweredUntilItCanBeDelivered()
{
    Bench bench(equalPair({35.0 / 4, 35.0 / 2, 35.0 / 4}, false), true);
    const TrianglePoint points = bench.placed(inNoFence);
    QCOMPARE(describe(points.whiteLum()), describe(5.0));
    QCOMPARE(describe(points.blueLum()), describe(luminancesFor(points, 5.0).blue));
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
