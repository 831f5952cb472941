// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FINITE_P_H
#define CEIECHART_DIAGRAM_FINITE_P_H

#include <QPointF>
#include <QRectF>

#include <cmath>

namespace ceiechart {

/*! Whether \a point can be drawn. The paint engine logs a warning for arcs with coordinates that are not finite. */
inline bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/*! \copydoc isFinite(const QPointF &) */
inline bool isFinite(const QRectF &rectangle)
{
    return isFinite(rectangle.topLeft()) && std::isfinite(rectangle.width()) && std::isfinite(rectangle.height());
}

} // namespace ceiechart

#endif
