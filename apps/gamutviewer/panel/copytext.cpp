// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/copytext.h"

#include "panel/copytable.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace gamutviewer {

QString tableText(const QTableView &table, bool selectedOnly)
{
    const QAbstractItemModel &model = *table.model();
    const int rows = model.rowCount();
    const int columns = model.columnCount();
    const bool hasRowHeaders = table.verticalHeader()->isVisibleTo(&table);
    const auto isWanted = [&](int row, int column) {
        return !selectedOnly || table.selectionModel()->isSelected(model.index(row, column));
    };
    const auto hasWanted = [&](int column) {
        for (int row = 0; row < rows; ++row) {
            if (isWanted(row, column)) {
                return true;
            }
        }
        return !selectedOnly;
    };
    const auto header = [&model](int section, Qt::Orientation orientation) {
        // Some have two lines.
        return model.headerData(section, orientation, Qt::DisplayRole).toString().replace(u'\n', u' ');
    };
    QStringList lines;
    for (int row = -1; row < rows; ++row) {
        QStringList cells;
        if (hasRowHeaders) {
            cells.append(row < 0 ? QString() : header(row, Qt::Vertical));
        }
        bool isEmpty = row >= 0;
        for (int column = 0; column < columns; ++column) {
            if (!hasWanted(column)) {
                continue;
            }
            const bool isShown = row < 0 || isWanted(row, column);
            isEmpty = isEmpty && !isShown;
            cells.append(!isShown ? QString()
                    : row < 0     ? header(column, Qt::Horizontal)
                                  : model.index(row, column).data().toString());
        }
        if (!isEmpty) {
            lines.append(cells.join(QLatin1Char('\t')));
        }
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

bool copyByKey(const QTableView &table, QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Copy)) {
        return false;
    }
    QApplication::clipboard()->setText(tableText(table, false));
    event->accept();
    return true;
}

void showCopyMenu(QTableView *table, const QContextMenuEvent *event)
{
    auto *menu = new QMenu(table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *all = menu->addAction(
        CopyTable::tr("&Copy table"), table, [table] { QApplication::clipboard()->setText(tableText(*table, false)); });
    all->setShortcut(QKeySequence::Copy);
    QAction *selected = menu->addAction(CopyTable::tr("Copy &selected cells"), table,
        [table] { QApplication::clipboard()->setText(tableText(*table, true)); });
    selected->setEnabled(table->selectionModel()->hasSelection());
    menu->popup(event->globalPos());
}

} // namespace gamutviewer
