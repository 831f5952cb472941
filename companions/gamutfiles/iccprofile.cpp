// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/iccprofile.h>

#include "gamutfromprimaries_p.h"
#include "iccmemory_p.h"

#include <QCoreApplication>
#include <QtEndian>

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace gamutfiles {

namespace {

constexpr int headerSize = 128;
constexpr int colorSpaceOffset = 16;
constexpr int signatureOffset = 36;

using IccOutcome = Outcome<IccDisplay>;
using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>; // rows

struct IccText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::IccProfile)
};

struct CloseProfile {
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

quint32 bigEndian(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

//! The value of a tag; null if it has another type, or fewer than \a dataSize bytes behind it, which not every version
//! of Little CMS looks at.
template <typename T>
const T *tag(const Profile &profile, cmsTagSignature signature, cmsUInt32Number dataSize)
{
    constexpr cmsUInt32Number typeSize = 8;
    return cmsReadRawTag(profile.get(), signature, nullptr, 0) < typeSize + dataSize
        ? nullptr
        : static_cast<const T *>(cmsReadTag(profile.get(), signature));
}

const cmsCIEXYZ *colorTag(const Profile &profile, cmsTagSignature signature)
{
    return tag<cmsCIEXYZ>(profile, signature, 12);
}

Vector vector(const cmsCIEXYZ &color)
{
    return {color.X, color.Y, color.Z};
}

Vector operator*(const Matrix &m, const Vector &v)
{
    Vector result{};
    for (std::size_t row = 0; row < 3; ++row) {
        result[row] = m[row][0] * v[0] + m[row][1] * v[1] + m[row][2] * v[2];
    }
    return result;
}

Matrix operator*(const Matrix &a, const Matrix &b)
{
    Matrix result{};
    for (std::size_t column = 0; column < 3; ++column) {
        const Vector product = a * Vector{b[0][column], b[1][column], b[2][column]};
        for (std::size_t row = 0; row < 3; ++row) {
            result[row][column] = product[row];
        }
    }
    return result;
}

//! Not a number for black, which has no chromaticity.
QPointF chromaticity(const Vector &color)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    const double sum = color[0] + color[1] + color[2];
    return sum > 0.0 ? QPointF(color[0] / sum, color[1] / sum) : QPointF(none, none);
}

//! Not finite when \a m has no inverse.
Matrix inverse(const Matrix &m)
{
    const auto cofactor = [&m](std::size_t row, std::size_t column) {
        const std::size_t r1 = (row + 1) % 3;
        const std::size_t r2 = (row + 2) % 3;
        const std::size_t c1 = (column + 1) % 3;
        const std::size_t c2 = (column + 2) % 3;
        return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
    };
    const double determinant = m[0][0] * cofactor(0, 0) + m[0][1] * cofactor(0, 1) + m[0][2] * cofactor(0, 2);
    Matrix result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            result[row][column] = cofactor(column, row) / determinant;
        }
    }
    return result;
}

