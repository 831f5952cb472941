// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagramview_p.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>

namespace ceiechart {

namespace {

constexpr double zoomOfNotch = 1.25; // a notch is 120 units of the wheel
constexpr double notch = 120.0;
constexpr int scrollPause = 150; // milliseconds: after a longer one, fingers may have given way to a wheel

//! Whether the wheel event is one of fingers on a pad, which pans, and not one of a wheel, which zooms.
bool isOfFingers(const QWheelEvent &event)
{
    if (event.pixelDelta().isNull()) {
        // Not every platform tells the pixels of fingers; a wheel that is tilted wants to go sideways too.
        return event.phase() != Qt::NoScrollPhase || event.angleDelta().x() != 0;
    }
    // Some platforms give pixels for the notches of a wheel too, but no phases.
    const bool isNotches
        = event.angleDelta().x() == 0 && event.angleDelta().y() != 0 && event.angleDelta().y() % int(notch) == 0;
    return event.phase() != Qt::NoScrollPhase || !isNotches;
}

} // namespace

void DiagramView::Private::press(const QPointF &position, Qt::MouseButton pressed)
{
    if (hand != Hand::Idle || (pressed != Qt::LeftButton && pressed != Qt::MiddleButton)) {
        return;
    }
    const QPointer<DiagramView> view(q);
    finishKeys();
    if (!view) {
        return;
    }
    button = pressed;
    // The middle button has no click to be told from a drag.
    grip = Grip(position, pressed == Qt::LeftButton ? QGuiApplication::styleHints()->startDragDistance() : 0.0);
    panRest = slipped = QPointF();
    const auto vertex = pressed == Qt::LeftButton ? handleAt(position) : std::nullopt;
    if (!vertex) {
        hand = Hand::Panning;
        updateCursor();
        return;
    }
    hand = Hand::Spent;
    q->setSelectedVertex(vertex);
    // A host may have taken away the view, the target or the handle in answer to the signals.
    if (!view || hand != Hand::Spent || selected != vertex || !hasHandles()) {
        return;
    }
    if (rules->isMovable(*vertex)) {
        hand = Hand::Holding;
    } else if (!refuseLocked(*vertex)) {
        return;
    }
    updateCursor();
}

void DiagramView::Private::moveTo(const QPointF &position, Qt::KeyboardModifiers modifiers)
{
    const QPointer<DiagramView> view(q);
    const QPointF way = grip.moveTo(position);
    pointer = position;
    switch (hand) {
    case Hand::Idle:
    case Hand::Spent:
        break;
    case Hand::Panning:
        pan(way);
        break;
    case Hand::Holding:
        if (!grip.isMoving() || !selected || !hasHandles()) {
            break;
        }
        hand = Hand::Dragging;
        before = target()->gamut.getTargets();
        edit.emplace(context(), *selected);
        edit->shift(slipped);
        lastReason.clear();
        if (!tell(&DiagramView::editingStarted)) {
            return;
        }
        Q_FALLTHROUGH();
    case Hand::Dragging:
        // A host may have ended it in answer to the signal.
        if (hand == Hand::Dragging && edit) {
            drag(viewport.toPoint(way) - viewport.toPoint(QPointF()), modifiers);
        }
        break;
    }
    if (view) {
        hover(position);
    }
}

void DiagramView::Private::release(Qt::MouseButton released)
{
    if (hand == Hand::Idle || released != button) {
        return;
    }
    const bool wasDragging = hand == Hand::Dragging;
    const bool wasClick = hand == Hand::Panning && !grip.isMoving() && released == Qt::LeftButton;
    hand = Hand::Idle;
    button = Qt::NoButton;
    updateCursor();
    if (wasDragging) {
        finishEditing();
    } else if (wasClick) {
        q->setSelectedVertex(std::nullopt);
    }
}

void DiagramView::Private::endHand()
{
    const QPointer<DiagramView> view(q);
    q->cancelEditing();
    if (view) {
        hand = Hand::Idle;
        button = Qt::NoButton;
        updateCursor();
    }
}

void DiagramView::Private::letGo()
{
    isLettingGo = true;
    touching = pinching = false;
    endHand();
    finishKeys();
    endHover();
    isLettingGo = false;
    QMetaObject::invokeMethod(
        q, [this] { tellUntold(); }, Qt::QueuedConnection);
}

bool DiagramView::Private::tellUntold()
{
    const QPointer<DiagramView> view(q);
    while (view && !untold.empty()) {
        const std::function<void()> tell = std::move(untold.front());
        untold.pop_front();
        tell();
    }
    return !view.isNull();
}

void DiagramView::Private::hover(const QPointF &position)
{
    pointer = position;
    hoverAgain();
}

void DiagramView::Private::hoverAgain()
{
    if (!pointer) {
        return;
    }
    const bool isInside = viewport.plot().contains(*pointer);
    if (handleBelowPointer() != hovered) {
        updateOverlay();
    }
    isHovering = isInside;
    const QRect formerReadout = overlay.readoutPlace.toAlignedRect();
    placeReadout();
    q->update(QRegion(formerReadout) + overlay.readoutPlace.toAlignedRect());
    updateCursor();
    const QPointF xy = viewport.toChromaticity(*pointer);
    const auto former = hoverTold;
    hoverTold = isInside && isChromaticity(xy) ? std::make_optional(HoverTold{xy, viewport}) : std::nullopt;
    if (hoverTold) {
        // A hand that moves the view hovers with the view and once more by itself.
        if (!former || former->xy != xy || !(former->viewport == viewport)) {
            tell(&DiagramView::hovered, xy);
        }
    } else if (former) {
        tell(&DiagramView::hoverEnded);
    }
}

void DiagramView::Private::endHover()
{
    const bool wasTold = hoverTold.has_value();
    pointer.reset();
    hoverTold.reset();
    isHovering = false;
    updateOverlay();
    if (wasTold) {
        tell(&DiagramView::hoverEnded);
    }
}

void DiagramView::Private::updateCursor()
{
    Qt::CursorShape shape = Qt::ArrowCursor;
    if (hand == Hand::Panning) {
        shape = Qt::ClosedHandCursor;
    } else if (hand == Hand::Holding || hand == Hand::Dragging) {
        shape = Qt::SizeAllCursor;
    } else if (hovered) {
        shape = rules->isMovable(*hovered) ? Qt::SizeAllCursor : Qt::ForbiddenCursor;
    } else if (isHovering) {
        shape = Qt::CrossCursor;
    }
    if (q->cursor().shape() != shape) {
        q->setCursor(shape);
    }
}

void DiagramView::mousePressEvent(QMouseEvent *event)
{
    d->press(ceiechart::positionOf(*event), event->button());
}

void DiagramView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<DiagramView> view(this);
    if (d->button != Qt::NoButton && !(event->buttons() & d->button)) {
        // The release went elsewhere.
        d->release(d->button);
    }
    if (!view) {
        return;
    }
    d->moveTo(ceiechart::positionOf(*event), event->modifiers());
}

