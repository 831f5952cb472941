// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/straightlines_p.h>

namespace ceiechart {

namespace {

QPointF inSinglePrecision(double x, double y) noexcept
{
    return QPointF(double(static_cast<float>(x)), double(static_cast<float>(y)));
}

} // namespace

bool straightLine(const QPointF &p, const QPointF &q, double &k, double &b) noexcept
{
    if (p.x() == q.x()) {
        return false;
    }
    k = (q.y() - p.y()) / (q.x() - p.x());
    b = p.y() - k * p.x();
    return true;
}

bool solveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result) noexcept
{
    if (k1 - k2 == 0) {
        return false;
    }
    const double x = (b2 - b1) / (k1 - k2);
    result = inSinglePrecision(x, k1 * x + b1);
    return true;
}

bool intersection(const QPointF &p1, const QPointF &q1, const QPointF &p2, const QPointF &q2, QPointF &result) noexcept
{
    double k1 = 0.0;
    double b1 = 0.0;
    double k2 = 0.0;
    double b2 = 0.0;
    const bool first = straightLine(p1, q1, k1, b1);
    const bool second = straightLine(p2, q2, k2, b2);
    if (first && second) {
        return solveLinearSystem(k1, b1, k2, b2, result);
    }
    if (first) {
        result = inSinglePrecision(p2.x(), k1 * p2.x() + b1);
    } else if (second) {
        result = inSinglePrecision(p1.x(), k2 * p1.x() + b2);
    }
    return first || second;
}

QPointF heldToEdge(const QPointF &point, const QPointF &p, const QPointF &q) noexcept
{
    const QPointF edge = q - p;
    const double along = QPointF::dotProduct(point - p, edge);
    if (along <= 0) {
        return p;
    }
    return along >= QPointF::dotProduct(edge, edge) ? q : point;
}

} // namespace ceiechart
