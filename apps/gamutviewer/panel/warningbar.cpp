// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/warningbar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int mostLines = 4; // the others are scrolled to

} // namespace

WarningBar::WarningBar(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(StyledPanel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(2);
    auto *head = new QHBoxLayout;
    layout->addLayout(head);
    auto *icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    head->addWidget(icon);
    m_title = new QLabel(this);
    m_title->setTextFormat(Qt::PlainText);
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    head->addWidget(m_title, 1);
    m_dismiss = new QToolButton(this);
    m_dismiss->setAutoRaise(true);
    m_dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_dismiss->setToolTip(tr("Dismiss the warnings"));
    m_dismiss->setAccessibleName(m_dismiss->toolTip());
    m_dismiss->setFocusPolicy(Qt::StrongFocus);
    head->addWidget(m_dismiss);
    m_list = new QPlainTextEdit(this);
    m_list->setReadOnly(true);
    m_list->setTabChangesFocus(true);
    m_list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_list->setFrameShape(NoFrame);
    m_list->viewport()->setAutoFillBackground(false);
    m_list->setAccessibleName(tr("Warnings"));
    layout->addWidget(m_list);
    connect(m_dismiss, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void WarningBar::setWarnings(const QStringList &warnings)
{
    m_warnings = warnings;
    refresh();
}

void WarningBar::addWarnings(const QStringList &warnings)
{
    if (!warnings.isEmpty()) {
        m_warnings += warnings;
        refresh();
    }
}

void WarningBar::refresh()
{
    m_title->setText(tr("Warnings about what was opened: %1", "with their number").arg(m_warnings.size()));
    m_list->setPlainText(m_warnings.join(QLatin1Char('\n')));
    fitList();
    setVisible(!m_warnings.isEmpty());
    if (!m_warnings.isEmpty()) {
        // A screen reader says them as they come up.
        setAccessibleName(m_title->text() + QLatin1Char('\n') + m_list->toPlainText());
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void WarningBar::fitList()
{
    const int lines = std::clamp(int(m_warnings.size()), 1, mostLines);
    constexpr int spare = 6; // below which the last line counts as hidden
    m_list->setFixedHeight(
        lines * m_list->fontMetrics().lineSpacing() + 2 * int(m_list->document()->documentMargin()) + spare);
}

void WarningBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitList();
    }
}

void WarningBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else {
        QFrame::keyPressEvent(event);
    }
}

} // namespace gamutviewer
