// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_APPS_EXPECTEDCHART_H
#define CEIECHART_TESTS_APPS_EXPECTEDCHART_H

#include <ceiechart/render/drawceipicture.h>
#include <gamutmodel/colorgamut.h>

#include <QImage>

#include <memory>

/*! \brief The chart of the LED wall sample, as a host that knows it by heart would have the library draw it. */
namespace expectedchart {

inline ColorTriangleObject triangle(const Model::Targets &targets, int type, const QColor &color, double opacity = 1.0)
{
    TrianglePoint points;
    points.setRedPos({targets.red.x, targets.red.y});
    points.setGreenPos({targets.green.x, targets.green.y});
    points.setBluePos({targets.blue.x, targets.blue.y});
    points.setWhitePos({targets.white.x, targets.white.y});
    ColorTriangleObject object;
    object.setTrianglePoint(points);
    object.setForeColor(color);
    object.setTrigleLineWidth(2);
    object.setType(type);
    object.setOpacity(opacity);
    return object;
}

inline Model::Targets ledWall()
{
    return {Model::Target::fromYxy(240, 0.7, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
        Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)};
}

inline Model::Targets warmLedWall()
{
    return {Model::Target::fromYxy(196.8, 0.7031, 0.296), Model::Target::fromYxy(608.6, 0.1954, 0.7142),
        Model::Target::fromYxy(123.5, 0.1304, 0.0798), Model::Target::fromYxy(928.9, 0.2727, 0.3031)};
}

inline QImage draw(const QSize &size)
{
    NewCEIE::DrawCEIPicture renderer(nullptr);
    // A whole drawing of the same size, so that the mapping is that of the size.
    std::unique_ptr<QImage> picture(renderer.drawCEIPicture(
        size.width(), size.height(), true, true, true, {{0.4234, 0.399}, {0.3451, 0.3516}, {0.2849, 0.2932}}));

    const auto square = [&renderer](double x, double y) {
        const QPointF pixel = renderer.CoordinateTransformation({x, y});
        return QRectF(pixel.x() - 8, pixel.y() - 8, 16, 16);
    };
    renderer.setPointData({square(0.68, 0.32), square(0.265, 0.69), square(0.15, 0.06), square(0.3127, 0.329)});
    renderer.setCMYPointData({square(0.1996, 0.3318), square(0.3362, 0.1513), square(0.4378, 0.5359)});

    const auto pixels = [&renderer](const Model::Targets &gamut) {
        return QPolygonF({renderer.CoordinateTransformation({gamut.red.x, gamut.red.y}),
            renderer.CoordinateTransformation({gamut.green.x, gamut.green.y}),
            renderer.CoordinateTransformation({gamut.blue.x, gamut.blue.y})});
    };
    const Model::Targets target = Model::dciP3D65().getTargets();
    picture.reset(renderer.drawCEIPicture(size.width(), size.height(), true,
        {triangle(ledWall(), 2, QColor(13, 189, 73, 255)), triangle(warmLedWall(), 3, QColor(27, 241, 255, 255)),
            triangle(target, 1, QColor(255, 163, 56, 255))},
        {triangle(Model::rec709().getTargets(), 0, QColor(255, 255, 255, 17), 0.07),
            triangle(Model::rec2020().getTargets(), 0, QColor(255, 255, 255, 51), 0.1),
            triangle(target, 0, QColor(255, 255, 255, 25), 0.05)},
        pixels(target).intersected(pixels(ledWall())), false, QString()));
    return *picture;
}

} // namespace expectedchart

#endif
