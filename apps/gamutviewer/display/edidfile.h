// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_EDIDFILE_H
#define GAMUTVIEWER_EDIDFILE_H

#include "display/outcome.h"

#include <gamutmodel/colorgamut.h>

#include <QByteArray>

namespace gamutviewer {

/*! \brief Whether \a bytes begin with the header of an EDID base block. */
bool isEdid(const QByteArray &bytes);

/*!
 * \brief The gamut that a display declares in its EDID (VESA E-EDID 1.4, section 3.7), named after the monitor.
 *
 * An EDID has no luminances: those given are relative, the primaries mixing to the white of luminance 1. Extension
 * blocks are not read and may be missing.
 */
Outcome<Model::ColorGamut> readEdid(const QByteArray &bytes);

} // namespace gamutviewer

#endif
