// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Outlines of gamuts, the common area and the lost one.
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/targetrules.h>

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double equalWidening = 3.0; // of the lower of two equal lines
constexpr double hatchDistance = 8.0;
// Not quite 45°: where a line ends at exactly that slope, the raster engine's soft pixels depend on its other end,
// which moves with every edit.
constexpr double hatchSlope = 1.01;

} // namespace

DiagramGamuts::DiagramGamuts(const DiagramSheet &sheet, const ShownOutlines &outlines, const ShownMarks &marks)
    : m_sheet(sheet)
    , m_content(sheet.content)
    , m_palette(sheet.palette())
    , m_innerPalette(sheet.innerPalette())
    , m_plot(sheet.viewport.plot())
    , m_inner(m_plot.adjusted(labelGap, labelGap, -labelGap, -labelGap))
    , m_outlines(outlines)
    , m_shown(outlines.all)
    , m_firstNamed(outlines.standards > size_t(mostNamedStandards) ? outlines.standards : 0)
    , m_marks(marks)
{
}

DiagramStep DiagramGamuts::takeUnedited()
{
    size_t first = 0;
    if (m_outlines.areStandardsPlain()) {
        QVector<QLineF> lines;
        for (; first < m_outlines.standards; ++first) {
            if (isDrawn(first, false)) {
                addPlainOutline(first, &lines);
            }
        }
        m_step.drawing.lines(lines, QPen(gamutStyle(GamutRole::Standard).color, 1.0, Qt::SolidLine, Qt::FlatCap));
    }
    for (size_t i = first; i < m_shown.size(); ++i) {
        if (isDrawn(i, false)) {
            drawOutline(i, false);
        }
    }
    return std::move(m_step);
}

DiagramStep DiagramGamuts::takeEdited(const DiagramStep &scale)
{
    m_step.places = scale.places;
    m_step.curves = scale.curves;
    m_handles = handles();
    m_sides = sides();
    placeWavelengths(scale.wavelengths);
    if (m_sheet.shows(DiagramLayer::Rings)) {
        for (const DiagramRings &rings : m_content.rings) {
            placeRings(rings);
        }
    }
    placeIsotherms(scale.isotherms);
    drawCommonArea();
    if (m_sheet.shows(DiagramLayer::LostArea)) {
        drawLostArea();
    }
    for (size_t i = 0; i < m_shown.size(); ++i) {
        const bool isTarget = m_shown[i].role == GamutRole::Target;
        // What the target would cover comes out on both sides of it.
        if (isDrawn(i, true) && (isTarget || equalsTarget(i))) {
            drawOutline(i, true);
        }
    }
    for (const Ring &ring : m_rings) {
        drawRing(ring);
    }
    if (m_sheet.shows(DiagramLayer::Trail)) {
        drawTrail();
    }
    m_step.drawing.marks(m_marks.marks);
    if (m_sheet.shows(DiagramLayer::Whites)) {
        drawWhites();
    }
    if (m_sheet.shows(DiagramLayer::Names)) {
        drawNames();
        for (int i = 0; i < m_marks.names.size(); ++i) {
            drawMarkName(m_marks.marks.at(i).at, m_marks.names.at(i));
        }
    }
    return std::move(m_step);
}

bool DiagramGamuts::isDrawn(size_t i, bool targetsToo) const
{
    return !m_shown[i].isCovered && (targetsToo || m_shown[i].role != GamutRole::Target);
}

int DiagramGamuts::equalsAbove(size_t i, bool targetsToo) const
{
    int count = 0;
    GamutRole last = m_shown[i].role;
    for (const size_t k : m_shown[i].equals) {
        // A role's gamuts follow one another.
        if (k > i && m_shown[k].role != last && isDrawn(k, targetsToo)) {
            ++count;
            last = m_shown[k].role;
        }
    }
    return count;
}

bool DiagramGamuts::hasEqualBelow(size_t i) const
{
    const std::vector<size_t> &equals = m_shown[i].equals;
    return !equals.empty() && equals.front() < i;
}

bool DiagramGamuts::equalsTarget(size_t i) const
{
    // Targets come last.
    const std::vector<size_t> &equals = m_shown[i].equals;
    return !equals.empty() && m_shown[equals.back()].role == GamutRole::Target;
}

