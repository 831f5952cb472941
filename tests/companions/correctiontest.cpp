// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/nearestinside.h>
#include <gamutmodel/publishedgamuts.h>

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

using namespace Model;

class CorrectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalCabinetsShowThemselves();
    void oneBadCabinet();
    void matrixTimesDriveIsTheTarget_data();
    void matrixTimesDriveIsTheTarget();
    void matrixTimesDriveUpToTheLimit();
    void agreesWithCramersRule();
    void columnsAreContent();
    void blackIsCountedIn();
    void largestWhiteIsReached();
    void targetOutsideIsNamed();
    void tooBrightIsNamed();
    void remains();
    void faultyCabinets();
    void faultsOfTheTarget();
    void noCabinets();
    void whites();
};

namespace {

using Real = long double;
using Vector = std::array<Real, 3>;

Targets scaled(Targets targets, double factor)
{
    for (Target *target : {&targets.red, &targets.green, &targets.blue, &targets.white}) {
        *target = Target::fromYxy(target->Y * factor, target->x, target->y);
    }
    return targets;
}

Vector lightOf(const Target &color)
{
    const Real Y = color.Y;
    const Real x = color.x;
    const Real y = color.y;
    return {x * Y / y, Y, (1 - x - y) * Y / y};
}

//! The light of a cabinet, by the definition.
Vector lightAt(const Cabinet &cabinet, const std::array<Real, 3> &drive)
{
    const Vector black = cabinet.black ? lightOf(*cabinet.black) : Vector{};
    const Vector primaries[]
        = {lightOf(cabinet.colors.red), lightOf(cabinet.colors.green), lightOf(cabinet.colors.blue)};
    Vector light = black;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            light[k] += drive[i] * (primaries[i][k] - black[k]);
        }
    }
    return light;
}

std::array<Real, 3> times(const CorrectionMatrix &matrix, const std::array<Real, 3> &content)
{
    std::array<Real, 3> drive{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            drive[i] += Real(matrix.rows[i][k]) * content[k];
        }
    }
    return drive;
}

//! The largest difference, as a part of the largest value.
double difference(const Vector &a, const Vector &b)
{
    Real most = 0;
    Real size = 0;
    for (std::size_t k = 0; k < 3; ++k) {
        most = std::max(most, std::fabs(a[k] - b[k]));
        size = std::max(size, std::fabs(b[k]));
    }
    return double(most / size);
}

//! Cabinets of a series, with blacks and positions if wanted
std::vector<Cabinet> series(const Targets &around, std::size_t count, bool withBlack, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> xy(-0.01, 0.01);
    std::uniform_real_distribution<double> part(0.8, 1.2);
    std::vector<Cabinet> cabinets(count);
    for (Cabinet &cabinet : cabinets) {
        cabinet.colors = scaled(around, 1.0);
        for (Target *target : {&cabinet.colors.red, &cabinet.colors.green, &cabinet.colors.blue}) {
            *target = Target::fromYxy(target->Y * part(random), target->x + xy(random), target->y + xy(random));
        }
        if (withBlack) {
            cabinet.black = Target::fromYxy(0.2 * part(random), 0.29 + xy(random), 0.30 + xy(random));
        }
    }
    return cabinets;
}

const std::array<Real, 3> fullRed{1, 0, 0};
const std::array<Real, 3> fullGreen{0, 1, 0};
const std::array<Real, 3> fullBlue{0, 0, 1};
const std::array<Real, 3> fullWhite{1, 1, 1};

} // namespace

void CorrectionTest::equalCabinetsShowThemselves()
{
    const Targets colors = scaled(rec709().getTargets(), 1000.0);
    const WallCorrection wall
        = wallCorrection(std::vector<Cabinet>(12, Cabinet{colors, {}, {}}), rec709().getTargets());
    QCOMPARE(wall.fault, WallFault::None);
    QCOMPARE(wall.corrections.size(), std::size_t(12));
    QVERIFY(wall.largestWhite && std::fabs(wall.largestWhite->luminance - 1000.0) < 1e-9);
    QCOMPARE(wall.largestWhite->cabinet, std::size_t(0)); // the first of equal ones
    QVERIFY(wall.without.empty());
    QVERIFY(std::fabs(wall.target.white.Y - 1000.0) < 1e-9);
    for (const Correction &correction : wall.corrections) {
        QCOMPARE(correction.fault, DisplayFault::None);
        QVERIFY(correction.matrix);
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t k = 0; k < 3; ++k) {
                QVERIFY(std::fabs(correction.matrix->rows[i][k] - (i == k ? 1.0 : 0.0)) < 1e-13);
            }
        }
        QVERIFY(entriesBelowZero(*correction.matrix).empty() && entriesAboveOne(*correction.matrix).empty());
        QVERIFY(*correction.remaining.whiteUv < 1e-14 && std::fabs(*correction.remaining.luminance) < 1e-13);
        QVERIFY(*correction.remaining.greenUv < 1e-14 && *correction.remaining.coverage > 1.0 - 1e-12);
    }
}

