// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_PUBLISHEDGAMUTS_H
#define GAMUTMODEL_PUBLISHEDGAMUTS_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/gamutmodel_export.h>

#include <optional>
#include <string_view>
#include <vector>

/*!
 * \file
 * \brief The gamuts of published standards and colour spaces, with their sources.
 *
 * Some of them are equal: sRGB has the primaries and the white of Rec.709, and Display P3 those of DCI-P3(D65); these
 * pairs differ in their transfer functions, which are no part of a gamut. publishedGamutsEqualTo() finds all names of a
 * gamut.
 *
 * \code
 * if (const auto standard = Model::publishedGamut("bt.2020")) {
 *     compare(wall, standard->gamut.getTargets()); // standard->gamut.colorGamutName() is "Rec.2020"
 * }
 * \endcode
 */
namespace Model {

/*! \brief A published gamut. */
struct PublishedGamut {
    /*!
     * \brief Name, primaries and white.
     *
     * Luminances are relative: the white has Y = 1, and the primaries have the luminances at which they mix to it. The
     * blue primary of ACES2065-1 is not a real colour: its y and its luminance are negative.
     */
    ColorGamut gamut;
    const char *source = ""; //!< the document that defines primaries and white; UTF-8, not translated
};

/*!
 * \brief All published gamuts: first those of standardGamuts(), then the others.
 *
 * | name                | primaries and white                                                                        |
 * | ------------------- | ------------------------------------------------------------------------------------------ |
 * | "Rec.709"           | Recommendation ITU-R BT.709-6, items 1.3 and 1.4                                           |
 * | "Rec.2020"          | Recommendation ITU-R BT.2020-2, table 3                                                    |
 * | "DCI-P3(D65)"       | primaries of SMPTE RP 431-2:2011, D65 as in SMPTE ST 2113:2019 (P3D65)                     |
 * | "sRGB"              | IEC 61966-2-1:1999                                                                         |
 * | "Display P3"        | primaries of SMPTE RP 431-2:2011, D65, as in SMPTE EG 432-1:2010                           |
 * | "DCI-P3 (theatre)"  | SMPTE RP 431-2:2011, reference projector; white 0.314, 0.351                               |
 * | "Adobe RGB (1998)"  | Adobe RGB (1998) Color Image Encoding, version 2005-05                                     |
 * | "Rec.601 (525)"     | Recommendation ITU-R BT.601-7, 525 lines; the primaries are those of SMPTE ST 170 (SMPTE C) |
 * | "Rec.601 (625)"     | Recommendation ITU-R BT.601-7, 625 lines; the primaries are those of EBU Tech. 3213        |
 * | "NTSC 1953"         | 47 CFR 73.682 (a)(20); Recommendation ITU-R BT.470-6, system M; white: illuminant C        |
 * | "ACEScg"            | Academy S-2014-004, 4.3.1 (AP1)                                                            |
 * | "ACES2065-1"        | SMPTE ST 2065-1:2012 (AP0)                                                                 |
 *
 * Recommendation ITU-T H.273 gives the same coordinates for its ColourPrimaries 1 (Rec.709, sRGB), 4 (NTSC 1953), 5 and
 * 6 (Rec.601, 625 and 525), 9 (Rec.2020), 11 (DCI-P3, theatre) and 12 (P3 with D65).
 *
 * The white of NTSC 1953 has the three decimals of these documents, 0.310, 0.316; CIE 15:2018 gives illuminant C as
 * 0.31006, 0.31616. The primaries of ACEScg lie slightly, and those of ACES2065-1 clearly outside of the spectral
 * locus.
 */
GAMUTMODEL_EXPORT const std::vector<PublishedGamut> &publishedGamuts();

/*!
 * \brief The published gamuts that \a name can mean, in the order of publishedGamuts().
 *
 * Names are compared without regard to case, spaces and punctuation. Besides the names of the gamuts, other usual names
 * are known, for example "BT.709", "P3-D65", "SMPTE C", "AP1". Some mean several gamuts: "Rec.601" both systems, "P3"
 * and "DCI-P3" both whites, "NTSC" the system of 1953 and the 525 lines of today. A gamut's own name means only that
 * gamut. Empty for an unknown name.
 */
GAMUTMODEL_EXPORT std::vector<PublishedGamut> publishedGamutsNamed(std::string_view name);

/*! \brief The published gamut that \a name means; nothing if there is none or more than one. */
GAMUTMODEL_EXPORT std::optional<PublishedGamut> publishedGamut(std::string_view name);

/*!
 * \brief The published gamuts whose primaries and white have the chromaticities of \a gamut, in the order of
 * publishedGamuts().
 *
 * \param gamut only x and y of its colours are used.
 * \param tolerance the greatest difference of each coordinate, which is to allow for the digits of a file: an EDID has
 *     steps of 1/1024, so that its coordinates differ by up to 0.0005 if they are rounded and by up to 0.001 if they
 * are cut off. Nothing equals a gamut with a coordinate that is not a number.
 */
GAMUTMODEL_EXPORT std::vector<PublishedGamut> publishedGamutsEqualTo(const Targets &gamut, double tolerance = 1e-9);

} // namespace Model

#endif // GAMUTMODEL_PUBLISHEDGAMUTS_H
