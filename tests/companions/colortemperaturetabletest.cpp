// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colortemperatureoracle.h"

#include <colortemperature/locustable_p.h>
#include <colortemperature/planckianlocus_p.h>

#include <QtTest>

#include <algorithm>
#include <cmath>

using ceiechart::locusFirstMired;
using ceiechart::locusMiredStep;
using ceiechart::LocusNode;
using ceiechart::locusNodeCount;
using ceiechart::locusNodes;
using reference::PlanckianLocus;

class ColorTemperatureTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coversTheStatedRange();
    void nodesFollowFromTheColourMatchingFunctions();
    void reachOfTheLocus();
    void convexAndTurningByLessThanARightAngle();
};

void ColorTemperatureTableTest::coversTheStatedRange()
{
    QVERIFY(1e6 / locusFirstMired == 100000.0);
    QVERIFY(1e6 / (locusFirstMired + locusMiredStep * (locusNodeCount - 1)) == 1000.0);
}

void ColorTemperatureTableTest::nodesFollowFromTheColourMatchingFunctions()
{
    const PlanckianLocus locus;
    const long double step = locusMiredStep;
    for (int node = 0; node < locusNodeCount; ++node) {
        const PlanckianLocus::Point point = locus.at(locusFirstMired + step * node);
        const LocusNode &row = locusNodes[node];
        // Half a unit in the last place of a double, and the rounding of the sum.
        QVERIFY2(std::fabs(row.u.value - point.u.value) < 4e-17L, QByteArray::number(node));
        QVERIFY2(std::fabs(row.v.value - point.v.value) < 4e-17L, QByteArray::number(node));
        QVERIFY2(std::fabs(row.u.first - point.u.first * step) < 1e-18L, QByteArray::number(node));
        QVERIFY2(std::fabs(row.v.first - point.v.first * step) < 1e-18L, QByteArray::number(node));
        QVERIFY2(std::fabs(row.u.second - point.u.second * step * step) < 5e-19L, QByteArray::number(node));
        QVERIFY2(std::fabs(row.v.second - point.v.second * step * step) < 5e-19L, QByteArray::number(node));
    }
}

// The reach of a curve is the infimum of |b - a|^2 / (2 d) over its pairs of points, d being the distance of b from the
// tangent at a (Federer, Curvature measures, 1959, theorem 4.18). For b towards a that is the radius of curvature.
void ColorTemperatureTableTest::reachOfTheLocus()
{
    double reach = 1.0;
    double leastRadius = 1.0;
    for (const LocusNode &a : locusNodes) {
        const double speed = std::hypot(a.u.first, a.v.first);
        const double turning = std::fabs(a.u.first * a.v.second - a.v.first * a.u.second);
        leastRadius = std::min(leastRadius, speed * speed * speed / turning);
        for (const LocusNode &b : locusNodes) {
            const double du = b.u.value - a.u.value;
            const double dv = b.v.value - a.v.value;
            const double fromTangent = std::fabs(a.u.first * dv - a.v.first * du) / speed;
            if (fromTangent > 0.0) {
                reach = std::min(reach, (du * du + dv * dv) / (2.0 * fromTangent));
            }
        }
    }
    QVERIFY2(std::fabs(leastRadius - 0.1001) < 5e-5, QByteArray::number(leastRadius));
    QVERIFY2(std::fabs(reach - leastRadius) < 5e-5, QByteArray::number(reach));
    QVERIFY(ceiechart::locusReach < reach);
}

void ColorTemperatureTableTest::convexAndTurningByLessThanARightAngle()
{
    for (const LocusNode &node : locusNodes) {
        QVERIFY(node.u.first * node.v.second - node.v.first * node.u.second < 0.0);
    }
    const LocusNode &hot = locusNodes[0];
    const LocusNode &cool = locusNodes[locusNodeCount - 1];
    QVERIFY(hot.u.first * cool.u.first + hot.v.first * cool.v.first > 0.0);
}

QTEST_GUILESS_MAIN(ColorTemperatureTableTest)
#include "colortemperaturetabletest.moc"
