// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/librarychart.h"

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/render/drawceipicture.h>

#include <algorithm>
#include <memory>

namespace gamutviewer {

namespace {

using ceiechart::DiagramContent;
using ceiechart::DiagramGamut;
using ceiechart::DiagramMark;
using ceiechart::GamutRole;

constexpr double markSize = 16.0; // pixels, of the discs of measure and CMY points
const QRectF nowhere(-1000.0, -1000.0, 1.0, 1.0); // outside of every picture

QPointF chromaticity(const Model::Target &target)
{
    return {target.x, target.y};
}

ColorTriangleObject triangle(
    const Model::ColorGamut &gamut, ceiechart::GamutKind kind, const ceiechart::GamutStyle &style)
{
    const Model::Targets &targets = gamut.getTargets();
    ColorTriangleObject object;
    TrianglePoint &points = object.trianglePoint();
    points.setRedPos(chromaticity(targets.red));
    points.setGreenPos(chromaticity(targets.green));
    points.setBluePos(chromaticity(targets.blue));
    points.setWhitePos(chromaticity(targets.white));
    object.setForeColor(style.color);
    object.setTrigleLineWidth(style.width);
    object.setOpacity(style.opacity);
    object.setType(kind);
    return object;
}

ceiechart::GamutKind kindOf(GamutRole role)
{
    switch (role) {
    case GamutRole::Standard:
        return ceiechart::StandardGamut;
    case GamutRole::Target:
        return ceiechart::TargetGamut;
    case GamutRole::Original:
        return ceiechart::OriginalGamut;
    case GamutRole::Measured:
    case GamutRole::Declared:
        break;
    }
    return ceiechart::MeasuredGamut;
}

ceiechart::GamutStyle chartStyleOf(const DiagramGamut &gamut, bool besideMeasured)
{
    if (gamut.role == GamutRole::Declared) {
        return ceiechart::gamutStyle(GamutRole::Declared);
    }
    if (gamut.role != GamutRole::Standard) {
        return ceiechart::currentChartStyle(kindOf(gamut.role), besideMeasured);
    }
    // A gamut of the host's own that serves as a standard looks like the last of the published ones.
    const auto style = ceiechart::currentChartStandardStyle(gamut.gamut.colorGamutName());
    return style ? *style : *ceiechart::currentChartStandardStyle(Model::dciP3D65().colorGamutName());
}

class Chart {
public:
    Chart(const DiagramContent &content, const QSize &size)
        : m_content(content)
        , m_size(size)
        , m_geometry(ceiechart::chartGeometry(ceiechart::ChartKind::CurrentXy, size.width(), size.height()))
    {
    }

    QImage draw() const
    {
        NewCEIE::DrawCEIPicture renderer(nullptr);
        QList<QPointF> temperatures;
        for (const DiagramMark &mark : m_content.colorTemperaturePoints) {
            temperatures.append(mark.xy);
        }
        // The colour-temperature points have no setter: the simple form takes them, at whatever size.
        delete renderer.drawCEIPicture(1, 1, false, false, false, temperatures);
        renderer.setPointData(measureRectangles());
        renderer.setCMYPointData(rectangles(m_content.cmyPoints));

        QList<ColorTriangleObject> standards;
        QList<ColorTriangleObject> others;
        const bool besideMeasured = m_content.find(GamutRole::Measured) != nullptr;
        // The target comes last, as the chart has it.
        for (const GamutRole role :
            {GamutRole::Standard, GamutRole::Original, GamutRole::Measured, GamutRole::Declared, GamutRole::Target}) {
            for (const DiagramGamut &gamut : m_content.gamuts) {
                if (gamut.role == role) {
                    auto &list = role == GamutRole::Standard ? standards : others;
                    list.append(triangle(gamut.gamut, kindOf(role), chartStyleOf(gamut, besideMeasured)));
                }
            }
        }
        const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(
            m_size.width(), m_size.height(), true, others, standards, commonArea(), false, QString()));
        return picture ? *picture : QImage();
    }

private:
    QPolygonF pixels(GamutRole role) const
    {
        QPolygonF polygon;
        if (const DiagramGamut *gamut = m_content.find(role)) {
            const Model::Targets &targets = gamut->gamut.getTargets();
            for (const Model::Target &vertex : {targets.red, targets.green, targets.blue}) {
                polygon << m_geometry.toPixel(chromaticity(vertex));
            }
        }
        return polygon;
    }

    QPolygonF commonArea() const { return pixels(GamutRole::Target).intersected(pixels(GamutRole::Original)); }

    QRectF rectangle(const DiagramMark &mark) const
    {
        QRectF place(0.0, 0.0, markSize, markSize);
        place.moveCenter(m_geometry.toPixel(mark.xy));
        return place;
    }

    QList<QRectF> rectangles(const QVector<DiagramMark> &marks) const
    {
        QList<QRectF> places;
        for (const DiagramMark &mark : marks) {
            places.append(rectangle(mark));
        }
        return places;
    }

    //! The library colours measure points by their place in the list: red, green, blue, white, any further ones black.
    QList<QRectF> measureRectangles() const
    {
        QVector<DiagramMark> further = m_content.measurePoints;
        QList<QRectF> places;
        for (const char *word : {"red", "green", "blue", "white"}) {
            const QString whole = QString::fromLatin1(word);
            const auto found = std::find_if(further.begin(), further.end(), [&whole](const DiagramMark &mark) {
                const QString name = mark.name.trimmed();
                return name.compare(whole, Qt::CaseInsensitive) == 0
                    || name.compare(whole.left(1), Qt::CaseInsensitive) == 0;
            });
            places.append(found != further.end() ? rectangle(*found) : nowhere);
            if (found != further.end()) {
                further.erase(found);
            }
        }
        return places + rectangles(further);
    }

    const DiagramContent &m_content;
    QSize m_size;
    ceiechart::DiagramGeometry m_geometry;
};

} // namespace

QImage libraryChart(const DiagramContent &content, const QSize &size)
{
    return Chart(content, size).draw();
}

} // namespace gamutviewer
