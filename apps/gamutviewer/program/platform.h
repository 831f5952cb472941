// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PLATFORM_H
#define GAMUTVIEWER_PLATFORM_H

#include <memory>

class QCoreApplication;
class QString;

namespace gamutviewer {

/*! \brief The application of a process, and whether windows can be seen. */
struct Application {
    std::unique_ptr<QCoreApplication> application;
    bool canShow = false;
};

/*! \brief \a argument, in the encoding of the system, as text; one that is none does not give the same bytes again. */
QString decodedArgument(const char *argument);

/*!
 * \brief Makes the application that the arguments need, for at most once in a process.
 *
 * A report needs no platform, fonts and styles, and a picture no styles: to load them takes longer than to write
 * either. Where there is no display, or the arguments ask for nothing that needs one, Qt does without: it ends the
 * process when it finds none. The arguments that are for Qt are removed. \a argc and \a argv must outlive the
 * application.
 */
Application makeApplication(int &argc, char **argv);

} // namespace gamutviewer

#endif
