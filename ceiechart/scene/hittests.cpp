// SPDX-License-Identifier: MIT
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetediting.h>

namespace ceiechart {

namespace {

//! A position that is no number hits nothing.
bool hits(const QPointF &handle, int side, const QPointF &position)
{
    const double half = side / 2.0;
    return side > 0 && position.x() >= handle.x() - half && position.x() <= handle.x() + half
        && position.y() >= handle.y() - half && position.y() <= handle.y() + half;
}

} // namespace

int TargetEditing::handleHitSide() const
{
    return handleSide(vertexHandleSize, m_zoom);
}

//! Where the handle was painted last or, until it has been, where it would be.
QPointF TargetEditing::whiteHandlePosition()
{
    return m_centreHandleDrawn ? m_centreHandlePoint : toScene(targetPoints().whitePos());
}

void TargetEditing::MouseClickAire(QPointF position)
{
    if (!hasTarget()) {
        return;
    }
    switch (regionOf(narrowed(toChroma(position)))) {
    case RedRegion:
        m_selectedTab = NewCEIE::TabSelectedRed;
        break;
    case GreenRegion:
        m_selectedTab = NewCEIE::TabSelectedGreen;
        break;
    case BlueRegion:
        m_selectedTab = NewCEIE::TabSelectedBlue;
        break;
    case NoRegion:
        m_selectedTab = NewCEIE::TabSelectedNone;
        break;
    }
}

bool TargetEditing::IsClickEllipseSign(QPointF position)
{
    if (!hasTarget()) {
        return false;
    }
    const TrianglePoint &target = targetPoints();
    for (const QPointF &vertex : {target.redPos(), target.greenPos(), target.bluePos()}) {
        if (hits(toScene(vertex), handleHitSide(), position)) {
            return true;
        }
    }
    return false;
}

bool TargetEditing::IsSelectedCenterEllipes(QPointF position)
{
    m_centreSelected = hasTarget() && hits(whiteHandlePosition(), handleHitSide(), position);
    return m_centreSelected;
}

bool TargetEditing::IsEllipseAire(QPointF position)
{
    m_hoverTab = NewCEIE::TabSelectedNone;
    if (!hasTarget()) {
        return false;
    }
    const TrianglePoint &target = targetPoints();
    const int side = handleHitSide();
    if (hits(toScene(target.redPos()), side, position)) {
        m_hoverTab = NewCEIE::TabSelectedRed;
    } else if (hits(toScene(target.greenPos()), side, position)) {
        m_hoverTab = NewCEIE::TabSelectedGreen;
    } else if (hits(toScene(target.bluePos()), side, position)) {
        m_hoverTab = NewCEIE::TabSelectedBlue;
    } else if (hits(whiteHandlePosition(), side, position)) {
        m_hoverTab = NewCEIE::TabSelectedWhite;
    }
    return m_hoverTab != NewCEIE::TabSelectedNone;
}

} // namespace ceiechart
