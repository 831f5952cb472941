// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/drive.h>

#include <QTest>

#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using namespace Model;

class DriveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fullDriveIsTheDisplayItself();
    void agreesWithFractions_data();
    void agreesWithFractions();
    void agreesWithLongDouble();
    void lightAtIsTheInverse();
    void derivedValuesDoNotMatter();
    void exactlyFullIsNotTooBright();
    void exactlyOnAnEdgeIsNotOutside();
    void headroomOfABrighterTarget();
    void headroomOfATargetPrimary();
    void headroomIsTheLargestFactor_data();
    void headroomIsTheLargestFactor();
    void headroomOfNoLight();
    void largestWhite();
    void largestWhiteOutside();
    void largestWhiteOverBlack();
    void weakPrimaryLimits_data();
    void weakPrimaryLimits();
    void blackRaisesWhatIsShown();
    void dimmerThanTheBlackIsOutside();
    void notFinite();
    void noLight();
    void equalPrimaries();
    void primariesOnALine_data();
    void primariesOnALine();
    void conditionDecides();
    void conditionsOfRealDisplays();
    void targetsThatAreNotFinite();
};

namespace {

bool isNear(double value, double expected, double tolerance)
{
    return std::fabs(value - expected) <= tolerance;
}

QByteArray text(double value)
{
    return QByteArray::number(value, 'g', 17);
}

//! Exact in doubles: S = X + Y + Z are 256, 512 and 256, and that of the white is 1024.
Targets exactDisplay()
{
    return {Target::fromYxy(64, 5.0 / 8, 1.0 / 4), Target::fromYxy(320, 1.0 / 4, 5.0 / 8),
        Target::fromYxy(32, 1.0 / 8, 1.0 / 8), Target::fromYxy(416, 320.0 / 1024, 416.0 / 1024)};
}

Targets scaled(Targets targets, double factor)
{
    for (Target *target : {&targets.red, &targets.green, &targets.blue, &targets.white}) {
        *target = Target::fromYxy(target->Y * factor, target->x, target->y);
    }
    return targets;
}

//! A reduced fraction of whole numbers.
struct Fraction {
    __extension__ typedef __int128 Whole;

    Whole numerator = 0;
    Whole denominator = 1;

    Fraction(long long n = 0, long long d = 1)
        : Fraction(Whole(n), Whole(d), 0)
    {
    }
    Fraction(Whole n, Whole d, int)
        : numerator(d < 0 ? -n : n)
        , denominator(d < 0 ? -d : d)
    {
        Whole a = numerator < 0 ? -numerator : numerator;
        Whole b = denominator;
        while (b != 0) {
            const Whole rest = a % b;
            a = b;
            b = rest;
        }
        numerator /= a;
        denominator /= a;
    }
    double value() const { return double((long double)(numerator) / (long double)(denominator)); }
};

Fraction operator*(const Fraction &a, const Fraction &b)
{
    return {a.numerator * b.numerator, a.denominator * b.denominator, 0};
}
Fraction operator/(const Fraction &a, const Fraction &b)
{
    return {a.numerator * b.denominator, a.denominator * b.numerator, 0};
}
Fraction operator-(const Fraction &a, const Fraction &b)
{
    return {a.numerator * b.denominator - b.numerator * a.denominator, a.denominator * b.denominator, 0};
}
Fraction operator+(const Fraction &a, const Fraction &b)
{
    return a - Fraction(-1) * b;
}

template <typename Number>
using Vector = std::array<Number, 3>;

template <typename Number>
Vector<Number> tristimulus(Number Y, Number x, Number y)
{
    return {x * Y / y, Y, (Number(1) - x - y) * Y / y};
}

template <typename Number>
Vector<Number> minus(const Vector<Number> &a, const Vector<Number> &b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

template <typename Number>
Number determinant(const Vector<Number> &a, const Vector<Number> &b, const Vector<Number> &c)
{
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1]) + c[0] * (a[1] * b[2] - a[2] * b[1]);
}

//! Cramer's rule.
template <typename Number>
Vector<Number> drives(const std::array<Vector<Number>, 3> &m, const Vector<Number> &t)
{
    const Number whole = determinant(m[0], m[1], m[2]);
    return {determinant(t, m[1], m[2]) / whole, determinant(m[0], t, m[2]) / whole, determinant(m[0], m[1], t) / whole};
}

