// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <QGraphicsView>
#include <QKeyEvent>
#include <QPolygonF>

#include <algorithm>

namespace NewCEIE {

namespace {

constexpr QSize sceneSize(672, 728); // pixels, whatever the picture's size

QRectF markAround(const QPointF &position)
{
    return QRectF(position.x() - 8, position.y() - 8, 16, 16);
}

} // namespace

CEIEGraphicsScene::CEIEGraphicsScene(QList<ColorTriangleObject> triangles)
    : m_renderer(std::make_unique<DrawCEIPicture>(nullptr))
{
    begin(triangles);
}

CEIEGraphicsScene::~CEIEGraphicsScene() = default;

void CEIEGraphicsScene::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &second, const TrianglePoint &first, const TrianglePoint &other, bool flag,
    const QString &text)
{
    m_standards = second;
    setLsColorTriangleObject(triangles);

    QPolygonF common;
    if (!first.isEmpty() && !other.isEmpty()) {
        common = imagePolygon(first).intersected(imagePolygon(other));
    }

    m_vertexRectangles.clear();
    const auto target = std::find_if(
        triangles.cbegin(), triangles.cend(), [](const ColorTriangleObject &triangle) { return triangle.type() == 1; });
    if (target != triangles.cend() && !target->trianglePoint().isEmpty()) {
        const TrianglePoint &points = target->trianglePoint();
        for (const QPointF &position : {points.redPos(), points.greenPos(), points.bluePos(), points.whitePos()}) {
            m_vertexRectangles.append(markAround(toImage(position)));
        }
    }
    m_renderer->setPointData(m_vertexRectangles);
    m_picture.reset(m_renderer->drawCEIPicture(
        imageWidth(), imageHeight(), isDrawCoordinate(), triangles, second, common, flag, text));
}

QPolygonF CEIEGraphicsScene::imagePolygon(const TrianglePoint &triangle)
{
    return QPolygonF({toImage(triangle.redPos()), toImage(triangle.greenPos()), toImage(triangle.bluePos())});
}

QImage *CEIEGraphicsScene::renderPicture()
{
    QImage *picture = m_renderer->drawCEIPicture(
        imageWidth(), imageHeight(), isDrawCoordinate(), isDrawCoordinate(), isDrawWaveLength(), QList<QPointF>());
    setSceneRect(0, 0, sceneSize.width(), sceneSize.height());
    return picture;
}

void CEIEGraphicsScene::setCMYPointData(const QList<QPointF> &points)
{
    QList<QRectF> marks;
    for (const QPointF &point : points) {
        marks.append(markAround(toImage(point)));
    }
    m_renderer->setCMYPointData(marks);
}

void CEIEGraphicsScene::setGraphColor(QColor line, QColor picture)
{
    m_renderer->setGraphColor(line, picture);
}

void CEIEGraphicsScene::setBackgroudColor(const QColor &color)
{
    m_renderer->setBackgroudColor(color);
}

void CEIEGraphicsScene::setTargetItemVisable(bool) { }

void CEIEGraphicsScene::chromaToCurCoordinate(QPointF &p)
{
    p = ChromaToCurCoordinate(p);
}

QPointF CEIEGraphicsScene::ChromaToCurCoordinate(QPointF chroma)
{
    return QPointF(m_originX + m_unitLength * chroma.x(), m_originY - m_unitLength * chroma.y());
}

QPointF CEIEGraphicsScene::CurCoordinateToChroma(QPointF position)
{
    return QPointF((position.x() - m_originX) / m_unitLength, (m_originY - position.y()) / m_unitLength);
}

QPointF CEIEGraphicsScene::toImage(const QPointF &chroma)
{
    return m_renderer->CoordinateTransformation(chroma);
}

bool CEIEGraphicsScene::CheckOriginalAndTarget(
    ColorTriangleObject original, ColorTriangleObject target, baseCommon::LEDColorType &beyond)
{
    return checkTarget(original, target, beyond);
}

bool CEIEGraphicsScene::SetEllipseDieplay(
    QPainter *painter, QPointF chroma, QSize size, NewCEIE::TabSelectedType tab, NewCEIE::ColorArea area)
{
    return displayEllipse(painter, chroma, size, tab, area);
}

void CEIEGraphicsScene::keyPressEvent(QKeyEvent *event)
{
    keyPressed(event->key());
}

void CEIEGraphicsScene::keyReleaseEvent(QKeyEvent *event)
{
    keyReleased(event->key());
}

void CEIEGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::drawBackground(QPainter *painter, const QRectF &)
{
    drawPicture(painter, sceneRect(), views().isEmpty() ? sceneRect().size().toSize() : views().constFirst()->size());
}

} // namespace NewCEIE
