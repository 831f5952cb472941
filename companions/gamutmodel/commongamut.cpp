// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/commongamut.h>

#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace Model {

namespace {

constexpr double rounding = commonGamutRounding;
/*! \brief Coordinates up to this have far less rounding than commonGamutRounding. */
constexpr double farthestCoordinate = 100.0;

/*! \brief The order of points by x, then by y. */
bool isBefore(const DiagramPoint &a, const DiagramPoint &b)
{
    return std::tie(a.x, a.y) < std::tie(b.x, b.y);
}

bool isSame(const DiagramPoint &a, const DiagramPoint &b)
{
    return length(b - a) <= rounding;
}

/*! \brief The gamut of a cabinet, counter-clockwise from its first point, so that equal gamuts are equal. */
struct Gamut {
    std::array<DiagramPoint, 3> corners;
    std::size_t cabinet = 0;
};

Gamut gamutOf(const GamutTriangle &triangle, std::size_t cabinet)
{
    Gamut gamut{{triangle.red, triangle.green, triangle.blue}, cabinet};
    for (DiagramPoint &corner : gamut.corners) {
        corner = corner + DiagramPoint{0.0, 0.0}; // no negative zeros
    }
    std::sort(gamut.corners.begin(), gamut.corners.end(), isBefore);
    if (turn(gamut.corners[0], gamut.corners[1], gamut.corners[2]) < 0.0) {
        std::swap(gamut.corners[1], gamut.corners[2]);
    }
    return gamut;
}

auto comparable(const Gamut &gamut)
{
    const auto &[a, b, c] = gamut.corners;
    return std::tie(a.x, a.y, b.x, b.y, c.x, c.y, gamut.cabinet);
}

bool isValid(const GamutTriangle &triangle)
{
    const auto isInReach = [](double value) { return std::fabs(value) <= farthestCoordinate; };
    for (const DiagramPoint &corner : {triangle.red, triangle.green, triangle.blue}) {
        if (!isInReach(corner.x) || !isInReach(corner.y)) {
            return false;
        }
    }
    return true;
}

/*! \brief A line that bounds a gamut on its right. */
struct Side {
    CommonSide side;
    DiagramPoint inwards; // of length 1

    double distanceOf(const DiagramPoint &point) const { return dot(inwards, point - side.from); }
};

Side sideOf(std::size_t cabinet, const DiagramPoint &from, const DiagramPoint &to)
{
    const DiagramPoint way = to - from;
    return {{cabinet, from, to}, 1.0 / length(way) * DiagramPoint{-way.y, way.x}};
}

/*! \brief The ends of a gamut that is a line, or twice its point; nothing if it has an area. */
std::optional<std::pair<DiagramPoint, DiagramPoint>> lineOf(const Gamut &gamut)
{
    // In the order of points the first and the last are the farthest, if the points are on a line.
    const auto [first, last] = std::minmax({gamut.corners[0], gamut.corners[1], gamut.corners[2]}, isBefore);
    if (isSame(first, last)) {
        return std::make_pair(first, first);
    }
    const Side line = sideOf(0, first, last);
    const bool isLine = std::all_of(gamut.corners.begin(), gamut.corners.end(),
        [&line](const DiagramPoint &corner) { return std::fabs(line.distanceOf(corner)) <= rounding; });
    return isLine ? std::make_optional(std::make_pair(first, last)) : std::nullopt;
}

/*! \brief The sides of a gamut: three, or four around a line or a point. */
struct Sides {
    std::array<Side, 4> all;
    std::size_t count = 0;

    explicit Sides(const Gamut &gamut)
    {
        if (const auto line = lineOf(gamut)) {
            const auto &[from, to] = *line;
            // Any length serves to state directions.
            const DiagramPoint along = isSame(from, to) ? DiagramPoint{1.0, 0.0} : to - from;
            const DiagramPoint across{-along.y, along.x};
            add(gamut.cabinet, from, from + along);
            add(gamut.cabinet, to, to - along);
            add(gamut.cabinet, from, from - across);
            add(gamut.cabinet, to, to + across);
        } else {
            for (std::size_t i = 0; i < 3; ++i) {
                add(gamut.cabinet, gamut.corners[i], gamut.corners[(i + 1) % 3]);
            }
        }
    }
    const Side *begin() const { return all.data(); }
    const Side *end() const { return all.data() + count; }

private:
    void add(std::size_t cabinet, const DiagramPoint &from, const DiagramPoint &to)
    {
        all[count++] = sideOf(cabinet, from, to);
    }
};

/*! \brief A convex polygon, a line of two points or a point, that is cut smaller and smaller. */
class Remainder {
public:
    explicit Remainder(const Gamut &gamut)
    {
        const Sides sides(gamut);
        if (const auto line = lineOf(gamut)) {
            m_corners.push_back({line->first, sides.all[0].side});
            if (!isSame(line->first, line->second)) {
                m_corners.push_back({line->second, sides.all[1].side});
            }
        } else {
            for (const Side &side : sides) {
                m_corners.push_back({side.side.from, side.side});
            }
        }
    }

