// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/drawlist_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/shapepictures_p.h>

#include <QPainter>

#include <cmath>

namespace ceiechart {

namespace {

constexpr double mostRatio = 4.0; // device pixels per logical pixel: of more, pictures become large
constexpr std::size_t mostPictures = 200; // more than there are looks and places at a time

QImage pictureOf(
    const QRectF &bounds, double ratio, const QPointF &offset, const std::function<void(QPainter &)> &paintShape)
{
    const QSizeF reach = bounds.size() * ratio;
    QImage picture(int(std::ceil(reach.width() + offset.x())), int(std::ceil(reach.height() + offset.y())),
        QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) {
        return picture;
    }
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(offset);
    painter.scale(ratio, ratio);
    painter.translate(-bounds.topLeft());
    paintShape(painter);
    return picture;
}

} // namespace

void ShapePictures::paint(
    QPainter &painter, quint64 look, const QRectF &bounds, const std::function<void(QPainter &)> &paintShape)
{
    const QTransform transform = painter.deviceTransform();
    const double ratio = transform.m11();
    const QPointF corner = transform.map(bounds.topLeft());
    if (!isFinite(corner) || !isRaster(painter) || transform.m22() != ratio || ratio <= 0.0 || ratio > mostRatio) {
        paintShape(painter);
        return;
    }
    // Few enough places for pictures to be met again, and so near that nobody sees the difference.
    constexpr double parts = 4.0; // of a pixel
    const auto snapped = [](double at) { return std::round(at * parts) / parts; };
    const QPointF at(snapped(corner.x()), snapped(corner.y()));
    const QPointF pixel(std::floor(at.x()), std::floor(at.y()));
    const QPointF offset = at - pixel;
    if (m_pictures.size() > mostPictures) {
        m_pictures.clear();
    }
    QImage &picture = m_pictures[{look, ratio, bounds.width(), bounds.height(), offset.x(), offset.y()}];
    if (picture.isNull()) {
        picture = pictureOf(bounds, ratio, offset, paintShape);
    }
    if (picture.isNull()) {
        paintShape(painter); // for want of memory
        return;
    }
    const QPointF place = pixel - QPointF(transform.dx(), transform.dy());
    if (const auto pixels = PixelPainter::on(painter)) {
        pixels->picture(place / ratio, picture, QPoint());
        return;
    }
    painter.save();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    painter.drawImage(place, picture);
    painter.restore();
}

} // namespace ceiechart
