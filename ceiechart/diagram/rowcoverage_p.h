// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_ROWCOVERAGE_P_H
#define CEIECHART_DIAGRAM_ROWCOVERAGE_P_H

#include <QPolygonF>

#include <cstddef>
#include <utility>
#include <vector>

namespace ceiechart {

/*! \brief Pixels beside one another of which a polygon covers the same share. */
struct CoveredRun {
    int left; //!< the first column
    int right; //!< the column behind the last
    int alpha; //!< the share, 0 to 255
};

/*! \brief The runs of a row, from column 0 to the last without a gap. */
class CoveredRow {
public:
    CoveredRow(const CoveredRun *begin, const CoveredRun *end)
        : m_begin(begin)
        , m_end(end)
    {
    }
    const CoveredRun *begin() const { return m_begin; }
    const CoveredRun *end() const { return m_end; }
    std::size_t size() const { return std::size_t(m_end - m_begin); }
    const CoveredRun &operator[](std::size_t i) const { return m_begin[i]; }

private:
    const CoveredRun *m_begin;
    const CoveredRun *m_end;
};

/*!
 * \brief How much of each pixel a simple polygon covers: the exact area, rounded to 1/255.
 *
 * Works row by row and touches only what is near the edges, so that a part of a picture costs no more than its share.
 * Rows are kept: while something is dragged, the same rows are asked for in each step.
 */
class RowCoverage {
public:
    RowCoverage() = default;
    /*! \brief Of \a polygon in pixels, on a picture of \a width x \a height. */
    RowCoverage(const QPolygonF &polygon, int width, int height);

    /*! \brief The row \a y. Valid until another row is asked for. */
    CoveredRow row(int y)
    {
        const KeptRow &row = m_rows[std::size_t(y)];
        if (row.count == 0) {
            findRow(y);
        }
        const CoveredRun *first = m_runs.data() + row.first;
        return CoveredRow(first, first + row.count);
    }

private:
    struct Edge {
        double x; // at the upper end
        double top;
        double bottom;
        double slope; // columns per row
        double sign;
    };
    struct KeptRow {
        std::size_t first = 0; // in m_runs
        std::size_t count = 0; // 0: not known yet
    };
    void findRow(int y);
    void add(double from, double to, double height);

    int m_width = 0;
    std::vector<Edge> m_edges;
    std::vector<int> m_first; // of each row in m_crossing
    std::vector<int> m_crossing; // edges by row
    std::vector<double> m_change; // of the coverage from column to column, in the row at hand
    std::vector<std::pair<int, int>> m_touched; // first and last column
    std::vector<CoveredRun> m_runs; // of all rows that have been asked for
    std::vector<KeptRow> m_rows;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_ROWCOVERAGE_P_H
