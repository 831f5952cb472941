// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_DRIVE_H
#define GAMUTMODEL_DRIVE_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>

#include <array>
#include <optional>

/*!
 * \file
 * \brief How a display has to be driven for a target, and whether its luminance suffices.
 *
 * The display is additive (IEC 61966-4, channels independent): with K the tristimulus values of its black and R, G, B
 * those of its primaries at full drive, the light at the linear drives r, g, b is
 *
 *     K + r (R - K) + g (G - K) + b (B - K).
 *
 * A measured primary contains the black, as the other two channels are at 0 and not off. Without a black K is 0.
 *
 * All luminances have to be in the same unit, those of the display, of its black and of the target. Nothing here can
 * tell absolute luminances (cd/m²) from relative ones: results for a mixture of both have no meaning.
 *
 * \code
 * const Model::DisplayDrive wall(measured.getTargets());
 * const std::optional<Model::TargetDrive> drive = wall.driveFor(target.getTargets());
 * if (!drive) {
 *     // wall.fault() says why
 * } else if (drive->headroom && *drive->headroom < 1.0) {
 *     // the target is too bright; drive->largestWhite->luminance is what the wall reaches
 * }
 * \endcode
 */
namespace Model {

/*! \brief A primary of a display. */
enum class Primary { Red, Green, Blue };

/*! \brief A colour of a gamut. */
enum class GamutColor { Red, Green, Blue, White };

/*! \brief The linear drives of the three primaries: 0 is black, 1 is full drive. */
struct Drive {
    double red = 0.0; //!< drive of the red primary
    double green = 0.0; //!< drive of the green primary
    double blue = 0.0; //!< drive of the blue primary

    /*! \brief The drive of \a primary. */
    double of(Primary primary) const
    {
        return primary == Primary::Red ? red : primary == Primary::Green ? green : blue;
    }
};

/*! \brief A drive that is this far below 0 or above 1 is there by rounding, and counts as 0 or 1. */
constexpr double driveRounding = 1e-9;

/*! \brief Whether \a drive has a value below 0: no luminance lets the display show that colour. */
GAMUTMODEL_EXPORT bool isOutside(const Drive &drive);
/*! \brief Whether \a drive has a value above 1: the luminance of the display does not suffice. */
GAMUTMODEL_EXPORT bool isTooBright(const Drive &drive);

/*! \brief What keeps drives from being computed. */
enum class DisplayFault {
    None, //!< nothing
    NotFinite, //!< a colour of the display is infinite, not a number, or has light and y = 0
    NoLight, //!< a primary has no more luminance than the black
    NearlySingular //!< the primaries lie too close to a line: see DisplayDrive::largestCondition
};

/*! \brief The largest luminance of a chromaticity. */
struct LargestLuminance {
    double luminance = 0.0; //!< in the unit of the display
    /*! \brief The primary that is at full drive; the first of them if there are several, but for driveRounding. */
    Primary limit = Primary::Red;
};

/*! \brief How a display has to be driven for a target. */
struct TargetDrive {
    Drive red; //!< for the red primary of the target
    Drive green; //!< for the green primary of the target
    Drive blue; //!< for the blue primary of the target
    Drive white; //!< for the white of the target

    /*!
     * \brief The headroom: the largest factor by which all luminances of the target can be multiplied without a drive
     * above 1. Below 1 the target is too bright.
     *
     * Drives below 0 do not limit it. Nothing if no luminance needs any drive, as of a target without light.
     */
    std::optional<double> headroom;
    GamutColor limitingColor = GamutColor::White; //!< the colour of the target that limits the headroom
    Primary limitingPrimary = Primary::Red; //!< the primary of the display that is at full drive for it

    /*!
     * \brief The largest luminance that the display reaches in the chromaticity of the target's white.
     *
     * Nothing if the white lies outside of the display's gamut, or has no chromaticity.
     */
    std::optional<LargestLuminance> largestWhite;
};

/*!
 * \brief A display whose drives can be computed. A value type.
 *
 * The primaries are solved once, and each colour costs a few multiplications. Without a solution, fault() says why, and
 * all results are empty.
 */
class GAMUTMODEL_EXPORT DisplayDrive {
public:
    /*!
     * \brief The largest condition number with which drives are computed.
     *
     * At 3000, a relative error of 3e-4 in the measured primaries, which is what good instruments repeat, can change
     * the drives by their whole value. Up to there, the light of the drives is the wanted one within 1e-12. The
     * primaries of Rec.709 have a condition number of 3.5, two primaries that differ by 0.002 in x one of some
     * 2000.
     */
    static constexpr double largestCondition = 3000.0;

    /*!
     * \brief The display with the red, green and blue of \a display at full drive and with \a black.
     *
     * Of each colour Y, x and y are used; the white of \a display is not. A colour whose Y is 0 has no light, whatever
     * its x and y.
     */
    explicit DisplayDrive(const Targets &display, const std::optional<Target> &black = std::nullopt);

    /*! \brief Why there are no drives; DisplayFault::None if there are. */
    DisplayFault fault() const;
    /*!
     * \brief The primary that is at fault; nothing if there is no fault, or if the black is.
     *
     * Of nearly singular primaries it is the one whose colour the other two could almost mix, or one of two equal ones.
     */
    std::optional<Primary> faultyPrimary() const;
    /*!
     * \brief The condition number of the primaries: of the matrix of R - K, G - K and B - K, each divided by the sum of
     * its absolute values, in the 1-norm.
     *
     * Luminances do not matter for it. Infinite for singular primaries, and NaN where the primaries are not finite.
     */
    double condition() const;

    /*! \brief The drive for \a color. Nothing with a fault, or if \a color is not finite or has light and y = 0. */
    std::optional<Drive> driveOf(const Target &color) const;
    /*! \brief The light of the display at \a drive: the inverse of driveOf(). Nothing with a fault, or if \a drive is
     * not finite. */
    std::optional<Target> lightAt(const Drive &drive) const;
    /*!
     * \brief The largest luminance that the display reaches in the chromaticity \a xy.
     *
     * Nothing with a fault, if \a xy lies outside of the display's gamut, or if it is no chromaticity: y = 0, infinite
     * or not a number.
     */
    std::optional<LargestLuminance> largestLuminance(DiagramPoint xy) const;
    /*! \brief The drives for all colours of \a target. Nothing if driveOf() has nothing for one of them. */
    std::optional<TargetDrive> driveFor(const Targets &target) const;

private:
    using Vector = std::array<double, 3>;

    Vector solved(Vector light) const;

    std::array<Vector, 3> m_columns{}; // R - K, G - K, B - K
    std::array<Vector, 3> m_lu{}; // of the scaled columns, row by row
    std::array<int, 3> m_rows{}; // the order of the rows
    Vector m_scales{};
    Vector m_black{};
    double m_condition = 0.0;
    DisplayFault m_fault = DisplayFault::None;
    std::optional<Primary> m_faultyPrimary;
};

} // namespace Model

#endif // GAMUTMODEL_DRIVE_H