//! Adapts from D50 to \a white (Lam 1985; the matrix is that of ICC.1:2010, annex E).
Matrix bradford(const Vector &d50, const Vector &white)
{
    const Matrix toCones{{{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};
    const Vector from = toCones * d50;
    const Vector to = toCones * white;
    Matrix scale{};
    for (std::size_t i = 0; i < 3; ++i) {
        scale[i][i] = to[i] / from[i];
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

//! \a space is a signature, which in a damaged profile is none of the enumerators.
QString colorSpaceName(quint32 space)
{
    const struct {
        quint32 space;
        QString name;
    } names[] = {{cmsSigGrayData, IccText::tr("a grey profile")}, {cmsSigCmykData, IccText::tr("a CMYK profile")},
        {cmsSigLabData, IccText::tr("a Lab profile")}, {cmsSigXYZData, IccText::tr("an XYZ profile")}};
    for (const auto &known : names) {
        if (known.space == space) {
            return known.name;
        }
    }
    return IccText::tr("not an RGB profile");
}

//! UTF-16, big-endian; only what lies inside of \a bytes, and up to a null character.
QString utf16(const QByteArray &bytes, quint32 offset, quint32 size)
{
    QString text;
    const auto end = quint32(bytes.size());
    for (quint32 at = offset; at < end && at - offset < size && end - at >= 2; at += 2) {
        const auto unit = qFromBigEndian<quint16>(bytes.constData() + at);
        if (unit == 0) {
            break;
        }
        text += QChar(unit);
    }
    return text;
}

/*!
 * \brief The entries of the "meta" tag: a dictType (ICC, "dictType" and "metadataTag", 2010).
 *
 * A count, the length of a record, and records that begin with offset and size of a name and of a value. Little CMS
 * would read them, too, but frees a piece twice when it is refused memory for them.
 *
 * Any number of records may point at the same bytes. Names and values together are therefore limited to the size of the
 * tag, which those that do not overlap cannot exceed.
 */
QVector<IccMetadata> metadata(const Profile &profile, QVector<Problem> &warnings)
{
    constexpr int maximumEntries = 256;
    constexpr int maximumSize = 1024 * 1024;
    constexpr quint32 firstRecord = 16;
    const cmsUInt32Number size = cmsReadRawTag(profile.get(), cmsSigMetaTag, nullptr, 0);
    if (size < firstRecord || size > maximumSize) {
        return {};
    }
    QByteArray bytes(int(size), '\0');
    if (cmsReadRawTag(profile.get(), cmsSigMetaTag, bytes.data(), size) != size || !bytes.startsWith("dict")) {
        return {};
    }
    const quint32 count = bigEndian(bytes, 8);
    const quint32 length = bigEndian(bytes, 12);
    if (length != 16 && length != 24 && length != 32) {
        return {};
    }
    QVector<IccMetadata> entries;
    quint32 room = size;
    for (quint32 i = 0; i < count && entries.size() < maximumEntries && firstRecord + (i + 1) * length <= size; ++i) {
        const auto number
            = [&bytes, at = int(firstRecord + i * length)](int index) { return bigEndian(bytes, at + 4 * index); };
        const IccMetadata entry{utf16(bytes, number(0), number(1)), utf16(bytes, number(2), number(3))};
        const auto entrySize = quint32(entry.name.size() + entry.value.size()) * quint32(sizeof(QChar));
        if (entrySize > room) {
            warnings.append({IccText::tr("the metadata are larger than their tag: the further ones are left out"),
                QStringLiteral("meta"), 0, 0});
            break;
        }
        room -= entrySize;
        entries.append(entry);
    }
    return entries;
}

//! What the metadata say of where the numbers come from ("ICC meta Tag for Monitor Profiles", DATA_source).
QVector<Problem> warningsOfTheSource(const QVector<IccMetadata> &entries)
{
    QVector<Problem> warnings;
    for (const IccMetadata &entry : entries) {
        if (entry.name != QLatin1String("DATA_source")) {
            continue;
        }
        if (entry.value == QLatin1String("edid")) {
            warnings.append({IccText::tr("the profile says that it was made from an EDID, not from a measurement"),
                entry.name, 0, 0});
        } else if (entry.value == QLatin1String("standard")) {
            warnings.append({IccText::tr("the profile says that it was made from a standard, not from a measurement"),
                entry.name, 0, 0});
        }
    }
    return warnings;
}

//! Says when the gamut is the copy of a standard rather than what was measured.
QVector<Problem> copies(const Model::Targets &gamut)
{
    constexpr double adaptation = 0.001; // what adapting to D50 and back with few digits leaves
    const QString name = standardEqualTo(gamut, adaptation);
    return name.isEmpty()
        ? QVector<Problem>()
        : QVector<Problem>{
            {IccText::tr("the profile states exactly %1: that is a standard, not a measurement of a display").arg(name),
                {}, 0, 0}};
}

//! Whether the profile's table of tags has \a signature; Little CMS leaves out those that lie beyond the end.
bool isListed(const QByteArray &bytes, quint32 signature)
{
    constexpr int entrySize = 12;
    if (bytes.size() < headerSize + 4) {
        return false;
    }
    const quint32 count = bigEndian(bytes, headerSize);
    const auto fitting = quint32((bytes.size() - headerSize - 4) / entrySize);
    for (quint32 i = 0; i < std::min(count, fitting); ++i) {
        if (bigEndian(bytes, headerSize + 4 + int(i) * entrySize) == signature) {
            return true;
        }
    }
    return false;
}

//! From the D50 of the profile to the white of the device; nothing when the tag that says it cannot be read.
std::optional<Matrix> unadaptation(const Profile &profile, const QByteArray &bytes)
{
    if (const auto *rows = tag<cmsCIEXYZ>(profile, cmsSigChromaticAdaptationTag, 36)) {
        return inverse({vector(rows[0]), vector(rows[1]), vector(rows[2])});
    }
    if (isListed(bytes, cmsSigChromaticAdaptationTag)) {
        return std::nullopt;
    }
    if (const auto *mediaWhite = colorTag(profile, cmsSigMediaWhitePointTag)) {
        return bradford(vector(*cmsD50_XYZ()), vector(*mediaWhite));
    }
    if (isListed(bytes, cmsSigMediaWhitePointTag)) {
        return std::nullopt;
    }
    return Matrix{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};
}

//! What a reader of the gamut must know of the tags \a bytes list, beside those that were read.
QVector<Problem> warningsOfTheTags(const Profile &profile, const QByteArray &bytes)
{
    QVector<Problem> warnings;
    if (isListed(bytes, cmsSigLuminanceTag) && !colorTag(profile, cmsSigLuminanceTag)) {
        warnings.append({IccText::tr("the luminance of white cannot be read: luminances are relative"),
            QStringLiteral("lumi"), 0, 0});
    }
    const struct {
        quint32 signature;
        QString name;
    } tables[] = {{cmsSigAToB0Tag, QStringLiteral("A2B0")}, {cmsSigAToB1Tag, QStringLiteral("A2B1")}};
    for (const auto &table : tables) {
        if (isListed(bytes, table.signature)) {
            warnings.append({IccText::tr("the colours of the profile follow a table: its colorants, which are read, "
                                         "need not be the primaries of the display"),
                table.name, 0, 0});
            break;
        }
    }
    return warnings;
}

} // namespace

bool isIccProfile(const QByteArray &bytes)
{
    return bytes.mid(signatureOffset, 4) == "acsp";
}

Outcome<IccDisplay> readIccDisplay(const QByteArray &bytes)
{
    return readIccDisplay(bytes, IccMemory(bytes.size()));
}

Outcome<IccDisplay> readIccDisplay(const QByteArray &bytes, const IccMemory &memory)
{
    if (!isIccProfile(bytes)) {
        return IccOutcome::failure(bytes.size() < headerSize
                ? IccText::tr("is a truncated ICC profile: the header is incomplete")
                : IccText::tr("is not an ICC profile"));
    }
    const auto size = bytes.size() < headerSize ? 0U : bigEndian(bytes, 0);
    if (bytes.size() < headerSize || quint32(bytes.size()) < size) {
        return IccOutcome::failure(
            IccText::tr("is a truncated ICC profile: %1 bytes instead of %2").arg(bytes.size()).arg(size));
    }
    const Profile profile(memory.context()
            ? cmsOpenProfileFromMemTHR(memory.context(), bytes.constData(), cmsUInt32Number(bytes.size()))
            : nullptr);
    if (!profile) {
        return IccOutcome::failure(IccText::tr("is a damaged ICC profile"));
    }
    const quint32 space = bigEndian(bytes, colorSpaceOffset);
    if (space != cmsSigRgbData) {
        return IccOutcome::failure(IccText::tr("has no primaries: it is %1").arg(colorSpaceName(space)));
    }
    const auto *red = colorTag(profile, cmsSigRedColorantTag);
    const auto *green = colorTag(profile, cmsSigGreenColorantTag);
    const auto *blue = colorTag(profile, cmsSigBlueColorantTag);
    if (!red || !green || !blue) {
        return IccOutcome::failure(IccText::tr("has no primaries: the ICC profile has no colorant tags"));
    }
    const auto native = unadaptation(profile, bytes);
    if (!native) {
        return IccOutcome::failure(IccText::tr("is a damaged ICC profile: its white cannot be read"));
    }
    const Primaries primaries{chromaticity(*native * vector(*red)), chromaticity(*native * vector(*green)),
        chromaticity(*native * vector(*blue)), chromaticity(*native * vector(*cmsD50_XYZ()))};
    IccDisplay display;
    if (const auto *luminance = colorTag(profile, cmsSigLuminanceTag);
        luminance && std::isfinite(luminance->Y) && luminance->Y > 0.0) {
        display.whiteLuminance = luminance->Y;
    }
    const QString name = description(profile);
    const auto gamut
        = gamutFromPrimaries(name, primaries, display.whiteLuminance.value_or(1.0), PrimariesOf::ColorSpace);
    if (!gamut) {
        return IccOutcome::failure(IccText::tr("is an ICC profile without usable primaries: %1").arg(gamut.error()));
    }
    display.gamut
        = DisplayGamut(*gamut, display.whiteLuminance ? LuminanceUnit::CandelaPerSquareMetre : LuminanceUnit::Relative);
    display.hasVideoCardTable = cmsIsTag(profile.get(), cmsSigVcgtTag) != 0;
    QVector<Problem> warnings;
    display.metadata = metadata(profile, warnings);

    if (name.isEmpty() && cmsIsTag(profile.get(), cmsSigProfileDescriptionTag)
        && !cmsReadTag(profile.get(), cmsSigProfileDescriptionTag)) {
        warnings.append({IccText::tr("the name of the profile cannot be read"), QStringLiteral("desc"), 0, 0});
    }
    warnings += warningsOfTheTags(profile, bytes);
    return {display,
        warnings + copies(gamut->getTargets()) + warningsOfTheTriangle(gamut->getTargets())
            + warningsOfTheLocus(gamut->getTargets()) + warningsOfTheSource(display.metadata)};
}

Outcome<DisplayGamut> readIccProfile(const QByteArray &bytes)
{
    const auto display = readIccDisplay(bytes);
    return display ? Outcome<DisplayGamut>(display->gamut, display.warnings())
                   : Outcome<DisplayGamut>::failure(display.problem());
}

} // namespace gamutfiles
