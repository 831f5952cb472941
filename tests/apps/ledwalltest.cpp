// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "expectedchart.h"

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <colortemperature/colortemperature.h>
#include <gamutfiles/descriptionfile.h>

#include <QtTest>

#include <cmath>

using namespace gamutfiles;

/*! Recomputes what the notes of the sample say about its numbers. */
class LedWallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void gamuts();
    void parts();
    void dominantWavelengths();
    void warmWallIsShiftedAtTheSamePurity();
    void whitesAreMixtures();
    void colorTemperaturePointsLieOnTheLocus();
    void measurePointsAreTheTarget();
    void cmyPointsAreMixturesOfTheTarget();

private:
    DisplayDescription m_sample;
};

namespace {

struct Hue {
    double dominantWavelength = 0.0; // nm
    double purity = 0.0; // excitation purity
};

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

//! Dominant wavelength and excitation purity with the equal-energy white as the reference.
Hue hue(double x, double y)
{
    const QPointF white(1.0 / 3.0, 1.0 / 3.0);
    const QPointF color = QPointF(x, y) - white;
    const CEIAtlasValue atlas;
    const auto locus = [&](int row) {
        const auto &c = atlas.atlasCoordinates.at(row);
        return QPointF(c.X, c.Y) / (c.X + c.Y + c.Z) - white;
    };
    for (int row = 0; row + 1 < atlas.atlasCoordinates.size(); ++row) {
        const QPointF a = locus(row);
        const QPointF b = locus(row + 1);
        const double before = cross(color, a);
        const double after = cross(color, b);
        if (before * after > 0.0 || before == after || QPointF::dotProduct(color, a) <= 0.0) {
            continue;
        }
        const double part = before / (before - after);
        const QPointF edge = a + part * (b - a);
        return {atlas.atlasCoordinates.at(row).waveLength + part,
            std::hypot(color.x(), color.y()) / std::hypot(edge.x(), edge.y())};
    }
    return {};
}

Model::Target mixture(std::initializer_list<Model::Target> colors)
{
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    for (const Model::Target &color : colors) {
        X += color.X;
        Y += color.Y;
        Z += color.Z;
    }
    return Model::Target::fromYxy(Y, X / (X + Y + Z), Y / (X + Y + Z));
}

//! As near as four decimals can be.
bool isRounded(double stated, double exact)
{
    return std::abs(stated - exact) <= 0.5e-4 + 1e-9;
}

bool isRounded(const QPointF &stated, const Model::Target &exact)
{
    return isRounded(stated.x(), exact.x) && isRounded(stated.y(), exact.y);
}

bool isRounded(const Model::Target &stated, const Model::Target &exact)
{
    return isRounded(QPointF(stated.x, stated.y), exact);
}

} // namespace

void LedWallTest::initTestCase()
{
    const auto description = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY2(description, qPrintable(description.problem().message(QStringLiteral(SAMPLE_FILE))));
    m_sample = *description;
}

void LedWallTest::gamuts()
{
    const auto same
        = [](const Model::Target &a, const Model::Target &b) { return a.Y == b.Y && a.x == b.x && a.y == b.y; };
    const auto sameGamut = [&same](const Model::Targets &a, const Model::Targets &b) {
        return same(a.red, b.red) && same(a.green, b.green) && same(a.blue, b.blue) && same(a.white, b.white);
    };
    QCOMPARE(m_sample.gamuts.size(), std::size_t(2));
    QVERIFY(sameGamut(m_sample.gamuts[0].getTargets(), expectedchart::ledWall()));
    QVERIFY(sameGamut(m_sample.gamuts[1].getTargets(), expectedchart::warmLedWall()));
}

void LedWallTest::parts()
{
    QCOMPARE(m_sample.original, QStringLiteral("LED wall"));
    QCOMPARE(m_sample.measured, QStringLiteral("LED wall, warm"));
    QCOMPARE(m_sample.target, QStringLiteral("DCI-P3(D65)"));
    QCOMPARE(m_sample.standards, (QStringList{"Rec.709", "Rec.2020", "DCI-P3(D65)"}));
}

