// SPDX-License-Identifier: MIT
#include "json_p.h"

#include <QCoreApplication>
#include <QJsonParseError>
#include <QVector>

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

//! Whether the text stops before it is complete, and what there is of it is right.
bool endsTooEarly(const QByteArray &utf8, int errorOffset)
{
    // The error is found at the end, or where the word, the escape or the character begins that is cut.
    constexpr int longestCut = 5;
    int end = int(utf8.size());
    while (end > 0 && QByteArray(" \t\r\n").contains(utf8.at(end - 1))) {
        --end;
    }
    return errorOffset >= end - longestCut && isOpen(utf8);
}

} // namespace

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
    parsed.document = QJsonDocument::fromJson(utf8, &error);
    if (parsed.document.isNull()) {
        parsed.error = endsTooEarly(utf8, error.offset) ? JsonText::tr("unexpected end of file") : error.errorString();
        parsed.position = textPosition(utf8, error.offset);
    }
    return parsed;
}

} // namespace gamutfiles
