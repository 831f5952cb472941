// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_HANDLE_P_H
#define CEIECHART_SCENE_HANDLE_P_H

#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/fences_p.h>

#include <array>
#include <optional>

namespace ceiechart {

/*! \brief A handle of the target gamut. Signatures number the handles in several ways; see HandleNumbers. */
enum class Handle { None, Red, Green, Blue, White };

/*! \brief The numbers of a handle in the shared enums and in the colour regions. */
struct HandleNumbers {
    Handle handle;
    int tab; //!< a TabSelectedType
    std::optional<int> area; //!< a ColorArea; the white point has none
    std::optional<Region> region; //!< the colour region of a primary
};

constexpr std::array<HandleNumbers, 5> handleNumbers{{
    {Handle::None, NewCEIE::TabSelectedNone, NewCEIE::ColorAreaNone, NoRegion},
    {Handle::Red, NewCEIE::TabSelectedRed, NewCEIE::ColorAreaRed, RedRegion},
    {Handle::Green, NewCEIE::TabSelectedGreen, NewCEIE::ColorAreaGreen, GreenRegion},
    {Handle::Blue, NewCEIE::TabSelectedBlue, NewCEIE::ColorAreaBlue, BlueRegion},
    {Handle::White, NewCEIE::TabSelectedWhite, std::nullopt, std::nullopt},
}};

/*! \brief The handle with the TabSelectedType \a tab; none if \a tab is not a TabSelectedType. */
constexpr std::optional<Handle> handleOfTab(int tab)
{
    for (const HandleNumbers &numbers : handleNumbers) {
        if (numbers.tab == tab) {
            return numbers.handle;
        }
    }
    return std::nullopt;
}

/*! \brief The handle with the ColorArea \a area; none if \a area is not a ColorArea. */
constexpr std::optional<Handle> handleOfArea(int area)
{
    for (const HandleNumbers &numbers : handleNumbers) {
        if (numbers.area == area) {
            return numbers.handle;
        }
    }
    return std::nullopt;
}

/*! \brief The handle of the primary that belongs to \a region; Handle::None for NoRegion. */
constexpr Handle handleOfRegion(Region region)
{
    for (const HandleNumbers &numbers : handleNumbers) {
        if (numbers.region == region) {
            return numbers.handle;
        }
    }
    return Handle::None;
}

} // namespace ceiechart

#endif
