// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/colortemperature.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace {

struct Chromaticity {
    double x, y;
};

bool allFinite(std::initializer_list<double> values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

void store(double *destination, double value)
{
    if (destination) {
        *destination = value;
    }
}

/*! \brief a * b - c * d without cancellation of the rounded products (Kahan). It is needed for thin triangles. */
double differenceOfProducts(double a, double b, double c, double d)
{
    const double cd = c * d;
    const double error = std::fma(-c, d, cd);
    return std::fma(a, b, -cd) + error;
}

/*! \brief Twice the signed area of a triangle. */
double doubleArea(const Chromaticity &a, const Chromaticity &b, const Chromaticity &c)
{
    return differenceOfProducts(b.x - a.x, c.y - a.y, c.x - a.x, b.y - a.y);
}

double squaredSide(const Chromaticity &a, const Chromaticity &b)
{
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

/*!
 * \brief Whether a triangle is too flat for meaningful luminances. Points on a line are as flat as this after rounding.
 */
bool isDegenerate(const Chromaticity &a, const Chromaticity &b, const Chromaticity &c)
{
    constexpr double leastHeight = 1e-12; // relative to the longest side
    const double longest = std::max({squaredSide(a, b), squaredSide(b, c), squaredSide(c, a)});
    return !(std::fabs(doubleArea(a, b, c)) > leastHeight * longest);
}

} // namespace

void RGBCxCyToWhiteCxCy(double redLuminance, double redX, double redY, double greenLuminance, double greenX,
    double greenY, double blueLuminance, double blueX, double blueY, double *whiteLuminance, double *whiteX,
    double *whiteY)
{
    double luminance = 0.0;
    double x = 0.0;
    double y = 0.0;
    if (allFinite({redLuminance, redX, redY, greenLuminance, greenX, greenY, blueLuminance, blueX, blueY})) {
        double sumX = 0.0;
        double sum = 0.0; // X + Y + Z
        bool mixable = true;
        const auto add = [&](double primaryLuminance, double primaryX, double primaryY) {
            luminance += primaryLuminance;
            if (primaryLuminance == 0.0) {
                return;
            }
            if (primaryY == 0.0) {
                mixable = false;
                return;
            }
            const double primarySum = primaryLuminance / primaryY;
            sumX += primaryX * primarySum;
            sum += primarySum;
        };
        add(redLuminance, redX, redY);
        add(greenLuminance, greenX, greenY);
        add(blueLuminance, blueX, blueY);
        if (mixable && sum != 0.0) {
            x = sumX / sum;
            y = luminance / sum;
        }
        if (!allFinite({luminance, sumX, sum, x, y})) {
            luminance = x = y = 0.0;
        }
    }
    store(whiteLuminance, luminance);
    store(whiteX, x);
    store(whiteY, y);
}

void RGBCxCyFromWhiteCxCy(double *redLuminance, double redX, double redY, double *greenLuminance, double greenX,
    double greenY, double *blueLuminance, double blueX, double blueY, double whiteLuminance, double whiteX,
    double whiteY)
{
    constexpr double unbounded = std::numeric_limits<double>::infinity();
    double luminances[3] = {unbounded, unbounded, unbounded};

    const Chromaticity red{redX, redY};
    const Chromaticity green{greenX, greenY};
    const Chromaticity blue{blueX, blueY};
    const Chromaticity white{whiteX, whiteY};
    if (allFinite({redX, redY, greenX, greenY, blueX, blueY, whiteLuminance, whiteX, whiteY}) && redY != 0.0
        && greenY != 0.0 && blueY != 0.0 && !isDegenerate(red, green, blue)) {
        if (whiteLuminance == 0.0) {
            std::fill_n(luminances, 3, 0.0);
        } else if (whiteY != 0.0) {
            // The mixture is linear in S = X + Y + Z = Y / y. The white divides the triangle into three; the ratio of
            // their areas to the whole area is the ratio of the S of the primaries to that of the white.
            const double perArea = whiteLuminance / whiteY / doubleArea(red, green, blue);
            luminances[0] = doubleArea(white, green, blue) * perArea * redY;
            luminances[1] = doubleArea(red, white, blue) * perArea * greenY;
            luminances[2] = doubleArea(red, green, white) * perArea * blueY;
            if (!allFinite({luminances[0], luminances[1], luminances[2]})) {
                std::fill_n(luminances, 3, unbounded);
            }
        }
    }
    store(redLuminance, luminances[0]);
    store(greenLuminance, luminances[1]);
    store(blueLuminance, luminances[2]);
}
