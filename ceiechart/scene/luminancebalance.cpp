// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/scene/luminancebalance_p.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace ceiechart {

namespace {

constexpr double step = 10.0;
constexpr double relativeTolerance = 1e-9; //!< a target equal to the original must be accepted in spite of rounding

struct White {
    double luminance = 0.0, x = 0.0, y = 0.0;
};

White whiteOf(const TrianglePoint &t)
{
    White white;
    ChromaSets::rgbCxCyToWhiteCxCy(t.redLum(), t.redPos().x(), t.redPos().y(), t.greenLum(), t.greenPos().x(),
        t.greenPos().y(), t.blueLum(), t.bluePos().x(), t.bluePos().y(), white.luminance, white.x, white.y);
    return white;
}

struct Luminances {
    double red = 0.0, green = 0.0, blue = 0.0;
};

/*! \brief The luminances at which the primaries of \a t mix to its white point with the luminance \a white. */
Luminances luminancesFor(const TrianglePoint &t, double white)
{
    Luminances found;
    ChromaSets::RGBCxCyFromWhiteCxCy(found.red, t.redPos().x(), t.redPos().y(), found.green, t.greenPos().x(),
        t.greenPos().y(), found.blue, t.bluePos().x(), t.bluePos().y(), white, t.whitePos().x(), t.whitePos().y());
    return found;
}

bool outOfRange(double luminance, double limit)
{
    return luminance < 0 || luminance > limit + std::fabs(limit) * relativeTolerance;
}

bool deliverable(const Luminances &wanted, const TrianglePoint &original)
{
    return !outOfRange(wanted.red, original.redLum()) && !outOfRange(wanted.green, original.greenLum())
        && !outOfRange(wanted.blue, original.blueLum());
}

/*!
 * \brief The smallest number of steps from \a first to \a last for which \a holds is true; it must be true for all
 * larger ones.
 */
template <typename Predicate>
std::uint64_t firstThat(std::uint64_t first, std::uint64_t last, const Predicate &holds)
{
    while (first < last) {
        const std::uint64_t middle = first + (last - first) / 2;
        if (holds(middle)) {
            last = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

/*!
 * \brief The luminance of the white, decreased in steps from \a start, at which \a original can reproduce the white of
 * \a target.
 */
double balancedWhite(const TrianglePoint &target, const TrianglePoint &original, double start)
{
    const auto ends = [&](double white) { return deliverable(luminancesFor(target, white), original) || white < step; };
    if (ends(start) || !std::isfinite(start) || start - step == start) {
        return start;
    }
    // Trying one step after the other gives the same result, but would take years for an absurd luminance. A luminance
    // that a step changes takes at most as many steps as there are multiples of 4 up to 2^57.
    constexpr std::uint64_t mostSteps = std::uint64_t(1) << 55;
    return lowered(start, firstThat(1, mostSteps, [&](std::uint64_t steps) { return ends(lowered(start, steps)); }));
}

} // namespace

double lowered(double white, std::uint64_t steps)
{
    constexpr double exactUpTo = 18014398509481984.0; // 2^54
    while (steps > 0 && white > exactUpTo) {
        white -= step;
        --steps;
        const double taken = white - (white - step);
        const double room = white - std::ldexp(1.0, std::ilogb(white)) - step;
        const auto alike = room < 0 ? 0 : std::min(steps, static_cast<std::uint64_t>(room / taken) + 1);
        white -= static_cast<double>(alike) * taken;
        steps -= alike;
    }
    return white - static_cast<double>(steps) * step;
}

void mixWhite(TrianglePoint &target)
{
    const White white = whiteOf(target);
    target.setWhiteLum(white.luminance);
    target.setWhitePos(QPointF(white.x, white.y));
}

void balanceHeldWhite(TrianglePoint &target, const TrianglePoint &original)
{
    const double white = balancedWhite(target, original, whiteOf(original).luminance);
    const Luminances luminances = luminancesFor(target, white);
    target.setRedLum(luminances.red);
    target.setGreenLum(luminances.green);
    target.setBlueLum(luminances.blue);
    target.setWhiteLum(white);
}

} // namespace ceiechart
