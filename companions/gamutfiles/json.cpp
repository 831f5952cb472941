// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "json_p.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonParseError>
#include <QSet>

#include <algorithm>

namespace gamutfiles {

namespace {

struct JsonText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Json)
};

//! Whether something is open at the end of the text: a string, an array, an object.
bool isOpen(const QByteArray &utf8)
{
    QByteArray closing;
    bool inString = false;
    for (int i = 0; i < utf8.size(); ++i) {
        const char c = utf8.at(i);
        if (inString) {
            i += c == '\\' ? 1 : 0;
            inString = c != '"';
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            closing.append(c == '{' ? '}' : ']');
        } else if (c == '}' || c == ']') {
            if (!closing.endsWith(c)) {
                return false;
            }
            closing.chop(1);
            if (closing.isEmpty()) {
                return false;
            }
        }
    }
    return inString || !closing.isEmpty();
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

//! Whether the text stops before it is complete, and what there is of it is right.
bool endsTooEarly(const QByteArray &utf8, int errorOffset)
{
    // The error is found at the end, or where the word, the escape or the character begins that is cut.
    constexpr int longestCut = 5;
    int end = int(utf8.size());
    while (end > 0 && isSpace(utf8.at(end - 1))) {
        --end;
    }
    return errorOffset >= end - longestCut && isOpen(utf8);
}

/*
 * A byte order mark is a character like any other but at the begin of a file, where it is skipped. QString::fromUtf8()
 * skips it at the begin of each string, so it is escaped there.
 */
QByteArray withEscapedMarks(QByteArray utf8)
{
    const QByteArray mark("\xEF\xBB\xBF");
    return utf8.replace('"' + mark, "\"\\ufeff");
}

//! Behind the string that begins with the quote at \a begin.
int stringEnd(const QByteArray &utf8, int begin)
{
    int end = begin + 1;
    while (end < utf8.size() && utf8.at(end) != '"') {
        end += utf8.at(end) == '\\' ? 2 : 1;
    }
    return std::min(end + 1, int(utf8.size()));
}

//! The string that \a literal is, with its quotes.
QString stringOf(const QByteArray &literal)
{
    if (!literal.contains('\\')) {
        return QString::fromUtf8('_' + literal.mid(1, literal.size() - 2)).mid(1);
    }
    return QJsonDocument::fromJson('[' + withEscapedMarks(literal) + ']').array().at(0).toString();
}

} // namespace

QVector<RepeatedKey> repeatedKeys(const QByteArray &utf8, int most)
{
    QVector<QSet<QString>> objects; // the keys of each that is open; of an array none
    QVector<RepeatedKey> repeated;
    for (int i = 0; i < utf8.size() && repeated.size() < most; ++i) {
        const char c = utf8.at(i);
        if (c == '{' || c == '[') {
            objects.append(QSet<QString>());
        } else if (c == '}' || c == ']') {
            objects.resize(std::max(0, int(objects.size()) - 1));
        } else if (c == '"') {
            const int begin = i;
            const int end = stringEnd(utf8, begin);
            int next = end;
            while (next < utf8.size() && isSpace(utf8.at(next))) {
                ++next;
            }
            if (next < utf8.size() && utf8.at(next) == ':' && !objects.isEmpty()) {
                const QString key = stringOf(utf8.mid(begin, end - begin));
                if (objects.last().contains(key)) {
                    repeated.append({key, textPosition(utf8, begin)});
                }
                objects.last().insert(key);
            }
            i = end - 1;
        }
    }
    return repeated;
}

TextPosition textPosition(const QByteArray &utf8, int offset)
{
    const QByteArray before = utf8.left(std::max(offset, 0));
    const int lineBegin = int(before.lastIndexOf('\n')) + 1;
    return {int(before.count('\n')) + 1, int(QString::fromUtf8(before.mid(lineBegin)).toUcs4().size()) + 1};
}

ParsedJson parseJson(const QByteArray &utf8)
{
    QJsonParseError error;
    ParsedJson parsed;
    parsed.document = QJsonDocument::fromJson(withEscapedMarks(utf8), &error);
    if (parsed.document.isNull()) {
        QJsonDocument::fromJson(utf8, &error); // at the place that it has in the file
        parsed.error = endsTooEarly(utf8, error.offset) ? JsonText::tr("unexpected end of file") : error.errorString();
        parsed.position = textPosition(utf8, error.offset);
    }
    return parsed;
}

} // namespace gamutfiles
