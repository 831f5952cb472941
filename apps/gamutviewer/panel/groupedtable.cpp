// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/groupedtable.h"

#include "panel/ornothing.h"
#include "panel/scaledfont.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace gamutviewer {

//! A cell whose text is asked for when it is seen.
class GroupedTable::LaterCell : public QTableWidgetItem {
public:
    LaterCell(const GroupedTable *table, int group, int row)
        : m_table(table)
        , m_group(group)
        , m_row(row)
    {
    }

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return orNothing([this] { return QVariant(m_table->m_groups.at(m_group).laterText(m_row, column())); });
        case Qt::TextAlignmentRole:
            return int(Qt::AlignRight | Qt::AlignVCenter);
        default:
            return QTableWidgetItem::data(role);
        }
    }

private:
    const GroupedTable *m_table;
    int m_group;
    int m_row; // in the group
};

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
    m_groups = groups;
    QVector<std::pair<int, bool>> shape;
    for (const Group &group : groups) {
        shape.append({int(group.rows.size()), bool(group.laterText)});
    }
    if (shape != m_shape) {
        m_shape = shape;
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
        const int first = row;
        const int shown = group.laterText ? 1 : columnCount();
        for (const QStringList &cells : group.rows) {
            for (int column = 0; column < shown; ++column) {
                show(row, column, cells.value(column));
            }
            ++row;
        }
        if (group.laterText && row > first) {
            Q_EMIT model()->dataChanged(model()->index(first, shown), model()->index(row - 1, columnCount() - 1));
        }
    }
    fitColumns();
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
    int rows = 0;
    for (const auto &[size, hasLater] : qAsConst(m_shape)) {
        rows += 1 + size;
    }
    setRowCount(rows);
    int row = 0;
    for (int group = 0; group < m_shape.size(); ++group) {
        make(row, 0, bold, Qt::AlignLeft);
        setSpan(row++, 0, 1, columnCount());
        const auto [size, hasLater] = m_shape.at(group);
        for (int i = 0; i < size; ++i, ++row) {
            make(row, 0, plain, Qt::AlignLeft);
            for (int column = 1; column < columnCount(); ++column) {
                if (hasLater) {
                    setItem(row, column, new LaterCell(this, group, i));
                } else {
                    make(row, column, plain, Qt::AlignRight);
                }
            }
        }
    }
}

void GroupedTable::fitColumns()
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
        for (const Group &group : qAsConst(m_groups)) {
            if (column > 0 && group.laterText) {
                width = std::max(width, widthOf(group.widest.value(column)));
                continue;
            }
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
