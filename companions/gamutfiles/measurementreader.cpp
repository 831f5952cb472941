// SPDX-License-Identifier: MIT
#include "measurementreader_p.h"

#include "colornames_p.h"
#include "excerpt_p.h"
#include "gamutfromprimaries_p.h"
#include "numbers_p.h"
#include "textencoding_p.h"

#include <gamutmodel/gamutcoverage.h>

#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace gamutfiles {

namespace {

//! 1 fL = 1/pi cd/ft² (NIST SP 811, appendix B.9), a foot being 0.3048 m.
constexpr double candelasPerFootLambert = 1.0 / (3.14159265358979323846 * 0.3048 * 0.3048);

//! More warnings about cabinets than these tell nothing more.
constexpr int mostWarnings = 20;
constexpr int mostNamedCabinets = 4;

//! Sums of rounded decimals, such as 0.7347 + 0.2653, may exceed 1 by this much in binary.
constexpr double binaryRounding = 1e-9;
//! What rounding u' and v' to four digits can add to x + y.
constexpr double decimalRounding = 0.0005;

constexpr std::array primaryParts{MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue};

bool isNumber(const QString &text)
{
    return decimalEvidence(text) != DecimalEvidence::NotANumber;
}

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

//! As instruments write it for what they did not measure.
bool isDashOrNothing(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
        [](QChar c) { return c.isSpace() || c == QLatin1Char('-') || c == QChar(0x2013) || c == QChar(0x2014); });
}

QString joined(const QStringList &names)
{
    return names.join(QStringLiteral(", "));
}

} // namespace

Outcome<MeasurementList> MeasurementReader::read(const QByteArray &bytes)
{
    if (decode(bytes) && findColumns() && decideDecimalSign() && readRows() && assignParts() && checkGamut()) {
        return {m_list, m_warnings};
    }
    return Outcome<MeasurementList>::failure(m_failure);
}

bool MeasurementReader::decode(const QByteArray &bytes)
{
    if (m_options.decimalSign && *m_options.decimalSign != QLatin1Char('.')
        && *m_options.decimalSign != QLatin1Char(',')) {
        return fail(tr("the decimal sign must be a point or a comma"));
    }
    if (bytes.size() > maximumMeasurementBytes) {
        return fail(tr("is too large for a measurement list (more than %1 KiB)").arg(maximumMeasurementBytes / 1024));
    }
    const auto decoded = decodeText(bytes, m_options.encoding);
    if (!decoded) {
        m_failure = decoded.problem();
        return false;
    }
    m_warnings = decoded.warnings();
    m_table = readCsv(decoded->text, m_options.separator);
    if (m_table.unterminatedLine > 0) {
        return fail(tr("unterminated quote"), place(m_table.unterminatedLine));
    }
    if (m_table.rows.isEmpty()) {
        return fail(tr("contains no measurements"));
    }
    m_list.recognized.encoding = decoded->encoding;
    m_list.recognized.separator = m_table.separator;
    return true;
}

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
        const CsvRow &row = m_table.rows.at(i);
        const auto isEmpty = [](const QString &text) { return text.trimmed().isEmpty(); };
        if (std::all_of(row.fields.begin(), row.fields.end(), isEmpty)) {
            continue;
        }
        if (std::all_of(m_numberParts.begin(), m_numberParts.end(),
                [&](ColumnPart part) { return isEmpty(given(row, part)); })) {
            m_withoutNumbers.add(row.line);
            continue;
        }
        if (m_width > 0
            && !std::all_of(
                row.fields.begin() + std::min(m_width, int(row.fields.size())), row.fields.end(), isEmpty)) {
            m_wider.add(row.line);
        }
        const auto measurement = readRow(row);
        if (!measurement) {
            return false;
        }
        if (isDivided(row, *measurement)) {
            return fail(
                tr("the separator seems to divide numbers: quote them or use another separator"), place(row.line));
        }
        m_list.measurements.append(*measurement);
    }
    if (m_list.measurements.isEmpty()) {
        return fail(tr("contains no measurements"));
    }
    warnOfRows();
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
    tell(m_withoutNumbers, tr("has no numbers and is not read"));
    tell(m_wider, tr("has more fields than the line that names the columns"));
    tell(m_withoutChromaticity, tr("has a luminance but no chromaticity"));
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

