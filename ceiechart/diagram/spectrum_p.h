// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_SPECTRUM_P_H
#define CEIECHART_DIAGRAM_SPECTRUM_P_H

#include <gamutmodel/diagram.h>
#include <gamutmodel/spectrallocus.h>

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

namespace ceiechart {

// The spectral locus is drawn between these.
using Model::longestWavelength;
using Model::shortestWavelength;

/*! \copydoc Model::spectralChromaticity */
inline QPointF spectralChromaticity(double wavelength)
{
    const Model::DiagramPoint xy = Model::spectralChromaticity(wavelength);
    return QPointF(xy.x, xy.y);
}

/*! \brief The spectral locus in \a diagram, from its violet to its red end; \a perNanometre points, 1 or 10, for each.
 */
const QPolygonF &spectralLocusIn(Model::Diagram diagram, int perNanometre);

/*! \brief The points for each nanometre that make the locus look smooth at \a scale pixels per unit. */
constexpr int spectrumDetail(double scale)
{
    return scale < 1000.0 ? 1 : 10;
}

/*! \brief The bounds of the spectral locus in \a diagram; top is the least of the second coordinate. */
const QRectF &spectrumBounds(Model::Diagram diagram);

/*! \brief A point of the Planckian locus in CIE 1960 u, v. */
struct LocusPoint {
    QPointF uv; //!< where it is
    QPointF normal; //!< of length 1, towards positive Duv
};

/*! \brief The point of the Planckian locus of the reciprocal temperature \a mired, from 12 to 998. */
LocusPoint planckianPoint(double mired);

/*! \brief The Planckian locus in \a diagram, from the hottest to the coolest, a point for each mired. */
const QPolygonF &planckianLocusIn(Model::Diagram diagram);

/*! \brief The point of \a diagram at \a uv of CIE 1960 u, v. */
QPointF fromUv1960(Model::Diagram diagram, const QPointF &uv);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_SPECTRUM_P_H
