// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/contrast_p.h>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

//! \a share of \a a, and the rest of \a b.
QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](int of, int with) { return int(std::lround(share * of + (1 - share) * with)); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

} // namespace

QColor composited(const QColor &color, const QColor &ground)
{
    return mixed(color, ground, color.alphaF());
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const auto [dark, bright] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (bright + 0.05) / (dark + 0.05);
}

bool isLight(const QColor &ground)
{
    return contrastRatio(Qt::black, ground) > contrastRatio(Qt::white, ground);
}

QColor textColorOn(const QColor &ground)
{
    return isLight(ground) ? Qt::black : Qt::white;
}

QColor legibleOn(const QColor &color, const QColor &ground, double ratio)
{
    if (contrastRatio(composited(color, ground), ground) >= ratio) {
        return color;
    }
    constexpr int steps = 64;
    const QColor extreme = textColorOn(ground);
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(extreme, color, double(step) / steps);
        if (contrastRatio(candidate, ground) >= ratio) {
            return candidate;
        }
    }
    return extreme;
}

} // namespace ceiechart
