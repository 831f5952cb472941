// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef SYSTEM_SYSTEMCALLS_P_H
#define SYSTEM_SYSTEMCALLS_P_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/*!
 * \file
 * \brief What the programs ask of the operating system that neither Qt nor the C++ library has a function for.
 *
 * Only systemcalls.cpp contains code that is not the same on all systems. It needs no Qt. Descriptors are those of the
 * C library.
 */
namespace systemcalls {

/*!
 * \brief Whether \a path is a named pipe, whose opening would wait for a program at its other end.
 *
 * The pipes that a shell gives a program for its standard streams and for other commands, /dev/stdin and /dev/fd/63
 * for example, are open already, and none of these. On Windows the pipes are in \\.\pipe.
 */
bool isNamedPipe(const std::filesystem::path &path);

/*!
 * \brief Opens the named pipe \a path for writing and returns its descriptor, which the caller closes; nothing if no
 * program reads from it, or if it cannot be opened.
 */
std::optional<int> openNamedPipe(const std::filesystem::path &path);

/*!
 * \brief Lets the standard streams pass bytes as they are, which Windows does not without being told: profiles and
 * EDIDs are read from standard input too.
 */
void useBinaryStreams();

/*!
 * \brief The descriptor of standard input; nothing where streams cannot be read without waiting, as on Windows, where
 * the event loop of Qt watches sockets only.
 */
std::optional<int> standardInput();

/*!
 * \brief Opens the pipe or the device \a path for reading, without waiting for anyone to write to it. Nothing if that
 * fails, and where standardInput() is nothing.
 */
std::optional<int> openStream(const std::filesystem::path &path);

/*! \brief Closes a \a descriptor of openStream() or openNamedPipe(). */
void closeStream(int descriptor);

/*!
 * \brief Reads at most \a most bytes that have come by \a descriptor into \a bytes, without waiting.
 * \return how many have come, which can be none; nothing when the stream has ended.
 */
std::optional<std::size_t> readStream(int descriptor, char *bytes, std::size_t most);

/*! \brief A text converted by the operating system. */
struct ConvertedText {
    bool available = true; //!< whether the system knows the encoding
    std::optional<std::string> utf8; //!< nothing when the bytes are not text of this encoding
};

/*!
 * \brief Converts GB18030 text. Qt Core has no converter for it since version 6, so the operating system's is used.
 */
ConvertedText fromGb18030(std::string_view bytes);

} // namespace systemcalls

#endif
