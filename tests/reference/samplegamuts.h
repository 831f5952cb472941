// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H
#define CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H

#include <ceiechart/model/colortriangleobject.h>

#include <QList>
#include <QPointF>
#include <QRandomGenerator>
#include <QRectF>

namespace reference {

/*! \brief A gamut that mixes to a D65 white, with the luminances of its primaries. */
ColorTriangleObject sampleGamut(const QPointF &red, const QPointF &green, const QPointF &blue, double redLum,
    double greenLum, double blueLum, int type);

ColorTriangleObject wideGamut(); //!< an original: Rec. 2020 primaries in 1000 cd/m²
ColorTriangleObject narrowGamut(); //!< a target: Rec. 709 primaries in 1000 cd/m², inside the wide one

/*! \brief The wide and the narrow gamut: what a scene edits in the ordinary case. */
QList<ColorTriangleObject> gamutPair();

double randomReal(QRandomGenerator &random, double low, double high);
QPointF randomPoint(QRandomGenerator &random, const QRectF &area);

/*! \brief At a point or next to it, a little more or less than the corners' tolerance away. */
QPointF closeTo(QRandomGenerator &random, const QPointF &point);

/*! \brief Mostly near the fences; seldom far out, infinite or not a number. */
QPointF randomChroma(QRandomGenerator &random);

/*! \brief Ordinary, inverted, flat or meaningless. */
ColorTriangleObject randomGamut(QRandomGenerator &random, int type);

/*! \brief None to four gamuts, mostly a pair with a target inside the original. */
QList<ColorTriangleObject> randomGamuts(QRandomGenerator &random);

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H
