// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/fourpixels_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ceiechart {

namespace {

#ifdef CEIECHART_FOUR_SSE2
using Four = FourBySse2;
#else
using Four = FourPlain;
#endif
using Floats = Four::Floats;

constexpr int together = 4; // pixels
constexpr double reach = 0.5; // how far from an edge a pixel's middle can be that the edge covers in part
constexpr int rowsAhead = 8; // on which pixels are fetched from the memory while others are painted
constexpr int pixelsAtOnce = 16; // that are fetched from the memory
constexpr double whole = 256.0; // the share of a pixel that is covered by an opaque colour

/*!
 * What a stroke whose edges are \c half away from its middle, and at least half a pixel from its ends, covers of pixels
 * at some distance from its middle, times \c whole and the opacity of its colour, and a half for rounding.
 */
class Stroke {
public:
    Stroke(double half, const QColor &color)
        : m_scale(whole * color.alphaF())
        , m_edge(Four::all(float((half + reach) * m_scale + rounding)))
        , m_most(Four::all(float(std::min(1.0, 2.0 * half) * m_scale + rounding)))
    {
    }
    //! By which distances are to be multiplied.
    double scale() const { return m_scale; }
    Floats shares(Floats distances) const
    {
        const Floats within = Four::subtract(m_edge, Four::absolute(distances));
        return Four::least(Four::most(within, Four::all(0.0F)), m_most);
    }

private:
    static constexpr double rounding = 0.5;
    double m_scale;
    Floats m_edge;
    Floats m_most;
};

//! How much of pixels whose middles are at \a at lies between 0 and \a end, along one axis, from 0 to 1.
Floats coveredAlong(Floats at, Floats end)
{
    const Floats half = Four::all(float(reach));
    const Floats share
        = Four::subtract(Four::least(end, Four::add(at, half)), Four::most(Four::all(0.0F), Four::subtract(at, half)));
    return Four::least(Four::most(share, Four::all(0.0F)), Four::all(1.0F));
}

//! A line with flat ends, in pixels.
class SoftLine {
public:
    SoftLine(const QPointF &from, const QPointF &to, double half, const QColor &color)
        : m_from(from)
        , m_length(std::hypot(to.x() - from.x(), to.y() - from.y()))
        , m_along((to.x() - from.x()) / m_length)
        , m_down((to.y() - from.y()) / m_length)
        , m_slope(isLevel() ? 0.0 : m_along / m_down)
        , m_across(isLevel() ? HUGE_VAL : (half + reach) / std::fabs(m_down))
        , m_corner(std::fabs(m_along) * (half + reach) + std::fabs(m_down) * reach)
        , m_top(std::min(from.y(), to.y()))
        , m_bottom(std::max(from.y(), to.y()))
        , m_stroke(half, color)
    {
    }
    bool isNothing() const { return !(m_length > 0.0); }

    // The rows in which it can cover anything
    double top() const { return m_top - m_corner; }
    double bottom() const { return m_bottom + m_corner; }

    //! The column of its middle in the row \a y.
    double middle(int y) const { return m_from.x() + fromBegin(y) * m_slope; }
    //! Whether it covers nothing of \a rows.
    bool isBeyond(const QRect &rows) const
    {
        const double first = middle(rows.top());
        const double last = middle(rows.bottom());
        return std::max(first, last) + m_across < rows.left() || std::min(first, last) - m_across > rows.right() + 1.0;
    }
    // Between which rows, without themselves, all that it covers of a row is half a pixel away from its ends
    double beginOfInner() const { return m_top + m_corner - 0.5; }
    double endOfInner() const { return m_bottom - m_corner - 0.5; }

    //! From where to where it can cover anything in the row \a y.
    std::pair<double, double> columns(int y) const { return {middle(y) - m_across, middle(y) + m_across}; }
    std::pair<double, double> columnsAtEnds(int y) const
    {
        const auto [left, right] = columns(y);
        if (m_along == 0.0) {
            return {left, right};
        }
        const double begin = m_from.x() - fromBegin(y) * m_down / m_along;
        const double before = -reach / m_along;
        const double after = (m_length + reach) / m_along;
        return {std::max(left, begin + std::min(before, after)), std::min(right, begin + std::max(before, after))};
    }

