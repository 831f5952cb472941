// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ADDITIVITY_H
#define GAMUTVIEWER_ADDITIVITY_H

#include "display/gamutfiles.h"

#include <gamutmodel/drive.h>

#include <optional>

/*!
 * \file
 * \brief Whether the light of a display's primaries adds up, and what it therefore reaches.
 */
namespace gamutviewer {

/*! \brief By which part the luminance of an additive display's white may differ from the sum of its primaries. */
constexpr double additiveLuminance = 0.02;
/*! \brief By how much, in Δu′v′, the white of an additive display may differ from the mixture of its primaries. */
constexpr double additiveUv = 0.003;

/*! \brief A display whose white is held against the mixture of its primaries. */
struct Additivity {
    Model::Target sum; //!< of the primaries
    bool isAdditive = false; //!< whether the white is that sum
    bool isUpperBound = false; //!< whether the display shows no more than the sum: no primary is brighter in the white
    bool differsInLuminance = false; //!< whether the luminance is what is not additive
};

/*! \brief Whether the luminance of a \a measured white is more than additiveLuminance off the \a sum of its primaries.
 */
bool differsInLuminance(const Model::Target &measured, const Model::Target &sum);
/*! \brief Of \a drive, which has no fault, with the white that was \a measured of the same display. */
Additivity additivityOf(const Model::DisplayDrive &drive, const Model::Target &measured);

/*!
 * \brief What is to be multiplied with the luminance at \a white that the primaries of \a drive add to, so that at the
 * white that was \a measured it is the measured one.
 *
 * Elsewhere it is at most 1, so that no more light is claimed than the primaries have. Differences within fullDrive do
 * not count. 1 where the measured white is not known.
 */
double measuredShare(const Model::DisplayDrive &drive, const Model::Target &measured, const Model::Target &white);
/*! \brief Whether \a white is the \a measured one in the four decimals in which people write chromaticities. */
bool isMeasuredWhite(const Model::Target &measured, const Model::Target &white);

/*!
 * \brief The largest luminance, in cd/m², of a white with the chromaticity of \a white that the display is known to
 * reach: the least of the gamuts of knownDisplays() whose luminances are in cd/m².
 *
 * At the measured white of a gamut that is the measured luminance. Nothing without such a gamut, and elsewhere where
 * one of them is not additive or cannot show the chromaticity.
 */
std::optional<double> reachableLuminance(const DisplayDescription &description, const Model::Target &white);

} // namespace gamutviewer

#endif
