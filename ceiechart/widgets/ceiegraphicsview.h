// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
 * \brief The current chart: the CIE 1931 x, y diagram with gamuts and a legend.
 *
 * A host uses only this class. It passes gamuts as records; the chart assigns colours and kinds to them, shows the area
 * that target and original have in common, and relays the signals of the scene.
 *
 * \code
 * auto *chart = new NewCEIE::CEIEGraphicsView(this);
 * chart->setImageWidth(600);
 * chart->setImageHeight(600);
 * chart->setColorGamut(target, original, {Model::rec709(), Model::rec2020()});
 * \endcode
 *
 * The user edits nothing on this chart, so it emits none of its signals by itself. A host edits the target in another
 * way, and passes each new target to setColorGamut().
 *
 * A new size or layer switch renders the bare diagram; the next updateLanGamut(), setColorGamut() or resize draws the
 * gamuts again. Therefore set the size first and the gamuts last, or call setGamutsKept().
 *
 * The inner view, the legend and a label for messages are children of the chart. The scene has no parent; the chart
 * deletes it. Chromaticities are CIE 1931 x, y (unitless), luminances have the host's unit. Invalid input is ignored,
 * and no function reports an error. Use a chart on the GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsView : public ceiechart::ChartFrame {
    Q_OBJECT
    /*! \brief Width and height of the picture in pixels; see setImageSize(). */
    Q_PROPERTY(QSize imageSize READ imageSize WRITE setImageSize)
    /*! \brief The width of imageSize. */
    Q_PROPERTY(int imageWidth READ imageWidth WRITE setImageWidth DESIGNABLE false STORED false)
    /*! \brief The height of imageSize. */
    Q_PROPERTY(int imageHeight READ imageHeight WRITE setImageHeight DESIGNABLE false STORED false)
    /*! \brief Whether axes and grid are drawn. */
    Q_PROPERTY(bool isDrawCoordinate READ isDrawCoordinate WRITE setIsDrawCoordinate)
    /*! \brief A switch that is stored; see setIsDrawBBRLine(). */
    Q_PROPERTY(bool isDrawBBRLine READ isDrawBBRLine WRITE setIsDrawBBRLine)
    /*! \brief Whether a legacy x, y chart draws the wavelengths; see setIsDrawWaveLength(). */
    Q_PROPERTY(bool isDrawWaveLength READ isDrawWaveLength WRITE setIsDrawWaveLength)
    /*! \brief Whether the next setColorGamut() includes the standards. */
    Q_PROPERTY(bool isShowStandard READ isShowStandard WRITE setIsShowStandard)
    /*! \brief Whether the next setColorGamut() includes the target gamut. */
    Q_PROPERTY(bool isShowTarget READ isShowTarget WRITE setIsShowTarget)
    /*! \brief Whether the next setColorGamut() includes the original gamut. */
    Q_PROPERTY(bool isShowOriginal READ isShowOriginal WRITE setIsShowOriginal)
    /*! \brief Whether the next setColorGamut() includes the common area. */
    Q_PROPERTY(bool isShowActual READ isShowActual WRITE setIsShowActual)
    /*! \brief Whether the next setColorGamut() includes the measured gamut. */
    Q_PROPERTY(bool isShowMeasure READ isShowMeasure WRITE setIsShowMeasure)
    /*! \brief Whether the gamuts are kept over a change of size. */
    Q_PROPERTY(bool gamutsKept READ isGamutsKept WRITE setGamutsKept)
    /*! \brief The colour of locus edge and axes. */
    Q_PROPERTY(QColor graphLineColor READ graphLineColor WRITE setGraphLineColor)
    /*! \brief The background colour of the picture. */
    Q_PROPERTY(QColor graphPictureColor READ graphPictureColor WRITE setGraphPictureColor)
    /*! \brief The background colour of the horseshoe in the next picture of gamuts. */
    Q_PROPERTY(QColor backgroudColor READ backgroudColor WRITE setBackgroudColor)
    /*! \brief Whether the picture is drawn legibly on a light ground. */
    Q_PROPERTY(bool lightPicture READ isLightPicture WRITE setLightPicture)
    /*! \brief Whether the palette decides on the ground of the picture. */
    Q_PROPERTY(bool paletteFollowed READ isPaletteFollowed WRITE setPaletteFollowed)
    /*! \brief Whether the picture has the pixels of the screen. */
    Q_PROPERTY(bool devicePixelRatioFollowed READ isDevicePixelRatioFollowed WRITE setDevicePixelRatioFollowed)
    /*! \brief How many threads draw the picture; see setThreadCount(). */
    Q_PROPERTY(int threadCount READ threadCount WRITE setThreadCount)
    /*! \brief Where the legend is; see setLegendAlignament(). */
    Q_PROPERTY(Qt::Alignment legendAlignament READ legendAlignament WRITE setLegendAlignament)
    /*! \brief Whether drawing the handles resets the white point; see setDrawColorTPoint(). */
    Q_PROPERTY(bool drawColorTPoint READ isDrawColorTPoint WRITE setDrawColorTPoint)
    /*! \brief Whether moving a primary keeps the white point; see setColorTempertureChecked(). */
    Q_PROPERTY(bool colorTempertureChecked READ isColorTempertureChecked WRITE setColorTempertureChecked)
    /*! \brief Whether the primaries can be moved. */
    Q_PROPERTY(bool RGBPointEnable READ isRGBPointEnable WRITE setRGBPointEnable)
    /*! \brief Whether a mouse press can start an edit. */
    Q_PROPERTY(bool useMouseOpertator READ isUseMouseOpertator WRITE setUseMouseOpertator)

public:
    /*!
     * \brief Creates a chart. The legend is below the chart and has the gamut entries only.
     * \param parent owns the chart if it is not null
     */
    explicit CEIEGraphicsView(QWidget *parent);
    /*! \brief Creates a chart. The legend is below the chart and also has the point entries. The flag is ignored. */
    CEIEGraphicsView(bool, QWidget *parent);
    /*!
     * \brief Creates a chart. The legend also has the point entries. The flag is ignored.
     *
     * If \a alignment is exactly Qt::AlignLeft or exactly Qt::AlignRight, the legend is a column to the right of the
     * chart, and its captions are written downwards. With any other value, including combinations, the legend is a row
     * below the chart. \a parent owns the chart if it is not null.
     */
    CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIEGraphicsView() override;

    /*!
     * \brief Replaces all gamuts and draws them.
     *
     * The list of gamuts becomes original (green), measured (cyan) and target (orange), each 2 pixels wide. A gamut is
     * left out if its setIsShow switch is off. If the record of the target has no name, the target is marked as not
     * shown (see setColorGamutVisible()). The horseshoe is coloured where target and original overlap, unless
     * setIsShowActual() is false.
     *
     * \param target, original, measured the gamuts
     * \param standards published gamuts. Those named exactly "Rec.709", "Rec.2020" and "DCI-P3(D65)" are drawn in the
     * given order; all others are ignored.
     */
    void setColorGamut(const Model::ColorGamut &target, const Model::ColorGamut &original,
        const Model::ColorGamut &measured, const QList<Model::ColorGamut> &standards);
    /*! \brief Replaces all gamuts and draws them, without a measured gamut. The original is cyan instead of green. */
    void setColorGamut(
        const Model::ColorGamut &target, const Model::ColorGamut &original, const QList<Model::ColorGamut> &standards);
    /*!
     * \brief Copies the chromaticities and luminances of the primaries and the white point of \a gamut to \a triangle.
     */
    void colorGamutToTriangle(const Model::ColorGamut &gamut, TrianglePoint &triangle);
    /*!
     * \brief Draws the gamuts again and shows \a text over the chart, in black or white, whichever is more legible on
     * the picture. A style sheet for QLabel can set another colour.
     *
     * \param flag is ignored
     * \param text a message. If it is not empty, the picture has no locus edge, horseshoe and gamuts. The next resize
     * removes it.
     */
    void updateLanGamut(bool flag, const QString &text);
    /*! \brief The text that updateLanGamut() shows over the chart; empty if none is shown. */
    QString message() const;
    /*!
     * \brief The standards that the last setColorGamut() selected, in the form in which they are drawn, without their
     * names. lsColorTriangleObject() returns the other gamuts.
     */
    QList<ColorTriangleObject> lsStandardTriangleObject() const;

    /*!
     * \brief Sets the chromaticities (CIE 1931 x, y) of cyan, magenta, yellow and black. The next picture of gamuts
     * shows them.
     *
     * They are converted to positions in the picture at once: set the size first, and set the points again after a new
     * size.
     */
    void setCMYPointData(const QList<QPointF> &points);
    /*! \brief The points of setCMYPointData(); empty if the scene has been deleted. */
    QList<QPointF> CMYPointData() const;

    /*! \brief Sets the background colour of the horseshoe in the next picture of gamuts. */
    void setBackgroudColor(const QColor &color);
    /*!
     * \brief Sets the colours of the next picture, and makes the background of the inner view white.
     *
     * \param first colour of the locus edge, the axes and the colour-temperature points
     * \param second colour that fills the picture
     */
    void setGraphColor(QColor first, QColor second);

    /*!
     * \brief Sets whether the next setColorGamut() includes the standards. True by default, like the following four
     * switches.
     */
    void setIsShowStandard(bool show);
    /*! \brief Sets whether the next setColorGamut() includes the target gamut. */
    void setIsShowTarget(bool show);
    /*! \brief Sets whether the next setColorGamut() includes the original gamut. */
    void setIsShowOriginal(bool show);
    /*! \brief Sets whether the next setColorGamut() includes the area that target and original have in common. */
    void setIsShowActual(bool show);
    /*! \brief Sets whether the next setColorGamut() includes the measured gamut. */
    void setIsShowMeasure(bool show);

    /*! \brief The switch of setIsShowStandard(); true by default. */
    bool isShowStandard() const;
    /*! \brief The switch of setIsShowTarget(); true by default. */
    bool isShowTarget() const;
    /*! \brief The switch of setIsShowOriginal(); true by default. */
    bool isShowOriginal() const;
    /*! \brief The switch of setIsShowActual(); true by default. */
    bool isShowActual() const;
    /*! \brief The switch of setIsShowMeasure(); true by default. */
    bool isShowMeasure() const;
    /*! \brief The colour of setBackgroudColor(), by default rgb(23, 23, 26); invalid if the scene has been deleted. */
    QColor backgroudColor() const;

    /*!
     * \brief Sets whether gamuts, message and CMY points remain in the picture when a new size, a layer switch or
     * colour-temperature points render it again; false by default.
     *
     * Otherwise each of these renders the bare diagram. The switch itself renders nothing.
     */
    void setGamutsKept(bool kept);
    /*! \brief The switch of setGamutsKept(); false if the scene has been deleted. */
    bool isGamutsKept() const;

    /*!
     * \brief Moves the legend to the right of the chart if \a alignment is exactly Qt::AlignLeft or exactly
     * Qt::AlignRight, otherwise below the chart.
     *
     * Can be called repeatedly, on the GUI thread. See CEIELegend::setLegendAlignament().
     */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief The legend; the chart owns it. */
    CEIELegend *getLegend() const;
    /*! \brief The inner view, which shows the scene; the chart owns both. */
    NQCEIEGraphicsView *view() const;

Q_SIGNALS:
    /*! \brief Emitted when a primary of the target has been set; \a colorTriangleObject is the changed target. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Never emitted in this generation. */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Never emitted in this generation, which does not draw a white-point handle. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Never emitted. */
    void signal_mouseCursorChange(NewCEIE::MouseCursorStyle mouseCursorStyle);
    /*! \brief Emitted when the scene has accepted a move of the white point. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*! \brief Emitted when the scene has been constructed with gamuts. The scene of a chart gets its gamuts later. */
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

protected:
    /*! \brief Draws the gamuts again, like updateLanGamut() without a text. */
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
