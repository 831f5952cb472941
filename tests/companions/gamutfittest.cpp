// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/correction.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/nearestinside.h>

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <vector>

using namespace Model;

Q_DECLARE_METATYPE(Model::Diagram)

class GamutFitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void insideStaysAsItIs();
    void oneCabinetLimitsOnePrimary();
    void whiteOutsideMovesToTheNearest();
    void wholeWishAroundACabinet();
    void isTheLargestOnItsHueLines();
    void faults();
    void whiteOfNoLight();
    void blacksTakeNothingWithoutLight();
    void blacksLeaveNoDriveBelowZero();
    void blackTooBright();
    void largestOfATriangle();
    void largestAgreesWithAllTriples_data();
    void largestAgreesWithAllTriples();
    void largestOfManyCorners();
    void largestHasTheWhiteInside();
};

namespace {

using Wall = std::vector<GamutTriangle>;

Targets targets(DiagramPoint red, DiagramPoint green, DiagramPoint blue, DiagramPoint white, double Y = 100.0)
{
    return {Target::fromYxy(1.0, red.x, red.y), Target::fromYxy(1.0, green.x, green.y),
        Target::fromYxy(1.0, blue.x, blue.y), Target::fromYxy(Y, white.x, white.y)};
}

GamutTriangle triangleOf(const ColorGamut &gamut)
{
    return gamutTriangle(gamut.getTargets());
}

Wall seriesOf(const GamutTriangle &around, std::size_t count, double spread, std::mt19937 &random)
{
    std::uniform_real_distribution<double> any(-spread, spread);
    Wall wall(count, around);
    for (GamutTriangle &t : wall) {
        for (DiagramPoint *p : {&t.red, &t.green, &t.blue}) {
            *p = {p->x + any(random), p->y + any(random)};
        }
    }
    return wall;
}

double turnOf(DiagramPoint a, DiagramPoint b, DiagramPoint c)
{
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

bool isIn(const GamutTriangle &t, DiagramPoint p, double tolerance)
{
    const double way = turnOf(t.red, t.green, t.blue) < 0.0 ? -1.0 : 1.0;
    return way * turnOf(t.red, t.green, p) >= -tolerance && way * turnOf(t.green, t.blue, p) >= -tolerance
        && way * turnOf(t.blue, t.red, p) >= -tolerance;
}

bool isInAll(const Wall &wall, DiagramPoint p, double tolerance)
{
    return std::all_of(wall.begin(), wall.end(), [&](const GamutTriangle &t) { return isIn(t, p, tolerance); });
}

DiagramPoint xyOf(const Target &target)
{
    return {target.x, target.y};
}

bool isSame(const Target &a, const Target &b)
{
    return a.x == b.x && a.y == b.y;
}

//! Whether the primaries mix to the white.
bool mixes(const Targets &t)
{
    const double X = t.red.X + t.green.X + t.blue.X - t.white.X;
    const double Y = t.red.Y + t.green.Y + t.blue.Y - t.white.Y;
    const double Z = t.red.Z + t.green.Z + t.blue.Z - t.white.Z;
    return std::fabs(X) + std::fabs(Y) + std::fabs(Z) < 1e-12 * (t.white.X + t.white.Y + t.white.Z);
}

//! Cabinets of a series of some 1000 cd/m² with blacks of about \a black
std::vector<Cabinet> glowingWall(std::mt19937 &random, std::size_t count, double black)
{
    std::uniform_real_distribution<double> xy(-0.008, 0.008);
    std::uniform_real_distribution<double> part(0.8, 1.2);
    const auto color = [&](double Y, double x, double y) {
        return Target::fromYxy(Y * part(random), x + xy(random), y + xy(random));
    };
    std::vector<Cabinet> cabinets(count);
    for (Cabinet &cabinet : cabinets) {
        cabinet.colors = {color(250, 0.69, 0.305), color(680, 0.20, 0.71), color(80, 0.14, 0.055), Target()};
        cabinet.black = color(black, 0.30, 0.31);
    }
    return cabinets;
}

} // namespace

void GamutFitTest::insideStaysAsItIs()
{
    const Targets wish = rec709().getTargets();
    for (const Wall &wall : {Wall{triangleOf(rec709()), triangleOf(rec709())}, Wall{triangleOf(rec2020())}}) {
        const GamutFit fit = fittedTarget(commonGamut(wall), wish);
        QCOMPARE(fit.fault, FitFault::None);
        QVERIFY(isSame(fit.target.red, wish.red) && isSame(fit.target.green, wish.green));
        QVERIFY(isSame(fit.target.blue, wish.blue) && isSame(fit.target.white, wish.white));
        QVERIFY(std::fabs(fit.target.red.Y - wish.red.Y) < 1e-15);
        for (const Primary primary : {Primary::Red, Primary::Green, Primary::Blue}) {
            QCOMPARE(fit.of(primary).share, 1.0);
            QCOMPARE(fit.of(primary).moved, 0.0);
            QVERIFY(!fit.of(primary).limit);
        }
        QVERIFY(!fit.whiteLimit);
        QCOMPARE(fit.whiteMoved, 0.0);
        QCOMPARE(fit.costXy.coverage, 1.0);
        QCOMPARE(fit.costUv.areaRatio, 1.0);
    }
}

void GamutFitTest::oneCabinetLimitsOnePrimary()
{
    // The side from red to blue of the second cabinet passes the white of the wish at half the way to its green.
    const Targets wish = targets({0.7, 0.3}, {0.3, 0.7}, {0.1, 0.1}, {0.3, 0.3});
    const GamutTriangle large{{0.9, 0.1}, {0.1, 0.9}, {0.0, 0.0}};
    const GamutTriangle low{{0.9, 0.5}, {0.0, 0.5}, {0.0, -0.5}};
    const GamutFit fit = fittedTarget(commonGamut(Wall{large, large, low, large}), wish);
    QCOMPARE(fit.fault, FitFault::None);
    QVERIFY(std::fabs(fit.target.green.x - 0.3) < 1e-15 && std::fabs(fit.target.green.y - 0.5) < 1e-15);
    QVERIFY(std::fabs(fit.green.share - 0.5) < 1e-15);
    QVERIFY(fit.green.limit && *fit.green.limit == 2);
    QVERIFY(std::fabs(fit.green.moved - *uvDifference(wish.green, fit.target.green)) < 1e-15 && fit.green.moved > 0.02);
    QVERIFY(!fit.red.limit && !fit.blue.limit && !fit.whiteLimit);
    QVERIFY(isSame(fit.target.red, wish.red) && isSame(fit.target.blue, wish.blue));
    QCOMPARE(fit.target.white.Y, 100.0);
    QVERIFY(mixes(fit.target));
    // The area falls with the height of green above the line from blue to red.
    const double height = (0.5 - (0.1 + 0.2 / 3.0)) / (0.7 - (0.1 + 0.2 / 3.0));
    QVERIFY(std::fabs(fit.costXy.areaRatio - height) < 1e-14);
    QVERIFY(std::fabs(fit.costXy.coverage - height) < 1e-14);
    QVERIFY(fit.costUv.coverage > height && fit.costUv.coverage < 1.0);
}

void GamutFitTest::whiteOutsideMovesToTheNearest()
{
    const Targets wish = targets({0.7, 0.3}, {0.2, 0.75}, {0.1, 0.0}, {0.3127, 0.4200});
    const GamutTriangle large{{0.9, 0.1}, {0.1, 0.9}, {0.0, 0.0}};
    const GamutTriangle low{{0.75, 0.25}, {0.10, 0.40}, {0.12, 0.02}};
    const CommonGamut common = commonGamut(Wall{large, low, large});
    const GamutFit fit = fittedTarget(common, wish);
    QCOMPARE(fit.fault, FitFault::WhiteOutside);
    QVERIFY(fit.whiteLimit && *fit.whiteLimit == 1);
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= 1000000; ++i) {
        const double share = i / 1e6;
        const Target point = Target::fromYxy(1.0, 0.75 - share * 0.65, 0.25 + share * 0.15);
        least = std::min(least, *uvDifference(point, wish.white));
    }
    QVERIFY(std::fabs(fit.whiteMoved - least) < 1e-9 && least > 0.01);
    QVERIFY(std::fabs(*uvDifference(fit.target.white, wish.white) - least) < 1e-9);
    QVERIFY(isInCommonGamut(common, xyOf(fit.target.white)));
    QCOMPARE(fit.target.white.Y, 100.0);
    // A hair inside of the edge the white can be kept, and green is moved to almost the same.
    Targets inside = wish;
    inside.white = Target::fromYxy(100.0, fit.target.white.x, fit.target.white.y - 0.01);
    const GamutFit fitted = fittedTarget(common, inside);
    QCOMPARE(fitted.fault, FitFault::None);
    QVERIFY(isSame(fitted.target.white, inside.white) && !fitted.whiteLimit && fitted.whiteMoved == 0.0);
    QVERIFY(fitted.green.share < 0.1 && fitted.green.limit && *fitted.green.limit == 1);
}

