// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/horseshoefill_p.h>

#include <cmath>

namespace ceiechart {

Channels primaryAmounts(const CEIAtlasValue::TColorSystem &system, double x, double y, double z) noexcept
{
    const double xR = system.xRed;
    const double yR = system.yRed;
    const double xG = system.xGreen;
    const double yG = system.yGreen;
    const double xB = system.xBlue;
    const double yB = system.yBlue;
    const double zR = 1 - xR - yR;
    const double zG = 1 - xG - yG;
    const double zB = 1 - xB - yB;

    const double d = zR * (xG * yB - xB * yG) - zG * (xR * yB - xB * yR) + zB * (xR * yG - xG * yR);
    return {(z * (xG * yB - xB * yG) - zG * (x * yB - xB * y) + zB * (x * yG - xG * y)) / d,
        (zR * (x * yB - xB * y) - z * (xR * yB - xB * yR) + zB * (xR * y - x * yR)) / d,
        (zR * (xG * y - x * yG) - zG * (xR * y - x * yR) + z * (xR * yG - xG * yR)) / d};
}

Channels fullBrightness(const Channels &amounts, double gamma) noexcept
{
    const double red = clamp(amounts.red, 0.0, 1.0);
    const double green = clamp(amounts.green, 0.0, 1.0);
    const double blue = clamp(amounts.blue, 0.0, 1.0);
    double largest = green > red ? green : red;
    largest = blue > largest ? blue : largest;
    if (std::abs(gamma - 1) < 0.001) {
        return {red * 255 / largest, green * 255 / largest, blue * 255 / largest};
    }
    return {std::pow(red / largest, gamma) * 255, std::pow(green / largest, gamma) * 255,
        std::pow(blue / largest, gamma) * 255};
}

} // namespace ceiechart
