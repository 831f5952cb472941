// SPDX-License-Identifier: MIT
#include "display/samples.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace gamutviewer {

QString sampleFile()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QString beside = programs.filePath(QStringLiteral("samples/led-wall.json"));
    if (QFile::exists(beside)) {
        return beside;
    }
    return QDir::cleanPath(programs.filePath(QStringLiteral(GAMUTVIEWER_SAMPLES_FROM_BIN "/led-wall.json")));
}

} // namespace gamutviewer
