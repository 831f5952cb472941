// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutcoverage.h>

#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Model {

namespace {

/*! \brief The tolerance of the charts' test, in square units of x, y. */
constexpr double containmentTolerance = 0.0001;

using Triangle = std::array<DiagramPoint, 3>;

Triangle corners(const Targets &gamut, Diagram diagram)
{
    return {toDiagram(diagram, {gamut.red.x, gamut.red.y}), toDiagram(diagram, {gamut.green.x, gamut.green.y}),
        toDiagram(diagram, {gamut.blue.x, gamut.blue.y})};
}

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

double area(const Triangle &triangle)
{
    return finiteOrZero(std::fabs(turn(triangle[0], triangle[1], triangle[2])) / 2.0);
}

Triangle counterClockwise(Triangle triangle)
{
    if (turn(triangle[0], triangle[1], triangle[2]) < 0.0) {
        std::swap(triangle[1], triangle[2]);
    }
    return triangle;
}

/*!
 * \brief The part of a convex polygon that lies left of the line from one point to another (Sutherland and Hodgman
 * 1974).
 */
std::vector<DiagramPoint> leftOf(
    const std::vector<DiagramPoint> &polygon, const DiagramPoint &from, const DiagramPoint &to)
{
    std::vector<DiagramPoint> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const DiagramPoint &a = polygon[i];
        const DiagramPoint &b = polygon[(i + 1) % polygon.size()];
        const double sideOfA = turn(from, to, a);
        const double sideOfB = turn(from, to, b);
        if (sideOfA >= 0.0) {
            kept.push_back(a);
        }
        if ((sideOfA > 0.0 && sideOfB < 0.0) || (sideOfA < 0.0 && sideOfB > 0.0)) {
            const double share = sideOfA / (sideOfA - sideOfB);
            kept.push_back({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
        }
    }
    return kept;
}

double ratio(double numerator, double denominator)
{
    return denominator > 0.0 ? finiteOrZero(numerator / denominator) : 0.0;
}

bool isOutside(const DiagramPoint &point, const Triangle &triangle)
{
    const auto &[a, b, c] = triangle;
    if (isFlat(a, b, c)) {
        return true;
    }
    const double excess = std::fabs(turn(point, b, c)) / 2.0 + std::fabs(turn(a, point, c)) / 2.0
        + std::fabs(turn(a, b, point)) / 2.0 - std::fabs(turn(a, b, c)) / 2.0;
    return !(excess < containmentTolerance);
}

} // namespace

double gamutArea(const Targets &gamut, Diagram diagram)
{
    return area(corners(gamut, diagram));
}

bool spanTriangle(const Targets &gamut)
{
    constexpr double leastArea = 1e-6;
    return gamutArea(gamut, Diagram::Cie1931) >= leastArea;
}

std::vector<DiagramPoint> commonPolygon(const Targets &a, const Targets &b, Diagram diagram)
{
    const Triangle subject = counterClockwise(corners(a, diagram));
    const Triangle clip = counterClockwise(corners(b, diagram));
    if (area(subject) == 0.0 || area(clip) == 0.0) {
        return {};
    }
    std::vector<DiagramPoint> polygon(subject.begin(), subject.end());
    for (std::size_t i = 0; i < clip.size(); ++i) {
        polygon = leftOf(polygon, clip[i], clip[(i + 1) % clip.size()]);
    }
    const auto equal = [](const DiagramPoint &p, const DiagramPoint &q) { return p.x == q.x && p.y == q.y; };
    polygon.erase(std::unique(polygon.begin(), polygon.end(), equal), polygon.end());
    if (polygon.size() > 1 && equal(polygon.front(), polygon.back())) {
        polygon.pop_back();
    }
    return polygonArea(polygon) > 0.0 ? polygon : std::vector<DiagramPoint>();
}

double commonArea(const Targets &a, const Targets &b, Diagram diagram)
{
    // Rounding must not make the common area larger than either gamut.
    return std::min({polygonArea(commonPolygon(a, b, diagram)), gamutArea(a, diagram), gamutArea(b, diagram)});
}

GamutCoverage gamutCoverage(const Targets &gamut, const Targets &standard, Diagram diagram)
{
    GamutCoverage result;
    result.area = gamutArea(gamut, diagram);
    result.standardArea = gamutArea(standard, diagram);
    result.commonArea = commonArea(gamut, standard, diagram);
    result.coverage = ratio(result.commonArea, result.standardArea);
    result.areaRatio = ratio(result.area, result.standardArea);
    return result;
}

PrimariesOutside primariesOutside(const Targets &gamut, const Targets &container)
{
    const Triangle triangle = corners(container, Diagram::Cie1931);
    const Triangle primaries = corners(gamut, Diagram::Cie1931);
    return {isOutside(primaries[0], triangle), isOutside(primaries[1], triangle), isOutside(primaries[2], triangle)};
}

} // namespace Model
