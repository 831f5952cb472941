// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_ATLAS_CHROMASETS_H
#define CEIECHART_ATLAS_CHROMASETS_H

#include <ceiechart/ceiechart_export.h>

/*!
 * \brief The colour-temperature and white-point calculations of the scenes.
 *
 * The functions call the colour-temperature library (colortemperature.h) and add nothing but the conversions of types.
 * Chromaticities are CIE 1931 x, y (unitless). Luminances can have any unit, for example cd/m², but all luminances of a
 * call must have the same. The functions have no state and do not report errors; each documents its result for invalid
 * input.
 */
class CEIECHART_EXPORT ChromaSets {
public:
    /*!
     * \brief Correlated colour temperature of the chromaticity (\a x, \a y).
     *
     * Stores the temperature in kelvin in \a colorTemperature, truncated toward zero: 6503.9 K gives 6503. For
     * chromaticities without a temperature see GetColorTemperatureFromXY(). If another colour-temperature library is
     * used in its place, the temperatures that it returns must fit an int.
     *
     * \return the result of the colour-temperature library's function (Duv), truncated toward zero. The library does
     * not use it.
     */
    static int GetColorTemperatureNew(double x, double y, int &colorTemperature);

    /*!
     * \brief The white point of three primaries: their additive mixture.
     *
     * Stores the luminance and the chromaticity of the mixture in \a whiteLum, \a whiteX and \a whiteY. For primaries
     * without luminance or with y = 0 see RGBCxCyToWhiteCxCy().
     */
    static void rgbCxCyToWhiteCxCy(double redLum, double redX, double redY, double greenLum, double greenX,
        double greenY, double blueLum, double blueX, double blueY, double &whiteLum, double &whiteX, double &whiteY);

    /*!
     * \brief The luminances at which three primaries mix to a given white: the inverse of rgbCxCyToWhiteCxCy().
     *
     * Stores the luminances in \a redLum, \a greenLum and \a blueLum. Luminances are negative if the white lies outside
     * the triangle, and infinite if the triangle is degenerate; callers must check.
     */
    static void RGBCxCyFromWhiteCxCy(double &redLum, double redX, double redY, double &greenLum, double greenX,
        double greenY, double &blueLum, double blueX, double blueY, double whiteLum, double whiteX, double whiteY);

private:
    /*!
     * \brief Isotemperature lines: 71 rows of temperature (kelvin), u, v and slope dv/du in CIE 1960 u, v.
     *
     * Reference data only; temperatures are computed by the colour-temperature library.
     */
    static const double A[71][4];
};

#endif // CEIECHART_ATLAS_CHROMASETS_H
