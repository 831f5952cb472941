// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CONTAINMENT_P_H
#define CEIECHART_SCENE_CONTAINMENT_P_H

#include <ceiechart/model/pointf.h>

#include <QPointF>

#include <cstddef>
#include <iterator>

namespace ceiechart {

/*! \brief \a point in single precision, each coordinate rounded to nearest. */
inline PointF narrowed(const QPointF &point) noexcept
{
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

/*! \brief Whether \a a and \a b differ by less than the tolerance of editing, about 0.001. */
bool coordinatesEqual(float a, float b) noexcept;

/*!
 * \brief Whether \a polygon with \a n points contains \a p, by the even-odd rule in single precision.
 *
 * Points that equal one of the first three vertices within the tolerance of editing are inside. Edges are half-open in
 * y. A polygon without points contains nothing.
 */
bool polygonContains(const PointF &p, const PointF *polygon, std::size_t n) noexcept;

/*! \brief Like the function above, for a container of points. */
template <typename Polygon>
bool polygonContains(const PointF &p, const Polygon &polygon) noexcept
{
    return polygonContains(p, std::data(polygon), std::size(polygon));
}

/*!
 * \brief Whether the triangle a, b, c contains \a p.
 *
 * The test compares areas: the triangles between \a p and the edges must not have a larger total area than the
 * triangle.
 */
bool triangleContainsByArea(const PointF &p, const PointF &a, const PointF &b, const PointF &c) noexcept;

} // namespace ceiechart

#endif
