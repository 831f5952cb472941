// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_REPEATABLEBLENDING_H
#define CEIECHART_TESTS_REFERENCE_REPEATABLEBLENDING_H

#include <QByteArray>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace reference {

/*!
 * \brief Restarts the program once, with the AVX2 code of Qt switched off.
 *
 * That code blends translucent pixels in buffers on the stack and rounds depending on their address modulo 32. The same
 * calls of a painter on the same picture can therefore differ by one in a channel if they come from another depth of
 * the stack. Pictures can be compared bit by bit only without this code. Qt reads the switch before main() begins.
 */
inline void restartWithRepeatableBlending([[maybe_unused]] char *argv[])
{
#ifdef Q_OS_UNIX
    const QByteArray off = qgetenv("QT_NO_CPU_FEATURE");
    if (!off.contains("avx2")) {
        qputenv("QT_NO_CPU_FEATURE", off + " avx2");
        ::execvp(argv[0], argv);
        qFatal("cannot start %s again", argv[0]);
    }
#endif
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_REPEATABLEBLENDING_H
