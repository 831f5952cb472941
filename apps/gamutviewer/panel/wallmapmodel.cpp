// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/wallmapmodel.h"

#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/ornothing.h"

#include <algorithm>

namespace gamutviewer {

WallMapModel::WallMapModel(const TargetSession *session, WallGrid (*gridOf)(const DisplayWall &), QObject *parent)
    : QAbstractTableModel(parent)
    , m_session(session)
    , m_gridOf(gridOf)
{
}

const DisplayWall &WallMapModel::wall() const
{
    return m_session->document()->description().wall;
}

const CabinetAssessment *WallMapModel::assessed(std::size_t cabinet) const
{
    const auto &assessment = m_session->assessment().wall;
    return assessment && cabinet < assessment->cabinets.size() ? &assessment->cabinets[cabinet] : nullptr;
}

void WallMapModel::refresh(const WallScale &scale)
{
    m_scale = scale;
    const auto &assessment = m_session->assessment().wall;
    static const std::vector<CabinetAssessment> none;
    const int nameLength = m_longest.nameLength;
    m_longest = longestValues(assessment ? assessment->cabinets : none, scale);
    m_longest.nameLength = nameLength;
    std::vector<Place> places;
    for (const WallCabinet &cabinet : wall().cabinets) {
        places.push_back({cabinet.name, cabinet.row, cabinet.column, false});
    }
    for (const IncompleteCabinet &cabinet : wall().incomplete) {
        const auto &at = cabinet.position;
        places.push_back({cabinet.name, at ? std::make_optional(at->row) : std::nullopt,
            at ? std::make_optional(at->column) : std::nullopt, true});
    }
    const auto isSame = [](const Place &a, const Place &b) {
        return a.name == b.name && a.row == b.row && a.column == b.column && a.isIncomplete == b.isIncomplete;
    };
    if (!std::equal(m_places.begin(), m_places.end(), places.begin(), places.end(), isSame)) {
        // All of it is there before anything changes: memory can be short.
        WallGrid grid = m_gridOf(wall());
        std::vector<QModelIndex> indexes(places.size());
        for (int row = 0; row < grid.rows; ++row) {
            for (int column = 0; column < grid.columns; ++column) {
                if (const auto cabinet = grid.at(row, column)) {
                    indexes[*cabinet] = createIndex(row, column);
                }
            }
        }
        const int longest = longestName(wall());
        beginResetModel();
        m_places = std::move(places);
        m_grid = std::move(grid);
        m_longest.nameLength = longest;
        m_indexes = std::move(indexes);
        endResetModel();
    } else if (m_grid.rows > 0) {
        Q_EMIT dataChanged(index(0, 0), index(m_grid.rows - 1, m_grid.columns - 1));
    }
}

std::optional<std::size_t> WallMapModel::cabinetAt(const QModelIndex &index) const
{
    const auto cabinet = index.isValid() ? m_grid.at(index.row(), index.column()) : std::nullopt;
    return cabinet && *cabinet < wall().cabinets.size() ? cabinet : std::nullopt;
}

const IncompleteCabinet *WallMapModel::incompleteAt(const QModelIndex &index) const
{
    const std::size_t before = wall().cabinets.size();
    const auto number = index.isValid() ? m_grid.at(index.row(), index.column()) : std::nullopt;
    const bool isIncomplete = number && *number >= before && *number - before < wall().incomplete.size();
    return isIncomplete ? &wall().incomplete[*number - before] : nullptr;
}

QModelIndex WallMapModel::indexOf(std::size_t cabinet) const
{
    return cabinet < m_indexes.size() ? m_indexes[cabinet] : QModelIndex();
}

std::optional<WallCell> WallMapModel::cell(const QModelIndex &index) const
{
    const auto number = index.isValid() ? m_grid.at(index.row(), index.column()) : std::nullopt;
    if (!number || *number >= wall().cabinets.size() + wall().incomplete.size()) {
        return std::nullopt;
    }
    return wallCell(wall(), assessed(*number), m_scale, *number);
}

int WallMapModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_grid.rows;
}

int WallMapModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_grid.columns;
}

Qt::ItemFlags WallMapModel::flags(const QModelIndex &index) const
{
    return cabinetAt(index)   ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
        : incompleteAt(index) ? Qt::ItemIsEnabled | Qt::ItemNeverHasChildren
                              : Qt::NoItemFlags;
}

//! "F9, headroom −6 %, does not show the target".
QString WallMapModel::description(std::size_t cabinet) const
{
    const QString name = cabinetName(wall(), cabinet);
    const CabinetAssessment *of = assessed(cabinet);
    const QString judgement = !of || of->judgement == Judgement::NotKnown ? tr("not known whether it shows the target")
        : of->judgement == Judgement::Fail                                ? tr("does not show the target")
                                                                          : tr("shows the target");
    const QString value = of ? wallValueText(*of, m_scale.quantity()) : undefinedText();
    const QString text = tr("%1, %2 %3, %4", "cabinet, what is shown, its value, whether it shows the target")
                             .arg(name, wallQuantityName(m_scale.quantity()), value, judgement);
    return wall().cabinets[cabinet].isLeftOut ? tr("%1, left out", "what is known of a cabinet").arg(text) : text;
}

QString WallMapModel::briefly(std::size_t cabinet) const
{
    const CabinetAssessment *of = assessed(cabinet);
    return tr("%1 %2: %3 %4", "mark, cabinet, what is shown, its value")
        .arg(judgementMark(of ? of->judgement : Judgement::NotKnown), cabinetName(wall(), cabinet),
            wallQuantityName(m_scale.quantity()), of ? wallValueText(*of, m_scale.quantity()) : undefinedText());
}

QVariant WallMapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const auto &names = orientation == Qt::Horizontal ? m_grid.columnNames : m_grid.rowNames;
    return role == Qt::DisplayRole && section >= 0 && std::size_t(section) < names.size()
        ? QVariant(names[std::size_t(section)])
        : QVariant();
}

QVariant WallMapModel::data(const QModelIndex &index, int role) const
{
    return orNothing([&] { return shownData(index, role); });
}

QVariant WallMapModel::shownData(const QModelIndex &index, int role) const
{
    if (const IncompleteCabinet *incomplete = incompleteAt(index)) {
        const QString text = tr("%1: nothing is known of it: %2", "cabinet, and why")
                                 .arg(cabinetName(wall(), *incomplete), oneLine(incompleteReasonText(*incomplete)));
        return role == Qt::DisplayRole                                                ? QVariant(undefinedText())
            : role == Qt::ToolTipRole                                                 ? QVariant(plainToolTip(text))
            : role == Qt::AccessibleTextRole || role == Qt::AccessibleDescriptionRole ? QVariant(text)
                                                                                      : QVariant();
    }
    const auto cabinet = cabinetAt(index);
    if (!cabinet) {
        return QVariant();
    }
    switch (role) {
    case Qt::DisplayRole: {
        const CabinetAssessment *of = assessed(*cabinet);
        return of ? wallValueText(*of, m_scale.quantity()) : undefinedText();
    }
    case Qt::AccessibleTextRole:
        return description(*cabinet);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
        const DisplayDescription &display = m_session->document()->description();
        const auto target = display.gamut(display.target);
        const auto &assessment = m_session->assessment().wall;
        const QString text
            = target && assessment ? cabinetText(wall(), *target, *assessment, *cabinet) : description(*cabinet);
        return role == Qt::ToolTipRole ? plainToolTip(text) : text;
    }
    default:
        break;
    }
    return QVariant();
}

} // namespace gamutviewer
