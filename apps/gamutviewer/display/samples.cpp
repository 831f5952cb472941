// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/samples.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace gamutviewer {

namespace {

QString samplePath(const QString &name)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QString beside = programs.filePath(QStringLiteral("samples/") + name);
    if (QFile::exists(beside)) {
        return beside;
    }
    return QDir::cleanPath(programs.filePath(QStringLiteral(GAMUTVIEWER_SAMPLES_FROM_BIN "/") + name));
}

} // namespace

QString sampleFile()
{
    return samplePath(QStringLiteral("led-wall.json"));
}

QString sampleWallFile()
{
    return samplePath(QStringLiteral("simulated-wall.csv"));
}

QStringList shippedTolerances()
{
    const QDir folder(samplePath(QStringLiteral("tolerances")));
    QStringList files;
    for (const QString &name : folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        files.append(folder.absoluteFilePath(name));
    }
    return files;
}

} // namespace gamutviewer
