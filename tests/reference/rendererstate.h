// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H
#define CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H

#include <ceiechart/render/drawceipicture_p.h>

#include <QPointF>

class QPainter;

namespace reference {

// White-box access to what the renderers keep between layers: the one place that knows the names of their members.

template <typename Renderer>
void setGamma(Renderer &renderer, double gamma)
{
    renderer.d->gamma = gamma;
}

/*! \brief The current point, as MapPixelToReal() and GetPointF() write it. */
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

/*! \brief The next tick's chord has no length: it starts and ends at the current point. */
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

/*! \brief The tables that a renderer draws from. */
template <typename Renderer>
const CEIAtlasValue &atlasOf(const Renderer &renderer)
{
    return renderer.d->atlas;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_RENDERERSTATE_H
