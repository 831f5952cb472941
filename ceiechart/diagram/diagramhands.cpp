// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr double catchingUp = 2.0; // pixels to each that the hand goes in the direction of what is owed

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
        // Only as the hand goes on that way: when it turns back, what it holds must not go against it.
        const double onward = std::max(0.0, QPointF::dotProduct(way, m_owed) / owed);
        const QPointF paid = m_owed * std::min(1.0, catchingUp * onward / owed);
        m_owed -= paid;
        way += paid;
    }
    return way;
}

} // namespace ceiechart
