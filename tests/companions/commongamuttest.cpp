// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/commongamut.h>
#include <gamutmodel/gamutcoverage.h>

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

using namespace Model;

namespace vendor {

struct Chroma {
    float x;
    float y;
};
struct Lamp {
    Chroma red;
    Chroma green;
    Chroma blue;
};
struct Panel {
    double corners[6];
};
GamutTriangle gamutTriangle(const Panel &panel)
{
    const double *c = panel.corners;
    return {{c[0], c[1]}, {c[2], c[3]}, {c[4], c[5]}};
}

} // namespace vendor

class CommonGamutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ofOneIsItself();
    void ofEqualOnesIsItself();
    void oneBadCabinet();
    void touchInAPoint();
    void touchAlongALine();
    void crossOnAPoint();
    void narrowerThanRoundingIsALine();
    void flatCabinets();
    void emptyNamesThePair();
    void emptyNamesTheFarthestPair();
    void emptyNamesThree();
    void invalidCabinets_data();
    void invalidCabinets();
    void notKnownWithoutCabinets();
    void negativeZero();
    void areas();
    void isInside();
    void recordsOfOthers();
    void manySidesMeetInAPoint();
    void agreesWithVertexEnumeration_data();
    void agreesWithVertexEnumeration();
};

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int thinning = 20;
#else
constexpr int thinning = 1;
#endif

using Wall = std::vector<GamutTriangle>;
using Real = long double;

struct RealPoint {
    Real x;
    Real y;
};

GamutTriangle triangle(double ax, double ay, double bx, double by, double cx, double cy)
{
    return {{ax, ay}, {bx, by}, {cx, cy}};
}

const GamutTriangle rec709Triangle = triangle(0.64, 0.33, 0.30, 0.60, 0.15, 0.06);

bool isSame(const DiagramPoint &a, const DiagramPoint &b)
{
    return a.x == b.x && a.y == b.y;
}

//! With the least x first, as a common gamut has them.
bool hasCorners(const CommonGamut &common, const std::vector<DiagramPoint> &expected)
{
    return std::equal(common.corners.begin(), common.corners.end(), expected.begin(), expected.end(), isSame);
}

//! Corners that are where sides cross
bool hasCornersNear(const CommonGamut &common, const std::vector<DiagramPoint> &expected)
{
    return std::equal(common.corners.begin(), common.corners.end(), expected.begin(), expected.end(),
        [](const DiagramPoint &a, const DiagramPoint &b) { return std::hypot(a.x - b.x, a.y - b.y) < 1e-15; });
}

// The oracle works on points only: the corners of the common area are corners of triangles or crossings of two sides,
// and of these all that lie in every triangle. It knows of no order and cuts nothing.

RealPoint real(const DiagramPoint &p)
{
    return {p.x, p.y};
}

