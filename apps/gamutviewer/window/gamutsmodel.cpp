// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/gamutsmodel.h"

#include "panel/plaintooltip.h"
#include "window/gamutsdialog.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/publishedgamuts.h>

#include <QFont>
#include <QSet>

#include <algorithm>
#include <utility>

namespace gamutviewer {

namespace {

std::size_t partIn(int column)
{
    return std::size_t(column - GamutsModel::nameColumn - 1);
}

} // namespace

bool GamutsModel::Row::operator==(const Row &other) const
{
    return name == other.name && isOwn == other.isOwn && plays == other.plays
        && ceiechart::sameTargets(targets, other.targets);
}

std::vector<GamutsModel::Row> GamutsModel::rowsOf(const DisplayDescription &description)
{
    std::vector<Row> rows;
    rows.reserve(description.gamuts.size() + Model::publishedGamuts().size());
    QSet<QString> names;
    names.reserve(int(rows.capacity()));
    const QSet<QString> standards(description.standards.begin(), description.standards.end());
    std::array<QString, std::size(allGamutRoles)> inRole;
    std::transform(std::begin(allGamutRoles), std::end(allGamutRoles), inRole.begin(),
        [&description](GamutRole role) { return gamutInRole(description, role); });
    const auto add = [&](const Model::ColorGamut &gamut, bool isOwn) {
        Row row{nameOf(gamut), isOwn, gamut.getTargets(), {}};
        const auto before = names.size();
        names.insert(row.name);
        if (names.size() == before) {
            return; // of gamuts with one name the first counts
        }
        for (std::size_t part = 0; part < row.plays.size(); ++part) {
            row.plays[part]
                = allGamutRoles[part] == GamutRole::Standard ? standards.contains(row.name) : inRole[part] == row.name;
        }
        rows.push_back(std::move(row));
    };
    for (const DisplayGamut &gamut : description.gamuts) {
        add(gamut, true);
    }
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        add(published.gamut, false);
    }
    return rows;
}

void GamutsModel::refresh(const DisplayDescription &description)
{
    std::vector<Row> rows = rowsOf(description);
    // Rows stay where they are, so that the current one does.
    if (rows.size() < m_rows.size()) {
        beginRemoveRows(QModelIndex(), int(rows.size()), int(m_rows.size()) - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    }
    const auto former = int(m_rows.size());
    if (rows.size() > m_rows.size()) {
        beginInsertRows(QModelIndex(), former, int(rows.size()) - 1);
        m_rows.insert(m_rows.end(), rows.begin() + former, rows.end());
        endInsertRows();
    }
    m_rows.swap(rows);
    for (int row = 0; row < former; ++row) {
        const Row &now = m_rows[std::size_t(row)];
        const Row &then = rows[std::size_t(row)];
        if (now == then) {
            continue;
        }
        // Each cell by itself, or else a view does not pass it on to a field in which it is edited.
        Q_EMIT dataChanged(index(row, nameColumn), index(row, nameColumn));
        Q_EMIT dataChanged(index(row, nameColumn + 1), index(row, columnCount() - 1));
    }
}

const GamutsModel::Row *GamutsModel::rowAt(const QModelIndex &index) const
{
    const bool isThere = index.isValid() && std::size_t(index.row()) < m_rows.size() && index.column() < columnCount();
    return isThere ? &m_rows[std::size_t(index.row())] : nullptr;
}

QString GamutsModel::nameAt(int row) const
{
    return row >= 0 && row < rowCount() ? m_rows[std::size_t(row)].name : QString();
}

int GamutsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int GamutsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : nameColumn + 1 + int(std::size(allGamutRoles));
}

QVariant GamutsModel::nameData(const Row &row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return oneLine(row.name);
    case Qt::ToolTipRole:
        return plainToolTip(
            row.isOwn ? oneLine(row.name) : GamutsDialog::tr("%1: published gamut").arg(oneLine(row.name)));
    case Qt::FontRole:
        if (!row.isOwn) {
            QFont italic;
            italic.setItalic(true);
            return italic;
        }
        break;
    default:
        break;
    }
    return QVariant();
}

QVariant GamutsModel::partData(const Row &row, std::size_t part, int role) const
{
    switch (role) {
    case Qt::CheckStateRole:
        return int(row.plays.at(part) ? Qt::Checked : Qt::Unchecked);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return whyNotInRole(row.targets, allGamutRoles[part]);
    case Qt::AccessibleTextRole:
        return GamutsDialog::tr("%1: %2", "gamut and part")
            .arg(oneLine(row.name), ceiechart::gamutRoleName(allGamutRoles[part]));
    default:
        break;
    }
    return QVariant();
}

QVariant GamutsModel::data(const QModelIndex &index, int role) const
{
    const Row *row = rowAt(index);
    if (!row) {
        return QVariant();
    }
    return index.column() == nameColumn ? nameData(*row, role) : partData(*row, partIn(index.column()), role);
}

QVariant GamutsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return section == nameColumn ? GamutsDialog::tr("Gamut") : ceiechart::gamutRoleName(allGamutRoles[partIn(section)]);
}

Qt::ItemFlags GamutsModel::flags(const QModelIndex &index) const
{
    const Row *row = rowAt(index);
    if (!row) {
        return Qt::NoItemFlags;
    }
    if (index.column() == nameColumn) {
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (row->isOwn ? Qt::ItemIsEditable : Qt::NoItemFlags);
    }
    // What a file already has can be taken away.
    const std::size_t part = partIn(index.column());
    return row->plays.at(part) || whyNotInRole(row->targets, allGamutRoles[part]).isEmpty()
        ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
        : Qt::ItemIsSelectable;
}

bool GamutsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const Row *row = rowAt(index);
    if (!row || role != (index.column() == nameColumn ? Qt::EditRole : Qt::CheckStateRole)) {
        return false;
    }
    // The row may be another one when the document has changed.
    const QString name = row->name;
    if (index.column() == nameColumn) {
        if (value.toString() != oneLine(name)) {
            Q_EMIT nameTyped(name, value.toString());
        }
        return true;
    }
    const std::size_t part = partIn(index.column());
    const bool plays = value.toInt() == Qt::Checked;
    if (row->plays.at(part) != plays) {
        Q_EMIT partChosen(name, allGamutRoles[part], plays);
    }
    return true;
}

} // namespace gamutviewer
