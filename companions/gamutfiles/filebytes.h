// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_FILEBYTES_H
#define GAMUTFILES_FILEBYTES_H

#include <gamutfiles/outcome.h>

#include <QByteArray>

namespace gamutfiles {

/*! \brief Whether \a fileName stands for standard input: "-". A file of this name is "./-". */
GAMUTFILES_EXPORT bool isStandardInput(const QString &fileName);

/*!
 * \brief The content of \a fileName: a file, a device, a pipe that a shell opened ("/dev/stdin", "/dev/fd/63"), or
 * standard input if isStandardInput().
 *
 * A failure when it is longer than \a maximum bytes, which are 0 to INT_MAX - 1 and otherwise taken as the nearer of
 * these, or cannot be read. A named pipe is refused, as opening it would
 * wait for a program that writes to it.
 */
GAMUTFILES_EXPORT Outcome<QByteArray> readBytes(const QString &fileName, int maximum);

/*!
 * \brief Writes \a bytes to \a fileName.
 *
 * The file appears, or replaces the one of that name, only when it is complete. A pipe or a device is written to as it
 * is, but a named pipe only if a program reads from it. Returns what went wrong, as a clause to stand after "cannot be
 * written:", or nothing.
 */
GAMUTFILES_EXPORT QString writeBytes(const QByteArray &bytes, const QString &fileName);

} // namespace gamutfiles

#endif // GAMUTFILES_FILEBYTES_H
