// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "streamrows_p.h"

#include "numbers_p.h"

#include <gamutfiles/measurementstream.h>

#include <algorithm>
#include <utility>

namespace gamutfiles {

namespace {

struct RowsText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::MeasurementStream)
};

QString awaited()
{
    return RowsText::tr("the header and the first measurement are awaited");
}

} // namespace

QString StreamRows::unterminatedQuote()
{
    return RowsText::tr("unterminated quote");
}

bool StreamRows::begin(const QVector<NumberedLine> &lines, const Refusal &refuse)
{
    QString text;
    for (const NumberedLine &line : lines) {
        text += line.text + QLatin1Char('\n');
    }
    m_table = readCsv(text, m_options.separator);
    if (m_table.unterminatedLine > 0) {
        return fail(unterminatedQuote());
    }
    if (m_table.rows.isEmpty()) {
        return fail(awaited());
    }
    for (CsvRow &row : m_table.rows) {
        row.line = int(lines.at(row.line - 1).number);
    }
    if (!findColumns()) {
        return false;
    }
    MeasurementRecognition &recognized = m_list.recognized;
    recognized.separator = m_table.separator;
    const CsvRow &last = m_table.rows.last();
    const auto isNumber
        = [&last](int field) { return decimalEvidence(last.fields.value(field)) != DecimalEvidence::NotANumber; };
    // A line below the header may tell the units. Without a header anything may precede the first measurement.
    if (recognized.headerLine > 0 ? last.line <= recognized.headerLine : !isNumber(1) || !isNumber(2) || !isNumber(3)) {
        return fail(awaited());
    }
    m_decimalSign = m_options.decimalSign.value_or(m_decimalSign);
    for (const CsvRow &row : std::as_const(m_table.rows)) {
        if (isAboveHeader(row)) {
            refuse(row.line, Problem{RowsText::tr("is above the line that names the columns"), QString(), 0, 0});
            keepUnread(row);
        }
    }
    m_firstRows = m_table.rows.mid(m_firstRow);
    m_table.rows.clear();
    m_firstRow = 0;
    return true;
}

bool StreamRows::isHeader(const NumberedLine &line)
{
    m_table = readCsv(line.text, m_options.separator);
    return m_table.rows.size() == 1 && findColumns() && m_list.recognized.headerLine > 0;
}

//! Whether \a row has both decimal points and decimal commas.
bool StreamRows::contradictsItself(const CsvRow &row) const
{
    const auto has = [&](DecimalEvidence evidence) {
        return std::any_of(m_numberParts.begin(), m_numberParts.end(),
            [&](ColumnPart part) { return decimalEvidence(given(row, part)) == evidence; });
    };
    return has(DecimalEvidence::Point) && has(DecimalEvidence::Comma);
}

QVector<Measurement> StreamRows::take(const CsvRow &row, const Refusal &refuse)
{
    QVector<Measurement> found;
    if (m_list.recognized.decimalSign || m_options.decimalSign) {
        read(row, found, refuse);
        return found;
    }
    m_failure = Problem();
    m_table.rows = {row};
    if (contradictsItself(row)) {
        decideDecimalSign();
        refuse(row.line, m_failure);
        keepUnread(row);
        return found;
    }
    m_held.append(row);
    m_table.rows = m_held;
    if (decideDecimalSign()) {
        for (const CsvRow &held : std::exchange(m_held, {})) {
            read(held, found, refuse);
        }
    } else if (m_held.size() >= maximumHeldLines) {
        refuseHeld(refuse);
    }
    m_table.rows.clear();
    return found;
}

void StreamRows::refuseHeld(const Refusal &refuse)
{
    for (const CsvRow &held : std::exchange(m_held, {})) {
        refuse(held.line, m_failure);
        keepUnread(held);
    }
}

Measurement StreamRows::unread(const CsvRow &row)
{
    Measurement measurement = withoutNumbers(row);
    measurement.isUnread = true;
    return measurement;
}

void StreamRows::keepUnread(const CsvRow &row)
{
    m_unread.append(unread(row));
}

QVector<Measurement> StreamRows::heldUnread()
{
    QVector<Measurement> result;
    for (const CsvRow &row : std::as_const(m_held)) {
        result.append(unread(row));
    }
    return result;
}

std::optional<UnfinishedMeasurement> StreamRows::unfinished(const CsvRow &row)
{
    // The field that comes last may go on.
    const auto isWhole = [&](ColumnPart part) { return !has(part) || columnOf(part) + 1 < row.fields.size(); };
    if (!has(ColumnPart::Name)) {
        return std::nullopt;
    }
    UnfinishedMeasurement result;
    result.measurement = unread(row);
    result.isColorKnown = isWhole(ColumnPart::Name);
    result.isCabinetKnown = isWhole(ColumnPart::Cabinet) && isWhole(ColumnPart::Row) && isWhole(ColumnPart::Column);
    return result;
}

void StreamRows::read(const CsvRow &row, QVector<Measurement> &found, const Refusal &refuse)
{
    m_failure = Problem();
    m_withoutNumbers = Lines();
    m_list.measurements.clear();
    m_list.withoutNumbers.clear();
    findNoise(row);
    if (!takeRow(row)) {
        refuse(row.line, m_failure);
        keepUnread(row);
    } else if (m_withoutNumbers.count > 0) {
        refuse(row.line, Problem{RowsText::tr("has no numbers"), place(row.line), 0, 0});
    }
    found += m_list.measurements;
    m_unread += m_list.withoutNumbers;
}

} // namespace gamutfiles