void GamutFitTest::wholeWishAroundACabinet()
{
    // Every primary is limited, and by the side that its hue line crosses.
    const GamutFit fit = fittedTarget(commonGamut(Wall{triangleOf(rec709())}), rec2020().getTargets());
    QCOMPARE(fit.fault, FitFault::None);
    QVERIFY(fit.red.limit && fit.green.limit && fit.blue.limit && !fit.whiteLimit);
    QVERIFY(isSame(fit.target.white, rec709().getTargets().white));
    QVERIFY(fit.red.share > 0.7 && fit.red.share < 1.0 && fit.green.share < 0.8);
    QVERIFY(std::fabs(fit.costXy.coverage - fit.costXy.areaRatio) < 1e-12);
    QVERIFY(fit.costXy.coverage < 0.53);
}

void GamutFitTest::isTheLargestOnItsHueLines()
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> any(-0.05, 0.05);
    int limited = 0;
    for (int round = 0; round < 5000; ++round) {
        const Wall wall = seriesOf(triangleOf(dciP3D65()), 1 + random() % 20, 0.02, random);
        Targets wish = dciP3D65().getTargets();
        for (Target *color : {&wish.red, &wish.green, &wish.blue, &wish.white}) {
            const double size = color == &wish.white ? 0.5 : 1.0;
            *color = Target::fromYxy(500.0, color->x + size * any(random), color->y + size * any(random));
        }
        const GamutFit fit = fittedTarget(commonGamut(wall), wish);
        QCOMPARE(fit.fault, FitFault::None);
        const DiagramPoint white = xyOf(wish.white);
        QVERIFY(isInAll(wall, white, 0.0) && isSame(fit.target.white, wish.white));
        const std::pair<Target, Target> colors[]
            = {{wish.red, fit.target.red}, {wish.green, fit.target.green}, {wish.blue, fit.target.blue}};
        for (const Primary primary : {Primary::Red, Primary::Green, Primary::Blue}) {
            const auto &[wished, fitted] = colors[std::size_t(primary)];
            const FittedPrimary &result = fit.of(primary);
            QVERIFY(isInAll(wall, xyOf(fitted), 1e-15));
            QVERIFY(std::fabs(turnOf(white, xyOf(wished), xyOf(fitted))) < 1e-15);
            QCOMPARE(result.limit.has_value(), !isInAll(wall, xyOf(wished), 1e-12));
            if (!result.limit) {
                QVERIFY(isSame(wished, fitted) && result.share == 1.0);
                continue;
            }
            ++limited;
            const double more = result.share + 1e-9;
            const DiagramPoint beyond{white.x + more * (wished.x - white.x), white.y + more * (wished.y - white.y)};
            QVERIFY(!isIn(wall[*result.limit], beyond, 0.0));
        }
        QVERIFY(mixes(fit.target));
        QVERIFY(std::fabs(fit.costUv.coverage - fit.costUv.areaRatio) < 1e-12);
    }
    QVERIFY(limited > 5000);
}

