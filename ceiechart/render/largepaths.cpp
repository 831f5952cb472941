// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The antialiasing rasteriser of the paint engine works in bands of rows. The height of a band depends on the size of
// the cell pool, and all edges of a path are visited for every band: with the smallest pool, the edges of a tall path
// are visited a hundred times. The engine uses a larger pool if a single row does not fit into the smallest one.
// Therefore a tall path is preceded by a flat zigzag that needs many cells of the topmost row and that returns on the
// same way. Its slope is a whole number of subpixels per pixel, so that the cells contain exactly the same amounts with
// opposite signs on both ways: the zigzag covers nothing.
#include <ceiechart/render/largepaths_p.h>

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace ceiechart {

namespace {

constexpr double tall = 1200.0; //!< height in pixels below which the larger pool costs more time than it saves
constexpr double zigzagWidth = 256.0; //!< width in pixels

bool isTall(const QPainter &painter, const QRectF &bounds)
{
    return bounds.height() >= tall && painter.transform().isIdentity()
        && painter.testRenderHint(QPainter::Antialiasing);
}

QPainterPath ledByZigzag(const QPainterPath &path)
{
    constexpr double high = 0.25;
    constexpr double low = 0.75;
    QPainterPath led;
    led.setFillRule(path.fillRule());
    led.moveTo(0, high);
    led.lineTo(zigzagWidth / 2, low);
    led.lineTo(zigzagWidth, high);
    led.lineTo(zigzagWidth / 2, low);
    led.lineTo(0, high);
    led.addPath(path);
    return led;
}

} // namespace

void drawPolygonOutline(QPainter &painter, const QPolygonF &polygon)
{
    const QPen pen = painter.pen();
    // Thinner pens are drawn by another part of the engine, which does not work in bands.
    if (pen.widthF() < 2.0 || painter.brush().style() != Qt::NoBrush || !isTall(painter, polygon.boundingRect())) {
        painter.drawPolygon(polygon, Qt::OddEvenFill);
        return;
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    painter.fillPath(ledByZigzag(QPainterPathStroker(pen).createStroke(path)), pen.brush());
}

void fillLargePath(QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    painter.fillPath(isTall(painter, path.controlPointRect()) ? ledByZigzag(path) : path, brush);
}

} // namespace ceiechart
