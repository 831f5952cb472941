// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENEMODEL_H
#define CEIECHART_TESTS_REFERENCE_SCENEMODEL_H

#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <reference/mapping.h>

#include <QCursor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class QPainter;

/*!
 * \brief The behaviour of the scenes, written step by step and without Qt's event loop, widgets or pictures. The tests
 * compare the scenes with it, signal by signal.
 *
 * The operations have the names of those of the scenes. Only the value types and the colour calculations are shared
 * with the library.
 */
namespace reference {

// The payloads of signals as text, with numbers to the last bit: equal texts mean equal payloads.
QString describe(double value);
QString describe(const QPointF &point);
QString describe(const TrianglePoint &points);
QString describe(const ColorTriangleObject &triangle);
QString describe(const QList<ColorTriangleObject> &triangles);
QString describe(const QList<QPointF> &points);
QString describe(const TargetInfoChangedEventArgs &report);
QString describe(const TriangleObjecIinitializedEventArgs &report);
QString describe(const QCursor &cursor);

/*! \brief The first difference between \a actual and \a expected, as a line of text; empty if they are equal. */
QString difference(const QString &what, const QString &actual, const QString &expected);

PointF narrowed(const QPointF &point);
bool isInsidePolygon(const PointF &point, const std::vector<PointF> &polygon);
bool isInsideTriangle(const PointF &point, const PointF &a, const PointF &b, const PointF &c);

/*! \brief The polygons of the colour regions: 0 red, 1 green, 2 blue. */
const std::vector<PointF> &fence(int region);

/*!
 * \brief The colour region that contains \a point, tested in this order: 0 red, 1 green, 2 blue; 3 if there is none.
 */
int fenceRegion(const PointF &point);

/*! \brief The state of a scene between events. */
struct SceneState {
    QPointF requested;
    QPointF current;
    QPointF saved;
    int selectedRegion = 3;
    int selectedVertex = 0;
    int selectedTab = 0;
    bool vertexSelected = false;
    bool centreSelected = false;
    bool whiteMoved = false;
    bool outOfBounds = false;
    bool hand = false;
    bool magnifier = false;
    float zoom = 1.0F;
};

QString describe(const SceneState &state);

/*! \brief The model of NewCEIE::CEIEGraphicsScene, and of the behaviour that the legacy scene shares. */
class SceneModel {
public:
    explicit SceneModel(const QList<ColorTriangleObject> &triangles);
    virtual ~SceneModel();
    Q_DISABLE_COPY(SceneModel)

    /*! \brief The signals emitted since the last call, in order. */
    QStringList takeSignals();

    /*! \brief Whether a repaint of the whole scene has been requested since the last call. */
    bool takeUpdate();

    // Data
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles);
    void setAllTriangles(
        const QList<ColorTriangleObject> &triangles); //!< like the function of the scene with six arguments
    void setImageWidth(int width);
    void setImageHeight(int height);
    void setRGBPointEnable(bool enable);
    void setDrawColorTPoint(bool on);
    void setOtherPoints() { update(); }
    void setColorTempertureChecked(bool on) { m_temperatureChecked = on; }
    void setIsMouseOper(bool on) { m_mouseEditing = on; }
    void setFunctionKeyMode(int mode) { m_functionKeyMode = mode; }
    void setEditMode(int mode) { m_editMode = mode; }
    void setRequestedPoint(const QPointF &point) { m_state.requested = point; }
    void restoreAtNextKey(const QPointF &point);
    void selectCentre(const QPointF &handle);
    virtual void getBitMap();

    const QList<ColorTriangleObject> &triangles() const { return m_triangles; }
    int imageWidth() const { return m_imageWidth; }
    int imageHeight() const { return m_imageHeight; }
    bool isDrawColorTPoint() const { return m_isDrawColorTPoint; }
    bool isMouseOper() const { return m_mouseEditing; }
    const SceneState &state() const { return m_state; }
    const QRectF &sceneRectangle() const { return m_sceneRectangle; }

    // Coordinates
    virtual QPointF toScene(const QPointF &chroma) const;
    virtual QPointF toChroma(const QPointF &position) const;
    void CoordinateTransformation();

