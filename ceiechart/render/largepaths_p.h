// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_LARGEPATHS_P_H
#define CEIECHART_RENDER_LARGEPATHS_P_H

class QBrush;
class QPainter;
class QPainterPath;
class QPolygonF;

namespace ceiechart {

/*! \brief What painter.drawPolygon(polygon, Qt::OddEvenFill) draws, pixel for pixel; less slow for a large polygon. */
void drawPolygonOutline(QPainter &painter, const QPolygonF &polygon);

/*! \brief What painter.fillPath(path, brush) draws, pixel for pixel; less slow for a large path. */
void fillLargePath(QPainter &painter, const QPainterPath &path, const QBrush &brush);

} // namespace ceiechart

#endif