Real turnOf(const RealPoint &a, const RealPoint &b, const RealPoint &c)
{
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

Real distanceOf(const RealPoint &a, const RealPoint &b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

Real distanceFromPiece(const RealPoint &p, const RealPoint &a, const RealPoint &b)
{
    const Real square = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
    Real share = 0;
    if (square > 0) {
        share = std::clamp(((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) / square, Real(0), Real(1));
    }
    return distanceOf(p, {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
}

std::array<RealPoint, 3> cornersOf(const GamutTriangle &t)
{
    return {real(t.red), real(t.green), real(t.blue)};
}

//! 0 inside.
Real distanceFrom(const GamutTriangle &t, const RealPoint &p)
{
    const auto [a, b, c] = cornersOf(t);
    const Real ab = turnOf(a, b, p);
    const Real bc = turnOf(b, c, p);
    const Real ca = turnOf(c, a, p);
    if (turnOf(a, b, c) != 0 && ((ab >= 0 && bc >= 0 && ca >= 0) || (ab <= 0 && bc <= 0 && ca <= 0))) {
        return 0;
    }
    return std::min({distanceFromPiece(p, a, b), distanceFromPiece(p, b, c), distanceFromPiece(p, c, a)});
}

std::vector<RealPoint> commonPoints(const Wall &wall)
{
    constexpr Real tolerance = 1e-15L;
    std::vector<std::array<RealPoint, 2>> pieces;
    std::vector<RealPoint> candidates;
    for (const GamutTriangle &t : wall) {
        const auto corners = cornersOf(t);
        for (std::size_t i = 0; i < 3; ++i) {
            candidates.push_back(corners[i]);
            pieces.push_back({corners[i], corners[(i + 1) % 3]});
        }
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            const auto &[a, b] = pieces[i];
            const auto &[c, d] = pieces[k];
            const Real ofC = turnOf(a, b, c);
            const Real ofD = turnOf(a, b, d);
            if ((ofC > 0 && ofD > 0) || (ofC < 0 && ofD < 0) || ofC == ofD) {
                continue;
            }
            const Real share = ofC / (ofC - ofD);
            candidates.push_back({c.x + share * (d.x - c.x), c.y + share * (d.y - c.y)});
        }
    }
    const auto isOutside = [&wall](const RealPoint &p) {
        return std::any_of(
            wall.begin(), wall.end(), [&p](const GamutTriangle &t) { return distanceFrom(t, p) > tolerance; });
    };
    candidates.erase(std::remove_if(candidates.begin(), candidates.end(), isOutside), candidates.end());
    return candidates;
}

Real areaOf(std::vector<RealPoint> points)
{
    if (points.size() < 3) {
        return 0;
    }
    RealPoint mean{0, 0};
    for (const RealPoint &p : points) {
        mean.x += p.x / Real(points.size());
        mean.y += p.y / Real(points.size());
    }
    const auto angle = [&mean](const RealPoint &p) { return std::atan2(p.y - mean.y, p.x - mean.x); };
    std::sort(
        points.begin(), points.end(), [&angle](const RealPoint &a, const RealPoint &b) { return angle(a) < angle(b); });
    Real doubled = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        doubled += turnOf(mean, points[i], points[(i + 1) % points.size()]);
    }
    return doubled / 2;
}

//! The largest distance between two of them.
Real extentOf(const std::vector<RealPoint> &points)
{
    Real extent = 0;
    for (const RealPoint &a : points) {
        for (const RealPoint &b : points) {
            extent = std::max(extent, distanceOf(a, b));
        }
    }
    return extent;
}

CommonShape shapeOf(const std::vector<RealPoint> &points)
{
    if (points.empty()) {
        return CommonShape::Empty;
    }
    if (extentOf(points) < 1e-13L) {
        return CommonShape::Point;
    }
    return areaOf(points) < 1e-13L ? CommonShape::Line : CommonShape::Area;
}

bool haveNothingInCommon(const Wall &wall, const std::vector<std::size_t> &cabinets)
{
    Wall few;
    for (const std::size_t i : cabinets) {
        few.push_back(wall[i]);
    }
    return commonPoints(few).empty();
}

} // namespace

void CommonGamutTest::ofOneIsItself()
{
    const CommonGamut common = commonGamut(Wall{rec709Triangle});
    QCOMPARE(common.shape, CommonShape::Area);
    QVERIFY(hasCorners(common, {{0.15, 0.06}, {0.64, 0.33}, {0.30, 0.60}}));
    QCOMPARE(common.sides.size(), std::size_t(3));
    QVERIFY(isSame(common.sides[0].from, {0.15, 0.06}) && isSame(common.sides[0].to, {0.64, 0.33}));
    QVERIFY(common.excluding.empty() && common.invalid.empty());
}

void CommonGamutTest::ofEqualOnesIsItself()
{
    // In any order of the primaries
    const CommonGamut common = commonGamut(Wall{rec709Triangle, triangle(0.30, 0.60, 0.64, 0.33, 0.15, 0.06),
        triangle(0.15, 0.06, 0.64, 0.33, 0.30, 0.60), rec709Triangle});
    QCOMPARE(common.shape, CommonShape::Area);
    QVERIFY(hasCorners(common, {{0.15, 0.06}, {0.64, 0.33}, {0.30, 0.60}}));
    for (const CommonSide &side : common.sides) {
        QCOMPARE(side.cabinet, std::size_t(0));
    }
}

void CommonGamutTest::oneBadCabinet()
{
    Wall wall(9, rec709Triangle);
    wall[5].green = {0.32, 0.50};
    const CommonGamut common = commonGamut(wall);
    QVERIFY(hasCorners(common, {{0.15, 0.06}, {0.64, 0.33}, {0.32, 0.50}}));
    QCOMPARE(common.sides[0].cabinet, std::size_t(0)); // both have it, and the first is named
    QCOMPARE(common.sides[1].cabinet, std::size_t(5));
    QCOMPARE(common.sides[2].cabinet, std::size_t(5));
}

void CommonGamutTest::touchInAPoint()
{
    // A corner on a side, with coordinates that no double has exactly
    const CommonGamut common
        = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7), triangle(0.4, 0.4, 0.9, 0.5, 0.5, 0.9)});
    QCOMPARE(common.shape, CommonShape::Point);
    QVERIFY(hasCornersNear(common, {{0.4, 0.4}}));
    QVERIFY(common.sides.empty() && common.excluding.empty());
    // A corner on a corner
    const CommonGamut corners
        = commonGamut(Wall{triangle(0.1, 0.1, 0.3, 0.1, 0.1, 0.3), triangle(0.3, 0.1, 0.6, 0.1, 0.6, 0.5)});
    QCOMPARE(corners.shape, CommonShape::Point);
    QVERIFY(hasCorners(corners, {{0.3, 0.1}}));
    // A hair farther away they do not touch.
    const CommonGamut apart
        = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7), triangle(0.4 + 1e-11, 0.4, 0.9, 0.5, 0.5, 0.9)});
    QCOMPARE(apart.shape, CommonShape::Empty);
    QCOMPARE(apart.excluding, (std::vector<std::size_t>{0, 1}));
}

