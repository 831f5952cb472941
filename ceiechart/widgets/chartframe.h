// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTFRAME_H
#define CEIECHART_WIDGETS_CHARTFRAME_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>

#include <QColor>
#include <QFrame>
#include <QList>
#include <QPointF>

#include <memory>

namespace ceiechart {

/*!
 * \brief A frame with an inner view, a scene and a legend: what the chart views of both generations have in common.
 *
 * The base of both `CEIEGraphicsView` classes. Hosts use those classes; there is nothing to derive from this one for.
 *
 * Inner view and legend are children of the frame. The scene has no parent; the frame deletes it. If a host deletes
 * the scene before, what would reach it is ignored from then on.
 */
class CEIECHART_EXPORT ChartFrame : public QFrame {
public:
    ~ChartFrame() override;

    /*! \brief Empties the list of gamuts. Standards, the common area and the points stay. */
    void clear();
    /*!
     * \brief Sets the mark ColorTriangleObject::isShow() of the gamut at \a index of the list and hands the list to
     *        the scene. An index outside the list is ignored.
     *
     * The mark is for the host: every gamut of the list is drawn. In a legacy chart, handing over the list also undoes
     * what has been edited.
     */
    void setColorGamutVisible(int index, bool shown);
    /*!
     * \brief Replaces the list of gamuts.
     *
     * The current chart shows it after the next updateLanGamut() or resize. The legacy chart expects the original and
     * the target, in this order.
     */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    /*! \brief The list of gamuts as last set. Edits made on the chart are in the signals only. */
    QList<ColorTriangleObject> lsColorTriangleObject() const;

    /*! \brief Hands colour-temperature points (CIE 1931 x, y) to the scene, which renders the bare diagram. */
    void setLsColorTempertureValuePoints(const QList<QPointF> &points);
    /*! \brief The colour-temperature points as last set. */
    QList<QPointF> lsColorTempertureValuePoints() const;
    /*!
     * \brief Hands measurement points (CIE 1931 x, y) and their colours, one per point, to the scene.
     *
     * The legacy chart shows them as dots over the picture; a point without a colour, or with an invalid one, is
     * white. The current chart keeps them for the host and draws none.
     */
    void setOtherPoints(QList<QPointF> points, QList<QColor> colors);
    /*! \brief The measurement points as the scene holds them. */
    QList<QPointF> getOtherPoints() const;
    /*! \brief The colours of the measurement points as the scene holds them. */
    QList<QColor> getOtherPointsColor() const;

    /*!
     * \brief Sets the picture's width in pixels, fixes the inner view's width at two more, and renders the bare
     * diagram.
     *
     * No width is refused. A width that no picture can have gives an empty chart.
     */
    void setImageWidth(int width);
    /*! \brief As setImageWidth(), for the height. */
    void setImageHeight(int height);
    /*! \brief The width last set, in pixels; 512 at first. */
    int imageWidth() const;
    /*! \brief The height last set, in pixels; 512 at first. */
    int imageHeight() const;
    /*! \brief Switches axes and grid, in a legacy chart the Planckian locus too, and renders the bare diagram. */
    void setIsDrawCoordinate(bool draw);
    /*!
     * \brief Stores the switch and renders the bare diagram. No picture depends on it.
     *
     * The current chart's picture of gamuts always has the Planckian locus, its bare diagram never. In a legacy chart
     * the locus is drawn together with the axes.
     */
    void setIsDrawBBRLine(bool draw);
    /*!
     * \brief Stores the switch and renders the bare diagram.
     *
     * A legacy x, y chart draws the wavelengths when it is on. The current chart's picture of gamuts always has them,
     * its bare diagram never, nor has a legacy u′, v′ chart.
     */
    void setIsDrawWaveLength(bool draw);
    /*! \brief The switch of setIsDrawCoordinate(); on at first. */
    bool isDrawCoordinate() const;
    /*! \brief The switch of setIsDrawBBRLine(); on at first. */
    bool isDrawBBRLine() const;
    /*! \brief The switch of setIsDrawWaveLength(); on at first. */
    bool isDrawWaveLength() const;

    /*!
     * \brief Whether drawing the handles resets the target's white point to (0, 0) and its luminance to 0. On at first.
     */
    void setDrawColorTPoint(bool draw);
    /*! \brief The scene's switch of setDrawColorTPoint(); false once the scene has been deleted. */
    bool isDrawColorTPoint() const;
    /*!
     * \brief Whether moving a primary leaves the target's white where it is and rebalances the luminances. Off at
     *        first.
     *
     * The white is held where it is, so use it together with setDrawColorTPoint(false).
     */
    void setColorTempertureChecked(bool checked);
    /*! \brief Whether the target's primaries can be moved; they can at first. */
    void setRGBPointEnable(bool enable);
    /*! \brief Whether a mouse press may start an edit; it may at first. In the current chart no press does. */
    void setUseMouseOpertator(bool enable);

protected:
    class Private;

    ChartFrame(std::unique_ptr<Private> own, QWidget *parent);

    const std::unique_ptr<Private> d;

private:
    Q_DISABLE_COPY(ChartFrame)
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTFRAME_H
