// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_TARGETSCENE_H
#define CEIECHART_SCENE_TARGETSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/pointf.h>

#include <QColor>
#include <QGraphicsScene>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include <memory>
#include <optional>

class QPainter;

namespace ceiechart {

/*!
 * \brief The gamuts, the picture and the handles of a chart, and the editing of the target gamut.
 *
 * The base class of both `CEIEGraphicsScene` classes. Hosts use those classes and need not derive from this one.
 *
 * Gamut 0 of the list is the original gamut, and gamut 1 is the target, which is edited. With fewer than two gamuts
 * nothing is edited. Each primary stays inside the colour region in which it was selected, and the white point stays
 * inside the target. Chromaticities are CIE 1931 x, y (unitless), luminances have the host's unit, and sizes are in
 * pixels.
 *
 * The scene owns its renderer and its picture. Invalid input is ignored, and no function reports an error. Getters are
 * not const because the pointers to members that hosts use expect it. Use a scene on the GUI thread only.
 */
class CEIECHART_EXPORT TargetScene : public QGraphicsScene {
public:
    /*! \brief What applyFunctionKey() does. */
    enum FunctionKeyMode {
        NoFunction = 0, //!< switches the magnifier off
        ZoomIn = 1, //!< enlarges the handles and switches the magnifier on
        ZoomOut = 2, //!< reduces the handles and switches the magnifier on
        MagnifierHand = 3 //!< switches the magnifier and the hand on
    };

    ~TargetScene() override;

    /*!
     * \name Gamuts and points
     * @{
     */
    /*!
     * \brief Replaces the gamuts and repaints the scene. The picture is not rendered again, and no signal is emitted.
     */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    /*! \brief A copy of the gamuts in their current state, including edits. */
    QList<ColorTriangleObject> getLsColorTriangleObject();
    /*! \brief Sets the colour-temperature points (CIE 1931 x, y) and renders the picture. */
    void setLsColorTempertureValuePoints(const QList<QPointF> &points);
    /*! \brief A copy of the colour-temperature points. */
    QList<QPointF> getLsColorTempertureValuePoints();
    /*!
     * \brief Sets the measurement points (CIE 1931 x, y) and their colours, one for each point, and repaints the scene.
     *
     * A point without a colour, or with an invalid one, is white.
     */
    void setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colours);
    /*! \brief A copy of the measurement points. */
    QList<QPointF> getOtherPoints();
    /*! \brief A copy of the colours of the measurement points. */
    QList<QColor> getOtherPointsColor();
    /*! @} */

    /*!
     * \name Picture
     * @{
     */
    /*!
     * \brief Sets the colours of the next picture.
     *
     * \param line colour of the locus edge and the axes
     * \param picture background colour: fills the picture of the current scene and the u′, v′ picture of the legacy
     * scene. The legacy x, y picture has a black background.
     */
    void setGraphColor(QColor line, QColor picture);
    /*! \brief Sets the width of the picture in pixels and renders it. With a width below 1 the picture is empty. */
    void setImageWidth(int width);
    /*! \brief Sets the height of the picture in pixels and renders it. With a height below 1 the picture is empty. */
    void setImageHeight(int height);
    /*! \brief The width of the picture in pixels; 672 by default. Each rendering multiplies it by the zoom. */
    int imageWidth();
    /*! \brief The height of the picture in pixels; 728 by default. Each rendering multiplies it by the zoom. */
    int imageHeight();
    /*!
     * \brief Sets whether axes and grid are drawn, in a legacy x, y picture also the Planckian locus, and renders the
     * picture.
     */
    void setIsDrawCoordinate(bool draw);
    /*! \brief Stores the switch and renders the picture, which does not depend on it. */
    void setIsDrawBBRLine(bool draw);
    /*!
     * \brief Sets whether the legacy x, y picture has wavelengths, and renders the picture.
     *
     * No other picture depends on the switch.
     */
    void setIsDrawWaveLength(bool draw);
    /*! \brief The switch of setIsDrawCoordinate(); true by default. */
    bool isDrawCoordinate();
    /*! \brief The switch of setIsDrawBBRLine(); true by default. */
    bool isDrawBBRLine();
    /*! \brief The switch of setIsDrawWaveLength(); true by default. */
    bool isDrawWaveLength();
    /*! \brief Renders the bare diagram. Each call first multiplies the stored size by the zoom. */
    void getBitMap();
    /*! @} */

