// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview_p.h>

#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double snapPixels = 8.0; // logical
constexpr double zoomOfNotch = 1.25; // a notch is 120 units of the wheel
constexpr double notch = 120.0;
constexpr double panOfKey = 48.0; // logical pixels
constexpr int exactDecimals = 10; // a step of a key goes exactly as far as it says

template <typename Event>
QPointF positionOf(const Event &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

QVector<QPointF> touchPositions(const QTouchEvent &event)
{
    QVector<QPointF> positions;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        if (point.state() != Qt::TouchPointReleased) {
            positions.append(point.pos());
        }
    }
#else
    for (const QEventPoint &point : event.points()) {
        if (point.state() != QEventPoint::Released) {
            positions.append(point.position());
        }
    }
#endif
    return positions;
}

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QPointF arrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1.0, 0.0};
    case Qt::Key_Right:
        return {1.0, 0.0};
    case Qt::Key_Up:
        return {0.0, 1.0};
    case Qt::Key_Down:
        return {0.0, -1.0};
    default:
        return {};
    }
}

std::optional<GamutVertex> vertexOf(int key)
{
    switch (key) {
    case Qt::Key_R:
        return GamutVertex::Red;
    case Qt::Key_G:
        return GamutVertex::Green;
    case Qt::Key_B:
        return GamutVertex::Blue;
    case Qt::Key_W:
        return GamutVertex::White;
    default:
        return std::nullopt;
    }
}

bool isZoomIn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal || event.matches(QKeySequence::ZoomIn);
}

bool isZoomOut(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Minus || event.matches(QKeySequence::ZoomOut);
}

Qt::KeyboardModifiers without(Qt::KeyboardModifiers modifiers, Qt::KeyboardModifier one)
{
    return modifiers & ~Qt::KeyboardModifiers(one);
}

//! Whether the wheel event is one of fingers on a pad, which pans, and not one of a wheel, which zooms.
bool isOfFingers(const QWheelEvent &event)
{
    if (event.pixelDelta().isNull() || (event.modifiers() & Qt::ControlModifier)) {
        return false;
    }
    // Some platforms give pixels for the notches of a wheel too, but no phases.
    const bool isNotches
        = event.angleDelta().x() == 0 && event.angleDelta().y() != 0 && event.angleDelta().y() % int(notch) == 0;
    return event.phase() != Qt::NoScrollPhase || !isNotches;
}

} // namespace

std::optional<GamutVertex> DiagramView::Private::handleAt(const QPointF &position) const
{
    std::optional<GamutVertex> nearest;
    double least = handleReach;
    // From the top: of two at the same place, the one that is seen is hit.
    for (auto handle = overlay.handles.crbegin(); handle != overlay.handles.crend(); ++handle) {
        const double away = distance(handle->at, position);
        if (away < least || (!nearest && away <= least)) {
            least = away;
            nearest = handle->vertex;
        }
    }
    return nearest;
}

QPointF DiagramView::Private::positionOf(GamutVertex vertex) const
{
    const DiagramGamut *gamut = target();
    return gamut ? viewport.toPosition(xyOf(targetAt(gamut->gamut.getTargets(), vertex))) : QPointF();
}

void DiagramView::Private::press(const QPointF &position, Qt::MouseButton pressed)
{
    if (hand != Hand::Idle || (pressed != Qt::LeftButton && pressed != Qt::MiddleButton)) {
        return;
    }
    finishKeys();
    button = pressed;
    lastPosition = position;
    panRest = QPointF();
    const auto vertex = pressed == Qt::LeftButton ? handleAt(position) : std::nullopt;
    if (!vertex) {
        hand = Hand::Panning;
        updateCursor();
        return;
    }
    q->setSelectedVertex(vertex);
    if (rules->isMovable(*vertex)) {
        hand = Hand::Holding;
    } else {
        hand = Hand::Spent;
        const TargetContext present = context();
        Q_EMIT q->editRefused(rules->move(present, *vertex, xyOf(targetAt(present.target, *vertex))).reason);
    }
    updateCursor();
}

