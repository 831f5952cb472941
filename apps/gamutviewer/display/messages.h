// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_MESSAGES_H
#define GAMUTVIEWER_MESSAGES_H

#include <QString>

namespace gamutviewer {

/*! \brief Writes the line "gamutviewer: \a text" to the standard error stream. */
void printError(const QString &text);

/*! \brief Why something could not be done for lack of memory, as part of a sentence, in the language of the interface.
 */
QString memoryIsShort();

} // namespace gamutviewer

#endif
