// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLMAP_H
#define GAMUTVIEWER_WALLMAP_H

#include "drawing/wallpainter.h"

#include <QTableView>

namespace gamutviewer {

class TargetSession;
class WallMapModel;

/*!
 * \brief A map of the session's wall: a cell for each cabinet, coloured by a quantity, with its value and its name.
 *
 * It fills its room as wallLayout() says. Where the cells have no room for names, rows and columns have theirs at the
 * edges. Arrows go from cabinet to cabinet; the one that is selected is that of the session. Each cell is accessible,
 * with its name and what is known of it.
 */
class WallMap : public QTableView {
    Q_OBJECT

public:
    /*! \brief Which cabinets a map has. */
    enum class Cabinets {
        Placed, //!< those with a row and a column, as they hang
        Unplaced //!< the others, in a block
    };

    WallMap(TargetSession *session, Cabinets cabinets, QWidget *parent = nullptr);

    /*! \brief Shows the wall as it is now by \a scale. */
    void refresh(const WallScale &scale);
    /*! \brief Whether there is a cabinet to show. */
    bool isEmpty() const;
    /*! \brief Rows of the map. */
    int gridRows() const;
    /*! \brief The selected cabinet and what is shown of it, "✗ F9: headroom −6 %"; empty where none is selected. */
    QString selectionText() const;
    /*! \brief The cell of \a cabinet; not valid where the map does not have it. */
    QModelIndex indexOf(std::size_t cabinet) const;

    /*! \brief The height that the map needs for cells as large as \a width allows. */
    int heightFor(int width) const;
    QSize minimumSizeHint() const override { return QSize(60, 40); }
    QSize sizeHint() const override { return QSize(320, maximumHeight()); }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Delegate;
    class Edge;

    WallLayout layoutIn(const QSizeF &room) const;
    void layOut();
    void showSelection();

    TargetSession *m_session;
    Cabinets m_cabinets;
    WallMapModel *m_model;
    Delegate *m_delegate;
    Edge *m_columnNames;
    Edge *m_rowNames;
    bool m_isShowing = false; // the selection of the session, which is not to be told of it
};

/*! \brief The legend of a map. */
class WallLegend : public QWidget {
    Q_OBJECT

public:
    explicit WallLegend(QWidget *parent = nullptr);

    void setScale(const WallScale &scale);

    /*! \brief The height that it takes where it is \a width wide. */
    int heightForWidth(int width) const override;
    bool hasHeightForWidth() const override { return true; }
    QSize sizeHint() const override { return QSize(120, heightForWidth(width())); }
    QSize minimumSizeHint() const override { return QSize(60, sizeHint().height()); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    WallScale m_scale;
};

} // namespace gamutviewer

#endif
