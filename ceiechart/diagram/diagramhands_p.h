// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMHANDS_P_H
#define CEIECHART_DIAGRAM_DIAGRAMHANDS_P_H

#include <QPointF>
#include <QtGlobal>

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

} // namespace ceiechart

#endif
