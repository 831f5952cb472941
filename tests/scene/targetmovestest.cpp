// SPDX-FileCopyrightText: 2026 the ceiechart authors
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

bool isAt(const QPointF &point, double x, double y)
{
    return point.x() == x && point.y() == y;
}

bool isNear(const QPointF &point, double x, double y)
{
    return std::fabs(point.x() - x) < 1e-5 && std::fabs(point.y() - y) < 1e-5;
}

// Before anything is rendered chromaticity (0, 0) is the scene's corner and 1.0 spans 100 pixels: exact positions.
QPointF positionOf(const QPointF &chroma)
{
    return QPointF(100 * chroma.x(), -100 * chroma.y());
}

QPointF chromaOf(const QPointF &position)
{
    return QPointF(position.x() / 100, -position.y() / 100);
}

const QPointF originalRed(0.75, 0.25);
const QPointF originalGreen(0.25, 0.75);
const QPointF originalBlue(0.125, 0.0625);
const QPointF targetRed(0.5, 0.3);
const QPointF targetGreen(0.3, 0.5);
const QPointF targetBlue(0.2, 0.3);

QList<ColorTriangleObject> edgedGamuts()
{
    const auto gamut = [](const QPointF &red, const QPointF &green, const QPointF &blue) {
        return reference::sampleGamut(red, green, blue, 200, 700, 100, 0);
    };
    return {gamut(originalRed, originalGreen, originalBlue), gamut(targetRed, targetGreen, targetBlue)};
}

const QPointF untouched(-7, -8);

} // namespace

class TargetMovesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
    void pickedWhiteMoves();
    void missedWhiteFallsToTheVertex();
    void nothingIsPickedInLockedModes();
    void positionThatIsNoNumberPicksNothing();
    void clickSetsTheTab_data();
    void clickSetsTheTab();
    void clickWithoutTargetKeepsTheTab();
    void linesAreThoseOfThePlane();
    void intersectionBecomesTheRequestedPoint();
    void parallelsLeaveTheRequestedPoint();
    void crossingIsHeldToTheEdge();
    void rectangleHoldsPositions();
    void fencesTellWhichPositionsAreInAny();
    void requestGoesToAnEdge_data();
    void requestGoesToAnEdge();
    void otherTabsRequestNothing();
    void fewerThanTwoGamutsRequestNothing();
};

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

void TargetMovesTest::linesAreThoseOfThePlane()
{
    Scene scene({});
    QPointF crossing;
    QVERIFY(scene.SolveLinearSystem(0.5, 0.1, -1.0, 0.4, crossing));
    QCOMPARE(describe(crossing), describe(QPointF(static_cast<double>(0.2F), static_cast<double>(0.2F))));
    QVERIFY(!scene.SolveLinearSystem(0.5, 0.1, 0.5, 0.4, crossing));
    double k = 0.0;
    double b = 0.0;
    QVERIFY(scene.GetStraightLine(QPointF(0.25, 0.5), QPointF(0.75, 0.25), k, b));
    QVERIFY(k == -0.5 && b == 0.625);
    QVERIFY(!scene.GetStraightLine(QPointF(0.25, 0.5), QPointF(0.25, 0.75), k, b));
    const QPointF held = scene.ComparePointPosition(QPointF(1, 0), QPointF(0.25, 0.75), QPointF(0.75, 0.25));
    QVERIFY(isAt(held, 0.75, 0.25));
}

