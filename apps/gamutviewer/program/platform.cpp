// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/platform.h"

#include "program/commandline.h"

#include <QtGlobal>

#include <algorithm>

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

} // namespace gamutviewer
