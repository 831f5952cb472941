// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>

#include <cmath>

using namespace diagramtests;

class DiagramViewTouchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nativeGesturesZoom();
    void pinchesOnAPadZoomAndPan();
    void twoFingersZoomAndPan();
    void oneFingerDragsAHandle();
    void secondFingerTakesADragBack();
    void secondFingerEndsTheHover();
    void otherFingersBeginAnew();
    void tapsOfAFingerMoveNothing();
    void doubleTapsZoomAtTheFinger();
    void doubleTapsOnHandlesSelect();
};

void DiagramViewTouchTest::nativeGesturesZoom()
{
    View view;
    const QPointF pointer = view.viewport().plot().center() + QPointF(50, 50);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    const QPointF global = view.mapToGlobal(pointer.toPoint());
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QNativeGestureEvent event(Qt::ZoomNativeGesture, nullptr, pointer, pointer, global, 0.5, 0, 0);
#else
    QNativeGestureEvent event(
        Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, pointer, pointer, global, 0.5, QPointF());
#endif
    QCoreApplication::sendEvent(&view, &event);
    QCOMPARE(view.zoomFactor(), 1.5);
    QVERIFY(length(view.at(xy) - pointer) < 0.5);
}

void DiagramViewTouchTest::pinchesOnAPadZoomAndPan()
{
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint() + QPoint(40, -30);
    const QPointF xy = view.viewport().toChromaticity(middle);
    const QPointF global = view.mapToGlobal(middle);
    QPinchGesture pinch;
    pinch.setCenterPoint(global);
    pinch.setLastCenterPoint(global);
    pinch.setScaleFactor(1.6);
    pinch.setChangeFlags(QPinchGesture::ScaleFactorChanged);
    QGestureEvent event({&pinch});
    event.setWidget(&view);
    QCoreApplication::sendEvent(&view, &event);
    QVERIFY(std::fabs(view.zoomFactor() - 1.6) < 1e-9);
    QVERIFY(length(view.at(xy) - middle) < 1.0);
}

void DiagramViewTouchTest::twoFingersZoomAndPan()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint();
    const QPointF xy = view.viewport().toChromaticity(middle);
    QTest::touchEvent(&view, device).press(0, middle - QPoint(50, 0), &view).press(1, middle + QPoint(50, 0), &view);
    QTest::touchEvent(&view, device).move(0, middle - QPoint(80, 0), &view).move(1, middle + QPoint(80, 0), &view);
    QTest::touchEvent(&view, device).move(0, middle - QPoint(100, 0), &view).move(1, middle + QPoint(100, 0), &view);
    QVERIFY2(std::fabs(view.zoomFactor() - 2.0) < 0.01, qPrintable(QString::number(view.zoomFactor())));
    QVERIFY(length(view.at(xy) - middle) < 1.0);
    const QPoint moved = middle + QPoint(30, 20);
    QTest::touchEvent(&view, device).move(0, moved - QPoint(100, 0), &view).move(1, moved + QPoint(100, 0), &view);
    QVERIFY(length(view.at(xy) - moved) < 1.0);
    QTest::touchEvent(&view, device)
        .release(0, moved - QPoint(100, 0), &view)
        .release(1, moved + QPoint(100, 0), &view);
    QVERIFY(std::fabs(view.zoomFactor() - 2.0) < 0.01);
}

void DiagramViewTouchTest::oneFingerDragsAHandle()
{
    auto *device = QTest::createTouchDevice();
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF before = view.at(GamutVertex::Green);
    // A finger is not as exact as a mouse.
    const QPoint finger = before.toPoint() + QPoint(14, -12);
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view);
    QVERIFY(edited.count() > 0);
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(20, -30)) < 1.0);
    QTest::touchEvent(&view, device).release(0, finger + QPoint(20, -30), &view);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTouchTest::secondFingerTakesADragBack()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPoint finger = view.at(GamutVertex::Green).toPoint();
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view);
    QVERIFY(view.xy(GamutVertex::Green) != xy);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view).press(1, finger + QPoint(120, 0), &view);
    QCOMPARE(view.xy(GamutVertex::Green), xy);
    QTest::touchEvent(&view, device).release(0, finger, &view).release(1, finger, &view);
    QVERIFY(!view.isEditing());
}

