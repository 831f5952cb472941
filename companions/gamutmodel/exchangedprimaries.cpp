// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/exchangedprimaries.h>

#include <gamutmodel/plane_p.h>

#include <array>

namespace Model {

namespace {

constexpr Primary allPrimaries[] = {Primary::Red, Primary::Green, Primary::Blue};
constexpr SeemingPrimaries exchanges[] = {
    {Primary::Green, Primary::Red, Primary::Blue},
    {Primary::Blue, Primary::Green, Primary::Red},
    {Primary::Red, Primary::Blue, Primary::Green},
    {Primary::Green, Primary::Blue, Primary::Red},
    {Primary::Blue, Primary::Red, Primary::Green},
};

using Points = std::array<DiagramPoint, 3>;

Points pointsOf(const Targets &targets)
{
    const auto point = [](const Target &color) { return toDiagram(Diagram::Cie1976, {color.x, color.y}); };
    return {point(targets.red), point(targets.green), point(targets.blue)};
}

/*! \brief Whether primaries at the squares of \a distances (of the first index from what the second is) are what \a
 * seeming says. */
bool agrees(const std::array<std::array<double, 3>, 3> &distances, const SeemingPrimaries &seeming)
{
    constexpr double clearly = 0.5 * 0.5; // of squares
    for (const Primary primary : allPrimaries) {
        const auto &of = distances[std::size_t(primary)];
        const double fromName = of[std::size_t(primary)];
        for (const Primary other : allPrimaries) {
            const double fromOther = of[std::size_t(other)];
            const bool isExchanged = other != primary && seeming.of(primary) == other;
            const bool stays = seeming.of(primary) == primary;
            // Comparisons with what is not a number are false.
            if ((isExchanged && !(fromOther < clearly * fromName)) || (stays && !(fromName <= fromOther))) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

std::optional<SeemingPrimaries> exchangedPrimaries(const Targets &display)
{
    static const Points named = pointsOf(rec709().getTargets());
    const Points points = pointsOf(display);
    std::array<std::array<double, 3>, 3> distances{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            const DiagramPoint way = points[i] - named[k];
            distances[i][k] = dot(way, way);
        }
    }
    for (const SeemingPrimaries &seeming : exchanges) {
        if (agrees(distances, seeming)) {
            return seeming;
        }
    }
    return std::nullopt;
}

} // namespace Model