void TargetMovesTest::intersectionBecomesTheRequestedPoint()
{
    Scene scene({});
    reference::setRequestedPoint(scene, untouched);
    QVERIFY(scene.GetIntersectionPoint(QPointF(0, 0), QPointF(1, 1), QPointF(0, 0.5), QPointF(0.5, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 25, -25));
}

void TargetMovesTest::parallelsLeaveTheRequestedPoint()
{
    Scene scene({});
    reference::setRequestedPoint(scene, untouched);
    QVERIFY(!scene.GetIntersectionPoint(QPointF(0, 0), QPointF(1, 0.5), QPointF(0, 1), QPointF(1, 1.5)));
    QVERIFY(!scene.GetIntersectionPoint(QPointF(1, 0), QPointF(1, 0.5), QPointF(2, 1), QPointF(2, 1.5)));
    const QPointF requested = reference::stateOf(scene).requested;
    QVERIFY(isAt(requested, untouched.x(), untouched.y()));
}

void TargetMovesTest::crossingIsHeldToTheEdge()
{
    Scene scene({});
    const QPointF from(0.25, 0.25);
    const QPointF to(0.5, 0.5);
    QVERIFY(scene.GetIntersectionPoint(from, to, QPointF(0, 0.125), QPointF(0.125, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 25, -25));
    QVERIFY(scene.GetIntersectionPoint(from, to, QPointF(0, 2), QPointF(2, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 50, -50));
    QVERIFY(scene.GetIntersectionPoint(to, from, QPointF(0, 2), QPointF(2, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 50, -50));
}

void TargetMovesTest::rectangleHoldsPositions()
{
    Scene scene({}); // 672 × 728
    const auto held = [&scene](double x, double y) { return scene.LimitInRectangle(QPointF(x, y)); };
    QVERIFY(isAt(held(0, 0), 0, 0));
    QVERIFY(isAt(held(672, 728), 672, 728));
    QVERIFY(isAt(held(12.25, 700.5), 12.25, 700.5));
    QVERIFY(isAt(held(-0.5, 30), 0, 30));
    QVERIFY(isAt(held(30, -0.5), 30, 0));
    QVERIFY(isAt(held(672.5, 30), 672, 30));
    QVERIFY(isAt(held(30, 728.5), 30, 728));
    scene.setImageWidth(0);
    QVERIFY(isAt(held(5, 5), 0, 5));
    scene.setImageHeight(-40);
    QVERIFY(isAt(held(5, 5), 0, 0));
}

void TargetMovesTest::fencesTellWhichPositionsAreInAny()
{
    Scene scene({});
    for (const QPointF &inside : {QPointF(0.6, 0.3), QPointF(0.3, 0.6), QPointF(0.15, 0.1)}) {
        QVERIFY(scene.GetPointInFences(positionOf(inside)));
    }
    for (const QPointF &outside : {QPointF(0.75, 0.5), QPointF(0.02, 0.1), QPointF(0.6, 0.02), QPointF(-1, -1)}) {
        QVERIFY(!scene.GetPointInFences(positionOf(outside)));
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!scene.GetPointInFences(QPointF(nan, nan)));
}

void TargetMovesTest::requestGoesToAnEdge_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QPointF>("edgeFrom");
    QTest::addColumn<QPointF>("edgeTo");
    QTest::addColumn<QPointF>("vertex");
    const int red = NewCEIE::TabSelectedRed;
    const int green = NewCEIE::TabSelectedGreen;
    const int blue = NewCEIE::TabSelectedBlue;
    QTest::newRow("below red") << red << QPointF(0.6, 0.125) << originalBlue << originalRed << targetGreen;
    QTest::newRow("level with red") << red << QPointF(0.8, 0.25) << originalGreen << originalRed << targetBlue;
    QTest::newRow("above red") << red << QPointF(0.8, 0.375) << originalGreen << originalRed << targetBlue;
    QTest::newRow("right of green") << green << QPointF(0.5, 0.75) << originalGreen << originalRed << targetBlue;
    QTest::newRow("straight at green") << green << QPointF(0.25, 0.5) << originalGreen << originalRed << targetBlue;
    QTest::newRow("left of green") << green << QPointF(0.1, 0.5) << originalBlue << originalGreen << targetRed;
    QTest::newRow("right of blue") << blue << QPointF(0.4, 0.05) << originalRed << originalBlue << targetGreen;
    QTest::newRow("straight at blue") << blue << QPointF(0.125, 0.25) << originalGreen << originalBlue << targetRed;
    QTest::newRow("left of blue") << blue << QPointF(0.05, 0.3) << originalGreen << originalBlue << targetRed;
}

void TargetMovesTest::requestGoesToAnEdge()
{
    QFETCH(int, tab);
    QFETCH(QPointF, position);
    QFETCH(QPointF, edgeFrom);
    QFETCH(QPointF, edgeTo);
    QFETCH(QPointF, vertex);

    Scene scene({});
    scene.setLsColorTriangleObject(edgedGamuts());
    reference::selectTab(scene, tab);
    reference::setRequestedPoint(scene, untouched);
    scene.GetSelectedEllipseSign(positionOf(position));

    // The crossing, by how far along the edge it lies.
    const QPointF edge = edgeTo - edgeFrom;
    const QPointF line = vertex - position;
    const QPointF gap = position - edgeFrom;
    const double along = (gap.x() * line.y() - gap.y() * line.x()) / (edge.x() * line.y() - edge.y() * line.x());
    QVERIFY(along > 0 && along < 1);
    const QPointF expected = edgeFrom + edge * along;
    const QPointF requested = chromaOf(reference::stateOf(scene).requested);
    QVERIFY2(isNear(requested, expected.x(), expected.y()),
        qPrintable(QStringLiteral("(%1, %2) instead of (%3, %4)")
                       .arg(requested.x())
                       .arg(requested.y())
                       .arg(expected.x())
                       .arg(expected.y())));
}

void TargetMovesTest::otherTabsRequestNothing()
{
    for (const int tab : {NewCEIE::TabSelectedNone, NewCEIE::TabSelectedWhite}) {
        Scene scene({});
        scene.setLsColorTriangleObject(edgedGamuts());
        reference::selectTab(scene, tab);
        reference::setRequestedPoint(scene, untouched);
        scene.GetSelectedEllipseSign(positionOf(QPointF(0.6, 0.125)));
        const QPointF requested = reference::stateOf(scene).requested;
        QVERIFY(isAt(requested, untouched.x(), untouched.y()));
    }
}

void TargetMovesTest::fewerThanTwoGamutsRequestNothing()
{
    for (const QList<ColorTriangleObject> &list : {edgedGamuts().mid(0, 1), QList<ColorTriangleObject>()}) {
        Scene scene({});
        scene.setLsColorTriangleObject(list);
        reference::selectTab(scene, NewCEIE::TabSelectedRed);
        reference::setRequestedPoint(scene, untouched);
        scene.GetSelectedEllipseSign(positionOf(QPointF(0.6, 0.125)));
        const QPointF requested = reference::stateOf(scene).requested;
        QVERIFY(isAt(requested, untouched.x(), untouched.y()));
    }
}

QTEST_MAIN(TargetMovesTest)
#include "targetmovestest.moc"
