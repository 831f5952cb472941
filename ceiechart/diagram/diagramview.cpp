// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview_p.h>

#include <QGestureEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTouchEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace ceiechart {

namespace {

constexpr double zoomStep = 1.5; // of a key or a button
constexpr double labelDistance = 26.0; // logical pixels from the middle of a handle to its label
constexpr int edgePieces = 24; // in which the surroundings of an edge are repainted
constexpr int guidePieces = 64; // which are longer
constexpr double lineRoom = 6.0; // logical pixels on either side of a line, for its width and casing
constexpr double markRoom = 16.0; // logical pixels round a white

DiagramGround groundOf(const QPalette &palette)
{
    constexpr int middle = 128;
    return palette.color(QPalette::Base).lightness() < middle ? DiagramGround::Dark : DiagramGround::Light;
}

QRect around(const QRectF &rectangle, double room)
{
    return rectangle.adjusted(-room, -room, room, room).toAlignedRect();
}

QRectF boxOf(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points)).boundingRect();
}

bool isFinite(const QPolygonF &polygon)
{
    return std::all_of(polygon.begin(), polygon.end(),
        [](const QPointF &point) { return std::isfinite(point.x()) && std::isfinite(point.y()); });
}

//! Small boxes along the line from \a from to \a to.
void addBoxesAlong(QVector<QRectF> &boxes, const QPointF &from, const QPointF &to)
{
    constexpr double side = 8.0;
    constexpr int most = 1000; // of the whole line, which may lead far beyond what is seen
    const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
    if (!(length > 0.0) || !std::isfinite(length)) {
        return;
    }
    const QPointF step = (to - from) * (side / length);
    const int count = int(std::min(double(most), length / side));
    for (int i = 0; i <= count; ++i) {
        const QPointF at = from + step * i;
        boxes.append(QRectF(at.x() - side / 2.0, at.y() - side / 2.0, side, side));
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

DiagramView::Private::Private(DiagramView *view)
    : q(view)
    , painter(std::make_unique<DiagramPainter>())
    , rules(std::make_shared<StandardTargetRules>())
{
}

const DiagramGamut *DiagramView::Private::target() const
{
    return content.find(GamutRole::Target);
}

bool DiagramView::Private::hasHandles() const
{
    const DiagramGamut *gamut = target();
    return !readOnly && gamut && content.shows(*gamut);
}

TargetContext DiagramView::Private::context() const
{
    TargetContext result;
    result.target = target()->gamut.getTargets();
    if (const DiagramGamut *original = content.find(GamutRole::Original)) {
        result.original = original->gamut.getTargets();
    }
    for (const DiagramGamut &gamut : content.gamuts) {
        // To snap to what cannot be seen would look like a fault.
        if (gamut.role == GamutRole::Standard && content.shows(gamut)) {
            result.standards.push_back(gamut.gamut);
        }
    }
    result.diagram = viewport.diagram();
    return result;
}

void DiagramView::Private::change(const DiagramContent &changed)
{
    const QPointer<DiagramView> view(q);
    const auto former = target() ? std::make_optional(target()->gamut.getTargets()) : std::nullopt;
    content = changed;
    content.ground = groundOf(q->palette());
    painter->setContent(content);
    linesAreReady = false;
    const bool isOther = former && target() && !sameTargets(*former, target()->gamut.getTargets());
    if (edit && isOther) {
        edit->rebase(target()->gamut.getTargets());
    }
    refreshOverlay();
    q->update();
    if (!hasHandles()) {
        if (hand == Hand::Holding) {
            hand = Hand::Spent;
        }
        if (isOther) {
            before = target()->gamut.getTargets(); // it is the host's, not one that a cancel takes back
        }
        q->cancelEditing();
        if (view) {
            edit.reset(); // of a key
            if (selected && !hasHandles()) {
                q->setSelectedVertex(std::nullopt);
            }
        }
    }
    if (view) {
        look(viewport); // as the margins may be others
    }
}

void DiagramView::Private::replace(GamutRole role, const std::vector<Model::ColorGamut> &gamuts)
{
    DiagramContent changed = content;
    const auto isOfRole = [role](const DiagramGamut &gamut) { return gamut.role == role; };
    QVector<DiagramGamut> former;
    std::copy_if(changed.gamuts.begin(), changed.gamuts.end(), std::back_inserter(former), isOfRole);
    const auto isSame = [](const DiagramGamut &a, const Model::ColorGamut &b) {
        return a.gamut.colorGamutName() == b.colorGamutName() && sameTargets(a.gamut.getTargets(), b.getTargets());
    };
    if (std::equal(former.begin(), former.end(), gamuts.begin(), gamuts.end(), isSame)) {
        return;
    }
    int place = int(std::find_if(changed.gamuts.begin(), changed.gamuts.end(), isOfRole) - changed.gamuts.begin());
    changed.gamuts.erase(std::remove_if(changed.gamuts.begin(), changed.gamuts.end(), isOfRole), changed.gamuts.end());
    for (size_t i = 0; i < gamuts.size(); ++i) {
        // Another gamut in the place of one that is switched off is switched off too.
        const bool visible = int(i) < former.size() ? former[int(i)].visible : true;
        changed.gamuts.insert(place++, {gamuts[i], role, visible});
    }
    q->setContent(changed);
}

void DiagramView::Private::putTarget(const Model::Targets &targets)
{
    const auto found = std::find_if(content.gamuts.begin(), content.gamuts.end(),
        [](const DiagramGamut &gamut) { return gamut.role == GamutRole::Target; });
    if (found == content.gamuts.end()) {
        return;
    }
    const Model::Targets former = found->gamut.getTargets();
    const QRegion old = overlayRegion(overlay);
    const QVector<DiagramLabel> labels = painter->labels();
    found->gamut = Model::ColorGamut(found->gamut.colorGamutName(), targets);
    painter->setContent(content);
    QRegion changed = old;
    if (meetsAnother(former) || meetsAnother(targets)) {
        // A line that equals another gamut's is drawn otherwise, and that gamut's too.
        linesAreReady = false;
        changed = q->rect();
    } else {
        changed += editedRegion(former, targets);
    }
    // Names give way to one another.
    const QVector<DiagramLabel> newLabels = painter->labels();
    const auto same = [](const DiagramLabel &a, const DiagramLabel &b) {
        return a.kind == b.kind && a.index == b.index && a.text == b.text && a.place == b.place;
    };
    const auto addOthers = [&](const QVector<DiagramLabel> &some, const QVector<DiagramLabel> &others) {
        for (const DiagramLabel &label : some) {
            if (std::none_of(others.begin(), others.end(), [&](const DiagramLabel &o) { return same(o, label); })) {
                changed += around(label.place, lineRoom);
            }
        }
    };
    addOthers(labels, newLabels);
    addOthers(newLabels, labels);
    refreshOverlay();
    q->update(changed + overlayRegion(overlay));
}

void DiagramView::Private::followPalette()
{
    if (content.ground != groundOf(q->palette())) {
        change(content);
    }
}

QFont DiagramView::Private::textFont() const
{
    // The same whether it is painted on the widget or on a picture that lets through what is behind.
    QFont font = q->font();
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::NoSubpixelAntialias));
    return font;
}

