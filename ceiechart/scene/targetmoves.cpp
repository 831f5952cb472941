// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/luminancebalance_p.h>
#include <ceiechart/scene/straightlines_p.h>
#include <ceiechart/scene/targetediting.h>

#include <ceiechart/model/chartenums.h>

#include <algorithm>

namespace ceiechart {

PointF TargetEditing::convertPointF(QPointF point)
{
    return narrowed(point);
}

void TargetEditing::MoveEllipseSign()
{
    const PointF requested = narrowed(toChroma(m_requestedPoint));
    if (polygonContains(requested, m_originalVertices.toArray()) && m_editMode == EverythingEditable) {
        m_outOfBounds = false;
        RefreshEllipseSignPosition();
    } else {
        m_outOfBounds = true;
        repaint();
    }
}

void TargetEditing::RefreshEllipseSignPosition()
{
    if (hasTarget() && regionOf(narrowed(toChroma(m_requestedPoint))) == m_selectedRegion) {
        AddLedColorAndPoint();
    }
}

void TargetEditing::AddLedColorAndPoint()
{
    const QPointF chroma = toChroma(m_requestedPoint);
    m_selectedRegion = regionOf(narrowed(chroma));
    m_currentPoint = m_requestedPoint;
    if (!hasTarget()) {
        return;
    }

    TrianglePoint &target = targetPoints();
    switch (m_selectedRegion) {
    case RedRegion:
        target.setRedPos(chroma);
        m_selectedVertex = NewCEIE::ColorAreaRed;
        break;
    case GreenRegion:
        target.setGreenPos(chroma);
        m_selectedVertex = NewCEIE::ColorAreaGreen;
        break;
    case BlueRegion:
        target.setBluePos(chroma);
        m_selectedVertex = NewCEIE::ColorAreaBlue;
        break;
    default:
        m_selectedVertex = NewCEIE::ColorAreaNone;
        break;
    }
    m_vertexSelected = m_selectedRegion != NoRegion;

    if (m_whiteHeld) {
        balanceHeldWhite(target, qAsConst(m_triangles).first().trianglePoint());
    } else {
        mixWhite(target);
    }
    repaint();
    reportGamutValue(m_triangles.at(1));
}

void TargetEditing::MoveCentreTriangle()
{
    if (m_editMode == WhiteLocked) {
        m_whiteMoved = false;
        return;
    }
    SetCentreTriangle();
    const bool inside = polygonContains(narrowed(toChroma(m_requestedPoint)), m_targetVertices.toArray());
    if (!hasTarget()) {
        return;
    }
    if (!inside && CompareBrightValue()) {
        m_whiteMoved = false;
        return;
    }
    m_whiteMoved = true;
    repaint();
    refreshTargetReport();
    reportTarget(m_targetReport);
}

void TargetEditing::MouseSelectedPoint(QPointF position)
{
    m_requestedPoint = position;
    if (IsSelectedCenterEllipes(position) && m_editMode != WhiteLocked) {
        MoveCentreTriangle();
        repaint();
    } else if (m_editMode == EverythingEditable) {
        IsClickEllipseSign(position);
        AddLedColorAndPoint();
    }
}

bool TargetEditing::GetPointInFences(QPointF position)
{
    return regionOf(narrowed(toChroma(position))) != NoRegion;
}

QPointF TargetEditing::LimitInRectangle(QPointF position)
{
    return QPointF(std::clamp(position.x(), 0.0, double(std::max(m_imageWidth, 0))),
        std::clamp(position.y(), 0.0, double(std::max(m_imageHeight, 0))));
}

void TargetEditing::GetSelectedEllipseSign(QPointF position)
{
    if (!hasTarget()) {
        return;
    }
    const QPointF chroma = toChroma(position);
    const TrianglePoint &original = qAsConst(m_triangles).at(0).trianglePoint();
    const TrianglePoint &target = qAsConst(m_triangles).at(1).trianglePoint();
    switch (m_selectedTab) {
    case NewCEIE::TabSelectedRed:
        if (original.redPos().y() > chroma.y()) {
            GetIntersectionPoint(original.bluePos(), original.redPos(), chroma, target.greenPos());
        } else {
            GetIntersectionPoint(original.greenPos(), original.redPos(), chroma, target.bluePos());
        }
        break;
    case NewCEIE::TabSelectedGreen:
        if (chroma.x() >= original.greenPos().x()) {
            GetIntersectionPoint(original.greenPos(), original.redPos(), chroma, target.bluePos());
        } else {
            GetIntersectionPoint(original.bluePos(), original.greenPos(), chroma, target.redPos());
        }
        break;
    case NewCEIE::TabSelectedBlue:
        if (chroma.x() > original.bluePos().x()) {
            GetIntersectionPoint(original.redPos(), original.bluePos(), chroma, target.greenPos());
        } else {
            GetIntersectionPoint(original.greenPos(), original.bluePos(), chroma, target.redPos());
        }
        break;
    default:
        break;
    }
}

bool TargetEditing::GetIntersectionPoint(QPointF edgeFrom, QPointF edgeTo, QPointF position, QPointF vertex)
{
    QPointF crossing;
    if (!intersection(edgeFrom, edgeTo, position, vertex, crossing)) {
        return false;
    }
    m_requestedPoint = toScene(ComparePointPosition(crossing, edgeFrom, edgeTo));
    return true;
}

bool TargetEditing::GetStraightLine(QPointF p, QPointF q, double &k, double &b)
{
    return straightLine(p, q, k, b);
}

bool TargetEditing::SolveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result)
{
    return solveLinearSystem(k1, b1, k2, b2, result);
}

QPointF TargetEditing::ComparePointPosition(QPointF point, QPointF edgeFrom, QPointF edgeTo)
{
    return heldToEdge(point, edgeFrom, edgeTo);
}

} // namespace ceiechart