void CorrectionTest::oneBadCabinet()
{
    const Targets colors = scaled(rec709().getTargets(), 1000.0);
    std::vector<Cabinet> cabinets(9, Cabinet{colors, {}, {}});
    cabinets[4].colors.green = Target::fromYxy(colors.green.Y * 0.75, 0.30, 0.60);
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets());
    QVERIFY(wall.largestWhite && std::fabs(wall.largestWhite->luminance - 750.0) < 1e-9);
    QCOMPARE(wall.largestWhite->cabinet, std::size_t(4));
    QCOMPARE(wall.largestWhite->limit, Primary::Green);
    const CorrectionMatrix &good = *wall.corrections[0].matrix;
    const CorrectionMatrix &bad = *wall.corrections[4].matrix;
    QVERIFY(std::fabs(good.at(Primary::Green, Primary::Green) - 0.75) < 1e-13);
    QVERIFY(std::fabs(bad.at(Primary::Green, Primary::Green) - 1.0) < 1e-13);
    QVERIFY(std::fabs(bad.at(Primary::Red, Primary::Red) - 0.75) < 1e-13);
    QVERIFY(entriesAboveOne(bad).empty());
    QVERIFY(std::fabs(wall.corrections[4].uncorrectedWhite->Y - (1000.0 - 0.25 * colors.green.Y)) < 1e-9);
    QVERIFY(wall.corrections[4].largestWhite && wall.corrections[0].largestWhite->luminance > 999.0);
}

void CorrectionTest::matrixTimesDriveIsTheTarget_data()
{
    QTest::addColumn<bool>("withBlack");
    QTest::newRow("no black") << false;
    QTest::newRow("black") << true;
}

void CorrectionTest::matrixTimesDriveIsTheTarget()
{
    QFETCH(bool, withBlack);
    for (unsigned seed = 0; seed < 200; ++seed) {
        const auto cabinets = series(scaled(rec709().getTargets(), 800.0), 50, withBlack, seed);
        Targets wish = rec709().getTargets();
        if (seed % 2 == 0) {
            const GamutFit fit = fittedTarget(commonGamut(cabinets), wish);
            QCOMPARE(fit.fault, FitFault::None);
            wish = fit.target;
        }
        const WallCorrection wall = wallCorrection(cabinets, wish);
        QCOMPARE(wall.fault, WallFault::None);
        const Targets &target = wall.target;
        const Vector mixed = lightOf(target.white);
        Vector sum = lightOf(target.red);
        for (std::size_t k = 0; k < 3; ++k) {
            sum[k] += lightOf(target.green)[k] + lightOf(target.blue)[k];
        }
        QVERIFY(difference(sum, mixed) < 1e-14);
        for (std::size_t i = 0; i < cabinets.size(); ++i) {
            const CorrectionMatrix &matrix = *wall.corrections[i].matrix;
            const auto shown
                = [&](const std::array<Real, 3> &content) { return lightAt(cabinets[i], times(matrix, content)); };
            QVERIFY(difference(shown(fullWhite), mixed) < 1e-12);
            const std::pair<std::array<Real, 3>, Target> colors[]
                = {{fullRed, target.red}, {fullGreen, target.green}, {fullBlue, target.blue}};
            for (const auto &[content, color] : colors) {
                const Vector light = shown(content);
                if (withBlack) {
                    // The chromaticity; the luminance has the black's part in it.
                    const Real whole = light[0] + light[1] + light[2];
                    QVERIFY(std::fabs(double(light[0] / whole) - color.x) < 1e-12);
                    QVERIFY(std::fabs(double(light[1] / whole) - color.y) < 1e-12);
                    QVERIFY(std::fabs(double(light[1]) - color.Y) < 1.0);
                } else {
                    QVERIFY(difference(light, lightOf(color)) < 1e-12);
                }
            }
            if (!withBlack) {
                const Vector grey = shown({Real(0.25), Real(0.5), Real(0.125)});
                Vector expected{};
                for (std::size_t k = 0; k < 3; ++k) {
                    expected[k]
                        = lightOf(target.red)[k] / 4 + lightOf(target.green)[k] / 2 + lightOf(target.blue)[k] / 8;
                }
                QVERIFY(difference(grey, expected) < 1e-12);
            }
        }
    }
}

