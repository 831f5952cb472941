// SPDX-License-Identifier: MIT
#include "page.h"

#include "document.h"

#include <algorithm>

namespace gamutviewer {

Page::Page(Document *document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
{
    connect(document, &Document::changed, this, &Page::refreshWhenShown);
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

ChartBox::ChartBox(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartBox::place(QWidget *chart)
{
    // What the chart asks for changes with its inner view's fixed size only when its layout is done anew.
    const QSize size = chart->sizeHint().boundedTo(QSize(width(), height()));
    chart->setGeometry(std::max(0, (width() - size.width()) / 2), 0, size.width(), size.height());
}

void ChartBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

} // namespace gamutviewer
