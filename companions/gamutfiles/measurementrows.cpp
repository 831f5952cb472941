// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colornames_p.h"
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gamutfiles {

bool MeasurementReader::readRows()
{
    for (int i = 0; i < m_firstRow; ++i) {
        if (isAboveHeader(m_table.rows.at(i))) {
            return fail(tr("is a measurement above the line that names the columns: move line %1 to the top")
                            .arg(m_list.recognized.headerLine),
                place(m_table.rows.at(i).line));
        }
    }
    for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
        findNoise(m_table.rows.at(i));
    }
    m_list.measurements.reserve(int(m_table.rows.size()));
    for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
        if (!takeRow(m_table.rows.at(i))) {
            return false;
        }
    }
    if (m_list.measurements.isEmpty()) {
        return fail(tr("contains no measurements"));
    }
    warnOfRows();
    return true;
}

//! Adds what \a row measures, if anything, to the list.
bool MeasurementReader::takeRow(const CsvRow &row)
{
    const auto isEmpty = [](const QString &text) { return text.trimmed().isEmpty(); };
    if (std::all_of(row.fields.begin(), row.fields.end(), isEmpty)) {
        return true;
    }
    if (isRepeatedHeader(row)) {
        m_repeatedHeaders.add(row.line);
        return true;
    }
    if (isOtherHeader(row)) {
        return fail(tr("names other columns than line %1: divide the list here").arg(m_list.recognized.headerLine),
            place(row.line));
    }
    if (std::all_of(m_numberParts.begin(), m_numberParts.end(),
            [&](ColumnPart part) { return isNotMeasured(given(row, part)); })) {
        m_withoutNumbers.add(row.line);
        if (namesColorOfCabinet(row)) {
            m_list.withoutNumbers.append(withoutNumbers(row));
        }
        return true;
    }
    if (m_width > 0
        && !std::all_of(row.fields.begin() + std::min(m_width, int(row.fields.size())), row.fields.end(), isEmpty)) {
        m_wider.add(row.line);
    }
    const auto measurement = readRow(row);
    if (!measurement || !hasUnitOfList(row)) {
        return false;
    }
    if (isDivided(row, *measurement)) {
        return fail(tr("the separator seems to divide numbers: quote them or use another separator"), place(row.line));
    }
    m_list.measurements.append(*measurement);
    return true;
}

void MeasurementReader::warnOfRows()
{
    const auto tell = [this](const Lines &lines, const QString &text) {
        if (lines.count > 0) {
            const QString more
                = lines.count > 1 ? tr("; so in %n further line(s)", nullptr, lines.count - 1) : QString();
            warn(text + more, place(lines.first));
        }
    };
    // A cabinet can be called "#5".
    Lines commented;
    for (const CsvRow &row : std::as_const(m_table.comments)) {
        const bool isMeasured = row.line > m_list.recognized.headerLine
            && std::all_of(m_numberParts.begin(), m_numberParts.end(),
                [&](ColumnPart part) { return readNumber(given(row, part), m_decimalSign).has_value(); });
        if (isMeasured) {
            commented.add(row.line);
        }
    }
    tell(commented,
        tr("begins with # and is not read, though it has the numbers of a measurement; to read it, put its first field "
           "in quotes"));
    tell(m_repeatedHeaders, tr("repeats the line that names the columns and is not read"));
    tell(m_withoutNumbers, tr("has no numbers and is not read"));
    tell(m_wider, tr("has more fields than the line that names the columns"));
    tell(m_withoutChromaticity, tr("has a luminance but no chromaticity"));
    tell(m_dark, tr("is as dark as noise, with numbers that no colour has: it is read without a chromaticity"));
    tell(m_belowZero, tr("has a value slightly below 0, as noise gives: it is read as 0"));
    tell(m_otherTristimulus, tr("x and y are not those of X, Y and Z: x and y are read"));
    tell(m_otherUv, tr("x and y are not those of u' and v': x and y are read"));
}

//! Whether \a row names red, green, blue, white or black, and a cabinet.
bool MeasurementReader::namesColorOfCabinet(const CsvRow &row) const
{
    const bool hasCabinet = !given(row, ColumnPart::Cabinet).isEmpty()
        || (!given(row, ColumnPart::Row).isEmpty() && !given(row, ColumnPart::Column).isEmpty());
    return hasCabinet && colorName(given(row, ColumnPart::Name)).part != MeasurementPart::None;
}

