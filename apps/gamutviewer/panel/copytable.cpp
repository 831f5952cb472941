// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/copytable.h"

#include "panel/copytext.h"

namespace gamutviewer {

CopyTable::CopyTable(int rows, int columns, QWidget *parent)
    : QTableWidget(rows, columns, parent)
{
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
}

QString CopyTable::text() const
{
    return tableText(*this, false);
}

void CopyTable::keyPressEvent(QKeyEvent *event)
{
    if (!copyByKey(*this, event)) {
        QTableWidget::keyPressEvent(event);
    }
}

void CopyTable::contextMenuEvent(QContextMenuEvent *event)
{
    showCopyMenu(this, event);
}

} // namespace gamutviewer
