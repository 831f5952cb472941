// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H
#define CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H

#include <ceiechart/render/drawceipicture_p.h>

#include <QPointF>

class QPainter;

namespace reference {

// Access to the state that the renderers keep between layers. Only this file knows the names of the members.

template <typename Renderer>
void setGamma(Renderer &renderer, double gamma)
{
    renderer.d->gamma = gamma;
}

/*! \brief The current point as set by MapPixelToReal() and GetPointF(). */
struct CurrentPoint {
    double x;
    double y;
    double z;
};

template <typename Renderer>
CurrentPoint currentPoint(const Renderer &renderer)
{
    return {renderer.d->current.x, renderer.d->current.y, renderer.d->current.z};
}

template <typename Renderer>
void setCurrentPoint(Renderer &renderer, const CurrentPoint &point)
{
    renderer.d->current.x = point.x;
    renderer.d->current.y = point.y;
    renderer.d->current.z = point.z;
}

/*! \brief Gives the chord of the next tick no length: it starts and ends at the current point. */
template <typename Renderer>
void startTickAtCurrentPoint(Renderer &renderer)
{
    renderer.d->previousLocusPoint = QPointF(renderer.d->current.x, renderer.d->current.y);
    renderer.d->tickWeight = 1.0;
}

inline void drawMeasurePoints(NewCEIE::DrawCEIPicture &renderer, QPainter &painter)
{
    renderer.own().drawMeasurePoints(painter);
}

/*! \brief The tables of a renderer. */
template <typename Renderer>
const CEIAtlasValue &atlasOf(const Renderer &renderer)
{
    return renderer.d->atlas;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H
