// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_CHARTENUMS_H
#define CEIECHART_MODEL_CHARTENUMS_H

/*!
 * \file
 * \brief The enums that scenes and views share, once for each generation of the classes.
 *
 * The enums of the two generations are separate types with the same values. The enumerators have different names so
 * that a host can use both generations in one translation unit, even with using-directives.
 */

namespace NewCEIE {

/*! \brief A handle of the target gamut: the one selected for editing. */
enum TabSelectedType {
    TabSelectedNone = 0,
    TabSelectedGreen = 1,
    TabSelectedWhite = 2,
    TabSelectedBlue = 3,
    TabSelectedRed = 4
};

/*! \brief A primary of the target gamut, as its handle is drawn. The white point is not one of them. */
enum ColorArea { ColorAreaNone = 0, ColorAreaRed = 1, ColorAreaGreen = 2, ColorAreaBlue = 3 };

/*! \brief Pointer shapes: the parameter of signal_mouseCursorChange() of the view, which is never emitted. */
enum MouseCursorStyle {
    MouseCursorArrow = 0,
    MouseCursorCross = 1,
    MouseCursorPointingHand = 2,
    MouseCursorOpenHand = 3,
    MouseCursorClosedHand = 4,
    MouseCursorBlank = 5
};

} // namespace NewCEIE

/*! \brief Like NewCEIE::TabSelectedType, for the legacy classes. */
enum TabSelectedType {
    LegacyTabSelectedNone = 0,
    LegacyTabSelectedGreen = 1,
    LegacyTabSelectedWhite = 2,
    LegacyTabSelectedBlue = 3,
    LegacyTabSelectedRed = 4
};

/*! \brief Like NewCEIE::ColorArea, for the legacy classes. */
enum ColorArea { LegacyColorAreaNone = 0, LegacyColorAreaRed = 1, LegacyColorAreaGreen = 2, LegacyColorAreaBlue = 3 };

/*! \brief Like NewCEIE::MouseCursorStyle, for the legacy classes. */
enum MouseCursorStyle {
    LegacyMouseCursorArrow = 0,
    LegacyMouseCursorCross = 1,
    LegacyMouseCursorPointingHand = 2,
    LegacyMouseCursorOpenHand = 3,
    LegacyMouseCursorClosedHand = 4,
    LegacyMouseCursorBlank = 5
};

#endif // CEIECHART_MODEL_CHARTENUMS_H
