// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/oneline.h>
#include <gamutfiles/outcome.h>

#include <QStringList>

namespace gamutfiles {

QString Problem::message(const QString &fileName) const
{
    QString position = fileName;
    if (line > 0) {
        position += QStringLiteral("%1%2:%3")
                        .arg(fileName.isEmpty() ? QString() : QStringLiteral(":"))
                        .arg(line)
                        .arg(column);
    }
    QStringList parts{position, place, text};
    parts.removeAll(QString());
    return oneLine(parts.join(QStringLiteral(": ")));
}

} // namespace gamutfiles
