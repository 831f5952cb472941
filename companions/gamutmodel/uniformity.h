// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_UNIFORMITY_H
#define GAMUTMODEL_UNIFORMITY_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/gamutmodel_export.h>
#include <gamutmodel/wall.h>

#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief How much the cabinets of a wall differ from each other in a colour that all should show alike.
 *
 * \code
 * const Model::WallCorrection wall = Model::wallCorrection(cabinets, target);
 * const auto positions = Model::positionsOf(cabinets);
 * const Model::Uniformity before = Model::uniformity(Model::whitesBefore(wall), positions);
 * const Model::Uniformity after = Model::uniformity(Model::whitesAfter(wall), positions);
 * \endcode
 */
namespace Model {

/*! \brief Two cabinets and how much they differ. */
struct CabinetPair {
    std::size_t first = 0; //!< the cabinet that comes first in the list
    std::size_t second = 0; //!< the other
    double difference = 0.0; //!< Δu'v', or the part of the luminance of the brighter by which the other is darker
};

/*! \brief The pairs of cabinets that differ most; of equal ones, but for rounding, any. */
struct Uniformity {
    /*! \brief The largest Δu'v' between any two cabinets; nothing with fewer than two whose chromaticity is known. */
    std::optional<CabinetPair> chromaticity;
    /*!
     * \brief The brightest and the darkest cabinet: 1 - Lmin / Lmax. Nothing with fewer than two whose luminance is
     * known, or if none has light.
     */
    std::optional<CabinetPair> luminance;
    /*! \brief The largest Δu'v' between neighbours: cabinets that share a side. Nothing if no two known ones do. */
    std::optional<CabinetPair> neighborChromaticity;
    /*! \brief The largest difference in luminance between neighbours. Nothing if no two known ones share a side. */
    std::optional<CabinetPair> neighborLuminance;
    std::vector<std::size_t> unknownChromaticity; //!< the cabinets whose Δu'v' is not known: see uvDifference()
    std::vector<std::size_t> unknownLuminance; //!< the cabinets whose luminance is not known, negative or not finite
    /*!
     * \brief The cabinets whose position a cabinet before them in the list has already. They are not compared with
     * neighbours.
     */
    std::vector<std::size_t> samePosition;
};

/*!
 * \brief How much \a colors, one for each cabinet, differ from each other.
 *
 * \param positions one for each cabinet. Cabinets without one, as all that come after the end of the list, have no
 * neighbours.
 *
 * The largest Δu'v' is found between corners of the convex hull, so that the time is that of sorting, n log n.
 */
GAMUTMODEL_EXPORT Uniformity uniformity(
    const std::vector<std::optional<Target>> &colors, const std::vector<std::optional<GridPosition>> &positions = {});

/*! \brief The position of each of \a cabinets. */
GAMUTMODEL_EXPORT std::vector<std::optional<GridPosition>> positionsOf(const std::vector<Cabinet> &cabinets);

} // namespace Model

#endif // GAMUTMODEL_UNIFORMITY_H
