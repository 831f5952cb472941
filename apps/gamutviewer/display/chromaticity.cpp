// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/chromaticity.h"

#include <cmath>

namespace gamutviewer {

namespace {

QPointF finite(const Model::DiagramPoint &point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) ? QPointF(point.x, point.y) : QPointF();
}

} // namespace

QPointF toDiagram(Model::Diagram diagram, const QPointF &xy)
{
    return finite(Model::toDiagram(diagram, {xy.x(), xy.y()}));
}

QPointF fromDiagram(Model::Diagram diagram, const QPointF &point)
{
    return finite(Model::fromDiagram(diagram, {point.x(), point.y()}));
}

} // namespace gamutviewer
