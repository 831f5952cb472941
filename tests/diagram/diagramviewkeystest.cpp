// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

using namespace diagramtests;

class DiagramViewKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void arrowsMoveTheHandle_data();
    void arrowsMoveTheHandle();
    void shiftAndArrowsMoveATenth();
    void controlAndArrowsMoveAlongTheLine();
    void editingFinishesWithTheKey();
    void tabGoesFromHandleToHandleAndOn();
    void lettersSelect();
    void shortcutsOfTheWindowDoNotTakeItsKeys();
    void refusedKeysAreNoEdit();
    void twoArrowsAreOneEdit();
    void unseenHandlesAreBroughtIntoView();
    void keysDoNotChangeTheHandleInADrag();
    void escapeWithAHeldHandleIsTakenByTheView();
    void escapeLetsGoOfTheHandle();
    void escapeTakesHeldArrowsBack();
    void keysOfTheViewKeepTheHandle();
};

void DiagramViewKeysTest::arrowsMoveTheHandle_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPointF>("way");
    QTest::newRow("left") << int(Qt::Key_Left) << QPointF(-0.001, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << QPointF(0.001, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << QPointF(0, 0.001);
    QTest::newRow("down") << int(Qt::Key_Down) << QPointF(0, -0.001);
}

void DiagramViewKeysTest::arrowsMoveTheHandle()
{
    QFETCH(int, key);
    QFETCH(QPointF, way);
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF before = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - before - way) < 1e-9);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - before - 2 * way) < 1e-9);
    // Closer, the steps are finer.
    view.setZoomFactor(100.0);
    view.setCentre(view.xy(GamutVertex::Green));
    const QPointF close = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - close - way / 100.0) < 1e-10);
}

void DiagramViewKeysTest::shiftAndArrowsMoveATenth()
{
    View view;
    view.setSelectedVertex(GamutVertex::Blue);
    const QPointF before = view.xy(GamutVertex::Blue);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0.0001, 0)) < 1e-9);
}

void DiagramViewKeysTest::controlAndArrowsMoveAlongTheLine()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF white = view.xy(GamutVertex::White);
    const QPointF before = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Up, Qt::ControlModifier);
    const QPointF after = view.xy(GamutVertex::Green);
    QVERIFY(after.y() > before.y());
    const QPointF line = before - white;
    const QPointF way = after - before;
    QVERIFY(std::fabs(line.x() * way.y() - line.y() * way.x()) < 1e-10);
}

void DiagramViewKeysTest::editingFinishesWithTheKey()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QTest::keyPress(&view, Qt::Key_Right);
    for (int i = 0; i < 4; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&view, &repeat);
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&view, &up);
    }
    QCOMPARE(started.count(), 1);
    QCOMPARE(edited.count(), 5);
    QCOMPARE(finished.count(), 0);
    QTest::keyRelease(&view, Qt::Key_Right);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewKeysTest::tabGoesFromHandleToHandleAndOn()
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    auto *view = new DiagramView(&window);
    auto *after = new QLineEdit(&window);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(before);
    layout->addWidget(view);
    layout->addWidget(after);
    view->setTarget(Model::rec709());
    window.resize(500, 600);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    for (const GamutVertex vertex : allGamutVertices) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(view->hasFocus());
        QCOMPARE(*view->selectedVertex(), vertex);
    }
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(after->hasFocus());
    QTest::keyClick(after, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(view->hasFocus());
    QCOMPARE(*view->selectedVertex(), GamutVertex::White);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    }
    QCOMPARE(*view->selectedVertex(), GamutVertex::Red);
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(before->hasFocus());
    // Without handles there is only the view.
    view->setReadOnly(true);
    QTest::keyClick(before, Qt::Key_Tab);
    QVERIFY(view->hasFocus());
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(after->hasFocus());
}

void DiagramViewKeysTest::lettersSelect()
{
    View view;
    QTest::keyClick(&view, Qt::Key_W);
    QCOMPARE(*view.selectedVertex(), GamutVertex::White);
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewKeysTest::shortcutsOfTheWindowDoNotTakeItsKeys()
{
    View view;
    const auto takes = [&view](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        return event.isAccepted();
    };
    QVERIFY(takes(Qt::Key_Plus));
    QVERIFY(takes(Qt::Key_Left));
    QVERIFY(takes(Qt::Key_R));
    QVERIFY(!takes(Qt::Key_Escape)); // until there is something to cancel
    QVERIFY(!takes(Qt::Key_S, Qt::ControlModifier));
    QVERIFY(!takes(Qt::Key_R, Qt::ControlModifier));
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, -10));
    QVERIFY(takes(Qt::Key_Escape));
    view.release(start);
}

