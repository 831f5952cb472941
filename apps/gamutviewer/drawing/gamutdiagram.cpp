// SPDX-License-Identifier: MIT
#include "drawing/gamutdiagram.h"

#include "display/chromaticity.h"
#include "drawing/gamutcolors.h"
#include "drawing/pointerevent.h"
#include "editing/targetedits.h"

#include <ceiechart/atlas/ceiatlasvalue.h>

#include <QPainter>

#include <algorithm>

namespace gamutviewer {

namespace {

QRectF shownRange(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? QRectF(0.0, 0.0, 0.8, 0.88) : QRectF(0.0, 0.0, 0.65, 0.62);
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

QPen partPen(GamutPart::Role role, const QPalette &palette)
{
    const bool dark = isDark(palette);
    QPen pen;
    switch (role) {
    case GamutPart::Role::Declared:
        pen = QPen(dark ? QColor(230, 200, 90) : QColor(140, 105, 0), 1.5, lineStyle(role));
        break;
    case GamutPart::Role::Original:
        pen = QPen(dark ? QColor(90, 210, 120) : QColor(0, 120, 40), 1.8, lineStyle(role));
        break;
    case GamutPart::Role::Measured:
        pen = QPen(dark ? QColor(160, 160, 255) : QColor(70, 50, 190), 1.5, lineStyle(role));
        break;
    case GamutPart::Role::Target:
        pen = QPen(dark ? QColor(255, 170, 80) : QColor(190, 80, 0), 1.8, lineStyle(role));
        break;
    }
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

GamutDiagram::GamutDiagram(Model::Diagram diagram, QWidget *parent)
    : QWidget(parent)
    , m_diagram(diagram)
{
    setMouseTracking(true);
    const CEIAtlasValue atlas;
    QPolygonF locus;
    for (const QPointF &xy : atlas.spectrumLocus) {
        locus.append(toDiagram(diagram, xy));
    }
    m_locus.addPolygon(locus);
    m_locus.closeSubpath();
    setAccessibleName(
        diagram == Model::Diagram::Cie1931 ? tr("Gamuts on CIE 1931 x, y") : tr("Gamuts on CIE 1976 u′, v′"));
}

void GamutDiagram::setParts(const QVector<GamutPart> &parts)
{
    m_parts = parts;
    update();
}

QTransform GamutDiagram::placement() const
{
    const QRectF range = shownRange(m_diagram);
    const int margin = fontMetrics().height();
    const double scale = std::min((width() - 2.0 * margin) / range.width(), (height() - 2.0 * margin) / range.height());
    QTransform transform;
    transform.translate((width() - scale * range.width()) / 2, (height() + scale * range.height()) / 2);
    transform.scale(scale, -scale);
    return transform;
}

QPainterPath GamutDiagram::triangle(const Model::ColorGamut &gamut) const
{
    const Model::Targets &t = gamut.getTargets();
    QPainterPath path(toDiagram(m_diagram, xyOf(t.red)));
    path.lineTo(toDiagram(m_diagram, xyOf(t.green)));
    path.lineTo(toDiagram(m_diagram, xyOf(t.blue)));
    path.closeSubpath();
    return path;
}

QPainterPath GamutDiagram::lostArea() const
{
    const auto find = [this](GamutPart::Role role) {
        return std::find_if(
            m_parts.begin(), m_parts.end(), [role](const GamutPart &part) { return part.role == role; });
    };
    const auto original = find(GamutPart::Role::Original);
    const auto target = find(GamutPart::Role::Target);
    if (original == m_parts.end() || target == m_parts.end()) {
        return QPainterPath();
    }
    // In pixels: the clipper takes coordinates as near as those of a diagram for the same.
    const QTransform place = placement();
    return place.map(triangle(original->gamut)).subtracted(place.map(triangle(target->gamut)));
}

void GamutDiagram::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    const QTransform place = placement();
    QColor faint = palette().color(QPalette::Text);
    faint.setAlpha(110);
    painter.setPen(QPen(faint, 1.0));
    painter.drawPath(place.map(m_locus));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect().adjusted(6, 4, -6, -4), Qt::AlignTop | Qt::AlignLeft,
        m_diagram == Model::Diagram::Cie1931 ? tr("x, y") : tr("u′, v′"));

    QColor hatch = palette().color(QPalette::Text);
    hatch.setAlpha(150);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(hatch, Qt::BDiagPattern));
    painter.drawPath(lostArea());
    painter.setBrush(Qt::NoBrush);
    for (const GamutPart &part : qAsConst(m_parts)) {
        painter.setPen(partPen(part.role, palette()));
        painter.drawPath(place.map(triangle(part.gamut)));
    }
}

void GamutDiagram::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointedAt(fromDiagram(m_diagram, placement().inverted().map(pointerPosition(*event))));
}

} // namespace gamutviewer
