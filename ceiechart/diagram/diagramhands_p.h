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

inline double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

//! From \a point to the nearest point of \a place; 0 within it.
inline double distanceTo(const QRectF &place, const QPointF &point)
{
    const double x = std::max({place.left() - point.x(), 0.0, point.x() - place.right()});
    const double y = std::max({place.top() - point.y(), 0.0, point.y() - place.bottom()});
    return std::hypot(x, y);
}

/*!
 * The way of a hand that has taken hold of something.
 *
 * No hand is quite still: nothing moves before it is farther than a threshold from where it pressed. Then what is held
 * sets out from its place and goes faster than the hand, as long as that goes on in the direction in which it set out,
 * until it has made up for the threshold. It never jumps, it never goes against the hand, and the hand soon has it
 * again where it took hold of it.
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

    //! The hand goes on to \a position: the way of what is held.
    QPointF moveTo(const QPointF &position);
    //! Whether the hand has gone beyond the threshold, now or before.
    bool isMoving() const { return m_isMoving; }
    //! Where the hand is.
    QPointF position() const { return m_position; }

private:
    QPointF m_pressed;
    QPointF m_position;
    double m_threshold = 0.0;
    bool m_isMoving = false;
    QPointF m_owed; // of the threshold, what is still to be made up for
};

} // namespace ceiechart

#endif
