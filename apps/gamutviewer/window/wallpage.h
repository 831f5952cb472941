// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLPAGE_H
#define GAMUTVIEWER_WALLPAGE_H

#include "drawing/wallscale.h"
#include "window/page.h"

#include <array>

class QActionGroup;
class QHBoxLayout;
class QLabel;
class QSplitter;
class QStackedWidget;
class QToolButton;

namespace gamutviewer {

class CabinetTable;
class CloseLook;
class TargetSession;
class WallLegend;
class WallMap;
class WallVerdict;

/*!
 * \brief The wall: whether its cabinets show the target, a map of it, close looks at the primaries and the white, and a
 * table.
 *
 * The cabinet that is selected is the same in all of them. Without a wall the page says how to get one.
 */
class WallPage : public Page {
    Q_OBJECT

public:
    explicit WallPage(TargetSession *session, QWidget *parent = nullptr);

    QString title() const override { return tr("Wall"); }
    QStringList hints() const override;
    Picture picture() const override;

    WallVerdict *verdict() const { return m_verdict; }
    WallMap *map() const { return m_map; }
    /*! \brief The cabinets whose position is not known; hidden while there are none. */
    WallMap *unplacedMap() const { return m_unplaced; }
    /*! \brief Names the selected cabinet and its value, below the map; empty where none is selected. */
    QLabel *selectionNote() const { return m_selected; }
    WallLegend *legend() const { return m_legend; }
    CabinetTable *table() const { return m_table; }
    /*! \brief Names the cabinets that were measured incompletely; hidden while there are none. */
    QLabel *incompleteNote() const { return m_incomplete; }
    CloseLook *closeLook(ceiechart::GamutVertex vertex) const { return m_looks.at(std::size_t(vertex)); }
    /*!
     * \brief Chooses what the map is coloured by; its actions carry a WallQuantity. Until the user has chosen one, it
     * is usualQuantity().
     */
    QActionGroup *quantities() const { return m_quantities; }
    WallQuantity quantity() const;
    /*! \brief What is shown without a wall. */
    QLabel *emptyNote() const { return m_note; }

Q_SIGNALS:
    /*! \brief The user wants the corrections written to a file. */
    void exportWanted();

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *buildMaps();
    QWidget *buildNumbers();
    void buildQuantities(QHBoxLayout *bar);
    void choose(WallQuantity quantity);
    void refreshMaps();
    void refreshIncomplete();
    void shareWidth();
    void shareRoom();
    void showSelection();
    QString noWallText() const;

    TargetSession *m_session;
    QStackedWidget *m_stack;
    QLabel *m_note;
    QWidget *m_content;
    WallVerdict *m_verdict;
    QActionGroup *m_quantities;
    bool m_isQuantityChosen = false; // by the user
    QLabel *m_extent;
    QSplitter *m_parts;
    bool m_isSplitByHand = false;
    QWidget *m_maps;
    WallMap *m_map;
    QLabel *m_unplacedTitle;
    WallMap *m_unplaced;
    QLabel *m_selected;
    WallLegend *m_legend;
    std::array<CloseLook *, 4> m_looks{};
    QToolButton *m_worst;
    QToolButton *m_copy;
    CabinetTable *m_table;
    QLabel *m_incomplete;
};

} // namespace gamutviewer

#endif
