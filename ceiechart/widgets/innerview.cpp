// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/innerview_p.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsView>
#include <QScrollBar>

namespace ceiechart {

namespace {

void layOut(QGraphicsView &view)
{
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(&view, &layout);
}

//! Lays out \a view at once when \a bar, a scroll bar of it, becomes needed or superfluous.
void followScrollBar(QGraphicsView &view, const QScrollBar *bar)
{
    QObject::connect(bar, &QScrollBar::rangeChanged, &view, [&view] {
        // Twice: the first changes the size of the viewport, and with it the range of the other scroll bar, while the
        // view still lays out by the old one.
        layOut(view);
        layOut(view);
    });
}

} // namespace

void initInnerView(QGraphicsView &view)
{
    view.setFrameShape(QFrame::NoFrame);
    view.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // The view itself waits for the event loop: a picture that is grabbed right after show() would contain scroll bars
    // that the chart does not need.
    followScrollBar(view, view.horizontalScrollBar());
    followScrollBar(view, view.verticalScrollBar());
}

} // namespace ceiechart
