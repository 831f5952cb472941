// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTPARTS_H
#define GAMUTVIEWER_GAMUTPARTS_H

#include "display/displaydescription.h"

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

/*! \brief \a value as a percentage with one decimal. */
QString percent(double value);

/*! \brief \a luminance with the decimals that a relative (a white of 1) or an absolute one needs. */
QString luminanceText(double luminance);

} // namespace gamutviewer

#endif