// Of primaries that lie nearly on a line, but are not refused for it.
void CorrectionTest::matrixTimesDriveUpToTheLimit()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> part(0.0, 1.0);
    std::vector<Cabinet> cabinets;
    for (int i = 0; i < 200000; ++i) {
        Cabinet cabinet;
        const double red[] = {0.4 + 0.3 * part(random), 0.25 + 0.1 * part(random)};
        const double blue[] = {0.12 + 0.1 * part(random), 0.04 + 0.1 * part(random)};
        const double along = 1.4 * part(random) - 0.2; // also beyond one of them
        const double off = std::pow(10.0, -2.0 - 2.0 * part(random));
        cabinet.colors.red = Target::fromYxy(300.0 * part(random), red[0], red[1]);
        cabinet.colors.blue = Target::fromYxy(100.0 * part(random), blue[0], blue[1]);
        cabinet.colors.green = Target::fromYxy(
            600.0 * part(random), red[0] + along * (blue[0] - red[0]), red[1] + along * (blue[1] - red[1]) + off);
        const DisplayDrive drive(cabinet.colors);
        if (drive.fault() == DisplayFault::None && drive.condition() > 0.5 * DisplayDrive::largestCondition) {
            cabinets.push_back(cabinet);
        }
    }
    QVERIFY2(cabinets.size() > 5000, qPrintable(QString::number(cabinets.size())));
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets(), 100.0);
    QCOMPARE(wall.fault, WallFault::None);
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        const CorrectionMatrix &matrix = *wall.corrections[i].matrix;
        const std::pair<std::array<Real, 3>, Target> colors[] = {{fullRed, wall.target.red},
            {fullGreen, wall.target.green}, {fullBlue, wall.target.blue}, {fullWhite, wall.target.white}};
        for (const auto &[content, color] : colors) {
            QVERIFY(difference(lightAt(cabinets[i], times(matrix, content)), lightOf(color)) < 1e-12);
        }
    }
}

void CorrectionTest::agreesWithCramersRule()
{
    const auto cabinets = series(scaled(dciP3D65().getTargets(), 1200.0), 500, false, 3);
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets(), 600.0);
    QCOMPARE(wall.fault, WallFault::None);
    QVERIFY(std::fabs(wall.target.white.Y - 600.0) < 1e-12);
    QVERIFY(std::fabs(wall.target.green.Y - 600.0 * rec709().getTargets().green.Y) < 1e-11);
    const auto determinant = [](const Vector &a, const Vector &b, const Vector &c) {
        return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1])
            + c[0] * (a[1] * b[2] - a[2] * b[1]);
    };
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        const Vector r = lightOf(cabinets[i].colors.red);
        const Vector g = lightOf(cabinets[i].colors.green);
        const Vector b = lightOf(cabinets[i].colors.blue);
        const Real whole = determinant(r, g, b);
        const Targets &target = wall.target;
        const Target *const colors[] = {&target.red, &target.green, &target.blue};
        for (std::size_t k = 0; k < 3; ++k) {
            const Vector t = lightOf(*colors[k]);
            const auto &rows = wall.corrections[i].matrix->rows;
            QVERIFY(std::fabs(rows[0][k] - double(determinant(t, g, b) / whole)) < 1e-13);
            QVERIFY(std::fabs(rows[1][k] - double(determinant(r, t, b) / whole)) < 1e-13);
            QVERIFY(std::fabs(rows[2][k] - double(determinant(r, g, t) / whole)) < 1e-13);
        }
    }
}

