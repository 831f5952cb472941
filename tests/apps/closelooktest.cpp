// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "wallfixture.h"

#include "panel/closelook.h"
#include "panel/wallmap.h"

#include <QAccessible>
#include <QStyleHints>
#include <QUndoStack>
#include <QWheelEvent>

#include <cmath>

using namespace gamutviewer;
using namespace wallfixture;

class CloseLookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dotsAreBelowTheTarget();
    void whitesAreSeenCloselyToo();
    void cornerIsDragged();
    void viewStaysUnderTheHand();
    void escapeTakesADragBack();
    void shortWayIsAClick();
    void arrowKeysMoveTheCorner();
    void keysThatMoveDiagramsDoNothing();
    void lockedCornersStay();
    void viewIsNotMovedByHand();
    void clickOnADotLeavesTheFocus();
    void tabGoesFromLookToLook();
    void handsAreTold();
};

namespace {

//! Cabinets of Rec.2020, of which the red of "B4" is apart from the others, and a target that all but one show.
DisplayDescription oneApart()
{
    DisplayDescription result = oneDim();
    result.gamuts.front() = targetOf(500.0);
    result.wall.cabinets[7].red = color(result.wall.cabinets[7].red.Y, 0.70, 0.28);
    return result;
}

struct LookFixture : WallFixture {
    LookFixture()
        : WallFixture(oneApart())
    {
        look = page()->closeLook(Vertex::Red);
    }

    QPoint at(const QPointF &xy) { return look->viewport().toPosition(xy).toPoint(); }
    QPoint corner() { return at(WindowFixture::xy(Vertex::Red)); }
    QPointF uv(Vertex vertex)
    {
        const QPointF of = WindowFixture::xy(vertex);
        const Model::DiagramPoint point = Model::toDiagram(Model::Diagram::Cie1976, {of.x(), of.y()});
        return QPointF(point.x, point.y);
    }
    // QTest::mouseMove() tells of no button held.
    void move(const QPoint &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(
            QEvent::MouseMove, position, look->mapToGlobal(position), Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(look, &event);
    }
    void press(const QPoint &position) { QTest::mousePress(look, Qt::LeftButton, Qt::NoModifier, position); }
    void release(const QPoint &position) { QTest::mouseRelease(look, Qt::LeftButton, Qt::NoModifier, position); }

    CloseLook *look;
};

} // namespace

void CloseLookTest::dotsAreBelowTheTarget()
{
    LookFixture f;
    const QPoint dot = f.at(QPointF(0.70, 0.28));
    const QColor seen = f.look->grab().toImage().pixelColor(dot);
    QVERIFY2(seen.red() > seen.green() + 50 && seen.red() > seen.blue() + 50, qPrintable(seen.name()));
    // The handle is over it.
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.70, 0.28));
    QCOMPARE(f.look->grab().toImage().pixelColor(f.corner()), QColor(Qt::white));
}

void CloseLookTest::whitesAreSeenCloselyToo()
{
    DisplayDescription d = oneApart();
    for (WallCabinet &cabinet : d.wall.cabinets) {
        cabinet.white = color(1100.0, 0.3127, 0.3290);
    }
    d.wall.cabinets[5].white = color(900.0, 0.30, 0.31);
    WallFixture f(d);
    CloseLook *look = f.page()->closeLook(Vertex::White);
    const auto at = [look](const QPointF &xy) { return QPointF(look->viewport().toPosition(xy)); };
    QCOMPARE(look->cabinetAt(at(QPointF(0.30, 0.31))), std::make_optional(std::size_t(5)));
    const auto other = look->cabinetAt(at(QPointF(0.3127, 0.3290)));
    QVERIFY(other && *other != 5);
    QTest::mouseClick(look, Qt::LeftButton, Qt::NoModifier, at(QPointF(0.30, 0.31)).toPoint());
    QCOMPARE(f.window->session()->selectedCabinet(), std::make_optional(std::size_t(5)));
    QVERIFY(look->rect().contains(at(f.xy(Vertex::White)).toPoint()));
    QVERIFY(!look->rect().contains(at(f.xy(Vertex::Red)).toPoint()));
}

