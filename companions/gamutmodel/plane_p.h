// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_PLANE_P_H
#define GAMUTMODEL_PLANE_P_H

#include <gamutmodel/diagram.h>

#include <algorithm>
#include <cmath>
#include <vector>

/*! \file \brief Points of a diagram as vectors. */
namespace Model {

constexpr DiagramPoint operator+(const DiagramPoint &a, const DiagramPoint &b)
{
    return {a.x + b.x, a.y + b.y};
}

constexpr DiagramPoint operator-(const DiagramPoint &a, const DiagramPoint &b)
{
    return {a.x - b.x, a.y - b.y};
}

constexpr DiagramPoint operator*(double factor, const DiagramPoint &a)
{
    return {factor * a.x, factor * a.y};
}

/*! \brief The cross product: positive if \a b points to the left of \a a. */
constexpr double cross(const DiagramPoint &a, const DiagramPoint &b)
{
    return a.x * b.y - a.y * b.x;
}

constexpr double dot(const DiagramPoint &a, const DiagramPoint &b)
{
    return a.x * b.x + a.y * b.y;
}

inline double length(const DiagramPoint &a)
{
    return std::hypot(a.x, a.y);
}

inline bool isFinite(const DiagramPoint &a)
{
    return std::isfinite(a.x) && std::isfinite(a.y);
}

/*! \brief Twice the signed area of the triangle a, b, c: positive if c is left of the line from a to b. */
constexpr double turn(const DiagramPoint &a, const DiagramPoint &b, const DiagramPoint &c)
{
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

/*! \brief Whether three points lie on a line: their area is then 0, apart from rounding. Also if it is not finite. */
inline bool isFlat(const DiagramPoint &a, const DiagramPoint &b, const DiagramPoint &c)
{
    constexpr double rounding = 1e-15;
    const double area = std::fabs(turn(a, b, c)) / 2.0;
    return !(area > rounding && std::isfinite(area));
}

/*! \brief The area of a convex polygon. 0 if it is not finite. */
inline double polygonArea(const std::vector<DiagramPoint> &polygon)
{
    double doubled = 0.0;
    for (std::size_t i = 2; i < polygon.size(); ++i) {
        doubled += turn(polygon[0], polygon[i - 1], polygon[i]);
    }
    return std::isfinite(doubled) ? std::fabs(doubled) / 2.0 : 0.0;
}

/*! \brief The point between \a from and \a to that is nearest to \a point. */
inline DiagramPoint nearestOnPiece(const DiagramPoint &point, const DiagramPoint &from, const DiagramPoint &to)
{
    const DiagramPoint way = to - from;
    const double square = dot(way, way);
    const double share = square > 0.0 ? dot(point - from, way) / square : 0.0;
    return from + std::clamp(share, 0.0, 1.0) * way;
}

} // namespace Model

#endif // GAMUTMODEL_PLANE_P_H
