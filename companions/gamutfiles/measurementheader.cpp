// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colornames_p.h"
#include "excerpt_p.h"
#include "measurementreader_p.h"
#include "numbers_p.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace gamutfiles {

namespace {

//! Whether a header names what a colour needs.
bool isComplete(const std::array<int, columnPartCount> &columns)
{
    const auto has = [&columns](ColumnPart part) { return columns[std::size_t(part)] >= 0; };
    const bool hasLuminance = has(ColumnPart::Luminance) || has(ColumnPart::Y);
    return (hasLuminance && has(ColumnPart::x) && has(ColumnPart::y))
        || (hasLuminance && has(ColumnPart::u) && has(ColumnPart::v))
        || (has(ColumnPart::X) && has(ColumnPart::Y) && has(ColumnPart::Z));
}

//! Whether \a row has so many fields that can name columns. Most rows are told from headers by that alone.
bool mayBeComplete(const CsvRow &row)
{
    constexpr int fewestNames = 3;
    int names = 0;
    for (int i = 0; i < row.fields.size() && names < fewestNames; ++i) {
        names += isPlainNumber(row.fields.at(i)) ? 0 : 1;
    }
    return names >= fewestNames;
}

std::array<MeasuredUnit, 2> unitsOf(const std::array<ColumnName, columnPartCount> &names)
{
    return {names[std::size_t(ColumnPart::Luminance)].unit, names[std::size_t(ColumnPart::Y)].unit};
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

//! How likely a column is to give the luminance, and its unit. Of several columns, the most likely one is read.
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

//! Whether there is a "u" and a "v" without primes, which CIE 1960 and CIE 1976 both have.
bool namesUvOfTwoSystems(const QStringList &headers)
{
    const auto has = [&headers](const QString &letter) {
        return std::any_of(headers.begin(), headers.end(), [&letter](const QString &header) {
            const QString text = header.simplified().toLower();
            return text == letter || text == QLatin1String("cie ") + letter;
        });
    };
    return has(QStringLiteral("u")) && has(QStringLiteral("v"));
}

} // namespace

MeasurementReader::Header MeasurementReader::headerOf(const CsvRow &row)
{
    Header header;
    header.columns.fill(-1);
    const bool isLab = namesLab(row.fields);
    QVector<int> remarks;
    bool toldOfDoubled = false;
    std::optional<QSet<QString>> compared;
    const auto isTenth = [&](const QString &text) {
        if (!compared) {
            compared = comparedHeaders(row.fields);
        }
        return isTenthOfSeries(text, *compared);
    };
    for (int i = 0; i < row.fields.size(); ++i) {
        if (isOfOtherObserver(row.fields.at(i)) && !isTenth(row.fields.at(i))) {
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
        if (name->part == ColumnPart::Note) {
            remarks.append(i);
            continue;
        }
        const auto part = std::size_t(name->part);
        if (name->part == ColumnPart::Name) {
            header.nameColumns.append(i);
        }
        const bool isLuminance = name->part == ColumnPart::Luminance || name->part == ColumnPart::Y;
        header.luminances += isLuminance ? 1 : 0;
        if (header.columns[part] < 0 || (isLuminance && luminanceRank(*name) > luminanceRank(header.names[part]))) {
            header.columns[part] = i;
            header.names[part] = *name;
        } else if (!isLuminance && name->part != ColumnPart::Name && !toldOfDoubled) {
            toldOfDoubled = true;
            header.warnings.append({tr("columns %1 and %2 are both %3: column %1 is read")
                                        .arg(header.columns[part] + 1)
                                        .arg(i + 1)
                                        .arg(columnPartName(name->part)),
                place(row.line), 0, 0});
        }
    }
    header.nameCount = int(header.nameColumns.size());
    header.nameColumns += remarks;
    return header;
}

bool MeasurementReader::findColumns()
{
    int mostNames = 0;
    int likeliestLine = 0;
    int otherObserverLine = 0;
    int unclearUvLine = 0;
    Columns likeliest{};
    for (int i = 0; i < m_table.rows.size(); ++i) {
        const Header header = headerOf(m_table.rows.at(i));
        if (isComplete(header.columns)) {
            useHeader(header, m_table.rows.at(i), i + 1);
            return m_failure.text.isEmpty();
        }
        if (header.hasOtherObserver && otherObserverLine == 0) {
            otherObserverLine = m_table.rows.at(i).line;
        }
        if (namesUvOfTwoSystems(m_table.rows.at(i).fields) && unclearUvLine == 0) {
            unclearUvLine = m_table.rows.at(i).line;
        }
        const auto names
            = int(std::count_if(header.columns.begin(), header.columns.end(), [](int c) { return c >= 0; }));
        if (names > mostNames) {
            mostNames = names;
            likeliestLine = m_table.rows.at(i).line;
            likeliest = header.columns;
        }
    }
    if (useCommentedHeader()) {
        return m_failure.text.isEmpty();
    }
    if (otherObserverLine > 0) {
        return fail(
            tr("the columns are of the 10° observer: those of CIE 1931 (2°) are needed"), place(otherObserverLine));
    }
    if (unclearUvLine > 0) {
        return fail(tr("the columns u and v can be those of CIE 1960 or of CIE 1976: call these u' and v'"),
            place(unclearUvLine));
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
    if (mostNames == 0) {
        return fail(tr("missing column %1").arg(columnPartName(ColumnPart::Name)), place(first.line));
    }
    return fail(tr("missing column %1").arg(columnPartName(missingPart(likeliest))), place(likeliestLine));
}

//! Some programs write the names behind a #. They count if no other line names the columns and numbers follow them
//! only.
bool MeasurementReader::useCommentedHeader()
{
    const auto numbers = std::find_if(m_table.rows.begin(), m_table.rows.end(),
        [](const CsvRow &row) { return std::count_if(row.fields.begin(), row.fields.end(), isNumber) >= 3; });
    for (const CsvRow &comment : std::as_const(m_table.comments)) {
        if (numbers != m_table.rows.end() && comment.line > numbers->line) {
            break;
        }
        const Header header = headerOf(comment);
        if (isComplete(header.columns)) {
            const auto next = std::find_if(m_table.rows.begin(), m_table.rows.end(),
                [&comment](const CsvRow &row) { return row.line > comment.line; });
            useHeader(header, comment, int(next - m_table.rows.begin()));
            return true;
        }
    }
    return false;
}

void MeasurementReader::useHeader(Header header, const CsvRow &row, int firstRow)
{
    m_header = header;
    m_firstRow = firstRow;
    m_list.recognized.headerLine = row.line;
    for (m_width = int(row.fields.size()); m_width > 0 && row.fields.at(m_width - 1).trimmed().isEmpty();) {
        --m_width;
    }
    m_headerFields = int(row.fields.size());
    chooseName(header, row);
    chooseLuminance(header, row);
    m_warnings += header.warnings;
    warnOfObserver(row.line);
    useColumns(header.columns, row.fields);
    const bool useLuminance = header.columns[std::size_t(ColumnPart::Luminance)] >= 0;
    readUnitRow(header.names[std::size_t(useLuminance ? ColumnPart::Luminance : ColumnPart::Y)]);
}

//! Text above the header, in \a headerLine, can say of which observer the columns are.
void MeasurementReader::warnOfObserver(int headerLine)
{
    for (const QVector<CsvRow> &rows : {m_table.rows, m_table.comments}) {
        for (const CsvRow &row : rows) {
            if (row.line < headerLine && statesOtherObserver(row.fields.join(QLatin1Char(' ')))) {
                warn(tr("the list says that it is of the 10° observer, but the names of the columns do not: they are "
                        "read as those of CIE 1931 (2°)"),
                    place(row.line));
                return;
            }
        }
    }
}

//! What is in \a columns, which ascend, in the rows below the header.
std::vector<MeasurementReader::NamesInColumn> MeasurementReader::namesIn(const QVector<int> &columns) const
{
    std::vector<NamesInColumn> names(std::size_t(columns.size()));
    int shortest
        = columns.isEmpty() ? 0 : columns.last() + 1; // of the measurements, which can be shorter than the header
    for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
        const QStringList &fields = m_table.rows.at(i).fields;
        const auto hasNumbers = [&fields] { return std::count_if(fields.begin(), fields.end(), isNumber) >= 3; };
        std::optional<bool> isMeasurement;
        for (std::size_t k = 0; k < names.size() && columns.at(int(k)) < fields.size(); ++k) {
            const QString text = fields.at(columns.at(int(k))).trimmed();
            if (text.isEmpty()) {
                isMeasurement = isMeasurement ? *isMeasurement : hasNumbers();
                names[k].hasGap = names[k].hasGap || *isMeasurement;
                continue;
            }
            const MeasurementPart part = colorName(text).part;
            names[k].colors += part == MeasurementPart::None ? 0 : 1;
            names[k].has[std::size_t(part)] = true;
        }
        if (fields.size() < shortest && (isMeasurement ? *isMeasurement : hasNumbers())) {
            shortest = int(fields.size());
        }
    }
    for (std::size_t k = 0; k < names.size(); ++k) {
        names[k].hasGap = names[k].hasGap || columns.at(int(k)) >= shortest;
    }
    return names;
}

//! Of the columns that can name the measurements the one counts that names the most colours.
void MeasurementReader::chooseName(Header &header, const CsvRow &row)
{
    int &name = header.columns[std::size_t(ColumnPart::Name)];
    int most = 0;
    QVector<int> columns = header.nameColumns;
    std::sort(columns.begin(), columns.end());
    const std::vector<NamesInColumn> names = namesIn(columns);
    for (const int column : std::as_const(header.nameColumns)) {
        const NamesInColumn &here
            = names[std::size_t(std::lower_bound(columns.begin(), columns.end(), column) - columns.begin())];
        if (here.colors > most && (column == name || !here.hasGap)) {
            most = here.colors;
            name = column;
        }
    }
    if (name < 0) {
        name = columnOfColors(header);
    }
    if (most == 0 && header.nameCount > 1) {
        header.warnings.append({tr("columns %1 and %2 are both %3: column %1 is read")
                                    .arg(header.nameColumns.at(0) + 1)
                                    .arg(header.nameColumns.at(1) + 1)
                                    .arg(columnPartName(ColumnPart::Name)),
            place(row.line), 0, 0});
    }
}

//! A column with a header that says nothing, such as "Messpunkt" or none, in which are red, green and blue; -1: none.
int MeasurementReader::columnOfColors(const Header &header) const
{
    QVector<int> columns;
    for (int column = 0; column < m_headerFields; ++column) {
        if (std::find(header.columns.begin(), header.columns.end(), column) == header.columns.end()) {
            columns.append(column);
        }
    }
    const std::vector<NamesInColumn> names = namesIn(columns);
    for (std::size_t k = 0; k < names.size(); ++k) {
        const auto has = [&](MeasurementPart part) { return names[k].has[std::size_t(part)]; };
        // A column of grades can have an R or a G.
        if (!names[k].hasGap && has(MeasurementPart::Red) && has(MeasurementPart::Green)
            && has(MeasurementPart::Blue)) {
            return columns.at(int(k));
        }
    }
    return -1;
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
    if (given(ColumnPart::Unit)) {
        keep(ColumnPart::Unit, columns[std::size_t(ColumnPart::Unit)], headers);
    }
    if (isNameless()) {
        warn(tr("no column names the measurements; lines can be chosen as red, green, blue and white"),
            place(m_list.recognized.headerLine));
    }
}

void MeasurementReader::useCabinets(const Columns &columns, const QStringList &headers)
{
    const auto column = [&columns](ColumnPart part) { return columns[std::size_t(part)]; };
    if (column(ColumnPart::Cabinet) >= 0) {
        keep(ColumnPart::Cabinet, column(ColumnPart::Cabinet), headers);
    } else if (column(ColumnPart::Number) >= 0 && column(ColumnPart::Name) >= 0) {
        // A number that each line has for itself counts the lines; one that several share is that of a cabinet, unless
        // the count begins anew: then each name has a number of its own.
        QSet<QString> numbers;
        QSet<QString> names;
        QSet<QString> pairs;
        int lines = 0;
        for (int i = m_firstRow; i < m_table.rows.size(); ++i) {
            const CsvRow &row = m_table.rows.at(i);
            const QString number = row.fields.value(column(ColumnPart::Number)).trimmed();
            const QString name = row.fields.value(column(ColumnPart::Name)).trimmed();
            if (!number.isEmpty() && !isRepeatedHeader(row)) {
                numbers.insert(number);
                names.insert(name);
                pairs.insert(number + QChar(0) + name);
                ++lines;
            }
        }
        const bool isCount = pairs.size() == numbers.size() && pairs.size() == names.size();
        if (numbers.size() < lines && !isCount) {
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

//! Whether \a row names the columns once more, or the units, as it is where sessions are appended to each other.
bool MeasurementReader::isRepeatedHeader(const CsvRow &row) const
{
    if (m_list.recognized.headerLine == 0) {
        return false;
    }
    const auto isUnitRow = [&] {
        return !m_unitRow.fields.isEmpty() && row.fields == m_unitRow.fields
            && !std::all_of(row.fields.begin(), row.fields.end(), isDashOrNothing);
    };
    if (isUnitRow()) {
        return true;
    }
    if (!mayBeComplete(row)) {
        return false;
    }
    const Header header = headerOf(row);
    return isComplete(header.columns) && header.columns == m_header.columns
        && unitsOf(header.names) == unitsOf(m_header.names);
}

//! Whether \a row names columns, but others than the header.
bool MeasurementReader::isOtherHeader(const CsvRow &row) const
{
    return m_list.recognized.headerLine > 0 && mayBeComplete(row) && isComplete(headerOf(row).columns)
        && !isRepeatedHeader(row);
}

} // namespace gamutfiles
