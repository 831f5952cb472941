// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/groupedtable.h"

#include "panel/scaledfont.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace gamutviewer {

GroupedTable::GroupedTable(const QStringList &header, QWidget *parent)
    : CopyTable(0, header.size(), parent)
    , m_metrics(fontMetrics())
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
    QVector<int> sizes;
    for (const Group &group : groups) {
        sizes.append(int(group.rows.size()));
    }
    if (sizes != m_sizes) {
        m_sizes = sizes;
        makeCells();
    }
    const auto show = [this](int row, int column, const QString &text) {
        QTableWidgetItem *cell = item(row, column);
        if (cell->text() != text) {
            cell->setText(text);
        }
    };
    int row = 0;
    for (const Group &group : groups) {
        show(row++, 0, group.title);
        for (const QStringList &cells : group.rows) {
            for (int column = 0; column < columnCount(); ++column) {
                show(row, column, cells.value(column));
            }
            ++row;
        }
    }
    fitColumns(groups);
}

void GroupedTable::makeCells()
{
    const QFont plain = font();
    QFont bold = plain;
    bold.setBold(true);
    const auto make = [this](int row, int column, const QFont &font, Qt::Alignment alignment) {
        auto *cell = new QTableWidgetItem;
        cell->setFont(font);
        cell->setTextAlignment(alignment | Qt::AlignVCenter);
        setItem(row, column, cell);
    };
    clearSpans();
    setRowCount(0);
    setRowCount(std::accumulate(m_sizes.begin(), m_sizes.end(), m_sizes.size()));
    int row = 0;
    for (const int size : qAsConst(m_sizes)) {
        make(row, 0, bold, Qt::AlignLeft);
        setSpan(row++, 0, 1, columnCount());
        for (const int end = row + size; row < end; ++row) {
            for (int column = 0; column < columnCount(); ++column) {
                make(row, column, plain, column == 0 ? Qt::AlignLeft : Qt::AlignRight);
            }
        }
    }
}

void GroupedTable::fitColumns(const QVector<Group> &groups)
{
    // To measure a text takes longer than all else, and most texts occur in many rows or have been shown before.
    if (m_metrics != fontMetrics() || m_widths.size() > 2 * rowCount() * columnCount()) {
        m_metrics = fontMetrics();
        m_widths.clear();
    }
    const auto widthOf = [this](const QString &text) {
        const auto known = m_widths.constFind(text);
        return known != m_widths.constEnd() ? *known : *m_widths.insert(text, m_metrics.horizontalAdvance(text));
    };
    constexpr int padding = 8;
    for (int column = 0; column < columnCount(); ++column) {
        int width = horizontalHeader()->fontMetrics().horizontalAdvance(horizontalHeaderItem(column)->text());
        // Titles run over all columns and must not widen the first.
        for (const Group &group : groups) {
            for (const QStringList &cells : group.rows) {
                width = std::max(width, widthOf(cells.value(column)));
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

} // namespace gamutviewer
