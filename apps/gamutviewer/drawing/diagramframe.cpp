// SPDX-License-Identifier: MIT
#include "drawing/diagramframe.h"

#include "display/chromaticity.h"

#include <ceiechart/diagram/chartstyle.h>

namespace gamutviewer {

namespace {

ceiechart::ChartKind chartKind(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? ceiechart::ChartKind::CurrentXy : ceiechart::ChartKind::LegacyUv;
}

} // namespace

DiagramFrame::DiagramFrame(Model::Diagram diagram, const QSize &size)
    : m_diagram(diagram)
    , m_size(size)
    , m_geometry(ceiechart::chartGeometry(chartKind(diagram), size.width(), size.height()))
{
}

ceiechart::ChromaRange DiagramFrame::range(Model::Diagram diagram)
{
    return ceiechart::chartStyle(chartKind(diagram)).range;
}

double DiagramFrame::aspect(Model::Diagram diagram)
{
    return double(range(diagram).xMax) / double(range(diagram).yMax);
}

QPointF DiagramFrame::fromXy(const QPointF &xy) const
{
    return fromPoint(toDiagram(m_diagram, xy));
}

QPointF DiagramFrame::toXy(const QPointF &position) const
{
    // The geometry adds the offset on the way to the picture and leaves it there on the way back.
    return fromDiagram(
        m_diagram, m_geometry.toChroma(position.x() - ceiechart::DiagramGeometry::xOffset, position.y()));
}

} // namespace gamutviewer
