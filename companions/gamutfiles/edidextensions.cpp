// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidextensions_p.h"

#include <gamutmodel/diagram.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace gamutfiles {

namespace {

constexpr int mostWarnings = 20; // as many again could be said of each of 255 damaged blocks
constexpr int ctaTag = 0x02;
constexpr int displayIdTag = 0x70;

//! CTA-861-H, 7.5.5, first byte from bit 0 on.
constexpr std::array colorimetries{
    "xvYCC601", "xvYCC709", "sYCC601", "opYCC601", "opRGB", "BT2020cYCC", "BT2020YCC", "BT2020RGB"};
//! The same, bits 4 to 7 of the second byte; the lower ones are about metadata.
constexpr std::array moreColorimetries{"default RGB", "sRGB", "ICtCp", "DCI-P3"};
//! CTA-861-G, 7.5.13, from bit 0 on.
constexpr std::array transferFunctions{
    "traditional gamma, SDR luminance", "traditional gamma, HDR luminance", "SMPTE ST 2084", "hybrid log-gamma"};

template <typename Names>
void addNames(const Names &names, int bits, QStringList &list)
{
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString name = QString::fromLatin1(names[i]);
        if ((bits >> i & 1) != 0 && !list.contains(name)) {
            list += name;
        }
    }
}

//! CTA-861-G, 7.5.13; 0 says that there is no value.
std::optional<double> contentLuminance(int code)
{
    return code == 0 ? std::nullopt : std::make_optional(50.0 * std::pow(2.0, code / 32.0));
}

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

} // namespace

std::optional<double> edidGamma(int code)
{
    return code == 0xFF ? std::nullopt : std::make_optional((100 + code) / 100.0);
}

bool edidChecksumIsRight(const QByteArray &block)
{
    return quint8(std::accumulate(block.begin(), block.end(), 0)) == 0;
}

QString EdidExtensions::difference(const EdidChromaticities &first, const EdidChromaticities &second)
{
    constexpr double rounding = 0.002; // the ten bits of a base block have steps of 0.001
    const struct {
        QPointF EdidChromaticities::*member;
        QString name;
    } colors[] = {{&EdidChromaticities::red, tr("red")}, {&EdidChromaticities::green, tr("green")},
        {&EdidChromaticities::blue, tr("blue")}, {&EdidChromaticities::white, tr("white")}};
    for (const auto &[member, name] : colors) {
        const QPointF a = first.*member;
        const QPointF b = second.*member;
        if (std::fabs(a.x() - b.x()) > rounding || std::fabs(a.y() - b.y()) > rounding) {
            return tr("%1 at %2, %3 and at %4, %5")
                .arg(name)
                .arg(a.x(), 0, 'f', 4)
                .arg(a.y(), 0, 'f', 4)
                .arg(b.x(), 0, 'f', 4)
                .arg(b.y(), 0, 'f', 4);
        }
    }
    return {};
}

void EdidExtensions::read(const QByteArray &edid, EdidDisplay &display)
{
    m_display = &display;
    m_warnings.clear();
    m_hasLuminances = false;
    m_blockCount = quint8(edid.at(edidBlockSize - 2));
    for (m_block = 1; m_block <= m_blockCount; ++m_block) {
        const Bytes block{edid.mid(m_block * edidBlockSize, edidBlockSize), 0};
        if (block.size() == 0) {
            warn(tr("is missing, number of extension blocks announced: %1").arg(m_blockCount));
            return;
        }
        if (block.size() < edidBlockSize) {
            warn(tr("is truncated: %1 bytes instead of %2").arg(block.size()).arg(int(edidBlockSize)));
            return;
        }
        if (!edidChecksumIsRight(block.data)) {
            warn(tr("is damaged, and not read: its checksum is wrong"));
        } else if (block.at(0) == ctaTag) {
            readCta(block);
        } else if (block.at(0) == displayIdTag) {
            readDisplayId(block);
        }
    }
    const int next = m_block * edidBlockSize;
    if (edid.size() > next && (edid.at(next) == ctaTag || edid.at(next) == displayIdTag)) {
        warn(tr("is not read, number of extension blocks announced: %1").arg(m_blockCount));
    }
}

void EdidExtensions::readCta(const Bytes &block)
{
    constexpr int firstDataBlock = 4;
    constexpr int firstRevisionWithDataBlocks = 3;
    const int end = block.at(2); // where the timings begin
    if (block.at(1) < firstRevisionWithDataBlocks || end == 0) {
        return;
    }
    if (end < firstDataBlock || end >= edidBlockSize) {
        warn(tr("the data blocks end at byte %1, which is not inside of the block").arg(end), 2);
        return;
    }
    readCtaDataBlocks(block.mid(firstDataBlock, end - firstDataBlock));
}

