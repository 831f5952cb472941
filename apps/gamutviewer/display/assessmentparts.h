// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ASSESSMENTPARTS_H
#define GAMUTVIEWER_ASSESSMENTPARTS_H

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/colorgamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/drive.h>

#include <array>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief What the judgements of a display and of a wall compute alike.
 */
namespace gamutviewer {

/*! \brief The highest of the three values of \a drive. */
double highest(const Model::Drive &drive);
/*! \brief Whether a luminance \a wanted is more than a display shows that has \a reached, but for fullDrive. */
bool isTooBright(double wanted, double reached);
/*! \brief Whether it is more than that at all, also by as little as isTooBright() lets pass. */
bool isAbove(double wanted, double reached);
/*! \brief The levels of \a vertex of a target. */
Model::Drive contentOf(ceiechart::GamutVertex vertex);

/*!
 * \brief How far \a color lies outside of the triangle of \a display, in Δu′v′: 0 inside, but for rounding. Nothing
 * without a chromaticity, or if the triangle has no area.
 *
 * It takes no luminances.
 */
std::optional<double> distanceFrom(const Model::Targets &display, const Model::Target &color);

/*!
 * \brief What \a display shows of \a content, linear levels, with \a correction. Drives below 0 are 0, but those above
 * 1 are kept, as if its luminance had no limit. Nothing where it is not known.
 */
std::optional<Model::Target> shownWithoutLimit(
    const Model::DisplayDrive &display, const Model::CorrectionMatrix &correction, const Model::Drive &content);
/*! \brief The same of \a vertex of the target that \a correction is for. */
std::optional<Model::Target> shownWithoutLimit(
    const Model::DisplayDrive &display, const Model::CorrectionMatrix &correction, ceiechart::GamutVertex vertex);

/*!
 * \brief How far the black of \a cabinet keeps it off each colour of \a target with its \a correction for that target,
 * in Δu′v′, in the order of ceiechart::GamutVertex; 0 if by no more than visibleUv, infinite where it is not known.
 *
 * Of colours inside of its gamut, those that have 0 in \a outside, a drive below 0 is there for the black only. Others
 * are not counted, nor are drives above 1. Without a \a correction, as of a cabinet whose black is as bright as a
 * primary, it is not known how far.
 */
std::array<double, 4> offByBlack(const Model::Cabinet &cabinet,
    const std::optional<Model::CorrectionMatrix> &correction, const Model::Targets &target,
    const std::array<double, 4> &outside);

/*!
 * \brief The chromaticities that a black of \a cabinet may have: those of its primaries and of what they mix to. A
 * black of an LED screen, which is light of its own LEDs or light that it reflects, is hardly more saturated.
 */
std::vector<Model::Target> possibleChromaticities(const Model::Cabinet &cabinet);
/*! \brief Those of \a lights that lie farthest out in x, y, at most 8: what the others do lies in between. */
std::vector<Model::Target> farthestOut(const std::vector<Model::Target> &lights);
/*! \brief Lights with the \a luminance and the \a chromaticities. */
std::vector<Model::Target> blacksOf(double luminance, const std::vector<Model::Target> &chromaticities);
/*! \brief The largest of offByBlack() for \a cabinet with any of \a blacks; 0 if \a target is not one to correct for.
 */
std::array<double, 4> offByBlacks(const Model::Cabinet &cabinet, const std::vector<Model::Target> &blacks,
    const Model::Targets &target, const std::array<double, 4> &outside);

} // namespace gamutviewer

#endif
