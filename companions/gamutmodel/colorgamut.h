// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_COLORGAMUT_H
#define GAMUTMODEL_COLORGAMUT_H

#include <gamutmodel/gamutmodel_export.h>

#include <string>
#include <vector>

/*! \brief Records of the colour gamut of a display or of a standard. */
namespace Model {

/*!
 * \brief A colour: luminance, CIE 1931 x, y and the values derived from them.
 *
 * Contains exactly seven doubles in this order. Luminances are absolute (cd/m²) or relative, as defined by the producer
 * of the record.
 */
struct Target {
    double Y = 0.0; //!< luminance
    double x = 0.0; //!< CIE 1931 chromaticity x
    double y = 0.0; //!< CIE 1931 chromaticity y
    double X = 0.0; //!< tristimulus value X = x Y / y, in the unit of Y
    double Z = 0.0; //!< tristimulus value Z = (1 - x - y) Y / y, in the unit of Y
    double u = 0.0; //!< CIE 1976 u' = 4 x / (-2 x + 12 y + 3) (ISO 11664-5:2009)
    double v = 0.0; //!< CIE 1976 v' = 9 y / (-2 x + 12 y + 3) (ISO 11664-5:2009)

    /*!
     * \brief Creates a colour of luminance \a Y and chromaticity (\a x, \a y), and computes X, Z, u' and v'.
     *
     * The three arguments are stored without checks. A derived value that would not be finite, for example X if \a y is
     * 0, is 0.
     */
    GAMUTMODEL_EXPORT static Target fromYxy(double Y, double x, double y);
};

/*! \brief The primaries and the white point of a gamut, contiguous in this order. */
struct Targets {
    Target red; //!< red primary
    Target green; //!< green primary
    Target blue; //!< blue primary
    Target white; //!< white point
};

/*!
 * \brief A gamut with a name. A value type.
 *
 * \code
 * Model::Targets targets;
 * targets.red = Model::Target::fromYxy(212.6, 0.64, 0.33);
 * // ... green, blue and white
 * const Model::ColorGamut gamut("LED wall", targets);
 * \endcode
 */
class GAMUTMODEL_EXPORT ColorGamut {
public:
    /*! \brief Creates a gamut without a name whose colours are all 0. */
    ColorGamut();
    /*! \brief Creates a gamut of \a targets with the name \a name. Both are stored without checks. */
    ColorGamut(std::string name, const Targets &targets);

    /*! \brief The primaries and the white point. */
    const Targets &getTargets() const;
    /*! \brief A copy of the name. */
    std::string colorGamutName() const;

private:
    std::string m_name;
    Targets m_targets;
};

/*! \brief A gamut without a name, the record of the legacy chart. It has the same layout as Targets. */
struct ColorGamutInfo {
    Target red; //!< red primary
    Target green; //!< green primary
    Target blue; //!< blue primary
    Target white; //!< white point
};

/*!
 * \brief "Rec.709": primaries and white point of Recommendation ITU-R BT.709-6, items 1.3 and 1.4.
 *
 * Luminances are relative: the white has Y = 1, and the primaries have the luminances at which they mix to it.
 */
GAMUTMODEL_EXPORT ColorGamut rec709();

/*!
 * \brief "Rec.2020": primaries and white point of Recommendation ITU-R BT.2020-2, table 3. Luminances as in rec709().
 */
GAMUTMODEL_EXPORT ColorGamut rec2020();

/*!
 * \brief "DCI-P3(D65)": primaries of SMPTE RP 431-2 with a D65 white point, as in SMPTE ST 2113 (P3D65).
 *
 * Luminances as in rec709().
 */
GAMUTMODEL_EXPORT ColorGamut dciP3D65();

/*!
 * \brief The gamuts that the charts show as standards: Rec.709, Rec.2020 and DCI-P3(D65), in this order.
 *
 * publishedGamuts() in publishedgamuts.h has these and others.
 */
GAMUTMODEL_EXPORT std::vector<ColorGamut> standardGamuts();

} // namespace Model

#endif // GAMUTMODEL_COLORGAMUT_H
