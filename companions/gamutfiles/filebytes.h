// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_FILEBYTES_H
#define GAMUTFILES_FILEBYTES_H

#include <gamutfiles/outcome.h>

#include <QByteArray>

namespace gamutfiles {

/*!
 * \brief The content of \a fileName, which may be a pipe or a device; a failure when it is longer than \a maximum bytes
 * or cannot be read.
 */
GAMUTFILES_EXPORT Outcome<QByteArray> readBytes(const QString &fileName, int maximum);

/*!
 * \brief Writes \a bytes to \a fileName.
 *
 * The file appears, or replaces the one of that name, only when it is complete. A pipe or a device is written to as it
 * is. Returns what went wrong, or nothing.
 */
GAMUTFILES_EXPORT QString writeBytes(const QByteArray &bytes, const QString &fileName);

} // namespace gamutfiles

#endif // GAMUTFILES_FILEBYTES_H
