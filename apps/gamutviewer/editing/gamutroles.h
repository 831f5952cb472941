// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTROLES_H
#define GAMUTVIEWER_GAMUTROLES_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/gamutstyle.h>

namespace gamutviewer {

using ceiechart::GamutRole;

/*! \brief Every part that a gamut of a description can play, the usual order of tables and lists. */
constexpr GamutRole allGamutRoles[]
    = {GamutRole::Original, GamutRole::Measured, GamutRole::Declared, GamutRole::Target, GamutRole::Standard};

/*! \brief The part in the middle of a sentence: "the declared gamut", and "no role" for none. */
QString gamutRolePhrase(std::optional<GamutRole> role);

/*!
 * \brief Why a gamut of \a targets cannot play \a role, for people; empty when it can.
 *
 * With primaries that no light has it can be declared and a standard only: a description with it in another part could
 * not be read again.
 */
QString whyNotInRole(const Model::Targets &targets, GamutRole role);

/*! \brief The name of the gamut that plays \a role; empty when none does, and for standards. */
QString gamutInRole(const DisplayDescription &description, GamutRole role);

/*! \brief Whether the gamut called \a gamutName plays \a role. A gamut can play several parts. */
bool playsRole(const DisplayDescription &description, const QString &gamutName, GamutRole role);

/*!
 * \brief \a description with the gamut called \a gamutName in \a role, or no longer in it.
 *
 * One gamut at a time is the original, the measured, the declared and the target: the one before loses the part and
 * stays in the list. Nothing changes when whyNotInRole() says why. \a saved is what the file has, for
 * withTargetNamed().
 */
DisplayDescription withRole(DisplayDescription description, const QString &gamutName, GamutRole role, bool plays,
    const DisplayDescription &saved = DisplayDescription());

/*! \brief \a description without its gamut called \a gamutName, whose parts no gamut plays then. */
DisplayDescription withoutGamut(DisplayDescription description, const QString &gamutName);

/*! \brief Why the gamut \a from of \a description cannot be called \a to, for people; empty when it can. */
QString whyNotRenamed(const DisplayDescription &description, const QString &from, const QString &to);

/*! \brief \a description with its gamut \a from called \a to, in each of its parts. */
DisplayDescription withGamutRenamed(DisplayDescription description, const QString &from, const QString &to);

/*! \brief Whether \a description has a gamut of its own called \a gamutName. */
bool hasOwnGamut(const DisplayDescription &description, const QString &gamutName);

/*! \brief Whether nothing at all is known: as of a new document. */
bool isEmpty(const DisplayDescription &description);

} // namespace gamutviewer

#endif
