// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTFRAME_H
#define CEIECHART_WIDGETS_CHARTFRAME_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>

#include <QColor>
#include <QFrame>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QSize>

#include <memory>
#include <optional>

namespace ceiechart {

/*!
 * \brief A chart: an inner view that shows a scene, and a legend.
 *
 * The base class of both `CEIEGraphicsView` classes. Hosts use those classes and need not derive from this one.
 *
 * The inner view and the legend are children of the chart. The scene has no parent; the chart deletes it. If a host
 * deletes the scene earlier, calls that would reach it are ignored. Chromaticities are CIE 1931 x, y (unitless), sizes
 * are in pixels. Invalid input is ignored, and no function reports an error. Use a chart on the GUI thread only.
 */
class CEIECHART_EXPORT ChartFrame : public QFrame {
public:
    ~ChartFrame() override;

    /*! \brief Removes all gamuts from the list. The standards, the common area and the points remain. */
    void clear();
    /*!
     * \brief Sets whether the gamut at \a index is marked as shown, and passes the list to the scene. An index outside
     * the list is ignored.
     *
     * The mark (ColorTriangleObject::isShow()) is for the host: all gamuts of the list are drawn. Passing the list to
     * the scene of a legacy chart discards the edits of the user.
     */
    void setColorGamutVisible(int index, bool shown);
    /*!
     * \brief Replaces the list of gamuts.
     *
     * The current chart shows the new list after the next updateLanGamut() or resize. The legacy chart requires the
     * original and the target, in this order.
     */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    /*!
     * \brief The list of gamuts that was last set. It does not contain the edits of the user, which only the signals
     * report.
     */
    QList<ColorTriangleObject> lsColorTriangleObject() const;

    /*! \brief Sets the colour-temperature points (CIE 1931 x, y) of the scene, which renders the bare diagram. */
    void setLsColorTempertureValuePoints(const QList<QPointF> &points);
    /*! \brief The colour-temperature points that were last set. */
    QList<QPointF> lsColorTempertureValuePoints() const;
    /*!
     * \brief Sets the measurement points (CIE 1931 x, y) of the scene, and their colours, one for each point.
     *
     * The legacy chart shows them as dots over the picture; a point without a colour, or with an invalid one, is white.
     * The current chart stores them for the host and does not draw them.
     */
    void setOtherPoints(QList<QPointF> points, QList<QColor> colors);
    /*! \brief The measurement points of the scene; empty if the scene has been deleted. */
    QList<QPointF> getOtherPoints() const;
    /*! \brief The colours of the measurement points; empty if the scene has been deleted. */
    QList<QColor> getOtherPointsColor() const;

    /*!
     * \brief Sets the width of the picture in pixels and renders the bare diagram. The inner view gets a fixed width of
     * 2 pixels more.
     *
     * All values are accepted. With a width that no picture can have, the chart is empty.
     */
    void setImageWidth(int width);
    /*!
     * \brief Sets the height of the picture in pixels and renders the bare diagram. The inner view gets a fixed height
     * of 2 pixels more.
     *
     * All values are accepted. With a height that no picture can have, the chart is empty.
     */
    void setImageHeight(int height);
    /*!
     * \brief The width that was last set, in pixels; 512 by default. Until a width is set, the scene renders 672
     * pixels.
     */
    int imageWidth() const;
    /*!
     * \brief The height that was last set, in pixels; 512 by default. Until a height is set, the scene renders 728
     * pixels.
     */
    int imageHeight() const;
    /*! \brief Sets width and height like setImageWidth() and setImageHeight(), but renders only once. */
    void setImageSize(const QSize &size);
    /*! \brief imageWidth() and imageHeight(). */
    QSize imageSize() const;
    /*!
     * \brief Sets whether axes and grid are drawn, in a legacy x, y chart also the Planckian locus, and renders the
     * bare diagram.
     */
    void setIsDrawCoordinate(bool draw);
    /*!
     * \brief Stores the switch and renders the bare diagram. No picture depends on the switch.
     *
     * The current chart draws the Planckian locus in every picture of gamuts, and never in the bare diagram. A legacy
     * x, y chart draws it together with the axes.
     */
    void setIsDrawBBRLine(bool draw);
    /*!
     * \brief Sets whether a legacy x, y chart draws the wavelengths, and renders the bare diagram.
     *
     * Other charts do not depend on the switch: the current chart draws the wavelengths in every picture of gamuts and
     * never in the bare diagram, and a legacy u′, v′ chart never draws them.
     */
    void setIsDrawWaveLength(bool draw);
    /*! \brief The switch of setIsDrawCoordinate(); true by default. */
    bool isDrawCoordinate() const;
    /*! \brief The switch of setIsDrawBBRLine(); true by default. */
    bool isDrawBBRLine() const;
    /*! \brief The switch of setIsDrawWaveLength(); true by default. */
    bool isDrawWaveLength() const;

    /*!
     * \brief Sets whether drawing the handles resets the target's white point to (0, 0) and its luminance to 0. True by
     * default.
     *
     * A host that lets the user edit the white point must set it to false.
     */
    void setDrawColorTPoint(bool draw);
    /*! \brief The switch of setDrawColorTPoint(); false if the scene has been deleted. */
    bool isDrawColorTPoint() const;
    /*!
     * \brief Sets whether moving a primary keeps the target's white point and changes the luminances instead. False by
     * default.
     *
     * setDrawColorTPoint() must be false: otherwise drawing the handles resets the white point.
     */
    void setColorTempertureChecked(bool checked);
    /*!
     * \brief Sets whether the primaries of the target can be moved; true by default.
     *
     * True allows moves of the primaries and of the white point. False allows moves of the white point only.
     */
    void setRGBPointEnable(bool enable);
    /*! \brief Sets whether a mouse press can start an edit; true by default. In the current chart no press does. */
    void setUseMouseOpertator(bool enable);