void DiagramViewTouchTest::secondFingerEndsTheHover()
{
    auto *device = QTest::createTouchDevice();
    View view;
    view.setZoomFactor(4.0);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    const QPoint start = view.at(QPointF(0.3, 0.4)).toPoint();
    QTest::touchEvent(&view, device).press(0, start, &view);
    QTest::touchEvent(&view, device).move(0, start + QPoint(30, 0), &view);
    QVERIFY(hovered.count() > 0);
    QCOMPARE(ended.count(), 0);
    const QPoint second = start + QPoint(90, 0);
    QTest::touchEvent(&view, device).move(0, start + QPoint(30, 0), &view).press(1, second, &view);
    QCOMPARE(ended.count(), 1);
    // Neither of two fingers points at anything.
    hovered.clear();
    QTest::touchEvent(&view, device).move(0, start, &view).move(1, second + QPoint(40, 0), &view);
    QVERIFY(view.zoomFactor() > 4.5);
    QCOMPARE(hovered.count(), 0);
    QTest::touchEvent(&view, device).release(0, start, &view).release(1, second + QPoint(40, 0), &view);
    QCOMPARE(ended.count(), 1);
}

void DiagramViewTouchTest::otherFingersBeginAnew()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint();
    const QPoint left = middle - QPoint(100, 0);
    const QPoint right = middle + QPoint(100, 0);
    const QPoint third = middle + QPoint(20, 90);
    QTest::touchEvent(&view, device).press(0, left, &view).press(1, right, &view).press(2, third, &view);
    QTest::touchEvent(&view, device).move(0, left - QPoint(50, 0), &view).move(1, right, &view).move(2, third, &view);
    const double zoom = view.zoomFactor();
    const QPointF centre = view.centre();
    QVERIFY(zoom > 1.0);
    QTest::touchEvent(&view, device).release(0, left, &view).move(1, right, &view).move(2, third, &view);
    QTest::touchEvent(&view, device).move(1, right, &view).move(2, third, &view);
    QCOMPARE(view.zoomFactor(), zoom);
    QCOMPARE(view.centre(), centre);
    QTest::touchEvent(&view, device).release(1, right, &view).release(2, third, &view);
}

void DiagramViewTouchTest::tapsOfAFingerMoveNothing()
{
    auto *device = QTest::createTouchDevice();
    View view;
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const QPoint finger = view.at(GamutVertex::Red).toPoint();
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(2, 1), &view);
    QTest::touchEvent(&view, device).release(0, finger + QPoint(2, 1), &view);
    QCOMPARE(started.count(), 0);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Red);
}

void DiagramViewTouchTest::doubleTapsZoomAtTheFinger()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint finger = freeGround(view).toPoint();
    const QPointF xy = view.viewport().toChromaticity(finger);
    const auto tap = [&](const QPoint &at) {
        QTest::touchEvent(&view, device).press(0, at, &view);
        QTest::touchEvent(&view, device).move(0, at + QPoint(1, 2), &view);
        QTest::touchEvent(&view, device).release(0, at + QPoint(1, 2), &view);
    };
    tap(finger);
    QVERIFY(view.viewport().showsAll());
    tap(finger + QPoint(6, -8));
    QVERIFY(view.zoomFactor() > 2.0);
    QVERIFY(length(view.at(xy) - finger) < 40.0);
    // A third one is the first of the next two, which bring all back.
    const double closer = view.zoomFactor();
    tap(finger);
    QCOMPARE(view.zoomFactor(), closer);
    tap(finger);
    QVERIFY(view.viewport().showsAll());
    // Not after too long, nor far apart, nor after a pan.
    tap(finger);
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
    tap(finger);
    QVERIFY(view.viewport().showsAll());
    tap(finger + QPoint(0, 80));
    QVERIFY(view.viewport().showsAll());
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(30, 30), &view);
    QTest::touchEvent(&view, device).release(0, finger + QPoint(30, 30), &view);
    tap(finger + QPoint(30, 30));
    QCOMPARE(view.zoomFactor(), 1.0);
}

void DiagramViewTouchTest::doubleTapsOnHandlesSelect()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint finger = view.at(GamutVertex::Green).toPoint();
    for (int i = 0; i < 2; ++i) {
        QTest::touchEvent(&view, device).press(0, finger, &view);
        QTest::touchEvent(&view, device).release(0, finger, &view);
    }
    QVERIFY(view.viewport().showsAll());
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
}

QTEST_MAIN(DiagramViewTouchTest)
#include "diagramviewtouchtest.moc"
