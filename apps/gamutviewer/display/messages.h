// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_MESSAGES_H
#define GAMUTVIEWER_MESSAGES_H

#include <QString>

namespace gamutviewer {

/*!
 * \brief \a text without line ends and control characters: each is written as \\u and four digits.
 *
 * File names and the strings of a file may hold anything, while a message is one line for a script to read.
 */
QString oneLine(const QString &text);

/*! \brief Writes the line "gamutviewer: \a text" to the standard error stream. */
void printError(const QString &text);

} // namespace gamutviewer

#endif
