// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/recentfiles.h"

#include "display/gamutfiles.h"
#include "window/settings.h"

#include <QDir>
#include <QFileInfo>

namespace gamutviewer {

namespace {

const QString filesKey = QStringLiteral("recentFiles");
const QString folderKey = QStringLiteral("folder");

QString absolute(const QString &fileName)
{
    return QFileInfo(fileName).absoluteFilePath();
}

} // namespace

QStringList RecentFiles::list()
{
    return Settings().value(filesKey).toStringList();
}

void RecentFiles::add(const QString &fileName)
{
    if (isStandardInput(fileName) || (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile())) {
        return;
    }
    setFolderOf(fileName);
    QStringList files = list();
    files.removeAll(absolute(fileName));
    files.prepend(absolute(fileName));
    Settings().setValue(filesKey, QStringList(files.mid(0, most)));
}

void RecentFiles::remove(const QString &fileName)
{
    QStringList files = list();
    files.removeAll(absolute(fileName));
    Settings().setValue(filesKey, files);
}

void RecentFiles::clear()
{
    Settings().remove(filesKey);
}

QString RecentFiles::folder()
{
    const QString folder = Settings().value(folderKey).toString();
    return QFileInfo(folder).isDir() ? folder : QDir::currentPath();
}

void RecentFiles::setFolderOf(const QString &fileName)
{
    Settings().setValue(folderKey, QFileInfo(fileName).absolutePath());
}

} // namespace gamutviewer
