// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

constexpr double coordinateTolerance = 0.0010123456789;
constexpr double vertexTolerance = 1e-5;
constexpr double areaTolerance = 0.0001;
constexpr std::size_t tolerantVertices = 3;

double triangleArea(const PointF &x, const PointF &y, const PointF &z) noexcept
{
    const float doubled = y.x * z.y + x.x * y.y + z.x * x.y - x.y * y.x - z.x * y.y - z.y * x.x;
    return static_cast<double>(0.5F * std::fabs(doubled));
}

} // namespace

bool coordinatesEqual(float a, float b) noexcept
{
    return static_cast<double>(std::fabs(a - b)) < coordinateTolerance;
}

bool polygonContains(const PointF &p, const PointF *polygon, std::size_t n) noexcept
{
    const std::size_t vertices = std::min(n, tolerantVertices);
    for (std::size_t i = 0; i < vertices; ++i) {
        if (coordinatesEqual(p.x, polygon[i].x) && coordinatesEqual(p.y, polygon[i].y)) {
            return true;
        }
    }

    bool odd = false;
    for (std::size_t i = 0; i < n; ++i) {
        const PointF &from = polygon[i];
        const PointF &to = polygon[(i + 1) % n];
        if (from.y == to.y) {
            continue;
        }
        const bool withinY = (p.y >= from.y && to.y > p.y) || (p.y >= to.y && from.y > p.y);
        if (withinY && (to.x - from.x) * (p.y - from.y) / (to.y - from.y) + from.x > p.x) {
            odd = !odd;
        }
    }
    if (odd) {
        return true;
    }

    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < vertices; ++i) {
        nearest = std::min(nearest, static_cast<double>(std::hypot(p.x - polygon[i].x, p.y - polygon[i].y)));
    }
    return nearest < vertexTolerance;
}

bool triangleContainsByArea(const PointF &p, const PointF &a, const PointF &b, const PointF &c) noexcept
{
    const double parts = triangleArea(p, b, c) + triangleArea(a, p, c) + triangleArea(a, b, p);
    return std::fabs(triangleArea(a, b, c) - parts) < areaTolerance;
}

} // namespace ceiechart
