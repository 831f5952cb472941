// SPDX-License-Identifier: MIT
#include "chartrenderer.h"

#include <memory>

namespace gamutviewer {

namespace {

constexpr double markSize = 16.0; // pixels, of the library's measure and CMY marks

} // namespace

ChartRenderer::ChartRenderer()
    : m_renderer(nullptr)
{
}

QImage ChartRenderer::draw(const ChartScene &scene, const QSize &size)
{
    // The colour-temperature points have no setter: the simple form takes them, at whatever size.
    delete m_renderer.drawCEIPicture(1, 1, false, false, false, scene.colorTemperaturePoints);
    takeUpGeometry(size);

    m_renderer.setPointData(marks(scene.measurePoints));
    m_renderer.setCMYPointData(marks(scene.cmyPoints));
    const std::unique_ptr<QImage> picture(m_renderer.drawCEIPicture(size.width(), size.height(), true, scene.triangles,
        scene.standards, commonArea(scene.target, scene.original), false, QString()));
    return picture ? *picture : QImage();
}

//! The renderer maps for the size that it drew last, so it draws a picture without the gamuts, which is the cheapest.
void ChartRenderer::takeUpGeometry(const QSize &size)
{
    delete m_renderer.drawCEIPicture(
        size.width(), size.height(), false, {}, {}, QPolygonF(), false, QStringLiteral("no gamuts"));
}

QPolygonF ChartRenderer::pixelTriangle(const TrianglePoint &triangle)
{
    QPolygonF polygon;
    for (const QPointF &vertex : {triangle.redPos(), triangle.greenPos(), triangle.bluePos()}) {
        polygon << m_renderer.CoordinateTransformation(vertex);
    }
    return polygon;
}

QPolygonF ChartRenderer::commonArea(const TrianglePoint &a, const TrianglePoint &b)
{
    if (a.isEmpty() || b.isEmpty()) {
        return {};
    }
    return pixelTriangle(a).intersected(pixelTriangle(b));
}

QList<QRectF> ChartRenderer::marks(const QList<QPointF> &points)
{
    QList<QRectF> rectangles;
    for (const QPointF &point : points) {
        const QPointF center = m_renderer.CoordinateTransformation(point);
        rectangles.append(QRectF(center.x() - markSize / 2, center.y() - markSize / 2, markSize, markSize));
    }
    return rectangles;
}

} // namespace gamutviewer
