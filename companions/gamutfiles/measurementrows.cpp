// SPDX-License-Identifier: MIT
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <gamutmodel/diagram.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace gamutfiles {

namespace {

//! Sums of rounded decimals, such as 0.7347 + 0.2653, may exceed 1 by this much in binary.
constexpr double binaryRounding = 1e-9;
//! What rounding u' and v' to four digits can add to x + y.
constexpr double decimalRounding = 0.0005;

} // namespace

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

bool MeasurementReader::readRows()
{
    for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
        findNoise(m_table.rows.at(i));
    }
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

/*
 * What a column can have below 0 by the noise of an instrument is judged by its largest number: of the whole list, or
 * as far as it has been written.
 */
void MeasurementReader::findNoise(const CsvRow &row)
{
    constexpr double noise = 0.001;
    constexpr double leastNoise = 0.01; // cd/m², which few instruments resolve
    const auto raise = [this](ColumnPart part, double to) {
        double &present = m_noise[std::size_t(part)];
        present = std::max(present, to);
    };
    for (const ColumnPart part : {luminancePart(), ColumnPart::Y}) {
        const auto read = has(part) ? readNumber(given(row, part), m_decimalSign) : std::nullopt;
        raise(part, read ? noise * read->value : 0.0);
    }
    if (m_list.unit == LuminanceUnit::CandelaPerSquareMetre) {
        raise(luminancePart(), leastNoise / m_luminanceScale);
    }
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
        return true;
    }
    if (m_width > 0
        && !std::all_of(row.fields.begin() + std::min(m_width, int(row.fields.size())), row.fields.end(), isEmpty)) {
        m_wider.add(row.line);
    }
    const auto measurement = readRow(row);
    if (!measurement) {
        return false;
    }
    if (isDivided(row, *measurement)) {
        return fail(tr("the separator seems to divide numbers: quote them or use another separator"), place(row.line));
    }
    m_list.measurements.append(*measurement);
    return true;
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

void MeasurementReader::warnOfRows()
{
    const auto tell = [this](const Lines &lines, const QString &text) {
        if (lines.count > 0) {
            const QString more
                = lines.count > 1 ? tr("; so in %n further line(s)", nullptr, lines.count - 1) : QString();
            warn(text + more, place(lines.first));
        }
    };
    tell(m_repeatedHeaders, tr("repeats the line that names the columns and is not read"));
    tell(m_withoutNumbers, tr("has no numbers and is not read"));
    tell(m_wider, tr("has more fields than the line that names the columns"));
    tell(m_withoutChromaticity, tr("has a luminance but no chromaticity"));
    tell(m_dark, tr("is as dark as noise, with numbers that no colour has: it is read without a chromaticity"));
    tell(m_belowZero, tr("has a value slightly below 0, as noise gives: it is read as 0"));
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

ColumnPart MeasurementReader::luminancePart() const
{
    return m_numberParts.first() == ColumnPart::X ? ColumnPart::Y : m_numberParts.first();
}

bool MeasurementReader::readColor(const CsvRow &row, Measurement &measurement)
{
    const ColumnPart part = luminancePart();
    const auto luminance = number(row, part);
    if (!luminance) {
        return false;
    }
    const double noise = m_noise[std::size_t(part)];
    if (*luminance < -noise) {
        return fail(tr("luminance must not be negative"), place(row.line, part));
    }
    measurement.luminance = std::max(*luminance, 0.0) * m_luminanceScale;
    if (has(ColumnPart::X)) {
        return readTristimulus(row, measurement);
    }
    const bool isUv = has(ColumnPart::u);
    if (*luminance < 0.0) {
        m_dark.add(row.line);
        return true;
    }
    if (isNotGiven(row, isUv ? ColumnPart::u : ColumnPart::x)
        && isNotGiven(row, isUv ? ColumnPart::v : ColumnPart::y)) {
        readWithoutChromaticity(row, measurement);
        return true;
    }
    return isUv ? readUv(row, measurement, *luminance <= noise) : readXy(row, measurement, *luminance <= noise);
}

void MeasurementReader::readWithoutChromaticity(const CsvRow &row, const Measurement &measurement)
{
    if (measurement.luminance > 0.0) {
        m_withoutChromaticity.add(row.line);
    }
}

bool MeasurementReader::readXy(const CsvRow &row, Measurement &measurement, bool isDark)
{
    const auto x = number(row, ColumnPart::x);
    const auto y = x ? number(row, ColumnPart::y) : std::nullopt;
    if (!y) {
        return false;
    }
    if (*x == 0.0 && *y == 0.0) {
        readWithoutChromaticity(row, measurement);
        return true;
    }
    if (isDark && (*x < 0.0 || *y <= 0.0 || *x + *y > 1.0 + binaryRounding)) {
        m_dark.add(row.line);
        return true;
    }
    if (*x < 0.0) {
        return fail(tr("a chromaticity coordinate must not be negative"), place(row.line, ColumnPart::x));
    }
    if (*y <= 0.0) {
        return fail(tr("y must be greater than 0"), place(row.line, ColumnPart::y));
    }
    if (*x + *y > 1.0 + binaryRounding) {
        return fail(tr("x + y must not exceed 1"), place(row.line, ColumnPart::x));
    }
    measurement.color = Model::Target::fromYxy(measurement.luminance, *x, *y);
    return true;
}

bool MeasurementReader::readTristimulus(const CsvRow &row, Measurement &measurement)
{
    if (isNotGiven(row, ColumnPart::X) && isNotGiven(row, ColumnPart::Z)) {
        readWithoutChromaticity(row, measurement);
        return true;
    }
    std::array<double, 3> values{};
    const std::array parts{ColumnPart::X, ColumnPart::Y, ColumnPart::Z};
    const double noise = m_noise[std::size_t(ColumnPart::Y)];
    bool isBelowZero = false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto value = number(row, parts[i]);
        if (!value) {
            return false;
        }
        if (*value < -noise) {
            return fail(tr("a tristimulus value must not be negative"), place(row.line, parts[i]));
        }
        isBelowZero = isBelowZero || *value < 0.0;
        values[i] = *value;
    }
    if (isBelowZero && std::all_of(values.begin(), values.end(), [noise](double value) { return value <= noise; })) {
        m_dark.add(row.line);
        return true;
    }
    if (isBelowZero) {
        m_belowZero.add(row.line);
        std::transform(values.begin(), values.end(), values.begin(), [](double value) { return std::max(value, 0.0); });
    }
    // An instrument rounds what is too dark for it to 0: what is left has no chromaticity.
    if (values[1] > 0.0) {
        const double sum = values[0] + values[1] + values[2];
        if (!std::isfinite(sum)) {
            return fail(tr("the tristimulus values are too large"), place(row.line, ColumnPart::X));
        }
        measurement.color = Model::Target::fromYxy(measurement.luminance, values[0] / sum, values[1] / sum);
    }
    return true;
}

bool MeasurementReader::readUv(const CsvRow &row, Measurement &measurement, bool isDark)
{
    const auto u = number(row, ColumnPart::u);
    const auto v = u ? number(row, ColumnPart::v) : std::nullopt;
    if (!v) {
        return false;
    }
    if (*u == 0.0 && *v == 0.0) {
        readWithoutChromaticity(row, measurement);
        return true;
    }
    const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1976, {*u, *v});
    const bool isColor = xy.y > 0.0 && xy.x + xy.y <= 1.0 + decimalRounding;
    if (isDark && (*u < 0.0 || *v <= 0.0 || !isColor)) {
        m_dark.add(row.line);
        return true;
    }
    if (*u < 0.0) {
        return fail(tr("a chromaticity coordinate must not be negative"), place(row.line, ColumnPart::u));
    }
    if (*v <= 0.0) {
        return fail(tr("v' must be greater than 0"), place(row.line, ColumnPart::v));
    }
    if (!isColor) {
        return fail(tr("u' and v' are not those of a colour"), place(row.line, ColumnPart::u));
    }
    measurement.color = Model::Target::fromYxy(measurement.luminance, xy.x, xy.y);
    return true;
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
