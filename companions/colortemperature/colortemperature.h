/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
#ifndef COLORTEMPERATURE_COLORTEMPERATURE_H
#define COLORTEMPERATURE_COLORTEMPERATURE_H

#include <colortemperature/colortemperature_export.h>

/*!
 * \file
 * \brief Colour temperature of a chromaticity, white point of three primaries, and luminances of three primaries for a
 * white point.
 *
 * Plain C functions without state; they can be called from any thread. Chromaticities are CIE 1931 x, y (2° observer,
 * unitless). Luminances can have any unit, but all luminances of a call must have the same. No function reports an
 * error. Each function documents its result for invalid input. A null pointer discards that result.
 *
 * \code
 * double kelvin;
 * double duv = GetColorTemperatureFromXY(0.3127, 0.3290, &kelvin); // 6504.2 K, 0.0032 above the locus
 *
 * double red, green, blue; // of the Rec. 709 primaries in 100 cd/m² of D65: 21.26, 71.52 and 7.22 cd/m²
 * RGBCxCyFromWhiteCxCy(&red, 0.64, 0.33, &green, 0.30, 0.60, &blue, 0.15, 0.06, 100.0, 0.3127, 0.3290);
 * \endcode
 */

#ifdef __cplusplus
extern "C" {
#endif

/*!
 * \brief Correlated colour temperature and distance from the Planckian locus.
 *
 * The correlated colour temperature of a chromaticity is the temperature of the nearest point of the Planckian locus in
 * the CIE 1960 UCS diagram, u = 4x / (-2x + 12y + 3), v = 6y / (-2x + 12y + 3) (CIE 15:2018, 9.5). The locus is that of
 * Planck's radiator, with the second radiation constant c2 = 1.438776877e-2 m·K (CODATA 2018) and with a refractive
 * index of 1, the CIE convention. It is summed with the CIE 1931 colour-matching functions (ISO/CIE 11664-1) from 360
 * nm to 830 nm at 1 nm.
 *
 * Most other programs use c2 = 1.4388e-2 m·K, the value of IPTS-68. Their temperatures are 16 ppm higher: to compare,
 * multiply the result of this function by 1.4388 / 1.438776877.
 *
 * Within |Duv| <= 0.05 the error of the temperature is at most 0.0001 K up to 50 000 K and at most 0.001 K up to 100
 * 000 K, and the error of Duv is at most 1e-12. Farther away the function still returns the temperature of the nearest
 * point, although the CIE does not define a correlated colour temperature there. The centres of curvature of the locus
 * are about 0.1 below it. The nearer a chromaticity is to them, the more the temperature depends on it. Beyond them,
 * two points of the locus can be equally near; the function then returns either.
 *
 * The locus extends from 1000 K to 100 000 K. If the nearest point is an end of the locus, the temperature is exactly
 * that of the end. Duv is then the distance from the end, with the sign of the side of the tangent there.
 *
 * \param x CIE 1931 x, from -1 to 1.
 * \param y CIE 1931 y, above 0 and up to 1. Both ranges contain the whole diagram and more.
 * \param temperature Receives the temperature in kelvin, from 1000 to 100000, or 0 if x or y is out of its range,
 * infinite or not a number. In both cases the value fits an int.
 * \return Duv, the distance from the locus in u, v: positive above the locus (towards green), negative below it
 * (towards magenta), 0 if x or y is out of its range, infinite or not a number.
 */
COLORTEMPERATURE_EXPORT double GetColorTemperatureFromXY(double x, double y, double *temperature);

/*!
 * \brief White point of three primaries: their additive mixture.
 *
 * Each primary contributes X = x·Y / y, Y and Z = (1 - x - y)·Y / y. The chromaticity of the white is that of the sums,
 * x = X / (X + Y + Z), y = Y / (X + Y + Z). A primary of luminance 0 contributes nothing, even if its y is 0.
 *
 * All three results are always finite: if an argument is infinite or not a number, or if a sum overflows, all three are
 * 0.
 *
 * \param redLuminance, greenLuminance, blueLuminance Luminances Y of the primaries.
 * \param redX, redY, greenX, greenY, blueX, blueY Chromaticities of the primaries.
 * \param whiteLuminance Receives the sum of the luminances.
 * \param whiteX, whiteY Receive the chromaticity of the white. Both are 0 if it has none: if there is no light, if a
 * primary with y = 0 has light, or if the contributions X + Y + Z cancel out.
 */
COLORTEMPERATURE_EXPORT void RGBCxCyToWhiteCxCy(double redLuminance, double redX, double redY, double greenLuminance,
    double greenX, double greenY, double blueLuminance, double blueX, double blueY, double *whiteLuminance,
    double *whiteX, double *whiteY);

/*!
 * \brief Luminances of three primaries for a white point: the inverse of RGBCxCyToWhiteCxCy().
 *
 * If there are no such luminances, or if they are not unique or not finite, all three are positive infinity, which
 * exceeds any limit. This is the case for a triangle whose height is at most 1e-12 of its longest side, a primary with
 * y = 0, a white with y = 0 and a luminance other than 0, an argument that is infinite or not a number, and an
 * overflow.
 *
 * \param redLuminance, greenLuminance, blueLuminance Receive the luminances Y whose additive mixture is the white. Some
 * are negative if the white lies outside the triangle of the primaries.
 * \param redX, redY, greenX, greenY, blueX, blueY Chromaticities of the primaries.
 * \param whiteLuminance Luminance Y of the white. If it is 0, the luminances of the primaries are 0.
 * \param whiteX, whiteY Chromaticity of the white.
 */
COLORTEMPERATURE_EXPORT void RGBCxCyFromWhiteCxCy(double *redLuminance, double redX, double redY,
    double *greenLuminance, double greenX, double greenY, double *blueLuminance, double blueX, double blueY,
    double whiteLuminance, double whiteX, double whiteY);

#ifdef __cplusplus
}
#endif

#endif
