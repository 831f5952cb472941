// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLASSESSMENT_H
#define GAMUTVIEWER_WALLASSESSMENT_H

#include "display/assessment.h"
#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/uniformity.h>

#include <QString>
#include <QVector>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief What can be said of a wall's cabinets and a target, and how sure it is. Page, report and command line show it.
 *
 * Cabinets are named by their index in DisplayWall::cabinets.
 */
namespace gamutviewer {

/*! \brief A cabinet that is compared with another. */
struct NeighborDifference {
    std::size_t cabinet = 0; //!< the other one
    double uv = 0.0; //!< Δu′v′ between the whites
};

/*! \brief How far the white that was measured of a cabinet is off the sum of its primaries. */
struct OffSum {
    double luminance = 0.0; //!< as a part of the sum's luminance: -0.01 is 1 % darker
    double uv = 0.0; //!< Δu′v′
};

/*! \brief What can be said of one cabinet. What is not known has no value. */
struct CabinetAssessment {
    Judgement judgement = Judgement::NotKnown; //!< whether it shows the target, of \a gamut and \a luminance
    Judgement gamut = Judgement::NotKnown; //!< whether all chromaticities of the target lie inside of its gamut
    Judgement luminance = Judgement::NotKnown; //!< whether it reaches the luminances of the target
    bool isLeftOut = false; //!< WallCabinet::isLeftOut: its judgement does not count for that of the wall
    /*!
     * \brief The colour that limits it: of those of the target that lie outside, or else of those that its black keeps
     * it off, the one that does so by the most; or else the primary of the cabinet that is at full drive for the
     * target's white.
     */
    std::optional<ceiechart::GamutVertex> limit;
    /*! \brief How far each colour of the target lies outside of its gamut, in Δu′v′; 0 if it does not. */
    std::array<double, 4> outside{};
    /*!
     * \brief How far its black keeps it off each colour of the target that lies inside of its gamut, in Δu′v′, with its
     * correction; 0 if by no more than visibleUv. It then fails. Only where the luminances can be compared.
     *
     * Infinite where it is not known how far.
     */
    std::array<double, 4> offByBlack{};
    /*!
     * \brief The same with a black that it may have, where its own is not known: one of its
     * WallCabinet::blackLuminance, or without that, one as bright as WallAssessment::brightestBlack, with the
     * chromaticities of the blacks that were measured. Where it is not 0, it is not known whether the cabinet shows the
     * target.
     */
    std::array<double, 4> offByPossibleBlack{};
    /*!
     * \brief What \a largestWhite would be over such a black, where that is less by more than 0.2 %; it is not known
     * then.
     */
    std::optional<double> leastWhite;
    /*!
     * \brief The largest luminance of the target's white, in the unit of the wall. Nothing where it is not known.
     *
     * Where its white was measured at the white of the target, that is the measured luminance. Where it was not
     * measured, it is as far below the sum of the primaries as that of WallAssessment::darkestWhite.
     */
    std::optional<double> largestWhite;
    /*!
     * \brief The luminance of a target's white up to which it is not known to be too dark for the white and for the
     * primaries that mix to it, in the unit of the wall. Nothing without such a limit.
     */
    std::optional<double> notTooBright;
    std::optional<ceiechart::GamutVertex> tooBright; //!< a primary whose luminance in the target it does not reach
    /*! \brief largestWhite divided by the luminance of the target's white; only where the two can be compared. */
    std::optional<double> headroom;
    /*!
     * \brief False when it does not add up: its measured white is not the sum of its primaries. It is not known to add
     * up, and false as well, without a measured white on a wall that has WallAssessment::notAdditive.
     */
    bool isAdditive = true;
    std::optional<OffSum> offSum; //!< of one that is additive within the tolerance, and whose white was measured
    /*! \brief Without a correction: as measured, or else the sum of the primaries where it is additive. */
    std::optional<Model::Target> white;
    std::optional<double> uvBefore; //!< Δu′v′ between that white and the target's
    std::optional<double> uvAfter; //!< Δu′v′ between its white with the correction and the target's
    std::optional<NeighborDifference> neighborBefore; //!< the neighbour whose white differs most, without corrections
    std::optional<NeighborDifference> neighborAfter; //!< the same with the corrections
};

/*! \brief A sentence on a wall. */
struct WallLine {
    std::optional<Judgement> judgement; //!< nothing for a remark, which judges nothing
    QString text; //!< sentences, in the language of the interface
    std::optional<std::size_t> cabinet{}; //!< the cabinet that it is about
    bool isWarning = false; //!< whether it is a remark that must not be missed
};

/*! \brief All that can be said of a wall. */
struct WallAssessment {
    Judgement judgement = Judgement::NotKnown; //!< whether all cabinets that count show the target
    QString headline; //!< that in one sentence without a full stop
    QVector<WallLine> lines; //!< the grounds, worst first, then remarks
    std::vector<CabinetAssessment> cabinets; //!< of each, in the order of the wall
    /*!
     * \brief All cabinets: those that fail first, then those that are not known, the others, and those that are left
     * out.
     *
     * Of those that fail, the ones whose luminance fails come first, by the part of the target's luminance that they
     * reach, and then the others, by the largest of their CabinetAssessment::outside and CabinetAssessment::offByBlack.
     * In each of the other groups, the one with the least white is first.
     */
    std::vector<std::size_t> worstFirst;
    bool luminancesCompare = false; //!< whether those of wall and target are both in cd/m²
    /*! \brief The cabinet whose black has the most luminance, also if it is left out; nothing where none was measured.
     */
    std::optional<std::size_t> brightestBlack;
    /*! \brief The first cabinet whose measured white is not the sum of its primaries, also if it is left out. */
    std::optional<std::size_t> notAdditive;
    /*!
     * \brief Of those that are additive, the cabinet whose measured white is the darkest beside the sum of its
     * primaries; nothing where none is darker.
     */
    std::optional<std::size_t> darkestWhite;
    bool isReachKnownOfAll = false; //!< whether CabinetAssessment::largestWhite is known of all cabinets that count
    /*! \brief What the cabinets have in common that count and whose gamut is known. */
    Model::CommonGamut common;
    /*! \brief The cabinets that count and are not in \a common; those in DisplayWall::incomplete are not, either. */
    std::vector<std::size_t> notInCommon;
    /*!
     * \brief The target fitted into \a common, with its luminance as it was. Where the target fails or its luminance
     * is lowered, the blacks are counted in, at the luminance that it gets by fittedToWall() or, where luminances do
     * not compare, that of the corrections.
     */
    Model::GamutFit fit;
    /*!
     * \brief The largest white of all cabinets that count and for which it is known, and who limits it. The primary
     * means nothing for a cabinet that is not additive.
     */
    std::optional<Model::WallWhite> largestWhite;
    std::optional<double> notTooBright; //!< the least CabinetAssessment::notTooBright of all cabinets that count
    /*!
     * \brief The corrections of all cabinets, also of those that are left out.
     *
     * They are for the luminance of the target's white, or, where that cannot be compared, for the largest that all
     * cabinets reach which count, as far as known. That of a cabinet that is not additive is for the sum of its
     * primaries, and what it shows is not known. What the others show, and what remains, is what their primaries add
     * to: it is known no better than CabinetAssessment::offSum. Model::Correction::largestWhite is that of
     * CabinetAssessment.
     */
    Model::WallCorrection correction;
    Model::Uniformity before; //!< of the whites without corrections, of the cabinets that count
    Model::Uniformity after; //!< of the whites with them
};

/*!
 * \brief The largest Δu′v′ between what a cabinet shows and the target that does not count.
 *
 * Of colours side by side, half of all people see a difference of 0.0011: one step of CIE TN 001:2014. Hardly anybody
 * sees half a step.
 */
constexpr double visibleUv = 0.0005;

/*!
 * \brief Judges what the cabinets of \a wall, of which there is at least one, show of \a target.
 *
 * Of luminances nothing is said unless both are in cd/m². A white that was measured has to be the sum of the primaries
 * for anything to be said of what a cabinet reaches; but at the white that was measured, it reaches what was measured.
 * Then it is still not known what a cabinet shows with a correction whose white is not that sum.
 *
 * Of the cabinets in DisplayWall::incomplete nothing is known, so that not all are known to show the target.
 */
WallAssessment assessWall(const DisplayWall &wall, const DisplayGamut &target);

/*! \brief Whether WallAssessment::common and the fit are of all cabinets that count. */
bool isCommonOfAll(const DisplayWall &wall, const WallAssessment &assessment);

/*!
 * \brief The \a target fitted to the wall that \a assessment is of, with a white that all cabinets reach; nothing where
 * that cannot be done, see fitProblem(), or where it is the target itself.
 */
std::optional<Model::Targets> fittedToWall(const DisplayGamut &target, const WallAssessment &assessment);

} // namespace gamutviewer

#endif
