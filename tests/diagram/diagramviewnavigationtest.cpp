// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace diagramtests;

using Change = void (*)(View &); // of what is seen
Q_DECLARE_METATYPE(Change)

namespace {

//! A pan goes by whole pixels of the device: how far it may be from the hand.
double panTolerance(const View &view)
{
    const double ratio = view.devicePixelRatioF();
    return ratio == std::floor(ratio) ? 1e-6 : 0.71 / ratio;
}

} // namespace

class DiagramViewNavigationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAllAtFirst();
    void scalesAreEqualAtEverySize();
    void wheelZoomsAboutThePointer_data();
    void wheelZoomsAboutThePointer();
    void anchorDoesNotDrift_data();
    void anchorDoesNotDrift();
    void zoomEnds();
    void keysZoom();
    void fingersOnAPadPan();
    void fingersWithoutPixelsPan();
    void wheelsWithPixelsZoom();
    void crookedScrollsDoNotZoom_data();
    void crookedScrollsDoNotZoom();
    void middleButtonPans();
    void freeGroundPans();
    void panKeepsWhatIsLeft();
    void arrowsPanWithoutAHandle();
    void doubleClickShowsAll();
    void views();
    void resizeKeepsWhatIsSeen();
    void movedViewsHoverAgain_data();
    void movedViewsHoverAgain();
    void movedViewsEndTheHover();
    void movedViewsFindTheHandle();
    void movedViewsTellTheHoverLast();
    void handsThatMoveTheViewHoverOnce();
    void movedViewsLeaveADragAlone();
    void hoversOfMovedViewsMayDeleteThem();
};

void DiagramViewNavigationTest::showsAllAtFirst()
{
    View view;
    QVERIFY(view.viewport().showsAll());
    QCOMPARE(view.zoomFactor(), 1.0);
    QCOMPARE(view.diagram(), Model::Diagram::Cie1931);
}

void DiagramViewNavigationTest::scalesAreEqualAtEverySize()
{
    View view;
    for (const QSize &size : {QSize(300, 900), QSize(900, 300), QSize(500, 500), QSize(161, 160)}) {
        view.resize(size);
        const QPointF origin = view.viewport().fromPoint(QPointF(0.2, 0.2));
        const double right = view.viewport().fromPoint(QPointF(0.3, 0.2)).x() - origin.x();
        const double up = origin.y() - view.viewport().fromPoint(QPointF(0.2, 0.3)).y();
        QVERIFY(std::fabs(right - up) < 1e-9);
        QVERIFY(view.viewport().showsAll());
    }
}

void DiagramViewNavigationTest::wheelZoomsAboutThePointer_data()
{
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("x, y") << Model::Diagram::Cie1931;
    QTest::newRow("u', v'") << Model::Diagram::Cie1976;
    QTest::newRow("u, v") << Model::Diagram::Cie1960;
}

void DiagramViewNavigationTest::wheelZoomsAboutThePointer()
{
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    const QPointF pointer = view.viewport().plot().center() + QPointF(60.5, -40.25);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    double last = view.zoomFactor();
    for (int i = 0; i < 20; ++i) {
        view.wheel(pointer, QPoint(0, 120));
        QVERIFY(view.zoomFactor() > last);
        last = view.zoomFactor();
        QVERIFY(length(view.at(xy) - pointer) < 0.5);
    }
    QVERIFY(last > 50.0);
}

void DiagramViewNavigationTest::anchorDoesNotDrift_data()
{
    wheelZoomsAboutThePointer_data();
}

void DiagramViewNavigationTest::anchorDoesNotDrift()
{
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    const QPointF pointer = view.at(QPointF(0.3127, 0.3290));
    const QPointF xy = view.viewport().toChromaticity(pointer);
    std::mt19937 random(5);
    double worst = 0.0;
    // Up and down between the whole and the closest, never quite to the ends, where a zoom has to stop.
    int level = 0;
    for (int i = 0; i < 1000; ++i) {
        const bool in = level <= 1 || (level < 32 && random() % 2 == 0);
        level += in ? 1 : -1;
        view.wheel(pointer, QPoint(0, in ? 120 : -120));
        worst = std::max(worst, length(view.at(xy) - pointer));
    }
    QVERIFY2(worst <= 0.5, qPrintable(QString::number(worst)));
}

