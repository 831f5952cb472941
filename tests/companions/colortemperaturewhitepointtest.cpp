// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/colortemperature.h>

#include <QtTest>

#include <array>
#include <cfenv>
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Color {
    double Y;
    double x;
    double y;
};

using Primaries = std::array<Color, 3>;

Color mix(const Primaries &primaries)
{
    const auto &[red, green, blue] = primaries;
    Color white{-1.0, -1.0, -1.0};
    RGBCxCyToWhiteCxCy(
        red.Y, red.x, red.y, green.Y, green.x, green.y, blue.Y, blue.x, blue.y, &white.Y, &white.x, &white.y);
    return white;
}

// The primaries with the luminances for the white; their own do not matter.
Primaries balance(Primaries primaries, const Color &white)
{
    auto &[red, green, blue] = primaries;
    red.Y = green.Y = blue.Y = -1.0;
    RGBCxCyFromWhiteCxCy(
        &red.Y, red.x, red.y, &green.Y, green.x, green.y, &blue.Y, blue.x, blue.y, white.Y, white.x, white.y);
    return primaries;
}

bool allUnbounded(const Primaries &primaries)
{
    return primaries[0].Y == infinity && primaries[1].Y == infinity && primaries[2].Y == infinity;
}

bool isNothing(const Color &color)
{
    return color.Y == 0.0 && color.x == 0.0 && color.y == 0.0;
}

long double doubleArea(const Color &a, const Color &b, const Color &c)
{
    const long double ax = a.x;
    const long double ay = a.y;
    return (b.x - ax) * (c.y - ay) - (c.x - ax) * (b.y - ay);
}

const Primaries rec709{{{21.26, 0.64, 0.33}, {71.52, 0.30, 0.60}, {7.22, 0.15, 0.06}}};
const Color d65{100.0, 0.3127, 0.3290};

class RandomColors {
public:
    explicit RandomColors(unsigned seed)
        : m_generator(seed)
    {
    }

    double between(double low, double high) { return std::uniform_real_distribution<double>(low, high)(m_generator); }
    Color color()
    {
        const double y = between(0.01, 0.98);
        return {between(0.01, 500.0), between(0.0, 1.0 - y), y};
    }
    // A triangle of at least a hundredth of the area of the diagram.
    Primaries primaries()
    {
        Primaries primaries;
        do {
            primaries = {color(), color(), color()};
        } while (std::fabs(doubleArea(primaries[0], primaries[1], primaries[2])) < 0.01L);
        return primaries;
    }

private:
    std::mt19937 m_generator;
};

} // namespace

class ColorTemperatureWhitePointTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void mixtureComputedByHand();
    void publishedLuminances_data();
    void publishedLuminances();
    void roundTripFromLuminances();
    void roundTripFromWhite();
    void whiteAtAPrimary();
    void whiteOutsideTheTriangle();
    void linearInLuminance();
    void thinTriangle();

    void noLight();
    void darkPrimaryContributesNothing();
    void lightFromPrimaryWithoutY();
    void primariesThatCancelOut();
    void mixtureOfUnusableArguments();
    void mixtureThatOverflows();

    void degenerateTriangle_data();
    void degenerateTriangle();
    void barelyATriangle();
    void tinyTriangle();
    void noPrimaryWithoutY();
    void noWhiteWithoutY();
    void darkWhite();
    void balanceOfUnusableArguments();
    void balanceThatOverflows();

    void nullResults();
};

void ColorTemperatureWhitePointTest::init()
{
    std::feclearexcept(FE_ALL_EXCEPT);
}

// A host may have floating-point exceptions trapped: bad input must not get as far as an invalid operation or a
// division by zero.
void ColorTemperatureWhitePointTest::cleanup()
{
    QVERIFY(!std::fetestexcept(FE_INVALID | FE_DIVBYZERO));
}

// Red: X = 2, Y = 1, Z = 1. Green: X = 1, Y = 2, Z = 1. Blue: X = 1, Y = 1, Z = 2. The sums are 4, 4 and 4.
void ColorTemperatureWhitePointTest::mixtureComputedByHand()
{
    const Primaries primaries{{{1.0, 0.5, 0.25}, {2.0, 0.25, 0.5}, {1.0, 0.25, 0.25}}};
    const Color white = mix(primaries);
    QVERIFY(white.Y == 4.0);
    QVERIFY(white.x == 1.0 / 3.0);
    QVERIFY(white.y == 1.0 / 3.0);

    const Primaries balanced = balance(primaries, white);
    QVERIFY(std::fabs(balanced[0].Y - 1.0) < 4 * DBL_EPSILON);
    QVERIFY(std::fabs(balanced[1].Y - 2.0) < 8 * DBL_EPSILON);
    QVERIFY(std::fabs(balanced[2].Y - 1.0) < 4 * DBL_EPSILON);
}

