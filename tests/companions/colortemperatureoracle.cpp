// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colortemperatureoracle.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace reference {

namespace {

constexpr int mostMired = 1200;

// A quotient and its derivatives, from those of both parts.
PlanckianLocus::Coordinate quotient(const long double (&numerator)[3], const long double (&denominator)[3])
{
    const long double value = numerator[0] / denominator[0];
    const long double first = (numerator[1] - value * denominator[1]) / denominator[0];
    const long double second = (numerator[2] - 2 * first * denominator[1] - value * denominator[2]) / denominator[0];
    return {value, first, second};
}

} // namespace

Uv toUv(Xy chromaticity)
{
    const long double x = chromaticity.x;
    const long double y = chromaticity.y;
    const long double denominator = -2 * x + 12 * y + 3;
    return {4 * x / denominator, 6 * y / denominator};
}

Xy toXy(Uv chromaticity)
{
    const long double denominator = 2 * chromaticity.u - 8 * chromaticity.v + 4;
    return {
        static_cast<double>(3 * chromaticity.u / denominator), static_cast<double>(2 * chromaticity.v / denominator)};
}

long double distance(Uv a, Uv b)
{
    return std::hypot(a.u - b.u, a.v - b.v);
}

Uv PlanckianLocus::Point::offset(long double duv) const
{
    const long double speed = std::hypot(u.first, v.first);
    return {u.value - duv * v.first / speed, v.value + duv * u.first / speed};
}

PlanckianLocus::PlanckianLocus(long double c2)
{
    QFile file(QStringLiteral(COLOUR_MATCHING_FUNCTIONS));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", COLOUR_MATCHING_FUNCTIONS);
    }
    file.readLine();
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().trimmed().split(',');
        long double row[4];
        for (int i = 0; i < 4; ++i) {
            row[i] = std::strtold(cells.at(i).constData(), nullptr);
        }
        const long double micrometres = row[0] / 1000;
        const long double scale = 1 / (micrometres * micrometres * micrometres * micrometres * micrometres);
        m_lines.push_back({c2 / micrometres, row[1] * scale, row[2] * scale, row[3] * scale});
    }
    if (m_lines.size() != 471) {
        qFatal("%s has not 471 rows", COLOUR_MATCHING_FUNCTIONS);
    }
    m_samples.push_back({0, 0}); // the limit of infinite temperature is never asked for
    for (int mired = 1; mired <= mostMired; ++mired) {
        m_samples.push_back(at(mired).uv());
    }
}

PlanckianLocus::Point PlanckianLocus::at(long double mired) const
{
    long double numeratorU[3] = {};
    long double numeratorV[3] = {};
    long double denominator[3] = {};
    for (const Line &line : m_lines) {
        const long double exponential = std::exp(-line.decay * mired);
        const long double rest = -std::expm1(-line.decay * mired);
        const long double radiance = exponential / rest;
        const long double derivatives[3] = {radiance, -line.decay * radiance / rest,
            line.decay * line.decay * radiance * (1 + exponential) / (rest * rest)};
        for (int order = 0; order < 3; ++order) {
            numeratorU[order] += 4 * line.x * derivatives[order];
            numeratorV[order] += 6 * line.y * derivatives[order];
            denominator[order] += (line.x + 15 * line.y + 3 * line.z) * derivatives[order];
        }
    }
    return {quotient(numeratorU, denominator), quotient(numeratorV, denominator)};
}

PlanckianLocus::Foot PlanckianLocus::nearest(Uv chromaticity, int fromMired, int toMired) const
{
    int best = fromMired;
    for (int mired = fromMired; mired <= toMired; ++mired) {
        if (distance(chromaticity, m_samples[mired]) < distance(chromaticity, m_samples[best])) {
            best = mired;
        }
    }
    // Half of the derivative of the squared distance.
    const auto slope = [&](long double mired) {
        const Point point = at(mired);
        return (point.u.value - chromaticity.u) * point.u.first + (point.v.value - chromaticity.v) * point.v.first;
    };
    long double low = std::max(best - 1, fromMired);
    long double high = std::min(best + 1, toMired);
    if (slope(low) >= 0) {
        high = low;
    } else if (slope(high) <= 0) {
        low = high;
    }
    while (high - low > 1e-12L) {
        const long double middle = (low + high) / 2;
        (slope(middle) < 0 ? low : high) = middle;
    }
    const long double mired = (low + high) / 2;
    return {1e6L / mired, distance(chromaticity, at(mired).uv())};
}

} // namespace reference
