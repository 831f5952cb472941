// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H
#define CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/targetscene.h>

/*!
 * \brief The legacy chart's scene: shows the diagram with the handles of the target gamut and edits them with mouse
 * and keyboard.
 *
 * A left press picks the white-point handle, or else places the primary of the colour region under the pointer; a
 * drag moves what was picked, inside its bounds; the release reports the result. On the u′, v′ diagram gamuts,
 * regions and reports stay in CIE 1931 x, y: positions are converted on the way in and out, so that a handle is
 * drawn and dragged where its chromaticity lies on the diagram.
 *
 * Handles are placed in the scene, whose rectangle is that of the picture, but the picture is placed in the view
 * (scaled down, or centred, when their sizes differ). So an inner view that is not fixed to the picture's size, as
 * the chart's is, can show handles beside the places that they stand for.
 *
 * The press handler neither accepts nor ignores its event; move and release accept theirs, where they do not return
 * early.
 *
 * The scene owns its renderer and its last picture. GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsScene : public ceiechart::TargetScene {
    Q_OBJECT

public:
    /*!
     * \brief A scene of \a triangles on the diagram \a type.
     *
     * With two or more \a triangles (original, target) the construction emits signal_triangleObjecIinitialized().
     * Nothing is rendered before getBitMap() or a setter that calls it.
     */
    CEIEGraphicsScene(DrawCEIPicture::CEIEType type, QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    /*! \brief Drawn by the u′, v′ picture from its next rendering on; u′, v′ pairs. */
    void setMeasureValuePoints(const QList<QPointF> &points);
    /*! \brief A copy of the measure points. */
    QList<QPointF> getMeasureValuePoints();

Q_SIGNALS:
    /*! \brief A primary has been placed; carries the target after the change. */
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief A drag of the held white point has ended. */
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    /*! \brief The white-point handle has been drawn; whole kelvin. */
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    /*! \brief The pointer has moved, or the space bar asks for an open hand. */
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    /*! \brief A white-point request has been accepted, or a drag has ended. */
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
    /*! \brief The verdict alone: \a beyond cannot be written back. */
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