void ColorTemperatureWhitePointTest::publishedLuminances_data()
{
    QTest::addColumn<QVector<double>>("chromaticities"); // x, y of red, green, blue, white
    QTest::addColumn<QVector<double>>("luminances");
    QTest::addColumn<double>("tolerance"); // half a unit of the last decimal

    using Values = QVector<double>;
    QTest::newRow("NTSC 1953, illuminant C")
        << Values{0.67, 0.33, 0.21, 0.71, 0.14, 0.08, 0.3101, 0.3162} << Values{0.299, 0.587, 0.114} << 5e-4;
    QTest::newRow("Rec. ITU-R BT.709-6") << Values{0.64, 0.33, 0.30, 0.60, 0.15, 0.06, 0.3127, 0.3290}
                                         << Values{0.2126, 0.7152, 0.0722} << 5e-5;
    QTest::newRow("Rec. ITU-R BT.2020-2")
        << Values{0.708, 0.292, 0.170, 0.797, 0.131, 0.046, 0.3127, 0.3290} << Values{0.2627, 0.6780, 0.0593} << 5e-5;
    QTest::newRow("SMPTE RP 431-2") << Values{0.680, 0.320, 0.265, 0.690, 0.150, 0.060, 0.314, 0.351}
                                    << Values{0.2095, 0.7216, 0.0689} << 5e-5;
    // The blue primary is imaginary: y < 0.
    QTest::newRow("SMPTE ST 2065-1") << Values{0.7347, 0.2653, 0.0, 1.0, 0.0001, -0.0770, 0.32168, 0.33767}
                                     << Values{0.3439664498, 0.7281660966, -0.0721325464} << 5e-11;
}

void ColorTemperatureWhitePointTest::publishedLuminances()
{
    QFETCH(QVector<double>, chromaticities);
    QFETCH(QVector<double>, luminances);
    QFETCH(double, tolerance);
    const Color white{1.0, chromaticities[6], chromaticities[7]};
    Primaries primaries;
    for (int i = 0; i < 3; ++i) {
        primaries[i] = {0.0, chromaticities[2 * i], chromaticities[2 * i + 1]};
    }
    primaries = balance(primaries, white);
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(std::fabs(primaries[i].Y - luminances[i]) <= tolerance, QByteArray::number(primaries[i].Y, 'g', 17));
    }
    const Color mixed = mix(primaries);
    QVERIFY(std::fabs(mixed.Y - 1.0) < 1e-14);
    QVERIFY(std::fabs(mixed.x - white.x) < 1e-14);
    QVERIFY(std::fabs(mixed.y - white.y) < 1e-14);
}

void ColorTemperatureWhitePointTest::roundTripFromLuminances()
{
    RandomColors random(1);
    for (int i = 0; i < 20000; ++i) {
        const Primaries primaries = random.primaries();
        const Color white = mix(primaries);
        const Primaries balanced = balance(primaries, white);
        // The chromaticity of the white is rounded, which moves the luminances in the ratio of the sums X + Y + Z.
        const double sum = white.Y / white.y;
        for (int j = 0; j < 3; ++j) {
            QVERIFY2(std::fabs(balanced[j].Y - primaries[j].Y) < 1e-13 * sum, QByteArray::number(i));
        }
    }
}

void ColorTemperatureWhitePointTest::roundTripFromWhite()
{
    RandomColors random(2);
    for (int i = 0; i < 20000; ++i) {
        const Primaries primaries = random.primaries();
        const Color white = random.color();
        const Primaries balanced = balance(primaries, white);
        const Color mixed = mix(balanced);
        double magnitude = 0.0;
        for (const Color &primary : balanced) {
            magnitude += std::fabs(primary.Y / primary.y);
        }
        const double tolerance = 1e-14 * magnitude / (white.Y / white.y);
        QVERIFY2(std::fabs(mixed.Y / white.Y - 1.0) < tolerance / white.y, QByteArray::number(i));
        QVERIFY2(std::fabs(mixed.x - white.x) < tolerance, QByteArray::number(i));
        QVERIFY2(std::fabs(mixed.y - white.y) < tolerance, QByteArray::number(i));
    }
}

