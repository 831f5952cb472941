// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_EDID_H
#define GAMUTFILES_EDID_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>

namespace gamutfiles {

/*! \brief Whether \a bytes begin with the header of an EDID base block. */
GAMUTFILES_EXPORT bool isEdid(const QByteArray &bytes);

/*!
 * \brief The gamut that a display declares in its EDID (VESA E-EDID 1.4, section 3.7), named after the monitor.
 *
 * An EDID has no luminances: those given are relative, the primaries mixing to the white of luminance 1. Extension
 * blocks are not read and may be missing.
 */
GAMUTFILES_EXPORT Outcome<DisplayGamut> readEdid(const QByteArray &bytes);

} // namespace gamutfiles

#endif // GAMUTFILES_EDID_H
