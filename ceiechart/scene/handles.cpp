// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <QPainter>

#include <algorithm>

namespace ceiechart {

namespace {

void setPenColor(QPainter *painter, const QColor &color)
{
    QPen pen = painter->pen();
    pen.setColor(color);
    painter->setPen(pen);
}

QColor crossColor(Region region)
{
    return region == RedRegion || region == BlueRegion ? QColor(0, 255, 0, 255) : QColor(255, 0, 0, 255);
}

} // namespace

bool TargetScene::DrawVertexSign(QPainter *painter)
{
    return DrawThreeEllipseSign(painter);
}

bool TargetScene::DrawThreeEllipseSign(QPainter *painter)
{
    if (!d->hasTarget()) {
        return false;
    }
    painter->save();
    QPen pen = painter->pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(1);
    painter->setPen(pen);

    const int big = handleSide(vertexHandleSize, d->zoom);
    const int small = handleSide(centreHandleSize, d->zoom);
    const auto display = [&](Handle primary) {
        const int side = d->selectedVertex == primary ? big : small;
        return d->displayEllipse(painter, d->targetPosition(primary), QSize(side, side), primary, primary);
    };
    const bool drawn = display(Handle::Red) && display(Handle::Green) && display(Handle::Blue);
    painter->restore();
    return drawn;
}

bool TargetScene::Private::displayEllipse(
    QPainter *painter, QPointF chroma, QSize size, std::optional<Handle> tab, std::optional<Handle> area)
{
    painter->save();
    bool drawn = false;
    if (tab == selectedTab) {
        setPenColor(painter, Qt::black);
        const int side = handleSide(vertexHandleSize, zoom);
        drawn = q->DrawEllipseSign(painter, chroma, QSize(side, side));
    } else {
        setPenColor(painter, area == selectedVertex ? Qt::black : Qt::gray);
        drawn = q->DrawEllipseSign(painter, chroma, size);
    }
    painter->restore();
    return drawn;
}

bool TargetScene::DrawEllipseSign(QPainter *painter, QPointF chroma, QSize size)
{
    painter->save();
    const QPointF p = GetEllipsePoint(chroma);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    const int left = truncated(p.x() - halfWidth);
    const int top = truncated(p.y() - halfHeight);
    // Beyond any picture, the rectangle could have no right or bottom side among the integers.
    constexpr int farthest = 1 << 30;
    if (std::max(left, top) < farthest && std::min(left, top) > -farthest) {
        painter->drawEllipse(left, top, size.width(), size.height());
    }

    setPenColor(painter, crossColor(regionOf(narrowed(chroma))));
    painter->drawLine(left, truncated(p.y()), truncated(p.x() + halfWidth), truncated(p.y()));
    painter->drawLine(truncated(p.x()), top, truncated(p.x()), truncated(p.y() + halfHeight));
    painter->restore();
    return true;
}

QPointF TargetScene::GetEllipsePoint(QPointF chroma)
{
    return d->toScene(chroma);
}

} // namespace ceiechart
