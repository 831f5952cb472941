// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "gamutfromprimaries_p.h"

#include <gamutfiles/displaydescription.h>

#include <colortemperature/colortemperature.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/plane_p.h>
#include <gamutmodel/publishedgamuts.h>
#include <gamutmodel/spectrallocus.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace gamutfiles {

namespace {

using GamutOutcome = Outcome<Model::ColorGamut>;

struct PrimariesText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Primaries)
};

//! Moves \a xy by no more than \a rounding may have moved it.
QPointF withoutRounding(QPointF xy, double rounding)
{
    if (xy.x() < 0.0 && xy.x() > -rounding) {
        xy.setX(0.0);
    }
    const double sum = xy.x() + xy.y();
    if (sum > 1.0 && sum < 1.0 + rounding) {
        xy.setX(1.0 - xy.y());
    }
    return xy;
}

//! The spectral locus, counter-clockwise from red, at 1 nm, which is straight to 1e-4. The line of purples closes it.
std::vector<Model::DiagramPoint> locus()
{
    std::vector<Model::DiagramPoint> points;
    for (double wavelength = Model::longestWavelength; wavelength >= Model::shortestWavelength; wavelength -= 1.0) {
        points.push_back(Model::spectralChromaticity(wavelength));
    }
    return points;
}

//! How far \a xy is from the colours of light, in x, y; 0 for these.
double distanceFromLight(const Model::DiagramPoint &xy)
{
    static const std::vector<Model::DiagramPoint> points = locus();
    double distance = std::numeric_limits<double>::infinity();
    bool isInside = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Model::DiagramPoint &from = points[i];
        const Model::DiagramPoint &to = points[(i + 1) % points.size()];
        const Model::DiagramPoint side = to - from;
        const Model::DiagramPoint offset = xy - from;
        // By crossings of a ray to the right: the tabulated locus is not quite convex at its red end.
        if ((from.y > xy.y) != (to.y > xy.y) && offset.x < side.x * offset.y / side.y) {
            isInside = !isInside;
        }
        distance = std::min(distance, Model::length(xy - Model::nearestOnPiece(xy, from, to)));
    }
    return isInside ? 0.0 : distance;
}

} // namespace

bool isPrimary(const QPointF &xy, PrimariesOf kind)
{
    const double x = xy.x();
    const double y = xy.y();
    if (kind == PrimariesOf::Display) {
        return x >= 0.0 && y > 0.0 && x + y <= 1.0;
    }
    constexpr double least = -1.0;
    constexpr double greatest = 2.0;
    return x >= least && x <= greatest && y >= least && y <= greatest && y != 0.0
        && Model::uniformDenominator(x, y) > 0.0;
}

QVector<Problem> warningsOfTheLocus(const Model::Targets &gamut)
{
    constexpr double noticeable = 0.001; // ten bits have steps of this size
    const struct {
        const Model::Target &color;
        QString name;
    } primaries[] = {{gamut.red, PrimariesText::tr("the red primary")},
        {gamut.green, PrimariesText::tr("the green primary")}, {gamut.blue, PrimariesText::tr("the blue primary")}};
    QVector<Problem> warnings;
    for (const auto &primary : primaries) {
        const double distance = distanceFromLight({primary.color.x, primary.color.y});
        if (distance > noticeable) {
            warnings.append(
                {PrimariesText::tr("%1 at %2, %3 lies outside of the spectral locus by %4 in x, y: no light "
                                   "has this colour")
                        .arg(primary.name)
                        .arg(primary.color.x, 0, 'f', 4)
                        .arg(primary.color.y, 0, 'f', 4)
                        .arg(distance, 0, 'f', 4),
                    {}, 0, 0});
        }
    }
    return warnings;
}

