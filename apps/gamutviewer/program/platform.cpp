// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/platform.h"

#include "program/commandline.h"

#include <QApplication>

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

//! Whether windows can be seen.
bool choosePlatform(const CommandLine &commandLine, const QStringList &arguments)
{
    if (commandLine.needsDisplay() && hasDisplay(arguments)) {
        return true;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A desktop's theme may look for the display by itself, and end the process too.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    return false;
}

} // namespace

QString decodedArgument(const char *argument)
{
    // QString::fromLocal8Bit() takes a byte order mark at the beginning away, and a file can be called so.
    return QString::fromLocal8Bit('_' + QByteArray(argument)).mid(1);
}

Application makeApplication(int &argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(decodedArgument(argv[i]));
    }
    const CommandLine commandLine(arguments);
    Application made;
    made.canShow = choosePlatform(commandLine, arguments);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    switch (commandLine.toolkit()) {
    case CommandLine::Toolkit::Core:
        made.application = std::make_unique<QCoreApplication>(argc, argv);
        break;
    case CommandLine::Toolkit::Painting:
        made.application = std::make_unique<QGuiApplication>(argc, argv);
        break;
    case CommandLine::Toolkit::Widgets:
        made.application = std::make_unique<QApplication>(argc, argv);
        break;
    }
    return made;
}

} // namespace gamutviewer
