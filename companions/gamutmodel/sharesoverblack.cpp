// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/sharesoverblack_p.h>

#include <gamutmodel/mixture_p.h>
#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Model {

namespace {

constexpr Primary allPrimaries[] = {Primary::Red, Primary::Green, Primary::Blue};
constexpr double leastShare = 1e-6;

DiagramPoint xyOf(const Target &color)
{
    return {color.x, color.y};
}

/*! \brief What DisplayDrive reads of a colour. */
Target light(double Y, const DiagramPoint &xy)
{
    Target color;
    color.Y = Y;
    color.x = xy.x;
    color.y = xy.y;
    return color;
}

double lowest(const Drive &drive)
{
    return std::min({drive.red, drive.green, drive.blue});
}

/*!
 * \brief The largest part, up to 1, of the way from the drive \a from to \a to on which no drive is below 0; nothing
 * if there is none.
 */
std::optional<double> largestShare(const Drive &from, const Drive &to)
{
    double least = 0.0;
    double most = 1.0;
    for (const Primary primary : allPrimaries) {
        const double a = from.of(primary);
        const double b = to.of(primary);
        if (a < 0.0 && b < 0.0) {
            return std::nullopt;
        }
        if (b < 0.0) {
            most = std::min(most, a / (a - b));
        } else if (a < 0.0) {
            least = std::max(least, a / (a - b));
        }
    }
    return least <= most ? std::make_optional(most) : std::nullopt;
}

class Solver {
public:
    Solver(const std::vector<Cabinet> &cabinets, const Targets &target)
        : m_target(target)
        , m_white(xyOf(target.white))
    {
        for (std::size_t i = 0; i < cabinets.size(); ++i) {
            if (!cabinets[i].black) {
                continue;
            }
            const DisplayDrive drive(cabinets[i].colors, cabinets[i].black);
            if (drive.fault() == DisplayFault::None) {
                m_glowing.push_back({i, drive, *cabinets[i].black});
            }
        }
    }

    SharesOverBlack result()
    {
        // A few cabinets decide. They are found one after the other, so that the many are looked at a few times only.
        std::vector<const Glowing *> deciding;
        const std::size_t most = 3 * m_glowing.size();
        while (deciding.size() <= most) {
            const auto worst = worstBelowZero();
            if (worst.empty() || m_result.tooBright) {
                break;
            }
            deciding.insert(deciding.end(), worst.begin(), worst.end());
            settle(deciding);
        }
        return m_result;
    }

private:
    struct Glowing {
        std::size_t cabinet;
        DisplayDrive drive;
        Target black;
    };

    DiagramPoint pointAt(Primary primary, double share) const
    {
        return m_white + share * (xyOf(color(m_target, primary)) - m_white);
    }

    static const Target &color(const Targets &targets, Primary primary)
    {
        return primary == Primary::Red ? targets.red : primary == Primary::Green ? targets.green : targets.blue;
    }

    std::array<DiagramPoint, 3> currentPoints() const
    {
        const auto &[red, green, blue] = m_result.shares;
        return {pointAt(Primary::Red, red), pointAt(Primary::Green, green), pointAt(Primary::Blue, blue)};
    }

    Mixture mixture() const
    {
        const auto [red, green, blue] = currentPoints();
        Mixture result({light(1.0, red), light(1.0, green), light(1.0, blue), m_target.white});
        result.setLuminance(m_target.white.Y);
        return result;
    }

    //! For each primary of the target the cabinet whose drive for it is the lowest, if that is below 0.
    std::vector<const Glowing *> worstBelowZero() const
    {
        const Mixture current = mixture();
        const std::array<DiagramPoint, 3> points = currentPoints();
        std::array<double, 3> least{-driveRounding, -driveRounding, -driveRounding};
        std::array<const Glowing *, 3> worst{};
        for (const Glowing &of : m_glowing) {
            const Drive luminances = current.luminancesOver(of.black);
            for (const Primary primary : allPrimaries) {
                const std::size_t i = std::size_t(primary);
                const auto drive = of.drive.driveOf(light(luminances.of(primary), points[i]));
                if (drive && lowest(*drive) < least[i]) {
                    least[i] = lowest(*drive);
                    worst[i] = &of;
                }
            }
        }
        std::vector<const Glowing *> found;
        std::copy_if(worst.begin(), worst.end(), std::back_inserter(found), [](const Glowing *of) { return of; });
        return found;
    }

    //! How far \a primary can lie from the white for a cabinet that needs \a luminance of it at \a present.
    std::optional<double> shareFor(
        const Glowing &of, Primary primary, double luminance, const DiagramPoint &present) const
    {
        const double sum = luminance / present.y; // X + Y + Z, which stays where x and y change
        const auto at = [&](double share) {
            const DiagramPoint point = pointAt(primary, share);
            return of.drive.driveOf(light(sum * point.y, point));
        };
        const auto ofWhite = at(0.0);
        const auto ofPrimary = at(1.0);
        return ofWhite && ofPrimary ? largestShare(*ofWhite, *ofPrimary) : std::nullopt;
    }

    /*!
     * \brief Finds the shares for the cabinets in \a deciding.
     *
     * The luminances of the primaries follow from where they lie, and where they can lie from their luminances: each is
     * computed from the other in turn. Blacks are small, so that little changes after the first steps. Later on no
     * primary may move outwards again, which ends it in any case.
     */
    void settle(const std::vector<const Glowing *> &deciding)
    {
        constexpr int freeSteps = 30;
        constexpr int mostSteps = 200;
        constexpr double done = 1e-14;
        m_result.shares = {1.0, 1.0, 1.0};
        for (int step = 0; step < mostSteps; ++step) {
            const Mixture current = mixture();
            const std::array<DiagramPoint, 3> points = currentPoints();
            SharesOverBlack next;
            for (const Glowing *of : deciding) {
                const Drive luminances = current.luminancesOver(of->black);
                for (const Primary primary : allPrimaries) {
                    const std::size_t i = std::size_t(primary);
                    // A primary that is too dark where it lies gets brighter nearer to the white.
                    const double share
                        = shareFor(*of, primary, luminances.of(primary), points[i]).value_or(m_result.shares[i] / 2.0);
                    if (share < next.shares[i]) {
                        next.shares[i] = share;
                        next.limits[i] = of->cabinet;
                    }
                }
            }
            double change = 0.0;
            for (std::size_t i = 0; i < 3; ++i) {
                if (step >= freeSteps && next.shares[i] >= m_result.shares[i]) {
                    continue;
                }
                change = std::max(change, std::fabs(next.shares[i] - m_result.shares[i]));
                m_result.shares[i] = next.shares[i];
                m_result.limits[i] = next.limits[i];
                if (next.shares[i] < leastShare) {
                    m_result.tooBright = next.limits[i];
                    return;
                }
            }
            if (change <= done) {
                return;
            }
        }
    }

    const Targets m_target;
    const DiagramPoint m_white;
    std::vector<Glowing> m_glowing;
    SharesOverBlack m_result;
};

} // namespace

SharesOverBlack sharesOverBlack(const std::vector<Cabinet> &cabinets, const Targets &target)
{
    return Solver(cabinets, target).result();
}

} // namespace Model
