// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/correction.h>
#include <gamutmodel/nearestinside.h>
#include <gamutmodel/uniformity.h>

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

using namespace Model;

class UniformityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalCabinets();
    void oneBadCabinet();
    void neighboursShareASide();
    void agreesWithAllPairs_data();
    void agreesWithAllPairs();
    void manyOnACircle();
    void notKnown();
    void fewCabinets();
    void samePosition();
    void farPositions();
    void darkWall();
    void beforeAndAfterACorrection();
};

namespace {

using Colors = std::vector<std::optional<Target>>;
using Positions = std::vector<std::optional<GridPosition>>;

Positions grid(int rows, int columns)
{
    Positions positions;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            positions.push_back(GridPosition{row, column});
        }
    }
    return positions;
}

Target white(double Y = 500.0, double x = 0.3127, double y = 0.3290)
{
    return Target::fromYxy(Y, x, y);
}

bool isPair(const std::optional<CabinetPair> &pair, std::size_t first, std::size_t second, double difference)
{
    return pair && pair->first == first && pair->second == second && std::fabs(pair->difference - difference) < 1e-15;
}

} // namespace

void UniformityTest::equalCabinets()
{
    const Uniformity result = uniformity(Colors(12, white()), grid(3, 4));
    for (const auto *pair :
        {&result.chromaticity, &result.luminance, &result.neighborChromaticity, &result.neighborLuminance}) {
        QVERIFY(*pair && (*pair)->difference == 0.0 && (*pair)->first < (*pair)->second && (*pair)->second < 12);
    }
    QVERIFY(result.unknownChromaticity.empty() && result.unknownLuminance.empty() && result.samePosition.empty());
}

void UniformityTest::oneBadCabinet()
{
    Colors colors(12, white());
    colors[6] = white(400.0, 0.32, 0.34); // in row 1, column 2 of four columns
    const Uniformity result = uniformity(colors, grid(3, 4));
    const double difference = *uvDifference(white(), *colors[6]);
    QVERIFY(result.chromaticity && std::fabs(result.chromaticity->difference - difference) < 1e-15);
    QVERIFY(result.chromaticity->first == 6 || result.chromaticity->second == 6);
    QVERIFY(result.luminance && std::fabs(result.luminance->difference - 0.2) < 1e-15);
    QVERIFY(result.luminance->first == 6 || result.luminance->second == 6);
    const std::set<std::size_t> around{2, 5, 7, 10};
    for (const auto &pair : {result.neighborChromaticity, result.neighborLuminance}) {
        QVERIFY(pair && (pair->first == 6 || pair->second == 6));
        QVERIFY(around.count(pair->first == 6 ? pair->second : pair->first) == 1);
    }
}

void UniformityTest::neighboursShareASide()
{
    const Colors colors{white(100), white(110), white(120), white(90), white(95), white(60)};
    const Positions positions{GridPosition{-1, 7}, GridPosition{-1, 8}, GridPosition{-1, 9}, GridPosition{0, 7},
        GridPosition{0, 8}, GridPosition{0, 9}};
    const Uniformity result = uniformity(colors, positions);
    QVERIFY(isPair(result.luminance, 2, 5, 0.5));
    QVERIFY(isPair(result.neighborLuminance, 2, 5, 0.5));
    // At a corner or two rows away it is no neighbour, nor is the start of a row one of the end of the row above.
    Positions apart = positions;
    for (const GridPosition &position : {GridPosition{1, 9}, GridPosition{-2, 10}, GridPosition{-1, 11}}) {
        apart[5] = position;
        QVERIFY(isPair(uniformity(colors, apart).neighborLuminance, 1, 4, 1.0 - 95.0 / 110.0));
    }
    apart[5] = std::nullopt;
    QVERIFY(isPair(uniformity(colors, apart).neighborLuminance, 1, 4, 1.0 - 95.0 / 110.0));
    QVERIFY(!uniformity(colors).neighborLuminance && !uniformity(colors).neighborChromaticity);
    // A shorter list of positions, and one with places that no cabinet has
    QVERIFY(isPair(uniformity(colors, Positions(positions.begin(), positions.begin() + 2)).neighborLuminance, 0, 1,
        1.0 - 100.0 / 110.0));
    QVERIFY(isPair(uniformity({white(100), white(50)}, grid(5, 5)).neighborLuminance, 0, 1, 0.5));
}

