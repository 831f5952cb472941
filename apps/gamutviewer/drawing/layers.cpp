// SPDX-License-Identifier: MIT
#include "drawing/layers.h"

namespace gamutviewer {

Layers layersOf(const DisplayDescription &description)
{
    const auto original = description.gamut(description.original);
    const auto target = description.gamut(description.target);
    Layers found = Layer::Axes | Layer::Wavelengths | Layer::PlanckianLocus;
    found.setFlag(Layer::Original, original.has_value());
    found.setFlag(Layer::Measured, description.gamut(description.measured).has_value());
    found.setFlag(Layer::Declared, description.gamut(description.declared).has_value());
    found.setFlag(Layer::Target, target.has_value());
    found.setFlag(Layer::Standards, !description.standards.isEmpty());
    found.setFlag(Layer::CommonArea, original && target);
    found.setFlag(Layer::MeasurePoints, !description.measurePoints.isEmpty());
    found.setFlag(Layer::ColorTemperaturePoints, !description.colorTemperaturePoints.isEmpty());
    found.setFlag(Layer::CmyPoints, !description.cmyPoints.isEmpty());
    return found;
}

Layer layerOf(GamutPart::Role role)
{
    switch (role) {
    case GamutPart::Role::Declared:
        return Layer::Declared;
    case GamutPart::Role::Original:
        return Layer::Original;
    case GamutPart::Role::Measured:
        return Layer::Measured;
    case GamutPart::Role::Target:
        break;
    }
    return Layer::Target;
}

void LayerSwitches::setShown(Layer layer, bool shown)
{
    if (m_shown.testFlag(layer) != shown) {
        m_shown.setFlag(layer, shown);
        Q_EMIT changed();
    }
}

} // namespace gamutviewer
