// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramticks_p.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

constexpr double slack = 1e-9; // of a step: what is that near to a tick is meant to be on it
constexpr int mostTicks = 10000;
constexpr int roundnessDecimals = 3;

} // namespace

double TickScale::step() const
{
    return value(1);
}

int TickScale::decimals() const
{
    return std::max(1, -exponent);
}

double TickScale::value(qint64 number) const
{
    // Divided by a power of ten, which is exact: multiplied by a negative one, 3 steps of 0.1 would be
    // 0.30000000000000004.
    const double whole = double(number * digit);
    return exponent < 0 ? whole / std::pow(10.0, -exponent) : whole * std::pow(10.0, exponent);
}

QString TickScale::text(qint64 number) const
{
    return QString::number(value(number), 'f', decimals());
}

QVector<qint64> TickScale::within(double least, double most) const
{
    QVector<qint64> numbers;
    const double first = std::ceil(least / step() - slack);
    const double last = std::floor(most / step() + slack);
    if (!(last - first < mostTicks) || !(std::max(std::fabs(first), std::fabs(last)) < 1e15)) {
        return numbers;
    }
    for (auto number = qint64(first); number <= qint64(last); ++number) {
        numbers.append(number);
    }
    return numbers;
}

TickScale ticksAtLeast(double least)
{
    TickScale scale;
    scale.exponent = int(std::floor(std::log10(least) + slack));
    const double mantissa = least / std::pow(10.0, scale.exponent);
    if (mantissa > 5.0 + slack) {
        ++scale.exponent;
    } else {
        scale.digit = mantissa > 2.0 + slack ? 5 : mantissa > 1.0 + slack ? 2 : 1;
    }
    return scale;
}

double roundStep(double least)
{
    return ticksAtLeast(least).step();
}

int roundness(double value)
{
    auto whole = qint64(std::llround(std::fabs(value) * std::pow(10.0, roundnessDecimals)));
    if (whole == 0) {
        return std::numeric_limits<int>::max();
    }
    int exponent = -roundnessDecimals;
    while (whole % 10 == 0) {
        whole /= 10;
        ++exponent;
    }
    return 3 * exponent + (whole % 5 == 0 ? 2 : whole % 2 == 0 ? 1 : 0);
}

} // namespace ceiechart
