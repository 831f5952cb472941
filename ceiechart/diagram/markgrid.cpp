// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/markgrid_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double cellSide = 32.0; // logical pixels

std::int64_t cellOf(double position)
{
    constexpr double farthest = 1e15; // what is beyond shares a cell
    return std::int64_t(std::floor(std::clamp(position / cellSide, -farthest, farthest)));
}

std::uint64_t cellKey(std::int64_t column, std::int64_t row)
{
    return (std::uint64_t(column) << 32U) ^ std::uint64_t(std::uint32_t(row));
}

} // namespace

void MarkGrid::add(const QPointF &at)
{
    m_all.push_back(at);
    m_cells[cellKey(cellOf(at.x()), cellOf(at.y()))].push_back(at);
}

template <typename Found>
void MarkGrid::look(const QRectF &area, const Found &found) const
{
    const double cells = (area.width() / cellSide + 2.0) * (area.height() / cellSide + 2.0);
    if (!(cells < double(m_all.size()))) {
        std::any_of(m_all.begin(), m_all.end(), found);
        return;
    }
    for (std::int64_t row = cellOf(area.top()); row <= cellOf(area.bottom()); ++row) {
        for (std::int64_t column = cellOf(area.left()); column <= cellOf(area.right()); ++column) {
            const auto cell = m_cells.find(cellKey(column, row));
            if (cell != m_cells.end() && std::any_of(cell->second.begin(), cell->second.end(), found)) {
                return;
            }
        }
    }
}

int MarkGrid::meeting(const QRectF &place, double reach, int most) const
{
    int count = 0;
    look(place.adjusted(-reach, -reach, reach, reach), [&](const QPointF &at) {
        const QPointF out(reach, reach);
        count += overlap(QRectF(at - out, at + out), place) ? 1 : 0;
        return count >= most;
    });
    return count;
}

bool MarkGrid::isBetween(const QPointF &at, double from, double to) const
{
    bool isFound = false;
    const QPointF out(to, to);
    look(QRectF(at - out, at + out), [&](const QPointF &mark) {
        const QPointF way = mark - at;
        const double square = QPointF::dotProduct(way, way);
        isFound = square > from * from && square < to * to;
        return isFound;
    });
    return isFound;
}

} // namespace ceiechart
