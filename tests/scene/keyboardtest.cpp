// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/samplegamuts.h>
#include <reference/sceneevents.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QtTest>

using reference::describe;
using reference::stateOf;
using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

// The pair on a picture of 1000 × 1000, where 1054 pixels span a chromaticity of 1, red picked in its fence's
// middle: there is room for 40 pixels all around.
struct Bench {
    Scene scene;
    reference::SceneSignalLog<Scene> log;

    Bench()
        : scene(reference::gamutPair())
        , log(&scene)
    {
        scene.setImageWidth(1000);
        scene.setImageHeight(1000);
        clear();
    }

    void pick(const QPointF &chroma = QPointF(0.52, 0.3))
    {
        reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(chroma));
        scene.AddLedColorAndPoint();
        clear();
    }

    void clear()
    {
        log.takeSignals();
        log.takeUpdate();
    }

    void send(QEvent::Type type, int key, bool autoRepeat = false) { reference::sendKey(scene, type, key, autoRepeat); }

    // How far a press moves the current point, in x and y.
    QPointF moved(int key)
    {
        const QPointF before = stateOf(scene).current;
        send(QEvent::KeyPress, key);
        return stateOf(scene).current - before;
    }

    QPointF red() { return scene.getLsColorTriangleObject().at(1).trianglePoint().redPos(); }
};

bool isStep(double moved, float step)
{
    return qAbs(moved - static_cast<double>(step)) < 1e-9;
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void arrowsMoveTheVertex_data();
    void arrowsMoveTheVertex();
    void stepIsSinglePrecision();
    void heldKeyReachesElevenSteps();
    void changeOfDirectionStartsOver();
    void lettersCountButDoNotMove();
    void sameArrowAfterLettersAccelerates();
    void everyKeyCounts();
    void releaseDoesNotResetTheAcceleration();
    void clearSpeedUpStepClearsCountAndAcceleration();
    void nothingSelectedMovesNothing();
    void requestFollowsTheCurrentPointEvenSo();
    void vertexGoesBeforeTheWhite();
    void selectedWhiteStartsFromItsHandle();
    void pendingRestorePutsTheCurrentPointBack();
    void savedPointIsTheOneBeforeThePress();
    void spaceAsksForTheOpenHand();
    void spaceReleaseUpdates();
    void refusedMoveIsForgottenAtRelease();
    void refusedMoveLeavesTheHandle();
    void eventsKeepTheirAcceptance()
    {
        Bench bench;
        reference::verifyKeyEventsKeepTheirAcceptance(bench.scene);
    }
    void zoomInStopsPastItsLimit();
    void zoomOutHasNoFloor();
    void functionModes_data();
    void functionModes();
    void otherKeyClearsTheHand();
};

