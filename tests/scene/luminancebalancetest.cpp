// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/luminancebalance_p.h>

#include <reference/mixedwhites.h>

#include <QTest>

#include <array>
#include <cmath>
#include <limits>
#include <random>

using reference::Luminances;
using reference::luminancesFor;
using reference::White;
using reference::whiteOf;

/*! The white of the primaries, and the luminances of a white that is held. */
class LuminanceBalanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mixesTheWhite();
    void equalTargetStopsAtOnce_data();
    void equalTargetStopsAtOnce();
    void unreachableWhiteFallsInStepsOfTen_data();
    void unreachableWhiteFallsInStepsOfTen();
    void noPrimaryMayBeNegative_data();
    void noPrimaryMayBeNegative();
    void reducedWhiteStopsWhereTheOriginalCanDeliver();
    void startsFromTheWhiteOfTheOriginal();
    void eachLimitCounts_data();
    void eachLimitCounts();
    void limitsHaveARelativeTolerance_data();
    void limitsHaveARelativeTolerance();
    void findsTheEndOfThePlainLoop();
    void absurdLuminancesEnd_data();
    void absurdLuminancesEnd();
    void everyStepIsRounded_data();
    void everyStepIsRounded();
};

namespace {

TrianglePoint gamut(const QPointF &red, const QPointF &green, const QPointF &blue, double y)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    points.setRedLum(0.2126 * y);
    points.setGreenLum(0.7152 * y);
    points.setBlueLum(0.0722 * y);
    ceiechart::mixWhite(points);
    return points;
}

TrianglePoint rec709(double y)
{
    return gamut({0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, y);
}

struct Pair {
    TrianglePoint original;
    TrianglePoint target;
};

// Of the same primaries; the target's white is theirs, or lies outside of them.
Pair equalPair(const std::array<double, 3> &luminances, bool whiteInReach)
{
    TrianglePoint points;
    points.setRedPos(QPointF(0.708, 0.292));
    points.setGreenPos(QPointF(0.170, 0.797));
    points.setBluePos(QPointF(0.131, 0.046));
    points.setRedLum(luminances[0]);
    points.setGreenLum(luminances[1]);
    points.setBlueLum(luminances[2]);
    Pair pair{points, points};
    const White white = whiteOf(points);
    pair.target.setWhitePos(whiteInReach ? QPointF(white.x, white.y) : QPointF(0.6, 0.6));
    return pair;
}

TrianglePoint balanced(const Pair &pair)
{
    TrianglePoint target = pair.target;
    ceiechart::balanceHeldWhite(target, pair.original);
    return target;
}

// One step after the other. The limits have the same allowance for rounding.
void balancePlainly(TrianglePoint &t, const TrianglePoint &o)
{
    const auto beyond
        = [](double luminance, double limit) { return luminance < 0 || luminance > limit + std::fabs(limit) * 1e-9; };
    const double start = whiteOf(o).luminance;
    for (double white = start;; white -= 10.0) {
        const auto [red, green, blue] = luminancesFor(t, white);
        t.setRedLum(red);
        t.setGreenLum(green);
        t.setBlueLum(blue);
        t.setWhiteLum(white);
        if ((!beyond(red, o.redLum()) && !beyond(green, o.greenLum()) && !beyond(blue, o.blueLum())) || white < 10) {
            return;
        }
    }
}

} // namespace

void LuminanceBalanceTest::mixesTheWhite()
{
    const TrianglePoint points = rec709(1000);
    QVERIFY(qAbs(points.whiteLum() - 1000) < 1e-9);
    QVERIFY(qAbs(points.whitePos().x() - 0.3127) < 1e-4);
    QVERIFY(qAbs(points.whitePos().y() - 0.3290) < 1e-4);
}

void LuminanceBalanceTest::equalTargetStopsAtOnce_data()
{
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    for (const double scale : {0.01, 1.0, 3.7, 1e6, 1e18}) {
        QTest::newRow(qPrintable(QString::number(scale))) << 31.0 * scale << 62.0 * scale << 7.0 * scale;
    }
    QTest::newRow("hardly any red") << 0.005 << 70.0 << 20.0;
    QTest::newRow("hardly any green") << 20.0 << 0.005 << 70.0;
    QTest::newRow("hardly any blue") << 20.0 << 70.0 << 0.005;
}

