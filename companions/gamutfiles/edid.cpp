// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/edid.h>

#include "edidblock_p.h"
#include "edidextensions_p.h"
#include "gamutfromprimaries_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace gamutfiles {

namespace {

constexpr int weekByte = 16;
constexpr int yearByte = 17;
constexpr int gammaByte = 23;
constexpr int featuresByte = 24;
const QByteArray header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);

using EdidOutcome = Outcome<EdidDisplay>;

struct EdidText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Edid)
};

//! E-EDID 1.4, 3.4: the year counts from 1990, and week 255 makes it the year of the model.
void readYear(const QByteArray &block, EdidDisplay &display)
{
    constexpr int firstYear = 1990;
    constexpr int weekOfModelYear = 0xFF;
    const int year = quint8(block.at(yearByte));
    if (year == 0) {
        return;
    }
    (quint8(block.at(weekByte)) == weekOfModelYear ? display.modelYear : display.manufactureYear) = firstYear + year;
}

bool havePrimaries(const EdidChromaticities &colors)
{
    return !colors.red.isNull() || !colors.green.isNull() || !colors.blue.isNull();
}

//! Says when two statements about the same display differ by more than their digits.
QVector<Problem> contradictions(const EdidDisplay &display, const EdidChromaticities &base)
{
    if (!display.displayIdChromaticities || !havePrimaries(*display.displayIdChromaticities) || !havePrimaries(base)) {
        return {};
    }
    const QString difference = EdidExtensions::difference(base, *display.displayIdChromaticities);
    if (difference.isEmpty()) {
        return {};
    }
    return {
        {EdidText::tr("the base block states another gamut than the DisplayID extension: %1; that of the base block "
                      "is used")
                .arg(difference),
            {}, 0, 0}};
}

//! Says which primaries were moved as rounding had left them beyond the diagram.
QVector<Problem> roundings(const EdidChromaticities &stated, const Model::Targets &read)
{
    const struct {
        QPointF stated;
        const Model::Target &read;
        QString name;
    } colors[] = {{stated.red, read.red, EdidText::tr("red")}, {stated.green, read.green, EdidText::tr("green")},
        {stated.blue, read.blue, EdidText::tr("blue")}, {stated.white, read.white, EdidText::tr("white")}};
    QVector<Problem> warnings;
    for (const auto &color : colors) {
        if (color.stated != QPointF(color.read.x, color.read.y)) {
            warnings.append(
                {EdidText::tr("%1 at %2, %3 has x + y above 1, as rounding can make it: it is read as %4, %5")
                        .arg(color.name)
                        .arg(color.stated.x(), 0, 'f', 4)
                        .arg(color.stated.y(), 0, 'f', 4)
                        .arg(color.read.x, 0, 'f', 4)
                        .arg(color.read.y, 0, 'f', 4),
                    {}, 0, 0});
        }
    }
    return warnings;
}

//! Says when a gamut is the copy of a standard rather than what was measured.
QVector<Problem> copies(const EdidDisplay &display)
{
    constexpr double lessThanAStep = 0.99 / 1024.0; // coordinates are rounded or cut off
    const QString name = standardEqualTo(display.gamut.getTargets(), lessThanAStep);
    if (name.isEmpty()) {
        return {};
    }
    QString text = EdidText::tr("the EDID states exactly %1: many makers write this without measuring").arg(name);
    QStringList wide = display.colorimetries.filter(QStringLiteral("BT2020"));
    wide += display.colorimetries.filter(QStringLiteral("DCI-P3"));
    if (name == QLatin1String("sRGB") && !wide.isEmpty()) {
        text += EdidText::tr(", and this display also takes signals of a wider gamut (%1)")
                    .arg(wide.join(QStringLiteral(", ")));
    }
    return {{text, {}, 0, 0}};
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isWhiteSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

//! Whether \a text has a "0x" at \a index.
bool hasHexMark(const QByteArray &text, int index)
{
    return index + 1 < text.size() && text.at(index) == '0' && (text.at(index + 1) == 'x' || text.at(index + 1) == 'X');
}

//! \a line without the address at its beginning, such as "00f0:" or " 0x10:".
QByteArray withoutAddress(const QByteArray &line)
{
    int begin = 0;
    while (begin < line.size() && isWhiteSpace(line.at(begin))) {
        ++begin;
    }
    begin += hasHexMark(line, begin) ? 2 : 0;
    int end = begin;
    while (end < line.size() && isHexDigit(line.at(end))) {
        ++end;
    }
    return end > begin && end < line.size() && line.at(end) == ':' ? line.mid(end + 1) : line;
}

//! \a line without what divides the bytes: white space, commas and "0x".
QByteArray withoutSpacing(const QByteArray &line)
{
    QByteArray digits;
    digits.reserve(line.size());
    for (int i = 0; i < line.size(); ++i) {
        if (hasHexMark(line, i)) {
            ++i;
        } else if (!isWhiteSpace(line.at(i)) && line.at(i) != ',') {
            digits += line.at(i);
        }
    }
    return digits;
}

} // namespace

