// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/cabinettable.h"

#include "editing/targetsession.h"
#include "panel/cabinetmodel.h"
#include "panel/copytext.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace gamutviewer {

namespace {

//! The width with which \a title fits into two lines, broken between words.
int twoLineWidth(const QString &title, const QFontMetrics &metrics)
{
    int least = metrics.horizontalAdvance(title);
    for (int at = title.indexOf(QLatin1Char(' ')); at >= 0; at = title.indexOf(QLatin1Char(' '), at + 1)) {
        least = std::min(
            least, std::max(metrics.horizontalAdvance(title.left(at)), metrics.horizontalAdvance(title.mid(at + 1))));
    }
    return least;
}

} // namespace

CabinetTable::CabinetTable(TargetSession *session, QWidget *parent)
    : QTableView(parent)
    , m_session(session)
    , m_model(new CabinetModel(session, this))
{
    setModel(m_model);
    setAccessibleName(tr("Cabinets"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle); // long names mostly differ at the end
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(10);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(10);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    fitColumns();
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &CabinetTable::fitColumns);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &current) {
        if (!m_isShowing && current.isValid()) {
            m_session->selectCabinet(m_model->cabinetIn(current.row()));
        }
    });
    connect(session, &TargetSession::selectedCabinetChanged, this, &CabinetTable::showSelection);
}

void CabinetTable::refresh()
{
    const QModelIndex before = currentIndex();
    const bool wasInSight = before.isValid() && viewport()->rect().intersects(visualRect(before));
    m_isShowing = true;
    m_model->refresh();
    m_isShowing = false;
    const QStringList names = m_model->shownNames();
    if (names != m_names || m_unit != m_model->headerData(CabinetModel::White, Qt::Horizontal).toString()) {
        m_names = names;
        fitColumns();
    }
    showSelection();
    // Where the order has changed, the row may have moved away.
    if (wasInSight && currentIndex().isValid()) {
        scrollTo(currentIndex());
    }
}

//! A verdict that gets longer takes room from the table: the selected row stays in sight.
void CabinetTable::resizeEvent(QResizeEvent *event)
{
    const bool wasInSight
        = currentIndex().isValid() && QRect(QPoint(0, 0), event->oldSize()).intersects(visualRect(currentIndex()));
    QTableView::resizeEvent(event);
    if (wasInSight) {
        scrollTo(currentIndex());
    }
}

int CabinetTable::wholeWidth() const
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
    return horizontalHeader()->length() + bar + 2 * frameWidth();
}

void CabinetTable::sortByJudgement()
{
    sortByColumn(-1, Qt::AscendingOrder);
}

void CabinetTable::copy()
{
    QApplication::clipboard()->setText(tableText(*this, false));
}

void CabinetTable::showSelection()
{
    const auto cabinet = m_session->selectedCabinet();
    const int row = cabinet ? m_model->rowOf(*cabinet) : -1;
    m_isShowing = true;
    if (row < 0) {
        clearSelection();
        setCurrentIndex(QModelIndex());
    } else if (currentIndex().row() != row) {
        setCurrentIndex(m_model->index(row, std::max(currentIndex().column(), 0)));
        scrollTo(currentIndex());
    }
    m_isShowing = false;
}

//! The width that the longest of \a names takes, within reason.
int CabinetTable::nameWidth(const QStringList &names) const
{
    constexpr int most = 22; // letters
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int longest = metrics.horizontalAdvance(QStringLiteral("AB12"));
    for (const QString &name : names) {
        longest = std::max(longest, metrics.horizontalAdvance(name));
    }
    const int width = longest + metrics.horizontalAdvance(QStringLiteral("✗ "));
    const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    return std::min(width + margins, most * metrics.averageCharWidth());
}

//! Each as wide as its header, which may take two lines, and its widest usual value, whatever is shown: it must not
//! change in a drag. Names do not.
void CabinetTable::fitColumns()
{
    m_unit = m_model->headerData(CabinetModel::White, Qt::Horizontal).toString();
    constexpr int padding = 8;
    const QFontMetrics metrics(font());
    QHeaderView *header = horizontalHeader();
    header->setFont(font());
    header->setFixedHeight(2 * metrics.height() + 6);
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics wide(bold);
    // What styles keep free for the arrow of the column that is sorted by.
    const int arrow = header->height() / 2 + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    for (int column = 0; column < CabinetModel::ColumnCount; ++column) {
        const QString title = m_model->headerData(column, Qt::Horizontal).toString().replace(u'\n', u' ');
        const int widest
            = column == CabinetModel::Name ? nameWidth(m_names) : wide.horizontalAdvance(QStringLiteral("0.0000"));
        const int sorted = header->sortIndicatorSection() == column ? arrow : 0;
        setColumnWidth(column, std::max(twoLineWidth(title, metrics) + sorted, widest) + padding);
    }
    verticalHeader()->setDefaultSectionSize(metrics.height() + 6);
}

void CabinetTable::keyPressEvent(QKeyEvent *event)
{
    if (!copyByKey(*this, event)) {
        QTableView::keyPressEvent(event);
    }
}

void CabinetTable::contextMenuEvent(QContextMenuEvent *event)
{
    showCopyMenu(this, event);
}

void CabinetTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitColumns();
    }
}

} // namespace gamutviewer
