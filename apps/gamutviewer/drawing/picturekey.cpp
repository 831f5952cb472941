// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/picturekey.h"

#include "display/gamutfiles.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace gamutviewer {

namespace {

using ceiechart::DiagramContent;
using ceiechart::DiagramLayer;
using ceiechart::DiagramPainter;
using ceiechart::DiagramViewport;
using ceiechart::GamutRole;

// Pixels of 1/96 inch
constexpr int letterSizes[] = {13, 11, 9};
constexpr double lineLength = 32.0;
constexpr double gap = 8.0; // between columns, and between the key and what is round it
constexpr double longestNameHeights = 22.0; // in heights of a letter
constexpr double mostMaskSide = 1000.0;
constexpr int placeStep = 2;
constexpr double leastShare = 0.75; // of the diagram's scale, which a key beside it must leave

constexpr GamutRole order[]
    = {GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Declared, GamutRole::Standard};

double rowHeight(int letterSize)
{
    return std::ceil(1.5 * letterSize);
}

//! The ground, a line of the grid on it, and where two of them cross.
std::array<QRgb, 3> freeColors(const ceiechart::DiagramPalette &palette)
{
    QImage pixels(3, 1, QImage::Format_RGB32);
    pixels.fill(palette.ground);
    QPainter painter(&pixels);
    painter.fillRect(1, 0, 2, 1, palette.grid);
    painter.fillRect(2, 0, 1, 1, palette.grid);
    return {pixels.pixel(0, 0), pixels.pixel(1, 0), pixels.pixel(2, 0)};
}

//! Where a diagram leaves its ground free.
class FreeGround {
public:
    FreeGround(const DiagramContent &content, const DiagramViewport &view, const QSizeF &size)
        : m_scale(std::min(1.0, mostMaskSide / std::max(size.width(), size.height())))
        , m_width(std::max(1, int(size.width() * m_scale)))
        , m_height(std::max(1, int(size.height() * m_scale)))
        , m_free(freeColors(ceiechart::diagramPalette(content.ground)))
        , m_image(m_width, m_height, QImage::Format_RGB32)
    {
        // The grid may be covered, the horseshoe not even where it has no colours.
        const bool isColored
            = content.layers.testFlag(DiagramLayer::Colors) && content.colors != ceiechart::HorseshoeColors::None;
        const bool isPicture = QSizeF(m_width, m_height) == size;
        // Lines of the grid on whole pixels can be told from all else.
        m_isAsDrawn = isColored && isPicture;
        DiagramContent covering = content;
        if (!m_isAsDrawn) {
            covering.layers.setFlag(DiagramLayer::Grid, false);
            covering.layers.setFlag(DiagramLayer::Colors);
            covering.colors = ceiechart::HorseshoeColors::Full;
        }
        DiagramPainter diagram;
        diagram.setContent(covering);
        diagram.setViewport(view);
        if (m_image.isNull()) {
            return;
        }
        m_image.setDotsPerMeterX(pictureDotsPerMeter);
        m_image.setDotsPerMeterY(pictureDotsPerMeter);
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        diagram.paint(&painter, QRectF(QPointF(), size));
        const QMarginsF margins = diagram.margins(&m_image);
        painter.end();

        m_plot = QRectF(QPointF(), size).marginsRemoved(margins);
        m_sums.reserve(at(0, m_height + 1)); // takes no memory before they are written
        m_sums.resize(at(0, 1), 0);
    }

    //! The place of \a size nearest to a corner of the plot, the upper right one first of all.
    std::optional<QPointF> place(const QSizeF &size)
    {
        const QRectF room = m_plot.adjusted(gap, gap, -gap, -gap);
        const std::vector<Span> columns = spans(room.left(), room.right(), size.width(), m_width, Qt::RightEdge);
        const std::vector<Span> rows = spans(room.top(), room.bottom(), size.height(), m_height, Qt::TopEdge);
        std::optional<QPointF> best;
        double least = HUGE_VAL;
        for (const Span &row : rows) {
            for (const Span &column : columns) {
                const double distance = 2.0 * column.distance + row.distance;
                if (distance >= least) {
                    break;
                }
                if (isFree(column, row)) {
                    least = distance;
                    best = QPointF(column.from, row.from);
                }
            }
        }
        return best;
    }

