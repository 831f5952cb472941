// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/oneline.h>

namespace gamutfiles {

namespace {

//! Ends lines, turns the direction of writing, or is not to be seen; half of a pair cannot be written at all.
bool mayAlterLine(uint character)
{
    constexpr uint nonJoiner = 0x200C; // with the joiner behind it a part of words and of emoji
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return character != nonJoiner && character != nonJoiner + 1;
    default:
        return false;
    }
}

} // namespace

QString oneLine(const QString &text)
{
    QString line;
    int taken = 0; // so much of the text is in the line
    for (int i = 0; i < text.size();) {
        const QChar c = text.at(i);
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const int end = isPair ? i + 2 : i + 1;
        const uint character = isPair ? QChar::surrogateToUcs4(c, text.at(i + 1)) : c.unicode();
        if (mayAlterLine(character)) {
            line += text.mid(taken, i - taken);
            for (int unit = i; unit < end; ++unit) {
                line += QStringLiteral("\\u%1").arg(uint(text.at(unit).unicode()), 4, 16, QLatin1Char('0'));
            }
            taken = end;
        }
        i = end;
    }
    return taken == 0 ? text : line + text.mid(taken);
}

} // namespace gamutfiles
