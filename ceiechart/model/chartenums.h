// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_CHARTENUMS_H
#define CEIECHART_MODEL_CHARTENUMS_H

/*!
 * \file
 * \brief The enums that scenes, views and legends share, once per generation of the classes.
 *
 * The enums of the two generations are types of their own with the same values. Their enumerators differ in
 * name, so that a host may use both generations, and using-directives, in one translation unit.
 */

namespace NewCEIE {

/*! \brief The handle of the target gamut that is selected for keyboard editing. */
enum TabSelectedType {
    TabSelectedNone = 0,
    TabSelectedGreen = 1,
    TabSelectedWhite = 2,
    TabSelectedBlue = 3,
    TabSelectedRed = 4
};

/*! \brief The primary's handle that the pointer is over or drags; the white point is tracked apart. */
enum ColorArea { ColorAreaNone = 0, ColorAreaRed = 1, ColorAreaGreen = 2, ColorAreaBlue = 3 };

/*! \brief Pointer shapes: the parameter of the view's signal_mouseCursorChange(), which nothing emits. */
enum MouseCursorStyle {
    MouseCursorArrow = 0,
    MouseCursorCross = 1,
    MouseCursorPointingHand = 2,
    MouseCursorOpenHand = 3,
    MouseCursorClosedHand = 4,
    MouseCursorBlank = 5
};

} // namespace NewCEIE

/*! \brief As NewCEIE::TabSelectedType, for the legacy classes. */
enum TabSelectedType {
    LegacyTabSelectedNone = 0,
    LegacyTabSelectedGreen = 1,
    LegacyTabSelectedWhite = 2,
    LegacyTabSelectedBlue = 3,
    LegacyTabSelectedRed = 4
};

/*! \brief As NewCEIE::ColorArea, for the legacy classes. */
enum ColorArea { LegacyColorAreaNone = 0, LegacyColorAreaRed = 1, LegacyColorAreaGreen = 2, LegacyColorAreaBlue = 3 };

/*! \brief As NewCEIE::MouseCursorStyle, for the legacy classes. */
enum MouseCursorStyle {
    LegacyMouseCursorArrow = 0,
    LegacyMouseCursorCross = 1,
    LegacyMouseCursorPointingHand = 2,
    LegacyMouseCursorOpenHand = 3,
    LegacyMouseCursorClosedHand = 4,
    LegacyMouseCursorBlank = 5
};

#endif // CEIECHART_MODEL_CHARTENUMS_H