    /*!
     * \name Picture, further operations
     * What they set is kept. Until one of them is called, pictures are as described above.
     * @{
     */
    /*!
     * \brief Sets width and height like setImageWidth() and setImageHeight(), in one rendering.
     *
     * All sizes are accepted, also invalid ones; with a width or height below 1 the picture is empty.
     */
    void setImageSize(const QSize &size);
    /*! \brief The colour of locus edge and axes that was set by setGraphColor(); white by default. */
    QColor graphLineColor() const;
    /*! \brief The background colour that was set by setGraphColor(), or its default. */
    QColor graphPictureColor() const;
    /*! \brief The colour that fills the next picture. */
    QColor pictureGround() const;
    /*!
     * \brief Sets whether pictures are drawn legibly on a light ground; see
     * ceiechart::DiagramRenderer::setLightGround().
     *
     * What is shown is rendered again, gamuts included. False by default.
     */
    void setLightGround(bool light);
    /*! \brief The switch of setLightGround(). */
    bool isLightGround() const;
    /*!
     * \brief Sets the pixels of the picture for each pixel of the scene; see
     * ceiechart::DiagramRenderer::setPixelRatio().
     *
     * What is shown is rendered again, gamuts included. 1 by default.
     */
    void setPixelRatio(double ratio);
    /*! \brief The ratio of setPixelRatio(). */
    double pixelRatio() const;
    /*!
     * \brief Sets how many threads draw the next pictures, 1 to 64; see ceiechart::DiagramRenderer::setThreadCount().
     * Nothing is rendered, as the pixels are the same. 1 by default.
     */
    void setThreadCount(int count);
    /*! \brief The count of setThreadCount(). */
    int threadCount() const;
    /*!
     * \brief Renders again what is shown, with gamuts if they are in the picture, in the stored size.
     *
     * Ignored before the first picture.
     */
    void renderAgain();

    /*!
     * \brief What the scene shows, in the size of the picture: the picture, in a legacy scene with the handles and the
     * measurement points over it.
     *
     * Emits nothing and changes nothing. A null image before the first picture.
     */
    QImage toImage();
    /*! \brief The size for which the picture was rendered, in pixels; empty before the first picture. */
    QSize pictureSize() const;
    /*! \brief Where the picture is painted, in scene coordinates, in the first view; empty if that has no height. */
    QRectF pictureRect() const;
    /*!
     * \brief The position of \a xy (CIE 1931 x, y) in the picture, in pixels of the size that was set, as lines and
     * gamuts are drawn there, but not truncated to whole pixels. The position can be outside the picture.
     *
     * Nothing if there is no picture, if it is less than 2 pixels wide or high, or for what has no position in it.
     */
    std::optional<QPointF> picturePosition(const QPointF &xy) const;
    /*! \brief The chromaticity (CIE 1931 x, y) at \a position in the picture: the inverse of picturePosition(). */
    std::optional<QPointF> chromaticityInPicture(const QPointF &position) const;
    /*! @} */

    /*!
     * \name Editing
     * @{
     */
    /*!
     * \brief Sets whether refreshArea() resets the target's white point to (0, 0), and its luminance to 0, after
     * drawing the handles. True by default.
     *
     * A host that edits or displays the white point must set it to false.
     */
    void setDrawColorTPoint(bool draw);
    /*! \brief The switch of setDrawColorTPoint(). */
    bool isDrawColorTPoint();
    /*!
     * \brief Sets whether a mouse press can start an edit, in a scene that is edited with the mouse. True by default.
     */
    void setIsMouseOper(bool allowed);
    /*! \brief The switch of setIsMouseOper(). */
    bool getIsMouseOper();
    /*!
     * \brief Sets whether moving a primary keeps the target's white point and changes the luminances instead. False by
     * default.
     *
     * setDrawColorTPoint() must be false: otherwise drawing the handles resets the white point.
     */
    void setColorTempertureChecked(bool checked);
    /*! \brief The switch of setColorTempertureChecked(). */
    bool isColorTempertureChecked() const;
    /*!
     * \brief Sets whether the primaries of the target can be moved.
     *
     * True allows moves of the primaries and of the white point. False allows moves of the white point only.
     */
    void setRGBPointEnable(bool enable);
    /*! \brief The switch of setRGBPointEnable(); true by default. */
    bool isRGBPointEnable() const;
    /*!
     * \brief Sets the FunctionKeyMode that applyFunctionKey() applies; NoFunction by default.
     *
     * With a value that is none of the modes it does nothing.
     */
    void setFunctionKeyMode(int mode);
    /*!
     * \brief Applies the mode of setFunctionKeyMode() once; for keys or buttons of the host.
     *
     * While the magnifier is on, each mouse press in a legacy scene applies the mode again instead of starting an edit.
     * The zoom starts at 1 and changes by 0.1. It can be increased until it exceeds 1.5; it can be decreased without
     * limit.
     */
    void applyFunctionKey();
    /*! @} */

    /*!
     * \brief Draws the handles with \a painter in scene coordinates.
     *
     * \return false if \a painter is null or there is exactly one gamut. Without gamuts nothing is drawn and the result
     * is true.
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
