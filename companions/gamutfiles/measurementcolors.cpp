// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
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

//! A difference of x, y or u', v' beyond this is not that of the digits of an instrument.
constexpr double noticeable = 0.001;

} // namespace

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
    // Below 0 by noise: the light can be as much.
    measurement.luminance = std::fabs(*luminance) * m_luminanceScale;
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
    if (!isDark) {
        compareWithTristimulus(row, *x, *y);
        compareWithUv(row, *x, *y);
    }
    return true;
}

/*
 * Columns that are not read can say something else than those that are: of another observer, of another calibration, or
 * by a slip. They are compared as far as their digits go.
 */
void MeasurementReader::compareWithTristimulus(const CsvRow &row, double x, double y)
{
    const auto X = unread(row, ColumnPart::X);
    const auto Z = X ? unread(row, ColumnPart::Z) : std::nullopt;
    const auto Y = Z ? unread(row, ColumnPart::Y) : std::nullopt;
    if (!X || !Y || !Z || X->value < 0.0 || Y->value <= 0.0 || Z->value < 0.0) {
        return;
    }
    const double sum = X->value + Y->value + Z->value;
    const double rounding = (X->rounding + Y->rounding + Z->rounding) / sum;
    const bool isSame = std::fabs(X->value / sum - x) <= noticeable + rounding
        && std::fabs(Y->value / sum - y) <= noticeable + rounding;
    if (!isSame) {
        m_otherTristimulus.add(row.line);
    }
}

void MeasurementReader::compareWithUv(const CsvRow &row, double x, double y)
{
    const auto u = unread(row, ColumnPart::u);
    const auto v = unread(row, ColumnPart::v);
    if (!u || !v || (u->value == 0.0 && v->value == 0.0)) {
        return;
    }
    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {x, y});
    const bool isSame = std::fabs(u->value - uv.x) <= noticeable + u->rounding
        && std::fabs(v->value - uv.y) <= noticeable + v->rounding;
    if (!isSame) {
        m_otherUv.add(row.line);
    }
}

//! A number in a column that has a name but is not read.
std::optional<MeasurementReader::RoundedNumber> MeasurementReader::unread(const CsvRow &row, ColumnPart part) const
{
    const int column = m_list.recognized.headerLine > 0 ? m_header.columns[std::size_t(part)] : -1;
    if (column < 0) {
        return std::nullopt;
    }
    const QString text = row.fields.value(column);
    const auto read = readNumber(text, m_decimalSign);
    if (!read) {
        return std::nullopt;
    }
    const int exponent = int(text.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive));
    const QString mantissa = text.left(exponent).trimmed();
    const int sign = int(mantissa.lastIndexOf(m_decimalSign));
    const int decimals
        = (sign < 0 ? 0 : int(mantissa.size()) - sign - 1) - (exponent < 0 ? 0 : text.mid(exponent + 1).toInt());
    return RoundedNumber{read->value, 0.5 * std::pow(10.0, -decimals)};
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
    const bool isDark = std::all_of(values.begin(), values.end(), [noise](double value) { return value <= noise; });
    if (isDark && (isBelowZero || (values[1] == 0.0 && values[0] + values[2] > 0.0))) {
        m_dark.add(row.line);
        keepSize(measurement, values);
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
    } else {
        keepSize(measurement, values);
        readWithoutChromaticity(row, measurement);
    }
    return true;
}

//! Without a chromaticity, the light can be as much as the largest of X, Y and Z says.
void MeasurementReader::keepSize(Measurement &measurement, const std::array<double, 3> &tristimulus) const
{
    if (luminancePart() == ColumnPart::Y) {
        const double most = std::max({std::fabs(tristimulus[0]), std::fabs(tristimulus[1]), std::fabs(tristimulus[2])});
        measurement.luminance = most * m_luminanceScale;
    }
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

} // namespace gamutfiles
