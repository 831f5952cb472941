// SPDX-License-Identifier: MIT
#include "program/platform.h"

#include "program/commandline.h"

#include <QFile>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#endif

namespace gamutviewer {

namespace {

bool hasDisplay(const QStringList &arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const auto isSet = [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); };
    const auto choosesDisplay = [](const QString &argument) {
        return argument.endsWith(QLatin1String("-platform")) || argument.endsWith(QLatin1String("-display"));
    };
    return isSet("QT_QPA_PLATFORM") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY")
        || std::any_of(arguments.begin(), arguments.end(), choosesDisplay);
#else
    Q_UNUSED(arguments)
    return true;
#endif
}

} // namespace

bool choosePlatform(int argc, const char *const *argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (CommandLine(arguments).needsDisplay() && hasDisplay(arguments)) {
        return true;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A desktop's theme may look for the display by itself, and end the process too.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    return false;
}

#ifdef Q_OS_UNIX

std::optional<int> standardInput()
{
    return STDIN_FILENO;
}

std::optional<int> openStream(const QString &fileName)
{
    const int descriptor
        = ::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    return descriptor < 0 ? std::nullopt : std::make_optional(descriptor);
}

void closeStream(int descriptor)
{
    ::close(descriptor);
}

std::optional<QByteArray> readStream(int descriptor, int most)
{
    // Standard input is shared with other programs, for which it must go on to wait; so it is asked before.
    pollfd asked{descriptor, POLLIN, 0};
    if (::poll(&asked, 1, 0) <= 0) {
        return QByteArray();
    }
    QByteArray bytes(most, Qt::Uninitialized);
    const ssize_t length = ::read(descriptor, bytes.data(), std::size_t(most));
    if (length > 0) {
        bytes.truncate(int(length));
        return bytes;
    }
    const bool isNothingYet = length < 0 && (errno == EAGAIN || errno == EINTR);
    return isNothingYet ? std::make_optional(QByteArray()) : std::nullopt;
}

#else

std::optional<int> standardInput()
{
    return std::nullopt;
}

std::optional<int> openStream(const QString &)
{
    return std::nullopt;
}

void closeStream(int) { }

std::optional<QByteArray> readStream(int, int)
{
    return std::nullopt;
}

#endif

} // namespace gamutviewer
