// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutfit.h>

#include <gamutmodel/nearestinside.h>
#include <gamutmodel/plane_p.h>
#include <gamutmodel/sharesoverblack_p.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace Model {

namespace {

using Triangle = std::array<DiagramPoint, 3>;

DiagramPoint xyOf(const Target &color)
{
    return {color.x, color.y};
}

DiagramPoint toUv(const DiagramPoint &xy)
{
    return toDiagram(Diagram::Cie1976, xy);
}

bool hasUv(const Targets &targets)
{
    const auto isKnown = [&targets](const Target &color) { return uvDifference(color, targets.white).has_value(); };
    return isKnown(targets.red) && isKnown(targets.green) && isKnown(targets.blue) && isKnown(targets.white)
        && std::isfinite(targets.white.Y);
}

/*! \brief The distance of \a point from the line of \a side: above 0 inside. */
double distanceFrom(const CommonSide &side, const DiagramPoint &point)
{
    return turn(side.from, side.to, point) / length(side.to - side.from);
}

struct Stop {
    double share;
    std::optional<std::size_t> cabinet;
};

/*! \brief How much of the way from \a white, which is inside, to \a primary is inside. */
Stop stopOnTheWay(const CommonGamut &common, const DiagramPoint &white, const DiagramPoint &primary)
{
    Stop stop{1.0, std::nullopt};
    for (const CommonSide &side : common.sides) {
        const double ofWhite = std::max(distanceFrom(side, white), 0.0);
        const double ofPrimary = distanceFrom(side, primary);
        if (ofPrimary >= -commonGamutRounding) {
            continue;
        }
        const double share = ofWhite / (ofWhite - ofPrimary);
        if (share < stop.share) {
            stop = {share, side.cabinet};
        }
    }
    return stop;
}

/*! \brief The point of \a common that is nearest to \a white in u', v', and the cabinet that limits it. */
std::pair<DiagramPoint, std::size_t> nearestWhite(const CommonGamut &common, const DiagramPoint &white)
{
    const DiagramPoint wanted = toUv(white);
    std::pair<DiagramPoint, std::size_t> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < common.corners.size(); ++i) {
        const DiagramPoint next = common.corners[(i + 1) % common.corners.size()];
        const DiagramPoint point = nearestOnPiece(wanted, toUv(common.corners[i]), toUv(next));
        if (length(point - wanted) < least) {
            least = length(point - wanted);
            nearest = {fromDiagram(Diagram::Cie1976, point), common.sides[i].cabinet};
        }
    }
    return nearest;
}

bool isInside(const Triangle &t, const DiagramPoint &point)
{
    const double way = turn(t[0], t[1], t[2]) < 0.0 ? -1.0 : 1.0;
    return way * turn(t[0], t[1], point) > 0.0 && way * turn(t[1], t[2], point) > 0.0
        && way * turn(t[2], t[0], point) > 0.0;
}

double moved(const Target &from, const Target &to)
{
    return uvDifference(from, to).value_or(0.0);
}

/*! \brief Completes \a fit with a target of the given primaries and white, and with what differs from \a wish. */
void complete(GamutFit &fit, const Triangle &primaries, const DiagramPoint &white, const Targets &wish)
{
    const auto color = [](double Y, const DiagramPoint &xy) { return Target::fromYxy(Y, xy.x, xy.y); };
    fit.fault = FitFault::NoTriangle;
    fit.target
        = {color(1.0, primaries[0]), color(1.0, primaries[1]), color(1.0, primaries[2]), color(wish.white.Y, white)};
    if (!spanTriangle(fit.target)) {
        return;
    }
    const auto luminances = DisplayDrive(fit.target).driveOf(fit.target.white);
    if (!luminances) {
        return;
    }
    fit.target.red = color(luminances->red, primaries[0]);
    fit.target.green = color(luminances->green, primaries[1]);
    fit.target.blue = color(luminances->blue, primaries[2]);
    fit.red.moved = moved(wish.red, fit.target.red);
    fit.green.moved = moved(wish.green, fit.target.green);
    fit.blue.moved = moved(wish.blue, fit.target.blue);
    fit.whiteMoved = moved(wish.white, fit.target.white);
    fit.costXy = gamutCoverage(fit.target, wish, Diagram::Cie1931);
    fit.costUv = gamutCoverage(fit.target, wish, Diagram::Cie1976);
    fit.fault = FitFault::None;
}

/*! \brief The corners of the largest triangle of \a polygon, which is convex and counter-clockwise, in its order. */
std::array<std::size_t, 3> largestTriangle(const std::vector<DiagramPoint> &polygon)
{
    const std::size_t count = polygon.size();
    std::array<std::size_t, 3> best{0, 1, 2};
    double largest = 0.0;
    for (std::size_t i = 0; i + 2 < count; ++i) {
        // Above the line from i to j the distance of corners rises to its largest and falls, and the farthest corner
        // moves on with j.
        std::size_t k = i + 2;
        for (std::size_t j = i + 1; j + 1 < count; ++j) {
            const auto area = [&](std::size_t third) { return turn(polygon[i], polygon[j], polygon[third]); };
            k = std::max(k, j + 1);
            while (k + 1 < count && area(k + 1) >= area(k)) {
                ++k;
            }
            if (area(k) > largest) {
                largest = area(k);
                best = {i, j, k};
            }
        }
    }
    return best;
}

} // namespace