void DiagramViewNavigationTest::zoomEnds()
{
    View view;
    const QPointF pointer = view.at(QPointF(0.3127, 0.3290));
    for (int i = 0; i < 60; ++i) {
        view.wheel(pointer, QPoint(0, 120));
    }
    QCOMPARE(view.zoomFactor(), DiagramViewport::closest);
    QVERIFY(length(view.at(QPointF(0.3127, 0.3290)) - pointer) < 0.5);
    for (int i = 0; i < 80; ++i) {
        view.wheel(pointer, QPoint(0, -120));
    }
    QCOMPARE(view.zoomFactor(), 1.0);
}

void DiagramViewNavigationTest::keysZoom()
{
    View view;
    QTest::keyClick(&view, Qt::Key_Plus);
    const double closer = view.zoomFactor();
    QVERIFY(closer > 1.0);
    QTest::keyClick(&view, Qt::Key_Equal);
    QVERIFY(view.zoomFactor() > closer);
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(std::fabs(view.zoomFactor() - closer) < 1e-9);
    // About the pointer, where there is one.
    const QPointF pointer = view.viewport().plot().center() + QPointF(100.0, 80.0);
    view.hover(pointer);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(length(view.at(xy) - pointer) < 0.5);
    QTest::keyClick(&view, Qt::Key_0);
    QVERIFY(view.viewport().showsAll());
}

void DiagramViewNavigationTest::fingersOnAPadPan()
{
    View view;
    view.setZoomFactor(10.0);
    const QPointF xy(0.3, 0.35);
    const QPointF before = view.at(xy);
    view.wheel(QPointF(300, 300), QPoint(0, -50), QPoint(12, -30), Qt::NoModifier, Qt::ScrollUpdate);
    QVERIFY(length(view.at(xy) - before - QPointF(12, -30)) < 1e-6);
    QCOMPARE(view.zoomFactor(), 10.0);
    // With Ctrl they zoom.
    view.wheel(QPointF(300, 300), QPoint(0, 50), QPoint(0, 30), Qt::ControlModifier, Qt::ScrollUpdate);
    QVERIFY(view.zoomFactor() > 10.0);
}

void DiagramViewNavigationTest::fingersWithoutPixelsPan()
{
    View view;
    view.setZoomFactor(10.0);
    const QPointF xy(0.3, 0.35);
    const QPointF before = view.at(xy);
    view.wheel(QPointF(300, 300), QPoint(120, 0));
    const QPointF sideways = view.at(xy) - before;
    QVERIFY(sideways.x() > 10.0);
    QCOMPARE(sideways.y() + 1.0, 1.0);
    view.wheel(QPointF(300, 300), QPoint(0, -40), QPoint(), Qt::NoModifier, Qt::ScrollUpdate);
    QVERIFY(view.at(xy).y() < before.y() - 5.0);
    QCOMPARE(view.zoomFactor(), 10.0);
}

void DiagramViewNavigationTest::wheelsWithPixelsZoom()
{
    View view;
    // Some platforms give pixels for the notches of a wheel.
    view.wheel(QPointF(300, 300), QPoint(0, 120), QPoint(0, 120));
    QVERIFY(view.zoomFactor() > 1.0);
}

void DiagramViewNavigationTest::crookedScrollsDoNotZoom_data()
{
    QTest::addColumn<QVector<QPoint>>("angles");
    QTest::addColumn<bool>("hasPixels");
    QTest::addColumn<int>("modifiers");
    const int plain = Qt::NoModifier;
    // Events without phases, as X11 has them.
    QTest::newRow("tilted") << QVector<QPoint>{{-120, 7}} << false << plain;
    QTest::newRow("pad") << QVector<QPoint>{{-96, 13}} << true << plain;
    QTest::newRow("one coordinate at a time") << QVector<QPoint>{{-96, 0}, {0, 13}, {-80, 0}} << false << plain;
    QTest::newRow("like a notch amid a scroll") << QVector<QPoint>{{-96, 8}, {0, 120}} << true << plain;
    QTest::newRow("with Ctrl") << QVector<QPoint>{{-120, 7}} << false << int(Qt::ControlModifier);
}

