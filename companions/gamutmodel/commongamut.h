// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_COMMONGAMUT_H
#define GAMUTMODEL_COMMONGAMUT_H

#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>
#include <gamutmodel/wall.h>

#include <cstddef>
#include <iterator>
#include <vector>

/*!
 * \file
 * \brief The chromaticities that all cabinets of a wall can show.
 *
 * \code
 * const Model::CommonGamut common = Model::commonGamut(cabinets);
 * if (common.shape == Model::CommonShape::Empty) {
 *     // common.excluding names the cabinets that have nothing in common
 * }
 * \endcode
 */
namespace Model {

/*! \brief The primaries of a cabinet in CIE 1931 x, y. Nothing else of it matters for the common gamut. */
struct GamutTriangle {
    DiagramPoint red; //!< red primary
    DiagramPoint green; //!< green primary
    DiagramPoint blue; //!< blue primary
};

/*! \brief The triangle of a record of any type whose members red, green and blue have members x and y. */
template <typename Record>
GamutTriangle gamutTriangle(const Record &record)
{
    return {{record.red.x, record.red.y}, {record.green.x, record.green.y}, {record.blue.x, record.blue.y}};
}

/*! \brief The triangle of what was measured of \a cabinet. */
inline GamutTriangle gamutTriangle(const Cabinet &cabinet)
{
    return gamutTriangle(cabinet.colors);
}

/*! \brief What the cabinets have in common. */
enum class CommonShape {
    NotKnown, //!< there is no cabinet, or there are invalid ones: see CommonGamut::invalid
    Empty, //!< nothing: see CommonGamut::excluding
    Point, //!< one chromaticity: the gamuts touch
    Line, //!< the chromaticities on a line: the gamuts touch along it, or the gamut of a cabinet is a line itself
    Area //!< an area
};

/*! \brief A side of the common gamut: a part of a side of a cabinet's gamut. */
struct CommonSide {
    std::size_t cabinet = 0; //!< the cabinet; the first of the list if several have the same gamut
    DiagramPoint from; //!< a primary of the cabinet in x, y; the common gamut lies to the left of the line to the other
    DiagramPoint to; //!< the other primary
};

/*! \brief The chromaticities that all cabinets can show. */
struct CommonGamut {
    CommonShape shape = CommonShape::NotKnown; //!< what they have in common
    /*!
     * \brief The corners in CIE 1931 x, y.
     *
     * With CommonShape::Area a convex polygon of three corners or more, counter-clockwise, that begins with the lowest
     * of those with the least x; with CommonShape::Line the two ends and with CommonShape::Point the one point.
     */
    std::vector<DiagramPoint> corners;
    /*! \brief With CommonShape::Area: for each corner the side that leads from it to the next. */
    std::vector<CommonSide> sides;
    /*!
     * \brief With CommonShape::Empty the cabinets that have nothing in common: two, or three if any two have.
     *
     * Three are enough for convex areas (Helly's theorem). Of several pairs it is the one that lies farthest apart,
     * measured at a right angle to a side, but for rounding. In ascending order.
     */
    std::vector<std::size_t> excluding;
    /*!
     * \brief With CommonShape::NotKnown the cabinets with a coordinate that is not finite or farther than 100 from 0.
     *
     * Leave them out to learn what the others have in common.
     */
    std::vector<std::size_t> invalid;
};

/*!
 * \brief Below this distance in x, y gamuts touch, points are equal, and areas are lines.
 *
 * Far below what is measured, and far above the rounding of coordinates such as 0.64, which no double has exactly.
 */
constexpr double commonGamutRounding = 1e-12;

/*!
 * \brief What cabinets with the gamuts \a triangles have in common. The order of their primaries does not matter.
 *
 * The corners are the same to the last bit for every order of the cabinets. They are within commonGamutRounding of what
 * every cabinet can show.
 *
 * A gamut whose primaries lie on a line is that line, or a point.
 *
 * The time grows in proportion to the number of cabinets and to that of the corners of the common gamut. If nothing is
 * common, each cabinet that cannot show the mean colour of the wall is compared with all others.
 */
GAMUTMODEL_EXPORT CommonGamut commonGamut(const std::vector<GamutTriangle> &triangles);

/*!
 * \brief What \a cabinets have in common: the elements of any container, for each of which there is a gamutTriangle().
 *
 * Suits Cabinet, Targets, ColorGamutInfo and other libraries' records of the same shape. For others, define a
 * gamutTriangle() in the namespace of the record.
 */
template <typename Cabinets>
CommonGamut commonGamut(const Cabinets &cabinets)
{
    std::vector<GamutTriangle> triangles;
    triangles.reserve(std::size_t(std::size(cabinets)));
    for (const auto &cabinet : cabinets) {
        triangles.push_back(gamutTriangle(cabinet));
    }
    return commonGamut(triangles);
}

/*! \brief The area of \a common in square units of the coordinates of \a diagram; 0 unless it is an area. */
GAMUTMODEL_EXPORT double commonGamutArea(const CommonGamut &common, Diagram diagram);

/*! \brief Whether \a xy lies in \a common or within commonGamutRounding of it; false unless it is an area. */
GAMUTMODEL_EXPORT bool isInCommonGamut(const CommonGamut &common, DiagramPoint xy);

} // namespace Model

#endif // GAMUTMODEL_COMMONGAMUT_H
