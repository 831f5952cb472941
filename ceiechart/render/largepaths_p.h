// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_LARGEPATHS_P_H
#define CEIECHART_RENDER_LARGEPATHS_P_H

class QBrush;
class QPainter;
class QPainterPath;
class QPolygonF;

namespace ceiechart {

class RowLayers;

/*!
 * \brief Draws exactly what painter.drawPolygon(polygon, Qt::OddEvenFill) draws, but faster for a large polygon.
 *
 * Where that is faster still, the outline is only added to \a layers, for RowLayers::draw().
 */
void drawPolygonOutline(RowLayers &layers, QPainter &painter, const QPolygonF &polygon);

/*! \brief Draws what painter.fillPath(path, brush) draws, in the same way. */
void fillLargePath(RowLayers &layers, QPainter &painter, const QPainterPath &path, const QBrush &brush);

} // namespace ceiechart

#endif