void DiagramViewNavigationTest::crookedScrollsDoNotZoom()
{
    QFETCH(QVector<QPoint>, angles);
    QFETCH(bool, hasPixels);
    QFETCH(int, modifiers);
    View view;
    view.setZoomFactor(10.0);
    const QPointF xy(0.3, 0.35);
    const QPointF before = view.at(xy);
    for (const QPoint &angle : angles) {
        view.wheel(QPointF(300, 300), angle, hasPixels ? angle / 8 : QPoint(), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(view.zoomFactor(), 10.0);
    }
    QCOMPARE(view.at(xy) != before, modifiers == Qt::NoModifier);
}

void DiagramViewNavigationTest::middleButtonPans()
{
    View view;
    view.setZoomFactor(10.0);
    // Even on a handle.
    view.setCentre(view.xy(GamutVertex::White));
    const QPointF start = view.at(GamutVertex::White);
    const QPointF xy = view.xy(GamutVertex::White);
    view.press(start, Qt::MiddleButton);
    view.drag(start + QPointF(40, 25), Qt::NoModifier, Qt::MiddleButton);
    view.release(start + QPointF(40, 25), Qt::MiddleButton);
    QCOMPARE(view.xy(GamutVertex::White), xy);
    QVERIFY(length(view.at(xy) - start - QPointF(40, 25)) < panTolerance(view));
}

void DiagramViewNavigationTest::freeGroundPans()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    const QPointF xy = view.centre();
    const QPointF start = view.at(xy);
    view.press(start);
    QCOMPARE(view.cursor().shape(), Qt::ClosedHandCursor);
    view.drag(start + QPointF(30, -20));
    view.drag(start + QPointF(50, -35));
    QVERIFY(length(view.at(xy) - start - QPointF(50, -35)) < panTolerance(view));
    view.release(start + QPointF(50, -35));
    view.hover(start);
    QVERIFY(length(view.at(xy) - start - QPointF(50, -35)) < panTolerance(view));
    QCOMPARE(edited.count(), 0);
}

void DiagramViewNavigationTest::panKeepsWhatIsLeft()
{
    View view;
    view.setZoomFactor(20.0);
    const QPointF xy = view.centre();
    const QPointF start = view.at(xy);
    view.press(start, Qt::MiddleButton);
    for (int i = 1; i <= 90; ++i) {
        view.drag(start + QPointF(0.3 * i, 0.2 * i), Qt::NoModifier, Qt::MiddleButton);
    }
    // Less than half a pixel of the device is left over, however small the steps.
    const QPointF away = view.at(xy) - start - QPointF(27.0, 18.0);
    QVERIFY2(length(away) < 0.71, qPrintable(QString::number(length(away))));
}

void DiagramViewNavigationTest::arrowsPanWithoutAHandle()
{
    View view;
    view.setZoomFactor(10.0);
    view.setSelectedVertex(std::nullopt);
    const QPointF before = view.centre();
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(view.centre().x() > before.x());
    QTest::keyClick(&view, Qt::Key_Up);
    QVERIFY(view.centre().y() > before.y());
    // With Alt also while one is selected.
    view.setSelectedVertex(GamutVertex::Red);
    const QPointF red = view.xy(GamutVertex::Red);
    const double x = view.centre().x();
    QTest::keyClick(&view, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(view.centre().x() < x);
    QCOMPARE(view.xy(GamutVertex::Red), red);
}

void DiagramViewNavigationTest::doubleClickShowsAll()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    view.mouse(QEvent::MouseButtonDblClick, view.viewport().plot().center(), Qt::LeftButton, Qt::LeftButton);
    view.release(view.viewport().plot().center());
    QVERIFY(view.viewport().showsAll());
    // On a handle it is one more press.
    view.setZoomFactor(5.0);
    view.setCentre(view.xy(GamutVertex::White));
    view.mouse(QEvent::MouseButtonDblClick, view.at(GamutVertex::White), Qt::LeftButton, Qt::LeftButton);
    QVERIFY(!view.viewport().showsAll());
}

