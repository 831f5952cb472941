// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_LUMINANCEUNIT_H
#define GAMUTFILES_LUMINANCEUNIT_H

namespace gamutfiles {

/*! \brief What luminances are measured in. */
enum class LuminanceUnit {
    NotKnown, //!< the file does not say
    Relative, //!< to an unstated white or maximum; comparable inside of the gamut or wall alone
    CandelaPerSquareMetre //!< cd/m²
};

} // namespace gamutfiles

#endif // GAMUTFILES_LUMINANCEUNIT_H