void ColorTemperatureWhitePointTest::whiteAtAPrimary()
{
    for (int i = 0; i < 3; ++i) {
        const Primaries balanced = balance(rec709, {80.0, rec709[i].x, rec709[i].y});
        QVERIFY(std::fabs(balanced[i].Y - 80.0) < 1e-13);
        QVERIFY(balanced[(i + 1) % 3].Y == 0.0);
        QVERIFY(balanced[(i + 2) % 3].Y == 0.0);
    }
}

void ColorTemperatureWhitePointTest::whiteOutsideTheTriangle()
{
    // Cyan of 490 nm: no red can make it.
    const Primaries cyan = balance(rec709, {100.0, 0.0454, 0.2950});
    QVERIFY(cyan[0].Y < 0.0 && cyan[1].Y > 0.0 && cyan[2].Y > 0.0);
    // Beyond red, away from the opposite side.
    const Primaries red = balance(rec709, {100.0, 0.73, 0.27});
    QVERIFY(red[0].Y > 0.0 && red[1].Y < 0.0);
    for (const Primaries &balanced : {cyan, red}) {
        QVERIFY(std::fabs(balanced[0].Y + balanced[1].Y + balanced[2].Y - 100.0) < 1e-11);
    }
}

void ColorTemperatureWhitePointTest::linearInLuminance()
{
    const Color white = mix(rec709);
    const Primaries balanced = balance(rec709, d65);
    for (const double factor : {0x1p-40, 0.5, 2.0, 0x1p40}) {
        Primaries scaled = rec709;
        for (Color &primary : scaled) {
            primary.Y *= factor;
        }
        const Color scaledWhite = mix(scaled);
        QVERIFY(scaledWhite.Y == white.Y * factor);
        QVERIFY(scaledWhite.x == white.x);
        QVERIFY(scaledWhite.y == white.y);
        const Primaries scaledBalanced = balance(rec709, {d65.Y * factor, d65.x, d65.y});
        for (int i = 0; i < 3; ++i) {
            QVERIFY(scaledBalanced[i].Y == balanced[i].Y * factor);
        }
    }
}

// Where the products in an area nearly cancel, rounding them would cost all but seven digits.
void ColorTemperatureWhitePointTest::thinTriangle()
{
    const Primaries primaries{{{0.0, 0.3, 0.31}, {0.0, 0.4, 0.43}, {0.0, 0.35, 0.37 + 1e-9}}};
    const Color white{100.0, 0.36, 0.382 + 3e-10};
    const Primaries balanced = balance(primaries, white);
    const long double perArea
        = static_cast<long double>(white.Y) / white.y / doubleArea(primaries[0], primaries[1], primaries[2]);
    const long double red = doubleArea(white, primaries[1], primaries[2]) * perArea * primaries[0].y;
    const long double green = doubleArea(primaries[0], white, primaries[2]) * perArea * primaries[1].y;
    const long double blue = doubleArea(primaries[0], primaries[1], white) * perArea * primaries[2].y;
    QVERIFY(std::fabs(balanced[0].Y / red - 1) < 1e-10L);
    QVERIFY(std::fabs(balanced[1].Y / green - 1) < 1e-10L);
    QVERIFY(std::fabs(balanced[2].Y / blue - 1) < 1e-10L);
}

void ColorTemperatureWhitePointTest::noLight()
{
    Primaries primaries = rec709;
    primaries[0].Y = primaries[1].Y = primaries[2].Y = 0.0;
    QVERIFY(isNothing(mix(primaries)));
    // No light from nowhere, and back again.
    QVERIFY(isNothing(mix({})));
    const Primaries balanced = balance(rec709, mix(primaries));
    QVERIFY(balanced[0].Y == 0.0 && balanced[1].Y == 0.0 && balanced[2].Y == 0.0);
}

void ColorTemperatureWhitePointTest::darkPrimaryContributesNothing()
{
    Primaries primaries = rec709;
    primaries[1] = {0.0, 0.3, 0.0};
    primaries[2] = {0.0, 0.0, 0.0};
    const Color white = mix(primaries);
    QVERIFY(white.Y == rec709[0].Y);
    QVERIFY(std::fabs(white.x - rec709[0].x) < 2 * DBL_EPSILON);
    QVERIFY(std::fabs(white.y - rec709[0].y) < 2 * DBL_EPSILON);
}

void ColorTemperatureWhitePointTest::lightFromPrimaryWithoutY()
{
    for (int i = 0; i < 3; ++i) {
        Primaries primaries = rec709;
        primaries[i].y = 0.0;
        const Color white = mix(primaries);
        QVERIFY(std::fabs(white.Y - 100.0) < 1e-12);
        QVERIFY(white.x == 0.0);
        QVERIFY(white.y == 0.0);
    }
}

