// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Handles, guides, readout and the label at what is edited: what there is of them, and where.
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/markgrid_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

constexpr double labelDistance = 26.0; // logical pixels from the middle of a handle to its label
constexpr double costOfName = 60.0; // of a name that it covers, in logical pixels farther away from the handle
constexpr double cornerRoom = 6.0; // logical pixels round a corner that the hand may move to

QRectF around(const QRectF &place, double room)
{
    return place.adjusted(-room, -room, room, room);
}

//! Small boxes along the line from \a from to \a to.
void addBoxesAlong(QVector<QRectF> &boxes, const QPointF &from, const QPointF &to)
{
    constexpr double side = 8.0;
    constexpr int most = 1000; // of the whole line, which may lead far beyond what is seen
    const double whole = length(to - from);
    if (!(whole > 0.0) || !std::isfinite(whole)) {
        return;
    }
    const QPointF step = (to - from) * (side / whole);
    const int count = int(std::min(double(most), whole / side));
    for (int i = 0; i <= count; ++i) {
        const QPointF at = from + step * i;
        boxes.append(QRectF(at.x() - side / 2.0, at.y() - side / 2.0, side, side));
    }
}

} // namespace

void DiagramView::Private::refreshOverlay()
{
    DiagramOverlay fresh;
    fresh.direction = q->layoutDirection();
    const QRectF plot = viewport.plot();
    if (hasHandles()) {
        const QRectF reach = plot.adjusted(-1.0, -1.0, 1.0, 1.0);
        const auto add = [&](GamutVertex vertex) {
            const QPointF at = positionOf(vertex);
            if (isFinite(at) && reach.contains(at)) {
                DiagramOverlay::Handle handle;
                handle.vertex = vertex;
                handle.at = at;
                handle.isMovable = rules->isMovable(vertex);
                handle.isSelected = selected == vertex;
                handle.hasFocus = handle.isSelected && q->hasFocus();
                fresh.handles.append(handle);
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
    // A pointer at rest may be over something else now.
    hovered = handleBelowPointer();
    for (DiagramOverlay::Handle &handle : overlay.handles) {
        handle.isHovered = hovered == handle.vertex;
    }
    updateCursor();
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
    if (!isFinite(at) || !plot.contains(at)) {
        return;
    }
    constexpr double widest = 260.0; // of the lines after the first, in logical pixels
    const LabelFonts &fonts = labelFonts();
    QVector<QRectF> avoid;
    for (const DiagramOverlay::Handle &handle : qAsConst(overlay.handles)) {
        avoid.append(DiagramOverlay::bounds(handle));
    }
    const QVector<QRectF> handleBoxes = avoid; // the last is of what is edited
    // What the hand is likely to move to must be seen as well.
    MarkGrid corners;
    for (const DiagramGamut &gamut : content.gamuts) {
        if (gamut.role != GamutRole::Target && content.shows(gamut)) {
            const QPointF corner = viewport.toPosition(xyOf(targetAt(gamut.gamut.getTargets(), *selected)));
            if (isFinite(corner) && around(q->rect(), cornerRoom).contains(corner)) {
                corners.add(corner);
            }
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
    const auto isPlaced = [&](const QVector<QRectF> &boxes, const MarkGrid &marks = MarkGrid()) {
        overlay.label = DiagramOverlay::wrapped(entries, fonts, std::min(widest, plot.width() / 2.0));
        overlay.labelPlace = labelPlace(DiagramOverlay::labelSize(overlay.label, fonts), at, boxes, marks);
        return !overlay.labelPlace.isEmpty();
    };
    // Where there is no room for all of it, the coordinates are what matters, more than what they cover.
    for (;; entries.removeLast()) {
        if (isPlaced(avoid, corners)) {
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

const LabelFonts &DiagramView::Private::labelFonts()
{
    const QFont font = q->font();
    if (!keptLabelFonts || !keptLabelFonts->areOf(font, q->logicalDpiY())) {
        keptLabelFonts.emplace(font, q->logicalDpiY());
    }
    return *keptLabelFonts;
}

QRectF DiagramView::Private::labelPlace(
    const QSizeF &size, const QPointF &at, const QVector<QRectF> &avoid, const MarkGrid &corners) const
{
    const QVector<DiagramLabel> names = painter->labels();
    const auto isTaken = [&avoid, &corners](const QRectF &place) {
        const auto covers = [&place](const QRectF &box) { return overlap(box, place); };
        return corners.meets(place, cornerRoom) || std::any_of(avoid.cbegin(), avoid.cend(), covers);
    };
    const auto costOf = [&names, &at](const QRectF &place) {
        const auto covered = std::count_if(
            names.cbegin(), names.cend(), [&place](const DiagramLabel &name) { return overlap(name.place, place); });
        return distanceTo(place, at) + costOfName * double(covered);
    };
    const QRectF beside = around(QRectF(at, at), labelDistance + std::max(size.width(), size.height()) + cornerRoom);
    QVector<QRectF> near = avoid;
    for (const QPointF &corner : corners.all()) {
        if (beside.contains(corner)) {
            near.append(around(QRectF(corner, corner), cornerRoom));
        }
    }
    QRectF best = painter->freePlace(size, at, labelDistance, near);
    double least = best.isEmpty() ? std::numeric_limits<double>::max() : costOf(best);
    if (least < costOfName) {
        return best; // on no name
    }
    // Farther away where there is no room beside it; a line leads from the label to the handle.
    constexpr int tries = 40; // each way
    // And over the digits of the scale where the plot is narrower than the coordinates.
    const QRectF area = size.width() <= viewport.plot().width() ? viewport.plot() : QRectF(q->rect());
    const QSizeF room(area.width() - size.width(), area.height() - size.height());
    for (int row = 0; row <= tries && room.isValid(); ++row) {
        const double top = area.top() + room.height() * row / tries;
        if (distanceTo(QRectF(at.x(), top, 0.0, size.height()), at) >= least) {
            continue; // wherever in the row
        }
        for (int column = 0; column <= tries; ++column) {
            const QRectF place(QPointF(area.left() + room.width() * column / tries, top), size);
            const double away = distanceTo(place, at);
            if (away < labelDistance || away >= least || isTaken(place)) {
                continue;
            }
            const double cost = costOf(place);
            if (cost < least) {
                least = cost;
                best = place;
            }
        }
    }
    return best;
}

} // namespace ceiechart
