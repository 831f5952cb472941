// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>
#include <gamutmodel/dominantwavelength.h>
#include <gamutmodel/publishedgamuts.h>
#include <gamutmodel/spectrallocus.h>

#include <QTest>

#include <cmath>
#include <limits>
#include <vector>

using namespace Model;

Q_DECLARE_METATYPE(Model::DiagramPoint)

class DominantWavelengthTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void locusAtWholeNanometres();
    void locusOfPublishedTables_data();
    void locusOfPublishedTables();
    void locusBetweenNanometres();
    void locusBeyondItsEnds();
    void monochromaticPrimaries();
    void publishedValues_data();
    void publishedValues();
    void agreesWithAPlainSearch_data();
    void agreesWithAPlainSearch();
    void purplesAreNegative();
    void wavelengthsThereAndBack_data();
    void wavelengthsThereAndBack();
    void chromaticitiesThereAndBack_data();
    void chromaticitiesThereAndBack();
    void longerThanTheLocus();
    void wavelengthsThatAreNotDefined();
    void complementOfWhatIsNoPurple();
    void theWhiteHasNoHue();
    void whitesOutsideTheLocus();
    void notFinite();
};

namespace {

constexpr DiagramPoint equalEnergy{1.0 / 3.0, 1.0 / 3.0};
constexpr DiagramPoint d65{0.3127, 0.3290};

bool isNear(double value, double expected, double tolerance)
{
    return std::fabs(value - expected) <= tolerance;
}

QByteArray text(double value)
{
    return QByteArray::number(value, 'g', 15);
}

void whites()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("E") << 1.0 / 3.0 << 1.0 / 3.0;
    QTest::newRow("D65") << 0.3127 << 0.3290;
    QTest::newRow("9300 K") << 0.2831 << 0.2971;
    QTest::newRow("A") << 0.4476 << 0.4074;
    QTest::newRow("1500 K") << 0.5857 << 0.3931;
    QTest::newRow("near blue") << 0.20 << 0.10;
}

struct Row {
    long double wavelength;
    long double x;
    long double y;
};

//! The locus as straight lines between the whole nanometres, from the table of the atlas.
std::vector<Row> plainLocus()
{
    std::vector<Row> rows;
    const CEIAtlasValue atlas;
    for (const auto &c : atlas.atlasCoordinates) {
        if (c.waveLength >= 380 && c.waveLength <= 699) {
            const long double sum = (long double)(c.X) + c.Y + c.Z;
            rows.push_back({(long double)(c.waveLength), c.X / sum, c.Y / sum});
        }
    }
    return rows;
}

struct Hit {
    bool found = false;
    long double wavelength = 0.0L;
    long double distance = 0.0L; // in multiples of the direction
};

//! Where the ray from the white meets the line from a to b.
Hit meeting(const Row &a, const Row &b, const DiagramPoint &white, long double dx, long double dy)
{
    const long double lx = b.x - a.x;
    const long double ly = b.y - a.y;
    const long double determinant = dx * ly - dy * lx;
    const long double ax = a.x - white.x;
    const long double ay = a.y - white.y;
    const long double along = (ax * ly - ay * lx) / determinant;
    const long double part = (ax * dy - ay * dx) / determinant;
    if (!(along > 0.0L && part >= 0.0L && part <= 1.0L)) {
        return {};
    }
    return {true, a.wavelength + part * (b.wavelength - a.wavelength), along};
}

DominantWavelength plainSearch(const DiagramPoint &xy, const DiagramPoint &white)
{
    static const std::vector<Row> rows = plainLocus();
    const long double dx = (long double)(xy.x) - white.x;
    const long double dy = (long double)(xy.y) - white.y;
    const auto onLocus = [&](long double sign) {
        for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
            const Hit hit = meeting(rows[i], rows[i + 1], white, sign * dx, sign * dy);
            if (hit.found) {
                return hit;
            }
        }
        return Hit();
    };
    const Hit hit = onLocus(1.0L);
    if (hit.found) {
        return {double(hit.wavelength), double(1.0L / hit.distance)};
    }
    const Hit purple = meeting(rows.back(), rows.front(), white, dx, dy);
    return {-double(onLocus(-1.0L).wavelength), double(1.0L / purple.distance)};
}

} // namespace

