// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H
#define CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/scene/targetscene.h>

#include <QCursor>

/*!
 * \brief The scene of the legacy chart: shows the diagram with the handles of the target gamut, which is edited with
 * mouse and keyboard.
 *
 * A left press selects the white-point handle, or sets the primary whose colour region is under the pointer. Dragging
 * moves the selected point within its limits, and the release reports the result. Gamuts, colour regions and reports
 * are in CIE 1931 x, y (unitless) on both diagrams: on the u′, v′ diagram, positions are converted in both directions,
 * so that a handle is drawn and dragged where its chromaticity is on the diagram.
 *
 * \code
 * CEIEGraphicsScene scene(DrawCEIPicture::XyDiagram, {original, target});
 * scene.setImageWidth(600);
 * scene.setImageHeight(600);
 * QObject::connect(&scene, &CEIEGraphicsScene::signal_targetInfoChanged, &window, &Window::showTarget);
 * \endcode
 *
 * The press event is not accepted: it also reaches the widgets that contain the view. Release events are accepted, and
 * so are move events, except while the magnifier is on, while the white point is dragged, and during a drag of a
 * primary that is not allowed.
 *
 * Handles are positioned in the scene, which has the size of the picture. The picture is positioned in the view: if the
 * view is larger or smaller than the picture, the picture is centred or scaled, and the handles are not at the
 * positions of their chromaticities in it. The inner view of the chart has a fixed size, with which they differ by one
 * pixel.
 *
 * The scene owns its renderer and its picture. A view does not own its scene; the chart CEIEGraphicsView does. Use a
 * scene on the GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsScene : public ceiechart::TargetScene {
    Q_OBJECT

public:
    /*!
     * \brief Creates a scene with \a triangles (original, target) on the diagram \a type.
     *
     * With two or more gamuts the constructor emits signal_triangleObjecIinitialized(), before a host can connect to
     * it. No picture is rendered before getBitMap() or a setter that renders.
     */
    CEIEGraphicsScene(DrawCEIPicture::CEIEType type, QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    /*!
     * \brief Sets the measurement points of the next u′, v′ picture, as pairs of CIE 1976 u′, v′. An x, y picture does
     * not show them.
     */
    void setMeasureValuePoints(const QList<QPointF> &points);
    /*! \brief A copy of the measurement points of setMeasureValuePoints(). Not const, like the other getters. */
    QList<QPointF> getMeasureValuePoints();

Q_SIGNALS:
    /*! \brief Emitted when a primary of the target has been set; \a colorTriangleObject is the changed target. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*!
     * \brief Emitted when the white point has been released while setColorTempertureChecked() is set; carries the
     * target.
     */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief Emitted when the white-point handle has been drawn, with its colour temperature in whole kelvin. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief Emitted when the pointer has moved, with a cross, or when the space bar is pressed, with an open hand. */
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    /*! \brief Emitted when a move of the white point has been accepted, and when the left mouse button is released. */
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
    /*! \brief Whether all primaries of \a target lie inside \a original. \a beyond is constant and receives nothing. */
    bool CheckOriginalAndTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, const baseCommon::LEDColorType &beyond);
    bool SetEllipseDieplay(QPainter *painter, QPointF chroma, QSize size, TabSelectedType tab, ColorArea area);

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

#endif // CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H
