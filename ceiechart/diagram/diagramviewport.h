// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMVIEWPORT_H
#define CEIECHART_DIAGRAM_DIAGRAMVIEWPORT_H

#include <ceiechart/ceiechart_export.h>

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>

#include <QMarginsF>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

namespace ceiechart {

/*!
 * \brief Which part of a diagram is seen, and where on a widget or sheet.
 *
 * Both axes have the same scale at every size. Positions are logical pixels from the top left corner, y growing
 * downwards; chromaticities are CIE 1931 x, y whatever the diagram. The numbers of the axes stand in the margins, the
 * diagram in the plot between them, and the centre of the view in the middle of the plot.
 *
 * A value without a widget: operations give a changed copy.
 *
 * \code
 * ceiechart::DiagramViewport viewport(Model::Diagram::Cie1976, QSizeF(800, 600));
 * viewport = viewport.zoomed(4.0, viewport.toPosition(QPointF(0.3127, 0.3290)));
 * \endcode
 */
class CEIECHART_EXPORT DiagramViewport {
public:
    //! The closest view, where the whole horseshoe is 1.
    static constexpr double closest = 2000.0;

    /*! \brief The whole horseshoe of CIE 1931 x, y on no area. */
    DiagramViewport();
    /*! \brief The whole horseshoe of \a diagram on \a size logical pixels, with \a margins round the plot. */
    DiagramViewport(Model::Diagram diagram, const QSizeF &size, const QMarginsF &margins = QMarginsF());

    Model::Diagram diagram() const { return m_diagram; } //!< whose coordinates are drawn
    QSizeF size() const { return m_size; } //!< of the whole, in logical pixels
    QMarginsF margins() const { return m_margins; } //!< between the edges and the plot, in logical pixels
    /*! \brief Where the diagram is seen: the whole without the margins, at least 1 x 1 logical pixels. */
    QRectF plot() const;

    /*! \brief The zoom: 1 when the whole horseshoe just fits, up to closest. */
    double zoom() const { return m_zoom; }
    /*! \brief Logical pixels per unit of the diagram's coordinates, the same on both axes. */
    double scale() const;
    /*! \brief The chromaticity in the middle of the plot. */
    QPointF centre() const;
    /*! \brief The part of the diagram in the plot, in the diagram's own coordinates: left and top are the least. */
    QRectF range() const;
    /*! \brief Whether this is the view of fittedToAll(). */
    bool showsAll() const;

    /*! \brief The position of the chromaticity \a xy. Not finite where the diagram has none. */
    QPointF toPosition(const QPointF &xy) const;
    /*! \brief The chromaticity at \a position: the inverse of toPosition(). */
    QPointF toChromaticity(const QPointF &position) const;
    /*! \brief The position of \a point, which is in the diagram's own coordinates. */
    QPointF fromPoint(const QPointF &point) const;
    /*! \brief fromPoint() of all \a points, which is faster than one by one. */
    QPolygonF fromPoints(const QPolygonF &points) const;
    /*! \brief The inverse of fromPoint(). */
    QPointF toPoint(const QPointF &position) const;
    /*! \brief The corners red, green and blue of \a gamut. */
    QPolygonF outline(const Model::Targets &gamut) const;

    /*!
     * \brief Enlarged by \a factor, or reduced by one below 1, so that what is at \a anchor stays there.
     *
     * The zoom stays between 1 and closest. Without effect for a factor that is not a number above 0. The centre stays
     * in reach of the horseshoe, see centredOn(); where that keeps it back, what is at \a anchor moves.
     */
    DiagramViewport zoomed(double factor, const QPointF &anchor) const;
    /*! \brief zoomed() round the middle of the plot. */
    DiagramViewport zoomed(double factor) const;
    /*!
     * \brief With the diagram moved by \a delta logical pixels.
     *
     * The centre cannot leave the surroundings of the horseshoe: what would do so is left out of the way.
     */
    DiagramViewport panned(const QPointF &delta) const;

    /*! \brief With the whole horseshoe in the plot. */
    DiagramViewport fittedToAll() const;
    /*!
     * \brief With all of the chromaticities \a polygon in the plot and some room round them; unchanged for none.
     *
     * One that is too large for zoom 1 is not seen as a whole. The centre stays in reach, see centredOn().
     */
    DiagramViewport fittedTo(const QPolygonF &polygon) const;
    /*! \brief With the primaries of \a gamut in the plot. */
    DiagramViewport fittedTo(const Model::Targets &gamut) const;
    /*! \brief With \a xy in the middle and the chromaticities up to \a reach in \a u′, v′ round it. */
    DiagramViewport fittedToWhite(const QPointF &xy, double reach = 0.008) const;
    /*!
     * \brief With \a xy in the middle and \a zoom, which is taken into 1 to closest.
     *
     * The centre stays in reach of the horseshoe, up to a quarter of its width and height beyond its bounds: one that
     * is farther away is taken to the nearest that is not. Without effect for what is not finite and for a \a zoom that
     * is not above 0.
     */
    DiagramViewport centredOn(const QPointF &xy, double zoom) const;

    /*! \brief On another size, with centre and zoom as they are. */
    DiagramViewport resized(const QSizeF &size) const;
    /*! \brief With other margins, with centre and zoom as they are. */
    DiagramViewport withMargins(const QMarginsF &margins) const;
    /*! \brief Of another diagram, with the chromaticity in the middle and the zoom as they are; all stays all. */
    DiagramViewport withDiagram(Model::Diagram diagram) const;

    /*! \brief Whether both show the same part of the same diagram at the same size. */
    friend bool operator==(const DiagramViewport &a, const DiagramViewport &b) { return a.equals(b); }
    /*! \brief Whether they differ in diagram, part or size. */
    friend bool operator!=(const DiagramViewport &a, const DiagramViewport &b) { return !a.equals(b); }

private:
    bool equals(const DiagramViewport &other) const;
    double wholeScale() const;

    Model::Diagram m_diagram = Model::Diagram::Cie1931;
    QSizeF m_size;
    QMarginsF m_margins;
    Model::DiagramPoint m_centre; // in the diagram's own coordinates
    double m_zoom = 1.0;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMVIEWPORT_H
