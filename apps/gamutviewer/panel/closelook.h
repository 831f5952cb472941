// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CLOSELOOK_H
#define GAMUTVIEWER_CLOSELOOK_H

#include "drawing/targetview.h"

#include <QPixmap>
#include <QPolygonF>

#include <cstddef>
#include <optional>

namespace gamutviewer {

/*!
 * \brief The part of the CIE 1976 u′, v′ diagram about one primary or the white: that of every cabinet as a dot, and
 * over them what all can show and the target. The cabinet that is selected stands out; a click selects one.
 *
 * The white of a cabinet is that without a correction: as measured, or the sum of its primaries.
 *
 * The target is edited as on any TargetView, by mouse and arrow keys. The view itself cannot be moved: it follows the
 * target where that leaves it, but stays as it is while something is dragged in it.
 */
class CloseLook : public TargetView {
    Q_OBJECT

public:
    CloseLook(TargetSession *session, ceiechart::GamutVertex vertex, QWidget *parent = nullptr);

    /*! \brief Shows the wall as it is now. */
    void refresh();
    /*! \brief The cabinet whose dot is nearest to \a position and hit by it; nothing for none. */
    std::optional<std::size_t> cabinetAt(const QPointF &position) const;

    /*! \brief Where the name of the selected cabinet stands, inside of the view; empty where its dot is not seen. */
    QRectF selectedLabel() const;

    QSize sizeHint() const override { return QSize(150, 130); }
    QSize minimumSizeHint() const override { return QSize(70, 70); }

protected:
    void paintBelowTarget(QPainter *painter) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QPointF dotOf(std::size_t cabinet) const;
    bool takeDots();
    bool isHeld() const;
    ceiechart::DiagramViewport fitted() const;
    void fit();
    void drawCloud();
    void paintSelected(QPainter *painter) const;
    bool isOnHandle(const QPointF &position) const;
    void selectSeenVertex();
    QPointF targetXy() const;

    ceiechart::GamutVertex m_vertex;
    QPolygonF m_dots; // CIE 1931 x, y of each cabinet
    QPolygonF m_common; // what all can show, in CIE 1931 x, y
    QPixmap m_cloud; // of the dots
    ceiechart::DiagramViewport m_cloudViewport; // that m_cloud was drawn for
    ceiechart::DiagramGround m_cloudGround = ceiechart::DiagramGround::Light;
    std::optional<QPoint> m_pressed; // on a handle
};

} // namespace gamutviewer

#endif
