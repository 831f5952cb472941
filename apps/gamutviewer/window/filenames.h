// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FILENAMES_H
#define GAMUTVIEWER_FILENAMES_H

#include <QString>

namespace gamutviewer {

/*!
 * \brief \a name as the name of a file without a suffix on every system: signs that a file name cannot have are
 * replaced by "_", and names that some system keeps for itself get one. Empty when nothing readable is left.
 */
QString safeFileName(const QString &name);

} // namespace gamutviewer

#endif
