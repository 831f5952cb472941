// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "textencoding_p.h"

#include <system/systemcalls_p.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace gamutfiles {

namespace {

using DecodingOutcome = Outcome<DecodedText>;

struct EncodingText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::TextEncoding)
};

//! Windows-1252 from 0x80 to 0x9F (the WHATWG Encoding Standard lists the same); 0: not assigned.
constexpr std::array<char16_t, 32> windows1252{0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6,
    0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC,
    0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

quint8 byteAt(const QByteArray &bytes, int index)
{
    return quint8(bytes.at(index));
}

std::optional<QString> fromUtf8(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes.constData(), int(bytes.size()));
    return text.toUtf8() == bytes ? std::make_optional(text) : std::nullopt;
}

std::optional<QString> fromUtf16(const QByteArray &bytes, bool littleEndian)
{
    if (bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    QString text;
    text.reserve(int(bytes.size() / 2));
    bool high = false;
    for (int i = 0; i < bytes.size(); i += 2) {
        const uint first = byteAt(bytes, i);
        const uint second = byteAt(bytes, i + 1);
        const QChar unit(ushort(littleEndian ? second << 8 | first : first << 8 | second));
        if (high != unit.isLowSurrogate()) {
            return std::nullopt;
        }
        high = unit.isHighSurrogate();
        text += unit;
    }
    return high ? std::nullopt : std::make_optional(text);
}

std::optional<QString> fromWindows1252(const QByteArray &bytes)
{
    QString text;
    text.reserve(int(bytes.size()));
    for (const char c : bytes) {
        const auto byte = quint8(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        const char16_t unit = special ? windows1252[byte - 0x80U] : byte;
        if (special && unit == 0) {
            return std::nullopt;
        }
        text += QChar(ushort(unit));
    }
    return text;
}

bool startsWith(const QByteArray &bytes, std::initializer_list<int> mark)
{
    int index = 0;
    return bytes.size() >= int(mark.size())
        && std::all_of(mark.begin(), mark.end(), [&](int byte) { return byteAt(bytes, index++) == byte; });
}

//! The byte order of UTF-16 without a mark: every second byte of most characters is null, as numbers prevail.
std::optional<TextEncoding> utf16WithoutMark(const QByteArray &bytes)
{
    std::array<int, 2> nulls{0, 0};
    for (int i = 0; i < bytes.size(); ++i) {
        nulls[std::size_t(i % 2)] += bytes.at(i) == '\0' ? 1 : 0;
    }
    const auto units = int(bytes.size() / 2);
    const auto isMostly = [units](int many, int few) { return many * 2 >= units && many > 10 * few; };
    if (isMostly(nulls[1], nulls[0])) {
        return TextEncoding::Utf16LittleEndian;
    }
    return isMostly(nulls[0], nulls[1]) ? std::make_optional(TextEncoding::Utf16BigEndian) : std::nullopt;
}

//! What text would be if it were GB18030.
struct ChineseEvidence {
    int common = 0; //!< characters of GB 2312 that are frequent, and those that units are written with
    int rare = 0; //!< others
    bool valid = true;
};

//! Punctuation, full-width forms and the ideographs of level 1 of GB 2312, and the square metre of GBK, U+33A1.
bool isCommonPair(uint lead, uint trail)
{
    const bool isSquareMetre = lead == 0xA9 && trail == 0x4F;
    return isSquareMetre || (trail >= 0xA1 && ((lead >= 0xB0 && lead <= 0xD7) || (lead >= 0xA1 && lead <= 0xA3)));
}

//! The raised two of GB18030, which the older GBK does not have.
bool isRaisedTwo(const QByteArray &bytes, int index)
{
    return bytes.mid(index, 4) == QByteArrayLiteral("\x81\x30\x85\x35");
}

ChineseEvidence chineseEvidence(const QByteArray &bytes)
{
    ChineseEvidence evidence;
    for (int i = 0; i < bytes.size(); ++i) {
        const uint lead = byteAt(bytes, i);
        if (lead < 0x80) {
            continue;
        }
        const uint trail = i + 1 < bytes.size() ? byteAt(bytes, i + 1) : 0U;
        if (lead == 0x80 || lead == 0xFF || trail < 0x30 || trail == 0x7F || trail == 0xFF
            || (trail > 0x39 && trail < 0x40)) {
            evidence.valid = false;
            return evidence;
        }
        ++(isCommonPair(lead, trail) || isRaisedTwo(bytes, i) ? evidence.common : evidence.rare);
        i += trail <= 0x39 ? 3 : 1;
    }
    return evidence;
}

bool hasControls(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
        [](QChar c) { return c.unicode() < 0x20 && (c.unicode() < 0x09 || c.unicode() > 0x0D); });
}

QString notText(TextEncoding encoding)
{
    return EncodingText::tr("is not %1 text").arg(encodingName(encoding));
}

Outcome<DecodedText> decodeAs(const QByteArray &bytes, TextEncoding encoding)
{
    std::optional<QString> text;
    switch (encoding) {
    case TextEncoding::Utf8:
        text = fromUtf8(startsWith(bytes, {0xEF, 0xBB, 0xBF}) ? bytes.mid(3) : bytes);
        break;
    case TextEncoding::Utf16LittleEndian:
        text = fromUtf16(startsWith(bytes, {0xFF, 0xFE}) ? bytes.mid(2) : bytes, true);
        break;
    case TextEncoding::Utf16BigEndian:
        text = fromUtf16(startsWith(bytes, {0xFE, 0xFF}) ? bytes.mid(2) : bytes, false);
        break;
    case TextEncoding::Windows1252:
        text = fromWindows1252(bytes);
        break;
    case TextEncoding::Gb18030: {
        const auto converted = systemcalls::fromGb18030({bytes.constData(), std::size_t(bytes.size())});
        if (!converted.available) {
            return DecodingOutcome::failure(EncodingText::tr("is GB18030 text, which this system cannot convert"));
        }
        if (converted.utf8) {
            text = QString::fromStdString(*converted.utf8);
        }
        break;
    }
    }
    if (!text || text->contains(QChar(0))) {
        return DecodingOutcome::failure(notText(encoding));
    }
    return DecodedText{*text, encoding};
}

Outcome<DecodedText> decodeGuess(const QByteArray &bytes)
{
    const ChineseEvidence evidence = chineseEvidence(bytes);
    const bool chinese = evidence.valid && evidence.common > evidence.rare;
    const TextEncoding encoding = chinese ? TextEncoding::Gb18030 : TextEncoding::Windows1252;
    Outcome<DecodedText> decoded = decodeAs(bytes, encoding);
    if (!decoded) {
        return decoded;
    }
    if (hasControls(decoded->text)) {
        return DecodingOutcome::failure(notText(TextEncoding::Utf8));
    }
    const int more = std::max(evidence.common, evidence.rare);
    const int fewer = std::min(evidence.common, evidence.rare);
    if (evidence.valid && fewer * 3 > more) {
        const QString text
            = EncodingText::tr("is read as %1 text but could be %2; state the encoding if names look wrong")
                  .arg(encodingName(encoding),
                      encodingName(chinese ? TextEncoding::Windows1252 : TextEncoding::Gb18030));
        return {*decoded, {Problem{text, {}, 0, 0}}};
    }
    return decoded;
}

} // namespace

