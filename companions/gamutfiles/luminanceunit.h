// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_LUMINANCEUNIT_H
#define GAMUTFILES_LUMINANCEUNIT_H

#include <gamutfiles/gamutfiles_export.h>

#include <QString>

namespace gamutfiles {

/*! \brief What luminances are measured in. */
enum class LuminanceUnit {
    NotKnown, //!< the file does not say
    Relative, //!< to an unstated white or maximum; comparable inside of the gamut or wall alone
    CandelaPerSquareMetre //!< cd/m²
};

/*! \brief How files and reports write \a unit: "relative" or "cd/m2"; empty when it is not known. */
GAMUTFILES_EXPORT QString luminanceUnitName(LuminanceUnit unit);

} // namespace gamutfiles

#endif // GAMUTFILES_LUMINANCEUNIT_H