void ColorTemperatureWhitePointTest::primariesThatCancelOut()
{
    QVERIFY(isNothing(mix({{{1.0, 0.3, 0.3}, {-1.0, 0.3, 0.3}, {0.0, 0.3, 0.3}}})));
    // X + Y + Z cancels out, the luminance does not.
    const Color white = mix({{{1.0, 0.5, 0.25}, {-2.0, 0.25, 0.5}, {0.0, 0.25, 0.25}}});
    QVERIFY(white.Y == -1.0);
    QVERIFY(white.x == 0.0);
    QVERIFY(white.y == 0.0);
}

void ColorTemperatureWhitePointTest::mixtureOfUnusableArguments()
{
    for (const double bad : {notANumber, infinity, -infinity}) {
        for (int i = 0; i < 3; ++i) {
            for (double Color::*member : {&Color::Y, &Color::x, &Color::y}) {
                Primaries primaries = rec709;
                primaries[i].*member = bad;
                QVERIFY(isNothing(mix(primaries)));
            }
        }
    }
}

void ColorTemperatureWhitePointTest::mixtureThatOverflows()
{
    Primaries primaries = rec709;
    primaries[0].Y = primaries[1].Y = DBL_MAX;
    QVERIFY(isNothing(mix(primaries)));
    primaries = rec709;
    primaries[0].y = DBL_MIN;
    primaries[0].Y = 1e10;
    QVERIFY(isNothing(mix(primaries)));
    primaries = rec709;
    primaries[0].x = DBL_MAX;
    QVERIFY(isNothing(mix(primaries)));
    // Only the sum of X + Y + Z does.
    QVERIFY(isNothing(mix({{{1e307, 0.1, 0.1}, {1e307, 0.1, 0.1}, {1e307, 0.1, 0.1}}})));
    std::feclearexcept(FE_ALL_EXCEPT);
}

void ColorTemperatureWhitePointTest::degenerateTriangle_data()
{
    QTest::addColumn<QVector<double>>("chromaticities");

    using Values = QVector<double>;
    QTest::newRow("one point") << Values{0.3, 0.3, 0.3, 0.3, 0.3, 0.3};
    QTest::newRow("red on green") << Values{0.3, 0.6, 0.3, 0.6, 0.15, 0.06};
    QTest::newRow("green on blue") << Values{0.64, 0.33, 0.15, 0.06, 0.15, 0.06};
    QTest::newRow("blue on red") << Values{0.64, 0.33, 0.3, 0.6, 0.64, 0.33};
    QTest::newRow("horizontal") << Values{0.1, 0.3, 0.2, 0.3, 0.7, 0.3};
    QTest::newRow("vertical") << Values{0.3, 0.1, 0.3, 0.2, 0.3, 0.7};
    QTest::newRow("diagonal") << Values{0.1, 0.1, 0.2, 0.2, 0.3, 0.3};
    // On a line in decimals, and off it by their rounding.
    QTest::newRow("slope 3") << Values{0.1, 0.17, 0.2, 0.47, 0.23, 0.56};
    QTest::newRow("slope -0.7") << Values{0.13, 0.339, 0.31, 0.213, 0.47, 0.101};
    QTest::newRow("two close together") << Values{0.1, 0.3, 0.1001, 0.3, 0.6, 0.3 + 1e-9};
    QTest::newRow("a millionth of a millionth thick") << Values{0.1, 0.3, 0.6, 0.3, 0.35, 0.3 + 4e-13};
}

void ColorTemperatureWhitePointTest::degenerateTriangle()
{
    QFETCH(QVector<double>, chromaticities);
    Primaries primaries;
    for (int i = 0; i < 3; ++i) {
        primaries[i] = {0.0, chromaticities[2 * i], chromaticities[2 * i + 1]};
    }
    QVERIFY(allUnbounded(balance(primaries, d65)));
    // Not even a white on the line has a unique solution, and neither has darkness.
    QVERIFY(allUnbounded(balance(primaries, {100.0, primaries[0].x, primaries[0].y})));
    QVERIFY(allUnbounded(balance(primaries, {0.0, 0.3127, 0.3290})));
}

void ColorTemperatureWhitePointTest::barelyATriangle()
{
    const Primaries primaries{{{0.0, 0.1, 0.3}, {0.0, 0.6, 0.3}, {0.0, 0.35, 0.3 + 6e-13}}};
    const Primaries balanced = balance(primaries, {100.0, 0.35, 0.3 + 2e-13});
    for (const Color &primary : balanced) {
        QVERIFY2(std::fabs(primary.Y - 100.0 / 3.0) < 0.1, QByteArray::number(primary.Y));
    }
}

