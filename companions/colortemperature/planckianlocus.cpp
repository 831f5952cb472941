// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/locustable_p.h>
#include <colortemperature/planckianlocus_p.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr int lastNode = locusNodeCount - 1;

/*!
 * \brief A coordinate between two nodes: the polynomial of degree five in s = 0..1 that has the value and the first two
 * derivatives of both nodes.
 *
 * The curvature is continuous at the nodes, so that Newton's method converges across them.
 */
class HermitePiece {
public:
    HermitePiece(const LocusCoordinate &from, const LocusCoordinate &to)
    {
        const double value = to.value - from.value - from.first - 0.5 * from.second;
        const double first = to.first - from.first - from.second;
        const double second = to.second - from.second;
        m_c0 = from.value;
        m_c1 = from.first;
        m_c2 = 0.5 * from.second;
        m_c3 = 10.0 * value - 4.0 * first + 0.5 * second;
        m_c4 = -15.0 * value + 7.0 * first - second;
        m_c5 = 6.0 * value - 3.0 * first + 0.5 * second;
    }

    LocusCoordinate at(double s) const
    {
        return {((((m_c5 * s + m_c4) * s + m_c3) * s + m_c2) * s + m_c1) * s + m_c0,
            (((5.0 * m_c5 * s + 4.0 * m_c4) * s + 3.0 * m_c3) * s + 2.0 * m_c2) * s + m_c1,
            ((20.0 * m_c5 * s + 12.0 * m_c4) * s + 6.0 * m_c3) * s + 2.0 * m_c2};
    }

private:
    double m_c0, m_c1, m_c2, m_c3, m_c4, m_c5;
};

/*!
 * \brief The distance by which a chromaticity is ahead of the normal through a point of the locus, in the direction of
 * falling temperature, multiplied by the length of the tangent vector.
 *
 * The distance from the locus has a minimum where this lead changes from positive to negative, and at an end of the
 * locus if the chromaticity is beyond it.
 */
double lead(double u, double v, const LocusNode &point)
{
    return (u - point.u.value) * point.u.first + (v - point.v.value) * point.v.first;
}

double squaredDistance(double u, double v, const LocusNode &point)
{
    const double du = u - point.u.value;
    const double dv = v - point.v.value;
    return du * du + dv * dv;
}

/*! \brief The distance with the sign of the side of the tangent, which is also defined beyond the ends of the locus. */
double signedDistance(double u, double v, const LocusNode &point)
{
    const double side = point.u.first * (v - point.v.value) - point.v.first * (u - point.u.value);
    return std::copysign(std::sqrt(squaredDistance(u, v, point)), side);
}

/*! \brief A local minimum of the distance. */
struct Minimum {
    double nodes; //!< position on the locus, in nodes from its hot end
    LocusNode point;
};

Minimum endNode(int node)
{
    return {static_cast<double>(node), locusNodes[node]};
}

/*!
 * \brief The minimum between two neighbouring nodes, of which only the first has a positive lead.
 *
 * It is the zero of the lead, computed by Newton's method within the interval.
 */
Minimum minimumAfterNode(double u, double v, int node)
{
    constexpr double tolerance = 1e-8; // convergence is quadratic: after such a step only the rounding error remains
    constexpr int mostSteps = 60; // three are enough, except near a centre of curvature

    const LocusNode &from = locusNodes[node];
    const LocusNode &to = locusNodes[node + 1];
    const HermitePiece pieceU(from.u, to.u);
    const HermitePiece pieceV(from.v, to.v);

    const double leadFrom = lead(u, v, from);
    double low = 0.0;
    double high = 1.0;
    double s = leadFrom / (leadFrom - lead(u, v, to));
    for (int step = 0; step < mostSteps; ++step) {
        const LocusNode point{pieceU.at(s), pieceV.at(s)};
        const double value = lead(u, v, point);
        const double slope = (u - point.u.value) * point.u.second + (v - point.v.value) * point.v.second
            - point.u.first * point.u.first - point.v.first * point.v.first;
        if (value > 0.0) {
            low = s;
        } else {
            high = s;
        }
        double next = slope < 0.0 ? s - value / slope : -1.0;
        if (next < low - tolerance || next > high + tolerance) {
            next = 0.5 * (low + high);
        }
        const double change = std::fabs(next - s);
        s = std::clamp(next, 0.0, 1.0);
        if (change < tolerance) {
            break;
        }
    }
    return {node + s, {pieceU.at(s), pieceV.at(s)}};
}

/*! \brief One of the minima, found by bisection. If there is a minimum at the hot end, it is that one. */
Minimum anyMinimum(double u, double v)
{
    int low = 0;
    int high = lastNode;
    if (!(lead(u, v, locusNodes[low]) > 0.0)) {
        return endNode(low);
    }
    if (lead(u, v, locusNodes[high]) > 0.0) {
        return endNode(high);
    }
    while (high - low > 1) {
        const int middle = (low + high) / 2;
        if (lead(u, v, locusNodes[middle]) > 0.0) {
            low = middle;
        } else {
            high = middle;
        }
    }
    return minimumAfterNode(u, v, low);
}

/*! \brief The smallest of all minima; \a any is the result of anyMinimum(). */
Minimum leastMinimum(double u, double v, Minimum least)
{
    const auto consider = [&](const Minimum &minimum) {
        if (squaredDistance(u, v, minimum.point) < squaredDistance(u, v, least.point)) {
            least = minimum;
        }
    };
    bool ahead = lead(u, v, locusNodes[0]) > 0.0;
    for (int node = 0; node < lastNode; ++node) {
        const bool wasAhead = ahead;
        ahead = lead(u, v, locusNodes[node + 1]) > 0.0;
        if (wasAhead && !ahead) {
            consider(minimumAfterNode(u, v, node));
        }
    }
    if (ahead) {
        consider(endNode(lastNode));
    }
    return least;
}

} // namespace

LocusFoot nearestOnLocus(double u, double v)
{
    Minimum nearest = anyMinimum(u, v);
    double duv = signedDistance(u, v, nearest.point);
    if (duv <= -locusReach) {
        nearest = leastMinimum(u, v, nearest);
        duv = signedDistance(u, v, nearest.point);
    }
    return {locusFirstMired + locusMiredStep * nearest.nodes, duv};
}

} // namespace ceiechart
