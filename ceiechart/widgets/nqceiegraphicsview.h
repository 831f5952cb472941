// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H
#define CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>

#include <QCursor>
#include <QGraphicsView>

namespace NewCEIE {

/*!
 * \brief The inner view of a chart: shows the scene, one scene unit to a pixel, without frame or scroll bars.
 *
 * CEIEGraphicsView makes one and hands it out with CEIEGraphicsView::view(). A host may show the scene of a chart
 * in a second one; the scene stays the chart's.
 *
 * \code
 * auto *second = new NewCEIE::NQCEIEGraphicsView(parent);
 * second->setScene(chart->view()->scene());
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
    /*! \brief Makes the view's scene rectangle its own: (0, 0, width(), height()). */
    void showEvent(QShowEvent *event) override;
    /*! \brief As showEvent(); this alone lays the view out, the base class is not asked. */
    void resizeEvent(QResizeEvent *event) override;
    /*! \brief Gives up the cursor that slot_mouseCursorChange() has set. */
    void leaveEvent(QEvent *event) override;

private:
    void followSize();
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H
