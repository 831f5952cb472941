// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_POINTMARKS_H
#define GAMUTVIEWER_POINTMARKS_H

#include "display/displaydescription.h"

#include <QColor>

namespace gamutviewer {

/*! \brief A point of a diagram and the colour of its disc. */
struct PointMark {
    QPointF xy;
    QColor color;
};

constexpr double markSize = 16.0; // pixels, of the discs of measure and CMY points in the library's pictures
constexpr double colorTemperatureDotSize = 0.02; // of the picture's height
const QColor measureMarkOutline(Qt::white);
const QColor cmyMarkOutline(Qt::magenta);

/*!
 * \brief The discs of measure points, in list order: the first ones called red, green, blue and white, or R, G, B and
 * W, in that colour, all others black.
 */
QVector<PointMark> measureMarks(const QVector<NamedPoint> &points);

/*! \brief The discs of \a points: cyan, magenta, yellow, all others black. */
QVector<PointMark> cmyMarks(const QVector<QPointF> &points);

QVector<QPointF> positions(const QVector<NamedPoint> &points);

} // namespace gamutviewer

#endif
