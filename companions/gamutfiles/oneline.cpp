// SPDX-License-Identifier: MIT
#include <gamutfiles/oneline.h>

namespace gamutfiles {

QString oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar c : text) {
        switch (c.category()) {
        case QChar::Other_Control:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            line += QStringLiteral("\\u%1").arg(uint(c.unicode()), 4, 16, QLatin1Char('0'));
            break;
        default:
            line += c;
        }
    }
    return line;
}

} // namespace gamutfiles
