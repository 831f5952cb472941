// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_TARGETRULES_H
#define CEIECHART_DIAGRAM_TARGETRULES_H

#include <ceiechart/ceiechart_export.h>
#include <gamutmodel/colorgamut.h>
#include <gamutmodel/gamutcoverage.h>

#include <QLineF>
#include <QPointF>
#include <QPolygonF>
#include <QString>
#include <QVector>

#include <array>
#include <memory>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief What becomes of a target gamut when one of its primaries or its white is to be moved.
 *
 * Plain values and maths, without a widget. Chromaticities are CIE 1931 x, y unless something else is said.
 */
namespace ceiechart {

/*! \brief What of a gamut can be moved. */
enum class GamutVertex {
    Red, //!< the red primary
    Green, //!< the green primary
    Blue, //!< the blue primary
    White //!< the white point
};

/*! \brief All of them, in the order of Model::Targets. */
constexpr std::array<GamutVertex, 4> allGamutVertices{
    GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue, GamutVertex::White};

/*! \brief The name of \a vertex in the language of the interface: "red". */
CEIECHART_EXPORT QString gamutVertexName(GamutVertex vertex);

/*! \brief The colour of \a vertex in \a targets; the white for a value that is no vertex. */
CEIECHART_EXPORT Model::Target &targetAt(Model::Targets &targets, GamutVertex vertex);
/*! \copydoc targetAt */
CEIECHART_EXPORT const Model::Target &targetAt(const Model::Targets &targets, GamutVertex vertex);

/*! \brief The chromaticity of \a target. */
inline QPointF xyOf(const Model::Target &target)
{
    return QPointF(target.x, target.y);
}

/*! \brief Whether luminances and chromaticities of \a a and \a b are equal. */
CEIECHART_EXPORT bool sameTargets(const Model::Targets &a, const Model::Targets &b);

/*! \brief Whether \a xy is a chromaticity that three non-negative tristimulus values can have, with Y above 0. */
CEIECHART_EXPORT bool isChromaticity(const QPointF &xy);

using Model::spanTriangle;

/*!
 * \name Edits of a gamut
 *
 * Primaries and white stay in balance: what is not edited is recalculated, so that the primaries mix to the white.
 * Each edit gives nothing when there is no such gamut: for what is no chromaticity, primaries that span no triangle, a
 * negative luminance, a white outside of the triangle.
 * @{
 */
/*!
 * \brief \a targets with \a primary at \a xy; its luminance stays, and the white is what the primaries mix to.
 *
 * Nothing when \a primary is the white.
 */
CEIECHART_EXPORT std::optional<Model::Targets> withPrimary(
    const Model::Targets &targets, GamutVertex primary, const QPointF &xy);
/*!
 * \brief \a targets with \a primary at \a xy, while the chromaticity of the white stays.
 *
 * \param original limits the luminance of the white: it is what these primaries deliver, lowered until none of them is
 *     exceeded. Without it the luminance of the white stays.
 */
CEIECHART_EXPORT std::optional<Model::Targets> withPrimaryHoldingWhite(const Model::Targets &targets,
    GamutVertex primary, const QPointF &xy, const std::optional<Model::Targets> &original);
/*! \brief \a targets with the white at \a xy and of the same luminance; the luminances of the primaries follow. */
CEIECHART_EXPORT std::optional<Model::Targets> withWhite(const Model::Targets &targets, const QPointF &xy);
/*!
 * \brief \a targets with another \a luminance of \a vertex.
 *
 * For the white, or when \a holdWhite is set, all luminances change in proportion. Else the white is mixed anew.
 */
CEIECHART_EXPORT std::optional<Model::Targets> withLuminance(
    const Model::Targets &targets, GamutVertex vertex, double luminance, bool holdWhite);
/*! @} */

/*!
 * \brief The point of the triangle of \a gamut, its inside and its edge, that is nearest to \a xy in \a diagram.
 *
 * \a xy itself where it lies inside, and where there is no triangle.
 */
CEIECHART_EXPORT QPointF nearestInside(const Model::Targets &gamut, const QPointF &xy, Model::Diagram diagram);

/*! \brief Something that a moved vertex snaps to: a point, or a line of straight pieces. */
struct SnapLine {
    QString name; //!< for people, in the language of the interface: "Rec.709 red"
    QPolygonF xy; //!< one chromaticity for a point, more for a line, which is not closed
};

/*! \brief Where a vertex has snapped to. */
struct Snap {
    QPointF xy; //!< the chromaticity
    SnapLine to; //!< what it lies on, which is shown as a guide
};

/*!
 * \brief Where \a xy snaps to among \a lines.
 *
 * Points come before lines, as a line could otherwise not be left for a point on it, and then the nearest counts.
 *
 * \param diagram the diagram in which distances are measured
 * \param reach the greatest distance, in units of \a diagram
 * \param along when it has a length, a line in the coordinates of \a diagram that the result has to lie on
 */
CEIECHART_EXPORT std::optional<Snap> snapped(const QPointF &xy, const QVector<SnapLine> &lines, Model::Diagram diagram,
    double reach, const QLineF &along = QLineF());

/*! \brief What rules know when they are asked. */
struct TargetContext {
    Model::Targets target; //!< the gamut before the move
    std::optional<Model::Targets> original; //!< what the display can show, when that is known
    std::vector<Model::ColorGamut> standards; //!< published gamuts to compare with
    Model::Diagram diagram = Model::Diagram::Cie1931; //!< in which the user moves
};

/*! \brief The answer of rules to a request. */
struct TargetMove {
    std::optional<Model::Targets> targets; //!< the gamut after the move; nothing when it cannot be made
    QString reason; //!< for people: why it cannot be made, or why another position was taken; else empty
};

/*!
 * \brief The rules of editing a target: what becomes of a requested position, and what positions snap to.
 *
 * A host that has rules of its own derives from this class, or from StandardTargetRules, and hands an object to
 * DiagramView::setRules(). One object may serve several views.
 *
 * \code
 * class WhiteOnTheLocus : public ceiechart::StandardTargetRules {
 * public:
 *     ceiechart::TargetMove move(const ceiechart::TargetContext &context, ceiechart::GamutVertex vertex,
 *         const QPointF &xy) const override
 *     {
 *         const auto white = ceiechart::colorTemperature(xy);
 *         const auto onLocus = white ? ceiechart::chromaticityAt(white->kelvin, 0.0) : std::nullopt;
 *         return StandardTargetRules::move(
 *             context, vertex, vertex == ceiechart::GamutVertex::White ? onLocus.value_or(xy) : xy);
 *     }
 * };
 * \endcode
 */
class CEIECHART_EXPORT TargetRules {
public:
    TargetRules();
    virtual ~TargetRules();
    Q_DISABLE_COPY(TargetRules)

