// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_WHITEPOINT_H
#define CEIECHART_DIAGRAM_WHITEPOINT_H

#include <ceiechart/ceiechart_export.h>

#include <QPointF>
#include <QPolygonF>

#include <optional>

/*!
 * \file
 * \brief Colour temperature both ways: of a chromaticity, and the chromaticity of a temperature.
 *
 * Chromaticities are CIE 1931 x, y. Temperatures are those of GetColorTemperatureFromXY(), where they are defined.
 */
namespace ceiechart {

/*! \brief Correlated colour temperature and distance from the Planckian locus in CIE 1960 u, v. */
struct ColorTemperature {
    double kelvin = 0.0; //!< in kelvin
    double duv = 0.0; //!< positive above the locus
};

/*! \brief A temperature is defined above the first and below the second: the ends of the locus, in kelvin. */
constexpr double lowestTemperature = 1000.0;
/*! \copydoc lowestTemperature */
constexpr double highestTemperature = 100000.0;
/*! \brief The greatest distance from the locus at which a temperature is defined (CIE 15:2018, 9.5). */
constexpr double greatestDuv = 0.05;

/*!
 * \brief The colour temperature of the CIE 1931 chromaticity \a xy; nothing where none is defined.
 *
 * That is farther from the locus than greatestDuv, and where the nearest point of the locus is one of its ends.
 */
CEIECHART_EXPORT std::optional<ColorTemperature> colorTemperature(const QPointF &xy);

/*!
 * \brief The CIE 1931 chromaticity of colour temperature \a kelvin, \a duv off the Planckian locus: the inverse of
 * colorTemperature(), to 1e-6 in mired and 1e-9 in Duv.
 *
 * Nothing where colorTemperature() has nothing, and where the result would not be a chromaticity.
 */
CEIECHART_EXPORT std::optional<QPointF> chromaticityAt(double kelvin, double duv);

/*!
 * \brief The Planckian locus in CIE 1931 x, y from the lowest to the highest temperature, one point for each mired.
 *
 * The straight lines between the points are less than 2e-7 from the locus in CIE 1960 u, v.
 */
CEIECHART_EXPORT const QPolygonF &planckianLocusXy();

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_WHITEPOINT_H
