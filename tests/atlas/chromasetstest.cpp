// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/atlas/chromasets.h>

#include <QTest>

#include <algorithm>
#include <cmath>
#include <type_traits>

static_assert(std::is_same_v<decltype(&ChromaSets::GetColorTemperatureNew), int (*)(double, double, int &)>);
static_assert(std::is_same_v<decltype(&ChromaSets::rgbCxCyToWhiteCxCy),
    void (*)(double, double, double, double, double, double, double, double, double, double &, double &, double &)>);
static_assert(std::is_same_v<decltype(&ChromaSets::RGBCxCyFromWhiteCxCy),
    void (*)(double &, double, double, double &, double, double, double &, double, double, double, double, double)>);
static_assert(std::is_empty_v<ChromaSets>);
static_assert(std::is_trivially_copy_assignable_v<ChromaSets> && std::is_trivially_move_assignable_v<ChromaSets>);
static_assert(std::is_same_v<decltype(ChromaSets::A), const double[71][4]>);

namespace {

struct Line {
    double temperature;
    double u;
    double v;
    double slope;
};

constexpr Line referenceLines[] = {{1667, 0.3371, 0.36051, -113.8}, {1695, 0.3339, 0.3604, -67.9148},
    {2000, 0.30496, 0.35906, -11.29}, {6667, 0.1996, 0.30913, -0.7043}, {10000, 0.19031, 0.29325, -0.4787},
    {50000, 0.18132, 0.26845, -0.2687}, {100000, 0.18065, 0.26589, -0.2548}, {1000000, 0.1801, 0.2635, -0.2434}};

const Line *referenceLine(double temperature)
{
    const auto *found = std::find_if(std::begin(referenceLines), std::end(referenceLines),
        [=](const Line &line) { return line.temperature == temperature; });
    return found == std::end(referenceLines) ? nullptr : found;
}

// CIE 1960 (u, v) of the black body of \a temperature kelvin; c2 = 1.438e-2 m K.
void locus(const CEIAtlasValue &atlas, long double temperature, long double &u, long double &v)
{
    long double X = 0.0L;
    long double Y = 0.0L;
    long double Z = 0.0L;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas.atlasCoordinates) {
        const long double waveLength = row.waveLength * 1e-9L;
        const long double radiance = std::pow(waveLength, -5.0L) / std::expm1(1.438e-2L / (waveLength * temperature));
        X += row.X * radiance;
        Y += row.Y * radiance;
        Z += row.Z * radiance;
    }
    u = 4.0L * X / (X + 15.0L * Y + 3.0L * Z);
    v = 6.0L * Y / (X + 15.0L * Y + 3.0L * Z);
}

} // namespace

class ChromaSetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void temperaturesOfTheTable();
    void referenceLinesOfTheTable();
    void otherLinesFollowTheDefinition();
    void libraryAnswers();
};

void ChromaSetsTest::temperaturesOfTheTable()
{
    constexpr int temperatures[] = {1667, 1695, 1724, 1739, 1754, 1786, 1818, 1852, 1887, 1905, 1923, 1961, 2000, 2041,
        2083, 2105, 2128, 2174, 2222, 2273, 2326, 2353, 2381, 2439, 2500, 2564, 2632, 2667, 2703, 2778, 2857, 2941,
        3030, 3077, 3125, 3226, 3333, 3448, 3571, 3636, 3704, 3846, 4000, 4167, 4348, 4444, 4545, 4762, 5000, 5263,
        5556, 5714, 5882, 6250, 6667, 7143, 7692, 8000, 8333, 9091, 10000, 11111, 12500, 14286, 16667, 20000, 25000,
        33333, 50000, 100000, 1000000};
    QCOMPARE(std::size(temperatures), std::size_t(71));
    for (int i = 0; i < 71; ++i) {
        QVERIFY2(ChromaSets::A[i][0] == temperatures[i], qPrintable(QString::number(temperatures[i])));
        QVERIFY(i == 0 || 1.0 / ChromaSets::A[i][0] < 1.0 / ChromaSets::A[i - 1][0]);
    }
}

void ChromaSetsTest::referenceLinesOfTheTable()
{
    int found = 0;
    for (const auto &row : ChromaSets::A) {
        if (const Line *line = referenceLine(row[0])) {
            QVERIFY2(
                row[1] == line->u && row[2] == line->v && row[3] == line->slope, qPrintable(QString::number(row[0])));
            ++found;
        }
    }
    QCOMPARE(found, 8);
}

void ChromaSetsTest::otherLinesFollowTheDefinition()
{
    const CEIAtlasValue atlas;
    int compared = 0;
    for (const auto &row : ChromaSets::A) {
        if (referenceLine(row[0])) {
            continue;
        }
        // The lines stand at whole mireds. The slope of the normal is that of the locus, by central differences in
        // the mired, turned by a right angle.
        const long double mired = std::round(1e6 / row[0]);
        long double u = 0.0L;
        long double v = 0.0L;
        locus(atlas, 1e6L / mired, u, v);
        const long double h = 1e-4L;
        long double uLow = 0.0L;
        long double vLow = 0.0L;
        locus(atlas, 1e6L / (mired - h), uLow, vLow);
        long double uHigh = 0.0L;
        long double vHigh = 0.0L;
        locus(atlas, 1e6L / (mired + h), uHigh, vHigh);
        const long double slope = -(uHigh - uLow) / (vHigh - vLow);

        const auto agrees = [](double value, long double exact, long double unit) {
            return std::abs(value - exact) <= 0.5L * unit * (1.0L + 1e-4L)
                && std::abs(value / unit - std::round(value / unit)) < 1e-6L;
        };
        QVERIFY2(agrees(row[1], u, 1e-5L) && agrees(row[2], v, 1e-5L) && agrees(row[3], slope, 1e-4L),
            qPrintable(QStringLiteral("%1 K: (%2, %3), %4")
                           .arg(row[0])
                           .arg(static_cast<double>(u), 0, 'f', 7)
                           .arg(static_cast<double>(v), 0, 'f', 7)
                           .arg(static_cast<double>(slope), 0, 'f', 6)));
        ++compared;
    }
    QCOMPARE(compared, 63);
}

// What is handed to the library and back is tested with stand-ins for it.
void ChromaSetsTest::libraryAnswers()
{
    // The primaries of Rec. ITU-R BT.709 at their luma coefficients mix to D65, and that asks for them.
    double luminance = 0.0;
    double x = 0.0;
    double y = 0.0;
    ChromaSets::rgbCxCyToWhiteCxCy(0.2126, 0.64, 0.33, 0.7152, 0.30, 0.60, 0.0722, 0.15, 0.06, luminance, x, y);
    QVERIFY(std::abs(luminance - 1.0) < 1e-12);
    QVERIFY(std::abs(x - 0.3127) < 5e-5);
    QVERIFY(std::abs(y - 0.3290) < 5e-5);
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    ChromaSets::RGBCxCyFromWhiteCxCy(red, 0.64, 0.33, green, 0.30, 0.60, blue, 0.15, 0.06, luminance, x, y);
    QVERIFY(std::abs(red - 0.2126) < 1e-11 && std::abs(green - 0.7152) < 1e-11 && std::abs(blue - 0.0722) < 1e-11);
    int kelvin = 0;
    ChromaSets::GetColorTemperatureNew(0.3127, 0.3290, kelvin);
    QVERIFY2(std::abs(kelvin - 6503) <= 5, qPrintable(QString::number(kelvin)));
}

QTEST_GUILESS_MAIN(ChromaSetsTest)
#include "chromasetstest.moc"
