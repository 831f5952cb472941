// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/colortemperature.h>
#include <colortemperature/planckianlocus_p.h>

#include <cmath>

namespace {

/*!
 * \brief Whether x and y are in the range in which u and v are small and their denominator -2x + 12y + 3 is above 1.
 *
 * The range is compared only after the tests for finite numbers, so that no floating-point exception is raised.
 */
bool isUsable(double x, double y)
{
    return std::isfinite(x) && std::isfinite(y) && x >= -1.0 && x <= 1.0 && y > 0.0 && y <= 1.0;
}

} // namespace

double GetColorTemperatureFromXY(double x, double y, double *temperature)
{
    double kelvin = 0.0;
    double duv = 0.0;
    if (isUsable(x, y)) {
        const double denominator = -2.0 * x + 12.0 * y + 3.0;
        const ceiechart::LocusFoot foot = ceiechart::nearestOnLocus(4.0 * x / denominator, 6.0 * y / denominator);
        kelvin = 1e6 / foot.mired;
        duv = foot.duv;
    }
    if (temperature) {
        *temperature = kelvin;
    }
    return duv;
}
