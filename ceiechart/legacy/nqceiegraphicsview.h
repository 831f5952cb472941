// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H
#define CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>

#include <QCursor>
#include <QGraphicsView>

/*!
 * \brief The inner view of a legacy chart: shows the scene without frame, in the scene's own rectangle.
 *
 * The legacy CEIEGraphicsView makes one and hands it out with CEIEGraphicsView::view().
 *
 * \code
 * chart->view()->setCursor(Qt::CrossCursor);
 * \endcode
 */
class CEIECHART_EXPORT NQCEIEGraphicsView : public QGraphicsView {
    Q_OBJECT

public:
    /*!
     * \brief An antialiasing view without frame or scene.
     * \param parent owns the view when not null.
     */
    explicit NQCEIEGraphicsView(QWidget *parent);
    ~NQCEIEGraphicsView() override;

public Q_SLOTS:
    /*! \brief Shows \a mouseCursorStyle while the pointer is over the view, until it leaves. */
    void slot_mouseCursorChange(QCursor mouseCursorStyle);

protected:
    /*! \brief Gives up the cursor that slot_mouseCursorChange() has set. */
    void leaveEvent(QEvent *event) override;
};

#endif // CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H