using Real = long double;

Vector<Real> real(const Target &t)
{
    return tristimulus(Real(t.Y), Real(t.x), Real(t.y));
}

Real norm(const Vector<Real> &v)
{
    return std::fabs(v[0]) + std::fabs(v[1]) + std::fabs(v[2]);
}

Real conditionOf(const Targets &display)
{
    std::array<Vector<Real>, 3> m{real(display.red), real(display.green), real(display.blue)};
    for (Vector<Real> &column : m) {
        const Real sum = norm(column);
        for (Real &value : column) {
            value /= sum;
        }
    }
    Real largest = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        Vector<Real> unit{};
        unit[i] = 1;
        largest = std::max(largest, norm(drives(m, unit)));
    }
    return largest;
}

Target randomColor(std::mt19937 &random)
{
    std::uniform_real_distribution<double> any(0.0, 1.0);
    for (;;) {
        const double x = any(random);
        const double y = any(random);
        if (x + y < 1.0 && y > 0.01) {
            return Target::fromYxy(any(random) * 1000.0 + 0.1, x, y);
        }
    }
}

double largest(const Drive &drive)
{
    return std::max({drive.red, drive.green, drive.blue});
}

double largestOf(const TargetDrive &drive)
{
    return std::max({largest(drive.red), largest(drive.green), largest(drive.blue), largest(drive.white)});
}

} // namespace

void DriveTest::fullDriveIsTheDisplayItself()
{
    const DisplayDrive display(exactDisplay());
    QCOMPARE(display.fault(), DisplayFault::None);
    QVERIFY(!display.faultyPrimary());
    const auto drive = display.driveFor(exactDisplay());
    QVERIFY(drive);
    const auto verify = [](const Drive &d, double red, double green, double blue) {
        QVERIFY(isNear(d.red, red, 1e-15) && isNear(d.green, green, 1e-15) && isNear(d.blue, blue, 1e-15));
        QVERIFY(!isOutside(d) && !isTooBright(d));
    };
    verify(drive->red, 1, 0, 0);
    verify(drive->green, 0, 1, 0);
    verify(drive->blue, 0, 0, 1);
    verify(drive->white, 1, 1, 1);
    QVERIFY(drive->headroom && isNear(*drive->headroom, 1.0, 1e-15));
    QCOMPARE(drive->limitingColor, GamutColor::White);
    QCOMPARE(drive->limitingPrimary, Primary::Red);
    QVERIFY(drive->largestWhite && isNear(drive->largestWhite->luminance, 416.0, 1e-12));
}

void DriveTest::agreesWithFractions_data()
{
    QTest::addColumn<bool>("withBlack");
    QTest::newRow("no black") << false;
    QTest::newRow("black") << true;
}

void DriveTest::agreesWithFractions()
{
    QFETCH(bool, withBlack);
    const Vector<Fraction> black = withBlack ? tristimulus<Fraction>(1, {5, 16}, {1, 4}) : Vector<Fraction>{};
    const std::array<Vector<Fraction>, 3> m{minus(tristimulus<Fraction>(64, {5, 8}, {1, 4}), black),
        minus(tristimulus<Fraction>(320, {1, 4}, {5, 8}), black),
        minus(tristimulus<Fraction>(32, {1, 8}, {1, 8}), black)};
    const DisplayDrive display(
        exactDisplay(), withBlack ? std::make_optional(Target::fromYxy(1.0, 5.0 / 16, 0.25)) : std::nullopt);
    QCOMPARE(display.fault(), DisplayFault::None);
    int outside = 0;
    int tooBright = 0;
    for (int x = 1; x < 16; ++x) {
        for (int y = 1; x + y < 16; ++y) {
            for (const int Y : {1, 7, 100, 416}) {
                const auto drive = display.driveOf(Target::fromYxy(Y, x / 16.0, y / 16.0));
                QVERIFY(drive);
                const Vector<Fraction> expected = drives(m, minus(tristimulus<Fraction>(Y, {x, 16}, {y, 16}), black));
                QVERIFY2(isNear(drive->red, expected[0].value(), 1e-13), text(drive->red));
                QVERIFY2(isNear(drive->green, expected[1].value(), 1e-13), text(drive->green));
                QVERIFY2(isNear(drive->blue, expected[2].value(), 1e-13), text(drive->blue));
                bool below = false;
                bool above = false;
                for (const Fraction &value : expected) {
                    below = below || value.numerator < 0;
                    above = above || value.numerator > value.denominator;
                }
                QCOMPARE(isOutside(*drive), below);
                QCOMPARE(isTooBright(*drive), above);
                outside += below;
                tooBright += above;
            }
        }
    }
    QVERIFY(outside > 50 && tooBright > 50);
}

