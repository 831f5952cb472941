// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H
#define CEIECHART_LEGACY_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/scenesignals.h>

#include <QGraphicsScene>

/*!
 * \brief The legacy chart's scene: shows the diagram with the handles of the target gamut and edits them with mouse
 * and keyboard.
 *
 * A left press picks the white-point handle, or else places the primary of the colour region under the pointer; a
 * drag moves what was picked, inside its bounds; the release reports the result. On the u′, v′ diagram gamuts,
 * regions and reports stay in CIE 1931 x, y: positions are converted on the way in and out, so that a handle is
 * drawn and dragged where its chromaticity lies on the diagram.
 *
 * The scene owns its renderer and its last picture. GUI thread only.
 */
class CEIECHART_EXPORT CEIEGraphicsScene : public QGraphicsScene, public ceiechart::SceneSignals<CEIEGraphicsScene> {
    Q_OBJECT

public:
    /*!
     * With two or more \a triangles (original, target) the construction emits signal_triangleObjecIinitialized().
     * Nothing is rendered before getBitMap() or a setter that calls it.
     */
    CEIEGraphicsScene(DrawCEIPicture::CEIEType type, QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    //! Drawn by the u′, v′ picture from its next rendering on; u′, v′ pairs.
    void setMeasureValuePoints(const QList<QPointF> &points);
    //! A copy of the measure points.
    QList<QPointF> getMeasureValuePoints();
    //! From the next rendering on: \a line of edge and axes, \a background of the u′, v′ picture.
    void setGraphColor(QColor line, QColor background);

Q_SIGNALS:
    //! A primary has been placed; carries the target after the change.
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    //! A drag of the held white point has ended.
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    //! The white-point handle has been drawn; whole kelvin.
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    //! The pointer has moved, or the space bar asks for an open hand.
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    //! A white-point request has been accepted, or a drag has ended.
    void signal_targetInfoChanged(TargetInfoChangedEventArgs targetInfoChangedEventArgs);
    //! The gamuts at construction, and whether the target lies inside the original.
    void signal_triangleObjecIinitialized(TriangleObjecIinitializedEventArgs triangleObjecIinitializedEventArgs);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;

private:
    //! The verdict alone: \a beyond cannot be written back.
    bool CheckOriginalAndTarget(
        const ColorTriangleObject &original, const ColorTriangleObject &target, const baseCommon::LEDColorType &beyond);
    bool SetEllipseDieplay(QPainter *painter, QPointF chroma, QSize size, TabSelectedType tab, ColorArea area);

    QPointF toScene(const QPointF &chroma) override { return toImage(chroma); }
    QPointF toChroma(const QPointF &position) override;
    QPointF toImage(const QPointF &chroma) override;
    QPointF toDiagram(const QPointF &chroma) override;
    QImage *renderPicture() override;
    void drawFurtherSigns(QPainter *painter) override;

    bool isInsideOriginal(const QPointF &position);
    void rememberMousePosition(const QPointF &position);
    void showHoverCursor(const QPointF &position);
    //! Lets what was picked follow the pointer. False when the move needs no further repaint.
    bool followPointer(const QPointF &position);

    DrawCEIPicture::CEIEType m_type;
    DrawCEIPicture m_renderer;
    QList<QPointF> m_measurePoints;

    bool m_buttonDown = false;
    bool m_leftButton = false;
    bool m_whiteInside = false;
    //! Would keep presses outside the original gamut to the colour regions. Nothing sets it.
    bool m_regionGate = false;
    QPoint m_lastMousePosition;
    QPointF m_lastHoverPosition;
};

#endif
