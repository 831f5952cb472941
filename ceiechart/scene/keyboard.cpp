// SPDX-License-Identifier: MIT
#include <ceiechart/scene/targetediting.h>

#include <QCursor>

namespace ceiechart {

namespace {

constexpr float nudge = 0.1F; // scene pixels
constexpr float zoomLimit = 1.5F; // tested before a step is taken
constexpr float zoomStep = 0.1F;

//! (0, 0) for what is no arrow key.
QPoint arrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {0, 0};
    }
}

QPointF stepped(const QPointF &from, const QPoint &direction, float step)
{
    return from + QPointF(direction) * double(step);
}

} // namespace

void TargetEditing::keyPressed(int key)
{
    if (m_restorePending) {
        m_currentPoint = m_savedPoint;
        m_restorePending = false;
    }
    float step = nudge;
    m_savedPoint = m_currentPoint;

    const QPoint direction = arrowDirection(key);
    if (!direction.isNull()) {
        SpeedUpThePace(step, Qt::Key(key));
        m_keyStepper.setLastKey(Qt::Key(key));
        m_requestedPoint = stepped(m_currentPoint, direction, step);
        if (m_vertexSelected) {
            MoveEllipseSign();
        } else if (m_centreSelected) {
            m_currentPoint = m_centreHandlePoint;
            m_requestedPoint = stepped(m_currentPoint, direction, step);
            MoveCentreTriangle();
        }
    } else if (key == Qt::Key_Space) {
        reportCursor(QCursor(Qt::OpenHandCursor));
        m_hand = true;
        repaint();
    }
    m_hand = false;
    m_keyStepper.countPress();
}

void TargetEditing::keyReleased(int key)
{
    if (key == Qt::Key_Space) {
        m_hand = false;
        repaint();
    } else if (m_outOfBounds) {
        m_outOfBounds = false;
        repaint();
    }
}

void TargetEditing::SpeedUpThePace(float &step, Qt::Key key)
{
    m_keyStepper.speedUp(step, key);
}

void TargetEditing::ClearSpeedUpStep()
{
    m_keyStepper.clear();
}

void TargetEditing::SetFunctionKeyShortcuts()
{
    switch (m_functionKeyMode) {
    case NoFunction:
        m_magnifier = false;
        m_hand = false;
        break;
    case ZoomIn:
        if (m_zoom <= zoomLimit) {
            m_zoom += zoomStep;
            m_magnifier = true;
            m_hand = false;
            repaint();
        }
        break;
    case ZoomOut:
        m_zoom -= zoomStep;
        m_magnifier = true;
        m_hand = false;
        repaint();
        break;
    case MagnifierHand:
        m_magnifier = true;
        m_hand = true;
        break;
    default:
        break;
    }
}

} // namespace ceiechart
