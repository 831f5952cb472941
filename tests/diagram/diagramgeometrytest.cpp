// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/diagramgeometry.h>

#include <reference/mapping.h>

#include <QTest>

#include <cmath>
#include <limits>

using ceiechart::DiagramGeometry;

namespace {

constexpr ceiechart::ChromaRange range{0.0F, 0.84F, 0.0F, 0.94F};
constexpr int marginPercent = 5;

} // namespace

class DiagramGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mulDivAddsAHalfAfterTheIntegerDivision_data();
    void mulDivAddsAHalfAfterTheIntegerDivision();
    void clampKeepsTheRange();
    void clampOfNanIsTheUpperLimit();
    void truncationNeverOverflows();
    void freshGeometryMapsEverythingToOnePixel();
    void plotOfAnOddWidth();
    void rangeCornersMapToPlotCorners();
    void workedExample();
    void wholePixelsTruncateTowardZero();
    void zeroSpanIsRefused_data();
    void zeroSpanIsRefused();
    void zeroSpanKeepsTheScales();
    void exactPixelsAreNotTruncated();
    void backwardMappingKeepsThePixelOffset();
};

void DiagramGeometryTest::mulDivAddsAHalfAfterTheIntegerDivision_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("c");
    QTest::addColumn<double>("expected");
    QTest::newRow("near edge of 801") << 801 << 5 << 100 << 40.5;
    QTest::newRow("far edge of 801") << 801 << 95 << 100 << 760.5;
    QTest::newRow("near edge of 800") << 800 << 5 << 100 << 40.5;
    QTest::newRow("far edge of 1") << 1 << 95 << 100 << 0.5;
    QTest::newRow("zero") << 0 << 95 << 100 << 0.5;
    QTest::newRow("negative truncates toward zero") << -19 << 5 << 100 << 0.5;
    QTest::newRow("negative") << -801 << 5 << 100 << -39.5;
    QTest::newRow("tick width") << 800 << 2 << 1000 << 1.5;
}

void DiagramGeometryTest::mulDivAddsAHalfAfterTheIntegerDivision()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, c);
    QTEST(ceiechart::mulDiv(a, b, c), "expected");
}

void DiagramGeometryTest::clampKeepsTheRange()
{
    QVERIFY(ceiechart::clamp(-0.2, 0, 1) == 0.0);
    QVERIFY(ceiechart::clamp(1.7, 0, 1) == 1.0);
    QVERIFY(ceiechart::clamp(0.4, 0, 1) == 0.4);
    QVERIFY(ceiechart::clamp(0.0, 0, 1) == 0.0);
    QVERIFY(ceiechart::clamp(1.0, 0, 1) == 1.0);
    QVERIFY(ceiechart::clamp(-std::numeric_limits<double>::infinity(), -2, 3) == -2.0);
    QVERIFY(ceiechart::clamp(std::numeric_limits<double>::infinity(), -2, 3) == 3.0);
    // Limits the wrong way round: the lower one is looked at first.
    QVERIFY(ceiechart::clamp(0.5, 1, 0) == 1.0);
    QVERIFY(ceiechart::clamp(2.0, 1, 0) == 0.0);
}

void DiagramGeometryTest::clampOfNanIsTheUpperLimit()
{
    QVERIFY(ceiechart::clamp(std::numeric_limits<double>::quiet_NaN(), 0, 1) == 1.0);
    QVERIFY(ceiechart::clamp(std::numeric_limits<double>::quiet_NaN(), -7, -5) == -5.0);
}

