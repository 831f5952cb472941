// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CEIEGRAPHICSSCENE_H
#define CEIECHART_SCENE_CEIEGRAPHICSSCENE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/scenesignals.h>

#include <QGraphicsScene>

#include <memory>

namespace NewCEIE {

class DrawCEIPicture;

/*!
 * \brief The chart's scene: shows the rendered diagram as its background, keeps the gamuts and moves the target's
 * handles.
 *
 * In this generation the mouse edits nothing and the handles are drawn only when a host calls refreshArea() with a
 * painter in scene coordinates. Reports are emitted synchronously, from inside the operation that causes them.
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
    explicit CEIEGraphicsScene(QList<ColorTriangleObject> triangles);
    ~CEIEGraphicsScene() override;

    using TargetEditing::setLsColorTriangleObject;
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
    //! Marks CMY points (chromaticities) from the next rendering on.
    void setCMYPointData(const QList<QPointF> &points);
    //! The renderer's colours from the next rendering on: \a line of edge and axes, \a picture of the whole.
    void setGraphColor(QColor line, QColor picture);
    //! The colour behind the horseshoe from the next rendering on.
    void setBackgroudColor(const QColor &color);
    //! Does nothing.
    void setTargetItemVisable(bool visible);
    //! Converts \a p in place from chromaticity to scene coordinates.
    void chromaToCurCoordinate(QPointF &p);

Q_SIGNALS:
    //! A primary has been placed; carries the target after the change.
    void signal_colorGamutValueChanged(ColorTriangleObject colorTriangleObject);
    //! Declared for hosts; nothing in the scene emits it.
    void signal_colorGamutWhiteChanged(ColorTriangleObject colorTriangleObject);
    //! The white-point handle has been drawn; whole kelvin.
    void signal_colorTempertrueValueChang(double colorTempertureValue);
    //! The space bar asks for an open hand.
    void signal_mouseCursorChange(QCursor mouseCursorStyle);
    //! A white-point request has been accepted.
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
    QPointF ChromaToCurCoordinate(QPointF chroma);
    QPointF CurCoordinateToChroma(QPointF position);
    bool CheckOriginalAndTarget(
        ColorTriangleObject original, ColorTriangleObject target, baseCommon::LEDColorType &beyond);
    bool SetEllipseDieplay(
        QPainter *painter, QPointF chroma, QSize size, NewCEIE::TabSelectedType tab, NewCEIE::ColorArea area);

    QPointF toScene(const QPointF &chroma) override { return ChromaToCurCoordinate(chroma); }
    QPointF toChroma(const QPointF &position) override { return CurCoordinateToChroma(position); }
    QPointF toImage(const QPointF &chroma) override;
    QImage *renderPicture() override;
    void drawFurtherSigns(QPainter *) override { }
    QPolygonF imagePolygon(const TrianglePoint &triangle);

    std::unique_ptr<DrawCEIPicture> m_renderer;
    QList<ColorTriangleObject> m_standards;
    QList<QRectF> m_vertexRectangles;
};

} // namespace NewCEIE

#endif
