// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PLATFORM_H
#define GAMUTVIEWER_PLATFORM_H

#include <QByteArray>
#include <QString>

#include <optional>

namespace gamutviewer {

/*!
 * \brief Has Qt do without a display when there is none, or when the arguments ask for nothing that needs one.
 *
 * To be called before the application exists, since Qt ends the process when it finds no display. Returns whether
 * windows can be seen.
 */
bool choosePlatform(int argc, const char *const *argv);

/*! \brief The descriptor of standard input; nothing where streams cannot be read without waiting. */
std::optional<int> standardInput();

/*! \brief Opens the pipe or the device \a fileName for reading, without waiting for anyone to write to it. */
std::optional<int> openStream(const QString &fileName);

void closeStream(int descriptor);

/*! \brief At most \a most bytes that have come by \a descriptor, without waiting; nothing when it has ended. */
std::optional<QByteArray> readStream(int descriptor, int most);

} // namespace gamutviewer

#endif