// What counts is how flat a triangle is, not how small.
void ColorTemperatureWhitePointTest::tinyTriangle()
{
    Primaries primaries{{{1.0, 0.25, 0.25}, {2.0, 0.25 + 0x1p-30, 0.25}, {3.0, 0.25, 0.25 + 0x1p-30}}};
    const Color white{6.0, 0.25 + 0x1p-32, 0.25 + 0x1p-31};
    const Primaries balanced = balance(primaries, white);
    const double sum = white.Y / white.y;
    QVERIFY(std::fabs(balanced[0].Y - 0.25 * sum * primaries[0].y) < 1e-14);
    QVERIFY(std::fabs(balanced[1].Y - 0.25 * sum * primaries[1].y) < 1e-14);
    QVERIFY(std::fabs(balanced[2].Y - 0.50 * sum * primaries[2].y) < 1e-14);
}

void ColorTemperatureWhitePointTest::noPrimaryWithoutY()
{
    for (int i = 0; i < 3; ++i) {
        Primaries primaries = rec709;
        primaries[i].y = 0.0;
        QVERIFY(allUnbounded(balance(primaries, d65)));
    }
}

void ColorTemperatureWhitePointTest::noWhiteWithoutY()
{
    QVERIFY(allUnbounded(balance(rec709, {100.0, 0.3, 0.0})));
}

void ColorTemperatureWhitePointTest::darkWhite()
{
    for (const Color &white : {Color{0.0, 0.3127, 0.3290}, Color{0.0, 0.0, 0.0}, Color{-0.0, 0.3, 0.3}}) {
        const Primaries balanced = balance(rec709, white);
        QVERIFY(balanced[0].Y == 0.0 && balanced[1].Y == 0.0 && balanced[2].Y == 0.0);
    }
}

void ColorTemperatureWhitePointTest::balanceOfUnusableArguments()
{
    for (const double bad : {notANumber, infinity, -infinity}) {
        for (int i = 0; i < 3; ++i) {
            for (double Color::*member : {&Color::x, &Color::y}) {
                Primaries primaries = rec709;
                primaries[i].*member = bad;
                QVERIFY(allUnbounded(balance(primaries, d65)));
            }
        }
        for (double Color::*member : {&Color::Y, &Color::x, &Color::y}) {
            Color white = d65;
            white.*member = bad;
            QVERIFY(allUnbounded(balance(rec709, white)));
        }
        QVERIFY(allUnbounded(balance(rec709, {0.0, bad, 0.3290})));
        QVERIFY(allUnbounded(balance(rec709, {0.0, 0.3127, bad})));
    }
}

void ColorTemperatureWhitePointTest::balanceThatOverflows()
{
    QVERIFY(allUnbounded(balance(rec709, {DBL_MAX, 0.3127, 0.3290})));
    QVERIFY(allUnbounded(balance(rec709, {100.0, 0.3127, DBL_MIN})));
    QVERIFY(allUnbounded(balance(rec709, {100.0, DBL_MAX, 0.3290})));
    Primaries primaries = rec709;
    primaries[0].x = DBL_MAX;
    QVERIFY(allUnbounded(balance(primaries, d65)));
    std::feclearexcept(FE_ALL_EXCEPT);
}

void ColorTemperatureWhitePointTest::nullResults()
{
    double value = -1.0;
    RGBCxCyToWhiteCxCy(21.26, 0.64, 0.33, 71.52, 0.30, 0.60, 7.22, 0.15, 0.06, nullptr, nullptr, &value);
    QVERIFY(value == mix(rec709).y);
    RGBCxCyToWhiteCxCy(21.26, 0.64, 0.33, 71.52, 0.30, 0.60, 7.22, 0.15, 0.06, &value, nullptr, nullptr);
    QVERIFY(value == mix(rec709).Y);
    RGBCxCyFromWhiteCxCy(nullptr, 0.64, 0.33, &value, 0.30, 0.60, nullptr, 0.15, 0.06, 100.0, 0.3127, 0.3290);
    QVERIFY(value == balance(rec709, d65)[1].Y);
    RGBCxCyFromWhiteCxCy(&value, 0.64, 0.33, nullptr, 0.30, 0.60, nullptr, 0.15, 0.06, 100.0, 0.3127, 0.3290);
    QVERIFY(value == balance(rec709, d65)[0].Y);
}

QTEST_GUILESS_MAIN(ColorTemperatureWhitePointTest)
#include "colortemperaturewhitepointtest.moc"
