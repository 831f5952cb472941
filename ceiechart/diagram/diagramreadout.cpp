// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/spectrum_p.h>

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double edgeRoom = 6.0; // logical pixels between the readout and the edge of the plot
constexpr double padding = 6.0; // beside the text, and half of it above and below
constexpr double pointerRoom = 40.0; // between the readout and the pointer, so that what is there can be seen

// What it costs to cover something. A handle is worth more than any line, and the pointer more than everything.
constexpr double costOfPointer = 1e7;
constexpr double costOfHandle = 1e5;
constexpr double costOfLocus = 10.0; // for each pixel of its length
constexpr double costOfOutline = 3.0; // so, too
constexpr double costOfText = 0.2; // for each pixel of its area
constexpr double costOfColors = 0.02; // so, too

double lengthWithin(const QPolygonF &points, const QRectF &area)
{
    double length = 0.0;
    for (int i = 1; i < points.size(); ++i) {
        const bool isApart = std::max(points[i - 1].x(), points[i].x()) < area.left()
            || std::min(points[i - 1].x(), points[i].x()) > area.right();
        if (isApart) {
            continue; // as nearly all are
        }
        if (const auto part = partWithin(QLineF(points[i - 1], points[i]), area)) {
            length += part->length();
        }
    }
    return length;
}

double areaOf(const QRectF &rectangle)
{
    return rectangle.isEmpty() ? 0.0 : rectangle.width() * rectangle.height();
}

//! How much of \a area lies within \a polygon, from 0 to 1 and roughly.
double shareWithin(const QPolygonF &polygon, const QRectF &area)
{
    if (!polygon.boundingRect().intersects(area)) {
        return 0.0;
    }
    constexpr int columns = 6;
    constexpr int rows = 2;
    int count = 0;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPointF at(
                area.left() + area.width() * (column + 0.5) / columns, area.top() + area.height() * (row + 0.5) / rows);
            count += polygon.containsPoint(at, Qt::WindingFill) ? 1 : 0;
        }
    }
    return double(count) / (columns * rows);
}

} // namespace

void DiagramView::Private::weighReadoutCorners(const QSizeF &size)
{
    QRectF area = viewport.plot().adjusted(edgeRoom, edgeRoom, -edgeRoom, -edgeRoom);
    if (size.width() > area.width()) {
        // Over the digits of the scale, where the plot is narrower than the coordinates.
        area.setLeft(std::max(0.0, viewport.plot().right() - size.width()));
        area.setRight(area.left() + size.width());
    }
    const double left = area.left();
    const double right = area.right() - size.width();
    const double bottom = area.bottom() - size.height();
    const double first = q->isRightToLeft() ? left : right;
    const double second = q->isRightToLeft() ? right : left;
    const QPolygonF locus = viewport.fromPoints(spectralLocusIn(viewport.diagram(), 1));
    const QVector<DiagramLabel> texts = painter->labels();
    readoutCorners.clear();
    for (const QPointF &corner :
        {QPointF(first, area.top()), QPointF(first, bottom), QPointF(second, area.top()), QPointF(second, bottom)}) {
        const QRectF place(corner, size);
        double cost
            = costOfLocus * lengthWithin(locus, place) + costOfColors * areaOf(place) * shareWithin(locus, place);
        for (const DiagramOverlay::Handle &handle : qAsConst(overlay.handles)) {
            cost += DiagramOverlay::bounds(handle).intersects(place) ? costOfHandle : 0.0;
        }
        for (const DiagramGamut &gamut : qAsConst(content.gamuts)) {
            if (content.shows(gamut)) {
                QPolygonF outline = viewport.outline(gamut.gamut.getTargets());
                outline.append(outline.first());
                cost += costOfOutline * lengthWithin(outline, place);
            }
        }
        for (const DiagramLabel &text : texts) {
            cost += costOfText * areaOf(text.place & place);
        }
        readoutCorners.append({place, cost});
    }
}

void DiagramView::Private::placeReadout()
{
    overlay.readout.clear();
    overlay.readoutPlace = QRectF();
    if (!readoutShown || !isHovering || !pointer || hand == Hand::Dragging) {
        return; // at what is dragged, the label shows the same
    }
    overlay.readout = q->coordinatesText(viewport.toChromaticity(*pointer));
    const QFontMetricsF metrics(q->font());
    const QSizeF size(
        std::ceil(metrics.horizontalAdvance(overlay.readout) + 2.0 * padding), std::ceil(metrics.height() + padding));
    if (readoutCorners.isEmpty() || readoutCorners.first().place.size() != size) {
        weighReadoutCorners(size);
    }
    const auto cost = [this](const ReadoutCorner &corner) {
        const double away = distanceTo(corner.place, *pointer);
        return corner.cost + costOfPointer * std::max(0.0, 1.0 - away / pointerRoom);
    };
    // The first of those that cost the same.
    overlay.readoutPlace = std::min_element(
        readoutCorners.cbegin(), readoutCorners.cend(), [&](const ReadoutCorner &a, const ReadoutCorner &b) {
            return cost(a) < cost(b);
        })->place;
}

} // namespace ceiechart
