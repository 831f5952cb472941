// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_FILEKIND_P_H
#define GAMUTFILES_FILEKIND_P_H

#include <QFile>
#include <QString>

namespace gamutfiles {

/*!
 * \brief Whether \a fileName is a named pipe, whose opening would wait for a program at its other end.
 *
 * The pipes that a shell gives a program for its standard streams and for other commands, /dev/stdin and /dev/fd/63
 * for example, are open already, and none of these. False on systems without named pipes.
 */
bool isNamedPipe(const QString &fileName);

/*! \brief Opens \a pipe, a named pipe, for writing; false if no program reads from it, or if it cannot be opened. */
bool openNamedPipe(QFile &pipe);

} // namespace gamutfiles

#endif