    //! What it covers of the pixels of the row \a y, by their columns.
    auto innerShares(int y) const
    {
        const double scale = m_down * m_stroke.scale();
        return [this, step = Four::all(float(scale)), offset = Four::all(float((middle(y) - 0.5) * scale))](
                   Floats at) { return m_stroke.shares(Four::subtract(Four::multiply(at, step), offset)); };
    }
    auto sharesAtEnds(int y) const
    {
        const double dx = 0.5 - m_from.x();
        const double dy = fromBegin(y);
        const double scale = m_stroke.scale();
        return [this, stepAside = Four::all(float(m_down * scale)),
                   aside = Four::all(float((dy * m_along - dx * m_down) * scale)), stepOn = Four::all(float(m_along)),
                   on = Four::all(float(dy * m_down + dx * m_along)), end = Four::all(float(m_length))](Floats at) {
            const Floats distances = Four::subtract(Four::multiply(at, stepAside), aside);
            const Floats onward = Four::add(on, Four::multiply(at, stepOn));
            return Four::multiply(m_stroke.shares(distances), coveredAlong(onward, end));
        };
    }

private:
    bool isLevel() const { return m_down == 0.0; }
    //! From the first end down to the middle of the row \a y.
    double fromBegin(int y) const { return y + 0.5 - m_from.y(); }

    QPointF m_from;
    double m_length;
    double m_along; // of one pixel on the line, how much is to the right
    double m_down; // and how much is down
    double m_slope; // columns for each row
    double m_across; // from the middle to where it covers nothing, in columns
    double m_corner; // how far the corners and their soft edges are from the rows of the ends
    double m_top;
    double m_bottom;
    Stroke m_stroke;
};

//! The least whole number that is not less than \a value, which is not negative.
int wholeFrom(double value)
{
    const int least = int(value);
    return least + (least < value ? 1 : 0);
}

//! Puts \a count \a pictured pixels, which are premultiplied, over those of \a row.
void putRowOver(std::uint32_t *row, const std::uint32_t *pictured, int count)
{
    if (count < together) {
        std::uint32_t above[together] = {};
        std::uint32_t below[together] = {};
        std::copy_n(pictured, count, above);
        std::copy_n(row, count, below);
        Four::putOver(below, above);
        std::copy_n(below, count, row);
        return;
    }
    const int last = count - together;
    int i = 0;
    for (; i <= last; i += together) {
        if (Four::areClear(pictured + i)) {
            continue;
        }
        if (Four::areOpaque(pictured + i)) {
            std::copy_n(pictured + i, together, row + i);
        } else {
            Four::putOver(row + i, pictured + i);
        }
    }
    if (i < count && !Four::areClear(pictured + last)) {
        // Those that are left, behind some that are clear and so leave the row as it is.
        std::uint32_t above[together] = {};
        std::copy(pictured + i, pictured + count, above + (i - last));
        Four::putOver(row + last, above);
    }
}

/*!
 * What \a painter itself is clipped to, in pixels; nothing unless that is a rectangle of whole ones. Of other clips the
 * engine alone knows which pixels it has: they may be those of a path.
 */
std::optional<QRect> ownClip(const QPainter &painter)
{
    // The region is rounded, the bounds are not.
    const QRectF pixels = painter.deviceTransform().mapRect(painter.clipBoundingRect());
    const QRect wholeOnes = pixels.toRect();
    return painter.clipRegion().rectCount() <= 1 && QRectF(wholeOnes) == pixels ? std::make_optional(wholeOnes)
                                                                                : std::nullopt;
}

} // namespace

std::optional<PixelPainter> PixelPainter::on(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    if (!engine) {
        return std::nullopt; // it paints on a picture that there was no memory for
    }
    const QTransform transform = painter.deviceTransform();
    if (engine->type() != QPaintEngine::Raster || transform.type() > QTransform::TxScale
        || transform.m11() != transform.m22() || transform.m11() <= 0.0 || painter.opacity() != 1.0
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver) {
        return std::nullopt;
    }
    const auto *pixels = dynamic_cast<const QImage *>(engine->paintDevice());
    if (!pixels || pixels->width() < together
        || (pixels->format() != QImage::Format_RGB32 && pixels->format() != QImage::Format_ARGB32_Premultiplied)) {
        return std::nullopt;
    }
    QRegion clip = engine->systemClip();
    if (clip.isEmpty()) {
        clip = pixels->rect();
    } else if (!pixels->rect().contains(clip.boundingRect())) {
        clip &= pixels->rect();
    }
    if (painter.hasClipping()) {
        const auto own = ownClip(painter);
        if (!own) {
            return std::nullopt;
        }
        clip &= *own;
    }
    return PixelPainter(*pixels, QPointF(transform.dx(), transform.dy()), transform.m11(), clip);
}

PixelPainter::PixelPainter(const QImage &pixels, const QPointF &origin, double scale, const QRegion &clip)
    // The painter has made these pixels its own when it began; to ask for them to be written would copy them.
    : m_pixels(reinterpret_cast<std::uint32_t *>(const_cast<uchar *>(pixels.constBits())))
    , m_width(pixels.width())
    , m_stride(pixels.bytesPerLine() / std::ptrdiff_t(sizeof(std::uint32_t)))
    , m_origin(origin)
    , m_scale(scale)
    , m_clip(clip)
{
}

