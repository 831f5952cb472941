// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_COMPAREDCURVE_P_H
#define CEIECHART_DIAGRAM_COMPAREDCURVE_P_H

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace ceiechart {

/*! \brief A curve of many points that many places are compared with. */
class ComparedCurve {
public:
    ComparedCurve() = default;
    explicit ComparedCurve(const QPolygonF &points);

    /*! \brief Whether some of the curve lies within \a area. */
    bool meets(const QRectF &area) const;

private:
    QPolygonF m_points;
    std::vector<QRectF> m_bounds; // of some pieces in a row, from the first on
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_COMPAREDCURVE_P_H
