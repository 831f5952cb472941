// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LAYERS_H
#define GAMUTVIEWER_LAYERS_H

#include "editing/gamutparts.h"

#include <QFlags>
#include <QObject>

namespace gamutviewer {

// Operators declared in the namespace of the program would hide those of Qt's own flags from it.
namespace diagramlayers {

/*! \brief What a diagram shows over its ground, and can leave out. */
enum class Layer {
    Original = 0x001,
    Measured = 0x002,
    Declared = 0x004,
    Target = 0x008,
    Standards = 0x010,
    CommonArea = 0x020,
    Axes = 0x040,
    Wavelengths = 0x080,
    PlanckianLocus = 0x100,
    MeasurePoints = 0x200,
    ColorTemperaturePoints = 0x400,
    CmyPoints = 0x800
};
Q_DECLARE_FLAGS(Layers, Layer)
Q_DECLARE_OPERATORS_FOR_FLAGS(Layers)

} // namespace diagramlayers

using diagramlayers::Layer;
using diagramlayers::Layers;

constexpr Layers allLayers{0xfff};

/*! \brief Those of allLayers that \a description has something for. */
Layers layersOf(const DisplayDescription &description);

/*! \brief The layer of a part's gamut. */
Layer layerOf(GamutPart::Role role);

/*! \brief Which layers are switched on, for all pages that have a switch for them. */
class LayerSwitches : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    Layers shown() const { return m_shown; }
    void setShown(Layer layer, bool shown);

Q_SIGNALS:
    void changed();

private:
    Layers m_shown = allLayers;
};

} // namespace gamutviewer

#endif