void CorrectionTest::columnsAreContent()
{
    // A target whose red needs some green of the cabinet, and whose green needs no red
    const Targets colors = scaled(rec709().getTargets(), 100.0);
    Targets target = colors;
    target.red = Target::fromYxy(1.0, 0.64 + 0.2 * (0.30 - 0.64), 0.33 + 0.2 * (0.60 - 0.33));
    const WallCorrection wall = wallCorrection({Cabinet{colors, {}, {}}}, target);
    const CorrectionMatrix &matrix = *wall.corrections[0].matrix;
    QVERIFY(matrix.at(Primary::Green, Primary::Red) > 0.1);
    QVERIFY(std::fabs(matrix.at(Primary::Red, Primary::Green)) < 1e-12);
    QVERIFY(matrix.rows[1][0] == matrix.at(Primary::Green, Primary::Red));
    const Drive drive = matrix.driveFor({1.0, 0.0, 0.0});
    QVERIFY(drive.red == matrix.rows[0][0] && drive.green == matrix.rows[1][0] && drive.blue == matrix.rows[2][0]);
}

void CorrectionTest::blackIsCountedIn()
{
    // In a display that glows, the target's primaries are reached with the black, and so is the white.
    Cabinet cabinet{scaled(rec709().getTargets(), 1000.0), Target::fromYxy(10.0, 0.28, 0.29), {}};
    const WallCorrection wall = wallCorrection({cabinet}, rec709().getTargets(), 500.0);
    const Correction &correction = wall.corrections[0];
    QVERIFY(correction.matrix);
    QVERIFY(difference(lightAt(cabinet, times(*correction.matrix, fullWhite)), lightOf(wall.target.white)) < 1e-13);
    // Without it the white would be too bright by it.
    cabinet.black.reset();
    const WallCorrection blind = wallCorrection({cabinet}, rec709().getTargets(), 500.0);
    QVERIFY(std::fabs(correction.matrix->at(Primary::Red, Primary::Red)
                - blind.corrections[0].matrix->at(Primary::Red, Primary::Red))
        > 1e-3);
    // At half the luminance the black takes from the saturation what needs drives below 0.
    QVERIFY(!entriesBelowZero(*correction.matrix).empty());
    QVERIFY(*correction.remaining.redUv > 1e-4 && *correction.remaining.redUv < 0.02);
}

void CorrectionTest::largestWhiteIsReached()
{
    for (const bool withBlack : {false, true}) {
        const auto cabinets = series(scaled(rec709().getTargets(), 800.0), 200, withBlack, 9);
        const GamutFit fit = fittedTarget(commonGamut(cabinets), rec709().getTargets());
        const WallCorrection wall = wallCorrection(cabinets, fit.target);
        QVERIFY(wall.largestWhite && wall.without.empty());
        double most = 0.0;
        for (std::size_t i = 0; i < cabinets.size(); ++i) {
            const Drive white = wall.corrections[i].matrix->driveFor({1.0, 1.0, 1.0});
            const double largest = std::max({white.red, white.green, white.blue});
            QVERIFY(largest < 1.0 + 1e-12);
            QVERIFY(entriesAboveOne(*wall.corrections[i].matrix).empty());
            most = std::max(most, largest);
            if (i == wall.largestWhite->cabinet) {
                QVERIFY(std::fabs(white.of(wall.largestWhite->limit) - 1.0) < 1e-12);
            }
            QVERIFY(wall.corrections[i].largestWhite->luminance >= wall.largestWhite->luminance * (1.0 - 1e-9));
        }
        QVERIFY(std::fabs(most - 1.0) < 1e-12);
        // A little more is too much for that cabinet.
        const WallCorrection more = wallCorrection(cabinets, fit.target, wall.largestWhite->luminance * 1.001);
        const Correction &limiting = more.corrections[wall.largestWhite->cabinet];
        QVERIFY(isTooBright(limiting.matrix->driveFor({1.0, 1.0, 1.0})));
        QVERIFY(*limiting.remaining.luminance < -1e-5);
    }
}

