// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DASHEDLINES_P_H
#define CEIECHART_RENDER_DASHEDLINES_P_H

#include <QImage>
#include <QPainter>
#include <QPointF>

namespace ceiechart {

/*!
 * \brief Draws dashed horizontal and vertical lines with the pixels of the paint engine, but faster.
 *
 * The dashes of such a line repeat after a whole number of pixels. The engine draws a line of a few periods, from which
 * the other pixels are known.
 */
class DashedLines {
public:
    /*! \brief Draws exactly what painter.drawLine(from, to) draws. */
    void draw(QPainter &painter, const QPointF &from, const QPointF &to);

private:
    bool drawRepeated(QPainter &painter, const QPointF &from, const QPointF &to);

    QImage m_sample;
    QPainter m_samplePainter; // painting on m_sample, destroyed before it
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_DASHEDLINES_P_H
