// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/page.h"

#include "drawing/documentcontent.h"
#include "editing/document.h"

#include <ceiechart/diagram/diagramview.h>

#include <QFocusEvent>

namespace gamutviewer {

Page::Page(Document *document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
{
    connect(document, &Document::changed, this, &Page::refreshWhenShown);
}

Picture Page::picture() const
{
    Picture picture;
    picture.content = documentContent(m_document->description());
    return picture;
}

void Page::readOut(const ceiechart::DiagramView *view)
{
    connect(view, &ceiechart::DiagramView::hovered, this,
        [this, view](const QPointF &xy) { Q_EMIT pointedAt(xy, view->shownDigits()); });
    connect(view, &ceiechart::DiagramView::hoverEnded, this, &Page::pointerLeft);
}

void Page::refreshWhenShown()
{
    m_stale = !isVisible();
    if (!m_stale) {
        refresh();
    }
}

void Page::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_stale) {
        m_stale = false;
        refresh();
    }
}

void Page::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (m_inside) {
        m_inside->setFocus(event->reason());
    }
}

} // namespace gamutviewer