    /*! \brief Whether \a vertex can be moved at all. */
    virtual bool isMovable(GamutVertex vertex) const = 0;
    /*! \brief The gamut after \a vertex was asked to be at \a xy, which may be any two numbers. */
    virtual TargetMove move(const TargetContext &context, GamutVertex vertex, const QPointF &xy) const = 0;
    /*! \brief What \a vertex snaps to; nothing for no snapping. */
    virtual QVector<SnapLine> snapLines(const TargetContext &context, GamutVertex vertex) const = 0;
};

/*!
 * \brief The library's own rules.
 *
 * With its defaults everything can be moved anywhere; the white follows from the primaries, and when the white is
 * moved, their luminances follow from it. A vertex snaps to
 * - the same vertex of the original and of the standards,
 * - primaries: the edges of the original,
 * - the white: the daylight illuminants D50, D55, D65 and D75 (CIE 15:2018, table T.3) and the Planckian locus.
 */
class CEIECHART_EXPORT StandardTargetRules : public TargetRules {
public:
    StandardTargetRules();
    ~StandardTargetRules() override;

    /*! \brief Whether the chromaticity of the white stays when a primary is moved; false by default. */
    bool holdsWhite() const;
    void setHoldsWhite(bool holds); //!< \copybrief holdsWhite
    /*! \brief Whether the primaries cannot be moved; false by default. */
    bool locksPrimaries() const;
    void setLocksPrimaries(bool locks); //!< \copybrief locksPrimaries
    /*! \brief Whether the white cannot be moved; false by default. It still follows from moved primaries. */
    bool locksWhite() const;
    void setLocksWhite(bool locks); //!< \copybrief locksWhite
    /*!
     * \brief Whether what is moved stays inside the original, at the nearest position there; false by default.
     *
     * Without an original there is no limit.
     */
    bool staysInsideOriginal() const;
    void setStaysInsideOriginal(bool stays); //!< \copybrief staysInsideOriginal
    /*! \brief Whether positions snap; true by default. */
    bool snaps() const;
    void setSnaps(bool snaps); //!< \copybrief snaps

    bool isMovable(GamutVertex vertex) const override;
    TargetMove move(const TargetContext &context, GamutVertex vertex, const QPointF &xy) const override;
    QVector<SnapLine> snapLines(const TargetContext &context, GamutVertex vertex) const override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

/*!
 * \brief The move of \a vertex to \a xy or, when \a rules refuse that, as far towards it as they allow.
 *
 * The way is straight in the diagram of \a context, and the last step is found to a thousandth of it. The answer has
 * the reason of the refusal. Nothing when not even the first steps are allowed.
 */
CEIECHART_EXPORT TargetMove movedTowards(
    const TargetRules &rules, const TargetContext &context, GamutVertex vertex, const QPointF &xy);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_TARGETRULES_H
