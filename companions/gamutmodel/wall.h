// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_WALL_H
#define GAMUTMODEL_WALL_H

#include <gamutmodel/colorgamut.h>

#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief The cabinets of a wall, with the values that the computations for walls use.
 *
 * commongamut.h, gamutfit.h, correction.h and uniformity.h name cabinets by their index in the list that they are
 * given.
 */
namespace Model {

/*! \brief The place of a cabinet in the wall: rows downwards, columns to the right; from which number does not matter.
 */
struct GridPosition {
    int row = 0; //!< row
    int column = 0; //!< column
};

/*! \brief What was measured of a cabinet. */
struct Cabinet {
    /*!
     * \brief The primaries at full drive, each with the others at 0. Of each, Y, x and y are read.
     *
     * All cabinets of a wall have to state luminances in the same unit.
     */
    Targets colors;
    std::optional<Target> black; //!< the light at drive 0; nothing where it was not measured
    std::optional<GridPosition> position; //!< the place in the wall; nothing where it is not known
};

/*!
 * \brief The colours of a record of any type whose members red, green, blue and white have members Y, x and y, such as
 * another library's record of a gamut. X, Z, u' and v' are computed.
 */
template <typename Record>
Targets targetsOf(const Record &record)
{
    const auto color = [](const auto &of) { return Target::fromYxy(of.Y, of.x, of.y); };
    return {color(record.red), color(record.green), color(record.blue), color(record.white)};
}

} // namespace Model

#endif // GAMUTMODEL_WALL_H
