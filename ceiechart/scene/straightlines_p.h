// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_STRAIGHTLINES_P_H
#define CEIECHART_SCENE_STRAIGHTLINES_P_H

#include <QPointF>

namespace ceiechart {

/*! \brief The line y = k·x + b through \a p and \a q. False, with k and b left alone, when it is vertical. */
bool straightLine(const QPointF &p, const QPointF &q, double &k, double &b) noexcept;

/*!
 * \brief Where y = k1·x + b1 and y = k2·x + b2 meet, each coordinate passed through single precision. False, with
 * \a result left alone, when k1 − k2 is 0.
 */
bool solveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result) noexcept;

/*! \brief Where the lines p1 q1 and p2 q2 meet. False, with \a result left alone, when they are parallel. */
bool intersection(const QPointF &p1, const QPointF &q1, const QPointF &p2, const QPointF &q2, QPointF &result) noexcept;

/*! \a point, or the end of the edge \a p \a q beyond which it lies. */
QPointF heldToEdge(const QPointF &point, const QPointF &p, const QPointF &q) noexcept;

} // namespace ceiechart

#endif
