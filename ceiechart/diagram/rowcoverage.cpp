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
    m_edges.reserve(size_t(polygon.size()));
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
    constexpr size_t usualRuns = 4; // at each crossing of an edge
    m_runs.reserve(usualRuns * m_crossing.size() + size_t(height));
}

// A part of an edge from column \a from to \a to, neither left of the picture, over \a height of the row.
void RowCoverage::add(double from, double to, double height)
{
    const double least = std::min(from, to);
    if (least >= m_width) {
        return;
    }
    const double farthest = std::max(from, to);
    const double most = std::min(farthest, double(m_width));
    const int first = int(least);
    const int last = int(most);
    m_touched.emplace_back(first, std::min(last + 1, m_width));
    double *change = m_change.data() + first;
    const auto cover = [&change](double part, double meanFromLeft) {
        const double right = part * meanFromLeft;
        change[0] += part - right;
        change[1] += right;
        ++change;
    };
    if (farthest < first + 1.0) {
        cover(height, 0.5 * (least + most) - first);
        return;
    }
    const double perColumn = height / (farthest - least);
    const double inFirst = first + 1.0 - least;
    cover(perColumn * inFirst, 1.0 - 0.5 * inFirst);
    for (int column = first + 1; column < last; ++column) {
        cover(perColumn, 0.5);
    }
    if (last > first) {
        const double inLast = most - last;
        cover(perColumn * inLast, 0.5 * inLast);
    }
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
        const double least = std::min(from, to);
        if (least >= 0.0) {
            add(from, to, height);
            continue;
        }
        // What is left of the picture changes it from its first column on.
        const double outside = from == to ? 1.0 : std::min(-least / std::fabs(to - from), 1.0);
        if (!(outside > 0.0)) {
            continue; // the edge is not finite
        }
        m_change[0] += height * outside;
        m_touched.emplace_back(0, 0);
        if (outside < 1.0) {
            add(std::max(from, 0.0), std::max(to, 0.0), height * (1.0 - outside));
        }
    }
    std::sort(m_touched.begin(), m_touched.end());

    constexpr double whole = 255.0;
    const auto alphaOf = [](double sum) { return int(std::min(std::fabs(sum), 1.0) * whole + 0.5); };
    double sum = 0.0;
    int column = 0;
    CoveredRun run{0, m_width, 0};
    for (const auto &[first, last] : m_touched) {
        const int end = std::min(last + 1, m_width);
        for (column = std::max(column, first); column < end; ++column) {
            sum += m_change[size_t(column)];
            m_change[size_t(column)] = 0.0;
            const int alpha = alphaOf(sum);
            if (alpha == run.alpha) {
                continue;
            }
            if (run.left < column) {
                m_runs.push_back({run.left, column, run.alpha});
            }
            run.left = column;
            run.alpha = alpha;
        }
    }
    m_runs.push_back(run);
    m_change[size_t(m_width)] = 0.0;
    m_change[size_t(m_width) + 1] = 0.0;
    m_rows[size_t(y)] = {firstRun, m_runs.size() - firstRun};
}

} // namespace ceiechart
