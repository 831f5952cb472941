// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_GAMUTFROMPRIMARIES_P_H
#define GAMUTFILES_GAMUTFROMPRIMARIES_P_H

#include <gamutfiles/outcome.h>

#include <gamutmodel/colorgamut.h>

#include <QPointF>

namespace gamutfiles {

/*! \brief CIE 1931 chromaticities of a display. */
struct Primaries {
    QPointF red;
    QPointF green;
    QPointF blue;
    QPointF white;
};

/*!
 * \brief The gamut whose primaries mix to a white of luminance \a whiteLuminance, checked as a file may hold anything.
 *
 * A failure names what is not a chromaticity (x >= 0, y > 0, x + y <= 1, of which rounding to a file's precision may
 * have taken up to 0.0005), primaries that span no triangle, and a white outside of it.
 */
Outcome<Model::ColorGamut> gamutFromPrimaries(const QString &name, Primaries primaries, double whiteLuminance);

/*! \brief What to say of primaries that are too near to one line to mix anything. */
QString noTriangleText();

} // namespace gamutfiles

#endif
