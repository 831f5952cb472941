// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Rings, the trail and whites.
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/targetrules.h>

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double trailRadius = 2.5;
constexpr double ringWidth = 1.2;
constexpr double curvePieces = 2.0; // lengths of the pieces of rings, at least

//! Six digits at most, and no exponent.
QString decimal(double value)
{
    return QString::number(QString::number(value, 'g', 6).toDouble(), 'f', QLocale::FloatingPointShortest);
}

//! Each role's white has a shape of its own. Its arms are extended by \a longer at both ends, which a casing needs.
void drawWhite(DrawList &list, GamutRole role, const QPointF &at, QPen pen, double longer)
{
    constexpr double r = whiteRadius;
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    const auto outline = [&](const QPolygonF &points) { list.line(points, true, pen); };
    switch (role) {
    case GamutRole::Target: {
        list.ellipse(at, r, r, pen, Qt::NoBrush);
        QVector<QLineF> arms;
        for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, 1.0), QPointF(0.0, -1.0)}) {
            arms.append(QLineF(at + way * (r - whiteArm / 2.0 - longer), at + way * (r + whiteArm + longer)));
        }
        list.lines(arms, pen);
        break;
    }
    case GamutRole::Original:
    case GamutRole::Standard:
        outline(QVector<QPointF>{at + QPointF(-r, -r), at + QPointF(r, -r), at + QPointF(r, r), at + QPointF(-r, r)});
        break;
    case GamutRole::Measured:
        outline(diamondAt(at, r + 1.5));
        break;
    case GamutRole::Declared:
        outline(QVector<QPointF>{at + QPointF(0.0, -r - 1.0), at + QPointF(r + 0.5, r), at + QPointF(-r - 0.5, r)});
        break;
    }
}

} // namespace

bool DiagramGamuts::isSeen(const QPointF &at, double radius) const
{
    return isFinite(at) && m_plot.adjusted(radius, radius, -radius, -radius).contains(at);
}

QRectF DiagramGamuts::around(const QPointF &at, double reach)
{
    return QRectF(at - QPointF(reach, reach), at + QPointF(reach, reach));
}

QPointF DiagramGamuts::whiteOf(const Shown &gamut) const
{
    return m_sheet.viewport.toPosition(xyOf(m_content.gamuts.at(gamut.index).gamut.getTargets().white));
}