void CloseLookTest::cornerIsDragged()
{
    LookFixture f;
    f.window->session()->setSnaps(false);
    const QModelIndex cell = f.page()->map()->indexOf(0);
    const QString headroom = cell.data().toString();
    const QPointF before = f.xy(Vertex::Red);
    const QPoint grip = f.corner() + QPoint(16, 14); // 21 pixels away
    const QPoint goal = f.corner() + QPoint(-3, 40);
    f.press(grip);
    f.move(grip + QPoint(0, 20));
    QVERIFY(f.document().isDragging());
    f.move(f.at(QPointF(0.69, 0.305)) + QPoint(16, 14)); // outside of B4 only
    QVERIFY2(
        f.look->editNote().startsWith(QLatin1String("outside of the cabinet B4 by ")), qPrintable(f.look->editNote()));
    // The map follows while the button is down.
    f.move(grip + QPoint(-3, 40));
    QVERIFY(f.xy(Vertex::Red) != before);
    QVERIFY(cell.data().toString() != headroom);
    QVERIFY((f.corner() - goal).manhattanLength() <= 2);
    QCOMPARE(f.document().history()->count(), 0);
    f.release(grip + QPoint(-3, 40));
    QVERIFY(!f.document().isDragging());
    QCOMPARE(f.document().history()->count(), 1);
    QVERIFY(!f.window->session()->selectedCabinet());
    f.document().history()->undo();
    QCOMPARE(f.xy(Vertex::Red), before);
    QCOMPARE(cell.data().toString(), headroom);
}

void CloseLookTest::viewStaysUnderTheHand()
{
    LookFixture f;
    f.window->session()->setSnaps(false);
    const ceiechart::DiagramViewport before = f.look->viewport();
    const QPoint grip = f.corner();
    f.press(grip);
    for (int step = 1; step <= 10; ++step) {
        f.move(grip + QPoint(0, 20 * step));
        QVERIFY(f.look->viewport() == before);
    }
    // It has left what is seen, and is brought back when it is let go.
    QVERIFY(!f.look->rect().contains(f.corner()));
    f.release(grip + QPoint(0, 200));
    QVERIFY(f.look->viewport() != before);
    QVERIFY(f.look->rect().contains(f.corner()));
}

void CloseLookTest::escapeTakesADragBack()
{
    LookFixture f;
    const QPointF before = f.xy(Vertex::Red);
    const QPoint grip = f.corner();
    f.press(grip);
    f.move(grip + QPoint(30, 0));
    QVERIFY(f.xy(Vertex::Red) != before);
    QTest::keyClick(f.look, Qt::Key_Escape);
    QCOMPARE(f.xy(Vertex::Red), before);
    f.move(grip + QPoint(50, 0));
    f.release(grip + QPoint(50, 0));
    QCOMPARE(f.xy(Vertex::Red), before);
    QCOMPARE(f.document().history()->count(), 0);
    QVERIFY(!f.document().isDragging());
}

void CloseLookTest::shortWayIsAClick()
{
    LookFixture f;
    // The corner is put on the dot of B4.
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.70, 0.28));
    const int steps = f.document().history()->count();
    const QPoint grip = f.corner() + QPoint(3, 0);
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    f.press(grip);
    f.move(grip + QPoint(threshold - 1, 0));
    QVERIFY(!f.document().isDragging());
    f.move(grip);
    f.release(grip);
    QCOMPARE(f.document().history()->count(), steps);
    QCOMPARE(f.selectedName(), QStringLiteral("B4"));
    QCOMPARE(f.xy(Vertex::Red), QPointF(0.70, 0.28));
}

void CloseLookTest::arrowKeysMoveTheCorner()
{
    LookFixture f;
    f.look->setFocus();
    QVERIFY(f.look->hasFocus());
    const QPointF before = f.uv(Vertex::Red);
    const double step = std::pow(10.0, std::floor(std::log10(2.0 / f.look->viewport().scale())));
    QTest::keyPress(f.look, Qt::Key_Right);
    QVERIFY(f.document().isDragging());
    QTest::keyRelease(f.look, Qt::Key_Right);
    QVERIFY(std::fabs(f.uv(Vertex::Red).x() - before.x() - step) < step * 1e-6);
    QVERIFY(std::fabs(f.uv(Vertex::Red).y() - before.y()) < step * 1e-6);
    QCOMPARE(f.document().history()->count(), 1);
    QTest::keyClick(f.look, Qt::Key_Up, Qt::ShiftModifier);
    QVERIFY(std::fabs(f.uv(Vertex::Red).y() - before.y() - 0.1 * step) < step * 1e-6);
    QCOMPARE(f.document().history()->count(), 2);
    f.document().history()->undo();
    f.document().history()->undo();
    QVERIFY(std::fabs(f.uv(Vertex::Red).x() - before.x()) < step * 1e-6);
    // A corner that is selected elsewhere and is not seen here does not move, nor does the view go there.
    f.window->session()->select(Vertex::Blue);
    const QPointF blue = f.xy(Vertex::Blue);
    const ceiechart::DiagramViewport seen = f.look->viewport();
    QTest::keyClick(f.look, Qt::Key_Left);
    QCOMPARE(f.xy(Vertex::Blue), blue);
    QVERIFY(std::fabs(f.uv(Vertex::Red).x() - before.x() + step) < step * 1e-6);
    QVERIFY(f.look->viewport() == seen);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Red));
}

