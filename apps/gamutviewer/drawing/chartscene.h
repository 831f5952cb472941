// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTSCENE_H
#define GAMUTVIEWER_CHARTSCENE_H

#include "drawing/diagramkey.h"
#include "drawing/layers.h"
#include "drawing/pointmarks.h"

#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/trianglepoint.h>
#include <gamutmodel/gamutcoverage.h>

#include <QList>
#include <QPointF>

namespace gamutviewer {

/*!
 * \brief A display description in the chart's terms: what is drawn, in which colours, widths and opacities.
 *
 * These are the colours, widths, opacities and kinds that the chart view gives the gamuts of its host.
 * Points are CIE 1931 x, y.
 */
struct ChartScene {
    Model::Diagram diagram = Model::Diagram::Cie1931;
    bool axes = true;
    bool wavelengths = true;
    bool planckianLocus = true;
    QList<ColorTriangleObject> triangles; //!< original, measured and declared (when there are such), target
    QList<ColorTriangleObject> standards;
    TrianglePoint target; //!< its common area with the original is the coloured part of the x, y chart
    TrianglePoint original;
    QList<QPointF> colorTemperaturePoints;
    QVector<PointMark> measurePoints;
    QList<QPointF> cmyPoints;
    bool wholeDigits = false; //!< or else what the library draws, even in a picture too small for its digits
    QVector<KeyEntry> key; //!< stands in a corner that the diagram leaves free, where there is room; none when empty
};

/*!
 * \brief The scene of what of \a description is in the layers \a shown, on \a diagram, without a key. A part that no
 * gamut plays is left out.
 */
ChartScene chartScene(
    const DisplayDescription &description, Layers shown = allLayers, Model::Diagram diagram = Model::Diagram::Cie1931);

} // namespace gamutviewer

#endif