int DiagramView::Private::decimals() const
{
    return digits == automaticDigits ? decimalsFor(viewport.scale()) : digits;
}

void DiagramView::Private::look(DiagramViewport wanted, const QPointF &anchor)
{
    const bool showsAll = wanted.showsAll();
    const QPointF point = wanted.toPoint(anchor);
    // With the margins the numbers may change, and with these the margins; that settles at once or hardly matters.
    constexpr int rounds = 2;
    for (int i = 0; i < rounds; ++i) {
        painter->setViewport(wanted);
        const QMarginsF margins = painter->margins(q);
        if (margins == wanted.margins()) {
            break;
        }
        wanted = wanted.withMargins(margins);
        wanted = showsAll ? wanted.fittedToAll() : wanted.panned(anchor - wanted.fromPoint(point));
    }
    painter->setViewport(wanted);
    if (wanted == viewport) {
        return;
    }
    viewport = wanted;
    linesAreReady = false;
    refreshOverlay();
    q->update();
    tell(&DiagramView::viewChanged);
}

void DiagramView::Private::look(const DiagramViewport &wanted)
{
    look(wanted, wanted.plot().center());
}

void DiagramView::Private::zoom(double factor, const QPointF &anchor)
{
    look(viewport.zoomed(factor, anchor), anchor);
}

