// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_REPEATABLERANDOM_H
#define CEIECHART_TESTS_REFERENCE_REPEATABLERANDOM_H

#include <QColor>

#include <random>

namespace reference {

/*! \brief The same numbers everywhere: distributions differ between standard libraries, the engine does not. */
class RepeatableRandom {
public:
    explicit RepeatableRandom(unsigned seed)
        : m_engine(seed)
    {
    }

    int between(int low, int high)
    {
        return low + static_cast<int>(m_engine() % static_cast<std::mt19937::result_type>(high - low + 1));
    }
    bool chance(int percent) { return between(1, 100) <= percent; }
    double real(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine()) / 4294967296.0);
    }
    QColor opaqueColor()
    {
        const int red = between(0, 255);
        const int green = between(0, 255);
        return QColor(red, green, between(0, 255));
    }

private:
    std::mt19937 m_engine;
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_REPEATABLERANDOM_H
