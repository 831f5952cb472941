// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "following/followedfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace gamutviewer {

namespace {

//! What a tool writes in one go comes as several notices.
constexpr int gatherMilliseconds = 10;
//! Some file systems send no notices: shared folders, for example.
constexpr int lookMilliseconds = 1000;
constexpr int tailBytes = 1024;
//! What was read is compared in blocks, a megabyte at a time, which takes some two milliseconds.
constexpr int blockBytes = 64 * 1024;
constexpr int blocksCompared = 16;
constexpr int compareMilliseconds = 200;

QByteArray digest(const QByteArray &block)
{
    return QCryptographicHash::hash(block, QCryptographicHash::Md5); // against mistakes, not against forgery
}

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
    if (!file.seek(tailBegin) || file.read(m_tail.size()) != m_tail || !isAsRead(file)) {
        forget();
        Q_EMIT restarted();
    }
    const QByteArray bytes = file.seek(m_position) ? file.read(most) : QByteArray();
    keep(bytes);
    return bytes;
}

void FollowedFile::keep(const QByteArray &bytes)
{
    m_position += bytes.size();
    m_tail = (m_tail + bytes).right(tailBytes);
    m_block += bytes;
    while (m_block.size() >= blockBytes) {
        m_blocks.append(digest(m_block.left(blockBytes)));
        m_block.remove(0, blockBytes);
    }
}

void FollowedFile::forget()
{
    m_position = 0;
    m_tail.clear();
    m_blocks.clear();
    m_block.clear();
    m_nextBlock = 0;
}

//! Compares some of what was read with what stands there now: the rest has its turn at the next times.
bool FollowedFile::isAsRead(QFile &file)
{
    if (m_sinceCompared.isValid() && m_sinceCompared.elapsed() < compareMilliseconds) {
        return true;
    }
    m_sinceCompared.start();
    if (!file.seek(qint64(m_blocks.size()) * blockBytes) || file.read(m_block.size()) != m_block) {
        return false;
    }
    for (int i = 0; i < std::min(blocksCompared, int(m_blocks.size())); ++i) {
        m_nextBlock = m_nextBlock < m_blocks.size() ? m_nextBlock : 0;
        if (!file.seek(qint64(m_nextBlock) * blockBytes) || digest(file.read(blockBytes)) != m_blocks.at(m_nextBlock)) {
            return false;
        }
        ++m_nextBlock;
    }
    return true;
}

} // namespace gamutviewer
