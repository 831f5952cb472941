// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/gamutrecords.h>

namespace ceiechart {

namespace {

QPointF chromaticity(const Model::Target &target)
{
    return QPointF(target.x, target.y);
}

Model::Target target(double luminance, const QPointF &xy)
{
    return Model::Target::fromYxy(luminance, xy.x(), xy.y());
}

/*! \brief The triangle of a record with the members red, green, blue and white. */
template <class Record>
TrianglePoint triangleOf(const Record &gamut)
{
    TrianglePoint triangle;
    triangle.setRedPos(chromaticity(gamut.red));
    triangle.setGreenPos(chromaticity(gamut.green));
    triangle.setBluePos(chromaticity(gamut.blue));
    triangle.setWhitePos(chromaticity(gamut.white));
    triangle.setRedLum(gamut.red.Y);
    triangle.setGreenLum(gamut.green.Y);
    triangle.setBlueLum(gamut.blue.Y);
    triangle.setWhiteLum(gamut.white.Y);
    return triangle;
}

} // namespace

TrianglePoint gamutTriangle(const Model::Targets &targets)
{
    return triangleOf(targets);
}

TrianglePoint gamutTriangle(const Model::ColorGamutInfo &gamut)
{
    return triangleOf(gamut);
}

ColorTriangleObject gamutObject(const Model::ColorGamut &gamut, int type)
{
    ColorTriangleObject object;
    object.setTrianglePoint(gamutTriangle(gamut.getTargets()));
    object.setType(type);
    object.setGamutName(gamut.colorGamutName());
    return object;
}

Model::Targets gamutTargets(const TrianglePoint &triangle)
{
    return {target(triangle.redLum(), triangle.redPos()), target(triangle.greenLum(), triangle.greenPos()),
        target(triangle.blueLum(), triangle.bluePos()), target(triangle.whiteLum(), triangle.whitePos())};
}

Model::ColorGamut gamutRecord(const ColorTriangleObject &gamut)
{
    ColorTriangleObject copy(gamut);
    return Model::ColorGamut(copy.gamutName(), gamutTargets(gamut.trianglePoint()));
}

Model::ColorGamutInfo legacyGamutRecord(const ColorTriangleObject &gamut)
{
    const Model::Targets targets = gamutTargets(gamut.trianglePoint());
    return {targets.red, targets.green, targets.blue, targets.white};
}

} // namespace ceiechart