void PixelPainter::line(const QLineF &line, double width, const QColor &color) const
{
    const SoftLine soft(onPixels(line.p1()), onPixels(line.p2()), width * m_scale / 2.0, color);
    if (soft.isNothing()) {
        return;
    }
    const std::uint32_t shade = color.rgb(); // the stroke has the opacity
    const int lastRow = m_clip.boundingRect().bottom();
    const double beginOfInner = soft.beginOfInner();
    const double endOfInner = soft.endOfInner();
    const auto paintLineRow = [&](const QRect &part, int y) {
        if (y > beginOfInner && y < endOfInner) {
            fetchAhead(y, soft.middle(y + rowsAhead), lastRow);
            const auto [left, right] = soft.columns(y);
            paintRow(part, y, left, right, shade, soft.innerShares(y));
        } else {
            const auto [left, right] = soft.columnsAtEnds(y);
            paintRow(part, y, left, right, shade, soft.sharesAtEnds(y));
        }
    };
    forRows(
        soft.top(), soft.bottom(), [&soft](const QRect &rows) { return soft.isBeyond(rows); }, paintLineRow);
}

void PixelPainter::disc(const QPointF &centre, double radius, const QColor &color) const
{
    ring(centre, 0.0, 2.0 * radius, color);
}

void PixelPainter::ring(const QPointF &centre, double radius, double width, const QColor &color) const
{
    const QPointF middle = onPixels(centre);
    const double half = width * m_scale / 2.0;
    const double outer = radius * m_scale + half;
    const double inner = radius * m_scale - half;
    const Stroke stroke(half, color);
    const std::uint32_t shade = color.rgb(); // the stroke has the opacity
    const Floats scale = Four::all(float(stroke.scale()));
    const Floats line = Four::all(float(radius * m_scale));
    const auto isBeyond = [&](const QRect &rows) {
        return middle.x() + outer + reach < rows.left() || middle.x() - outer - reach > rows.right() + 1.0;
    };
    const auto paintRingRow = [&](const QRect &part, int y) {
        const double dy = y + 0.5 - middle.y();
        const auto chord = [dy](double of) { return of > std::fabs(dy) ? std::sqrt(of * of - dy * dy) : 0.0; };
        const double farthest = chord(outer + reach);
        const double nearest = chord(inner - reach);
        const Floats dx = Four::all(float(0.5 - middle.x()));
        const Floats square = Four::all(float(dy * dy));
        const auto shares = [&](Floats at) {
            const Floats offset = Four::add(at, dx);
            const Floats away = Four::root(Four::add(Four::multiply(offset, offset), square));
            return stroke.shares(Four::multiply(Four::subtract(away, line), scale));
        };
        // Pixels are painted several at a time, of which those behind the first part must not reach the second.
        if (nearest >= together / 2.0) {
            paintRow(part, y, middle.x() - farthest, middle.x() - nearest, shade, shares);
            paintRow(part, y, middle.x() + nearest, middle.x() + farthest, shade, shares);
        } else {
            paintRow(part, y, middle.x() - farthest, middle.x() + farthest, shade, shares);
        }
    };
    forRows(middle.y() - outer - reach, middle.y() + outer + reach, isBeyond, paintRingRow);
}

void PixelPainter::roundedRectangle(const QRectF &rectangle, double radius, const QColor &color) const
{
    // All that is as far away from a smaller rectangle as the corners are round.
    const double half = std::max(radius * m_scale, reach);
    const QPointF middle = onPixels(rectangle.center());
    const double width = std::max(0.0, rectangle.width() * m_scale / 2.0 - half);
    const double height = std::max(0.0, rectangle.height() * m_scale / 2.0 - half);
    const Stroke stroke(half, color);
    const Floats scale = Four::all(float(stroke.scale()));
    const Floats zero = Four::all(0.0F);
    const double left = middle.x() - width - half - reach;
    const double right = middle.x() + width + half + reach;
    const auto isBeyond = [left, right](const QRect &rows) { return right < rows.left() || left > rows.right() + 1.0; };
    const auto paintRectangleRow = [&](const QRect &part, int y) {
        const double dy = std::max(0.0, std::fabs(y + 0.5 - middle.y()) - height);
        const Floats dx = Four::all(float(0.5 - middle.x()));
        const Floats square = Four::all(float(dy * dy));
        paintRow(part, y, left, right, color.rgb(), [&](Floats at) {
            const Floats beyond = Four::subtract(Four::absolute(Four::add(at, dx)), Four::all(float(width)));
            const Floats aside = Four::most(beyond, zero);
            return stroke.shares(Four::multiply(Four::root(Four::add(Four::multiply(aside, aside), square)), scale));
        });
    };
    forRows(middle.y() - height - half - reach, middle.y() + height + half + reach, isBeyond, paintRectangleRow);
}

