// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramcolors_p.h>
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/rowcoverage_p.h>
#include <ceiechart/diagram/spectrum_p.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace ceiechart {

namespace {

const CEIAtlasValue::TColorSystem &colorSystemOf(const Model::DiagramTraits &traits)
{
    static const CEIAtlasValue atlas;
    return traits.yFactor == 0.0 ? atlas.colorSystem : uvColorSystem;
}

constexpr int bandHeight = 16; // rows: what is filled or scrolled is still in the cache when it is painted

//! The fill for a picture of \a size of which the middles of the pixels count.
HorseshoeFill fillFor(const ColorsRequest &request, const QSize &size)
{
    const Model::DiagramTraits &traits = Model::diagramTraits(request.viewport.diagram());
    // The uniform diagrams are coloured in u′, v′ and differ in the scale of the second coordinate only.
    const double yScale
        = traits.yFactor == 0.0 ? 1.0 : Model::diagramTraits(Model::Diagram::Cie1976).yFactor / traits.yFactor;
    const double ratio = request.devicePixelRatio;
    const QPointF topLeft = request.viewport.toPoint(QPointF());
    const QPointF bottomRight = request.viewport.toPoint(QPointF(size.width() / ratio, size.height() / ratio));
    HorseshoeFill fill{DiagramGeometry(), colorSystemOf(traits), 1.0};
    fill.geometry.set(QRectF(-0.5, -0.5, size.width() - 0.5, size.height() - 0.5),
        QRectF(topLeft.x(), bottomRight.y() * yScale, bottomRight.x() - topLeft.x(),
            (topLeft.y() - bottomRight.y()) * yScale));
    return fill;
}

QPolygonF inPixels(const ColorsRequest &request, const QPolygonF &points)
{
    QPolygonF pixels = request.viewport.fromPoints(points);
    for (QPointF &point : pixels) {
        point *= request.devicePixelRatio;
    }
    return pixels;
}

inline QRgb mean(QRgb a, QRgb b)
{
    return (a & b) + (((a ^ b) & 0xfefefefeU) >> 1);
}

inline QRgb mixed(QRgb a, QRgb b, int alphaOfA)
{
    const auto channel = [=](int shift) {
        const int first = int(a >> shift & 0xffU);
        const int second = int(b >> shift & 0xffU);
        return QRgb((first * alphaOfA + second * (255 - alphaOfA) + 127) / 255) << shift;
    };
    return 0xff000000U | channel(16) | channel(8) | channel(0);
}

//! Colours any part of a picture, or of the band of its rows that is at hand.
class Filler {
public:
    //! \a locus and \a full are the coverages for \a request.
    Filler(const ColorsRequest &request, QImage &image, RowCoverage &locus, RowCoverage &full)
        : m_image(image)
        , m_plot(request.plot())
        , m_ground(request.ground.rgb())
        , m_colored(request.colors != HorseshoeColors::None)
        , m_dimmed(request.colors == HorseshoeColors::Dimmed)
        , m_fill(fillFor(request, request.size()))
        , m_rows(m_fill, fastestFillKernel())
        , m_locus(locus)
        , m_full(full)
    {
    }

    //! From here on, the image holds the rows from \a row on.
    void setFirstRow(int row) { m_firstRow = row; }

    void fill(const QRect &area)
    {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            fill(y, area.left(), area.right() + 1);
        }
    }

    //! The row \a y from column \a left to before \a right, as far as it lies in the plot.
    void fill(int y, int left, int right)
    {
        auto *line = reinterpret_cast<QRgb *>(m_image.bits() + qsizetype(y - m_firstRow) * m_image.bytesPerLine());
        if (!m_colored || y < m_plot.top() || y > m_plot.bottom()) {
            std::fill(line + left, line + right, m_ground);
            return;
        }
        const int first = std::clamp(m_plot.left(), left, right);
        const int end = std::clamp(m_plot.right() + 1, first, right);
        std::fill(line + left, line + first, m_ground);
        std::fill(line + end, line + right, m_ground);

        const CoveredRow locus = m_locus.row(y);
        const CoveredRun *run = locus.begin();
        const CoveredRun *behind = locus.end();
        while (run != behind && (run->right <= first || run->alpha == 0)) {
            ++run;
        }
        if (run == behind || run->left >= end) {
            std::fill(line + first, line + end, m_ground);
            return;
        }
        const int begin = std::max(run->left, first);
        std::fill(line + first, line + begin, m_ground);
        while ((behind - 1)->alpha == 0 || (behind - 1)->left >= end) {
            --behind;
        }
        const int stop = std::min((behind - 1)->right, end);
        std::fill(line + stop, line + end, m_ground);
        m_rows.color(line + begin, begin, stop - 1, y);
        if (m_dimmed) {
            dim(line, y, begin, stop);
        }
        for (; run != behind; ++run) {
            const int to = std::min(run->right, stop);
            for (int x = std::max(run->left, begin); run->alpha < 255 && x < to; ++x) {
                line[x] = mixed(line[x], m_ground, run->alpha);
            }
        }
    }

private:
    void dim(QRgb *line, int y, int left, int right)
    {
        for (const CoveredRun &run : m_full.row(y)) {
            const int from = std::max(run.left, left);
            const int to = std::min(run.right, right);
            if (run.alpha == 0) {
                for (int x = from; x < to; ++x) {
                    line[x] = mean(line[x], m_ground);
                }
            } else if (run.alpha < 255) {
                for (int x = from; x < to; ++x) {
                    line[x] = mixed(line[x], mean(line[x], m_ground), run.alpha);
                }
            }
        }
    }