void DiagramView::Private::pan(const QPointF &delta)
{
    // By whole pixels of the device, so that what is there can be moved instead of made anew.
    const double ratio = q->devicePixelRatioF();
    const QPointF wanted = delta + panRest;
    const QPointF whole(std::round(wanted.x() * ratio) / ratio, std::round(wanted.y() * ratio) / ratio);
    panRest = wanted - whole;
    if (!whole.isNull()) {
        look(viewport.panned(whole));
    }
}

QPointF DiagramView::Private::zoomAnchor() const
{
    if (pointer && viewport.plot().contains(*pointer)) {
        return *pointer;
    }
    if (selected && hasHandles() && viewport.plot().contains(positionOf(*selected))) {
        return positionOf(*selected);
    }
    return viewport.plot().center();
}

// Painting

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

void DiagramView::Private::refreshOverlay()
{
    DiagramOverlay fresh;
    const QRectF plot = viewport.plot();
    if (hasHandles()) {
        const QRectF reach = plot.adjusted(-1.0, -1.0, 1.0, 1.0);
        const auto add = [&](GamutVertex vertex) {
            const QPointF at = positionOf(vertex);
            if (reach.contains(at)) {
                const bool isSelected = selected == vertex;
                fresh.handles.append(
                    {vertex, at, rules->isMovable(vertex), isSelected, hovered == vertex, isSelected && q->hasFocus()});
            }
        };
        // White first, as a primary on it must not be covered, and what is selected over all.
        for (const GamutVertex vertex : {GamutVertex::White, GamutVertex::Blue, GamutVertex::Green, GamutVertex::Red}) {
            if (selected != vertex) {
                add(vertex);
            }
        }
        if (selected) {
            add(*selected);
        }
    }
    for (const QPolygonF &guide : guidesXy) {
        QPolygonF positions;
        for (const QPointF &xy : guide) {
            positions.append(viewport.toPosition(xy));
        }
        if (isFinite(positions)) {
            fresh.guides.append(positions);
        }
    }
    const bool showsFocus = std::any_of(fresh.handles.cbegin(), fresh.handles.cend(),
        [](const DiagramOverlay::Handle &handle) { return handle.hasFocus; });
    fresh.showsFocusFrame = q->hasFocus() && !showsFocus;
    overlay = fresh;
    readoutCorners.clear();
    placeReadout();
    placeLabel();
}

QStringList DiagramView::Private::labelEntries() const
{
    QStringList entries;
    if (label && target()) {
        const QPointF xy = xyOf(targetAt(target()->gamut.getTargets(), label->vertex));
        entries.append(DiagramView::tr("%1: %2", "primary or white, and its coordinates")
                           .arg(gamutVertexName(label->vertex), q->coordinatesText(xy)));
        for (const QString &entry : {editNote, label->snap, label->reason}) {
            if (!entry.isEmpty()) {
                entries.append(entry);
            }
        }
    }
    return entries;
}

