// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WHITEPOINT_H
#define GAMUTVIEWER_WHITEPOINT_H

#include <QPointF>
#include <QString>

#include <optional>

namespace gamutviewer {

/*! \brief Correlated colour temperature and distance from the Planckian locus in CIE 1960 u, v. */
struct ColorTemperature {
    double kelvin = 0.0;
    double duv = 0.0; //!< positive above the locus
};

/*! \brief A temperature is defined above the first and below the second: the ends of the locus, in kelvin. */
constexpr double lowestTemperature = 1000.0;
constexpr double highestTemperature = 100000.0;
/*! \brief The greatest distance from the locus at which a temperature is defined (CIE 15:2018, 9.5). */
constexpr double greatestDuv = 0.05;

/*!
 * \brief The colour temperature of the CIE 1931 chromaticity \a xy; nothing where none is defined.
 *
 * That is farther from the locus than greatestDuv, and where the nearest point of the locus is one of its ends.
 */
std::optional<ColorTemperature> colorTemperature(const QPointF &xy);

/*! \brief As the interface shows it, "6504 K". */
QString temperatureText(const ColorTemperature &temperature);
/*! \brief As the interface shows it, "0.0032". */
QString duvText(const ColorTemperature &temperature);
/*! \brief What the interface shows in the place of a value that is not defined. */
QString undefinedText();

/*!
 * \brief The CIE 1931 chromaticity of colour temperature \a kelvin, \a duv off the Planckian locus: the inverse of
 * colorTemperature(), to 1e-6 in mired and 1e-9 in Duv.
 *
 * Nothing where colorTemperature() has nothing, and where the result would not be a chromaticity.
 */
std::optional<QPointF> chromaticityAt(double kelvin, double duv);

} // namespace gamutviewer

#endif
