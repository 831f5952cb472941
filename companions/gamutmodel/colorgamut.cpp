// SPDX-License-Identifier: MIT
#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>

#include <cmath>
#include <utility>

namespace Model {

namespace {

struct Chromaticity {
    double x;
    double y;
};

/*! \brief The chromaticity of D65 in all three standards. */
constexpr Chromaticity d65{0.3127, 0.3290};

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

/*! \brief The gamut of the given primaries, whose luminances mix to a white of luminance 1. */
ColorGamut gamut(const char *name, Chromaticity red, Chromaticity green, Chromaticity blue, Chromaticity white)
{
    // With S = X + Y + Z of each colour, the mixture requires that the sums of x S, y S and S over the primaries equal
    // those of the white. The share of a primary in the S of the white is therefore the area of the triangle in which
    // the white replaces that primary, divided by the area of the whole triangle.
    const auto area = [](Chromaticity a, Chromaticity b, Chromaticity c) {
        return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    };
    const double total = area(red, green, blue);
    const auto luminance = [&](Chromaticity primary, double share) { return share / total * primary.y / white.y; };
    return ColorGamut(name,
        {Target::fromYxy(luminance(red, area(white, green, blue)), red.x, red.y),
            Target::fromYxy(luminance(green, area(red, white, blue)), green.x, green.y),
            Target::fromYxy(luminance(blue, area(red, green, white)), blue.x, blue.y),
            Target::fromYxy(1.0, white.x, white.y)});
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

ColorGamut rec709()
{
    return gamut("Rec.709", {0.640, 0.330}, {0.300, 0.600}, {0.150, 0.060}, d65);
}

ColorGamut rec2020()
{
    return gamut("Rec.2020", {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}, d65);
}

ColorGamut dciP3D65()
{
    return gamut("DCI-P3(D65)", {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, d65);
}

std::vector<ColorGamut> standardGamuts()
{
    return {rec709(), rec2020(), dciP3D65()};
}

} // namespace Model
