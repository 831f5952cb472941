// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/whitepoint.h>

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ceiechart;

class WhitePointTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void publishedPoints();
    void inverseOfColorTemperature();
    void outOfRange_data();
    void outOfRange();
    void whereATemperatureIsDefined_data();
    void whereATemperatureIsDefined();
    void locusHasAPointForEachMired();
    void locusIsCloseToItsPieces();
};

// Illuminants A (CIE 15:2018, table T.1) and D65.
void WhitePointTest::publishedPoints()
{
    const auto a = colorTemperature({0.44758, 0.40745});
    QVERIFY(a);
    QVERIFY(std::fabs(a->kelvin - 2856.0) < 1.0);
    QVERIFY(std::fabs(a->duv) < 0.0001);
    const auto back = chromaticityAt(2855.5, 0.0); // A was set when the second radiation constant was another
    QVERIFY(back);
    QVERIFY(std::fabs(back->x() - 0.44758) < 0.0001 && std::fabs(back->y() - 0.40745) < 0.0001);
    const auto d65 = colorTemperature({0.3127, 0.3290});
    QVERIFY(d65);
    const auto white = chromaticityAt(d65->kelvin, d65->duv);
    QVERIFY(white);
    QVERIFY(std::fabs(white->x() - 0.3127) < 1e-7 && std::fabs(white->y() - 0.3290) < 1e-7);
    QVERIFY(d65->duv > 0.003 && d65->duv < 0.0035);
}

void WhitePointTest::inverseOfColorTemperature()
{
    int points = 0;
    for (double mired = 11.0; mired < 990.0; mired *= 1.07) {
        for (double duv = -0.05; duv <= 0.0501; duv += 0.01) {
            const double bounded = std::min(duv, 0.05);
            const auto xy = chromaticityAt(1e6 / mired, bounded);
            if (!xy) {
                QVERIFY(mired > 250.0 && bounded > 0.0); // beyond the line of pure colours
                continue;
            }
            const auto back = colorTemperature(*xy);
            QVERIFY2(back, qPrintable(QString::number(mired)));
            QVERIFY2(std::fabs(1e6 / back->kelvin - mired) < 1e-6, qPrintable(QString::number(mired)));
            QVERIFY2(std::fabs(back->duv - bounded) < 1e-9, qPrintable(QString::number(back->duv - bounded)));
            ++points;
        }
    }
    QVERIFY(points > 500);
}

void WhitePointTest::outOfRange_data()
{
    QTest::addColumn<double>("kelvin");
    QTest::addColumn<double>("duv");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    QTest::newRow("coldest") << 1000.0 << 0.0;
    QTest::newRow("hottest") << 100000.0 << 0.0;
    QTest::newRow("zero") << 0.0 << 0.0;
    QTest::newRow("negative") << -5000.0 << 0.0;
    QTest::newRow("NaN") << nan << 0.0;
    QTest::newRow("infinite") << infinite << 0.0;
    QTest::newRow("far above") << 5000.0 << 0.0501;
    QTest::newRow("far below") << 5000.0 << -0.0501;
    QTest::newRow("NaN off") << 5000.0 << nan;
}

void WhitePointTest::outOfRange()
{
    QFETCH(double, kelvin);
    QFETCH(double, duv);
    QVERIFY(!chromaticityAt(kelvin, duv));
}

void WhitePointTest::whereATemperatureIsDefined_data()
{
    QTest::addColumn<QPointF>("xy");
    QTest::addColumn<bool>("defined");
    QTest::newRow("D65") << QPointF(0.3127, 0.329) << true;
    QTest::newRow("just above 1000 K") << *chromaticityAt(1001.0, 0.0) << true;
    QTest::newRow("blue") << QPointF(0.15, 0.06) << false;
    QTest::newRow("green") << QPointF(0.3, 0.6) << false;
    // Within 0.05 of the end of the locus, but beyond it
    QTest::newRow("red") << QPointF(0.68, 0.32) << false;
    QTest::newRow("hotter than the locus") << QPointF(0.2390, 0.2330) << false;
    QTest::newRow("0.0546 above") << QPointF(0.22, 0.329) << false;
    QTest::newRow("black") << QPointF(0.0, 0.0) << false;
    QTest::newRow("not a number") << QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3) << false;
}

void WhitePointTest::whereATemperatureIsDefined()
{
    QFETCH(QPointF, xy);
    QFETCH(bool, defined);
    QCOMPARE(colorTemperature(xy).has_value(), defined);
}

void WhitePointTest::locusHasAPointForEachMired()
{
    const QPolygonF &locus = planckianLocusXy();
    double mired = 1e6 / ceiechart::lowestTemperature;
    for (const QPointF &point : locus) {
        mired -= 1.0;
        const auto expected = chromaticityAt(1e6 / mired, 0.0);
        QVERIFY(expected);
        const double off = std::max(std::fabs(point.x() - expected->x()), std::fabs(point.y() - expected->y()));
        QVERIFY2(off < 1e-14, qPrintable(QStringLiteral("%1 mired: off by %2").arg(mired).arg(off)));
    }
    QCOMPARE(mired, 1e6 / ceiechart::highestTemperature + 1.0);
}

void WhitePointTest::locusIsCloseToItsPieces()
{
    const QPolygonF &locus = planckianLocusXy();
    QVERIFY(locus.size() > 900);
    QVERIFY(colorTemperature(locus.first())->kelvin < 1002.0);
    QVERIFY(colorTemperature(locus.last())->kelvin > 90000.0);
    for (int i = 1; i < locus.size(); ++i) {
        const auto middle = colorTemperature((locus[i - 1] + locus[i]) / 2.0);
        QVERIFY(middle);
        QVERIFY2(std::fabs(middle->duv) < 2e-7, qPrintable(QString::number(middle->duv)));
    }
}

QTEST_GUILESS_MAIN(WhitePointTest)
#include "diagramwhitepointtest.moc"