void CorrectionTest::targetOutsideIsNamed()
{
    const Targets colors = scaled(rec709().getTargets(), 1000.0);
    const WallCorrection wall = wallCorrection({Cabinet{colors, {}, {}}}, dciP3D65().getTargets());
    QCOMPARE(wall.fault, WallFault::None);
    const std::vector<MatrixEntry> below = entriesBelowZero(*wall.corrections[0].matrix);
    QVERIFY(below.size() >= 3);
    QVERIFY(std::any_of(below.begin(), below.end(), [](const MatrixEntry &entry) {
        return entry.drive == Primary::Red && entry.content == Primary::Green && entry.value < -0.05;
    }));
    for (const MatrixEntry &entry : below) {
        QCOMPARE(entry.value, wall.corrections[0].matrix->at(entry.drive, entry.content));
    }
    const DeviationValues &remaining = wall.corrections[0].remaining;
    QVERIFY(*remaining.greenUv > 0.01 && *remaining.whiteUv < 1e-12);
    QVERIFY(*remaining.coverage < 0.9);
    // What is shown are the clipped drives.
    const Drive green = wall.corrections[0].matrix->driveFor({0.0, 1.0, 0.0});
    const Vector light = lightAt({colors, {}, {}}, {0, std::min<Real>(1, green.green), std::max<Real>(0, green.blue)});
    QVERIFY(difference(lightOf(wall.corrections[0].shown->green), light) < 1e-12);
}

void CorrectionTest::tooBrightIsNamed()
{
    const Targets colors = scaled(rec709().getTargets(), 1000.0);
    const WallCorrection wall = wallCorrection({Cabinet{colors, {}, {}}}, rec709().getTargets(), 1250.0);
    const std::vector<MatrixEntry> above = entriesAboveOne(*wall.corrections[0].matrix);
    QCOMPARE(above.size(), std::size_t(3));
    for (std::size_t i = 0; i < 3; ++i) {
        QVERIFY(above[i].drive == above[i].content && std::size_t(above[i].drive) == i);
        QVERIFY(std::fabs(above[i].value - 1.25) < 1e-12);
    }
    QVERIFY(std::fabs(*wall.corrections[0].remaining.luminance + 0.2) < 1e-12);
    QVERIFY(std::fabs(wall.largestWhite->luminance - 1000.0) < 1e-9);
    const CorrectionMatrix rounding{{{{1.0 + 1e-10, -1e-10, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}};
    QVERIFY(entriesAboveOne(rounding).empty() && entriesBelowZero(rounding).empty());
}

void CorrectionTest::remains()
{
    const auto cabinets = series(scaled(rec709().getTargets(), 800.0), 100, true, 21);
    const GamutFit fit = fittedTarget(commonGamut(cabinets), rec709().getTargets());
    const WallCorrection wall = wallCorrection(cabinets, fit.target);
    for (const Correction &correction : wall.corrections) {
        QVERIFY(*correction.remaining.whiteUv < 1e-12 && std::fabs(*correction.remaining.luminance) < 1e-12);
        QCOMPARE(*correction.remaining.redUv, *uvDifference(correction.shown->red, wall.target.red));
        QVERIFY(*correction.remaining.redUv < 2e-3); // the black, where a primary is on the edge
        QVERIFY(*uvDifference(*correction.uncorrectedWhite, wall.target.white) > 1e-5);
    }
}

void CorrectionTest::faultyCabinets()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Targets colors = scaled(rec709().getTargets(), 1000.0);
    std::vector<Cabinet> cabinets(6, Cabinet{colors, {}, {}});
    cabinets[1].colors.green = Target::fromYxy(700.0, 0.639, 0.3305); // almost the red
    cabinets[2].colors.blue.Y = nan;
    cabinets[3].colors.red = Target::fromYxy(0.0, 0.64, 0.33);
    cabinets[4].black = Target::fromYxy(nan, 0.3, 0.3);
    cabinets[5].colors.green = Target::fromYxy(50.0, 0.45, 0.20); // the white is outside
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets());
    QCOMPARE(wall.fault, WallFault::None);
    QCOMPARE(wall.corrections[0].fault, DisplayFault::None);
    QCOMPARE(wall.corrections[1].fault, DisplayFault::None); // within the limit of the condition
    cabinets[1].colors.green = Target::fromYxy(700.0, 0.63995, 0.33005);
    const WallCorrection again = wallCorrection(cabinets, rec709().getTargets());
    const DisplayFault faults[] = {DisplayFault::None, DisplayFault::NearlySingular, DisplayFault::NotFinite,
        DisplayFault::NoLight, DisplayFault::NotFinite, DisplayFault::None};
    for (std::size_t i = 0; i < 6; ++i) {
        const Correction &correction = again.corrections[i];
        QCOMPARE(correction.fault, faults[i]);
        QCOMPARE(correction.matrix.has_value(), faults[i] == DisplayFault::None);
        QCOMPARE(correction.shown.has_value(), correction.matrix.has_value());
        QCOMPARE(correction.uncorrectedWhite.has_value(), correction.matrix.has_value());
        QCOMPARE(correction.remaining.whiteUv.has_value(), correction.matrix.has_value());
        QCOMPARE(correction.largestWhite.has_value(), i == 0);
    }
    QCOMPARE(again.without, (std::vector<std::size_t>{1, 2, 3, 4, 5}));
    QVERIFY(again.corrections[2].faultyPrimary && *again.corrections[2].faultyPrimary == Primary::Blue);
    QVERIFY(!again.corrections[4].faultyPrimary);
    QVERIFY(again.largestWhite && again.largestWhite->cabinet == 0);
    QVERIFY(!entriesBelowZero(*again.corrections[5].matrix).empty());
}

