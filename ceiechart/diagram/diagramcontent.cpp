// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramcontent.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

bool isFinite(const Model::Target &target)
{
    return std::isfinite(target.x) && std::isfinite(target.y);
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
    const Model::Targets &targets = gamut.gamut.getTargets();
    return gamut.visible && layers.testFlag(layerOf(gamut.role)) && isFinite(targets.red) && isFinite(targets.green)
        && isFinite(targets.blue) && (gamut.role != GamutRole::Target || isFinite(targets.white));
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
