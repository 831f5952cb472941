// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H
#define CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>

#include <QCursor>
#include <QGraphicsView>

namespace NewCEIE {

/*!
 * \brief The inner view of a chart: shows the scene without a frame, at one pixel for each unit of the scene.
 *
 * The scene rectangle follows the size of the view, so that there are no scroll bars. CEIEGraphicsView creates and owns
 * a view and returns it by CEIEGraphicsView::view(). A host can show the scene in another view as well; the chart
 * remains the owner of the scene.
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
     * \brief Creates a view without a frame and without a scene. It draws with antialiasing.
     * \param parent owns the view if it is not null
     */
    explicit NQCEIEGraphicsView(QWidget *parent);
    ~NQCEIEGraphicsView() override;

public Q_SLOTS:
    /*! \brief Sets the cursor over the view to \a mouseCursorStyle until the pointer leaves the view. */
    void slot_mouseCursorChange(QCursor mouseCursorStyle);

protected:
    /*! \brief Sets the scene rectangle of the view to (0, 0, width(), height()). */
    void showEvent(QShowEvent *event) override;
    /*! \brief Sets the scene rectangle like showEvent(). The base class is not called. */
    void resizeEvent(QResizeEvent *event) override;
    /*! \brief Resets the cursor that slot_mouseCursorChange() has set. */
    void leaveEvent(QEvent *event) override;

private:
    void followSize();
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_NQCEIEGRAPHICSVIEW_H
