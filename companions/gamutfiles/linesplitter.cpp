// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "linesplitter_p.h"

#include "textencoding_p.h"

#include <algorithm>

namespace gamutfiles {

namespace {

bool isUtf16(TextEncoding encoding)
{
    return encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
}

} // namespace

LineSplitter::LineSplitter(const std::optional<TextEncoding> &encoding, int longest)
    : m_longest(longest)
    , m_encoding(encoding)
    , m_width(!encoding            ? 0
              : isUtf16(*encoding) ? 2
                                   : 1)
{
}

void LineSplitter::feed(const QByteArray &bytes)
{
    m_bytes.remove(0, m_begin);
    m_scanned -= m_begin;
    m_begin = 0;
    m_bytes += bytes;
}

bool LineSplitter::decideWidth()
{
    // Of blank lines the order of bytes cannot be seen, and half of a character can look like a line end.
    constexpr int fewest = 4;
    const auto first = std::find_if(m_bytes.begin(), m_bytes.end(), [](char c) { return uchar(c) > ' '; });
    const auto from = first + std::min(fewest, int(m_bytes.end() - first));
    const auto end = std::find_if(from, m_bytes.end(), [](char c) { return c == '\n' || c == '\r'; });
    const bool isLine = end != m_bytes.end() || m_bytes.size() > m_longest;
    if (!isLine && !m_isFinished) {
        return false;
    }
    const auto length = int(end - m_bytes.begin());
    const auto text = decodeText(m_bytes.left(length - length % 2));
    if (text && isUtf16(text->encoding)) {
        m_encoding = text->encoding;
    }
    m_width = m_encoding ? 2 : 1;
    return true;
}

std::optional<uint> LineSplitter::unitAt(int index) const
{
    if (index + m_width > m_bytes.size()) {
        return std::nullopt;
    }
    const uint first = uchar(m_bytes.at(index));
    if (m_width == 1) {
        return first;
    }
    const uint second = uchar(m_bytes.at(index + 1));
    return m_encoding == TextEncoding::Utf16LittleEndian ? second << 8 | first : first << 8 | second;
}

StreamLine LineSplitter::taken(int end)
{
    StreamLine line{m_isTooLong ? m_beginning : m_bytes.mid(m_begin, end - m_begin), m_isTooLong};
    m_isTooLong = false;
    return line;
}

std::optional<StreamLine> LineSplitter::next()
{
    if (m_width == 0 && !decideWidth()) {
        return std::nullopt;
    }
    while (const auto unit = unitAt(m_scanned)) {
        const int at = m_scanned;
        m_scanned += m_width;
        const bool isSecond = m_afterReturn && *unit == '\n' && at == m_begin;
        m_afterReturn = false;
        if (isSecond) {
            m_begin = m_scanned;
        } else if (*unit == '\n' || *unit == '\r') {
            m_afterReturn = *unit == '\r';
            const StreamLine line = taken(at);
            m_begin = m_scanned;
            return line;
        } else if (at - m_begin >= m_longest) {
            constexpr int shownBytes = 1024; // whole characters of two bytes, too
            m_beginning = m_isTooLong ? m_beginning : m_bytes.mid(m_begin, shownBytes);
            m_isTooLong = true;
            m_begin = m_scanned; // its rest is passed over as it comes
        }
    }
    if (!m_isFinished || (m_begin == m_bytes.size() && !m_isTooLong)) {
        return std::nullopt;
    }
    StreamLine line = taken(int(m_bytes.size()));
    line.hasNoEnd = true;
    m_begin = int(m_bytes.size());
    m_scanned = m_begin;
    return line;
}

} // namespace gamutfiles
