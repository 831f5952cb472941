// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/drawlist_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ceiechart {

/*! \brief What a list is painted on, and which part of it. */
struct PaintTarget {
    QPainter &painter;
    std::optional<PixelPainter> pixels; //!< of the painter, which is slower
    const QRegion &needed; //!< empty where everything is needed
};

namespace {

//! Whether positions on the device are whole pixels of a picture that is looked at as it is.
bool hasPixels(const QPainter &painter)
{
    switch (painter.paintEngine()->type()) {
    case QPaintEngine::SVG:
    case QPaintEngine::Pdf:
    case QPaintEngine::Picture:
    case QPaintEngine::MacPrinter:
        return false;
    default:
        return painter.deviceTransform().type() <= QTransform::TxScale;
    }
}

/*!
 * Adds the pieces of the line through \a points, each a little longer so that no seam shows.
 *
 * The raster engine paints straight lines with flat ends many times faster than the outline of a polygon.
 */
void addPieces(QVector<QLineF> &pieces, const QPolygonF &points, bool closed)
{
    constexpr double overlap = 0.3;
    const int count = int(points.size()) - (closed ? 0 : 1);
    for (int i = 0; i < count; ++i) {
        const QPointF &from = points.at(i);
        const QPointF &to = points.at((i + 1) % points.size());
        const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
        if (length > 0.0) {
            const QPointF more = (to - from) * (overlap / length);
            pieces.append(QLineF(closed || i > 0 ? from - more : from, closed || i + 1 < count ? to + more : to));
        }
    }
}

//! Rounds corners that are sharp enough to show a notch between two pieces.
void addCorners(QVector<QPointF> &corners, const QPolygonF &points, bool closed)
{
    constexpr double straight = 0.98; // cosine
    const int count = int(points.size());
    for (int i = closed ? 0 : 1; i < count - (closed ? 0 : 1); ++i) {
        const QPointF in = points.at(i) - points.at((i + count - 1) % count);
        const QPointF out = points.at((i + 1) % count) - points.at(i);
        const double lengths = std::hypot(in.x(), in.y()) * std::hypot(out.x(), out.y());
        if (QPointF::dotProduct(in, out) < straight * lengths) {
            corners.append(points.at(i));
        }
    }
}

QRectF widened(const QRectF &bounds, double room)
{
    return bounds.adjusted(-room, -room, room, room);
}

//! How far a line may reach to either side of its points, with caps and smooth edges.
double roomOf(const QPen &pen)
{
    return pen.widthF() + 2.0;
}

//! What \a lines cover together.
QRectF boundsOf(const QVector<QLineF> &lines, const QPen &pen)
{
    QPolygonF ends;
    for (const QLineF &line : lines) {
        ends << line.p1() << line.p2();
    }
    return widened(ends.boundingRect(), roomOf(pen));
}

//! Whether \a meetsIt is true of some part of \a region within the rows of \a bounds.
template <typename Meets>
bool isSomePartMet(const QRegion &region, const QRect &bounds, const Meets &meetsIt)
{
    // The parts of a region are ordered by their rows.
    const QRect *part = std::lower_bound(
        region.begin(), region.end(), bounds.top(), [](const QRect &other, int top) { return other.bottom() < top; });
    return std::any_of(part,
        std::find_if(part, region.end(), [&bounds](const QRect &other) { return other.top() > bounds.bottom(); }),
        meetsIt);
}

//! \a bounds as far as they are within those of \a needed.
QRect alignedWithin(const QRectF &bounds, const QRegion &needed)
{
    return (bounds & QRectF(needed.boundingRect())).toAlignedRect();
}

//! Whether some of \a bounds lies in \a needed, which is empty where everything is needed.
bool isNeeded(const QRectF &bounds, const QRegion &needed)
{
    const QRect box = alignedWithin(bounds, needed);
    return needed.isEmpty() || isSomePartMet(needed, box, [&box](const QRect &part) { return part.intersects(box); });
}

//! Removes from \a lines those of which nothing is needed. Each line is painted by itself, so that the rest stays as it
//! is.
void keepNeeded(QVector<QLineF> &lines, const QPen &pen, const QRegion &needed)
{
    if (!needed.isEmpty()) {
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                        [&, room = roomOf(pen)](const QLineF &line) { return !isLineNeeded(line, room, needed); }),
            lines.end());
    }
}

