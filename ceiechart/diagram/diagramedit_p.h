// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMEDIT_P_H
#define CEIECHART_DIAGRAM_DIAGRAMEDIT_P_H

#include <ceiechart/diagram/targetrules.h>

#include <QLineF>

#include <memory>
#include <optional>

namespace ceiechart {

/*! What the hands say while they move something. */
struct EditHands {
    bool slow = false; //!< a tenth of the way
    bool onAxis = false; //!< along the axis that the way is nearer to
    bool onLine = false; //!< along the line through the white, or of equal colour temperature
    double reach = 0.0; //!< of snapping, in units of the diagram; 0 for none
    int decimals = 10; //!< to which coordinates of the diagram are rounded
};

/*! What came of a step. */
struct EditStep {
    TargetMove move;
    std::optional<Snap> snap;
    QLineF lock; //!< the line that was kept to, in the coordinates of the diagram; null for none
};

/*!
 * A drag of one vertex: keeps where the hand wants it, which may be where the rules do not let it be. The target that
 * the drag began with is what every step starts from, so that the way there does not matter.
 */
class TargetEdit {
public:
    TargetEdit(const TargetContext &context, GamutVertex vertex);

    GamutVertex vertex() const { return m_vertex; }
    const TargetContext &context() const { return m_context; }
    //! Goes on from \a target, which a host has put in the place of what was there.
    void rebase(const Model::Targets &target) { m_context.target = target; }

    //! What is wanted is \a way farther on, in units of the diagram; the next step goes there.
    void shift(const QPointF &way) { m_wanted += way; }
    //! One step by \a way, in units of the diagram.
    EditStep moveBy(const TargetRules &rules, const QPointF &way, const EditHands &hands);

private:
    QLineF lockLine(const EditHands &hands) const;

    TargetContext m_context;
    GamutVertex m_vertex;
    QPointF m_start; // in the coordinates of the diagram, and so the next
    QPointF m_wanted;
};

/*! The most decimals of coordinates. */
constexpr int mostDecimals = 10;

/*! \a value with \a decimals, without a minus before what rounds to zero. */
QString coordinateText(double value, int decimals);

/*! The number of decimals that tell neighbouring pixels apart when there are \a scale of them to a unit; 4 to
 * mostDecimals. */
int decimalsFor(double scale);

/*! The step of an arrow key: the greatest power of ten that is at most two pixels. */
double keyStepFor(double scale);

} // namespace ceiechart

#endif