void GamutFitTest::faults()
{
    const CommonGamut common = commonGamut(Wall{triangleOf(rec709())});
    const Targets wish = rec2020().getTargets();
    QCOMPARE(fittedTarget(common, wish).fault, FitFault::None);
    for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        Targets broken = wish;
        broken.green.x = bad;
        QCOMPARE(fittedTarget(common, broken).fault, FitFault::NotFinite);
        QCOMPARE(largestTarget(common, broken, Diagram::Cie1931).fault, FitFault::NotFinite);
        broken = wish;
        broken.white.Y = bad;
        QCOMPARE(fittedTarget(common, broken).fault, FitFault::NotFinite);
    }
    const GamutTriangle flat{{0.2, 0.2}, {0.4, 0.3}, {0.6, 0.4}};
    for (const CommonGamut &none : {commonGamut(Wall()), commonGamut(Wall{flat}),
             commonGamut(Wall{triangleOf(rec709()), {{0.7, 0.1}, {0.9, 0.1}, {0.8, 0.2}}})}) {
        QCOMPARE(fittedTarget(none, wish).fault, FitFault::NoCommonArea);
        QCOMPARE(largestTarget(none, wish, Diagram::Cie1976).fault, FitFault::NoCommonArea);
    }
    Targets pale = wish;
    pale.white = Target::fromYxy(1.0, 0.62, 0.33);
    pale.red = Target::fromYxy(1.0, 0.60, 0.33);
    QCOMPARE(fittedTarget(common, pale).fault, FitFault::WhiteOutsideOfWish);
    // A white on the edge to which a primary has to move all the way
    const Targets edge = targets({0.9, 0.05}, {0.2, 0.9}, {0.01, 0.0}, {0.4, 0.3});
    const GamutFit none = fittedTarget(commonGamut(Wall{{{0.7, 0.3}, {0.1, 0.3}, {0.2, 0.0}}}), edge);
    QCOMPARE(none.fault, FitFault::NoTriangle);
    QVERIFY(none.green.share < 1e-12 && none.green.limit && *none.green.limit == 0);
}

