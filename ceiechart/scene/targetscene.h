// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_TARGETSCENE_H
#define CEIECHART_SCENE_TARGETSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/pointf.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/model/trianglepoint.h>

#include <QColor>
#include <QCursor>
#include <QGraphicsScene>
#include <QList>
#include <QPointF>
#include <QSize>

#include <memory>

class QPainter;

namespace ceiechart {

/*!
 * \brief What the scenes of both generations hold and do: the gamuts, the picture, the handles of the target gamut
 *        and the moves of them.
 *
 * The base of both `CEIEGraphicsScene` classes. Hosts use those classes; there is nothing to derive from this one for.
 *
 * Triangle 0 of the list is the original gamut, triangle 1 the target that is edited. With fewer than two triangles
 * nothing is edited. A primary stays in the colour region in which it was picked, the white point inside the target.
 * Chromaticities are CIE 1931 x, y. Invalid input is ignored; no operation reports an error.
 *
 * Getters are not const where hosts' pointers to members expect them so.
 */
class CEIECHART_EXPORT TargetScene : public QGraphicsScene {
public:
    ~TargetScene() override;

    /*!
     * \name Gamuts and points
     * @{
     */
    /*! \brief Replaces the gamuts and repaints. Neither re-renders nor reports. */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    /*! \brief A copy of the gamuts as they stand, edits included. */
    QList<ColorTriangleObject> getLsColorTriangleObject();
    /*! \brief Stores the colour-temperature points (CIE 1931 x, y) and re-renders. */
    void setLsColorTempertureValuePoints(const QList<QPointF> &points);
    /*! \brief A copy of the colour-temperature points. */
    QList<QPointF> getLsColorTempertureValuePoints();
    /*!
     * \brief Stores further measurement points (CIE 1931 x, y) and their colours, one per point, and repaints.
     *
     * A point without a colour, or with an invalid one, is marked in white.
     */
    void setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colours);
    /*! \brief A copy of the further points. */
    QList<QPointF> getOtherPoints();
    /*! \brief A copy of the further points' colours. */
    QList<QColor> getOtherPointsColor();
    /*! @} */

    /*!
     * \name Picture
     * @{
     */
    /*!
     * \brief Sets the renderer's colours from the next rendering on.
     *
     * \param line    of the locus edge and the axes
     * \param picture of the ground: the whole picture, in a legacy u′, v′ scene the ground around the horseshoe
     */
    void setGraphColor(QColor line, QColor picture);
    /*! \brief Sets the picture's width in pixels and re-renders. Below 1 there is no picture. */
    void setImageWidth(int width);
    /*! \brief Sets the picture's height in pixels and re-renders. Below 1 there is no picture. */
    void setImageHeight(int height);
    /*! \brief The picture's width in pixels, multiplied by the zoom at each rendering. */
    int imageWidth();
    /*! \brief The picture's height in pixels, multiplied by the zoom at each rendering. */
    int imageHeight();
    /*! \brief Switches axes and grid on or off and re-renders. */
    void setIsDrawCoordinate(bool draw);
    /*! \brief Stores the switch and re-renders. No picture depends on it. */
    void setIsDrawBBRLine(bool draw);
    /*! \brief Switches the wavelengths on or off, in pictures that have a choice, and re-renders. */
    void setIsDrawWaveLength(bool draw);
    /*! \brief The switch of setIsDrawCoordinate(); on at first. */
    bool isDrawCoordinate();
    /*! \brief The switch of setIsDrawBBRLine(); on at first. */
    bool isDrawBBRLine();
    /*! \brief The switch of setIsDrawWaveLength(); on at first. */
    bool isDrawWaveLength();
    /*! \brief Renders the picture again. Each call first multiplies the stored size by the zoom. */
    void getBitMap();
    /*! @} */

