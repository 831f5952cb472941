// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FINITE_P_H
#define CEIECHART_DIAGRAM_FINITE_P_H

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <algorithm>
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

/*! \brief Whether all corners of \a polygon are finite. */
inline bool isFinite(const QPolygonF &polygon)
{
    return std::all_of(polygon.cbegin(), polygon.cend(), [](const QPointF &point) { return isFinite(point); });
}

/*!
 * \brief Whether \a polygon can be clipped, and the columns that it covers be computed.
 *
 * Qt's clipper fails for coordinates that are not numbers or so large that their squares are not, and rounding makes
 * columns wrong long before.
 */
inline bool canBeClipped(const QPolygonF &polygon)
{
    constexpr double farthest = 1e6;
    return std::all_of(polygon.cbegin(), polygon.cend(),
        [](const QPointF &point) { return std::fabs(point.x()) <= farthest && std::fabs(point.y()) <= farthest; });
}

} // namespace ceiechart

#endif
