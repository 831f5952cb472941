// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr double catchingUp = 2.0; // pixels to each of the hand's own

} // namespace

QPointF Grip::moveTo(const QPointF &position)
{
    QPointF way = position - m_position;
    m_position = position;
    if (!m_isMoving) {
        const double away = distance(position, m_pressed);
        if (!(away > m_threshold)) {
            return QPointF();
        }
        m_isMoving = true;
        way = position - m_pressed;
        m_owed = way * (m_threshold / away);
        way -= m_owed;
    }
    const double owed = distance(m_owed, QPointF());
    if (owed > 0.0) {
        const QPointF paid = m_owed * std::min(1.0, catchingUp * distance(way, QPointF()) / owed);
        m_owed -= paid;
        way += paid;
    }
    return way;
}

} // namespace ceiechart
