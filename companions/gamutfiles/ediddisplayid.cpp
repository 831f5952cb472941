// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidextensions_p.h"

#include <gamutmodel/diagram.h>

#include <cmath>

namespace gamutfiles {

namespace {

//! IEEE 754 binary16, of which DisplayID 2 uses positive finite values; 0x8000 says that there is none.
std::optional<double> nativeLuminance(int bits)
{
    const int exponent = bits >> 10 & 0x1F;
    const int fraction = bits & 0x3FF;
    if ((bits & 0x8000) != 0 || exponent == 0x1F) {
        return std::nullopt;
    }
    return exponent == 0 ? std::ldexp(fraction, -24) : std::ldexp(fraction + 0x400, exponent - 25);
}

QPointF fromUniform(const QPointF &uv)
{
    const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1976, {uv.x(), uv.y()});
    return {xy.x, xy.y};
}

constexpr int chromaticityBytes = 3;

//! Two numbers of twelve bits, in 4096ths, the low bits first: x, y or, \a isUniform, u', v'.
QPointF twelveBits(int first, int second, int third, bool isUniform)
{
    const QPointF pair = QPointF(first | (second & 0x0F) << 8, second >> 4 | third << 4) / 4096.0;
    return isUniform ? fromUniform(pair) : pair;
}

} // namespace

void EdidExtensions::readDisplayId(const Bytes &block)
{
    constexpr int sectionStart = 1; // behind the tag of the extension
    constexpr int firstDataBlock = 5;
    constexpr int dataBlockHeader = 3;
    const int length = block.at(2);
    const int end = firstDataBlock + length; // where the checksum of the section stands
    if (end > edidBlockSize - 2) {
        warn(tr("the DisplayID section has %1 bytes, which is more than its block").arg(length), 2);
        return;
    }
    if (!edidChecksumIsRight(block.data.mid(sectionStart, end))) {
        warn(tr("is damaged, and not read: the checksum of the DisplayID section is wrong"), end);
        return;
    }
    for (int at = firstDataBlock; at + dataBlockHeader <= end;) {
        const int tag = block.at(at);
        const int size = block.at(at + 2);
        if (tag == 0 && size == 0) {
            return; // filler
        }
        if (at + dataBlockHeader + size > end) {
            warn(tr("the data block has %1 bytes, of which only %2 lie before the end")
                     .arg(size)
                     .arg(end - at - dataBlockHeader),
                at);
            return;
        }
        readDisplayIdBlock(tag, block.at(at + 1), block.mid(at + dataBlockHeader, size));
        at += dataBlockHeader + size;
    }
}

void EdidExtensions::readDisplayIdBlock(int tag, int revision, const Bytes &payload)
{
    constexpr int parameters1Tag = 0x01;
    constexpr int colorCharacteristicsTag = 0x02;
    constexpr int parameters2Tag = 0x21;
    constexpr int ctaDataBlocksTag = 0x81;
    switch (tag) {
    case parameters1Tag:
        readParameters1(payload);
        break;
    case colorCharacteristicsTag:
        readColorCharacteristics(revision, payload);
        break;
    case parameters2Tag:
        readParameters2(payload);
        break;
    case ctaDataBlocksTag:
        readCtaDataBlocks(payload);
        break;
    default:
        break;
    }
}

void EdidExtensions::readParameters1(const Bytes &payload)
{
    constexpr int gammaByte = 9;
    if (isLongEnough(payload, 12, tr("display parameters data block"))) {
        setGamma(payload.at(gammaByte));
    }
}

void EdidExtensions::readColorCharacteristics(int revision, const Bytes &payload)
{
    const QString name = tr("color characteristics data block");
    if (!isLongEnough(payload, 1, name)) {
        return;
    }
    const int primaries = payload.at(0) >> 4 & 0x07;
    const int whites = payload.at(0) & 0x0F;
    // A display of more than three primaries has no triangle, and one of none refers to a standard instead.
    if (primaries != 3 || whites == 0 || !isLongEnough(payload, 1 + chromaticityBytes * (primaries + whites), name)) {
        return;
    }
    const auto color = [&payload, uniform = (revision & 0x80) != 0](int index) {
        const int at = 1 + chromaticityBytes * index;
        return twelveBits(payload.at(at), payload.at(at + 1), payload.at(at + 2), uniform);
    };
    setChromaticities({color(0), color(1), color(2), color(3)}, payload.offset);
}

