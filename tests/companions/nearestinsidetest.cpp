// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Model;

class NearestInsideTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void uvDifferences();
    void uvDifferencesThatAreNotKnown();
    void nearestPointAgreesWithASearch_data();
    void nearestPointAgreesWithASearch();
    void insideStaysAsItIs();
    void exampleOfAMessage();
    void isJudgedInside_data();
    void isJudgedInside();
    void isNearestOfItsGrid_data();
    void isNearestOfItsGrid();
    void corners();
    void manyDecimals();
    void narrowGamuts();
    void orientationDoesNotMatter();
    void nothing();
};

namespace {

bool isNear(double value, double expected, double tolerance)
{
    return std::fabs(value - expected) <= tolerance;
}

Targets gamut(double rx, double ry, double gx, double gy, double bx, double by)
{
    return {Target::fromYxy(1.0, rx, ry), Target::fromYxy(1.0, gx, gy), Target::fromYxy(1.0, bx, by),
        Target::fromYxy(1.0, 0.3127, 0.329)};
}

const Targets standard709 = rec709().getTargets();

long double cross(const Target &a, const Target &b, long double x, long double y)
{
    return ((long double)(b.x) - a.x) * (y - a.y) - (x - a.x) * ((long double)(b.y) - a.y);
}

//! In the triangle or on its edge, in more digits; \a slack for what doubles can not tell.
bool contains(const Targets &t, const DiagramPoint &p, long double slack = 1e-16L)
{
    const long double sign = cross(t.red, t.green, t.blue.x, t.blue.y) < 0 ? -1 : 1;
    return sign * cross(t.red, t.green, p.x, p.y) >= -slack && sign * cross(t.green, t.blue, p.x, p.y) >= -slack
        && sign * cross(t.blue, t.red, p.x, p.y) >= -slack;
}

double uvDistance(const DiagramPoint &a, const DiagramPoint &b)
{
    const auto u = [](const DiagramPoint &p) { return 4 * p.x / (-2 * p.x + 12 * p.y + 3); };
    const auto v = [](const DiagramPoint &p) { return 9 * p.y / (-2 * p.x + 12 * p.y + 3); };
    return std::hypot(u(a) - u(b), v(a) - v(b));
}

bool hasDecimals(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble() == value;
}

Targets randomGamut(std::mt19937 &random)
{
    std::uniform_real_distribution<double> any(0.0, 0.7);
    for (;;) {
        const Targets t = gamut(any(random), any(random), any(random), any(random), any(random), any(random));
        if (gamutArea(t, Diagram::Cie1931) > 0.02) {
            return t;
        }
    }
}

} // namespace

void NearestInsideTest::uvDifferences()
{
    const Target a = Target::fromYxy(1.0, 0.3127, 0.3290); // 0.19783, 0.46832
    const Target b = Target::fromYxy(500.0, 0.64, 0.33); // 0.45070, 0.52289
    const auto difference = uvDifference(a, b);
    QVERIFY(difference && isNear(*difference, std::hypot(0.45070 - 0.19783, 0.52289 - 0.46832), 1e-5));
    QCOMPARE(*uvDifference(b, a), *difference);
    QVERIFY(*uvDifference(a, a) == 0.0);
    // Only x and y are used.
    Target bare;
    bare.x = 0.64;
    bare.y = 0.33;
    bare.u = bare.v = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(*uvDifference(a, bare) == *difference);
}

void NearestInsideTest::uvDifferencesThatAreNotKnown()
{
    const Target white = standard709.white;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    Target bad;
    QVERIFY(!uvDifference(white, Target())); // a patch without light
    QVERIFY(!uvDifference(Target(), white));
    for (const auto &[x, y] : {std::make_pair(nan, 0.3), std::make_pair(0.3, nan), std::make_pair(infinity, 0.3),
             std::make_pair(0.3, -infinity), std::make_pair(0.3, -0.2), std::make_pair(1.5, 0.0)}) {
        bad.x = x;
        bad.y = y;
        QVERIFY(!uvDifference(white, bad));
        QVERIFY(!uvDifference(bad, white));
    }
    QVERIFY(uvDifference(white, Target::fromYxy(-0.07, 0.0001, -0.077))); // an imaginary primary
}

void NearestInsideTest::nearestPointAgreesWithASearch_data()
{
    QTest::addColumn<int>("diagram");
    QTest::newRow("x, y") << int(Diagram::Cie1931);
    QTest::newRow("u', v'") << int(Diagram::Cie1976);
    QTest::newRow("u, v") << int(Diagram::Cie1960);
}