    QImage &m_image;
    int m_firstRow = 0;
    QRect m_plot;
    QRgb m_ground;
    bool m_colored;
    bool m_dimmed;
    HorseshoeFill m_fill;
    RowFill m_rows;
    RowCoverage &m_locus;
    RowCoverage &m_full;
};

RowCoverage locusCoverage(const ColorsRequest &request, const QSize &size)
{
    if (request.colors == HorseshoeColors::None) {
        return RowCoverage();
    }
    const QPolygonF &locus = spectralLocusIn(request.viewport.diagram(), spectrumDetail(request.viewport.scale()));
    return RowCoverage(inPixels(request, locus), size.width(), size.height());
}

//! Of \a full, in the diagram's own coordinates.
RowCoverage fullCoverage(const ColorsRequest &request, const QPolygonF &full, const QSize &size)
{
    return request.colors == HorseshoeColors::Dimmed ? RowCoverage(inPixels(request, full), size.width(), size.height())
                                                     : RowCoverage();
}

bool sameExceptPlace(const ColorsRequest &a, const ColorsRequest &b)
{
    return a.devicePixelRatio == b.devicePixelRatio && a.colors == b.colors && a.ground == b.ground
        && a.viewport.diagram() == b.viewport.diagram() && a.viewport.size() == b.viewport.size()
        && a.viewport.margins() == b.viewport.margins() && a.viewport.zoom() == b.viewport.zoom();
}

//! By how many whole device pixels the diagram moves from \a from to \a to, if it is that.
std::optional<QPoint> wholePixels(const ColorsRequest &from, const ColorsRequest &to)
{
    constexpr double tolerance = 1e-6; // pixels: so little that thousands of scrolls do not add up to anything seen
    constexpr double farthest = 1e6;
    const QPointF middle = to.viewport.plot().center();
    const QPointF way = (to.viewport.fromPoint(from.viewport.toPoint(middle)) - middle) * to.devicePixelRatio;
    if (!(std::fabs(way.x()) < farthest && std::fabs(way.y()) < farthest)) {
        return std::nullopt;
    }
    const QPoint whole = way.toPoint();
    const QPointF rest = way - whole;
    return std::max(std::fabs(rest.x()), std::fabs(rest.y())) < tolerance ? std::make_optional(whole) : std::nullopt;
}

//! Scrolls the plot of a picture, a row after another, and fills what is exposed.
class Scroll {
public:
    Scroll(QImage &image, const QRect &plot, const QPoint &way, Filler &filler)
        : m_image(image)
        , m_plot(plot)
        , m_kept(plot.translated(way).intersected(plot))
        , m_way(way)
        , m_filler(filler)
    {
    }

    //! Whether the rows below are to be scrolled first, as they are where those above go.
    bool isUpwards() const { return m_way.y() > 0; }

    void scrollRow(int y)
    {
        if (y < m_plot.top() || y > m_plot.bottom()) {
            return;
        }
        const int end = m_plot.right() + 1;
        if (m_kept.isEmpty() || y < m_kept.top() || y > m_kept.bottom()) {
            m_filler.fill(y, m_plot.left(), end);
            return;
        }
        std::memmove(pixel(m_kept.left(), y), pixel(m_kept.left() - m_way.x(), y - m_way.y()),
            size_t(m_kept.width()) * sizeof(QRgb));
        if (m_kept.left() > m_plot.left()) {
            m_filler.fill(y, m_plot.left(), m_kept.left());
        }
        if (m_kept.right() + 1 < end) {
            m_filler.fill(y, m_kept.right() + 1, end);
        }
    }

private:
    uchar *pixel(int x, int y) const
    {
        return m_image.bits() + y * m_image.bytesPerLine() + x * qsizetype(sizeof(QRgb));
    }

    QImage &m_image; // which may have to be copied for each row, as painters may keep it
    QRect m_plot;
    QRect m_kept;
    QPoint m_way;
    Filler &m_filler;
};

