// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Which part of the diagram is seen.
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/finite_p.h>

#include <cmath>

namespace ceiechart {

namespace {

constexpr double zoomStep = 1.5; // of a key or a button

} // namespace

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
    if (tell(&DiagramView::viewChanged)) {
        hoverAgain(); // a pointer at rest is over something else now
    }
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
    if (selected && hasHandles()) {
        const QPointF held = positionOf(*selected);
        if (isFinite(held) && viewport.plot().contains(held)) {
            return held;
        }
    }
    return viewport.plot().center();
}

Model::Diagram DiagramView::diagram() const
{
    return d->viewport.diagram();
}

DiagramView::DiagramKind DiagramView::diagramKind() const
{
    return DiagramKind(int(diagram()));
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

} // namespace ceiechart