void DiagramView::Private::placeLabel()
{
    QStringList entries = labelEntries();
    if (entries.isEmpty() || !selected || !hasHandles()) {
        return;
    }
    const QPointF at = positionOf(*selected);
    const QRectF plot = viewport.plot();
    if (!plot.contains(at)) {
        return;
    }
    constexpr double widest = 260.0; // of the lines after the first, in logical pixels
    const QFont font = q->font();
    QVector<QRectF> avoid;
    for (const DiagramOverlay::Handle &handle : qAsConst(overlay.handles)) {
        avoid.append(DiagramOverlay::bounds(handle));
    }
    const QVector<QRectF> handleBoxes = avoid; // the last is of what is edited
    // What the hand is likely to move to must be seen as well.
    for (const DiagramGamut &gamut : content.gamuts) {
        if (gamut.role != GamutRole::Target && content.shows(gamut)) {
            const QPointF corner = viewport.toPosition(xyOf(targetAt(gamut.gamut.getTargets(), *selected)));
            avoid.append(QRectF(corner - QPointF(lineRoom, lineRoom), QSizeF(2.0 * lineRoom, 2.0 * lineRoom)));
        }
    }
    // No line leads to the white: it is mixed from the primaries.
    if (*selected != GamutVertex::White) {
        for (const GamutVertex other : {GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue}) {
            if (other != *selected) {
                addBoxesAlong(avoid, at, positionOf(other));
            }
        }
    }
    const auto isPlaced = [&](const QVector<QRectF> &boxes) {
        overlay.label = DiagramOverlay::wrapped(entries, font, std::min(widest, plot.width() / 2.0));
        overlay.labelPlace = labelPlace(DiagramOverlay::labelSize(overlay.label, font), at, boxes);
        return !overlay.labelPlace.isEmpty();
    };
    // Where there is no room for all of it, the coordinates are what matters, more than what they cover.
    for (;; entries.removeLast()) {
        if (isPlaced(avoid)) {
            return;
        }
        if (entries.size() == 1) {
            break;
        }
    }
    if (!isPlaced(handleBoxes) && !isPlaced({handleBoxes.last()})) {
        overlay.label.clear();
    }
}

QRectF DiagramView::Private::labelPlace(const QSizeF &size, const QPointF &at, const QVector<QRectF> &avoid) const
{
    QRectF best = painter->freePlace(size, at, labelDistance, avoid);
    if (!best.isEmpty()) {
        return best;
    }
    // Farther away where there is no room beside it; a line leads from the label to the handle.
    constexpr int tries = 40; // each way
    // And over the digits of the scale where the plot is narrower than the coordinates.
    const QRectF area = size.width() <= viewport.plot().width() ? viewport.plot() : QRectF(q->rect());
    const QSizeF room(area.width() - size.width(), area.height() - size.height());
    double least = std::numeric_limits<double>::max();
    for (int row = 0; row <= tries && room.isValid(); ++row) {
        for (int column = 0; column <= tries; ++column) {
            const QPointF corner(area.left() + room.width() * column / tries, area.top() + room.height() * row / tries);
            const QRectF place(corner, size);
            const double away = distanceTo(place, at);
            const auto covers = [&place](const QRectF &box) { return box.intersects(place); };
            if (away >= labelDistance && away < least && std::none_of(avoid.cbegin(), avoid.cend(), covers)) {
                least = away;
                best = place;
            }
        }
    }
    return best;
}

QRegion DiagramView::Private::overlayRegion(const DiagramOverlay &some) const
{
    QRegion region;
    for (const DiagramOverlay::Handle &handle : some.handles) {
        region += around(DiagramOverlay::bounds(handle), 2.0);
    }
    if (!some.label.isEmpty()) {
        region += around(some.labelPlace, 2.0);
        // The line from the label to the handle.
        region += around(
            some.labelPlace | QRectF(positionOf(selected.value_or(GamutVertex::White)), QSizeF(1.0, 1.0)), 2.0);
    }
    for (const QPolygonF &guide : some.guides) {
        if (guide.size() == 1) {
            region += around(guide.boundingRect(), markRoom);
        }
        // A few pieces are enough for a short line; a long one would cover much with one.
        constexpr double shortLine = 100.0;
        const QRectF whole = QRectF(q->rect()).adjusted(-lineRoom, -lineRoom, lineRoom, lineRoom);
        for (int i = 1; i < guide.size(); ++i) {
            const QPointF way = guide[i] - guide[i - 1];
            const int pieces = std::hypot(way.x(), way.y()) > shortLine ? guidePieces : 1;
            for (int piece = 0; piece < pieces; ++piece) {
                const QRectF part = boxOf({guide[i - 1] + way * (double(piece) / pieces),
                                              guide[i - 1] + way * (double(piece + 1) / pieces)})
                                        .adjusted(-lineRoom, -lineRoom, lineRoom, lineRoom)
                    & whole;
                if (!part.isEmpty()) {
                    region += part.toAlignedRect();
                }
            }
        }
    }
    if (!some.readout.isEmpty()) {
        region += some.readoutPlace.toAlignedRect();
    }
    return region & q->rect();
}

