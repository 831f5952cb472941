// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/coordinatepair.h"

#include <QRegularExpression>

namespace gamutviewer {

std::optional<QPointF> pairFromText(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A\\s*([0-9]*\\.?[0-9]+)(?:\\s*[,;]\\s*|\\s+)([0-9]*\\.?[0-9]+)\\s*\\z"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? std::make_optional(QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()))
                            : std::nullopt;
}

} // namespace gamutviewer