//! Separate lines with flat ends.
void paintLines(const PaintTarget &target, QVector<QLineF> lines, const QPen &pen)
{
    if (target.pixels) {
        for (const QLineF &line : qAsConst(lines)) {
            target.pixels->line(line, pen.widthF(), pen.color());
        }
        return;
    }
    keepNeeded(lines, pen, target.needed);
    target.painter.setPen(pen);
    target.painter.drawLines(lines);
}

//! Dots as wide as \a pen.
void paintDots(const PaintTarget &target, const QVector<QPointF> &middles, const QPen &pen)
{
    const double radius = pen.widthF() / 2.0;
    target.painter.setPen(Qt::NoPen);
    target.painter.setBrush(pen.color());
    for (const QPointF &middle : middles) {
        if (target.pixels) {
            target.pixels->disc(middle, radius, pen.color());
        } else if (isNeeded(widened(QRectF(middle, middle), roomOf(pen)), target.needed)) {
            target.painter.drawEllipse(middle, radius, radius);
        }
    }
}

void paintPieces(const PaintTarget &target, const QPolygonF &points, bool closed, QPen pen)
{
    QVector<QLineF> pieces;
    QVector<QPointF> corners;
    if (pen.style() == Qt::SolidLine) {
        addPieces(pieces, points, closed);
        addCorners(corners, points, closed);
    } else {
        std::vector<double> pattern;
        for (const qreal part : pen.dashPattern()) {
            pattern.push_back(part * pen.widthF());
        }
        for (const QPolygonF &dash : dashesOf(points, closed, pattern, pen.dashOffset() * pen.widthF())) {
            addPieces(pieces, dash, false);
            addCorners(corners, dash, false);
        }
        pen.setStyle(Qt::SolidLine);
    }
    pen.setCapStyle(Qt::FlatCap);
    paintLines(target, pieces, pen);
    paintDots(target, corners, pen);
}

//! What \a marks, of which there is one, cover together.
QRectF boundsOf(const QVector<PlacedMark> &marks)
{
    QPointF least = marks.first().at;
    QPointF most = least;
    for (const PlacedMark &mark : marks) {
        least = QPointF(std::min(least.x(), mark.at.x()), std::min(least.y(), mark.at.y()));
        most = QPointF(std::max(most.x(), mark.at.x()), std::max(most.y(), mark.at.y()));
    }
    return widened(QRectF(least, most), markReach);
}

} // namespace

bool isRaster(const QPainter &painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster
        && painter.deviceTransform().type() <= QTransform::TxScale;
}

bool isLineNeeded(const QLineF &line, double room, const QRegion &needed)
{
    // The bounds of a slanting line meet much that the line does not.
    const QRect box = alignedWithin(widened(QRectF(line.p1(), line.p2()).normalized(), room), needed);
    return needed.isEmpty() || isSomePartMet(needed, box, [&](const QRect &part) {
        return part.intersects(box) && meets(line, widened(QRectF(part), room));
    });
}

void DrawList::hairline(const QLineF &line, const QColor &color)
{
    constexpr double room = 2.0; // for the way to whole pixels
    m_items.push_back({widened(QRectF(line.p1(), line.p2()).normalized(), room), Hairline{line, color}});
}

void DrawList::line(const QPolygonF &points, bool closed, const QPen &pen)
{
    m_items.push_back({widened(points.boundingRect(), roomOf(pen)), Line{points, closed, pen}});
}

void DrawList::lines(const QVector<QLineF> &lines, const QPen &pen)
{
    m_items.push_back({boundsOf(lines, pen), Lines{lines, pen}});
}

void DrawList::shape(const QPainterPath &path, const QPen &pen, const QBrush &brush)
{
    m_items.push_back({widened(path.controlPointRect(), roomOf(pen)), Shape{path, pen, brush}});
}

void DrawList::roundedRectangle(const QRectF &rectangle, double radius, const QColor &color)
{
    constexpr double softEdge = 1.0;
    m_items.push_back({widened(rectangle, softEdge), RoundedRectangle{rectangle, radius, color}});
}

void DrawList::ellipse(const QPointF &centre, double radiusX, double radiusY, const QPen &pen, const QBrush &brush)
{
    const QPointF reach(radiusX, radiusY);
    m_items.push_back(
        {widened(QRectF(centre - reach, centre + reach), roomOf(pen)), Ellipse{centre, radiusX, radiusY, pen, brush}});
}