void DiagramView::Private::moveTo(const QPointF &position, Qt::KeyboardModifiers modifiers)
{
    const QPointF delta = position - lastPosition;
    switch (hand) {
    case Hand::Idle:
    case Hand::Spent:
        break;
    case Hand::Panning:
        lastPosition = position;
        pan(delta);
        break;
    case Hand::Holding:
        if (delta.isNull() || !selected || !hasHandles()) {
            break;
        }
        hand = Hand::Dragging;
        before = target()->gamut.getTargets();
        edit.emplace(context(), *selected);
        lastReason.clear();
        Q_EMIT q->editingStarted();
        Q_FALLTHROUGH();
    case Hand::Dragging:
        // A host may have ended it in answer to the signal.
        if (hand == Hand::Dragging && edit) {
            const QPointF way = viewport.toPoint(position) - viewport.toPoint(lastPosition);
            lastPosition = position;
            drag(way, modifiers);
        }
        break;
    }
    hover(position);
}

void DiagramView::Private::drag(const QPointF &way, Qt::KeyboardModifiers modifiers)
{
    const bool onLine = modifiers & Qt::ControlModifier;
    const bool onAxis = modifiers & Qt::AltModifier;
    const bool isFree = onLine && onAxis;
    EditHands hands;
    hands.slow = modifiers & Qt::ShiftModifier;
    hands.onLine = onLine && !isFree;
    hands.onAxis = onAxis && !isFree;
    hands.reach = isFree ? 0.0 : snapPixels / viewport.scale();
    hands.decimals = decimals();
    apply(edit->moveBy(*rules, way, hands));
}

bool DiagramView::Private::apply(const EditStep &step)
{
    const GamutVertex vertex = edit->vertex();
    const QRegion former = overlayRegion(overlay);
    guidesXy.clear();
    if (step.lock.p1() != step.lock.p2()) {
        // Across all that is seen.
        const QPointF way = step.lock.p2() - step.lock.p1();
        const QRectF range = viewport.range();
        const double reach = (range.width() + range.height()) / std::hypot(way.x(), way.y());
        QPolygonF line;
        for (const QPointF &point : {step.lock.p1() - way * reach, step.lock.p1() + way * reach}) {
            const Model::DiagramPoint xy = Model::fromDiagram(viewport.diagram(), {point.x(), point.y()});
            line.append(QPointF(xy.x, xy.y));
        }
        guidesXy.append(line);
    }
    if (step.snap) {
        guidesXy.append(step.snap->to.xy);
    }
    const bool isChange = step.move.targets && !sameTargets(*step.move.targets, target()->gamut.getTargets());
    const Model::Targets shown = step.move.targets.value_or(target()->gamut.getTargets());
    label = QStringList(DiagramView::tr("%1: %2", "primary or white, and its coordinates")
                            .arg(gamutVertexName(vertex), q->coordinatesText(xyOf(targetAt(shown, vertex)))));
    if (!editNote.isEmpty()) {
        label.append(editNote);
    }
    if (step.snap) {
        label.append(step.snap->to.name);
    }
    if (!step.move.reason.isEmpty()) {
        label.append(step.move.reason);
    }
    if (isChange) {
        putTarget(*step.move.targets);
    } else {
        refreshOverlay();
    }
    q->update(former + overlayRegion(overlay));
    if (step.move.reason != lastReason) {
        lastReason = step.move.reason;
        if (!lastReason.isEmpty()) {
            Q_EMIT q->editRefused(lastReason);
        }
    }
    if (isChange) {
        // The host may put another target in its place, or end the drag.
        const Model::ColorGamut edited = target()->gamut;
        Q_EMIT q->targetEdited(edited);
        Q_EMIT q->gamutsChanged();
    }
    return isChange;
}

