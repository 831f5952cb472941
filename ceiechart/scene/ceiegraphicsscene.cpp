// SPDX-License-Identifier: MIT
#include <ceiechart/model/gamutkind.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/scene/scenesignals_p.h>

#include <QKeyEvent>
#include <QPolygonF>

#include <algorithm>

namespace NewCEIE {

namespace {

QRectF markAround(const QPointF &position)
{
    return QRectF(position.x() - 8, position.y() - 8, 16, 16);
}

} // namespace

class Q_DECL_HIDDEN CEIEGraphicsScene::Private
    : public ceiechart::SceneSignals<CEIEGraphicsScene, ceiechart::TargetScene::Private> {
public:
    QPointF toScene(const QPointF &chroma) override
    {
        return QPointF(originX + unitLength * chroma.x(), originY - unitLength * chroma.y());
    }

    QPointF toChroma(const QPointF &position) override
    {
        return QPointF((position.x() - originX) / unitLength, (originY - position.y()) / unitLength);
    }

    QPointF toImage(const QPointF &chroma) override { return renderer.CoordinateTransformation(chroma); }

    QImage *renderPicture() override
    {
        QImage *rendered = renderer.drawCEIPicture(
            imageWidth, imageHeight, drawCoordinate, drawCoordinate, drawWavelengths, QList<QPointF>());
        q->setSceneRect(0, 0, ceiechart::defaultPictureSize.width(), ceiechart::defaultPictureSize.height());
        return rendered;
    }

    void setGraphColor(const QColor &line, const QColor &ground) override { renderer.setGraphColor(line, ground); }

    QPolygonF imagePolygon(const TrianglePoint &triangle)
    {
        return QPolygonF({toImage(triangle.redPos()), toImage(triangle.greenPos()), toImage(triangle.bluePos())});
    }

    DrawCEIPicture renderer{nullptr};
    QList<ColorTriangleObject> standards;
    QList<QRectF> vertexRectangles;
};

CEIEGraphicsScene::CEIEGraphicsScene(QList<ColorTriangleObject> triangles)
    : TargetScene(std::make_unique<Private>())
{
    d->begin(triangles);
}

CEIEGraphicsScene::~CEIEGraphicsScene() = default;

CEIEGraphicsScene::Private &CEIEGraphicsScene::own() const
{
    return static_cast<Private &>(*d);
}

void CEIEGraphicsScene::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &second, const TrianglePoint &first, const TrianglePoint &other, bool flag,
    const QString &text)
{
    Private &scene = own();
    scene.standards = second;
    setLsColorTriangleObject(triangles);

    QPolygonF common;
    if (!first.isEmpty() && !other.isEmpty()) {
        // Positions are whole pixels within the range of int, which the clipper can take.
        common = scene.imagePolygon(first).intersected(scene.imagePolygon(other));
    }

    scene.vertexRectangles.clear();
    const auto target = std::find_if(triangles.cbegin(), triangles.cend(),
        [](const ColorTriangleObject &triangle) { return triangle.type() == ceiechart::TargetGamut; });
    if (target != triangles.cend() && !target->trianglePoint().isEmpty()) {
        const TrianglePoint &points = target->trianglePoint();
        for (const QPointF &position : {points.redPos(), points.greenPos(), points.bluePos(), points.whitePos()}) {
            scene.vertexRectangles.append(markAround(scene.toImage(position)));
        }
    }
    scene.renderer.setPointData(scene.vertexRectangles);
    scene.picture.reset(scene.renderer.drawCEIPicture(
        imageWidth(), imageHeight(), isDrawCoordinate(), triangles, second, common, flag, text));
}

void CEIEGraphicsScene::setCMYPointData(const QList<QPointF> &points)
{
    QList<QRectF> marks;
    for (const QPointF &point : points) {
        marks.append(markAround(d->toImage(point)));
    }
    own().renderer.setCMYPointData(marks);
}

void CEIEGraphicsScene::setBackgroudColor(const QColor &color)
{
    own().renderer.setBackgroudColor(color);
}

void CEIEGraphicsScene::setTargetItemVisable(bool) { }

void CEIEGraphicsScene::chromaToCurCoordinate(QPointF &p)
{
    p = d->toScene(p);
}

QPointF CEIEGraphicsScene::ChromaToCurCoordinate(QPointF chroma)
{
    return d->toScene(chroma);
}

QPointF CEIEGraphicsScene::CurCoordinateToChroma(QPointF position)
{
    return d->toChroma(position);
}

bool CEIEGraphicsScene::CheckOriginalAndTarget(
    ColorTriangleObject original, ColorTriangleObject target, baseCommon::LEDColorType &beyond)
{
    return d->checkTarget(original, target, beyond);
}

bool CEIEGraphicsScene::SetEllipseDieplay(
    QPainter *painter, QPointF chroma, QSize size, NewCEIE::TabSelectedType tab, NewCEIE::ColorArea area)
{
    return d->displayEllipse(painter, chroma, size, ceiechart::handleOfTab(tab), ceiechart::handleOfArea(area));
}

void CEIEGraphicsScene::keyPressEvent(QKeyEvent *event)
{
    d->keyPressed(event->key());
}

void CEIEGraphicsScene::keyReleaseEvent(QKeyEvent *event)
{
    d->keyReleased(event->key());
}

void CEIEGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::drawBackground(QPainter *painter, const QRectF &)
{
    d->drawPicture(painter);
}

} // namespace NewCEIE
