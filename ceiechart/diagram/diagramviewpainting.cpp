// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The pictures that are kept, and what of the view is painted again.
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <new>

namespace ceiechart {

namespace {

constexpr double lineRoom = 4.0; // logical pixels on either side of a line, for its width and casing
constexpr double nameRoom = 6.0; // logical pixels round a name and its leader, for plate, casing and dot
constexpr double markRoom = 16.0; // logical pixels round a white

QRect pixelsAround(const QRectF &rectangle, double room)
{
    return rectangle.adjusted(-room, -room, room, room).toAlignedRect();
}

bool isSame(const DiagramRings &a, const DiagramRings &b)
{
    return isExactly(a.xy, b.xy) && a.radii == b.radii;
}

QRectF boxOf(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points)).boundingRect();
}

/*!
 * What lies between the lines \a a and \a b of which each end of one is moved straight to that of the other, with
 * \a room round it, within \a whole: in bands, which hug slanting lines.
 */
QRegion regionBetween(const QLineF &a, const QLineF &b, const QRectF &whole, double room)
{
    constexpr int bandHeight = 16; // as many parts of a region take as long as pixels beside slanting lines
    const QLineF sides[] = {a, b, QLineF(a.p1(), b.p1()), QLineF(a.p2(), b.p2())};
    const QRect bounds
        = (boxOf({a.p1(), a.p2(), b.p1(), b.p2()}).adjusted(-room, -room, room, room) & whole).toAlignedRect();
    QVector<QRect> bands;
    for (int top = bounds.top(); top <= bounds.bottom(); top += bandHeight) {
        const int bottom = std::min(top + bandHeight, bounds.bottom() + 1);
        double left = HUGE_VAL;
        double right = -HUGE_VAL;
        for (const QLineF &side : sides) {
            const bool isDown = side.y1() < side.y2();
            const QPointF upper = isDown ? side.p1() : side.p2();
            const QPointF lower = isDown ? side.p2() : side.p1();
            const double first = std::max(upper.y(), top - room);
            const double last = std::min(lower.y(), bottom + room);
            if (first > last) {
                continue;
            }
            const double slope = lower.y() > upper.y() ? (lower.x() - upper.x()) / (lower.y() - upper.y()) : 0.0;
            const bool isLevel = slope == 0.0;
            for (const double x : {isLevel ? upper.x() : upper.x() + (first - upper.y()) * slope,
                     isLevel ? lower.x() : upper.x() + (last - upper.y()) * slope}) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
        const QRectF band = QRectF(QPointF(left - room, top), QPointF(right + room, bottom)) & whole;
        if (left <= right && !band.isEmpty()) {
            bands.append(band.toAlignedRect());
        }
    }
    QRegion region;
    region.setRects(bands.constData(), int(bands.size()));
    return region;
}

/*!
 * Paints \a picture of a whole widget.
 *
 * The paint engine takes several times as long for a part of it, as it looks for the parts of its clip in each row.
 */
void paintPicture(QPainter &painter, const QImage &picture)
{
    const auto pixels = PixelPainter::on(painter);
    if (pixels && pixels->scale() == picture.devicePixelRatio()) {
        pixels->picture(QPointF(), picture, QPoint());
    } else {
        painter.drawImage(QPointF(), picture);
    }
}

//! Sizes in points are the same on \a image as on \a widget.
void takeResolution(QImage &image, const QWidget &widget)
{
    constexpr double inchesPerMetre = 1.0 / 0.0254;
    image.setDotsPerMeterX(int(std::lround(widget.logicalDpiX() * inchesPerMetre)));
    image.setDotsPerMeterY(int(std::lround(widget.logicalDpiY() * inchesPerMetre)));
}

} // namespace

void DiagramView::Private::forgetPictures()
{
    // The painter keeps a picture too.
    auto fresh = std::make_unique<DiagramPainter>();
    fresh->setFont(painter->font());
    fresh->setContent(content);
    fresh->setViewport(viewport);
    painter = std::move(fresh);
    lines = QImage();
    linesAreReady = false;
    shapes.forget();
    keptLabelFonts.reset();
}

const QImage &DiagramView::Private::linesPicture()
{
    const double ratio = q->devicePixelRatioF();
    const QSize size(int(std::ceil(q->width() * ratio)), int(std::ceil(q->height() * ratio)));
    if (lines.size() != size || lines.devicePixelRatio() != ratio) {
        lines = QImage(size, QImage::Format_ARGB32_Premultiplied);
        lines.setDevicePixelRatio(ratio);
        takeResolution(lines, *q);
        linesAreReady = false;
    }
    if (!linesAreReady) {
        lines.fill(Qt::transparent);
        QPainter p(&lines);
        p.setRenderHint(QPainter::Antialiasing);
        painter->paintScale(&p);
        painter->paintGamuts(&p);
        linesAreReady = true;
    }
    return lines;
}

