// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramviewport.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/spectrum_p.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double wavelengthRoom = 36.0; // logical pixels round the horseshoe, for ticks and digits
constexpr double largestRoom = 0.12; // of the plot: where it is small, the room shrinks with it
constexpr double polygonRoom = 0.12; // of the plot, on each side of a polygon that is fitted
constexpr double surroundings = 0.25; // of the horseshoe's size, on each side: there, corners of wide gamuts lie

//! The coordinate after a step, which may come nearer to the range but not leave it.
double kept(double from, double step, double least, double most)
{
    return std::clamp(from + step, std::min(from, least), std::max(from, most));
}

//! The centre nearest to \a centre from which zooming out leads back to the horseshoe.
Model::DiagramPoint inReach(Model::Diagram diagram, const Model::DiagramPoint &centre)
{
    const QRectF bounds = spectrumBounds(diagram);
    const double roomX = surroundings * bounds.width();
    const double roomY = surroundings * bounds.height();
    return {std::clamp(centre.x, bounds.left() - roomX, bounds.right() + roomX),
        std::clamp(centre.y, bounds.top() - roomY, bounds.bottom() + roomY)};
}

//! The position of \a point where \a centre is at \a middle and \a perUnit pixels are a unit.
QPointF positionOf(const QPointF &point, const Model::DiagramPoint &centre, const QPointF &middle, double perUnit)
{
    return QPointF(middle.x() + (point.x() - centre.x) * perUnit, middle.y() - (point.y() - centre.y) * perUnit);
}

} // namespace

DiagramViewport::DiagramViewport()
    : DiagramViewport(Model::Diagram::Cie1931, QSizeF())
{
}

DiagramViewport::DiagramViewport(Model::Diagram diagram, const QSizeF &size, const QMarginsF &margins)
    : m_diagram(Model::diagramTraits(diagram).diagram)
    , m_size(size)
    , m_margins(margins)
{
    *this = fittedToAll();
}

QRectF DiagramViewport::plot() const
{
    const double width = m_size.width() - m_margins.left() - m_margins.right();
    const double height = m_size.height() - m_margins.top() - m_margins.bottom();
    return QRectF(m_margins.left(), m_margins.top(), std::max(width, 1.0), std::max(height, 1.0));
}

double DiagramViewport::wholeScale() const
{
    const QRectF bounds = spectrumBounds(m_diagram);
    const QRectF area = plot();
    const double roomX = std::min(wavelengthRoom, largestRoom * area.width());
    const double roomY = std::min(wavelengthRoom, largestRoom * area.height());
    return std::min((area.width() - 2.0 * roomX) / bounds.width(), (area.height() - 2.0 * roomY) / bounds.height());
}

double DiagramViewport::scale() const
{
    return m_zoom * wholeScale();
}

QPointF DiagramViewport::centre() const
{
    const Model::DiagramPoint xy = Model::fromDiagram(m_diagram, m_centre);
    return QPointF(xy.x, xy.y);
}

QRectF DiagramViewport::range() const
{
    const QSizeF seen = plot().size() / scale();
    return QRectF(m_centre.x - seen.width() / 2.0, m_centre.y - seen.height() / 2.0, seen.width(), seen.height());
}

bool DiagramViewport::showsAll() const
{
    return *this == fittedToAll();
}

QPointF DiagramViewport::fromPoint(const QPointF &point) const
{
    return positionOf(point, m_centre, plot().center(), scale());
}

QPolygonF DiagramViewport::fromPoints(const QPolygonF &points) const
{
    const QPointF middle = plot().center();
    const double perUnit = scale();
    QPolygonF positions(points.size());
    std::transform(points.cbegin(), points.cend(), positions.begin(),
        [&](const QPointF &point) { return positionOf(point, m_centre, middle, perUnit); });
    return positions;
}

QPointF DiagramViewport::toPoint(const QPointF &position) const
{
    const QPointF middle = plot().center();
    const double perUnit = scale();
    return QPointF(
        m_centre.x + (position.x() - middle.x()) / perUnit, m_centre.y - (position.y() - middle.y()) / perUnit);
}

QPointF DiagramViewport::toPosition(const QPointF &xy) const
{
    const Model::DiagramPoint point = Model::toDiagram(m_diagram, {xy.x(), xy.y()});
    return fromPoint(QPointF(point.x, point.y));
}

QPointF DiagramViewport::toChromaticity(const QPointF &position) const
{
    const QPointF point = toPoint(position);
    const Model::DiagramPoint xy = Model::fromDiagram(m_diagram, {point.x(), point.y()});
    return QPointF(xy.x, xy.y);
}

QPolygonF DiagramViewport::outline(const Model::Targets &gamut) const
{
    QPolygonF corners;
    for (const Model::Target *corner : {&gamut.red, &gamut.green, &gamut.blue}) {
        corners.append(toPosition(QPointF(corner->x, corner->y)));
    }
    return corners;
}

