// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/gamutstyle.h>

#include <QCoreApplication>

namespace ceiechart {

namespace {

constexpr int outlineWidth = 2;
const QRgb targetOrange = qRgb(255, 163, 56);

} // namespace

QString gamutRoleName(GamutRole role)
{
    switch (role) {
    case GamutRole::Standard:
        return QCoreApplication::translate("ceiechart::GamutRole", "Standard");
    case GamutRole::Target:
        return QCoreApplication::translate("ceiechart::GamutRole", "Target");
    case GamutRole::Original:
        return QCoreApplication::translate("ceiechart::GamutRole", "Original");
    case GamutRole::Measured:
        return QCoreApplication::translate("ceiechart::GamutRole", "Measured");
    case GamutRole::Declared:
        return QCoreApplication::translate("ceiechart::GamutRole", "Declared");
    }
    return QString();
}

GamutStyle gamutStyle(GamutRole role)
{
    // Of middle luminance: a contrast of 3:1 or more with light and with dark ground alike.
    switch (role) {
    case GamutRole::Standard:
        return {QColor(116, 120, 128), 1, 0.0, Qt::SolidLine};
    case GamutRole::Target:
        return {QColor(224, 84, 14), outlineWidth, 0.0, Qt::SolidLine};
    case GamutRole::Original:
        return {QColor(40, 118, 222), outlineWidth, 0.0, Qt::DashLine};
    case GamutRole::Measured:
        return {QColor(14, 138, 84), outlineWidth, 0.0, Qt::DashDotLine};
    case GamutRole::Declared:
        return {QColor(154, 88, 216), outlineWidth, 0.0, Qt::DotLine};
    }
    return {QColor(116, 120, 128), 1, 0.0, Qt::SolidLine};
}

GamutStyle currentChartStyle(GamutKind kind, bool besideMeasured)
{
    switch (kind) {
    case OriginalGamut:
        return {
            besideMeasured ? QColor(13, 189, 73, 255) : QColor(22, 241, 255, 255), outlineWidth, 1.0, Qt::SolidLine};
    case MeasuredGamut:
        return {QColor(27, 241, 255, 255), outlineWidth, 1.0, Qt::SolidLine};
    case StandardGamut:
    case TargetGamut:
        break;
    }
    return {QColor(targetOrange), outlineWidth, 1.0, Qt::SolidLine};
}

std::optional<GamutStyle> currentChartStandardStyle(const std::string &name)
{
    if (name == "Rec.709") {
        return GamutStyle{QColor(255, 255, 255, 17), outlineWidth, 0.07, Qt::SolidLine};
    }
    if (name == "Rec.2020") {
        return GamutStyle{QColor(255, 255, 255, 51), outlineWidth, 0.1, Qt::SolidLine};
    }
    if (name == "DCI-P3(D65)") {
        return GamutStyle{QColor(255, 255, 255, 25), outlineWidth, 0.05, Qt::SolidLine};
    }
    return std::nullopt;
}

GamutStyle legacyChartStyle(GamutKind kind)
{
    // These are the colours of the swatches in the legend.
    if (kind == OriginalGamut) {
        return {QColor(255, 255, 255, 255), 2, 1.0, Qt::SolidLine};
    }
    return {QColor(0, 0, 0, 255), 1, 1.0, Qt::SolidLine};
}

} // namespace ceiechart
