// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETEDITS_H
#define GAMUTVIEWER_TARGETEDITS_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>

#include <optional>

namespace gamutviewer {

using Vertex = ceiechart::GamutVertex;
using ceiechart::sameTargets;
using ceiechart::targetAt;
using ceiechart::xyOf;
constexpr auto allVertices = ceiechart::allGamutVertices;

/*! \brief What editing begins with where a description has no target: Rec.709, relative to a white of 1. */
DisplayGamut defaultTarget();

/*!
 * \brief The target of \a description, or, where it names none, defaultTarget(); nothing when there is no gamut of the
 * name.
 */
std::optional<DisplayGamut> targetToEdit(const DisplayDescription &description);

/*!
 * \brief \a description with the target changed by hand to \a targets.
 *
 * A gamut that has a name of its own is left as it is: the target becomes a gamut of the description that is called
 * after it, "Rec.709 (edited)", and later edits change that one. Without a target, the default one is changed. Where
 * that name is taken, or where the edited gamut plays another part too, it is "Rec.709 (edited 2)".
 */
DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets);
/*! \brief The same, with luminances in \a unit. */
DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets, LuminanceUnit unit);

/*!
 * \brief \a description with the luminances of the target in \a unit.
 *
 * Where the former unit is known the numbers change with it, so that they stay true: relative to a white of 1; or in
 * cd/m², the white as bright as \a brightestWhite, in cd/m², if that is known. In all other cases they only get the
 * unit.
 */
DisplayDescription withLuminanceUnit(
    const DisplayDescription &description, LuminanceUnit unit, std::optional<double> brightestWhite);

/*!
 * \brief \a description with \a gamutName for its target.
 *
 * An edited gamut that nothing refers to any more goes, unless \a saved, what the file has, has it. A published gamut,
 * relative to a white of 1, is taken at the luminance of the former target's white: the description gets a gamut of
 * its name, unless it has one, or has the published one for another part.
 */
DisplayDescription withTargetNamed(
    DisplayDescription description, const QString &gamutName, const DisplayDescription &saved = DisplayDescription());

/*! \brief Whether all colours of \a targets are real enough to be asked of a display: ACES2065-1, for one, is not. */
bool canBeTarget(const Model::Targets &targets);

/*! \brief Whether \a gamutName is that of a gamut changed by hand. */
bool isEditedName(const QString &gamutName);

/*! \brief \a gamutName without the mark of a gamut changed by hand. */
QString plainName(const QString &gamutName);

/*! \brief The number in the mark of a gamut changed by hand; 1 without one. */
int editNumber(const QString &gamutName);

} // namespace gamutviewer

#endif
