// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene_p.h>

#include <gamutmodel/diagram.h>

#include <QKeyEvent>
#include <QPainter>

CEIEGraphicsScene::CEIEGraphicsScene(DrawCEIPicture::CEIEType type, QList<ColorTriangleObject> triangles)
    : TargetScene(std::make_unique<Private>(type))
{
    d->begin(triangles);
}

CEIEGraphicsScene::~CEIEGraphicsScene() = default;

CEIEGraphicsScene::Private &CEIEGraphicsScene::own() const
{
    return static_cast<Private &>(*d);
}

void CEIEGraphicsScene::setMeasureValuePoints(const QList<QPointF> &points)
{
    own().measurePoints = points;
}

QList<QPointF> CEIEGraphicsScene::getMeasureValuePoints()
{
    return own().measurePoints;
}

QImage *CEIEGraphicsScene::Private::renderPicture()
{
    QImage *rendered = nullptr;
    if (type == DrawCEIPicture::UvDiagram) {
        renderer.setMeasurePoints(measurePoints);
        rendered = renderer.drawCEIEPicture(
            imageWidth, imageHeight, drawCoordinate, drawCoordinate, drawWavelengths, QList<QPointF>());
    } else {
        rendered = renderer.drawCEIPicture(
            imageWidth, imageHeight, drawCoordinate, drawCoordinate, drawWavelengths, QList<QPointF>());
    }
    q->setSceneRect(0, 0, imageWidth, imageHeight);
    return rendered;
}

QPointF CEIEGraphicsScene::Private::toDiagram(const QPointF &chroma)
{
    if (type != DrawCEIPicture::UvDiagram) {
        return chroma;
    }
    double u = 0.0;
    double v = 0.0;
    DrawCEIPicture::xyconvertuv(chroma.x(), chroma.y(), u, v);
    return QPointF(u, v);
}

QPointF CEIEGraphicsScene::Private::toImage(const QPointF &chroma)
{
    return renderer.CoordinateTransformation(toDiagram(chroma));
}

QPointF CEIEGraphicsScene::Private::toChroma(const QPointF &position)
{
    return fromDiagram(renderer.CurCoordinateToChroma(position));
}

QPointF CEIEGraphicsScene::Private::fromDiagram(const QPointF &shown)
{
    if (type != DrawCEIPicture::UvDiagram) {
        return shown;
    }
    const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1976, {shown.x(), shown.y()});
    return QPointF(xy.x, xy.y);
}

void CEIEGraphicsScene::Private::drawFurtherSigns(QPainter *painter)
{
    scene()->IsMagnifyEllispse(painter);
    scene()->DrawCenterEllipse(painter);
    scene()->DrawOtherPoint(painter);
}

bool CEIEGraphicsScene::CheckOriginalAndTarget(
    const ColorTriangleObject &original, const ColorTriangleObject &target, const baseCommon::LEDColorType &)
{
    baseCommon::LEDColorType beyond = baseCommon::None;
    return d->checkTarget(original, target, beyond);
}

bool CEIEGraphicsScene::SetEllipseDieplay(
    QPainter *painter, QPointF chroma, QSize size, TabSelectedType tab, ColorArea area)
{
    return d->displayEllipse(painter, chroma, size, ceiechart::handleOfTab(tab), ceiechart::handleOfArea(area));
}

void CEIEGraphicsScene::drawBackground(QPainter *painter, const QRectF &)
{
    d->drawPicture(painter);
    d->drawOver(painter);
}

void CEIEGraphicsScene::Private::drawOver(QPainter *painter)
{
    scene()->DrawEllipseSignPosition(painter);
    painter->save();
    q->refreshArea(painter);
    painter->restore();
}

void CEIEGraphicsScene::keyPressEvent(QKeyEvent *event)
{
    d->keyPressed(event->key());
    // The hand remains while the space bar is held.
    d->hand = event->key() == Qt::Key_Space;
}

void CEIEGraphicsScene::keyReleaseEvent(QKeyEvent *event)
{
    d->keyReleased(event->key());
}
