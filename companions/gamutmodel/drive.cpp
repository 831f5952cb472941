// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/drive.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace Model {

namespace {

using Vector = std::array<double, 3>;

constexpr Primary allPrimaries[] = {Primary::Red, Primary::Green, Primary::Blue};
/*! \brief The white first: it is the one to name where a primary is limited by the same factor. */
constexpr GamutColor allColors[] = {GamutColor::White, GamutColor::Red, GamutColor::Green, GamutColor::Blue};

/*! \brief X, Y, Z of \a color; nothing if they are not finite. */
std::optional<Vector> lightOf(const Target &color)
{
    if (color.Y == 0.0) {
        return Vector{};
    }
    if (color.y == 0.0) {
        return std::nullopt;
    }
    // Not X and Z of the record: a host may fill in x and y only.
    const double sum = color.Y / color.y;
    const Vector light{color.x * sum, color.Y, (1.0 - color.x - color.y) * sum};
    const bool finite = std::all_of(light.begin(), light.end(), [](double value) { return std::isfinite(value); });
    return finite ? std::make_optional(light) : std::nullopt;
}

double norm(const Vector &v)
{
    return std::fabs(v[0]) + std::fabs(v[1]) + std::fabs(v[2]);
}

Vector crossProduct(const Vector &a, const Vector &b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Drive driveFrom(const Vector &values)
{
    return {values[0], values[1], values[2]};
}

bool isFinite(const Drive &drive)
{
    return std::isfinite(drive.red) && std::isfinite(drive.green) && std::isfinite(drive.blue);
}

/*! \brief A factor of a luminance, and the primary that limits it. */
struct Limit {
    double factor;
    Primary primary;
};

bool isLeastFactor(double factor, double least)
{
    return std::isinf(least) || factor <= least + driveRounding * std::fabs(least);
}

/*!
 * \brief The largest factor f with which f \a needed - \a offset has no value above 1.
 *
 * Of several primaries that are at 1 then, but for rounding, it names the first.
 */
Limit limitOf(const Drive &needed, const Drive &offset)
{
    const auto factorOf = [&](Primary primary) {
        return needed.of(primary) > 0.0 ? (1.0 + offset.of(primary)) / needed.of(primary)
                                        : std::numeric_limits<double>::infinity();
    };
    const double least = std::min({factorOf(Primary::Red), factorOf(Primary::Green), factorOf(Primary::Blue)});
    const auto isLeast = [&](Primary primary) { return isLeastFactor(factorOf(primary), least); };
    return {least, *std::find_if(std::begin(allPrimaries), std::end(allPrimaries), isLeast)};
}

} // namespace

bool isOutside(const Drive &drive)
{
    return std::min({drive.red, drive.green, drive.blue}) < -driveRounding;
}

bool isTooBright(const Drive &drive)
{
    return std::max({drive.red, drive.green, drive.blue}) > 1.0 + driveRounding;
}

DisplayDrive::DisplayDrive(const Targets &display, const std::optional<Target> &black)
    : m_condition(std::numeric_limits<double>::quiet_NaN())
{
    const auto blackLight = black ? lightOf(*black) : Vector{};
    if (!blackLight) {
        m_fault = DisplayFault::NotFinite;
        return;
    }
    m_black = *blackLight;
    const Target *const colors[] = {&display.red, &display.green, &display.blue};
    for (const Primary primary : allPrimaries) {
        const std::size_t i = std::size_t(primary);
        const auto light = lightOf(*colors[i]);
        if (!light) {
            m_fault = DisplayFault::NotFinite;
            m_faultyPrimary = primary;
            return;
        }
        for (std::size_t k = 0; k < 3; ++k) {
            m_columns[i][k] = (*light)[k] - m_black[k];
        }
        m_scales[i] = 1.0 / norm(m_columns[i]);
        if (!(m_columns[i][1] > 0.0)) {
            m_fault = DisplayFault::NoLight;
            m_faultyPrimary = primary;
            return;
        }
    }

    // Gaussian elimination with exchange of rows (Golub and Van Loan, Matrix Computations, 3.4).
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            m_lu[row][column] = m_columns[column][row] * m_scales[column];
        }
        m_rows[row] = int(row);
    }
    const std::array<Vector, 3> scaled = m_lu;
    for (std::size_t column = 0; column < 3; ++column) {
        const auto largest = std::max_element(m_lu.begin() + std::ptrdiff_t(column), m_lu.end(),
            [column](const Vector &a, const Vector &b) { return std::fabs(a[column]) < std::fabs(b[column]); });
        const std::size_t pivot = std::size_t(largest - m_lu.begin());
        std::swap(m_lu[column], m_lu[pivot]);
        std::swap(m_rows[column], m_rows[pivot]);
        for (std::size_t row = column + 1; row < 3; ++row) {
            double &factor = m_lu[row][column];
            factor = m_lu[column][column] != 0.0 ? factor / m_lu[column][column] : 0.0;
            for (std::size_t k = column + 1; k < 3; ++k) {
                m_lu[row][k] -= factor * m_lu[column][k];
            }
        }
    }

    // The columns have the norm 1, so that the norm of the inverse is the condition number.
    m_condition = 0.0;
    if (m_lu[0][0] == 0.0 || m_lu[1][1] == 0.0 || m_lu[2][2] == 0.0) {
        m_condition = std::numeric_limits<double>::infinity();
    } else {
        // Colours are solved far more often than displays, and multiplying is faster than dividing.
        for (std::size_t k = 0; k < 3; ++k) {
            m_lu[k][k] = 1.0 / m_lu[k][k];
        }
        for (std::size_t k = 0; k < 3; ++k) {
            Vector unit{};
            unit[k] = 1.0;
            Vector inverse = solved(unit);
            for (std::size_t i = 0; i < 3; ++i) {
                inverse[i] /= m_scales[i];
            }
            m_condition = std::max(m_condition, norm(inverse));
        }
    }
    if (!(m_condition <= largestCondition)) {
        m_fault = DisplayFault::NearlySingular;
        // The other two are the most different pair.
        const auto column = [&scaled](std::size_t i) { return Vector{scaled[0][i], scaled[1][i], scaled[2][i]}; };
        const auto difference = [&column](Primary primary) {
            const std::size_t i = std::size_t(primary);
            return norm(crossProduct(column((i + 1) % 3), column((i + 2) % 3)));
        };
        m_faultyPrimary = *std::max_element(std::begin(allPrimaries), std::end(allPrimaries),
            [&difference](Primary a, Primary b) { return difference(a) < difference(b); });
    }
}

