// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/dominantwavelength.h>

#include <gamutmodel/cie1931_p.h>
#include <gamutmodel/plane_p.h>
#include <gamutmodel/spectrallocus.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace Model {

namespace {

constexpr int firstNode = int(shortestWavelength);
constexpr int nodeCount = int(longestWavelength) - firstNode + 1;
constexpr double lastWavelength = cie1931[std::size(cie1931) - 1].wavelength;

using Nodes = std::array<DiagramPoint, nodeCount>;

/*! \brief The chromaticities of the locus at its whole nanometres, clockwise round every white. */
constexpr Nodes nodes = [] {
    Nodes points{};
    for (int i = 0; i < nodeCount; ++i) {
        const ColorMatching &row = cie1931[firstNode + i - cie1931[0].wavelength];
        points[std::size_t(i)] = {row.x / (row.x + row.y + row.z), row.y / (row.x + row.y + row.z)};
    }
    return points;
}();

/*! \brief The vectors from a white to the nodes; nothing unless they go round the white once. */
std::optional<Nodes> seenFrom(const DiagramPoint &white)
{
    if (!isFinite(white)) {
        return std::nullopt;
    }
    Nodes seen;
    std::transform(nodes.begin(), nodes.end(), seen.begin(), [&](const DiagramPoint &node) { return node - white; });
    for (std::size_t i = 0; i < seen.size(); ++i) {
        // The last pair are the ends of the line of purples.
        if (!(cross(seen[i], seen[(i + 1) % seen.size()]) < 0.0)) {
            return std::nullopt;
        }
    }
    return seen;
}

/*! \brief Whether \a direction points between \a a and \a b, which is to the right of \a a. */
bool isBetween(const DiagramPoint &direction, const DiagramPoint &a, const DiagramPoint &b)
{
    return cross(a, direction) <= 0.0 && cross(b, direction) >= 0.0;
}

/*! \brief Whether \a direction points to \a end, but for rounding. */
bool pointsTo(const DiagramPoint &direction, const DiagramPoint &end)
{
    constexpr double rounding = 1e-12; // rad
    return std::fabs(cross(end, direction)) <= rounding * length(end) * length(direction) && dot(end, direction) > 0.0;
}

/*!
 * \brief The wavelength at which the ray from \a white in \a direction meets the locus; nothing if it does not.
 *
 * Light of the ends of the locus must not become a purple by rounding.
 */
std::optional<double> wavelengthAlong(const DiagramPoint &direction, const DiagramPoint &white, const Nodes &seen)
{
    for (int i = 0; i + 1 < nodeCount; ++i) {
        if (!isBetween(direction, seen[std::size_t(i)], seen[std::size_t(i) + 1])) {
            continue;
        }
        double before = firstNode + i;
        double after = before + 1.0;
        for (;;) {
            const double middle = before + (after - before) / 2.0;
            if (middle <= before || middle >= after) {
                return middle;
            }
            (cross(spectralChromaticity(middle) - white, direction) <= 0.0 ? before : after) = middle;
        }
    }
    if (pointsTo(direction, seen.front())) {
        return shortestWavelength;
    }
    return pointsTo(direction, seen.back()) ? std::make_optional(longestWavelength) : std::nullopt;
}

/*!
 * \brief The vector from the white in \a direction to the line of purples, between whose ends it has to lie.
 *
 * A hue at an end may miss it by rounding.
 */
std::optional<DiagramPoint> purpleAlong(const DiagramPoint &direction, const Nodes &seen)
{
    constexpr double rounding = 1e-9; // of the length of the line
    const DiagramPoint &red = seen.back();
    const DiagramPoint line = seen.front() - red;
    const double slant = cross(direction, line);
    const double part = cross(red, direction) / slant;
    const double distance = cross(red, line) / slant;
    if (!(distance > 0.0 && part >= -rounding && part <= 1.0 + rounding)) {
        return std::nullopt;
    }
    return distance * direction;
}

} // namespace

std::optional<DominantWavelength> dominantWavelength(DiagramPoint xy, DiagramPoint white)
{
    constexpr double least = 1e-12;
    const DiagramPoint direction = xy - white;
    const std::optional<Nodes> seen = seenFrom(white);
    if (!seen || !isFinite(direction) || length(direction) < least) {
        return std::nullopt;
    }
    if (const auto wavelength = wavelengthAlong(direction, white, *seen)) {
        return DominantWavelength{*wavelength, length(direction) / length(spectralChromaticity(*wavelength) - white)};
    }
    const auto complementary = wavelengthAlong(-1.0 * direction, white, *seen);
    const auto purple = purpleAlong(direction, *seen);
    if (!complementary || !purple) {
        return std::nullopt;
    }
    return DominantWavelength{-*complementary, length(direction) / length(*purple)};
}

std::optional<DiagramPoint> chromaticityOf(const DominantWavelength &hue, DiagramPoint white)
{
    const double wavelength = std::fabs(hue.wavelength);
    const std::optional<Nodes> seen = seenFrom(white);
    if (!seen || !(wavelength >= shortestWavelength && wavelength <= lastWavelength) || !std::isfinite(hue.purity)
        || hue.purity < 0.0) {
        return std::nullopt;
    }
    const DiagramPoint onLocus = spectralChromaticity(std::min(wavelength, longestWavelength)) - white;
    if (hue.wavelength > 0.0) {
        return white + hue.purity * onLocus;
    }
    const auto purple = purpleAlong(-1.0 * onLocus, *seen);
    return purple ? std::make_optional(white + hue.purity * *purple) : std::nullopt;
}

} // namespace Model
