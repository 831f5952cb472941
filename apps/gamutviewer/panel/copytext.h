// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COPYTEXT_H
#define GAMUTVIEWER_COPYTEXT_H

#include <QString>

class QContextMenuEvent;
class QKeyEvent;
class QTableView;

/*!
 * \file
 * \brief How tables go into a spreadsheet: as text with their headers, cells separated by tabs.
 */
namespace gamutviewer {

/*! \brief All of \a table, or the selected cells, a line for each row, the headers first. */
QString tableText(const QTableView &table, bool selectedOnly);

/*! \brief Copies all of \a table if \a event asks for that; whether it does. */
bool copyByKey(const QTableView &table, QKeyEvent *event);

/*! \brief Shows the menu of \a table with which it is copied. */
void showCopyMenu(QTableView *table, const QContextMenuEvent *event);

} // namespace gamutviewer

#endif
