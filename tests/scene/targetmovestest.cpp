// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/samplegamuts.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QtTest>

#include <cmath>
#include <limits>

using reference::describe;
using reference::stateOf;
using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

// A scene of the pair on a picture of 512 × 512: 540 pixels to a chromaticity of 1, the origin at (27, 483). Its
// original vertices are chromaticities, as construction leaves them.
struct Bench {
    Scene scene;
    reference::SceneSignalLog<Scene> log;

    explicit Bench(const QList<ColorTriangleObject> &triangles = reference::gamutPair())
        : scene(triangles)
        , log(&scene)
    {
        scene.setImageWidth(512);
        scene.setImageHeight(512);
        log.takeUpdate();
    }

    void request(const QPointF &chroma) { reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(chroma)); }

    void place(const QPointF &chroma)
    {
        request(chroma);
        scene.AddLedColorAndPoint();
        log.takeSignals();
        log.takeUpdate();
    }

    TrianglePoint target() { return scene.getLsColorTriangleObject().at(1).trianglePoint(); }

    // The target triangle takes three vertices; whether a white point requested at a chromaticity is accepted.
    bool acceptsWhite(const QPointF &red, const QPointF &green, const QPointF &blue, const QPointF &white)
    {
        QList<ColorTriangleObject> triangles = scene.getLsColorTriangleObject();
        triangles[1].trianglePoint().setRedPos(red);
        triangles[1].trianglePoint().setGreenPos(green);
        triangles[1].trianglePoint().setBluePos(blue);
        scene.setLsColorTriangleObject(triangles);
        request(white);
        scene.MoveCentreTriangle();
        return !log.takeSignals().isEmpty();
    }
};

} // namespace

class TargetMovesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void regions_data();
    void regions();
    void regionIsFoundInSinglePrecision_data();
    void regionIsFoundInSinglePrecision();
    void meaninglessPointsLieInNoFence();
    void flatEdgesAreHalfOpen();
    void uprightEdgesHoldTheirLeftOnly();
    void cornersReachATolerance();
    void degenerateTriangleHoldsItsCorners();
    void checkPassesForAnEqualTarget();
    void checkNamesTheFirstOffender_data();
    void checkNamesTheFirstOffender();
    void checkIgnoresTheWhitePoint();
    void checkToleratesInSinglePrecision_data();
    void checkToleratesInSinglePrecision();
    void checkRefusesMeaninglessPoints();
    void brightnessChecksAlwaysPass();
    void placementStoresTheExactChromaticity();
    void placementSelectsTheVertex();
    void placementNeedsTwoTriangles();
    void vertexFollowsInsideItsFence();
    void vertexDoesNotCrossFences();
    void vertexDoesNotLeaveTheOriginal();
    void acceptedMoveClearsTheOutOfBoundsFlag();
    void lockedModesRefuseVertices();
    void initialRegionIsNoFence();
    void whiteInsideTheTargetIsAccepted();
    void whiteOutsideTheTargetIsRefused();
    void whiteMoveTakesTheTargetAsItStands();
    void lockedWhiteIsRefused();
    void whiteMoveWithoutTargetKeepsTheVerdict();
    void vertexLockLeavesTheWhiteEditable();
    void pickedWhiteMoves();
    void missedWhiteFallsToTheVertex();
    void nothingIsPickedInLockedModes();
    void positionThatIsNoNumberPicksNothing();
    void clickSetsTheTab_data();
    void clickSetsTheTab();
    void clickWithoutTargetKeepsTheTab();
    void linesIntersect();
};