void CloseLookTest::keysThatMoveDiagramsDoNothing()
{
    LookFixture f;
    f.look->setFocus();
    const ceiechart::DiagramViewport before = f.look->viewport();
    for (const int key : {int(Qt::Key_Plus), int(Qt::Key_Minus), int(Qt::Key_0), int(Qt::Key_Home), int(Qt::Key_G)}) {
        QTest::keyClick(f.look, Qt::Key(key));
        QVERIFY2(f.look->viewport() == before, qPrintable(QKeySequence(key).toString()));
    }
    // Esc lets go of the cabinet, as on the map.
    f.window->session()->selectCabinet(3);
    QTest::keyClick(f.look, Qt::Key_Escape);
    QVERIFY(!f.window->session()->selectedCabinet());
}

void CloseLookTest::lockedCornersStay()
{
    LookFixture f;
    f.window->session()->setLockPrimaries(true);
    QSignalSpy refused(f.window->session(), &TargetSession::refused);
    const QPointF before = f.xy(Vertex::Red);
    const QPoint grip = f.corner();
    f.press(grip);
    f.move(grip + QPoint(30, 0));
    f.release(grip + QPoint(30, 0));
    QCOMPARE(f.xy(Vertex::Red), before);
    QCOMPARE(refused.count(), 1);
    f.look->setFocus();
    QTest::keyClick(f.look, Qt::Key_Right);
    QCOMPARE(f.xy(Vertex::Red), before);
    QCOMPARE(refused.count(), 2);
    QCOMPARE(f.document().history()->count(), 0);
}

void CloseLookTest::viewIsNotMovedByHand()
{
    LookFixture f;
    const ceiechart::DiagramViewport before = f.look->viewport();
    QPoint free(4, f.look->height() - 4);
    QVERIFY(QLineF(free, f.corner()).length() > ceiechart::DiagramView::handleReach);
    f.press(free);
    f.move(free + QPoint(40, -40));
    f.release(free + QPoint(40, -40));
    QTest::mouseClick(f.look, Qt::MiddleButton, Qt::NoModifier, free);
    QTest::mouseDClick(f.look, Qt::LeftButton, Qt::NoModifier, free);
    QWheelEvent wheel(free, f.look->mapToGlobal(free), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(f.look, &wheel);
    QVERIFY(f.look->viewport() == before);
    QCOMPARE(f.document().history()->count(), 0);
}

void CloseLookTest::clickOnADotLeavesTheFocus()
{
    LookFixture f;
    f.page()->map()->setFocus();
    QTest::mouseClick(f.look, Qt::LeftButton, Qt::NoModifier, f.at(QPointF(0.70, 0.28)));
    QCOMPARE(f.selectedName(), QStringLiteral("B4"));
    QVERIFY(f.page()->map()->hasFocus());
    f.press(f.corner());
    QVERIFY(f.look->hasFocus());
    f.release(f.corner());
}

void CloseLookTest::tabGoesFromLookToLook()
{
    LookFixture f;
    f.look->setFocus(Qt::TabFocusReason);
    const ceiechart::DiagramViewport before = f.page()->closeLook(Vertex::Green)->viewport();
    QTest::keyClick(f.look, Qt::Key_Tab);
    QVERIFY(f.page()->closeLook(Vertex::Green)->hasFocus());
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Green));
    QVERIFY(f.page()->closeLook(Vertex::Green)->viewport() == before);
    QTest::keyClick(f.page()->closeLook(Vertex::Green), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(f.look->hasFocus());
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Red));
    // The focus is seen.
    const QImage with = f.look->grab().toImage();
    f.page()->map()->setFocus();
    QVERIFY(f.look->grab().toImage() != with);
}

void CloseLookTest::handsAreTold()
{
    LookFixture f;
    QTest::mouseMove(f.look, f.corner());
    QCOMPARE(f.look->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseMove(f.look, QPoint(4, f.look->height() - 4));
    QVERIFY(f.look->cursor().shape() != Qt::SizeAllCursor);
    f.window->session()->setLockPrimaries(true);
    QTest::mouseMove(f.look, f.corner());
    QCOMPARE(f.look->cursor().shape(), Qt::ForbiddenCursor);
    QAccessibleInterface *look = QAccessible::queryAccessibleInterface(f.look);
    QVERIFY(look);
    QCOMPARE(look->text(QAccessible::Name), QStringLiteral("Close look at red of all cabinets"));
    QVERIFY(look->text(QAccessible::Description).contains(QStringLiteral("arrow keys")));
}

QTEST_MAIN(CloseLookTest)
#include "closelooktest.moc"
