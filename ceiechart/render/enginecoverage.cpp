// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// Corners are rounded to 1/64 of a pixel and are then counted in subpixels, 1/256 of a pixel. An edge is cut where it
// leaves a row, and the part within a row is cut where it leaves a pixel. At every cut the other coordinate is rounded
// down to a subpixel, as seen from the beginning of the edge or part; the direction of an edge therefore matters.
//
// Each piece adds to its pixel the height that it passes, and twice the area on its left. The pixels to its right are
// covered over the sum of these heights. A share is the covered area of 2 · 256 · 256, rounded down to 1/256, and is
// then made positive; 256 counts as 255.
#include <ceiechart/render/enginecoverage_p.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace ceiechart {

namespace {

constexpr int subpixels = 256; //!< per pixel
constexpr double farthest = 16000.0; //!< in pixels; the engine cuts paths that lead much farther

/*! \brief The position of \a coordinate in subpixels. */
int inSubpixels(double coordinate)
{
    constexpr int steps = 64; // of a corner per pixel
    return qRound(coordinate * steps) * (subpixels / steps);
}

int withinPixel(int position)
{
    return int(unsigned(position) % subpixels); // 2^32 is a multiple of it
}

int pixelOf(int position)
{
    return (position - withinPixel(position)) / subpixels;
}

/*! \brief The places where a line crosses the boundaries of pixels, one after another, rounded down. */
class Crossings {
public:
    /*! \brief Of a line that rises by \a rise along \a run > 0, and whose first boundary is \a first away. */
    Crossings(int first, int rise, int run)
        : m_rise(rise)
        , m_run(run)
    {
        divide(std::int64_t(first) * rise, m_place, m_rest);
    }

    /*! \brief How far the line has risen at the boundary at hand. */
    int place() const { return m_place; }

    void next()
    {
        if (m_stepRest < 0) {
            divide(std::int64_t(subpixels) * m_rise, m_step, m_stepRest);
        }
        m_place += m_step;
        m_rest += m_stepRest;
        if (m_rest >= m_run) {
            m_rest -= m_run;
            ++m_place;
        }
    }

private:
    void divide(std::int64_t dividend, int &quotient, int &rest) const
    {
        quotient = int(dividend / m_run);
        rest = int(dividend - std::int64_t(quotient) * m_run);
        if (rest < 0) {
            rest += m_run;
            --quotient;
        }
    }

    int m_rise;
    int m_run;
    int m_place = 0;
    int m_rest = 0;
    int m_step = 0;
    int m_stepRest = -1; // not divided yet: most lines cross one boundary only
};

} // namespace

bool EngineCoverage::isKnown(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        const bool isLine = element.isMoveTo() || element.isLineTo();
        if (!isLine || !(std::fabs(element.x) <= farthest) || !(std::fabs(element.y) <= farthest)) {
            return false;
        }
    }
    return true;
}

EngineCoverage::EngineCoverage(const QPainterPath &path, int width, int top, int bottom)
    : m_width(width)
    , m_begin(top)
    , m_end(bottom)
    , m_oddEven(path.fillRule() == Qt::OddEvenFill)
{
    m_found.reserve(
        std::size_t(std::max(bottom - top, 0)) * 8); // an outline passes most rows four times, often in two columns
    QPoint begin;
    QPoint last;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        const QPoint point(inSubpixels(element.x), inSubpixels(element.y));
        if (element.isMoveTo()) {
            addEdge(last.x(), last.y(), begin.x(), begin.y());
            begin = point;
        } else {
            addEdge(last.x(), last.y(), point.x(), point.y());
        }
        last = point;
    }
    addEdge(last.x(), last.y(), begin.x(), begin.y());
    sortCells();
}

void EngineCoverage::addEdge(int fromX, int fromY, int toX, int toY)
{
    const int first = pixelOf(fromY);
    const int last = pixelOf(toY);
    if (std::max(first, last) < m_begin || std::min(first, last) >= m_end) {
        return;
    }
    if (first == last) {
        addWithinRow(first, fromX, withinPixel(fromY), toX, withinPixel(toY));
        return;
    }
    const bool down = toY > fromY;
    const int enter = down ? 0 : subpixels;
    const int leave = subpixels - enter;
    const int step = down ? 1 : -1;
    const int toBoundary = std::abs(leave - withinPixel(fromY));
    const int passed
        = std::max(down ? m_begin - first : first - (m_end - 1), 0); // rows before those that are asked for
    const auto crossingsAfter
        = [=](int rows) { return Crossings(toBoundary + rows * subpixels, toX - fromX, std::abs(toY - fromY)); };
    int row = first + step * passed;
    int x = passed == 0 ? fromX : fromX + crossingsAfter(passed - 1).place();
    Crossings crossings = crossingsAfter(passed);
    while (row != last && row >= m_begin && row < m_end) {
        const int next = fromX + crossings.place();
        addWithinRow(row, x, row == first ? withinPixel(fromY) : enter, next, leave);
        x = next;
        row += step;
        if (row != last) {
            crossings.next();
        }
    }
    if (row == last && row >= m_begin && row < m_end) {
        addWithinRow(last, x, enter, toX, withinPixel(toY));
    }
}