    // Constraints
    bool CheckOriginalAndTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond);
    int GetColourTemperatureValue(const QPointF &white) const;
    void SetCentreTriangle();
    void SetControlGraphData();
    void MoveEllipseSign();
    void RefreshEllipseSignPosition();
    void AddLedColorAndPoint();
    void MoveCentreTriangle();
    void MouseClickAire(const QPointF &position);
    void MouseSelectedPoint(const QPointF &position);

    bool hasPicture() const { return m_hasPicture; }

    /*!
     * \brief Whether \a position selects the handle of the white point.
     *
     * The result is uncertain near the edge of the square, and if the handle was last painted at another position than
     * it would be now: a scene repaints before the next press.
     */
    enum Pick { Missed, Picked, Uncertain };
    Pick pickWhite(const QPointF &position) const;

    /*! \brief The position of the handle of the white point, if there is a target. */
    QPointF whiteHandle() const;

    // Keyboard
    void keyPress(int key);
    void keyRelease(int key);
    void SpeedUpThePace(float &step, int key);
    void ClearSpeedUpStep();
    void SetFunctionKeyShortcuts();

    // Painting
    bool refreshArea(QPainter &painter);
    bool DrawThreeEllipseSign(QPainter &painter) const;
    void DrawEllipseSign(QPainter &painter, const QPointF &chroma, int size) const;

protected:
    void record(const QString &signal, const QString &payload);
    void update() { m_updated = true; }
    void emitTargetInfo();
    void refreshTargetReport();
    virtual void paintWhiteHandle();
    void scaleImage();
    void drawPicture();

    bool isTargetReady() const { return m_triangles.size() >= 2; }
    TrianglePoint &target() { return m_triangles[1].trianglePoint(); }
    const TrianglePoint &target() const { return m_triangles[1].trianglePoint(); }
    bool isInsideOriginal(const QPointF &position) const;
    bool isInsideTarget(const QPointF &position) const;

    QList<ColorTriangleObject> m_triangles;
    Mapping m_mapping;
    TrianglePoint m_originalVertices;
    TrianglePoint m_targetReference;
    SceneState m_state;
    QPointF m_centreHandle;
    QPointF m_centreHandleChroma;
    bool m_centreHandlePainted = false;
    bool m_listReplacedSincePainting = false;
    bool m_hasPicture = false;
    QRectF m_sceneRectangle;
    int m_imageWidth = 672;
    int m_imageHeight = 728;
    int m_pictureWidth = 0;
    int m_pictureHeight = 0;
    int m_editMode = 0;
    bool m_isDrawColorTPoint = true;
    bool m_temperatureChecked = false;
    bool m_mouseEditing = true;
    bool m_handOutlivesPress = false;

private:
    void rebalance();
    bool SetEllipseDieplay(QPainter &painter, const QPointF &chroma, int size, int tab, int area) const;
    void nudge(int key, float step);

    QStringList m_signals;
    bool m_updated = false;
    double m_originX = 0.0;
    double m_originY = 0.0;
    int m_unitLength = 100;
    float m_zoomLimit = 1.5F;
    float m_zoomStep = 0.1F;
    int m_functionKeyMode = 0;
    int m_pressCount = 0;
    int m_acceleration = 0;
    int m_lastKey = Qt::Key_unknown;
    bool m_restorePending = false;

    ColorTriangleObject m_reportTriangle;
    double m_reportTemperature = 0.0;
    bool m_reportReasonable = false;
};

/*! \brief The model of the legacy CEIEGraphicsScene with the x, y diagram. */
class LegacySceneModel : public SceneModel {
public:
    explicit LegacySceneModel(const QList<ColorTriangleObject> &triangles);

    QPointF toScene(const QPointF &chroma) const override;
    QPointF toChroma(const QPointF &position) const override;
    void getBitMap() override;

    // Moves and releases return whether they accept the event and request a repaint at their end.
    void mousePress(Qt::MouseButton button, const QPointF &position);
    bool mouseMove(const QPointF &position);
    bool mouseRelease(Qt::MouseButton button);

    bool isLeftButtonDown() const { return m_leftButton; }

protected:
    void paintWhiteHandle() override;

private:
    bool drag(); //!< false if the handling of the move ends there

    QPointF m_lastHover;
    bool m_buttonDown = false;
    bool m_leftButton = false;
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENEMODEL_H
