// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_TARGETSCENE_P_H
#define CEIECHART_SCENE_TARGETSCENE_P_H

#include <ceiechart/scene/chartpicture_p.h>
#include <ceiechart/scene/handle_p.h>
#include <ceiechart/scene/keystepper_p.h>
#include <ceiechart/scene/targetscene.h>

#include <QRectF>

namespace ceiechart {

/*!
 * \brief What a scene keeps between operations, and how a generation says where chromaticities lie and where its
 *        reports go.
 */
class TargetScene::Private {
public:
    enum EditMode { EverythingEditable = 0, WhiteLocked = 1, VerticesLocked = 2 };
    enum FunctionKeyMode { NoFunction = 0, ZoomIn = 1, ZoomOut = 2, MagnifierHand = 3 };

    Private() = default;
    virtual ~Private();

    // What a generation adds
    /*! \brief Scene position of a chromaticity. */
    virtual QPointF toScene(const QPointF &chroma) = 0;
    /*! \brief Chromaticity at a scene position. */
    virtual QPointF toChroma(const QPointF &position) = 0;
    /*! \brief The diagram's own coordinates of a chromaticity, as its axes number them. */
    virtual QPointF toDiagram(const QPointF &chroma) { return chroma; }
    /*! \brief Position of a chromaticity in the picture, in pixels. */
    virtual QPointF toImage(const QPointF &chroma) = 0;
    /*! \brief A new picture of the stored size, for which the scene's rectangle is set. */
    virtual QImage *renderPicture() = 0;
    virtual void setGraphColor(const QColor &line, const QColor &picture) = 0;
    /*! \brief What refreshArea() draws besides the vertex handles. */
    virtual void drawFurtherSigns(QPainter *) { }

    virtual void reportGamutValue(const ColorTriangleObject &target) = 0;
    virtual void reportColorTemperature(double kelvin) = 0;
    virtual void reportCursor(const QCursor &cursor) = 0;
    virtual void reportTarget(const TargetInfoChangedEventArgs &report) = 0;
    virtual void reportInitialized(const TriangleObjecIinitializedEventArgs &report) = 0;

    // Set-up and reports, in targetscene.cpp
    /*! \brief The last step of a scene's constructor. */
    void begin(const QList<ColorTriangleObject> &initialTriangles);
    void drawPicture(QPainter *painter);
    bool checkTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond);
    void refreshTargetReport();
    bool hasTarget() const { return triangles.size() >= 2; }
    TrianglePoint &targetPoints() { return triangles[1].trianglePoint(); }
    QPointF targetPosition(Handle handle);

    // Hit tests, in hittests.cpp
    int handleHitSide() const;
    QPointF whiteHandlePosition();

    // Keyboard, in keyboard.cpp
    void keyPressed(int key);
    void keyReleased(int key);

    // Handles, in handles.cpp
    bool displayEllipse(
        QPainter *painter, QPointF chroma, QSize size, std::optional<Handle> tab, std::optional<Handle> area);

    TargetScene *q = nullptr;

    // Picture
    ChartPicture picture;
    int imageWidth = 672;
    int imageHeight = 728;
    bool drawCoordinate = true;
    bool drawPlanckianLocus = true;
    bool drawWavelengths = true;
    double originX = 0.0; // scene position of chromaticity (0, 0)
    double originY = 0.0;
    int unitLength = 100; // scene pixels per 1.0 of chromaticity
    QRectF backgroundTarget;

    // Gamuts and points
    QList<ColorTriangleObject> triangles;
    /*! \brief Chromaticities after construction, image positions after a setter: compared as they stand. */
    TrianglePoint originalVertices;
    TrianglePoint targetVertices;
    QList<QPointF> colorTemperaturePoints;
    QList<QPointF> otherPoints;
    QList<QColor> otherPointColors;

    // Editing
    EditMode editMode = EverythingEditable;
    bool drawColorTPoint = true;
    bool mouseAllowed = true;
    bool whiteHeld = false;
    QPointF requestedPoint;
    QPointF currentPoint;
    QPointF savedPoint;
    Region selectedRegion = NoRegion;
    Handle selectedVertex = Handle::None; //!< the primary that was placed last
    Handle selectedTab = Handle::None; //!< of the region that was clicked last
    Handle hovered = Handle::None;
    bool vertexSelected = false;
    bool centreSelected = false;
    bool outOfBounds = false;
    bool whiteMoved = false;
    TargetInfoChangedEventArgs targetReport;

    // Keyboard, zoom and magnifier
    KeyStepper keyStepper;
    bool restorePending = false;
    bool hand = false;
    bool magnifier = false;
    int functionKeyMode = NoFunction;
    float zoom = 1.0F;

    // The white-point handle
    QPointF centreHandlePoint; // scene position at which it was last drawn
    QPointF centreHandleChroma; // where the white was when last known
    bool centreHandleDrawn = false;
    int handleTemperature = 0; // kelvin
};

} // namespace ceiechart

#endif // CEIECHART_SCENE_TARGETSCENE_P_H
