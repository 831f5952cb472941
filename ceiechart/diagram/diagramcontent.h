// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMCONTENT_H
#define CEIECHART_DIAGRAM_DIAGRAMCONTENT_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/gamutstyle.h>

#include <gamutmodel/colorgamut.h>

#include <QColor>
#include <QFlags>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QVector>

/*!
 * \file
 * \brief What a diagram shows: plain values, to be filled in by a host.
 *
 * All chromaticities are CIE 1931 x, y, whatever the diagram's own coordinates are. One that is not finite is not
 * shown.
 */
namespace ceiechart {

// Operators declared in the namespace of the library would hide those of Qt's own flags from it.
namespace diagramlayers {
Q_NAMESPACE_EXPORT(CEIECHART_EXPORT)

/*! \brief What a diagram shows on its ground, each with a switch of its own. */
enum class DiagramLayer {
    Colors = 0x000001, //!< the coloured horseshoe, as HorseshoeColors says
    Locus = 0x000002, //!< the spectral locus and the line of purples
    Wavelengths = 0x000004, //!< ticks and wavelengths in nm along the spectral locus
    PlanckianLocus = 0x000008, //!< the chromaticities of black bodies, 1000 K to 100 000 K
    Isotherms = 0x000010, //!< lines of equal correlated colour temperature, with their temperatures
    Axes = 0x000020, //!< numbers and names of the coordinates
    Grid = 0x000040, //!< the lines of the grid
    CommonArea = 0x000080, //!< what the target and the display have in common
    LostArea = 0x000100, //!< what the target gives up of the display, hatched
    Standards = 0x000200, //!< gamuts of GamutRole::Standard; more than 500 as plain thin lines
    Originals = 0x000400, //!< gamuts of GamutRole::Original
    MeasuredGamuts = 0x000800, //!< gamuts of GamutRole::Measured
    DeclaredGamuts = 0x001000, //!< gamuts of GamutRole::Declared
    Targets = 0x002000, //!< gamuts of GamutRole::Target
    Names = 0x004000, //!< names of gamuts at their lines, up to 100 standards, and of up to 500 marks in the plot
    Whites = 0x008000, //!< white points of all gamuts but standards
    MeasurePoints = 0x010000, //!< DiagramContent::measurePoints
    ColorTemperaturePoints = 0x020000, //!< DiagramContent::colorTemperaturePoints
    CmyPoints = 0x040000, //!< DiagramContent::cmyPoints
    Rings = 0x080000, //!< DiagramContent::rings
    Trail = 0x100000 //!< DiagramContent::trail
};
Q_DECLARE_FLAGS(ShownLayers, DiagramLayer)
Q_FLAG_NS(ShownLayers)
Q_DECLARE_OPERATORS_FOR_FLAGS(ShownLayers)

/*! \brief How the horseshoe is coloured. */
enum class HorseshoeColors {
    Full, //!< in full colours
    Dimmed, //!< dimmed; where DiagramLayer::CommonArea is shown, that area in full colours
    None //!< not at all, as for print
};
Q_ENUM_NS(HorseshoeColors)

/*! \brief The ground on which a diagram is drawn, which decides on all colours but those of roles. */
enum class DiagramGround {
    Light, //!< near white
    Dark //!< near black
};
Q_ENUM_NS(DiagramGround)

} // namespace diagramlayers

using diagramlayers::DiagramGround;
using diagramlayers::DiagramLayer;
using diagramlayers::HorseshoeColors;
using diagramlayers::ShownLayers;

/*! \brief Every layer. */
constexpr ShownLayers allDiagramLayers{0x1fffff};

/*! \brief The layer to which gamuts of \a role belong. */
CEIECHART_EXPORT DiagramLayer layerOf(GamutRole role);

/*! \brief A gamut and its part in the diagram. */
struct DiagramGamut {
    Model::ColorGamut gamut; //!< its name is UTF-8
    GamutRole role = GamutRole::Standard; //!< decides on its colour and on its line
    bool visible = true; //!< a switch of its own, besides that of the role's layer
};

/*!
 * \brief A point that is marked on the diagram.
 *
 * More than 2000 marks in the plot are drawn as one picture, to a quarter of a pixel, and in vector files with two
 * pixels for each logical pixel.
 */
struct DiagramMark {
    QPointF xy; //!< CIE 1931 x, y
    QString name{}; //!< stands beside the mark; empty for none
    QColor color{}; //!< fills the mark; when invalid, the colour of its kind
};

/*! \brief Circles of equal colour difference round a chromaticity. */
struct DiagramRings {
    QPointF xy; //!< the middle, CIE 1931 x, y
    QVector<double> radii{
        0.001, 0.003, 0.005}; //!< distances Δu′v′ in CIE 1976 u′, v′; those that are not above 0 are left out
};

/*!
 * \brief All that a diagram shows.
 *
 * A value: copy it, change the copy and hand it to DiagramPainter or DiagramView.
 *
 * \code
 * ceiechart::DiagramContent content;
 * content.gamuts.append({Model::rec709(), ceiechart::GamutRole::Standard});
 * content.gamuts.append({Model::dciP3D65(), ceiechart::GamutRole::Target});
 * content.layers.setFlag(ceiechart::DiagramLayer::Isotherms, false);
 * \endcode
 */
struct CEIECHART_EXPORT DiagramContent {
    ShownLayers layers = allDiagramLayers; //!< what is switched on
    HorseshoeColors colors = HorseshoeColors::Dimmed; //!< how the horseshoe is coloured
    DiagramGround ground = DiagramGround::Light; //!< what all is drawn on
    QVector<DiagramGamut> gamuts; //!< any number of each role; of equal roles the later ones are drawn over the others
    QVector<DiagramMark> measurePoints; //!< discs
    QVector<DiagramMark> colorTemperaturePoints; //!< diamonds
    QVector<DiagramMark> cmyPoints; //!< squares: cyan, magenta, yellow and so on unless they bring colours of their own
    QVector<DiagramRings> rings; //!< tolerances round white points
    QVector<QPointF> trail; //!< where a point has been, the oldest first

    /*!
     * \brief Whether \a gamut is switched on, itself and by its role's layer, and its primaries are finite.
     *
     * Of a target the white has to be finite as well, as it is edited; of others only the mark of the white is left
     * out.
     */
    bool shows(const DiagramGamut &gamut) const;

    /*! \brief The first gamut of \a role, or null. It is valid until gamuts changes. */
    const DiagramGamut *find(GamutRole role) const;

    /*!
     * \brief What the display can show: the original if there is one, otherwise the measured gamut; null for neither.
     *
     * What the common area and the lost area compare the target with, switched on or not.
     */
    const DiagramGamut *display() const;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMCONTENT_H
