// SPDX-License-Identifier: MIT
#include "window/recentfiles.h"

#include "window/settings.h"

#include <QFileInfo>

namespace gamutviewer {

namespace {

const QString key = QStringLiteral("recentFiles");

QString absolute(const QString &fileName)
{
    return QFileInfo(fileName).absoluteFilePath();
}

} // namespace

QStringList RecentFiles::list()
{
    return Settings().value(key).toStringList();
}

void RecentFiles::add(const QString &fileName)
{
    QStringList files = list();
    files.removeAll(absolute(fileName));
    files.prepend(absolute(fileName));
    Settings().setValue(key, QStringList(files.mid(0, most)));
}

void RecentFiles::remove(const QString &fileName)
{
    QStringList files = list();
    files.removeAll(absolute(fileName));
    Settings().setValue(key, files);
}

void RecentFiles::clear()
{
    Settings().remove(key);
}

} // namespace gamutviewer
