// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/comparedcurve_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr int piecesInARow = 16; // which are left out together

} // namespace

ComparedCurve::ComparedCurve(const QPolygonF &points)
    : m_points(points)
{
    for (int first = 0; first + 1 < points.size(); first += piecesInARow) {
        // The last point of some pieces is the first of the next.
        const QRectF bounds = QPolygonF(points.mid(first, piecesInARow + 1)).boundingRect();
        m_bounds.push_back(bounds.adjusted(-1.0, -1.0, 1.0, 1.0)); // whatever rounding does
    }
}

bool ComparedCurve::meets(const QRectF &area) const
{
    for (size_t row = 0; row < m_bounds.size(); ++row) {
        const QRectF &bounds = m_bounds[row];
        if (bounds.right() < area.left() || bounds.left() > area.right() || bounds.bottom() < area.top()
            || bounds.top() > area.bottom()) {
            continue;
        }
        const int first = int(row) * piecesInARow;
        const int last = std::min(first + piecesInARow, int(m_points.size()) - 1);
        for (int i = first; i < last; ++i) {
            if (ceiechart::meets(QLineF(m_points.at(i), m_points.at(i + 1)), area)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace ceiechart
