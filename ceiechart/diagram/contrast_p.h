// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_CONTRAST_P_H
#define CEIECHART_DIAGRAM_CONTRAST_P_H

#include <QColor>

namespace ceiechart {

/*! \brief The least contrast ratio of a line or a mark with its ground: WCAG 2.1, success criterion 1.4.11. */
constexpr double leastLineContrast = 3.0;
/*! \brief The contrast ratio of text with its ground at which it is comfortable: WCAG 2.1, criterion 1.4.6. */
constexpr double comfortableTextContrast = 7.0;

/*! \brief What is seen of \a color over the opaque \a ground. */
QColor composited(const QColor &color, const QColor &ground);

/*! \brief The contrast ratio of two opaque colours, from 1 to 21: WCAG 2.1, relative luminance of sRGB. */
double contrastRatio(const QColor &a, const QColor &b);

/*! \brief Whether black has the greater contrast with the opaque \a ground than white. */
bool isLight(const QColor &ground);

/*! \brief Black or white, whichever has the greater contrast with the opaque \a ground: 4.58 or more. */
QColor textColorOn(const QColor &ground);

/*!
 * \brief \a color, if its contrast ratio with the opaque \a ground is at least \a ratio; otherwise an opaque colour of
 * the same hue that is just dark, or light, enough for it.
 */
QColor legibleOn(const QColor &color, const QColor &ground, double ratio);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_CONTRAST_P_H
