// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/shownoutlines_p.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace ceiechart {

namespace {

constexpr double equalWithin = 1.0; // logical pixels: corners as near as that are equal to the eye

using Cell = std::pair<std::int64_t, std::int64_t>;
using Squares = std::array<Cell, 3>;

// From bottom to top; targets come after them.
constexpr std::array uneditedOrder{GamutRole::Standard, GamutRole::Declared, GamutRole::Original, GamutRole::Measured};

Cell cellOf(const QPointF &at, double side)
{
    const auto cell
        = [side](double position) { return std::int64_t(std::floor(std::clamp(position / side, -1e15, 1e15))); };
    return {cell(at.x()), cell(at.y())};
}

//! Where the corners lie together. Equal outlines are in the same cell or in cells side by side.
Cell equalityCell(const QPolygonF &corners)
{
    constexpr double side = 3.0 * equalWithin; // the most by which the sums of three corners can differ
    return cellOf(corners.at(0) + corners.at(1) + corners.at(2), side);
}

//! Where the corners lie, in no matter which order.
Squares squaresOf(const QPolygonF &corners)
{
    Squares squares{
        cellOf(corners.at(0), equalWithin), cellOf(corners.at(1), equalWithin), cellOf(corners.at(2), equalWithin)};
    std::sort(squares.begin(), squares.end());
    return squares;
}

bool areEqual(const ShownOutline &a, const ShownOutline &b)
{
    // Most differ in this, which is found out soonest.
    const auto isNear = [](double p, double q) { return std::fabs(p - q) < equalWithin; };
    return isNear(a.bounds.left(), b.bounds.left()) && isNear(a.bounds.top(), b.bounds.top())
        && isNear(a.bounds.right(), b.bounds.right()) && isNear(a.bounds.bottom(), b.bounds.bottom())
        && isSameTriangle(a.corners, b.corners, equalWithin);
}

//! Outlines that are not covered, by where they lie.
class Uncovered {
public:
    explicit Uncovered(const std::vector<ShownOutline> &all)
        : m_all(all)
    {
    }

    void add(size_t i) { m_cells[equalityCell(m_all[i].corners)].push_back(i); }

    //! Those that equal number \a i.
    std::vector<size_t> equalsOf(size_t i) const
    {
        std::vector<size_t> equals;
        const auto [column, row] = equalityCell(m_all[i].corners);
        for (const std::int64_t dx : {-1, 0, 1}) {
            for (const std::int64_t dy : {-1, 0, 1}) {
                const auto cell = m_cells.find({column + dx, row + dy});
                if (cell != m_cells.end()) {
                    std::copy_if(cell->second.begin(), cell->second.end(), std::back_inserter(equals),
                        [&](size_t k) { return areEqual(m_all[i], m_all[k]); });
                }
            }
        }
        return equals;
    }

private:
    const std::vector<ShownOutline> &m_all;
    std::map<Cell, std::vector<size_t>> m_cells;
};

void findEquals(ShownOutlines &outlines)
{
    std::vector<ShownOutline> &all = outlines.all;
    Uncovered uncovered(all);
    std::set<Squares> taken; // by plain standards
    // Painted again and again, the soft edges of a line would harden.
    for (size_t i = all.size(); i-- > 0;) {
        const std::vector<size_t> above = uncovered.equalsOf(i);
        const bool isPlain = all[i].role == GamutRole::Standard && outlines.areStandardsPlain();
        all[i].isCovered = isPlain
            ? !taken.insert(squaresOf(all[i].corners)).second
            : std::any_of(above.begin(), above.end(), [&](size_t k) { return all[k].role == all[i].role; });
        if (all[i].isCovered) {
            continue;
        }
        if (!isPlain) {
            uncovered.add(i);
        }
        for (const size_t k : above) {
            all[i].equals.push_back(k);
            all[k].equals.push_back(i);
        }
    }
    for (ShownOutline &outline : all) {
        std::sort(outline.equals.begin(), outline.equals.end());
    }
}

void addRole(ShownOutlines &outlines, GamutRole role, const DiagramSheet &sheet)
{
    const QVector<DiagramGamut> &gamuts = sheet.content.gamuts;
    for (int i = 0; i < gamuts.size(); ++i) {
        const DiagramGamut &gamut = gamuts.at(i);
        if (gamut.role == role && sheet.content.shows(gamut)) {
            const QPolygonF corners = sheet.viewport.outline(gamut.gamut.getTargets());
            if (isFinite(corners)) {
                outlines.all.push_back({i, role, corners, corners.boundingRect()});
            }
        }
    }
}

} // namespace

ShownOutlines shownOutlines(const DiagramSheet &sheet)
{
    ShownOutlines outlines;
    for (const GamutRole role : uneditedOrder) {
        addRole(outlines, role, sheet);
        if (role == GamutRole::Standard) {
            outlines.standards = outlines.all.size();
        }
    }
    findEquals(outlines);
    return outlines;
}

ShownOutlines withTargets(ShownOutlines outlines, const DiagramSheet &sheet)
{
    std::vector<ShownOutline> &all = outlines.all;
    const size_t first = all.size();
    addRole(outlines, GamutRole::Target, sheet);
    for (size_t k = all.size(); k-- > first;) {
        all[k].isCovered = std::any_of(all.begin() + std::ptrdiff_t(k) + 1, all.end(),
            [&](const ShownOutline &above) { return !above.isCovered && areEqual(all[k], above); });
    }
    for (size_t k = first; k < all.size(); ++k) {
        for (size_t i = 0; i < first && !all[k].isCovered; ++i) {
            if (!all[i].isCovered && areEqual(all[i], all[k])) {
                all[i].equals.push_back(k);
                all[k].equals.push_back(i);
            }
        }
    }
    return outlines;
}

} // namespace ceiechart