void DominantWavelengthTest::locusAtWholeNanometres()
{
    const CEIAtlasValue atlas;
    for (int i = 1; i + 1 < atlas.atlasCoordinates.size(); ++i) {
        const auto &c = atlas.atlasCoordinates.at(i);
        const DiagramPoint xy = spectralChromaticity(c.waveLength);
        QVERIFY(xy.x == c.X / (c.X + c.Y + c.Z));
        QVERIFY(xy.y == c.Y / (c.X + c.Y + c.Z));
    }
}

// Chromaticity coordinates of the spectral stimuli, as CIE 15 and the textbooks tabulate them at 5 nm. They were
// computed from functions of fewer digits.
void DominantWavelengthTest::locusOfPublishedTables_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("380") << 380.0 << 0.1741 << 0.0050;
    QTest::newRow("435") << 435.0 << 0.1669 << 0.0086;
    QTest::newRow("460") << 460.0 << 0.1440 << 0.0297;
    QTest::newRow("480") << 480.0 << 0.0913 << 0.1327;
    QTest::newRow("500") << 500.0 << 0.0082 << 0.5384;
    QTest::newRow("520") << 520.0 << 0.0743 << 0.8338;
    QTest::newRow("555") << 555.0 << 0.3373 << 0.6589;
    QTest::newRow("580") << 580.0 << 0.5125 << 0.4866;
    QTest::newRow("600") << 600.0 << 0.6270 << 0.3725;
    QTest::newRow("650") << 650.0 << 0.7260 << 0.2740;
    QTest::newRow("700") << 700.0 << 0.7347 << 0.2653;
    QTest::newRow("780") << 780.0 << 0.7347 << 0.2653;
}

void DominantWavelengthTest::locusOfPublishedTables()
{
    QFETCH(double, wavelength);
    QFETCH(double, x);
    QFETCH(double, y);
    const DiagramPoint xy = spectralChromaticity(wavelength);
    QVERIFY2(isNear(xy.x, x, 1e-4), text(xy.x));
    QVERIFY2(isNear(xy.y, y, 1e-4), text(xy.y));
}

// Smooth: near to the straight line between the nanometres, and on the convex side of it where the locus bends.
void DominantWavelengthTest::locusBetweenNanometres()
{
    for (int i = 380; i < 699; ++i) {
        const DiagramPoint a = spectralChromaticity(i);
        const DiagramPoint b = spectralChromaticity(i + 1.0);
        const DiagramPoint middle = spectralChromaticity(i + 0.5);
        QVERIFY(std::hypot(middle.x - (a.x + b.x) / 2.0, middle.y - (a.y + b.y) / 2.0) < 5e-4);
    }
    const DiagramPoint a = spectralChromaticity(512.0);
    const DiagramPoint b = spectralChromaticity(513.0);
    QVERIFY(spectralChromaticity(512.5).y > (a.y + b.y) / 2.0);
}

void DominantWavelengthTest::locusBeyondItsEnds()
{
    QVERIFY(spectralChromaticity(-5.0).x == spectralChromaticity(361.0).x);
    QVERIFY(spectralChromaticity(1e300).y == spectralChromaticity(829.0).y);
    QVERIFY(std::isnan(spectralChromaticity(std::numeric_limits<double>::quiet_NaN()).x));
    const DiagramPoint end = spectralChromaticity(longestWavelength);
    for (double wavelength = longestWavelength; wavelength <= 829.0; wavelength += 0.05) {
        const DiagramPoint xy = spectralChromaticity(wavelength);
        QVERIFY2(std::hypot(xy.x - end.x, xy.y - end.y) < 2e-6, text(wavelength));
    }
    QVERIFY(isNear(spectralChromaticity(361.0).x, spectralChromaticity(shortestWavelength).x, 0.0015));
}

// The primaries of Rec.2020 are defined as monochromatic light of 630, 532 and 467 nm, in three decimals.
void DominantWavelengthTest::monochromaticPrimaries()
{
    const Targets t = rec2020().getTargets();
    const auto verify = [](const Target &primary, double wavelength) {
        for (const DiagramPoint &white : {equalEnergy, d65}) {
            const auto hue = dominantWavelength({primary.x, primary.y}, white);
            QVERIFY(hue);
            QVERIFY2(isNear(hue->wavelength, wavelength, 0.15), text(hue->wavelength));
            QVERIFY2(isNear(hue->purity, 1.0, 0.003), text(hue->purity));
        }
    };
    verify(t.red, 630.0);
    verify(t.green, 532.0);
    verify(t.blue, 467.0);
}

