// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_DOMINANTWAVELENGTH_H
#define GAMUTMODEL_DOMINANTWAVELENGTH_H

#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>

#include <optional>

/*!
 * \file
 * \brief Dominant wavelength and excitation purity of a chromaticity (CIE 15:2018, 9.1), and back.
 *
 * Both depend on the chromaticity that is taken as white: state it with the numbers. Common are the equal-energy
 * stimulus (1/3, 1/3), with which light-emitting diodes are specified, and the white of a display.
 *
 * \code
 * const Model::DiagramPoint equalEnergy{1.0 / 3.0, 1.0 / 3.0};
 * if (const auto hue = Model::dominantWavelength({0.170, 0.797}, equalEnergy)) {
 *     // hue->wavelength is 532.0 nm, hue->purity 1.00
 * }
 * \endcode
 */
namespace Model {

/*! \brief A chromaticity, described relative to a white. */
struct DominantWavelength {
    /*!
     * \brief Wavelength in nm, from shortestWavelength to longestWavelength; for a purple the complementary wavelength,
     * as a negative number.
     *
     * The ray from the white through the chromaticity meets the spectral locus at the dominant wavelength. For a purple
     * it meets the line of purples instead, the straight line between the ends of the locus; the ray in the opposite
     * direction then meets the locus at the complementary wavelength.
     */
    double wavelength = 0.0;
    /*!
     * \brief Excitation purity: the distance of the chromaticity from the white, divided by the distance in the same
     * direction between the white and the locus or the line of purples, in x, y.
     *
     * 0 at the white, 1 on the locus and on the line of purples, more outside of them.
     */
    double purity = 0.0;
};

/*!
 * \brief Dominant wavelength and excitation purity of the CIE 1931 chromaticity \a xy for the white \a white.
 *
 * A chromaticity that lies outside of the locus, as the primaries of some published gamuts do, has them in the same
 * way.
 *
 * The locus ends where it is no more than a point: see shortestWavelength and longestWavelength. Light of a longer
 * wavelength has the dominant wavelength longestWavelength.
 *
 * Nothing if a coordinate is infinite or not a number; if \a xy is the white, at a distance of less than 1e-12, as it
 * has no hue then; if \a white does not lie inside of the locus and the line of purples.
 */
GAMUTMODEL_EXPORT std::optional<DominantWavelength> dominantWavelength(DiagramPoint xy, DiagramPoint white);

/*!
 * \brief The CIE 1931 chromaticity that has \a hue for the white \a white: the inverse of dominantWavelength().
 *
 * Converting there and back changes the wavelength by at most 1e-6 nm and the chromaticity by at most 1e-12, for a
 * white that is 0.01 and more from the locus and a purity of at least 0.01.
 *
 * \param hue a wavelength from shortestWavelength up to 830 nm is defined; the locus has the same chromaticity for all
 *     from longestWavelength. A negative one is defined if it is the complementary wavelength of a purple: for most
 *     wavelengths between the red and the blue end the opposite of the white is no purple. The purity is 0 or more.
 * \return Nothing if the wavelength is not defined, if the purity is negative, if a number is infinite or not a number,
 *     or if \a white does not lie inside of the locus and the line of purples.
 */
GAMUTMODEL_EXPORT std::optional<DiagramPoint> chromaticityOf(const DominantWavelength &hue, DiagramPoint white);

} // namespace Model

#endif // GAMUTMODEL_DOMINANTWAVELENGTH_H
