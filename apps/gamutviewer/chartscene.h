// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTSCENE_H
#define GAMUTVIEWER_CHARTSCENE_H

#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/trianglepoint.h>

#include <QList>
#include <QPointF>

namespace gamutviewer {

struct DisplayDescription;

/*!
 * \brief A display description in the chart's terms: what is drawn, in which colours, widths and opacities.
 *
 * These are the colours, widths, opacities and kinds that the chart view gives the gamuts of its host.
 * Points are CIE 1931 x, y.
 */
struct ChartScene {
    QList<ColorTriangleObject> triangles; //!< original, measured and declared (when there are such), target
    QList<ColorTriangleObject> standards;
    TrianglePoint target; //!< its common area with the original is the coloured part of the chart
    TrianglePoint original;
    QList<QPointF> colorTemperaturePoints;
    QList<QPointF> measurePoints;
    QList<QPointF> cmyPoints;
};

/*! \brief The scene of \a description. A part that no gamut plays is left out. */
ChartScene chartScene(const DisplayDescription &description);

} // namespace gamutviewer

#endif