void DiagramGamuts::drawOutline(size_t i, bool targetsToo)
{
    QPen pen = DiagramPainter::gamutPen(m_shown[i].role);
    const int equals = equalsAbove(i, targetsToo);
    if (equals > 0) {
        pen = QPen(pen.color(), pen.widthF() + equals * equalWidening, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    }
    drawCased(m_step.drawing, m_shown[i].corners, true, m_plot, pen,
        hasEqualBelow(i) ? QColor(Qt::transparent) : m_palette.casing);
}

void DiagramGamuts::addPlainOutline(size_t i, QVector<QLineF> *lines) const
{
    for (const LinePart &part : partsWithin(m_shown[i].corners, true, m_plot)) {
        for (int k = 1; k < part.points.size(); ++k) {
            lines->append(QLineF(part.points.at(k - 1), part.points.at(k)));
        }
        if (part.closed) {
            lines->append(QLineF(part.points.last(), part.points.first()));
        }
    }
}

void DiagramGamuts::drawCommonArea()
{
    if (!m_sheet.shows(DiagramLayer::CommonArea) || m_sheet.colors() == HorseshoeColors::Dimmed) {
        return; // there, it is what is not dimmed
    }
    const QPolygonF corners = m_sheet.viewport.fromPoints(commonArea(m_content, m_sheet.viewport.diagram()));
    if (corners.isEmpty()) {
        return;
    }
    if (m_sheet.colors() == HorseshoeColors::None) {
        const QPolygonF seen = corners.intersected(QPolygonF(m_plot.adjusted(0.0, 0.0, 0.0, 0.0)));
        m_step.drawing.shape(closedPath(seen), Qt::NoPen, faded(m_palette.accent, 0.12));
    }
    drawCased(m_step.drawing, corners, true, m_plot, QPen(m_palette.numbers, 1.0), m_palette.casing);
}

void DiagramGamuts::drawLostArea()
{
    const DiagramGamut *display = m_content.display();
    const DiagramGamut *target = m_content.find(GamutRole::Target);
    if (!display || !target) {
        return;
    }
    const QPolygonF whole = m_sheet.viewport.outline(display->gamut.getTargets());
    const QPolygonF kept = m_sheet.viewport.outline(target->gamut.getTargets());
    if (!isFinite(whole) || !isFinite(kept)) {
        return;
    }
    // Each line has one sum on the screen, fixed to the diagram and not to the view.
    const auto sumAt = [](const QPointF &at) { return hatchSlope * at.x() + at.y(); };
    const double phase = std::fmod(sumAt(m_sheet.viewport.fromPoint(QPointF())), hatchDistance);
    const auto [least, most] = std::minmax({sumAt(whole.at(0)), sumAt(whole.at(1)), sumAt(whole.at(2))});
    const double last = std::min(sumAt(m_plot.bottomRight()), most + hatchDistance);
    QVector<QLineF> hatch;
    for (double sum = phase - hatchDistance; sum < last; sum += hatchDistance) {
        if (sum < least - hatchDistance) {
            continue;
        }
        const auto line = partWithin(
            QLineF(m_plot.left(), sum - hatchSlope * m_plot.left(), m_plot.right(), sum - hatchSlope * m_plot.right()),
            m_plot);
        const auto within = line ? sharesWithin(*line, whole) : std::nullopt;
        if (!within) {
            continue;
        }
        const auto drawPart = [&](double from, double to) {
            if (to > from) {
                hatch.append(QLineF(line->pointAt(from), line->pointAt(to)));
            }
        };
        const auto hidden = sharesWithin(*line, kept);
        drawPart(within->first, hidden ? std::min(within->second, hidden->first) : within->second);
        if (hidden) {
            drawPart(std::max(within->first, hidden->second), within->second);
        }
    }
    m_step.drawing.lines(hatch, QPen(m_palette.hatch, 1.0, Qt::SolidLine, Qt::FlatCap));
}

bool sameButForEdits(const DiagramContent &a, const DiagramContent &b)
{
    if (a.layers != b.layers || a.colors != b.colors || a.ground != b.ground) {
        return false;
    }
    const auto isTarget = [](const DiagramGamut &gamut) { return gamut.role == GamutRole::Target; };
    auto left = a.gamuts.cbegin();
    auto right = b.gamuts.cbegin();
    for (;; ++left, ++right) {
        left = std::find_if_not(left, a.gamuts.cend(), isTarget);
        right = std::find_if_not(right, b.gamuts.cend(), isTarget);
        if (left == a.gamuts.cend() || right == b.gamuts.cend()) {
            return left == a.gamuts.cend() && right == b.gamuts.cend();
        }
        if (left->role != right->role || left->visible != right->visible
            || !sameTargets(left->gamut.getTargets(), right->gamut.getTargets())) {
            return false;
        }
    }
}

DiagramStep gamutsStep(const DiagramSheet &sheet, const ShownOutlines &outlines, const ShownMarks &marks)
{
    return DiagramGamuts(sheet, outlines, marks).takeUnedited();
}

DiagramStep editedStep(
    const DiagramSheet &sheet, const DiagramStep &scale, const ShownOutlines &outlines, const ShownMarks &marks)
{
    const ShownOutlines all = withTargets(outlines, sheet);
    return DiagramGamuts(sheet, all, marks).takeEdited(scale);
}

} // namespace ceiechart