    //! The picture of the diagram, if it had to be painted as it is drawn; or null. No place can be found from then on.
    QImage takePainted()
    {
        m_plot = QRectF();
        QImage painted;
        if (m_isAsDrawn) {
            m_image.swap(painted);
        }
        return painted;
    }

private:
    //! A place in one direction.
    struct Span {
        double from;
        double distance; // to the end of the room that is nearer, and more for the one that is liked less
        int firstPixel; // of the mask, which is to be free as those that follow
        int endPixel; // behind them
    };

    //! The places of \a length in the room from \a begin to \a end, the nearest to its ends first.
    std::vector<Span> spans(double begin, double end, double length, int pixels, Qt::Edge preferred) const
    {
        const bool isEndPreferred = preferred == Qt::RightEdge || preferred == Qt::BottomEdge;
        std::vector<Span> found;
        const double last = end - length;
        const double step = placeStep / m_scale;
        for (double fromEnd = 0.0; last - fromEnd >= begin; fromEnd += step) {
            const double from = last - fromEnd;
            const double fromBegin = from - begin;
            const bool isNearerToOther = isEndPreferred ? fromBegin < fromEnd : fromEnd < fromBegin;
            const double first = from - gap;
            found.push_back({from, std::min(fromBegin, fromEnd) + (isNearerToOther ? gap : 0.0),
                std::clamp(int(std::floor(first * m_scale)), 0, pixels),
                std::clamp(int(std::ceil((first + (length + gap + gap)) * m_scale)), 0, pixels)});
        }
        std::stable_sort(
            found.begin(), found.end(), [](const Span &a, const Span &b) { return a.distance < b.distance; });
        return found;
    }

    std::size_t at(int x, int y) const { return std::size_t(y) * std::size_t(m_width + 1) + std::size_t(x); }

    bool isFree(const Span &column, const Span &row)
    {
        sumUpTo(row.endPixel);
        return m_sums[at(column.endPixel, row.endPixel)] - m_sums[at(column.firstPixel, row.endPixel)]
            - m_sums[at(column.endPixel, row.firstPixel)] + m_sums[at(column.firstPixel, row.firstPixel)]
            == 0;
    }

    //! Sums the rows above \a end that have not been summed. Most keys have a place at the top, which takes a few rows.
    void sumUpTo(int end)
    {
        for (int y = int(m_sums.size() / at(0, 1)) - 1; y < end; ++y) {
            m_sums.resize(at(0, y + 2), 0);
            const auto *line = reinterpret_cast<const QRgb *>(m_image.constScanLine(y));
            const int *above = &m_sums[at(0, y)];
            int *sums = &m_sums[at(0, y + 1)];
            int inLine = 0;
            for (int x = 0; x < m_width; ++x) {
                inLine += line[x] != m_free[0] && line[x] != m_free[1] && line[x] != m_free[2];
                sums[x + 1] = above[x + 1] + inLine;
            }
        }
    }

    double m_scale;
    int m_width;
    int m_height;
    std::array<QRgb, 3> m_free;
    QImage m_image;
    bool m_isAsDrawn = false;
    std::vector<int> m_sums; // of what is drawn above and to the left of a pixel, for the rows summed up to now
    QRectF m_plot;
};

//! The picture without a strip for the key, on the side where that leaves the diagram larger.
std::optional<PictureLayout> keyBeside(const PictureKey &key, const DiagramViewport &view, const QSizeF &size)
{
    PictureLayout right;
    right.key = key;
    right.diagram = QRectF(0.0, 0.0, size.width() - key.size().width() - gap, size.height());
    right.keyPlace = QPointF(right.diagram.right(), gap);
    PictureLayout below = right;
    below.diagram = QRectF(0.0, 0.0, size.width(), size.height() - key.size().height() - gap);
    below.keyPlace = QPointF(gap, below.diagram.bottom());
    const auto share = [&](const PictureLayout &layout) {
        const bool fits = QRectF(QPointF(), size)
                              .adjusted(gap, gap, -gap, -gap)
                              .intersected(QRectF(layout.keyPlace, key.size()))
                              .size()
            == key.size();
        return fits && layout.diagram.isValid()
            ? view.resized(layout.diagram.size()).scale() / view.resized(size).scale()
            : 0.0;
    };
    const PictureLayout &better = share(right) >= share(below) ? right : below;
    return share(better) >= leastShare ? std::make_optional(better) : std::nullopt;
}

} // namespace

