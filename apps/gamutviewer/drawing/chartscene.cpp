// SPDX-License-Identifier: MIT
#include "drawing/chartscene.h"

#include "drawing/gamutcolors.h"

#include <QColor>

namespace gamutviewer {

namespace {

enum GamutKind { StandardGamut = 0, TargetGamut = 1, OriginalGamut = 2, MeasuredGamut = 3 };

constexpr int outlineWidth = 2;

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

GamutKind kindOf(GamutPart::Role role)
{
    switch (role) {
    case GamutPart::Role::Target:
        return TargetGamut;
    case GamutPart::Role::Original:
        return OriginalGamut;
    case GamutPart::Role::Measured:
    case GamutPart::Role::Declared:
        break;
    }
    // The chart has no kind for what a display declares: it is drawn like a measured gamut in a colour of its own.
    return MeasuredGamut;
}

} // namespace

ChartScene chartScene(const DisplayDescription &description, Layers shown, Model::Diagram diagram)
{
    ChartScene scene;
    scene.diagram = diagram;
    scene.axes = shown.testFlag(Layer::Axes);
    scene.wavelengths = shown.testFlag(Layer::Wavelengths);
    scene.planckianLocus = shown.testFlag(Layer::PlanckianLocus);
    const auto measured = description.gamut(description.measured);
    for (const GamutPart::Role role :
        {GamutPart::Role::Original, GamutPart::Role::Measured, GamutPart::Role::Declared, GamutPart::Role::Target}) {
        for (const GamutPart &part : gamutParts(description)) {
            if (part.role != role) {
                continue;
            }
            const ColorTriangleObject triangle
                = gamutTriangle(part.gamut, kindOf(role), chartColor(role, measured.has_value()));
            if (shown.testFlag(layerOf(role))) {
                scene.triangles.append(triangle);
            }
            if (role == GamutPart::Role::Original && shown.testFlag(Layer::CommonArea)) {
                scene.original = triangle.trianglePoint();
            }
            if (role == GamutPart::Role::Target && shown.testFlag(Layer::CommonArea)) {
                scene.target = triangle.trianglePoint();
            }
        }
    }
    if (shown.testFlag(Layer::Standards)) {
        for (const QString &name : description.standards) {
            if (const auto standard = description.gamut(name)) {
                const StandardStyle style = standardStyle(name);
                scene.standards.append(gamutTriangle(*standard, StandardGamut, style.outline));
                scene.standards.last().setOpacity(style.fillOpacity);
            }
        }
    }
    if (shown.testFlag(Layer::ColorTemperaturePoints)) {
        scene.colorTemperaturePoints = positions(description.colorTemperaturePoints).toList();
    }
    if (shown.testFlag(Layer::MeasurePoints)) {
        scene.measurePoints = measureMarks(description.measurePoints);
    }
    if (shown.testFlag(Layer::CmyPoints)) {
        scene.cmyPoints = positions(description.cmyPoints).toList();
    }
    return scene;
}

} // namespace gamutviewer
