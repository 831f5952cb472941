// SPDX-License-Identifier: MIT
#include "csv_p.h"

#include <QCoreApplication>

namespace gamutfiles {

namespace {

constexpr QChar quote = QLatin1Char('"');

struct CsvText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::CsvTable)
};

//! Skips blank lines and comments; returns whether there is anything after them.
bool skipIdleLines(const QString &text, int &position, int &line)
{
    while (position < text.size()) {
        int end = text.indexOf(QLatin1Char('\n'), position);
        end = end < 0 ? text.size() : end;
        const QString content = text.mid(position, end - position).trimmed();
        if (!content.isEmpty() && content.front() != QLatin1Char('#')) {
            return true;
        }
        position = end + 1;
        ++line;
    }
    return false;
}

QChar separatorOf(const QString &text, int position)
{
    QString bare;
    bool quoted = false;
    for (; position < text.size() && (quoted || text[position] != QLatin1Char('\n')); ++position) {
        quoted ^= text[position] == quote;
        if (!quoted) {
            bare += text[position];
        }
    }
    for (const char separator : {'\t', ';'}) {
        if (bare.contains(QLatin1Char(separator))) {
            return QLatin1Char(separator);
        }
    }
    return QLatin1Char(',');
}

} // namespace

Outcome<CsvTable> readCsv(const QByteArray &utf8)
{
    const QByteArray body = utf8.startsWith("\xEF\xBB\xBF") ? utf8.mid(3) : utf8;
    QString text = QString::fromUtf8(body.constData(), body.size());
    if (text.toUtf8() != body || text.contains(QChar(0))) {
        return Outcome<CsvTable>::failure(CsvText::tr("is not UTF-8 text"));
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));

    CsvTable table;
    int position = 0;
    int line = 1;
    while (skipIdleLines(text, position, line)) {
        if (table.rows.isEmpty()) {
            table.separator = separatorOf(text, position);
        }
        CsvRow row{line, {QString()}};
        bool quoted = false;
        for (; position < text.size() && (quoted || text[position] != QLatin1Char('\n')); ++position) {
            const QChar c = text[position];
            QString &field = row.fields.last();
            if (c == QLatin1Char('\n')) {
                ++line;
            }
            if (quoted && c == quote && position + 1 < text.size() && text[position + 1] == quote) {
                field += quote;
                ++position;
            } else if (c == quote && (quoted || field.trimmed().isEmpty())) {
                quoted = !quoted;
                field = quoted ? QString() : field;
            } else if (c == table.separator && !quoted) {
                row.fields.append(QString());
            } else {
                field += c;
            }
        }
        if (quoted) {
            return Outcome<CsvTable>::failure(CsvText::tr("line %1: unterminated quote").arg(row.line));
        }
        table.rows.append(row);
        ++position;
        ++line;
    }
    return table;
}

} // namespace gamutfiles
