// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colortemperatureoracle.h"

#include <colortemperature/colortemperature.h>

#include <QtTest>

#include <cfenv>
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

using reference::PlanckianLocus;
using reference::Uv;
using reference::Xy;

namespace {

//! The oracle is slow: a short run compares every tenth point only.
#ifdef CEIECHART_SHORT_TESTS
constexpr int thinning = 10;
#else
constexpr int thinning = 1;
#endif

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Reading {
    double kelvin;
    double duv;
};

Reading read(Xy chromaticity)
{
    Reading reading{notANumber, notANumber};
    reading.duv = GetColorTemperatureFromXY(chromaticity.x, chromaticity.y, &reading.kelvin);
    return reading;
}

Reading read(Uv chromaticity)
{
    return read(reference::toXy(chromaticity));
}

// A temperature as it reads where c2 = 1.4388e-2 m K is the convention.
double conventional(double kelvin)
{
    return kelvin * static_cast<double>(reference::conventionalC2 / reference::codataC2);
}

QByteArray describe(Xy chromaticity, Reading reading)
{
    return QByteArrayLiteral("x ") + QByteArray::number(chromaticity.x, 'g', 17) + ", y "
        + QByteArray::number(chromaticity.y, 'g', 17) + ": " + QByteArray::number(reading.kelvin, 'g', 17) + " K, Duv "
        + QByteArray::number(reading.duv, 'g', 17);
}

} // namespace

class ColorTemperatureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void publishedValues_data();
    void publishedValues();
    void publishedIsotemperatureLines_data();
    void publishedIsotemperatureLines();
    void olderRadiationConstantReads16PpmHigher();
    void oracleDerivativesAreThoseOfItsLocus();
    void accurateAroundTheLocus_data();
    void accurateAroundTheLocus();
    void findsTheNearestPointAnywhere();
    void findsTheNearestPointFromCentresOfCurvature();
    void jumpsToTheNearerOfTwoPoints();
    void monotoneAlongTheLocus_data();
    void monotoneAlongTheLocus();
    void duvIsPositiveAbove();
    void zeroDuvOnTheLocus();
    void clampsBeyondTheEnds_data();
    void clampsBeyondTheEnds();
    void sideOfTheTangentBeyondTheEnds();
    void exactAtTheEnds();
    void unusableChromaticity_data();
    void unusableChromaticity();
    void edgesOfTheUsableRange_data();
    void edgesOfTheUsableRange();
    void temperatureFitsAnInteger();
    void nullTemperature();

private:
    void verifyNearest(Xy chromaticity) const;

    PlanckianLocus m_locus;
};

