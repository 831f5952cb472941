// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTPARTS_H
#define GAMUTVIEWER_GAMUTPARTS_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/gamutstyle.h>
#include <gamutmodel/diagram.h>

namespace gamutviewer {

/*! \brief A gamut of a description and the part that it plays. */
struct GamutPart {
    ceiechart::GamutRole role = ceiechart::GamutRole::Target;
    DisplayGamut gamut;
    bool isDefault = false; //!< nobody has chosen it

    /*! \brief The gamut's name as the interface shows it, on one line. */
    QString name() const;
    /*! \brief "Target: Rec.709 (edited)", in the language of the interface. */
    QString title() const;
    /*! \brief "Target". */
    QString roleName() const { return ceiechart::gamutRoleName(role); }
};

/*! \brief The parts of \a description that a gamut plays: declared, original, measured, target. */
QVector<GamutPart> gamutParts(const DisplayDescription &description);

/*! \brief gamutParts() and, where nobody has chosen a target, the default one, for where it is edited. */
QVector<GamutPart> gamutPartsToEdit(const DisplayDescription &description);

/*! \brief "Original: not known", for where tables have no gamut in \a role to show. */
QString notKnownTitle(ceiechart::GamutRole role);

/*!
 * \brief The share of \a original's area on \a diagram that \a target does not contain, 0 to 1; 0 for an original
 * without area.
 */
double lostShare(const Model::Targets &original, const Model::Targets &target, Model::Diagram diagram);

} // namespace gamutviewer

#endif