QRegion DiagramView::Private::overlayRegion(const DiagramOverlay &some, const DiagramOverlay &other) const
{
    QRegion region;
    for (const DiagramOverlay::Handle &handle : some.handles) {
        if (!other.handles.contains(handle)) {
            region += pixelsAround(DiagramOverlay::bounds(handle), 2.0);
        }
    }
    if (!some.label.isEmpty() && !some.hasSameLabel(other)) {
        region += pixelsAround(some.labelPlace, 2.0);
        // The handle may be far away.
        region += regionBetween(some.labelLine(), some.labelLine(), QRectF(q->rect()), lineRoom);
    }
    for (const QPolygonF &guide : some.guides) {
        if (std::any_of(other.guides.begin(), other.guides.end(),
                [&guide](const QPolygonF &drawn) { return isExactly(drawn, guide); })) {
            continue;
        }
        if (guide.size() == 1) {
            region += pixelsAround(guide.boundingRect(), guideReach + lineRoom);
        }
        for (int i = 1; i < guide.size(); ++i) {
            const QLineF line(guide[i - 1], guide[i]);
            region += regionBetween(line, line, QRectF(q->rect()), lineRoom);
        }
    }
    if (!some.readout.isEmpty() && (some.readout != other.readout || some.readoutPlace != other.readoutPlace)) {
        region += some.readoutPlace.toAlignedRect();
    }
    if (some.showsFocusFrame && !other.showsFocusFrame) {
        constexpr double frameRoom = 4.0; // from the edge of the plot inwards, for the width of the frame
        const QRectF plot = viewport.plot();
        region += QRegion(pixelsAround(plot, 1.0))
                      .subtracted(plot.adjusted(frameRoom, frameRoom, -frameRoom, -frameRoom).toRect());
    }
    return region & q->rect();
}

void DiagramView::Private::updateOverlay()
{
    const DiagramOverlay former = overlay;
    refreshOverlay();
    q->update(overlayRegion(former, overlay) + overlayRegion(overlay, former));
}

bool DiagramView::Private::meetsAnother(const Model::Targets &targets) const
{
    const QPolygonF line = viewport.outline(targets);
    return std::any_of(content.gamuts.begin(), content.gamuts.end(), [&](const DiagramGamut &gamut) {
        if (gamut.role == GamutRole::Target) {
            return false;
        }
        return isSameTriangle(line, viewport.outline(gamut.gamut.getTargets()), markRoom);
    });
}

QRegion DiagramView::Private::editedRegion(const Model::Targets &former, const Model::Targets &latter) const
{
    const QPolygonF old = viewport.outline(former);
    const QPolygonF now = viewport.outline(latter);
    const QRectF whole = QRectF(q->rect());
    if (old.size() < 3 || now.size() < 3 || !isFinite(old) || !isFinite(now)) {
        return q->rect();
    }
    // Everything that changes lies between the old and the new lines, edge by edge. An edge that stays looks the same:
    // it has no dashes, which would depend on the edges before it.
    QRegion region;
    for (int i = 0; i < 3; ++i) {
        const QLineF formerEdge(old[i], old[(i + 1) % 3]);
        const QLineF latterEdge(now[i], now[(i + 1) % 3]);
        if (formerEdge != latterEdge) {
            region += regionBetween(formerEdge, latterEdge, whole, lineRoom);
        }
    }
    const QPointF formerWhite = viewport.toPosition(xyOf(former.white));
    const QPointF latterWhite = viewport.toPosition(xyOf(latter.white));
    for (const QPointF &white : {formerWhite, latterWhite}) {
        if (!isExactly(formerWhite, latterWhite) && isFinite(white)
            && whole.adjusted(-markRoom, -markRoom, markRoom, markRoom).contains(white)) {
            region += pixelsAround(QRectF(white, QSizeF(1.0, 1.0)), markRoom);
        }
    }
    return region;
}

QRegion DiagramView::Private::ringRegion(const QVector<DiagramRings> &some, const QVector<DiagramRings> &others) const
{
    QRegion region;
    for (int i = 0; i < some.size(); ++i) {
        const DiagramRings &rings = some[i];
        // By place in the list, as each is drawn over those before it.
        if (i < others.size() && isSame(others[i], rings)) {
            continue;
        }
        for (const double radius : rings.radii) {
            const QPolygonF curve = DiagramPainter::ring(viewport, rings.xy, radius);
            if (isFinite(curve)) { // others are not drawn
                const QRectF painted = curve.boundingRect().adjusted(-lineRoom, -lineRoom, lineRoom, lineRoom);
                region += (painted & QRectF(q->rect())).toAlignedRect();
            }
        }
    }
    return region;
}