void LedWallTest::dominantWavelengths()
{
    const Model::Targets wall = m_sample.gamuts[0].getTargets();
    QCOMPARE(qRound(hue(wall.red.x, wall.red.y).dominantWavelength), 625);
    QCOMPARE(qRound(hue(wall.green.x, wall.green.y).dominantWavelength), 530);
    QCOMPARE(qRound(hue(wall.blue.x, wall.blue.y).dominantWavelength), 471);
}

void LedWallTest::warmWallIsShiftedAtTheSamePurity()
{
    const Model::Targets wall = m_sample.gamuts[0].getTargets();
    const Model::Targets warm = m_sample.gamuts[1].getTargets();
    const auto isShifted = [](const Model::Target &from, const Model::Target &to, double nanometres, double tolerance) {
        const Hue a = hue(from.x, from.y);
        const Hue b = hue(to.x, to.y);
        return std::abs(b.dominantWavelength - a.dominantWavelength - nanometres) < tolerance
            && std::abs(b.purity - a.purity) < 4e-4; // four decimals tell no more of it
    };
    // In the red the locus moves by less than 0.002 a nanometre, so four decimals tell less of the wavelength.
    QVERIFY(isShifted(wall.red, warm.red, 2.0, 0.1));
    QVERIFY(isShifted(wall.green, warm.green, 1.0, 0.02));
    QVERIFY(isShifted(wall.blue, warm.blue, 1.0, 0.02));
    QVERIFY(std::abs(warm.red.Y / wall.red.Y - 0.82) < 5e-4);
    QVERIFY(std::abs(warm.green.Y / wall.green.Y - 0.96) < 5e-4);
    QVERIFY(std::abs(warm.blue.Y / wall.blue.Y - 0.98) < 5e-4);
}

void LedWallTest::whitesAreMixtures()
{
    for (const Model::ColorGamut &gamut : m_sample.gamuts) {
        const Model::Targets &targets = gamut.getTargets();
        const Model::Target mixed = mixture({targets.red, targets.green, targets.blue});
        QVERIFY(isRounded(targets.white, mixed));
        QVERIFY(std::abs(targets.white.Y - mixed.Y) < 0.05);
    }
    // "9300 K" is the daylight of that name.
    const Model::Target white = m_sample.gamuts[0].getTargets().white;
    double temperature = 0.0;
    GetColorTemperatureFromXY(white.x, white.y, &temperature);
    QVERIFY2(std::abs(temperature - 9300.0) < 50.0, qPrintable(QString::number(temperature)));
}

void LedWallTest::colorTemperaturePointsLieOnTheLocus()
{
    QCOMPARE(m_sample.colorTemperaturePoints.size(), 3);
    for (const NamedPoint &point : m_sample.colorTemperaturePoints) {
        const double named = point.name.section(QLatin1Char(' '), 0, 0).toDouble();
        double temperature = 0.0;
        const double distance = GetColorTemperatureFromXY(point.xy.x(), point.xy.y(), &temperature);
        QVERIFY(named > 0.0);
        QVERIFY2(std::abs(temperature / named - 1.0) < 1e-3, qPrintable(QString::number(temperature)));
        QVERIFY(std::abs(distance) < 1e-4);
    }
}

void LedWallTest::measurePointsAreTheTarget()
{
    const Model::Targets target = m_sample.gamut(m_sample.target)->getTargets();
    QCOMPARE(m_sample.measurePoints.size(), 4);
    QVERIFY(isRounded(m_sample.measurePoints[0].xy, target.red));
    QVERIFY(isRounded(m_sample.measurePoints[1].xy, target.green));
    QVERIFY(isRounded(m_sample.measurePoints[2].xy, target.blue));
    QVERIFY(isRounded(m_sample.measurePoints[3].xy, target.white));
}

void LedWallTest::cmyPointsAreMixturesOfTheTarget()
{
    const Model::Targets target = m_sample.gamut(m_sample.target)->getTargets();
    QCOMPARE(m_sample.cmyPoints.size(), 3);
    QVERIFY(isRounded(m_sample.cmyPoints[0].xy, mixture({target.green, target.blue})));
    QVERIFY(isRounded(m_sample.cmyPoints[1].xy, mixture({target.red, target.blue})));
    QVERIFY(isRounded(m_sample.cmyPoints[2].xy, mixture({target.red, target.green})));
}

QTEST_GUILESS_MAIN(LedWallTest)
#include "ledwalltest.moc"