/*! \brief The drives that make \a light, apart from the black. */
DisplayDrive::Vector DisplayDrive::solved(Vector light) const
{
    Vector values{};
    for (std::size_t row = 0; row < 3; ++row) {
        values[row] = light[std::size_t(m_rows[row])];
        for (std::size_t k = 0; k < row; ++k) {
            values[row] -= m_lu[row][k] * values[k];
        }
    }
    for (std::size_t row = 3; row-- > 0;) {
        for (std::size_t k = row + 1; k < 3; ++k) {
            values[row] -= m_lu[row][k] * values[k];
        }
        values[row] *= m_lu[row][row]; // 1 / the pivot
    }
    for (std::size_t i = 0; i < 3; ++i) {
        values[i] *= m_scales[i];
    }
    return values;
}

DisplayFault DisplayDrive::fault() const
{
    return m_fault;
}

std::optional<Primary> DisplayDrive::faultyPrimary() const
{
    return m_faultyPrimary;
}

double DisplayDrive::condition() const
{
    return m_condition;
}

std::optional<Drive> DisplayDrive::driveOf(const Target &color) const
{
    const auto light = lightOf(color);
    if (m_fault != DisplayFault::None || !light) {
        return std::nullopt;
    }
    const Drive drive
        = driveFrom(solved({(*light)[0] - m_black[0], (*light)[1] - m_black[1], (*light)[2] - m_black[2]}));
    return isFinite(drive) ? std::make_optional(drive) : std::nullopt;
}

std::optional<Target> DisplayDrive::lightAt(const Drive &drive) const
{
    if (m_fault != DisplayFault::None || !isFinite(drive)) {
        return std::nullopt;
    }
    Vector light = m_black;
    for (const Primary primary : allPrimaries) {
        for (std::size_t k = 0; k < 3; ++k) {
            light[k] += drive.of(primary) * m_columns[std::size_t(primary)][k];
        }
    }
    const double sum = light[0] + light[1] + light[2];
    if (sum == 0.0) {
        return Target();
    }
    Target color = Target::fromYxy(light[1], light[0] / sum, light[1] / sum);
    color.X = light[0];
    color.Z = light[2];
    return color;
}

std::optional<LargestLuminance> DisplayDrive::largestLuminance(DiagramPoint xy) const
{
    const auto light = lightOf(Target::fromYxy(1.0, xy.x, xy.y));
    if (m_fault != DisplayFault::None || !light) {
        return std::nullopt;
    }
    const Drive black = driveFrom(solved(m_black));
    const Drive needed = driveFrom(solved(*light));
    if (!isFinite(black) || !isFinite(needed)) {
        return std::nullopt;
    }
    const Limit limit = limitOf(needed, black);
    const auto at = [&](Primary primary) { return limit.factor * needed.of(primary) - black.of(primary); };
    if (!std::isfinite(limit.factor) || isOutside({at(Primary::Red), at(Primary::Green), at(Primary::Blue)})) {
        return std::nullopt;
    }
    return LargestLuminance{limit.factor, limit.primary};
}

std::optional<TargetDrive> DisplayDrive::driveFor(const Targets &target) const
{
    TargetDrive result;
    const std::pair<const Target *, Drive TargetDrive::*> colors[] = {{&target.red, &TargetDrive::red},
        {&target.green, &TargetDrive::green}, {&target.blue, &TargetDrive::blue}, {&target.white, &TargetDrive::white}};
    if (m_fault != DisplayFault::None) {
        return std::nullopt;
    }
    const Drive black = driveFrom(solved(m_black));
    if (!isFinite(black)) {
        return std::nullopt;
    }
    std::array<Limit, 4> limits{};
    for (const GamutColor color : allColors) {
        const auto &[from, to] = colors[std::size_t(color)];
        const auto drive = driveOf(*from);
        if (!drive) {
            return std::nullopt;
        }
        result.*to = *drive;
        limits[std::size_t(color)]
            = limitOf({drive->red + black.red, drive->green + black.green, drive->blue + black.blue}, black);
    }
    const auto lower = [](const Limit &a, const Limit &b) { return a.factor < b.factor; };
    const double least = std::min_element(limits.begin(), limits.end(), lower)->factor;
    if (std::isfinite(least)) {
        const auto isLeast = [&](GamutColor color) { return isLeastFactor(limits[std::size_t(color)].factor, least); };
        result.headroom = least;
        result.limitingColor = *std::find_if(std::begin(allColors), std::end(allColors), isLeast);
        result.limitingPrimary = limits[std::size_t(result.limitingColor)].primary;
    }
    result.largestWhite = largestLuminance({target.white.x, target.white.y});
    return result;
}

} // namespace Model
