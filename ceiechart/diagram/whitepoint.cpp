// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/diagram/planckiantable_p.h>
#include <ceiechart/diagram/whitepoint.h>
#include <colortemperature/colortemperature.h>

#include <cmath>
#include <iterator>
#include <vector>

namespace ceiechart {

namespace {

constexpr double rounding = 1e-9; // in Duv: what is set to the greatest counts as such when it is read back
constexpr double secondRadiationConstant = 1.438776877e7; // nm K, CODATA 2018, as GetColorTemperatureFromXY() has it

//! Tristimulus values, or their derivatives by temperature.
struct Tristimulus {
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;

    void add(const CEIAtlasValue::CEIAtlasCoordinate &row, double power)
    {
        X += power * row.X;
        Y += power * row.Y;
        Z += power * row.Z;
    }
};

//! Planck's law without the exponential, up to a factor that the chromaticity does not depend on; for each row.
const std::vector<double> &wavelengthPowers()
{
    static const std::vector<double> powers = [] {
        std::vector<double> result;
        for (const CEIAtlasValue::CEIAtlasCoordinate &row : CEIAtlasValue().atlasCoordinates) {
            result.push_back(std::pow(row.waveLength / 560.0, -5.0));
        }
        return result;
    }();
    return powers;
}

} // namespace

std::optional<ColorTemperature> colorTemperature(const QPointF &xy)
{
    ColorTemperature result;
    result.duv = GetColorTemperatureFromXY(xy.x(), xy.y(), &result.kelvin);
    // An end of the locus is all that is known of what lies beyond it.
    const bool isInside = result.kelvin > lowestTemperature && result.kelvin < highestTemperature;
    return isInside && std::fabs(result.duv) <= greatestDuv + rounding ? std::make_optional(result) : std::nullopt;
}

std::optional<QPointF> chromaticityAt(double kelvin, double duv)
{
    if (!(kelvin > lowestTemperature && kelvin < highestTemperature && std::fabs(duv) <= greatestDuv)) {
        return std::nullopt;
    }
    static const CEIAtlasValue atlas;
    const bool isOnLocus = duv == 0.0; // where the direction of the locus does not matter
    Tristimulus sum;
    Tristimulus slope;
    auto wavelengthPower = wavelengthPowers().begin();
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas.atlasCoordinates) {
        const double exponent = secondRadiationConstant / (row.waveLength * kelvin);
        const double power = *wavelengthPower++ / std::expm1(exponent);
        sum.add(row, power);
        if (!isOnLocus) {
            slope.add(row, power * exponent / (kelvin * -std::expm1(-exponent)));
        }
    }
    // CIE 1960 u = 4X / (X + 15Y + 3Z), v = 6Y / (X + 15Y + 3Z), and their derivatives up to a positive factor.
    const double denominator = sum.X + 15.0 * sum.Y + 3.0 * sum.Z;
    double u = 4.0 * sum.X / denominator;
    double v = 6.0 * sum.Y / denominator;
    if (!isOnLocus) {
        const double denominatorSlope = slope.X + 15.0 * slope.Y + 3.0 * slope.Z;
        const double du = 4.0 * (slope.X * denominator - sum.X * denominatorSlope);
        const double dv = 6.0 * (slope.Y * denominator - sum.Y * denominatorSlope);
        const double length = std::hypot(du, dv);
        // The hotter, the smaller u: the normal (dv, -du) points to greater v, which is above the locus.
        u += duv * dv / length;
        v -= duv * du / length;
    }

    const double scale = 2.0 * u - 8.0 * v + 4.0;
    const QPointF xy(3.0 * u / scale, 2.0 * v / scale);
    if (!(xy.x() >= 0.0 && xy.y() > 0.0 && xy.x() + xy.y() <= 1.0)) {
        return std::nullopt;
    }
    return xy;
}

const QPolygonF &planckianLocusXy()
{
    // To compute half a million exponentials would take longer than to draw a diagram.
    static const QPolygonF locus = [] {
        QPolygonF points;
        points.reserve(int(std::size(planckianTable)));
        for (const auto &[x, y] : planckianTable) {
            points.append(QPointF(x, y));
        }
        return points;
    }();
    return locus;
}

} // namespace ceiechart