void KeyboardTest::arrowsMoveTheVertex_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPointF>("direction");
    QTest::newRow("left") << int(Qt::Key_Left) << QPointF(-1, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << QPointF(1, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << QPointF(0, -1);
    QTest::newRow("down") << int(Qt::Key_Down) << QPointF(0, 1);
}

void KeyboardTest::arrowsMoveTheVertex()
{
    QFETCH(int, key);
    QFETCH(QPointF, direction);
    Bench bench;
    bench.pick();
    const QPointF before = stateOf(bench.scene).current;
    const double step = static_cast<double>(0.1F);
    bench.send(QEvent::KeyPress, key);
    const QPointF expected(before.x() + direction.x() * step, before.y() + direction.y() * step);
    QCOMPARE(describe(stateOf(bench.scene).requested), describe(expected));
    QCOMPARE(describe(stateOf(bench.scene).current), describe(expected));
    QCOMPARE(describe(bench.red()), describe(bench.scene.CurCoordinateToChroma(expected)));
    const QStringList emitted = bench.log.takeSignals();
    QCOMPARE(emitted.size(), 1);
    QVERIFY(emitted.first().startsWith(QLatin1String("signal_colorGamutValueChanged ")));
}

void KeyboardTest::stepIsSinglePrecision()
{
    Bench bench;
    bench.send(QEvent::KeyPress, Qt::Key_Right);
    QCOMPARE(describe(stateOf(bench.scene).requested), describe(QPointF(0.10000000149011612, 0.0)));
}

void KeyboardTest::heldKeyReachesElevenSteps()
{
    Bench bench;
    bench.pick();
    for (int press = 1; press <= 30; ++press) {
        const int factor = press < 12 ? 1 : qMin(press - 11, 11);
        const QPointF moved = bench.moved(Qt::Key_Left);
        QVERIFY2(isStep(-moved.x(), 0.1F * static_cast<float>(factor)), qPrintable(QString::number(press)));
        QCOMPARE(moved.y(), 0.0);
    }
    const QPointF before = stateOf(bench.scene).current;
    bench.send(QEvent::KeyPress, Qt::Key_Left, true);
    QCOMPARE(stateOf(bench.scene).requested.x(), before.x() - static_cast<double>(0.1F * 11.0F));
}

void KeyboardTest::changeOfDirectionStartsOver()
{
    Bench bench;
    bench.pick();
    for (int i = 0; i < 15; ++i) {
        bench.moved(Qt::Key_Left);
    }
    for (int press = 1; press <= 12; ++press) {
        QVERIFY2(isStep(bench.moved(Qt::Key_Right).x(), 0.1F), qPrintable(QString::number(press)));
    }
    QVERIFY(isStep(bench.moved(Qt::Key_Right).x(), 0.2F));
    QVERIFY(isStep(bench.moved(Qt::Key_Up).y(), -0.1F));
    QVERIFY(isStep(bench.moved(Qt::Key_Down).y(), 0.1F));
}

void KeyboardTest::lettersCountButDoNotMove()
{
    Bench bench;
    bench.pick();
    const QString before = describe(stateOf(bench.scene).current);
    for (int i = 0; i < 20; ++i) {
        bench.send(QEvent::KeyPress, Qt::Key_A);
    }
    QCOMPARE(describe(stateOf(bench.scene).current), before);
    QVERIFY(bench.log.takeSignals().isEmpty());
}

// A letter does not become the last key: the same arrow before and after it goes on.
void KeyboardTest::sameArrowAfterLettersAccelerates()
{
    Bench bench;
    bench.pick();
    bench.moved(Qt::Key_Up);
    for (int i = 0; i < 20; ++i) {
        bench.send(QEvent::KeyPress, Qt::Key_A);
    }
    QVERIFY(isStep(bench.moved(Qt::Key_Up).y(), -0.1F));
    QVERIFY(isStep(bench.moved(Qt::Key_Up).y(), -0.2F));
}

void KeyboardTest::everyKeyCounts()
{
    Bench bench;
    bench.pick();
    bench.moved(Qt::Key_Down); // counts one
    for (int i = 0; i < 5; ++i) {
        bench.send(QEvent::KeyPress, Qt::Key_A);
        bench.send(QEvent::KeyPress, Qt::Key_Space);
    }
    QVERIFY(isStep(bench.moved(Qt::Key_Down).y(), 0.1F)); // finds eleven
    QVERIFY(isStep(bench.moved(Qt::Key_Down).y(), 0.2F));
}

void KeyboardTest::releaseDoesNotResetTheAcceleration()
{
    Bench bench;
    bench.pick();
    for (int press = 1; press <= 12; ++press) {
        bench.send(QEvent::KeyPress, Qt::Key_Right);
        bench.send(QEvent::KeyRelease, Qt::Key_Right);
    }
    QVERIFY(isStep(bench.moved(Qt::Key_Right).x(), 0.2F));
}

void KeyboardTest::clearSpeedUpStepClearsCountAndAcceleration()
{
    Bench bench;
    bench.pick();
    for (int i = 0; i < 20; ++i) {
        bench.moved(Qt::Key_Left);
    }
    bench.scene.ClearSpeedUpStep();
    for (int press = 0; press < 12; ++press) { // the last key stays: ten are counted, then one step of one
        QVERIFY2(isStep(-bench.moved(Qt::Key_Left).x(), 0.1F), qPrintable(QString::number(press)));
    }
    QVERIFY(isStep(-bench.moved(Qt::Key_Left).x(), 0.2F));
}

void KeyboardTest::nothingSelectedMovesNothing()
{
    Bench bench;
    bench.pick(QPointF(0.6, 0.6)); // in no fence
    const QString list = describe(bench.scene.getLsColorTriangleObject());
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        bench.send(QEvent::KeyPress, key);
    }
    QVERIFY(bench.log.takeSignals().isEmpty());
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), list);
}

void KeyboardTest::requestFollowsTheCurrentPointEvenSo()
{
    Bench bench;
    bench.send(QEvent::KeyPress, Qt::Key_Down);
    bench.send(QEvent::KeyPress, Qt::Key_Down);
    const double step = static_cast<double>(0.1F);
    QCOMPARE(describe(stateOf(bench.scene).requested), describe(QPointF(0.0, step)));
    QCOMPARE(describe(stateOf(bench.scene).current), describe(QPointF(0.0, 0.0)));
}

