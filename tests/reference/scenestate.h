// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENESTATE_H
#define CEIECHART_TESTS_REFERENCE_SCENESTATE_H

#include <ceiechart/scene/targetscene_p.h>

#include <reference/scenemodel.h>

namespace reference {

// Access to the state that the scenes keep between events. Only this file knows the names of the members.

inline int tabOf(ceiechart::Handle handle)
{
    return ceiechart::handleNumbers[std::size_t(handle)].tab;
}

inline int areaOf(ceiechart::Handle handle)
{
    return ceiechart::handleNumbers[std::size_t(handle)].area.value();
}

template <typename Scene>
SceneState stateOf(const Scene &scene)
{
    SceneState state;
    state.requested = scene.d->requestedPoint;
    state.current = scene.d->currentPoint;
    state.saved = scene.d->savedPoint;
    state.selectedRegion = scene.d->selectedRegion;
    state.selectedVertex = areaOf(scene.d->selectedVertex);
    state.selectedTab = tabOf(scene.d->selectedTab);
    state.vertexSelected = scene.d->vertexSelected;
    state.centreSelected = scene.d->centreSelected;
    state.whiteMoved = scene.d->whiteMoved;
    state.outOfBounds = scene.d->outOfBounds;
    state.hand = scene.d->hand;
    state.magnifier = scene.d->magnifier;
    state.zoom = scene.d->zoom;
    return state;
}

template <typename Scene>
void setRequestedPoint(Scene &scene, const QPointF &point)
{
    scene.d->requestedPoint = point;
}

template <typename Scene>
void setFunctionKeyMode(Scene &scene, int mode)
{
    scene.d->functionKeyMode = mode;
}

template <typename Scene>
void setEditMode(Scene &scene, int mode)
{
    scene.d->editMode = static_cast<decltype(scene.d->editMode)>(mode);
}

/*! \brief Makes the next key press start from \a point. */
template <typename Scene>
void restoreAtNextKey(Scene &scene, const QPointF &point)
{
    scene.d->savedPoint = point;
    scene.d->restorePending = true;
}

/*! \brief Selects the white point as if its handle had been painted at \a handle. */
template <typename Scene>
void selectCentre(Scene &scene, const QPointF &handle)
{
    scene.d->centreHandlePoint = handle;
    scene.d->centreSelected = true;
    scene.d->vertexSelected = false;
}

template <typename Scene>
void selectVertex(Scene &scene, int area)
{
    scene.d->selectedVertex = ceiechart::handleOfArea(area).value();
}

template <typename Scene>
void selectTab(Scene &scene, int tab)
{
    scene.d->selectedTab = ceiechart::handleOfTab(tab).value();
}

template <typename Scene>
void setMagnifier(Scene &scene, bool on)
{
    scene.d->magnifier = on;
}

template <typename Scene>
void setZoom(Scene &scene, float zoom)
{
    scene.d->zoom = zoom;
}

template <typename Scene>
int hoverTab(const Scene &scene)
{
    return tabOf(scene.d->hovered);
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENESTATE_H