void TargetMovesTest::regions_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<int>("region");

    QTest::newRow("corner of all fences is red") << QPointF(0.33, 0.33) << 0;
    QTest::newRow("red") << QPointF(0.5, 0.2) << 0;
    QTest::newRow("green") << QPointF(0.2, 0.6) << 1;
    QTest::newRow("blue") << QPointF(0.15, 0.05) << 2;
    QTest::newRow("none") << QPointF(0.6, 0.6) << 3;
    QTest::newRow("none, between green and blue") << QPointF(0.16, 0.31) << 3;
    QTest::newRow("Rec. 709 red") << QPointF(0.64, 0.33) << 0;
    QTest::newRow("Rec. 709 green") << QPointF(0.30, 0.60) << 1;
    QTest::newRow("Rec. 709 blue") << QPointF(0.15, 0.06) << 2;

    QTest::newRow("shared edge's end is red") << QPointF(0.493, 0.517) << 0;
    QTest::newRow("beside the shared end, still red") << QPointF(0.4925, 0.5175) << 0;

    // The tolerance at the first three corners is 0.0010123456789, in each coordinate for itself.
    QTest::newRow("red corner, in reach of x") << QPointF(0.745012, 0.262) << 0;
    QTest::newRow("red corner, out of reach of x") << QPointF(0.745013, 0.262) << 3;
    QTest::newRow("red corner, in reach of y") << QPointF(0.744, 0.260988) << 0;
    QTest::newRow("red corner, out of reach of y") << QPointF(0.744, 0.260987) << 3;
    QTest::newRow("red corner, in reach of both") << QPointF(0.745, 0.263) << 0;
    QTest::newRow("green corner, in reach") << QPointF(0.2207, 0.7707) << 1;
    QTest::newRow("blue corner, in reach") << QPointF(0.1795, 0.0002) << 2;
    QTest::newRow("red fence's fourth corner has no reach") << QPointF(0.427, 0.1085) << 3;
    QTest::newRow("green fence's fourth corner has no reach") << QPointF(0.1187, 0.8309) << 3;
    QTest::newRow("blue fence's fourth corner has no reach") << QPointF(0.16, 0.0012) << 3;

    // At the height of a corner one of its two edges counts, and none at the topmost one.
    QTest::newRow("level with a corner") << QPointF(0.6, 0.262) << 0;
    QTest::newRow("topmost corner") << QPointF(0.073, 0.84) << 3;
    QTest::newRow("just below the topmost corner") << QPointF(0.073, 0.8395) << 1;

    // Each corner of each fence: a point a little inside and a little outside of it.
    QTest::newRow("red inside 1") << QPointF(0.4929, 0.514) << 0;
    QTest::newRow("red outside 1") << QPointF(0.4945, 0.5185) << 3;
    QTest::newRow("red inside 3") << QPointF(0.428, 0.114) << 0;
    QTest::newRow("green inside 3") << QPointF(0.118, 0.828) << 1;
    QTest::newRow("green outside 3") << QPointF(0.119, 0.831) << 3;
    QTest::newRow("green inside 5") << QPointF(0.028, 0.793) << 1;
    QTest::newRow("green outside 5") << QPointF(0.0245, 0.7945) << 3;
    QTest::newRow("green inside 6") << QPointF(0.009, 0.726) << 1;
    QTest::newRow("green outside 6") << QPointF(0.006, 0.727) << 3;
    QTest::newRow("green inside 7") << QPointF(0.006, 0.598) << 1;
    QTest::newRow("green outside 7") << QPointF(0.003, 0.598) << 3;
    QTest::newRow("green inside 8") << QPointF(0.011, 0.503) << 1;
    QTest::newRow("green outside 8") << QPointF(0.008, 0.501) << 3;
    QTest::newRow("green inside 9") << QPointF(0.030, 0.361) << 1;
    QTest::newRow("green outside 9") << QPointF(0.026, 0.361) << 3;
    QTest::newRow("green inside 10") << QPointF(0.042, 0.311) << 1;
    QTest::newRow("green outside 10") << QPointF(0.040, 0.308) << 3;
    QTest::newRow("blue inside 1") << QPointF(0.424, 0.1105) << 2;
    QTest::newRow("blue outside 1") << QPointF(0.4345, 0.1125) << 3;
    QTest::newRow("blue inside 3") << QPointF(0.161, 0.0035) << 2;
    QTest::newRow("blue inside 4") << QPointF(0.1525, 0.0075) << 2;
    QTest::newRow("blue outside 4") << QPointF(0.1500, 0.0065) << 3;
    QTest::newRow("blue inside 5") << QPointF(0.1465, 0.0145) << 2;
    QTest::newRow("blue outside 5") << QPointF(0.1440, 0.0135) << 3;
    QTest::newRow("blue inside 6") << QPointF(0.1245, 0.0435) << 2;
    QTest::newRow("blue outside 6") << QPointF(0.1220, 0.0425) << 3;
    QTest::newRow("blue inside 7") << QPointF(0.0815, 0.1465) << 2;
    QTest::newRow("blue outside 7") << QPointF(0.0790, 0.1455) << 3;
    QTest::newRow("blue inside 8") << QPointF(0.0430, 0.2905) << 2;
    // Where the blue fence's lower corners lie close together, a twentieth of a corner's height tells.
    QTest::newRow("blue corner 2, in reach below") << QPointF(0.179, 0.00001) << 2;
    QTest::newRow("blue just inside 3") << QPointF(0.16, 0.00205) << 2;
    QTest::newRow("blue just inside 4") << QPointF(0.1511, 0.0071) << 2;
    QTest::newRow("blue just inside 5") << QPointF(0.1451, 0.0143) << 2;
    QTest::newRow("blue outside 8") << QPointF(0.0400, 0.2910) << 3;
}

