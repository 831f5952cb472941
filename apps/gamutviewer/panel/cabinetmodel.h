// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CABINETMODEL_H
#define GAMUTVIEWER_CABINETMODEL_H

#include "display/wallassessment.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace gamutviewer {

class TargetSession;

/*! \brief The cabinets of the session's wall with what is known of each, a row for each cabinet. */
class CabinetModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /*! \brief The columns. */
    enum Column { Name, LimitedBy, White, Headroom, UvBefore, UvAfter, Neighbor, ColumnCount };

    explicit CabinetModel(const TargetSession *session, QObject *parent = nullptr);

    /*! \brief Shows the wall as it is now, in the order that was asked for last. */
    void refresh();
    /*! \brief The cabinet in \a row. */
    std::size_t cabinetIn(int row) const { return m_order.at(std::size_t(row)); }
    /*! \brief What the column Name shows of each cabinet besides its mark, in the order of the wall. */
    QStringList shownNames() const;
    /*! \brief The row of \a cabinet; -1 for none. */
    int rowOf(std::size_t cabinet) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /*! \brief Sorts by \a column; by the judgement, worst first, for -1. What is not known is last. */
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    QVariant shownData(const QModelIndex &index, int role) const;
    const DisplayWall &wall() const;
    std::vector<std::size_t> orderNow() const;
    QString text(std::size_t cabinet, int column) const;
    static QString whiteTitle(const QString &unit);

    const TargetSession *m_session;
    int m_column = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::vector<QString> m_named; // the labels that m_names are of
    std::vector<QString> m_names;
    std::vector<std::size_t> m_order; // the cabinet of each row
    std::vector<int> m_rows; // the row of each cabinet
};

} // namespace gamutviewer

#endif
