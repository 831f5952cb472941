// SPDX-License-Identifier: MIT
#include "diagramframe.h"

#include "chromaticity.h"

namespace gamutviewer {

namespace {

constexpr ceiechart::ChromaRange xyRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr ceiechart::ChromaRange uvRange{0.0F, 0.65F, 0.0F, 0.68F};
constexpr int xyMarginPercent = 5;
constexpr int uvMarginPercent = 15;

} // namespace

DiagramFrame::DiagramFrame(Model::Diagram diagram, const QSize &size)
    : m_diagram(diagram)
    , m_size(size)
{
    m_geometry.setPicture(size.width(), size.height(),
        diagram == Model::Diagram::Cie1931 ? xyMarginPercent : uvMarginPercent, range(diagram));
}

ceiechart::ChromaRange DiagramFrame::range(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? xyRange : uvRange;
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
