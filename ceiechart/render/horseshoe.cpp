// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>

namespace ceiechart {

void DiagramRenderer::painterPixColor(QImage *picture)
{
    fillHorseshoe(*picture, d->devicePixels(d->pictureWidth), d->devicePixels(d->pictureHeight), d->horseshoeFill(),
        fastestFillKernel(), d->threadsFor(*picture));
}

void DiagramRenderer::GetPointRGB(int px, int py, QImage *picture)
{
    d->makeColorOfPixelCurrent(px, py);
    GetPointColorRGB(px, py, picture);
}

void DiagramRenderer::GetRGBValue(const CEIAtlasValue::TColorSystem &cs, double x, double y, double z)
{
    d->makeAmountsCurrent(cs, x, y, z);
}

void DiagramRenderer::GetPointColorRGB(int px, int py, QImage *picture)
{
    picture->setPixelColor(px, py, d->colorOfCurrentAmounts(255));
}

void DiagramRenderer::Private::drawHorseshoeWithin(
    QImage &picture, const QPolygonF &clip, ClipOutline outline, const QColor &background)
{
    QPainterPath path;
    const QPolygonF deviceClip = pixelRatio == 1.0 ? clip : QTransform::fromScale(pixelRatio, pixelRatio).map(clip);
    path.addPolygon(deviceClip);
    // At the edge of a clip, the paint engine rounds differently for each format. The colours there are defined for the
    // non-premultiplied format, so that they are drawn through a view of the picture in non-premultiplied ARGB32.
    const auto paintWithin = [&](const auto &paint) {
        QImage straight(
            picture.bits(), picture.width(), picture.height(), picture.bytesPerLine(), QImage::Format_ARGB32);
        QPainter painter(&straight);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
        painter.setClipPath(path, Qt::ReplaceClip);
        paint(painter);
    };

    if (outline == ClipOutline::Drawn) {
        paintWithin([&path](QPainter &painter) { painter.drawPath(path); });
    }
    RowLayers own(threadsFor(picture));
    RowLayers &to = layers != nullptr ? *layers : own;
    if (!to.add(picture, path, horseshoeFill(), background)) {
        paintWithin([&](QPainter &painter) {
            drawHorseshoe(painter, deviceClip, devicePixels(pictureWidth), devicePixels(pictureHeight), horseshoeFill(),
                background);
        });
    }
    own.draw();
}

void DiagramRenderer::Private::makeColorOfPixelCurrent(int px, int py)
{
    makePixelCurrent(px, py);
    current.z = 1 - current.x - current.y;
    makeAmountsCurrent(atlas.colorSystem, current.x, current.y, current.z);
}

void DiagramRenderer::Private::makeAmountsCurrent(
    const CEIAtlasValue::TColorSystem &system, double x, double y, double z)
{
    const Channels amounts = primaryAmounts(system, x, y, z);
    red = amounts.red;
    green = amounts.green;
    blue = amounts.blue;
}

QColor DiagramRenderer::Private::colorOfCurrentAmounts(int alpha)
{
    const Channels channels = fullBrightness({red, green, blue}, gamma);
    red = channels.red;
    green = channels.green;
    blue = channels.blue;
    return QColor::fromRgb(rounded(red), rounded(green), rounded(blue), alpha);
}

} // namespace ceiechart