void DiagramGamuts::placeRings(const DiagramRings &rings)
{
    const QPointF middle = m_sheet.viewport.toPosition(rings.xy);
    if (!isFinite(middle)) {
        return;
    }
    const Model::DiagramPoint centre = Model::toDiagram(Model::Diagram::Cie1976, {rings.xy.x(), rings.xy.y()});
    const TextStyle &style = m_sheet.fonts.numbers;
    for (const double radius : rings.radii) {
        const QPolygonF curve = DiagramPainter::ring(m_sheet.viewport, rings.xy, radius);
        if (curve.isEmpty() || !isFinite(curve)) {
            continue;
        }
        m_rings.push_back({QPointF(centre.x, centre.y), radius, curve});
        const QString number = decimal(radius);
        const QSizeF size = style.size(number);
        if (curve.boundingRect().height() < 3.2 * size.height()) {
            continue;
        }
        const auto ends = std::minmax_element(
            curve.cbegin(), curve.cend(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        for (const QPointF &end : {*ends.second, *ends.first}) {
            const QRectF place(end - QPointF(size.width(), size.height()) / 2.0, size);
            const bool isOnHandle = std::any_of(m_handles.cbegin(), m_handles.cend(),
                [&place](const QRectF &handle) { return handle.intersects(place); });
            if (!isOnHandle && m_step.places.isFree(place, m_inner, labelGap)) {
                m_step.places.add(DiagramLabel::Kind::Ring, number, place);
                drawPlate(place, m_innerPalette);
                m_step.texts.textIn(place, number, style, gamutStyle(GamutRole::Target).color);
                break;
            }
        }
    }
}

void DiagramGamuts::drawRing(const Ring &ring)
{
    QPen pen(gamutStyle(GamutRole::Target).color, ringWidth, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({5.0, 3.0});
    const QRectF bounds = ring.curve.boundingRect();
    if (m_plot.contains(bounds) && m_sheet.viewport.diagram() != Model::Diagram::Cie1931) {
        // As an ellipse, which files keep as one.
        m_step.drawing.ellipse(bounds.center(), bounds.width() / 2.0, bounds.height() / 2.0,
            QPen(m_innerPalette.casing, ringWidth + lineCasing), Qt::NoBrush);
        m_step.drawing.ellipse(bounds.center(), bounds.width() / 2.0, bounds.height() / 2.0, pen, Qt::NoBrush);
    } else {
        drawCased(m_step.drawing, thinned(ring.curve, curvePieces), true, m_plot, pen, m_innerPalette.casing);
    }
}

bool DiagramGamuts::isOnRing(const QRectF &place) const
{
    if (m_rings.empty()) {
        return false;
    }
    // In u', v', where rings are circles and a box has straight sides still.
    QPolygonF box;
    for (const QPointF &corner : {place.topLeft(), place.topRight(), place.bottomRight(), place.bottomLeft()}) {
        const QPointF xy = m_sheet.viewport.toChromaticity(corner);
        const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {xy.x(), xy.y()});
        box.append(QPointF(uv.x, uv.y));
    }
    return std::any_of(m_rings.begin(), m_rings.end(), [&box](const Ring &ring) {
        double nearest = box.containsPoint(ring.centre, Qt::WindingFill) ? 0.0 : HUGE_VAL;
        double farthest = 0.0;
        for (int i = 0; i < box.size(); ++i) {
            const QPointF from = box.at(i) - ring.centre;
            const QPointF way = box.at((i + 1) % box.size()) - box.at(i);
            const double share = std::clamp(-QPointF::dotProduct(from, way) / QPointF::dotProduct(way, way), 0.0, 1.0);
            nearest = std::min(nearest, length(from + way * share));
            farthest = std::max(farthest, length(from));
        }
        return nearest <= ring.radius && ring.radius <= farthest;
    });
}

void DiagramGamuts::drawTrail()
{
    const QColor color = gamutStyle(GamutRole::Target).color;
    const int count = int(m_content.trail.size());
    const auto at = [this](int i) { return m_sheet.viewport.toPosition(m_content.trail.at(i)); };
    for (int i = 0; i + 1 < count; ++i) {
        if (const auto part
            = isFinite(at(i)) && isFinite(at(i + 1)) ? partWithin(QLineF(at(i), at(i + 1)), m_plot) : std::nullopt) {
            const QPolygonF points(QVector<QPointF>{part->p1(), part->p2()});
            m_step.drawing.line(
                points, false, QPen(m_innerPalette.casing, 1.5 + lineCasing, Qt::SolidLine, Qt::RoundCap));
            m_step.drawing.line(points, false, QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
        }
    }
    for (int i = 0; i < count; ++i) {
        if (isSeen(at(i), trailRadius)) {
            // The older, the smaller.
            const double radius = trailRadius * (0.6 + 0.4 * (i + 1) / count);
            m_step.drawing.ellipse(at(i), radius, radius, QPen(m_innerPalette.casing, 1.0), color);
        }
    }
}

void DiagramGamuts::drawWhites()
{
    for (size_t i = m_outlines.standards; i < m_shown.size(); ++i) {
        const Shown &gamut = m_shown[i];
        const QPointF at = whiteOf(gamut);
        if (!isSeen(at, whiteRadius + whiteArm)) {
            continue;
        }
        const QPen pen = DiagramPainter::gamutPen(gamut.role);
        drawWhite(
            m_step.drawing, gamut.role, at, QPen(m_innerPalette.casing, pen.widthF() + lineCasing), lineCasing / 2.0);
        drawWhite(m_step.drawing, gamut.role, at, QPen(pen.color(), pen.widthF()), 0.0);
        m_whites.append(around(at, whiteRadius + whiteArm));
    }
}

} // namespace ceiechart
