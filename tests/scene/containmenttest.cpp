// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>

#include <QTest>

#include <array>

using ceiechart::polygonContains;
using ceiechart::triangleContainsByArea;

class ContainmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coordinatesWithinToleranceAreEqual();
    void edgesAreHalfOpen();
    void firstThreeCornersReachFurther();
    void degenerateTriangleHoldsItsCorners();
    void countsCrossings();
    void emptyContainsNothing();
    void areaTestTakesTheEdges();
};

namespace {

constexpr std::array<PointF, 4> square{{{0.0F, 0.0F}, {1.0F, 0.0F}, {1.0F, 1.0F}, {0.0F, 1.0F}}};

} // namespace

void ContainmentTest::coordinatesWithinToleranceAreEqual()
{
    QVERIFY(ceiechart::coordinatesEqual(0.0F, 0.0010123F));
    QVERIFY(!ceiechart::coordinatesEqual(0.0F, 0.0010124F));
    QVERIFY(ceiechart::coordinatesEqual(0.0010123F, 0.0F));
}

void ContainmentTest::edgesAreHalfOpen()
{
    QVERIFY(polygonContains(PointF{0.5F, 0.0F}, square)); // lower in y: inside
    QVERIFY(!polygonContains(PointF{0.5F, 1.0F}, square));
    QVERIFY(polygonContains(PointF{0.0F, 0.5F}, square));
    QVERIFY(!polygonContains(PointF{1.0F, 0.5F}, square));
    // Two y values within the corners' tolerance are still two.
    constexpr std::array<PointF, 3> tilted{{{0.2F, 0.6F}, {0.6F, 0.6005F}, {0.4F, 0.2F}}};
    QVERIFY(polygonContains(PointF{0.5F, 0.6002F}, tilted));
}

void ContainmentTest::firstThreeCornersReachFurther()
{
    QVERIFY(polygonContains(PointF{-0.001F, -0.001F}, square));
    QVERIFY(polygonContains(PointF{1.001F, -0.001F}, square));
    QVERIFY(polygonContains(PointF{1.001F, 1.001F}, square));
    QVERIFY(!polygonContains(PointF{-0.001F, 1.001F}, square)); // the fourth
    QVERIFY(!polygonContains(PointF{-0.0011F, 0.0F}, square)); // one coordinate is not enough
}

void ContainmentTest::degenerateTriangleHoldsItsCorners()
{
    constexpr std::array<PointF, 3> point{{{0.3F, 0.3F}, {0.3F, 0.3F}, {0.3F, 0.3F}}};
    QVERIFY(polygonContains(PointF{0.301F, 0.299F}, point));
    QVERIFY(!polygonContains(PointF{0.302F, 0.3F}, point));
    constexpr std::array<PointF, 3> flat{{{0.2F, 0.2F}, {0.6F, 0.6F}, {0.4F, 0.4F}}};
    QVERIFY(!polygonContains(PointF{0.3F, 0.3F}, flat));
}

void ContainmentTest::countsCrossings()
{
    // A star that covers its middle twice.
    constexpr std::array<PointF, 5> star{{{0.0F, 3.0F}, {2.0F, -3.0F}, {-3.0F, 1.0F}, {3.0F, 1.0F}, {-2.0F, -3.0F}}};
    QVERIFY(!polygonContains(PointF{0.0F, 0.0F}, star));
    QVERIFY(polygonContains(PointF{0.0F, 2.0F}, star));
    QVERIFY(!polygonContains(PointF{2.0F, 2.0F}, star));
}

void ContainmentTest::emptyContainsNothing()
{
    QVERIFY(!polygonContains(PointF{0.0F, 0.0F}, nullptr, 0));
}

void ContainmentTest::areaTestTakesTheEdges()
{
    const PointF a{0.64F, 0.33F};
    const PointF b{0.30F, 0.60F};
    const PointF c{0.15F, 0.06F};
    QVERIFY(triangleContainsByArea({0.3127F, 0.329F}, a, b, c));
    QVERIFY(triangleContainsByArea(a, a, b, c));
    QVERIFY(triangleContainsByArea({0.47F, 0.465F}, a, b, c)); // middle of an edge
    QVERIFY(!triangleContainsByArea({0.708F, 0.292F}, a, b, c));
    QVERIFY(triangleContainsByArea({0.3127F, 0.329F}, c, b, a)); // either sense
}

QTEST_APPLESS_MAIN(ContainmentTest)
#include "containmenttest.moc"
