// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMPAINTER_H
#define CEIECHART_DIAGRAM_DIAGRAMPAINTER_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/diagramcontent.h>
#include <ceiechart/diagram/diagramviewport.h>

#include <QFont>
#include <QImage>
#include <QLineF>
#include <QPen>
#include <QRegion>
#include <QVector>

#include <memory>

class QPaintDevice;
class QPainter;

namespace ceiechart {

/*! \brief The colours of a diagram on light or on dark ground. All but the grid have a contrast of at least 3:1. */
struct DiagramPalette {
    QColor ground; //!< behind everything
    QColor grid; //!< lines of the grid
    QColor frame; //!< round the plot
    QColor text; //!< names of axes and of points
    QColor numbers; //!< at axes, wavelengths and isotherms
    QColor locus; //!< the spectral locus
    QColor planckian; //!< the Planckian locus and its isotherms
    QColor hatch; //!< of the lost area
    QColor casing; //!< round lines and text, so that they can be read on any colour; translucent
    QColor accent; //!< what has the focus, guides
};

/*! \brief The palette for \a ground. */
CEIECHART_EXPORT const DiagramPalette &diagramPalette(DiagramGround ground);

/*! \brief A text on a diagram: where it stands and what it belongs to. */
struct DiagramLabel {
    /*! \brief What a label names. */
    enum class Kind { Axis, Wavelength, Isotherm, Gamut, Mark, Ring };
    Kind kind = Kind::Axis; //!< what it names
    int index = -1; //!< in DiagramContent::gamuts, for Kind::Gamut; otherwise -1
    QString text; //!< as it is drawn, on one line
    QRectF place; //!< what the text covers, in logical pixels
    QLineF leader; //!< from the text to what it names; null where it stands beside that
};

/*!
 * \brief Paints a diagram: the same on a screen, in an SVG or PDF file and on paper.
 *
 * paint(QPainter *, const QRectF &) paints everything at once and keeps nothing. A widget, which paints the same
 * again and again, paints in steps instead and keeps what does not change: colors(), which repairs its picture after
 * a scroll or an edit instead of filling it anew, or paintColors(), then paintScale(), paintGamuts() and paintEdited().
 *
 * Lines are one or more logical pixels wide, 1/96 inch on devices of a higher resolution. Texts are sized in points:
 * for an SVG file, set QSvgGenerator::setResolution() to 96 to have them as on the screen.
 *
 * Needs a QGuiApplication for its fonts.
 *
 * \code
 * ceiechart::DiagramPainter diagram;
 * diagram.setContent(content);
 * diagram.setViewport(ceiechart::DiagramViewport(Model::Diagram::Cie1931, QSizeF()));
 * QSvgGenerator file;
 * file.setFileName("gamuts.svg");
 * file.setViewBox(QRect(0, 0, 800, 800));
 * file.setResolution(96);
 * QPainter painter(&file);
 * diagram.paint(&painter, QRectF(0, 0, 800, 800));
 * \endcode
 */
class CEIECHART_EXPORT DiagramPainter {
public:
    /*! \brief Nothing but the horseshoe of CIE 1931 x, y. */
    DiagramPainter();
    ~DiagramPainter();
    Q_DISABLE_COPY(DiagramPainter)

    const DiagramContent &content() const; //!< what is painted
    void setContent(const DiagramContent &content); //!< \copydoc content()
    const DiagramViewport &viewport() const; //!< which part of the diagram, and where
    void setViewport(const DiagramViewport &viewport); //!< \copydoc viewport()
    QFont font() const; //!< of all texts, sized in points; numbers are a little smaller
    void setFont(const QFont &font); //!< \copydoc font()

    /*!
     * \brief The margins that the numbers of the axes need: none but a little room when they are not shown.
     *
     * \param device what is painted on, whose resolution counts; null for the screen
     */
    QMarginsF margins(const QPaintDevice *device = nullptr) const;

    /*!
     * \brief Paints the view into \a place of \a painter: as the viewport has it, on another size.
     *
     * Centre, zoom and diagram are those of viewport(), the margins those of margins(). The colours are one image,
     * everything else is vectors, without clips or modes of composition, and within \a place.
     */
    void paint(QPainter *painter, const QRectF &place) const;

    /*!
     * \brief Ground and horseshoe as an opaque picture of the viewport, with \a devicePixelRatio set.
     *
     * The picture is kept. After a pan by whole device pixels it is scrolled and only the exposed strips are filled;
     * after a change of the common area only what this changes.
     *
     * \param changed receives what was filled since the last call, in device pixels of the picture after the scroll
     *                 by \a scrolled; may be null
     * \param scrolled receives by how many device pixels the picture was scrolled; may be null
     */
    const QImage &colors(qreal devicePixelRatio, QRegion *changed = nullptr, QPoint *scrolled = nullptr);

    /*!
     * \brief Paints colors() for a screen of \a devicePixelRatio.
     *
     * A picture that is all new, as each is during a zoom, is not kept before it is asked for again, which is faster.
     */
    void paintColors(QPainter *painter, qreal devicePixelRatio);

    /*! \brief Grid, axes, locus, wavelengths, Planckian locus, isotherms, these without numbers: what no edit changes.
     */
    void paintScale(QPainter *painter) const;
    /*! \brief Outlines of all gamuts but targets. */
    void paintGamuts(QPainter *painter) const;
    /*!
     * \brief What depends on the target, and what must not be covered by it: lost and common area, outlines of targets
     *        and of what equals them, rings, trail, marks, whites, names; and the numbers of wavelengths and isotherms,
     *        above all lines.
     *
     * \param needed in logical pixels; what does not meet it may be left out, which is faster. Empty for everything.
     */
    void paintEdited(QPainter *painter, const QRegion &needed = QRegion()) const;

    /*!
     * \brief All texts that the steps paint, with their places.
     *
     * No two overlap, and all lie within the viewport.
     */
    QVector<DiagramLabel> labels() const;
    /*!
     * \brief A place of \a size near \a at, but not on \a avoid and not over the edge of the plot.
     *
     * Of the places at \a distance logical pixels round \a at the one that covers the fewest labels. For labels that
     * come and go, such as that of a handle that is being dragged.
     */
    QRectF freePlace(
        const QSizeF &size, const QPointF &at, double distance, const QVector<QRectF> &avoid = QVector<QRectF>()) const;
    /*! \brief The corners of gamut \a index in logical pixels; empty for no such gamut, or one that is not finite. */
    QPolygonF outline(int index) const;
    /*! \brief Where the name of gamut \a index stands; empty when there was no room or no such gamut. */
    QRectF namePlace(int index) const;

    /*! \brief The pen of a gamut's line, without its casing: for keys too. */
    static QPen gamutPen(GamutRole role);
    /*! \brief A line of role \a role with its casing through \a place from left to right, as a key shows it. */
    static void paintKeyLine(QPainter *painter, const QRectF &place, GamutRole role, DiagramGround ground);
    /*! \brief Draws \a text with a casing; \a at is the left end of its base line. */
    static void paintText(
        QPainter *painter, const QPointF &at, const QString &text, const QColor &color, const QColor &casing);
    /*! \brief The positions of \a radius Δu′v′ round \a xy in \a viewport: a closed curve. */
    static QPolygonF ring(const DiagramViewport &viewport, const QPointF &xy, double radius);

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMPAINTER_H
