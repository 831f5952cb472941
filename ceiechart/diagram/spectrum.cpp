// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/spectrum_p.h>
#include <ceiechart/diagram/whitepoint.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace ceiechart {

namespace {

constexpr std::array allDiagrams{Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};

int indexOf(Model::Diagram diagram)
{
    const auto found = std::find(allDiagrams.begin(), allDiagrams.end(), diagram);
    return found != allDiagrams.end() ? int(found - allDiagrams.begin()) : 0;
}

//! One value for each diagram, made once.
template <typename Make>
auto forEachDiagram(Make make)
{
    std::array<decltype(make(allDiagrams[0])), allDiagrams.size()> values;
    std::transform(allDiagrams.begin(), allDiagrams.end(), values.begin(), make);
    return values;
}

QPointF inDiagram(Model::Diagram diagram, const QPointF &xy)
{
    const Model::DiagramPoint point = Model::toDiagram(diagram, {xy.x(), xy.y()});
    return QPointF(point.x, point.y);
}

QPolygonF spectrum(Model::Diagram diagram, int perNanometre)
{
    QPolygonF points;
    const int count = int((longestWavelength - shortestWavelength) * perNanometre);
    for (int i = 0; i <= count; ++i) {
        points.append(inDiagram(diagram, spectralChromaticity(shortestWavelength + double(i) / perNanometre)));
    }
    return points;
}

//! CIE 1960 u, v from the hottest to the coolest.
const QPolygonF &planckianUv()
{
    static const QPolygonF locus = [] {
        QPolygonF points;
        for (const QPointF &xy : planckianLocusXy()) {
            points.prepend(inDiagram(Model::Diagram::Cie1960, xy));
        }
        return points;
    }();
    return locus;
}

constexpr double firstMired = 11.0; // of planckianLocusXy()

} // namespace

const QPolygonF &spectralLocusIn(Model::Diagram diagram, int perNanometre)
{
    static const auto coarse = forEachDiagram([](Model::Diagram which) { return spectrum(which, 1); });
    if (perNanometre == 1) {
        return coarse[size_t(indexOf(diagram))];
    }
    static const auto fine = forEachDiagram([](Model::Diagram which) { return spectrum(which, 10); });
    return fine[size_t(indexOf(diagram))];
}

const QRectF &spectrumBounds(Model::Diagram diagram)
{
    static const auto bounds
        = forEachDiagram([](Model::Diagram which) { return spectralLocusIn(which, 1).boundingRect(); });
    return bounds[size_t(indexOf(diagram))];
}

LocusPoint planckianPoint(double mired)
{
    const QPolygonF &locus = planckianUv();
    const double place = mired - firstMired;
    const int node = std::clamp(int(std::floor(place)), 1, int(locus.size()) - 3);
    const double s = place - node;
    // Lagrange's cubic through the four nodes round it, and its derivative.
    const double weights[] = {-s * (s - 1.0) * (s - 2.0) / 6.0, (s + 1.0) * (s - 1.0) * (s - 2.0) / 2.0,
        -(s + 1.0) * s * (s - 2.0) / 2.0, (s + 1.0) * s * (s - 1.0) / 6.0};
    const double slopes[] = {-(3.0 * s * s - 6.0 * s + 2.0) / 6.0, (3.0 * s * s - 4.0 * s - 1.0) / 2.0,
        -(3.0 * s * s - 2.0 * s - 2.0) / 2.0, (3.0 * s * s - 1.0) / 6.0};
    QPointF at;
    QPointF way;
    for (int i = 0; i < 4; ++i) {
        at += locus.at(node - 1 + i) * weights[i];
        way += locus.at(node - 1 + i) * slopes[i];
    }
    // Towards falling temperature u grows: to the left of it is greater v.
    return {at, QPointF(-way.y(), way.x()) / std::hypot(way.x(), way.y())};
}

const QPolygonF &planckianLocusIn(Model::Diagram diagram)
{
    static const auto loci = forEachDiagram([](Model::Diagram which) {
        QPolygonF points;
        for (const QPointF &uv : planckianUv()) {
            points.append(fromUv1960(which, uv));
        }
        return points;
    });
    return loci[size_t(indexOf(diagram))];
}

QPointF fromUv1960(Model::Diagram diagram, const QPointF &uv)
{
    const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1960, {uv.x(), uv.y()});
    return inDiagram(diagram, QPointF(xy.x, xy.y));
}

} // namespace ceiechart
