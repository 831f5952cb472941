// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "csv_p.h"

#include "numbers_p.h"

#include <algorithm>
#include <utility>

namespace gamutfiles {

namespace {

constexpr QChar quote = QLatin1Char('"');

//! Where reading stands.
struct Position {
    int index = 0;
    int line = 1;
};

int lineEnd(const QString &text, int index)
{
    const int end = int(text.indexOf(QLatin1Char('\n'), index));
    return end < 0 ? int(text.size()) : end;
}

//! Skips blank lines and comments, and keeps the comments; returns whether there is anything after them.
bool skipIdleLines(const QString &text, Position &position, QVector<std::pair<int, QString>> *comments = nullptr)
{
    while (position.index < text.size()) {
        const int end = lineEnd(text, position.index);
        int first = position.index;
        while (first < end && text.at(first).isSpace() && text.at(first) != QLatin1Char('\t')) {
            ++first;
        }
        const bool blank
            = std::all_of(text.constBegin() + first, text.constBegin() + end, [](QChar c) { return c.isSpace(); });
        if (!blank && text.at(first) != QLatin1Char('#')) {
            return true;
        }
        if (!blank && comments) {
            while (first < end && text.at(first) == QLatin1Char('#')) {
                ++first;
            }
            comments->append({position.line, text.mid(first, end - first)});
        }
        position.index = end + 1;
        ++position.line;
    }
    return false;
}

//! The separator that a spreadsheet's line "sep=;" at the beginning names; \a position is moved behind it.
std::optional<QChar> namedSeparator(const QString &text, Position &position)
{
    const int end = lineEnd(text, 0);
    QString line = text.left(std::min(end, 16));
    if (line.startsWith(quote)) { // quoted as a whole when the spreadsheet took it for text
        line.remove(quote);
    }
    // A tab at the end of the line is the separator itself, other trailing characters are padding of empty columns.
    if (!line.startsWith(QLatin1String("sep="), Qt::CaseInsensitive) || line.size() < 5) {
        return std::nullopt;
    }
    const QChar separator = line.mid(4, 2) == QLatin1String("\\t") ? QLatin1Char('\t') : line.at(4);
    if (separator.isLetterOrNumber() || separator == quote) {
        return std::nullopt;
    }
    position = {end + 1, 2};
    return separator;
}

QChar separatorOfFirstRecord(const QString &text, Position position)
{
    if (skipIdleLines(text, position)) {
        QString bare;
        bool quoted = false;
        for (int i = position.index; i < text.size() && (quoted || text.at(i) != QLatin1Char('\n')); ++i) {
            quoted ^= text.at(i) == quote;
            if (!quoted) {
                bare += text.at(i);
            }
        }
        for (const char separator : {'\t', ';'}) {
            if (bare.contains(QLatin1Char(separator))) {
                return QLatin1Char(separator);
            }
        }
    }
    return QLatin1Char(',');
}

//! The fields of the record at \a position; nothing when a quote is never closed.
std::optional<QStringList> readRecord(const QString &text, Position &position, QChar separator)
{
    QStringList fields{QString()};
    bool quoted = false;
    bool blank = true; // whether the field has nothing but white space
    for (; position.index < text.size() && (quoted || text.at(position.index) != QLatin1Char('\n')); ++position.index) {
        const QChar c = text.at(position.index);
        QString &field = fields.last();
        if (c == QLatin1Char('\n')) {
            ++position.line;
        }
        const bool doubled = position.index + 1 < text.size() && text.at(position.index + 1) == quote;
        if (quoted && c == quote && doubled) {
            field += quote;
            ++position.index;
        } else if (c == quote && (quoted || blank)) {
            quoted = !quoted;
            field = quoted ? QString() : field;
            blank = false;
        } else if (c == separator && !quoted) {
            // Spaces that align columns are one separator.
            if (separator != QLatin1Char(' ') || !blank) {
                fields.append(QString());
            }
            blank = true;
        } else {
            // At once with what follows up to the next character that can mean something.
            const QChar *const begin = text.constData() + position.index;
            const QChar *const end = std::find_if(begin + 1, text.constData() + text.size(),
                [separator](QChar next) { return next == quote || next == separator || next == QLatin1Char('\n'); });
            field.append(begin, int(end - begin));
            blank = blank && std::all_of(begin, end, [](QChar one) { return one.isSpace(); });
            position.index += int(end - begin) - 1;
        }
    }
    ++position.index;
    ++position.line;
    if (separator == QLatin1Char(' ') && blank && fields.size() > 1) {
        fields.removeLast();
    }
    return quoted ? std::nullopt : std::make_optional(fields);
}

CsvTable readTable(const QString &text, Position position, QChar separator)
{
    CsvTable table{separator, {}, {}, 0};
    QVector<std::pair<int, QString>> comments;
    while (skipIdleLines(text, position, &comments)) {
        const int line = position.line;
        const auto fields = readRecord(text, position, separator);
        if (!fields) {
            table.unterminatedLine = line;
            break;
        }
        table.rows.append({line, *fields});
    }
    for (const auto &[line, comment] : std::as_const(comments)) {
        Position begin;
        if (const auto fields = readRecord(comment, begin, separator)) {
            table.comments.append({line, *fields});
        }
    }
    return table;
}

int recordsOfNumbers(const CsvTable &table)
{
    return int(std::count_if(table.rows.begin(), table.rows.end(), [](const CsvRow &row) {
        int numbers = 0;
        for (int i = 0; i < row.fields.size() && numbers < 3; ++i) {
            numbers += decimalEvidence(row.fields.at(i)) == DecimalEvidence::NotANumber ? 0 : 1;
        }
        return numbers >= 3;
    }));
}

} // namespace

CsvTable readCsv(const QString &raw, std::optional<QChar> separator)
{
    QString text = raw;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    Position begin;
    const auto named = namedSeparator(text, begin);
    if (separator || named) {
        return readTable(text, begin, separator ? *separator : *named);
    }
    CsvTable best;
    int most = 0;
    for (const char candidate : {'\t', ';', ','}) {
        if (!text.contains(QLatin1Char(candidate))) {
            continue; // a record of one field has not the numbers of a measurement
        }
        const CsvTable table = readTable(text, begin, QLatin1Char(candidate));
        const int records = recordsOfNumbers(table);
        if (records > most) {
            best = table;
            most = records;
        }
    }
    if (most == 0) {
        CsvTable table = readTable(text, begin, QLatin1Char(' '));
        if (recordsOfNumbers(table) > 0) {
            return table;
        }
    }
    return most > 0 ? best : readTable(text, begin, separatorOfFirstRecord(text, begin));
}

} // namespace gamutfiles