void EdidExtensions::readCtaDataBlocks(const Bytes &blocks)
{
    constexpr int extendedTag = 7;
    constexpr int colorimetryTag = 0x05;
    constexpr int hdrStaticMetadataTag = 0x06;
    constexpr int extensionCountTag = 0x78; // HDMI 2.1, EDID extension override
    for (int at = 0; at < blocks.size();) {
        const int tag = blocks.at(at) >> 5;
        const int length = blocks.at(at) & 0x1F;
        const Bytes payload = blocks.mid(at + 1, length);
        if (payload.size() < length) {
            warn(tr("the data block has %1 bytes, of which only %2 lie before the end").arg(length).arg(payload.size()),
                blocks.offset + at);
            return;
        }
        at += 1 + length;
        if (tag != extendedTag || length == 0) {
            continue;
        }
        switch (payload.at(0)) {
        case colorimetryTag:
            readColorimetry(payload.mid(1));
            break;
        case hdrStaticMetadataTag:
            readHdrStaticMetadata(payload.mid(1));
            break;
        case extensionCountTag:
            if (m_block == 1 && length > 1) {
                m_blockCount = std::max(m_blockCount, payload.at(1));
            }
            break;
        default:
            break;
        }
    }
}

void EdidExtensions::readColorimetry(const Bytes &payload)
{
    if (isLongEnough(payload, 2, tr("colorimetry data block"))) {
        addNames(colorimetries, payload.at(0), m_display->colorimetries);
        addNames(moreColorimetries, payload.at(1) >> 4, m_display->colorimetries);
    }
}

void EdidExtensions::readHdrStaticMetadata(const Bytes &payload)
{
    if (!isLongEnough(payload, 2, tr("HDR static metadata data block"))) {
        return;
    }
    addNames(transferFunctions, payload.at(0), m_display->transferFunctions);
    // The luminances may be left out from the end on.
    EdidContentLuminance &luminance = m_display->contentLuminance;
    if (payload.size() > 2) {
        luminance.maximum = contentLuminance(payload.at(2));
    }
    if (payload.size() > 3) {
        luminance.maximumFrameAverage = contentLuminance(payload.at(3));
    }
    if (payload.size() > 4 && payload.at(4) != 0 && luminance.maximum) {
        luminance.minimum = *luminance.maximum * std::pow(payload.at(4) / 255.0, 2.0) / 100.0;
    }
    if (luminance.maximum && luminance.maximumFrameAverage && *luminance.maximumFrameAverage > *luminance.maximum) {
        warn(tr("the HDR metadata state an average of a frame above its maximum: %1 and %2 cd/m²")
                 .arg(*luminance.maximumFrameAverage, 0, 'g', 4)
                 .arg(*luminance.maximum, 0, 'g', 4),
            payload.offset);
    }
}

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
        m_display->gamma = edidGamma(payload.at(gammaByte));
    }
}

namespace {

constexpr int chromaticityBytes = 3;

//! Two numbers of twelve bits, in 4096ths, the low bits first: x, y or, \a isUniform, u', v'.
QPointF twelveBits(int first, int second, int third, bool isUniform)
{
    const QPointF pair = QPointF(first | (second & 0x0F) << 8, second >> 4 | third << 4) / 4096.0;
    return isUniform ? fromUniform(pair) : pair;
}

} // namespace

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
    m_display->gamma = edidGamma(payload.at(gammaByte));
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

bool EdidExtensions::isLongEnough(const Bytes &payload, int size, const QString &name)
{
    if (payload.size() >= size) {
        return true;
    }
    warn(tr("the %1 has %2 bytes instead of at least %3").arg(name).arg(payload.size()).arg(size), payload.offset);
    return false;
}

void EdidExtensions::warn(const QString &text, int byte)
{
    if (m_warnings.size() > mostWarnings) {
        return;
    }
    if (m_warnings.size() == mostWarnings) {
        m_warnings.append({tr("there is more that is wrong"), tr("extension block %1").arg(m_block), 0, 0});
        return;
    }
    const QString place
        = byte < 0 ? tr("extension block %1").arg(m_block) : tr("extension block %1, byte %2").arg(m_block).arg(byte);
    m_warnings.append({text, place, 0, 0});
}

} // namespace gamutfiles