void PixelPainter::picture(const QPointF &at, const QImage &picture, const QPoint &origin) const
{
    const QPointF place = onPixels(at);
    const QPointF corner(std::floor(place.x() + 0.5) - origin.x(), std::floor(place.y() + 0.5) - origin.y());
    const QRect bounds = m_clip.boundingRect();
    if (!(corner.x() <= bounds.right() && corner.x() + picture.width() > bounds.left() && corner.y() <= bounds.bottom()
            && corner.y() + picture.height() > bounds.top())) {
        return; // and may be too far away for whole numbers
    }
    const QRect pixels(corner.toPoint(), picture.size());
    const auto *const first = reinterpret_cast<const std::uint32_t *>(picture.constBits());
    const std::ptrdiff_t stride = picture.bytesPerLine() / std::ptrdiff_t(sizeof(std::uint32_t));
    const bool isOpaque = picture.format() == QImage::Format_RGB32;
    const int bottom = std::min(pixels.bottom(), bounds.bottom());
    const auto isBeyond
        = [&pixels](const QRect &rows) { return pixels.right() < rows.left() || pixels.left() > rows.right(); };
    forRows(pixels.top(), bottom, isBeyond, [&](const QRect &part, int y) {
        const int begin = std::max(pixels.left(), part.left());
        const int count = std::min(pixels.right(), part.right()) + 1 - begin;
        const std::uint32_t *const pictured = first + (y - pixels.top()) * stride + (begin - pixels.left());
        std::uint32_t *const row = m_pixels + y * m_stride + begin;
        if (y + rowsAhead <= bottom) {
            for (const int column : {0, std::min(count, pixelsAtOnce)}) {
                Four::fetch(row + rowsAhead * m_stride + column);
                Four::fetch(pictured + rowsAhead * stride + column);
            }
        }
        if (isOpaque) {
            std::copy_n(pictured, count, row);
        } else {
            putRowOver(row, pictured, count);
        }
    });
}

//! Has the pixel at \a x, some rows after \a y, brought into the cache while others are painted.
void PixelPainter::fetchAhead(int y, double x, int lastRow) const
{
    if (y + rowsAhead <= lastRow && x > 0.0 && x < double(m_width)) {
        Four::fetch(m_pixels + (y + rowsAhead) * m_stride + int(x));
    }
}

/*!
 * Calls \a paint for each row of the clip, part by part, from \a top to \a bottom, but for the rows of those parts of
 * which \a isBeyond is true.
 */
template <typename IsBeyond, typename Paint>
void PixelPainter::forRows(double top, double bottom, const IsBeyond &isBeyond, const Paint &paint) const
{
    const QRect bounds = m_clip.boundingRect();
    if (!(top <= bounds.bottom() + 1.0) || !(bottom >= bounds.top())) {
        return;
    }
    const int first = int(std::max(top, double(bounds.top())));
    const int last = int(std::min(bottom, double(bounds.bottom())));
    // The parts of a region are ordered by their rows.
    const QRect *part = std::lower_bound(
        m_clip.begin(), m_clip.end(), first, [](const QRect &other, int row) { return other.bottom() < row; });
    for (; part != m_clip.end() && part->top() <= last; ++part) {
        const QRect rows(
            QPoint(part->left(), std::max(first, part->top())), QPoint(part->right(), std::min(last, part->bottom())));
        for (int y = isBeyond(rows) ? rows.bottom() + 1 : rows.top(); y <= rows.bottom(); ++y) {
            paint(rows, y);
        }
    }
}

/*!
 * The pixels of the row \a y of \a part between \a left and \a right, beyond which nothing is covered; \a shares is
 * asked by their columns.
 */
template <typename Shares>
void PixelPainter::paintRow(
    const QRect &part, int y, double left, double right, std::uint32_t color, const Shares &shares) const
{
    const double begin = std::max(left - 0.5, double(part.left()));
    const double last = std::min(right - 0.5, double(part.right()));
    if (!(begin <= last)) {
        return;
    }
    std::uint32_t *const row = m_pixels + y * m_stride;
    const int end = int(last) + 1;
    const int endOfPart = part.right() + 1;
    const int lastWhole = std::min(end - 1, endOfPart - together); // where four pixels that are in the part begin
    int x = wholeFrom(begin);
    for (; x <= lastWhole; x += together) {
        Four::blend(row + x, color, shares(Four::from(float(x))));
    }
    if (x < end) {
        // What is beyond the part stays as it is, but must be in the row.
        const int inRow = std::min(x, m_width - together);
        Four::blend(row + inRow, color, Four::only(shares(Four::from(float(inRow))), x - inRow, endOfPart - inRow));
    }
}

} // namespace ceiechart