bool isEdid(const QByteArray &bytes)
{
    return bytes.startsWith(header);
}

Outcome<EdidDisplay> readEdidDisplay(const QByteArray &bytes)
{
    if (bytes.size() < edidBlockSize) {
        return EdidOutcome::failure(EdidText::tr("is a truncated EDID: %1 bytes instead of at least %2")
                                        .arg(bytes.size())
                                        .arg(int(edidBlockSize)));
    }
    if (!isEdid(bytes)) {
        return EdidOutcome::failure(EdidText::tr("is not an EDID"));
    }
    const QByteArray block = bytes.left(edidBlockSize);
    if (!edidChecksumIsRight(block)) {
        return EdidOutcome::failure(EdidText::tr("is a damaged EDID: its checksum is wrong"));
    }
    const auto base = readEdidBlock(block);
    if (!base) {
        return EdidOutcome::failure(base.problem());
    }
    EdidDisplay display;
    display.name = base->name;
    display.manufacturer = base->manufacturer;
    display.srgbIsDefault = (quint8(block.at(featuresByte)) & 0x04) != 0;
    readYear(block, display);

    EdidExtensions extensions;
    extensions.read(bytes, display);
    if (!display.gamma) {
        display.gamma = edidGamma(quint8(block.at(gammaByte)));
    }

    const EdidChromaticities colors
        = havePrimaries(base->colors) ? base->colors : display.displayIdChromaticities.value_or(EdidChromaticities());
    if (!havePrimaries(colors)) {
        return EdidOutcome::failure(EdidText::tr("is an EDID without primaries"));
    }
    const EdidNativeLuminance &native = display.nativeLuminance;
    const bool isAbsolute = native.guaranteed && native.fullScreen.value_or(0.0) > 0.0;
    constexpr double tenBitRounding = 0.001; // half a step of each coordinate
    const auto gamut = gamutFromPrimaries(display.name, {colors.red, colors.green, colors.blue, colors.white},
        isAbsolute ? *native.fullScreen : 1.0, PrimariesOf::Display, tenBitRounding);
    if (!gamut) {
        return EdidOutcome::failure(EdidText::tr("is an EDID without usable primaries: %1").arg(gamut.error()));
    }
    display.gamut = DisplayGamut(*gamut, isAbsolute ? LuminanceUnit::CandelaPerSquareMetre : LuminanceUnit::Relative);
    return {display,
        roundings(colors, gamut->getTargets()) + copies(display) + warningsOfTheTriangle(gamut->getTargets())
            + warningsOfTheLocus(gamut->getTargets()) + contradictions(display, base->colors) + extensions.warnings()};
}

Outcome<DisplayGamut> readEdid(const QByteArray &bytes)
{
    const auto display = readEdidDisplay(bytes);
    return display ? Outcome<DisplayGamut>(display->gamut, display.warnings())
                   : Outcome<DisplayGamut>::failure(display.problem());
}

Outcome<QByteArray> edidFromHexDump(const QByteArray &text)
{
    using NoEdid = Outcome<QByteArray>;
    constexpr int maximumSize = 256 * edidBlockSize; // a base block and 255 extensions
    const bool mayHoldOne = text.size() <= maximumHexDumpBytes && (text.contains("ff") || text.contains("FF"));
    if (!mayHoldOne) {
        return NoEdid::failure(EdidText::tr("holds no EDID"));
    }
    QByteArray first;
    QByteArray bytes;
    int count = 0;
    const auto finish = [&first, &bytes, &count] {
        if (bytes.size() >= edidBlockSize && isEdid(bytes)) {
            first = ++count == 1 ? bytes : first;
        }
        bytes.clear();
    };
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray digits = withoutSpacing(withoutAddress(line));
        if (digits.isEmpty()) {
            continue;
        }
        if (digits.size() % 2 != 0 || !std::all_of(digits.begin(), digits.end(), isHexDigit)) {
            finish();
            continue;
        }
        const QByteArray piece = QByteArray::fromHex(digits);
        if (isEdid(piece) || bytes.size() + piece.size() > maximumSize) {
            finish();
        }
        bytes += piece;
    }
    finish();
    if (count == 0) {
        return NoEdid::failure(EdidText::tr("holds no EDID"));
    }
    const Problem others{EdidText::tr("holds %1 EDIDs, of which only the first is read").arg(count), {}, 0, 0};
    return {first, count > 1 ? QVector<Problem>{others} : QVector<Problem>()};
}

} // namespace gamutfiles
