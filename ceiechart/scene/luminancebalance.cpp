// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/scene/luminancebalance_p.h>

#include <cmath>

namespace ceiechart {

namespace {

constexpr double step = 10.0;
constexpr double relativeTolerance = 1e-9; // a target equal to the original must pass in spite of rounding

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

void setLuminances(TrianglePoint &t, double white)
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    ChromaSets::RGBCxCyFromWhiteCxCy(red, t.redPos().x(), t.redPos().y(), green, t.greenPos().x(), t.greenPos().y(),
        blue, t.bluePos().x(), t.bluePos().y(), white, t.whitePos().x(), t.whitePos().y());
    t.setRedLum(red);
    t.setGreenLum(green);
    t.setBlueLum(blue);
    t.setWhiteLum(white);
}

bool outOfRange(double luminance, double limit)
{
    return luminance < 0 || luminance > limit + std::fabs(limit) * relativeTolerance;
}

bool deliverable(const TrianglePoint &target, const TrianglePoint &original)
{
    return !outOfRange(target.redLum(), original.redLum()) && !outOfRange(target.greenLum(), original.greenLum())
        && !outOfRange(target.blueLum(), original.blueLum());
}

} // namespace

void mixWhite(TrianglePoint &target)
{
    const White white = whiteOf(target);
    target.setWhiteLum(white.luminance);
    target.setWhitePos(QPointF(white.x, white.y));
}

void balanceHeldWhite(TrianglePoint &target, const TrianglePoint &original)
{
    const double start = whiteOf(original).luminance;
    // Ends the lowering at this many steps; true for all later ones as the luminances fall with the white.
    const auto endsAt = [&](double steps) {
        const double white = start - steps * step;
        setLuminances(target, white);
        return deliverable(target, original) || white < step;
    };
    if (endsAt(0) || !std::isfinite(start) || start - step == start) {
        return;
    }

    // One step after the other finds the same end, but takes minutes when the luminance is absurd.
    double before = 0;
    double end = 1;
    while (!endsAt(end)) {
        before = end;
        end *= 2;
    }
    while (end - before > 1) {
        const double middle = std::floor((before + end) / 2);
        (endsAt(middle) ? end : before) = middle;
    }
    endsAt(end);
}

} // namespace ceiechart
