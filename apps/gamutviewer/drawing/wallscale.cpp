// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/wallscale.h"

#include "display/valuetexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

using ceiechart::gamutVertexName;
using Vertex = ceiechart::GamutVertex;

struct ScaleText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallScale)
};

// ColorBrewer 2.0, 9 classes, without the lightest, which does not stand out from white ground.
const QColor oranges[] = {QColor(0xfee6ce), QColor(0xfdd0a2), QColor(0xfdae6b), QColor(0xfd8d3c), QColor(0xf16913),
    QColor(0xd94801), QColor(0xa63603), QColor(0x7f2704)};
const QColor blues[] = {QColor(0xdeebf7), QColor(0xc6dbef), QColor(0x9ecae1), QColor(0x6baed6), QColor(0x4292c6),
    QColor(0x2171b5), QColor(0x08519c), QColor(0x08306b)};
constexpr int stepCount = 8;

// After Okabe and Ito, from dark to light: blue, red, green; light grey for the white.
const QColor limits[] = {QColor(0xc45400), QColor(0x45b894), QColor(0x004a80), QColor(0xd4d4d4)};

//! The smallest 1, 2 or 5 times a power of ten that is not below \a width.
double niceWidth(double width)
{
    const double power = std::pow(10.0, std::floor(std::log10(width)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= width * (1.0 - 1e-9)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

//! The value that \a part of \a values do not exceed; 0 for none.
double quantile(std::vector<double> values, double part)
{
    if (values.empty()) {
        return 0.0;
    }
    const auto at = values.begin() + std::ptrdiff_t(std::lround(part * double(values.size() - 1)));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

QString signedPercent(double part)
{
    // Whole per cent, but what is not 0 must not look like it.
    const double value = part * 100.0;
    const int decimals = std::fabs(value) < 0.95 ? 1 : 0;
    const QString number = fixedText(std::fabs(value), decimals);
    const QString sign = value < 0.0 && number != fixedText(0.0, decimals) ? QStringLiteral("−") : QStringLiteral("+");
    return ScaleText::tr("%1 %", "room above a luminance, with its sign").arg(sign + number);
}

//! In few digits, and no more than is reached.
QString reachedText(double luminance)
{
    constexpr double rounding = 1e-6;
    const int decimals = std::fabs(luminance) < 10.0 ? 3 : 0;
    const double step = decimals > 0 ? 1e3 : 1.0;
    return fixedText(std::floor(luminance * step + rounding) / step, decimals);
}

QString numberText(WallQuantity quantity, double value)
{
    switch (quantity) {
    case WallQuantity::Headroom:
        return signedPercent(value);
    case WallQuantity::Luminance:
        return reachedText(value);
    case WallQuantity::UvBefore:
    case WallQuantity::UvAfter:
    case WallQuantity::Limit:
        break;
    }
    return fixedText(value, 4);
}

} // namespace

QString wallQuantityName(WallQuantity quantity)
{
    switch (quantity) {
    case WallQuantity::UvBefore:
        return ScaleText::tr("white Δu′v′");
    case WallQuantity::UvAfter:
        return ScaleText::tr("Δu′v′ corrected");
    case WallQuantity::Luminance:
        return ScaleText::tr("luminance");
    case WallQuantity::Headroom:
        return ScaleText::tr("headroom");
    case WallQuantity::Limit:
        break;
    }
    return ScaleText::tr("limits");
}

QString wallQuantityDescription(WallQuantity quantity)
{
    switch (quantity) {
    case WallQuantity::UvBefore:
        return ScaleText::tr("Δu′v′ between each cabinet's white, not corrected, and the target's");
    case WallQuantity::UvAfter:
        return ScaleText::tr("Δu′v′ between each cabinet's white, corrected, and the target's");
    case WallQuantity::Luminance:
        return ScaleText::tr("largest luminance of each cabinet in the target's white");
    case WallQuantity::Headroom:
        return ScaleText::tr("room above the target's white on each cabinet");
    case WallQuantity::Limit:
        break;
    }
    return ScaleText::tr("colour that limits each cabinet");
}

std::optional<double> wallValue(const CabinetAssessment &cabinet, WallQuantity quantity)
{
    switch (quantity) {
    case WallQuantity::UvBefore:
        return cabinet.uvBefore;
    case WallQuantity::UvAfter:
        return cabinet.uvAfter;
    case WallQuantity::Luminance:
        return cabinet.largestWhite;
    case WallQuantity::Headroom:
        return cabinet.headroom ? std::make_optional(*cabinet.headroom - 1.0) : std::nullopt;
    case WallQuantity::Limit:
        break;
    }
    return std::nullopt;
}

QString wallValueText(const CabinetAssessment &cabinet, WallQuantity quantity)
{
    if (quantity == WallQuantity::Limit) {
        return cabinet.limit ? gamutVertexName(*cabinet.limit) : undefinedText();
    }
    const auto value = wallValue(cabinet, quantity);
    return value ? numberText(quantity, *value) : undefinedText();
}

WallQuantity usualQuantity(const WallAssessment *assessment)
{
    for (const WallQuantity quantity : {WallQuantity::Headroom, WallQuantity::Luminance, WallQuantity::UvBefore}) {
        const auto isKnown
            = [quantity](const CabinetAssessment &cabinet) { return wallValue(cabinet, quantity).has_value(); };
        if (assessment && std::any_of(assessment->cabinets.begin(), assessment->cabinets.end(), isKnown)) {
            return quantity;
        }
    }
    return WallQuantity::Headroom;
}

WallScale::WallScale(WallQuantity quantity, const std::vector<CabinetAssessment> &cabinets, LuminanceUnit unit)
    : m_quantity(quantity)
{
    if (quantity == WallQuantity::Limit) {
        for (const Vertex vertex : ceiechart::allGamutVertices) {
            m_steps.append({limits[int(vertex)], gamutVertexName(vertex)});
        }
        return;
    }
    std::vector<double> values;
    values.reserve(cabinets.size());
    for (const CabinetAssessment &cabinet : cabinets) {
        const auto value = wallValue(cabinet, quantity);
        if (value && std::isfinite(*value)) {
            values.push_back(*value);
        }
    }
    if (values.empty()) {
        return;
    }
    // One that is far off must not make all others look alike.
    constexpr double most = 0.95;
    const auto setColors = [this](const QColor *colors) {
        for (int i = 0; i < stepCount; ++i) {
            m_steps.append({colors[i], QString()});
        }
    };
    switch (quantity) {
    case WallQuantity::Headroom: {
        // As many steps below 0 as there is need for, but two at least on either side.
        const double below = std::max(-quantile(values, 1.0 - most), 0.0);
        const double above = std::max(quantile(values, most), 0.0);
        const double part = below + above > 0.0 ? below / (below + above) : 0.0;
        const int worse = int(std::clamp(std::lround(part * stepCount), 2L, long(stepCount) - 2));
        const int better = stepCount - worse;
        m_width = niceWidth(std::max({above / better, below / worse, 0.005}));
        m_first = -m_width * (worse - 1);
        setColors(blues);
        for (int i = 0; i < worse; ++i) {
            m_steps[i].color = oranges[6 - i * 4 / (worse - 1)];
        }
        for (int i = 0; i < better; ++i) {
            m_steps[worse + i].color = blues[std::min(i * 5 / (better - 1), 2 * i)];
        }
        break;
    }
    case WallQuantity::Luminance: {
        const double least = quantile(values, 1.0 - most);
        const double largest = quantile(values, most);
        m_width = niceWidth(std::max((largest - least) / (stepCount - 2), std::max(std::fabs(largest), 1e-6) * 1e-3));
        m_first = std::floor(least / m_width) * m_width + m_width;
        const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
        if (*lowest < m_first - m_width) {
            // A cabinet that is too dark has a step of its own, as far as there are steps that none needs.
            const double used = std::floor((*highest - m_first) / m_width + 1e-9) + 2.0;
            m_first -= std::max(stepCount - used, 0.0) * m_width;
        }
        setColors(blues);
        break;
    }
    case WallQuantity::UvBefore:
    case WallQuantity::UvAfter:
        m_width = niceWidth(std::max(quantile(values, most) / (stepCount - 1), 0.0001));
        m_first = m_width;
        setColors(oranges);
        break;
    case WallQuantity::Limit:
        break;
    }
    for (int i = 1; i < stepCount; ++i) {
        const double lower = m_first + (i - 1) * m_width;
        const bool isZero = std::fabs(lower) < m_width * 1e-6;
        m_steps[i].lower = isZero ? QStringLiteral("0") : numberText(quantity, lower);
    }
    m_unit = quantity == WallQuantity::Luminance ? luminanceUnitText(unit) : QString();
}

QColor WallScale::color(const CabinetAssessment &cabinet) const
{
    if (m_quantity == WallQuantity::Limit) {
        return cabinet.limit ? limits[int(*cabinet.limit)] : QColor();
    }
    const auto value = wallValue(cabinet, m_quantity);
    if (!value || m_steps.isEmpty() || !std::isfinite(*value)) {
        return QColor();
    }
    const double step = std::floor((*value - m_first) / m_width + 1e-9) + 1.0;
    return m_steps.at(int(std::clamp(step, 0.0, double(m_steps.size() - 1)))).color;
}

} // namespace gamutviewer