void DriveTest::agreesWithLongDouble()
{
    std::mt19937 random(7);
    int known = 0;
    for (int round = 0; round < 20000; ++round) {
        const Targets targets{randomColor(random), randomColor(random), randomColor(random), Target()};
        const Target color = randomColor(random);
        const DisplayDrive display(targets);
        const Real condition = conditionOf(targets);
        QVERIFY(std::fabs(display.condition() - double(condition)) <= 1e-9 * double(condition * condition));
        if (display.fault() != DisplayFault::None) {
            QVERIFY(condition > 0.999L * Real(DisplayDrive::largestCondition));
            continue;
        }
        ++known;
        const auto drive = display.driveOf(color);
        QVERIFY(drive);
        const Vector<Real> expected
            = drives<Real>({real(targets.red), real(targets.green), real(targets.blue)}, real(color));
        const double tolerance = 1e-14 * double(condition) * std::max(1.0, double(norm(expected)));
        QVERIFY(isNear(drive->red, double(expected[0]), tolerance));
        QVERIFY(isNear(drive->green, double(expected[1]), tolerance));
        QVERIFY(isNear(drive->blue, double(expected[2]), tolerance));
    }
    QVERIFY(known > 19000);
}

void DriveTest::lightAtIsTheInverse()
{
    std::mt19937 random(8);
    for (int round = 0; round < 20000; ++round) {
        const Targets targets{randomColor(random), randomColor(random), randomColor(random), Target()};
        Target black = randomColor(random);
        black = Target::fromYxy(black.Y * 1e-4, black.x, black.y);
        const Target color = randomColor(random);
        const DisplayDrive display(targets, black);
        const auto drive = display.driveOf(color);
        if (!drive) {
            continue;
        }
        const auto light = display.lightAt(*drive);
        QVERIFY(light);
        // The drives may be large where they cancel.
        const double size = (std::fabs(drive->red) + std::fabs(drive->green) + std::fabs(drive->blue) + 1.0)
            * std::max({targets.red.Y / targets.red.y, targets.green.Y / targets.green.y,
                targets.blue.Y / targets.blue.y, color.Y / color.y});
        QVERIFY(isNear(light->X, color.X, 1e-14 * size));
        QVERIFY(isNear(light->Y, color.Y, 1e-14 * size));
        QVERIFY(isNear(light->Z, color.Z, 1e-14 * size));
    }
    const DisplayDrive display(exactDisplay());
    const auto dark = display.lightAt({});
    QVERIFY(dark && dark->X == 0.0 && dark->Y == 0.0 && dark->Z == 0.0);
    const auto half = display.lightAt({0.5, 0.5, 0.5});
    QVERIFY(half && half->Y == 208.0 && half->x == 0.3125 && half->y == 0.40625);
}

// A host may fill in Y, x and y only.
void DriveTest::derivedValuesDoNotMatter()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Targets bare = exactDisplay();
    for (Target *target : {&bare.red, &bare.green, &bare.blue, &bare.white}) {
        target->X = target->Z = target->u = target->v = nan;
    }
    const DisplayDrive display(bare);
    const auto drive = display.driveFor(bare);
    QVERIFY(drive && isNear(drive->white.red, 1.0, 1e-15));
    bare.white = Target::fromYxy(nan, nan, nan); // the display's is not used
    QCOMPARE(DisplayDrive(bare).fault(), DisplayFault::None);
}

