// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "following/followedfile.h"

#include <QFile>
#include <QFileInfo>

namespace gamutviewer {

namespace {

//! What a tool writes in one go comes as several notices.
constexpr int gatherMilliseconds = 10;
//! Some file systems send no notices: shared folders, for example.
constexpr int lookMilliseconds = 1000;
constexpr int tailBytes = 1024;

} // namespace

FollowedFile::FollowedFile(const QString &fileName, QObject *parent)
    : FollowedInput(fileName, parent)
    , m_path(QFileInfo(fileName).absoluteFilePath())
    , m_watcher(this)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(gatherMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &FollowedFile::look);
    m_slow.setInterval(lookMilliseconds);
    connect(&m_slow, &QTimer::timeout, this, &FollowedFile::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FollowedFile::lookSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FollowedFile::lookSoon);
    watch();
    m_slow.start();
    m_soon.start();
}

//! A file that was replaced is no longer watched; one that is not there yet is seen by its folder.
void FollowedFile::watch()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!m_watcher.files().contains(m_path) && QFileInfo::exists(m_path)) {
        m_watcher.addPath(m_path);
    }
    if (!m_watcher.directories().contains(folder) && QFileInfo::exists(folder)) {
        m_watcher.addPath(folder);
    }
}

void FollowedFile::lookSoon()
{
    if (!m_soon.isActive()) {
        m_soon.start();
    }
}

void FollowedFile::look()
{
    watch();
    Q_EMIT arrived();
}

QByteArray FollowedFile::read(int most)
{
    QFile file(m_path);
    // Opening what has become a pipe would wait.
    m_isThere = QFileInfo(m_path).isFile() && file.open(QIODevice::ReadOnly);
    if (!m_isThere) {
        return QByteArray();
    }
    const qint64 tailBegin = m_position - m_tail.size();
    if (!file.seek(tailBegin) || file.read(m_tail.size()) != m_tail) {
        m_position = 0;
        m_tail.clear();
        Q_EMIT restarted();
    }
    const QByteArray bytes = file.seek(m_position) ? file.read(most) : QByteArray();
    m_position += bytes.size();
    m_tail = (m_tail + bytes).right(tailBytes);
    return bytes;
}

} // namespace gamutviewer
