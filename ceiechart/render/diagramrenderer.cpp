// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/picture_p.h>

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace ceiechart {

DiagramRenderer::Private::~Private() = default;

DiagramRenderer::DiagramRenderer(std::unique_ptr<Private> own, QWidget *parent)
    : QWidget(parent)
    , d(std::move(own))
{
    setAttribute(Qt::WA_TranslucentBackground);
}

DiagramRenderer::~DiagramRenderer() = default;

ChartKind DiagramRenderer::chartKind() const
{
    return d->kind;
}

QColor DiagramRenderer::graphLineColor() const
{
    return d->lineColor;
}

QColor DiagramRenderer::graphPictureColor() const
{
    return d->groundColor;
}

QColor DiagramRenderer::pictureGround() const
{
    return d->ground(d->kind == ChartKind::LegacyXy ? chartStyle(d->kind).ground : d->groundColor);
}

void DiagramRenderer::setLightGround(bool light)
{
    d->lightGround = light;
}

bool DiagramRenderer::isLightGround() const
{
    return d->lightGround;
}

void DiagramRenderer::setPixelRatio(double ratio)
{
    constexpr double highest = 8.0;
    d->pixelRatio = ratio > 1.0 ? std::min(ratio, highest) : 1.0;
}

double DiagramRenderer::pixelRatio() const
{
    return d->pixelRatio;
}

void DiagramRenderer::setThreadCount(int count)
{
    d->threads.setCount(count);
}

int DiagramRenderer::threadCount() const
{
    return d->threads.count();
}

double DiagramRenderer::mulDiv(int a, int b, int c)
{
    return ceiechart::mulDiv(a, b, c);
}

double DiagramRenderer::Clamp(double v, double lo, double hi)
{
    return ceiechart::clamp(v, lo, hi);
}

bool DiagramRenderer::GetCoordinateTransformationData(const QRectF &plot, const QRectF &chroma)
{
    return d->geometry.set(plot, chroma);
}

QPointF DiagramRenderer::CoordinateTransformation(const QPointF &xy)
{
    return d->geometry.toPixel(xy);
}

QPointF DiagramRenderer::CoordinateTransformation()
{
    return d->mapCurrent();
}

void DiagramRenderer::MapPixelToReal(int px, int py)
{
    d->makePixelCurrent(px, py);
}

void DiagramRenderer::GetPointF(const CEIAtlasValue::CEIAtlasCoordinate &c)
{
    d->makeCurrent(c);
}

void DiagramRenderer::Private::beginDrawing(int width, int height, int marginPercent)
{
    pictureWidth = width;
    pictureHeight = height;
    geometry.setPicture(width, height, marginPercent, chartStyle(kind).range);
    locus = atlas.atlasCoordinates;
}

std::unique_ptr<QImage> DiagramRenderer::Private::newPicture(const QColor &ground)
{
    auto picture = ceiechart::newPicture(
        devicePixels(pictureWidth), devicePixels(pictureHeight), ground, std::exchange(former, QImage()));
    if (picture->devicePixelRatio() != pixelRatio) {
        picture->setDevicePixelRatio(pixelRatio);
    }
    isOpaque = picture->format() == QImage::Format_ARGB32_Premultiplied;
    return picture;
}

int DiagramRenderer::Private::devicePixels(int extent) const
{
    constexpr double most = std::numeric_limits<int>::max();
    return pixelRatio == 1.0 ? extent : int(std::clamp(std::round(extent * pixelRatio), 0.0, most));
}

RowThreads *DiagramRenderer::Private::threadsFor(const QImage &picture)
{
    const qint64 pixels = qint64(picture.width()) * picture.height();
    return threads.count() > 1 && pixels >= fewestPixelsForThreads ? &threads : nullptr;
}

HorseshoeFill DiagramRenderer::Private::horseshoeFill() const
{
    DiagramGeometry device = geometry;
    if (pixelRatio != 1.0) {
        const QRectF &plot = geometry.plot();
        device.set(QRectF(plot.topLeft() * pixelRatio, plot.size() * pixelRatio), geometry.chroma());
    }
    return {device, atlas.colorSystem, gamma};
}

QColor DiagramRenderer::Private::ground(const QColor &stated) const
{
    if (!lightGround) {
        return stated;
    }
    return groundColor.alpha() == 255 && isLight(groundColor) ? groundColor
                                                              : diagramPalette(DiagramGround::Light).ground;
}

QColor DiagramRenderer::Private::drawn(const QColor &stated, double contrast) const
{
    if (!lightGround) {
        return stated;
    }
    const QColor light = ground(stated);
    if (lastDrawn.stated != stated || lastDrawn.ground != light || lastDrawn.contrast != contrast) {
        lastDrawn = {stated, light, contrast, legibleOn(stated, light, contrast)};
    }
    return lastDrawn.drawn;
}

QColor DiagramRenderer::Private::drawnLineColor() const
{
    return drawn(lineColor, comfortableTextContrast);
}

QPolygonF DiagramRenderer::Private::locusPolygon()
{
    QPolygonF polygon;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : qAsConst(locus)) {
        makeCurrent(row);
        const QPointF position = mapCurrent();
        if (isFinite(position)) {
            polygon.append(position);
        }
    }
    return polygon;
}

void DiagramRenderer::Private::loadFirstLocusRow()
{
    if (!locus.isEmpty()) {
        makeCurrent(locus.constFirst());
        mapCurrent();
    }
}

void DiagramRenderer::Private::makeCurrent(const CEIAtlasValue::CEIAtlasCoordinate &row)
{
    xyzSum = row.X + row.Y + row.Z;
    current.x = row.X / xyzSum;
    current.y = row.Y / xyzSum;
}

void DiagramRenderer::Private::makePixelCurrent(int px, int py)
{
    const QPointF chroma = geometry.toChroma(px, py);
    current.x = chroma.x();
    current.y = chroma.y();
}

QPointF DiagramRenderer::Private::mapCurrent()
{
    currentPixel = geometry.toExactPixel(current.x, current.y);
    return currentPixel;
}

QPointF DiagramRenderer::Private::map(double x, double y)
{
    current.x = x;
    current.y = y;
    return mapCurrent();
}

} // namespace ceiechart
