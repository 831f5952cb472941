// SPDX-License-Identifier: MIT
#include <gamutfiles/iccprofile.h>

#include "gamutfromprimaries_p.h"

#include <QCoreApplication>
#include <QGenericMatrix>
#include <QtEndian>

#include <lcms2.h>

#include <cmath>
#include <memory>
#include <vector>

namespace gamutfiles {

namespace {

constexpr int headerSize = 128;
constexpr int signatureOffset = 36;

using Failure = Outcome<DisplayGamut>;
using Matrix = QGenericMatrix<3, 3, double>;
using Vector = QGenericMatrix<1, 3, double>;

struct IccText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::IccProfile)
};

struct CloseProfile {
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
struct DeleteContext {
    void operator()(cmsContext context) const { cmsDeleteContext(context); }
};
using Profile = std::unique_ptr<void, CloseProfile>;
using Context = std::unique_ptr<std::remove_pointer_t<cmsContext>, DeleteContext>;

template <typename T>
const T *tag(const Profile &profile, cmsTagSignature signature)
{
    return static_cast<const T *>(cmsReadTag(profile.get(), signature));
}

Vector vector(const cmsCIEXYZ &color)
{
    const double values[] = {color.X, color.Y, color.Z};
    return Vector(values);
}

QPointF chromaticity(const Vector &color)
{
    const double sum = color(0, 0) + color(1, 0) + color(2, 0);
    return sum > 0.0 ? QPointF(color(0, 0) / sum, color(1, 0) / sum) : QPointF();
}

//! Not finite when \a m has no inverse.
Matrix inverse(const Matrix &m)
{
    const auto cofactor = [&m](int row, int column) {
        const int r1 = (row + 1) % 3;
        const int r2 = (row + 2) % 3;
        const int c1 = (column + 1) % 3;
        const int c2 = (column + 2) % 3;
        return m(r1, c1) * m(r2, c2) - m(r1, c2) * m(r2, c1);
    };
    const double determinant = m(0, 0) * cofactor(0, 0) + m(0, 1) * cofactor(0, 1) + m(0, 2) * cofactor(0, 2);
    Matrix result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            result(row, column) = cofactor(column, row) / determinant;
        }
    }
    return result;
}

//! Adapts from D50 to \a white (Lam 1985; the matrix is that of ICC.1:2010, annex E).
Matrix bradford(const Vector &d50, const Vector &white)
{
    const double values[] = {0.8951, 0.2664, -0.1614, -0.7502, 1.7135, 0.0367, 0.0389, -0.0685, 1.0296};
    const Matrix toCones(values);
    const Vector from = toCones * d50;
    const Vector to = toCones * white;
    Matrix scale;
    for (int i = 0; i < 3; ++i) {
        scale(i, i) = to(i, 0) / from(i, 0);
    }
    return inverse(toCones) * scale * toCones;
}

QString description(const Profile &profile)
{
    // English where there are several; Little CMS falls back to what there is.
    const cmsUInt32Number size = cmsGetProfileInfo(profile.get(), cmsInfoDescription, "en", "US", nullptr, 0);
    std::vector<wchar_t> text(size / sizeof(wchar_t) + 1, L'\0');
    cmsGetProfileInfo(profile.get(), cmsInfoDescription, "en", "US", text.data(), size);
    return QString::fromWCharArray(text.data()).trimmed();
}

QString colorSpaceName(cmsColorSpaceSignature space)
{
    switch (space) {
    case cmsSigGrayData:
        return IccText::tr("a grey profile");
    case cmsSigCmykData:
        return IccText::tr("a CMYK profile");
    case cmsSigLabData:
        return IccText::tr("a Lab profile");
    case cmsSigXYZData:
        return IccText::tr("an XYZ profile");
    default:
        return IccText::tr("not an RGB profile");
    }
}

//! From the D50 of the profile to the white of the device.
Matrix unadaptation(const Profile &profile)
{
    const Vector d50 = vector(*cmsD50_XYZ());
    if (const auto *rows = tag<cmsCIEXYZ>(profile, cmsSigChromaticAdaptationTag)) {
        const double values[]
            = {rows[0].X, rows[0].Y, rows[0].Z, rows[1].X, rows[1].Y, rows[1].Z, rows[2].X, rows[2].Y, rows[2].Z};
        return inverse(Matrix(values));
    }
    const auto *mediaWhite = tag<cmsCIEXYZ>(profile, cmsSigMediaWhitePointTag);
    return mediaWhite ? bradford(d50, vector(*mediaWhite)) : Matrix();
}

} // namespace

bool isIccProfile(const QByteArray &bytes)
{
    return bytes.mid(signatureOffset, 4) == "acsp";
}

Outcome<DisplayGamut> readIccProfile(const QByteArray &bytes)
{
    if (!isIccProfile(bytes)) {
        return Failure::failure(bytes.size() < headerSize
                ? IccText::tr("is a truncated ICC profile: the header is incomplete")
                : IccText::tr("is not an ICC profile"));
    }
    const auto size = bytes.size() < headerSize ? 0U : qFromBigEndian<quint32>(bytes.constData());
    if (bytes.size() < headerSize || quint32(bytes.size()) < size) {
        return Failure::failure(
            IccText::tr("is a truncated ICC profile: %1 bytes instead of %2").arg(bytes.size()).arg(size));
    }
    const Context context(cmsCreateContext(nullptr, nullptr));
    const Profile profile(cmsOpenProfileFromMemTHR(context.get(), bytes.constData(), cmsUInt32Number(bytes.size())));
    if (!profile) {
        return Failure::failure(IccText::tr("is a damaged ICC profile"));
    }
    const cmsColorSpaceSignature space = cmsGetColorSpace(profile.get());
    if (space != cmsSigRgbData) {
        return Failure::failure(IccText::tr("has no primaries: it is %1").arg(colorSpaceName(space)));
    }
    const auto *red = tag<cmsCIEXYZ>(profile, cmsSigRedColorantTag);
    const auto *green = tag<cmsCIEXYZ>(profile, cmsSigGreenColorantTag);
    const auto *blue = tag<cmsCIEXYZ>(profile, cmsSigBlueColorantTag);
    if (!red || !green || !blue) {
        return Failure::failure(IccText::tr("has no primaries: the ICC profile has no colorant tags"));
    }
    const Matrix native = unadaptation(profile);
    const Primaries primaries{chromaticity(native * vector(*red)), chromaticity(native * vector(*green)),
        chromaticity(native * vector(*blue)), chromaticity(native * vector(*cmsD50_XYZ()))};
    const auto *luminance = tag<cmsCIEXYZ>(profile, cmsSigLuminanceTag);
    const bool hasLuminance = luminance && std::isfinite(luminance->Y) && luminance->Y > 0.0;
    const auto gamut = gamutFromPrimaries(description(profile), primaries, hasLuminance ? luminance->Y : 1.0);
    const LuminanceUnit unit = hasLuminance ? LuminanceUnit::CandelaPerSquareMetre : LuminanceUnit::Relative;
    return gamut ? Failure(DisplayGamut(*gamut, unit))
                 : Failure::failure(IccText::tr("is an ICC profile without usable primaries: %1").arg(gamut.error()));
}

} // namespace gamutfiles
