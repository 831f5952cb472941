// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GROUPEDTABLE_H
#define GAMUTVIEWER_GROUPEDTABLE_H

#include "panel/copytable.h"

#include <QFontMetrics>
#include <QHash>

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

    /*! \brief Shows \a groups; where they are as large as before, cells change in place. */
    void setGroups(const QVector<Group> &groups);

    /*! \brief Wide enough for all columns. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(120, 80); }

private:
    void makeCells();
    void fitColumns(const QVector<Group> &groups);

    QVector<int> m_sizes; // of the groups shown
    QFontMetrics m_metrics;
    QHash<QString, int> m_widths; // of texts that are shown or were, as m_metrics measures them
};

} // namespace gamutviewer

#endif
