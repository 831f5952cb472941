// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>

#include <array>

namespace ceiechart {

namespace {

/*!
 * \brief The corners of the regions in CIE 1931 x, y. All three regions share their first corner, near the equal-energy
 * white.
 */
constexpr std::array<PointF, 4> redFence{{{0.33F, 0.33F}, {0.493F, 0.517F}, {0.744F, 0.262F}, {0.427F, 0.109F}}};

constexpr std::array<PointF, 11> greenFence{
    {{0.33F, 0.33F}, {0.493F, 0.517F}, {0.22F, 0.77F}, {0.118F, 0.83F}, {0.073F, 0.84F}, {0.026F, 0.794F},
        {0.007F, 0.726F}, {0.004F, 0.598F}, {0.009F, 0.503F}, {0.028F, 0.361F}, {0.041F, 0.309F}}};

constexpr std::array<PointF, 9> blueFence{{{0.33F, 0.33F}, {0.433F, 0.113F}, {0.179F, 0.001F}, {0.16F, 0.002F},
    {0.151F, 0.007F}, {0.145F, 0.014F}, {0.123F, 0.043F}, {0.08F, 0.146F}, {0.041F, 0.291F}}};

} // namespace

Region regionOf(const PointF &chroma) noexcept
{
    if (polygonContains(chroma, redFence)) {
        return RedRegion;
    }
    if (polygonContains(chroma, greenFence)) {
        return GreenRegion;
    }
    return polygonContains(chroma, blueFence) ? BlueRegion : NoRegion;
}

} // namespace ceiechart
