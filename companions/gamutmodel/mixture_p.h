// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_MIXTURE_P_H
#define GAMUTMODEL_MIXTURE_P_H

#include <gamutmodel/correction.h>

#include <optional>

/*! \file \brief The luminances of a target's primaries that mix to its white. */
namespace Model {

/*! \brief \a color with the luminance \a Y. */
inline Target withLuminance(const Target &color, double Y)
{
    return Target::fromYxy(Y, color.x, color.y);
}

/*! \brief A target whose primaries get the luminances that mix to its white. */
class Mixture {
public:
    explicit Mixture(const Targets &target)
        : m_target{withLuminance(target.red, 1.0), withLuminance(target.green, 1.0), withLuminance(target.blue, 1.0),
            target.white}
        , m_solution(m_target) // with primaries of luminance 1, drives are luminances
    {
    }

    /*! \brief Why there is no mixture: never WallFault::NoLuminance. */
    WallFault fault() const
    {
        switch (m_solution.fault()) {
        case DisplayFault::NearlySingular:
            return WallFault::NearlySingular;
        case DisplayFault::NotFinite:
        case DisplayFault::NoLight:
            return WallFault::NotFinite;
        case DisplayFault::None:
            break;
        }
        const auto shares = m_solution.driveOf(withLuminance(m_target.white, 1.0));
        if (!shares) {
            return WallFault::NotFinite;
        }
        // A primary below the line of purples has a negative luminance, and so a positive one in its own direction.
        const auto isMissing = [&](Primary primary, const Target &color) {
            return shares->of(primary) * (color.y < 0.0 ? -1.0 : 1.0) < -driveRounding;
        };
        return isMissing(Primary::Red, m_target.red) || isMissing(Primary::Green, m_target.green)
                || isMissing(Primary::Blue, m_target.blue)
            ? WallFault::WhiteOutside
            : WallFault::None;
    }

    /*! \brief Sets the luminance of the white. */
    void setLuminance(double luminance)
    {
        m_target.white = withLuminance(m_target.white, luminance);
        m_luminances = m_solution.driveOf(m_target.white).value_or(Drive());
    }

    /*! \brief The target for a cabinet with \a black, which is counted once for each primary and once in the white. */
    Targets over(const std::optional<Target> &black) const
    {
        const Drive of = black ? luminancesOver(*black) : m_luminances;
        return {withLuminance(m_target.red, of.red), withLuminance(m_target.green, of.green),
            withLuminance(m_target.blue, of.blue), m_target.white};
    }
    /*! \brief The luminances of its primaries. */
    Drive luminancesOver(const Target &black) const
    {
        const Drive ofBlack = m_solution.driveOf(black).value_or(Drive());
        return {m_luminances.red + 2.0 * ofBlack.red, m_luminances.green + 2.0 * ofBlack.green,
            m_luminances.blue + 2.0 * ofBlack.blue};
    }

private:
    Targets m_target;
    DisplayDrive m_solution;
    Drive m_luminances;
};

} // namespace Model

#endif // GAMUTMODEL_MIXTURE_P_H
