// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/nqceiegraphicsview.h>

#include <ceiechart/widgets/innerview_p.h>

namespace NewCEIE {

NQCEIEGraphicsView::NQCEIEGraphicsView(QWidget *parent)
    : QGraphicsView(parent)
{
    ceiechart::initInnerView(*this);
}

NQCEIEGraphicsView::~NQCEIEGraphicsView() = default;

void NQCEIEGraphicsView::slot_mouseCursorChange(QCursor mouseCursorStyle)
{
    setCursor(mouseCursorStyle);
}

void NQCEIEGraphicsView::showEvent(QShowEvent *)
{
    followSize();
}

void NQCEIEGraphicsView::resizeEvent(QResizeEvent *)
{
    followSize();
}

void NQCEIEGraphicsView::leaveEvent(QEvent *event)
{
    QGraphicsView::leaveEvent(event);
    unsetCursor();
}

void NQCEIEGraphicsView::followSize()
{
    setSceneRect(0, 0, width(), height());
}

} // namespace NewCEIE
