// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H
#define CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H

#include <ceiechart/model/colortriangleobject.h>

#include <QList>
#include <QPointF>
#include <QRandomGenerator>
#include <QRectF>

namespace reference {

/*! \brief A gamut whose primaries, with their luminances, mix to a D65 white. */
ColorTriangleObject sampleGamut(const QPointF &red, const QPointF &green, const QPointF &blue, double redLum,
    double greenLum, double blueLum, int type);

ColorTriangleObject wideGamut(); //!< an original gamut: Rec. 2020 primaries, white of 1000 cd/m²
ColorTriangleObject narrowGamut(); //!< a target inside it: Rec. 709 primaries, white of 1000 cd/m²

/*! \brief The wide and the narrow gamut: an ordinary original and target of a scene. */
QList<ColorTriangleObject> gamutPair();

double randomReal(QRandomGenerator &random, double low, double high);
QPointF randomPoint(QRandomGenerator &random, const QRectF &area);

/*! \brief A random point at \a point or near it, inside and outside the tolerance of the corners. */
QPointF closeTo(QRandomGenerator &random, const QPointF &point);

/*! \brief A random chromaticity, mostly near the colour regions, rarely far away, infinite or not a number. */
QPointF randomChroma(QRandomGenerator &random);

/*! \brief A random gamut: ordinary, inverted, flat or meaningless. */
ColorTriangleObject randomGamut(QRandomGenerator &random, int type);

/*! \brief A random list of none to four gamuts, mostly an original with a target inside it. */
QList<ColorTriangleObject> randomGamuts(QRandomGenerator &random);

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SAMPLEGAMUTS_H
