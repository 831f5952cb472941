// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_GAMUTFILES_SAMPLEFILES_H
#define CEIECHART_TESTS_GAMUTFILES_SAMPLEFILES_H

#include <QByteArray>

#include <lcms2.h>

#include <algorithm>
#include <functional>
#include <numeric>

/*! \brief Files that declare a gamut, as displays and profilers write them. */
namespace samplefiles {

/*! \brief Corrects the checksum of the base block. */
inline QByteArray withChecksum(QByteArray edid)
{
    edid[127] = 0;
    edid[127] = char(256 - quint8(std::accumulate(edid.begin(), edid.begin() + 128, 0)));
    return edid;
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
