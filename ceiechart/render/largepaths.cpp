// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The antialiasing rasteriser of the paint engine works in bands of rows. The height of a band depends on the size of
// the cell pool, and all edges of a path are visited for every band: with the smallest pool, the edges of a tall path
// are visited a hundred times. The engine doubles the pool until a single row fits into it. Therefore a tall path is
// preceded by flat teeth that need many cells of the topmost row.
//
// A tooth is a line and its way back. It rises by exactly one subpixel (1/256 pixel) per pixel, so that its cells
// contain exactly the same amounts with opposite signs on both ways: the teeth cover nothing. The engine looks for a
// cell from the left end of its row; teeth from right to left, each of a few pixels, keep that way short.
#include <ceiechart/render/largepaths_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <cstddef>

namespace ceiechart {

namespace {

constexpr int toothWidth = 16; //!< in pixels: whole 1/64 pixels of rise, the unit of the engine's coordinates

/*! \brief The width in pixels of the teeth that pay from a height of the path on, in pixels. */
struct Teeth {
    double height;
    int width;
};

// Measured. An outline has four edges in most rows, a filled triangle two.
constexpr Teeth outlineTeeth[] = {{1700.0, 1536}, {650.0, 768}, {330.0, 256}};
constexpr Teeth fillTeeth[] = {{1300.0, 768}, {450.0, 256}};

/*! \brief The width of the teeth for a path with \a bounds; 0 if it is drawn faster without them. */
template <std::size_t N>
int teethWidth(const QPainter &painter, const QRectF &bounds, const Teeth (&choices)[N])
{
    if (painter.transform().isIdentity() && painter.testRenderHint(QPainter::Antialiasing)) {
        for (const Teeth &choice : choices) {
            if (bounds.height() >= choice.height) {
                return choice.width;
            }
        }
    }
    return 0;
}

QPainterPath ledByTeeth(const QPainterPath &path, int width)
{
    constexpr double low = 0.25;
    constexpr double high = low + toothWidth / 256.0;
    QPainterPath led;
    led.setFillRule(path.fillRule());
    for (int x = width - toothWidth; x >= 0; x -= toothWidth) {
        led.moveTo(x, low);
        led.lineTo(x + toothWidth, high);
        led.lineTo(x, low);
    }
    led.addPath(path);
    return led;
}

} // namespace

void drawPolygonOutline(RowLayers &layers, QPainter &painter, const QPolygonF &polygon)
{
    const QPen pen = painter.pen();
    // Thinner pens are drawn by another part of the engine, which does not work in bands.
    if (pen.widthF() < 2.0 || painter.brush().style() != Qt::NoBrush
        || !painter.testRenderHint(QPainter::Antialiasing)) {
        if (layers.engineDrawsNext()) {
            painter.drawPolygon(polygon, Qt::OddEvenFill);
        }
        return;
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    const QPainterPath outline = QPainterPathStroker(pen).createStroke(path);
    if (layers.add(painter, outline, pen.brush())) {
        return;
    }
    const int teeth = teethWidth(painter, polygon.boundingRect(), outlineTeeth);
    if (teeth > 0) {
        painter.fillPath(ledByTeeth(outline, teeth), pen.brush());
    } else {
        painter.drawPolygon(polygon, Qt::OddEvenFill);
    }
}

void fillLargePath(RowLayers &layers, QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    if (layers.add(painter, path, brush)) {
        return;
    }
    const int teeth = teethWidth(painter, path.controlPointRect(), fillTeeth);
    painter.fillPath(teeth > 0 ? ledByTeeth(path, teeth) : path, brush);
}

} // namespace ceiechart
