// SPDX-License-Identifier: MIT
#include <gamutmodel/correction.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Model {

namespace {

constexpr Primary allPrimaries[] = {Primary::Red, Primary::Green, Primary::Blue};

Target withLuminance(const Target &color, double Y)
{
    return Target::fromYxy(Y, color.x, color.y);
}

bool isFinite(const CorrectionMatrix &matrix)
{
    return std::all_of(matrix.rows.begin(), matrix.rows.end(),
        [](const auto &row) { return std::isfinite(row[0]) && std::isfinite(row[1]) && std::isfinite(row[2]); });
}

template <typename Condition>
std::vector<MatrixEntry> entriesIf(const CorrectionMatrix &matrix, const Condition &condition)
{
    std::vector<MatrixEntry> entries;
    for (const Primary drive : allPrimaries) {
        for (const Primary content : allPrimaries) {
            const double value = matrix.at(drive, content);
            if (condition(value)) {
                entries.push_back({drive, content, value});
            }
        }
    }
    return entries;
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
        const Drive ofBlack = black ? m_solution.driveOf(*black).value_or(Drive()) : Drive();
        return {withLuminance(m_target.red, m_luminances.red + 2.0 * ofBlack.red),
            withLuminance(m_target.green, m_luminances.green + 2.0 * ofBlack.green),
            withLuminance(m_target.blue, m_luminances.blue + 2.0 * ofBlack.blue), m_target.white};
    }

private:
    Targets m_target;
    DisplayDrive m_solution;
    Drive m_luminances;
};

std::optional<CorrectionMatrix> matrixOf(const DisplayDrive &cabinet, const Targets &target)
{
    CorrectionMatrix matrix;
    const Target *const colors[] = {&target.red, &target.green, &target.blue};
    for (const Primary content : allPrimaries) {
        const auto drive = cabinet.driveOf(*colors[std::size_t(content)]);
        if (!drive) {
            return std::nullopt;
        }
        for (const Primary primary : allPrimaries) {
            matrix.rows[std::size_t(primary)][std::size_t(content)] = drive->of(primary);
        }
    }
    return isFinite(matrix) ? std::make_optional(matrix) : std::nullopt;
}

std::optional<Target> shownAt(const DisplayDrive &cabinet, const Drive &drive)
{
    const auto possible = [](double value) { return std::clamp(value, 0.0, 1.0); };
    return cabinet.lightAt({possible(drive.red), possible(drive.green), possible(drive.blue)});
}

std::optional<Targets> shownWith(const DisplayDrive &cabinet, const CorrectionMatrix &matrix)
{
    const auto show = [&](const Drive &content) { return shownAt(cabinet, matrix.driveFor(content)); };
    const auto red = show({1.0, 0.0, 0.0});
    const auto green = show({0.0, 1.0, 0.0});
    const auto blue = show({0.0, 0.0, 1.0});
    const auto white = show({1.0, 1.0, 1.0});
    return red && green && blue && white ? std::make_optional(Targets{*red, *green, *blue, *white}) : std::nullopt;
}

/*! \brief Whether a cabinet that reaches \a a limits more than one that reaches \a b, but for rounding. */
bool limitsMore(double a, double b)
{
    return a < b * (1.0 - driveRounding);
}

} // namespace

std::vector<MatrixEntry> entriesBelowZero(const CorrectionMatrix &matrix)
{
    return entriesIf(matrix, [](double value) { return value < -driveRounding; });
}

std::vector<MatrixEntry> entriesAboveOne(const CorrectionMatrix &matrix)
{
    return entriesIf(matrix, [](double value) { return value > 1.0 + driveRounding; });
}

WallCorrection wallCorrection(
    const std::vector<Cabinet> &cabinets, const Targets &target, std::optional<double> luminance)
{
    WallCorrection wall;
    wall.corrections.resize(cabinets.size());
    std::vector<DisplayDrive> drives;
    drives.reserve(cabinets.size());
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        drives.emplace_back(cabinets[i].colors, cabinets[i].black);
        Correction &correction = wall.corrections[i];
        correction.fault = drives[i].fault();
        correction.faultyPrimary = drives[i].faultyPrimary();
        correction.largestWhite = drives[i].largestLuminance({target.white.x, target.white.y});
        correction.uncorrectedWhite = drives[i].lightAt({1.0, 1.0, 1.0});
        if (!correction.largestWhite) {
            wall.without.push_back(i);
        } else if (!wall.largestWhite || limitsMore(correction.largestWhite->luminance, wall.largestWhite->luminance)) {
            wall.largestWhite = WallWhite{correction.largestWhite->luminance, i, correction.largestWhite->limit};
        }
    }

    wall.target = target;
    Mixture mixture(target);
    wall.fault = mixture.fault();
    if (wall.fault != WallFault::None) {
        return wall;
    }
    if (!luminance && wall.largestWhite) {
        luminance = wall.largestWhite->luminance;
    }
    if (luminance && !std::isfinite(*luminance)) {
        wall.fault = WallFault::NotFinite;
        return wall;
    }
    if (!luminance || *luminance <= 0.0) {
        wall.fault = WallFault::NoLuminance;
        return wall;
    }
    mixture.setLuminance(*luminance);
    wall.target = mixture.over(std::nullopt);
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        Correction &correction = wall.corrections[i];
        if (correction.fault != DisplayFault::None) {
            continue;
        }
        correction.matrix = matrixOf(drives[i], cabinets[i].black ? mixture.over(cabinets[i].black) : wall.target);
        if (correction.matrix) {
            correction.shown = shownWith(drives[i], *correction.matrix);
        }
        if (correction.shown) {
            correction.remaining = deviations(*correction.shown, wall.target, LuminanceUnits::Same, Diagram::Cie1976);
        }
    }
    return wall;
}

namespace {

template <typename ColorOf>
std::vector<std::optional<Target>> whites(const WallCorrection &wall, const ColorOf &colorOf)
{
    std::vector<std::optional<Target>> colors;
    colors.reserve(wall.corrections.size());
    for (const Correction &correction : wall.corrections) {
        colors.push_back(colorOf(correction));
    }
    return colors;
}

} // namespace

std::vector<std::optional<Target>> whitesBefore(const WallCorrection &wall)
{
    return whites(wall, [](const Correction &correction) { return correction.uncorrectedWhite; });
}

std::vector<std::optional<Target>> whitesAfter(const WallCorrection &wall)
{
    return whites(wall, [](const Correction &correction) {
        return correction.shown ? std::make_optional(correction.shown->white) : std::nullopt;
    });
}

} // namespace Model
