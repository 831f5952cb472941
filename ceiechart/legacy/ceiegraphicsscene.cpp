// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>

#include <gamutmodel/diagram.h>

#include <QGraphicsView>
#include <QKeyEvent>

CEIEGraphicsScene::CEIEGraphicsScene(DrawCEIPicture::CEIEType type, QList<ColorTriangleObject> triangles)
    : m_type(type)
    , m_renderer(type, nullptr)
{
    begin(triangles);
}

CEIEGraphicsScene::~CEIEGraphicsScene() = default;

void CEIEGraphicsScene::setMeasureValuePoints(const QList<QPointF> &points)
{
    m_measurePoints = points;
}

QList<QPointF> CEIEGraphicsScene::getMeasureValuePoints()
{
    return m_measurePoints;
}

void CEIEGraphicsScene::setGraphColor(QColor line, QColor background)
{
    m_renderer.setGraphColor(line, background);
}

QImage *CEIEGraphicsScene::renderPicture()
{
    QImage *picture = nullptr;
    if (m_type == DrawCEIPicture::UvDiagram) {
        m_renderer.setMeasurePoints(m_measurePoints);
        picture = m_renderer.drawCEIEPicture(
            imageWidth(), imageHeight(), isDrawCoordinate(), isDrawCoordinate(), isDrawWaveLength(), QList<QPointF>());
    } else {
        picture = m_renderer.drawCEIPicture(
            imageWidth(), imageHeight(), isDrawCoordinate(), isDrawCoordinate(), isDrawWaveLength(), QList<QPointF>());
    }
    setSceneRect(0, 0, imageWidth(), imageHeight());
    return picture;
}

QPointF CEIEGraphicsScene::toDiagram(const QPointF &chroma)
{
    if (m_type != DrawCEIPicture::UvDiagram) {
        return chroma;
    }
    double u = 0.0;
    double v = 0.0;
    DrawCEIPicture::xyconvertuv(chroma.x(), chroma.y(), u, v);
    return QPointF(u, v);
}

QPointF CEIEGraphicsScene::toImage(const QPointF &chroma)
{
    return m_renderer.CoordinateTransformation(toDiagram(chroma));
}

QPointF CEIEGraphicsScene::toChroma(const QPointF &position)
{
    const QPointF shown = m_renderer.CurCoordinateToChroma(position);
    if (m_type != DrawCEIPicture::UvDiagram) {
        return shown;
    }
    const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1976, {shown.x(), shown.y()});
    return QPointF(xy.x, xy.y);
}

bool CEIEGraphicsScene::CheckOriginalAndTarget(
    const ColorTriangleObject &original, const ColorTriangleObject &target, const baseCommon::LEDColorType &)
{
    baseCommon::LEDColorType beyond = baseCommon::None;
    return checkTarget(original, target, beyond);
}

bool CEIEGraphicsScene::SetEllipseDieplay(
    QPainter *painter, QPointF chroma, QSize size, TabSelectedType tab, ColorArea area)
{
    return displayEllipse(painter, chroma, size, tab, area);
}

void CEIEGraphicsScene::drawFurtherSigns(QPainter *painter)
{
    IsMagnifyEllispse(painter);
    DrawCenterEllipse(painter);
    DrawOtherPoint(painter);
}

void CEIEGraphicsScene::drawBackground(QPainter *painter, const QRectF &)
{
    drawPicture(painter, sceneRect(), views().isEmpty() ? sceneRect().size().toSize() : views().constFirst()->size());
    DrawEllipseSignPosition(painter);
    painter->save();
    refreshArea(painter);
    painter->restore();
}

void CEIEGraphicsScene::keyPressEvent(QKeyEvent *event)
{
    keyPressed(event->key());
    // The hand stays while the space bar is held.
    m_hand = event->key() == Qt::Key_Space;
}

void CEIEGraphicsScene::keyReleaseEvent(QKeyEvent *event)
{
    keyReleased(event->key());
}