void GamutFitTest::whiteOfNoLight()
{
    Targets wish = rec2020().getTargets();
    wish.white.Y = 0.0;
    const GamutFit fit = fittedTarget(commonGamut(Wall{triangleOf(rec709())}), wish);
    QCOMPARE(fit.fault, FitFault::None);
    QVERIFY(fit.target.red.Y == 0.0 && fit.target.green.Y == 0.0 && fit.target.blue.Y == 0.0);
}

void GamutFitTest::blacksTakeNothingWithoutLight()
{
    std::mt19937 random(21);
    auto cabinets = glowingWall(random, 20, 0.0);
    const Targets wish = targets({0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}, {0.3127, 0.329}, 300.0);
    const GamutFit plain = fittedTarget(commonGamut(cabinets), wish);
    QCOMPARE(plain.fault, FitFault::None);
    for (const bool hasBlack : {true, false}) {
        const GamutFit fit = fittedTarget(commonGamut(cabinets), wish, cabinets);
        QCOMPARE(fit.fault, FitFault::None);
        for (const Primary primary : {Primary::Red, Primary::Green, Primary::Blue}) {
            QVERIFY(std::fabs(fit.of(primary).share - plain.of(primary).share) < 1e-9);
        }
        for (Cabinet &cabinet : cabinets) {
            cabinet.black = hasBlack ? std::nullopt : cabinet.black;
        }
    }
}

