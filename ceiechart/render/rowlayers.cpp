// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/enginepixels_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace ceiechart {

namespace {

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
                const int end = span.x + span.length;
                if (isBelow && span.x < hidden.x + hidden.length && end > hidden.x) {
                    paintOver(line + span.x, hidden.x - span.x, layer.color, span.coverage);
                    const int behind = hidden.x + hidden.length;
                    paintOver(line + behind, end - behind, layer.color, span.coverage);
                } else {
                    paintOver(line + span.x, span.length, layer.color, span.coverage);
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
    QImage *picture = paintedPicture(painter);
    if (picture != nullptr && painter.opacity() == 1.0 && brush.style() == Qt::SolidPattern && engineIsKnown()) {
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
    // fillHorseshoe() leaves rows as they are that are one pixel wide, or without red.
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
