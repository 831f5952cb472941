// SPDX-License-Identifier: MIT
#include <gamutfiles/filebytes.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace gamutfiles {

namespace {

QString writeAll(QFileDevice &file, const QByteArray &bytes)
{
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return file.errorString();
    }
    return {};
}

} // namespace

Outcome<QByteArray> readBytes(const QString &fileName, int maximum)
{
    const auto failure = [](const QString &error) { return Outcome<QByteArray>::failure(error); };
    const auto unreadable = [&failure](const QFile &file) {
        return failure(QCoreApplication::translate("gamutfiles", "cannot be read: %1").arg(file.errorString()));
    };
    if (QFileInfo(fileName).isDir()) {
        return failure(QCoreApplication::translate("gamutfiles", "is a folder"));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return unreadable(file);
    }
    // One byte more than allowed tells a longer file, also where a size is not known beforehand (a pipe, a device).
    QByteArray bytes;
    while (bytes.size() <= maximum) {
        const QByteArray piece = file.read(maximum + 1 - bytes.size());
        if (piece.isEmpty()) {
            break;
        }
        bytes += piece;
    }
    if (file.error() != QFileDevice::NoError) {
        return unreadable(file);
    }
    if (bytes.size() > maximum) {
        return failure(QCoreApplication::translate("gamutfiles", "is larger than %1 KiB").arg(maximum / 1024));
    }
    return bytes;
}

QString writeBytes(const QByteArray &bytes, const QString &fileName)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        QFile device(fileName);
        return writeAll(device, bytes);
    }
    QSaveFile file(fileName);
    QString error = writeAll(file, bytes);
    if (error.isEmpty() && !file.commit()) {
        error = file.errorString();
    }
    return error;
}

} // namespace gamutfiles
