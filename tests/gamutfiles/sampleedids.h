// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_GAMUTFILES_SAMPLEEDIDS_H
#define CEIECHART_TESTS_GAMUTFILES_SAMPLEEDIDS_H

#include "samplefiles.h"

#include <gamutfiles/edid.h>

#include <QStringList>

namespace samplefiles {

inline bool isExactly(const Model::Target &target, int x, int y)
{
    return target.x == x / 1024.0 && target.y == y / 1024.0;
}

//! DCI-P3 with the white D65, each coordinate in 4096ths.
inline QByteArray displayP3()
{
    return twelveBits(2785, 1311) + twelveBits(1085, 2826) + twelveBits(614, 246) + twelveBits(1281, 1348);
}

//! 700, 1000 and 1/256 cd/m², as binary16.
inline const QList<quint16> halves{0x6178, 0x63D0, 0x1C00};

inline QByteArray nativeDisplay(char flags, const QList<quint16> &luminances = halves)
{
    return withExtensions(edid(),
        {displayIdBlock(0x20, displayIdDataBlock(0x21, 0, displayIdParameters(displayP3(), luminances, flags)))});
}

inline QByteArray hdrDisplay(const QByteArray &luminances)
{
    return withExtensions(edid(),
        {ctaBlock(
            ctaDataBlock(5, QByteArray("\xC0\x80", 2)) + ctaDataBlock(6, QByteArray("\x05\x01", 2) + luminances))});
}

inline QStringList messages(const QVector<gamutfiles::Problem> &problems)
{
    QStringList texts;
    for (const gamutfiles::Problem &problem : problems) {
        texts += problem.message();
    }
    return texts;
}

inline const QString stampedSrgb
    = QStringLiteral("the EDID states exactly sRGB: many makers write this without measuring");

} // namespace samplefiles

#endif