    /*!
     * \name Editing
     * @{
     */
    /*!
     * \brief Whether refreshArea() resets the target's white point to (0, 0), and its luminance to 0, after drawing
     *        the handles. On at first.
     *
     * A host that edits or reports the white point switches it off.
     */
    void setDrawColorTPoint(bool draw);
    /*! \brief The switch of setDrawColorTPoint(). */
    bool isDrawColorTPoint();
    /*! \brief Whether a mouse press may start an edit, in a scene that edits with the mouse. On at first. */
    void setIsMouseOper(bool allowed);
    /*! \brief The switch of setIsMouseOper(). */
    bool getIsMouseOper();
    /*!
     * \brief Whether the target's white is held, so that moving a primary rebalances luminances instead. Off at first.
     *
     * The white is held where it is, so use it together with setDrawColorTPoint(false).
     */
    void setColorTempertureChecked(bool checked);
    /*! \brief Whether the primaries can be moved, as they can at first. The white point can be moved either way. */
    void setRGBPointEnable(bool enable);
    /*! \brief Sets what applyFunctionKey() does: 0 magnifier off, 1 zoom in, 2 zoom out, 3 magnifier and hand. */
    void setFunctionKeyMode(int mode);
    /*!
     * \brief Applies the function-key mode once: for a host's own keys or buttons.
     *
     * While the magnifier is on, each mouse press on a legacy scene applies it again instead of starting an edit.
     * Zooming in stops at 1.5, zooming out has no limit. A mode that is none of 0 to 3 does nothing.
     */
    void applyFunctionKey();
    /*! @} */

    /*!
     * \brief Draws the handles with \a painter in scene coordinates.
     *
     * \return false when there is exactly one triangle, or no painter; nothing is drawn then. With no triangles
     *         nothing is drawn either, but the result is true.
     */
    bool refreshArea(QPainter *painter);

protected:
    class Private;

    explicit TargetScene(std::unique_ptr<Private> own);

    // Set-up and reports
    void SetCentreTriangle();
    void SetControlGraphData();
    void CoordinateTransformation();
    double round(double value);
    int GetColourTemperatureValue(QPointF white) const;
    void GetOriginalWhiteLight();
    bool CompareBrightValue();
    bool CompareSetBrightValueIsValid();
    PointF convertPointF(QPointF point);

    // Moves
    void MoveEllipseSign();
    void RefreshEllipseSignPosition();
    void AddLedColorAndPoint();
    void MoveCentreTriangle();
    void MouseSelectedPoint(QPointF position);
    bool GetPointInFences(QPointF position);
    QPointF LimitInRectangle(QPointF position);
    void GetSelectedEllipseSign(QPointF position);
    bool GetIntersectionPoint(QPointF edgeFrom, QPointF edgeTo, QPointF position, QPointF vertex);
    bool GetStraightLine(QPointF p, QPointF q, double &k, double &b);
    bool SolveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result);
    QPointF ComparePointPosition(QPointF point, QPointF edgeFrom, QPointF edgeTo);

    // Hit tests
    void MouseClickAire(QPointF position);
    bool IsClickEllipseSign(QPointF position);
    bool IsSelectedCenterEllipes(QPointF position);
    bool IsEllipseAire(QPointF position);

    // Keyboard and zoom
    void SpeedUpThePace(float &step, Qt::Key key);
    void ClearSpeedUpStep();
    void SetFunctionKeyShortcuts();

    // Handles
    bool DrawVertexSign(QPainter *painter);
    bool DrawThreeEllipseSign(QPainter *painter);
    bool DrawEllipseSign(QPainter *painter, QPointF chroma, QSize size);
    QPointF GetEllipsePoint(QPointF chroma);

    // Marks besides the vertex handles
    void DrawCenterEllipse(QPainter *painter);
    bool IsMagnifyEllispse(QPainter *painter);
    void DrawOtherPoint(QPainter *painter);
    void DrawEllipseSignPosition(QPainter *painter);

    const std::unique_ptr<Private> d;

private:
    Q_DISABLE_COPY(TargetScene)
};

} // namespace ceiechart

#endif // CEIECHART_SCENE_TARGETSCENE_H