//! Whether \a row has all that a measurement has, but stands above the header, as in a list that has been sorted.
bool MeasurementReader::isAboveHeader(const CsvRow &row) const
{
    return row.line < m_list.recognized.headerLine
        && colorName(given(row, ColumnPart::Name)).part != MeasurementPart::None
        && std::all_of(m_numberParts.begin(), m_numberParts.end(),
            [&](ColumnPart part) { return decimalEvidence(given(row, part)) != DecimalEvidence::NotANumber; });
}

//! What \a row says besides its numbers.
Measurement MeasurementReader::withoutNumbers(const CsvRow &row)
{
    Measurement measurement;
    measurement.line = row.line;
    measurement.name = given(row, ColumnPart::Name);
    readPlace(row, measurement);
    return measurement;
}

std::optional<Measurement> MeasurementReader::readRow(const CsvRow &row)
{
    Measurement measurement;
    measurement.line = row.line;
    if (has(ColumnPart::Name)) {
        const auto name = field(row, ColumnPart::Name);
        if (!name) {
            return std::nullopt;
        }
        if (name->isEmpty()) {
            fail(tr("the name must not be empty"), place(row.line, ColumnPart::Name));
            return std::nullopt;
        }
        measurement.name = *name;
    }
    if (!readColor(row, measurement)) {
        return std::nullopt;
    }
    readPlace(row, measurement);
    return measurement;
}

void MeasurementReader::readPlace(const CsvRow &row, Measurement &measurement)
{
    measurement.cabinet = given(row, ColumnPart::Cabinet);
    if (!has(ColumnPart::Row)) {
        return;
    }
    const auto whole = [this](const QString &text) -> std::optional<int> {
        const auto read = readNumber(text, m_decimalSign);
        const bool isInt = read && std::abs(read->value) <= 1e9 && read->value == std::floor(read->value);
        return isInt ? std::make_optional(int(read->value)) : std::nullopt;
    };
    const QString rowText = given(row, ColumnPart::Row);
    const QString columnText = given(row, ColumnPart::Column);
    measurement.row = whole(rowText);
    measurement.column = whole(columnText);
    const bool isLettered = (!rowText.isEmpty() && !measurement.row) || (!columnText.isEmpty() && !measurement.column);
    if (isLettered) { // "A", 3: a name, as a place must be two numbers
        measurement.row.reset();
        measurement.column.reset();
        const QString name = rowText + QLatin1Char('/') + columnText;
        measurement.cabinet += measurement.cabinet.isEmpty() ? name : QLatin1Char(' ') + name;
    }
}

QString MeasurementReader::given(const CsvRow &row, ColumnPart part) const
{
    return has(part) ? row.fields.value(columnOf(part)).trimmed() : QString();
}

//! Instruments write dashes, spreadsheets nothing or "n/a", for the chromaticity of what is too dark.
bool MeasurementReader::isNotGiven(const CsvRow &row, ColumnPart part) const
{
    if (columnOf(part) >= row.fields.size()) {
        return false;
    }
    return isNotMeasured(given(row, part));
}

std::optional<QString> MeasurementReader::field(const CsvRow &row, ColumnPart part)
{
    if (columnOf(part) >= row.fields.size()) {
        fail(tr("missing"), place(row.line, part));
        return std::nullopt;
    }
    return given(row, part);
}

std::optional<double> MeasurementReader::number(const CsvRow &row, ColumnPart part)
{
    const auto text = field(row, part);
    if (!text) {
        return std::nullopt;
    }
    const auto read = readNumber(*text, m_decimalSign);
    if (!read) {
        fail(tr("not a number: \"%1\"").arg(excerpt(*text)), place(row.line, part));
        return std::nullopt;
    }
    MeasurementRecognition &recognized = m_list.recognized;
    if (read->hasDecimals) {
        recognized.decimalSign = m_decimalSign;
    }
    const QChar thousands = read->thousandsSeparator;
    if (!thousands.isNull() && !recognized.thousandsSeparators.contains(thousands)) {
        recognized.thousandsSeparators += thousands;
    }
    return read->value;
}

} // namespace gamutfiles
