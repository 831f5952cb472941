// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/diagram.h>

#include <algorithm>
#include <iterator>

namespace Model {

namespace {

constexpr double cie1976Factor = 9.0;

/*! \brief The diagrams. Another uniform diagram is another row. */
constexpr DiagramTraits allTraits[] = {
    {Diagram::Cie1931, "CIE 1931 x, y", "x", "y", 0.0},
    {Diagram::Cie1976, "CIE 1976 u\xE2\x80\xB2, v\xE2\x80\xB2", "u\xE2\x80\xB2", "v\xE2\x80\xB2", cie1976Factor},
    {Diagram::Cie1960, "CIE 1960 u, v", "u", "v", 6.0},
};

} // namespace

const DiagramTraits &diagramTraits(Diagram diagram)
{
    const auto found = std::find_if(std::begin(allTraits), std::end(allTraits),
        [diagram](const DiagramTraits &traits) { return traits.diagram == diagram; });
    return found != std::end(allTraits) ? *found : allTraits[0];
}

DiagramPoint toDiagram(Diagram diagram, DiagramPoint xy)
{
    const double factor = diagramTraits(diagram).yFactor;
    if (factor == 0.0) {
        return xy;
    }
    const double d = uniformDenominator(xy.x, xy.y);
    return {4.0 * xy.x / d, factor * xy.y / d};
}

DiagramPoint fromDiagram(Diagram diagram, DiagramPoint point)
{
    const double factor = diagramTraits(diagram).yFactor;
    if (factor == 0.0) {
        return point;
    }
    const double v = point.y * (cie1976Factor / factor);
    const double d = 6.0 * point.x - 16.0 * v + 12.0;
    return {9.0 * point.x / d, 4.0 * v / d};
}

} // namespace Model
