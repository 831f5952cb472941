// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/render/diagramrenderer_p.h>

namespace ceiechart {

DiagramRenderer::Private::~Private() = default;

DiagramRenderer::DiagramRenderer(std::unique_ptr<Private> own, QWidget *parent)
    : QWidget(parent)
    , d(std::move(own))
{
    setAttribute(Qt::WA_TranslucentBackground);
}

DiagramRenderer::~DiagramRenderer() = default;

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
