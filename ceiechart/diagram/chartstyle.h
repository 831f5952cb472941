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
 * \brief What the pictures of the two chart generations show: ranges, margins, axes, fonts and colours.
 *
 * Everything that draws or places something on such a picture reads it here.
 */
namespace ceiechart {

/*! \brief The pictures that the renderers of the two generations draw. */
enum class ChartKind {
    CurrentXy, //!< NewCEIE::DrawCEIPicture
    LegacyXy, //!< DrawCEIPicture of the type XyDiagram
    LegacyUv //!< DrawCEIPicture of the type UvDiagram
};

/*! \brief What one kind of picture looks like, apart from the gamuts on it. */
struct ChartStyle {
    Model::Diagram diagram; //!< the coordinates in which it is drawn
    ChromaRange range; //!< the chromaticities from edge to edge of the plot, in those coordinates
    int marginPercent; //!< of the picture's width and height, on each side of the plot
    QColor ground; //!< fills the picture
    QColor horseshoeGround; //!< lies behind the coloured horseshoe
    Qt::PenStyle gridStyle; //!< of the grid lines
    const char *xTitle; //!< at the end of the first axis; empty for none
    const char *yTitle; //!< at the end of the second axis; empty for none
};

/*! \brief The style of \a kind; that of ChartKind::CurrentXy for a value that is no kind. */
CEIECHART_EXPORT const ChartStyle &chartStyle(ChartKind kind);

/*! \brief The distance between ticks and between grid lines, in units of the diagram's coordinates. */
constexpr double chartTickStep = 0.1;

/*! \brief The colour of locus edge, axes and wavelengths until a host sets another. */
CEIECHART_EXPORT QColor chartLineColor();

/*! \brief The font of the numbers at the axes of a picture \a pictureHeight pixels high. */
CEIECHART_EXPORT QFont chartNumberFont(ChartKind kind, int pictureHeight);

/*!
 * \brief The mapping between the chromaticities and the pixels of a \a width x \a height picture of \a kind.
 *
 * A width or height of 0 or 1 has no span to map: then every chromaticity maps to the plot's corner.
 */
CEIECHART_EXPORT DiagramGeometry chartGeometry(ChartKind kind, int width, int height);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_CHARTSTYLE_H
