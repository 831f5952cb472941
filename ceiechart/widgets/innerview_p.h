// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_INNERVIEW_P_H
#define CEIECHART_WIDGETS_INNERVIEW_P_H

class QGraphicsView;

namespace ceiechart {

/*! \brief Frameless and smooth, as the inner view of either generation starts. */
void initInnerView(QGraphicsView &view);

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_INNERVIEW_P_H
