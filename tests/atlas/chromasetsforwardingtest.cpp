// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>

#include <colortemperature/colortemperature.h>

#include <QTest>

#include <vector>

// The colour-temperature library is replaced by functions that record their arguments: what reaches it, and what is
// made of its results, is the whole of ChromaSets.
namespace {

std::vector<double> received;
double libraryTemperature = 0.0;
double libraryResult = 0.0;

} // namespace

double GetColorTemperatureFromXY(double x, double y, double *temperature)
{
    received = {x, y};
    *temperature = libraryTemperature;
    return libraryResult;
}

void RGBCxCyToWhiteCxCy(double redY, double redx, double redy, double greenY, double greenx, double greeny,
    double blueY, double bluex, double bluey, double *whiteY, double *whitex, double *whitey)
{
    received = {redY, redx, redy, greenY, greenx, greeny, blueY, bluex, bluey};
    *whiteY = 101.0;
    *whitex = 102.0;
    *whitey = 103.0;
}

void RGBCxCyFromWhiteCxCy(double *redY, double redx, double redy, double *greenY, double greenx, double greeny,
    double *blueY, double bluex, double bluey, double whiteY, double whitex, double whitey)
{
    received = {*redY, redx, redy, *greenY, greenx, greeny, *blueY, bluex, bluey, whiteY, whitex, whitey};
    *redY = 101.0;
    *greenY = 102.0;
    *blueY = 103.0;
}

class ChromaSetsForwardingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void temperatureIsTruncatedTowardZero_data();
    void temperatureIsTruncatedTowardZero();
    void toWhiteForwardsUnchanged();
    void fromWhiteForwardsUnchanged();
};

void ChromaSetsForwardingTest::temperatureIsTruncatedTowardZero_data()
{
    QTest::addColumn<double>("temperature");
    QTest::addColumn<double>("result");
    QTest::addColumn<int>("expectedTemperature");
    QTest::addColumn<int>("expectedResult");
    QTest::newRow("6503.9 K is 6503") << 6503.9 << 0.0 << 6503 << 0;
    QTest::newRow("whole numbers stay") << 9300.0 << 3.0 << 9300 << 3;
    QTest::newRow("just below a whole number") << 6503.999999999 << 0.999999999 << 6503 << 0;
    QTest::newRow("negative values go up") << -273.9 << -1.9 << -273 << -1;
    QTest::newRow("between -1 and 0") << -0.9 << -0.003 << 0 << 0;
    QTest::newRow("near the end of int") << 2147483647.5 << -2147483648.5 << 2147483647 << -2147483647 - 1;
}

void ChromaSetsForwardingTest::temperatureIsTruncatedTowardZero()
{
    QFETCH(double, temperature);
    QFETCH(double, result);
    libraryTemperature = temperature;
    libraryResult = result;

    int colorTemperature = 0;
    const int returned = ChromaSets::GetColorTemperatureNew(0.3127, 0.3291, colorTemperature);
    QCOMPARE(received, (std::vector<double>{0.3127, 0.3291}));
    QTEST(colorTemperature, "expectedTemperature");
    QTEST(returned, "expectedResult");
}

void ChromaSetsForwardingTest::toWhiteForwardsUnchanged()
{
    double luminance = 0.0;
    double x = 0.0;
    double y = 0.0;
    ChromaSets::rgbCxCyToWhiteCxCy(1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, luminance, x, y);
    QCOMPARE(received, (std::vector<double>{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0}));
    QCOMPARE(luminance, 101.0);
    QCOMPARE(x, 102.0);
    QCOMPARE(y, 103.0);
}

void ChromaSetsForwardingTest::fromWhiteForwardsUnchanged()
{
    double red = 1.0;
    double green = 4.0;
    double blue = 7.0;
    ChromaSets::RGBCxCyFromWhiteCxCy(red, 2.0, 3.0, green, 5.0, 6.0, blue, 8.0, 9.0, 10.0, 11.0, 12.0);
    QCOMPARE(received, (std::vector<double>{1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, 11.0, 12.0}));
    QCOMPARE(red, 101.0);
    QCOMPARE(green, 102.0);
    QCOMPARE(blue, 103.0);
}

QTEST_GUILESS_MAIN(ChromaSetsForwardingTest)
#include "chromasetsforwardingtest.moc"