void CommonGamutTest::touchAlongALine()
{
    const CommonGamut common
        = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7), triangle(0.6, 0.2, 0.2, 0.6, 0.8, 0.8)});
    QCOMPARE(common.shape, CommonShape::Line);
    QVERIFY(hasCornersNear(common, {{0.2, 0.6}, {0.6, 0.2}}));
    QVERIFY(common.sides.empty());
    // A third cuts the line, and a fourth leaves a point of it.
    const CommonGamut cut = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7),
        triangle(0.6, 0.2, 0.2, 0.6, 0.8, 0.8), triangle(0.0, 0.0, 0.4, 0.0, 0.4, 0.9)});
    QCOMPARE(cut.shape, CommonShape::Line);
    QVERIFY(std::fabs(cut.corners[1].x - 0.4) < 1e-15 && std::fabs(cut.corners[1].y - 0.4) < 1e-15);
    const CommonGamut point
        = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7), triangle(0.6, 0.2, 0.2, 0.6, 0.8, 0.8),
            triangle(0.0, 0.0, 0.4, 0.0, 0.4, 0.9), triangle(0.4, 0.0, 0.9, 0.0, 0.4, 0.9)});
    QCOMPARE(point.shape, CommonShape::Point);
    QVERIFY(std::fabs(point.corners[0].x - 0.4) < 1e-12 && std::fabs(point.corners[0].y - 0.4) < 1e-12);
}

void CommonGamutTest::crossOnAPoint()
{
    // Opposite angles of two lines that cross
    const Wall wall{triangle(0.3, 0.3, 0.5, 0.3, 0.3, 0.5), triangle(0.3, 0.3, 0.1, 0.3, 0.3, 0.1)};
    const CommonGamut common = commonGamut(wall);
    QCOMPARE(common.shape, CommonShape::Point);
    QVERIFY(hasCorners(common, {{0.3, 0.3}}));
}

