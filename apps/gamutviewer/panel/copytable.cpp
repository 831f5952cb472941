// SPDX-License-Identifier: MIT
#include "panel/copytable.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace gamutviewer {

CopyTable::CopyTable(int rows, int columns, QWidget *parent)
    : QTableWidget(rows, columns, parent)
{
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
}

QString CopyTable::text(bool selectedOnly) const
{
    const auto shown = [](const QTableWidgetItem *item) { return item ? item->text() : QString(); };
    const bool hasRowHeaders = verticalHeader()->isVisibleTo(this);
    const auto isWanted = [&](int row, int column) {
        return !selectedOnly || selectionModel()->isSelected(model()->index(row, column));
    };
    const auto hasWanted = [&](int column) {
        for (int row = 0; row < rowCount(); ++row) {
            if (isWanted(row, column)) {
                return true;
            }
        }
        return !selectedOnly;
    };
    QStringList lines;
    for (int row = -1; row < rowCount(); ++row) {
        QStringList cells;
        if (hasRowHeaders) {
            cells.append(row < 0 ? QString() : shown(verticalHeaderItem(row)));
        }
        bool isEmpty = row >= 0;
        for (int column = 0; column < columnCount(); ++column) {
            if (!hasWanted(column)) {
                continue;
            }
            const bool isShown = row < 0 || isWanted(row, column);
            isEmpty = isEmpty && !isShown;
            cells.append(!isShown ? QString()
                    : row < 0     ? shown(horizontalHeaderItem(column))
                                  : shown(item(row, column)));
        }
        if (!isEmpty) {
            lines.append(cells.join(QLatin1Char('\t')));
        }
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void CopyTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(text());
        event->accept();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

void CopyTable::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *all = menu->addAction(tr("&Copy table"), this, [this] { QApplication::clipboard()->setText(text()); });
    all->setShortcut(QKeySequence::Copy);
    QAction *selected
        = menu->addAction(tr("Copy &selected cells"), this, [this] { QApplication::clipboard()->setText(text(true)); });
    selected->setEnabled(selectionModel()->hasSelection());
    menu->popup(event->globalPos());
}

} // namespace gamutviewer
