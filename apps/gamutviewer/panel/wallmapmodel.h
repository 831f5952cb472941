// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLMAPMODEL_H
#define GAMUTVIEWER_WALLMAPMODEL_H

#include "drawing/wallpainter.h"

#include <QAbstractTableModel>

#include <vector>

namespace gamutviewer {

class TargetSession;

/*! \brief The cells of a WallMap. */
class WallMapModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /*! \brief The cabinets that \a gridOf finds in a wall. */
    WallMapModel(const TargetSession *session, WallGrid (*gridOf)(const DisplayWall &), QObject *parent);

    void refresh(const WallScale &scale);
    const WallGrid &grid() const { return m_grid; }
    /*! \brief The cabinet that can be selected at \a index: none that was measured incompletely. */
    std::optional<std::size_t> cabinetAt(const QModelIndex &index) const;
    /*! \brief The incompletely measured cabinet at \a index; null for others and for gaps. */
    const IncompleteCabinet *incompleteAt(const QModelIndex &index) const;
    QModelIndex indexOf(std::size_t cabinet) const;
    /*! \brief How the cabinet at \a index is drawn, but for its selection; nothing for a gap. */
    std::optional<WallCell> cell(const QModelIndex &index) const;
    const LongestTexts &longest() const { return m_longest; }
    /*! \brief The cabinet that is selected and what is shown of it, in few words: "✗ F9: headroom −6 %". */
    QString briefly(std::size_t cabinet) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Place {
        QString name;
        std::optional<int> row;
        std::optional<int> column;
        bool isIncomplete = false;
    };

    QVariant shownData(const QModelIndex &index, int role) const;
    const DisplayWall &wall() const;
    const CabinetAssessment *assessed(std::size_t cabinet) const;
    QString description(std::size_t cabinet) const;

    const TargetSession *m_session;
    WallGrid (*m_gridOf)(const DisplayWall &);
    WallScale m_scale;
    WallGrid m_grid;
    std::vector<Place> m_places; // that the grid is of
    std::vector<QModelIndex> m_indexes; // of each cabinet
    LongestTexts m_longest;
};

} // namespace gamutviewer

#endif
