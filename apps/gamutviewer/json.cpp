// SPDX-License-Identifier: MIT
#include "json.h"

#include <QJsonParseError>
#include <QVector>

#include <algorithm>

namespace gamutviewer {

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
        parsed.error = error.errorString();
        parsed.position = textPosition(utf8, error.offset);
    }
    return parsed;
}

} // namespace gamutviewer