void DominantWavelengthTest::publishedValues_data()
{
    QTest::addColumn<DiagramPoint>("xy");
    QTest::addColumn<DiagramPoint>("white");
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("purity");
    QTest::addColumn<double>("tolerance");
    // A worked example of a colorimetry library, whose table is interpolated otherwise.
    QTest::newRow("616 nm") << DiagramPoint{0.54369557, 0.32107944} << d65 << 616.0 << 0.6228856 << 0.5;
}

void DominantWavelengthTest::publishedValues()
{
    QFETCH(DiagramPoint, xy);
    QFETCH(DiagramPoint, white);
    QFETCH(double, wavelength);
    QFETCH(double, purity);
    QFETCH(double, tolerance);
    const auto hue = dominantWavelength(xy, white);
    QVERIFY(hue);
    QVERIFY2(isNear(hue->wavelength, wavelength, tolerance), text(hue->wavelength));
    QVERIFY2(isNear(hue->purity, purity, 0.001), text(hue->purity));
}

void DominantWavelengthTest::agreesWithAPlainSearch_data()
{
    whites();
}

void DominantWavelengthTest::agreesWithAPlainSearch()
{
    QFETCH(double, x);
    QFETCH(double, y);
    int purples = 0;
    for (double cx = -0.1; cx < 0.9; cx += 0.0371) {
        for (double cy = -0.1; cy < 0.95; cy += 0.0373) {
            const auto hue = dominantWavelength({cx, cy}, {x, y});
            const DominantWavelength expected = plainSearch({cx, cy}, {x, y});
            QVERIFY(hue);
            // Lines instead of cubics between the nanometres, seen from a white that may be near to them.
            QVERIFY2(isNear(hue->wavelength, expected.wavelength, 0.03),
                text(hue->wavelength) + " instead of " + text(expected.wavelength));
            QVERIFY2(isNear(hue->purity / expected.purity, 1.0, 0.002), text(hue->purity / expected.purity));
            purples += hue->wavelength < 0.0;
        }
    }
    QVERIFY(purples > 20);
}

void DominantWavelengthTest::purplesAreNegative()
{
    const auto magenta = dominantWavelength({0.35, 0.18}, d65);
    QVERIFY(magenta);
    QVERIFY(magenta->wavelength < -530.0 && magenta->wavelength > -560.0);
    // The complementary colour lies on the other side of the white.
    const DiagramPoint green = spectralChromaticity(-magenta->wavelength);
    const double cross = (green.x - d65.x) * (0.18 - d65.y) - (green.y - d65.y) * (0.35 - d65.x);
    QVERIFY(std::fabs(cross) < 1e-14);
    QVERIFY((green.x - d65.x) * (0.35 - d65.x) + (green.y - d65.y) * (0.18 - d65.y) < 0.0);
    // In the middle of the line of purples the purity is 1.
    const DiagramPoint violet = spectralChromaticity(shortestWavelength);
    const DiagramPoint red = spectralChromaticity(longestWavelength);
    const auto purple = dominantWavelength({(violet.x + red.x) / 2.0, (violet.y + red.y) / 2.0}, d65);
    QVERIFY(purple && purple->wavelength < 0.0);
    QVERIFY(isNear(purple->purity, 1.0, 1e-14));
    // Either side of its ends
    const auto towards = [&](const DiagramPoint &end, double dx) {
        return dominantWavelength({end.x + dx, end.y}, d65)->wavelength;
    };
    QVERIFY(towards(violet, 1e-9) < 0.0);
    QVERIFY(isNear(towards(violet, -1e-9), shortestWavelength, 1e-3));
    QVERIFY(towards(red, -1e-9) < 0.0);
    QVERIFY(isNear(towards(red, 1e-9), longestWavelength, 1e-3));
}

void DominantWavelengthTest::wavelengthsThereAndBack_data()
{
    whites();
}

void DominantWavelengthTest::wavelengthsThereAndBack()
{
    QFETCH(double, x);
    QFETCH(double, y);
    const DiagramPoint white{x, y};
    int complements = 0;
    for (int tenth = 3800; tenth <= 6990; ++tenth) {
        for (const double purity : {0.01, 0.3, 1.0, 1.7}) {
            for (const double wavelength : {tenth / 10.0, -tenth / 10.0}) {
                const auto xy = chromaticityOf({wavelength, purity}, white);
                if (wavelength < 0.0 && !xy) {
                    continue;
                }
                QVERIFY(xy);
                const auto hue = dominantWavelength(*xy, white);
                QVERIFY(hue);
                complements += wavelength < 0.0;
                QVERIFY2(isNear(hue->wavelength, wavelength, 1e-6), text(hue->wavelength) + " of " + text(wavelength));
                QVERIFY2(isNear(hue->purity, purity, 1e-12), text(hue->purity));
            }
        }
    }
    QVERIFY(complements > 100);
}

