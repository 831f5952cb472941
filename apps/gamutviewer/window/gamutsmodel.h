// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTSMODEL_H
#define GAMUTVIEWER_GAMUTSMODEL_H

#include "editing/gamutroles.h"

#include <QAbstractTableModel>

#include <array>
#include <iterator>
#include <vector>

namespace gamutviewer {

/*!
 * \brief The gamuts of a description, its own first, and the published ones: a row for each.
 *
 * The first column has the name, the others say which of allGamutRoles the gamut plays. Texts are made when they are
 * asked for, as there may be thousands of rows. Edits are only told of; what is shown changes with the description.
 */
class GamutsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int nameColumn = 0;

    using QAbstractTableModel::QAbstractTableModel;

    /*! \brief Shows \a description. */
    void refresh(const DisplayDescription &description);
    /*! \brief The name of the gamut in \a row as it is; empty for a row that is not there. */
    QString nameAt(int row) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /*! \brief The gamut \a from is to be called \a to. */
    void nameTyped(const QString &from, const QString &to);
    /*! \brief The gamut \a name is to play \a role, or no longer. */
    void partChosen(const QString &name, gamutviewer::GamutRole role, bool plays);

private:
    struct Row {
        QString name;
        bool isOwn = false;
        Model::Targets targets;
        std::array<bool, std::size(allGamutRoles)> plays{};

        bool operator==(const Row &other) const;
    };

    static std::vector<Row> rowsOf(const DisplayDescription &description);
    QVariant nameData(const Row &row, int role) const;
    QVariant partData(const Row &row, std::size_t part, int role) const;
    const Row *rowAt(const QModelIndex &index) const;

    std::vector<Row> m_rows;
};

} // namespace gamutviewer

#endif
