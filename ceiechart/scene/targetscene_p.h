// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_TARGETSCENE_P_H
#define CEIECHART_SCENE_TARGETSCENE_P_H

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/render/diagramrenderer.h>
#include <ceiechart/scene/chartpicture_p.h>
#include <ceiechart/scene/handle_p.h>
#include <ceiechart/scene/keystepper_p.h>
#include <ceiechart/scene/targetscene.h>

#include <QCursor>
#include <QRectF>
#include <QSize>

namespace ceiechart {

/*! \brief The picture's size until a host sets another, and the size of the current scene for good. In pixels. */
constexpr QSize defaultPictureSize(672, 728);

/*!
 * \brief The state of a scene, and the functions that each generation implements: the mapping of chromaticities, the
 * rendering and the emission of signals.
 */
class Q_DECL_HIDDEN TargetScene::Private {
public:
    enum EditMode { EverythingEditable = 0, WhiteLocked = 1, VerticesLocked = 2 };

    Private() = default;
    virtual ~Private();

    // Implemented by each generation
    /*! \brief The scene position of a chromaticity. */
    virtual QPointF toScene(const QPointF &chroma) = 0;
    /*! \brief The chromaticity at a scene position. */
    virtual QPointF toChroma(const QPointF &position) = 0;
    /*! \brief The coordinates of a chromaticity in the diagram, as on its axes. */
    virtual QPointF toDiagram(const QPointF &chroma) { return chroma; }
    /*! \brief The position of a chromaticity in the picture, in pixels. */
    virtual QPointF toImage(const QPointF &chroma) = 0;
    /*! \brief Renders a new picture of the stored size and sets the scene rectangle. The caller owns the picture. */
    virtual QImage *renderPicture() = 0;
    /*! \brief Renders a new picture of what is shown, which can be more than the bare diagram. */
    virtual QImage *renderShown() { return renderPicture(); }
    /*! \brief See TargetScene::setGraphColor(). */
    virtual void setGraphColor(const QColor &line, const QColor &picture) = 0;
    /*! \brief The renderer of the pictures. */
    virtual DiagramRenderer &diagramRenderer() = 0;
    /*!
     * \brief Lets the picture that is rendered until the result ends have the memory of the one that it replaces.
     *
     * Until then, and if the rendering ends by an exception, there is no picture if the former one is large.
     */
    GivenMemory giveMemory();
    /*! \brief The chromaticity for coordinates of the diagram: the inverse of toDiagram(). */
    virtual QPointF fromDiagram(const QPointF &shown) { return shown; }
    /*! \brief Told when a host has replaced the gamuts. */
    virtual void gamutsReplaced() { }
    /*! \brief Draws over the picture what drawBackground() draws there. */
    virtual void drawOver(QPainter *) { }
    /*! \brief Draws the signs that refreshArea() draws in addition to the handles of the primaries. */
    virtual void drawFurtherSigns(QPainter *) { }

    /*! \brief Emits signal_colorGamutValueChanged(). */
    virtual void reportGamutValue(const ColorTriangleObject &target) = 0;
    /*! \brief Emits signal_colorTempertrueValueChang(). */
    virtual void reportColorTemperature(double kelvin) = 0;
    /*! \brief Emits signal_mouseCursorChange(). */
    virtual void reportCursor(const QCursor &cursor) = 0;
    /*! \brief Emits signal_targetInfoChanged(). */
    virtual void reportTarget(const TargetInfoChangedEventArgs &report) = 0;
    /*! \brief Emits signal_triangleObjecIinitialized(). */
    virtual void reportInitialized(const TriangleObjecIinitializedEventArgs &report) = 0;

    // Set-up and reports, in targetscene.cpp
    /*! \brief Stores the gamuts and reports them. The last step of the constructor of a scene. */
    void begin(const QList<ColorTriangleObject> &initialTriangles);
    /*! \brief Draws the picture as the background of the scene. */
    void drawPicture(QPainter *painter);
    /*!
     * \brief Whether all primaries of \a target lie inside \a original; \a beyond receives the first one that does not.
     */
    bool checkTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond);
    /*! \brief Updates the target report. There must be a target. */
    void refreshTargetReport();
    /*! \brief Whether there is a target gamut. */
    bool hasTarget() const { return triangles.size() >= 2; }
    /*! \brief The chromaticities and luminances of the target. There must be a target. */
    TrianglePoint &targetPoints() { return triangles[1].trianglePoint(); }
    /*! \brief The chromaticity of a primary or of the white point of the target; (0, 0) for Handle::None. */
    QPointF targetPosition(Handle handle);

    // Pictures, in scenepictures.cpp
    /*! \brief Makes \a rendered the picture, which its renderer has just drawn. Takes ownership. */
    void takePicture(QImage *rendered);
    /*! \brief Takes \a rendered and shows it. */
    void showPicture(QImage *rendered);
    /*! \brief The mapping of the picture that is shown; nothing if there is none with an extent. */
    std::optional<DiagramGeometry> pictureGeometry();

    // Hit tests, in hittests.cpp
    /*! \brief The side of the square around a handle in which it can be selected, in scene pixels. */
    int handleHitSide() const;
    /*! \brief The scene position at which the white-point handle was last drawn or, before that, would be drawn. */
    QPointF whiteHandlePosition();

    // Keyboard, in keyboard.cpp
    /*! \brief Handles a key press; \a key is a Qt::Key. */
    void keyPressed(int key);
    /*! \brief Handles a key release; \a key is a Qt::Key. */
    void keyReleased(int key);

    // Handles, in handles.cpp
    /*! \brief Draws the handle of a primary; the selected one is larger. See SetEllipseDieplay() of the scenes. */
    bool displayEllipse(
        QPainter *painter, QPointF chroma, QSize size, std::optional<Handle> tab, std::optional<Handle> area);

    TargetScene *q = nullptr;

    // Picture
    ChartPicture picture;
    int imageWidth = defaultPictureSize.width();
    int imageHeight = defaultPictureSize.height();
    bool drawCoordinate = true;
    bool drawPlanckianLocus = true;
    bool drawWavelengths = true;
    double originX = 0.0; //!< scene position of chromaticity (0, 0)
    double originY = 0.0;
    int unitLength = 100; //!< scene pixels per 1.0 of chromaticity
    QRectF backgroundTarget;

    // Gamuts and points
    QList<ColorTriangleObject> triangles;
    /*!
     * \brief Chromaticities after construction, image positions after a setter. They are compared with chromaticities
     * in both cases.
     */
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
    Handle selectedVertex = Handle::None; //!< the primary that was moved last
    Handle selectedTab = Handle::None; //!< the primary of the region in which the mouse was last pressed
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
    int functionKeyMode = TargetScene::NoFunction;
    float zoom = 1.0F;

    // The white-point handle
    QPointF centreHandlePoint; //!< scene position at which it was last drawn
    QPointF centreHandleChroma; //!< last white point of the target other than (0, 0)
    bool centreHandleDrawn = false;
    int handleTemperature = 0; //!< colour temperature in kelvin
};

} // namespace ceiechart

#endif // CEIECHART_SCENE_TARGETSCENE_P_H
