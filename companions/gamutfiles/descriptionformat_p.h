// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DESCRIPTIONFORMAT_P_H
#define GAMUTFILES_DESCRIPTIONFORMAT_P_H

#include <QString>

namespace gamutfiles {

/*! \brief The version of display descriptions that is read and written. */
constexpr int descriptionVersion = 1;

/*! \brief The key of a gamut that states the unit of its luminances. */
inline QString luminanceUnitKey()
{
    return QStringLiteral("luminanceUnit");
}

} // namespace gamutfiles

#endif