    bool isEmpty() const { return m_corners.empty(); }

    /*!
     * \brief Keeps what is to the left of the sides of \a gamut (Sutherland and Hodgman 1974).
     *
     * Points within commonGamutRounding of a side count as on it. They are kept as they are, so that nothing moves
     * however many sides there are, and gamuts that touch are left with the points at which they do.
     */
    void cut(const Gamut &gamut)
    {
        for (const Side &side : Sides(gamut)) {
            cut(side);
        }
    }

    /*! \brief The length of the way around, and less than 0 if nothing is left. */
    double extent() const
    {
        double sum = isEmpty() ? -1.0 : 0.0;
        for (std::size_t i = 1; i < m_corners.size(); ++i) {
            sum += length(m_corners[i].point - m_corners[i - 1].point);
        }
        return sum;
    }

    void describe(CommonGamut &common);

private:
    struct Corner {
        DiagramPoint point;
        CommonSide side; // to the next
    };

    void cut(const Side &side)
    {
        m_distances.clear();
        double least = 0.0;
        for (const Corner &corner : m_corners) {
            m_distances.push_back(side.distanceOf(corner.point));
            least = std::min(least, m_distances.back());
        }
        if (least >= -rounding) {
            return;
        }
        m_kept.clear();
        const std::size_t count = m_corners.size();
        const bool isClosed = count > 2;
        for (std::size_t i = 0; i < count; ++i) {
            const Corner &a = m_corners[i];
            const double distance = m_distances[i];
            const bool isKept = distance >= -rounding;
            if (isKept) {
                m_kept.push_back(a);
            }
            if (!isClosed && i + 1 == count) {
                break;
            }
            const std::size_t next = (i + 1) % count;
            const Corner &b = m_corners[next];
            const double nextDistance = m_distances[next];
            const bool isNextKept = nextDistance >= -rounding;
            if (isKept == isNextKept) {
                continue;
            }
            if ((isKept ? distance : nextDistance) > rounding) {
                const double share = distance / (distance - nextDistance);
                m_kept.push_back({a.point + share * (b.point - a.point), isKept ? side.side : a.side});
            } else if (isKept) {
                m_kept.back().side = side.side;
            }
        }
        m_corners.swap(m_kept);
    }

