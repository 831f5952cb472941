// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_H
#define CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/widgets/ceielegend.h>
#include <ceiechart/widgets/chartframe.h>
#include <ceiechart/widgets/nqceiegraphicsview.h>

#include <gamutmodel/colorgamut.h>

#include <QPolygonF>

/*! \brief The current generation of the chart: CIE 1931 x, y. The legacy generation is in the global namespace. */
namespace NewCEIE {

/*!
 * \brief The chart that a host puts into its window: the CIE 1931 x, y diagram, the gamuts over it, and a legend.
 *
 * A host talks to this class only. It hands gamuts over as records, and the chart gives them their colours and
 * kinds, shows what they have in common, and reports through its signals what the scene reports.
 *
 * \code
 * auto *chart = new NewCEIE::CEIEGraphicsView(true, Qt::AlignRight, this);
 * chart->setImageWidth(600);
 * chart->setImageHeight(600);
 * chart->setColorGamut(target, original, {Model::rec709(), Model::rec2020()});
 * connect(chart, &NewCEIE::CEIEGraphicsView::signal_targetInfoChanged, this, &Window::showTarget);
 * \endcode
 *
 * A new size or a layer switch renders the bare diagram at once; the gamuts come back with the next updateLanGamut(),
 * setColorGamut() or resize. So set the size first, the gamuts last.
 *
 * Inner view, legend and message label are children of the chart. The scene has no parent; the chart deletes it.
 * Chromaticities are CIE 1931 x, y, luminances are in the host's units. Nothing reports an error: what cannot be
 * used is ignored. GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsView : public ceiechart::ChartFrame {
    Q_OBJECT

public:
    /*!
     * \brief A chart whose legend stands below it and names the gamuts only.
     * \param parent owns the chart when not null.
     */
    explicit CEIEGraphicsView(QWidget *parent);
    /*! \brief A chart whose legend stands below it and names the points too, whatever the flag. */
    CEIEGraphicsView(bool, QWidget *parent);
    /*!
     * \brief A chart whose legend names the points too, whatever the flag.
     *
     * The legend stands to the right of the chart, in a column with captions written downwards, if \a alignment is
     * exactly Qt::AlignLeft or exactly Qt::AlignRight; for any other value, combinations included, it stands below.
     */
    CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIEGraphicsView() override;

    /*!
     * \brief Shows all gamuts anew.
     *
     * The list of gamuts becomes original (green), measured (cyan), target (orange), each 2 pixels wide and left
     * out if its setIsShow switch is off. The target is kept but not shown when its record has no name. Of
     * \a standards those named exactly "Rec.709", "Rec.2020" and "DCI-P3(D65)" are shown, in the given order; any
     * other is left out. The horseshoe is coloured where target and original overlap, unless setIsShowActual() is off.
     */
    void setColorGamut(const Model::ColorGamut &target, const Model::ColorGamut &original,
        const Model::ColorGamut &measured, const QList<Model::ColorGamut> &standards);
    /*! \brief The same without a measured gamut: the list becomes original, which is cyan here, and target. */
    void setColorGamut(
        const Model::ColorGamut &target, const Model::ColorGamut &original, const QList<Model::ColorGamut> &standards);
    /*! \brief Copies chromaticities and luminances of the primaries and the white of \a gamut to \a triangle. */
    void colorGamutToTriangle(const Model::ColorGamut &gamut, TrianglePoint &triangle);
    /*!
     * \brief Has the scene draw the chart's gamuts again, and shows \a text over the chart.
     *
     * A text that is not empty also keeps edge, horseshoe and gamuts out of the picture. The next resize hides it.
     * \param flag passed to the scene, which draws the same for both values
     */
    void updateLanGamut(bool flag, const QString &text);

    /*!
     * \brief Hands chromaticities (CIE 1931 x, y) of cyan, magenta, yellow and black to the scene; drawn with the
     *        next picture of the gamuts.
     *
     * They are turned into places in the picture now: set the size first, and the points again after a new size.
     */
    void setCMYPointData(const QList<QPointF> &points);

    /*! \brief Sets the colour behind the horseshoe, for the next picture. */
    void setBackgroudColor(const QColor &color);
    /*!
     * \brief Sets the colour of edge and axes and the one that fills the picture, for the next picture, and makes
     *        the chart stand on white.
     */
    void setGraphColor(QColor first, QColor second);

    /*! \brief Whether the next setColorGamut() takes the standards. On at first, as are the following four. */
    void setIsShowStandard(bool show);
    /*! \brief Whether the next setColorGamut() takes the target gamut. */
    void setIsShowTarget(bool show);
    /*! \brief Whether the next setColorGamut() takes the original gamut. */
    void setIsShowOriginal(bool show);
    /*! \brief Whether the next setColorGamut() takes the area that target and original have in common. */
    void setIsShowActual(bool show);
    /*! \brief Whether the next setColorGamut() takes the measured gamut. */
    void setIsShowMeasure(bool show);

    /*!
     * \brief Moves the legend: to the right of the chart for exactly Qt::AlignLeft or exactly Qt::AlignRight, below
     *        it for any other value. May be called again at any time; see CEIELegend::setLegendAlignament().
     */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief The legend; the chart owns it. */
    CEIELegend *getLegend() const;
    /*! \brief The view that shows the scene; the chart owns both. */
    NQCEIEGraphicsView *view() const;

Q_SIGNALS:
    /*! \brief A primary of the target has been placed; \a colorTriangleObject is the target after that. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Never emitted in this generation. */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Never emitted in this generation, which draws no white-point handle. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Never emitted. */
    void signal_mouseCursorChange(NewCEIE::MouseCursorStyle mouseCursorStyle);
    /*! \brief The scene has accepted a request to move the white point. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*! \brief A scene has been constructed with gamuts: not so the scene of a view, which gets them later. */
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

protected:
    /*! \brief Draws the gamuts again, as updateLanGamut() without a text. */
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment);
    void setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment);
    void updateMixInfo(const QString &text);
    QPolygonF getTargetOrgIntersected(const TrianglePoint &a, const TrianglePoint &b);
    void calcActualPos(TrianglePoint &triangle);
    void initData();

    class Private;
    Private &own() const;
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_CEIEGRAPHICSVIEW_H
