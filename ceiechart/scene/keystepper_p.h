// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_KEYSTEPPER_P_H
#define CEIECHART_SCENE_KEYSTEPPER_P_H

#include <Qt>

namespace ceiechart {

/*! \brief How far an arrow key moves a handle: a small step that grows while the same arrow is pressed again. */
class KeyStepper {
public:
    /*!
     * \brief Multiplies \a step by what the presses before this one have earned: 1 for the first eleven, then 1, 2, …
     * 11 and 11 from there on. Another \a key than the last arrow starts over.
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

    void clear()
    {
        m_presses = 0;
        m_acceleration = 0;
    }

    void setLastKey(Qt::Key key) { m_lastKey = key; }
    /*! \brief Every key counts, not only arrows. */
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
