// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/groupedtable.h"

#include "panel/scaledfont.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace gamutviewer {

GroupedTable::GroupedTable(const QStringList &header, QWidget *parent)
    : CopyTable(0, header.size(), parent)
{
    setHorizontalHeaderLabels(header);
    horizontalHeader()->setMinimumSectionSize(10);
    horizontalHeader()->setHighlightSections(false);
    const QFont small = scaledFont(font(), 0.8);
    setFont(small);
    horizontalHeader()->setFont(small);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(10);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
}

void GroupedTable::setGroups(const QVector<Group> &groups)
{
    int rows = 0;
    for (const Group &group : groups) {
        rows += 1 + group.rows.size();
    }
    if (rows != rowCount()) {
        clearSpans();
        setRowCount(0);
        setRowCount(rows);
    }
    int row = 0;
    for (const Group &group : groups) {
        setCell(row, 0, group.title, true);
        if (columnSpan(row, 0) != columnCount()) {
            setSpan(row, 0, 1, columnCount());
        }
        ++row;
        for (const QStringList &cells : group.rows) {
            if (columnSpan(row, 0) != 1) {
                setSpan(row, 0, 1, 1);
            }
            for (int column = 0; column < columnCount(); ++column) {
                setCell(row, column, cells.value(column), false);
            }
            ++row;
        }
    }
    fitColumns();
}

void GroupedTable::fitColumns()
{
    // Titles run over all columns and must not widen the first.
    constexpr int padding = 8;
    for (int column = 0; column < columnCount(); ++column) {
        int width = horizontalHeader()->fontMetrics().horizontalAdvance(horizontalHeaderItem(column)->text());
        for (int row = 0; row < rowCount(); ++row) {
            const QTableWidgetItem *cell = item(row, column);
            if (cell && columnSpan(row, 0) == 1) {
                width = std::max(width, fontMetrics().horizontalAdvance(cell->text()));
            }
        }
        setColumnWidth(column, width + padding);
    }
    updateGeometry();
}

QSize GroupedTable::sizeHint() const
{
    return {horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
        CopyTable::sizeHint().height()};
}

void GroupedTable::setCell(int row, int column, const QString &text, bool isTitle)
{
    QTableWidgetItem *cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
    }
    if (cell->text() == text && cell->font().bold() == isTitle) {
        return;
    }
    QFont bold = font();
    bold.setBold(isTitle);
    cell->setFont(bold);
    cell->setTextAlignment((isTitle || column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    cell->setText(text);
}

} // namespace gamutviewer