void TargetMovesTest::regions()
{
    QFETCH(QPointF, chroma);
    QFETCH(int, region);
    QCOMPARE(reference::fenceRegion(reference::narrowed(chroma)), region);
    Bench bench;
    bench.place(chroma);
    QCOMPARE(stateOf(bench.scene).selectedRegion, region);
}

void TargetMovesTest::regionIsFoundInSinglePrecision_data()
{
    QTest::addColumn<QPointF>("chroma");
    // On the edge that red and green share: as doubles, all of these lie on its green side.
    QTest::newRow("the point is narrowed") << QPointF(0.34664582251053716, 0.34909674153263948);
    QTest::newRow("the crossing is narrow") << QPointF(0.35087498904516295, 0.35394860877225931);
    QTest::newRow("the crossing is narrow too") << QPointF(0.33118748965983585, 0.33136233436462126);
}

void TargetMovesTest::regionIsFoundInSinglePrecision()
{
    QFETCH(QPointF, chroma);
    const double edge = (0.493 - 0.33) * (chroma.y() - 0.33) / (0.517 - 0.33) + 0.33;
    QVERIFY(chroma.x() > edge - 1e-7 && chroma.x() < edge + 1e-7);
    Bench bench;
    bench.place(chroma);
    QCOMPARE(stateOf(bench.scene).selectedRegion, 0);
}

void TargetMovesTest::meaninglessPointsLieInNoFence()
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QPointF &chroma : {QPointF(nan, nan), QPointF(nan, 0.3), QPointF(0.3, nan), QPointF(inf, 0.3),
             QPointF(-inf, 0.3), QPointF(0.3, inf), QPointF(0.3, -inf), QPointF(1e300, -1e300)}) {
        Bench bench;
        reference::setRequestedPoint(bench.scene, chroma);
        bench.scene.AddLedColorAndPoint();
        // Left of all fences at their height every edge counts twice.
        QCOMPARE(stateOf(bench.scene).selectedRegion, 3);
        QVERIFY(!stateOf(bench.scene).vertexSelected);
    }
}

void TargetMovesTest::flatEdgesAreHalfOpen()
{
    Bench bench;
    QVERIFY(bench.acceptsWhite(QPointF(0.2, 0.2), QPointF(0.6, 0.2), QPointF(0.4, 0.6), QPointF(0.4, 0.2)));
    QVERIFY(!bench.acceptsWhite(QPointF(0.2, 0.6), QPointF(0.6, 0.6), QPointF(0.4, 0.2), QPointF(0.4, 0.6)));
    // Two y values within the corners' tolerance are still two.
    QVERIFY(bench.acceptsWhite(QPointF(0.2, 0.6), QPointF(0.6, 0.6005), QPointF(0.4, 0.2), QPointF(0.5, 0.6002)));
}

void TargetMovesTest::uprightEdgesHoldTheirLeftOnly()
{
    Bench bench;
    QVERIFY(!bench.acceptsWhite(QPointF(0.5, 0.25), QPointF(0.5, 0.75), QPointF(0.25, 0.5), QPointF(0.5, 0.375)));
    QVERIFY(bench.acceptsWhite(QPointF(0.25, 0.25), QPointF(0.25, 0.75), QPointF(0.5, 0.5), QPointF(0.25, 0.375)));
}

