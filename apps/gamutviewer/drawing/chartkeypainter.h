// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTKEYPAINTER_H
#define GAMUTVIEWER_CHARTKEYPAINTER_H

#include "drawing/diagramframe.h"
#include "drawing/diagramkey.h"

namespace gamutviewer {

/*!
 * \brief Paints \a entries into a corner of a chart that its diagram leaves free, in smaller letters where there is
 * little room; not at all where there is none.
 */
void paintChartKey(QPainter &painter, const QVector<KeyEntry> &entries, const DiagramFrame &frame);

/*! \brief Where paintChartKey() paints; empty for nowhere. */
QRectF chartKeyPlace(const QVector<KeyEntry> &entries, const DiagramFrame &frame);

} // namespace gamutviewer

#endif
