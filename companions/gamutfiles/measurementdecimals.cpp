// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <algorithm>
#include <array>

namespace gamutfiles {

bool MeasurementReader::decideDecimalSign()
{
    struct Found {
        QString text;
        QString where;
    };
    std::array<std::optional<Found>, 5> found; // the first of each kind of evidence
    const auto kind
        = [&found](DecimalEvidence evidence) -> std::optional<Found> & { return found[std::size_t(evidence)]; };
    bool otherPoint = false; // in columns that are not read
    bool otherComma = false;
    bool ambiguousComma = false;
    bool ambiguousPoint = false;
    for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
        const CsvRow &row = m_table.rows.at(i);
        for (int column = 0; column < row.fields.size(); ++column) {
            const QString &text = row.fields.at(column);
            const auto part = std::find_if(m_numberParts.begin(), m_numberParts.end(),
                [&](ColumnPart candidate) { return columnOf(candidate) == column; });
            const DecimalEvidence evidence = decimalEvidence(text);
            if (part == m_numberParts.end()) {
                otherPoint = otherPoint || evidence == DecimalEvidence::Point;
                otherComma = otherComma || evidence == DecimalEvidence::Comma;
                continue;
            }
            if (!kind(evidence)) {
                kind(evidence) = Found{excerpt(text.trimmed()), place(row.line, *part)};
            }
            ambiguousComma
                = ambiguousComma || (evidence == DecimalEvidence::Ambiguous && text.contains(QLatin1Char(',')));
            ambiguousPoint
                = ambiguousPoint || (evidence == DecimalEvidence::Ambiguous && text.contains(QLatin1Char('.')));
        }
    }
    const auto &point = kind(DecimalEvidence::Point);
    const auto &comma = kind(DecimalEvidence::Comma);
    if (m_options.decimalSign) {
        m_decimalSign = *m_options.decimalSign;
        return true;
    }
    if (point && comma) {
        return fail(tr("\"%1\" has a decimal comma, but \"%2\" (%3) has a decimal point: state the decimal sign")
                        .arg(comma->text, point->text, point->where),
            comma->where);
    }
    const auto &ambiguous = kind(DecimalEvidence::Ambiguous);
    if (point || comma || !ambiguous) {
        m_decimalSign = QLatin1Char(comma ? ',' : '.');
        return true;
    }
    // A column that is not read may be a date or a version: it can confirm decimals, but not make thousands of them.
    const bool makesThousands = otherComma ? ambiguousPoint : ambiguousComma;
    if (otherPoint != otherComma && !makesThousands) {
        m_decimalSign = QLatin1Char(otherComma ? ',' : '.');
        return true;
    }
    if (otherPoint == otherComma && m_table.separator == QLatin1Char(',') && !ambiguousComma) {
        // Where the comma divides fields it does not divide numbers.
        warn(tr("\"%1\" is read with a decimal point; state the decimal sign if the point divides thousands")
                 .arg(ambiguous->text),
            ambiguous->where);
        return true;
    }
    QString plain = ambiguous->text;
    plain.remove(QLatin1Char('.')).remove(QLatin1Char(','));
    QString decimal = ambiguous->text;
    decimal.replace(QLatin1Char(','), QLatin1Char('.'));
    return fail(tr("\"%1\" can be %2 or %3, and no other number that is read tells: state the decimal sign")
                    .arg(ambiguous->text, plain, decimal),
        ambiguous->where);
}

/*
 * Whether "1,000" or "100,5", written between commas without quotes, became two fields. What follows moves to the next
 * columns, where it can still be a colour: a black, or with "000" as its x.
 */
bool MeasurementReader::isDivided(const CsvRow &row, const Measurement &measurement) const
{
    if (m_table.separator != QLatin1Char(',')) {
        return false;
    }
    const auto begin = row.fields.begin();
    const auto hasMoreThan = [&](int columns) {
        return std::any_of(begin + std::min(columns, int(row.fields.size())), row.fields.end(), isNumber);
    };
    const bool hasMore = hasMoreThan(m_headerFields > 0 ? m_headerFields : int(m_numberParts.size()) + 1);
    const auto isTail = [&](ColumnPart part) {
        const QString text = given(row, part);
        return text.size() == 3 && text.startsWith(QLatin1Char('0')) && text.at(1).isDigit() && text.at(2).isDigit();
    };
    if (std::any_of(m_numberParts.begin(), m_numberParts.end(), isTail)) {
        return true;
    }
    // A number below a header without a name can be a further column, or the rest of numbers that were divided.
    const auto hasPoint = [&](ColumnPart part) { return given(row, part).contains(QLatin1Char('.')); };
    const bool canBeColumn = !has(ColumnPart::X) && std::any_of(m_numberParts.begin(), m_numberParts.end(), hasPoint);
    if (m_headerFields > m_width && hasMoreThan(m_width) && !canBeColumn) {
        return true;
    }
    return hasMore && (m_headerFields > 0 || (!measurement.color && measurement.luminance > 0.0));
}

} // namespace gamutfiles
