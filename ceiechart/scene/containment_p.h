// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CONTAINMENT_P_H
#define CEIECHART_SCENE_CONTAINMENT_P_H

#include <ceiechart/model/pointf.h>

#include <QPointF>

#include <cstddef>
#include <iterator>

namespace ceiechart {

/*! \a point in single precision, each coordinate rounded to nearest. */
inline PointF narrowed(const QPointF &point) noexcept
{
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

/*! \brief True when \a a and \a b differ by less than the editing tolerance, about 0.001. */
bool coordinatesEqual(float a, float b) noexcept;

/*!
 * \brief Even-odd test in single precision. The surroundings of the first three vertices, within the editing tolerance,
 * count as inside; edges are half-open in y. A polygon without points contains nothing.
 */
bool polygonContains(const PointF &p, const PointF *polygon, std::size_t n) noexcept;

template <typename Polygon>
bool polygonContains(const PointF &p, const Polygon &polygon) noexcept
{
    return polygonContains(p, std::data(polygon), std::size(polygon));
}

/*! \brief True when the triangles that \a p spans with the edges of a, b, c fill no more area than the triangle itself.
 */
bool triangleContainsByArea(const PointF &p, const PointF &a, const PointF &b, const PointF &c) noexcept;

} // namespace ceiechart

#endif