void DriveTest::exactlyFullIsNotTooBright()
{
    const DisplayDrive rec709Display(scaled(rec709().getTargets(), 1000.0));
    for (const double factor : {1.0, 1.0 + 1e-10}) {
        const auto drive = rec709Display.driveFor(scaled(rec709().getTargets(), 1000.0 * factor));
        QVERIFY(drive && !isTooBright(drive->white) && !isTooBright(drive->red));
    }
    const auto beyond = rec709Display.driveFor(scaled(rec709().getTargets(), 1000.0 * (1.0 + 1e-8)));
    QVERIFY(beyond && isTooBright(beyond->white) && isTooBright(beyond->red));
    QVERIFY(beyond->headroom && *beyond->headroom < 1.0);
}

void DriveTest::exactlyOnAnEdgeIsNotOutside()
{
    const DisplayDrive display(exactDisplay());
    for (int i = 0; i <= 16; ++i) {
        // Between red and green, and 1e-7 beyond
        const double x = 0.25 + 0.375 * i / 16.0;
        const double y = 0.625 - 0.375 * i / 16.0;
        const auto on = display.driveOf(Target::fromYxy(10.0, x, y));
        QVERIFY(on && !isOutside(*on));
        const auto beyond = display.driveOf(Target::fromYxy(10.0, x + 1e-7, y + 1e-7));
        QVERIFY(beyond && isOutside(*beyond));
    }
}

void DriveTest::headroomOfABrighterTarget()
{
    const DisplayDrive wall(scaled(rec709().getTargets(), 1000.0));
    const auto drive = wall.driveFor(scaled(rec709().getTargets(), 5000.0));
    QVERIFY(drive && drive->headroom);
    QVERIFY(isNear(*drive->headroom, 0.2, 1e-15));
    QVERIFY(isNear(drive->white.red, 5.0, 1e-13) && isTooBright(drive->white) && !isOutside(drive->white));
    QVERIFY(drive->largestWhite && isNear(drive->largestWhite->luminance, 1000.0, 1e-10));
    const auto dim = wall.driveFor(scaled(rec709().getTargets(), 250.0));
    QVERIFY(dim && isNear(*dim->headroom, 4.0, 1e-13));
}

// Not every target mixes to its white: here one primary alone is too bright.
void DriveTest::headroomOfATargetPrimary()
{
    Targets target = scaled(exactDisplay(), 0.5);
    target.green = Target::fromYxy(400.0, target.green.x, target.green.y);
    const auto drive = DisplayDrive(exactDisplay()).driveFor(target);
    QVERIFY(drive && drive->headroom);
    QVERIFY(isNear(*drive->headroom, 0.8, 1e-15));
    QCOMPARE(drive->limitingColor, GamutColor::Green);
    QCOMPARE(drive->limitingPrimary, Primary::Green);
    QVERIFY(drive->largestWhite && isNear(drive->largestWhite->luminance, 416.0, 1e-12));
}

void DriveTest::headroomIsTheLargestFactor_data()
{
    QTest::addColumn<bool>("withBlack");
    QTest::newRow("no black") << false;
    QTest::newRow("black") << true;
}

void DriveTest::headroomIsTheLargestFactor()
{
    QFETCH(bool, withBlack);
    std::mt19937 random(9);
    int known = 0;
    for (int round = 0; round < 5000; ++round) {
        const Targets panel{randomColor(random), randomColor(random), randomColor(random), Target()};
        Target black = randomColor(random);
        black = Target::fromYxy(black.Y * 1e-4, black.x, black.y);
        const DisplayDrive display(panel, withBlack ? std::make_optional(black) : std::nullopt);
        const Targets target{randomColor(random), randomColor(random), randomColor(random), randomColor(random)};
        const auto drive = display.driveFor(target);
        if (!drive || display.condition() > 100.0) {
            continue;
        }
        ++known;
        QVERIFY(drive->headroom);
        const auto at = display.driveFor(scaled(target, *drive->headroom));
        QVERIFY(at && isNear(largestOf(*at), 1.0, 1e-10));
        const Drive limiting = drive->limitingColor == GamutColor::Red ? at->red
            : drive->limitingColor == GamutColor::Green                ? at->green
            : drive->limitingColor == GamutColor::Blue                 ? at->blue
                                                                       : at->white;
        QVERIFY(isNear(limiting.of(drive->limitingPrimary), 1.0, 1e-8));
        QVERIFY(isNear(*at->headroom, 1.0, 1e-10));
        if (drive->largestWhite) {
            const auto white
                = display.driveOf(Target::fromYxy(drive->largestWhite->luminance, target.white.x, target.white.y));
            QVERIFY(white && !isOutside(*white) && isNear(largest(*white), 1.0, 1e-10));
            QVERIFY(isNear(white->of(drive->largestWhite->limit), 1.0, 1e-8));
        } else if (!withBlack) {
            QVERIFY(isOutside(drive->white));
        }
    }
    QVERIFY(known > 4000);
}

