// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/diagram/pens_p.h>
#include <ceiechart/model/gamutkind.h>
#include <ceiechart/render/drawceipicture_p.h>
#include <ceiechart/render/largepaths_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QPainter>
#include <QPainterPath>

namespace NewCEIE {

namespace {

/*!
 * \brief The colour of a tint: \a color with an alpha of \a opacity × 256, truncated.
 *
 * An opacity of 1.0 gives an alpha of 256, which is invalid: such a colour paints nothing.
 */
QColor tint(const QColor &color, double opacity)
{
    return QColor(color.red(), color.green(), color.blue(), ceiechart::truncated(opacity * 256.0));
}

} // namespace

QPolygonF DrawCEIPicture::Private::trianglePolygon(const ColorTriangleObject &triangle) const
{
    const TrianglePoint &points = triangle.trianglePoint();
    return QPolygonF(
        {geometry.toPixel(points.redPos()), geometry.toPixel(points.greenPos()), geometry.toPixel(points.bluePos())});
}

void DrawCEIPicture::painterStandard(QPainter &painter, const QList<ColorTriangleObject> &standards)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    ceiechart::RowLayers here;
    ceiechart::RowLayers &to = d->layers != nullptr ? *d->layers : here;
    for (ColorTriangleObject standard : standards) {
        const QColor color = d->drawn(standard.foreColor(), ceiechart::leastLineContrast);
        painter.setPen(ceiechart::solidPen(color, standard.trigleLineWidth()));
        const QPolygonF polygon = own().trianglePolygon(standard);
        ceiechart::drawPolygonOutline(to, painter, polygon);
        QPainterPath path;
        path.addPolygon(polygon);
        ceiechart::fillLargePath(to, painter, path, QBrush(tint(color, standard.opacity())));
    }
    here.draw();
    painter.restore();
}

void DrawCEIPicture::painterTriangle(QPainter &painter, const QList<ColorTriangleObject> &triangles)
{
    for (const ColorTriangleObject &triangle : triangles) {
        switch (triangle.type()) {
        case ceiechart::TargetGamut:
            painterTargetTriangle(painter, triangle);
            break;
        case ceiechart::OriginalGamut:
            painterOriginalTriangle(painter, triangle);
            break;
        case ceiechart::MeasuredGamut:
            painterInputTriangle(painter, triangle);
            break;
        default:
            break;
        }
    }
}

void DrawCEIPicture::painterTargetTriangle(QPainter &painter, const ColorTriangleObject &triangle)
{
    own().drawOutline(painter, triangle);
}

void DrawCEIPicture::painterOriginalTriangle(QPainter &painter, const ColorTriangleObject &triangle)
{
    own().drawOutline(painter, triangle);
}

void DrawCEIPicture::painterInputTriangle(QPainter &painter, const ColorTriangleObject &triangle)
{
    own().drawOutline(painter, triangle);
}

void DrawCEIPicture::Private::drawOutline(QPainter &painter, const ColorTriangleObject &triangle) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    ColorTriangleObject copy(triangle);
    painter.setPen(ceiechart::solidPen(drawn(copy.foreColor(), ceiechart::leastLineContrast), copy.trigleLineWidth()));
    ceiechart::RowLayers here;
    ceiechart::drawPolygonOutline(layers != nullptr ? *layers : here, painter, trianglePolygon(copy));
    here.draw();
    painter.restore();
}

void DrawCEIPicture::painterIntersectsTriangle(QPainter &painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(ceiechart::solidPen(QColor(255, 255, 255, 128), 1.0));
    painter.drawPolygon(own().clipPolygon, Qt::OddEvenFill);
    painter.restore();
}

} // namespace NewCEIE
