// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_CONTRAST_H
#define TESTS_CONTRAST_H

#include <QColor>

#include <algorithm>
#include <cmath>

/*! \brief The relative luminance of \a color: WCAG 2.1. */
inline double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/*! \brief The contrast ratio of two opaque colours: WCAG 2.1. */
inline double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

#endif
