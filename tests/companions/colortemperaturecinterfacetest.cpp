// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colortemperaturecinterface.h"

#include <colortemperature/colortemperature.h>

#include <QtTest>

#include <cmath>
#include <type_traits>

// Hosts that declare the functions themselves link with these signatures.
static_assert(std::is_same_v<decltype(&GetColorTemperatureFromXY), double (*)(double, double, double *)>);
static_assert(std::is_same_v<decltype(&RGBCxCyToWhiteCxCy),
    void (*)(double, double, double, double, double, double, double, double, double, double *, double *, double *)>);
static_assert(std::is_same_v<decltype(&RGBCxCyFromWhiteCxCy),
    void (*)(double *, double, double, double *, double, double, double *, double, double, double, double, double)>);

class ColorTemperatureCInterfaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void temperature();
    void whitePointAndBack();
};

void ColorTemperatureCInterfaceTest::temperature()
{
    double duv = 1.0;
    const double kelvin = temperatureFromC(0.3127, 0.3290, &duv);
    QVERIFY(std::fabs(kelvin - 6504.2) < 0.5);
    QVERIFY(std::fabs(duv - 0.0032) < 5e-5);
}

void ColorTemperatureCInterfaceTest::whitePointAndBack()
{
    const double primaries[9] = {20.0, 0.64, 0.33, 70.0, 0.30, 0.60, 10.0, 0.15, 0.06};
    const double chromaticities[6] = {0.64, 0.33, 0.30, 0.60, 0.15, 0.06};
    double white[3] = {};
    double luminances[3] = {};
    whiteFromC(primaries, white);
    luminancesFromC(chromaticities, white, luminances);
    QVERIFY(white[0] == 100.0);
    QVERIFY(std::fabs(luminances[0] - 20.0) < 1e-12);
    QVERIFY(std::fabs(luminances[1] - 70.0) < 1e-12);
    QVERIFY(std::fabs(luminances[2] - 10.0) < 1e-12);
}

QTEST_GUILESS_MAIN(ColorTemperatureCInterfaceTest)
#include "colortemperaturecinterfacetest.moc"
