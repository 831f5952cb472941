// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double snapPixels = 8.0; // logical

} // namespace

std::optional<GamutVertex> DiagramView::Private::handleAt(const QPointF &position) const
{
    std::optional<GamutVertex> nearest;
    double least = handleReach;
    // From the top: of two at the same place, the one that is seen is hit.
    for (auto handle = overlay.handles.crbegin(); handle != overlay.handles.crend(); ++handle) {
        const double away = length(handle->at - position);
        if (away < least || (!nearest && away <= least)) {
            least = away;
            nearest = handle->vertex;
        }
    }
    return nearest;
}

std::optional<GamutVertex> DiagramView::Private::handleBelowPointer() const
{
    if (!pointer || overlay.handles.isEmpty()) {
        return std::nullopt;
    }
    return hand == Hand::Idle ? handleAt(*pointer) : hovered;
}

QPointF DiagramView::Private::positionOf(GamutVertex vertex) const
{
    const DiagramGamut *gamut = target();
    return gamut ? viewport.toPosition(xyOf(targetAt(gamut->gamut.getTargets(), vertex))) : QPointF();
}

bool DiagramView::Private::refuseLocked(GamutVertex vertex)
{
    const TargetContext present = context();
    return tell(&DiagramView::editRefused, rules->move(present, vertex, xyOf(targetAt(present.target, vertex))).reason);
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
    hands.decimals = decimals(hands.slow);
    apply(edit->moveBy(*rules, way, hands), hands.slow);
}

void DiagramView::Private::followHand(const QPointF &point)
{
    const QPointF way = viewport.toPoint(grip.position()) - point;
    if (!std::isfinite(way.x()) || !std::isfinite(way.y())) {
        return; // of a view without any size
    }
    if (hand == Hand::Holding) {
        slipped += way;
    } else if (hand == Hand::Dragging && edit && !way.isNull()) {
        edit->shift(way);
        // Not at once: a host is told of the step, and may be in the midst of what moved the diagram.
        const auto follow = [this] {
            if (hand == Hand::Dragging && edit) {
                drag(QPointF(), QGuiApplication::keyboardModifiers());
            }
        };
        QMetaObject::invokeMethod(q, follow, Qt::QueuedConnection);
    }
}

bool DiagramView::Private::apply(const EditStep &step, bool isSlow)
{
    const GamutVertex vertex = edit->vertex();
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
    label = EditLabel{vertex, step.snap ? step.snap->to.name : QString(), step.move.reason, isSlow};
    if (isChange) {
        putTarget(*step.move.targets);
    } else {
        updateOverlay();
    }
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
    if (!move.targets || !target() || sameTargets(*move.targets, target()->gamut.getTargets())) {
        return false;
    }
    // Rules of a host could give what cannot be shown, and then could not be moved back.
    return std::all_of(allGamutVertices.begin(), allGamutVertices.end(), [&move](GamutVertex vertex) {
        const Model::Target &moved = targetAt(*move.targets, vertex);
        return std::isfinite(moved.x) && std::isfinite(moved.y);
    });
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
    label.reset();
    guidesXy.clear();
    updateOverlay();
}

void DiagramView::Private::finishEditing()
{
    edit.reset();
    lastReason.clear();
    dropLabel();
    tell(&DiagramView::editingFinished);
}

void DiagramView::cancelEditing()
{
    if (d->hand != Private::Hand::Dragging) {
        return;
    }
    // The button is still down; what it does from here is nothing.
    d->hand = Private::Hand::Spent;
    d->updateCursor();
    d->takeBack();
}

void DiagramView::Private::takeBack()
{
    edit.reset();
    if (target() && !sameTargets(target()->gamut.getTargets(), before)) {
        putTarget(before);
        if (!tellEdit()) {
            return;
        }
    }
    if (tell(&DiagramView::editingCanceled)) {
        finishEditing();
    }
}

bool DiagramView::moveVertex(GamutVertex vertex, const QPointF &xy)
{
    if (!isVertex(vertex) || d->hand == Private::Hand::Dragging || d->edit || !d->hasHandles()) {
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

} // namespace ceiechart