void TargetMovesTest::cornersReachATolerance()
{
    Bench bench;
    const QPointF red(0.2, 0.2);
    const QPointF green(0.6, 0.2);
    const QPointF blue(0.4, 0.6);
    for (const QPointF &corner : {red, green, blue}) {
        const double outward = corner.x() < 0.3 ? -1.0 : 1.0;
        QVERIFY(bench.acceptsWhite(red, green, blue, corner + QPointF(outward * 0.00101, 0.00101)));
        QVERIFY(!bench.acceptsWhite(red, green, blue, corner + QPointF(outward * 0.00102, 0.0)));
    }
}

void TargetMovesTest::degenerateTriangleHoldsItsCorners()
{
    Bench bench;
    const QPointF point(0.3, 0.3);
    QVERIFY(bench.acceptsWhite(point, point, point, QPointF(0.301, 0.299)));
    QVERIFY(!bench.acceptsWhite(point, point, point, QPointF(0.302, 0.3)));
    QVERIFY(!bench.acceptsWhite(QPointF(0.2, 0.2), QPointF(0.6, 0.6), QPointF(0.4, 0.4), QPointF(0.3, 0.3)));
}

void TargetMovesTest::checkPassesForAnEqualTarget()
{
    Bench bench;
    baseCommon::LEDColorType beyond = baseCommon::Red;
    QVERIFY(bench.scene.CheckOriginalAndTarget(reference::wideGamut(), reference::wideGamut(), beyond));
    QCOMPARE(int(beyond), int(baseCommon::None));
    QCOMPARE(int(beyond), 3);
}

void TargetMovesTest::checkNamesTheFirstOffender_data()
{
    QTest::addColumn<bool>("redOut");
    QTest::addColumn<bool>("greenOut");
    QTest::addColumn<bool>("blueOut");
    QTest::addColumn<int>("beyond");
    QTest::newRow("none") << false << false << false << 3;
    QTest::newRow("red") << true << false << false << 0;
    QTest::newRow("green") << false << true << false << 1;
    QTest::newRow("blue") << false << false << true << 2;
    QTest::newRow("red and green") << true << true << false << 0;
    QTest::newRow("green and blue") << false << true << true << 1;
    QTest::newRow("all") << true << true << true << 0;
}

void TargetMovesTest::checkNamesTheFirstOffender()
{
    QFETCH(bool, redOut);
    QFETCH(bool, greenOut);
    QFETCH(bool, blueOut);
    QFETCH(int, beyond);
    const QPointF outside(0.7, 0.7);
    ColorTriangleObject target = reference::narrowGamut();
    if (redOut) {
        target.trianglePoint().setRedPos(outside);
    }
    if (greenOut) {
        target.trianglePoint().setGreenPos(outside);
    }
    if (blueOut) {
        target.trianglePoint().setBluePos(outside);
    }
    Bench bench;
    baseCommon::LEDColorType found = baseCommon::Blue;
    QCOMPARE(bench.scene.CheckOriginalAndTarget(reference::wideGamut(), target, found), beyond == 3);
    QCOMPARE(int(found), beyond);
}

void TargetMovesTest::checkIgnoresTheWhitePoint()
{
    ColorTriangleObject target = reference::narrowGamut();
    target.trianglePoint().setWhitePos(QPointF(0.9, 0.9));
    Bench bench;
    baseCommon::LEDColorType beyond = baseCommon::Red;
    QVERIFY(bench.scene.CheckOriginalAndTarget(reference::wideGamut(), target, beyond));
}

void TargetMovesTest::checkToleratesInSinglePrecision_data()
{
    QTest::addColumn<QPointF>("green");
    QTest::addColumn<bool>("inside");
    QTest::newRow("on an edge") << QPointF(0.439, 0.5445) << true;
    QTest::newRow("on a corner") << QPointF(0.17, 0.797) << true;
    QTest::newRow("half the tolerance out") << QPointF(0.4324, 0.5508) << true;
    QTest::newRow("twice the tolerance out") << QPointF(0.4324, 0.5511) << false;
    // Areas that differ by 0.00009999 as doubles and by 0.00010007 as floats, and the other way round.
    QTest::newRow("out as floats only") << QPointF(0.4324, 0.550881) << false;
    QTest::newRow("in as floats only") << QPointF(0.2037, 0.765553) << true;
}

