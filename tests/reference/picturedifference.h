// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_PICTUREDIFFERENCE_H
#define CEIECHART_TESTS_REFERENCE_PICTUREDIFFERENCE_H

#include <QImage>
#include <QRect>
#include <QString>

#include <cstring>

namespace reference {

/*!
 * \brief The first difference between \a actual and \a expected: null image, size, format, or the first pixel with a
 * different stored value. Empty for identical pictures.
 *
 * For pictures with 32 bits per pixel. Stored values are compared: two fully transparent pixels of different colours
 * are different.
 */
inline QString firstDifference(const QImage &actual, const QImage &expected)
{
    if (actual.isNull() != expected.isNull()) {
        return actual.isNull() ? QStringLiteral("null picture") : QStringLiteral("picture is not null");
    }
    if (actual.size() != expected.size()) {
        return QStringLiteral("size %1x%2 instead of %3x%4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    if (actual.format() != expected.format()) {
        return QStringLiteral("format %1 instead of %2").arg(actual.format()).arg(expected.format());
    }
    if (expected.isNull()) {
        return QString();
    }
    if (expected.depth() != 32) {
        return QStringLiteral("depth %1 cannot be compared").arg(expected.depth());
    }
    for (int y = 0; y < expected.height(); ++y) {
        const uchar *actualRow = actual.constBits() + static_cast<qptrdiff>(y) * actual.bytesPerLine();
        const uchar *expectedRow = expected.constBits() + static_cast<qptrdiff>(y) * expected.bytesPerLine();
        for (int x = 0; x < expected.width(); ++x) {
            quint32 actualPixel = 0;
            quint32 expectedPixel = 0;
            std::memcpy(&actualPixel, actualRow + 4 * static_cast<qptrdiff>(x), 4);
            std::memcpy(&expectedPixel, expectedRow + 4 * static_cast<qptrdiff>(x), 4);
            if (actualPixel != expectedPixel) {
                return QStringLiteral("pixel (%1, %2) of %3x%4 is #%5 instead of #%6")
                    .arg(x)
                    .arg(y)
                    .arg(expected.width())
                    .arg(expected.height())
                    .arg(actualPixel, 8, 16, QLatin1Char('0'))
                    .arg(expectedPixel, 8, 16, QLatin1Char('0'));
            }
        }
    }
    return QString();
}

/*!
 * \brief The smallest rectangle that contains all different pixels of two pictures of the same size; empty if there are
 * none.
 */
inline QRect changedPixels(const QImage &a, const QImage &b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_PICTUREDIFFERENCE_H
