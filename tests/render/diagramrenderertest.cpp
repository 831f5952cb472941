// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "rendererbench.h"

#include <reference/plainrenderer.h>
#include <reference/rendererstate.h>

#include <cmath>
#include <limits>

class DiagramRendererTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundingIsThatOfTheGeometry();
    void mappingIsThatOfTheLastDrawing();
    void zeroSpanIsRefused();
    void atlasCoordinateBecomesTheCurrentPoint();
    void emptyAtlasCoordinateGivesNan();
    void currentPointMapsWithoutTruncation();
    void backwardMappingKeepsThePixelOffset();
    void thirdCoordinateIsLeftAlone();
    void offsetPoints();
};

void DiagramRendererTest::roundingIsThatOfTheGeometry()
{
    Renderer renderer(nullptr);
    QCOMPARE(renderer.mulDiv(801, 5, 100), 40.5);
    QCOMPARE(renderer.mulDiv(801, 95, 100), 760.5);
    QVERIFY(renderer.Clamp(-0.2, 0, 1) == 0.0);
    QVERIFY(renderer.Clamp(1.7, 0, 1) == 1.0);
    QVERIFY(renderer.Clamp(0.4, 0, 1) == 0.4);
    QVERIFY(renderer.Clamp(std::numeric_limits<double>::quiet_NaN(), -7, -5) == -5.0);
}

void DiagramRendererTest::mappingIsThatOfTheLastDrawing()
{
    Renderer renderer(nullptr);
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.3127, 0.3290)) == QPointF(4, 0));
    drawOnce(renderer, 800, 800);
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.3127, 0.3290)) == QPointF(312, 508));
    // Without an extent the rectangles are those of 1 x 400, all four scales those of 800 x 800.
    drawOnce(renderer, 1, 400);
    QVERIFY(renderer.CoordinateTransformation(QPointF(0.3127, 0.3290)) == QPointF(272, 488));
    renderer.MapPixelToReal(100, 30);
    const QPointF back = renderer.CoordinateTransformation();
    QVERIFY(std::fabs(back.x() - 104.0) < 1e-9);
    QVERIFY(std::fabs(back.y() - 30.0) < 1e-9);
}

void DiagramRendererTest::zeroSpanIsRefused()
{
    Renderer renderer(nullptr);
    const QRectF chroma(0, 0, 0.84, 0.94);
    QVERIFY(renderer.GetCoordinateTransformationData(QRectF(40.5, 40.5, 760.5, 760.5), chroma));
    QVERIFY(!renderer.GetCoordinateTransformationData(QRectF(40.5, 0.5, 760.5, 0.5), chroma));
}

void DiagramRendererTest::atlasCoordinateBecomesTheCurrentPoint()
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
    const QPointF expected = reference::mappingOf(800, 800).toPixel(QPointF(coordinate.X / sum, coordinate.Y / sum));
    QVERIFY(pixel.x() == expected.x());
    QVERIFY(pixel.y() == expected.y());
    // x = 0.3373..., y = 0.6588... on 720 pixels
    QVERIFY(std::fabs(pixel.x() - (44.5 + 0.3373 * 857.1429)) < 0.1);
    QVERIFY(std::fabs(pixel.y() - (760.5 - 0.6589 * 765.9575)) < 0.1);
}

void DiagramRendererTest::emptyAtlasCoordinateGivesNan()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 800, 800);
    renderer.GetPointF(CEIAtlasValue::CEIAtlasCoordinate());
    const QPointF pixel = renderer.CoordinateTransformation();
    QVERIFY(std::isnan(pixel.x()));
    QVERIFY(std::isnan(pixel.y()));
}

void DiagramRendererTest::currentPointMapsWithoutTruncation()
{
    Renderer renderer(nullptr);
    for (const QSize &size : {QSize(800, 800), QSize(801, 333), QSize(97, 211)}) {
        drawOnce(renderer, size.width(), size.height());
        const reference::Mapping mapping = reference::mappingOf(size.width(), size.height());
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

void DiagramRendererTest::backwardMappingKeepsThePixelOffset()
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

void DiagramRendererTest::thirdCoordinateIsLeftAlone()
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

void DiagramRendererTest::offsetPoints()
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

QTEST_MAIN(DiagramRendererTest)
#include "diagramrenderertest.moc"
