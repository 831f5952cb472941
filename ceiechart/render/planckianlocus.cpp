// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/render/diagramlayers.h>

#include <QPainter>
#include <QPolygonF>

namespace ceiechart {

void DiagramLayers::painterBBRLine(QPainter &painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    m_planckianPoints = m_atlas.temperatureCoordinates;
    QPolygonF locus;
    locus.reserve(m_planckianPoints.size());
    for (const CEIAtlasValue::CEITemperatureCoordinate &row : qAsConst(m_planckianPoints)) {
        m_current.x = row.x;
        m_current.y = row.y;
        locus.append(CoordinateTransformation());
    }
    painter.drawPolyline(locus);
    painter.restore();

    if (!m_colorTemperaturePoints.isEmpty()) {
        DrawColorTempreturePoint(painter, m_colorTemperaturePoints, m_pictureHeight);
    }
}

void DiagramLayers::DrawColorTempreturePoint(QPainter &painter, QList<QPointF> points, int size)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(QBrush(m_lineColor));
    const int diameter = truncated(mulDiv(size, 2, 100));
    const int half = diameter / 2;
    for (const QPointF &point : qAsConst(points)) {
        m_current.x = point.x();
        m_current.y = point.y();
        const QPointF centre = CoordinateTransformation();
        painter.drawEllipse(QRectF(centre.x() - half, centre.y() - half, diameter, diameter));
    }
    painter.restore();
}

} // namespace ceiechart