void CommonGamutTest::narrowerThanRoundingIsALine()
{
    const auto overlap = [](double width) {
        return commonGamut(
            Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.4, 0.3), triangle(0.1, 0.1 + width, 0.4, -0.2, 0.7, 0.1 + width)});
    };
    QCOMPARE(overlap(-2e-12).shape, CommonShape::Empty);
    QCOMPARE(overlap(-0.5e-12).shape, CommonShape::Line);
    QCOMPARE(overlap(0.0).shape, CommonShape::Line);
    QCOMPARE(overlap(0.5e-12).shape, CommonShape::Line);
    const CommonGamut area = overlap(3e-12);
    QCOMPARE(area.shape, CommonShape::Area);
    QVERIFY(commonGamutArea(area, Diagram::Cie1931) < 2e-12);
}

void CommonGamutTest::flatCabinets()
{
    const GamutTriangle flat = triangle(0.2, 0.2, 0.6, 0.4, 0.4, 0.3);
    const CommonGamut line = commonGamut(Wall{flat});
    QCOMPARE(line.shape, CommonShape::Line);
    QVERIFY(hasCorners(line, {{0.2, 0.2}, {0.6, 0.4}}));
    const GamutTriangle spot = triangle(0.3, 0.25, 0.3, 0.25, 0.3, 0.25);
    QCOMPARE(commonGamut(Wall{spot, spot}).shape, CommonShape::Point);
    for (const Wall &wall : {Wall{flat, rec709Triangle}, Wall{rec709Triangle, flat}}) {
        const CommonGamut inside = commonGamut(wall);
        QCOMPARE(inside.shape, CommonShape::Line);
        QCOMPARE(inside.corners.size(), std::size_t(2));
        QVERIFY(std::fabs(inside.corners[0].y - (0.1 + inside.corners[0].x / 2.0)) < 1e-15);
    }
    QVERIFY(hasCornersNear(commonGamut(Wall{rec709Triangle, spot, flat}), {{0.3, 0.25}}));
    // Two lines that cross, and two that only lie on the same
    const CommonGamut crossing = commonGamut(Wall{flat, triangle(0.3, 0.5, 0.5, 0.1, 0.5, 0.1)});
    QCOMPARE(crossing.shape, CommonShape::Point);
    QVERIFY(std::fabs(crossing.corners[0].x - 0.4) < 1e-15 && std::fabs(crossing.corners[0].y - 0.3) < 1e-15);
    const CommonGamut apart = commonGamut(Wall{flat, triangle(0.7, 0.45, 0.8, 0.5, 0.8, 0.5)});
    QCOMPARE(apart.shape, CommonShape::Empty);
    QCOMPARE(apart.excluding, (std::vector<std::size_t>{0, 1}));
}

void CommonGamutTest::emptyNamesThePair()
{
    Wall wall(7, rec709Triangle);
    wall[4] = triangle(0.7, 0.7, 0.8, 0.7, 0.7, 0.8);
    wall[2] = triangle(0.1, 0.0, 0.64, 0.33, 0.30, 0.60); // the one that reaches least into its direction
    wall[2].green = {0.20, 0.40};
    const CommonGamut common = commonGamut(wall);
    QCOMPARE(common.shape, CommonShape::Empty);
    QVERIFY(common.corners.empty() && common.sides.empty());
    QCOMPARE(common.excluding, (std::vector<std::size_t>{2, 4}));
}

void CommonGamutTest::emptyNamesTheFarthestPair()
{
    const auto at = [](double x) { return triangle(x, 0.1, x + 0.1, 0.1, x, 0.2); };
    QCOMPARE(commonGamut(Wall{at(0.3), at(0.1), at(0.5), at(0.8)}).excluding, (std::vector<std::size_t>{1, 3}));
}

