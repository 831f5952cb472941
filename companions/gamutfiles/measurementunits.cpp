// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <algorithm>

namespace gamutfiles {

namespace {

//! 1 fL = 1/pi cd/ft² (NIST SP 811, appendix B.9), a foot being 0.3048 m.
constexpr double candelasPerFootLambert = 1.0 / (3.14159265358979323846 * 0.3048 * 0.3048);

} // namespace

//! Below the names there may be a line of units. \a unit is that of the header.
void MeasurementReader::readUnitRow(ColumnName unit)
{
    int line = m_list.recognized.headerLine;
    if (m_firstRow < m_table.rows.size()) {
        const CsvRow &row = m_table.rows.at(m_firstRow);
        const auto isWord = [&](ColumnPart part) { return !isNumber(row.fields.value(columnOf(part))); };
        QString text = row.fields
                           .value(columnOf(m_numberParts.contains(ColumnPart::Luminance) ? ColumnPart::Luminance
                                   : has(ColumnPart::X)                                  ? ColumnPart::Y
                                                                                         : m_numberParts.first()))
                           .trimmed();
        text.remove(QLatin1Char('(')).remove(QLatin1Char(')')).remove(QLatin1Char('[')).remove(QLatin1Char(']'));
        const MeasuredUnit inRow = measuredUnit(text);
        if (std::all_of(m_numberParts.begin(), m_numberParts.end(), isWord) && inRow != MeasuredUnit::NotKnown) {
            if (!unit.unitText.isEmpty() && unit.unit != inRow && !m_options.unit) {
                fail(tr("the unit \"%1\" is not that of the line of the names, \"%2\": state the unit")
                         .arg(excerpt(text), excerpt(unit.unitText)),
                    place(row.line, m_numberParts.first()));
                return;
            }
            unit.unit = inRow;
            unit.unitText = text;
            line = row.line;
            m_unitRow = row;
            ++m_firstRow;
        } else if (std::all_of(row.fields.begin(), row.fields.end(), isDashOrNothing)) {
            m_unitRow = row;
            ++m_firstRow; // a line of units that names none
        }
    }
    if (readUnitColumn(unit, line)) {
        useUnit(unit, line);
    }
}

//! The unit that the first measurement has in a column of its own goes to \a unit, and its line to \a line.
bool MeasurementReader::readUnitColumn(ColumnName &unit, int &line)
{
    const auto first = std::find_if(m_table.rows.constBegin() + m_firstRow, m_table.rows.constEnd(),
        [&](const CsvRow &row) { return !isDashOrNothing(given(row, ColumnPart::Unit)); });
    if (first == m_table.rows.constEnd()) {
        return true;
    }
    const QString text = given(*first, ColumnPart::Unit);
    const MeasuredUnit inColumn = measuredUnit(text);
    if (!unit.unitText.isEmpty() && inColumn == MeasuredUnit::NotKnown) {
        return true; // of something else than the luminance
    }
    if (!unit.unitText.isEmpty() && unit.unit != inColumn && !m_options.unit) {
        return fail(tr("the unit \"%1\" is not that of the line of the names, \"%2\": state the unit")
                        .arg(excerpt(text), excerpt(unit.unitText)),
            place(first->line, ColumnPart::Unit));
    }
    unit.unit = inColumn;
    unit.unitText = text;
    line = first->line;
    m_columnUnit = {line, text};
    return true;
}

//! Whether \a row has no other unit than the list.
bool MeasurementReader::hasUnitOfList(const CsvRow &row)
{
    const QString text = given(row, ColumnPart::Unit);
    if (m_columnUnit.first == 0 || m_options.unit || isDashOrNothing(text)) {
        return true;
    }
    const MeasuredUnit unit = measuredUnit(text);
    const bool isSame = unit == m_list.recognized.unit
        && (unit != MeasuredUnit::NotKnown || text.compare(m_columnUnit.second, Qt::CaseInsensitive) == 0);
    return isSame
        || fail(tr("the unit \"%1\" is not that of line %2, \"%3\": state the unit")
                    .arg(excerpt(text))
                    .arg(m_columnUnit.first)
                    .arg(excerpt(m_columnUnit.second)),
            place(row.line, ColumnPart::Unit));
}

//! \a luminance is what the list states, in \a line; 0: it has no line that could state it.
void MeasurementReader::useUnit(const ColumnName &luminance, int line)
{
    MeasurementRecognition &recognized = m_list.recognized;
    recognized.unit = m_options.unit ? *m_options.unit : luminance.unit;
    recognized.unitText = luminance.unitText;
    const ColumnPart part = m_numberParts.contains(ColumnPart::Luminance) ? ColumnPart::Luminance : ColumnPart::Y;
    const QString where = line > 0 ? place(line, part) : QString();
    warnOfUnits(luminance, where);
    switch (recognized.unit) {
    case MeasuredUnit::NotStated:
        warn(tr("the unit of the luminances is not stated"), where);
        break;
    case MeasuredUnit::NotKnown:
        warn(tr("the unit \"%1\" is not known: the luminances are read as numbers of an unknown unit")
                 .arg(excerpt(recognized.unitText)),
            where);
        break;
    case MeasuredUnit::CandelaPerSquareMetre:
        m_list.unit = LuminanceUnit::CandelaPerSquareMetre;
        break;
    case MeasuredUnit::FootLambert:
        m_list.unit = LuminanceUnit::CandelaPerSquareMetre;
        m_luminanceScale = candelasPerFootLambert;
        warn(tr("the luminances are converted from foot-lamberts to cd/m²"), where);
        break;
    case MeasuredUnit::Relative:
        m_list.unit = LuminanceUnit::Relative;
        break;
    }
}

void MeasurementReader::warnOfUnits(const ColumnName &luminance, const QString &where)
{
    const auto name = [&luminance](MeasuredUnit unit) {
        switch (unit) {
        case MeasuredUnit::CandelaPerSquareMetre:
            return tr("cd/m²");
        case MeasuredUnit::FootLambert:
            return tr("foot-lambert");
        case MeasuredUnit::Relative:
            return tr("relative");
        case MeasuredUnit::NotStated:
        case MeasuredUnit::NotKnown:
            break;
        }
        return QStringLiteral("\"%1\"").arg(excerpt(luminance.unitText));
    };
    if (m_options.unit && luminance.unit != MeasuredUnit::NotStated && luminance.unit != *m_options.unit) {
        warn(tr("states %1; %2 was chosen", "units").arg(name(luminance.unit), name(*m_options.unit)), where);
    }
}

} // namespace gamutfiles
