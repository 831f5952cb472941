// SPDX-License-Identifier: MIT
#include "filekind_p.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace gamutfiles {

#ifdef Q_OS_UNIX

bool isNamedPipe(const QString &fileName)
{
    struct stat status { };
    const bool isStream = fileName.startsWith(QLatin1String("/dev/")) || fileName.startsWith(QLatin1String("/proc/"));
    return !isStream && ::stat(QFile::encodeName(fileName).constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

bool openNamedPipe(QFile &pipe)
{
    // Without waiting, this fails when nobody reads.
    const int descriptor = ::open(QFile::encodeName(pipe.fileName()).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    // What is written then has to wait for the reader.
    const int flags = ::fcntl(descriptor, F_GETFL);
    if (flags < 0 || ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) < 0
        || !pipe.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return false;
    }
    return true;
}

#else

bool isNamedPipe(const QString &)
{
    return false;
}

bool openNamedPipe(QFile &)
{
    return false;
}

#endif

} // namespace gamutfiles
