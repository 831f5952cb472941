// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_GAMUTFILES_SAMPLEFILES_H
#define CEIECHART_TESTS_GAMUTFILES_SAMPLEFILES_H

#include <QByteArray>
#include <QList>

#include <lcms2.h>

#include <algorithm>
#include <functional>
#include <numeric>

/*! \brief Files that declare a gamut, as displays and profilers write them. */
namespace samplefiles {

/*! \brief Sets the byte at \a place so that it and those before it from \a first on add up to a multiple of 256. */
inline QByteArray withChecksum(QByteArray edid, int first, int place)
{
    edid[place] = 0;
    edid[place] = char(256 - quint8(std::accumulate(edid.begin() + first, edid.begin() + place, 0)));
    return edid;
}

/*! \brief Corrects the checksum of a block, the base block of a whole EDID. */
inline QByteArray withChecksum(const QByteArray &edid)
{
    return withChecksum(edid, 0, 127);
}

/*!
 * \brief An EDID 1.4 base block of the monitor "Studio 27" with the sRGB primaries to ten bits, which most monitors
 * declare: red 655, 338; green 307, 614; blue 154, 61; white 320, 337; each in 1024ths.
 */
inline QByteArray edid()
{
    QByteArray block(128, '\0');
    block.replace(0, 8, QByteArray("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8));
    block.replace(8, 4, QByteArray("\x04\x43\x34\x12", 4)); // "ABC", product 0x1234
    block.replace(18, 7, QByteArray("\x01\x04\xA5\x3C\x22\x78\x3A", 7));
    block.replace(25, 10, QByteArray("\xEE\x91\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10));
    block.replace(54, 2, QByteArray("\x01\x01", 2));
    block.replace(72, 18, QByteArray("\x00\x00\x00\xFC\x00Studio 27\n   ", 18));
    return withChecksum(block);
}

/*! \brief edid() with \a colors, ten bytes, instead of its chromaticities. */
inline QByteArray edidOf(const QByteArray &colors)
{
    return withChecksum(edid().replace(25, 10, colors));
}

/*! \brief \a base with \a blocks behind it, and their number in its place. */
inline QByteArray withExtensions(QByteArray base, const QList<QByteArray> &blocks)
{
    base[126] = char(blocks.size());
    base = withChecksum(base);
    for (const QByteArray &block : blocks) {
        base += block;
    }
    return base;
}

/*! \brief A CTA-861 extension of \a dataBlocks. */
inline QByteArray ctaBlock(const QByteArray &dataBlocks)
{
    QByteArray block("\x02\x03\x00\x00", 4);
    block[2] = char(4 + dataBlocks.size());
    return withChecksum((block + dataBlocks).leftJustified(128, '\0'));
}

/*! \brief A CTA-861 data block of an extended \a tag. */
inline QByteArray ctaDataBlock(int tag, const QByteArray &payload)
{
    return QByteArray(1, char(0xE0 | (payload.size() + 1))) + char(tag) + payload;
}

/*! \brief A DisplayID extension of \a dataBlocks; \a version is 0x20 for 2.0. */
inline QByteArray displayIdBlock(int version, const QByteArray &dataBlocks)
{
    QByteArray block = QByteArray("\x70") + char(version) + char(121) + '\x03' + '\0' + dataBlocks;
    return withChecksum(withChecksum(block.leftJustified(128, '\0'), 1, 126));
}

/*! \brief A data block of a DisplayID extension. */
inline QByteArray displayIdDataBlock(int tag, int revision, const QByteArray &payload)
{
    return QByteArray(1, char(tag)) + char(revision) + char(payload.size()) + payload;
}

/*! \brief A pair of twelve bits each, in 4096ths, as DisplayID has them. */
inline QByteArray twelveBits(int x, int y)
{
    return QByteArray(1, char(x & 0xFF)) + char((x >> 8) | ((y & 0xF) << 4)) + char(y >> 4);
}

/*! \brief The display parameters of DisplayID 2: \a colors are four twelveBits(), \a luminances three binary16. */
inline QByteArray displayIdParameters(
    const QByteArray &colors, const QList<quint16> &luminances, char flags = '\0', char gamma = 120)
{
    QByteArray payload(8, '\0');
    payload += flags;
    payload += colors;
    for (const quint16 luminance : luminances) {
        payload += char(luminance & 0xFF);
        payload += char(luminance >> 8);
    }
    return payload + '\x02' + gamma;
}

/*! \brief The same with a red of its own, 627, 338 in 1024ths, so that nothing is odd about it. */
inline QByteArray plainEdid()
{
    return withChecksum(edid().replace(27, 1, QByteArray("\x9C", 1)));
}

using EditProfile = std::function<void(cmsHPROFILE)>;

inline QByteArray saved(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(int(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

inline void describe(cmsHPROFILE profile, const wchar_t *text)
{
    cmsMLU *description = cmsMLUalloc(nullptr, 1);
    cmsMLUsetWide(description, "en", "US", text);
    cmsWriteTag(profile, cmsSigProfileDescriptionTag, description);
    cmsMLUfree(description);
}

/*!
 * \brief An ICC version 2 display profile of sRGB without an adaptation tag, changed by \a edit.
 *
 * The colorants are the published D50-adapted ones (Lindbloom, RGB/XYZ matrices), the media white is D65.
 */
inline QByteArray version2Profile(const EditProfile &edit = {})
{
    const cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.1);
    cmsSetDeviceClass(profile, cmsSigDisplayClass);
    cmsSetColorSpace(profile, cmsSigRgbData);
    cmsSetPCS(profile, cmsSigXYZData);
    const cmsCIEXYZ red{0.4360747, 0.2225045, 0.0139322};
    const cmsCIEXYZ green{0.3850649, 0.7168786, 0.0971045};
    const cmsCIEXYZ blue{0.1430804, 0.0606169, 0.7141733};
    const cmsCIEXYZ white{0.95047, 1.0, 1.08883};
    cmsWriteTag(profile, cmsSigRedColorantTag, &red);
    cmsWriteTag(profile, cmsSigGreenColorantTag, &green);
    cmsWriteTag(profile, cmsSigBlueColorantTag, &blue);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, &white);
    describe(profile, L"Studio 27 calibrated");
    if (edit) {
        edit(profile);
    }
    return saved(profile);
}

/*! \brief The same display in ICC version 4: D50 media white, the adaptation in a tag of its own. */
inline QByteArray version4Profile(const EditProfile &edit = {})
{
    return version2Profile([&edit](cmsHPROFILE profile) {
        cmsSetProfileVersion(profile, 4.3);
        cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
        // From D65 to D50 by Bradford (Lindbloom, Chromatic adaptation).
        const cmsCIEXYZ rows[] = {
            {1.0478112, 0.0228866, -0.0501270}, {0.0295424, 0.9904844, -0.0170491}, {-0.0092345, 0.0150436, 0.7521316}};
        cmsWriteTag(profile, cmsSigChromaticAdaptationTag, rows);
        if (edit) {
            edit(profile);
        }
    });
}

/*! \brief A profile without primaries: of a grey device. */
inline QByteArray greyProfile()
{
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 2.2);
    const cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
    cmsFreeToneCurve(curve);
    return saved(profile);
}

} // namespace samplefiles

#endif