//! The rows of \a plot in which the polygons \a a and \a b in pixels may cover different shares: those of sides that
//! only one of them has.
QRect rowsOfDifference(const QPolygonF &a, const QPolygonF &b, const QRect &plot)
{
    double top = plot.bottom() + 1.0;
    double bottom = plot.top();
    const auto addOthers = [&](const QPolygonF &some, const QPolygonF &others) {
        for (int i = 0; i < some.size(); ++i) {
            const QPointF &from = some.at(i);
            const QPointF &to = some.at((i + 1) % some.size());
            bool isShared = false;
            for (int k = 0; k < others.size() && !isShared; ++k) {
                isShared = isExactly(from, others.at(k)) && isExactly(to, others.at((k + 1) % others.size()));
            }
            if (!isShared) {
                top = std::min({top, from.y(), to.y()});
                bottom = std::max({bottom, from.y(), to.y()});
            }
        }
    };
    addOthers(a, b);
    addOthers(b, a);
    const int first = int(std::floor(std::max(top, double(plot.top()))));
    const int end = int(std::ceil(std::min(bottom, plot.bottom() + 1.0)));
    return QRect(plot.left(), first, plot.width(), end - first);
}

//! Fills where the coverages \a before and \a after differ, in \a plot.
void fillDifference(Filler &filler, RowCoverage &before, RowCoverage &after, const QRect &plot, QRegion &changed)
{
    const int leftOfPlot = plot.left();
    const int endOfPlot = plot.right() + 1;
    int top = plot.bottom() + 1; // of what differs
    int bottom = plot.top() - 1;
    int least = endOfPlot;
    int farthest = leftOfPlot;
    for (int y = plot.top(); y <= plot.bottom(); ++y) {
        const CoveredRow now = after.row(y);
        const CoveredRow then = before.row(y);
        const auto fill = [&](int left, int right) {
            left = std::max(left, leftOfPlot);
            right = std::min(right, endOfPlot);
            if (left < right) {
                filler.fill(y, left, right);
                top = std::min(top, y);
                bottom = y;
                least = std::min(least, left);
                farthest = std::max(farthest, right);
            }
        };
        const CoveredRun *run = now.begin();
        const CoveredRun *formerRun = then.begin();
        int x = 0;
        int begin = 0; // of the columns that differ up to x
        while (run != now.end() && formerRun != then.end()) {
            const int end = std::min(run->right, formerRun->right);
            if (run->alpha == formerRun->alpha) {
                fill(begin, x);
                begin = end;
            }
            x = end;
            run += run->right == end ? 1 : 0;
            formerRun += formerRun->right == end ? 1 : 0;
        }
        fill(begin, x);
    }
    changed += QRect(least, top, farthest - least, bottom + 1 - top);
}

/*!
 * Calls \a put with the rows of \a area, some after the others, in a picture as wide as the whole, and the first row of
 * each such band. Bands may overlap.
 *
 * \param locus the coverages for \a request, as \a full
 */
template <typename Put>
void fillInBands(const ColorsRequest &request, const QRect &area, RowCoverage &locus, RowCoverage &full, const Put &put)
{
    const int height = std::min(bandHeight, area.height());
    QImage band(request.size().width(), height, QImage::Format_RGB32);
    if (band.isNull()) {
        return; // without memory, as a whole picture of them
    }
    band.setDevicePixelRatio(request.devicePixelRatio);
    Filler filler(request, band, locus, full);
    for (int next = area.top(); next <= area.bottom(); next += height) {
        const int top = std::min(next, area.bottom() + 1 - height);
        filler.setFirstRow(top);
        filler.fill(QRect(area.left(), top, area.width(), height));
        put(band, top);
    }
}

} // namespace

QSize ColorsRequest::size() const
{
    return QSize(std::max(1, qRound(viewport.size().width() * devicePixelRatio)),
        std::max(1, qRound(viewport.size().height() * devicePixelRatio)));
}

QRect ColorsRequest::plot() const
{
    const QRectF area = viewport.plot();
    const QPoint topLeft = (area.topLeft() * devicePixelRatio).toPoint();
    const QPoint end = (area.bottomRight() * devicePixelRatio).toPoint();
    return QRect(topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())).intersected(QRect(QPoint(), size()));
}

