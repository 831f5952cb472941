// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_KEYSTEPPER_P_H
#define CEIECHART_SCENE_KEYSTEPPER_P_H

#include <Qt>

namespace ceiechart {

/*! \brief The step width of the arrow keys, which grows while the same arrow key is pressed repeatedly. */
class KeyStepper {
public:
    /*!
     * \brief Multiplies \a step by a factor that depends on the number of preceding presses.
     *
     * The factor is 1 for the first eleven presses. It then grows by 1 with each press, from 1 to 11, and remains 11. A
     * \a key other than the last arrow key starts again.
     */
    void speedUp(float &step, Qt::Key key)
    {
        if (key != m_lastKey) {
            clear();
        } else if (m_presses > patience) {
            step *= static_cast<float>(m_acceleration < limit ? m_acceleration + 1 : limit);
            m_acceleration = m_acceleration < limit ? m_acceleration + 1 : limit;
        }
    }

    /*! \brief Starts again with a factor of 1. */
    void clear()
    {
        m_presses = 0;
        m_acceleration = 0;
    }

    /*! \brief Stores the arrow key that was pressed last. */
    void setLastKey(Qt::Key key) { m_lastKey = key; }
    /*! \brief Counts a key press. All keys are counted, not only arrow keys. */
    void countPress() { ++m_presses; }

private:
    static constexpr int patience = 10;
    static constexpr int limit = 11;

    int m_presses = 0;
    int m_acceleration = 0;
    Qt::Key m_lastKey = Qt::Key_unknown;
};

} // namespace ceiechart

#endif
