// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/filenames.h"

#include <QRegularExpression>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int longest = 60; // signs of up to four bytes: below the 255 bytes of common file systems

} // namespace

QString safeFileName(const QString &name)
{
    QString safe;
    for (const QChar c : name.normalized(QString::NormalizationForm_C)) {
        const bool isForbidden = QStringLiteral("/\\:*?\"<>|").contains(c) || c.category() == QChar::Other_Control
            || c.category() == QChar::Other_Format || c.category() == QChar::Separator_Line
            || c.category() == QChar::Separator_Paragraph;
        safe += isForbidden ? QLatin1Char('_') : c;
    }
    safe = safe.simplified().left(longest);
    if (!safe.isEmpty() && safe.at(safe.size() - 1).isHighSurrogate()) {
        safe.chop(1);
    }
    // A dot in front hides a file, one at the end is lost on some systems.
    while (safe.startsWith(QLatin1Char('.')) || safe.startsWith(QLatin1Char(' '))) {
        safe.remove(0, 1);
    }
    while (safe.endsWith(QLatin1Char('.')) || safe.endsWith(QLatin1Char(' '))) {
        safe.chop(1);
    }
    static const QRegularExpression reserved(
        QStringLiteral("\\A(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?\\z"), QRegularExpression::CaseInsensitiveOption);
    if (reserved.match(safe).hasMatch()) {
        safe.prepend(QLatin1Char('_'));
    }
    const bool isReadable
        = std::any_of(safe.begin(), safe.end(), [](QChar c) { return c != QLatin1Char('_') && !c.isSpace(); });
    return isReadable ? safe : QString();
}

} // namespace gamutviewer
