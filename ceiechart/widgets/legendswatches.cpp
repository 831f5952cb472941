// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/gamutstyle.h>
#include <ceiechart/widgets/legendswatches_p.h>

#include <QPainter>
#include <QPainterPath>

namespace ceiechart {

namespace {

QPixmap filled(int side, const QColor &color)
{
    QPixmap swatch(side, side);
    swatch.fill(color);
    return swatch;
}

QPixmap point(int side, const QPainterPath &shape, const QPen &pen, const QBrush &brush)
{
    QPixmap swatch = filled(side, Qt::transparent);
    QPainter painter(&swatch);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawPath(shape);
    return swatch;
}

QPixmap originalGamut()
{
    QPixmap swatch = filled(16, legacyChartStyle(OriginalGamut).color);
    QPainter painter(&swatch);
    painter.setPen(QPen(Qt::gray, 1, Qt::SolidLine));
    painter.drawRect(0, 0, 15, 15);
    return swatch;
}

QPixmap targetPoint()
{
    QPainterPath plus(QPointF(7, 0));
    for (const QPointF &corner : {QPointF(9, 0), QPointF(9, 7), QPointF(16, 7), QPointF(16, 9), QPointF(9, 9),
             QPointF(9, 16), QPointF(7, 16), QPointF(7, 9), QPointF(0, 9), QPointF(0, 7), QPointF(7, 7)}) {
        plus.lineTo(corner);
    }
    plus.closeSubpath();
    return point(17, plus, QPen(Qt::black, 1), Qt::white);
}

QPixmap originalPoint()
{
    QPainterPath disc;
    disc.addEllipse(0, 0, 15, 15);
    return point(16, disc, Qt::NoPen, Qt::gray);
}

QPixmap managedPoint()
{
    QPainterPath ring;
    ring.addEllipse(1, 1, 14, 14);
    return point(16, ring, QPen(Qt::black, 2), Qt::NoBrush);
}

} // namespace

QPixmap legendSwatch(LegendEntry entry)
{
    switch (entry) {
    case LegendEntry::CommonGamut:
        return filled(16, QColor(255, 255, 0));
    case LegendEntry::TargetGamut:
        return filled(16, legacyChartStyle(TargetGamut).color);
    case LegendEntry::OriginalGamut:
        return originalGamut();
    case LegendEntry::TargetPoint:
        return targetPoint();
    case LegendEntry::OriginalPoint:
        return originalPoint();
    case LegendEntry::ManagedPoint:
        return managedPoint();
    }
    return {};
}

} // namespace ceiechart
