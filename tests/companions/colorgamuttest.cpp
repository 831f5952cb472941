// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/colorgamut.h>

#include <QTest>

#include <cfenv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <type_traits>

using Model::ColorGamut;
using Model::ColorGamutInfo;
using Model::Target;
using Model::Targets;

// Hosts fill and read the records as plain memory.
static_assert(std::is_aggregate_v<Target> && std::is_standard_layout_v<Target>);
static_assert(std::is_trivially_copyable_v<Target> && sizeof(Target) == 7 * sizeof(double));
static_assert(offsetof(Target, Y) == 0 && offsetof(Target, x) == 8 && offsetof(Target, y) == 16);
static_assert(offsetof(Target, X) == 24 && offsetof(Target, Z) == 32);
static_assert(offsetof(Target, u) == 40 && offsetof(Target, v) == 48);
static_assert(std::is_same_v<decltype(&Target::fromYxy), Target (*)(double, double, double)>);

template <typename T>
constexpr bool isFourTargets = std::is_aggregate_v<T> &&std::is_standard_layout_v<T> &&
                                   std::is_trivially_copyable_v<T> && sizeof(T) == 4 * sizeof(Target)
    && offsetof(T, red) == 0 && offsetof(T, green) == sizeof(Target) && offsetof(T, blue) == 2 * sizeof(Target)
    && offsetof(T, white) == 3 * sizeof(Target);
static_assert(isFourTargets<Targets> && isFourTargets<ColorGamutInfo>);
static_assert(!std::is_same_v<Targets, ColorGamutInfo>);

static_assert(std::is_default_constructible_v<ColorGamut> && std::is_copy_constructible_v<ColorGamut>);
static_assert(std::is_copy_assignable_v<ColorGamut> && !std::is_polymorphic_v<ColorGamut>);
static_assert(std::is_constructible_v<ColorGamut, std::string, const Targets &>);
static_assert(std::is_same_v<decltype(&ColorGamut::getTargets), const Targets &(ColorGamut::*)() const>);
static_assert(std::is_same_v<decltype(&ColorGamut::colorGamutName), std::string (ColorGamut::*)() const>);

class ColorGamutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaultsAreZero();
    void gamutKeepsNameAndTargets();
    void gamutIsAValue();
    void fromYxyOfD65();
    void fromYxyOverAGrid();
    void fromYxyWithoutAResult_data();
    void fromYxyWithoutAResult();
    void fromYxyDividesByNoZero();
    void standards_data();
    void standards();
    void listOfStandards();
};

void ColorGamutTest::defaultsAreZero()
{
    const Target target;
    for (const double value : {target.Y, target.x, target.y, target.X, target.Z, target.u, target.v}) {
        QVERIFY(value == 0.0);
    }
    const ColorGamut gamut;
    QVERIFY(gamut.colorGamutName().empty());
    QVERIFY(gamut.getTargets().red.Y == 0.0);
    QVERIFY(gamut.getTargets().white.v == 0.0);
}

void ColorGamutTest::gamutKeepsNameAndTargets()
{
    // Kept as given, consistent or not.
    Targets targets;
    targets.red = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0};
    targets.green.Y = 8.0;
    targets.blue.x = 9.0;
    targets.white.v = 10.0;
    const ColorGamut gamut("LED wall", targets);
    QVERIFY(gamut.colorGamutName() == "LED wall");
    QVERIFY(gamut.getTargets().red.Y == 1.0);
    QVERIFY(gamut.getTargets().red.v == 7.0);
    QVERIFY(gamut.getTargets().green.Y == 8.0);
    QVERIFY(gamut.getTargets().blue.x == 9.0);
    QVERIFY(gamut.getTargets().white.v == 10.0);
}

void ColorGamutTest::gamutIsAValue()
{
    ColorGamut gamut = Model::rec709();
    const ColorGamut copy = gamut;
    gamut = ColorGamut();
    QVERIFY(copy.colorGamutName() == "Rec.709");
    QVERIFY(copy.getTargets().red.x == 0.64);
    QVERIFY(gamut.colorGamutName().empty());
}

void ColorGamutTest::fromYxyOfD65()
{
    // X and Z of D65 as IEC 61966-2-1 gives them for Y = 1; u', v' from CIE 015.
    const Target d65 = Target::fromYxy(1.0, 0.3127, 0.3290);
    QVERIFY(d65.Y == 1.0 && d65.x == 0.3127 && d65.y == 0.3290);
    QVERIFY(std::abs(d65.X - 0.9505) < 5e-5);
    QVERIFY(std::abs(d65.Z - 1.0891) < 5e-5);
    QVERIFY(std::abs(d65.u - 0.1978) < 5e-5);
    QVERIFY(std::abs(d65.v - 0.4683) < 5e-5);
}

void ColorGamutTest::fromYxyOverAGrid()
{
    for (int i = 0; i < 16; ++i) {
        for (int k = 0; k < 18; ++k) {
            const double x = 0.05 * i;
            const double y = 0.01 + 0.05 * k;
            const Target t = Target::fromYxy(250.0, x, y);
            const double sum = t.X + t.Y + t.Z;
            QVERIFY(std::abs(t.X / sum - x) < 1e-14);
            QVERIFY(std::abs(t.Y / sum - y) < 1e-14);
            const double d = t.X + 15.0 * t.Y + 3.0 * t.Z;
            QVERIFY(std::abs(t.u - 4.0 * t.X / d) < 1e-14);
            QVERIFY(std::abs(t.v - 9.0 * t.Y / d) < 1e-14);
        }
    }
}

