// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>

#include <cmath>
#include <utility>

namespace Model {

namespace {

/*!
 * \brief The quotient, or 0 if it would not be finite. It does not divide by zero, because a host may have that
 * trapped.
 */
double quotient(double numerator, double denominator)
{
    if (denominator == 0.0) {
        return 0.0;
    }
    const double result = numerator / denominator;
    return std::isfinite(result) ? result : 0.0;
}

} // namespace

Target Target::fromYxy(double Y, double x, double y)
{
    Target target;
    target.Y = Y;
    target.x = x;
    target.y = y;
    target.X = quotient(x * Y, y);
    target.Z = quotient((1.0 - x - y) * Y, y);
    // The same quotients as in uvFromXy(), but 0 if they would not be finite.
    const double denominator = uniformDenominator(x, y);
    target.u = quotient(4.0 * x, denominator);
    target.v = quotient(9.0 * y, denominator);
    return target;
}

ColorGamut::ColorGamut() = default;

ColorGamut::ColorGamut(std::string name, const Targets &targets)
    : m_name(std::move(name))
    , m_targets(targets)
{
}

const Targets &ColorGamut::getTargets() const
{
    return m_targets;
}

std::string ColorGamut::colorGamutName() const
{
    return m_name;
}

} // namespace Model