void DiagramGeometryTest::truncationNeverOverflows()
{
    constexpr int smallest = std::numeric_limits<int>::min();
    QCOMPARE(ceiechart::truncated(-0.7), 0);
    QCOMPARE(ceiechart::truncated(1.9), 1);
    QCOMPARE(ceiechart::truncated(2147483647.5), 2147483647);
    QCOMPARE(ceiechart::truncated(-2147483648.5), smallest);
    for (const double bad : {2147483648.0, -2147483649.0, 1e300, std::numeric_limits<double>::infinity(),
             -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        QCOMPARE(ceiechart::truncated(bad), smallest);
    }
}

void DiagramGeometryTest::freshGeometryMapsEverythingToOnePixel()
{
    DiagramGeometry geometry;
    for (const QPointF &xy : {QPointF(0, 0), QPointF(0.3127, 0.3290), QPointF(-7, 12)}) {
        const QPointF pixel = geometry.toPixel(xy);
        QVERIFY(pixel.x() == 4.0);
        QVERIFY(pixel.y() == 0.0);
    }
}

void DiagramGeometryTest::plotOfAnOddWidth()
{
    DiagramGeometry geometry;
    geometry.setPicture(801, 20, marginPercent, range);
    // 40.5 to 760.5, though 5 % and 95 % of 801 are 40.05 and 760.95.
    QVERIFY(geometry.toPixel(QPointF(0.0, 0.0)).x() == 44.0);
    const double perUnit = 720.0 / static_cast<double>(0.84F);
    QVERIFY(geometry.toPixel(QPointF(0.5 / perUnit + 1e-9, 0.0)).x() == 45.0);
    QVERIFY(geometry.toPixel(QPointF(0.5 / perUnit - 1e-9, 0.0)).x() == 44.0);
    QVERIFY(geometry.toPixel(QPointF(719.5 / perUnit + 1e-9, 0.0)).x() == 764.0);
    QVERIFY(geometry.toPixel(QPointF(719.5 / perUnit - 1e-9, 0.0)).x() == 763.0);
}

void DiagramGeometryTest::rangeCornersMapToPlotCorners()
{
    DiagramGeometry geometry;
    for (const QSize &size : {QSize(800, 800), QSize(801, 333), QSize(100, 50), QSize(20, 20), QSize(4000, 49)}) {
        geometry.setPicture(size.width(), size.height(), marginPercent, range);
        const double left = size.width() * 5 / 100 + 0.5;
        const double top = size.height() * 5 / 100 + 0.5;
        const double spanX = size.width() * 95 / 100 - size.width() * 5 / 100;
        const double spanY = size.height() * 95 / 100 - size.height() * 5 / 100;
        const QPointF origin = geometry.toPixel(QPointF(0.0, 0.0));
        QVERIFY(origin.x() == std::trunc(left) + 4);
        QVERIFY(origin.y() == std::trunc(top + spanY));
        const QPointF far = geometry.toPixel(QPointF(static_cast<double>(0.84F), static_cast<double>(0.94F)));
        QVERIFY(far.x() == std::trunc(left + spanX) + 4);
        QVERIFY(far.y() == std::trunc(top));
    }
}

void DiagramGeometryTest::workedExample()
{
    DiagramGeometry geometry;
    geometry.setPicture(800, 800, marginPercent, range);
    const QPointF pixel = geometry.toPixel(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == 312.0);
    QVERIFY(pixel.y() == 508.0);
}

void DiagramGeometryTest::wholePixelsTruncateTowardZero()
{
    DiagramGeometry geometry;
    geometry.setPicture(800, 800, marginPercent, range);
    const double perUnitX = 720.0 / static_cast<double>(0.84F);
    const double perUnitY = 720.0 / static_cast<double>(0.94F);
    const double yMax = static_cast<double>(0.94F);
    // -0.7 becomes 0, -1.2 becomes -1.
    QPointF pixel = geometry.toPixel(QPointF((-0.7 - 40.5) / perUnitX, yMax + 41.2 / perUnitY));
    QVERIFY(pixel.x() == 4.0);
    QVERIFY(pixel.y() == 0.0);
    pixel = geometry.toPixel(QPointF((-1.2 - 40.5) / perUnitX, yMax + 41.7 / perUnitY));
    QVERIFY(pixel.x() == 3.0);
    QVERIFY(pixel.y() == -1.0);
}

void DiagramGeometryTest::zeroSpanIsRefused_data()
{
    QTest::addColumn<QRectF>("plot");
    QTest::addColumn<QRectF>("chroma");
    QTest::addColumn<bool>("accepted");
    const QRectF plot(40.5, 40.5, 760.5, 760.5);
    const QRectF chroma(0, 0, 0.84, 0.94);
    QTest::newRow("spans") << plot << chroma << true;
    QTest::newRow("no pixel span x") << QRectF(0.5, 40.5, 0.5, 760.5) << chroma << false;
    QTest::newRow("no pixel span y") << QRectF(40.5, 0.5, 760.5, 0.5) << chroma << false;
    QTest::newRow("no chroma span x") << plot << QRectF(0, 0, 0, 0.94) << false;
    QTest::newRow("no chroma span y") << plot << QRectF(0, 0, 0.84, 0) << false;
    // The pixel span is the width less the left edge.
    QTest::newRow("width equal to left") << QRectF(7, 0, 7, 10) << chroma << false;
    QTest::newRow("empty plot away from the edge") << QRectF(7, 3, 0, 0) << chroma << true;
    QTest::newRow("negative spans") << QRectF(40.5, 40.5, 1.5, 2.5) << QRectF(0.8, 0.9, -0.5, -0.5) << true;
}

void DiagramGeometryTest::zeroSpanIsRefused()
{
    QFETCH(QRectF, plot);
    QFETCH(QRectF, chroma);
    DiagramGeometry geometry;
    QTEST(geometry.set(plot, chroma), "accepted");
}

void DiagramGeometryTest::zeroSpanKeepsTheScales()
{
    DiagramGeometry geometry;
    geometry.setPicture(800, 800, marginPercent, range);
    geometry.setPicture(1, 400, marginPercent, range);
    // The rectangles are those of 1 x 400, all four scales those of 800 x 800.
    QPointF pixel = geometry.toPixel(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == std::trunc(0.5 + 0.3127 * 720 / static_cast<double>(0.84F)) + 4);
    QVERIFY(pixel.x() == 272.0);
    QVERIFY(pixel.y() == 488.0);
    geometry.setPicture(400, 1, marginPercent, range);
    pixel = geometry.toPixel(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == 292.0);
    QVERIFY(pixel.y() == 468.0);
    // The backward scales stay as well.
    const QPointF back = geometry.toChroma(100, 30);
    const QPointF forward = geometry.toExactPixel(back.x(), back.y());
    QVERIFY(std::fabs(forward.x() - 104.0) < 1e-9);
    QVERIFY(std::fabs(forward.y() - 30.0) < 1e-9);
}

void DiagramGeometryTest::exactPixelsAreNotTruncated()
{
    DiagramGeometry geometry;
    for (const QSize &size : {QSize(800, 800), QSize(801, 333), QSize(97, 211)}) {
        geometry.setPicture(size.width(), size.height(), marginPercent, range);
        reference::Mapping mapping;
        mapping.setPicture(size.width(), size.height());
        for (double x = -0.1; x < 1.0; x += 0.0371) {
            const QPointF chroma(x, 0.9 - 1.1 * x);
            const QPointF exact = geometry.toExactPixel(chroma.x(), chroma.y());
            const QPointF expected = mapping.toPixel(chroma);
            QVERIFY(exact.x() == expected.x() && exact.y() == expected.y());
            const QPointF whole = geometry.toPixel(chroma);
            const QPointF expectedWhole = mapping.toWholePixel(chroma);
            QVERIFY(whole.x() == expectedWhole.x() && whole.y() == expectedWhole.y());
        }
    }
}

void DiagramGeometryTest::backwardMappingKeepsThePixelOffset()
{
    DiagramGeometry geometry;
    geometry.setPicture(800, 800, marginPercent, range);
    for (const QPointF &any : {QPointF(0, 0), QPointF(-5, 900), QPointF(799, 799), QPointF(0.25, 100.75)}) {
        const QPointF chroma = geometry.toChroma(any.x(), any.y());
        const QPointF forward = geometry.toExactPixel(chroma.x(), chroma.y());
        QVERIFY(std::fabs(forward.x() - (any.x() + 4)) < 1e-9);
        QVERIFY(std::fabs(forward.y() - any.y()) < 1e-9);
    }
}

QTEST_APPLESS_MAIN(DiagramGeometryTest)
#include "diagramgeometrytest.moc"
