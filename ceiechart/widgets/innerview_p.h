// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_INNERVIEW_P_H
#define CEIECHART_WIDGETS_INNERVIEW_P_H

class QGraphicsView;

namespace ceiechart {

/*! \brief Sets up an inner view of either generation: no frame, antialiasing and smooth scaling. */
void initInnerView(QGraphicsView &view);

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_INNERVIEW_P_H
