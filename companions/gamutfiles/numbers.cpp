// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "numbers_p.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>

namespace gamutfiles {

namespace {

constexpr QChar point = QLatin1Char('.');
constexpr QChar comma = QLatin1Char(',');

//! Longer fields are no numbers: the longest double without an exponent has fewer characters.
constexpr int longestNumber = 400;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool areDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

//! Spaces and apostrophes; no file uses them for decimals.
bool isNeutralSeparator(QChar c)
{
    // Space, no-break space, figure space, thin space, narrow no-break space; straight and curved apostrophe.
    return QStringLiteral(" \u00A0\u2007\u2009\u202F'\u2019").contains(c);
}

//! The digits of \a text without separators, and the separator; nothing when the groups are not of three.
std::optional<std::pair<QString, QChar>> withoutGroups(const QString &text, QChar otherSign)
{
    const auto first = std::find_if_not(text.begin(), text.end(), isDigit);
    if (first == text.end()) {
        return std::make_pair(text, QChar());
    }
    if (*first != otherSign && !isNeutralSeparator(*first)) {
        return std::nullopt;
    }
    const QStringList groups = text.split(*first);
    const QString &leading = groups.first();
    if (leading.isEmpty() || leading.size() > 3 || leading.startsWith(QLatin1Char('0'))) {
        return std::nullopt;
    }
    const bool ofThree = std::all_of(
        groups.begin() + 1, groups.end(), [](const QString &group) { return group.size() == 3 && areDigits(group); });
    return ofThree ? std::make_optional(std::make_pair(groups.join(QString()), *first)) : std::nullopt;
}

//! Whether a number can begin with \a c. Most of what is no number is told by that.
bool canBeginNumber(QChar c)
{
    return isDigit(c) || c == point || c == comma || c == QLatin1Char('-') || c == QLatin1Char('+')
        || c == QChar(0x2212);
}

//! The number as C++ writes it, before it is known to be finite.
struct Spelling {
    QString text;
    bool hasDecimals = false;
    QChar thousandsSeparator;
};

std::optional<Spelling> spelling(const QString &field, QChar decimalSign)
{
    if (field.size() > longestNumber) {
        return std::nullopt;
    }
    QString rest = field.trimmed();
    if (!rest.isEmpty() && !canBeginNumber(rest.at(0))) {
        return std::nullopt;
    }
    QString sign;
    // Typesetters' minus U+2212, which spreadsheets take over from texts.
    if (rest.startsWith(QLatin1Char('-')) || rest.startsWith(QChar(0x2212))) {
        sign = QStringLiteral("-");
        rest.remove(0, 1);
    } else if (rest.startsWith(QLatin1Char('+'))) {
        rest.remove(0, 1);
    }
    QString exponent;
    const int exponentBegin = int(rest.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive));
    if (exponentBegin >= 0) {
        exponent = rest.mid(exponentBegin + 1);
        rest.truncate(exponentBegin);
        const bool hasSign = exponent.startsWith(QLatin1Char('-')) || exponent.startsWith(QLatin1Char('+'));
        const QString digits = exponent.mid(hasSign ? 1 : 0);
        if (digits.isEmpty() || !areDigits(digits)) {
            return std::nullopt;
        }
        exponent.prepend(QLatin1Char('e'));
    }
    const int decimals = int(rest.lastIndexOf(decimalSign));
    const QString fraction = decimals < 0 ? QString() : rest.mid(decimals + 1);
    const QString whole = decimals < 0 ? rest : rest.left(decimals);
    const auto ungrouped = withoutGroups(whole, decimalSign == point ? comma : point);
    if (!ungrouped || !areDigits(fraction) || (ungrouped->first.isEmpty() && fraction.isEmpty())
        || (!ungrouped->second.isNull() && !exponent.isEmpty())) {
        return std::nullopt;
    }
    return Spelling{sign + ungrouped->first + point + fraction + exponent, decimals >= 0, ungrouped->second};
}

//! Digits with at most one point or comma in them, as most numbers are.
struct PlainNumber {
    QChar divider; // null: none
    qsizetype whole = 0; // digits before it
    qsizetype decimals = 0; // and behind it
    bool beginsWithZero = false;
};

//! Nothing where \a text is anything else, for which spelling() is needed.
std::optional<PlainNumber> plainNumber(const QString &text)
{
    const auto begin = text.begin() + (text.startsWith(QLatin1Char('-')) ? 1 : 0);
    const auto divider = std::find_if_not(begin, text.end(), isDigit);
    PlainNumber number{QChar(), divider - begin, 0, divider != begin && *begin == QLatin1Char('0')};
    if (divider != text.end()) {
        number.divider = *divider;
        number.decimals = text.end() - divider - 1;
        if ((*divider != point && *divider != comma) || !std::all_of(divider + 1, text.end(), isDigit)) {
            return std::nullopt;
        }
    }
    const bool isNumber = number.whole + number.decimals > 0 && text.size() <= longestNumber;
    return isNumber ? std::make_optional(number) : std::nullopt;
}

//! The nearest double; nothing where that takes more than to divide two whole numbers that doubles have exactly.
std::optional<double> valueOf(const PlainNumber &number, const QString &text)
{
    constexpr std::array powers{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr int mostDigits = 15;
    if (FLT_EVAL_METHOD != 0 || number.whole + number.decimals > mostDigits) {
        return std::nullopt;
    }
    qint64 digits = 0;
    for (const QChar c : text) {
        digits = isDigit(c) ? 10 * digits + (c.unicode() - '0') : digits;
    }
    const double value = double(digits) / powers[std::size_t(number.decimals)];
    return text.startsWith(QLatin1Char('-')) ? -value : value;
}

//! What spelling() comes to.
DecimalEvidence evidenceOf(const PlainNumber &number)
{
    if (number.divider.isNull()) {
        return DecimalEvidence::None;
    }
    if (number.whole > 0 && number.whole <= 3 && !number.beginsWithZero && number.decimals == 3) {
        return DecimalEvidence::Ambiguous; // of thousands
    }
    return number.divider == point ? DecimalEvidence::Point : DecimalEvidence::Comma;
}

} // namespace

DecimalEvidence decimalEvidence(const QString &text)
{
    if (const auto plain = plainNumber(text)) {
        return evidenceOf(*plain);
    }
    const auto withPoint = spelling(text, point);
    const auto withComma = spelling(text, comma);
    if (!withPoint && !withComma) {
        return DecimalEvidence::NotANumber;
    }
    if (withPoint && withComma) {
        return withPoint->text == withComma->text ? DecimalEvidence::None : DecimalEvidence::Ambiguous;
    }
    return withPoint ? DecimalEvidence::Point : DecimalEvidence::Comma;
}

bool isNumber(const QString &text)
{
    return decimalEvidence(text) != DecimalEvidence::NotANumber;
}

bool isDashOrNothing(const QString &text)
{
    // Hyphen-minus, the hyphens and dashes of Unicode up to the horizontal bar, minus.
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.isSpace() || c == QLatin1Char('-') || (c >= QChar(0x2010) && c <= QChar(0x2015)) || c == QChar(0x2212);
    });
}

