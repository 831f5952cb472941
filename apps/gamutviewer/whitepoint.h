// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WHITEPOINT_H
#define GAMUTVIEWER_WHITEPOINT_H

#include <QPointF>

#include <optional>

namespace gamutviewer {

/*! \brief Correlated colour temperature and distance from the Planckian locus in CIE 1960 u, v. */
struct ColorTemperature {
    double kelvin = 0.0; //!< 0 where the chromaticity has none
    double duv = 0.0; //!< positive above the locus

    /*! \brief Whether the chromaticity is near enough to the locus for a colour temperature (CIE 15:2018, 9.5). */
    bool hasMeaning() const { return kelvin > 0.0 && duv >= -0.05 && duv <= 0.05; }
};

/*! \brief The colour temperature of the CIE 1931 chromaticity \a xy. */
ColorTemperature colorTemperature(const QPointF &xy);

/*!
 * \brief The CIE 1931 chromaticity of colour temperature \a kelvin, \a duv off the Planckian locus: the inverse of
 * colorTemperature(), to 1e-6 in mired and 1e-9 in Duv.
 *
 * Nothing for a temperature that is not above 1000 K and below 100 000 K, for |duv| above 0.05, beyond which no
 * colour temperature is defined (CIE 15:2018, 9.5), and where the result would not be a chromaticity.
 */
std::optional<QPointF> chromaticityAt(double kelvin, double duv);

} // namespace gamutviewer

#endif
