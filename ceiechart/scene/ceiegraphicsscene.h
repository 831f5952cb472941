// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CEIEGRAPHICSSCENE_H
#define CEIECHART_SCENE_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/targetscene.h>

namespace NewCEIE {

/*!
 * \brief The chart's scene: shows the rendered diagram as its background, keeps the gamuts and moves the target's
 * handles.
 *
 * In this generation the mouse edits nothing and the handles are drawn only when a host calls refreshArea() with a
 * painter in scene coordinates. Reports are emitted synchronously, from inside the operation that causes them.
 *
 * The scene owns its renderer and its last picture. GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsScene : public ceiechart::TargetScene {
    Q_OBJECT

public:
    /*!
     * \brief A scene of \a triangles.
     *
     * With two or more \a triangles (original, target) the construction emits signal_triangleObjecIinitialized().
     * Nothing is rendered before getBitMap() or a setter that calls it.
     */
    explicit CEIEGraphicsScene(QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    using TargetScene::setLsColorTriangleObject;
    /*!
     * \brief Takes the gamuts and renders them at once.
     *
     * \param second the standard gamuts
     * \param first  with \a other, gives the common area to which the colours are confined; none when either is
     *               empty
     * \param flag   handed on to the renderer, which stores it
     * \param text   when not empty, the renderer leaves out horseshoe and gamuts
     */
    void setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles, const QList<ColorTriangleObject> &second,
        const TrianglePoint &first, const TrianglePoint &other, bool flag, const QString &text);
    /*! \brief Marks CMY points (chromaticities) from the next rendering on. */
    void setCMYPointData(const QList<QPointF> &points);
    /*! \brief The colour behind the horseshoe from the next rendering on. */
    void setBackgroudColor(const QColor &color);
    /*! \brief Does nothing. */
    void setTargetItemVisable(bool visible);
    /*! \brief Converts \a p in place from chromaticity to scene coordinates. */
    void chromaToCurCoordinate(QPointF &p);

Q_SIGNALS:
    /*! \brief A primary has been placed; carries the target after the change. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Declared for hosts; nothing in the scene emits it. */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief The white-point handle has been drawn; whole kelvin. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief The space bar asks for an open hand. */
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    /*! \brief A white-point request has been accepted. */
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    /*! \brief The gamuts at construction, and whether the target lies inside the original. */
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