void DiagramView::Private::dropLabel()
{
    labelTimer.stop();
    if (label.isEmpty() && guidesXy.isEmpty()) {
        return;
    }
    const QRegion former = overlayRegion(overlay);
    label.clear();
    guidesXy.clear();
    refreshOverlay();
    q->update(former + overlayRegion(overlay));
}

void DiagramView::Private::finishEditing()
{
    edit.reset();
    lastReason.clear();
    dropLabel();
    Q_EMIT q->editingFinished();
}

void DiagramView::Private::release(Qt::MouseButton released)
{
    if (hand == Hand::Idle || released != button) {
        return;
    }
    const bool wasDragging = hand == Hand::Dragging;
    hand = Hand::Idle;
    button = Qt::NoButton;
    if (wasDragging) {
        finishEditing();
    }
    updateCursor();
}

void DiagramView::cancelEditing()
{
    if (d->hand != Private::Hand::Dragging) {
        return;
    }
    // The button is still down; what it does from here is nothing.
    d->hand = Private::Hand::Spent;
    d->edit.reset();
    if (d->target() && !sameTargets(d->target()->gamut.getTargets(), d->before)) {
        d->putTarget(d->before);
        const Model::ColorGamut restored = d->target()->gamut;
        Q_EMIT targetEdited(restored);
        Q_EMIT gamutsChanged();
    }
    d->updateCursor();
    Q_EMIT editingCanceled();
    d->finishEditing();
}

void DiagramView::Private::hover(const QPointF &position)
{
    pointer = position;
    const bool isInside = viewport.plot().contains(position);
    const auto handle = hand == Hand::Idle ? handleAt(position) : hovered;
    if (handle != hovered) {
        const QRegion former = overlayRegion(overlay);
        hovered = handle;
        refreshOverlay();
        q->update(former + overlayRegion(overlay));
    }
    const bool wasHovering = isHovering;
    isHovering = isInside;
    if (readoutShown && (isInside || wasHovering)) {
        const QRect former = overlay.readoutPlace.toAlignedRect();
        const bool hadReadout = !overlay.readout.isEmpty();
        const QString text = isInside ? q->coordinatesText(viewport.toChromaticity(position)) : QString();
        if (hadReadout != isInside || DiagramOverlay::labelSize({text}, q->font()) != overlay.readoutPlace.size()) {
            refreshOverlay();
        } else {
            overlay.readout = text;
        }
        if (hadReadout) {
            q->update(former);
        }
        if (isInside) {
            q->update(overlay.readoutPlace.toAlignedRect());
        }
    }
    updateCursor();
    if (isInside) {
        Q_EMIT q->hovered(viewport.toChromaticity(position));
    } else if (wasHovering) {
        Q_EMIT q->hoverEnded();
    }
}

