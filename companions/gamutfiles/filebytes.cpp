// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/filebytes.h>

#include <system/systemcalls_p.h>
#include <system/systempath_p.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <optional>

namespace gamutfiles {

namespace {

struct BytesText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::FileBytes)
};

//! Why \a fileName could not be opened for reading. The system's own words are in its language, not in the program's.
QString whyNotRead(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists()) {
        return BytesText::tr("there is no such file");
    }
    return file.isReadable() ? BytesText::tr("it cannot be opened") : BytesText::tr("permission denied");
}

//! Why \a fileName could not be opened for writing.
QString whyNotWritten(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (file.isDir()) {
        return BytesText::tr("it is a folder");
    }
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir()) {
        return BytesText::tr("there is no such folder");
    }
    return (file.exists() ? file : folder).isWritable() ? BytesText::tr("it cannot be opened")
                                                        : BytesText::tr("permission denied");
}

QString writeAll(QFileDevice &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush() ? QString()
                                                             : BytesText::tr("writing failed; the disk may be full");
}

bool isNamedPipe(const QString &fileName)
{
    return systemcalls::isNamedPipe(systemcalls::systemPath(fileName));
}

//! Opens \a pipe, a named pipe, for writing.
bool openNamedPipe(QFile &pipe)
{
    const std::optional<int> descriptor = systemcalls::openNamedPipe(systemcalls::systemPath(pipe.fileName()));
    if (!descriptor) {
        return false;
    }
    if (!pipe.open(*descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        systemcalls::closeStream(*descriptor);
        return false;
    }
    return true;
}

} // namespace

bool isStandardInput(const QString &fileName)
{
    return fileName == QLatin1String("-");
}

Outcome<QByteArray> readBytes(const QString &fileName, int maximum)
{
    constexpr int pieceSize = 64 * 1024;
    const auto failure = [](const QString &error) { return Outcome<QByteArray>::failure(error); };
    const auto unreadable
        = [&failure](const QString &reason) { return failure(BytesText::tr("cannot be read: %1").arg(reason)); };
    QFile file(fileName);
    if (isStandardInput(fileName)) {
        if (!file.open(stdin, QIODevice::ReadOnly)) {
            return unreadable(BytesText::tr("it cannot be opened"));
        }
    } else if (QFileInfo(fileName).isDir()) {
        return failure(BytesText::tr("is a folder"));
    } else if (isNamedPipe(fileName)) {
        return unreadable(
            BytesText::tr("it is a pipe, which may never end; its content is read from standard input, named -"));
    } else if (!file.open(QIODevice::ReadOnly)) {
        return unreadable(whyNotRead(fileName));
    }
    // One byte more than allowed tells a longer file, also where a size is not known beforehand (a pipe, a device).
    const int most = std::clamp(maximum, 0, std::numeric_limits<int>::max() - 1);
    QByteArray bytes;
    while (bytes.size() <= most) {
        const QByteArray piece = file.read(std::min(most + 1 - int(bytes.size()), pieceSize));
        if (piece.isEmpty()) {
            break;
        }
        bytes.append(piece.constData(), piece.size());
    }
    if (file.error() != QFileDevice::NoError) {
        return unreadable(BytesText::tr("reading fails after %1 bytes").arg(bytes.size()));
    }
    if (bytes.size() > most) {
        return failure(BytesText::tr("is larger than %1 KiB").arg(most / 1024));
    }
    return bytes;
}

QString writeBytes(const QByteArray &bytes, const QString &fileName)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        QFile device(fileName);
        if (isNamedPipe(fileName)) {
            return openNamedPipe(device) ? writeAll(device, bytes)
                                         : BytesText::tr("it is a pipe from which no program reads");
        }
        return device.open(QIODevice::WriteOnly) ? writeAll(device, bytes) : whyNotWritten(fileName);
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return whyNotWritten(fileName);
    }
    QString error = writeAll(file, bytes);
    if (error.isEmpty() && !file.commit()) {
        error = BytesText::tr("writing failed; the disk may be full");
    }
    return error;
}

} // namespace gamutfiles
