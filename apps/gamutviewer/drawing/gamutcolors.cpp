// SPDX-License-Identifier: MIT
#include "drawing/gamutcolors.h"

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/gamutstyle.h>

namespace gamutviewer {

namespace {

ceiechart::GamutRole gamutRole(GamutPart::Role role)
{
    switch (role) {
    case GamutPart::Role::Declared:
        return ceiechart::GamutRole::Declared;
    case GamutPart::Role::Original:
        return ceiechart::GamutRole::Original;
    case GamutPart::Role::Measured:
        return ceiechart::GamutRole::Measured;
    case GamutPart::Role::Target:
        break;
    }
    return ceiechart::GamutRole::Target;
}

} // namespace

QColor chartColor(GamutPart::Role role, bool besideMeasured)
{
    switch (role) {
    case GamutPart::Role::Declared:
        break;
    case GamutPart::Role::Original:
        return ceiechart::currentChartStyle(ceiechart::OriginalGamut, besideMeasured).color;
    case GamutPart::Role::Measured:
        return ceiechart::currentChartStyle(ceiechart::MeasuredGamut, besideMeasured).color;
    case GamutPart::Role::Target:
        return ceiechart::currentChartStyle(ceiechart::TargetGamut, besideMeasured).color;
    }
    // The library's chart knows no declared gamut.
    return ceiechart::gamutStyle(ceiechart::GamutRole::Declared).color;
}

Qt::PenStyle lineStyle(GamutPart::Role role)
{
    return ceiechart::gamutStyle(gamutRole(role)).line;
}

QColor chartGround(Model::Diagram diagram)
{
    return ceiechart::chartStyle(
        diagram == Model::Diagram::Cie1931 ? ceiechart::ChartKind::CurrentXy : ceiechart::ChartKind::LegacyUv)
        .ground;
}

QColor StandardStyle::fill() const
{
    QColor color = outline;
    color.setAlpha(int(fillOpacity * 256.0));
    return color;
}

StandardStyle standardStyle(const QString &name)
{
    // A gamut of the file that serves as a standard looks like the last of the published ones.
    static const char *const fallback = "DCI-P3(D65)";
    const auto known = ceiechart::currentChartStandardStyle(name.toStdString());
    const ceiechart::GamutStyle style = known ? *known : *ceiechart::currentChartStandardStyle(fallback);
    return {style.color, style.opacity};
}

} // namespace gamutviewer
