// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Fonts, places of texts and lines with casings, for all steps of painting.
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <gamutmodel/gamutcoverage.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double numbersShare = 0.88; // of the size of the font

QFont scaled(QFont font, double share)
{
    font.setPointSizeF(font.pointSizeF() * share);
    return font;
}

QFont weighted(QFont font, QFont::Weight weight)
{
    font.setWeight(weight);
    return font;
}

} // namespace

DiagramFonts::DiagramFonts(const QFont &font, const QPaintDevice *device, double unit)
    : numbers(scaled(font, numbersShare), device, unit)
    , names(weighted(font, QFont::Bold), device, unit)
    , texts(scaled(font, numbersShare), device, unit)
    , axes(weighted(font, QFont::Bold), device, unit)
{
}

bool LabelPlaces::isFree(const QRectF &place, const QRectF &area, double gap) const
{
    const QRectF roomy = place.adjusted(-gap, -gap, gap, gap);
    return area.contains(place)
        && std::none_of(m_labels.cbegin(), m_labels.cend(),
            [&roomy](const DiagramLabel &label) { return overlap(label.place, roomy); })
        && std::none_of(
            m_leaders.cbegin(), m_leaders.cend(), [&roomy](const QLineF &leader) { return meets(leader, roomy); });
}

bool LabelPlaces::isCrossed(const QLineF &line) const
{
    return std::any_of(
        m_labels.cbegin(), m_labels.cend(), [&line](const DiagramLabel &label) { return meets(line, label.place); });
}

void LabelPlaces::add(
    DiagramLabel::Kind kind, const QString &text, const QRectF &place, int index, const QLineF &leader)
{
    m_labels.append({kind, index, text, place, leader});
    if (!leader.isNull()) {
        m_leaders.append(leader);
    }
}

void drawCased(DrawList &list, const QPolygonF &points, bool closed, const QRectF &area, const QPen &pen,
    const QColor &casingColor)
{
    const std::vector<LinePart> parts = partsWithin(points, closed, area);
    for (const LinePart &part : casingColor.alpha() > 0 ? parts : std::vector<LinePart>()) {
        const QPen under(casingColor, pen.widthF() + lineCasing, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        list.line(part.points, part.closed, under);
    }
    for (const LinePart &part : parts) {
        QPen placed = pen;
        if (pen.style() != Qt::SolidLine) {
            // Offsets are counted in widths of the pen, and repeat with the pattern.
            double period = 0.0;
            for (const qreal dash : pen.dashPattern()) {
                period += dash;
            }
            placed.setDashOffset(std::fmod(part.begin / pen.widthF(), period));
        }
        list.line(part.points, part.closed, placed);
    }
}

QColor faded(QColor color, double share)
{
    color.setAlphaF(color.alphaF() * share);
    return color;
}

QPolygonF commonArea(const DiagramContent &content, Model::Diagram diagram)
{
    QPolygonF corners;
    const DiagramGamut *display = content.display();
    const DiagramGamut *target = content.find(GamutRole::Target);
    const DiagramGamut *only = target ? target : display;
    if (!only || !content.layers.testFlag(DiagramLayer::CommonArea)) {
        return corners;
    }
    const Model::Targets &first = only->gamut.getTargets();
    const Model::Targets &second = display ? display->gamut.getTargets() : first;
    for (const Model::DiagramPoint &point : Model::commonPolygon(first, second, diagram)) {
        corners.append(QPointF(point.x, point.y));
    }
    return corners;
}

} // namespace ceiechart
