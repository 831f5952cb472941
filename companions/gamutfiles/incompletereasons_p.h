// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_INCOMPLETEREASONS_P_H
#define GAMUTFILES_INCOMPLETEREASONS_P_H

#include <QString>

namespace gamutfiles {

/*! \brief What stands between two things that a cabinet lacks, in IncompleteCabinet::reason. */
inline QString reasonSeparator()
{
    return QStringLiteral(", ");
}

} // namespace gamutfiles

#endif
