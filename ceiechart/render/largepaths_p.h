// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_LARGEPATHS_P_H
#define CEIECHART_RENDER_LARGEPATHS_P_H

class QBrush;
class QPainter;
class QPainterPath;
class QPolygonF;

namespace ceiechart {

/*! \brief Draws exactly what painter.drawPolygon(polygon, Qt::OddEvenFill) draws, but faster for a large polygon. */
void drawPolygonOutline(QPainter &painter, const QPolygonF &polygon);

/*! \brief Draws exactly what painter.fillPath(path, brush) draws, but faster for a large path. */
void fillLargePath(QPainter &painter, const QPainterPath &path, const QBrush &brush);

} // namespace ceiechart

#endif