void DrawList::text(
    const QPointF &at, const QString &text, const TextStyle &style, const QColor &color, const QColor &casing)
{
    addText(at, QRectF(at - QPointF(0.0, style.ascent()), style.size(text)), text, style, color, casing);
}

void DrawList::textIn(
    const QRectF &place, const QString &text, const TextStyle &style, const QColor &color, const QColor &casing)
{
    addText(QPointF(place.left(), place.top() + style.ascent()), place, text, style, color, casing);
}

void DrawList::addText(const QPointF &at, const QRectF &place, const QString &text, const TextStyle &style,
    const QColor &color, const QColor &casing)
{
    // Glyphs may lean out of their place, and marks be stacked above letters.
    m_items.push_back({widened(place, casingWidth + style.height() / 2.0), Text{at, text, style, color, casing}});
}

void DrawList::marks(const QVector<PlacedMark> &marks)
{
    if (!marks.isEmpty()) {
        m_items.push_back({boundsOf(marks), Marks{marks}});
    }
}

void DrawList::paint(QPainter *painter, const QRegion &needed) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const PaintTarget target{*painter, PixelPainter::on(*painter), needed};
    for (const Item &item : m_items) {
        if (isNeeded(item.bounds, needed)) {
            std::visit([&](const auto &which) { paintItem(target, which); }, item.what);
        }
    }
    painter->restore();
}

void DrawList::paintItem(const PaintTarget &target, const Hairline &item)
{
    QPainter *const painter = &target.painter;
    if (!hasPixels(*painter)) {
        painter->setPen(QPen(item.color, 1.0, Qt::SolidLine, Qt::FlatCap));
        painter->drawLine(item.line);
        return;
    }
    const QTransform transform = painter->deviceTransform();
    const bool isLevel = std::fabs(item.line.dy()) < std::fabs(item.line.dx());
    const double scale = std::fabs(isLevel ? transform.m22() : transform.m11());
    const double thickness = std::max(1.0, std::floor(scale));
    const QRectF along = transform.mapRect(QRectF(item.line.p1(), item.line.p2()).normalized());
    QRectF pixels;
    if (isLevel) {
        const double left = std::round(along.left());
        pixels = QRectF(left, std::floor(along.center().y() - (thickness - 1.0) / 2.0),
            std::round(along.right()) - left, thickness);
    } else {
        const double top = std::round(along.top());
        pixels = QRectF(
            std::floor(along.center().x() - (thickness - 1.0) / 2.0), top, thickness, std::round(along.bottom()) - top);
    }
    // Where the way back to logical pixels is exact there is nothing to smooth, and to fill is several times faster so.
    painter->setRenderHint(QPainter::Antialiasing, scale != thickness);
    painter->fillRect(transform.inverted().mapRect(pixels), item.color);
    painter->setRenderHint(QPainter::Antialiasing);
}

void DrawList::paintItem(const PaintTarget &target, const Line &item)
{
    QPainter *const painter = &target.painter;
    if (isRaster(*painter)) {
        paintPieces(target, item.points, item.closed, item.pen);
        return;
    }
    painter->setPen(item.pen);
    painter->setBrush(Qt::NoBrush);
    if (item.closed) {
        painter->drawPolygon(item.points);
    } else {
        painter->drawPolyline(item.points);
    }
}

void DrawList::paintItem(const PaintTarget &target, const Lines &item)
{
    QPainter *const painter = &target.painter;
    if (item.lines.size() > mostSmoothLines && isRaster(*painter)) {
        QVector<QLineF> lines = item.lines;
        keepNeeded(lines, item.pen, target.needed);
        painter->save();
        // The raster engine takes twenty times as long where no rectangle clips these.
        painter->setClipRect(boundsOf(item.lines, item.pen).toAlignedRect(), Qt::IntersectClip);
        painter->setPen(QPen(item.pen.color(), 0.0));
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->drawLines(lines);
        painter->restore();
        return;
    }
    paintLines(target, item.lines, item.pen);
}

void DrawList::paintItem(const PaintTarget &target, const Shape &item)
{
    QPainter *const painter = &target.painter;
    painter->setPen(item.pen);
    painter->setBrush(item.brush);
    painter->drawPath(item.path);
}

