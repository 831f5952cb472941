// SPDX-License-Identifier: MIT
#include <ceiechart/scene/luminancebalance_p.h>

#include <ceiechart/atlas/chromasets.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

/*! The white of the primaries, and the luminances of a white that is held. */
class LuminanceBalanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mixesTheWhite();
    void targetLikeTheOriginalKeepsItsLuminances();
    void lowersInStepsOfTen();
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

// One step after the other. The limits have the same allowance for rounding.
void balancePlainly(TrianglePoint &t, const TrianglePoint &o)
{
    const auto beyond
        = [](double luminance, double limit) { return luminance < 0 || luminance > limit + std::fabs(limit) * 1e-9; };
    double start = 0.0;
    double x = 0.0;
    double y = 0.0;
    ChromaSets::rgbCxCyToWhiteCxCy(o.redLum(), o.redPos().x(), o.redPos().y(), o.greenLum(), o.greenPos().x(),
        o.greenPos().y(), o.blueLum(), o.bluePos().x(), o.bluePos().y(), start, x, y);
    for (double white = start;; white -= 10.0) {
        double red = 0.0;
        double green = 0.0;
        double blue = 0.0;
        ChromaSets::RGBCxCyFromWhiteCxCy(red, t.redPos().x(), t.redPos().y(), green, t.greenPos().x(), t.greenPos().y(),
            blue, t.bluePos().x(), t.bluePos().y(), white, t.whitePos().x(), t.whitePos().y());
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

void LuminanceBalanceTest::targetLikeTheOriginalKeepsItsLuminances()
{
    const TrianglePoint original = rec709(1000);
    TrianglePoint target = original;
    ceiechart::balanceHeldWhite(target, original);
    QVERIFY(qAbs(target.redLum() - original.redLum()) < 1e-6);
    QVERIFY(qAbs(target.greenLum() - original.greenLum()) < 1e-6);
    QVERIFY(qAbs(target.blueLum() - original.blueLum()) < 1e-6);
    QCOMPARE(target.whitePos(), original.whitePos());
}

void LuminanceBalanceTest::lowersInStepsOfTen()
{
    const TrianglePoint original = rec709(1000);
    TrianglePoint target = original;
    target.setGreenPos(QPointF(0.31, 0.55));
    const QPointF white = target.whitePos();
    ceiechart::balanceHeldWhite(target, original);
    QCOMPARE(target.whitePos(), white);
    QVERIFY(target.whiteLum() < 1000);
    const double steps = (original.whiteLum() - target.whiteLum()) / 10;
    QVERIFY(qAbs(steps - std::round(steps)) < 1e-9);
    QVERIFY(target.greenLum() <= original.greenLum() * (1 + 1e-9));
    // The step before was too much.
    QVERIFY(target.greenLum() * (target.whiteLum() + 10) / target.whiteLum() > original.greenLum()
        || target.redLum() * (target.whiteLum() + 10) / target.whiteLum() > original.redLum()
        || target.blueLum() * (target.whiteLum() + 10) / target.whiteLum() > original.blueLum());
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
