// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_STRAIGHTLINES_P_H
#define CEIECHART_SCENE_STRAIGHTLINES_P_H

#include <QPointF>

namespace ceiechart {

/*!
 * \brief Computes the line y = k·x + b through \a p and \a q.
 * \return false if the line is vertical; \a k and \a b are not changed then
 */
bool straightLine(const QPointF &p, const QPointF &q, double &k, double &b) noexcept;

/*!
 * \brief Computes the intersection of y = k1·x + b1 and y = k2·x + b2. Each coordinate is rounded to single precision.
 * \return false if k1 − k2 is 0; \a result is not changed then
 */
bool solveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result) noexcept;

/*!
 * \brief Computes the intersection of the lines p1 q1 and p2 q2.
 * \return false if the lines are parallel; \a result is not changed then
 */
bool intersection(const QPointF &p1, const QPointF &q1, const QPointF &p2, const QPointF &q2, QPointF &result) noexcept;

/*! \brief \a point, or the end of the edge from \a p to \a q if it lies beyond that end. */
QPointF heldToEdge(const QPointF &point, const QPointF &p, const QPointF &q) noexcept;

} // namespace ceiechart

#endif