void DriveTest::headroomOfNoLight()
{
    const auto drive = DisplayDrive(exactDisplay()).driveFor(scaled(exactDisplay(), 0.0));
    QVERIFY(drive);
    QVERIFY(!drive->headroom);
    QVERIFY(drive->white.red == 0.0 && !isOutside(drive->white));
    QVERIFY(drive->largestWhite && isNear(drive->largestWhite->luminance, 416.0, 1e-12));
}

void DriveTest::largestWhite()
{
    const DisplayDrive display(exactDisplay());
    // The colour of half of red with all of green: 32 + 320 = 352 cd/m² at most, with green at its limit
    const auto yellow = display.lightAt({0.5, 1.0, 0.0});
    const auto found = display.largestLuminance({yellow->x, yellow->y});
    QVERIFY(found && isNear(found->luminance, 352.0, 1e-11));
    QCOMPARE(found->limit, Primary::Green);
    const auto blue = display.largestLuminance({0.125, 0.125});
    QVERIFY(blue && isNear(blue->luminance, 32.0, 1e-13));
    QCOMPARE(blue->limit, Primary::Blue);
}

void DriveTest::largestWhiteOutside()
{
    const DisplayDrive display(exactDisplay());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const DiagramPoint &xy : {DiagramPoint{0.7, 0.2}, DiagramPoint{0.1, 0.5}, DiagramPoint{0.3, 0.1},
             DiagramPoint{0.3, 0.0}, DiagramPoint{0.3, -0.1}, DiagramPoint{nan, 0.3}, DiagramPoint{0.3, nan}}) {
        QVERIFY(!display.largestLuminance(xy));
    }
}

// The black takes part in the white, which can not do without it.
void DriveTest::largestWhiteOverBlack()
{
    const Target black = Target::fromYxy(4.16, 0.3125, 0.40625); // of the colour of the white
    const DisplayDrive display(exactDisplay(), black);
    const auto found = display.largestLuminance({0.3125, 0.40625});
    // 416 of the primaries with three times the black, two of which are not there for the white
    QVERIFY(found && isNear(found->luminance, 416.0 - 2.0 * 4.16, 1e-10));
    // The primary as it was measured, and what is more saturated
    const auto red = display.largestLuminance({5.0 / 8, 1.0 / 4});
    QVERIFY(red && isNear(red->luminance, 64.0, 1e-11));
    QCOMPARE(red->limit, Primary::Red);
    QVERIFY(!display.largestLuminance({5.0 / 8 + 0.001, 1.0 / 4 - 0.001}));
}

void DriveTest::weakPrimaryLimits_data()
{
    QTest::addColumn<int>("weak");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
}

void DriveTest::weakPrimaryLimits()
{
    QFETCH(int, weak);
    Targets panel = scaled(rec709().getTargets(), 1000.0);
    Target &primary = weak == 0 ? panel.red : weak == 1 ? panel.green : panel.blue;
    primary = Target::fromYxy(primary.Y * 0.9, primary.x, primary.y);
    const auto drive = DisplayDrive(panel).driveFor(scaled(rec709().getTargets(), 1000.0));
    QVERIFY(drive && drive->headroom && drive->largestWhite);
    QVERIFY(isNear(*drive->headroom, 0.9, 1e-14));
    QCOMPARE(drive->limitingColor, GamutColor::White);
    QCOMPARE(int(drive->limitingPrimary), weak);
    QVERIFY(isNear(drive->largestWhite->luminance, 900.0, 1e-10));
    QCOMPARE(int(drive->largestWhite->limit), weak);
    QVERIFY(isNear(drive->white.of(Primary(weak)), 1.0 / 0.9, 1e-13));
}

