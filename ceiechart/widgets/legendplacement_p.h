// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H
#define CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H

#include <Qt>

namespace ceiechart {

/*!
 * \brief Whether a legend with \a alignment is beside the chart: for exactly Qt::AlignLeft or exactly Qt::AlignRight.
 */
inline bool standsBesideChart(Qt::Alignment alignment)
{
    return alignment == Qt::AlignLeft || alignment == Qt::AlignRight;
}

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDPLACEMENT_P_H