void ColorGamutTest::fromYxyWithoutAResult_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("Y");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("X");
    QTest::addColumn<double>("Z");
    QTest::addColumn<double>("u");
    QTest::addColumn<double>("v");
    QTest::newRow("all zero") << 0.0 << 0.0 << 0.0 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("y = 0") << 1.0 << 0.5 << 0.0 << 0.0 << 0.0 << 1.0 << 0.0;
    QTest::newRow("y = -0") << 1.0 << 0.5 << -0.0 << 0.0 << 0.0 << 1.0 << 0.0;
    QTest::newRow("no u', v'") << 1.0 << 1.5 << 0.0 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("Y NaN") << nan << 0.5 << 0.25 << 0.0 << 0.0 << 0.4 << 0.45;
    QTest::newRow("Y infinite") << infinity << 0.5 << 0.25 << 0.0 << 0.0 << 0.4 << 0.45;
    QTest::newRow("x NaN") << 1.0 << nan << 0.5 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("x infinite") << 1.0 << infinity << 0.5 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("y NaN") << 1.0 << 0.5 << nan << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("y infinite") << 1.0 << 0.5 << infinity << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("overflow") << 1e300 << 0.5 << 1e-300 << 0.0 << 0.0 << 1.0 << 4.5e-300;
}

void ColorGamutTest::fromYxyWithoutAResult()
{
    QFETCH(double, Y);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, X);
    QFETCH(double, Z);
    QFETCH(double, u);
    QFETCH(double, v);
    const Target t = Target::fromYxy(Y, x, y);
    const auto kept = [](double stored, double given) { return stored == given || (qIsNaN(stored) && qIsNaN(given)); };
    QVERIFY(kept(t.Y, Y) && kept(t.x, x) && kept(t.y, y));
    QVERIFY(t.X == X);
    QVERIFY(t.Z == Z);
    QVERIFY(std::abs(t.u - u) <= 1e-15 * u);
    QVERIFY(std::abs(t.v - v) <= 1e-15 * v);
}

void ColorGamutTest::fromYxyDividesByNoZero()
{
    std::feclearexcept(FE_ALL_EXCEPT);
    Target::fromYxy(1.0, 1.5, 0.0);
    QCOMPARE(std::fetestexcept(FE_DIVBYZERO | FE_INVALID), 0);
}

void ColorGamutTest::standards_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QVector<double>>("chromaticities"); // red, green, blue, white
    QTest::addColumn<QVector<double>>("luminances"); // the middle row of the published matrix to XYZ
    QTest::newRow("Rec.709") << 0 << QVector<double>{0.64, 0.33, 0.30, 0.60, 0.15, 0.06, 0.3127, 0.3290}
                             << QVector<double>{0.2126, 0.7152, 0.0722};
    QTest::newRow("Rec.2020") << 1 << QVector<double>{0.708, 0.292, 0.170, 0.797, 0.131, 0.046, 0.3127, 0.3290}
                              << QVector<double>{0.2627, 0.6780, 0.0593};
    QTest::newRow("DCI-P3(D65)") << 2 << QVector<double>{0.680, 0.320, 0.265, 0.690, 0.150, 0.060, 0.3127, 0.3290}
                                 << QVector<double>{0.2290, 0.6917, 0.0793};
}

void ColorGamutTest::standards()
{
    QFETCH(int, index);
    QFETCH(QVector<double>, chromaticities);
    QFETCH(QVector<double>, luminances);
    const ColorGamut gamut = index == 0 ? Model::rec709() : index == 1 ? Model::rec2020() : Model::dciP3D65();
    QCOMPARE(gamut.colorGamutName().c_str(), QTest::currentDataTag());

    const Targets &targets = gamut.getTargets();
    const Target list[] = {targets.red, targets.green, targets.blue, targets.white};
    for (int i = 0; i < 4; ++i) {
        QVERIFY(list[i].x == chromaticities.at(2 * i));
        QVERIFY(list[i].y == chromaticities.at(2 * i + 1));
        const Target derived = Target::fromYxy(list[i].Y, list[i].x, list[i].y);
        QVERIFY(list[i].X == derived.X && list[i].Z == derived.Z && list[i].u == derived.u && list[i].v == derived.v);
    }
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(std::abs(list[i].Y - luminances.at(i)) <= 5e-5, qPrintable(QString::number(list[i].Y, 'g', 17)));
    }
    QVERIFY(targets.white.Y == 1.0);
    QVERIFY(std::abs(list[0].Y + list[1].Y + list[2].Y - list[3].Y) < 1e-15);
    QVERIFY(std::abs(list[0].X + list[1].X + list[2].X - list[3].X) < 1e-15);
    QVERIFY(std::abs(list[0].Z + list[1].Z + list[2].Z - list[3].Z) < 1e-15);
}

void ColorGamutTest::listOfStandards()
{
    const std::vector<ColorGamut> gamuts = Model::standardGamuts();
    QCOMPARE(gamuts.size(), std::size_t(3));
    QVERIFY(gamuts[0].colorGamutName() == "Rec.709");
    QVERIFY(gamuts[1].colorGamutName() == "Rec.2020");
    QVERIFY(gamuts[2].colorGamutName() == "DCI-P3(D65)");
    QVERIFY(gamuts[0].getTargets().green.y == 0.60);
    QVERIFY(gamuts[1].getTargets().green.y == 0.797);
    QVERIFY(gamuts[2].getTargets().green.y == 0.690);
}

QTEST_GUILESS_MAIN(ColorGamutTest)
#include "colorgamuttest.moc"