void DiagramView::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<DiagramView> view(this);
    d->release(event->button());
    if (view) {
        d->hover(ceiechart::positionOf(*event));
    }
}

void DiagramView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<DiagramView> view(this);
    const QPointF position = ceiechart::positionOf(*event);
    if (event->button() == Qt::LeftButton && !d->handleAt(position)) {
        showAll();
    }
    if (view) {
        d->press(position, event->button());
    }
}

void DiagramView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    d->endHover();
}

void DiagramView::wheelEvent(QWheelEvent *event)
{
    const QPointer<DiagramView> view(this);
    const QPointF position = event->position();
    event->accept();
    d->pointer = position;
    const QPoint angle = event->angleDelta();
    const bool isZoom = event->modifiers() & Qt::ControlModifier;
    // Within one movement of fingers an event may look like a notch: straight up, or without pixels.
    const bool goesOn
        = event->phase() == Qt::NoScrollPhase && d->sinceScroll.isValid() && d->sinceScroll.elapsed() < scrollPause;
    if (!isZoom && (goesOn || isOfFingers(*event))) {
        const QPointF pixels = event->pixelDelta();
        d->sinceScroll.start();
        d->pan(pixels.isNull() ? QPointF(angle) * (panOfKey / notch) : pixels);
    } else if (std::abs(angle.y()) > std::abs(angle.x())) {
        d->zoom(std::pow(zoomOfNotch, angle.y() / notch), position);
    }
    if (view) {
        d->hover(position);
    }
}

} // namespace ceiechart