bool DiagramView::Private::meetsAnother(const Model::Targets &targets) const
{
    const QPolygonF line = viewport.outline(targets);
    return std::any_of(content.gamuts.begin(), content.gamuts.end(), [&](const DiagramGamut &gamut) {
        if (gamut.role == GamutRole::Target) {
            return false;
        }
        const QPolygonF other = viewport.outline(gamut.gamut.getTargets());
        for (int i = 0; i < line.size() && i < other.size(); ++i) {
            const QPointF away = line[i] - other[i];
            if (!(std::hypot(away.x(), away.y()) < markRoom)) {
                return false;
            }
        }
        return true;
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
    // Everything that changes lies between the old and the new lines, edge by edge.
    QRegion region;
    for (int i = 0; i < 3; ++i) {
        const QPointF &oldFrom = old[i];
        const QPointF &newFrom = now[i];
        const QPointF oldWay = old[(i + 1) % 3] - oldFrom;
        const QPointF newWay = now[(i + 1) % 3] - newFrom;
        for (int piece = 0; piece < edgePieces; ++piece) {
            const double first = double(piece) / edgePieces;
            const double last = double(piece + 1) / edgePieces;
            const QRectF box = boxOf({oldFrom + oldWay * first, oldFrom + oldWay * last, newFrom + newWay * first,
                                         newFrom + newWay * last})
                                   .adjusted(-lineRoom, -lineRoom, lineRoom, lineRoom)
                & whole;
            if (!box.isEmpty()) {
                region += box.toAlignedRect();
            }
        }
    }
    for (const Model::Targets *targets : {&former, &latter}) {
        const QPointF white = viewport.toPosition(xyOf(targets->white));
        if (whole.adjusted(-markRoom, -markRoom, markRoom, markRoom).contains(white)) {
            region += around(QRectF(white, QSizeF(1.0, 1.0)), markRoom);
        }
    }
    return region;
}

// The view

DiagramView::DiagramView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    installDiagramAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    grabGesture(Qt::PinchGesture);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
    constexpr int labelStays = 1000; // milliseconds after the last key
    d->labelTimer.setSingleShot(true);
    d->labelTimer.setInterval(labelStays);
    connect(&d->labelTimer, &QTimer::timeout, this, [this] { d->dropLabel(); });
    d->content.ground = groundOf(palette());
    d->painter->setContent(d->content);
    d->painter->setFont(d->textFont());
    d->viewport = DiagramViewport(Model::Diagram::Cie1931, QSizeF(size()));
    d->look(d->viewport.fittedToAll());
}

DiagramView::~DiagramView() = default;

Model::Diagram DiagramView::diagram() const
{
    return d->viewport.diagram();
}

DiagramView::DiagramKind DiagramView::diagramKind() const
{
    return DiagramKind(int(diagram()));
}

ShownLayers DiagramView::layers() const
{
    return d->content.layers;
}

bool DiagramView::isLayerShown(DiagramLayer layer) const
{
    return d->content.layers.testFlag(layer);
}

HorseshoeColors DiagramView::horseshoeColors() const
{
    return d->content.colors;
}

double DiagramView::zoomFactor() const
{
    return d->viewport.zoom();
}

QPointF DiagramView::centre() const
{
    return d->viewport.centre();
}

const DiagramViewport &DiagramView::viewport() const
{
    return d->viewport;
}

bool DiagramView::isReadOnly() const
{
    return d->readOnly;
}

int DiagramView::digits() const
{
    return d->digits;
}

bool DiagramView::isReadoutShown() const
{
    return d->readoutShown;
}

QString DiagramView::editNote() const
{
    return d->editNote;
}

const DiagramContent &DiagramView::content() const
{
    return d->content;
}

const QVector<DiagramGamut> &DiagramView::gamuts() const
{
    return d->content.gamuts;
}

std::optional<Model::ColorGamut> DiagramView::gamut(GamutRole role) const
{
    const DiagramGamut *found = d->content.find(role);
    return found ? std::make_optional(found->gamut) : std::nullopt;
}

std::shared_ptr<const TargetRules> DiagramView::rules() const
{
    return d->rules;
}

QString DiagramView::coordinatesText(const QPointF &xy) const
{
    const Model::DiagramTraits &traits = Model::diagramTraits(diagram());
    const Model::DiagramPoint point = Model::toDiagram(diagram(), {xy.x(), xy.y()});
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
        return tr("not known", "coordinates");
    }
    const int decimals = d->decimals();
    return QStringLiteral("%1 %2  %3 %4")
        .arg(QString::fromUtf8(traits.xName), coordinateText(point.x, decimals), QString::fromUtf8(traits.yName),
            coordinateText(point.y, decimals));
}