GamutFit fittedTarget(const CommonGamut &common, const Targets &wish)
{
    GamutFit fit;
    if (!hasUv(wish)) {
        fit.fault = FitFault::NotFinite;
        return fit;
    }
    if (common.shape != CommonShape::Area) {
        fit.fault = FitFault::NoCommonArea;
        return fit;
    }
    const DiagramPoint white = xyOf(wish.white);
    if (!isInCommonGamut(common, white)) {
        const auto [nearest, cabinet] = nearestWhite(common, white);
        fit.fault = FitFault::WhiteOutside;
        fit.target.white = Target::fromYxy(wish.white.Y, nearest.x, nearest.y);
        fit.whiteLimit = cabinet;
        fit.whiteMoved = moved(wish.white, fit.target.white);
        return fit;
    }
    Triangle primaries{xyOf(wish.red), xyOf(wish.green), xyOf(wish.blue)};
    if (!isInside(primaries, white)) {
        fit.fault = FitFault::WhiteOutsideOfWish;
        return fit;
    }
    FittedPrimary *const fitted[] = {&fit.red, &fit.green, &fit.blue};
    for (std::size_t i = 0; i < 3; ++i) {
        const Stop stop = stopOnTheWay(common, white, primaries[i]);
        if (stop.cabinet) {
            primaries[i] = white + stop.share * (primaries[i] - white);
        }
        fitted[i]->share = stop.share;
        fitted[i]->limit = stop.cabinet;
    }
    constexpr double leastShare = 1e-6;
    if (std::min({fit.red.share, fit.green.share, fit.blue.share}) < leastShare) {
        fit.fault = FitFault::NoTriangle;
        return fit;
    }
    complete(fit, primaries, white, wish);
    return fit;
}

GamutFit fittedTarget(const CommonGamut &common, const Targets &wish, const std::vector<Cabinet> &cabinets)
{
    GamutFit fit = fittedTarget(common, wish);
    if (fit.fault != FitFault::None || !(wish.white.Y > 0.0)) {
        return fit;
    }
    const SharesOverBlack over = sharesOverBlack(cabinets, fit.target);
    if (over.tooBright) {
        fit.fault = FitFault::BlackTooBright;
        fit.whiteLimit = over.tooBright;
        return fit;
    }
    const DiagramPoint white = xyOf(fit.target.white);
    Triangle primaries{xyOf(fit.target.red), xyOf(fit.target.green), xyOf(fit.target.blue)};
    FittedPrimary *const fitted[] = {&fit.red, &fit.green, &fit.blue};
    for (std::size_t i = 0; i < 3; ++i) {
        if (over.limits[i]) {
            primaries[i] = white + over.shares[i] * (primaries[i] - white);
            fitted[i]->share *= over.shares[i];
            fitted[i]->limit = over.limits[i];
        }
    }
    if (over.limits != decltype(over.limits)()) {
        complete(fit, primaries, white, wish);
    }
    return fit;
}

GamutFit largestTarget(const CommonGamut &common, const Targets &wish, Diagram diagram)
{
    GamutFit fit;
    if (!hasUv(wish)) {
        fit.fault = FitFault::NotFinite;
        return fit;
    }
    if (common.shape != CommonShape::Area) {
        fit.fault = FitFault::NoCommonArea;
        return fit;
    }
    std::vector<DiagramPoint> polygon = common.corners;
    for (DiagramPoint &corner : polygon) {
        corner = toDiagram(diagram, corner);
    }
    const Triangle wished{
        toDiagram(diagram, xyOf(wish.red)), toDiagram(diagram, xyOf(wish.green)), toDiagram(diagram, xyOf(wish.blue))};
    std::array<std::size_t, 3> corners = largestTriangle(polygon);
    std::array<std::size_t, 3> best = corners;
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < 3; ++i) {
        double sum = 0.0;
        for (std::size_t k = 0; k < 3; ++k) {
            const DiagramPoint way = polygon[corners[k]] - wished[k];
            sum += dot(way, way);
        }
        if (sum < least) {
            least = sum;
            best = corners;
        }
        std::rotate(corners.begin(), corners.begin() + 1, corners.end());
    }
    const Triangle primaries{common.corners[best[0]], common.corners[best[1]], common.corners[best[2]]};
    fit.red.limit = common.sides[best[0]].cabinet;
    fit.green.limit = common.sides[best[1]].cabinet;
    fit.blue.limit = common.sides[best[2]].cabinet;
    const auto color = [](const DiagramPoint &xy) { return Target::fromYxy(1.0, xy.x, xy.y); };
    const Targets triangle{color(primaries[0]), color(primaries[1]), color(primaries[2]), Target()};
    const auto white = nearestPoint(triangle, xyOf(wish.white), Diagram::Cie1976);
    complete(fit, primaries, white.value_or(xyOf(wish.white)), wish);
    return fit;
}

} // namespace Model
