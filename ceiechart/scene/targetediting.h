// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_TARGETEDITING_H
#define CEIECHART_SCENE_TARGETEDITING_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/pointf.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/model/trianglepoint.h>
#include <ceiechart/scene/chartpicture.h>
#include <ceiechart/scene/keystepper.h>

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>

class QCursor;
class QPainter;

namespace ceiechart {

/*!
 * \brief What the scenes of both generations hold and do: the gamuts, the picture, the handles of the target gamut
 * and every move of them.
 *
 * Triangle 0 of the list is the original gamut, triangle 1 the target that is edited; with fewer than two triangles
 * nothing is edited. A primary stays in the colour region in which it was picked, the white point inside the
 * target. Bad input is ignored: nothing here reports an error.
 *
 * Chromaticities are CIE 1931 x, y. How they map to scene positions, and where the reports go, each scene says by
 * the hooks at the end.
 */
class CEIECHART_EXPORT TargetEditing {
public:
    /*!
     * \name Gamuts and points
     * @{
     */
    //! Replaces the gamuts and repaints. Neither re-renders nor reports.
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    //! A copy of the gamuts as they stand, edits included.
    QList<ColorTriangleObject> getLsColorTriangleObject();
    //! Stores the points and re-renders.
    void setLsColorTempertureValuePoints(const QList<QPointF> &points);
    //! A copy of the colour-temperature points.
    QList<QPointF> getLsColorTempertureValuePoints();
    //! Further measurement points, one colour per point; a point without a colour is marked in white.
    void setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colours);
    //! A copy of the further points.
    QList<QPointF> getOtherPoints();
    //! A copy of their colours.
    QList<QColor> getOtherPointsColor();
    /*! @} */

    /*!
     * \name Picture
     * @{
     */
    //! Width of the picture in pixels; re-renders at once. Below 1 there is no picture.
    void setImageWidth(int width);
    //! Height of the picture in pixels; re-renders at once. Below 1 there is no picture.
    void setImageHeight(int height);
    //! Pixels, as multiplied by the zoom at every rendering.
    int imageWidth();
    //! Pixels, as multiplied by the zoom at every rendering.
    int imageHeight();
    //! Axes and grid on or off; re-renders at once.
    void setIsDrawCoordinate(bool draw);
    //! Stored for the host; re-renders at once, but no picture depends on it.
    void setIsDrawBBRLine(bool draw);
    //! Wavelengths on or off where the picture leaves the choice; re-renders at once.
    void setIsDrawWaveLength(bool draw);
    //! \see setIsDrawCoordinate()
    bool isDrawCoordinate();
    //! \see setIsDrawBBRLine()
    bool isDrawBBRLine();
    //! \see setIsDrawWaveLength()
    bool isDrawWaveLength();
    //! Renders the picture anew. The stored size is multiplied by the zoom first, at every call.
    void getBitMap();
    /*! @} */

    /*!
     * \name Editing
     * @{
     */
    /*!
     * When set, as it is at first, refreshArea() clears the target's white point after drawing the handles. A host
     * that edits or reports the white sets it to false.
     */
    void setDrawColorTPoint(bool draw);
    //! \see setDrawColorTPoint()
    bool isDrawColorTPoint();
    //! Whether a mouse press may begin an edit, where the scene edits with the mouse at all.
    void setIsMouseOper(bool allowed);
    //! \see setIsMouseOper()
    bool getIsMouseOper();
    /*!
     * When set, the target's white is held and moving a primary rebalances luminances instead. It is the white as it
     * stands that is held, so keep it from being cleared: see setDrawColorTPoint().
     */
    void setColorTempertureChecked(bool checked);
    //! Allows (and unlocks the white point) or refuses moves of the primaries.
    void setRGBPointEnable(bool enable);
    //! Allows (and unlocks the primaries) or refuses moves of the white point.
    void setWhitePointEnable(bool enable);
    //! What SetFunctionKeyShortcuts() does: 0 nothing, 1 zoom in, 2 zoom out, 3 magnifier and hand.
    void setFunctionKeyMode(int mode);
    /*! @} */

    /*!
     * \brief Draws the handles, with \a painter in scene coordinates.
     * \return false, and nothing drawn, when there is one triangle only
     */
    bool refreshArea(QPainter *painter);

protected:
    enum EditMode { EverythingEditable = 0, WhiteLocked = 1, VerticesLocked = 2 };
    enum FunctionKeyMode { NoFunction = 0, ZoomIn = 1, ZoomOut = 2, MagnifierHand = 3 };

    TargetEditing();
    TargetEditing(const TargetEditing &) = delete;
    TargetEditing &operator=(const TargetEditing &) = delete;
    virtual ~TargetEditing();

