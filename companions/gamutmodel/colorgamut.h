// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_COLORGAMUT_H
#define GAMUTMODEL_COLORGAMUT_H

#include <gamutmodel/gamutmodel_export.h>

#include <string>
#include <vector>

/*! \brief Records that describe the colour gamut of a display or of a standard. */
namespace Model {

/*!
 * \brief A colour: luminance, CIE 1931 x, y and what derives from them.
 *
 * Exactly seven doubles in this order. Luminances are absolute (cd/m²) or relative, as the producer says.
 */
struct Target {
    double Y = 0.0; //!< luminance
    double x = 0.0; //!< CIE 1931 chromaticity x
    double y = 0.0; //!< CIE 1931 chromaticity y
    double X = 0.0; //!< tristimulus value x Y / y
    double Z = 0.0; //!< tristimulus value (1 - x - y) Y / y
    double u = 0.0; //!< CIE 1976 u' = 4 x / (-2 x + 12 y + 3)
    double v = 0.0; //!< CIE 1976 v' = 9 y / (-2 x + 12 y + 3)

    /*!
     * \brief The colour of luminance \a Y and chromaticity (\a x, \a y), with X, Z, u' and v' derived.
     *
     * The three values are kept as given. A derived value that would not be finite, such as X where \a y is 0, is 0.
     */
    GAMUTMODEL_EXPORT static Target fromYxy(double Y, double x, double y);
};

/*! \brief The primaries and the white point of a gamut, contiguous in this order. */
struct Targets {
    Target red; //!< primary
    Target green; //!< primary
    Target blue; //!< primary
    Target white; //!< white point
};

/*! \brief A gamut and its name: a value type. */
class GAMUTMODEL_EXPORT ColorGamut {
public:
    /*! \brief No name, all targets zero. */
    ColorGamut();
    /*! \brief \a targets under the name \a name, both kept as given. */
    ColorGamut(std::string name, const Targets &targets);

    /*! \brief The primaries and the white point. */
    const Targets &getTargets() const;
    /*! \brief The name, as given; a copy. */
    std::string colorGamutName() const;

private:
    std::string m_name;
    Targets m_targets;
};

/*! \brief A gamut without a name, as the legacy chart takes it; laid out like Targets. */
struct ColorGamutInfo {
    Target red; //!< primary
    Target green; //!< primary
    Target blue; //!< primary
    Target white; //!< white point
};

/*!
 * \brief "Rec.709": primaries and white of Recommendation ITU-R BT.709-6, items 1.3 and 1.4.
 *
 * Luminances of the ready-made gamuts are relative: the white has Y = 1 and the primaries have the luminances at
 * which they mix to it additively.
 */
GAMUTMODEL_EXPORT ColorGamut rec709();

/*! \brief "Rec.2020": primaries and white of Recommendation ITU-R BT.2020-2, table 3. Luminances as in rec709(). */
GAMUTMODEL_EXPORT ColorGamut rec2020();

/*!
 * \brief "DCI-P3(D65)": primaries of SMPTE RP 431-2 with a D65 white, as in SMPTE ST 2113 (P3D65).
 *
 * Luminances as in rec709().
 */
GAMUTMODEL_EXPORT ColorGamut dciP3D65();

/*! \brief The ready-made gamuts: Rec.709, Rec.2020, DCI-P3(D65). */
GAMUTMODEL_EXPORT std::vector<ColorGamut> standardGamuts();

} // namespace Model

#endif // GAMUTMODEL_COLORGAMUT_H
