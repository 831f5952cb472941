// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/pens_p.h>
#include <ceiechart/render/diagramrenderer_p.h>

#include <QPainter>
#include <QVector>

namespace ceiechart {

namespace {

constexpr int firstWavelength = 360; //!< in nm
constexpr int lastWavelength = 830; //!< in nm; the outline itself ends one row earlier

constexpr double edgeWidth = 2.0; //!< in pixels

} // namespace

void DiagramRenderer::paintCEIEdge(QPainter &painter)
{
    QVector<QLineF> segments;
    segments.reserve(d->locus.size());
    d->edgeSegments = &segments;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : qAsConst(d->locus)) {
        if (row.waveLength == firstWavelength) {
            GetPointF(row);
            const QPointF start = CoordinateTransformation();
            d->pendingLine.setPoints(start, start);
        } else if (row.waveLength > firstWavelength && row.waveLength < lastWavelength) {
            d->pendingLine.setP1(DrawPointFToLine(painter, row, d->pendingLine.p1()));
        }
    }
    d->edgeSegments = nullptr;

    // The pending line now leads from the red end to the violet end: the line of purples.
    segments.append(d->pendingLine);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(solidPen(d->drawnLineColor(), edgeWidth));
    painter.drawLines(segments);
    painter.restore();
}

QPointF DiagramRenderer::DrawPointFToLine(
    QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row, const QPointF &previous)
{
    GetPointF(row);
    const QPointF point = CoordinateTransformation();
    if (d->edgeSegments != nullptr) {
        d->edgeSegments->append(QLineF(previous, point));
        return point;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(solidPen(d->drawnLineColor(), edgeWidth));
    painter.drawLine(previous, point);
    painter.restore();
    return point;
}

} // namespace ceiechart
