// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_EXCERPT_P_H
#define GAMUTFILES_EXCERPT_P_H

#include <QString>

namespace gamutfiles {

/*! \brief \a text for a message: its first 60 characters with an ellipsis when it is longer. */
QString excerpt(const QString &text);

} // namespace gamutfiles

#endif
