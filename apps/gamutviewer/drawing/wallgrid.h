// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLGRID_H
#define GAMUTVIEWER_WALLGRID_H

#include "display/gamutfiles.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief Where the cabinets of a wall stand on its map, and how they, its rows and its columns are called there.
 */
namespace gamutviewer {

/*! \brief Where cabinets stand in a grid. */
struct WallGrid {
    int rows = 0; //!< downwards
    int columns = 0; //!< to the right
    /*!
     * \brief The cabinet of each place, row by row; nothing for a gap.
     *
     * After the numbers of DisplayWall::cabinets come those of DisplayWall::incomplete.
     */
    std::vector<std::optional<std::size_t>> cells;
    std::vector<QString> rowNames; //!< for the edge of a map, where the rows are the wall's
    std::vector<QString> columnNames; //!< the same of the columns

    /*! \brief The cabinet in \a row and \a column, which are counted from 0; nothing for a gap or outside. */
    std::optional<std::size_t> at(int row, int column) const;
};

/*!
 * \brief The cabinets of \a wall that have a place, as they hang.
 *
 * Rows and columns that are empty are left out where a wall would be little but gaps. Of several cabinets in the same
 * place, the first.
 *
 * Rows and columns have a name: where all cabinets are called as "B7" is, by a part for the row and a part for the
 * column, these parts, or else their numbers.
 */
WallGrid placedCabinets(const DisplayWall &wall);
/*! \brief The cabinets of \a wall that are not in placedCabinets(), in their order, in a block that is wider than high.
 */
WallGrid unplacedCabinets(const DisplayWall &wall);

/*! \brief What a map calls \a cabinet: its name, or its row and column where it has none. */
QString shortName(const WallCabinet &cabinet);
/*! \brief The same of a cabinet that was measured incompletely. */
QString shortName(const IncompleteCabinet &cabinet);

} // namespace gamutviewer

#endif