void LuminanceBalanceTest::equalTargetStopsAtOnce()
{
    QFETCH(double, red);
    QFETCH(double, green);
    QFETCH(double, blue);
    const Pair pair = equalPair({red, green, blue}, true);
    const TrianglePoint points = balanced(pair);
    const double white = whiteOf(pair.original).luminance;
    QVERIFY(points.whiteLum() == white);
    const Luminances expected = luminancesFor(pair.target, white);
    QVERIFY(points.redLum() == expected.red);
    QVERIFY(points.greenLum() == expected.green);
    QVERIFY(points.blueLum() == expected.blue);
}

void LuminanceBalanceTest::unreachableWhiteFallsInStepsOfTen_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::newRow("35 ends at 5") << 35.0 << 5.0;
    QTest::newRow("just above 10") << 10.5 << 0.5;
    QTest::newRow("10 is not below 10") << 10.0 << 0.0;
    QTest::newRow("below 10 stays") << 9.5 << 9.5;
    QTest::newRow("30 ends where nothing is asked for") << 30.0 << 0.0;
    QTest::newRow("a thousand") << 1000.25 << 0.25;
}

void LuminanceBalanceTest::unreachableWhiteFallsInStepsOfTen()
{
    QFETCH(double, start);
    QFETCH(double, end);
    const TrianglePoint points = balanced(equalPair({start / 4, start / 2, start / 4}, false));
    QVERIFY(points.whiteLum() == end);
    const Luminances expected = luminancesFor(points, end);
    QVERIFY(points.redLum() == expected.red);
    QVERIFY(points.blueLum() == expected.blue);
    QVERIFY(points.blueLum() < 0.0 || end == 0.0);
}

void LuminanceBalanceTest::noPrimaryMayBeNegative_data()
{
    QTest::addColumn<QPointF>("white");
    QTest::newRow("red") << QPointF(0.05, 0.3);
    QTest::newRow("green") << QPointF(0.4, 0.05);
    QTest::newRow("blue") << QPointF(0.6, 0.6);
}

// However low the white, one primary stays negative, while the others soon are within their limits.
void LuminanceBalanceTest::noPrimaryMayBeNegative()
{
    QFETCH(QPointF, white);
    Pair pair = equalPair({100.0, 300.0, 50.0}, true);
    pair.target.setWhitePos(white);
    const Luminances within = luminancesFor(pair.target, 10.0);
    QVERIFY(within.red <= 100.0 && within.green <= 300.0 && within.blue <= 50.0);
    QCOMPARE(int(within.red < 0.0) + int(within.green < 0.0) + int(within.blue < 0.0), 1);
    QVERIFY(balanced(pair).whiteLum() == 0.0);
}

// With green half as strong as the target's white needs, the white stops at the first step that green can deliver.
void LuminanceBalanceTest::reducedWhiteStopsWhereTheOriginalCanDeliver()
{
    Pair pair = equalPair({262.7, 678.0, 59.3}, true);
    pair.original.setGreenLum(339.0);
    const TrianglePoint points = balanced(pair);
    QVERIFY(points.whiteLum() == 661.0 - 10.0 * 17);
    QVERIFY(points.greenLum() <= 339.0);
    QVERIFY(luminancesFor(points, points.whiteLum() + 10.0).green > 339.0);
}

void LuminanceBalanceTest::startsFromTheWhiteOfTheOriginal()
{
    Pair pair = equalPair({20.0, 70.0, 10.0}, true);
    pair.original.setWhiteLum(12345.0); // not read
    pair.target.setWhiteLum(54321.0);
    pair.target.setRedLum(1.0);
    pair.target.setGreenLum(1.0);
    pair.target.setBlueLum(1.0);
    QVERIFY(balanced(pair).whiteLum() == 100.0);
}

void LuminanceBalanceTest::eachLimitCounts_data()
{
    QTest::addColumn<int>("primary");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
}

// A white a little on the side of one primary asks more of that primary than the original has.
void LuminanceBalanceTest::eachLimitCounts()
{
    QFETCH(int, primary);
    Pair pair = equalPair({100.0, 300.0, 50.0}, true);
    TrianglePoint more(pair.target);
    more.setRedLum(primary == 0 ? 101.0 : 100.0);
    more.setGreenLum(primary == 1 ? 303.0 : 300.0);
    more.setBlueLum(primary == 2 ? 50.5 : 50.0);
    const White white = whiteOf(more);
    pair.target.setWhitePos(QPointF(white.x, white.y));
    QVERIFY(balanced(pair).whiteLum() == 440.0);
}

