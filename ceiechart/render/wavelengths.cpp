// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/render/diagramrenderer_p.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextOption>
#include <QtMath>

#include <cmath>

namespace ceiechart {

namespace {

constexpr double tickLength = 0.0168; //!< in units of chromaticity
constexpr int tickWidthPerMille = 2; //!< in thousandths of the picture's height

/*!
 * \brief The weight of a tick: 1 with a number, 0.5 without one, 0 for no tick. The crowded ends of the locus have
 * none.
 */
double tickWeight(int wavelength)
{
    if ((wavelength >= 421 && wavelength <= 449) || (wavelength >= 631 && wavelength <= 679)) {
        return 0.0;
    }
    if (wavelength % 10 == 0) {
        return 1.0;
    }
    return wavelength % 5 == 0 ? 0.5 : 0.0;
}

/*! \brief Moves the corner of a \a w × \a h text box so that the box does not touch a tick that points to \a octant. */
QPoint textCorner(int octant, int x, int y, int w, int h)
{
    switch (octant) {
    case 0:
    case 8:
        return {x, y - h / 2};
    case 1:
        return {x, y - h};
    case 2:
        return {x - w / 2, y - h};
    case 3:
        return {x - w, y - h};
    case 4:
        return {x - w, y - h / 2};
    case 5:
        return {x - w, y};
    case 6:
        return {x - w / 2, y};
    default:
        return {x, y};
    }
}

} // namespace

void DiagramRenderer::painterWaveLength(QPainter &painter)
{
    painter.save();
    QPen pen = painter.pen();
    pen.setColor(d->drawn(Qt::white, comfortableTextContrast));
    painter.setPen(pen);
    painter.setFont(QFont(QStringLiteral("Arial"), 14));
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : qAsConst(d->locus)) {
        GetPointF(row);
        if (row.waveLength < 419 || row.waveLength > 680) {
            continue;
        }
        if (row.waveLength > 419) {
            d->tickWeight = tickWeight(row.waveLength);
            DrawEdgeCoordinates(painter, row);
        }
        d->previousLocusPoint = QPointF(d->current.x, d->current.y);
    }
    painter.restore();
}

void DiagramRenderer::DrawEdgeCoordinates(QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row)
{
    if (d->tickWeight <= 0) {
        return;
    }
    const double dx = d->current.x - d->previousLocusPoint.x();
    const double dy = d->current.y - d->previousLocusPoint.y();
    const double length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0)) {
        return; // the chord has no direction
    }
    const double nx = dy / length;
    const double ny = -dx / length;

    const bool numbered = row.waveLength % 10 == 0;
    if (!numbered) {
        QPen pen = painter.pen();
        pen.setWidthF(mulDiv(d->pictureHeight, tickWidthPerMille, 1000));
        painter.setPen(pen);
    }
    const QPointF inner = CoordinateTransformation();
    d->current.x += -d->tickWeight * tickLength * nx;
    d->current.y += -d->tickWeight * tickLength * ny;
    const QPointF outer = CoordinateTransformation();
    const QPoint p0(truncated(inner.x()), truncated(inner.y()));
    const QPoint p1(truncated(outer.x()), truncated(outer.y()));
    if (numbered) {
        ShowAnnotation(painter, p1.x(), p1.y(), p0.x(), p0.y(), QString::number(row.waveLength));
    } else {
        painter.drawLine(p0, p1);
    }
}

void DiagramRenderer::ShowAnnotation(QPainter &painter, int x1, int y1, int x2, int y2, QString text)
{
    painter.save();
    QFont font(QStringLiteral("Arial"), 8);
    font.setPointSize(8);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(d->drawn(Qt::white, comfortableTextContrast));

    double degrees = (std::atan2(y1 - y2, x2 - x1) / M_PI + 1) * 180;
    if (degrees >= 360) {
        degrees -= 360;
    }
    const int octant = truncated((degrees + 22.5) / 45);

    painter.drawLine(x1, y1, x2, y2);
    const QFontMetrics metrics(font);
    const QSize box(metrics.horizontalAdvance(text), metrics.height());
    const QRect place(textCorner(octant, x1, y1, box.width(), box.height()), box);
    painter.drawText(QRectF(place), text, QTextOption());
    painter.restore();
}

} // namespace ceiechart
