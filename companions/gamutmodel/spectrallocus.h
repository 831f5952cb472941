// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_SPECTRALLOCUS_H
#define GAMUTMODEL_SPECTRALLOCUS_H

#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>

/*!
 * \file
 * \brief The spectral locus: the chromaticities of monochromatic light for the CIE 1931 standard observer (2°).
 */
namespace Model {

/*!
 * \brief The shortest wavelength of the spectral locus in nm. The line of purples begins there.
 *
 * Below, the chromaticity hardly changes: from 360 nm to 380 nm by 0.0015 in x.
 */
constexpr double shortestWavelength = 380.0;

/*!
 * \brief The longest wavelength of the spectral locus in nm. The line of purples ends there.
 *
 * Above, the locus is a point: up to 830 nm the colour-matching functions give chromaticities within 2e-6 of it, which
 * move to and fro by the rounding of their digits.
 */
constexpr double longestWavelength = 699.0;

/*!
 * \brief The CIE 1931 chromaticity x, y of monochromatic light of \a wavelength nm.
 *
 * x = x̄ / (x̄ + ȳ + z̄), y = ȳ / (x̄ + ȳ + z̄), with the colour-matching functions of ISO/CIE 11664-1:2019 at 1 nm. Between
 * the nanometres the functions are interpolated by cubics (Catmull-Rom), as straight lines would show as corners of the
 * locus.
 *
 * \param wavelength in nm, from 361 to 829; a wavelength beyond is taken as the nearest of these. NaN gives NaN.
 */
GAMUTMODEL_EXPORT DiagramPoint spectralChromaticity(double wavelength);

} // namespace Model

#endif // GAMUTMODEL_SPECTRALLOCUS_H
