// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>
#include <ceiechart/scene/luminancebalance_p.h>
#include <ceiechart/scene/straightlines_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <algorithm>

namespace ceiechart {

PointF TargetScene::convertPointF(QPointF point)
{
    return narrowed(point);
}

void TargetScene::MoveEllipseSign()
{
    const PointF requested = narrowed(d->toChroma(d->requestedPoint));
    if (polygonContains(requested, d->originalVertices.toArray()) && d->editMode == Private::EverythingEditable) {
        d->outOfBounds = false;
        RefreshEllipseSignPosition();
    } else {
        d->outOfBounds = true;
        update();
    }
}

void TargetScene::RefreshEllipseSignPosition()
{
    if (d->hasTarget() && regionOf(narrowed(d->toChroma(d->requestedPoint))) == d->selectedRegion) {
        AddLedColorAndPoint();
    }
}

void TargetScene::AddLedColorAndPoint()
{
    const QPointF chroma = d->toChroma(d->requestedPoint);
    d->selectedRegion = regionOf(narrowed(chroma));
    d->currentPoint = d->requestedPoint;
    if (!d->hasTarget()) {
        return;
    }

    TrianglePoint &target = d->targetPoints();
    switch (d->selectedRegion) {
    case RedRegion:
        target.setRedPos(chroma);
        break;
    case GreenRegion:
        target.setGreenPos(chroma);
        break;
    case BlueRegion:
        target.setBluePos(chroma);
        break;
    case NoRegion:
        break;
    }
    d->selectedVertex = handleOfRegion(d->selectedRegion);
    d->vertexSelected = d->selectedVertex != Handle::None;

    if (d->whiteHeld) {
        balanceHeldWhite(target, qAsConst(d->triangles).first().trianglePoint());
    } else {
        mixWhite(target);
    }
    update();
    d->reportGamutValue(d->triangles.at(1));
}

void TargetScene::MoveCentreTriangle()
{
    if (d->editMode == Private::WhiteLocked) {
        d->whiteMoved = false;
        return;
    }
    SetCentreTriangle();
    const bool inside = polygonContains(narrowed(d->toChroma(d->requestedPoint)), d->targetVertices.toArray());
    if (!d->hasTarget()) {
        return;
    }
    if (!inside && CompareBrightValue()) {
        d->whiteMoved = false;
        return;
    }
    d->whiteMoved = true;
    update();
    d->refreshTargetReport();
    d->reportTarget(d->targetReport);
}

void TargetScene::MouseSelectedPoint(QPointF position)
{
    d->requestedPoint = position;
    if (IsSelectedCenterEllipes(position) && d->editMode != Private::WhiteLocked) {
        MoveCentreTriangle();
        update();
    } else if (d->editMode == Private::EverythingEditable) {
        IsClickEllipseSign(position);
        AddLedColorAndPoint();
    }
}

bool TargetScene::GetPointInFences(QPointF position)
{
    return regionOf(narrowed(d->toChroma(position))) != NoRegion;
}

QPointF TargetScene::LimitInRectangle(QPointF position)
{
    return QPointF(std::clamp(position.x(), 0.0, double(std::max(d->imageWidth, 0))),
        std::clamp(position.y(), 0.0, double(std::max(d->imageHeight, 0))));
}

void TargetScene::GetSelectedEllipseSign(QPointF position)
{
    if (!d->hasTarget()) {
        return;
    }
    const QPointF chroma = d->toChroma(position);
    const TrianglePoint &original = qAsConst(d->triangles).at(0).trianglePoint();
    const TrianglePoint &target = qAsConst(d->triangles).at(1).trianglePoint();
    switch (d->selectedTab) {
    case Handle::Red:
        if (original.redPos().y() > chroma.y()) {
            GetIntersectionPoint(original.bluePos(), original.redPos(), chroma, target.greenPos());
        } else {
            GetIntersectionPoint(original.greenPos(), original.redPos(), chroma, target.bluePos());
        }
        break;
    case Handle::Green:
        if (chroma.x() >= original.greenPos().x()) {
            GetIntersectionPoint(original.greenPos(), original.redPos(), chroma, target.bluePos());
        } else {
            GetIntersectionPoint(original.bluePos(), original.greenPos(), chroma, target.redPos());
        }
        break;
    case Handle::Blue:
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

bool TargetScene::GetIntersectionPoint(QPointF edgeFrom, QPointF edgeTo, QPointF position, QPointF vertex)
{
    QPointF crossing;
    if (!intersection(edgeFrom, edgeTo, position, vertex, crossing)) {
        return false;
    }
    d->requestedPoint = d->toScene(ComparePointPosition(crossing, edgeFrom, edgeTo));
    return true;
}

bool TargetScene::GetStraightLine(QPointF p, QPointF q, double &k, double &b)
{
    return straightLine(p, q, k, b);
}

bool TargetScene::SolveLinearSystem(double k1, double b1, double k2, double b2, QPointF &result)
{
    return solveLinearSystem(k1, b1, k2, b2, result);
}

QPointF TargetScene::ComparePointPosition(QPointF point, QPointF edgeFrom, QPointF edgeTo)
{
    return heldToEdge(point, edgeFrom, edgeTo);
}

} // namespace ceiechart
