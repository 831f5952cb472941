// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/legacy/ceiegraphicsscene_p.h>
#include <ceiechart/scene/containment_p.h>

#include <QCursor>
#include <QGraphicsSceneMouseEvent>

bool CEIEGraphicsScene::Private::isInsideOriginal(const QPointF &position)
{
    return ceiechart::polygonContains(scene()->convertPointF(toChroma(position)), originalVertices.toArray());
}

void CEIEGraphicsScene::Private::rememberMousePosition(const QPointF &position)
{
    lastMousePosition = QPoint(ceiechart::truncated(position.x()), ceiechart::truncated(position.y()));
}

void CEIEGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (!d->mouseAllowed) {
        return;
    }
    own().buttonDown = true;
    own().rememberMousePosition(event->scenePos());
    if (d->hand) {
        return;
    }
    if (d->magnifier) {
        SetFunctionKeyShortcuts();
        return;
    }
    d->requestedPoint = event->scenePos();
    own().leftButton = event->button() == Qt::LeftButton;
    if (!own().leftButton || d->triangles.isEmpty()) {
        return;
    }
    if (own().regionGate && !own().isInsideOriginal(d->requestedPoint) && !GetPointInFences(d->requestedPoint)) {
        return;
    }
    d->vertexSelected = false;
    d->savedPoint = d->requestedPoint;
    MouseClickAire(d->requestedPoint);
    MouseSelectedPoint(d->requestedPoint);
}

void CEIEGraphicsScene::Private::showHoverCursor(const QPointF &position)
{
    // QPointF's comparison is not used because it ignores small differences.
    if (position.x() != lastHoverPosition.x() || position.y() != lastHoverPosition.y()) {
        lastHoverPosition = position;
        Q_EMIT scene()->signal_mouseCursorChange(QCursor(hand ? Qt::OpenHandCursor : Qt::CrossCursor));
    }
}

bool CEIEGraphicsScene::Private::followPointer(const QPointF &position)
{
    requestedPoint = position;
    scene()->SetCentreTriangle();
    whiteInside = ceiechart::polygonContains(scene()->convertPointF(toChroma(position)), targetVertices.toArray())
        && leftButton;
    scene()->IsEllipseAire(position);
    if (whiteMoved && whiteInside) {
        q->update();
    }
    if (!leftButton) {
        return true;
    }
    if (centreSelected && editMode != WhiteLocked) {
        if (whiteMoved) {
            scene()->MoveCentreTriangle();
        }
        return false;
    }
    centreSelected = false;
    if (editMode != EverythingEditable) {
        return false;
    }
    vertexSelected = false;
    if (regionGate && !isInsideOriginal(position)) {
        scene()->ClearSpeedUpStep();
        scene()->GetSelectedEllipseSign(position);
        vertexSelected = true;
    }
    scene()->RefreshEllipseSignPosition();
    return true;
}

void CEIEGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const bool panning = own().buttonDown && d->hand;
    if (!panning) {
        if (d->magnifier) {
            return;
        }
        own().rememberMousePosition(event->scenePos());
        own().showHoverCursor(event->scenePos());
        if (!d->triangles.isEmpty() && !own().followPointer(event->scenePos())) {
            return;
        }
    }
    event->accept();
    update();
}

void CEIEGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    own().buttonDown = false;
    d->vertexSelected = false;
    if (event->button() == Qt::RightButton) {
        own().whiteInside = false;
    }
    if (event->button() == Qt::LeftButton) {
        if (d->hasTarget()) {
            d->refreshTargetReport();
        }
        Q_EMIT signal_targetInfoChanged(d->targetReport);
        if (d->hasTarget() && d->centreSelected && d->whiteHeld) {
            Q_EMIT signal_colorGamutWhiteChanged(d->triangles.at(1));
        }
    }
    update();
    own().leftButton = false;
    d->centreSelected = false;
    event->accept();
}