void CorrectionTest::faultsOfTheTarget()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Cabinet> cabinets(2, Cabinet{scaled(rec709().getTargets(), 1000.0), {}, {}});
    const auto faultOf = [&](const Targets &target, std::optional<double> luminance = std::nullopt) {
        const WallCorrection wall = wallCorrection(cabinets, target, luminance);
        const bool hasMatrix = std::any_of(wall.corrections.begin(), wall.corrections.end(),
            [](const Correction &correction) { return correction.matrix || correction.shown; });
        return hasMatrix == (wall.fault == WallFault::None) ? int(wall.fault) : -1;
    };
    const Targets good = rec709().getTargets();
    QCOMPARE(faultOf(good), int(WallFault::None));
    QCOMPARE(faultOf(good, nan), int(WallFault::NotFinite));
    QCOMPARE(faultOf(good, 0.0), int(WallFault::NoLuminance));
    QCOMPARE(faultOf(good, -1.0), int(WallFault::NoLuminance));
    Targets bad = good;
    bad.red.x = nan;
    QCOMPARE(faultOf(bad), int(WallFault::NotFinite));
    bad = good;
    bad.white.y = nan;
    QCOMPARE(faultOf(bad, 100.0), int(WallFault::NotFinite));
    bad = good;
    bad.green = Target::fromYxy(1.0, 0.39, 0.19);
    QCOMPARE(faultOf(bad), int(WallFault::WhiteOutside));
    bad.green = Target::fromYxy(1.0, (0.64 + 0.15) / 2, (0.33 + 0.06) / 2);
    QCOMPARE(faultOf(bad), int(WallFault::NearlySingular));
    // Luminances of the target do not matter, except where there are none to take from.
    bad = good;
    bad.red.Y = bad.white.Y = nan;
    QCOMPARE(faultOf(bad), int(WallFault::None));
    bad = good;
    for (Target *color : {&bad.red, &bad.green, &bad.blue, &bad.white}) {
        *color = Target::fromYxy(1.0, color->x / 10.0 + 0.65, color->y / 10.0 + 0.28);
    }
    QCOMPARE(faultOf(bad), int(WallFault::NoLuminance)); // no cabinet can show this white
    QCOMPARE(faultOf(bad, 10.0), int(WallFault::None));
    // A blue below the line of purples
    QCOMPARE(faultOf(publishedGamut("ACES2065-1")->gamut.getTargets()), int(WallFault::None));
}

void CorrectionTest::noCabinets()
{
    const WallCorrection wall = wallCorrection({}, rec709().getTargets());
    QVERIFY(!wall.largestWhite && wall.corrections.empty() && wall.without.empty());
    QCOMPARE(wall.fault, WallFault::NoLuminance);
    QCOMPARE(wallCorrection({}, rec709().getTargets(), 100.0).fault, WallFault::None);
}

void CorrectionTest::whites()
{
    std::vector<Cabinet> cabinets(3, Cabinet{scaled(rec709().getTargets(), 1000.0), {}, {}});
    cabinets[1].colors.red = Target::fromYxy(0.0, 0.64, 0.33);
    const WallCorrection wall = wallCorrection(cabinets, rec709().getTargets(), 500.0);
    const auto before = whitesBefore(wall);
    const auto after = whitesAfter(wall);
    QVERIFY(before.size() == 3 && after.size() == 3 && !before[1] && !after[1]);
    QVERIFY(std::fabs(before[2]->Y - 1000.0) < 1e-9 && std::fabs(after[2]->Y - 500.0) < 1e-9);
}

QTEST_GUILESS_MAIN(CorrectionTest)
#include "correctiontest.moc"
