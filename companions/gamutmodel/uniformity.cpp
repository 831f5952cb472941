// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/uniformity.h>

#include <gamutmodel/nearestinside.h>
#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace Model {

namespace {

/*! \brief What a cabinet shows, as far as it is known. */
struct Shown {
    DiagramPoint uv;
    double luminance = 0.0;
    bool hasUv = false;
    bool hasLuminance = false;
};

struct HullPoint {
    DiagramPoint uv;
    std::size_t cabinet;
};

/*! \brief The corners of the convex hull of \a points, counter-clockwise (Andrew 1979). */
std::vector<HullPoint> hullOf(std::vector<HullPoint> points)
{
    std::sort(points.begin(), points.end(), [](const HullPoint &a, const HullPoint &b) {
        return std::tie(a.uv.x, a.uv.y, a.cabinet) < std::tie(b.uv.x, b.uv.y, b.cabinet);
    });
    std::vector<HullPoint> hull;
    const auto add = [&hull](std::size_t first, const HullPoint &point) {
        while (hull.size() >= first + 2 && turn(hull[hull.size() - 2].uv, hull[hull.size() - 1].uv, point.uv) <= 0.0) {
            hull.pop_back();
        }
        hull.push_back(point);
    };
    for (const HullPoint &point : points) {
        add(0, point);
    }
    const std::size_t upper = hull.size() - 1;
    for (std::size_t i = points.size() - 1; i-- > 0;) {
        add(upper, points[i]);
    }
    if (hull.size() > 1) {
        hull.pop_back(); // the first again
    }
    return hull;
}

void keepLarger(std::optional<CabinetPair> &pair, std::size_t a, std::size_t b, double difference)
{
    if (!pair || difference > pair->difference) {
        pair = CabinetPair{std::min(a, b), std::max(a, b), difference};
    }
}

/*! \brief The two of \a points that are farthest apart: opposite corners of the hull (Shamos 1978). */
std::optional<CabinetPair> farthestPair(std::vector<HullPoint> points)
{
    if (points.size() < 2) {
        return std::nullopt;
    }
    std::optional<CabinetPair> farthest;
    keepLarger(farthest, points[0].cabinet, points[1].cabinet, length(points[0].uv - points[1].uv));
    const std::vector<HullPoint> hull = hullOf(std::move(points));
    const std::size_t count = hull.size();
    const auto compare = [&](std::size_t i, std::size_t k) {
        keepLarger(farthest, hull[i].cabinet, hull[k].cabinet, length(hull[i].uv - hull[k].uv));
    };
    std::size_t opposite = 0;
    for (std::size_t i = 0; i < count && count > 1; ++i) {
        const std::size_t next = (i + 1) % count;
        if (opposite == i) {
            opposite = next;
        }
        // The corners that are farthest from the side: up to two, if another side is parallel to it.
        const auto height = [&](std::size_t k) { return turn(hull[i].uv, hull[next].uv, hull[k].uv); };
        for (std::size_t step = 0; step < count; ++step) {
            compare(i, opposite);
            const std::size_t following = (opposite + 1) % count;
            if (height(following) < height(opposite)) {
                break;
            }
            opposite = following;
        }
    }
    return farthest;
}

double luminanceDifference(double a, double b)
{
    const double brighter = std::max(a, b);
    return brighter > 0.0 ? 1.0 - std::min(a, b) / brighter : 0.0;
}

/*! \brief Compares \a shown of neighbours. */
class Neighbors {
public:
    Neighbors(
        const std::vector<Shown> &shown, const std::vector<std::optional<GridPosition>> &positions, Uniformity &to)
        : m_shown(shown)
        , m_to(to)
    {
        std::vector<Place> all;
        for (std::size_t i = 0; i < std::min(shown.size(), positions.size()); ++i) {
            if (positions[i]) {
                all.push_back({positions[i]->row, positions[i]->column, i});
            }
        }
        std::sort(all.begin(), all.end(), [](const Place &a, const Place &b) {
            return std::tie(a.row, a.column, a.cabinet) < std::tie(b.row, b.column, b.cabinet);
        });
        for (const Place &place : all) {
            if (!m_places.empty() && m_places.back().row == place.row && m_places.back().column == place.column) {
                to.samePosition.push_back(place.cabinet);
            } else {
                m_places.push_back(place);
            }
        }
        std::sort(to.samePosition.begin(), to.samePosition.end());
    }