void GamutFitTest::blacksLeaveNoDriveBelowZero()
{
    std::mt19937 random(20);
    std::uniform_real_distribution<double> any(0.0, 1.0);
    int farther = 0;
    for (int i = 0; i < 2000; ++i) {
        const double luminance = 100.0 + 700.0 * any(random);
        const auto cabinets = glowingWall(random, 1 + std::size_t(i % 30), 0.02 * luminance * any(random));
        const Targets wish = targets({0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}, {0.3127, 0.329}, luminance);
        const auto common = commonGamut(cabinets);
        const GamutFit plain = fittedTarget(common, wish);
        const GamutFit fit = fittedTarget(common, wish, cabinets);
        QCOMPARE(plain.fault, FitFault::None);
        QCOMPARE(fit.fault, FitFault::None);
        QCOMPARE(fit.target.white.Y, luminance);
        QVERIFY(mixes(fit.target));
        const auto correctionFor = [&](const Targets &target) { return wallCorrection(cabinets, target, luminance); };
        for (const Correction &of : correctionFor(fit.target).corrections) {
            QVERIFY(entriesBelowZero(*of.matrix).empty());
            for (const auto &uv : {of.remaining.redUv, of.remaining.greenUv, of.remaining.blueUv}) {
                QVERIFY(*uv < 1e-8);
            }
        }
        for (const Primary primary : {Primary::Red, Primary::Green, Primary::Blue}) {
            const FittedPrimary &of = fit.of(primary);
            QVERIFY(of.share <= plain.of(primary).share);
            if (of.share == plain.of(primary).share) {
                continue;
            }
            // Farther out, the cabinet that is named would need a drive below 0.
            ++farther;
            QVERIFY(of.limit);
            Targets out = fit.target;
            Target &moved = primary == Primary::Red ? out.red : primary == Primary::Green ? out.green : out.blue;
            moved = Target::fromYxy(
                1.0, moved.x + 1e-4 * (moved.x - out.white.x), moved.y + 1e-4 * (moved.y - out.white.y));
            const auto below = entriesBelowZero(*correctionFor(out).corrections[*of.limit].matrix);
            QVERIFY(std::any_of(
                below.begin(), below.end(), [primary](const MatrixEntry &entry) { return entry.content == primary; }));
        }
    }
    QVERIFY(farther > 2000);
}

void GamutFitTest::blackTooBright()
{
    std::mt19937 random(22);
    auto cabinets = glowingWall(random, 10, 1.0);
    cabinets[7].black = Target::fromYxy(30.0, 0.3, 0.31);
    const Targets wish = targets({0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}, {0.3127, 0.329}, 20.0);
    const GamutFit fit = fittedTarget(commonGamut(cabinets), wish, cabinets);
    QCOMPARE(fit.fault, FitFault::BlackTooBright);
    QCOMPARE(fit.whiteLimit, std::make_optional(std::size_t(7)));
    QCOMPARE(fittedTarget(commonGamut(cabinets), wish).fault, FitFault::None);
}

void GamutFitTest::largestOfATriangle()
{
    const GamutTriangle mixed{{0.15, 0.06}, {0.64, 0.33}, {0.30, 0.60}}; // not in the order of the wish
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        const GamutFit fit = largestTarget(commonGamut(Wall{mixed}), rec2020().getTargets(), diagram);
        QCOMPARE(fit.fault, FitFault::None);
        QVERIFY(isSame(fit.target.red, rec709().getTargets().red));
        QVERIFY(isSame(fit.target.green, rec709().getTargets().green));
        QVERIFY(isSame(fit.target.blue, rec709().getTargets().blue));
        QVERIFY(fit.red.limit && *fit.red.limit == 0);
        QVERIFY(std::fabs(fit.target.green.Y - rec709().getTargets().green.Y) < 1e-15);
        QVERIFY(std::fabs(fit.costXy.areaRatio - 0.5287) < 1e-3);
    }
}

void GamutFitTest::largestAgreesWithAllTriples_data()
{
    QTest::addColumn<Diagram>("diagram");
    QTest::newRow("x, y") << Diagram::Cie1931;
    QTest::newRow("u', v'") << Diagram::Cie1976;
}

