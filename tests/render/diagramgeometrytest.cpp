// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>

#include <reference/plainrenderer.h>
#include <reference/quietmessages.h>
#include <reference/rendererstate.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using Renderer = NewCEIE::DrawCEIPicture;

const CEIAtlasValue &atlas()
{
    static const CEIAtlasValue tables;
    return tables;
}

// What the fill and the mappings work with is known only after a drawing.
void drawOnce(Renderer &renderer, int w, int h)
{
    const reference::QuietMessages quiet;
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(w, h, false, false, false, QList<QPointF>()));
}

reference::Mapping mappingOf(int w, int h)
{
    reference::PlainRenderer plain;
    plain.setPictureSize(w, h);
    return plain.mapping();
}

} // namespace

class DiagramGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mulDivAddsAHalfAfterTheIntegerDivision_data();
    void mulDivAddsAHalfAfterTheIntegerDivision();
    void clampKeepsTheRange();
    void clampOfNanIsTheUpperLimit();
    void freshRendererMapsEverythingToOnePixel();
    void plotOfAnOddWidth();
    void rangeCornersMapToPlotCorners();
    void workedExample();
    void wholePixelsTruncateTowardZero();
    void zeroSpanIsRefused_data();
    void zeroSpanIsRefused();
    void zeroSpanKeepsTheScales();
    void atlasCoordinateBecomesTheCurrentPoint();
    void emptyAtlasCoordinateGivesNan();
    void currentPointMapsWithoutTruncation();
    void backwardMappingKeepsThePixelOffset();
    void thirdCoordinateIsLeftAlone();
    void offsetPoints();
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
    Renderer renderer(nullptr);
    QTEST(renderer.mulDiv(a, b, c), "expected");
}

void DiagramGeometryTest::clampKeepsTheRange()
{
    Renderer renderer(nullptr);
    QVERIFY(renderer.Clamp(-0.2, 0, 1) == 0.0);
    QVERIFY(renderer.Clamp(1.7, 0, 1) == 1.0);
    QVERIFY(renderer.Clamp(0.4, 0, 1) == 0.4);
    QVERIFY(renderer.Clamp(0.0, 0, 1) == 0.0);
    QVERIFY(renderer.Clamp(1.0, 0, 1) == 1.0);
    QVERIFY(renderer.Clamp(-std::numeric_limits<double>::infinity(), -2, 3) == -2.0);
    QVERIFY(renderer.Clamp(std::numeric_limits<double>::infinity(), -2, 3) == 3.0);
    // Limits the wrong way round: the lower one is looked at first.
    QVERIFY(renderer.Clamp(0.5, 1, 0) == 1.0);
    QVERIFY(renderer.Clamp(2.0, 1, 0) == 0.0);
}

void DiagramGeometryTest::clampOfNanIsTheUpperLimit()
{
    Renderer renderer(nullptr);
    QVERIFY(renderer.Clamp(std::numeric_limits<double>::quiet_NaN(), 0, 1) == 1.0);
    QVERIFY(renderer.Clamp(std::numeric_limits<double>::quiet_NaN(), -7, -5) == -5.0);
}

void DiagramGeometryTest::freshRendererMapsEverythingToOnePixel()
{
    Renderer renderer(nullptr);
    for (const QPointF &xy : {QPointF(0, 0), QPointF(0.3127, 0.3290), QPointF(-7, 12)}) {
        const QPointF pixel = renderer.CoordinateTransformation(xy);
        QVERIFY(pixel.x() == 4.0);
        QVERIFY(pixel.y() == 0.0);
    }
}

void DiagramGeometryTest::plotOfAnOddWidth()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 801, 20);
    // 40.5 to 760.5, though 5 % and 95 % of 801 are 40.05 and 760.95.
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.0, 0.0)).x() == 44.0);
    const double perUnit = 720.0 / static_cast<double>(0.84F);
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.5 / perUnit + 1e-9, 0.0)).x() == 45.0);
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.5 / perUnit - 1e-9, 0.0)).x() == 44.0);
    QVERIFY(renderer.CoordinateTransformation(QPointF(719.5 / perUnit + 1e-9, 0.0)).x() == 764.0);
    QVERIFY(renderer.CoordinateTransformation(QPointF(719.5 / perUnit - 1e-9, 0.0)).x() == 763.0);
}

