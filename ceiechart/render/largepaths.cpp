// SPDX-License-Identifier: MIT
//
// The antialiasing rasteriser of the paint engine works in bands of rows whose height follows the size of its cell
// pool, and walks all edges of a path for every band: with its smallest pool a tall path is walked a hundred times.
// It takes a larger pool when a single row does not fit. So a tall path is led by a flat zigzag that fills many cells
// of the topmost row and returns on its own track. Its slope is a whole number of subpixels per pixel, so that what
// it adds to a cell on the way out it takes off exactly on the way back: it covers nothing.
#include <ceiechart/render/largepaths_p.h>

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace ceiechart {

namespace {

constexpr double tall = 1200.0; //!< pixels; below, the larger pool costs more than it saves
constexpr int zigzagWidth = 256; //!< pixels

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
    // Thinner pens are drawn by another part of the engine, which has no bands.
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
