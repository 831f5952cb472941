// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H
#define CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H

#include <Qt>

namespace ceiechart {

/*! \brief True for exactly Qt::AlignLeft and exactly Qt::AlignRight: a combination puts the legend below the chart. */
inline bool standsBesideChart(Qt::Alignment alignment)
{
    return alignment == Qt::AlignLeft || alignment == Qt::AlignRight;
}

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H
