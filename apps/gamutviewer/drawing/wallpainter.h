// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLPAINTER_H
#define GAMUTVIEWER_WALLPAINTER_H

#include "display/wallassessment.h"
#include "drawing/wallgrid.h"
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
 * \brief How a wall is drawn, on the screen and in pictures: each cabinet, and the legend.
 */
namespace gamutviewer {

/*! \brief One cabinet as it is drawn. */
struct WallCell {
    QColor color; //!< invalid where what is shown is not known
    QString value; //!< of what is shown
    QString compactValue; //!< the same where there is little room
    QString name; //!< of the cabinet
    Judgement judgement = Judgement::Pass; //!< marked where it is not that
    bool isLeftOut = false; //!< struck out
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

/*! \brief \a value of \a quantity without per cent sign and without a 0 before the decimal point, or a colour's letter.
 */
QString compactValue(const QString &value, WallQuantity quantity);

/*! \brief The texts of cells that need the most room. */
struct LongestTexts {
    QString value; //!< of WallCell::value
    QString compactValue; //!< of WallCell::compactValue
    int nameLength = 1; //!< of WallCell::name, in letters; longestName()
};

/*! \brief The fonts after \a font with which \a longest fit into \a cell. */
WallCellFonts wallCellFonts(const QFont &font, const QSizeF &cell, const LongestTexts &longest);

/*! \brief How a map is laid out in its room. */
struct WallLayout {
    QSizeF cell; //!< the size of each cell
    WallCellFonts fonts; //!< of the cells
    QFont edgeFont; //!< of the names of rows and columns
    double left = 0.0; //!< the width of the names of the rows; 0 without
    double top = 0.0; //!< the height of the names of the columns; 0 without
};

/*!
 * \brief The layout of \a grid in \a room, in cells as large as there is room for, but no wider than \a widest.
 *
 * They are not higher than 1.25 times their width, but for narrow ones, which have to have room for a value and a name.
 * Where there is no room for names, rows and columns have theirs at the edges.
 */
WallLayout wallLayout(
    const QFont &font, const QSizeF &room, const WallGrid &grid, const LongestTexts &longest, double widest);

/*! \brief The longest values that \a scale has of \a cabinets. */
LongestTexts longestValues(const std::vector<CabinetAssessment> &cabinets, const WallScale &scale);
/*! \brief The length of the longest name on the map of \a wall, in letters, but 8 at most: longer ones are cut. */
int longestName(const DisplayWall &wall);

/*!
 * \brief Paints \a cell into \a place, with a gap round it where there is room.
 *
 * A cabinet that does not show the target has a corner cut, one of which that is not known a circle there. Both can be
 * told apart in cells of 2 pixels; those that are smaller have no room for any mark.
 */
void paintWallCell(
    QPainter *painter, const QRectF &place, const WallCell &cell, const WallCellFonts &fonts, const QPalette &palette);

/*! \brief Paints a frame in the accent colour round the cell in \a place, within \a map: large enough to be seen. */
void paintWallSelection(QPainter *painter, const QRectF &place, const QRectF &map, const QPalette &palette);
/*!
 * \brief Paints \a names of columns (\a orientation is horizontal) or rows into \a place, at the edge of a map.
 *
 * Each lies between two of \a borders, in the coordinates of \a place. Where there is no room for all, some are left
 * out.
 */
void paintWallEdge(QPainter *painter, const QRectF &place, Qt::Orientation orientation,
    const std::vector<QString> &names, const std::vector<double> &borders, const QFont &font, const QPalette &palette);

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