void TargetMovesTest::checkToleratesInSinglePrecision()
{
    QFETCH(QPointF, green);
    QFETCH(bool, inside);
    ColorTriangleObject target = reference::narrowGamut();
    target.trianglePoint().setGreenPos(green);
    Bench bench;
    baseCommon::LEDColorType beyond = baseCommon::Red;
    QCOMPARE(bench.scene.CheckOriginalAndTarget(reference::wideGamut(), target, beyond), inside);
    QCOMPARE(int(beyond), int(inside ? baseCommon::None : baseCommon::Green));
}

void TargetMovesTest::checkRefusesMeaninglessPoints()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ColorTriangleObject target = reference::narrowGamut();
    target.trianglePoint().setBluePos(QPointF(nan, 0.1));
    Bench bench;
    baseCommon::LEDColorType beyond = baseCommon::Red;
    QVERIFY(!bench.scene.CheckOriginalAndTarget(reference::wideGamut(), target, beyond));
    QCOMPARE(int(beyond), int(baseCommon::Blue));
    QVERIFY(!bench.scene.CheckOriginalAndTarget(target, reference::wideGamut(), beyond));
    QCOMPARE(int(beyond), int(baseCommon::Red));
}

void TargetMovesTest::brightnessChecksAlwaysPass()
{
    Bench bench;
    QVERIFY(bench.scene.CompareBrightValue());
    QVERIFY(bench.scene.CompareSetBrightValueIsValid());
    bench.scene.setLsColorTriangleObject({});
    QVERIFY(bench.scene.CompareBrightValue());
    QVERIFY(bench.scene.CompareSetBrightValueIsValid());
}

void TargetMovesTest::placementStoresTheExactChromaticity()
{
    Bench bench;
    reference::setRequestedPoint(bench.scene, QPointF(350.1, 320.7));
    bench.scene.AddLedColorAndPoint();
    QCOMPARE(describe(bench.target().redPos()), describe(QPointF((350.1 - 27.0) / 540, (483.0 - 320.7) / 540)));
    QVERIFY(static_cast<double>(static_cast<float>(bench.target().redPos().x())) != bench.target().redPos().x());
}

void TargetMovesTest::placementSelectsTheVertex()
{
    Bench bench;
    const TrianglePoint before = bench.target();

    bench.place(QPointF(0.5, 0.2));
    reference::SceneState state = stateOf(bench.scene);
    QVERIFY(state.selectedRegion == 0 && state.selectedVertex == 1 && state.vertexSelected);
    QCOMPARE(describe(state.current), describe(state.requested));
    QCOMPARE(describe(bench.target().greenPos()), describe(before.greenPos()));
    QCOMPARE(describe(bench.target().bluePos()), describe(before.bluePos()));

    bench.place(QPointF(0.2, 0.6));
    state = stateOf(bench.scene);
    QVERIFY(state.selectedRegion == 1 && state.selectedVertex == 2 && state.vertexSelected);
    QCOMPARE(describe(bench.target().greenPos()), describe(bench.scene.CurCoordinateToChroma(state.requested)));

    bench.place(QPointF(0.15, 0.05));
    state = stateOf(bench.scene);
    QVERIFY(state.selectedRegion == 2 && state.selectedVertex == 3 && state.vertexSelected);
    QCOMPARE(describe(bench.target().bluePos()), describe(bench.scene.CurCoordinateToChroma(state.requested)));

    const TrianglePoint after = bench.target();
    bench.place(QPointF(0.6, 0.6));
    state = stateOf(bench.scene);
    QVERIFY(state.selectedRegion == 3 && state.selectedVertex == 0 && !state.vertexSelected);
    QCOMPARE(describe(bench.target().redPos()), describe(after.redPos()));
    QCOMPARE(describe(bench.target().greenPos()), describe(after.greenPos()));
    QCOMPARE(describe(bench.target().bluePos()), describe(after.bluePos()));
}

