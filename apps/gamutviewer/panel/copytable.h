// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COPYTABLE_H
#define GAMUTVIEWER_COPYTABLE_H

#include <QTableWidget>

namespace gamutviewer {

/*!
 * \brief A table to read, that goes into a spreadsheet: copying it gives all of it with its headers, cells separated by
 * tabs.
 */
class CopyTable : public QTableWidget {
    Q_OBJECT

public:
    CopyTable(int rows, int columns, QWidget *parent = nullptr);

    /*! \brief The whole table, a line for each row, the headers first. */
    QString text() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
};

} // namespace gamutviewer

#endif
