// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMSHEET_P_H
#define CEIECHART_DIAGRAM_DIAGRAMSHEET_P_H

#include <ceiechart/diagram/comparedcurve_p.h>
#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/drawlist_p.h>

#include <QLineF>
#include <QVector>

#include <vector>

namespace ceiechart {

// Logical pixels
constexpr double labelGap = 3.0; // round any text
constexpr double lineCasing = 2.5; // of a line, on both sides together
constexpr double handleRing = 13.0; // radius of the ring round a handle that is selected
constexpr double handleLine = 2.5; // width of the lines of handles and their rings
constexpr double handleExtent = handleRing + handleLine; // from the middle of a handle to the edge of all it covers
constexpr double guideReach = handleExtent + 4.0; // from a place that was snapped to, below the handle, to its frame

// Among more of them, names say nothing
constexpr int mostNamedMarks = 500; // in the plot
constexpr int mostNamedStandards = 100;
// Of more of them, casings and dashes cannot be told apart, and take seconds to stroke
constexpr int mostCasedStandards = 500;

/*! \brief The fonts of a diagram on one device. */
struct DiagramFonts {
    DiagramFonts(const QFont &font, const QPaintDevice *device, double unit);

    TextStyle numbers; //!< at axes, wavelengths, isotherms, rings
    TextStyle names; //!< of gamuts
    TextStyle texts; //!< of marks
    TextStyle axes; //!< names of the coordinates
};

struct ShownMarks;
struct ShownOutlines;

/*! \brief What is painted, and on what. */
struct DiagramSheet {
    const DiagramContent &content;
    const DiagramViewport &viewport;
    const DiagramFonts &fonts;

    bool shows(DiagramLayer layer) const { return content.layers.testFlag(layer); }
    const DiagramPalette &palette() const { return diagramPalette(content.ground); }
    //! Of what lies in the midst of the colours, which are bright on dark ground too.
    const DiagramPalette &innerPalette() const
    {
        return diagramPalette(colors() == HorseshoeColors::None ? content.ground : DiagramGround::Light);
    }
    HorseshoeColors colors() const { return shows(DiagramLayer::Colors) ? content.colors : HorseshoeColors::None; }
};

/*! \brief The texts on a diagram, none of which stands on another or on the leader of another. */
class LabelPlaces {
public:
    //! Whether \a place, with \a gap round it, is within \a area, on no label and on no leader.
    bool isFree(const QRectF &place, const QRectF &area, double gap) const;
    //! Whether \a line meets a label.
    bool isCrossed(const QLineF &line) const;
    void add(DiagramLabel::Kind kind, const QString &text, const QRectF &place, int index = -1,
        const QLineF &leader = QLineF());
    const QVector<DiagramLabel> &labels() const { return m_labels; }

private:
    QVector<DiagramLabel> m_labels;
    QVector<QLineF> m_leaders; // those of the few labels that have one
};

/*! \brief The margins that numbers of \a fonts need. */
QMarginsF diagramMargins(const DiagramContent &content, const DiagramFonts &fonts);

/*! \brief A number that a later step places, where it covers no mark and no handle. */
struct PendingNumber {
    QString text;
    QVector<QRectF> places; //!< the best first
    QLineF line; //!< what it belongs to, as far as it is seen
};

/*! \brief What is painted and the texts in it. */
struct DiagramStep {
    DrawList drawing; //!< lines and marks
    DrawList texts; //!< what no line may cross
    LabelPlaces places; //!< those of the steps before as well
    QVector<PendingNumber> wavelengths; //!< none of whose first places meets another's
    QVector<PendingNumber> isotherms; //!< from the most important on
    std::vector<ComparedCurve> curves; //!< roughly, those that texts had better keep clear of
};

/*! \name The steps of painting
 * @{
 */
DiagramStep scaleStep(const DiagramSheet &sheet);
//! What no edit of a target changes; \a outlines are those of shownOutlines().
DiagramStep gamutsStep(const DiagramSheet &sheet, const ShownOutlines &outlines, const ShownMarks &marks);
//! With the numbers that \a scale, the step of the scale, has left to be placed.
DiagramStep editedStep(
    const DiagramSheet &sheet, const DiagramStep &scale, const ShownOutlines &outlines, const ShownMarks &marks);
/*! @} */

/*! \brief A line of \a pen with a casing of \a casing under it, as far as it is within \a area. */
void drawCased(
    DrawList &list, const QPolygonF &points, bool closed, const QRectF &area, const QPen &pen, const QColor &casing);

/*! \brief \a color, of which only \a share is opaque. */
QColor faded(QColor color, double share);

/*!
 * \brief The common area of target and display in the diagram's own coordinates, or the one of them that there is.
 *
 * Empty when there is neither, or the layer of the common area is off.
 */
QPolygonF commonArea(const DiagramContent &content, Model::Diagram diagram);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMSHEET_P_H
