// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHROMATICITY_H
#define GAMUTVIEWER_CHROMATICITY_H

#include <gamutmodel/gamutcoverage.h>

#include <QPointF>

namespace gamutviewer {

/*! \brief The point of \a diagram at the CIE 1931 chromaticity \a xy; (0, 0) where the diagram has none. */
QPointF toDiagram(Model::Diagram diagram, const QPointF &xy);
/*! \brief The inverse of toDiagram(). */
QPointF fromDiagram(Model::Diagram diagram, const QPointF &point);

/*! \brief CIE 1931 x, y to CIE 1976 u', v'. */
inline QPointF uvFromXy(const QPointF &xy)
{
    return toDiagram(Model::Diagram::Cie1976, xy);
}
/*! \brief CIE 1976 u', v' to CIE 1931 x, y. */
inline QPointF xyFromUv(const QPointF &uv)
{
    return fromDiagram(Model::Diagram::Cie1976, uv);
}

} // namespace gamutviewer

#endif
