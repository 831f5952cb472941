// SPDX-License-Identifier: MIT
#include "window/page.h"

#include "editing/document.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int focusMargin = 3; // pixels

} // namespace

void paintFocusFrame(QPainter &painter, const QRect &place, const QPalette &palette)
{
    constexpr int width = 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(place).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
}

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

QSize ChartBox::room() const
{
    return size() - 2 * QSize(focusMargin, focusMargin);
}

void ChartBox::place(QWidget *chart)
{
    // What the chart asks for changes with its inner view's fixed size only when its layout is done anew.
    const QSize size = chart->sizeHint().boundedTo(room());
    m_place = QRect(QPoint(std::max(0, (width() - size.width()) / 2), focusMargin), size);
    chart->setGeometry(m_place);
    update();
}

void ChartBox::showFocusOf(QWidget *view)
{
    m_view = view;
    view->installEventFilter(this);
}

void ChartBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void ChartBox::paintEvent(QPaintEvent *)
{
    if (m_view && m_view->hasFocus()) {
        QPainter painter(this);
        paintFocusFrame(painter, m_place.adjusted(-focusMargin, -focusMargin, focusMargin, focusMargin), palette());
    }
}

bool ChartBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace gamutviewer
