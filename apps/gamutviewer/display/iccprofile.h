// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ICCPROFILE_H
#define GAMUTVIEWER_ICCPROFILE_H

#include "display/outcome.h"

#include <gamutmodel/colorgamut.h>

#include <QByteArray>

namespace gamutviewer {

/*! \brief Whether \a bytes begin like an ICC profile: the signature "acsp" at its place. */
bool isIccProfile(const QByteArray &bytes);

/*!
 * \brief The gamut of an RGB matrix profile (ICC.1:2010 and ICC.1:2001), named after the profile's description.
 *
 * The colorants of a profile are adapted to D50. They are given here under the native white, un-adapted by the
 * profile's chromatic adaptation tag, or by the Bradford transform from the media white point where there is none.
 * Luminances are those of the "lumi" tag, in cd/m², or relative to a white of 1. The name is empty when the profile
 * has no description.
 */
Outcome<Model::ColorGamut> readIccProfile(const QByteArray &bytes);

} // namespace gamutviewer

#endif
