// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_RENDER_RENDERERBENCH_H
#define CEIECHART_TESTS_RENDER_RENDERERBENCH_H

#include <ceiechart/render/drawceipicture.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/quietmessages.h>

#include <QPainter>
#include <QtTest>

#include <functional>
#include <memory>

// What the tests of the renderer's layers draw with.
using Renderer = NewCEIE::DrawCEIPicture;
using Triangles = QList<ColorTriangleObject>;
using Row = CEIAtlasValue::CEIAtlasCoordinate;

// A line one pixel wide between whole coordinates is spread over two pixels.
constexpr int thinLine = 60;

inline const QString skip = QStringLiteral("skip");

inline QImage simplePicture(Renderer &renderer, int w, int h, const QList<QPointF> &points = {},
    bool showCoordinate = false, bool second = false, bool third = false)
{
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(w, h, showCoordinate, second, third, points));
    return picture ? *picture : QImage();
}

// What the fill and the mappings work with is known only after a drawing.
inline void drawOnce(Renderer &renderer, int w, int h)
{
    const reference::QuietMessages quiet;
    simplePicture(renderer, w, h);
}

inline QImage gamutPicture(Renderer &renderer, int w, int h, const Triangles &triangles = {},
    const Triangles &standards = {}, const QPolygonF &clip = {}, const QString &skipText = {},
    bool showCoordinate = false, bool polygonFlag = false)
{
    const std::unique_ptr<QImage> picture(
        renderer.drawCEIPicture(w, h, showCoordinate, triangles, standards, clip, polygonFlag, skipText));
    return picture ? *picture : QImage();
}

// Fill, wavelengths, Planckian locus and marks only.
inline QImage skippedPicture(Renderer &renderer, int w, int h, bool showCoordinate = false)
{
    return gamutPicture(renderer, w, h, {}, {}, {}, skip, showCoordinate);
}

// The picture with more painted on it, in the way in which the gamut form paints.
inline QImage painted(const QImage &picture, const std::function<void(QPainter &)> &paint)
{
    QImage result = picture.copy();
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    return result;
}

inline ColorTriangleObject gamut(const QPointF &red, const QPointF &green, const QPointF &blue, const QColor &color,
    int type, double opacity = 1.0, int lineWidth = 1)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    ColorTriangleObject triangle;
    triangle.setTrianglePoint(points);
    triangle.setForeColor(color);
    triangle.setType(type);
    triangle.setOpacity(opacity);
    triangle.setTrigleLineWidth(lineWidth);
    return triangle;
}

// A gamut in the green corner, clear of the Planckian locus and of the locus' edge.
inline ColorTriangleObject greenGamut(const QColor &color, int type, double opacity = 1.0, int lineWidth = 1)
{
    return gamut({0.30, 0.45}, {0.15, 0.75}, {0.12, 0.45}, color, type, opacity, lineWidth);
}

inline QPen gamutPen(const QColor &color, double lineWidth)
{
    return QPen(QBrush(color), lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

inline QPolygonF polygonOf(Renderer &renderer, const ColorTriangleObject &triangle)
{
    const TrianglePoint &points = triangle.trianglePoint();
    return QPolygonF(QVector<QPointF>{renderer.CoordinateTransformation(points.redPos()),
        renderer.CoordinateTransformation(points.greenPos()), renderer.CoordinateTransformation(points.bluePos())});
}

inline const CEIAtlasValue &atlas()
{
    static const CEIAtlasValue tables;
    return tables;
}

inline Row rowOf(int wavelength)
{
    return atlas().atlasCoordinates.at(wavelength - 360);
}

inline QPointF chromaticityOf(int wavelength)
{
    const Row row = rowOf(wavelength);
    const double sum = row.X + row.Y + row.Z;
    return QPointF(row.X / sum, row.Y / sum);
}

inline QPointF exactPixel(Renderer &renderer, int wavelength)
{
    renderer.GetPointF(rowOf(wavelength));
    return renderer.CoordinateTransformation();
}

// The brightest grey level within a pixel of a point: antialiasing may spread a line over its neighbours.
inline int brightestNear(const QImage &picture, const QPointF &point)
{
    int brightest = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            brightest = qMax(
                brightest, qGray(picture.pixel(static_cast<int>(point.x()) + dx, static_cast<int>(point.y()) + dy)));
        }
    }
    return brightest;
}

#endif // CEIECHART_TESTS_RENDER_RENDERERBENCH_H