void TargetMovesTest::placementNeedsTwoTriangles()
{
    for (const QList<ColorTriangleObject> &triangles :
        {QList<ColorTriangleObject>(), QList<ColorTriangleObject>{reference::wideGamut()}}) {
        Bench bench(triangles);
        bench.request(QPointF(0.5, 0.2));
        bench.scene.AddLedColorAndPoint();
        const reference::SceneState state = stateOf(bench.scene);
        QCOMPARE(state.selectedRegion, 0);
        QCOMPARE(describe(state.current), describe(state.requested));
        QVERIFY(state.selectedVertex == 0 && !state.vertexSelected);
        QVERIFY(bench.log.takeSignals().isEmpty());
        QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), describe(triangles));
        bench.scene.RefreshEllipseSignPosition();
        QVERIFY(bench.log.takeSignals().isEmpty());
    }
}

void TargetMovesTest::vertexFollowsInsideItsFence()
{
    Bench bench;
    bench.place(QPointF(0.5, 0.3));
    bench.request(QPointF(0.55, 0.3));
    bench.scene.MoveEllipseSign();
    QCOMPARE(bench.log.takeSignals().size(), 1);
    QVERIFY(bench.log.takeUpdate());
    QCOMPARE(
        describe(bench.target().redPos()), describe(bench.scene.CurCoordinateToChroma(stateOf(bench.scene).requested)));
    QCOMPARE(describe(stateOf(bench.scene).current), describe(stateOf(bench.scene).requested));
}

void TargetMovesTest::vertexDoesNotCrossFences()
{
    Bench bench;
    bench.place(QPointF(0.5, 0.3));
    const QString before = describe(bench.scene.getLsColorTriangleObject());
    bench.request(QPointF(0.3, 0.5));
    bench.scene.MoveEllipseSign();
    bench.scene.RefreshEllipseSignPosition();
    QVERIFY(bench.log.takeSignals().isEmpty());
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), before);
    QVERIFY(!stateOf(bench.scene).outOfBounds);
    QCOMPARE(stateOf(bench.scene).selectedRegion, 0);
}

void TargetMovesTest::vertexDoesNotLeaveTheOriginal()
{
    Bench bench;
    bench.place(QPointF(0.5, 0.3));
    const QString before = describe(bench.scene.getLsColorTriangleObject());
    bench.request(QPointF(0.43, 0.115)); // in the red fence, below the original's purples
    bench.scene.MoveEllipseSign();
    QVERIFY(bench.log.takeSignals().isEmpty());
    QVERIFY(bench.log.takeUpdate());
    QVERIFY(stateOf(bench.scene).outOfBounds);
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), before);
    QVERIFY(stateOf(bench.scene).current.x() != stateOf(bench.scene).requested.x());
}

void TargetMovesTest::acceptedMoveClearsTheOutOfBoundsFlag()
{
    Bench bench;
    bench.place(QPointF(0.5, 0.3));
    bench.request(QPointF(0.43, 0.115));
    bench.scene.MoveEllipseSign();
    bench.request(QPointF(0.3, 0.5)); // inside the original, in another fence
    bench.scene.MoveEllipseSign();
    QVERIFY(!stateOf(bench.scene).outOfBounds);
}

void TargetMovesTest::lockedModesRefuseVertices()
{
    for (const int mode : {1, 2}) {
        Bench bench;
        bench.place(QPointF(0.5, 0.3));
        reference::setEditMode(bench.scene, mode);
        bench.request(QPointF(0.55, 0.3));
        bench.scene.MoveEllipseSign();
        QVERIFY(bench.log.takeSignals().isEmpty());
        QVERIFY(stateOf(bench.scene).outOfBounds);
    }
}

void TargetMovesTest::initialRegionIsNoFence()
{
    Bench bench;
    bench.request(QPointF(0.5, 0.3));
    bench.scene.RefreshEllipseSignPosition();
    QVERIFY(bench.log.takeSignals().isEmpty());
    bench.request(QPointF(0.16, 0.31)); // in no fence, inside the original
    bench.scene.MoveEllipseSign();
    QCOMPARE(bench.log.takeSignals().size(), 1);
}