void ColorTemperatureTest::publishedValues_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("kelvin"); // with c2 = 1.4388e-2 m K
    QTest::addColumn<double>("kelvinTolerance");
    QTest::addColumn<double>("duv"); // to three decimals, NaN if not published
    QTest::addColumn<double>("duvTolerance");

    // CIE 15:2004, Table T.3. Illuminant A is Planck's radiator of 2848 K with c2 = 1.4350e-2 m K. The temperatures of
    // the daylight illuminants are nominal: 1.4388 / 1.4380 times 5000 K, 5500 K, 6500 K and 7500 K.
    QTest::newRow("CIE A") << 0.44758 << 0.40745 << 2848.0 * 1.4388 / 1.4350 << 0.2 << 0.0 << 1e-5;
    QTest::newRow("CIE C") << 0.31006 << 0.31616 << 6774.0 << 1.0 << notANumber << 0.0;
    QTest::newRow("CIE D50") << 0.34567 << 0.35851 << 5003.0 << 1.5 << notANumber << 0.0;
    QTest::newRow("CIE D55") << 0.33243 << 0.34744 << 5503.0 << 1.5 << notANumber << 0.0;
    QTest::newRow("CIE D65") << 0.31272 << 0.32903 << 6504.0 << 1.5 << 0.0032 << 5e-5;
    QTest::newRow("CIE D75") << 0.29903 << 0.31488 << 7504.0 << 1.5 << notANumber << 0.0;
    // The white of Rec. ITU-R BT.709 and BT.2020.
    QTest::newRow("D65, four digits") << 0.3127 << 0.3290 << 6504.0 << 0.5 << 0.0032 << 5e-5;
    // ANSI/NEMA C78.377-2008, Table 1: centres of the quadrangles of solid-state lighting. The tolerances are what
    // half a unit of the fourth decimal of x and y makes.
    QTest::newRow("ANSI 2700 K") << 0.4578 << 0.4101 << 2725.0 << 1.0 << 0.000 << 5.5e-4;
    QTest::newRow("ANSI 3000 K") << 0.4338 << 0.4030 << 3045.0 << 1.0 << 0.000 << 5.5e-4;
    QTest::newRow("ANSI 3500 K") << 0.4073 << 0.3917 << 3465.0 << 1.0 << 0.000 << 5.5e-4;
    QTest::newRow("ANSI 4000 K") << 0.3818 << 0.3797 << 3985.0 << 1.5 << 0.001 << 5.5e-4;
    QTest::newRow("ANSI 4500 K") << 0.3611 << 0.3658 << 4503.0 << 2.0 << 0.001 << 5.5e-4;
    QTest::newRow("ANSI 5000 K") << 0.3447 << 0.3553 << 5028.0 << 2.5 << 0.002 << 5.5e-4;
    QTest::newRow("ANSI 5700 K") << 0.3287 << 0.3417 << 5665.0 << 3.0 << 0.002 << 5.5e-4;
    QTest::newRow("ANSI 6500 K") << 0.3123 << 0.3282 << 6530.0 << 4.0 << 0.003 << 5.5e-4;
}

void ColorTemperatureTest::publishedValues()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, kelvin);
    QFETCH(double, kelvinTolerance);
    QFETCH(double, duv);
    QFETCH(double, duvTolerance);
    const Reading reading = read(Xy{x, y});
    QVERIFY2(std::fabs(conventional(reading.kelvin) - kelvin) <= kelvinTolerance, describe({x, y}, reading));
    if (!std::isnan(duv)) {
        QVERIFY2(std::fabs(reading.duv - duv) <= duvTolerance, describe({x, y}, reading));
    }
}

void ColorTemperatureTest::publishedIsotemperatureLines_data()
{
    QTest::addColumn<int>("mired"); // with c2 = 1.4388e-2 m K
    QTest::addColumn<double>("u");
    QTest::addColumn<double>("v");

    // A. R. Robertson, Computation of correlated color temperature and distribution temperature, J. Opt. Soc. Am. 58
    // (1968), also Wyszecki and Stiles, Color Science, 1982, Table 1(3.11), with u at 325 mired corrected (0.24702).
    const struct {
        int mired;
        double u, v;
    } lines[] = {{10, 0.18066, 0.26589}, {20, 0.18133, 0.26846}, {30, 0.18208, 0.27119}, {40, 0.18293, 0.27407},
        {50, 0.18388, 0.27709}, {60, 0.18494, 0.28021}, {70, 0.18611, 0.28342}, {80, 0.18740, 0.28668},
        {90, 0.18880, 0.28997}, {100, 0.19032, 0.29326}, {125, 0.19462, 0.30141}, {150, 0.19962, 0.30921},
        {175, 0.20525, 0.31647}, {200, 0.21142, 0.32312}, {225, 0.21807, 0.32909}, {250, 0.22511, 0.33439},
        {275, 0.23247, 0.33904}, {300, 0.24010, 0.34308}, {325, 0.24792, 0.34655}, {350, 0.25591, 0.34951},
        {375, 0.26400, 0.35200}, {400, 0.27218, 0.35407}, {425, 0.28039, 0.35577}, {450, 0.28863, 0.35714},
        {475, 0.29685, 0.35823}, {500, 0.30505, 0.35907}, {525, 0.31320, 0.35968}, {550, 0.32129, 0.36011},
        {575, 0.32931, 0.36038}, {600, 0.33724, 0.36051}};
    for (const auto &line : lines) {
        QTest::addRow("%d mired", line.mired) << line.mired << line.u << line.v;
    }
}

