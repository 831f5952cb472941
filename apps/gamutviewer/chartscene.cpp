// SPDX-License-Identifier: MIT
#include "chartscene.h"

#include "displaydescription.h"

#include <QColor>

namespace gamutviewer {

namespace {

enum GamutKind { StandardGamut = 0, TargetGamut = 1, OriginalGamut = 2, MeasuredGamut = 3 };

const QColor targetColor(255, 163, 56);
const QColor originalColor(22, 241, 255);
// With a measured gamut beside it the original gives up its colour.
const QColor originalBesideMeasuredColor(13, 189, 73);
const QColor measuredColor(27, 241, 255);
// The chart has no kind for what a display declares: it is drawn like a measured gamut in a colour of its own.
const QColor declaredColor(196, 146, 255);

constexpr int outlineWidth = 2;

struct StandardStyle {
    int outlineAlpha;
    double fillOpacity;
};

StandardStyle standardStyle(const QString &name)
{
    if (name == QLatin1String("Rec.709")) {
        return {17, 0.07};
    }
    if (name == QLatin1String("Rec.2020")) {
        return {51, 0.1};
    }
    return {25, 0.05}; // DCI-P3(D65), and a gamut of the file that serves as a standard
}

QPointF chromaticity(const Model::Target &target)
{
    return {target.x, target.y};
}

ColorTriangleObject gamutTriangle(const Model::ColorGamut &gamut, GamutKind kind, const QColor &color)
{
    const Model::Targets &targets = gamut.getTargets();
    ColorTriangleObject object;
    TrianglePoint &triangle = object.trianglePoint();
    triangle.setRedPos(chromaticity(targets.red));
    triangle.setGreenPos(chromaticity(targets.green));
    triangle.setBluePos(chromaticity(targets.blue));
    triangle.setWhitePos(chromaticity(targets.white));
    triangle.setRedLum(targets.red.Y);
    triangle.setGreenLum(targets.green.Y);
    triangle.setBlueLum(targets.blue.Y);
    triangle.setWhiteLum(targets.white.Y);
    object.setForeColor(color);
    object.setTrigleLineWidth(outlineWidth);
    object.setType(kind);
    object.setGamutName(gamut.colorGamutName());
    return object;
}

QList<QPointF> positions(const QVector<NamedPoint> &points)
{
    QList<QPointF> xy;
    for (const NamedPoint &point : points) {
        xy.append(point.xy);
    }
    return xy;
}

} // namespace

ChartScene chartScene(const DisplayDescription &description)
{
    ChartScene scene;
    const auto original = description.gamut(description.original);
    const auto measured = description.gamut(description.measured);
    const auto declared = description.gamut(description.declared);
    const auto target = description.gamut(description.target);
    if (original) {
        scene.triangles.append(
            gamutTriangle(*original, OriginalGamut, measured ? originalBesideMeasuredColor : originalColor));
        scene.original = scene.triangles.last().trianglePoint();
    }
    if (measured) {
        scene.triangles.append(gamutTriangle(*measured, MeasuredGamut, measuredColor));
    }
    if (declared) {
        scene.triangles.append(gamutTriangle(*declared, MeasuredGamut, declaredColor));
    }
    if (target) {
        scene.triangles.append(gamutTriangle(*target, TargetGamut, targetColor));
        scene.target = scene.triangles.last().trianglePoint();
    }

    for (const QString &name : description.standards) {
        if (const auto standard = description.gamut(name)) {
            const StandardStyle style = standardStyle(name);
            scene.standards.append(gamutTriangle(*standard, StandardGamut, QColor(255, 255, 255, style.outlineAlpha)));
            scene.standards.last().setOpacity(style.fillOpacity);
        }
    }
    scene.colorTemperaturePoints = positions(description.colorTemperaturePoints);
    scene.measurePoints = positions(description.measurePoints);
    scene.cmyPoints = positions(description.cmyPoints);
    return scene;
}

} // namespace gamutviewer
