// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDSWATCHES_P_H
#define CEIECHART_WIDGETS_LEGENDSWATCHES_P_H

#include <ceiechart/widgets/legendentries_p.h>

#include <QPixmap>

namespace ceiechart {

/*! \brief The swatch of a legend entry: 16 × 16 pixels, the target point's 17 × 17. Points stand on transparent ground.
 */
QPixmap legendSwatch(LegendEntry entry);

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDSWATCHES_P_H
