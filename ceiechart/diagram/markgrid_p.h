// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_MARKGRID_P_H
#define CEIECHART_DIAGRAM_MARKGRID_P_H

#include <QPointF>
#include <QRectF>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace ceiechart {

/*!
 * \brief The middles of marks, looked up by where they are.
 *
 * They are kept in square cells, so that a look-up does not go through all marks of a diagram that has thousands.
 */
class MarkGrid {
public:
    /*! \brief Adds a mark at \a at, which is finite. */
    void add(const QPointF &at);
    int size() const { return int(m_all.size()); }
    const std::vector<QPointF> &all() const { return m_all; }

    /*! \brief How many squares that reach \a reach to each side of a mark meet \a place; counts up to \a most. */
    int meeting(const QRectF &place, double reach, int most) const;
    /*! \brief Whether one of those squares meets \a place. */
    bool meets(const QRectF &place, double reach) const { return meeting(place, reach, 1) > 0; }
    /*! \brief Whether a mark is farther from \a at than \a from and nearer than \a to. */
    bool isBetween(const QPointF &at, double from, double to) const;

private:
    //! Calls \a found with the marks in the cells of \a area and perhaps others, until it returns true.
    template <typename Found>
    void look(const QRectF &area, const Found &found) const;

    std::vector<QPointF> m_all;
    std::unordered_map<std::uint64_t, std::vector<QPointF>> m_cells;
};

} // namespace ceiechart

#endif
