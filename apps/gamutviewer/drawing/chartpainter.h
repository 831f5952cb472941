// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTPAINTER_H
#define GAMUTVIEWER_CHARTPAINTER_H

#include "drawing/chartscene.h"

#include <QSize>

class QPainter;

namespace gamutviewer {

/*!
 * \brief Paints \a scene with \a painter as vectors, the colours of the horseshoe alone as an image.
 *
 * The chart takes the place of \a size units from the painter's origin and looks like the one that the library draws
 * in as many pixels, but for the key, and digits that stay within a small chart. The image has \a imageScale pixels a
 * unit.
 */
void paintChart(QPainter &painter, const ChartScene &scene, const QSize &size, qreal imageScale);

} // namespace gamutviewer

#endif