void ColorTemperatureTest::publishedIsotemperatureLines()
{
    QFETCH(int, mired);
    QFETCH(double, u);
    QFETCH(double, v);
    const Reading reading = read(Uv{u, v});
    // Half a unit of the fifth decimal in u and v is 7.1e-6 at most; the locus moves by 2.5e-4 a mired at least.
    QVERIFY2(std::fabs(1e6 / conventional(reading.kelvin) - mired) <= 7.1e-6 / 2.5e-4,
        describe(reference::toXy({u, v}), reading));
    QVERIFY2(std::fabs(reading.duv) <= 7.1e-6, describe(reference::toXy({u, v}), reading));
}

void ColorTemperatureTest::olderRadiationConstantReads16PpmHigher()
{
    const PlanckianLocus conventionalLocus(reference::conventionalC2);
    for (const double kelvin : {1500.0, 2856.0, 6504.0, 9300.0, 40000.0}) {
        const double reading = read(conventionalLocus.atKelvin(kelvin)).kelvin;
        QVERIFY(std::fabs(kelvin / reading - 1.000016) < 1e-6);
        QVERIFY(std::fabs(conventional(reading) - kelvin) < 1e-4);
    }
}

void ColorTemperatureTest::oracleDerivativesAreThoseOfItsLocus()
{
    constexpr long double step = 1e-3L;
    for (const long double mired : {11.0L, 25.0L, 153.8L, 400.0L, 666.7L, 999.0L}) {
        const PlanckianLocus::Point before = m_locus.at(mired - step);
        const PlanckianLocus::Point here = m_locus.at(mired);
        const PlanckianLocus::Point after = m_locus.at(mired + step);
        QVERIFY(std::fabs((after.u.value - before.u.value) / (2 * step) - here.u.first) < 1e-12L);
        QVERIFY(std::fabs((after.v.value - before.v.value) / (2 * step) - here.v.first) < 1e-12L);
        QVERIFY(std::fabs((after.u.first - before.u.first) / (2 * step) - here.u.second) < 1e-13L);
        QVERIFY(std::fabs((after.v.first - before.v.first) / (2 * step) - here.v.second) < 1e-13L);
    }
}

void ColorTemperatureTest::accurateAroundTheLocus_data()
{
    QTest::addColumn<double>("fromKelvin");
    QTest::addColumn<double>("toKelvin");
    QTest::addColumn<double>("kelvinTolerance");

    QTest::newRow("1000 K to 5000 K") << 1000.0 << 5000.0 << 1e-6;
    QTest::newRow("5000 K to 50000 K") << 5000.0 << 50000.0 << 1e-4;
    QTest::newRow("50000 K to 100000 K") << 50000.0 << 100000.0 << 1e-3;
}

// The locus has a reach of 0.1, so what lies on a normal within |Duv| <= 0.05 has its nearest point at the foot.
void ColorTemperatureTest::accurateAroundTheLocus()
{
    QFETCH(double, fromKelvin);
    QFETCH(double, toKelvin);
    QFETCH(double, kelvinTolerance);

    constexpr int steps = 1500 / thinning;
    const long double fromMired = 1e6L / toKelvin;
    const long double toMired = 1e6L / fromKelvin;
    double worstKelvin = 0.0;
    double worstDuv = 0.0;
    for (int i = 0; i <= steps; ++i) {
        const long double mired = fromMired + (toMired - fromMired) * i / steps;
        const PlanckianLocus::Point foot = m_locus.at(mired);
        for (int hundredths = -10; hundredths <= 10; ++hundredths) {
            const double duv = 0.005 * hundredths;
            const Xy chromaticity = reference::toXy(foot.offset(duv));
            const Reading reading = read(chromaticity);
            const double kelvinError = static_cast<double>(std::fabs(reading.kelvin - 1e6L / mired));
            const double duvError = std::fabs(reading.duv - duv);
            QVERIFY2(kelvinError <= kelvinTolerance, describe(chromaticity, reading));
            QVERIFY2(duvError <= 1e-12, describe(chromaticity, reading));
            worstKelvin = std::max(worstKelvin, kelvinError);
            worstDuv = std::max(worstDuv, duvError);
        }
    }
    qInfo("largest errors: %.2g K, %.2g in Duv", worstKelvin, worstDuv);
}