const QImage &DiagramColors::update(const ColorsRequest &request, QRegion *changed, QPoint *scrolled)
{
    QRegion filled;
    QPoint way;
    const QSize size = request.size();
    const QRect plot = request.plot();
    const auto distance = m_isKept && m_image.size() == size && sameExceptPlace(m_request, request)
        ? wholePixels(m_request, request)
        : std::nullopt;
    m_isKept = false; // should the memory be too short for the rest
    if (!distance) {
        if (m_image.size() != size) {
            m_image = QImage(size, QImage::Format_RGB32);
        }
        m_image.setDevicePixelRatio(request.devicePixelRatio);
        m_locus = locusCoverage(request, size);
        m_full = fullCoverage(request, request.full, size);
        Filler(request, m_image, m_locus, m_full).fill(m_image.rect());
        filled = m_image.rect();
    } else {
        const bool isMoved = !distance->isNull();
        const bool isOtherFull = request.colors == HorseshoeColors::Dimmed && m_request.full != request.full;
        if (isMoved) {
            m_locus = locusCoverage(request, size);
            m_full = fullCoverage(request, m_request.full, size);
        }
        RowCoverage before;
        if (isOtherFull) {
            before = std::exchange(m_full, fullCoverage(request, request.full, size));
        }
        Filler filler(request, m_image, m_locus, m_full);
        if (isMoved) {
            way = *distance;
            Scroll scroll(m_image, plot, way, filler);
            for (int i = 0; i < plot.height(); ++i) {
                scroll.scrollRow(scroll.isUpwards() ? plot.bottom() - i : plot.top() + i);
            }
            filled += QRegion(plot) - plot.translated(way);
        }
        if (isOtherFull) {
            const QRect rows
                = rowsOfDifference(inPixels(request, m_request.full), inPixels(request, request.full), plot);
            fillDifference(filler, before, m_full, rows, filled);
        }
    }
    m_request = request;
    m_isKept = true;
    if (changed) {
        *changed = filled;
    }
    if (scrolled) {
        *scrolled = way;
    }
    return m_image;
}

void DiagramColors::paint(QPainter *painter, const ColorsRequest &request)
{
    // At other ratios the edges of bands could fall between pixels.
    const bool hasWholeEdges = request.devicePixelRatio == 1.0 || request.devicePixelRatio == 2.0;
    const auto distance = sameExceptPlace(m_request, request) ? wholePixels(m_request, request) : std::nullopt;
    if (hasWholeEdges && distance && !distance->isNull() && m_isKept && m_image.size() == request.size()
        && m_request.full == request.full) {
        paintScrolled(painter, request, *distance);
        return;
    }
    if (!hasWholeEdges || distance) {
        painter->drawImage(QPointF(), update(request, nullptr, nullptr));
        return;
    }
    const QSize size = request.size();
    m_isKept = false;
    m_locus = locusCoverage(request, size);
    m_full = fullCoverage(request, request.full, size);
    fillInBands(request, QRect(QPoint(), size), m_locus, m_full,
        [&](const QImage &band, int top) { painter->drawImage(QPointF(0.0, top / request.devicePixelRatio), band); });
    m_request = request;
}

bool DiagramColors::write(const PixelPainter &pixels, const ColorsRequest &request)
{
    constexpr double tolerance = 1e-6; // pixels
    constexpr double longest = 32767.0; // sides of pictures that the raster engine paints on
    const auto areEqual = [](double a, double b) { return std::fabs(a - b) < tolerance; };
    const auto isWhole = [&areEqual](double value) { return areEqual(value, std::round(value)); };
    const QSizeF exact = request.viewport.size() * pixels.scale();
    const QPointF origin = pixels.origin();
    if (request.devicePixelRatio != pixels.scale() || exact.width() > longest || exact.height() > longest
        || !isWhole(origin.x()) || !isWhole(origin.y())) {
        return false;
    }
    const QSize size = request.size();
    if (!areEqual(exact.width(), size.width()) || !areEqual(exact.height(), size.height())) {
        return false;
    }
    const QRectF needed = QRectF(pixels.bounds()).translated(-origin) & QRectF(QPointF(), size);
    if (!needed.isEmpty()) {
        RowCoverage locus = locusCoverage(request, size);
        RowCoverage full = fullCoverage(request, request.full, size);
        fillInBands(request, needed.toRect(), locus, full, [&pixels](const QImage &band, int top) {
            pixels.picture(QPointF(0.0, top / pixels.scale()), band, QPoint());
        });
    }
    return true;
}

void DiagramColors::paintScrolled(QPainter *painter, const ColorsRequest &request, const QPoint &way)
{
    const QSize size = request.size();
    m_isKept = false; // until the whole picture is scrolled
    m_locus = locusCoverage(request, size);
    m_full = fullCoverage(request, request.full, size);
    Filler filler(request, m_image, m_locus, m_full);
    Scroll scroll(m_image, request.plot(), way, filler);
    for (int done = 0; done < size.height(); done += bandHeight) {
        const int height = std::min(bandHeight, size.height() - done);
        const int top = scroll.isUpwards() ? size.height() - done - height : done;
        for (int i = 0; i < height; ++i) {
            scroll.scrollRow(scroll.isUpwards() ? top + height - 1 - i : top + i);
        }
        painter->drawImage(QPointF(0.0, top / request.devicePixelRatio), m_image, QRectF(0, top, size.width(), height));
    }
    m_request = request;
    m_isKept = true;
}

} // namespace ceiechart
