// SPDX-License-Identifier: MIT
#include "gamutoverlay.h"

#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <QPainterPath>
#include <QPen>

namespace gamutviewer {

namespace {

const QColor standardColor(190, 190, 190);
const QColor originalColor(Qt::white);
const QColor declaredColor(255, 220, 120);
const QColor measuredColor(27, 241, 255);
const QColor targetColor(Qt::black);

constexpr qreal selectionRadius = 10.0; // scene pixels

QPen line(const QColor &color, Qt::PenStyle style, qreal width = 1.2)
{
    return QPen(color, width, style);
}

} // namespace

GamutOverlay::GamutOverlay(QGraphicsScene *scene)
    : m_scene(scene)
{
}

void GamutOverlay::add(const QPainterPath &path, const QPen &pen, qreal z)
{
    const QColor edge = pen.color().lightness() > 100 ? QColor(0, 0, 0, 150) : QColor(255, 255, 255, 200);
    QGraphicsPathItem *under = m_scene->addPath(path, line(edge, Qt::SolidLine, pen.widthF() + 1.8));
    under->setZValue(z);
    QGraphicsPathItem *over = m_scene->addPath(path, pen);
    over->setZValue(z + 0.5);
}

void GamutOverlay::addGamut(const std::optional<Model::ColorGamut> &gamut, const QPen &pen, qreal z,
    const std::function<QPointF(const QPointF &)> &place)
{
    if (!gamut) {
        return;
    }
    const Model::Targets &t = gamut->getTargets();
    QPainterPath path;
    path.moveTo(place(xyOf(t.red)));
    path.lineTo(place(xyOf(t.green)));
    path.lineTo(place(xyOf(t.blue)));
    path.closeSubpath();
    add(path, pen, z);
}

void GamutOverlay::show(
    const DisplayDescription &description, Vertex selected, const std::function<QPointF(const QPointF &)> &place)
{
    qDeleteAll(m_scene->items());
    for (const QString &name : description.standards) {
        addGamut(description.gamut(name), line(standardColor, Qt::DotLine), 0, place);
    }
    addGamut(description.gamut(description.declared), line(declaredColor, Qt::DashDotDotLine), 1, place);
    addGamut(description.gamut(description.measured), line(measuredColor, Qt::DashDotLine), 2, place);
    addGamut(description.gamut(description.original), line(originalColor, Qt::DashLine), 3, place);
    const auto target = description.gamut(description.target);
    addGamut(target, line(targetColor, Qt::SolidLine, 1.5), 4, place);
    if (target) {
        QPainterPath ring;
        ring.addEllipse(place(xyOf(targetAt(target->getTargets(), selected))), selectionRadius, selectionRadius);
        add(ring, line(Qt::white, Qt::SolidLine, 1.5), 5);
    }
}

} // namespace gamutviewer