void LuminanceBalanceTest::limitsHaveARelativeTolerance_data()
{
    QTest::addColumn<double>("excess");
    QTest::addColumn<bool>("stopsAtOnce");
    QTest::newRow("within") << 0.8e-9 << true;
    QTest::newRow("beyond") << 1.2e-9 << false;
    QTest::newRow("far beyond") << 1e-7 << false;
}

// The white is asked to be so much on the red side that red exceeds the original's by a given fraction.
void LuminanceBalanceTest::limitsHaveARelativeTolerance()
{
    QFETCH(double, excess);
    QFETCH(bool, stopsAtOnce);
    for (const double scale : {0.2, 1.0, 5000.0}) {
        Pair pair = equalPair({100.0 * scale, 300.0 * scale, 50.0 * scale}, true);
        TrianglePoint more(pair.target);
        more.setRedLum(100.0 * scale * (1.0 + excess * 450.0 / 350.0)); // the white's luminance stays the same
        const White white = whiteOf(more);
        pair.target.setWhitePos(QPointF(white.x, white.y));
        const Luminances first = luminancesFor(pair.target, 450.0 * scale);
        QVERIFY(qAbs((first.red / (100.0 * scale) - 1.0) / excess - 1.0) < 0.01);
        QVERIFY(balanced(pair).whiteLum() == (stopsAtOnce ? 450.0 * scale : 450.0 * scale - 10.0));
    }
}

void LuminanceBalanceTest::findsTheEndOfThePlainLoop()
{
    std::mt19937 random(1931);
    const auto real = [&random](double low, double high) {
        return low + (high - low) * double(random()) / double(std::mt19937::max());
    };
    for (int i = 0; i < 2000; ++i) {
        const TrianglePoint original = rec709(std::pow(10.0, real(-1.0, 4.5)));
        TrianglePoint target = gamut({real(0.4, 0.7), real(0.2, 0.35)}, {real(0.1, 0.35), real(0.5, 0.8)},
            {real(0.1, 0.2), real(0.01, 0.1)}, real(1.0, 2000.0));
        target.setWhitePos(QPointF(real(0.2, 0.5), real(0.2, 0.5)));
        TrianglePoint plain = target;
        ceiechart::balanceHeldWhite(target, original);
        balancePlainly(plain, original);
        QCOMPARE(target.whiteLum(), plain.whiteLum());
        QVERIFY(target.redLum() == plain.redLum() && target.greenLum() == plain.greenLum()
            && target.blueLum() == plain.blueLum());
    }
}

void LuminanceBalanceTest::absurdLuminancesEnd_data()
{
    QTest::addColumn<double>("luminance");
    QTest::newRow("1e15") << 1e15;
    // More than 2^53 steps of 10.
    QTest::newRow("9.1e16") << 9.1e16;
    QTest::newRow("1.2e17") << 1.2e17;
    QTest::newRow("2^57") << 0x1p57;
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("negative") << -1000.0;
    QTest::newRow("none") << 0.0;
}

void LuminanceBalanceTest::absurdLuminancesEnd()
{
    QFETCH(double, luminance);
    const TrianglePoint original = rec709(luminance);
    TrianglePoint target = rec709(100);
    target.setGreenPos(QPointF(0.31, 0.55));
    const QPointF white = target.whitePos();
    ceiechart::balanceHeldWhite(target, original);
    QCOMPARE(target.whitePos(), white);
}

void LuminanceBalanceTest::everyStepIsRounded_data()
{
    QTest::addColumn<double>("first");
    QTest::newRow("with decimals") << 41234.56789;
    // From 2^54 on a step of 10 is no multiple of the distance between two numbers.
    QTest::newRow("below 2^54") << 0x1p54 - 9000;
    QTest::newRow("across 2^54") << 0x1p54 + 8004;
    QTest::newRow("across 2^55") << 0x1p55 + 16008;
    QTest::newRow("across 2^56") << 0x1p56 + 32016;
    QTest::newRow("from 2^57") << 0x1p57;
}

void LuminanceBalanceTest::everyStepIsRounded()
{
    QFETCH(double, first);
    for (const double start : {first, first - 4, first - 16, first - 1024}) {
        double white = start;
        for (std::uint64_t steps = 1; steps <= 4000; ++steps) {
            white -= 10.0;
            QCOMPARE(ceiechart::lowered(start, steps), white);
        }
    }
}

QTEST_APPLESS_MAIN(LuminanceBalanceTest)
#include "luminancebalancetest.moc"