    void compare()
    {
        std::size_t below = 0;
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            const Place &place = m_places[i];
            if (i + 1 < m_places.size() && isAt(m_places[i + 1], place.row, place.column + 1)) {
                compare(place.cabinet, m_places[i + 1].cabinet);
            }
            while (below < m_places.size() && isBefore(m_places[below], place.row + 1, place.column)) {
                ++below;
            }
            if (below < m_places.size() && isAt(m_places[below], place.row + 1, place.column)) {
                compare(place.cabinet, m_places[below].cabinet);
            }
        }
    }

private:
    struct Place {
        long long row; // one more than the largest int is a row, too
        long long column;
        std::size_t cabinet;
    };

    static bool isAt(const Place &place, long long row, long long column)
    {
        return place.row == row && place.column == column;
    }
    static bool isBefore(const Place &place, long long row, long long column)
    {
        return std::tie(place.row, place.column) < std::tie(row, column);
    }

    void compare(std::size_t a, std::size_t b)
    {
        const Shown &first = m_shown[a];
        const Shown &second = m_shown[b];
        if (first.hasUv && second.hasUv) {
            keepLarger(m_to.neighborChromaticity, a, b, length(first.uv - second.uv));
        }
        if (first.hasLuminance && second.hasLuminance) {
            keepLarger(m_to.neighborLuminance, a, b, luminanceDifference(first.luminance, second.luminance));
        }
    }

    const std::vector<Shown> &m_shown;
    Uniformity &m_to;
    std::vector<Place> m_places;
};

} // namespace

Uniformity uniformity(
    const std::vector<std::optional<Target>> &colors, const std::vector<std::optional<GridPosition>> &positions)
{
    Uniformity result;
    std::vector<Shown> shown(colors.size());
    std::vector<HullPoint> points;
    std::optional<std::size_t> brightest;
    std::optional<std::size_t> darkest;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        Shown &cabinet = shown[i];
        cabinet.hasUv = colors[i] && uvDifference(*colors[i], *colors[i]);
        if (cabinet.hasUv) {
            cabinet.uv = toDiagram(Diagram::Cie1976, {colors[i]->x, colors[i]->y});
            points.push_back({cabinet.uv, i});
        } else {
            result.unknownChromaticity.push_back(i);
        }
        cabinet.hasLuminance = colors[i] && std::isfinite(colors[i]->Y) && colors[i]->Y >= 0.0;
        if (!cabinet.hasLuminance) {
            result.unknownLuminance.push_back(i);
            continue;
        }
        cabinet.luminance = colors[i]->Y;
        if (!brightest || cabinet.luminance > shown[*brightest].luminance) {
            brightest = i;
        }
        if (!darkest || cabinet.luminance <= shown[*darkest].luminance) {
            darkest = i; // the last, so that two equal ones are a pair
        }
    }
    result.chromaticity = farthestPair(std::move(points));
    if (brightest && *brightest != *darkest && shown[*brightest].luminance > 0.0) {
        keepLarger(result.luminance, *brightest, *darkest,
            luminanceDifference(shown[*brightest].luminance, shown[*darkest].luminance));
    }
    Neighbors(shown, positions, result).compare();
    return result;
}

std::vector<std::optional<GridPosition>> positionsOf(const std::vector<Cabinet> &cabinets)
{
    std::vector<std::optional<GridPosition>> positions;
    positions.reserve(cabinets.size());
    for (const Cabinet &cabinet : cabinets) {
        positions.push_back(cabinet.position);
    }
    return positions;
}

} // namespace Model
