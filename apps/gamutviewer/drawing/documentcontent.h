// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DOCUMENTCONTENT_H
#define GAMUTVIEWER_DOCUMENTCONTENT_H

#include "display/gamutfiles.h"
#include "editing/gamutparts.h"

#include <ceiechart/diagram/diagramcontent.h>

#include <vector>

namespace gamutviewer {

/*!
 * \brief What a diagram shows of \a description: its gamuts in their parts, its points, and tolerances round the
 * target's white. All layers are on, and there is no trail.
 *
 * Gamuts have the names that the interface shows. A part that no gamut plays is left out. \a parts are the gamuts but
 * for the standards: those of the description, or gamutPartsToEdit(). Of the standards, \a standards are shown.
 */
ceiechart::DiagramContent documentContent(
    const DisplayDescription &description, const QVector<GamutPart> &parts, const std::vector<DisplayGamut> &standards);
/*! \brief The same of what \a description has, without a default target. */
ceiechart::DiagramContent documentContent(const DisplayDescription &description);

/*! \brief Red, green and blue of each cabinet of \a wall, as small marks without names. */
QVector<ceiechart::DiagramMark> cabinetMarks(const DisplayWall &wall);

/*!
 * \brief The rings round the colours of \a target: of the limits of \a tolerances round white and primaries; without a
 * limit for the white, the usual ones round it.
 */
QVector<ceiechart::DiagramRings> targetRings(const Model::Targets &target, const std::optional<Tolerances> &tolerances);

} // namespace gamutviewer

#endif