DiagramViewport DiagramViewport::zoomed(double factor, const QPointF &anchor) const
{
    if (!(factor > 0.0) || !isFinite(anchor)) {
        return *this;
    }
    DiagramViewport result = *this;
    result.m_zoom = std::clamp(m_zoom * factor, 1.0, closest);
    if (result.m_zoom == m_zoom) {
        return *this;
    }
    const QPointF point = toPoint(anchor);
    const QPointF offset = anchor - plot().center();
    const double perUnit = result.scale();
    result.m_centre = inReach(m_diagram, {point.x() - offset.x() / perUnit, point.y() + offset.y() / perUnit});
    return result;
}

DiagramViewport DiagramViewport::zoomed(double factor) const
{
    return zoomed(factor, plot().center());
}

DiagramViewport DiagramViewport::panned(const QPointF &delta) const
{
    if (!isFinite(delta)) {
        return *this;
    }
    const QRectF bounds = spectrumBounds(m_diagram);
    const double perUnit = scale();
    DiagramViewport result = *this;
    result.m_centre = {kept(m_centre.x, -delta.x() / perUnit, bounds.left(), bounds.right()),
        kept(m_centre.y, delta.y() / perUnit, bounds.top(), bounds.bottom())};
    return result;
}

DiagramViewport DiagramViewport::fittedToAll() const
{
    const QPointF middle = spectrumBounds(m_diagram).center();
    DiagramViewport result = *this;
    result.m_centre = {middle.x(), middle.y()};
    result.m_zoom = 1.0;
    return result;
}

DiagramViewport DiagramViewport::fittedTo(const QPolygonF &polygon) const
{
    QPolygonF points;
    for (const QPointF &xy : polygon) {
        const Model::DiagramPoint point = Model::toDiagram(m_diagram, {xy.x(), xy.y()});
        if (isFinite(QPointF(point.x, point.y))) {
            points.append(QPointF(point.x, point.y));
        }
    }
    if (points.isEmpty()) {
        return *this;
    }
    const QRectF bounds = points.boundingRect();
    const QSizeF free = plot().size() * (1.0 - 2.0 * polygonRoom);
    // A single point is seen as closely as can be.
    const double perUnit = std::min(bounds.width() > 0.0 ? free.width() / bounds.width() : HUGE_VAL,
        bounds.height() > 0.0 ? free.height() / bounds.height() : HUGE_VAL);
    DiagramViewport result = *this;
    result.m_zoom = std::clamp(perUnit / wholeScale(), 1.0, closest);
    result.m_centre = inReach(m_diagram, {bounds.center().x(), bounds.center().y()});
    return result;
}

DiagramViewport DiagramViewport::fittedTo(const Model::Targets &gamut) const
{
    QPolygonF corners;
    for (const Model::Target *corner : {&gamut.red, &gamut.green, &gamut.blue}) {
        corners.append(QPointF(corner->x, corner->y));
    }
    return fittedTo(corners);
}

DiagramViewport DiagramViewport::fittedToWhite(const QPointF &xy, double reach) const
{
    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {xy.x(), xy.y()});
    QPolygonF polygon;
    for (const auto &way : {QPointF(reach, 0.0), QPointF(-reach, 0.0), QPointF(0.0, reach), QPointF(0.0, -reach)}) {
        const Model::DiagramPoint at = Model::fromDiagram(Model::Diagram::Cie1976, {uv.x + way.x(), uv.y + way.y()});
        polygon.append(QPointF(at.x, at.y));
    }
    return centredOn(xy, fittedTo(polygon).zoom());
}

DiagramViewport DiagramViewport::centredOn(const QPointF &xy, double zoom) const
{
    const Model::DiagramPoint point = Model::toDiagram(m_diagram, {xy.x(), xy.y()});
    if (!isFinite(QPointF(point.x, point.y)) || !(zoom > 0.0)) {
        return *this;
    }
    DiagramViewport result = *this;
    result.m_zoom = std::clamp(zoom, 1.0, closest);
    result.m_centre = inReach(m_diagram, point);
    return result;
}

DiagramViewport DiagramViewport::resized(const QSizeF &size) const
{
    DiagramViewport result = *this;
    result.m_size = size;
    return result;
}

DiagramViewport DiagramViewport::withMargins(const QMarginsF &margins) const
{
    DiagramViewport result = *this;
    result.m_margins = margins;
    return result;
}

DiagramViewport DiagramViewport::withDiagram(Model::Diagram diagram) const
{
    if (diagram == m_diagram) {
        return *this;
    }
    const DiagramViewport whole(diagram, m_size, m_margins);
    return showsAll() ? whole : whole.centredOn(centre(), m_zoom);
}

bool DiagramViewport::equals(const DiagramViewport &other) const
{
    return m_diagram == other.m_diagram && m_size == other.m_size && m_margins == other.m_margins
        && m_centre.x == other.m_centre.x && m_centre.y == other.m_centre.y && m_zoom == other.m_zoom;
}

} // namespace ceiechart
