// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GROUPEDTABLE_H
#define GAMUTVIEWER_GROUPEDTABLE_H

#include "panel/copytable.h"

#include <QFontMetrics>
#include <QHash>

#include <functional>
#include <utility>

namespace gamutviewer {

/*! \brief A table to read whose rows stand in groups under a title. */
class GroupedTable : public CopyTable {
    Q_OBJECT

public:
    struct Group {
        QString title;
        QVector<QStringList> rows; //!< the cells of each row; only the first of them where there is laterText
        //! The text in a row and a column after the first, asked for when the cell is seen. Null for none.
        std::function<QString(int row, int column)> laterText{};
        QStringList widest{}; //!< for each column a text at least as wide as those of laterText
    };

    explicit GroupedTable(const QStringList &header, QWidget *parent = nullptr);

    /*! \brief Shows \a groups; where they are as large as before, cells change in place. */
    void setGroups(const QVector<Group> &groups);

    /*! \brief Wide enough for all columns. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(120, 80); }

private:
    class LaterCell;

    void makeCells();
    void fitColumns();

    QVector<Group> m_groups;
    QVector<std::pair<int, bool>> m_shape; // of the groups that there are cells for: rows, and whether later cells
    QFontMetrics m_metrics;
    QHash<QString, int> m_widths; // of texts that are shown or were, as m_metrics measures them
};

} // namespace gamutviewer

#endif