void DiagramGeometryTest::rangeCornersMapToPlotCorners()
{
    Renderer renderer(nullptr);
    for (const QSize &size : {QSize(800, 800), QSize(801, 333), QSize(100, 50), QSize(20, 20), QSize(4000, 49)}) {
        drawOnce(renderer, size.width(), size.height());
        const double left = size.width() * 5 / 100 + 0.5;
        const double top = size.height() * 5 / 100 + 0.5;
        const double spanX = size.width() * 95 / 100 - size.width() * 5 / 100;
        const double spanY = size.height() * 95 / 100 - size.height() * 5 / 100;
        const QPointF origin = renderer.CoordinateTransformation(QPointF(0.0, 0.0));
        QVERIFY(origin.x() == std::trunc(left) + 4);
        QVERIFY(origin.y() == std::trunc(top + spanY));
        const QPointF far
            = renderer.CoordinateTransformation(QPointF(static_cast<double>(0.84F), static_cast<double>(0.94F)));
        QVERIFY(far.x() == std::trunc(left + spanX) + 4);
        QVERIFY(far.y() == std::trunc(top));
    }
}

void DiagramGeometryTest::workedExample()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    const QPointF pixel = renderer.CoordinateTransformation(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == 312.0);
    QVERIFY(pixel.y() == 508.0);
}

void DiagramGeometryTest::wholePixelsTruncateTowardZero()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    const double perUnitX = 720.0 / static_cast<double>(0.84F);
    const double perUnitY = 720.0 / static_cast<double>(0.94F);
    const double yMax = static_cast<double>(0.94F);
    // -0.7 becomes 0, -1.2 becomes -1.
    QPointF pixel = renderer.CoordinateTransformation(QPointF((-0.7 - 40.5) / perUnitX, yMax + 41.2 / perUnitY));
    QVERIFY(pixel.x() == 4.0);
    QVERIFY(pixel.y() == 0.0);
    pixel = renderer.CoordinateTransformation(QPointF((-1.2 - 40.5) / perUnitX, yMax + 41.7 / perUnitY));
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
    Renderer renderer(nullptr);
    QTEST(renderer.GetCoordinateTransformationData(plot, chroma), "accepted");
}

void DiagramGeometryTest::zeroSpanKeepsTheScales()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    drawOnce(renderer, 1, 400);
    // The rectangles are those of 1 x 400, all four scales those of 800 x 800.
    QPointF pixel = renderer.CoordinateTransformation(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == std::trunc(0.5 + 0.3127 * 720 / static_cast<double>(0.84F)) + 4);
    QVERIFY(pixel.x() == 272.0);
    QVERIFY(pixel.y() == 488.0);
    drawOnce(renderer, 400, 1);
    pixel = renderer.CoordinateTransformation(QPointF(0.3127, 0.3290));
    QVERIFY(pixel.x() == 292.0);
    QVERIFY(pixel.y() == 468.0);
    // The backward scales stay as well: the current point is where 800 x 800 has it from these rectangles.
    renderer.MapPixelToReal(100, 30);
    const QPointF back = renderer.CoordinateTransformation();
    QVERIFY(std::fabs(back.x() - 104.0) < 1e-9);
    QVERIFY(std::fabs(back.y() - 30.0) < 1e-9);
}

void DiagramGeometryTest::atlasCoordinateBecomesTheCurrentPoint()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    CEIAtlasValue::CEIAtlasCoordinate coordinate;
    coordinate.waveLength = 555;
    coordinate.X = 0.5120501;
    coordinate.Y = 1.0;
    coordinate.Z = 0.005749999;
    renderer.GetPointF(coordinate);
    const QPointF pixel = renderer.CoordinateTransformation();
    const double sum = coordinate.X + coordinate.Y + coordinate.Z;
    const QPointF expected = mappingOf(800, 800).toPixel(QPointF(coordinate.X / sum, coordinate.Y / sum));
    QVERIFY(pixel.x() == expected.x());
    QVERIFY(pixel.y() == expected.y());
    // x = 0.3373..., y = 0.6588... on 720 pixels
    QVERIFY(std::fabs(pixel.x() - (44.5 + 0.3373 * 857.1429)) < 0.1);
    QVERIFY(std::fabs(pixel.y() - (760.5 - 0.6589 * 765.9575)) < 0.1);
}

