// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/cabinetmodel.h"

#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "drawing/wallscale.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/ornothing.h"

#include <QFont>

#include <algorithm>
#include <limits>
#include <numeric>

namespace gamutviewer {

namespace {

//! What a column is sorted by; nothing where it is not known.
std::optional<double> sortValue(const CabinetAssessment &cabinet, int column)
{
    switch (column) {
    case CabinetModel::LimitedBy:
        return cabinet.limit ? std::make_optional(double(int(*cabinet.limit))) : std::nullopt;
    case CabinetModel::White:
        return cabinet.largestWhite;
    case CabinetModel::Headroom:
        return cabinet.headroom;
    case CabinetModel::UvBefore:
        return cabinet.uvBefore;
    case CabinetModel::UvAfter:
        return cabinet.uvAfter;
    case CabinetModel::Neighbor:
        return cabinet.neighborBefore ? std::make_optional(cabinet.neighborBefore->uv) : std::nullopt;
    default:
        break;
    }
    return std::nullopt;
}

//! The number that begins at \a at, of which \a at is then behind the last digit.
QString digits(const QString &text, int &at)
{
    const int first = at;
    while (at < text.size() && text.at(at).isDigit()) {
        ++at;
    }
    int significant = first;
    while (significant < at - 1 && text.at(significant) == QLatin1Char('0')) {
        ++significant;
    }
    return text.mid(significant, at - significant);
}

//! Whether name \a a comes before \a b, with numbers by their value: A2 before A10. Not all platforms' collation can.
bool isBefore(const QString &a, const QString &b)
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            const QString numberA = digits(a, i);
            const QString numberB = digits(b, j);
            if (numberA.size() != numberB.size()) {
                return numberA.size() < numberB.size();
            }
            if (numberA != numberB) {
                return numberA < numberB;
            }
            continue;
        }
        const QChar letterA = a.at(i).toCaseFolded();
        const QChar letterB = b.at(j).toCaseFolded();
        if (letterA != letterB) {
            return letterA < letterB;
        }
        ++i;
        ++j;
    }
    return a.size() - i < b.size() - j;
}

} // namespace

CabinetModel::CabinetModel(const TargetSession *session, QObject *parent)
    : QAbstractTableModel(parent)
    , m_session(session)
{
}

const DisplayWall &CabinetModel::wall() const
{
    return m_session->document()->description().wall;
}

