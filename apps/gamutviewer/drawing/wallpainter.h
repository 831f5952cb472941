// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLPAINTER_H
#define GAMUTVIEWER_WALLPAINTER_H

#include "display/wallassessment.h"
#include "drawing/wallscale.h"

#include <QFont>
#include <QPalette>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class QPainter;

/*!
 * \file
 * \brief How a wall is drawn, on the screen and in pictures: where its cabinets stand, each cabinet, and the legend.
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

    /*! \brief The cabinet in \a row and \a column, which are counted from 0; nothing for a gap or outside. */
    std::optional<std::size_t> at(int row, int column) const;
};

/*!
 * \brief The cabinets of \a wall that have a place, as they hang.
 *
 * Rows and columns that are empty are left out where a wall would be little but gaps. Of several cabinets in the same
 * place, the first.
 */
WallGrid placedCabinets(const DisplayWall &wall);
/*! \brief The cabinets of \a wall that are not in placedCabinets(), in their order, in a block that is wider than high.
 */
WallGrid unplacedCabinets(const DisplayWall &wall);

/*! \brief One cabinet as it is drawn. */
struct WallCell {
    QColor color; //!< invalid where what is shown is not known
    QString value; //!< of what is shown
    QString name; //!< of the cabinet
    Judgement judgement = Judgement::Pass; //!< marked where it is not that
    bool isLeftOut = false; //!< struck out
    bool isSelected = false; //!< with a frame in the accent colour
};

/*! \brief How \a cabinet, by its number in a WallGrid, is drawn. */
WallCell wallCell(
    const DisplayWall &wall, const CabinetAssessment *assessment, const WallScale &scale, std::size_t cabinet);

/*! \brief The texts of all cells of a map, as large as they fit. */
struct WallCellFonts {
    QFont value; //!< of the values
    QFont name; //!< of the names
    bool hasValues = false; //!< whether there is room for values at all
    bool isCompact = false; //!< whether that is only for values as compactValue() has them
    bool hasNames = false; //!< whether there is room for names
};

/*! \brief \a value without per cent sign and without a 0 before the decimal point. */
QString compactValue(const QString &value);

/*! \brief The fonts after \a font with which \a value and a name of \a nameLength letters fit into \a cell.
 */
WallCellFonts wallCellFonts(const QFont &font, const QSizeF &cell, const QString &value, int nameLength);

/*! \brief The longest value that \a scale has of \a cabinets. */
QString longestValue(const std::vector<CabinetAssessment> &cabinets, const WallScale &scale);
/*! \brief The length of the longest name on the map of \a wall, in letters, but 8 at most: longer ones are cut. */
int longestName(const DisplayWall &wall);

/*!
 * \brief Paints \a cell into \a place, with a gap round it where there is room.
 *
 * A cabinet that does not show the target has a corner cut, one of which that is not known a question mark there.
 */
void paintWallCell(
    QPainter *painter, const QRectF &place, const WallCell &cell, const WallCellFonts &fonts, const QPalette &palette);

/*! \brief The height of the legend of \a scale in \a font where it is \a width wide. */
double wallLegendHeight(const WallScale &scale, const QFont &font, double width);
/*! \brief Paints the legend of \a scale into \a place: colours with numbers and unit, marks, and what is shown. */
void paintWallLegend(
    QPainter *painter, const QRectF &place, const WallScale &scale, const QFont &font, const QPalette &palette);
/*! \brief What the legend of \a scale says, for those who do not see it. */
QString wallLegendText(const WallScale &scale);

/*! \brief A wall as a picture shows it. */
struct WallPicture {
    DisplayWall wall; //!< the cabinets
    std::shared_ptr<const WallAssessment> assessment; //!< of the wall; null without a target
    WallQuantity quantity = WallQuantity::Headroom; //!< what the cabinets are coloured by
};

/*! \brief Paints map, legend and verdict of \a picture into \a place, on light ground. */
void paintWallPicture(QPainter *painter, const QRectF &place, const WallPicture &picture);

} // namespace gamutviewer

#endif
