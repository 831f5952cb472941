// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The coverage of a pixel is the sum of what the edges to the left of it and in it add: an edge that passes a pixel
// over the height h at the mean distance a from its left side covers h (1 - a) of it, and h of all pixels to its
// right. Edges that go up count against those that go down.
#include <ceiechart/diagram/rowcoverage_p.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

RowCoverage::RowCoverage(const QPolygonF &polygon, int width, int height)
    : m_width(width)
    , m_first(size_t(height) + 1, 0)
    , m_change(size_t(width) + 2, 0.0)
    , m_rows(size_t(height))
{
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon.at(i);
        const QPointF &b = polygon.at((i + 1) % polygon.size());
        const bool down = a.y() < b.y();
        const QPointF &upper = down ? a : b;
        const QPointF &lower = down ? b : a;
        if (upper.y() < lower.y() && upper.y() < height && lower.y() > 0.0) {
            const double slope = (lower.x() - upper.x()) / (lower.y() - upper.y());
            m_edges.push_back({upper.x(), upper.y(), lower.y(), slope, down ? 1.0 : -1.0});
        }
    }
    const auto firstRow = [](const Edge &edge) { return int(std::floor(std::max(edge.top, 0.0))); };
    const auto endRow = [height](const Edge &edge) { return int(std::ceil(std::min(edge.bottom, double(height)))); };
    for (const Edge &edge : m_edges) {
        for (int y = firstRow(edge); y < endRow(edge); ++y) {
            ++m_first[size_t(y) + 1];
        }
    }
    for (int y = 0; y < height; ++y) {
        m_first[size_t(y) + 1] += m_first[size_t(y)];
    }
    m_crossing.resize(size_t(m_first.back()));
    std::vector<int> next(m_first.begin(), m_first.end() - 1);
    for (size_t i = 0; i < m_edges.size(); ++i) {
        for (int y = firstRow(m_edges[i]); y < endRow(m_edges[i]); ++y) {
            m_crossing[size_t(next[size_t(y)]++)] = int(i);
        }
    }
}

void RowCoverage::touch(int first, int last)
{
    m_touched.emplace_back(first, std::min(last, m_width));
}

// A part of an edge from column \a from to \a to, not left of the picture, over \a height of the row.
void RowCoverage::add(double from, double to, double height)
{
    const double least = std::min(from, to);
    const double most = std::min(std::max(from, to), double(m_width));
    if (least >= m_width) {
        return;
    }
    const int first = int(least);
    const int last = std::min(int(most), m_width);
    touch(first, last + 1);
    const double perColumn = to == from ? 0.0 : height / std::fabs(to - from);
    for (int column = first; column <= last; ++column) {
        const double begin = std::max(least, double(column));
        const double end = std::min(most, column + 1.0);
        const double part = std::max(from, to) < first + 1.0 ? height : perColumn * (end - begin);
        const double right = part * (0.5 * (begin + end) - column);
        m_change[size_t(column)] += part - right;
        m_change[size_t(std::min(column + 1, m_width + 1))] += right;
    }
}

CoveredRow RowCoverage::row(int y)
{
    const KeptRow &row = m_rows[size_t(y)];
    if (row.count == 0) {
        findRow(y);
    }
    const CoveredRun *first = m_runs.data() + row.first;
    return CoveredRow(first, first + row.count);
}

void RowCoverage::findRow(int y)
{
    m_touched.clear();
    const std::size_t firstRun = m_runs.size();
    for (int i = m_first[size_t(y)]; i < m_first[size_t(y) + 1]; ++i) {
        const Edge &edge = m_edges[size_t(m_crossing[size_t(i)])];
        const double top = std::max(edge.top, double(y));
        const double bottom = std::min(edge.bottom, y + 1.0);
        const double from = edge.x + (top - edge.top) * edge.slope;
        const double to = edge.x + (bottom - edge.top) * edge.slope;
        const double height = (bottom - top) * edge.sign;
        // What is left of the picture changes it from its first column on.
        const double outside
            = from == to ? (from < 0.0 ? 1.0 : 0.0) : std::clamp(-std::min(from, to) / std::fabs(to - from), 0.0, 1.0);
        if (outside > 0.0) {
            m_change[0] += height * outside;
            touch(0, 0);
        }
        if (outside < 1.0) {
            add(std::max(from, 0.0), std::max(to, 0.0), height * (1.0 - outside));
        }
    }
    std::sort(m_touched.begin(), m_touched.end());

    constexpr double whole = 255.0;
    const auto alphaOf = [](double sum) { return int(std::min(std::fabs(sum), 1.0) * whole + 0.5); };
    double sum = 0.0;
    int column = 0;
    const auto append = [this, &column, firstRun](int end, int alpha) {
        if (end <= column) {
            return;
        }
        if (m_runs.size() > firstRun && m_runs.back().alpha == alpha) {
            m_runs.back().right = end;
        } else {
            m_runs.push_back({column, end, alpha});
        }
        column = end;
    };
    for (const auto &[first, last] : m_touched) {
        append(std::min(first, m_width), alphaOf(sum));
        while (column <= last && column < m_width) {
            sum += m_change[size_t(column)];
            m_change[size_t(column)] = 0.0;
            append(column + 1, alphaOf(sum));
        }
    }
    m_change[size_t(m_width)] = 0.0;
    m_change[size_t(m_width) + 1] = 0.0;
    append(m_width, alphaOf(sum));
    m_rows[size_t(y)] = {firstRun, m_runs.size() - firstRun};
}

} // namespace ceiechart
