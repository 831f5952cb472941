// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_ARITHMETIC_P_H
#define CEIECHART_DIAGRAM_ARITHMETIC_P_H

#include <limits>

namespace ceiechart {

/*!
 * \brief a·b in 32-bit integers (wrapping), divided by \a c and truncated toward zero, plus 0.5. \a c must not be 0.
 */
inline double mulDiv(int a, int b, int c) noexcept
{
    const auto product = static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
    const auto quotient = static_cast<long long>(product) / c;
    return static_cast<double>(quotient) + 0.5;
}

/*! \brief \a v limited to the range from \a lo to \a hi; \a hi if \a v is NaN. */
inline double clamp(double v, double lo, double hi) noexcept
{
    if (lo > v) {
        return lo;
    }
    return v < hi ? v : hi;
}

/*! \brief \a v truncated toward zero. NaN and values that an int cannot hold give the smallest int. */
inline int truncated(double v) noexcept
{
    constexpr double below = std::numeric_limits<int>::min() - 1.0;
    constexpr double above = std::numeric_limits<int>::max() + 1.0;
    return v > below && v < above ? static_cast<int>(v) : std::numeric_limits<int>::min();
}

} // namespace ceiechart

#endif
