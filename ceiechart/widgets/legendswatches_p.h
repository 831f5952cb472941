// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDSWATCHES_P_H
#define CEIECHART_WIDGETS_LEGENDSWATCHES_P_H

#include <ceiechart/widgets/legendentries_p.h>

#include <QPixmap>

namespace ceiechart {

/*!
 * \brief The swatch of an entry: 16 × 16 pixels, for the target point 17 × 17. Points have a transparent background.
 */
QPixmap legendSwatch(LegendEntry entry);

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDSWATCHES_P_H
