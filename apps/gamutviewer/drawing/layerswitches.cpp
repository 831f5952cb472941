// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/layerswitches.h"

#include "drawing/documentcontent.h"

namespace gamutviewer {

void LayerSwitches::setState(const State &state)
{
    if (!(m_state == state)) {
        m_state = state;
        Q_EMIT changed();
    }
}

void LayerSwitches::setShown(ceiechart::DiagramLayer layer, bool shown)
{
    if (isShown(layer) != shown) {
        m_state.layers.setFlag(layer, shown);
        Q_EMIT changed();
    }
}

void LayerSwitches::setColors(ceiechart::HorseshoeColors colors)
{
    if (m_state.colors != colors) {
        m_state.colors = colors;
        Q_EMIT changed();
    }
}

bool LayerSwitches::isStandardShown(const QString &gamutName, const QSet<QString> &named) const
{
    return isShown(ceiechart::DiagramLayer::Standards) && m_state.standards.value(gamutName, named.contains(gamutName));
}

void LayerSwitches::setStandardShown(const QString &gamutName, bool shown)
{
    m_state.standards.insert(gamutName, shown);
    Q_EMIT changed();
}

void LayerSwitches::forgetStandards()
{
    m_state.standards.clear();
    Q_EMIT changed();
}

ceiechart::DiagramContent LayerSwitches::content(const DisplayDescription &description) const
{
    std::vector<DisplayGamut> standards;
    if (isShown(ceiechart::DiagramLayer::Standards)) {
        const QSet<QString> named(description.standards.begin(), description.standards.end());
        const QHash<QString, int> places = description.gamutPlaces();
        for (const QString &name : description.standardNames(places)) {
            if (isStandardShown(name, named)) {
                standards.push_back(*description.gamut(name, places));
            }
        }
    }
    ceiechart::DiagramContent content = documentContent(
        description, m_showsDefaultTarget ? gamutPartsToEdit(description) : gamutParts(description), standards);
    content.measurePoints = cabinetMarks(description.wall) + content.measurePoints;
    return withLayers(content, description);
}

ceiechart::DiagramContent LayerSwitches::withLayers(
    ceiechart::DiagramContent content, const DisplayDescription &description) const
{
    content.layers = m_state.layers;
    content.colors = m_state.colors;
    if (description.target.isEmpty()) {
        // What nobody has chosen gives nothing up.
        content.layers.setFlag(ceiechart::DiagramLayer::LostArea, false);
    }
    return content;
}

} // namespace gamutviewer