QRegion DiagramView::Private::nameRegion(const QVector<DiagramLabel> &former, const QVector<DiagramLabel> &latter) const
{
    const auto same = [](const DiagramLabel &a, const DiagramLabel &b) {
        return a.kind == b.kind && a.index == b.index && a.text == b.text && a.place == b.place && a.leader == b.leader;
    };
    QRegion region;
    const auto addOthers = [&](const QVector<DiagramLabel> &some, const QVector<DiagramLabel> &others) {
        for (int i = 0; i < some.size(); ++i) {
            const DiagramLabel &label = some[i];
            // Most stand where they stood, and in the same order.
            const bool isThere = (i < others.size() && same(others[i], label))
                || std::any_of(others.begin(), others.end(), [&](const DiagramLabel &o) { return same(o, label); });
            if (!isThere) {
                region += pixelsAround(label.place, nameRoom);
                if (!label.leader.isNull()) {
                    region += regionBetween(label.leader, label.leader, QRectF(q->rect()), nameRoom);
                }
            }
        }
    };
    addOthers(former, latter);
    addOthers(latter, former);
    return region;
}

void DiagramView::Private::putRings(const QVector<DiagramRings> &rings)
{
    if (!q->isVisible()) {
        changePart(&DiagramContent::rings, rings);
        return;
    }
    const QVector<DiagramRings> former = content.rings;
    if (std::equal(former.begin(), former.end(), rings.begin(), rings.end(), isSame)) {
        return;
    }
    const QVector<DiagramLabel> labels = painter->labels();
    content.rings = rings;
    painter->setContent(content);
    q->update(ringRegion(former, rings) + ringRegion(rings, former) + nameRegion(labels, painter->labels()));
    updateOverlay();
}

void DiagramView::Private::putTarget(const Model::Targets &targets)
{
    const auto found = std::find_if(content.gamuts.begin(), content.gamuts.end(),
        [](const DiagramGamut &gamut) { return gamut.role == GamutRole::Target; });
    if (found == content.gamuts.end()) {
        return;
    }
    const Model::Targets former = found->gamut.getTargets();
    const QVector<DiagramLabel> labels = painter->labels();
    found->gamut = Model::ColorGamut(found->gamut.colorGamutName(), targets);
    painter->setContent(content);
    QRegion changed;
    if (meetsAnother(former) || meetsAnother(targets)) {
        // A line that equals another gamut's is drawn otherwise, and that gamut's once more.
        changed = q->rect();
    } else {
        changed = editedRegion(former, targets);
    }
    // Names give way to one another.
    changed += nameRegion(labels, painter->labels());
    q->update(changed);
    updateOverlay();
}

void DiagramView::paint(QPainter *painter, const QRectF &place) const
{
    d->painter->paint(painter, place);
}

QImage DiagramView::toImage(const QSize &size, qreal devicePixelRatio) const
{
    // With less, the whole picture would be less than a letter, of a view that is too large to paint.
    constexpr double leastRatio = 0.1;
    if (size.isEmpty() || !(devicePixelRatio >= leastRatio)) {
        return QImage();
    }
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    image.setDevicePixelRatio(devicePixelRatio);
    takeResolution(image, *this);
    image.fill(diagramPalette(d->content.ground).ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(&painter, QRectF(QPointF(), QSizeF(size) / devicePixelRatio));
    return image;
}

void DiagramView::paintBelowTarget(QPainter *) { }

void DiagramView::paintEvent(QPaintEvent *event)
{
    QPainter p(this);
    // Thrown through the toolkit, a lack of memory would leave it unable to paint.
    try {
        d->paintView(p, event->region());
        d->isBlank = false;
    } catch (const std::bad_alloc &) {
        p.setClipping(false);
        p.setOpacity(1.0);
        p.setTransform(QTransform());
        p.fillRect(rect(), diagramPalette(d->content.ground).ground);
        // Once more, and all of it; then not before there is something else to paint.
        if (!d->isBlank) {
            d->isBlank = true;
            update();
        }
    }
}

void DiagramView::Private::paintView(QPainter &p, const QRegion &region)
{
    const DiagramPalette &palette = diagramPalette(content.ground);
    const bool isReadoutOnly
        = !overlay.readout.isEmpty() && region.subtracted(overlay.readoutPlace.toAlignedRect()).isEmpty();
    if (!isReadoutOnly) {
        // The widget clips to the region, unless a host renders it by a painter with a clip of its own.
        if (p.hasClipping()) {
            p.setClipRegion(region);
        }
        const bool isAll = region == QRegion(q->rect());
        if (isAll) {
            painter->paintColors(&p, q->devicePixelRatioF());
        } else {
            paintPicture(p, painter->colors(q->devicePixelRatioF()));
        }
        p.setRenderHint(QPainter::Antialiasing);
        if (!linesAreReady && isAll) {
            // As the view moves, lines that are kept would have to be made, laid over and dropped for each picture.
            painter->paintScale(&p);
            painter->paintGamuts(&p);
        } else {
            paintPicture(p, linesPicture());
        }
        p.save();
        q->paintBelowTarget(&p);
        p.restore();
        painter->paintEdited(&p, region);
        overlay.paint(p, viewport.plot(), palette, labelFonts(), region, shapes);
    }
    overlay.paintReadout(p, palette);
}

} // namespace ceiechart