    // Set-up and reports, in targetediting.cpp
    void begin(const QList<ColorTriangleObject> &triangles);
    void SetCentreTriangle();
    void SetControlGraphData();
    void CoordinateTransformation();
    void drawPicture(QPainter *painter, const QRectF &sceneRect, const QSize &viewSize);
    double round(double value);
    int GetColourTemperatureValue(QPointF white) const;
    void GetOriginalWhiteLight();
    bool CompareBrightValue();
    bool CompareSetBrightValueIsValid();
    bool checkTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond);
    void refreshTargetReport();

    // Moves, in targetmoves.cpp
    PointF convertPointF(QPointF point);
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

    // Hit tests, in hittests.cpp
    void MouseClickAire(QPointF position);
    bool IsClickEllipseSign(QPointF position);
    bool IsSelectedCenterEllipes(QPointF position);
    bool IsEllipseAire(QPointF position);

    // Keyboard and zoom, in keyboard.cpp
    void keyPressed(int key);
    void keyReleased(int key);
    void SpeedUpThePace(float &step, Qt::Key key);
    void ClearSpeedUpStep();
    void SetFunctionKeyShortcuts();

    // Handles, in handles.cpp
    bool DrawVertexSign(QPainter *painter);
    bool DrawThreeEllipseSign(QPainter *painter);
    bool displayEllipse(QPainter *painter, QPointF chroma, QSize size, int tab, int area);
    bool DrawEllipseSign(QPainter *painter, QPointF chroma, QSize size);
    QPointF GetEllipsePoint(QPointF chroma);

    // Marks besides the vertex handles, in marks.cpp
    void DrawCenterEllipse(QPainter *painter);
    bool IsMagnifyEllispse(QPainter *painter);
    void DrawOtherPoint(QPainter *painter);
    void DrawEllipseSignPosition(QPainter *painter);

    // Hooks
    //! Scene position of a chromaticity, and back.
    virtual QPointF toScene(const QPointF &chroma) = 0;
    virtual QPointF toChroma(const QPointF &position) = 0;
    //! The diagram's own coordinates of a chromaticity, as its axes number them.
    virtual QPointF toDiagram(const QPointF &chroma) { return chroma; }
    //! Position of a chromaticity in the picture, in pixels.
    virtual QPointF toImage(const QPointF &chroma) = 0;
    //! A new picture of the stored size, for which the scene's rectangle is set.
    virtual QImage *renderPicture() = 0;
    //! What refreshArea() draws besides the vertex handles.
    virtual void drawFurtherSigns(QPainter *painter) = 0;
    virtual void repaint() = 0;
    virtual void reportGamutValue(const ColorTriangleObject &target) = 0;
    virtual void reportColorTemperature(double kelvin) = 0;
    virtual void reportCursor(const QCursor &cursor) = 0;
    virtual void reportTarget(const TargetInfoChangedEventArgs &report) = 0;
    virtual void reportInitialized(const TriangleObjecIinitializedEventArgs &report) = 0;

    bool hasTarget() const { return m_triangles.size() >= 2; }
    TrianglePoint &targetPoints() { return m_triangles[1].trianglePoint(); }
    int handleHitSide() const;
    QPointF whiteHandlePosition();

    // Picture
    ChartPicture m_picture;
    int m_imageWidth = 672;
    int m_imageHeight = 728;
    bool m_drawCoordinate = true;
    bool m_drawPlanckianLocus = true;
    bool m_drawWavelengths = true;
    double m_originX = 0.0; // scene position of chromaticity (0, 0)
    double m_originY = 0.0;
    int m_unitLength = 100; // scene pixels per 1.0 of chromaticity
    QRectF m_backgroundTarget;

    // Gamuts and points
    QList<ColorTriangleObject> m_triangles;
    //! Chromaticities after construction, image positions after a setter: compared as they stand.
    TrianglePoint m_originalVertices;
    TrianglePoint m_targetVertices;
    QList<QPointF> m_colorTemperaturePoints;
    QList<QPointF> m_otherPoints;
    QList<QColor> m_otherPointColors;

    // Editing
    EditMode m_editMode = EverythingEditable;
    bool m_drawColorTPoint = true;
    bool m_mouseAllowed = true;
    bool m_whiteHeld = false;
    QPointF m_requestedPoint;
    QPointF m_currentPoint;
    QPointF m_savedPoint;
    int m_selectedRegion = 3;
    int m_selectedVertex = 0; // a ColorArea value
    int m_selectedTab = 0; // TabSelectedType values
    int m_hoverTab = 0;
    bool m_vertexSelected = false;
    bool m_centreSelected = false;
    bool m_outOfBounds = false;
    bool m_whiteMoved = false;
    TargetInfoChangedEventArgs m_targetReport;

    // Keyboard, zoom and magnifier
    KeyStepper m_keyStepper;
    bool m_restorePending = false;
    bool m_hand = false;
    bool m_magnifier = false;
    int m_functionKeyMode = NoFunction;
    float m_zoom = 1.0F;

    // The white-point handle
    QPointF m_centreHandlePoint; // scene position at which it was last drawn
    QPointF m_centreHandleChroma; // where the white was when last known
    bool m_centreHandleDrawn = false;
    int m_handleTemperature = 0; // kelvin
};

} // namespace ceiechart

#endif
