// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ASSESSMENTPARTS_H
#define GAMUTVIEWER_ASSESSMENTPARTS_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/drive.h>

#include <QString>

#include <optional>

/*!
 * \file
 * \brief What the judgements of a display and of a wall have in common: their rules, and how their sentences show
 * values.
 */
namespace gamutviewer {

/*! \brief The colour of a gamut that \a primary is. */
ceiechart::GamutVertex vertexOf(Model::Primary primary);
/*! \brief \a text with a capital first letter. */
QString capitalised(QString text);
/*! \brief The chromaticity of \a target. */
Model::DiagramPoint pointOf(const Model::Target &target);
/*! \brief x and y of \a point: "0.2650, 0.6900". */
QString pointText(const Model::DiagramPoint &point);
/*! \brief Of \a luminance no more than it is, but for rounding, so that what is shown can be reached. */
QString reachableText(double luminance, LuminanceUnit unit);
/*! \brief A \a distance that is not 0 in Δu′v′, so that it does not look like 0 either. */
QString distanceText(double distance);

/*! \brief The highest of the three values of \a drive. */
double highest(const Model::Drive &drive);

/*! \brief Whether luminances in the units \a a and \a b can be compared: both are in cd/m². */
bool luminancesCompare(LuminanceUnit a, LuminanceUnit b);
/*! \brief Why luminances of the target and of what is called \a otherName cannot be compared, and what to do. */
QString incomparableText(LuminanceUnit target, LuminanceUnit other, const QString &otherName);

/*!
 * \brief How far \a color lies outside of the triangle of \a display, in Δu′v′: 0 inside, but for rounding. Nothing
 * without a chromaticity, or if the triangle has no area.
 *
 * It takes no luminances.
 */
std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color);

/*! \brief A display whose white is held against the mixture of its primaries. */
struct Additivity {
    Model::Target sum; //!< of the primaries
    bool isAdditive = false; //!< whether the white is that sum
    bool isUpperBound = false; //!< whether the display shows no more than the sum: no primary is brighter in the white
    bool differsInLuminance = false; //!< whether the luminance is what is not additive
};

/*! \brief Of \a drive, which has no fault, with the \a white of the same display. */
Additivity additivityOf(const Model::DisplayDrive &drive, const Model::Target &white);

} // namespace gamutviewer

#endif
