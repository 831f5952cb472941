// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_NUMBERS_P_H
#define GAMUTFILES_NUMBERS_P_H

#include <QString>

#include <optional>

namespace gamutfiles {

/*! \brief What one number tells about the decimal sign of the file that it stands in. */
enum class DecimalEvidence {
    NotANumber, //!< neither with a decimal point nor with a decimal comma
    None, //!< a whole number, with or without thousands separators that are no point or comma
    Point, //!< a number with a decimal point only
    Comma, //!< a number with a decimal comma only
    Ambiguous //!< two different numbers, such as "1,234" and "1.234"
};

/*!
 * \brief Reads \a text, white space around it aside, as a number with each decimal sign.
 *
 * Digits before the decimal sign may be in groups of three, divided by the other sign, by spaces of any width or by
 * apostrophes; a first group that begins with 0 is none. A number with an exponent has no groups.
 */
DecimalEvidence decimalEvidence(const QString &text);

/*! \brief Whether \a text, white space around it aside, is a number with either decimal sign. */
bool isNumber(const QString &text);

/*! \brief Whether \a text has nothing but white space and dashes. */
bool isDashOrNothing(const QString &text);

/*!
 * \brief Whether \a text says that there is no number: dashes or nothing, "n/a", "NaN" in the spellings of several
 * compilers, a lone stroke, or what spreadsheets show for a division by zero.
 */
bool isNotMeasured(const QString &text);

/*! \brief A number that was read. */
struct Number {
    double value = 0.0; //!< finite
    bool hasDecimals = false; //!< whether it has a decimal sign
    QChar thousandsSeparator; //!< null when it has none
};

/*! \brief The number that \a text is with the decimal sign \a decimalSign; nothing when it is none or is not finite. */
std::optional<Number> readNumber(const QString &text, QChar decimalSign);

} // namespace gamutfiles

#endif
