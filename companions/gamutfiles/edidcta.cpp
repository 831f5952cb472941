// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidextensions_p.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gamutfiles {

namespace {

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

} // namespace

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

} // namespace gamutfiles
