// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMGAMUTS_P_H
#define CEIECHART_DIAGRAM_DIAGRAMGAMUTS_P_H

#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/shownmarks_p.h>
#include <ceiechart/diagram/shownoutlines_p.h>

#include <limits>
#include <vector>

namespace ceiechart {

// Logical pixels
constexpr double whiteRadius = 5.0;
constexpr double whiteArm = 4.0; // of the cross through the target's white

/*! \brief Lays out what lies over the scale: gamuts, marks and their names. */
class DiagramGamuts {
public:
    /*! \param outlines must outlive the object; those of targets are needed by takeEdited() only */
    DiagramGamuts(const DiagramSheet &sheet, const ShownOutlines &outlines, const ShownMarks &marks);

    /*! \brief The outlines that no edit of a target changes. */
    DiagramStep takeUnedited();
    /*! \brief The rest, with the numbers that \a scale has left to be placed. */
    DiagramStep takeEdited(const DiagramStep &scale);

private:
    using Shown = ShownOutline;

    struct Ring {
        QPointF centre; // u', v'
        double radius; // there, too
        QPolygonF curve;
    };

    //! Where a name could stand; null for nowhere.
    struct NamePlace {
        QRectF place;
        QLineF leader; // to the outline, where the name is not beside it
        double cost = std::numeric_limits<double>::max();
    };

    // Outlines and areas
    bool isDrawn(size_t i, bool targetsToo) const;
    //! How many other roles have gamuts that are drawn later and equal number \a i: those of one role look the same.
    int equalsAbove(size_t i, bool targetsToo) const;
    bool hasEqualBelow(size_t i) const;
    //! Whether a target falls on number \a i, which is drawn once more then: it comes out on both sides.
    bool equalsTarget(size_t i) const;
    //! Of gamuts that equal one another the lower ones are wider, so that each shows on both sides of the next.
    void drawOutline(size_t i, bool targetsToo);
    //! Adds the outline number \a i to \a lines.
    void addPlainOutline(size_t i, QVector<QLineF> *lines) const;
    void drawCommonArea();
    void drawLostArea();

    // Points and curves
    bool isSeen(const QPointF &at, double radius) const;
    static QRectF around(const QPointF &at, double reach);
    QPointF whiteOf(const Shown &gamut) const;
    //! Lays out \a rings and places their numbers.
    void placeRings(const DiagramRings &rings);
    void drawRing(const Ring &ring);
    //! Whether the line of some ring meets \a place.
    bool isOnRing(const QRectF &place) const;
    void drawTrail();
    void drawWhites();

    // Texts
    //! What the handles of a target may cover.
    QVector<QRectF> handles() const;
    void placeWavelengths(const QVector<PendingNumber> &wavelengths);
    //! What numbers must leave to be seen, beside marks: whites and handles.
    QVector<QRectF> clearOfNumbers() const;
    //! Whether a number at \a place would cover one of \a clear, a mark or a ring.
    bool isTaken(const QRectF &place, const QVector<QRectF> &clear) const;
    //! With a null \a leader for none.
    void drawIsothermNumber(const QString &number, const QRectF &place, const QLineF &leader);
    //! The isotherm's number at the nearest free place, with a line from there to the isotherm. Unless it \a mayCross
    //! them, the number stands on no outline.
    bool leadToIsotherm(const PendingNumber &number, const QVector<QRectF> &clear, bool mayCross);
    //! Of isotherms none of which has room for its number beside it, that nearest to the white is named all the same.
    void nameOneIsotherm(QVector<PendingNumber> isotherms, const QVector<QRectF> &clear);
    void placeIsotherms(const QVector<PendingNumber> &isotherms);
    void drawPlate(const QRectF &place, const DiagramPalette &palette);
    //! Where a name may stand, the best first.
    QVector<QRectF> namePlaces(const Shown &gamut, const QSizeF &size) const;
    //! Those of the outlines that names keep clear of.
    std::vector<QLineF> sides() const;
    int outlinesAt(const QRectF &place) const;
    int outlinesCrossedBy(const QLineF &line) const;
    int curvesAt(const QRectF &place) const;
    //! Of the outlines, whites and marks that a name at \a place would cover. Where this and an \a other cost come to
    //! \a most, not all of them are counted.
    double costOfCovered(const QRectF &place, double other, double most) const;
    //! The cost of a place without a leader that is not close to the outline.
    double costOfDoubt(const Shown &gamut, const QRectF &place) const;
    //! Where a name on a plate of the size \a plate covers least beside the outline.
    NamePlace placeBeside(const Shown &gamut, const QSizeF &plate) const;
    //! The same farther away, with a leader; \a beside where nothing is better than that.
    NamePlace placeLedTo(const Shown &gamut, const QSizeF &plate, const NamePlace &beside) const;
    void drawName(const Shown &gamut, const TextStyle &style);
    void drawNames();
    void drawMarkName(const QPointF &at, const QString &markName);

    const DiagramSheet &m_sheet;
    const DiagramContent &m_content;
    const DiagramPalette &m_palette;
    const DiagramPalette &m_innerPalette;
    QRectF m_plot;
    QRectF m_inner; // where texts may stand
    const ShownOutlines &m_outlines;
    const std::vector<Shown> &m_shown; // from bottom to top
    size_t m_firstNamed; // standards are not named where there are too many, also for other names to keep clear of them
    std::vector<QLineF> m_sides; // laid out once for all places that are tried
    QVector<QRectF> m_handles;
    std::vector<Ring> m_rings;
    const ShownMarks &m_marks;
    QVector<QRectF> m_whites; // what their marks cover
    DiagramStep m_step;
};

/*! \brief Whether takeUnedited() gives the same of \a a and \a b, on the same part of the diagram. */
bool sameButForEdits(const DiagramContent &a, const DiagramContent &b);

} // namespace ceiechart

#endif