bool MeasurementReader::readColor(const CsvRow &row, Measurement &measurement)
{
    const ColumnPart luminancePart = m_numberParts.first() == ColumnPart::X ? ColumnPart::Y : m_numberParts.first();
    const auto luminance = number(row, luminancePart);
    if (!luminance) {
        return false;
    }
    measurement.luminance = *luminance * m_luminanceScale;
    if (*luminance < 0.0) {
        return fail(tr("luminance must not be negative"), place(row.line, luminancePart));
    }
    if (has(ColumnPart::X)) {
        return readTristimulus(row, measurement);
    }
    const bool isUv = has(ColumnPart::u);
    if (isNotGiven(row, isUv ? ColumnPart::u : ColumnPart::x)
        && isNotGiven(row, isUv ? ColumnPart::v : ColumnPart::y)) {
        if (*luminance > 0.0) {
            m_withoutChromaticity.add(row.line);
        }
        return true;
    }
    if (isUv) {
        return readUv(row, measurement);
    }
    const auto x = number(row, ColumnPart::x);
    const auto y = x ? number(row, ColumnPart::y) : std::nullopt;
    if (!y) {
        return false;
    }
    if (*x == 0.0 && *y == 0.0) {
        if (*luminance > 0.0) {
            m_withoutChromaticity.add(row.line);
        }
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
    std::array<double, 3> values{};
    const std::array parts{ColumnPart::X, ColumnPart::Y, ColumnPart::Z};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto value = number(row, parts[i]);
        if (!value) {
            return false;
        }
        if (*value < 0.0) {
            return fail(tr("a tristimulus value must not be negative"), place(row.line, parts[i]));
        }
        values[i] = *value;
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

bool MeasurementReader::readUv(const CsvRow &row, Measurement &measurement)
{
    const auto u = number(row, ColumnPart::u);
    const auto v = u ? number(row, ColumnPart::v) : std::nullopt;
    if (!v) {
        return false;
    }
    if (*u == 0.0 && *v == 0.0) {
        if (measurement.luminance > 0.0) {
            m_withoutChromaticity.add(row.line);
        }
        return true;
    }
    if (*u < 0.0) {
        return fail(tr("a chromaticity coordinate must not be negative"), place(row.line, ColumnPart::u));
    }
    if (*v <= 0.0) {
        return fail(tr("v' must be greater than 0"), place(row.line, ColumnPart::v));
    }
    // ISO 11664-5:2009, the inverse of the equations for u' and v'.
    const double divisor = 6.0 * *u - 16.0 * *v + 12.0;
    const double x = 9.0 * *u / divisor;
    const double y = 4.0 * *v / divisor;
    if (divisor <= 0.0 || !(x + y <= 1.0 + decimalRounding)) {
        return fail(tr("u' and v' are not those of a colour"), place(row.line, ColumnPart::u));
    }
    measurement.color = Model::Target::fromYxy(measurement.luminance, x, y);
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

//! Instruments write dashes, spreadsheets nothing, for the chromaticity of what is too dark.
bool MeasurementReader::isNotGiven(const CsvRow &row, ColumnPart part) const
{
    if (columnOf(part) >= row.fields.size()) {
        return false;
    }
    return isDashOrNothing(given(row, part));
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

bool MeasurementReader::assignParts()
{
    assignByName();
    if (!chooseCabinet() || !choose(m_options.red, MeasurementPart::Red)
        || !choose(m_options.green, MeasurementPart::Green) || !choose(m_options.blue, MeasurementPart::Blue)
        || !choose(m_options.white, MeasurementPart::White)) {
        return false;
    }
    for (const Measurement &measurement : std::as_const(m_list.measurements)) {
        if (measurement.part != MeasurementPart::None) {
            m_list.recognized.parts.append({measurement.part, measurement.name, measurement.line});
        }
    }
    m_list.whiteIsSum = m_options.whiteIsSum;
    return true;
}

void MeasurementReader::assignByName()
{
    QVector<ColorName> names;
    QVector<ColorLevel> levels;
    for (const Measurement &measurement : std::as_const(m_list.measurements)) {
        names.append(colorName(measurement.name));
        const ColorName &name = names.last();
        if (name.level && !name.level->full && name.part != MeasurementPart::Black) {
            levels.append(*name.level);
        }
    }
    const std::optional<double> common = commonFullLevel(levels);
    m_list.recognized.fullLevel = common;
    bool toldOfScale = false;
    for (int i = 0; i < names.size(); ++i) {
        const ColorName &name = names.at(i);
        Measurement &measurement = m_list.measurements[i];
        const std::optional<double> full = name.level && name.level->full ? name.level->full : common;
        const bool isFull = !name.level || (full && name.level->value == *full);
        const bool isBlack = name.part == MeasurementPart::Black;
        // "5000 K" is a colour temperature.
        const bool plays = isBlack ? !name.level || name.level->value == 0.0 : isFull;
        measurement.part = plays ? name.part : MeasurementPart::None;
        if (!isBlack && name.level && !full && !toldOfScale) {
            warn(tr("the full level of \"%1\" is not known: no level without a unit is taken as the full one")
                     .arg(excerpt(measurement.name)),
                place(measurement.line));
            toldOfScale = true;
        }
    }
}

//! What levels are full is known from the list as a whole; the colours are chosen in the cabinet.
bool MeasurementReader::chooseCabinet()
{
    const QString wanted = m_options.cabinet.trimmed();
    if (wanted.isEmpty()) {
        return true;
    }
    const QVector<CabinetMeasurements> cabinets = m_list.cabinets();
    const auto chosen = [&](const auto &nameOf) {
        QVector<CabinetMeasurements> found;
        std::copy_if(
            cabinets.begin(), cabinets.end(), std::back_inserter(found), [&](const CabinetMeasurements &cabinet) {
                return nameOf(cabinet).compare(wanted, Qt::CaseInsensitive) == 0;
            });
        return found;
    };
    QVector<CabinetMeasurements> found = chosen([](const CabinetMeasurements &cabinet) { return cabinet.label(); });
    if (found.isEmpty()) {
        found = chosen([](const CabinetMeasurements &cabinet) { return cabinet.cabinet; });
    }
    if (found.isEmpty()) {
        return fail(tr("no cabinet is called \"%1\"").arg(excerpt(wanted)));
    }
    if (found.size() > 1) {
        return fail(tr("several cabinets are called \"%1\": %2 and %3, for example")
                        .arg(excerpt(wanted), excerpt(found.at(0).label()), excerpt(found.at(1).label())));
    }
    m_list.measurements = found.first().list.measurements;
    return true;
}

bool MeasurementReader::choose(const MeasurementChoice &choice, MeasurementPart part)
{
    if (choice.isEmpty()) {
        return true;
    }
    const auto isChosen = [&choice](const Measurement &measurement) {
        return choice.line > 0 ? measurement.line == choice.line
                               : measurement.name.compare(choice.name.trimmed(), Qt::CaseInsensitive) == 0;
    };
    QVector<Measurement> &all = m_list.measurements;
    const auto chosen = std::find_if(all.constBegin(), all.constEnd(), isChosen);
    if (chosen == all.constEnd()) {
        return fail(choice.line > 0 ? tr("line %1 has no measurement to choose").arg(choice.line)
                                    : tr("no measurement is called \"%1\"").arg(excerpt(choice.name)));
    }
    const Measurement first = *chosen;
    for (Measurement &measurement : all) {
        const bool sameCabinet = measurement.cabinet == first.cabinet && measurement.row == first.row
            && measurement.column == first.column;
        if (isChosen(measurement)) {
            measurement.part = part;
        } else if (measurement.part == part && (choice.line <= 0 || sameCabinet)) {
            measurement.part = MeasurementPart::None;
        }
    }
    return true;
}

bool MeasurementReader::checkGamut()
{
    const QVector<CabinetMeasurements> cabinets = m_list.cabinets();
    if (cabinets.size() <= 1) {
        warnOfParts(m_list, QString());
        return m_failure.text.isEmpty();
    }
    warnOfCabinets(cabinets);
    const int before = int(m_warnings.size());
    for (int i = 0; i < cabinets.size() && m_warnings.size() < before + mostWarnings; ++i) {
        const Measurement &first = cabinets.at(i).list.measurements.first();
        QString where = first.cabinet.isEmpty() ? QString() : tr("cabinet \"%1\"").arg(excerpt(first.cabinet));
        if (first.row && first.column) {
            const QString position = tr("row %1, column %2").arg(*first.row).arg(*first.column);
            where = where.isEmpty() ? position : where + QStringLiteral(", ") + position;
        }
        warnOfParts(cabinets.at(i).list, where);
    }
    if (m_warnings.size() >= before + mostWarnings) {
        warn(tr("further cabinets are not checked: there are too many warnings"));
    }
    return true;
}

//! Of white alone, as uniformity is measured, nobody expects a gamut.
void MeasurementReader::warnOfCabinets(const QVector<CabinetMeasurements> &cabinets)
{
    const QVector<Measurement> &all = m_list.measurements;
    const auto isPrimary = [](const Measurement &measurement) {
        return std::find(primaryParts.begin(), primaryParts.end(), measurement.part) != primaryParts.end();
    };
    if (std::none_of(all.begin(), all.end(), isPrimary)) {
        return;
    }
    QStringList names;
    for (const CabinetMeasurements &cabinet : cabinets.mid(0, mostNamedCabinets)) {
        names.append(cabinet.label().isEmpty() ? QStringLiteral("–") : excerpt(cabinet.label()));
    }
    if (cabinets.size() > mostNamedCabinets) {
        names.append(QStringLiteral("…"));
    }
    warn(tr("%1 cabinets (%2): there is no measured gamut of all of them; choose a cabinet")
             .arg(cabinets.size())
             .arg(joined(names)));
}

//! \a where names the cabinet; empty: the list has no more than one.
void MeasurementReader::warnOfParts(const MeasurementList &list, const QString &where)
{
    QStringList missing;
    bool isWhiteMissing = false;
    bool isUsable = true;
    std::array<int, 6> firstLines{};
    for (const Measurement &measurement : list.measurements) {
        int &first = firstLines[std::size_t(measurement.part)];
        if (measurement.part == MeasurementPart::None) {
            continue;
        }
        const QString name = measurementPartName(measurement.part);
        if (first > 0 && measurement.part != MeasurementPart::Black) {
            isUsable = false;
            warn(tr("%1 is there more than once, first in line %2: there is no gamut; choose the line or the name that "
                    "is %1")
                     .arg(name)
                     .arg(first),
                place(measurement.line));
            return;
        }
        if (first > 0) {
            warn(tr("black is there more than once, first in line %1: none is used").arg(first),
                place(measurement.line));
            break;
        }
        first = measurement.line;
        if (!measurement.color && measurement.part != MeasurementPart::Black) {
            isUsable = false;
            warn(tr("%1 has no chromaticity: there is no gamut").arg(name), place(measurement.line));
        }
    }
    int present = 0;
    for (const MeasurementPart part : primaryParts) {
        if (firstLines[std::size_t(part)] > 0) {
            ++present;
        } else {
            missing.append(measurementPartName(part));
        }
    }
    isWhiteMissing = firstLines[std::size_t(MeasurementPart::White)] == 0;
    if (present == 3 && isWhiteMissing) {
        warn(m_options.whiteIsSum
                ? tr("white is missing: the sum of red, green and blue is taken as white")
                : tr("white is missing: there is no gamut; choose a measurement as white, or ask for the sum of red, "
                     "green and blue"),
            where);
    } else if (present == 2 || (present < 2 && where.isEmpty() && !isNameless())) {
        missing += isWhiteMissing ? QStringList{measurementPartName(MeasurementPart::White)} : QStringList();
        warn(tr("there is no gamut; missing: %1; choose the lines or the names that are these colours")
                 .arg(joined(missing)),
            where);
    }
    const bool shouldHaveGamut = isUsable && present == 3 && (!isWhiteMissing || m_options.whiteIsSum);
    if (const auto gamut = list.gamut(QString())) {
        for (const Problem &warning : warningsOfTheTriangle(gamut->getTargets())) {
            warn(warning.text, where);
        }
    } else if (shouldHaveGamut) {
        if (where.isEmpty()) {
            fail(noTriangleText());
        } else {
            warn(noTriangleText(), where);
        }
    }
}

QString MeasurementReader::place(int line, ColumnPart part) const
{
    return tr("line %1, column %2").arg(line).arg(m_labels[std::size_t(part)]);
}

//! Only the first failure counts.
bool MeasurementReader::fail(const QString &text, const QString &where)
{
    if (m_failure.text.isEmpty()) {
        m_failure = Problem{text, where, 0, 0};
    }
    return false;
}

void MeasurementReader::warn(const QString &text, const QString &where)
{
    m_warnings.append(Problem{text, where, 0, 0});
}

Outcome<MeasurementList> readMeasurementList(const QByteArray &bytes, const MeasurementOptions &options)
{
    return MeasurementReader(options).read(bytes);
}

} // namespace gamutfiles
