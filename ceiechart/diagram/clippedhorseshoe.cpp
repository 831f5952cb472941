// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/horseshoefill_p.h>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

constexpr int bandHeight = 32; //!< rows: few enough to follow slanting edges, enough to keep the number of bands small
constexpr double reach = 1.0; //!< distance in pixels up to which antialiasing can change pixels outside the polygon

/*! \brief The x coordinate of the edge from \a a to \a b at the height \a y, or that of its nearer end. */
double edgeAt(const QPointF &a, const QPointF &b, double y)
{
    const double along = b.y() == a.y() ? 0.0 : std::clamp((y - a.y()) / (b.y() - a.y()), 0.0, 1.0);
    return a.x() + along * (b.x() - a.x());
}

/*! \brief The part of \a band in which \a polygon can be visible; empty if there is none. */
QRect columnsWithin(const QPolygonF &polygon, const QRect &band)
{
    const double top = band.top() - reach;
    const double bottom = band.bottom() + 1 + reach;
    double left = std::numeric_limits<double>::infinity();
    double right = -left;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon.at(i);
        const QPointF &b = polygon.at((i + 1) % polygon.size());
        if (std::max(a.y(), b.y()) < top || std::min(a.y(), b.y()) > bottom) {
            continue;
        }
        for (const double x : {edgeAt(a, b, top), edgeAt(a, b, bottom)}) {
            left = std::min(left, x);
            right = std::max(right, x);
        }
    }
    left = std::max(std::floor(left - reach), double(band.left()));
    right = std::min(std::ceil(right + reach), double(band.right()));
    return left > right ? QRect() : QRect(int(left), band.top(), int(right) - int(left) + 1, band.height());
}

/*! \brief The first rows of the picture in its background colour. Before the fill, all rows are alike. */
QImage backgroundBand(int width, int height, const QColor &background)
{
    QImage band(width, std::min(bandHeight, height), QImage::Format_ARGB32);
    if (!band.isNull()) {
        band.fill(Qt::transparent);
        QPainter(&band).fillRect(band.rect(), background);
    }
    return band;
}

} // namespace

void drawHorseshoe(QPainter &painter, const QPolygonF &clip, int width, int height, const HorseshoeFill &fill,
    const QColor &background)
{
    QImage band = backgroundBand(width, height, background);
    if (band.isNull()) {
        return;
    }
    // The fill either fills every row from end to end or leaves all rows unchanged.
    const QRgb plain = band.pixel(0, 0);
    const bool colored = width > 1 && qRed(plain) > 0;
    if (colored) {
        band.reinterpretAsFormat(QImage::Format_RGB32);
    } else {
        band = band.convertToFormat(qAlpha(plain) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    }

    const bool bounded = canBeClipped(clip);
    const RowFill rows(fill, fastestFillKernel());
    for (int top = 0; top < height; top += band.height()) {
        const QRect whole(0, top, width, std::min(band.height(), height - top));
        const QRect area = bounded ? columnsWithin(clip, whole) : whole;
        for (int y = area.top(); colored && y <= area.bottom(); ++y) {
            rows.color(reinterpret_cast<QRgb *>(band.scanLine(y - top)), area.left(), area.right(), y);
        }
        if (!area.isEmpty()) {
            painter.drawImage(area.topLeft(), band, QRect(QPoint(0, 0), area.size()));
        }
    }
}

} // namespace ceiechart
