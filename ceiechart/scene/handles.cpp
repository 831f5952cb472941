// SPDX-License-Identifier: MIT
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetediting.h>

#include <QPainter>

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

bool TargetEditing::DrawVertexSign(QPainter *painter)
{
    return DrawThreeEllipseSign(painter);
}

bool TargetEditing::DrawThreeEllipseSign(QPainter *painter)
{
    if (!hasTarget()) {
        return false;
    }
    painter->save();
    QPen pen = painter->pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(1);
    painter->setPen(pen);

    const TrianglePoint target = qAsConst(m_triangles).at(1).trianglePoint();
    const int big = handleSide(vertexHandleSize, m_zoom);
    const int small = handleSide(centreHandleSize, m_zoom);
    const auto display = [&](const QPointF &vertex, int tab, int area) {
        const int side = m_selectedVertex == area ? big : small;
        return displayEllipse(painter, vertex, QSize(side, side), tab, area);
    };
    if (!display(target.redPos(), NewCEIE::TabSelectedRed, NewCEIE::ColorAreaRed)
        || !display(target.greenPos(), NewCEIE::TabSelectedGreen, NewCEIE::ColorAreaGreen)
        || !display(target.bluePos(), NewCEIE::TabSelectedBlue, NewCEIE::ColorAreaBlue)) {
        return false;
    }
    painter->restore();
    return true;
}

bool TargetEditing::displayEllipse(QPainter *painter, QPointF chroma, QSize size, int tab, int area)
{
    painter->save();
    bool drawn = false;
    if (tab == m_selectedTab) {
        setPenColor(painter, Qt::black);
        const int side = handleSide(vertexHandleSize, m_zoom);
        drawn = DrawEllipseSign(painter, chroma, QSize(side, side));
    } else {
        setPenColor(painter, area == m_selectedVertex ? Qt::black : Qt::gray);
        drawn = DrawEllipseSign(painter, chroma, size);
    }
    painter->restore();
    return drawn;
}

bool TargetEditing::DrawEllipseSign(QPainter *painter, QPointF chroma, QSize size)
{
    painter->save();
    const QPointF p = GetEllipsePoint(chroma);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    const int left = truncated(p.x() - halfWidth);
    const int top = truncated(p.y() - halfHeight);
    painter->drawEllipse(left, top, size.width(), size.height());

    setPenColor(painter, crossColor(regionOf(narrowed(chroma))));
    painter->drawLine(left, truncated(p.y()), truncated(p.x() + halfWidth), truncated(p.y()));
    painter->drawLine(truncated(p.x()), top, truncated(p.x()), truncated(p.y() + halfHeight));
    painter->restore();
    return true;
}

QPointF TargetEditing::GetEllipsePoint(QPointF chroma)
{
    return toScene(chroma);
}

} // namespace ceiechart