void NearestInsideTest::nearestPointAgreesWithASearch()
{
    QFETCH(int, diagram);
    const auto in = [diagram](double x, double y) { return toDiagram(Diagram(diagram), {x, y}); };
    std::mt19937 random(3);
    std::uniform_real_distribution<double> any(0.0, 0.8);
    for (int round = 0; round < 200; ++round) {
        const Targets t = randomGamut(random);
        const DiagramPoint xy{any(random), any(random)};
        const auto found = nearestPoint(t, xy, Diagram(diagram));
        QVERIFY(found);
        if (contains(t, xy)) {
            QVERIFY(found->x == xy.x && found->y == xy.y);
            continue;
        }
        QVERIFY(contains(t, *found, 1e-14L));
        const DiagramPoint wanted = in(xy.x, xy.y);
        double least = 10.0;
        const Target *const corners[] = {&t.red, &t.green, &t.blue, &t.red};
        for (int side = 0; side < 3; ++side) {
            for (int i = 0; i <= 4000; ++i) {
                const double part = i / 4000.0;
                const DiagramPoint p = in(corners[side]->x + part * (corners[side + 1]->x - corners[side]->x),
                    corners[side]->y + part * (corners[side + 1]->y - corners[side]->y));
                least = std::min(least, std::hypot(p.x - wanted.x, p.y - wanted.y));
            }
        }
        const DiagramPoint reached = in(found->x, found->y);
        const double distance = std::hypot(reached.x - wanted.x, reached.y - wanted.y);
        QVERIFY(distance <= least + 1e-12 && distance > least - 1e-3);
    }
}

void NearestInsideTest::insideStaysAsItIs()
{
    const auto inside = nearestInside(standard709, {0.312712345, 0.329067891}, 4);
    QVERIFY(inside);
    QVERIFY(inside->xy.x == 0.312712345 && inside->xy.y == 0.329067891);
    QVERIFY(inside->distance == 0.0);
    const auto corner = nearestInside(standard709, {0.64, 0.33}, 1);
    QVERIFY(corner && corner->xy.x == 0.64 && corner->distance == 0.0);
}

void NearestInsideTest::exampleOfAMessage()
{
    const Targets p3 = dciP3D65().getTargets();
    const Targets rec2020Targets = rec2020().getTargets();
    QVERIFY(Model::primariesOutside(rec2020Targets, p3).green);
    const auto nearest = nearestInside(p3, {0.170, 0.797}, 4);
    QVERIFY(nearest);
    QVERIFY(isNear(nearest->distance, uvDistance({0.265, 0.690}, {0.170, 0.797}), 1e-12)); // the corner
    QVERIFY(nearest->xy.x == 0.265 && nearest->xy.y == 0.69);
}

void NearestInsideTest::isJudgedInside_data()
{
    QTest::addColumn<int>("decimals");
    for (int decimals = 2; decimals <= 9; ++decimals) {
        QTest::addRow("%d decimals", decimals) << decimals;
    }
}

void NearestInsideTest::isJudgedInside()
{
    QFETCH(int, decimals);
    std::mt19937 random{unsigned(decimals)};
    std::uniform_real_distribution<double> any(0.0, 0.8);
    int outside = 0;
    for (int round = 0; round < 3000; ++round) {
        const Targets t = randomGamut(random);
        const DiagramPoint xy{any(random), any(random)};
        const auto nearest = nearestInside(t, xy, decimals);
        QVERIFY(nearest);
        if (contains(t, xy)) {
            continue;
        }
        ++outside;
        QVERIFY(hasDecimals(nearest->xy.x, decimals) && hasDecimals(nearest->xy.y, decimals));
        QVERIFY(contains(t, nearest->xy));
        Targets moved = t;
        moved.green = Target::fromYxy(1.0, nearest->xy.x, nearest->xy.y);
        QVERIFY(!Model::primariesOutside(moved, t).green);
        // Near to the nearest of all, and never nearer
        const double away = uvDistance(nearest->xy, xy);
        QVERIFY(nearest->distance > 0.0 && nearest->distance <= away + 1e-14);
        const auto exact = nearestPoint(t, xy, Diagram::Cie1976);
        QVERIFY(exact && isNear(nearest->distance, uvDistance(*exact, xy), 1e-14));
    }
    QVERIFY(outside > 1000);
}

void NearestInsideTest::isNearestOfItsGrid_data()
{
    QTest::addColumn<int>("decimals");
    QTest::newRow("2 decimals") << 2;
    QTest::newRow("3 decimals") << 3;
}

