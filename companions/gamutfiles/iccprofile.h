// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_ICCPROFILE_H
#define GAMUTFILES_ICCPROFILE_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>

namespace gamutfiles {

/*! \brief Whether \a bytes begin like an ICC profile: the signature "acsp" at its place. */
GAMUTFILES_EXPORT bool isIccProfile(const QByteArray &bytes);

/*!
 * \brief The gamut of an RGB matrix profile (ICC.1:2010 and ICC.1:2001), named after the profile's description.
 *
 * The colorants of a profile are adapted to D50. They are given here under the native white, un-adapted by the
 * profile's chromatic adaptation tag, or by the Bradford transform from the media white point where there is none.
 * Luminances are those of the "lumi" tag, in cd/m², or relative to a white of 1. The name is empty when the profile
 * has no description.
 */
GAMUTFILES_EXPORT Outcome<DisplayGamut> readIccProfile(const QByteArray &bytes);

} // namespace gamutfiles

#endif // GAMUTFILES_ICCPROFILE_H
