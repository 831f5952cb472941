// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CLOSELOOK_H
#define GAMUTVIEWER_CLOSELOOK_H

#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/targetrules.h>

#include <QPixmap>
#include <QPolygonF>
#include <QWidget>

#include <cstddef>
#include <optional>

namespace gamutviewer {

class TargetSession;

/*!
 * \brief The part of the CIE 1976 u′, v′ diagram about one primary: that of every cabinet as a dot, and over them what
 * all can show and the target. The cabinet that is selected stands out; a click selects one.
 *
 * It follows the target where that leaves it.
 */
class CloseLook : public QWidget {
    Q_OBJECT

public:
    CloseLook(TargetSession *session, ceiechart::GamutVertex primary, QWidget *parent = nullptr);

    /*! \brief Shows the wall as it is now. */
    void refresh();
    /*! \brief Which part of the diagram is seen. */
    const ceiechart::DiagramViewport &viewport() const { return m_diagram.viewport(); }
    /*! \brief The cabinet whose dot is nearest to \a position and hit by it; nothing for none. */
    std::optional<std::size_t> cabinetAt(const QPointF &position) const;

    QSize sizeHint() const override { return QSize(150, 130); }
    QSize minimumSizeHint() const override { return QSize(70, 70); }

Q_SIGNALS:
    /*! \brief The pointer is over the CIE 1931 chromaticity \a xy. */
    void pointedAt(const QPointF &xy);
    void pointerLeft();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool takeDots();
    void fit();
    void drawCloud();

    TargetSession *m_session;
    ceiechart::GamutVertex m_primary;
    ceiechart::DiagramPainter m_diagram;
    QPolygonF m_dots; // CIE 1931 x, y of each cabinet
    QPolygonF m_common; // what all can show, in CIE 1931 x, y
    QPixmap m_cloud; // scale and dots; null when they have to be drawn again
};

} // namespace gamutviewer

#endif
