// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/png.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

#include <vector>

#ifdef GAMUTVIEWER_LIBDEFLATE
#include <libdeflate.h>

#include <memory>
#else
#include <array>
#endif

namespace gamutviewer {

namespace {

constexpr int qualityOfLevel = 70; // as QImage::save() has it
constexpr auto mostBytes = qint64(64) * 1024 * 1024; // in memory beside the picture, and once more in the worst case
constexpr char filterUp = 2; // each byte less that of the row above
constexpr int bytesOfFrame = 100; // of a file, but for its pixels: no less than there are

#ifdef GAMUTVIEWER_LIBDEFLATE

//! \a rows in the format of zlib, or nothing without memory. Takes half of the time of zlib, for a smaller file.
QByteArray compressed(const QByteArray &rows)
{
    constexpr int level = 1; // higher ones take longer, for some hundredths of the size
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), libdeflate_free_compressor);
    if (!compressor) {
        return QByteArray();
    }
    const auto size = std::size_t(rows.size());
    QByteArray result(int(libdeflate_zlib_compress_bound(compressor.get(), size)), Qt::Uninitialized);
    result.truncate(int(
        libdeflate_zlib_compress(compressor.get(), rows.constData(), size, result.data(), std::size_t(result.size()))));
    return result;
}

quint32 crc(const char *bytes, int count)
{
    return libdeflate_crc32(0, bytes, std::size_t(count));
}

#else

//! \a rows in the format of zlib, or nothing without memory.
QByteArray compressed(const QByteArray &rows)
{
    constexpr int level = 2; // half of the time of the usual 6, for a file that is a seventh larger
    constexpr int bytesOfLength = 4; // with which qCompress() begins
    return qCompress(rows, level).mid(bytesOfLength);
}

quint32 crc(const char *bytes, int count)
{
    static const auto table = [] {
        std::array<quint32, 256> made{};
        for (quint32 i = 0; i < made.size(); ++i) {
            quint32 value = i;
            for (int bit = 0; bit < 8; ++bit) {
                value = (value & 1) != 0 ? 0xedb88320U ^ (value >> 1) : value >> 1;
            }
            made[i] = value;
        }
        return made;
    }();
    quint32 value = 0xffffffffU;
    for (const char *end = bytes + count; bytes != end; ++bytes) {
        value = table[(value ^ quint8(*bytes)) & 0xff] ^ (value >> 8);
    }
    return ~value;
}

#endif

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(int(sizeof(number)), Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

void appendChunk(QByteArray &file, const char *type, const char *data, int size)
{
    file += bigEndian(quint32(size));
    const int checked = int(file.size());
    file.append(type).append(data, size);
    file += bigEndian(crc(file.constData() + checked, int(file.size()) - checked));
}

//! Each byte of \a a less that of \a b: the highest bits are kept apart, so that no byte borrows from the next one.
quint32 bytewiseDifference(quint32 a, quint32 b)
{
    constexpr quint32 highest = 0x80808080U;
    return ((a | highest) - (b & ~highest)) ^ ((a ^ ~b) & highest);
}

//! The rows of \a image, red, green and blue of each pixel, as differences to the row above.
QByteArray filteredRows(const QImage &image)
{
    const int width = image.width();
    QByteArray rows((3 * width + 1) * image.height(), Qt::Uninitialized);
    const std::vector<QRgb> none(std::size_t(width), 0);
    const QRgb *above = none.data();
    char *filtered = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        *filtered++ = filterUp;
        for (int x = 0; x < width; ++x) {
            const quint32 difference = bytewiseDifference(row[x], above[x]);
            *filtered++ = char(qRed(difference));
            *filtered++ = char(qGreen(difference));
            *filtered++ = char(qBlue(difference));
        }
        above = row;
    }
    return rows;
}

} // namespace

QByteArray png(const QImage &image)
{
    if (image.format() != QImage::Format_RGB32 || (3 * qint64(image.width()) + 1) * image.height() > mostBytes) {
        QByteArray file;
        QBuffer buffer(&file);
        return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG", qualityOfLevel) ? file : QByteArray();
    }
    const QByteArray header = bigEndian(quint32(image.width())) + bigEndian(quint32(image.height()))
        + QByteArray("\x08\x02\x00\x00\x00", 5); // 8 bits of red, green and blue, not interlaced
    const QByteArray pixelsPerMeter
        = bigEndian(quint32(image.dotsPerMeterX())) + bigEndian(quint32(image.dotsPerMeterY())) + QByteArray("\x01", 1);
    const QByteArray pixels = compressed(filteredRows(image));
    if (pixels.isEmpty()) {
        return QByteArray();
    }
    QByteArray file("\x89PNG\r\n\x1a\n");
    file.reserve(int(pixels.size()) + bytesOfFrame);
    appendChunk(file, "IHDR", header.constData(), int(header.size()));
    appendChunk(file, "pHYs", pixelsPerMeter.constData(), int(pixelsPerMeter.size()));
    appendChunk(file, "IDAT", pixels.constData(), int(pixels.size()));
    appendChunk(file, "IEND", nullptr, 0);
    return file;
}

} // namespace gamutviewer
