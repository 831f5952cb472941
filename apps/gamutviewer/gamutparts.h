// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTPARTS_H
#define GAMUTVIEWER_GAMUTPARTS_H

#include "displaydescription.h"
#include "whitepoint.h"

namespace gamutviewer {

/*! \brief A gamut of a description and the part that it plays. */
struct GamutPart {
    enum class Role { Declared, Original, Measured, Target };

    Role role = Role::Target;
    Model::ColorGamut gamut;

    /*! \brief "Target: Rec.709 (edited)", in the language of the interface. */
    QString title() const;
    /*! \brief "Target". */
    QString roleName() const;
};

/*! \brief The parts of \a description that a gamut plays: declared, original, measured, target. */
QVector<GamutPart> gamutParts(const DisplayDescription &description);

/*!
 * \brief Whether \a temperature is a correlated colour temperature: not an end of the range, and no farther from the
 * Planckian locus than CIE 15:2018, 9.5, allows.
 */
bool isCorrelated(const ColorTemperature &temperature);

/*! \brief \a value as a percentage with one decimal. */
QString percent(double value);

/*! \brief \a luminance with the decimals that a relative (a white of 1) or an absolute one needs. */
QString luminanceText(double luminance);

} // namespace gamutviewer

#endif