void DiagramView::Private::endHover()
{
    const bool wasHovering = isHovering;
    const QRegion former = overlayRegion(overlay);
    pointer.reset();
    hovered.reset();
    isHovering = false;
    refreshOverlay();
    q->update(former + overlayRegion(overlay));
    if (wasHovering) {
        Q_EMIT q->hoverEnded();
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

bool DiagramView::moveVertex(GamutVertex vertex, const QPointF &xy)
{
    if (d->hand == Private::Hand::Dragging || d->edit || d->readOnly || !d->target()) {
        return false;
    }
    const TargetMove move = movedTowards(*d->rules, d->context(), vertex, xy);
    if (!move.reason.isEmpty()) {
        Q_EMIT editRefused(move.reason);
    }
    if (!move.targets || sameTargets(*move.targets, d->target()->gamut.getTargets())) {
        return false;
    }
    Q_EMIT editingStarted();
    d->putTarget(*move.targets);
    const Model::ColorGamut edited = d->target()->gamut;
    announceMove(this, vertex);
    Q_EMIT targetEdited(edited);
    Q_EMIT gamutsChanged();
    Q_EMIT editingFinished();
    return true;
}

// Keys

bool DiagramView::Private::wants(const QKeyEvent &event) const
{
    const Qt::KeyboardModifiers modifiers = without(event.modifiers(), Qt::KeypadModifier);
    if (event.key() == Qt::Key_Escape) {
        return hand == Hand::Dragging;
    }
    if (!arrowDirection(event.key()).isNull() || isZoomIn(event) || isZoomOut(event)) {
        return true;
    }
    const bool isPlain = modifiers == Qt::NoModifier;
    return isPlain
        && (event.key() == Qt::Key_0 || event.key() == Qt::Key_Home || (vertexOf(event.key()) && hasHandles()));
}

bool DiagramView::Private::nudge(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = without(event->modifiers(), Qt::KeypadModifier);
    const QPointF direction = arrowDirection(event->key());
    if (direction.isNull()) {
        return false;
    }
    if (hand == Hand::Dragging) {
        return true;
    }
    if (!selected || !hasHandles() || (modifiers & Qt::AltModifier)) {
        pan(QPointF(-direction.x(), direction.y()) * panOfKey);
        return true;
    }
    const TargetContext present = context();
    if (!rules->isMovable(*selected)) {
        Q_EMIT q->editRefused(rules->move(present, *selected, xyOf(targetAt(present.target, *selected))).reason);
        return true;
    }
    EditHands hands;
    hands.slow = modifiers & Qt::ShiftModifier;
    hands.decimals = exactDecimals;
    QPointF way = direction * keyStepFor(viewport.scale());
    if (modifiers & Qt::ControlModifier) {
        hands.onLine = true;
    }
    if (!keysAreEditing) {
        keysAreEditing = true;
        Q_EMIT q->editingStarted();
    }
    edit.emplace(present, *selected);
    const GamutVertex vertex = *selected;
    const bool isChange = apply(edit->moveBy(*rules, way, hands));
    edit.reset();
    labelTimer.stop();
    if (isChange) {
        announceMove(q, vertex);
    }
    return true;
}

void DiagramView::Private::finishKeys()
{
    if (!keysAreEditing) {
        return;
    }
    keysAreEditing = false;
    lastReason.clear();
    labelTimer.start();
    Q_EMIT q->editingFinished();
}

void DiagramView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        if (d->hand == Private::Hand::Dragging) {
            cancelEditing();
            return;
        }
        QWidget::keyPressEvent(event);
        return;
    }
    if (d->nudge(event)) {
        return;
    }
    if (isZoomIn(*event)) {
        zoomIn();
        return;
    }
    if (isZoomOut(*event)) {
        zoomOut();
        return;
    }
    if (!d->wants(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (const auto vertex = vertexOf(event->key())) {
        setSelectedVertex(vertex);
    } else {
        showAll();
    }
}

void DiagramView::keyReleaseEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat() && !arrowDirection(event->key()).isNull() && d->keysAreEditing) {
        d->finishKeys();
        return;
    }
    QWidget::keyReleaseEvent(event);
}

void DiagramView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (d->hasHandles()) {
        if (event->reason() == Qt::TabFocusReason) {
            setSelectedVertex(allGamutVertices.front());
        } else if (event->reason() == Qt::BacktabFocusReason) {
            setSelectedVertex(allGamutVertices.back());
        }
    }
    d->refreshOverlay();
    update();
    if (d->selected) {
        announceFocus(this, *d->selected);
    }
}

void DiagramView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    d->finishKeys();
    d->refreshOverlay();
    update();
}

bool DiagramView::focusNextPrevChild(bool next)
{
    if (d->hand == Private::Hand::Dragging) {
        return true;
    }
    if (hasFocus() && d->hasHandles()) {
        const int count = int(allGamutVertices.size());
        const int from = d->selected ? int(*d->selected) : (next ? -1 : count);
        const int to = next ? from + 1 : from - 1;
        if (to >= 0 && to < count) {
            setSelectedVertex(allGamutVertices[size_t(to)]);
            return true;
        }
    }
    return QWidget::focusNextPrevChild(next);
}