void DrawList::paintItem(const PaintTarget &target, const RoundedRectangle &item)
{
    if (target.pixels) {
        target.pixels->roundedRectangle(item.rectangle, item.radius, item.color);
        return;
    }
    target.painter.setPen(Qt::NoPen);
    target.painter.setBrush(item.color);
    target.painter.drawRoundedRect(item.rectangle, item.radius, item.radius);
}

void DrawList::paintItem(const PaintTarget &target, const Ellipse &item)
{
    QPainter *const painter = &target.painter;
    constexpr double large = 20.0;
    if (item.brush == Qt::NoBrush && isRaster(*painter) && std::max(item.radiusX, item.radiusY) > large) {
        QPolygonF points;
        const int count = int(std::min(2000.0, 3.0 * std::max(item.radiusX, item.radiusY)));
        for (int i = 0; i < count; ++i) {
            const double angle = 2.0 * M_PI * i / count;
            points.append(item.centre + QPointF(item.radiusX * std::cos(angle), item.radiusY * std::sin(angle)));
        }
        paintPieces(target, points, true, item.pen);
        return;
    }
    const bool isFull = item.brush.style() == Qt::SolidPattern;
    if (target.pixels && item.radiusX == item.radiusY && item.pen.style() == Qt::SolidLine
        && (isFull || item.brush.style() == Qt::NoBrush)) {
        if (isFull) {
            target.pixels->disc(item.centre, item.radiusX, item.brush.color());
        }
        target.pixels->ring(item.centre, item.radiusX, item.pen.widthF(), item.pen.color());
        return;
    }
    painter->setPen(item.pen);
    painter->setBrush(item.brush);
    painter->drawEllipse(item.centre, item.radiusX, item.radiusY);
}

void DrawList::paintItem(const PaintTarget &target, const Text &item)
{
    QPainter *const painter = &target.painter;
    if (isRaster(*painter) && item.style.unit() == 1.0) {
        if (target.pixels) {
            const TextPicture picture = item.style.picture(item.text, item.color, item.casing, target.pixels->scale());
            if (!picture.pixels.isNull()) {
                target.pixels->picture(item.at, picture.pixels, picture.origin);
                return;
            }
        }
        putCasedGlyphs(
            *painter, item.style.glyphs(item.text), item.at, item.color, item.casing, painter->deviceTransform().m11());
        return;
    }
    if (item.casing.isValid()) {
        QPainterPath glyphs;
        glyphs.addText(QPointF(), designed(item.style.font()), item.text);
        const double scale = item.style.pixelSize() / designPixelSize;
        const QTransform place(scale, 0.0, 0.0, scale, item.at.x(), item.at.y());
        painter->setPen(QPen(item.casing, casingWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(place.map(glyphs));
    }
    painter->setPen(item.color);
    painter->setFont(item.style.font());
    if (item.style.unit() == 1.0) {
        painter->drawText(item.at, item.text);
        return;
    }
    painter->save();
    painter->translate(item.at);
    painter->scale(1.0 / item.style.unit(), 1.0 / item.style.unit());
    painter->drawText(QPointF(), item.text);
    painter->restore();
}

void DrawList::paintItem(const PaintTarget &target, const Marks &item)
{
    QPainter *const painter = &target.painter;
    if (item.marks.size() <= mostMarksByOutline) {
        for (const PlacedMark &mark : item.marks) {
            if (isNeeded(widened(QRectF(mark.at, mark.at), markReach), target.needed)) {
                paintMark(target.painter, target.pixels, mark);
            }
        }
        return;
    }
    QRectF bounds = boundsOf(item.marks);
    if (!target.needed.isEmpty()) {
        bounds &= QRectF(target.needed.boundingRect());
    }
    const double most = std::sqrt(mostPicturePixels / std::max(1.0, bounds.width() * bounds.height()));
    const double ratio = std::min(pictureRatioOfFiles, most);
    const QTransform transform = isRaster(*painter) ? painter->deviceTransform() : QTransform::fromScale(ratio, ratio);
    const QRect pixels = transform.mapRect(bounds).toAlignedRect();
    // In bands, as a picture of all would double the memory of a large one.
    const int height = int(mostPicturePixels / std::max(1, pixels.width()));
    for (int top = pixels.top(); top <= pixels.bottom(); top += height) {
        const QRect band = pixels & QRect(pixels.left(), top, pixels.width(), height);
        painter->drawImage(transform.inverted().mapRect(QRectF(band)), markPicture(item.marks, transform, band));
    }
}

} // namespace ceiechart
