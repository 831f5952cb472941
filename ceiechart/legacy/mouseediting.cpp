// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/scene/containment_p.h>

#include <QCursor>
#include <QGraphicsSceneMouseEvent>

bool CEIEGraphicsScene::isInsideOriginal(const QPointF &position)
{
    return ceiechart::polygonContains(convertPointF(toChroma(position)), m_originalVertices.toArray());
}

void CEIEGraphicsScene::rememberMousePosition(const QPointF &position)
{
    m_lastMousePosition = QPoint(ceiechart::truncated(position.x()), ceiechart::truncated(position.y()));
}

void CEIEGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (!m_mouseAllowed) {
        return;
    }
    m_buttonDown = true;
    rememberMousePosition(event->scenePos());
    if (m_hand) {
        return;
    }
    if (m_magnifier) {
        SetFunctionKeyShortcuts();
        return;
    }
    m_requestedPoint = event->scenePos();
    m_leftButton = event->button() == Qt::LeftButton;
    if (!m_leftButton || m_triangles.isEmpty()) {
        return;
    }
    if (m_regionGate && !isInsideOriginal(m_requestedPoint) && !GetPointInFences(m_requestedPoint)) {
        return;
    }
    m_vertexSelected = false;
    m_savedPoint = m_requestedPoint;
    MouseClickAire(m_requestedPoint);
    MouseSelectedPoint(m_requestedPoint);
}

void CEIEGraphicsScene::showHoverCursor(const QPointF &position)
{
    // Not QPointF's own comparison: that takes small differences for none.
    if (position.x() != m_lastHoverPosition.x() || position.y() != m_lastHoverPosition.y()) {
        m_lastHoverPosition = position;
        Q_EMIT signal_mouseCursorChange(QCursor(m_hand ? Qt::OpenHandCursor : Qt::CrossCursor));
    }
}

bool CEIEGraphicsScene::followPointer(const QPointF &position)
{
    m_requestedPoint = position;
    SetCentreTriangle();
    m_whiteInside
        = ceiechart::polygonContains(convertPointF(toChroma(position)), m_targetVertices.toArray()) && m_leftButton;
    IsEllipseAire(position);
    if (m_whiteMoved && m_whiteInside) {
        repaint();
    }
    if (!m_leftButton) {
        return true;
    }
    if (m_centreSelected && m_editMode != WhiteLocked) {
        if (m_whiteMoved) {
            MoveCentreTriangle();
        }
        return false;
    }
    m_centreSelected = false;
    if (m_editMode != EverythingEditable) {
        return false;
    }
    m_vertexSelected = false;
    if (m_regionGate && !isInsideOriginal(position)) {
        ClearSpeedUpStep();
        GetSelectedEllipseSign(position);
        m_vertexSelected = true;
    }
    RefreshEllipseSignPosition();
    return true;
}

void CEIEGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const bool panning = m_buttonDown && m_hand;
    if (!panning) {
        if (m_magnifier) {
            return;
        }
        rememberMousePosition(event->scenePos());
        showHoverCursor(event->scenePos());
        if (!m_triangles.isEmpty() && !followPointer(event->scenePos())) {
            return;
        }
    }
    event->accept();
    repaint();
}

void CEIEGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    m_buttonDown = false;
    m_vertexSelected = false;
    if (event->button() == Qt::RightButton) {
        m_whiteInside = false;
    }
    if (event->button() == Qt::LeftButton) {
        if (hasTarget()) {
            refreshTargetReport();
        }
        Q_EMIT signal_targetInfoChanged(m_targetReport);
        if (hasTarget() && m_centreSelected && m_whiteHeld) {
            Q_EMIT signal_colorGamutWhiteChanged(m_triangles.at(1));
        }
    }
    repaint();
    m_leftButton = false;
    m_centreSelected = false;
    event->accept();
}
