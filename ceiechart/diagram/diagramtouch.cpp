// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QGestureEvent>
#include <QGuiApplication>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QStyleHints>
#include <QTouchEvent>

#include <algorithm>

namespace ceiechart {

namespace {

struct Finger {
    int id = 0;
    QPointF at;
};

//! The fingers that are down.
QVector<Finger> fingersOf(const QTouchEvent &event)
{
    QVector<Finger> fingers;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        if (point.state() != Qt::TouchPointReleased) {
            fingers.append({point.id(), point.pos()});
        }
    }
#else
    for (const QEventPoint &point : event.points()) {
        if (point.state() != QEventPoint::Released) {
            fingers.append({point.id(), point.position()});
        }
    }
#endif
    return fingers;
}

} // namespace

bool DiagramView::Private::touch(QTouchEvent *event)
{
    const QPointer<DiagramView> view(q);
    const QVector<Finger> fingers = fingersOf(*event);
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        touching = pinching = false;
        endHand();
        return true;
    }
    touching = !fingers.isEmpty();
    if (fingers.size() >= 2) {
        const auto finger = [&fingers](int id) {
            return std::find_if(fingers.begin(), fingers.end(), [id](const Finger &f) { return f.id == id; });
        };
        auto first = finger(pinchFingers.first);
        auto second = finger(pinchFingers.second);
        const bool goesOn = pinching && first != fingers.end() && second != fingers.end();
        if (!goesOn) {
            // With other fingers it begins anew, from where these are.
            first = fingers.begin();
            second = first + 1;
            pinchFingers = {first->id, second->id};
        }
        const QPointF formerMiddle = pinchMiddle;
        const double formerLength = pinchLength;
        pinchMiddle = (first->at + second->at) / 2.0;
        pinchLength = std::max(1.0, length(first->at - second->at));
        if (goesOn) {
            const QPointF middle = pinchMiddle;
            const double factor = pinchLength / formerLength;
            pan(middle - formerMiddle);
            if (view && factor != 1.0) {
                zoom(factor, middle);
            }
        } else {
            pinching = true;
            panRest = QPointF();
            // The first finger did not mean to move anything, nor to point at something.
            endHand();
            if (view) {
                endHover();
            }
        }
    } else if (event->type() == QEvent::TouchBegin && fingers.size() == 1) {
        if (q->focusPolicy() & Qt::ClickFocus) {
            q->setFocus(Qt::MouseFocusReason);
        }
        if (view) {
            tap.isSecond = tap.since.isValid()
                && tap.since.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval()
                && length(fingers[0].at - tap.at) <= handleReach;
            press(fingers[0].at, Qt::LeftButton);
        }
    } else if (!pinching && fingers.size() == 1) {
        moveTo(fingers[0].at, event->modifiers());
    } else if (fingers.isEmpty()) {
        const bool isTap = !pinching && hand == Hand::Panning && !grip.isMoving();
        const bool isDoubleTap = isTap && tap.isSecond;
        tap.since.invalidate();
        if (isTap && !isDoubleTap) {
            tap.since.start();
            tap.at = grip.position();
        }
        pinching = false;
        release(Qt::LeftButton);
        if (view && isDoubleTap) {
            zoomOrShowAll(grip.position());
        }
        if (view) {
            endHover();
        }
    }
    return true;
}

bool DiagramView::Private::gesture(QGestureEvent *event)
{
    auto *pinch = static_cast<QPinchGesture *>(event->gesture(Qt::PinchGesture));
    if (!pinch) {
        return false;
    }
    event->accept(pinch);
    const QPointer<DiagramView> view(q);
    // Fingers on a screen are seen one by one; this is for those on a pad.
    if (touching || pinching || pinch->state() == Qt::GestureCanceled) {
        return true;
    }
    const QPointF middle = q->mapFromGlobal(pinch->centerPoint().toPoint());
    if (pinch->changeFlags() & QPinchGesture::CenterPointChanged && pinch->state() == Qt::GestureUpdated) {
        pan(pinch->centerPoint() - pinch->lastCenterPoint());
    }
    if (view && pinch->changeFlags() & QPinchGesture::ScaleFactorChanged && pinch->scaleFactor() > 0.0) {
        zoom(pinch->scaleFactor(), middle);
    }
    return true;
}

void DiagramView::Private::zoomOrShowAll(const QPointF &position)
{
    constexpr double closeUp = 4.0;
    if (viewport.showsAll()) {
        zoom(closeUp, position);
    } else {
        q->showAll();
    }
}

bool DiagramView::Private::nativeGesture(QNativeGestureEvent *event)
{
    const QPointF position = ceiechart::positionOf(*event);
    switch (event->gestureType()) {
    case Qt::ZoomNativeGesture:
        zoom(std::max(0.1, 1.0 + event->value()), position);
        return true;
    case Qt::SmartZoomNativeGesture:
        zoomOrShowAll(position);
        return true;
    default:
        return false;
    }
}

} // namespace ceiechart
