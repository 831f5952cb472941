// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
 * \brief The legacy chart: the CIE 1931 x, y or the CIE 1976 u′, v′ diagram with a legend, on which the user edits the
 * target gamut with the mouse.
 *
 * A host sets the original and the target gamut. The user drags the primaries and the white point of the target, and
 * the signals report every change. The diagram is chosen in the constructor.
 *
 * \code
 * auto *chart = new CEIEGraphicsView(this, DrawCEIPicture::XyDiagram);
 * chart->setImageWidth(600);
 * chart->setImageHeight(600);
 * chart->setDrawColorTPoint(false); // otherwise each paint resets the white point of the target
 * chart->setColorGamut(target, original);
 * connect(chart, &CEIEGraphicsView::signal_targetInfoChanged, this, &Window::showTarget);
 * \endcode
 *
 * The inner view and the legend are children of the chart. The scene has no parent; the chart deletes it. Gamuts are in
 * CIE 1931 x, y (unitless) on both diagrams, luminances have the host's unit. Invalid input is ignored, and no function
 * reports an error. Use a chart on the GUI thread only.
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
    /*! \brief The colour of locus edge and axes. */
    Q_PROPERTY(QColor graphLineColor READ graphLineColor WRITE setGraphLineColor)
    /*! \brief The background colour of the picture. */
    Q_PROPERTY(QColor graphPictureColor READ graphPictureColor WRITE setGraphPictureColor)
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
     * \brief Creates a chart of the diagram \a type. The legend is below the chart and has the gamut entries only.
     *
     * Over a u′, v′ diagram the pointer does not change its shape.
     * \param parent owns the chart if it is not null
     * \param type the diagram; any value other than DrawCEIPicture::UvDiagram gives the x, y diagram
     */
    CEIEGraphicsView(QWidget *parent, DrawCEIPicture::CEIEType type);
    /*!
     * \brief Creates an x, y chart. The legend is below the chart and also has the point entries. The flag is ignored.
     */
    CEIEGraphicsView(bool, QWidget *parent);
    /*!
     * \brief Creates an x, y chart. The legend also has the point entries. The flag is ignored.
     *
     * If \a alignment is exactly Qt::AlignLeft or exactly Qt::AlignRight, the legend is a column to the right of the
     * chart, and its captions are written downwards. With any other value, including combinations, the legend is a row
     * below the chart. \a parent owns the chart if it is not null.
     */
    CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIEGraphicsView() override;

    /*! \brief The diagram that the constructor chose. */
    DrawCEIPicture::CEIEType diagramType() const;

    /*!
     * \brief Replaces the gamuts by \a original (white, 2 pixels wide) and \a target (black, 1 pixel wide).
     *
     * The chart shows the target by its handles. It does not draw outlines; colours and widths are for the host.
     */
    void setColorGamut(const Model::ColorGamutInfo &target, const Model::ColorGamutInfo &original);
    /*!
     * \brief Copies the chromaticities and luminances of the primaries and the white point of \a gamut to \a triangle.
     */
    void colorGamutToTriangle(const Model::ColorGamutInfo &gamut, TrianglePoint &triangle);

    /*!
     * \brief Sets measurement points, as pairs of CIE 1976 u′, v′.
     *
     * A u′, v′ chart shows them in its next picture, which is rendered after a change of the size or of a layer switch.
     * An x, y chart does not show them.
     */
    void setMeasureValuePoints(const QList<QPointF> &points);
    /*! \brief The measurement points of setMeasureValuePoints(); empty if the scene has been deleted. */
    QList<QPointF> getMeasureValuePoints() const;

    /*!
     * \brief Sets the colours of the next picture.
     *
     * \param first colour of the locus edge and the axes
     * \param second background colour of a u′, v′ picture; an x, y picture has a black background
     */
    void setGraphColor(QColor first, QColor second);

    /*! \copydoc NewCEIE::CEIEGraphicsView::setLegendAlignament */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIEGraphicsView::getLegend */
    CEIELegend *getLegend() const;
    /*! \copydoc NewCEIE::CEIEGraphicsView::view */
    NQCEIEGraphicsView *view() const;

Q_SIGNALS:
    /*! \brief Emitted when a primary of the target has been set; \a colorTriangleObject is the changed target. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*!
     * \brief Emitted when the white point has been released while setColorTempertureChecked() is set; \a
     * colorTriangleObject is the target.
     */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Emitted each time the white-point handle is drawn, with its colour temperature in kelvin. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Never emitted. */
    void signal_mouseCursorChange(MouseCursorStyle mouseCursorStyle);
    /*! \brief Emitted when a move of the white point has been accepted, and when the left mouse button is released. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*! \brief Emitted when the scene has been constructed with gamuts. The scene of a chart gets its gamuts later. */
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

private:
    void buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment);
    void setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment);
    void initData();

    class Private;
    Private &own() const;
};

#endif // CEIECHART_LEGACY_CEIEGRAPHICSVIEW_H
