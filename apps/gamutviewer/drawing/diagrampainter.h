// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DIAGRAMPAINTER_H
#define GAMUTVIEWER_DIAGRAMPAINTER_H

#include "drawing/diagramframe.h"

#include <QPen>
#include <QPolygonF>

class QPainter;
class QSize;

namespace gamutviewer {

/*!
 * \name The lines and digits of a diagram, as vectors
 *
 * They look like those of the library's pictures, but at every size their digits stay within the picture: they get
 * smaller, and are left out where they would still not fit.
 * @{
 */
//! \a titles names the axes.
void paintAxes(QPainter &painter, const DiagramFrame &frame, bool titles);
//! \a besideAxes leaves out the numbers that would stand on those of the axes.
void paintWavelengths(QPainter &painter, const DiagramFrame &frame, bool besideAxes);
//! The edge of the diagram.
QPolygonF spectralLocus(const DiagramFrame &frame);
void paintSpectralLocus(QPainter &painter, const DiagramFrame &frame);
void paintPlanckianLocus(QPainter &painter, const DiagramFrame &frame);
/*! @} */

/*! \brief Whether the digits of a picture of \a size that the library draws stay within it. */
bool libraryDigitsFit(const QSize &size);

/*! \brief The pen of outlines. */
QPen outlinePen(const QColor &color, double width);

} // namespace gamutviewer

#endif
