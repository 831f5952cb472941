// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_ICCPROFILE_H
#define GAMUTFILES_ICCPROFILE_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace gamutfiles {

/*! \brief One entry of the dictionary that a profiler left in a profile, for example "MEASUREMENT_device". */
struct IccMetadata {
    QString name; //!< as the profile has it
    QString value; //!< as the profile has it
};

/*! \brief What an ICC profile says of a display and its colours. What it does not say is empty. */
struct IccDisplay {
    /*!
     * \brief The gamut of an RGB matrix profile, named after the profile's description, or without a name.
     *
     * The colorants of a profile are adapted to D50. They are given here under the native white, un-adapted by the
     * profile's chromatic adaptation tag, or by the Bradford transform from the media white point where there is none.
     * Luminances are those of the "lumi" tag, in cd/m², or relative to a white of 1. The profile of a colour space may
     * have primaries that no light has: see hasRealPrimaries().
     */
    DisplayGamut gamut;
    std::optional<double> whiteLuminance; //!< cd/m², of the "lumi" tag
    bool hasVideoCardTable = false; //!< whether the gamut holds only with curves of the profile in the video card
    //! Of the "meta" tag (ICC.1:2010, dictType): at most 256 entries, with names and values no larger than the tag.
    QVector<IccMetadata> metadata;
};

/*! \brief Whether \a bytes begin like an ICC profile: the signature "acsp" at its place. */
GAMUTFILES_EXPORT bool isIccProfile(const QByteArray &bytes);

/*!
 * \brief Reads an RGB matrix profile (ICC.1:2010 and ICC.1:2001).
 *
 * The memory that reading takes is bounded by the size of the profile, whatever its counts say. A profile that lists
 * the tag of its adaptation, or without one that of its white, but where it cannot be read, is refused as damaged.
 * Warnings tell of a description or a luminance that cannot be read, of primaries that no light has, of a table (A2B0,
 * A2B1) beside the colorants, which then need not be the primaries, of metadata that are larger than their tag, of
 * metadata by which the numbers are those of an EDID or a standard, not measured ones, and of a gamut that is exactly a
 * standard's.
 */
GAMUTFILES_EXPORT Outcome<IccDisplay> readIccDisplay(const QByteArray &bytes);

/*! \brief IccDisplay::gamut of readIccDisplay(), with the same warnings. */
GAMUTFILES_EXPORT Outcome<DisplayGamut> readIccProfile(const QByteArray &bytes);

} // namespace gamutfiles

#endif // GAMUTFILES_ICCPROFILE_H