// Two points that are equally near are equally good, so it is distances that are compared.
void ColorTemperatureTest::verifyNearest(Xy chromaticity) const
{
    const Reading reading = read(chromaticity);
    const Uv uv = reference::toUv(chromaticity);
    const PlanckianLocus::Foot foot = m_locus.nearest(uv);
    const long double claimed = distance(uv, m_locus.atKelvin(reading.kelvin));
    QVERIFY2(std::fabs(std::fabs(reading.duv) - claimed) < 1e-12L, describe(chromaticity, reading));
    QVERIFY2(claimed < foot.distance + 1e-12L, describe(chromaticity, reading));
    if (foot.distance < 0.09L) {
        QVERIFY2(std::fabs(reading.kelvin / foot.kelvin - 1) < 1e-8L, describe(chromaticity, reading));
    }
}

void ColorTemperatureTest::findsTheNearestPointAnywhere()
{
    std::mt19937 generator(1);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 1500 / thinning; ++i) {
        const double y = 1e-3 + share(generator) * 0.9;
        verifyNearest({share(generator) * (1.0 - y), y});
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

// There the distance has no curvature along the locus, and Newton's method has no direction.
void ColorTemperatureTest::findsTheNearestPointFromCentresOfCurvature()
{
    std::mt19937 generator(3);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 1000 / thinning; ++i) {
        const PlanckianLocus::Point point = m_locus.at(100.0 + 300.0 * share(generator));
        const long double turning = point.u.first * point.v.second - point.v.first * point.u.second;
        const long double radius = std::pow(std::hypot(point.u.first, point.v.first), 3.0L) / turning;
        const long double excess = std::pow(10.0L, -1 - 12 * share(generator));
        verifyNearest(reference::toXy(point.offset(radius * (i % 2 == 0 ? 1 + excess : 1 - excess))));
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

// Far below the locus there are chromaticities with two nearest points. Across them the temperature jumps, and as the
// distance to a fixed set does, Duv changes by no more than one moves.
void ColorTemperatureTest::jumpsToTheNearerOfTwoPoints()
{
    double largestJump = 0.0;
    for (const double v : {0.05, 0.10, 0.15, 0.20}) {
        constexpr double left = 0.17; // right of the tangent at the hot end, beyond which Duv changes its sign
        constexpr int steps = 4000;
        constexpr double step = 0.3 / steps;
        Reading before = read(Uv{left, v});
        for (int i = 1; i <= steps; ++i) {
            const Reading reading = read(Uv{left + i * step, v});
            QVERIFY(reading.duv < 0.0);
            QVERIFY(std::fabs(reading.duv - before.duv) <= step + 1e-12);
            QVERIFY(reading.kelvin <= before.kelvin);
            largestJump = std::max(largestJump, before.kelvin / reading.kelvin);
            before = reading;
        }
    }
    QVERIFY(largestJump > 2.0);
}

void ColorTemperatureTest::monotoneAlongTheLocus_data()
{
    QTest::addColumn<double>("duv");

    QTest::newRow("below") << -0.05;
    QTest::newRow("on the locus") << 0.0;
    QTest::newRow("above") << 0.05;
}

void ColorTemperatureTest::monotoneAlongTheLocus()
{
    QFETCH(double, duv);

    double before = infinity;
    for (int i = 1; i < 9900; ++i) {
        const double mired = 10.0 + 0.1 * i;
        const double kelvin = read(m_locus.at(mired).offset(duv)).kelvin;
        QVERIFY2(kelvin < before, QByteArray::number(mired));
        before = kelvin;
        if (i % 50 != 0) {
            continue;
        }
        // At the nodes of a table, where pieces of it join, the steps are a thousand times finer.
        for (int j = -3; j <= 3; ++j) {
            const double near = read(m_locus.at(mired + 1e-4 * j).offset(duv)).kelvin;
            QVERIFY2(j == -3 || near < before, QByteArray::number(mired));
            before = near;
        }
    }
}

void ColorTemperatureTest::duvIsPositiveAbove()
{
    // sRGB green, and magenta at the same lightness of the diagram.
    QVERIFY(read(Xy{0.30, 0.60}).duv > 0.05);
    QVERIFY(read(Xy{0.32, 0.15}).duv < -0.05);
    for (const double kelvin : {1000.5, 1300.0, 1650.0, 2000.0, 6504.0, 99000.0}) {
        const PlanckianLocus::Point foot = m_locus.at(1e6L / kelvin);
        for (const double duv : {1e-12, 1e-6, 0.05, 0.08}) {
            QVERIFY(std::fabs(read(foot.offset(duv)).duv - duv) < 1e-13);
            QVERIFY(std::fabs(read(foot.offset(-duv)).duv + duv) < 1e-13);
        }
    }
}

void ColorTemperatureTest::zeroDuvOnTheLocus()
{
    for (int mired = 10; mired <= 1000; mired += 3) {
        QVERIFY(std::fabs(read(m_locus.at(mired).uv()).duv) < 1e-12);
    }
}

void ColorTemperatureTest::clampsBeyondTheEnds_data()
{
    QTest::addColumn<double>("kelvin");
    QTest::addColumn<double>("duv");
    QTest::addColumn<double>("clamped");

    for (const double duv : {-0.02, 0.0, 0.02}) {
        for (const double kelvin : {600.0, 900.0, 990.0}) {
            QTest::addRow("%g K, %g", kelvin, duv) << kelvin << duv << 1000.0;
        }
        for (const double kelvin : {101000.0, 200000.0, 1000000.0}) {
            QTest::addRow("%g K, %g", kelvin, duv) << kelvin << duv << 100000.0;
        }
    }
}

void ColorTemperatureTest::clampsBeyondTheEnds()
{
    QFETCH(double, kelvin);
    QFETCH(double, duv);
    QFETCH(double, clamped);
    const Uv chromaticity = m_locus.at(1e6L / kelvin).offset(duv);
    const Reading reading = read(chromaticity);
    QVERIFY(reading.kelvin == clamped);
    QVERIFY(std::fabs(std::fabs(reading.duv) - distance(chromaticity, m_locus.atKelvin(clamped))) < 1e-13);
    if (duv != 0.0) {
        QVERIFY(std::signbit(reading.duv) == std::signbit(duv));
    }
}

void ColorTemperatureTest::sideOfTheTangentBeyondTheEnds()
{
    // Left of the tangent at the hot end, although both are below that end.
    const Reading left = read(Uv{0.150, 0.200});
    const Reading right = read(Uv{0.175, 0.200});
    QVERIFY(left.kelvin == 100000.0 && left.duv > 0.0);
    QVERIFY(right.kelvin == 100000.0 && right.duv < 0.0);
    // Above the tangent at the cool end and below it, although both are below that end.
    const Reading above = read(Uv{0.55, 0.350});
    const Reading below = read(Uv{0.55, 0.340});
    QVERIFY(above.kelvin == 1000.0 && above.duv > 0.0);
    QVERIFY(below.kelvin == 1000.0 && below.duv < 0.0);
}

void ColorTemperatureTest::exactAtTheEnds()
{
    for (const double duv : {-0.05, 0.0, 0.05}) {
        QVERIFY(std::fabs(read(m_locus.at(1000).offset(duv)).kelvin - 1000.0) < 1e-9);
        QVERIFY(std::fabs(read(m_locus.at(10).offset(duv)).kelvin - 100000.0) < 1e-6);
        // A thousandth of a kelvin inside is told from the end.
        const double nearEnd = read(m_locus.at(1e6L / 99999.999L).offset(duv)).kelvin;
        QVERIFY(std::fabs(nearEnd - 99999.999) < 1e-4);
    }
}

void ColorTemperatureTest::unusableChromaticity_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");

    QTest::newRow("y zero") << 0.3 << 0.0;
    QTest::newRow("y negative zero") << 0.3 << -0.0;
    QTest::newRow("y negative") << 0.3 << -0.1;
    QTest::newRow("y least negative") << 0.3 << -std::numeric_limits<double>::denorm_min();
    QTest::newRow("y above 1") << 0.3 << std::nextafter(1.0, 2.0);
    QTest::newRow("x above 1") << std::nextafter(1.0, 2.0) << 0.3;
    QTest::newRow("x below -1") << std::nextafter(-1.0, -2.0) << 0.3;
    QTest::newRow("origin") << 0.0 << 0.0;
    QTest::newRow("denominator of u and v zero") << 1.5 << 0.0;
    QTest::newRow("denominator of u and v negative") << 3.0 << 0.1;
    for (const double bad : {notANumber, -notANumber, infinity, -infinity, DBL_MAX, -DBL_MAX}) {
        QTest::addRow("x %g", bad) << bad << 0.33;
        QTest::addRow("y %g", bad) << 0.31 << bad;
        QTest::addRow("both %g", bad) << bad << bad;
    }
}

void ColorTemperatureTest::unusableChromaticity()
{
    QFETCH(double, x);
    QFETCH(double, y);
    std::feclearexcept(FE_ALL_EXCEPT);
    const Reading reading = read(Xy{x, y});
    QVERIFY(!std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW));
    QVERIFY(reading.kelvin == 0.0);
    QVERIFY(reading.duv == 0.0);
}

