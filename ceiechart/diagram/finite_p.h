// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FINITE_P_H
#define CEIECHART_DIAGRAM_FINITE_P_H

#include <QPointF>
#include <QRectF>

#include <cmath>

namespace ceiechart {

/*!
 * \brief Whether both coordinates of \a point are finite.
 *
 * The paint engine logs a warning when an ellipse with other coordinates is drawn.
 */
inline bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/*! \brief Whether the position and the size of \a rectangle are finite. */
inline bool isFinite(const QRectF &rectangle)
{
    return isFinite(rectangle.topLeft()) && std::isfinite(rectangle.width()) && std::isfinite(rectangle.height());
}

} // namespace ceiechart

#endif
