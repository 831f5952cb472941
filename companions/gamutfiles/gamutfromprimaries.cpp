// SPDX-License-Identifier: MIT
#include "gamutfromprimaries_p.h"

#include <colortemperature/colortemperature.h>
#include <gamutmodel/gamutcoverage.h>

#include <QCoreApplication>

#include <cmath>

namespace gamutfiles {

namespace {

constexpr double roundingTolerance = 0.0005;

using Failure = Outcome<Model::ColorGamut>;

struct PrimariesText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Primaries)
};

//! Moves \a xy by no more than rounding may have moved it; returns whether it is a chromaticity then.
bool makeChromaticity(QPointF &xy)
{
    if (xy.x() < 0.0 && xy.x() > -roundingTolerance) {
        xy.setX(0.0);
    }
    const double sum = xy.x() + xy.y();
    if (sum > 1.0 && sum < 1.0 + roundingTolerance) {
        xy.setX(1.0 - xy.y());
    }
    return xy.x() >= 0.0 && xy.y() > 0.0 && xy.x() + xy.y() <= 1.0;
}

} // namespace

QString noTriangleText()
{
    return PrimariesText::tr("the primaries do not form a triangle");
}

Outcome<Model::ColorGamut> gamutFromPrimaries(const QString &name, Primaries primaries, double whiteLuminance)
{
    const struct {
        QPointF &xy;
        QString name;
    } colors[] = {{primaries.red, PrimariesText::tr("the red primary")},
        {primaries.green, PrimariesText::tr("the green primary")},
        {primaries.blue, PrimariesText::tr("the blue primary")},
        {primaries.white, PrimariesText::tr("the white point")}};
    for (const auto &color : colors) {
        const QPointF given = color.xy;
        if (!makeChromaticity(color.xy)) {
            return Failure::failure(PrimariesText::tr("%1 is not a valid chromaticity: x %2, y %3")
                                        .arg(color.name)
                                        .arg(given.x())
                                        .arg(given.y()));
        }
    }
    const auto target
        = [](double luminance, const QPointF &xy) { return Model::Target::fromYxy(luminance, xy.x(), xy.y()); };
    if (!Model::spanTriangle(
            {target(0.0, primaries.red), target(0.0, primaries.green), target(0.0, primaries.blue), {}})) {
        return Failure::failure(noTriangleText());
    }
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    RGBCxCyFromWhiteCxCy(&red, primaries.red.x(), primaries.red.y(), &green, primaries.green.x(), primaries.green.y(),
        &blue, primaries.blue.x(), primaries.blue.y(), whiteLuminance, primaries.white.x(), primaries.white.y());
    if (!(red >= 0.0 && green >= 0.0 && blue >= 0.0 && std::isfinite(red + green + blue))) {
        return Failure::failure(PrimariesText::tr("the white point lies outside the triangle of the primaries"));
    }
    return Model::ColorGamut(name.toStdString(),
        {target(red, primaries.red), target(green, primaries.green), target(blue, primaries.blue),
            target(whiteLuminance, primaries.white)});
}

} // namespace gamutfiles
