// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagramview_p.h>

#include <QFocusEvent>
#include <QKeyEvent>

namespace ceiechart {

namespace {

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

} // namespace

bool DiagramView::Private::wants(const QKeyEvent &event) const
{
    const Qt::KeyboardModifiers modifiers = without(event.modifiers(), Qt::KeypadModifier);
    if (event.key() == Qt::Key_Escape) {
        return hand == Hand::Holding || hand == Hand::Dragging || selected;
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
    hands.decimals = mostDecimals; // the step goes exactly as far as it says
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
        before = target()->gamut.getTargets();
        if (!tell(&DiagramView::editingStarted) || !keysAreEditing || !selected || !hasHandles()) {
            return true;
        }
        step = nextStep(); // from what the host may have put there
    }
    const GamutVertex vertex = edit->vertex();
    const bool isChange = apply(step, hands.slow);
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

//! One step back at a time, and whether there was one: what remains belongs to the window, as the Esc of a dialog does.
bool DiagramView::Private::escape()
{
    if (hand == Hand::Dragging) {
        q->cancelEditing();
    } else if (hand == Hand::Holding) {
        hand = Hand::Spent;
        updateCursor();
    } else if (keysAreEditing) {
        keysAreEditing = false;
        arrowsDown.clear();
        takeBack();
    } else if (selected) {
        q->setSelectedVertex(std::nullopt);
    } else {
        return false;
    }
    return true;
}

void DiagramView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        if (!d->escape()) {
            QWidget::keyPressEvent(event);
        }
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
    if (isHidden() || !isEnabled()) {
        d->letGo(); // the focus goes before the view is told
    } else {
        d->finishKeys();
    }
}

bool DiagramView::focusNextPrevChild(bool next)
{
    if (d->hand == Private::Hand::Dragging) {
        return true;
    }
    // Qt passes the focus of a view on, too, that is being hidden or disabled.
    if (hasFocus() && d->hasHandles() && isVisible() && isEnabled()) {
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

} // namespace ceiechart
