// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_LEDCOLORTYPE_H
#define CEIECHART_MODEL_LEDCOLORTYPE_H

// A host may have included headers of its window system that define the name of an enumerator as a macro.
#pragma push_macro("None")
#undef None

/*! \brief Types that are not specific to the chart. */
namespace baseCommon {

/*!
 * \brief The primary of the target gamut that lies outside the original gamut.
 *
 * The primaries are tested in the order red, green, blue, and only the first one outside is reported.
 */
enum LEDColorType {
    Red = 0,
    Green = 1,
    Blue = 2,
    None = 3 //!< all three primaries lie inside
};

} // namespace baseCommon

#pragma pop_macro("None")

#endif // CEIECHART_MODEL_LEDCOLORTYPE_H
