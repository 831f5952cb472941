// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <algorithm>
#include <iterator>

namespace ceiechart {

namespace {

constexpr Handle primaries[] = {Handle::Red, Handle::Green, Handle::Blue};

/*! \brief Whether \a position is in the square of \a side pixels around \a handle; false if it is not a number. */
bool hits(const QPointF &handle, int side, const QPointF &position)
{
    const double half = side / 2.0;
    return side > 0 && position.x() >= handle.x() - half && position.x() <= handle.x() + half
        && position.y() >= handle.y() - half && position.y() <= handle.y() + half;
}

} // namespace

int TargetScene::Private::handleHitSide() const
{
    return handleSide(vertexHandleSize, zoom);
}

QPointF TargetScene::Private::whiteHandlePosition()
{
    return centreHandleDrawn ? centreHandlePoint : toScene(targetPoints().whitePos());
}

void TargetScene::MouseClickAire(QPointF position)
{
    if (!d->hasTarget()) {
        return;
    }
    d->selectedTab = handleOfRegion(regionOf(narrowed(d->toChroma(position))));
}

bool TargetScene::IsClickEllipseSign(QPointF position)
{
    if (!d->hasTarget()) {
        return false;
    }
    return std::any_of(std::begin(primaries), std::end(primaries),
        [&](Handle handle) { return hits(d->toScene(d->targetPosition(handle)), d->handleHitSide(), position); });
}

bool TargetScene::IsSelectedCenterEllipes(QPointF position)
{
    d->centreSelected = d->hasTarget() && hits(d->whiteHandlePosition(), d->handleHitSide(), position);
    return d->centreSelected;
}

bool TargetScene::IsEllipseAire(QPointF position)
{
    d->hovered = Handle::None;
    if (!d->hasTarget()) {
        return false;
    }
    const int side = d->handleHitSide();
    for (const Handle handle : primaries) {
        if (hits(d->toScene(d->targetPosition(handle)), side, position)) {
            d->hovered = handle;
            return true;
        }
    }
    if (hits(d->whiteHandlePosition(), side, position)) {
        d->hovered = Handle::White;
    }
    return d->hovered != Handle::None;
}

} // namespace ceiechart