void KeyboardTest::vertexGoesBeforeTheWhite()
{
    Bench bench;
    const QPointF white = bench.scene.ChromaToCurCoordinate(QPointF(0.33, 0.34));
    reference::selectCentre(bench.scene, white);
    bench.pick(); // selects the vertex, too
    QVERIFY(stateOf(bench.scene).centreSelected && stateOf(bench.scene).vertexSelected);
    bench.send(QEvent::KeyPress, Qt::Key_Left);
    const QStringList emitted = bench.log.takeSignals();
    QCOMPARE(emitted.size(), 1);
    QVERIFY(emitted.first().startsWith(QLatin1String("signal_colorGamutValueChanged ")));
}

void KeyboardTest::selectedWhiteStartsFromItsHandle()
{
    Bench bench;
    const double step = static_cast<double>(0.1F);
    const QPointF white = bench.scene.ChromaToCurCoordinate(QPointF(0.33, 0.34));
    reference::selectCentre(bench.scene, white);
    bench.send(QEvent::KeyPress, Qt::Key_Up);
    QCOMPARE(describe(stateOf(bench.scene).current), describe(white));
    QCOMPARE(describe(stateOf(bench.scene).requested), describe(QPointF(white.x(), white.y() - step)));
    const QStringList emitted = bench.log.takeSignals();
    QCOMPARE(emitted.size(), 1);
    QVERIFY(emitted.first().startsWith(QLatin1String("signal_targetInfoChanged ")));
    QVERIFY(stateOf(bench.scene).whiteMoved);
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), describe(reference::gamutPair()));

    reference::selectCentre(bench.scene, bench.scene.ChromaToCurCoordinate(QPointF(0.2, 0.6)));
    bench.send(QEvent::KeyPress, Qt::Key_Up);
    QVERIFY(bench.log.takeSignals().isEmpty());
    QVERIFY(!stateOf(bench.scene).whiteMoved);
}

void KeyboardTest::pendingRestorePutsTheCurrentPointBack()
{
    Bench bench;
    bench.pick();
    const QPointF back = bench.scene.ChromaToCurCoordinate(QPointF(0.5, 0.28));
    reference::restoreAtNextKey(bench.scene, back);
    bench.send(QEvent::KeyPress, Qt::Key_A);
    QCOMPARE(describe(stateOf(bench.scene).current), describe(back));
    bench.pick();
    const QPointF after = stateOf(bench.scene).current;
    bench.send(QEvent::KeyPress, Qt::Key_A); // once only
    QCOMPARE(describe(stateOf(bench.scene).current), describe(after));
}

void KeyboardTest::savedPointIsTheOneBeforeThePress()
{
    Bench bench;
    bench.pick();
    const QPointF before = stateOf(bench.scene).current;
    bench.send(QEvent::KeyPress, Qt::Key_Left);
    QCOMPARE(describe(stateOf(bench.scene).saved), describe(before));
    QVERIFY(stateOf(bench.scene).current.x() < before.x());
}

void KeyboardTest::spaceAsksForTheOpenHand()
{
    Bench bench;
    bench.pick();
    bench.send(QEvent::KeyPress, Qt::Key_Space);
    QCOMPARE(bench.log.takeSignals(), QStringList(QStringLiteral("signal_mouseCursorChange shape 17")));
    QVERIFY(bench.log.takeUpdate());
    QVERIFY(!stateOf(bench.scene).hand); // set for the update only
}

void KeyboardTest::spaceReleaseUpdates()
{
    Bench bench;
    bench.send(QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(bench.log.takeUpdate());
    QVERIFY(bench.log.takeSignals().isEmpty());
    bench.send(QEvent::KeyRelease, Qt::Key_A);
    QVERIFY(!bench.log.takeUpdate());
}

void KeyboardTest::refusedMoveIsForgottenAtRelease()
{
    Bench bench;
    bench.pick(QPointF(0.52, 0.2035)); // just inside the original's purples
    while (!stateOf(bench.scene).outOfBounds) {
        QVERIFY(stateOf(bench.scene).current.y() < 1000.0);
        bench.send(QEvent::KeyPress, Qt::Key_Down);
    }
    bench.clear();
    bench.send(QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(stateOf(bench.scene).outOfBounds);
    bench.clear();
    bench.send(QEvent::KeyRelease, Qt::Key_Down);
    QVERIFY(!stateOf(bench.scene).outOfBounds);
    QVERIFY(bench.log.takeUpdate());
    bench.send(QEvent::KeyRelease, Qt::Key_Down);
    QVERIFY(!bench.log.takeUpdate());
    QVERIFY(bench.log.takeSignals().isEmpty());
}

void KeyboardTest::refusedMoveLeavesTheHandle()
{
    Bench bench;
    bench.pick();
    bench.scene.setRGBPointEnable(false);
    const QString before = describe(bench.scene.getLsColorTriangleObject());
    const QPointF current = stateOf(bench.scene).current;
    bench.send(QEvent::KeyPress, Qt::Key_Left);
    QVERIFY(stateOf(bench.scene).outOfBounds);
    QVERIFY(bench.log.takeUpdate());
    QVERIFY(bench.log.takeSignals().isEmpty());
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), before);
    QCOMPARE(describe(stateOf(bench.scene).current), describe(current));
}