void DiagramViewNavigationTest::views()
{
    View view;
    view.showTarget();
    for (const GamutVertex vertex : allGamutVertices) {
        QVERIFY(view.viewport().plot().contains(view.at(vertex)));
    }
    QVERIFY(view.zoomFactor() > 1.0);
    view.showWhite();
    QVERIFY(view.zoomFactor() > 10.0);
    QVERIFY(length(view.at(GamutVertex::White) - view.viewport().plot().center()) < 1e-3);
    view.showAll();
    QVERIFY(view.viewport().showsAll());
    view.clearGamuts(GamutRole::Target);
    view.showWhite();
    QVERIFY(length(view.centre() - xyOf(wall().getTargets().white)) < 1e-9);
    view.setGamuts({});
    view.showTarget();
    QVERIFY(view.viewport().showsAll());
}

void DiagramViewNavigationTest::resizeKeepsWhatIsSeen()
{
    View view;
    view.setZoomFactor(30.0);
    view.setCentre(QPointF(0.31, 0.33));
    view.resize(500, 400);
    QCOMPARE(view.zoomFactor(), 30.0);
    QVERIFY(length(view.centre() - QPointF(0.31, 0.33)) < 1e-6);
}

void DiagramViewNavigationTest::movedViewsHoverAgain_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, Change change) { QTest::newRow(name) << change; };
    add("arrow", [](View &view) { QTest::keyClick(&view, Qt::Key_Right); });
    add("zoom", [](View &view) { view.setZoomFactor(7.0); });
    add("diagram", [](View &view) { view.setDiagram(Model::Diagram::Cie1976); });
    add("all", [](View &view) { view.showAll(); });
    add("target", [](View &view) { view.showTarget(); });
    add("centre", [](View &view) { view.setCentre(QPointF(0.29, 0.37)); });
    add("size", [](View &view) { view.resize(640, 600); });
}

void DiagramViewNavigationTest::movedViewsHoverAgain()
{
    QFETCH(Change, change);
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.3, 0.35));
    const QPointF pointer = view.viewport().plot().center() + QPointF(-60.0, 40.0);
    view.hover(pointer);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    const QString former = view.d->overlay.readout;
    change(view);
    QCOMPARE(hovered.count(), 1);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    QVERIFY(length(hovered.at(0).at(0).toPointF() - xy) < 1e-9);
    QCOMPARE(view.d->overlay.readout, view.coordinatesText(xy));
    QVERIFY(view.d->overlay.readout != former);
    // A pointer that has left is over nothing, whatever moves.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    view.setCentre(QPointF(0.31, 0.36));
    QCOMPARE(hovered.count(), 1);
    QVERIFY(view.d->overlay.readout.isEmpty());
}

void DiagramViewNavigationTest::movedViewsEndTheHover()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    const QPointF pointer = view.viewport().plot().center();
    view.hover(pointer);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    view.setDiagram(Model::Diagram::Cie1976);
    QCOMPARE(hovered.count(), 1);
    // No light has the coordinates below zero.
    view.setCentre(QPointF(-0.05, 0.2));
    QCOMPARE(ended.count(), 1);
    QCOMPARE(hovered.count(), 1);
    view.setCentre(QPointF(0.25, 0.45));
    QCOMPARE(ended.count(), 1);
    QCOMPARE(hovered.count(), 2);
    // The plot has shrunk away from the pointer.
    view.resize(int(pointer.x()) - 40, 600);
    QCOMPARE(ended.count(), 2);
    QVERIFY(view.d->overlay.readout.isEmpty());
    QCOMPARE(view.cursor().shape(), Qt::ArrowCursor);
}