void ColorTemperatureTest::edgesOfTheUsableRange_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");

    for (const double x : {-1.0, -DBL_MIN, 0.0, std::numeric_limits<double>::denorm_min(), 0.5, 1.0}) {
        for (const double y : {std::numeric_limits<double>::denorm_min(), DBL_MIN, 1e-9, 0.5, 1.0}) {
            QTest::addRow("%g, %g", x, y) << x << y;
        }
    }
}

void ColorTemperatureTest::edgesOfTheUsableRange()
{
    QFETCH(double, x);
    QFETCH(double, y);
    std::feclearexcept(FE_ALL_EXCEPT);
    const Reading reading = read(Xy{x, y});
    QVERIFY(!std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW));
    QVERIFY(reading.kelvin >= 1000.0 && reading.kelvin <= 100000.0);
    verifyNearest({x, y});
}

void ColorTemperatureTest::temperatureFitsAnInteger()
{
    std::mt19937 generator(2);
    std::uniform_real_distribution<double> coordinate(-1.1, 1.1);
    int unusable = 0;
    for (int i = 0; i < 100000; ++i) {
        const Xy chromaticity{coordinate(generator), coordinate(generator)};
        const Reading reading = read(chromaticity);
        const bool none = reading.kelvin == 0.0 && reading.duv == 0.0;
        QVERIFY2(none || (reading.kelvin >= 1000.0 && reading.kelvin <= 100000.0), describe(chromaticity, reading));
        QVERIFY2(std::fabs(reading.duv) < 7.0, describe(chromaticity, reading));
        unusable += none;
    }
    QVERIFY(unusable > 50000 && unusable < 70000);
}

void ColorTemperatureTest::nullTemperature()
{
    QVERIFY(GetColorTemperatureFromXY(0.3127, 0.3290, nullptr) == read(Xy{0.3127, 0.3290}).duv);
    QVERIFY(GetColorTemperatureFromXY(notANumber, 0.3290, nullptr) == 0.0);
}

QTEST_GUILESS_MAIN(ColorTemperatureTest)
#include "colortemperaturetest.moc"