void DiagramViewKeysTest::refusedKeysAreNoEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QSignalSpy refused(&view, &DiagramView::editRefused);
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    // A rule that allows nothing at all, but does not lock the handle.
    class Nothing : public StandardTargetRules {
    public:
        TargetMove move(const TargetContext &, GamutVertex, const QPointF &) const override
        {
            return {std::nullopt, QStringLiteral("no")};
        }
    };
    view.setRules(std::make_shared<Nothing>());
    for (int i = 1; i <= 2; ++i) {
        QTest::keyClick(&view, Qt::Key_Right);
        QCOMPARE(refused.count(), i);
    }
    QCOMPARE(edited.count(), 0);
    QCOMPARE(started.count(), 0);
    QCOMPARE(finished.count(), 0);
}

void DiagramViewKeysTest::twoArrowsAreOneEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QTest::keyPress(&view, Qt::Key_Left);
    QTest::keyPress(&view, Qt::Key_Up);
    QTest::keyRelease(&view, Qt::Key_Left);
    QCOMPARE(finished.count(), 0);
    QTest::keyPress(&view, Qt::Key_Up);
    QTest::keyRelease(&view, Qt::Key_Up);
    QCOMPARE(started.count(), 1);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewKeysTest::unseenHandlesAreBroughtIntoView()
{
    View view;
    QApplication::setActiveWindow(&view);
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    const auto isSeen = [&view](GamutVertex vertex) { return view.viewport().plot().contains(view.at(vertex)); };
    view.setZoomFactor(20.0);
    view.setCentre(QPointF(0.31, 0.33));
    view.setSelectedVertex(GamutVertex::Red);
    QVERIFY(!isSeen(GamutVertex::Red));
    QVERIFY(view.d->overlay.showsFocusFrame);
    QTest::keyClick(&view, Qt::Key_Left);
    QVERIFY(isSeen(GamutVertex::Red));
    QVERIFY(!view.d->overlay.showsFocusFrame);
    QVERIFY(!view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_B);
    QVERIFY(isSeen(GamutVertex::Blue));
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(isSeen(GamutVertex::White));
    QCOMPARE(view.zoomFactor(), 20.0);
}

void DiagramViewKeysTest::keysDoNotChangeTheHandleInADrag()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.drag(start + QPointF(20, -10));
    QTest::keyClick(&view, Qt::Key_B);
    view.setSelectedVertex(std::nullopt);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.release(start + QPointF(20, -10));
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewKeysTest::escapeWithAHeldHandleIsTakenByTheView()
{
    View view;
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    shortcut.ignore();
    QCoreApplication::sendEvent(&view, &shortcut);
    QVERIFY(shortcut.isAccepted());
    QCoreApplication::sendEvent(&view, &escape);
    QVERIFY(escape.isAccepted());
    view.drag(start + QPointF(20, -10));
    view.release(start + QPointF(20, -10));
    QCOMPARE(started.count(), 0);
}

void DiagramViewKeysTest::escapeLetsGoOfTheHandle()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const auto isTaken = [&view](QEvent::Type type) {
        QKeyEvent escape(type, Qt::Key_Escape, Qt::NoModifier);
        escape.setAccepted(type == QEvent::KeyPress); // as they come from the system
        QCoreApplication::sendEvent(&view, &escape);
        return escape.isAccepted();
    };
    QVERIFY(isTaken(QEvent::ShortcutOverride));
    QVERIFY(isTaken(QEvent::KeyPress));
    QVERIFY(!view.selectedVertex());
    // The next is the window's.
    QVERIFY(!isTaken(QEvent::ShortcutOverride));
    QVERIFY(!isTaken(QEvent::KeyPress));
    // After a drag that was cancelled, the handle is still selected.
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QTest::keyClick(&view, Qt::Key_Escape);
    view.release(start + QPointF(20, -10));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(!view.selectedVertex());
}

void DiagramViewKeysTest::escapeTakesHeldArrowsBack()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    QStringList told;
    connect(&view, &DiagramView::targetEdited, [&] { told.append(QStringLiteral("edited")); });
    connect(&view, &DiagramView::editingCanceled, [&] { told.append(QStringLiteral("canceled")); });
    connect(&view, &DiagramView::editingFinished, [&] { told.append(QStringLiteral("finished")); });
    QTest::keyPress(&view, Qt::Key_Right);
    QTest::keyPress(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Escape);
    QTest::keyRelease(&view, Qt::Key_Right);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("edited edited edited canceled finished"));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
}

void DiagramViewKeysTest::keysOfTheViewKeepTheHandle()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    view.setZoomFactor(10.0);
    QTest::keyClick(&view, Qt::Key_0);
    QVERIFY(view.viewport().showsAll());
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
}

QTEST_MAIN(DiagramViewKeysTest)
#include "diagramviewkeystest.moc"
