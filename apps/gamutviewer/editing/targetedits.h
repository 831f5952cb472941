// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETEDITS_H
#define GAMUTVIEWER_TARGETEDITS_H

#include "display/displaydescription.h"

#include <array>
#include <optional>

namespace gamutviewer {

/*! \brief What of a gamut is edited. */
enum class Vertex { Red, Green, Blue, White };

constexpr std::array<Vertex, 4> allVertices{Vertex::Red, Vertex::Green, Vertex::Blue, Vertex::White};

Model::Target &targetAt(Model::Targets &targets, Vertex vertex);
const Model::Target &targetAt(const Model::Targets &targets, Vertex vertex);
QPointF xyOf(const Model::Target &target);
bool sameTargets(const Model::Targets &a, const Model::Targets &b);

/*! \brief \a xy to four decimals, which is what the interface shows and what a drag leaves behind. */
QPointF roundedXy(const QPointF &xy);

/*!
 * \name Edits of a gamut
 *
 * Primaries and white stay in balance: what is not edited is recalculated, so that the primaries mix to the white. When
 * the white is held, its chromaticity stays and its luminance is what the primaries of \a original deliver, lowered
 * until none of them is exceeded. Each edit gives nothing when there is no such gamut: for what is no chromaticity,
 * primaries that span no triangle, a negative luminance, a white outside of the triangle.
 * @{
 */
std::optional<Model::Targets> withPrimary(
    const Model::Targets &targets, Vertex primary, const QPointF &xy, bool holdWhite, const Model::Targets &original);
/*! The luminance of the white stays. */
std::optional<Model::Targets> withWhite(const Model::Targets &targets, const QPointF &xy);
/*! For the white, or when it is held, all luminances change in proportion. */
std::optional<Model::Targets> withLuminance(
    const Model::Targets &targets, Vertex vertex, double luminance, bool holdWhite);
/*! @} */

/*! \brief The nearest of \a candidates within \a reach of \a position, in the units of both. */
std::optional<QPointF> nearest(const QPointF &position, const QVector<QPointF> &candidates, double reach);

/*! \brief The chromaticities that \a vertex snaps to: those of the original, of the description's standards
 * and of the published gamuts. */
QVector<QPointF> snapPoints(const DisplayDescription &description, Vertex vertex);

/*!
 * \brief \a description with the target changed by hand to \a targets.
 *
 * A gamut that has a name of its own is left as it is: the target becomes a gamut of the description that is called
 * after it, "Rec.709 (edited)", and later edits change that one. Where that name is taken, or where the edited gamut
 * plays another part too, it is "Rec.709 (edited 2)".
 */
DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets);

/*!
 * \brief \a description with \a gamutName for its target.
 *
 * An edited gamut that nothing refers to any more goes, unless \a saved, what the file has, has it. A published gamut,
 * relative to a white of 1, is taken at the luminance of the former target's white: the description gets a gamut of
 * its name, unless it has one, or has the published one for another part.
 */
DisplayDescription withTargetNamed(
    DisplayDescription description, const QString &gamutName, const DisplayDescription &saved = DisplayDescription());

/*! \brief Whether \a gamutName is that of a gamut changed by hand. */
bool isEditedName(const QString &gamutName);

/*! \brief \a gamutName without the mark of a gamut changed by hand. */
QString plainName(const QString &gamutName);

/*! \brief The number in the mark of a gamut changed by hand; 1 without one. */
int editNumber(const QString &gamutName);

} // namespace gamutviewer

#endif
