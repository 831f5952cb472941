// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_PENS_P_H
#define CEIECHART_DIAGRAM_PENS_P_H

#include <QPen>

namespace ceiechart {

/*! \brief The pen of all outlines: a solid line with square caps and bevelled joins. \a width is in pixels. */
inline QPen solidPen(const QColor &color, double width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

} // namespace ceiechart

#endif