    std::vector<Corner> m_corners;
    std::vector<Corner> m_kept;
    std::vector<double> m_distances;
};

/*! \brief Writes the shape, its corners and its sides to \a common. */
void Remainder::describe(CommonGamut &common)
{
    if (isEmpty()) {
        common.shape = CommonShape::Empty;
        return;
    }
    // Equal points next to each other: the side that leads away from them is that of the last.
    m_kept.clear();
    for (const Corner &corner : m_corners) {
        if (!m_kept.empty() && isSame(m_kept.back().point, corner.point)) {
            m_kept.back().side = corner.side;
        } else {
            m_kept.push_back(corner);
        }
    }
    while (m_kept.size() > 1 && isSame(m_kept.front().point, m_kept.back().point)) {
        m_kept.pop_back();
    }
    const auto isEarlier = [](const Corner &a, const Corner &b) { return isBefore(a.point, b.point); };
    const auto first = std::min_element(m_kept.begin(), m_kept.end(), isEarlier);
    const auto last = std::max_element(m_kept.begin(), m_kept.end(), isEarlier);
    if (m_kept.size() == 1) {
        common.shape = CommonShape::Point;
        common.corners = {first->point};
        return;
    }
    const Side line = sideOf(0, first->point, last->point);
    if (std::all_of(m_kept.begin(), m_kept.end(),
            [&line](const Corner &corner) { return std::fabs(line.distanceOf(corner.point)) <= rounding; })) {
        common.shape = CommonShape::Line;
        common.corners = {first->point, last->point};
        return;
    }
    common.shape = CommonShape::Area;
    std::rotate(m_kept.begin(), first, m_kept.end());
    for (const Corner &corner : m_kept) {
        common.corners.push_back(corner.point);
        common.sides.push_back(corner.side);
    }
}

/*! \brief How far \a gamut lies beyond \a side; 0 or less if it does not. */
double distanceBeyond(const Side &side, const Gamut &gamut)
{
    return -std::max(
        {side.distanceOf(gamut.corners[0]), side.distanceOf(gamut.corners[1]), side.distanceOf(gamut.corners[2])});
}

/*! \brief The pair of \a gamuts that lies farthest apart; nothing if there is none. */
std::vector<std::size_t> farthestPair(const std::vector<Gamut> &gamuts)
{
    // Any two that can both show the mean colour have it in common, so that one of a pair cannot.
    DiagramPoint mean;
    for (const Gamut &gamut : gamuts) {
        for (const DiagramPoint &corner : gamut.corners) {
            mean = mean + 1.0 / (3.0 * double(gamuts.size())) * corner;
        }
    }
    const auto showsMean = [&mean](const Sides &sides) {
        return std::all_of(sides.begin(), sides.end(), [&mean](const Side &s) { return s.distanceOf(mean) >= 0.0; });
    };
    std::vector<Gamut> without;
    std::copy_if(gamuts.begin(), gamuts.end(), std::back_inserter(without),
        [&showsMean](const Gamut &gamut) { return !showsMean(Sides(gamut)); });

    std::vector<std::size_t> pair;
    double farthest = rounding;
    for (const Gamut &gamut : gamuts) {
        const Sides sides(gamut);
        const std::vector<Gamut> &others = showsMean(sides) ? without : gamuts;
        for (const Side &side : sides) {
            for (const Gamut &other : others) {
                const double apart = distanceBeyond(side, other);
                if (apart > farthest) {
                    farthest = apart;
                    pair = {gamut.cabinet, other.cabinet};
                }
            }
        }
    }
    return pair;
}

/*!
 * \brief Two or three of the first \a count of \a gamuts that have nothing in common, if all but the last of them have
 * something in common.
 *
 * The last is one of them. Of the others, what they share with the last is convex, too, and has nothing in common. The
 * first that leaves nothing of it is the second, and a third has to be among those before (Helly's theorem).
 */
std::vector<std::size_t> fewestExcluding(const std::vector<Gamut> &gamuts, std::size_t count)
{
    const Gamut &last = gamuts[count - 1];
    Remainder ofLast(last);
    std::size_t second = 0;
    for (std::size_t i = 0; i + 1 < count && !ofLast.isEmpty(); ++i) {
        ofLast.cut(gamuts[i]);
        second = i;
    }
    Remainder ofBoth(last);
    ofBoth.cut(gamuts[second]);
    std::vector<std::size_t> found{last.cabinet, gamuts[second].cabinet};
    if (ofBoth.isEmpty() || second == 0) {
        return found;
    }
    // By rounding, what is left can be a little more than nothing.
    std::size_t third = 0;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < second && least >= 0.0; ++i) {
        Remainder ofAll = ofBoth;
        ofAll.cut(gamuts[i]);
        if (ofAll.extent() < least) {
            least = ofAll.extent();
            third = i;
        }
    }
    found.push_back(gamuts[third].cabinet);
    return found;
}

} // namespace

CommonGamut commonGamut(const std::vector<GamutTriangle> &triangles)
{
    CommonGamut common;
    std::vector<Gamut> gamuts;
    gamuts.reserve(triangles.size());
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        if (isValid(triangles[i])) {
            gamuts.push_back(gamutOf(triangles[i], i));
        } else {
            common.invalid.push_back(i);
        }
    }
    if (gamuts.empty() || !common.invalid.empty()) {
        return common;
    }
    // The result of every rounding depends on the order of the cuts, so that they need one of their own.
    std::sort(
        gamuts.begin(), gamuts.end(), [](const Gamut &a, const Gamut &b) { return comparable(a) < comparable(b); });
    Remainder remainder(gamuts.front());
    std::size_t count = 1;
    for (; count < gamuts.size() && !remainder.isEmpty(); ++count) {
        remainder.cut(gamuts[count]);
    }
    remainder.describe(common);
    if (common.shape == CommonShape::Empty) {
        common.excluding = farthestPair(gamuts);
        if (common.excluding.empty()) {
            common.excluding = fewestExcluding(gamuts, count);
        }
        std::sort(common.excluding.begin(), common.excluding.end());
    }
    return common;
}

double commonGamutArea(const CommonGamut &common, Diagram diagram)
{
    if (common.shape != CommonShape::Area) {
        return 0.0;
    }
    std::vector<DiagramPoint> corners = common.corners;
    for (DiagramPoint &corner : corners) {
        corner = toDiagram(diagram, corner);
    }
    return polygonArea(corners);
}

bool isInCommonGamut(const CommonGamut &common, DiagramPoint xy)
{
    // Not by the corners: those of a very short side do not tell its direction.
    return common.shape == CommonShape::Area
        && std::all_of(common.sides.begin(), common.sides.end(), [&xy](const CommonSide &side) {
               return sideOf(side.cabinet, side.from, side.to).distanceOf(xy) >= -rounding;
           });
}

} // namespace Model