void UniformityTest::agreesWithAllPairs_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("any") << 0;
    QTest::newRow("on a line") << 1;
    QTest::newRow("on a coarse grid") << 2;
    QTest::newRow("on an ellipse") << 3;
    QTest::newRow("equal but for rounding") << 4;
}

void UniformityTest::agreesWithAllPairs()
{
    QFETCH(int, kind);
    std::mt19937 random(5 + unsigned(kind));
    std::uniform_real_distribution<double> any(-1.0, 1.0);
    for (int round = 0; round < 2000; ++round) {
        const int rows = 1 + int(random() % 6);
        const int columns = 1 + int(random() % 8);
        Positions positions = grid(rows, columns);
        std::shuffle(positions.begin(), positions.end(), random);
        Colors colors;
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const double a = any(random);
            const double b = any(random);
            const double Y = 500.0 + (kind == 2 ? std::round(3.0 * a) : 50.0 * a);
            switch (kind) {
            case 0:
                colors.push_back(white(Y, 0.31 + 0.01 * a, 0.33 + 0.01 * b));
                break;
            case 1:
                colors.push_back(white(Y, 0.31 + 0.01 * a, 0.33 + 0.02 * a));
                break;
            case 2:
                colors.push_back(white(Y, 0.31 + 0.01 * std::round(2.0 * a), 0.33 + 0.01 * std::round(2.0 * b)));
                break;
            case 3:
                colors.push_back(white(Y, 0.31 + 0.01 * std::cos(4.0 * a), 0.33 + 0.004 * std::sin(4.0 * a)));
                break;
            default:
                colors.push_back(white(Y, 0.3127 + 1e-16 * std::round(2.0 * a), 0.3290 + 1e-16 * std::round(2.0 * b)));
            }
        }
        double uv = 0.0;
        double luminance = 0.0;
        double neighborUv = 0.0;
        double neighborLuminance = 0.0;
        for (std::size_t i = 0; i < colors.size(); ++i) {
            for (std::size_t k = 0; k < i; ++k) {
                const double distance = *uvDifference(*colors[i], *colors[k]);
                const double part = 1.0 - std::min(colors[i]->Y, colors[k]->Y) / std::max(colors[i]->Y, colors[k]->Y);
                uv = std::max(uv, distance);
                luminance = std::max(luminance, part);
                if (std::abs(positions[i]->row - positions[k]->row)
                        + std::abs(positions[i]->column - positions[k]->column)
                    == 1) {
                    neighborUv = std::max(neighborUv, distance);
                    neighborLuminance = std::max(neighborLuminance, part);
                }
            }
        }
        const Uniformity result = uniformity(colors, positions);
        QCOMPARE(result.chromaticity.has_value(), colors.size() > 1);
        QCOMPARE(result.neighborChromaticity.has_value(), colors.size() > 1);
        if (colors.size() < 2) {
            continue;
        }
        const auto differenceOf
            = [&colors](const CabinetPair &pair) { return *uvDifference(*colors[pair.first], *colors[pair.second]); };
        QVERIFY(std::fabs(result.chromaticity->difference - uv) < 2e-16);
        QVERIFY(std::fabs(differenceOf(*result.chromaticity) - uv) < 2e-16);
        QVERIFY(std::fabs(result.neighborChromaticity->difference - neighborUv) < 1e-16);
        QVERIFY(std::fabs(differenceOf(*result.neighborChromaticity) - neighborUv) < 1e-16);
        QVERIFY(std::fabs(result.luminance->difference - luminance) < 1e-15);
        QVERIFY(std::fabs(result.neighborLuminance->difference - neighborLuminance) < 1e-15);
        const CabinetPair &extremes = *result.luminance;
        QVERIFY(extremes.first < extremes.second);
        const double ratio = colors[extremes.first]->Y / colors[extremes.second]->Y;
        QVERIFY(std::fabs(1.0 - std::min(ratio, 1.0 / ratio) - luminance) < 1e-15);
    }
}

