// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr double catchUpRate = 2.0; // extra pixels for each that the pointer moves in the first direction

} // namespace

QPointF Grip::moveTo(const QPointF &position)
{
    QPointF way = position - m_position;
    m_position = position;
    if (!m_isMoving) {
        const double away = length(position - m_pressed);
        if (!(away > m_threshold)) {
            return QPointF();
        }
        m_isMoving = true;
        way = position - m_pressed;
        m_behind = way * (m_threshold / away);
        way -= m_behind;
    }
    const double behind = length(m_behind);
    if (behind > 0.0) {
        // Only as the pointer goes on that way: when it turns back, nothing may move against it.
        const double onward = std::max(0.0, QPointF::dotProduct(way, m_behind) / behind);
        const QPointF extra = m_behind * std::min(1.0, catchUpRate * onward / behind);
        m_behind -= extra;
        way += extra;
    }
    return way;
}

} // namespace ceiechart
