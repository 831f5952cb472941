// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/innerview_p.h>

#include <QGraphicsView>

namespace ceiechart {

void initInnerView(QGraphicsView &view)
{
    view.setFrameShape(QFrame::NoFrame);
    view.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

} // namespace ceiechart
