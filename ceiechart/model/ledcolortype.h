// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_LEDCOLORTYPE_H
#define CEIECHART_MODEL_LEDCOLORTYPE_H

/*! \brief Types that are not only the chart's. */
namespace baseCommon {

/*!
 * \brief The primary of the target gamut that lies outside the reference gamut.
 *
 * Tested in the order red, green, blue; only the first that lies outside is reported.
 */
enum LEDColorType {
    Red = 0,
    Green = 1,
    Blue = 2,
    None = 3 //!< all three lie inside
};

} // namespace baseCommon

#endif // CEIECHART_MODEL_LEDCOLORTYPE_H