QVector<Problem> warningsOfTheTriangle(const Model::Targets &gamut)
{
    if (!Model::spanTriangle(gamut)) {
        return {};
    }
    const auto area = [](const Model::Target &a, const Model::Target &b, const Model::Target &c) {
        return Model::turn({a.x, a.y}, {b.x, b.y}, {c.x, c.y});
    };
    const double whole = area(gamut.red, gamut.green, gamut.blue);
    QVector<Problem> warnings;
    if (whole < 0.0) {
        warnings.append(
            {PrimariesText::tr("red, green and blue lie clockwise in x, y: two of them may be exchanged"), {}, 0, 0});
    }
    const double red = area(gamut.white, gamut.green, gamut.blue) / whole;
    const double green = area(gamut.red, gamut.white, gamut.blue) / whole;
    if (red < 0.0 || green < 0.0 || 1.0 - red - green < 0.0) {
        warnings.append({PrimariesText::tr("the white lies outside of the triangle of the primaries"), {}, 0, 0});
    }
    return warnings;
}

QVector<Problem> warningsOfTheWhite(const Model::Targets &gamut)
{
    constexpr double rounding = 1.001;
    const double brightest = std::max({gamut.red.Y, gamut.green.Y, gamut.blue.Y});
    return gamut.white.Y > 0.0 && brightest > gamut.white.Y * rounding
        ? QVector<Problem>{{PrimariesText::tr("the white is darker than one of the primaries"), {}, 0, 0}}
        : QVector<Problem>();
}

QString standardEqualTo(const Model::Targets &gamut, double tolerance)
{
    QStringList names;
    for (const Model::PublishedGamut &published : Model::publishedGamutsEqualTo(gamut, tolerance)) {
        names += nameOf(published.gamut);
    }
    const QString srgb = QStringLiteral("sRGB");
    return names.contains(srgb) ? srgb : names.value(0);
}

QString noTriangleText()
{
    return PrimariesText::tr("the primaries do not form a triangle");
}

Outcome<Model::ColorGamut> gamutFromPrimaries(
    const QString &name, Primaries primaries, double whiteLuminance, PrimariesOf kind, double rounding)
{
    const struct {
        QPointF &xy;
        QString name;
        PrimariesOf kind;
    } colors[] = {{primaries.red, PrimariesText::tr("the red primary"), kind},
        {primaries.green, PrimariesText::tr("the green primary"), kind},
        {primaries.blue, PrimariesText::tr("the blue primary"), kind},
        {primaries.white, PrimariesText::tr("the white point"), PrimariesOf::Display}};
    for (const auto &color : colors) {
        const QPointF given = color.xy;
        if (!std::isfinite(given.x()) || !std::isfinite(given.y())) {
            return GamutOutcome::failure(PrimariesText::tr("%1 has no chromaticity").arg(color.name));
        }
        color.xy = withoutRounding(given, rounding);
        if (!isPrimary(color.xy, color.kind)) {
            return GamutOutcome::failure(PrimariesText::tr("%1 is not a valid chromaticity: x %2, y %3")
                                             .arg(color.name)
                                             .arg(given.x())
                                             .arg(given.y()));
        }
    }
    const auto target
        = [](double luminance, const QPointF &xy) { return Model::Target::fromYxy(luminance, xy.x(), xy.y()); };
    if (!Model::spanTriangle(
            {target(0.0, primaries.red), target(0.0, primaries.green), target(0.0, primaries.blue), {}})) {
        return GamutOutcome::failure(noTriangleText());
    }
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    RGBCxCyFromWhiteCxCy(&red, primaries.red.x(), primaries.red.y(), &green, primaries.green.x(), primaries.green.y(),
        &blue, primaries.blue.x(), primaries.blue.y(), whiteLuminance, primaries.white.x(), primaries.white.y());
    // A primary of negative y has a negative luminance where its light adds.
    const auto adds
        = [](double luminance, const QPointF &xy) { return std::isfinite(luminance) && luminance / xy.y() >= 0.0; };
    if (!adds(red, primaries.red) || !adds(green, primaries.green) || !adds(blue, primaries.blue)) {
        return GamutOutcome::failure(PrimariesText::tr("the white point lies outside the triangle of the primaries"));
    }
    return Model::ColorGamut(name.toStdString(),
        {target(red, primaries.red), target(green, primaries.green), target(blue, primaries.blue),
            target(whiteLuminance, primaries.white)});
}

} // namespace gamutfiles