void DiagramGeometryTest::emptyAtlasCoordinateGivesNan()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    renderer.GetPointF(CEIAtlasValue::CEIAtlasCoordinate());
    const QPointF pixel = renderer.CoordinateTransformation();
    QVERIFY(std::isnan(pixel.x()));
    QVERIFY(std::isnan(pixel.y()));
}

void DiagramGeometryTest::currentPointMapsWithoutTruncation()
{
    Renderer renderer(nullptr);
    for (const QSize &size : {QSize(800, 800), QSize(801, 333), QSize(97, 211)}) {
        drawOnce(renderer, size.width(), size.height());
        const reference::Mapping mapping = mappingOf(size.width(), size.height());
        for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas().atlasCoordinates) {
            renderer.GetPointF(row);
            const QPointF pixel = renderer.CoordinateTransformation();
            const double sum = row.X + row.Y + row.Z;
            const QPointF expected = mapping.toPixel(QPointF(row.X / sum, row.Y / sum));
            QVERIFY(pixel.x() == expected.x());
            QVERIFY(pixel.y() == expected.y());
            const QPointF whole = renderer.CoordinateTransformation(QPointF(row.X / sum, row.Y / sum));
            QVERIFY(whole.x() == std::trunc(expected.x()));
            QVERIFY(whole.y() == std::trunc(expected.y()));
        }
    }
}

void DiagramGeometryTest::backwardMappingKeepsThePixelOffset()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    const QPointF p(0.3127, 0.3290);
    const QPointF pixel = renderer.CoordinateTransformation(p);
    renderer.MapPixelToReal(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
    // Seen through the forward mapping, the current point lies four pixels to the right of its pixel.
    const QPointF again = renderer.CoordinateTransformation();
    QVERIFY(std::fabs(again.x() - (pixel.x() + 4)) < 1e-9);
    QVERIFY(std::fabs(again.y() - pixel.y()) < 1e-9);

    for (const QPoint &any : {QPoint(0, 0), QPoint(-5, 900), QPoint(799, 799)}) {
        renderer.MapPixelToReal(any.x(), any.y());
        const QPointF forward = renderer.CoordinateTransformation();
        QVERIFY(std::fabs(forward.x() - (any.x() + 4)) < 1e-9);
        QVERIFY(std::fabs(forward.y() - any.y()) < 1e-9);
    }
}

void DiagramGeometryTest::thirdCoordinateIsLeftAlone()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    reference::setCurrentPoint(renderer, {7.0, 8.0, 0.125});
    renderer.MapPixelToReal(100, 30);
    QVERIFY(reference::currentPoint(renderer).x < 1.0 && reference::currentPoint(renderer).y < 1.0);
    QCOMPARE(reference::currentPoint(renderer).z, 0.125);
    renderer.GetPointF(atlas().atlasCoordinates.at(555 - 360));
    QVERIFY(std::fabs(reference::currentPoint(renderer).y - 0.6589) < 1e-3);
    QCOMPARE(reference::currentPoint(renderer).z, 0.125);
}

void DiagramGeometryTest::offsetPoints()
{
    Renderer renderer(nullptr);
    QVector<QPointF> points;
    renderer.updateTriangleOffsetPoint(points);
    QVERIFY(points.isEmpty());
    points = {QPointF(0, 0), QPointF(-7.25, 3.5), QPointF(100, -1)};
    renderer.updateTriangleOffsetPoint(points);
    QCOMPARE(points.size(), 3);
    QVERIFY(points.at(0).x() == 4.0);
    QVERIFY(points.at(0).y() == 0.0);
    QVERIFY(points.at(1).x() == -3.25);
    QVERIFY(points.at(1).y() == 3.5);
    QVERIFY(points.at(2).x() == 104.0);
    QVERIFY(points.at(2).y() == -1.0);
}

QTEST_MAIN(DiagramGeometryTest)
#include "diagramgeometrytest.moc"