void DriveTest::blackRaisesWhatIsShown()
{
    const Target black = Target::fromYxy(1.0, 5.0 / 16, 0.25);
    const DisplayDrive display(exactDisplay(), black);
    const auto dark = display.lightAt({});
    QVERIFY(dark && dark->Y == 1.0 && dark->x == 5.0 / 16 && dark->y == 0.25);
    // A measured primary contains the black: full drive of one alone is the primary itself.
    const auto red = display.lightAt({1.0, 0.0, 0.0});
    QVERIFY(red && red->Y == 64.0 && red->x == 0.625 && red->y == 0.25);
    const auto white = display.lightAt({1.0, 1.0, 1.0});
    QVERIFY(white && white->Y == 414.0);
    // A black without light has no chromaticity, and is none.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Target none;
    none.x = none.y = nan;
    const auto same = DisplayDrive(exactDisplay(), none).driveOf(exactDisplay().white);
    QVERIFY(same && isNear(same->blue, 1.0, 1e-15));
}

void DriveTest::dimmerThanTheBlackIsOutside()
{
    const DisplayDrive display(exactDisplay(), Target::fromYxy(1.0, 5.0 / 16, 0.25));
    const auto dim = display.driveOf(Target::fromYxy(0.5, 5.0 / 16, 0.25));
    QVERIFY(dim && isOutside(*dim));
    const auto equal = display.driveOf(Target::fromYxy(1.0, 5.0 / 16, 0.25));
    QVERIFY(equal && equal->red == 0.0 && equal->green == 0.0 && equal->blue == 0.0);
}

void DriveTest::notFinite()
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double bad : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}) {
        for (int which = 0; which < 9; ++which) {
            Targets panel = exactDisplay();
            Target &primary = which / 3 == 0 ? panel.red : which / 3 == 1 ? panel.green : panel.blue;
            (which % 3 == 0 ? primary.Y : which % 3 == 1 ? primary.x : primary.y) = bad;
            const DisplayDrive display(panel);
            if (which % 3 == 2 && std::isinf(bad)) {
                QVERIFY(display.fault() != DisplayFault::None);
                continue;
            }
            QCOMPARE(display.fault(), DisplayFault::NotFinite);
            QCOMPARE(int(*display.faultyPrimary()), which / 3);
            QVERIFY(std::isnan(display.condition()));
            QVERIFY(!display.driveOf(exactDisplay().white));
            QVERIFY(!display.driveFor(exactDisplay()));
            QVERIFY(!display.lightAt({1.0, 1.0, 1.0}));
            QVERIFY(!display.largestLuminance({0.3, 0.3}));
        }
        const DisplayDrive badBlack(exactDisplay(), Target::fromYxy(bad, 0.3, 0.3));
        QCOMPARE(badBlack.fault(), DisplayFault::NotFinite);
        QVERIFY(!badBlack.faultyPrimary());
        QVERIFY(!DisplayDrive(exactDisplay()).lightAt({bad, 0.0, 0.0}));
    }
    Targets flat = exactDisplay();
    flat.blue = Target::fromYxy(32, 0.15, 0.0);
    QCOMPARE(DisplayDrive(flat).fault(), DisplayFault::NotFinite);
}

void DriveTest::noLight()
{
    for (int which = 0; which < 3; ++which) {
        for (const double luminance : {0.0, -1.0, 2.0}) {
            Targets panel = exactDisplay();
            Target &primary = which == 0 ? panel.red : which == 1 ? panel.green : panel.blue;
            primary = Target::fromYxy(luminance, primary.x, primary.y);
            const DisplayDrive display(panel, Target::fromYxy(2.0, 0.3, 0.3));
            QCOMPARE(display.fault(), DisplayFault::NoLight);
            QCOMPARE(int(*display.faultyPrimary()), which);
            QVERIFY(!display.driveFor(exactDisplay()));
        }
    }
    QCOMPARE(DisplayDrive(Targets()).fault(), DisplayFault::NoLight);
}

