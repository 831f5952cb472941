// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview_p.h>

#include <QGestureEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QStyleHints>
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
    if (event.modifiers() & Qt::ControlModifier) {
        return false;
    }
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
    const QPointer<DiagramView> view(q);
    finishKeys();
    if (!view) {
        return;
    }
    button = pressed;
    lastPosition = position;
    isClick = true;
    panRest = QPointF();
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

bool DiagramView::Private::refuseLocked(GamutVertex vertex)
{
    const TargetContext present = context();
    return tell(&DiagramView::editRefused, rules->move(present, vertex, xyOf(targetAt(present.target, vertex))).reason);
}

void DiagramView::Private::moveTo(const QPointF &position, Qt::KeyboardModifiers modifiers)
{
    const QPointer<DiagramView> view(q);
    const QPointF delta = position - lastPosition;
    switch (hand) {
    case Hand::Idle:
    case Hand::Spent:
        break;
    case Hand::Panning:
        isClick = isClick && delta.isNull();
        lastPosition = position;
        pan(delta);
        break;
    case Hand::Holding:
        // A finger that taps is never quite still; a mouse is.
        if (delta.isNull() || !selected || !hasHandles()
            || (touching && distance(position, lastPosition) < QGuiApplication::styleHints()->startDragDistance())) {
            break;
        }
        hand = Hand::Dragging;
        before = target()->gamut.getTargets();
        edit.emplace(context(), *selected);
        lastReason.clear();
        if (!tell(&DiagramView::editingStarted)) {
            return;
        }
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
    if (view) {
        hover(position);
    }
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
    const bool isChange = changesTarget(step.move);
    label = EditLabel{vertex, step.snap ? step.snap->to.name : QString(), step.move.reason};
    if (isChange) {
        putTarget(*step.move.targets);
    } else {
        refreshOverlay();
    }
    q->update(former + overlayRegion(overlay));
    if (step.move.reason != lastReason) {
        lastReason = step.move.reason;
        if (!lastReason.isEmpty() && !tell(&DiagramView::editRefused, lastReason)) {
            return isChange;
        }
    }
    // The host may have put another target in its place, or have ended the edit.
    if (isChange && edit && target()) {
        tellEdit();
    }
    return isChange;
}

bool DiagramView::Private::changesTarget(const TargetMove &move) const
{
    return move.targets && target() && !sameTargets(*move.targets, target()->gamut.getTargets());
}

bool DiagramView::Private::tellEdit()
{
    const Model::ColorGamut edited = target()->gamut;
    return tell(&DiagramView::targetEdited, edited) && tell(&DiagramView::gamutsChanged);
}

void DiagramView::Private::dropLabel()
{
    labelTimer.stop();
    if (!label && guidesXy.isEmpty()) {
        return;
    }
    const QRegion former = overlayRegion(overlay);
    label.reset();
    guidesXy.clear();
    refreshOverlay();
    q->update(former + overlayRegion(overlay));
}

void DiagramView::Private::finishEditing()
{
    edit.reset();
    lastReason.clear();
    dropLabel();
    tell(&DiagramView::editingFinished);
}

void DiagramView::Private::release(Qt::MouseButton released)
{
    if (hand == Hand::Idle || released != button) {
        return;
    }
    const bool wasDragging = hand == Hand::Dragging;
    const bool wasClick = hand == Hand::Panning && isClick && released == Qt::LeftButton;
    hand = Hand::Idle;
    button = Qt::NoButton;
    updateCursor();
    if (wasDragging) {
        finishEditing();
    } else if (wasClick) {
        q->setSelectedVertex(std::nullopt);
    }
}

void DiagramView::cancelEditing()
{
    if (d->hand != Private::Hand::Dragging) {
        return;
    }
    // The button is still down; what it does from here is nothing.
    d->hand = Private::Hand::Spent;
    d->edit.reset();
    d->updateCursor();
    if (d->target() && !sameTargets(d->target()->gamut.getTargets(), d->before)) {
        d->putTarget(d->before);
        if (!d->tellEdit()) {
            return;
        }
    }
    if (d->tell(&DiagramView::editingCanceled)) {
        d->finishEditing();
    }
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
    isHovering = isInside;
    const bool showsReadout = isInside && hand != Hand::Dragging; // the label shows the same
    if (readoutShown && (showsReadout || !overlay.readout.isEmpty())) {
        const QRect former = overlay.readoutPlace.toAlignedRect();
        const bool hadReadout = !overlay.readout.isEmpty();
        const QString text = showsReadout ? q->coordinatesText(viewport.toChromaticity(position)) : QString();
        if (hadReadout != showsReadout || DiagramOverlay::labelSize({text}, q->font()) != overlay.readoutPlace.size()) {
            refreshOverlay();
        } else {
            overlay.readout = text;
        }
        if (hadReadout) {
            q->update(former);
        }
        if (showsReadout) {
            q->update(overlay.readoutPlace.toAlignedRect());
        }
    }
    updateCursor();
    const QPointF xy = viewport.toChromaticity(position);
    const bool wasTold = isHoverTold;
    isHoverTold = isInside && isChromaticity(xy);
    if (isHoverTold) {
        tell(&DiagramView::hovered, xy);
    } else if (wasTold) {
        tell(&DiagramView::hoverEnded);
    }
}

void DiagramView::Private::endHover()
{
    const bool wasTold = isHoverTold;
    const QRegion former = overlayRegion(overlay);
    pointer.reset();
    hovered.reset();
    isHovering = isHoverTold = false;
    refreshOverlay();
    q->update(former + overlayRegion(overlay));
    updateCursor();
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

bool DiagramView::moveVertex(GamutVertex vertex, const QPointF &xy)
{
    if (d->hand == Private::Hand::Dragging || d->edit || !d->hasHandles()) {
        return false;
    }
    TargetMove move = movedTowards(*d->rules, d->context(), vertex, xy);
    if (!move.reason.isEmpty() && !d->tell(&DiagramView::editRefused, move.reason)) {
        return false;
    }
    if (!d->hasHandles() || !d->changesTarget(move) || !d->tell(&DiagramView::editingStarted)) {
        return false;
    }
    // The host may have put another target in its place, or have taken it away.
    const bool isChange = d->hasHandles() && d->changesTarget(move = movedTowards(*d->rules, d->context(), vertex, xy));
    if (isChange) {
        d->putTarget(*move.targets);
        announceMove(this, vertex);
        if (!d->tellEdit()) {
            return true;
        }
    }
    d->tell(&DiagramView::editingFinished);
    return isChange;
}

// Keys

bool DiagramView::Private::wants(const QKeyEvent &event) const
{
    const Qt::KeyboardModifiers modifiers = without(event.modifiers(), Qt::KeypadModifier);
    if (event.key() == Qt::Key_Escape) {
        return hand == Hand::Holding || hand == Hand::Dragging;
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
    const QPointer<DiagramView> view(q);
    reveal(*selected);
    if (!view || !selected || !hasHandles()) {
        return true;
    }
    if (!rules->isMovable(*selected)) {
        refuseLocked(*selected);
        return true;
    }
    arrowsDown.insert(event->key());
    EditHands hands;
    hands.slow = modifiers & Qt::ShiftModifier;
    hands.decimals = exactDecimals;
    const QPointF way = direction * keyStepFor(viewport.scale());
    if (modifiers & Qt::ControlModifier) {
        hands.onLine = true;
    }
    const auto nextStep = [&] {
        edit.emplace(context(), *selected);
        const EditStep step = edit->moveBy(*rules, way, hands);
        return step;
    };
    EditStep step = nextStep();
    if (!keysAreEditing && changesTarget(step.move)) {
        edit.reset();
        keysAreEditing = true;
        if (!tell(&DiagramView::editingStarted) || !keysAreEditing || !selected || !hasHandles()) {
            return true;
        }
        step = nextStep(); // from what the host may have put there
    }
    const GamutVertex vertex = edit->vertex();
    const bool isChange = apply(step);
    if (!view) {
        return true;
    }
    edit.reset();
    labelTimer.stop();
    if (isChange && hasHandles()) {
        announceMove(q, vertex);
    }
    return true;
}

void DiagramView::Private::reveal(GamutVertex vertex)
{
    if (hasHandles() && !viewport.plot().contains(positionOf(vertex))) {
        look(viewport.centredOn(xyOf(targetAt(target()->gamut.getTargets(), vertex)), viewport.zoom()));
    }
}

void DiagramView::Private::selectByKey(GamutVertex vertex)
{
    const QPointer<DiagramView> view(q);
    q->setSelectedVertex(vertex);
    if (view && selected == vertex) {
        reveal(vertex);
    }
}

void DiagramView::Private::finishKeys()
{
    if (!keysAreEditing && arrowsDown.isEmpty()) {
        return;
    }
    const bool wereEditing = keysAreEditing;
    keysAreEditing = false;
    arrowsDown.clear();
    lastReason.clear();
    labelTimer.start();
    if (wereEditing) {
        tell(&DiagramView::editingFinished);
    }
}

void DiagramView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        if (d->hand == Private::Hand::Dragging) {
            cancelEditing();
            return;
        }
        if (d->hand == Private::Hand::Holding) {
            d->hand = Private::Hand::Spent;
            d->updateCursor();
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
        d->selectByKey(*vertex);
    } else {
        showAll();
    }
}

void DiagramView::keyReleaseEvent(QKeyEvent *event)
{
    // Until the last of them is up it is one edit.
    if (!event->isAutoRepeat() && d->arrowsDown.contains(event->key())) {
        if (d->arrowsDown.size() == 1) {
            d->finishKeys();
        } else {
            d->arrowsDown.remove(event->key());
        }
        return;
    }
    QWidget::keyReleaseEvent(event);
}

void DiagramView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    const QPointer<DiagramView> view(this);
    if (d->hasHandles()) {
        if (event->reason() == Qt::TabFocusReason) {
            d->selectByKey(allGamutVertices.front());
        } else if (event->reason() == Qt::BacktabFocusReason) {
            d->selectByKey(allGamutVertices.back());
        }
    }
    if (!view) {
        return;
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
    d->refreshOverlay();
    update();
    d->finishKeys();
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
            d->selectByKey(allGamutVertices[size_t(to)]);
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
    if (isOfFingers(*event)) {
        const QPointF pixels = event->pixelDelta();
        d->pan(pixels.isNull() ? QPointF(event->angleDelta()) * (panOfKey / notch) : pixels);
    } else if (event->angleDelta().y() != 0) {
        d->zoom(std::pow(zoomOfNotch, event->angleDelta().y() / notch), position);
    }
    if (view) {
        d->hover(position);
    }
}

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
        pinchLength = std::max(1.0, distance(first->at, second->at));
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
            // The first finger did not mean to move anything.
            endHand();
        }
    } else if (event->type() == QEvent::TouchBegin && fingers.size() == 1) {
        if (q->focusPolicy() & Qt::ClickFocus) {
            q->setFocus(Qt::MouseFocusReason);
        }
        if (view) {
            press(fingers[0].at, Qt::LeftButton);
        }
    } else if (!pinching && fingers.size() == 1) {
        moveTo(fingers[0].at, event->modifiers());
    } else if (fingers.isEmpty()) {
        pinching = false;
        release(Qt::LeftButton);
        if (view) {
            endHover();
        }
    }
    return true;
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
