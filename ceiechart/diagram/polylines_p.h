// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_POLYLINES_P_H
#define CEIECHART_DIAGRAM_POLYLINES_P_H

#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace ceiechart {

/*! \brief The length of the way \a way. */
inline double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

/*! \brief The outline of the polygon with \a corners. */
inline QPainterPath closedPath(const QPolygonF &corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

/*! \brief The corners of a square that stands on one of them, \a radius away from its middle \a at. */
inline QPolygonF diamondAt(const QPointF &at, double radius)
{
    return QPolygonF(
        {at - QPointF(0.0, radius), at + QPointF(radius, 0.0), at + QPointF(0.0, radius), at - QPointF(radius, 0.0)});
}

/*!
 * \brief Whether the triangles \a a and \a b fall on one another: each corner of one is nearer than \a within to one
 * of the other, a different one each.
 *
 * Which corner comes first plays no part, as an outline does not show it.
 */
bool isSameTriangle(const QPolygonF &a, const QPolygonF &b, double within);

/*! \brief A part of a line that lies within a rectangle. */
struct LinePart {
    QPolygonF points; //!< from where it enters to where it leaves
    double begin = 0.0; //!< the length of the line before its first point, for dashes that do not move with the view
    bool closed = false; //!< the whole of a closed line
};

/*!
 * \brief The parts of the line through \a points within \a area.
 *
 * Lines are cut here and not by a clip of the painter, which files do not take everywhere, and which would leave the
 * painter with lines of millions of pixels.
 */
std::vector<LinePart> partsWithin(const QPolygonF &points, bool closed, const QRectF &area);

/*! \brief The part of \a line within \a area, if any. */
std::optional<QLineF> partWithin(const QLineF &line, const QRectF &area);

/*! \brief What QRectF::intersects() gives for sizes that are not negative, sooner. */
inline bool overlap(const QRectF &a, const QRectF &b)
{
    return std::max(a.left(), b.left()) < std::min(a.right(), b.right())
        && std::max(a.top(), b.top()) < std::min(a.bottom(), b.bottom());
}

/*! \brief meets() without its quick answers. */
bool passesThrough(const QLineF &line, const QRectF &area);

/*! \brief Whether some of \a line lies within \a area, which is not empty. */
inline bool meets(const QLineF &line, const QRectF &area)
{
    // Most are on one side of it, which is found out soonest.
    if (std::max(line.x1(), line.x2()) < area.left() || std::min(line.x1(), line.x2()) > area.right()
        || std::max(line.y1(), line.y2()) < area.top() || std::min(line.y1(), line.y2()) > area.bottom()) {
        return false;
    }
    // All others meet it unless it lies on one side of them. Both distances are in units of the line's length.
    const QPointF way(line.dx(), line.dy());
    const QPointF to = area.center() - line.p1();
    const double away = std::fabs(way.x() * to.y() - way.y() * to.x());
    const double reach = (std::fabs(way.x()) * area.height() + std::fabs(way.y()) * area.width()) / 2.0;
    constexpr double rounding = 1e-9; // more than any, here and in passesThrough()
    const double doubt = rounding * (reach + way.x() * way.x() + way.y() * way.y());
    return std::fabs(away - reach) > doubt ? away < reach : passesThrough(line, area);
}

/*! \brief The part of \a line within the convex \a polygon, as shares of its length from 0 to 1, if any. */
std::optional<std::pair<double, double>> sharesWithin(const QLineF &line, const QPolygonF &polygon);

/*!
 * \brief \a points without those that are nearer than \a least to the one before them; the last one stays.
 *
 * Of a curve that turns by little from point to point nothing is lost that could be seen.
 */
QPolygonF thinned(const QPolygonF &points, double least);

/*!
 * \brief The dashes of the line through \a points.
 *
 * \param pattern the lengths of dashes and gaps in turn, an even number
 * \param begin the length in the pattern at the first point
 */
std::vector<QPolygonF> dashesOf(const QPolygonF &points, bool closed, const std::vector<double> &pattern, double begin);

/*! \brief Whether \a a and \a b are the same numbers. Qt's comparison takes points for equal that differ a little. */
bool isExactly(const QPointF &a, const QPointF &b);
/*! \overload */
bool isExactly(const QPolygonF &a, const QPolygonF &b);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_POLYLINES_P_H
