// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/rowthreads_p.h>
#include <ceiechart/render/enginecoverage_p.h>
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

/*! \brief Whether every row of a picture of \a size that \a path covers begins and ends in the same columns. */
bool isUpright(const QPainterPath &path, const QSize &size)
{
    constexpr int rows = 64; // at a time: most paths show what they are in the first ones
    std::vector<CoveredSpan> spans;
    std::pair<int, int> common;
    for (int top = 0; top < size.height(); top += rows) {
        const EngineCoverage coverage(path, size.width(), top, std::min(top + rows, size.height()));
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
    }
    return true;
}

} // namespace

/*! \brief Rows of the layers. */
class RowLayers::Band {
public:
    /*! \brief Computes what \a layers cover of \a rows of a picture that is \a width pixels wide. */
    Band(const RowLayers &layers, int width, std::pair<int, int> rows)
        : m_layers(layers.m_layers)
        , m_width(width)
        , m_top(rows.first)
        , m_bottom(rows.second)
    {
        m_coverages.reserve(m_layers.size());
        for (const Layer &layer : m_layers) {
            m_coverages.emplace_back(layer.path, width, m_top, m_bottom);
        }
    }

    /*! \brief Draws the rows into the picture that begins at \a bits, with \a fill for the horseshoe. */
    void draw(uchar *bits, qsizetype bytesPerLine, const std::optional<HorseshoeFill> &fill)
    {
        if (fill) {
            m_fill.emplace(*fill, fastestFillKernel());
            m_colors.resize(std::size_t(m_width));
        }
        for (int y = m_top; y < m_bottom; ++y) {
            drawRow(reinterpret_cast<QRgb *>(bits + qsizetype(y) * bytesPerLine), y);
        }
    }

private:
    void drawRow(QRgb *line, int y)
    {
        const CoveredSpan hidden = findColored(y);
        bool isBelow = m_fill.has_value();
        for (std::size_t i = 0; i < m_layers.size(); ++i) {
            const Layer &layer = m_layers[i];
            if (layer.isHorseshoe) {
                drawColored(line, y, layer.color);
                isBelow = false;
                continue;
            }
            m_coverages[i].row(y, m_spans);
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

    /*! \brief Finds what of row \a y is coloured, and returns the longest part that is wholly so. */
    CoveredSpan findColored(int y)
    {
        CoveredSpan longest{0, 0, 255};
        m_colored.clear();
        const auto horseshoe
            = std::find_if(m_layers.cbegin(), m_layers.cend(), [](const Layer &layer) { return layer.isHorseshoe; });
        if (horseshoe != m_layers.cend()) {
            m_coverages[std::size_t(horseshoe - m_layers.cbegin())].row(y, m_colored);
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
    int m_width;
    int m_top;
    int m_bottom;
    std::vector<EngineCoverage> m_coverages; // by layer
    std::optional<RowFill> m_fill;
    std::vector<QRgb> m_colors; // of the row at hand
    std::vector<CoveredSpan> m_colored;
    std::vector<CoveredSpan> m_spans;
};

RowLayers::RowLayers(RowThreads *threads)
    : m_threads(threads)
{
}

RowLayers::~RowLayers()
{
    endAhead();
}

bool RowLayers::add(const QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    QImage *picture = paintedPicture(painter);
    if (picture != nullptr && painter.opacity() == 1.0 && brush.style() == Qt::SolidPattern && engineIsKnown()) {
        Layer layer{painter.deviceTransform().map(path), premultiplied(brush.color()), false};
        if (EngineCoverage::isKnown(layer.path)) {
            add(*picture, std::move(layer));
            return true;
        }
    }
    return !engineDrawsNext();
}

bool RowLayers::add(QImage &picture, const QPainterPath &clip, const HorseshoeFill &fill, const QColor &background)
{
    const QRgb plain = premultiplied(background);
    // fillHorseshoe() leaves rows as they are that are one pixel wide, or without red.
    const bool isColored = picture.width() > 1 && qAlpha(plain) == 255 && qRed(plain) > 0;
    if (isColored && picture.format() == QImage::Format_ARGB32_Premultiplied && !m_fill && engineIsKnown()
        && EngineCoverage::isKnown(clip)) {
        // The engine takes an upright clip for a rectangle, and forgets the shares.
        if (!isUpright(clip, picture.size())) {
            add(picture, {clip, plain, true});
            m_fill = fill;
            return true;
        }
    }
    return !engineDrawsNext();
}

bool RowLayers::engineDrawsNext()
{
    if (m_isAddedAhead) {
        m_isKnown = false;
        return false;
    }
    draw();
    return true;
}

bool RowLayers::addAhead(const std::function<void()> &add)
{
    if (m_threads == nullptr) {
        return false;
    }
    m_isAddedAhead = true;
    m_isKnown = true;
    add();
    m_isAddedAhead = false;
    if (!m_isKnown) {
        forget();
    }
    return m_isKnown;
}

RowBands RowLayers::bands() const
{
    QRectF bounds;
    for (const Layer &layer : m_layers) {
        bounds |= layer.path.controlPointRect();
    }
    const int top = std::clamp(int(bounds.top()) - 1, 0, m_picture->height());
    return {top, std::clamp(int(bounds.bottom()) + 2, top, m_picture->height())};
}

void RowLayers::computeAhead()
{
    if (m_layers.empty()) {
        return;
    }
    const RowBands all = bands();
    m_bands.resize(std::size_t(all.count()));
    m_isComputing = true;
    m_threads->beginAhead(all.count(), [this, all, width = m_picture->width()](int band) {
        m_bands[std::size_t(band)] = std::make_unique<Band>(*this, width, all.rows(band));
    });
}

void RowLayers::endAhead()
{
    if (std::exchange(m_isComputing, false)) {
        m_threads->endAhead();
    }
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
    endAhead();
    if (!m_layers.empty()) {
        uchar *bits = m_picture->bits();
        const qsizetype bytesPerLine = m_picture->bytesPerLine();
        const RowBands all = bands();
        m_bands.resize(std::size_t(all.count()));
        runParts(m_threads, all.count(), [&](int i) {
            std::unique_ptr<Band> band = std::move(m_bands[std::size_t(i)]);
            if (!band) {
                band = std::make_unique<Band>(*this, m_picture->width(), all.rows(i));
            }
            band->draw(bits, bytesPerLine, m_fill);
        });
    }
    forget();
}

void RowLayers::forget()
{
    m_bands.clear();
    m_layers.clear();
    m_fill.reset();
    m_picture = nullptr;
}

} // namespace ceiechart