std::optional<GamutVertex> DiagramView::selectedVertex() const
{
    return d->selected;
}

bool DiagramView::isEditing() const
{
    return d->hand == Private::Hand::Dragging;
}

void DiagramView::setContent(const DiagramContent &content)
{
    const QPointer<DiagramView> view(this);
    const bool areOtherLayers = content.layers != d->content.layers;
    const bool areOtherColors = content.colors != d->content.colors;
    d->change(content);
    if (!view) {
        return;
    }
    announceGamuts(this);
    if (areOtherLayers && !d->tell(&DiagramView::layersChanged)) {
        return;
    }
    if (areOtherColors && !d->tell(&DiagramView::horseshoeColorsChanged)) {
        return;
    }
    d->tell(&DiagramView::gamutsChanged);
}

void DiagramView::setGamuts(const QVector<DiagramGamut> &gamuts)
{
    DiagramContent changed = d->content;
    changed.gamuts = gamuts;
    setContent(changed);
}

void DiagramView::setTarget(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Target, {gamut});
}

void DiagramView::setOriginal(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Original, {gamut});
}

void DiagramView::setMeasured(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Measured, {gamut});
}

void DiagramView::setDeclared(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Declared, {gamut});
}

void DiagramView::setStandards(const std::vector<Model::ColorGamut> &gamuts)
{
    d->replace(GamutRole::Standard, gamuts);
}

void DiagramView::clearGamuts(GamutRole role)
{
    d->replace(role, {});
}

void DiagramView::setMeasurePoints(const QVector<DiagramMark> &points)
{
    DiagramContent changed = d->content;
    changed.measurePoints = points;
    d->change(changed);
}

void DiagramView::setColorTemperaturePoints(const QVector<DiagramMark> &points)
{
    DiagramContent changed = d->content;
    changed.colorTemperaturePoints = points;
    d->change(changed);
}

void DiagramView::setCmyPoints(const QVector<DiagramMark> &points)
{
    DiagramContent changed = d->content;
    changed.cmyPoints = points;
    d->change(changed);
}

void DiagramView::setRings(const QVector<DiagramRings> &rings)
{
    DiagramContent changed = d->content;
    changed.rings = rings;
    d->change(changed);
}

void DiagramView::setTrail(const QVector<QPointF> &trail)
{
    DiagramContent changed = d->content;
    changed.trail = trail;
    d->change(changed);
}

