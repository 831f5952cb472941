// SPDX-License-Identifier: MIT
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace gamutfiles {

namespace {

//! 1 fL = 1/pi cd/ft² (NIST SP 811, appendix B.9), a foot being 0.3048 m.
constexpr double candelasPerFootLambert = 1.0 / (3.14159265358979323846 * 0.3048 * 0.3048);

//! Whether a header names what a colour needs.
bool isComplete(const std::array<int, columnPartCount> &columns)
{
    const auto has = [&columns](ColumnPart part) { return columns[std::size_t(part)] >= 0; };
    const bool hasLuminance = has(ColumnPart::Luminance) || has(ColumnPart::Y);
    return (hasLuminance && has(ColumnPart::x) && has(ColumnPart::y))
        || (hasLuminance && has(ColumnPart::u) && has(ColumnPart::v))
        || (has(ColumnPart::X) && has(ColumnPart::Y) && has(ColumnPart::Z));
}

//! The first column that an incomplete header lacks.
ColumnPart missingPart(const std::array<int, columnPartCount> &columns)
{
    const auto has = [&columns](ColumnPart part) { return columns[std::size_t(part)] >= 0; };
    if (!has(ColumnPart::Luminance) && !has(ColumnPart::Y)) {
        return ColumnPart::Y;
    }
    const bool anyXy = has(ColumnPart::x) || has(ColumnPart::y);
    if (!anyXy && (has(ColumnPart::u) || has(ColumnPart::v))) {
        return has(ColumnPart::u) ? ColumnPart::v : ColumnPart::u;
    }
    if (!anyXy && (has(ColumnPart::X) || has(ColumnPart::Z))) {
        return has(ColumnPart::X) ? (has(ColumnPart::Y) ? ColumnPart::Z : ColumnPart::Y) : ColumnPart::X;
    }
    return has(ColumnPart::x) ? ColumnPart::y : ColumnPart::x;
}

//! How sure it is that a column gives the luminance, and in which unit; of several the one of the highest is read.
int luminanceRank(const ColumnName &name)
{
    const bool isY = name.part == ColumnPart::Y;
    switch (name.unit) {
    case MeasuredUnit::CandelaPerSquareMetre:
        return 7;
    case MeasuredUnit::FootLambert:
        // "FL" alone can be anything, for example flicker.
        return name.isUnitOnly ? 1 : 6;
    case MeasuredUnit::NotStated: // "Brightness" can be a setting
        return isY ? 5 : 2;
    case MeasuredUnit::Relative:
        return isY ? 4 : 0;
    case MeasuredUnit::NotKnown:
        break;
    }
    return isY ? 3 : 1;
}

bool isLightness(const QString &header)
{
    return header.trimmed().compare(QLatin1String("L"), Qt::CaseInsensitive) == 0;
}

//! Whether there is an "a" and a "b": the L beside them is the lightness of CIELAB.
bool namesLab(const QStringList &headers)
{
    const auto has = [&headers](QChar letter) {
        return std::any_of(headers.begin(), headers.end(), [letter](const QString &header) {
            const QString text = header.trimmed().toLower();
            return text == letter || text == QString(letter) + QLatin1Char('*');
        });
    };
    return has(QLatin1Char('a')) && has(QLatin1Char('b'));
}

} // namespace

MeasurementReader::Header MeasurementReader::headerOf(const CsvRow &row)
{
    Header header;
    header.columns.fill(-1);
    const bool isLab = namesLab(row.fields);
    bool toldOfDoubled = false;
    for (int i = 0; i < row.fields.size(); ++i) {
        if (isOfOtherObserver(row.fields.at(i))) {
            if (!header.hasOtherObserver) {
                header.warnings.append(
                    {tr("column %1 is of the 10° observer and is not read").arg(i + 1), place(row.line), 0, 0});
            }
            header.hasOtherObserver = true;
            continue;
        }
        const auto name = columnName(row.fields.at(i));
        if (!name || (isLab && isLightness(row.fields.at(i)))) {
            continue;
        }
        const auto part = std::size_t(name->part);
        const bool isLuminance = name->part == ColumnPart::Luminance || name->part == ColumnPart::Y;
        header.luminances += isLuminance ? 1 : 0;
        if (header.columns[part] < 0 || (isLuminance && luminanceRank(*name) > luminanceRank(header.names[part]))) {
            header.columns[part] = i;
            header.names[part] = *name;
        } else if (!isLuminance && !toldOfDoubled) {
            toldOfDoubled = true;
            header.warnings.append({tr("columns %1 and %2 are both %3: column %1 is read")
                                        .arg(header.columns[part] + 1)
                                        .arg(i + 1)
                                        .arg(columnPartName(name->part)),
                place(row.line), 0, 0});
        }
    }
    return header;
}

bool MeasurementReader::findColumns()
{
    int mostNames = 0;
    int likeliestLine = 0;
    int otherObserverLine = 0;
    Columns likeliest{};
    for (int i = 0; i < m_table.rows.size(); ++i) {
        const Header header = headerOf(m_table.rows.at(i));
        if (isComplete(header.columns)) {
            useHeader(header, i);
            return m_failure.text.isEmpty();
        }
        if (header.hasOtherObserver && otherObserverLine == 0) {
            otherObserverLine = m_table.rows.at(i).line;
        }
        const auto names
            = int(std::count_if(header.columns.begin(), header.columns.end(), [](int c) { return c >= 0; }));
        if (names > mostNames) {
            mostNames = names;
            likeliestLine = m_table.rows.at(i).line;
            likeliest = header.columns;
        }
    }
    if (otherObserverLine > 0) {
        return fail(
            tr("the columns are of the 10° observer: those of CIE 1931 (2°) are needed"), place(otherObserverLine));
    }
    const CsvRow &first = m_table.rows.first();
    const bool startsWithNumbers = std::any_of(first.fields.begin(), first.fields.end(), isNumber);
    if (mostNames < 2 && startsWithNumbers) {
        Columns columns;
        columns.fill(-1);
        columns[std::size_t(ColumnPart::Name)] = 0;
        columns[std::size_t(ColumnPart::Y)] = 1;
        columns[std::size_t(ColumnPart::x)] = 2;
        columns[std::size_t(ColumnPart::y)] = 3;
        useColumns(columns, {});
        useUnit({}, 0);
        return true;
    }
    if (mostNames < 2) {
        return fail(tr("missing column %1").arg(columnPartName(ColumnPart::Name)), place(first.line));
    }
    return fail(tr("missing column %1").arg(columnPartName(missingPart(likeliest))), place(likeliestLine));
}

void MeasurementReader::useHeader(Header header, int rowIndex)
{
    const CsvRow &row = m_table.rows.at(rowIndex);
    m_firstRow = rowIndex + 1;
    m_list.recognized.headerLine = row.line;
    for (m_width = int(row.fields.size()); m_width > 0 && row.fields.at(m_width - 1).trimmed().isEmpty();) {
        --m_width;
    }
    m_headerFields = int(row.fields.size());
    chooseLuminance(header, row);
    m_warnings += header.warnings;
    useColumns(header.columns, row.fields);
    const bool useLuminance = header.columns[std::size_t(ColumnPart::Luminance)] >= 0;
    readUnitRow(header.names[std::size_t(useLuminance ? ColumnPart::Luminance : ColumnPart::Y)]);
}

//! Leaves in \a header the column that the luminances are read from, and a Y beside it for X, Y, Z alone.
void MeasurementReader::chooseLuminance(Header &header, const CsvRow &row)
{
    int &luminance = header.columns[std::size_t(ColumnPart::Luminance)];
    const int tristimulusY = header.columns[std::size_t(ColumnPart::Y)];
    if (luminance >= 0 && tristimulusY >= 0
        && luminanceRank(header.names[std::size_t(ColumnPart::Y)])
            > luminanceRank(header.names[std::size_t(ColumnPart::Luminance)])) {
        luminance = -1;
    }
    if (header.luminances > 1) {
        const int read = luminance >= 0 ? luminance : tristimulusY;
        header.warnings.append({tr("%1 columns give a luminance: column %2, \"%3\", is read")
                                    .arg(header.luminances)
                                    .arg(read + 1)
                                    .arg(excerpt(row.fields.at(read).simplified())),
            place(row.line), 0, 0});
    }
}

void MeasurementReader::useColumns(const Columns &columns, const QStringList &headers)
{
    m_columns.fill(-1);
    const auto given = [&columns](ColumnPart part) { return columns[std::size_t(part)] >= 0; };
    const ColumnPart namePart = given(ColumnPart::Name) ? ColumnPart::Name : ColumnPart::Number;
    if (given(namePart)) {
        keep(ColumnPart::Name, columns[std::size_t(namePart)], headers);
    }
    const ColumnPart luminance = given(ColumnPart::Luminance) ? ColumnPart::Luminance : ColumnPart::Y;
    QVector<ColumnPart> parts{luminance};
    if (given(ColumnPart::x) && given(ColumnPart::y)) {
        parts += {ColumnPart::x, ColumnPart::y};
    } else if (given(ColumnPart::u) && given(ColumnPart::v)) {
        parts += {ColumnPart::u, ColumnPart::v};
    } else {
        parts = {ColumnPart::X, ColumnPart::Y, ColumnPart::Z};
        if (luminance == ColumnPart::Luminance) {
            parts.prepend(luminance);
        }
    }
    for (const ColumnPart part : std::as_const(parts)) {
        keep(part, columns[std::size_t(part)], headers);
    }
    m_numberParts = parts;
    useCabinets(columns, headers);
    if (isNameless()) {
        warn(tr("no column names the measurements: choose the lines of red, green, blue and white"),
            place(m_list.recognized.headerLine));
    }
}

void MeasurementReader::useCabinets(const Columns &columns, const QStringList &headers)
{
    const auto column = [&columns](ColumnPart part) { return columns[std::size_t(part)]; };
    if (column(ColumnPart::Cabinet) >= 0) {
        keep(ColumnPart::Cabinet, column(ColumnPart::Cabinet), headers);
    } else if (column(ColumnPart::Number) >= 0 && column(ColumnPart::Name) >= 0) {
        // A number that each line has for itself counts the lines; one that several share is that of a cabinet.
        QSet<QString> seen;
        int lines = 0;
        for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
            const QString number = m_table.rows.at(i).fields.value(column(ColumnPart::Number)).trimmed();
            if (!number.isEmpty()) {
                seen.insert(number);
                ++lines;
            }
        }
        if (seen.size() < lines) {
            keep(ColumnPart::Cabinet, column(ColumnPart::Number), headers);
        }
    }
    if (column(ColumnPart::Row) >= 0 && column(ColumnPart::Column) >= 0) {
        keep(ColumnPart::Row, column(ColumnPart::Row), headers);
        keep(ColumnPart::Column, column(ColumnPart::Column), headers);
    }
}

void MeasurementReader::keep(ColumnPart part, int column, const QStringList &headers)
{
    const QString header = headers.value(column).simplified();
    m_columns[std::size_t(part)] = column;
    m_labels[std::size_t(part)] = header.isEmpty() ? columnPartName(part) : excerpt(header);
    m_list.recognized.columns.append({columnPartName(part), column + 1, header});
}

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
            ++m_firstRow;
        } else if (std::all_of(row.fields.begin(), row.fields.end(), isDashOrNothing)) {
            ++m_firstRow; // a line of units that names none
        }
    }
    useUnit(unit, line);
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
