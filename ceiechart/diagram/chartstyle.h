// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_CHARTSTYLE_H
#define CEIECHART_DIAGRAM_CHARTSTYLE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/diagramgeometry.h>

#include <gamutmodel/diagram.h>

#include <QColor>
#include <QFont>
#include <QString>

/*!
 * \file
 * \brief The appearance of the pictures of both chart generations: ranges, margins, axes, fonts and colours.
 *
 * Everything that draws such a picture, or positions something on it, takes these values from here.
 */
namespace ceiechart {

/*! \brief The pictures that the renderers of both generations draw. */
enum class ChartKind {
    CurrentXy, //!< NewCEIE::DrawCEIPicture
    LegacyXy, //!< the legacy DrawCEIPicture of type XyDiagram
    LegacyUv //!< the legacy DrawCEIPicture of type UvDiagram
};

/*! \brief The appearance of a kind of picture, apart from the gamuts on it. */
struct ChartStyle {
    Model::Diagram diagram; //!< the chromaticity diagram that the picture shows
    ChromaRange range; //!< the chromaticities that the plot shows, in the coordinates of the diagram
    int marginPercent; //!< margin on each side of the plot, in percent of the picture's width or height
    QColor ground; //!< background colour of the picture
    QColor horseshoeGround; //!< background colour of the horseshoe
    Qt::PenStyle gridStyle; //!< pen style of the grid lines
    const char *xTitle; //!< title of the first axis in UTF-8; empty for none
    const char *yTitle; //!< title of the second axis in UTF-8; empty for none
};

/*! \brief The style of \a kind; that of ChartKind::CurrentXy if \a kind is not a ChartKind. */
CEIECHART_EXPORT const ChartStyle &chartStyle(ChartKind kind);

/*! \brief The distance between ticks, and between grid lines, in the coordinates of the diagram. */
constexpr double chartTickStep = 0.1;

/*! \brief The default colour of the locus edge and the axes. */
CEIECHART_EXPORT QColor chartLineColor();

/*! \brief The font of the axis numbers of a picture that is \a pictureHeight pixels high. */
CEIECHART_EXPORT QFont chartNumberFont(ChartKind kind, int pictureHeight);

/*!
 * \brief The mapping between chromaticities and pixels of a picture of \a kind with \a width × \a height pixels.
 *
 * A picture that is 0 or 1 pixel wide or high has no extent to map: every chromaticity then maps to the corner of the
 * plot.
 */
CEIECHART_EXPORT DiagramGeometry chartGeometry(ChartKind kind, int width, int height);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_CHARTSTYLE_H
