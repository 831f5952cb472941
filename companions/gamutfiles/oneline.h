// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_ONELINE_H
#define GAMUTFILES_ONELINE_H

#include <gamutfiles/gamutfiles_export.h>

#include <QString>

namespace gamutfiles {

/*!
 * \brief \a text without line ends, control characters, marks that turn the direction of writing, and others that are
 * not to be seen: each is written as \\u and four digits.
 *
 * File names and the strings of a file may hold anything, while a message is one line for a script to read, and for
 * people to trust: what stands behind U+202E is shown from right to left.
 */
GAMUTFILES_EXPORT QString oneLine(const QString &text);

} // namespace gamutfiles

#endif // GAMUTFILES_ONELINE_H