void DominantWavelengthTest::chromaticitiesThereAndBack_data()
{
    whites();
}

void DominantWavelengthTest::chromaticitiesThereAndBack()
{
    QFETCH(double, x);
    QFETCH(double, y);
    for (double cx = -0.1; cx < 0.9; cx += 0.0137) {
        for (double cy = -0.1; cy < 0.95; cy += 0.0139) {
            const auto hue = dominantWavelength({cx, cy}, {x, y});
            QVERIFY(hue);
            const auto xy = chromaticityOf(*hue, {x, y});
            QVERIFY(xy);
            QVERIFY(isNear(xy->x, cx, 1e-12) && isNear(xy->y, cy, 1e-12));
        }
    }
}

void DominantWavelengthTest::longerThanTheLocus()
{
    const auto end = chromaticityOf({longestWavelength, 1.0}, d65);
    for (const double wavelength : {699.5, 700.0, 780.0, 830.0}) {
        const auto xy = chromaticityOf({wavelength, 1.0}, d65);
        QVERIFY(xy);
        QVERIFY(xy->x == end->x && xy->y == end->y);
        const auto hue = dominantWavelength(*xy, d65);
        QVERIFY(hue && isNear(hue->wavelength, longestWavelength, 1e-6));
    }
}

void DominantWavelengthTest::wavelengthsThatAreNotDefined()
{
    for (const double wavelength : {0.0, -0.0, 379.999, 360.0, 830.001, 1e9, -100.0, -379.0, -900.0}) {
        QVERIFY2(!chromaticityOf({wavelength, 0.5}, d65), text(wavelength));
    }
    QVERIFY(!chromaticityOf({550.0, -0.1}, d65));
    const auto atWhite = chromaticityOf({550.0, 0.0}, d65);
    QVERIFY(atWhite && atWhite->x == d65.x && atWhite->y == d65.y);
}

void DominantWavelengthTest::complementOfWhatIsNoPurple()
{
    for (const double wavelength : {-400.0, -470.0, -490.0, -600.0, -650.0, -700.0}) {
        QVERIFY2(!chromaticityOf({wavelength, 0.5}, d65), text(wavelength));
    }
    for (const double wavelength : {-500.0, -530.0, -560.0}) {
        QVERIFY2(chromaticityOf({wavelength, 0.5}, d65), text(wavelength));
    }
}

void DominantWavelengthTest::theWhiteHasNoHue()
{
    QVERIFY(!dominantWavelength(d65, d65));
    QVERIFY(!dominantWavelength({d65.x + 1e-13, d65.y}, d65));
    QVERIFY(dominantWavelength({d65.x + 1e-9, d65.y}, d65));
}

void DominantWavelengthTest::whitesOutsideTheLocus()
{
    const DiagramPoint red = spectralChromaticity(longestWavelength);
    const DiagramPoint violet = spectralChromaticity(shortestWavelength);
    for (const DiagramPoint &white : {DiagramPoint{0.0, 0.0}, DiagramPoint{0.6, 0.5}, DiagramPoint{0.8, 0.2},
             DiagramPoint{0.45, 0.13}, DiagramPoint{0.0, 0.9}, red, violet, spectralChromaticity(550.0)}) {
        QVERIFY(!dominantWavelength({0.3, 0.4}, white));
        QVERIFY(!chromaticityOf({550.0, 0.5}, white));
    }
}

void DominantWavelengthTest::notFinite()
{
    for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
             -std::numeric_limits<double>::infinity()}) {
        QVERIFY(!dominantWavelength({bad, 0.3}, d65));
        QVERIFY(!dominantWavelength({0.3, bad}, d65));
        QVERIFY(!dominantWavelength({0.3, 0.4}, {bad, 0.3}));
        QVERIFY(!dominantWavelength({0.3, 0.4}, {0.3, bad}));
        QVERIFY(!chromaticityOf({bad, 0.5}, d65));
        QVERIFY(!chromaticityOf({550.0, bad}, d65));
        QVERIFY(!chromaticityOf({550.0, 0.5}, {bad, bad}));
    }
}

QTEST_GUILESS_MAIN(DominantWavelengthTest)
#include "dominantwavelengthtest.moc"
