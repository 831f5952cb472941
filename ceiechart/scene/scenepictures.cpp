// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/scene/backgroundplacement_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <QGraphicsView>
#include <QPainter>
#include <QSignalBlocker>

namespace ceiechart {

void TargetScene::setImageSize(const QSize &size)
{
    d->imageWidth = size.width();
    d->imageHeight = size.height();
    getBitMap();
}

QColor TargetScene::graphLineColor() const
{
    return d->diagramRenderer().graphLineColor();
}

QColor TargetScene::graphPictureColor() const
{
    return d->diagramRenderer().graphPictureColor();
}

QColor TargetScene::pictureGround() const
{
    return d->diagramRenderer().pictureGround();
}

void TargetScene::setLightGround(bool light)
{
    if (light != isLightGround()) {
        d->diagramRenderer().setLightGround(light);
        renderAgain();
    }
}

bool TargetScene::isLightGround() const
{
    return d->diagramRenderer().isLightGround();
}

void TargetScene::setPixelRatio(double ratio)
{
    const double previous = pixelRatio();
    d->diagramRenderer().setPixelRatio(ratio);
    if (pixelRatio() != previous) {
        renderAgain();
    }
}

double TargetScene::pixelRatio() const
{
    return d->diagramRenderer().pixelRatio();
}

void TargetScene::setThreadCount(int count)
{
    d->diagramRenderer().setThreadCount(count);
}

int TargetScene::threadCount() const
{
    return d->diagramRenderer().threadCount();
}

GivenMemory TargetScene::Private::giveMemory()
{
    return GivenMemory(diagramRenderer().d->former, picture.takeLarge());
}

void TargetScene::renderAgain()
{
    if (d->picture.isSet()) {
        const GivenMemory given = d->giveMemory();
        d->showPicture(d->renderShown());
    }
}

void TargetScene::Private::takePicture(QImage *rendered)
{
    picture.reset(rendered, diagramRenderer().d->isOpaque);
}

void TargetScene::Private::showPicture(QImage *rendered)
{
    takePicture(rendered);
    q->CoordinateTransformation();
    q->update();
}

QImage TargetScene::toImage()
{
    QImage image = d->picture.image();
    if (image.isNull()) {
        return image;
    }
    // Drawing the handles reports the white point and may reset it, which only the scene itself is to do.
    const QSignalBlocker quiet(this);
    const QList<ColorTriangleObject> triangles = d->triangles;
    const QPointF handlePoint = d->centreHandlePoint;
    const QPointF handleChroma = d->centreHandleChroma;
    const bool handleDrawn = d->centreHandleDrawn;
    const int handleTemperature = d->handleTemperature;
    const QRectF backgroundTarget = d->backgroundTarget;
    d->backgroundTarget = QRectF(QPointF(0, 0), d->picture.sceneSize());

    QPainter painter(&image);
    d->drawOver(&painter);
    painter.end();

    d->triangles = triangles;
    d->centreHandlePoint = handlePoint;
    d->centreHandleChroma = handleChroma;
    d->centreHandleDrawn = handleDrawn;
    d->handleTemperature = handleTemperature;
    d->backgroundTarget = backgroundTarget;
    return image;
}

QSize TargetScene::pictureSize() const
{
    return d->picture.sceneSize();
}

QRectF TargetScene::pictureRect() const
{
    const QList<QGraphicsView *> shownBy = views();
    const QRectF scene = sceneRect();
    return backgroundPlacement(scene, shownBy.isEmpty() ? scene.size().toSize() : shownBy.constFirst()->size());
}

std::optional<DiagramGeometry> TargetScene::Private::pictureGeometry()
{
    const QSize size = picture.sceneSize();
    if (size.width() < 2 || size.height() < 2) {
        return std::nullopt;
    }
    return chartGeometry(diagramRenderer().chartKind(), size.width(), size.height());
}

std::optional<QPointF> TargetScene::picturePosition(const QPointF &xy) const
{
    const std::optional<DiagramGeometry> geometry = d->pictureGeometry();
    if (!geometry || !isFinite(xy)) {
        return std::nullopt;
    }
    const QPointF shown = d->toDiagram(xy);
    const QPointF position = geometry->toExactPixel(shown.x(), shown.y());
    return isFinite(position) ? std::optional<QPointF>(position) : std::nullopt;
}

std::optional<QPointF> TargetScene::chromaticityInPicture(const QPointF &position) const
{
    const std::optional<DiagramGeometry> geometry = d->pictureGeometry();
    if (!geometry || !isFinite(position)) {
        return std::nullopt;
    }
    const QPointF xy = d->fromDiagram(geometry->toChroma(position.x() - DiagramGeometry::xOffset, position.y()));
    return isFinite(xy) ? std::optional<QPointF>(xy) : std::nullopt;
}

} // namespace ceiechart
