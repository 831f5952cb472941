// SPDX-License-Identifier: MIT
#ifndef CEIECHART_ATLAS_CHROMASETS_H
#define CEIECHART_ATLAS_CHROMASETS_H

#include <ceiechart/ceiechart_export.h>

/*!
 * \brief Colour temperature and white-point maths, as used by the scenes.
 *
 * A thin façade over the colour-temperature library. Chromaticities are CIE 1931 x, y. Luminances are in the
 * host's units, such as cd/m²: the maths is linear in them. No function reports an error.
 */
class CEIECHART_EXPORT ChromaSets {
public:
    /*!
     * \brief Correlated colour temperature of the chromaticity (\a x, \a y).
     *
     * Stores the temperature in kelvin in \a colorTemperature, truncated toward zero: 6503.9 K gives 6503. What a
     * chromaticity without a temperature gives, see GetColorTemperatureFromXY(); a vendor's library must stay within
     * the range of int.
     *
     * \return The result of the colour-temperature library's function, truncated toward zero. Its meaning belongs
     *     to that library; nothing here depends on it.
     */
    static int GetColorTemperatureNew(double x, double y, int &colorTemperature);

    /*!
     * \brief The white that three primaries mix to additively.
     *
     * Stores the luminance and the chromaticity of the mixture in \a whiteLum, \a whiteX and \a whiteY. What
     * primaries without luminance or with y = 0 give, see RGBCxCyToWhiteCxCy().
     */
    static void rgbCxCyToWhiteCxCy(double redLum, double redX, double redY, double greenLum, double greenX,
        double greenY, double blueLum, double blueX, double blueY, double &whiteLum, double &whiteX, double &whiteY);

    /*!
     * \brief The luminances at which three primaries mix to a given white: the inverse of rgbCxCyToWhiteCxCy().
     *
     * Stores them in \a redLum, \a greenLum and \a blueLum. A luminance may come out negative when the white lies
     * outside the triangle of the primaries, and unbounded when the triangle is degenerate: callers check.
     */
    static void RGBCxCyFromWhiteCxCy(double &redLum, double redX, double redY, double &greenLum, double greenX,
        double greenY, double &blueLum, double blueX, double blueY, double whiteLum, double whiteX, double whiteY);

private:
    // Isotemperature lines, 71 rows of (temperature in kelvin, u, v, slope dv/du) in CIE 1960 uv. Reference data
    // only: temperatures come from the colour-temperature library.
    static const double A[71][4];
};

#endif // CEIECHART_ATLAS_CHROMASETS_H
