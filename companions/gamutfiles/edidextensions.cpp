// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidextensions_p.h"

#include <cmath>
#include <numeric>

namespace gamutfiles {

namespace {

constexpr int mostWarnings = 20; // as many again could be said of each of 255 damaged blocks
constexpr int ctaTag = 0x02;
constexpr int displayIdTag = 0x70;

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
