// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/verdictframe.h"

#include "display/valuetexts.h"
#include "panel/scaledfont.h"

#include <QAccessible>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

constexpr int aboutRole = Qt::UserRole;

} // namespace

VerdictFrame::VerdictFrame(int shownLines, QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(StyledPanel);
    m_column = new QVBoxLayout(this);
    m_column->setContentsMargins(8, 6, 8, 6);
    m_column->setSpacing(2);
    m_verdict = new QLabel(this);
    QFont bold = font();
    bold.setBold(true);
    m_verdict->setFont(bold);
    m_verdict->setTextFormat(Qt::PlainText);
    m_verdict->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_verdict->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_column->addWidget(m_verdict);
    m_lines = new QListWidget(this);
    const QFont small = scaledFont(font(), 0.85);
    m_lines->setFont(small);
    m_lines->setFrameShape(NoFrame);
    m_lines->setWordWrap(true);
    m_lines->setTextElideMode(Qt::ElideNone);
    m_lines->setResizeMode(QListView::Adjust);
    m_lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lines->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_lines->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_lines->setFixedHeight(shownLines * QFontMetrics(small).lineSpacing() + 4);
    m_lines->viewport()->setBackgroundRole(QPalette::Window);
    m_column->addWidget(m_lines);
    connect(m_lines, &QListWidget::itemClicked, this, &VerdictFrame::choose);
    connect(m_lines, &QListWidget::itemActivated, this, &VerdictFrame::choose);
}

QString VerdictFrame::text() const
{
    QStringList lines(m_verdict->text());
    for (int row = 0; row < m_lines->count(); ++row) {
        lines.append(m_lines->item(row)->text());
    }
    return lines.join(QLatin1Char('\n'));
}

void VerdictFrame::showVerdict(Judgement judgement, const QString &headline, const QVector<VerdictLine> &lines)
{
    const QString before = text();
    const QListWidgetItem *current = m_lines->currentItem();
    const QVariant chosenBefore = current ? current->data(aboutRole) : QVariant();
    m_verdict->setText(judgementMark(judgement) + QLatin1Char(' ') + headline);
    m_verdict->setToolTip(plainToolTip(m_verdict->text()));
    while (m_lines->count() > lines.size()) {
        delete m_lines->takeItem(m_lines->count() - 1);
    }
    for (int row = 0; row < lines.size(); ++row) {
        const VerdictLine &line = lines.at(row);
        if (row == m_lines->count()) {
            m_lines->addItem(QString());
        }
        QListWidgetItem *item = m_lines->item(row);
        // Setting what is there already would lay the list out again, in every step of a drag.
        if (item->text() != line.text) {
            item->setText(line.text);
        }
        item->setData(aboutRole, line.about);
        item->setToolTip(line.toolTip);
    }
    followChosen(chosenBefore);
    if (text() != before) {
        setAccessibleName(text());
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void VerdictFrame::followChosen(const QVariant &about)
{
    const QListWidgetItem *current = m_lines->currentItem();
    if (!current || (about.isValid() && current->data(aboutRole) == about)) {
        return;
    }
    QListWidgetItem *same = nullptr;
    for (int row = 0; row < m_lines->count() && about.isValid() && !same; ++row) {
        QListWidgetItem *item = m_lines->item(row);
        same = item->data(aboutRole) == about ? item : nullptr;
    }
    m_lines->setCurrentItem(same);
}

void VerdictFrame::choose(const QListWidgetItem *item)
{
    const QVariant about = item->data(aboutRole);
    if (about.isValid()) {
        Q_EMIT chosen(about);
    }
}

} // namespace gamutviewer
