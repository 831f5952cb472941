// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_BENCHMARKS_SAMPLEGAMUTS_H
#define CEIECHART_BENCHMARKS_SAMPLEGAMUTS_H

#include <ceiechart/diagram/diagramgeometry.h>
#include <ceiechart/model/colortriangleobject.h>
#include <gamutmodel/colorgamut.h>
#include <reference/plainrenderer.h>

#include <QPolygonF>
#include <QRectF>

inline QRectF plotOf(const QSize &size)
{
    return QRectF(reference::mulDiv(size.width(), 5, 100), reference::mulDiv(size.height(), 5, 100),
        reference::mulDiv(size.width(), 95, 100), reference::mulDiv(size.height(), 95, 100));
}

inline const QRectF chroma(0.0, 0.0, double(0.84F), double(0.94F));

inline ColorTriangleObject gamut(const Model::ColorGamut &record, int type, const QColor &color, double opacity = 1.0)
{
    const Model::Targets &t = record.getTargets();
    TrianglePoint points;
    points.setRedPos({t.red.x, t.red.y});
    points.setGreenPos({t.green.x, t.green.y});
    points.setBluePos({t.blue.x, t.blue.y});
    points.setWhitePos({t.white.x, t.white.y});
    ColorTriangleObject object;
    object.setTrianglePoint(points);
    object.setType(type);
    object.setForeColor(color);
    object.setTrigleLineWidth(2);
    object.setOpacity(opacity);
    return object;
}

/*! \brief A target DCI-P3(D65) inside the gamut of an LED wall, with the three standards. */
struct Gamuts {
    Model::ColorGamut wall{"wall",
        {Model::Target::fromYxy(210, 0.692, 0.306), Model::Target::fromYxy(620, 0.172, 0.742),
            Model::Target::fromYxy(70, 0.131, 0.056), Model::Target::fromYxy(900, 0.3127, 0.329)}};
    QList<ColorTriangleObject> triangles{
        gamut(wall, 2, QColor(22, 241, 255)), gamut(Model::dciP3D65(), 1, QColor(255, 163, 56))};
    QList<ColorTriangleObject> standards{gamut(Model::rec709(), 0, QColor(255, 255, 255, 17), 0.07),
        gamut(Model::rec2020(), 0, QColor(255, 255, 255, 51), 0.1),
        gamut(Model::dciP3D65(), 0, QColor(255, 255, 255, 25), 0.05)};

    QPolygonF clip(const QSize &size) const
    {
        ceiechart::DiagramGeometry geometry;
        geometry.set(plotOf(size), chroma);
        const TrianglePoint &target = qAsConst(triangles).last().trianglePoint();
        return QPolygonF({geometry.toPixel(target.redPos()), geometry.toPixel(target.greenPos()),
            geometry.toPixel(target.bluePos())});
    }
};

#endif // CEIECHART_BENCHMARKS_SAMPLEGAMUTS_H