void DriveTest::equalPrimaries()
{
    Targets panel = exactDisplay();
    panel.green = Target::fromYxy(99.0, panel.red.x, panel.red.y);
    const DisplayDrive display(panel);
    QCOMPARE(display.fault(), DisplayFault::NearlySingular);
    QVERIFY(display.faultyPrimary() && *display.faultyPrimary() != Primary::Blue);
    QVERIFY(display.condition() > 1e12);
    QVERIFY(!display.driveOf(panel.red));
    panel.blue = panel.green;
    QCOMPARE(DisplayDrive(panel).fault(), DisplayFault::NearlySingular);
}

void DriveTest::primariesOnALine_data()
{
    QTest::addColumn<int>("middle");
    QTest::addColumn<double>("off");
    for (const double off : {0.0, 1e-6, -1e-6}) {
        for (int middle = 0; middle < 3; ++middle) {
            QTest::addRow("%d, off by %g", middle, off) << middle << off;
        }
    }
}

void DriveTest::primariesOnALine()
{
    QFETCH(int, middle);
    QFETCH(double, off);
    Targets panel;
    Target *const primaries[] = {&panel.red, &panel.green, &panel.blue};
    *primaries[middle] = Target::fromYxy(100.0, 0.40, 0.35 + off);
    *primaries[(middle + 1) % 3] = Target::fromYxy(1.0, 0.65, 0.30);
    *primaries[(middle + 2) % 3] = Target::fromYxy(30.0, 0.15, 0.40);
    const DisplayDrive display(panel);
    QCOMPARE(display.fault(), DisplayFault::NearlySingular);
    QCOMPARE(int(*display.faultyPrimary()), middle);
}

void DriveTest::conditionDecides()
{
    // Blue approaches the line between the others: either side of the limit.
    int known = 0;
    int singular = 0;
    for (double height = 1e-2; height > 1e-7; height *= 0.97) {
        Targets panel = exactDisplay();
        panel.blue = Target::fromYxy(5.0, 0.40 - height, 0.475 - height);
        const double expected = double(conditionOf(panel));
        const DisplayDrive display(panel);
        QVERIFY(isNear(display.condition() / expected, 1.0, 1e-7));
        if (std::fabs(expected / DisplayDrive::largestCondition - 1.0) < 1e-6) {
            continue;
        }
        QCOMPARE(display.fault() == DisplayFault::NearlySingular, expected > DisplayDrive::largestCondition);
        QCOMPARE(bool(display.driveOf(panel.white)), expected < DisplayDrive::largestCondition);
        (display.fault() == DisplayFault::None ? known : singular) += 1;
    }
    QVERIFY(known > 10 && singular > 10);
}

void DriveTest::conditionsOfRealDisplays()
{
    for (const ColorGamut &gamut : standardGamuts()) {
        const DisplayDrive display(gamut.getTargets());
        QVERIFY2(display.condition() > 1.0 && display.condition() < 6.0, text(display.condition()));
        // Luminances do not matter.
        Targets uneven = gamut.getTargets();
        uneven.red = Target::fromYxy(1e6, uneven.red.x, uneven.red.y);
        uneven.blue = Target::fromYxy(1e-6, uneven.blue.x, uneven.blue.y);
        QVERIFY(isNear(DisplayDrive(uneven).condition() / display.condition(), 1.0, 1e-12));
    }
    Targets near = rec709().getTargets();
    near.green = Target::fromYxy(1.0, near.red.x - 0.002, near.red.y);
    const double condition = DisplayDrive(near).condition();
    QVERIFY2(condition > 1000.0 && condition < DisplayDrive::largestCondition, text(condition));
}

void DriveTest::targetsThatAreNotFinite()
{
    const DisplayDrive display(exactDisplay());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Targets target = exactDisplay();
    target.green.Y = nan;
    QVERIFY(!display.driveFor(target));
    target = exactDisplay();
    target.white = Target::fromYxy(100.0, 0.3, 0.0);
    QVERIFY(!display.driveFor(target));
    QVERIFY(!display.driveOf(Target::fromYxy(1e308, 0.3, 1e-9)));
    // A patch without light has no chromaticity.
    Target dark;
    dark.x = dark.y = nan;
    const auto drive = display.driveOf(dark);
    QVERIFY(drive && drive->red == 0.0 && drive->green == 0.0 && drive->blue == 0.0);
}

QTEST_GUILESS_MAIN(DriveTest)
#include "drivetest.moc"
