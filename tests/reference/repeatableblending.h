// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_REPEATABLEBLENDING_H
#define CEIECHART_TESTS_REFERENCE_REPEATABLEBLENDING_H

#include <QByteArray>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace reference {

/*!
 * \brief Starts the program again, once, with Qt's AVX2 code switched off.
 *
 * That code blends translucent pixels in buffers on the stack and rounds by their address modulo 32: the same
 * painter calls on the same picture can differ by one in a channel when they come from another depth of the
 * stack. Pictures can be compared bit by bit only without it, and Qt asks for the switch before main() begins.
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
