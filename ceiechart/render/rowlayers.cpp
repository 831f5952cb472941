// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The rounding of the paint engine: over a premultiplied picture, colour and picture are multiplied and rounded
// separately, with 127.5 / 255 rounded down; through a clip on a picture in Format_ARGB32, their sum is rounded to the
// nearest. Whether the engine at hand computes so is tried once, on a few small pictures.
#include <ceiechart/render/rowlayers_p.h>

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace ceiechart {

namespace {

constexpr int channels = 4;

unsigned multiplied(unsigned channel, unsigned share)
{
    const unsigned product = channel * share;
    return (product + product / 256 + 128) / 256;
}

QRgb multiplied(QRgb pixel, int share)
{
    const auto part
        = [pixel, share](int shift) { return multiplied((pixel >> shift) & 255U, unsigned(share)) << shift; };
    return part(0) | part(8) | part(16) | part(24);
}

/*! \brief Paints the premultiplied \a color over \a count premultiplied pixels. */
void paintOver(QRgb *line, int count, QRgb color)
{
    const int rest = 255 - qAlpha(color);
    if (rest == 0) {
        std::fill_n(line, count, color);
        return;
    }
    // In blocks of bytes and in sums of 16 bits, which the compiler turns into vector instructions.
    constexpr int block = 4;
    QRgb colors[block];
    std::fill_n(colors, block, color);
    const auto *added = reinterpret_cast<const uchar *>(colors);
    for (; count >= block; count -= block, line += block) {
        auto *bytes = reinterpret_cast<uchar *>(line);
        for (int i = 0; i < block * channels; ++i) {
            const auto product = std::uint16_t(bytes[i] * rest);
            const auto rounded = std::uint16_t(product + (product >> 8) + 128);
            bytes[i] = uchar(added[i] + (rounded >> 8));
        }
    }
    for (; count > 0; --count, ++line) {
        *line = color + multiplied(*line, rest);
    }
}

QRgb shareOf(QRgb color, int coverage)
{
    return coverage == 255 ? color : multiplied(color, coverage);
}

QRgb premultiplied(const QColor &color)
{
    return color.rgba64().premultiplied().toArgb32();
}

/*! \brief Draws \a count opaque \a pixels over those of \a line, of which a clip covers a share of \a coverage. */
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

/*! \brief Whether every row of \a coverage that is not empty begins and ends in the same columns. */
bool isUpright(const EngineCoverage &coverage)
{
    std::vector<CoveredSpan> spans;
    std::pair<int, int> common;
    for (int y = coverage.top(); y < coverage.bottom(); ++y) {
        coverage.row(y, spans);
        if (!spans.empty()) {
            const std::pair<int, int> columns(spans.front().x, spans.back().x + spans.back().length);
            if (common.second != 0 && columns != common) {
                return false;
            }
            common = columns;
        }
    }
    return true;
}

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

    const EngineCoverage coverage(path, size);
    std::vector<CoveredSpan> spans;
    std::vector<QRgb> line;
    const auto isLine = [&](const QImage &picture, int y) {
        return std::equal(line.cbegin(), line.cend(), reinterpret_cast<const QRgb *>(picture.constScanLine(y)));
    };
    for (int y = 0; y < size.height(); ++y) {
        coverage.row(y, spans);
        line.assign(std::size_t(size.width()), ground.rgb());
        for (const CoveredSpan &span : spans) {
            paintOver(line.data() + span.x, span.length, shareOf(premultiplied(color), span.coverage));
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

/*! \brief The picture that \a painter paints over, if it does so simply; otherwise null. */
QImage *pictureOf(const QPainter &painter)
{
    if (!painter.isActive() || painter.device()->devType() != QInternal::Image || painter.hasClipping()
        || !painter.testRenderHint(QPainter::Antialiasing) || painter.opacity() != 1.0
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver
        || painter.deviceTransform().type() > QTransform::TxScale) {
        return nullptr;
    }
    auto *picture = static_cast<QImage *>(painter.device());
    return picture->format() == QImage::Format_ARGB32_Premultiplied ? picture : nullptr;
}

} // namespace

/*! \brief Draws rows of the layers. */
class RowLayers::Rows {
public:
    explicit Rows(const RowLayers &layers)
        : m_layers(layers.m_layers)
        , m_bits(layers.m_picture->bits())
        , m_bytesPerLine(layers.m_picture->bytesPerLine())
    {
        if (layers.m_fill) {
            m_fill.emplace(*layers.m_fill, fastestFillKernel());
            m_colors.resize(std::size_t(layers.m_picture->width()));
        }
    }

    void draw(int y)
    {
        auto *line = reinterpret_cast<QRgb *>(m_bits + qsizetype(y) * m_bytesPerLine);
        const CoveredSpan hidden = findColored(y);
        bool isBelow = m_fill.has_value();
        for (const Layer &layer : m_layers) {
            if (layer.isHorseshoe) {
                drawColored(line, y, layer.color);
                isBelow = false;
                continue;
            }
            layer.coverage.row(y, m_spans);
            for (const CoveredSpan &span : m_spans) {
                const QRgb color = shareOf(layer.color, span.coverage);
                const int end = span.x + span.length;
                if (isBelow && span.x < hidden.x + hidden.length && end > hidden.x) {
                    paintOver(line + span.x, hidden.x - span.x, color);
                    const int behind = hidden.x + hidden.length;
                    paintOver(line + behind, end - behind, color);
                } else {
                    paintOver(line + span.x, span.length, color);
                }
            }
        }
    }

private:
    /*! \brief Finds what of row \a y is coloured, and returns the longest part that is wholly so. */
    CoveredSpan findColored(int y)
    {
        CoveredSpan longest{0, 0, 255};
        m_colored.clear();
        const auto horseshoe
            = std::find_if(m_layers.cbegin(), m_layers.cend(), [](const Layer &layer) { return layer.isHorseshoe; });
        if (horseshoe != m_layers.cend()) {
            horseshoe->coverage.row(y, m_colored);
            for (const CoveredSpan &span : m_colored) {
                if (span.coverage == 255 && span.length > longest.length) {
                    longest = span;
                }
            }
        }
        return longest;
    }

    void drawColored(QRgb *line, int y, QRgb background)
    {
        if (m_colored.empty()) {
            return;
        }
        const int left = m_colored.front().x;
        const int right = m_colored.back().x + m_colored.back().length;
        QRgb *colors = m_colors.data();
        std::fill(colors + left, colors + right, background);
        m_fill->color(colors + left, left, right - 1, y);
        for (const CoveredSpan &span : m_colored) {
            drawWithinClip(line + span.x, colors + span.x, span.length, span.coverage);
        }
    }

    const std::vector<Layer> &m_layers;
    uchar *m_bits;
    qsizetype m_bytesPerLine;
    std::optional<RowFill> m_fill;
    std::vector<QRgb> m_colors; // of the row at hand
    std::vector<CoveredSpan> m_colored;
    std::vector<CoveredSpan> m_spans;
};

bool RowLayers::add(const QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    QImage *picture = pictureOf(painter);
    if (picture != nullptr && brush.style() == Qt::SolidPattern && engineIsKnown()) {
        Layer layer{{painter.deviceTransform().map(path), picture->size()}, premultiplied(brush.color()), false};
        if (layer.coverage.isKnown()) {
            add(*picture, std::move(layer));
            return true;
        }
    }
    draw();
    return false;
}

bool RowLayers::add(QImage &picture, const QPainterPath &clip, const HorseshoeFill &fill, const QColor &background)
{
    const QRgb plain = premultiplied(background);
    const bool isColored = picture.width() > 1 && qAlpha(plain) == 255 && qRed(plain) > 0;
    if (isColored && picture.format() == QImage::Format_ARGB32_Premultiplied && !m_fill && engineIsKnown()) {
        Layer layer{{clip, picture.size()}, plain, true};
        // The engine takes an upright clip for a rectangle, and forgets the shares.
        if (layer.coverage.isKnown() && !isUpright(layer.coverage)) {
            add(picture, std::move(layer));
            m_fill = fill;
            return true;
        }
    }
    draw();
    return false;
}

void RowLayers::add(QImage &picture, Layer &&layer)
{
    if (&picture != m_picture) {
        draw();
        m_picture = &picture;
    }
    if (qAlpha(layer.color) > 0) {
        m_layers.push_back(std::move(layer));
    }
}

void RowLayers::draw()
{
    if (!m_layers.empty()) {
        int top = m_picture->height();
        int bottom = 0;
        for (const Layer &layer : m_layers) {
            top = std::min(top, layer.coverage.top());
            bottom = std::max(bottom, layer.coverage.bottom());
        }
        Rows rows(*this);
        for (int y = top; y < bottom; ++y) {
            rows.draw(y);
        }
    }
    m_layers.clear();
    m_fill.reset();
    m_picture = nullptr;
}

} // namespace ceiechart
