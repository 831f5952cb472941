// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramedit_p.h>
#include <ceiechart/diagram/whitepoint.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

QPointF toDiagram(Model::Diagram diagram, const QPointF &xy)
{
    const Model::DiagramPoint point = Model::toDiagram(diagram, {xy.x(), xy.y()});
    return QPointF(point.x, point.y);
}

QPointF fromDiagram(Model::Diagram diagram, const QPointF &point)
{
    const Model::DiagramPoint xy = Model::fromDiagram(diagram, {point.x(), point.y()});
    return QPointF(xy.x, xy.y);
}

//! Through decimal text: the double nearest to the decimals, as it would be read from a file.
double rounded(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}

QPointF onto(const QLineF &line, const QPointF &point)
{
    const QPointF way = line.p2() - line.p1();
    return line.p1() + way * (QPointF::dotProduct(point - line.p1(), way) / QPointF::dotProduct(way, way));
}

//! Two points of the line through \a xy on which all whites have its colour temperature.
QLineF isotherm(Model::Diagram diagram, const QPointF &xy)
{
    constexpr double aside = 0.002; // in Duv: anything that keeps clear of rounding
    const auto white = colorTemperature(xy);
    if (!white) {
        return QLineF();
    }
    const double other = white->duv > 0.0 ? white->duv - aside : white->duv + aside;
    const auto neighbour = chromaticityAt(white->kelvin, other);
    return neighbour ? QLineF(toDiagram(diagram, xy), toDiagram(diagram, *neighbour)) : QLineF();
}

} // namespace

TargetEdit::TargetEdit(const TargetContext &context, GamutVertex vertex)
    : m_context(context)
    , m_vertex(vertex)
    , m_start(toDiagram(context.diagram, xyOf(targetAt(context.target, vertex))))
    , m_wanted(m_start)
{
}

QLineF TargetEdit::lockLine(const EditHands &hands) const
{
    if (hands.onAxis) {
        const QPointF way = m_wanted - m_start;
        const bool isHorizontal = std::fabs(way.x()) >= std::fabs(way.y());
        return QLineF(m_start, m_start + (isHorizontal ? QPointF(1.0, 0.0) : QPointF(0.0, 1.0)));
    }
    if (!hands.onLine) {
        return QLineF();
    }
    if (m_vertex == GamutVertex::White) {
        return isotherm(m_context.diagram, xyOf(m_context.target.white));
    }
    return QLineF(m_start, toDiagram(m_context.diagram, xyOf(m_context.target.white)));
}

EditStep TargetEdit::moveBy(const TargetRules &rules, const QPointF &way, const EditHands &hands)
{
    constexpr double slowness = 0.1;
    m_wanted += hands.slow ? way * slowness : way;

    EditStep step;
    step.lock = lockLine(hands);
    const bool isLocked = step.lock.p1() != step.lock.p2();
    const QPointF aim = isLocked ? onto(step.lock, m_wanted) : m_wanted;
    const QPointF aimXy = fromDiagram(m_context.diagram, aim);
    if (hands.reach > 0.0) {
        step.snap = snapped(aimXy, rules.snapLines(m_context, m_vertex), m_context.diagram, hands.reach, step.lock);
    }
    if (step.snap) {
        step.move = movedTowards(rules, m_context, m_vertex, step.snap->xy);
        return step;
    }
    QPointF position = aim;
    // What an axis holds stays to the last digit; on a slanting line, rounding would leave the line.
    if (!hands.onLine || !isLocked) {
        position.setX(aim.x() == m_start.x() ? aim.x() : rounded(aim.x(), hands.decimals));
        position.setY(aim.y() == m_start.y() ? aim.y() : rounded(aim.y(), hands.decimals));
    }
    step.move
        = movedTowards(rules, m_context, m_vertex, position == aim ? aimXy : fromDiagram(m_context.diagram, position));
    return step;
}

QString coordinateText(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    return text.toDouble() == 0.0 ? QString::number(0.0, 'f', decimals) : text;
}

int decimalsFor(double scale)
{
    constexpr int least = 4;
    return scale > 1.0 ? std::clamp(int(std::ceil(std::log10(scale))), least, mostDecimals) : least;
}

double keyStepFor(double scale)
{
    constexpr double coarsest = 0.1;
    return scale > 0.0 ? std::min(coarsest, std::pow(10.0, std::floor(std::log10(2.0 / scale)))) : coarsest;
}

} // namespace ceiechart
