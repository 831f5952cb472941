// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CEIEGRAPHICSSCENE_H
#define CEIECHART_SCENE_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/scene/targetscene.h>

#include <QCursor>

namespace NewCEIE {

/*!
 * \brief The scene of the current chart: shows the diagram as its background and keeps the gamuts.
 *
 * In this generation the mouse edits nothing, and handles are drawn only if the host calls refreshArea() with a painter
 * in scene coordinates. Signals are emitted synchronously, by the function that causes them.
 *
 * \code
 * NewCEIE::CEIEGraphicsScene scene({original, target});
 * scene.setImageWidth(600);
 * scene.setImageHeight(600);
 * QObject::connect(&scene, &NewCEIE::CEIEGraphicsScene::signal_targetInfoChanged, &window, &Window::showTarget);
 * \endcode
 *
 * The scene owns its renderer and its picture. A view does not own its scene; the chart NewCEIE::CEIEGraphicsView does.
 * Chromaticities are CIE 1931 x, y (unitless). Use a scene on the GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsScene : public ceiechart::TargetScene {
    Q_OBJECT

public:
    /*!
     * \brief Creates a scene with \a triangles: original, target.
     *
     * With two or more gamuts the constructor emits signal_triangleObjecIinitialized(), before a host can connect to
     * it. No picture is rendered before getBitMap() or a setter that renders.
     */
    explicit CEIEGraphicsScene(QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    using TargetScene::setLsColorTriangleObject;
    /*!
     * \brief Replaces the gamuts and renders them.
     *
     * \param triangles the gamuts: original, target and others
     * \param second the standard gamuts
     * \param first, other the gamuts whose common area shows the horseshoe. If either is empty, the horseshoe is not
     * drawn.
     * \param flag is ignored
     * \param text if it is not empty, the picture has no horseshoe and no gamuts
     */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles, const QList<ColorTriangleObject> &second,
        const TrianglePoint &first, const TrianglePoint &other, bool flag, const QString &text);
    /*!
     * \brief Sets the CMY points (CIE 1931 x, y) of the next picture of gamuts. They are converted to pixels at once;
     * set the size first.
     */
    void setCMYPointData(const QList<QPointF> &points);
    /*! \brief The points of setCMYPointData(). */
    QList<QPointF> CMYPointData() const;
    /*! \brief Sets the background colour of the horseshoe in the next picture of gamuts. */
    void setBackgroudColor(const QColor &color);
    /*! \brief The background colour of the horseshoe that was set by setBackgroudColor(). */
    QColor backgroudColor() const;
    /*!
     * \brief Sets whether what renders the bare diagram renders the last gamuts and CMY points instead; false by
     * default.
     *
     * That is getBitMap() and with it a new size, a layer switch and new colour-temperature points. With gamuts that
     * were set before, the next rendering shows them. The picture is the one that setLsColorTriangleObject() gives at
     * this size.
     */
    void setGamutsKept(bool kept);
    /*! \brief The switch of setGamutsKept(). */
    bool isGamutsKept() const;
    /*! \brief Does nothing; kept for hosts that call it. */
    void setTargetItemVisable(bool visible);
    /*! \brief Converts \a p from CIE 1931 x, y to scene coordinates. */
    void chromaToCurCoordinate(QPointF &p);

Q_SIGNALS:
    /*! \brief Emitted when a primary of the target has been set; \a colorTriangleObject is the changed target. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Never emitted in this generation. */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Emitted when the white-point handle has been drawn, with its colour temperature in whole kelvin. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Emitted when the space bar is pressed, with an open hand. */
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    /*! \brief Emitted when a move of the white point has been accepted. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*!
     * \brief Emitted by the constructor, with the original and the target and whether the target lies inside the
     * original.
     */
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;

private:
    QPointF ChromaToCurCoordinate(QPointF chroma);
    QPointF CurCoordinateToChroma(QPointF position);
    bool CheckOriginalAndTarget(
        ColorTriangleObject original, ColorTriangleObject target, baseCommon::LEDColorType &beyond);
    bool SetEllipseDieplay(
        QPainter *painter, QPointF chroma, QSize size, NewCEIE::TabSelectedType tab, NewCEIE::ColorArea area);

    class Private;
    Private &own() const;

    using TargetScene::AddLedColorAndPoint;
    using TargetScene::ClearSpeedUpStep;
    using TargetScene::CompareBrightValue;
    using TargetScene::ComparePointPosition;
    using TargetScene::CompareSetBrightValueIsValid;
    using TargetScene::convertPointF;
    using TargetScene::CoordinateTransformation;
    using TargetScene::DrawCenterEllipse;
    using TargetScene::DrawEllipseSign;
    using TargetScene::DrawEllipseSignPosition;
    using TargetScene::DrawOtherPoint;
    using TargetScene::DrawThreeEllipseSign;
    using TargetScene::DrawVertexSign;
    using TargetScene::GetColourTemperatureValue;
    using TargetScene::GetEllipsePoint;
    using TargetScene::GetIntersectionPoint;
    using TargetScene::GetOriginalWhiteLight;
    using TargetScene::GetPointInFences;
    using TargetScene::GetSelectedEllipseSign;
    using TargetScene::GetStraightLine;
    using TargetScene::IsClickEllipseSign;
    using TargetScene::IsEllipseAire;
    using TargetScene::IsMagnifyEllispse;
    using TargetScene::IsSelectedCenterEllipes;
    using TargetScene::LimitInRectangle;
    using TargetScene::MouseClickAire;
    using TargetScene::MouseSelectedPoint;
    using TargetScene::MoveCentreTriangle;
    using TargetScene::MoveEllipseSign;
    using TargetScene::RefreshEllipseSignPosition;
    using TargetScene::round;
    using TargetScene::SetCentreTriangle;
    using TargetScene::SetControlGraphData;
    using TargetScene::SetFunctionKeyShortcuts;
    using TargetScene::SolveLinearSystem;
    using TargetScene::SpeedUpThePace;
};

} // namespace NewCEIE

#endif // CEIECHART_SCENE_CEIEGRAPHICSSCENE_H
