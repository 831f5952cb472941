// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/targetscene_p.h>

#include <QCursor>

namespace ceiechart {

namespace {

constexpr float nudge = 0.1F; //!< smallest step of an arrow key, in scene pixels
constexpr float zoomLimit = 1.5F; //!< tested before a step: the zoom can exceed it by one step
constexpr float zoomStep = 0.1F;

/*! \brief The direction of an arrow key; (0, 0) for any other key. */
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

void TargetScene::Private::keyPressed(int key)
{
    if (restorePending) {
        currentPoint = savedPoint;
        restorePending = false;
    }
    float step = nudge;
    savedPoint = currentPoint;

    const QPoint direction = arrowDirection(key);
    if (!direction.isNull()) {
        q->SpeedUpThePace(step, Qt::Key(key));
        keyStepper.setLastKey(Qt::Key(key));
        requestedPoint = stepped(currentPoint, direction, step);
        if (vertexSelected) {
            q->MoveEllipseSign();
        } else if (centreSelected) {
            currentPoint = centreHandlePoint;
            requestedPoint = stepped(currentPoint, direction, step);
            q->MoveCentreTriangle();
        }
    } else if (key == Qt::Key_Space) {
        reportCursor(QCursor(Qt::OpenHandCursor));
        hand = true;
        q->update();
    }
    hand = false;
    keyStepper.countPress();
}

void TargetScene::Private::keyReleased(int key)
{
    if (key == Qt::Key_Space) {
        hand = false;
        q->update();
    } else if (outOfBounds) {
        outOfBounds = false;
        q->update();
    }
}

void TargetScene::SpeedUpThePace(float &step, Qt::Key key)
{
    d->keyStepper.speedUp(step, key);
}

void TargetScene::ClearSpeedUpStep()
{
    d->keyStepper.clear();
}

void TargetScene::SetFunctionKeyShortcuts()
{
    switch (d->functionKeyMode) {
    case NoFunction:
        d->magnifier = false;
        d->hand = false;
        break;
    case ZoomIn:
        if (d->zoom <= zoomLimit) {
            d->zoom += zoomStep;
            d->magnifier = true;
            d->hand = false;
            update();
        }
        break;
    case ZoomOut:
        d->zoom -= zoomStep;
        d->magnifier = true;
        d->hand = false;
        update();
        break;
    case MagnifierHand:
        d->magnifier = true;
        d->hand = true;
        break;
    default:
        break;
    }
}

} // namespace ceiechart
