// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSVIEW_H
#define CEIECHART_LEGACY_CEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/ceielegend.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/legacy/nqceiegraphicsview.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/widgets/chartframe.h>

#include <gamutmodel/colorgamut.h>

/*!
 * \brief The legacy chart: the x, y or the u′, v′ diagram with two gamuts, whose target is edited with the mouse.
 *
 * A host hands over the original and the target gamut; the user drags the target's primaries and white on the
 * chart; the signals report every change. The diagram is chosen at construction.
 *
 * \code
 * auto *chart = new CEIEGraphicsView(this, DrawCEIPicture::XyDiagram);
 * chart->setImageWidth(600);
 * chart->setImageHeight(600);
 * chart->setColorGamut(target, original);
 * connect(chart, &CEIEGraphicsView::signal_targetInfoChanged, this, &Window::showTarget);
 * \endcode
 *
 * Inner view and legend are children of the chart. The scene has no parent; the chart deletes it. Gamuts are in
 * CIE 1931 x, y on both diagrams. Nothing reports an error: what cannot be used is ignored. GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsView : public ceiechart::ChartFrame {
    Q_OBJECT

public:
    /*!
     * \brief A chart of the diagram \a type whose legend stands below it and names the gamuts only.
     *
     * The pointer keeps its shape over a u′, v′ diagram.
     * \param parent owns the chart when not null.
     */
    CEIEGraphicsView(QWidget *parent, DrawCEIPicture::CEIEType type);
    /*! \brief An x, y chart whose legend stands below it and names the points too, whatever the flag. */
    CEIEGraphicsView(bool, QWidget *parent);
    /*!
     * \brief An x, y chart whose legend names the points too, whatever the flag.
     *
     * The legend stands to the right of the chart, in a column with captions written downwards, if \a alignment is
     * exactly Qt::AlignLeft or exactly Qt::AlignRight; for any other value, combinations included, it stands below.
     */
    CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIEGraphicsView() override;

    /*!
     * \brief Makes the list of gamuts original (white, 2 pixels wide) and target (black, 1 pixel wide).
     *
     * The chart shows the target by its handles. It draws no outlines: colours and widths are for the host.
     */
    void setColorGamut(const Model::ColorGamutInfo &target, const Model::ColorGamutInfo &original);
    /*! \brief Copies chromaticities and luminances of the primaries and the white of \a gamut to \a triangle. */
    void colorGamutToTriangle(const Model::ColorGamutInfo &gamut, TrianglePoint &triangle);

    /*!
     * \brief Hands u′, v′ pairs to the scene; a u′, v′ chart draws them with its next picture, which a new size or
     *        layer switch makes.
     */
    void setMeasureValuePoints(const QList<QPointF> &points);
    /*! \brief The measure points as the scene holds them. */
    QList<QPointF> getMeasureValuePoints() const;

    /*! \brief Sets the colour of edge and axes and the one that fills a u′, v′ picture, for the next picture. */
    void setGraphColor(QColor first, QColor second);

    /*! \copydoc NewCEIE::CEIEGraphicsView::setLegendAlignament */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIEGraphicsView::getLegend */
    CEIELegend *getLegend() const;
    /*! \copydoc NewCEIE::CEIEGraphicsView::view */
    NQCEIEGraphicsView *view() const;

Q_SIGNALS:
    /*! \brief A primary of the target has been placed; \a colorTriangleObject is the target after that. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*!
     * \brief The white point has been released while the white is held; \a colorTriangleObject is the target.
     * \see setColorTempertureChecked()
     */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief The colour temperature of the white-point handle, in kelvin, each time that it is drawn. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Never emitted. */
    void signal_mouseCursorChange(MouseCursorStyle mouseCursorStyle);
    /*! \brief A request to move the white point has been accepted, or the left button released. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*! \brief A scene has been constructed with gamuts: not so the scene of a view, which gets them later. */
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

private:
    void buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment);
    void setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment);
    void initData();

    class Private;
    Private &own() const;
};

#endif // CEIECHART_LEGACY_CEIEGRAPHICSVIEW_H