void CommonGamutTest::emptyNamesThree()
{
    // Three strips along the sides of a triangle: two of them meet in each of its corners, and all three nowhere.
    const Wall strips{triangle(0.1, 0.1, 0.9, 0.1, 0.5, 0.15), triangle(0.1, 0.1, 0.5, 0.8, 0.2, 0.5),
        triangle(0.9, 0.1, 0.5, 0.8, 0.8, 0.5)};
    const GamutTriangle all = triangle(-1.0, -1.0, 3.0, -1.0, 0.0, 3.0);
    Wall wall{all, strips[0], all, all, strips[1], strips[2], all};
    for (int i = 0; i < 20; ++i) {
        const CommonGamut common = commonGamut(wall);
        QCOMPARE(common.shape, CommonShape::Empty);
        QCOMPARE(common.excluding.size(), std::size_t(3));
        QVERIFY(haveNothingInCommon(wall, common.excluding));
        std::next_permutation(wall.begin(), wall.end(), [](const GamutTriangle &a, const GamutTriangle &b) {
            return std::tie(a.red.x, a.green.x) < std::tie(b.red.x, b.green.x);
        });
    }
    for (std::size_t i = 0; i < 3; ++i) {
        QCOMPARE(commonGamut(Wall{strips[i], strips[(i + 1) % 3]}).shape, CommonShape::Point);
    }
}

void CommonGamutTest::invalidCabinets_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("far") << -100.001;
}

void CommonGamutTest::invalidCabinets()
{
    QFETCH(double, value);
    Wall wall(5, rec709Triangle);
    wall[1].blue.y = value;
    wall[3].red.x = value;
    const CommonGamut common = commonGamut(wall);
    QCOMPARE(common.shape, CommonShape::NotKnown);
    QCOMPARE(common.invalid, (std::vector<std::size_t>{1, 3}));
    QVERIFY(common.corners.empty() && common.excluding.empty());
}

void CommonGamutTest::notKnownWithoutCabinets()
{
    const CommonGamut common = commonGamut(Wall());
    QCOMPARE(common.shape, CommonShape::NotKnown);
    QVERIFY(common.invalid.empty());
    QCOMPARE(commonGamutArea(common, Diagram::Cie1931), 0.0);
    QVERIFY(!isInCommonGamut(common, {0.3, 0.3}));
}

void CommonGamutTest::negativeZero()
{
    const CommonGamut positive = commonGamut(Wall{triangle(0.0, 0.0, 0.5, 0.0, 0.0, 0.5)});
    const CommonGamut negative = commonGamut(Wall{triangle(-0.0, -0.0, 0.5, -0.0, -0.0, 0.5)});
    QVERIFY(std::memcmp(positive.corners.data(), negative.corners.data(), 3 * sizeof(DiagramPoint)) == 0);
}

void CommonGamutTest::areas()
{
    const CommonGamut common
        = commonGamut(Wall{triangle(0.0, 0.0, 0.8, 0.0, 0.0, 0.8), triangle(0.5, 0.5, -0.3, 0.5, 0.5, -0.3)});
    QCOMPARE(common.shape, CommonShape::Area);
    // A square of side 0.5, from which the two hypotenuses cut a corner of 0.2 by 0.2 each
    QCOMPARE(common.corners.size(), std::size_t(6));
    QVERIFY(std::fabs(commonGamutArea(common, Diagram::Cie1931) - (0.25 - 0.02 - 0.02)) < 1e-15);
    const CommonGamut whole = commonGamut(Wall{rec709Triangle});
    QVERIFY(std::fabs(commonGamutArea(whole, Diagram::Cie1931) - 0.11205) < 1e-15);
    QVERIFY(std::fabs(commonGamutArea(whole, Diagram::Cie1976) - gamutArea(rec709().getTargets(), Diagram::Cie1976))
        < 1e-15);
}

void CommonGamutTest::isInside()
{
    const CommonGamut common
        = commonGamut(Wall{triangle(0.1, 0.1, 0.7, 0.1, 0.1, 0.7), triangle(0.0, 0.2, 0.5, 0.2, 0.3, 0.6)});
    QVERIFY(isInCommonGamut(common, {0.3, 0.3}));
    QVERIFY(isInCommonGamut(common, {0.3, 0.2}));
    QVERIFY(isInCommonGamut(common, {0.3, 0.2 - 0.5e-12}));
    QVERIFY(!isInCommonGamut(common, {0.3, 0.2 - 2e-12}));
    QVERIFY(!isInCommonGamut(common, {0.5, 0.4}));
    QVERIFY(!isInCommonGamut(common, {std::numeric_limits<double>::quiet_NaN(), 0.3}));
    for (const DiagramPoint &corner : common.corners) {
        QVERIFY(isInCommonGamut(common, corner));
    }
}