PictureKey::PictureKey(const DiagramContent &content, int pixelSize)
    : m_ground(content.ground)
{
    m_font.setPixelSize(pixelSize);
    const QFontMetricsF metrics(m_font);
    m_rowHeight = rowHeight(pixelSize);
    double roleWidth = 0.0;
    for (const GamutRole role : order) {
        for (const ceiechart::DiagramGamut &gamut : content.gamuts) {
            if (gamut.role != role || !content.shows(gamut)) {
                continue;
            }
            const QString name
                = metrics.elidedText(nameOf(gamut.gamut), Qt::ElideMiddle, longestNameHeights * pixelSize);
            m_rows.append({role, name, ceiechart::gamutRoleName(role)});
            m_nameWidth = std::max(m_nameWidth, std::ceil(metrics.horizontalAdvance(name)));
            roleWidth = std::max(roleWidth, std::ceil(metrics.horizontalAdvance(m_rows.last().roleName)));
        }
    }
    if (!m_rows.isEmpty()) {
        m_size = QSizeF(lineLength + m_nameWidth + roleWidth + 2.0 * gap, m_rowHeight * m_rows.size());
    }
}

void PictureKey::paint(QPainter *painter, const QPointF &at) const
{
    if (isEmpty()) {
        return; // not even its ground, with the room round it
    }
    const ceiechart::DiagramPalette &palette = ceiechart::diagramPalette(m_ground);
    const QFontMetricsF metrics(m_font);
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter->setFont(m_font);
    painter->fillRect(
        QRectF(at, m_size).adjusted(-gap / 2.0, -gap / 2.0, gap / 2.0, gap / 2.0), palette.ground); // over the grid
    QRectF row(at, QSizeF(m_size.width(), m_rowHeight));
    for (const Row &entry : m_rows) {
        DiagramPainter::paintKeyLine(
            painter, QRectF(row.topLeft(), QSizeF(lineLength, m_rowHeight)), entry.role, m_ground);
        const double base = row.top() + (m_rowHeight + metrics.ascent() - metrics.descent()) / 2.0;
        const double name = row.left() + lineLength + gap;
        painter->setPen(palette.text);
        painter->drawText(QPointF(name, base), entry.name);
        painter->setPen(palette.numbers);
        painter->drawText(QPointF(name + m_nameWidth + gap, base), entry.roleName);
        row.translate(0.0, m_rowHeight);
    }
    painter->restore();
}

PictureLayout layOutPicture(const DiagramContent &content, const DiagramViewport &view, const QSizeF &size)
{
    PictureLayout layout;
    layout.diagram = QRectF(QPointF(), size);
    const auto rows = std::count_if(content.gamuts.begin(), content.gamuts.end(),
        [&content](const ceiechart::DiagramGamut &gamut) { return content.shows(gamut); });
    std::optional<FreeGround> ground;
    for (const int letterSize : letterSizes) {
        // With many gamuts it takes long to make the key, and to find out where there is room.
        if (rows == 0 || rows * rowHeight(letterSize) > size.height()) {
            continue;
        }
        const PictureKey key(content, letterSize);
        if (!ground) {
            ground.emplace(content, view, size);
        }
        if (const auto place = ground->place(key.size())) {
            layout.key = key;
            layout.keyPlace = *place;
            layout.painted = ground->takePainted();
            if (!layout.painted.isNull()) {
                QPainter painter(&layout.painted);
                key.paint(&painter, layout.keyPlace);
            }
            return layout;
        }
        if (const auto beside = keyBeside(key, view, size)) {
            return *beside;
        }
    }
    if (ground) {
        layout.painted = ground->takePainted();
    }
    return layout;
}

} // namespace gamutviewer
