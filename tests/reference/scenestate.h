// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENESTATE_H
#define CEIECHART_TESTS_REFERENCE_SCENESTATE_H

#include <reference/scenemodel.h>

namespace reference {

// White-box access to what the scenes keep between events: the one place that knows the names of their members.

template <typename Scene>
SceneState stateOf(const Scene &scene)
{
    SceneState state;
    state.requested = scene.m_requestedPoint;
    state.current = scene.m_currentPoint;
    state.saved = scene.m_savedPoint;
    state.selectedRegion = scene.m_selectedRegion;
    state.selectedVertex = scene.m_selectedVertex;
    state.selectedTab = scene.m_selectedTab;
    state.vertexSelected = scene.m_vertexSelected;
    state.centreSelected = scene.m_centreSelected;
    state.whiteMoved = scene.m_whiteMoved;
    state.outOfBounds = scene.m_outOfBounds;
    state.hand = scene.m_hand;
    state.magnifier = scene.m_magnifier;
    state.zoom = scene.m_zoom;
    return state;
}

template <typename Scene>
void setRequestedPoint(Scene &scene, const QPointF &point)
{
    scene.m_requestedPoint = point;
}

template <typename Scene>
void setFunctionKeyMode(Scene &scene, int mode)
{
    scene.m_functionKeyMode = mode;
}

template <typename Scene>
void setEditMode(Scene &scene, int mode)
{
    scene.m_editMode = static_cast<decltype(scene.m_editMode)>(mode);
}

/*! \brief The next key press starts from \a point. */
template <typename Scene>
void restoreAtNextKey(Scene &scene, const QPointF &point)
{
    scene.m_savedPoint = point;
    scene.m_restorePending = true;
}

/*! \brief Picks the white point as if its handle had been painted at \a handle. */
template <typename Scene>
void selectCentre(Scene &scene, const QPointF &handle)
{
    scene.m_centreHandlePoint = handle;
    scene.m_centreSelected = true;
    scene.m_vertexSelected = false;
}

template <typename Scene>
void selectVertex(Scene &scene, int area)
{
    scene.m_selectedVertex = area;
}

template <typename Scene>
void selectTab(Scene &scene, int tab)
{
    scene.m_selectedTab = tab;
}

template <typename Scene>
void setMagnifier(Scene &scene, bool on)
{
    scene.m_magnifier = on;
}

template <typename Scene>
void setZoom(Scene &scene, float zoom)
{
    scene.m_zoom = zoom;
}

template <typename Scene>
int hoverTab(const Scene &scene)
{
    return scene.m_hoverTab;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENESTATE_H
