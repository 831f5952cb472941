// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/nearestinside.h>

#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Model {

namespace {

using Triangle = std::array<DiagramPoint, 3>;

/*! \brief The corners of \a gamut in x, y, counter-clockwise; nothing if they have no area. */
std::optional<Triangle> triangleOf(const Targets &gamut)
{
    Triangle corners{DiagramPoint{gamut.red.x, gamut.red.y}, DiagramPoint{gamut.green.x, gamut.green.y},
        DiagramPoint{gamut.blue.x, gamut.blue.y}};
    if (!std::all_of(corners.begin(), corners.end(), isFinite) || isFlat(corners[0], corners[1], corners[2])) {
        return std::nullopt;
    }
    if (turn(corners[0], corners[1], corners[2]) < 0.0) {
        std::swap(corners[1], corners[2]);
    }
    return corners;
}

bool contains(const Triangle &t, const DiagramPoint &point)
{
    return turn(t[0], t[1], point) >= 0.0 && turn(t[1], t[2], point) >= 0.0 && turn(t[2], t[0], point) >= 0.0;
}

DiagramPoint toUv(const DiagramPoint &xy)
{
    return toDiagram(Diagram::Cie1976, xy);
}

/*! \brief Whether \a xy is on the side of the diagram that colours are on, where u', v' keep the order of points. */
bool hasUv(const DiagramPoint &xy)
{
    return isFinite(xy) && uniformDenominator(xy.x, xy.y) > 0.0 && isFinite(toUv(xy));
}

DiagramPoint nearestOnEdge(const Triangle &triangle, const DiagramPoint &xy, Diagram diagram)
{
    const DiagramPoint point = toDiagram(diagram, xy);
    DiagramPoint best = toDiagram(diagram, triangle[0]);
    for (std::size_t i = 0; i < triangle.size(); ++i) {
        const DiagramPoint candidate
            = nearestOnPiece(point, toDiagram(diagram, triangle[i]), toDiagram(diagram, triangle[(i + 1) % 3]));
        if (length(candidate - point) < length(best - point)) {
            best = candidate;
        }
    }
    return fromDiagram(diagram, best);
}

/*! \brief The lowest and the highest y of \a triangle at \a x; the first is greater where there is none. */
std::pair<double, double> extentAt(const Triangle &triangle, double x)
{
    std::pair<double, double> extent{1.0, 0.0};
    bool isFirst = true;
    for (std::size_t i = 0; i < triangle.size(); ++i) {
        const DiagramPoint &a = triangle[i];
        const DiagramPoint &b = triangle[(i + 1) % 3];
        if (x < std::min(a.x, b.x) || x > std::max(a.x, b.x)) {
            continue;
        }
        const double y = a.x == b.x ? a.y : a.y + (x - a.x) / (b.x - a.x) * (b.y - a.y);
        for (const double end : {y, a.x == b.x ? b.y : y}) {
            extent = isFirst ? std::make_pair(end, end)
                             : std::make_pair(std::min(extent.first, end), std::max(extent.second, end));
            isFirst = false;
        }
    }
    return extent;
}

/*! \brief Searches the points of a grid that lie in a triangle for the one nearest to a colour. */
class GridSearch {
public:
    GridSearch(const Triangle &triangle, const DiagramPoint &xy, double perUnit)
        : m_triangle(triangle)
        , m_wanted(toUv(xy))
        , m_perUnit(perUnit)
    {
    }

    /*! \brief The columns from \a start on, in steps of \a step, while they can have a nearer point. */
    void search(double start, int step)
    {
        const auto [left, right]
            = std::minmax({m_triangle[0].x * m_perUnit, m_triangle[1].x * m_perUnit, m_triangle[2].x * m_perUnit});
        for (int i = 0; i < mostColumns; ++i) {
            const double column = start + double(i) * step;
            if (column < left || column > right) {
                // The triangle may begin only after some columns, but does not begin again.
                if (step > 0 ? column > right : column < left) {
                    return;
                }
                continue;
            }
            if (!searchColumn(column)) {
                return;
            }
        }
    }

    const std::optional<DiagramPoint> &found() const { return m_found; }

private:
    /*!
     * \brief Looks at the points of a column. False if the column, and so all that follow in its direction, lie farther
     * away than the best point: the distance to a convex area grows on either side of its nearest point.
     */
    bool searchColumn(double column)
    {
        const double x = column / m_perUnit;
        const auto [low, high] = extentAt(m_triangle, x);
        if (low > high) {
            return true;
        }
        const DiagramPoint nearest = nearestOnPiece(m_wanted, toUv({x, low}), toUv({x, high}));
        if (m_found && length(nearest - m_wanted) > m_distance) {
            return false;
        }
        // Along the column the distance falls to its nearest point and rises after it.
        const double wanted = std::round(fromDiagram(Diagram::Cie1976, nearest).y * m_perUnit);
        for (int i = -2; i <= 2; ++i) {
            consider({x, (wanted + i) / m_perUnit});
        }
        return true;
    }

    void consider(const DiagramPoint &point)
    {
        const double distance = length(toUv(point) - m_wanted);
        if (contains(m_triangle, point) && !(m_found && distance >= m_distance)) {
            m_found = point;
            m_distance = distance;
        }
    }

    /*! \brief Enough for a diagram in steps of 0.0001. With more decimals it limits the search in narrow triangles. */
    static constexpr int mostColumns = 20000;

    const Triangle m_triangle;
    const DiagramPoint m_wanted;
    const double m_perUnit;
    std::optional<DiagramPoint> m_found;
    double m_distance = 0.0;
};

} // namespace

std::optional<double> uvDifference(const Target &a, const Target &b)
{
    const DiagramPoint xyOfA{a.x, a.y};
    const DiagramPoint xyOfB{b.x, b.y};
    const auto isDark = [](const DiagramPoint &xy) { return xy.x == 0.0 && xy.y == 0.0; };
    if (!hasUv(xyOfA) || !hasUv(xyOfB) || isDark(xyOfA) || isDark(xyOfB)) {
        return std::nullopt;
    }
    const DiagramPoint way = toUv(xyOfA) - toUv(xyOfB);
    return std::sqrt(dot(way, way)); // u', v' are neither so large nor so small that it takes std::hypot()
}

std::optional<DiagramPoint> nearestPoint(const Targets &gamut, DiagramPoint xy, Diagram diagram)
{
    const auto triangle = triangleOf(gamut);
    if (!triangle || !isFinite(toDiagram(diagram, xy))) {
        return std::nullopt;
    }
    return contains(*triangle, xy) ? xy : nearestOnEdge(*triangle, xy, diagram);
}

std::optional<NearestInside> nearestInside(const Targets &gamut, DiagramPoint xy, int decimals)
{
    const auto triangle = triangleOf(gamut);
    if (!triangle || decimals < 1 || decimals > 9 || !hasUv(xy)
        || !std::all_of(triangle->begin(), triangle->end(), hasUv)) {
        return std::nullopt;
    }
    if (contains(*triangle, xy)) {
        return NearestInside{xy, 0.0};
    }
    const DiagramPoint nearest = nearestOnEdge(*triangle, xy, Diagram::Cie1976);
    const double perUnit = std::pow(10.0, decimals);
    const double column = std::floor(nearest.x * perUnit);
    GridSearch grid(*triangle, xy, perUnit);
    grid.search(column, -1);
    grid.search(column + 1.0, 1);
    if (!grid.found()) {
        return std::nullopt;
    }
    return NearestInside{*grid.found(), length(toUv(nearest) - toUv(xy))};
}

} // namespace Model
