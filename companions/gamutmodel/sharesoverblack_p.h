// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_SHARESOVERBLACK_P_H
#define GAMUTMODEL_SHARESOVERBLACK_P_H

#include <gamutmodel/wall.h>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/*! \file \brief How far from the white the blacks of cabinets let the primaries of a target lie. */
namespace Model {

/*! \brief The distances of red, green and blue from the white as parts of those that were asked for. */
struct SharesOverBlack {
    std::array<double, 3> shares{1.0, 1.0, 1.0}; //!< 1 where the blacks take nothing
    std::array<std::optional<std::size_t>, 3> limits; //!< the cabinet whose black takes the most; nothing with a 1
    std::optional<std::size_t> tooBright; //!< a cabinet whose black leaves no such primaries
};

/*!
 * \brief The largest shares with which no cabinet that has a black needs a drive below 0 in its correction for
 * \a target.
 *
 * The primaries of \a target lie in the gamuts of all cabinets, and mix to its white. The three shares depend on each
 * other: none of them can be larger as long as the two others are what they are.
 */
SharesOverBlack sharesOverBlack(const std::vector<Cabinet> &cabinets, const Targets &target);

} // namespace Model

#endif // GAMUTMODEL_SHARESOVERBLACK_P_H