Outcome<DecodedText> decodeText(const QByteArray &bytes, std::optional<TextEncoding> encoding)
{
    if (encoding) {
        return decodeAs(bytes, *encoding);
    }
    if (startsWith(bytes, {0xEF, 0xBB, 0xBF})) {
        return decodeAs(bytes, TextEncoding::Utf8);
    }
    if (startsWith(bytes, {0xFF, 0xFE})) {
        return decodeAs(bytes, TextEncoding::Utf16LittleEndian);
    }
    if (startsWith(bytes, {0xFE, 0xFF})) {
        return decodeAs(bytes, TextEncoding::Utf16BigEndian);
    }
    if (bytes.contains('\0')) {
        const auto encoding16 = utf16WithoutMark(bytes);
        const auto decoded = decodeAs(bytes, encoding16.value_or(TextEncoding::Utf8));
        return decoded && hasControls(decoded->text) ? DecodingOutcome::failure(notText(TextEncoding::Utf8)) : decoded;
    }
    return fromUtf8(bytes) ? decodeAs(bytes, TextEncoding::Utf8) : decodeGuess(bytes);
}

bool isStorable(const QString &text)
{
    return !text.contains(QChar::Null) && QStringView(text).isValidUtf16();
}

QString encodingName(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf8:
        break;
    case TextEncoding::Utf16LittleEndian:
        return QStringLiteral("UTF-16LE");
    case TextEncoding::Utf16BigEndian:
        return QStringLiteral("UTF-16BE");
    case TextEncoding::Windows1252:
        return QStringLiteral("Windows-1252");
    case TextEncoding::Gb18030:
        return QStringLiteral("GB18030");
    }
    return QStringLiteral("UTF-8");
}

} // namespace gamutfiles