bool isNotMeasured(const QString &text)
{
    static const QStringList words{QStringLiteral("n/a"), QStringLiteral("n.a."), QStringLiteral("na"),
        QStringLiteral("nan"), QStringLiteral("-nan"), QStringLiteral("nan(ind)"), QStringLiteral("-nan(ind)"),
        QStringLiteral("1.#ind"), QStringLiteral("-1.#ind"), QStringLiteral("1.#qnan"), QStringLiteral("-1.#qnan"),
        QStringLiteral("null"), QStringLiteral("none"), QStringLiteral("/"), QStringLiteral("#n/a"),
        QStringLiteral("#nv"), QStringLiteral("#div/0!")};
    return isDashOrNothing(text) || (!plainNumber(text) && words.contains(text.trimmed(), Qt::CaseInsensitive));
}

std::optional<Number> readNumber(const QString &text, QChar decimalSign)
{
    const auto plain = plainNumber(text);
    const bool isPlain = plain && (plain->divider.isNull() || plain->divider == decimalSign);
    if (const auto value = isPlain ? valueOf(*plain, text) : std::nullopt) {
        return Number{*value, !plain->divider.isNull(), QChar()};
    }
    const auto spelled = spelling(text, decimalSign);
    if (!spelled) {
        return std::nullopt;
    }
    bool ok = false;
    const double value = spelled->text.toDouble(&ok);
    return ok && std::isfinite(value)
        ? std::make_optional(Number{value, spelled->hasDecimals, spelled->thousandsSeparator})
        : std::nullopt;
}

} // namespace gamutfiles