void DiagramView::setRules(std::shared_ptr<const TargetRules> rules)
{
    d->rules = rules ? std::move(rules) : std::make_shared<StandardTargetRules>();
    d->refreshOverlay();
    update();
}

void DiagramView::setSelectedVertex(std::optional<GamutVertex> vertex)
{
    const auto isIgnored = [&] {
        return vertex == d->selected || (vertex && !d->hasHandles()) || d->hand == Private::Hand::Holding
            || d->hand == Private::Hand::Dragging;
    };
    if (isIgnored()) {
        return;
    }
    const QPointer<DiagramView> view(this);
    d->finishKeys();
    if (!view || isIgnored()) {
        return;
    }
    const QRegion former = d->overlayRegion(d->overlay);
    d->dropLabel();
    d->selected = vertex;
    d->refreshOverlay();
    update(former + d->overlayRegion(d->overlay));
    if (vertex && hasFocus()) {
        announceFocus(this, *vertex);
    }
    d->tell(&DiagramView::selectedVertexChanged);
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

QSize DiagramView::sizeHint() const
{
    return QSize(640, 640);
}

QSize DiagramView::minimumSizeHint() const
{
    return QSize(160, 160);
}

void DiagramView::setDiagram(Model::Diagram diagram)
{
    if (diagram == this->diagram()) {
        return;
    }
    const QPointer<DiagramView> view(this);
    cancelEditing();
    if (!view) {
        return;
    }
    d->linesAreReady = false;
    update();
    d->look(d->viewport.withDiagram(diagram));
    if (view) {
        d->tell(&DiagramView::diagramChanged);
    }
}

void DiagramView::setDiagram(DiagramKind diagram)
{
    setDiagram(Model::Diagram(int(diagram)));
}

void DiagramView::setLayers(ShownLayers layers)
{
    if (layers == d->content.layers) {
        return;
    }
    DiagramContent changed = d->content;
    changed.layers = layers;
    const QPointer<DiagramView> view(this);
    d->change(changed);
    if (view) {
        announceGamuts(this);
        d->tell(&DiagramView::layersChanged);
    }
}

void DiagramView::setLayerShown(DiagramLayer layer, bool shown)
{
    ShownLayers layers = d->content.layers;
    layers.setFlag(layer, shown);
    setLayers(layers);
}

void DiagramView::setHorseshoeColors(HorseshoeColors colors)
{
    if (colors == d->content.colors) {
        return;
    }
    DiagramContent changed = d->content;
    changed.colors = colors;
    const QPointer<DiagramView> view(this);
    d->change(changed);
    if (view) {
        d->tell(&DiagramView::horseshoeColorsChanged);
    }
}

void DiagramView::setZoomFactor(double factor)
{
    if (factor > 0.0 && std::isfinite(factor)) {
        const QPointF middle = d->viewport.plot().center();
        d->zoom(factor / d->viewport.zoom(), middle);
    }
}

void DiagramView::setCentre(const QPointF &xy)
{
    if (std::isfinite(xy.x()) && std::isfinite(xy.y())) {
        d->look(d->viewport.centredOn(xy, d->viewport.zoom()));
    }
}

void DiagramView::setReadOnly(bool readOnly)
{
    if (readOnly == d->readOnly) {
        return;
    }
    const QPointer<DiagramView> view(this);
    cancelEditing();
    if (view && readOnly) {
        if (d->hand == Private::Hand::Holding) {
            d->hand = Private::Hand::Spent;
        }
        setSelectedVertex(std::nullopt);
    }
    if (!view) {
        return;
    }
    d->readOnly = readOnly;
    d->refreshOverlay();
    update();
    announceGamuts(this);
    d->tell(&DiagramView::readOnlyChanged);
}

void DiagramView::setDigits(int digits)
{
    constexpr int most = 10;
    const int wanted = digits >= 0 && digits <= most ? digits : automaticDigits;
    if (wanted != d->digits) {
        d->digits = wanted;
        d->refreshOverlay();
        update();
        d->tell(&DiagramView::digitsChanged);
    }
}

void DiagramView::setReadoutShown(bool shown)
{
    if (shown != d->readoutShown) {
        d->readoutShown = shown;
        d->refreshOverlay();
        update();
        d->tell(&DiagramView::readoutShownChanged);
    }
}

void DiagramView::setEditNote(const QString &note)
{
    if (note == d->editNote) {
        return;
    }
    d->editNote = note;
    if (d->label) {
        const QRegion former = d->overlayRegion(d->overlay);
        d->refreshOverlay();
        update(former + d->overlayRegion(d->overlay));
    }
    d->tell(&DiagramView::editNoteChanged);
}

void DiagramView::zoomIn()
{
    d->zoom(zoomStep, d->zoomAnchor());
}

void DiagramView::zoomOut()
{
    d->zoom(1.0 / zoomStep, d->zoomAnchor());
}

void DiagramView::showAll()
{
    d->look(d->viewport.fittedToAll());
}

void DiagramView::showTarget()
{
    const DiagramGamut *target = d->target();
    d->look(target ? d->viewport.fittedTo(target->gamut.getTargets()) : d->viewport.fittedToAll());
}

void DiagramView::showWhite()
{
    const DiagramGamut *shown = d->target() ? d->target() : d->content.display();
    d->look(shown ? d->viewport.fittedToWhite(xyOf(shown->gamut.getTargets().white)) : d->viewport.fittedToAll());
}

bool DiagramView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return d->touch(static_cast<QTouchEvent *>(event)) || QWidget::event(event);
    case QEvent::Gesture:
        return d->gesture(static_cast<QGestureEvent *>(event)) || QWidget::event(event);
    case QEvent::NativeGesture:
        return d->nativeGesture(static_cast<QNativeGestureEvent *>(event)) || QWidget::event(event);
    case QEvent::ShortcutOverride:
        // A key that the view takes must not reach a shortcut of the window first.
        if (d->wants(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void DiagramView::paintEvent(QPaintEvent *event)
{
    QPainter p(this);
    const DiagramPalette &palette = diagramPalette(d->content.ground);
    const bool isReadoutOnly = !d->overlay.readout.isEmpty()
        && event->region().subtracted(d->overlay.readoutPlace.toAlignedRect()).isEmpty();
    if (!isReadoutOnly) {
        p.setClipRegion(event->region());
        p.drawImage(QPointF(), d->painter->colors(devicePixelRatioF()));
        p.setRenderHint(QPainter::Antialiasing);
        if (!d->linesAreReady && event->region() == QRegion(rect())) {
            // As the view moves, lines that are kept would have to be made, laid over and dropped for each picture.
            d->painter->paintScale(&p);
            d->painter->paintGamuts(&p);
        } else {
            p.drawImage(QPointF(), d->linesPicture());
        }
        d->painter->paintEdited(&p);
        d->overlay.paint(p, d->viewport.plot(), palette, font());
    }
    d->overlay.paintReadout(p, palette);
}

void DiagramView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool showsAll = d->viewport.showsAll();
    const DiagramViewport wanted = d->viewport.resized(QSizeF(size()));
    const QPointF held = d->viewport.toPoint(d->grip.position());
    const QPointer<DiagramView> view(this);
    d->look(showsAll ? wanted.fittedToAll() : wanted);
    if (view) {
        d->followHand(held);
    }
}

void DiagramView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    d->forgetPictures();
    d->letGo(); // releases will go elsewhere
}

void DiagramView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        d->followPalette();
        break;
    case QEvent::FontChange:
        d->painter->setFont(d->textFont());
        d->change(d->content);
        break;
    case QEvent::LanguageChange:
        announceGamuts(this);
        d->change(d->content);
        break;
    case QEvent::EnabledChange:
        if (!isEnabled()) {
            d->letGo();
        }
        break;
    case QEvent::LayoutDirectionChange:
        d->refreshOverlay();
        update();
        break;
    default:
        break;
    }
}

} // namespace ceiechart
