// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/correction.h>

#include <gamutmodel/mixture_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Model {

namespace {

constexpr Primary allPrimaries[] = {Primary::Red, Primary::Green, Primary::Blue};

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