void TargetMovesTest::whiteInsideTheTargetIsAccepted()
{
    Bench bench;
    bench.request(QPointF(0.33, 0.34));
    bench.scene.MoveCentreTriangle();
    const QStringList emitted = bench.log.takeSignals();
    QCOMPARE(emitted.size(), 1);
    QVERIFY(emitted.first().startsWith(QLatin1String("signal_targetInfoChanged ")));
    QVERIFY(bench.log.takeUpdate());
    QVERIFY(stateOf(bench.scene).whiteMoved);
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), describe(reference::gamutPair()));
}

void TargetMovesTest::whiteOutsideTheTargetIsRefused()
{
    Bench bench;
    bench.request(QPointF(0.33, 0.34));
    bench.scene.MoveCentreTriangle();
    bench.log.takeSignals();
    bench.log.takeUpdate();
    bench.request(QPointF(0.2, 0.6)); // inside the original only
    bench.scene.MoveCentreTriangle();
    QVERIFY(bench.log.takeSignals().isEmpty());
    QVERIFY(!bench.log.takeUpdate());
    QVERIFY(!stateOf(bench.scene).whiteMoved);
}

void TargetMovesTest::whiteMoveTakesTheTargetAsItStands()
{
    Bench bench;
    QVERIFY(bench.acceptsWhite(QPointF(0.7, 0.1), QPointF(0.7, 0.5), QPointF(0.5, 0.3), QPointF(0.6, 0.3)));
    QVERIFY(!bench.acceptsWhite(QPointF(0.1, 0.1), QPointF(0.1, 0.5), QPointF(0.3, 0.3), QPointF(0.6, 0.3)));
}

void TargetMovesTest::lockedWhiteIsRefused()
{
    Bench bench;
    bench.request(QPointF(0.33, 0.34));
    bench.scene.MoveCentreTriangle();
    bench.log.takeSignals();
    reference::setEditMode(bench.scene, 1);
    bench.scene.MoveCentreTriangle();
    QVERIFY(bench.log.takeSignals().isEmpty());
    QVERIFY(!stateOf(bench.scene).whiteMoved);
}

void TargetMovesTest::whiteMoveWithoutTargetKeepsTheVerdict()
{
    Bench bench;
    bench.request(QPointF(0.33, 0.34));
    bench.scene.MoveCentreTriangle();
    bench.log.takeSignals();
    bench.scene.setLsColorTriangleObject({reference::wideGamut()});
    for (const QPointF &white : {QPointF(0.33, 0.34), QPointF(0.2, 0.6)}) {
        bench.request(white);
        bench.scene.MoveCentreTriangle();
        QVERIFY(bench.log.takeSignals().isEmpty());
        QVERIFY(stateOf(bench.scene).whiteMoved);
    }
}

void TargetMovesTest::vertexLockLeavesTheWhiteEditable()
{
    Bench bench;
    bench.place(QPointF(0.5, 0.3));
    bench.scene.setRGBPointEnable(false);
    bench.request(QPointF(0.55, 0.3));
    bench.scene.MoveEllipseSign();
    QVERIFY(bench.log.takeSignals().isEmpty());
    bench.request(QPointF(0.33, 0.34));
    bench.scene.MoveCentreTriangle();
    QCOMPARE(bench.log.takeSignals().size(), 1);
}

void TargetMovesTest::pickedWhiteMoves()
{
    Bench bench;
    const QPointF white = bench.scene.ChromaToCurCoordinate(bench.target().whitePos());
    for (const QPointF &offset : {QPointF(0, 0), QPointF(4, -4), QPointF(-4, 4)}) {
        reference::setRequestedPoint(bench.scene, white + offset);
        bench.log.takeUpdate();
        bench.scene.MouseSelectedPoint(white + offset);
        const QStringList emitted = bench.log.takeSignals();
        QCOMPARE(emitted.size(), 1);
        QVERIFY(emitted.first().startsWith(QLatin1String("signal_targetInfoChanged ")));
        QVERIFY(bench.log.takeUpdate());
        QVERIFY(stateOf(bench.scene).centreSelected);
    }
    reference::setEditMode(bench.scene, 2);
    bench.scene.MouseSelectedPoint(white);
    QCOMPARE(bench.log.takeSignals().size(), 1);
}

