// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "excerpt_p.h"

namespace gamutfiles {

QString excerpt(const QString &text)
{
    constexpr int longest = 60;
    if (text.size() <= longest) {
        return text;
    }
    const int end = text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest;
    return text.left(end) + QChar(0x2026);
}

} // namespace gamutfiles
