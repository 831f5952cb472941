// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_PENS_P_H
#define CEIECHART_DIAGRAM_PENS_P_H

#include <QPen>

namespace ceiechart {

/*! The pen of all outlines: solid, with square caps and bevelled joins. */
inline QPen solidPen(const QColor &color, double width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

} // namespace ceiechart

#endif
