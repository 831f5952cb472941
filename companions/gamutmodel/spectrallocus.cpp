// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/spectrallocus.h>

#include <gamutmodel/cie1931_p.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Model {

namespace {

/*! \brief Between p1 and p2, with the slopes that the neighbours give (Catmull-Rom). */
double cubic(double p0, double p1, double p2, double p3, double s)
{
    return p1 + ((p2 - p0) + ((p0 * 2.0 - p1 * 5.0 + p2 * 4.0 - p3) + ((p1 - p2) * 3.0 + p3 - p0) * s) * s) * (0.5 * s);
}

} // namespace

DiagramPoint spectralChromaticity(double wavelength)
{
    if (std::isnan(wavelength)) {
        return {wavelength, wavelength};
    }
    constexpr int count = int(std::size(cie1931));
    // Each piece needs a neighbour on either side.
    const double place = std::clamp(wavelength - cie1931[0].wavelength, 1.0, count - 2.0);
    const int node = std::min(int(place), count - 3);
    const auto at = [node, s = place - node](double ColorMatching::*value) {
        const ColorMatching *row = cie1931 + node;
        return cubic(row[-1].*value, row[0].*value, row[1].*value, row[2].*value, s);
    };
    const double x = at(&ColorMatching::x);
    const double y = at(&ColorMatching::y);
    const double z = at(&ColorMatching::z);
    const double sum = x + y + z;
    return {x / sum, y / sum};
}

} // namespace Model