std::vector<std::size_t> CabinetModel::orderNow() const
{
    const auto &assessed = m_session->assessment().wall;
    std::vector<std::size_t> order(wall().cabinets.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    if (m_column == Name) {
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return m_sortOrder == Qt::AscendingOrder ? isBefore(m_names[a], m_names[b])
                                                     : isBefore(m_names[b], m_names[a]);
        });
        return order;
    }
    if (!assessed) {
        return order;
    }
    if (m_column < 0) {
        return assessed->worstFirst;
    }
    const auto &cabinets = assessed->cabinets;
    const double sign = m_sortOrder == Qt::AscendingOrder ? 1.0 : -1.0;
    std::vector<double> keys;
    keys.reserve(order.size());
    for (const std::size_t cabinet : order) {
        const auto value = sortValue(cabinets[cabinet], m_column);
        keys.push_back(value ? sign * *value : std::numeric_limits<double>::infinity());
    }
    std::stable_sort(order.begin(), order.end(), [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

void CabinetModel::refresh()
{
    if (!std::equal(m_named.begin(), m_named.end(), wall().cabinets.begin(), wall().cabinets.end(),
            [](const QString &label, const WallCabinet &cabinet) { return label == cabinet.label(); })) {
        // Both or none: memory can be short.
        std::vector<QString> named;
        for (const WallCabinet &cabinet : wall().cabinets) {
            named.push_back(cabinet.label());
        }
        m_names = cabinetNames(wall());
        m_named = std::move(named);
    }
    std::vector<std::size_t> order = orderNow();
    std::vector<int> rows(order.size(), -1);
    for (std::size_t row = 0; row < order.size(); ++row) {
        rows[order[row]] = int(row);
    }
    const auto use = [&] {
        m_order = std::move(order);
        m_rows = std::move(rows);
    };
    if (order.size() != m_order.size()) {
        beginResetModel();
        use();
        endResetModel();
        return;
    }
    if (order != m_order) {
        Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
        const QModelIndexList before = persistentIndexList();
        QModelIndexList after;
        std::vector<std::size_t> cabinets;
        for (const QModelIndex &index : before) {
            cabinets.push_back(cabinetIn(index.row()));
        }
        use();
        for (int i = 0; i < before.size(); ++i) {
            after.append(index(rowOf(cabinets[std::size_t(i)]), before.at(i).column()));
        }
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged({}, VerticalSortHint);
    }
    if (!m_order.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

QStringList CabinetModel::shownNames() const
{
    QStringList names;
    for (std::size_t cabinet = 0; cabinet < m_names.size(); ++cabinet) {
        names.append(text(cabinet, Name));
    }
    return names;
}

int CabinetModel::rowOf(std::size_t cabinet) const
{
    return cabinet < m_rows.size() ? m_rows[cabinet] : -1;
}

int CabinetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_order.size());
}

int CabinetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString CabinetModel::text(std::size_t cabinet, int column) const
{
    const auto &assessed = m_session->assessment().wall;
    if (column == Name) {
        const QString &name = m_names[cabinet];
        return assessed && assessed->cabinets[cabinet].isLeftOut ? tr("%1 (left out)", "a cabinet").arg(name) : name;
    }
    if (!assessed) {
        return undefinedText();
    }
    const CabinetAssessment &of = assessed->cabinets[cabinet];
    switch (column) {
    case LimitedBy:
        return wallValueText(of, WallQuantity::Limit);
    case White:
        return of.largestWhite ? reachableText(*of.largestWhite) : undefinedText();
    case Headroom:
        return wallValueText(of, WallQuantity::Headroom);
    case UvBefore:
        return wallValueText(of, WallQuantity::UvBefore);
    case UvAfter:
        return wallValueText(of, WallQuantity::UvAfter);
    case Neighbor:
        return of.neighborBefore ? fixedText(of.neighborBefore->uv, 4) : undefinedText();
    default:
        break;
    }
    return QString();
}

QVariant CabinetModel::data(const QModelIndex &index, int role) const
{
    return orNothing([&] { return shownData(index, role); });
}

QVariant CabinetModel::shownData(const QModelIndex &index, int role) const
{
    const std::size_t row = std::size_t(index.row());
    if (!index.isValid() || row >= m_order.size() || m_order.size() != wall().cabinets.size()) {
        return QVariant();
    }
    const std::size_t cabinet = m_order[row];
    const auto &assessed = m_session->assessment().wall;
    const auto judgement = assessed ? assessed->cabinets[cabinet].judgement : Judgement::NotKnown;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Name ? judgementMark(judgement) + QLatin1Char(' ') + text(cabinet, Name)
                                      : text(cabinet, index.column());
    case Qt::TextAlignmentRole:
        return int((index.column() <= LimitedBy ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::FontRole:
        if (judgement == Judgement::Fail) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        break;
    case Qt::ToolTipRole:
        if (assessed) {
            const auto target = m_session->document()->description().gamut(m_session->document()->description().target);
            QString words = target ? cabinetText(wall(), *target, *assessed, cabinet) : QString();
            if (const auto &neighbor = assessed->cabinets[cabinet].neighborBefore) {
                words += QLatin1Char(' ') + tr("Of its neighbours, %1 differs most.").arg(m_names[neighbor->cabinet]);
            }
            return plainToolTip(words);
        }
        return plainToolTip(text(cabinet, Name)); // which may be cut
    default:
        break;
    }
    return QVariant();
}

//! With the unit on a line of its own, which would be broken at its slash otherwise.
QString CabinetModel::whiteTitle(const QString &unit)
{
    const QString title = tr("white %1", "with the unit of the luminance").arg(unit);
    const int at = title.lastIndexOf(unit) - 1;
    const bool isApart = !unit.isEmpty() && at > 0 && title.at(at) == QLatin1Char(' ');
    return isApart ? title.left(at) + QLatin1Char('\n') + title.mid(at + 1) : title;
}

QVariant CabinetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return QVariant();
    }
    if (role == Qt::TextAlignmentRole) {
        return int((section <= LimitedBy ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter) | Qt::TextWordWrap;
    }
    const bool isTip = role == Qt::ToolTipRole;
    if (role != Qt::DisplayRole && !isTip) {
        return QVariant();
    }
    switch (section) {
    case Name:
        return isTip ? tr("The cabinet, and whether it shows the target") : tr("cabinet");
    case LimitedBy:
        return isTip ? tr("The colour of the target that lies outside by the most, or else the primary at full drive")
                     : tr("limited by");
    case White:
        return isTip ? tr("Largest luminance in the white of the target") : whiteTitle(luminanceUnitText(wall().unit));
    case Headroom:
        return isTip ? tr("Room above the luminance of the target's white") : tr("headroom");
    case UvBefore:
        return isTip ? tr("Between the cabinet's white, not corrected, and the target's") : tr("Δu′v′ before");
    case UvAfter:
        return isTip ? tr("Between the cabinet's white, corrected, and the target's") : tr("Δu′v′ after");
    case Neighbor:
        return isTip ? tr("The largest Δu′v′ to the white of a neighbour, not corrected") : tr("Δu′v′ beside");
    default:
        break;
    }
    return QVariant();
}

void CabinetModel::sort(int column, Qt::SortOrder order)
{
    m_column = column;
    m_sortOrder = order;
    refresh();
}

} // namespace gamutviewer