void CommonGamutTest::recordsOfOthers()
{
    const std::vector<DiagramPoint> expected{{0.125, 0.0625}, {0.625, 0.25}, {0.25, 0.625}};
    QVERIFY(hasCorners(
        commonGamut(std::vector<vendor::Lamp>{{{0.625F, 0.25F}, {0.25F, 0.625F}, {0.125F, 0.0625F}}}), expected));
    const vendor::Panel panels[] = {{{0.625, 0.25, 0.25, 0.625, 0.125, 0.0625}}};
    QVERIFY(hasCorners(commonGamut(panels), expected));
    const Targets targets{
        Target::fromYxy(1, 0.625, 0.25), Target::fromYxy(1, 0.25, 0.625), Target::fromYxy(1, 0.125, 0.0625), Target()};
    QVERIFY(hasCorners(commonGamut(std::vector<Targets>{targets}), expected));
    QVERIFY(hasCorners(commonGamut(std::vector<Cabinet>{{targets, {}, {}}}), expected));
    const ColorGamutInfo info{targets.red, targets.green, targets.blue, targets.white};
    QVERIFY(hasCorners(commonGamut(std::vector<Targets>{targetsOf(info)}), expected));
}

void CommonGamutTest::manySidesMeetInAPoint()
{
    // Sides that are turned about a point by as little as rounding: no corner must wander off.
    Wall wall;
    for (int i = 0; i < 2000; ++i) {
        const double angle = i * 1e-13;
        wall.push_back(triangle(0.3 - 0.2 * std::cos(angle), 0.3 - 0.2 * std::sin(angle), 0.3 + 0.2 * std::cos(angle),
            0.3 + 0.2 * std::sin(angle), 0.3, 0.7));
    }
    const CommonGamut common = commonGamut(wall);
    QCOMPARE(common.shape, CommonShape::Area);
    QVERIFY(std::fabs(commonGamutArea(common, Diagram::Cie1931) - 0.08) < 1e-10);
    for (const DiagramPoint &corner : common.corners) {
        for (const GamutTriangle &t : wall) {
            QVERIFY(distanceFrom(t, real(corner)) < 1.1e-12L);
        }
    }
}

void CommonGamutTest::agreesWithVertexEnumeration_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("rounds");
    QTest::newRow("cabinets of a series") << 0 << 40000 / thinning;
    QTest::newRow("any") << 1 << 40000 / thinning;
    QTest::newRow("on a grid: touching, collinear, flat") << 2 << 40000 / thinning;
}

