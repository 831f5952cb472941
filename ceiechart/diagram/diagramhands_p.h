// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMHANDS_P_H
#define CEIECHART_DIAGRAM_DIAGRAMHANDS_P_H

#include <QPointF>
#include <QRectF>
#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace ceiechart {

//! How far a key or a notch of a wheel pans, in logical pixels.
constexpr double panOfKey = 48.0;

//! Where on the widget \a event is.
template <typename Event>
QPointF positionOf(const Event &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

//! From \a point to the nearest point of \a place; 0 within it.
inline double distanceTo(const QRectF &place, const QPointF &point)
{
    const double x = std::max({place.left() - point.x(), 0.0, point.x() - place.right()});
    const double y = std::max({place.top() - point.y(), 0.0, point.y() - place.bottom()});
    return std::hypot(x, y);
}

/*!
 * Turns the movement of a pointer that was pressed into the movement of what is dragged.
 *
 * A pointer is never quite still, so nothing moves until it is farther than a threshold from where it was pressed. From
 * there on the dragged thing starts at its own place and moves faster than the pointer, as long as the pointer goes on
 * in its first direction, until it has caught up. It never jumps and never moves against the pointer, and soon the
 * pointer is again at the point of it that was pressed.
 */
class Grip {
public:
    Grip() = default;
    //! \a threshold in logical pixels; with 0 any movement counts.
    Grip(const QPointF &pressed, double threshold)
        : m_pressed(pressed)
        , m_position(pressed)
        , m_threshold(threshold)
    {
    }

    //! Takes the pointer's new \a position, and returns by how much the dragged thing moves.
    QPointF moveTo(const QPointF &position);
    //! Whether the pointer has been beyond the threshold.
    bool isMoving() const { return m_isMoving; }
    //! Where the pointer is.
    QPointF position() const { return m_position; }

private:
    QPointF m_pressed;
    QPointF m_position;
    double m_threshold = 0.0;
    bool m_isMoving = false;
    QPointF m_behind; // from the dragged thing to where it would be without a threshold
};

} // namespace ceiechart

#endif