void EngineCoverage::addWithinRow(int row, int fromX, int fromY, int toX, int toY)
{
    const int height = toY - fromY;
    if (height == 0) {
        return;
    }
    const int first = pixelOf(fromX);
    const int last = pixelOf(toX);
    if (first == last) {
        add(row, first, (withinPixel(fromX) + withinPixel(toX)) * height, height);
        return;
    }
    const bool right = toX > fromX;
    const int enter = right ? 0 : subpixels;
    const int leave = subpixels - enter;
    const int step = right ? 1 : -1;
    Crossings crossings(std::abs(leave - withinPixel(fromX)), height, std::abs(toX - fromX));
    int passed = crossings.place();
    add(row, first, (withinPixel(fromX) + leave) * passed, passed);
    for (int x = first + step; x != last; x += step) {
        crossings.next();
        const int part = crossings.place() - passed;
        add(row, x, subpixels * part, part);
        passed += part;
    }
    add(row, last, (enter + withinPixel(toX)) * (height - passed), height - passed);
}

void EngineCoverage::add(int row, int x, int area, int height)
{
    if (x < m_width) {
        // Member by member: what is put together on the stack and copied as a whole, waits for its parts.
        RowCell &found = m_found.emplace_back();
        found.row = row;
        found.cell.x = std::max(x, -1);
        found.cell.height = height;
        found.cell.area = area;
    }
}

void EngineCoverage::sortCells()
{
    if (m_found.empty()) {
        return;
    }
    const auto byRow = [](const RowCell &a, const RowCell &b) { return a.row < b.row; };
    const auto [least, most] = std::minmax_element(m_found.cbegin(), m_found.cend(), byRow);
    m_top = least->row;
    m_first.assign(std::size_t(most->row - m_top) + 2, 0);
    for (const RowCell &found : m_found) {
        ++m_first[std::size_t(found.row - m_top) + 1];
    }
    for (std::size_t i = 1; i < m_first.size(); ++i) {
        m_first[i] += m_first[i - 1];
    }
    m_cells.resize(m_found.size());
    std::vector<int> next(m_first.cbegin(), m_first.cend() - 1);
    for (const RowCell &found : m_found) {
        m_cells[std::size_t(next[std::size_t(found.row - m_top)]++)] = found.cell;
    }
    for (std::size_t i = 1; i < m_first.size(); ++i) {
        std::sort(m_cells.begin() + m_first[i - 1], m_cells.begin() + m_first[i],
            [](const Cell &a, const Cell &b) { return a.x < b.x; });
    }
    m_found = {};
}

int EngineCoverage::coverage(int area) const
{
    // Divided by 512 and rounded down, also where it is negative.
    constexpr unsigned whole = 2 * subpixels;
    unsigned share = (area >= 0 ? unsigned(area) : whole - 1 - unsigned(area)) / whole;
    if (m_oddEven) {
        share %= whole;
        share = share > subpixels ? whole - share : share;
    }
    return int(std::min(share, 255U));
}

void EngineCoverage::row(int y, std::vector<CoveredSpan> &spans) const
{
    spans.clear();
    if (y < m_top || y >= bottom()) {
        return;
    }
    const auto append = [this, &spans](int x, int length, int area) {
        const int share = coverage(area);
        if (length > 0 && share > 0) {
            CoveredSpan &span = spans.emplace_back(); // as in add()
            span.x = x;
            span.length = length;
            span.coverage = share;
        }
    };
    const auto index = std::size_t(y - m_top);
    int height = 0;
    int x = 0;
    for (int i = m_first[index]; i < m_first[index + 1];) {
        const int column = m_cells[std::size_t(i)].x;
        append(x, column - x, 2 * subpixels * height);
        int area = 0;
        for (; i < m_first[index + 1] && m_cells[std::size_t(i)].x == column; ++i) {
            height += m_cells[std::size_t(i)].height;
            area += m_cells[std::size_t(i)].area;
        }
        x = column + 1;
        append(column, column < 0 ? 0 : 1, 2 * subpixels * height - area);
    }
    append(x, m_width - x, 2 * subpixels * height);
}

} // namespace ceiechart