    /*!
     * \name What is set
     * @{
     */
    /*! \brief The switch of setColorTempertureChecked(); false by default, and if the scene has been deleted. */
    bool isColorTempertureChecked() const;
    /*! \brief The switch of setRGBPointEnable(); true by default, false if the scene has been deleted. */
    bool isRGBPointEnable() const;
    /*! \brief The switch of setUseMouseOpertator(); true by default, false if the scene has been deleted. */
    bool isUseMouseOpertator() const;
    /*! \brief The alignment of the constructor or of setLegendAlignament(), whichever was last. */
    QFlags<Qt::AlignmentFlag> legendAlignament() const;
    /*!
     * \brief The first colour of setGraphColor(), that of locus edge and axes; white by default. Invalid if the scene
     * has been deleted.
     */
    QColor graphLineColor() const;
    /*!
     * \brief The second colour of setGraphColor(), that of the picture's background; rgb(23, 23, 26) by default, of a
     * legacy chart "#323238". Invalid if the scene has been deleted.
     */
    QColor graphPictureColor() const;
    /*! @} */

    /*!
     * \name Appearance, further operations
     * Each renders what is shown again, gamuts included, and changes nothing before it is called. A chart that has not
     * been rendered yet remains blank.
     * @{
     */
    /*! \brief Sets graphLineColor() and leaves everything else as it is, also the background of the inner view. */
    void setGraphLineColor(const QColor &color);
    /*! \brief Sets graphPictureColor() and leaves everything else as it is, also the background of the inner view. */
    void setGraphPictureColor(const QColor &color);
    /*!
     * \brief Sets whether the picture is drawn legibly on a light ground; false by default. Ignored while
     * isPaletteFollowed().
     *
     * The ground is graphPictureColor() if that is opaque and light, otherwise near-white. Lines, numbers and outlines
     * keep their hue and become dark enough for it. The list of gamuts and the legend are not changed.
     */
    void setLightPicture(bool light);
    /*! \brief The switch of setLightPicture(). */
    bool isLightPicture() const;
    /*!
     * \brief Sets whether the picture has a light ground, as by setLightPicture(), whenever the window colour of the
     * chart's palette is light, also when the palette changes. False by default.
     */
    void setPaletteFollowed(bool followed);
    /*! \brief The switch of setPaletteFollowed(). */
    bool isPaletteFollowed() const;
    /*!
     * \brief Sets whether the picture has as many pixels as the screen has for it, also when the chart is moved to
     * another screen; false by default.
     *
     * Otherwise the picture has one pixel for each logical pixel, and a screen of high density shows it enlarged. Sizes
     * and positions are in logical pixels in both cases.
     */
    void setDevicePixelRatioFollowed(bool followed);
    /*! \brief The switch of setDevicePixelRatioFollowed(). */
    bool isDevicePixelRatioFollowed() const;
    /*! @} */

    /*!
     * \brief Sets how many threads draw the next pictures; 1, the default, to 64. See
     * ceiechart::DiagramRenderer::setThreadCount().
     *
     * Nothing is rendered, as the pixels are the same. Only large pictures are drawn faster. With 1, no thread is
     * started.
     */
    void setThreadCount(int count);
    /*! \brief The count of setThreadCount(), within its limits; 1 if the scene has been deleted. */
    int threadCount() const;

    /*!
     * \name Picture and positions
     * Positions in the picture are in its pixels (logical ones, where it has those of the screen), with y growing
     * downwards; positions in the view are in logical pixels of the viewport of the inner view, as in its mouse events.
     * Both are where lines and gamuts are drawn, and not truncated to whole pixels. Chromaticities are CIE 1931 x, y on
     * both diagrams.
     *
     * The result is nothing before the first picture, for a picture less than 2 pixels wide or high, and for what has
     * no chromaticity or no position. Results can lie outside of picture and view.
     * @{
     */
    /*!
     * \brief The chart without its legend, in the size of the picture. The handles and measurement points of a legacy
     * chart are in it, the message of updateLanGamut() is not.
     *
     * With setDevicePixelRatioFollowed() the image has the ratio of the screen. A null image before the first picture.
     * Neither the chart nor the list of gamuts is changed, and nothing is emitted.
     */
    QImage toImage() const;
    /*! \brief The position of the chromaticity \a xy in the picture. */
    std::optional<QPointF> picturePosition(const QPointF &xy) const;
    /*! \brief The chromaticity at \a position in the picture: the inverse of picturePosition(). */
    std::optional<QPointF> chromaticityInPicture(const QPointF &position) const;
    /*! \brief The position of the chromaticity \a xy in the view. */
    std::optional<QPointF> viewPosition(const QPointF &xy) const;
    /*! \brief The chromaticity at \a position in the view: the inverse of viewPosition(). */
    std::optional<QPointF> chromaticityInView(const QPointF &position) const;
    /*! @} */

protected:
    class Private;

    ChartFrame(std::unique_ptr<Private> own, QWidget *parent);

    const std::unique_ptr<Private> d;

private:
    Q_DISABLE_COPY(ChartFrame)
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTFRAME_H