void CommonGamutTest::agreesWithVertexEnumeration()
{
    QFETCH(int, kind);
    QFETCH(int, rounds);
    std::mt19937 random(14 + unsigned(kind));
    std::uniform_real_distribution<double> any(0.0, 0.8);
    std::uniform_real_distribution<double> spread(-0.02, 0.02);
    std::uniform_int_distribution<int> grid(0, 8);
    std::array<int, 5> shapes{};
    Real farthestOutside = 0;
    Real farthestFromSide = 0;
    Real largestMiss = 0;
    int pairs = 0;
    int threes = 0;
    for (int round = 0; round < rounds; ++round) {
        Wall wall(1 + random() % (kind == 2 ? 4 : 6), rec709Triangle);
        for (GamutTriangle &t : wall) {
            for (DiagramPoint *p : {&t.red, &t.green, &t.blue}) {
                switch (kind) {
                case 0:
                    *p = {p->x + spread(random), p->y + spread(random)};
                    break;
                case 1:
                    *p = {any(random), any(random)};
                    break;
                default:
                    *p = {grid(random) / 8.0, grid(random) / 8.0};
                }
            }
        }
        const CommonGamut common = commonGamut(wall);
        const std::vector<RealPoint> expected = commonPoints(wall);
        QCOMPARE(common.shape, shapeOf(expected));
        ++shapes[std::size_t(common.shape)];
        const double area = double(areaOf(expected));
        QVERIFY(std::fabs(commonGamutArea(common, Diagram::Cie1931) - area) < 1e-14);
        std::vector<RealPoint> corners;
        for (const DiagramPoint &corner : common.corners) {
            corners.push_back(real(corner));
            for (const GamutTriangle &t : wall) {
                farthestOutside = std::max(farthestOutside, distanceFrom(t, real(corner)));
            }
        }
        largestMiss = std::max(largestMiss, std::fabs(extentOf(corners) - extentOf(expected)));
        for (std::size_t i = 0; i < common.sides.size(); ++i) {
            // On the line between two primaries of the cabinet that is named
            const CommonSide &side = common.sides[i];
            const auto ofCabinet = cornersOf(wall[side.cabinet]);
            for (const DiagramPoint &end : {side.from, side.to}) {
                QVERIFY(std::any_of(ofCabinet.begin(), ofCabinet.end(),
                    [&end](const RealPoint &p) { return p.x == Real(end.x) && p.y == Real(end.y); }));
            }
            for (const DiagramPoint &corner : {common.corners[i], common.corners[(i + 1) % common.sides.size()]}) {
                farthestFromSide
                    = std::max(farthestFromSide, distanceFromPiece(real(corner), real(side.from), real(side.to)));
            }
        }
        if (common.shape == CommonShape::Empty) {
            QVERIFY(haveNothingInCommon(wall, common.excluding));
            QVERIFY(std::is_sorted(common.excluding.begin(), common.excluding.end()));
            bool hasPair = false;
            for (std::size_t i = 0; i < wall.size(); ++i) {
                for (std::size_t k = 0; k < i; ++k) {
                    hasPair = hasPair || haveNothingInCommon(wall, {i, k});
                }
            }
            QCOMPARE(common.excluding.size(), std::size_t(hasPair ? 2 : 3));
            ++(hasPair ? pairs : threes);
        } else {
            QVERIFY(common.excluding.empty());
        }

        std::vector<std::size_t> order(wall.size());
        std::iota(order.begin(), order.end(), std::size_t(0));
        std::shuffle(order.begin(), order.end(), random);
        Wall shuffled;
        for (const std::size_t i : order) {
            shuffled.push_back(wall[i]);
        }
        const CommonGamut again = commonGamut(shuffled);
        QCOMPARE(again.shape, common.shape);
        QCOMPARE(again.corners.size(), common.corners.size());
        QVERIFY(common.corners.empty()
            || std::memcmp(again.corners.data(), common.corners.data(), common.corners.size() * sizeof(DiagramPoint))
                == 0);
        for (std::size_t i = 0; i < common.sides.size(); ++i) {
            QVERIFY(isSame(again.sides[i].from, common.sides[i].from) && isSame(again.sides[i].to, common.sides[i].to));
        }
        std::vector<std::size_t> excluding;
        for (const std::size_t i : again.excluding) {
            excluding.push_back(order[i]);
        }
        std::sort(excluding.begin(), excluding.end());
        if (kind != 2) { // on the grid there are equal ones
            QCOMPARE(excluding, common.excluding);
        }
    }
    // A corner that is kept as on a side, and sides that are almost parallel
    const Real tolerance = kind == 1 ? Real(commonGamutRounding) : 1e-14L;
    QVERIFY(farthestOutside < tolerance && farthestFromSide < tolerance && largestMiss < tolerance);
    if (kind == 0) {
        QCOMPARE(shapes[std::size_t(CommonShape::Area)], rounds);
    } else {
        QVERIFY(shapes[std::size_t(CommonShape::Area)] > rounds / 5 && pairs > rounds / 10 && threes > rounds / 1000);
    }
    if (kind == 2) {
        QVERIFY(shapes[std::size_t(CommonShape::Point)] > rounds / 100);
        QVERIFY(shapes[std::size_t(CommonShape::Line)] > rounds / 100);
    }
}

QTEST_GUILESS_MAIN(CommonGamutTest)
#include "commongamuttest.moc"
