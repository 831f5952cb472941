// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/streaminput.h"

#include "display/gamutfiles.h"
#include "following/followedfile.h"

#include <system/systemcalls_p.h>
#include <system/systempath_p.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace gamutviewer {

namespace {

constexpr int writerMilliseconds = 250;
//! The thread waits when as much has not been taken.
constexpr int mostWaitingBytes = 256 * 1024;
constexpr int mostThreadBytes = 4096;

} // namespace

StreamInput::StreamInput(const QString &fileName, int descriptor, AtEnd atEnd, QObject *parent)
    : FollowedInput(fileName, parent)
    , m_descriptor(descriptor)
    , m_atEnd(atEnd)
    , m_notifier(descriptor, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier.setEnabled(false); // until all has been read
        Q_EMIT arrived();
    });
    m_writer.setSingleShot(true);
    m_writer.setInterval(writerMilliseconds);
    connect(&m_writer, &QTimer::timeout, this, &FollowedInput::arrived);
}

StreamInput::~StreamInput()
{
    m_notifier.setEnabled(false);
    if (m_atEnd == AtEnd::AwaitsWriter) {
        systemcalls::closeStream(m_descriptor);
    }
}

QByteArray StreamInput::read(int most)
{
    if (m_hasEnded) {
        return QByteArray();
    }
    QByteArray bytes(most, Qt::Uninitialized);
    const auto length = systemcalls::readStream(m_descriptor, bytes.data(), std::size_t(most));
    if (length) {
        bytes.truncate(int(*length));
        m_isThere = m_isThere || !bytes.isEmpty();
        // A pipe without a writer would be told of again and again.
        if (bytes.isEmpty() && m_isThere) {
            m_notifier.setEnabled(true);
        } else if (bytes.isEmpty()) {
            m_writer.start();
        }
        return bytes;
    }
    m_notifier.setEnabled(false);
    if (m_atEnd == AtEnd::Ends) {
        m_hasEnded = true;
        Q_EMIT arrived();
    } else {
        m_isThere = false;
        m_writer.start();
    }
    return QByteArray();
}

struct ThreadInput::Shared {
    mutable std::mutex mutex;
    std::condition_variable room;
    QByteArray bytes; // that have not been taken
    bool hasEnded = false;
    ThreadInput *receiver = nullptr; // nothing when no one takes any more
};

ThreadInput::ThreadInput(const QString &fileName, std::FILE *stream, QObject *parent)
    : FollowedInput(fileName, parent)
    , m_shared(std::make_shared<Shared>())
{
    m_shared->receiver = this;
    std::thread(&ThreadInput::readAll, m_shared, stream).detach();
}

ThreadInput::~ThreadInput()
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->receiver = nullptr;
    m_shared->room.notify_all();
}

void ThreadInput::readAll(const std::shared_ptr<Shared> &shared, std::FILE *stream)
{
    bool hasEnded = false;
    while (!hasEnded) {
        // Byte by byte, as reading more would wait for all of it. A line is handed over at its end.
        QByteArray bytes;
        while (!hasEnded && !bytes.endsWith('\n') && bytes.size() < mostThreadBytes) {
            const int c = std::getc(stream);
            hasEnded = c == EOF;
            if (!hasEnded) {
                bytes.append(char(c));
            }
        }
        std::unique_lock<std::mutex> lock(shared->mutex);
        shared->room.wait(lock, [&] { return !shared->receiver || shared->bytes.size() < mostWaitingBytes; });
        if (!shared->receiver) {
            return;
        }
        const bool isAwaited = shared->bytes.isEmpty();
        shared->bytes += bytes;
        shared->hasEnded = hasEnded;
        if (isAwaited || hasEnded) {
            QMetaObject::invokeMethod(shared->receiver, &FollowedInput::arrived, Qt::QueuedConnection);
        }
    }
}

QByteArray ThreadInput::read(int most)
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    const QByteArray bytes = m_shared->bytes.left(most);
    m_shared->bytes.remove(0, bytes.size());
    m_shared->room.notify_all();
    return bytes;
}

bool ThreadInput::hasEnded() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return m_shared->hasEnded && m_shared->bytes.isEmpty();
}

InputToFollow inputToFollow(const QString &fileName)
{
    const auto failure = [&fileName](const QString &reason) {
        return InputToFollow{nullptr, oneLine(QStringLiteral("%1: %2").arg(fileName, reason))};
    };
    if (isStandardInput(fileName)) {
        if (const auto descriptor = systemcalls::standardInput()) {
            return {std::make_unique<StreamInput>(fileName, *descriptor, StreamInput::AtEnd::Ends), QString()};
        }
        return {std::make_unique<ThreadInput>(fileName, stdin), QString()};
    }
    const QFileInfo file(fileName);
    if (file.isDir()) {
        return failure(QCoreApplication::translate("main", "is a folder"));
    }
    if (!QFileInfo(file.absolutePath()).isDir()) {
        return failure(QCoreApplication::translate("main", "there is no such folder"));
    }
    if (!file.exists() || file.isFile()) {
        return {std::make_unique<FollowedFile>(fileName), QString()};
    }
    if (const auto descriptor = systemcalls::openStream(systemcalls::systemPath(fileName))) {
        return {std::make_unique<StreamInput>(fileName, *descriptor, StreamInput::AtEnd::AwaitsWriter), QString()};
    }
    return failure(QCoreApplication::translate("main", "cannot be opened"));
}

} // namespace gamutviewer
