// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_MESSAGES_H
#define GAMUTVIEWER_MESSAGES_H

#include <QString>

namespace gamutviewer {

/*! \brief Writes the line "gamutviewer: \a text" to the standard error stream. */
void printError(const QString &text);

} // namespace gamutviewer

#endif
