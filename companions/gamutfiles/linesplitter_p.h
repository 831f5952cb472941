// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_LINESPLITTER_P_H
#define GAMUTFILES_LINESPLITTER_P_H

#include <gamutfiles/measurementoptions.h>

#include <QByteArray>

#include <optional>

namespace gamutfiles {

/*! \brief One line of a text that is still being written. */
struct StreamLine {
    QByteArray bytes; //!< without its end, as they were stored; of a line that is too long, how it begins
    bool isTooLong = false;
    bool hasNoEnd = false; //!< the last line, of a text that does not end with a line end
};

/*!
 * \brief Divides bytes that come in pieces into lines, with any line ends.
 *
 * Whether a character is stored in two bytes (UTF-16) is decided by the first line that has anything in it. A line
 * without its end waits. No more is kept than the bytes that have not been taken, and no more than \a longest bytes
 * of one line.
 */
class LineSplitter {
public:
    explicit LineSplitter(const std::optional<TextEncoding> &encoding, int longest);

    void feed(const QByteArray &bytes);
    /*! \brief No more bytes will come: what is left is a line. */
    void finish() { m_isFinished = true; }
    /*! \brief The next line that has its end; nothing until there is one. */
    std::optional<StreamLine> next();
    /*! \brief UTF-16 in one of its orders, or what was stated; nothing: other, or not yet known. */
    const std::optional<TextEncoding> &encoding() const { return m_encoding; }
    int keptBytes() const { return int(m_bytes.size()) - m_begin; }
    /*! \brief The line whose end is awaited, as far as it has come. */
    QByteArray unfinished() const { return m_isTooLong ? m_beginning : m_bytes.mid(m_begin); }

private:
    bool decideWidth();
    std::optional<uint> unitAt(int index) const;
    StreamLine taken(int end);

    const int m_longest;
    QByteArray m_bytes; // that have not been taken
    int m_begin = 0; // of the next line in them
    int m_scanned = 0; // up to where they have no line end
    std::optional<TextEncoding> m_encoding;
    int m_width = 0; // of a character in bytes; 0: not known
    bool m_isTooLong = false; // the line whose end is awaited
    QByteArray m_beginning; // of it, where it is too long
    bool m_afterReturn = false; // the line end may have a second character
    bool m_isFinished = false;
};

} // namespace gamutfiles

#endif