// Against all points of the grid
void NearestInsideTest::isNearestOfItsGrid()
{
    QFETCH(int, decimals);
    const int perUnit = decimals == 2 ? 100 : 1000;
    std::mt19937 random(5);
    std::uniform_real_distribution<double> any(0.0, 0.8);
    for (int round = 0; round < (decimals == 2 ? 2000 : 40); ++round) {
        const Targets t = randomGamut(random);
        const DiagramPoint xy{any(random), any(random)};
        if (contains(t, xy)) {
            continue;
        }
        double least = 100.0;
        for (int x = 0; x <= perUnit * 7 / 10; ++x) {
            for (int y = 0; y <= perUnit * 7 / 10; ++y) {
                const DiagramPoint p{double(x) / perUnit, double(y) / perUnit};
                const double away = uvDistance(p, xy);
                if (away < least && contains(t, p)) {
                    least = away;
                }
            }
        }
        const auto nearest = nearestInside(t, xy, decimals);
        QVERIFY(nearest);
        QVERIFY2(isNear(uvDistance(nearest->xy, xy), least, 1e-13),
            qPrintable(QString("%1 instead of %2").arg(uvDistance(nearest->xy, xy)).arg(least)));
    }
}

// A corner that is not on the grid, and narrow: the nearest points of the grid are not those round it.
void NearestInsideTest::corners()
{
    const Targets t = gamut(0.70003, 0.29996, 0.1, 0.31, 0.1, 0.34);
    const auto nearest = nearestInside(t, {0.75, 0.29}, 4);
    QVERIFY(nearest);
    QVERIFY(contains(t, nearest->xy));
    QVERIFY(hasDecimals(nearest->xy.x, 4) && hasDecimals(nearest->xy.y, 4));
    QVERIFY(nearest->xy.x > 0.695 && nearest->xy.x < 0.70003);
}

void NearestInsideTest::manyDecimals()
{
    const auto nearest = nearestInside(standard709, {0.1, 0.7}, 9);
    const auto exact = nearestPoint(standard709, {0.1, 0.7}, Diagram::Cie1976);
    QVERIFY(nearest && exact);
    QVERIFY(isNear(nearest->xy.x, exact->x, 1e-8) && isNear(nearest->xy.y, exact->y, 1e-8));
}

void NearestInsideTest::narrowGamuts()
{
    // So narrow that no point of four decimals lies inside, but some of nine
    const Targets needle = gamut(0.60005, 0.30005, 0.20005, 0.30005, 0.20005, 0.300051);
    QVERIFY(!nearestInside(needle, {0.3, 0.5}, 4));
    const auto nearest = nearestInside(needle, {0.3, 0.5}, 9);
    QVERIFY(nearest && contains(needle, nearest->xy));
    // Sides along x and y
    const Targets right = gamut(0.2, 0.2, 0.5, 0.2, 0.2, 0.6);
    const auto left = nearestInside(right, {0.15, 0.4}, 4);
    QVERIFY(left && left->xy.x == 0.2);
    const auto below = nearestInside(right, {0.3, 0.1}, 4);
    QVERIFY(below && below->xy.y == 0.2);
}

void NearestInsideTest::orientationDoesNotMatter()
{
    const Targets inverted{standard709.red, standard709.blue, standard709.green, standard709.white};
    const auto a = nearestInside(standard709, {0.2, 0.7}, 4);
    const auto b = nearestInside(inverted, {0.2, 0.7}, 4);
    QVERIFY(a && b && a->xy.x == b->xy.x && a->xy.y == b->xy.y && a->distance == b->distance);
}

void NearestInsideTest::nothing()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const int decimals : {-1, 0, 10, 100}) {
        QVERIFY(!nearestInside(standard709, {0.1, 0.7}, decimals));
    }
    QVERIFY(!nearestInside(standard709, {nan, 0.7}, 4));
    QVERIFY(!nearestInside(standard709, {0.1, std::numeric_limits<double>::infinity()}, 4));
    QVERIFY(!nearestInside(standard709, {0.1, -0.5}, 4)); // no u', v' of a colour
    for (const Targets &flat :
        {Targets(), gamut(0.1, 0.1, 0.25, 0.25, 0.5, 0.5), gamut(nan, 0.3, 0.3, 0.6, 0.15, 0.06)}) {
        QVERIFY(!nearestInside(flat, {0.1, 0.7}, 4));
        QVERIFY(!nearestPoint(flat, {0.1, 0.7}, Diagram::Cie1931));
    }
    QVERIFY(!nearestPoint(standard709, {nan, 0.3}, Diagram::Cie1931));
}

QTEST_GUILESS_MAIN(NearestInsideTest)
#include "nearestinsidetest.moc"
