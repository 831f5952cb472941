// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/render/diagramrenderer_p.h>

#include <QPainter>
#include <QPolygonF>

namespace ceiechart {

void DiagramRenderer::painterBBRLine(QPainter &painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    d->planckianPoints = d->atlas.temperatureCoordinates;
    QPolygonF locus;
    locus.reserve(d->planckianPoints.size());
    for (const CEIAtlasValue::CEITemperatureCoordinate &row : qAsConst(d->planckianPoints)) {
        locus.append(d->map(row.x, row.y));
    }
    painter.drawPolyline(locus);
    painter.restore();

    if (!d->colorTemperaturePoints.isEmpty()) {
        DrawColorTempreturePoint(painter, d->colorTemperaturePoints, d->pictureHeight);
    }
}

void DiagramRenderer::DrawColorTempreturePoint(QPainter &painter, QList<QPointF> points, int size)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(QBrush(d->drawnLineColor()));
    const int diameter = truncated(mulDiv(size, 2, 100));
    const int half = diameter / 2;
    for (const QPointF &point : qAsConst(points)) {
        const QPointF centre = d->map(point.x(), point.y());
        if (isFinite(centre)) {
            painter.drawEllipse(QRectF(centre.x() - half, centre.y() - half, diameter, diameter));
        }
    }
    painter.restore();
}

} // namespace ceiechart