void KeyboardTest::zoomInStopsPastItsLimit()
{
    Bench bench;
    reference::setFunctionKeyMode(bench.scene, 1);
    float expected = 1.0F;
    for (int i = 0; i < 5; ++i) {
        bench.scene.SetFunctionKeyShortcuts();
        expected += 0.1F;
        QCOMPARE(describe(static_cast<double>(stateOf(bench.scene).zoom)), describe(static_cast<double>(expected)));
        QVERIFY(bench.log.takeUpdate());
    }
    QCOMPARE(describe(static_cast<double>(stateOf(bench.scene).zoom)), describe(static_cast<double>(1.5000001F)));
    bench.scene.SetFunctionKeyShortcuts();
    QCOMPARE(describe(static_cast<double>(stateOf(bench.scene).zoom)), describe(static_cast<double>(1.5000001F)));
    QVERIFY(!bench.log.takeUpdate());

    // Below the limit there is room for one more step.
    reference::setFunctionKeyMode(bench.scene, 2);
    bench.scene.SetFunctionKeyShortcuts();
    reference::setFunctionKeyMode(bench.scene, 1);
    bench.scene.SetFunctionKeyShortcuts();
    expected = 1.5000001F - 0.1F + 0.1F;
    QCOMPARE(describe(static_cast<double>(stateOf(bench.scene).zoom)), describe(static_cast<double>(expected)));
}

void KeyboardTest::zoomOutHasNoFloor()
{
    Bench bench;
    reference::setFunctionKeyMode(bench.scene, 2);
    float expected = 1.0F;
    for (int i = 0; i < 25; ++i) {
        bench.scene.SetFunctionKeyShortcuts();
        expected -= 0.1F;
        QVERIFY(bench.log.takeUpdate());
    }
    QCOMPARE(describe(static_cast<double>(stateOf(bench.scene).zoom)), describe(static_cast<double>(expected)));
    QVERIFY(expected < -1.0F);
}

void KeyboardTest::functionModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("magnifier");
    QTest::addColumn<bool>("hand");
    QTest::addColumn<bool>("updates");
    QTest::newRow("off") << 0 << false << false << false;
    QTest::newRow("zoom in") << 1 << true << false << true;
    QTest::newRow("zoom out") << 2 << true << false << true;
    QTest::newRow("hand") << 3 << true << true << false;
    QTest::newRow("none of them") << 4 << true << true << false;
    QTest::newRow("negative") << -1 << true << true << false;
}

// Each from a scene with magnifier and hand, which only the modes that nothing knows leave alone.
void KeyboardTest::functionModes()
{
    QFETCH(int, mode);
    QFETCH(bool, magnifier);
    QFETCH(bool, hand);
    QFETCH(bool, updates);
    Bench bench;
    reference::setFunctionKeyMode(bench.scene, 3);
    bench.scene.SetFunctionKeyShortcuts();
    QVERIFY(stateOf(bench.scene).magnifier && stateOf(bench.scene).hand);
    reference::setFunctionKeyMode(bench.scene, mode);
    bench.scene.SetFunctionKeyShortcuts();
    QCOMPARE(stateOf(bench.scene).magnifier, magnifier);
    QCOMPARE(stateOf(bench.scene).hand, hand);
    QCOMPARE(bench.log.takeUpdate(), updates);
    QVERIFY(bench.log.takeSignals().isEmpty());
}

void KeyboardTest::otherKeyClearsTheHand()
{
    Bench bench;
    reference::setFunctionKeyMode(bench.scene, 3);
    for (const int key : {Qt::Key_A, Qt::Key_Shift, Qt::Key_Left, Qt::Key_Space}) {
        bench.scene.SetFunctionKeyShortcuts();
        QVERIFY(stateOf(bench.scene).hand);
        bench.send(QEvent::KeyPress, key);
        QVERIFY(!stateOf(bench.scene).hand);
    }
    bench.scene.SetFunctionKeyShortcuts();
    bench.send(QEvent::KeyRelease, Qt::Key_A);
    QVERIFY(stateOf(bench.scene).hand);
    bench.send(QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(!stateOf(bench.scene).hand);
}

QTEST_MAIN(KeyboardTest)
#include "keyboardtest.moc"
