// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/nqceiegraphicsview.h>

#include <ceiechart/widgets/innerview_p.h>

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

void NQCEIEGraphicsView::leaveEvent(QEvent *event)
{
    QGraphicsView::leaveEvent(event);
    unsetCursor();
}
