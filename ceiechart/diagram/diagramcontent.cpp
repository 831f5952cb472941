// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramcontent.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace ceiechart {

namespace {

bool isFinite(const Model::Targets &targets)
{
    const auto corners = {&targets.red, &targets.green, &targets.blue};
    return std::all_of(corners.begin(), corners.end(),
        [](const Model::Target *corner) { return std::isfinite(corner->x) && std::isfinite(corner->y); });
}

} // namespace

DiagramLayer layerOf(GamutRole role)
{
    switch (role) {
    case GamutRole::Standard:
        return DiagramLayer::Standards;
    case GamutRole::Target:
        return DiagramLayer::Targets;
    case GamutRole::Original:
        return DiagramLayer::Originals;
    case GamutRole::Measured:
        return DiagramLayer::MeasuredGamuts;
    case GamutRole::Declared:
        return DiagramLayer::DeclaredGamuts;
    }
    return DiagramLayer::Standards;
}

bool DiagramContent::shows(const DiagramGamut &gamut) const
{
    return gamut.visible && layers.testFlag(layerOf(gamut.role)) && isFinite(gamut.gamut.getTargets());
}

const DiagramGamut *DiagramContent::find(GamutRole role) const
{
    const auto found = std::find_if(
        gamuts.cbegin(), gamuts.cend(), [role](const DiagramGamut &gamut) { return gamut.role == role; });
    return found != gamuts.cend() ? &*found : nullptr;
}

const DiagramGamut *DiagramContent::display() const
{
    const DiagramGamut *original = find(GamutRole::Original);
    return original ? original : find(GamutRole::Measured);
}

} // namespace ceiechart
