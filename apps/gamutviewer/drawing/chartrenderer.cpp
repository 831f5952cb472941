// SPDX-License-Identifier: MIT
#include "drawing/chartrenderer.h"

#include <algorithm>
#include <memory>

namespace gamutviewer {

namespace {

const QRectF nowhere(-1000.0, -1000.0, 1.0, 1.0); // outside of every picture

} // namespace

ChartRenderer::ChartRenderer()
    : m_renderer(nullptr)
{
}

QImage ChartRenderer::draw(const ChartScene &scene, const QSize &size)
{
    // The colour-temperature points have no setter: the simple form takes them, at whatever size.
    delete m_renderer.drawCEIPicture(1, 1, false, false, false, scene.colorTemperaturePoints);
    m_geometry = ceiechart::chartGeometry(ceiechart::ChartKind::CurrentXy, size.width(), size.height());

    m_renderer.setPointData(measureRectangles(scene.measurePoints));
    m_renderer.setCMYPointData(marks(scene.cmyPoints));
    const std::unique_ptr<QImage> picture(m_renderer.drawCEIPicture(size.width(), size.height(), scene.axes,
        scene.triangles, scene.standards, commonArea(scene.target, scene.original), false, QString()));
    return picture ? *picture : QImage();
}

QPolygonF ChartRenderer::pixelTriangle(const TrianglePoint &triangle)
{
    QPolygonF polygon;
    for (const QPointF &vertex : {triangle.redPos(), triangle.greenPos(), triangle.bluePos()}) {
        polygon << m_geometry.toPixel(vertex);
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

//! The library colours measure points by their place in the list: red, green, blue, white, any further ones black.
QList<QRectF> ChartRenderer::measureRectangles(const QVector<PointMark> &points)
{
    QList<QRectF> rectangles;
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue, Qt::white}) {
        const auto found = std::find_if(
            points.begin(), points.end(), [color](const PointMark &mark) { return mark.color == QColor(color); });
        rectangles.append(found == points.end() ? nowhere : marks({found->xy}).first());
    }
    for (const PointMark &mark : points) {
        if (mark.color == QColor(Qt::black)) {
            rectangles.append(marks({mark.xy}));
        }
    }
    return rectangles;
}

QList<QRectF> ChartRenderer::marks(const QList<QPointF> &points)
{
    QList<QRectF> rectangles;
    for (const QPointF &point : points) {
        const QPointF center = m_geometry.toPixel(point);
        rectangles.append(QRectF(center.x() - markSize / 2, center.y() - markSize / 2, markSize, markSize));
    }
    return rectangles;
}

} // namespace gamutviewer
