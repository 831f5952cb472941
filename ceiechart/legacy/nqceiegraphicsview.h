// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H
#define CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>

#include <QCursor>
#include <QGraphicsView>

/*!
 * \brief The inner view of a legacy chart: shows the scene without a frame.
 *
 * The legacy CEIEGraphicsView creates and owns one and returns it by CEIEGraphicsView::view(). The view does not own
 * the scene.
 *
 * \code
 * chart->view()->setCursor(Qt::CrossCursor);
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
    /*! \brief Resets the cursor that slot_mouseCursorChange() has set. */
    void leaveEvent(QEvent *event) override;
};

#endif // CEIECHART_LEGACY_NQCEIEGRAPHICSVIEW_H