void TargetMovesTest::missedWhiteFallsToTheVertex()
{
    Bench bench;
    const QPointF white = bench.scene.ChromaToCurCoordinate(bench.target().whitePos());
    for (const QPointF &offset : {QPointF(8, 0), QPointF(0, -8), QPointF(-8, 8), QPointF(0, 8), QPointF(-8, 0)}) {
        reference::setRequestedPoint(bench.scene, white + offset);
        bench.scene.MouseSelectedPoint(white + offset);
        const QStringList emitted = bench.log.takeSignals();
        QCOMPARE(emitted.size(), 1);
        QVERIFY(emitted.first().startsWith(QLatin1String("signal_colorGamutValueChanged ")));
        QVERIFY(!stateOf(bench.scene).centreSelected);
        bench.scene.setLsColorTriangleObject(reference::gamutPair());
    }
}

void TargetMovesTest::nothingIsPickedInLockedModes()
{
    Bench bench;
    const QPointF white = bench.scene.ChromaToCurCoordinate(bench.target().whitePos());
    reference::setEditMode(bench.scene, 1);
    reference::setRequestedPoint(bench.scene, white);
    bench.scene.MouseSelectedPoint(white);
    QVERIFY(bench.log.takeSignals().isEmpty());
    const QPointF red = bench.scene.ChromaToCurCoordinate(QPointF(0.64, 0.33));
    reference::setRequestedPoint(bench.scene, red);
    for (const int mode : {1, 2}) {
        reference::setEditMode(bench.scene, mode);
        bench.scene.MouseSelectedPoint(red);
        QVERIFY(bench.log.takeSignals().isEmpty());
    }
}

void TargetMovesTest::positionThatIsNoNumberPicksNothing()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QPointF &position : {QPointF(nan, nan), QPointF(nan, 300.0), QPointF(200.0, nan)}) {
        Bench bench;
        bench.scene.MouseSelectedPoint(position);
        QVERIFY(!stateOf(bench.scene).centreSelected);
    }
    QList<ColorTriangleObject> triangles = reference::gamutPair();
    triangles[1].trianglePoint().setWhitePos(QPointF(nan, nan));
    Bench bench(triangles);
    bench.scene.MouseSelectedPoint(QPointF(200.0, 300.0));
    QVERIFY(!stateOf(bench.scene).centreSelected);
}

void TargetMovesTest::clickSetsTheTab_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<int>("tab");
    QTest::newRow("red") << QPointF(0.5, 0.2) << 4;
    QTest::newRow("green") << QPointF(0.2, 0.6) << 1;
    QTest::newRow("blue") << QPointF(0.15, 0.05) << 3;
    QTest::newRow("none") << QPointF(0.6, 0.6) << 0;
}

void TargetMovesTest::clickSetsTheTab()
{
    QFETCH(QPointF, chroma);
    QFETCH(int, tab);
    Bench bench;
    bench.scene.MouseClickAire(bench.scene.ChromaToCurCoordinate(QPointF(0.3, 0.7)));
    bench.scene.MouseClickAire(bench.scene.ChromaToCurCoordinate(chroma));
    QCOMPARE(stateOf(bench.scene).selectedTab, tab);
    QVERIFY(bench.log.takeSignals().isEmpty());
}

void TargetMovesTest::clickWithoutTargetKeepsTheTab()
{
    Bench bench;
    bench.scene.MouseClickAire(bench.scene.ChromaToCurCoordinate(QPointF(0.5, 0.2)));
    bench.scene.setLsColorTriangleObject({reference::wideGamut()});
    bench.scene.MouseClickAire(bench.scene.ChromaToCurCoordinate(QPointF(0.2, 0.6)));
    QCOMPARE(stateOf(bench.scene).selectedTab, 4);
}

void TargetMovesTest::linesIntersect()
{
    Bench bench;
    QPointF crossing;
    QVERIFY(bench.scene.SolveLinearSystem(0.5, 0.1, -1.0, 0.4, crossing));
    QCOMPARE(describe(crossing), describe(QPointF(static_cast<double>(0.2F), static_cast<double>(0.2F))));
    QVERIFY(!bench.scene.SolveLinearSystem(0.5, 0.1, 0.5, 0.4, crossing));
    QVERIFY(!bench.scene.SolveLinearSystem(0.5, 0.1, 0.5, 0.1, crossing));
}

QTEST_MAIN(TargetMovesTest)
#include "targetmovestest.moc"
