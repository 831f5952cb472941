// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/chartstyle.h>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr ChromaRange xyRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr ChromaRange uvRange{0.0F, 0.65F, 0.0F, 0.68F};
constexpr int numberHeightPercent = 2; //!< of the picture's height, in points

QFont axesFont(int pixelSize)
{
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setPixelSize(pixelSize);
    return font;
}

} // namespace

const ChartStyle &chartStyle(ChartKind kind)
{
    static const QColor nearBlack(23, 23, 26);
    static const QColor darkGrey(0x32, 0x32, 0x38);
    static const ChartStyle currentXy{Model::Diagram::Cie1931, xyRange, 5, nearBlack, nearBlack, Qt::DashLine, "", ""};
    static const ChartStyle legacyXy{
        Model::Diagram::Cie1931, xyRange, 5, QColor(0, 0, 0), darkGrey, Qt::SolidLine, "X", "Y"};
    static const ChartStyle legacyUv{Model::Diagram::Cie1976, uvRange, 15, darkGrey, darkGrey, Qt::DashLine, "u", "v"};
    switch (kind) {
    case ChartKind::LegacyXy:
        return legacyXy;
    case ChartKind::LegacyUv:
        return legacyUv;
    case ChartKind::CurrentXy:
        break;
    }
    return currentXy;
}

QColor chartLineColor()
{
    return QColor(255, 255, 255, 255);
}

QFont chartNumberFont(ChartKind kind, int pictureHeight)
{
    switch (kind) {
    case ChartKind::LegacyXy:
        return QFont(QStringLiteral("Arial"), std::max(truncated(mulDiv(pictureHeight, numberHeightPercent, 100)), 1));
    case ChartKind::LegacyUv: {
        QFont font = axesFont(12);
        font.setWeight(QFont::DemiBold);
        return font;
    }
    case ChartKind::CurrentXy:
        break;
    }
    return axesFont(16);
}

DiagramGeometry chartGeometry(ChartKind kind, int width, int height)
{
    const ChartStyle &style = chartStyle(kind);
    DiagramGeometry geometry;
    geometry.setPicture(width, height, style.marginPercent, style.range);
    return geometry;
}

} // namespace ceiechart