void EdidExtensions::readParameters2(const Bytes &payload)
{
    constexpr int flagsByte = 8;
    constexpr int firstColor = 9;
    constexpr int firstLuminance = 21;
    constexpr int gammaByte = 28;
    if (!isLongEnough(payload, gammaByte + 1, tr("display parameters data block"))) {
        return;
    }
    const auto color = [&payload, uniform = (payload.at(flagsByte) & 0x40) != 0](int index) {
        const int at = firstColor + chromaticityBytes * index;
        return twelveBits(payload.at(at), payload.at(at + 1), payload.at(at + 2), uniform);
    };
    const auto luminance = [&payload](int index) {
        const int at = firstLuminance + 2 * index;
        return nativeLuminance(payload.at(at) | payload.at(at + 1) << 8);
    };
    setChromaticities({color(0), color(1), color(2), color(3)}, payload.offset);
    setLuminances(
        plausible({luminance(0), luminance(1), luminance(2), (payload.at(flagsByte) >> 3 & 0x03) == 0}, payload.offset),
        payload.offset);
    setGamma(payload.at(gammaByte));
}

/*
 * A display whose white is 0 cd/m² is none: the fields were left empty, and so was that of black, for which 0 could be
 * meant otherwise. 0 in the flags means "guaranteed", so that empty fields would even be a promise.
 */
EdidNativeLuminance EdidExtensions::plausible(EdidNativeLuminance luminances, int byte)
{
    for (std::optional<double> *white : {&luminances.fullScreen, &luminances.tenPercent}) {
        if (*white == 0.0) {
            white->reset();
        }
    }
    if (luminances.minimum == 0.0 && !luminances.fullScreen && !luminances.tenPercent) {
        luminances.minimum.reset();
    }
    if (luminances.fullScreen && luminances.tenPercent && *luminances.fullScreen > *luminances.tenPercent) {
        warn(tr("the display states a white screen of %1 cd/m², but white on 10 % of it with %2 cd/m²")
                 .arg(*luminances.fullScreen, 0, 'g', 4)
                 .arg(*luminances.tenPercent, 0, 'g', 4),
            byte);
    }
    const auto &white = luminances.fullScreen ? luminances.fullScreen : luminances.tenPercent;
    if (luminances.minimum && white && *luminances.minimum >= *white) {
        warn(tr("the display states a black of %1 cd/m² and a white of %2 cd/m²")
                 .arg(*luminances.minimum, 0, 'g', 4)
                 .arg(*white, 0, 'g', 4),
            byte);
    }
    return luminances;
}

//! The first block that states it counts.
void EdidExtensions::setGamma(int code)
{
    if (!m_display->gamma) {
        m_display->gamma = edidGamma(code);
    }
}

//! The first block that states them counts; another that contradicts it is warned of.
void EdidExtensions::setChromaticities(const EdidChromaticities &colors, int byte)
{
    if (!m_display->displayIdChromaticities) {
        m_display->displayIdChromaticities = colors;
        return;
    }
    const QString different = difference(*m_display->displayIdChromaticities, colors);
    if (!different.isEmpty()) {
        warn(tr("two data blocks state different gamuts: %1; that of the first is kept").arg(different), byte);
    }
}

void EdidExtensions::setLuminances(const EdidNativeLuminance &luminances, int byte)
{
    const EdidNativeLuminance &first = m_display->nativeLuminance;
    if (!m_hasLuminances) {
        m_hasLuminances = true;
        m_display->nativeLuminance = luminances;
    } else if (first.fullScreen != luminances.fullScreen || first.guaranteed != luminances.guaranteed) {
        const auto text = [](const EdidNativeLuminance &luminance) {
            const QString value = luminance.fullScreen ? tr("%1 cd/m²").arg(*luminance.fullScreen, 0, 'g', 4)
                                                       : tr("not stated", "a luminance");
            return luminance.guaranteed ? tr("%1, guaranteed").arg(value) : value;
        };
        warn(tr("two data blocks state different luminances of a white screen: %1 and %2; that of the first is kept")
                 .arg(text(first), text(luminances)),
            byte);
    }
}

} // namespace gamutfiles
