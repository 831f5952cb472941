// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/markpicture_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QHash>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr int phases = 4; // places between two pixels, in each direction
constexpr int mostSprites = 4096; // to keep, of marks that all have colours of their own

// White round black round the mark's colour can be seen on every ground.
constexpr double haloWidth = 3.5;
constexpr QColor haloColor(255, 255, 255);
constexpr double edgeWidth = 1.4;
constexpr QColor edgeColor(24, 26, 30);

QPainterPath outlineOf(const PlacedMark &mark)
{
    QPainterPath path;
    switch (mark.shape) {
    case PlacedMark::Shape::Disc:
        path.addEllipse(mark.at, markRadius, markRadius);
        break;
    case PlacedMark::Shape::Diamond:
        path = closedPath(diamondAt(mark.at, markRadius + 1.5));
        break;
    case PlacedMark::Shape::Square:
        path.addRect(QRectF(mark.at - QPointF(markRadius, markRadius), mark.at + QPointF(markRadius, markRadius)));
        break;
    }
    return path;
}

//! \a pixel of premultiplied colours, of which \a share of 255 is left.
QRgb reduced(QRgb pixel, uint share)
{
    const auto part = [share](uint channels) {
        const uint product = channels * share + 0x800080U;
        return ((product + ((product >> 8U) & 0xff00ffU)) >> 8U) & 0xff00ffU;
    };
    return part(pixel & 0xff00ffU) | (part((pixel >> 8U) & 0xff00ffU) << 8U);
}

//! Whether \a place of \a picture lets nothing through.
bool isOpaque(const QImage &picture, const QRect &place)
{
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        QRgb all = 0xffffffffU;
        for (int x = place.left(); x <= place.right(); ++x) {
            all &= line[x];
        }
        if (qAlpha(all) < 255) {
            return false;
        }
    }
    return true;
}

//! Lays \a sprite under \a picture with its left upper corner at \a corner, as far as it lies on the picture.
void layUnder(QImage &picture, const QImage &sprite, const QPoint &corner)
{
    const QRect place = QRect(corner, sprite.size()) & picture.rect();
    if (isOpaque(picture, place)) {
        return;
    }
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(sprite.constScanLine(y - corner.y()));
        auto *to = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = place.left(); x <= place.right(); ++x) {
            const uint free = 255U - uint(qAlpha(to[x]));
            if (free > 0U) {
                to[x] += reduced(from[x - corner.x()], free);
            }
        }
    }
}

//! A part of a picture, and where it was.
struct Sprite {
    QImage image;
    QPoint corner; // from the pixel of its middle
};

//! What of \a image is not transparent; its middle is \a middle.
Sprite trimmed(const QImage &image, const QPoint &middle)
{
    QRect kept;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0) {
                kept |= QRect(x, y, 1, 1);
            }
        }
    }
    return {image.copy(kept), kept.topLeft() - middle};
}

} // namespace

void paintMark(QPainter &painter, const std::optional<PixelPainter> &pixels, const PlacedMark &mark)
{
    const QColor color = QColor::fromRgba(mark.color);
    if (pixels && mark.shape == PlacedMark::Shape::Disc) {
        pixels->ring(mark.at, markRadius, haloWidth, haloColor);
        pixels->disc(mark.at, markRadius, color);
        pixels->ring(mark.at, markRadius, edgeWidth, edgeColor);
        return;
    }
    const QPainterPath outline = outlineOf(mark);
    painter.setPen(QPen(haloColor, haloWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.setPen(QPen(edgeColor, edgeWidth));
    painter.setBrush(color);
    painter.drawPath(outline);
}

QImage markPicture(const QVector<PlacedMark> &marks, const QTransform &transform, const QRect &area)
{
    QImage picture(area.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const int reach = int(std::ceil(markReach * std::max(std::fabs(transform.m11()), std::fabs(transform.m22()))));
    const QRect reached = area.adjusted(-reach, -reach, reach, reach);
    QHash<quint64, Sprite> sprites;
    // From top to bottom, as most of many marks are covered by others.
    for (auto mark = marks.crbegin(); mark != marks.crend(); ++mark) {
        const QPointF at = transform.map(mark->at);
        const int column = int(std::floor(at.x() * phases + 0.5));
        const int row = int(std::floor(at.y() * phases + 0.5));
        const QPoint pixel(int(std::floor(double(column) / phases)), int(std::floor(double(row) / phases)));
        if (!reached.contains(pixel)) {
            continue;
        }
        const QPoint phase(column - pixel.x() * phases, row - pixel.y() * phases);
        const quint64 kind
            = (quint64(mark->color) << 8U) | quint64((int(mark->shape) * phases + phase.x()) * phases + phase.y());
        auto sprite = sprites.constFind(kind);
        if (sprite == sprites.cend()) {
            if (sprites.size() >= mostSprites) {
                sprites.clear();
            }
            QImage painted(2 * reach + 1, 2 * reach + 1, QImage::Format_ARGB32_Premultiplied);
            painted.fill(Qt::transparent);
            QPainter painter(&painted);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(reach + double(phase.x()) / phases, reach + double(phase.y()) / phases);
            painter.scale(transform.m11(), transform.m22());
            paintMark(painter, PixelPainter::on(painter), {QPointF(), mark->shape, mark->color});
            painter.end();
            sprite = sprites.insert(kind, trimmed(painted, QPoint(reach, reach)));
        }
        layUnder(picture, sprite->image, pixel - area.topLeft() + sprite->corner);
    }
    return picture;
}

} // namespace ceiechart
