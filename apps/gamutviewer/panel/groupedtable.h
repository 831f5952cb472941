// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GROUPEDTABLE_H
#define GAMUTVIEWER_GROUPEDTABLE_H

#include "panel/copytable.h"

namespace gamutviewer {

/*! \brief A table to read whose rows stand in groups under a title. */
class GroupedTable : public CopyTable {
    Q_OBJECT

public:
    struct Group {
        QString title;
        QVector<QStringList> rows;
    };

    explicit GroupedTable(const QStringList &header, QWidget *parent = nullptr);

    /*! \brief Shows \a groups; where the cells are as many as before they change in place. */
    void setGroups(const QVector<Group> &groups);

    /*! \brief Wide enough for all columns. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(120, 80); }

private:
    void setCell(int row, int column, const QString &text, bool isTitle);
    void fitColumns();
};

} // namespace gamutviewer

#endif