namespace {

double largestOfAllTriples(const CommonGamut &common, Diagram diagram)
{
    double largest = 0.0;
    for (const DiagramPoint &a : common.corners) {
        for (const DiagramPoint &b : common.corners) {
            for (const DiagramPoint &c : common.corners) {
                largest = std::max(largest, gamutArea(targets(a, b, c, {}), diagram));
            }
        }
    }
    return largest;
}

//! A wall whose common gamut is a polygon with \a count sides around a circle.
Wall around(DiagramPoint centre, double radius, int count, double stretch)
{
    Wall wall;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * M_PI * i / count;
        const auto at = [&](double along, double out) {
            return DiagramPoint{centre.x + stretch * radius * (out * std::cos(angle) - along * std::sin(angle)),
                centre.y + radius * (out * std::sin(angle) + along * std::cos(angle))};
        };
        wall.push_back({at(-3.0, 1.0), at(3.0, 1.0), at(0.0, -6.0)});
    }
    return wall;
}

} // namespace

void GamutFitTest::largestAgreesWithAllTriples()
{
    QFETCH(Diagram, diagram);
    std::mt19937 random(4);
    std::size_t most = 0;
    for (int round = 0; round < 3000; ++round) {
        const Wall wall = round % 2 == 0
            ? seriesOf(triangleOf(rec709()), 1 + random() % 30, 0.03, random)
            : seriesOf({{0.6, 0.3}, {0.3, 0.6}, {0.2, 0.1}}, 2 + random() % 6, 0.12, random);
        const CommonGamut common = commonGamut(wall);
        const GamutFit fit = largestTarget(common, rec709().getTargets(), diagram);
        if (common.shape != CommonShape::Area || fit.fault == FitFault::NoTriangle) {
            continue;
        }
        most = std::max(most, common.corners.size());
        const double area = gamutArea(fit.target, diagram);
        QVERIFY(std::fabs(area - largestOfAllTriples(common, diagram)) < 1e-15);
    }
    QVERIFY(most >= 9);
}

void GamutFitTest::largestOfManyCorners()
{
    for (const int count : {3, 4, 5, 7, 24, 61}) {
        const CommonGamut common = commonGamut(around({0.33, 0.33}, 0.1, count, 1.7));
        QCOMPARE(common.corners.size(), std::size_t(count));
        for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976, Diagram::Cie1960}) {
            const GamutFit fit = largestTarget(common, rec709().getTargets(), diagram);
            QCOMPARE(fit.fault, FitFault::None);
            QVERIFY(std::fabs(gamutArea(fit.target, diagram) - largestOfAllTriples(common, diagram)) < 1e-15);
        }
    }
    // Of a regular polygon of 24 sides it is the regular triangle.
    const CommonGamut regular = commonGamut(around({0.33, 0.33}, 0.1, 24, 1.0));
    const GamutFit fit = largestTarget(regular, rec709().getTargets(), Diagram::Cie1931);
    const double outer = 0.1 / std::cos(M_PI / 24);
    QVERIFY(std::fabs(gamutArea(fit.target, Diagram::Cie1931) - 0.75 * std::sqrt(3.0) * outer * outer) < 1e-15);
    QVERIFY(fit.target.red.x > fit.target.green.x && fit.target.green.y > fit.target.blue.y);
}

void GamutFitTest::largestHasTheWhiteInside()
{
    Targets wish = rec709().getTargets();
    wish.white = Target::fromYxy(300.0, 0.20, 0.50);
    const GamutFit fit = largestTarget(commonGamut(Wall{triangleOf(rec709())}), wish, Diagram::Cie1931);
    QCOMPARE(fit.fault, FitFault::None);
    QVERIFY(fit.whiteMoved > 0.01);
    QVERIFY(std::fabs(fit.target.red.Y) < 1e-9 && fit.target.green.Y > 100.0);
    QVERIFY(mixes(fit.target));
}

QTEST_GUILESS_MAIN(GamutFitTest)
#include "gamutfittest.moc"