// All of them are corners of the hull.
void UniformityTest::manyOnACircle()
{
    Colors colors;
    for (int i = 0; i < 100000; ++i) {
        const double angle = 2.0 * M_PI * i / 100000;
        const DiagramPoint uv{0.2 + 0.01 * std::cos(angle), 0.47 + 0.01 * std::sin(angle)};
        const DiagramPoint xy = fromDiagram(Diagram::Cie1976, uv);
        colors.push_back(white(500.0, xy.x, xy.y));
    }
    const Uniformity result = uniformity(colors);
    QVERIFY(result.chromaticity && std::fabs(result.chromaticity->difference - 0.02) < 1e-11);
}

void UniformityTest::notKnown()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Colors colors(7, white());
    colors[0] = std::nullopt;
    colors[2] = white(500.0, nan, 0.3);
    colors[3] = white(nan);
    colors[4] = white(-1.0);
    colors[5] = Target(); // no light: a luminance, but no chromaticity
    const Uniformity result = uniformity(colors, grid(1, 7));
    QCOMPARE(result.unknownChromaticity, (std::vector<std::size_t>{0, 2, 5}));
    QCOMPARE(result.unknownLuminance, (std::vector<std::size_t>{0, 3, 4}));
    QVERIFY(result.chromaticity && result.chromaticity->difference == 0.0);
    QVERIFY(isPair(result.luminance, 1, 5, 1.0));
    QVERIFY(isPair(result.neighborLuminance, 5, 6, 1.0));
    QVERIFY(isPair(result.neighborChromaticity, 3, 4, 0.0));
}

void UniformityTest::fewCabinets()
{
    for (const Colors &colors : {Colors(), Colors{white()}, Colors{white(), std::nullopt}}) {
        const Uniformity result = uniformity(colors, grid(1, 2));
        QVERIFY(!result.chromaticity && !result.luminance && !result.neighborChromaticity);
        QVERIFY(!result.neighborLuminance);
    }
}

void UniformityTest::samePosition()
{
    const Colors colors{white(100), white(90), white(10), white(20)};
    const Positions positions{GridPosition{0, 0}, GridPosition{0, 1}, GridPosition{0, 1}, GridPosition{0, 0}};
    const Uniformity result = uniformity(colors, positions);
    QCOMPARE(result.samePosition, (std::vector<std::size_t>{2, 3}));
    QVERIFY(isPair(result.neighborLuminance, 0, 1, 0.1));
    QVERIFY(isPair(result.luminance, 0, 2, 0.9));
}

void UniformityTest::farPositions()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    const Uniformity result = uniformity({white(100), white(50), white(25)},
        {GridPosition{largest, largest}, GridPosition{smallest, smallest}, GridPosition{largest, smallest}});
    QVERIFY(!result.neighborLuminance && result.samePosition.empty());
}

void UniformityTest::darkWall()
{
    const Uniformity dark = uniformity(Colors(3, white(0.0)), grid(1, 3));
    QVERIFY(!dark.luminance && dark.chromaticity);
    QVERIFY(dark.neighborLuminance && dark.neighborLuminance->difference == 0.0);
}

void UniformityTest::beforeAndAfterACorrection()
{
    std::mt19937 random(6);
    std::uniform_real_distribution<double> xy(-0.005, 0.005);
    std::uniform_real_distribution<double> part(0.9, 1.1);
    std::vector<Cabinet> cabinets(96);
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        cabinets[i].colors = dciP3D65().getTargets();
        for (Target *color : {&cabinets[i].colors.red, &cabinets[i].colors.green, &cabinets[i].colors.blue}) {
            *color = Target::fromYxy(1000.0 * color->Y * part(random), color->x + xy(random), color->y + xy(random));
        }
        cabinets[i].position = GridPosition{int(i) / 12, int(i) % 12};
    }
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets());
    const auto positions = positionsOf(cabinets);
    const Uniformity before = uniformity(whitesBefore(wall), positions);
    const Uniformity after = uniformity(whitesAfter(wall), positions);
    QVERIFY(before.chromaticity->difference > 0.01 && before.luminance->difference > 0.05);
    QVERIFY(before.neighborChromaticity->difference > 0.005);
    QVERIFY(before.neighborChromaticity->difference <= before.chromaticity->difference);
    QVERIFY(after.chromaticity->difference < 1e-12 && after.luminance->difference < 1e-12);
    QVERIFY(after.neighborChromaticity->difference < 1e-12 && after.neighborLuminance->difference < 1e-12);
}

QTEST_GUILESS_MAIN(UniformityTest)
#include "uniformitytest.moc"