void DiagramViewNavigationTest::movedViewsFindTheHandle()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.45, 0.45));
    view.hover(view.viewport().plot().center());
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
    const QImage free = view.grab().toImage();
    view.setCentre(view.xy(GamutVertex::Red));
    QCOMPARE(view.cursor().shape(), Qt::SizeAllCursor);
    QCOMPARE(view.d->hovered, std::make_optional(GamutVertex::Red));
    view.setCentre(QPointF(0.45, 0.45));
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
    QCOMPARE(view.grab().toImage(), free);
}

void DiagramViewNavigationTest::movedViewsTellTheHoverLast()
{
    View view;
    view.setZoomFactor(5.0);
    view.hover(view.viewport().plot().center());
    QStringList order;
    connect(&view, &DiagramView::viewChanged, [&order] { order.append("view"); });
    connect(&view, &DiagramView::hovered, [&order] { order.append("hovered"); });
    connect(&view, &DiagramView::diagramChanged, [&order] { order.append("diagram"); });
    view.setDiagram(Model::Diagram::Cie1976);
    QCOMPARE(order, QStringList({"view", "hovered", "diagram"}));
}

void DiagramViewNavigationTest::handsThatMoveTheViewHoverOnce()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    const QPointF start = view.viewport().plot().center();
    view.hover(start);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    view.press(start, Qt::MiddleButton);
    for (int i = 1; i <= 5; ++i) {
        const int before = int(hovered.count());
        const QPointF at = start + QPointF(7.5 * i, 3.0 * i);
        view.drag(at, Qt::NoModifier, Qt::MiddleButton);
        // Once, and not where the hand was before.
        QCOMPARE(hovered.count(), before + 1);
        QVERIFY(length(hovered.last().at(0).toPointF() - view.viewport().toChromaticity(at)) < 1e-9);
    }
    view.release(start + QPointF(37.5, 15.0), Qt::MiddleButton);
    // A wheel elsewhere than the pointer was seen last.
    hovered.clear();
    const QPointF elsewhere = start + QPointF(-50.0, 20.0);
    view.wheel(elsewhere, QPoint(0, 120));
    QCOMPARE(hovered.count(), 1);
    QVERIFY(length(hovered.at(0).at(0).toPointF() - view.viewport().toChromaticity(elsewhere)) < 1e-9);
}

void DiagramViewNavigationTest::movedViewsLeaveADragAlone()
{
    View view;
    view.setZoomFactor(3.0);
    view.setCentre(view.xy(GamutVertex::Red));
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Red);
    view.press(start);
    view.drag(start + QPointF(-40.0, -20.0));
    QVERIFY(view.isEditing());
    const QPointF held = view.xy(GamutVertex::Red);
    // What is brought below the pointer is not what the hand has.
    view.setCentre(view.xy(GamutVertex::White));
    QCOMPARE(view.xy(GamutVertex::Red), held);
    QVERIFY(view.isEditing());
    QCOMPARE(view.cursor().shape(), Qt::SizeAllCursor);
    QVERIFY(view.d->overlay.readout.isEmpty());
    QCOMPARE(view.selectedVertex(), std::make_optional(GamutVertex::Red));
    QCOMPARE(finished.count(), 0);
    view.release(start + QPointF(-40.0, -20.0));
    QCOMPARE(finished.count(), 1);
}

void DiagramViewNavigationTest::hoversOfMovedViewsMayDeleteThem()
{
    for (const bool ends : {false, true}) {
        auto *view = new View;
        const QPointer<View> alive(view);
        view->setZoomFactor(5.0);
        view->setCentre(QPointF(0.25, 0.45));
        view->hover(view->viewport().plot().center());
        const auto away = [view] { delete view; };
        if (ends) {
            connect(view, &DiagramView::hoverEnded, away);
            view->setCentre(QPointF(-0.05, 0.2));
        } else {
            connect(view, &DiagramView::hovered, away);
            view->setDiagram(Model::Diagram::Cie1976);
        }
        QVERIFY(!alive);
    }
}

QTEST_MAIN(DiagramViewNavigationTest)
#include "diagramviewnavigationtest.moc"