// Mouse and touch

void DiagramView::mousePressEvent(QMouseEvent *event)
{
    d->press(ceiechart::positionOf(*event), event->button());
}

void DiagramView::mouseMoveEvent(QMouseEvent *event)
{
    if (d->button != Qt::NoButton && !(event->buttons() & d->button)) {
        // The release went elsewhere.
        d->release(d->button);
    }
    d->moveTo(ceiechart::positionOf(*event), event->modifiers());
}

void DiagramView::mouseReleaseEvent(QMouseEvent *event)
{
    d->release(event->button());
    d->hover(ceiechart::positionOf(*event));
}

void DiagramView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointF position = ceiechart::positionOf(*event);
    if (event->button() == Qt::LeftButton && !d->handleAt(position)) {
        showAll();
    }
    d->press(position, event->button());
}

void DiagramView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    d->endHover();
    d->updateCursor();
}

void DiagramView::wheelEvent(QWheelEvent *event)
{
    const QPointF position = event->position();
    if (isOfFingers(*event)) {
        d->pan(event->pixelDelta());
    } else if (event->angleDelta().y() != 0) {
        d->zoom(std::pow(zoomOfNotch, event->angleDelta().y() / notch), position);
    }
    d->hover(position);
    event->accept();
}

bool DiagramView::Private::touch(QTouchEvent *event)
{
    const QVector<QPointF> fingers = touchPositions(*event);
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        q->cancelEditing();
        release(Qt::LeftButton);
        touching = pinching = false;
        return true;
    }
    if (fingers.size() >= 2) {
        const QPointF middle = (fingers[0] + fingers[1]) / 2.0;
        const double length = std::max(1.0, distance(fingers[0], fingers[1]));
        if (!pinching) {
            // The first finger did not mean to move anything.
            q->cancelEditing();
            release(Qt::LeftButton);
            pinching = true;
            panRest = QPointF();
        } else {
            pan(middle - pinchMiddle);
            if (length != pinchLength) {
                zoom(length / pinchLength, middle);
            }
        }
        pinchMiddle = middle;
        pinchLength = length;
    } else if (event->type() == QEvent::TouchBegin && fingers.size() == 1) {
        if (q->focusPolicy() & Qt::ClickFocus) {
            q->setFocus(Qt::MouseFocusReason);
        }
        press(fingers[0], Qt::LeftButton);
    } else if (!pinching && fingers.size() == 1) {
        moveTo(fingers[0], event->modifiers());
    }
    touching = !fingers.isEmpty();
    if (!touching) {
        release(Qt::LeftButton);
        pinching = false;
        endHover();
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
    // Fingers on a screen are seen one by one; this is for those on a pad.
    if (touching || pinching || pinch->state() == Qt::GestureCanceled) {
        return true;
    }
    const QPointF middle = q->mapFromGlobal(pinch->centerPoint().toPoint());
    if (pinch->changeFlags() & QPinchGesture::CenterPointChanged && pinch->state() == Qt::GestureUpdated) {
        pan(pinch->centerPoint() - pinch->lastCenterPoint());
    }
    if (pinch->changeFlags() & QPinchGesture::ScaleFactorChanged && pinch->scaleFactor() > 0.0) {
        zoom(pinch->scaleFactor(), middle);
    }
    return true;
}

bool DiagramView::Private::nativeGesture(QNativeGestureEvent *event)
{
    constexpr double smartZoom = 4.0;
    const QPointF position = ceiechart::positionOf(*event);
    switch (event->gestureType()) {
    case Qt::ZoomNativeGesture:
        zoom(std::max(0.1, 1.0 + event->value()), position);
        return true;
    case Qt::SmartZoomNativeGesture:
        if (viewport.showsAll()) {
            zoom(smartZoom, position);
        } else {
            q->showAll();
        }
        return true;
    default:
        return false;
    }
}

} // namespace ceiechart
