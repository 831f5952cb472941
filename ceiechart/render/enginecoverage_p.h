// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_ENGINECOVERAGE_P_H
#define CEIECHART_RENDER_ENGINECOVERAGE_P_H

#include <QPainterPath>

#include <vector>

namespace ceiechart {

/*! \brief Pixels beside one another of which a path covers the same share. */
struct CoveredSpan {
    int x; //!< the first column
    int length; //!< the number of columns
    int coverage; //!< the share, 1 to 255
};

/*!
 * \brief How much of each pixel a path covers, to the same 1/255 as with the paint engine's antialiasing.
 *
 * The engine works in bands of rows and visits all edges of a path for each. Here every edge is visited once, which
 * takes a fraction of the time.
 */
class EngineCoverage {
public:
    /*!
     * \brief Whether the coverage by \a path is known. It is not if the path has curves or leads farther away from the
     * picture than the engine follows it.
     */
    static bool isKnown(const QPainterPath &path);

    /*!
     * \brief Computes the coverage by \a path, in pixels, of the rows from \a top to before \a bottom of a picture that
     * is \a width pixels wide. Open parts of the path are closed. It must be known.
     */
    EngineCoverage(const QPainterPath &path, int width, int top, int bottom);

    /*! \brief The first row of which something can be covered. */
    int top() const { return m_top; }
    /*! \brief The row behind the last of which something can be covered. */
    int bottom() const { return m_top + int(m_first.size()) - 1; }

    /*! \brief Sets \a spans to what is covered of row \a y of the picture, from left to right. */
    void row(int y, std::vector<CoveredSpan> &spans) const;

private:
    struct Cell {
        int x; // -1 for all columns to the left of the picture
        int height; // passed by edges, in subpixels; downwards it is positive
        int area; // twice the area between the left side and these edges
    };
    struct RowCell {
        int row;
        Cell cell;
    };
    void addEdge(int fromX, int fromY, int toX, int toY);
    void addWithinRow(int row, int fromX, int fromY, int toX, int toY);
    void add(int row, int x, int area, int height);
    void sortCells();
    int coverage(int area) const;

    int m_width;
    int m_begin; // the first row that is asked for
    int m_end; // the row behind the last one
    bool m_oddEven;
    int m_top = 0;
    std::vector<RowCell> m_found; // in the order of the path
    std::vector<int> m_first = {0}; // index in m_cells by row, from the top
    std::vector<Cell> m_cells; // by row and column
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_ENGINECOVERAGE_P_H
