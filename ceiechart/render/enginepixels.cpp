// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// Over a premultiplied picture, the paint engine multiplies and rounds colour and picture separately. Through a clip on
// a picture in Format_ARGB32, it rounds their sum to the nearest.
#include <ceiechart/render/enginecoverage_p.h>
#include <ceiechart/render/enginepixels_p.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cstdint>

namespace ceiechart {

namespace {

/*! \brief Whether the paint engine draws \a path, and draws through it, as it is done here. */
bool agrees(const QPainterPath &path, const QColor &color)
{
    const QSize size(40, 32);
    const QColor ground(23, 99, 180);
    QImage filled(size, QImage::Format_ARGB32_Premultiplied);
    filled.fill(ground);
    QPainter fillPainter(&filled);
    fillPainter.setRenderHint(QPainter::Antialiasing);
    fillPainter.fillPath(path, color);

    QImage clipped(size, QImage::Format_ARGB32);
    clipped.fill(ground);
    QImage colors(size, QImage::Format_RGB32);
    colors.fill(color);
    QPainter clipPainter(&clipped);
    clipPainter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    clipPainter.setClipPath(path, Qt::ReplaceClip);
    clipPainter.drawImage(0, 0, colors);

    const EngineCoverage coverage(path, size.width(), 0, size.height());
    std::vector<CoveredSpan> spans;
    std::vector<QRgb> line;
    const auto isLine = [&](const QImage &picture, int y) {
        return std::equal(line.cbegin(), line.cend(), reinterpret_cast<const QRgb *>(picture.constScanLine(y)));
    };
    for (int y = 0; y < size.height(); ++y) {
        coverage.row(y, spans);
        line.assign(std::size_t(size.width()), ground.rgb());
        for (const CoveredSpan &span : spans) {
            paintOver(line.data() + span.x, span.length, premultiplied(color), span.coverage);
        }
        if (!isLine(filled, y)) {
            return false;
        }
        line.assign(std::size_t(size.width()), ground.rgb());
        for (const CoveredSpan &span : spans) {
            const auto *pixels = reinterpret_cast<const QRgb *>(colors.constScanLine(y)) + span.x;
            drawWithinClip(line.data() + span.x, pixels, span.length, span.coverage);
        }
        if (!isLine(clipped, y)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool engineIsKnown()
{
    static const bool known = [] {
        QPainterPath fan;
        fan.addPolygon(QPolygonF({{3.3, 29.2}, {-4.0, 2.7}, {38.1, 1.6}, {11.9, 30.4}, {20.0, -6.5}, {31.2, 27.0}}));
        QPainterPath triangle;
        triangle.addPolygon(QPolygonF({{36, 21}, {14, 3}, {5, 30}}));
        triangle.closeSubpath();
        const QPen pen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        const QPainterPath outline = QPainterPathStroker(pen).createStroke(triangle);
        return agrees(fan, QColor(255, 163, 56)) && agrees(fan, QColor(255, 250, 9, 51))
            && agrees(outline, QColor(22, 241, 255)) && agrees(outline, QColor(90, 13, 180, 129));
    }();
    return known;
}

QImage *paintedPicture(const QPainter &painter)
{
    if (!painter.isActive() || painter.device()->devType() != QInternal::Image || painter.hasClipping()
        || !painter.testRenderHint(QPainter::Antialiasing)
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver
        || painter.deviceTransform().type() > QTransform::TxScale) {
        return nullptr;
    }
    auto *picture = static_cast<QImage *>(painter.device());
    return picture->format() == QImage::Format_ARGB32_Premultiplied ? picture : nullptr;
}

QRgb premultiplied(const QColor &color)
{
    return color.rgba64().premultiplied().toArgb32();
}

void paintOver(QRgb *line, int count, QRgb color, int coverage)
{
    if (coverage < 255) {
        color = multiplied(color, coverage);
    }
    const int rest = 255 - qAlpha(color);
    if (rest == 0) {
        std::fill_n(line, count, color);
        return;
    }
    // Blocks of bytes, and sums of 16 bits, become vector instructions.
    constexpr int block = 4;
    QRgb colors[block];
    std::fill_n(colors, block, color);
    const auto *added = reinterpret_cast<const uchar *>(colors);
    for (; count >= block; count -= block, line += block) {
        auto *bytes = reinterpret_cast<uchar *>(line);
        for (int i = 0; i < int(sizeof colors); ++i) {
            const auto product = std::uint16_t(bytes[i] * rest);
            const auto rounded = std::uint16_t(product + (product >> 8) + 128);
            bytes[i] = uchar(added[i] + (rounded >> 8));
        }
    }
    for (; count > 0; --count, ++line) {
        *line = color + multiplied(*line, rest);
    }
}

void drawWithinClip(QRgb *line, const QRgb *pixels, int count, int coverage)
{
    if (coverage == 255) {
        std::copy_n(pixels, count, line);
        return;
    }
    for (int i = 0; i < count; ++i) {
        QRgb mixed = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            const int sum
                = int((pixels[i] >> shift) & 255U) * coverage + int((line[i] >> shift) & 255U) * (255 - coverage);
            mixed |= unsigned((sum + 127) / 255) << shift;
        }
        line[i] = mixed;
    }
}

} // namespace ceiechart
