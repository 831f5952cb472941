// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/documentcontent.h"

#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>

namespace gamutviewer {

namespace {

QVector<ceiechart::DiagramMark> marks(const QVector<NamedPoint> &points)
{
    QVector<ceiechart::DiagramMark> found;
    for (const NamedPoint &point : points) {
        found.append({point.xy, oneLine(point.name)});
    }
    return found;
}

} // namespace

ceiechart::DiagramContent documentContent(const DisplayDescription &description)
{
    std::vector<DisplayGamut> standards;
    const QHash<QString, int> places = description.gamutPlaces();
    for (const QString &name : description.standards) {
        if (const auto gamut = description.gamut(name, places)) {
            standards.push_back(*gamut);
        }
    }
    return documentContent(description, gamutParts(description), standards);
}

ceiechart::DiagramContent documentContent(
    const DisplayDescription &description, const QVector<GamutPart> &parts, const std::vector<DisplayGamut> &standards)
{
    using ceiechart::GamutRole;
    ceiechart::DiagramContent content;
    const auto add = [&content](const GamutPart &part) {
        content.gamuts.append({Model::ColorGamut(part.name().toStdString(), part.gamut.getTargets()), part.role});
    };
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Declared}) {
        for (const GamutPart &part : parts) {
            if (part.role == role) {
                add(part);
            }
        }
    }
    content.gamuts.reserve(content.gamuts.size() + int(standards.size()));
    for (const DisplayGamut &standard : standards) {
        add({GamutRole::Standard, standard});
    }
    content.measurePoints = marks(description.measurePoints);
    content.colorTemperaturePoints = marks(description.colorTemperaturePoints);
    content.cmyPoints = marks(description.cmyPoints);
    if (const ceiechart::DiagramGamut *target = content.find(GamutRole::Target)) {
        content.rings = targetRings(target->gamut.getTargets(), std::nullopt);
    }
    return content;
}

QVector<ceiechart::DiagramMark> cabinetMarks(const DisplayWall &wall)
{
    // As marks have a rim, these show on any ground.
    const QColor red(0xe5, 0x39, 0x35);
    const QColor green(0x43, 0xa0, 0x47);
    const QColor blue(0x1e, 0x88, 0xe5);
    QVector<ceiechart::DiagramMark> found;
    found.reserve(3 * int(wall.cabinets.size()));
    for (const WallCabinet &cabinet : wall.cabinets) {
        found.append({ceiechart::xyOf(cabinet.red), QString(), red});
        found.append({ceiechart::xyOf(cabinet.green), QString(), green});
        found.append({ceiechart::xyOf(cabinet.blue), QString(), blue});
    }
    return found;
}

QVector<ceiechart::DiagramRings> targetRings(const Model::Targets &target, const std::optional<Tolerances> &tolerances)
{
    using Vertex = ceiechart::GamutVertex;
    QVector<ceiechart::DiagramRings> rings;
    for (const Vertex vertex : {Vertex::White, Vertex::Red, Vertex::Green, Vertex::Blue}) {
        ceiechart::DiagramRings around{ceiechart::xyOf(ceiechart::targetAt(target, vertex))};
        const auto limit = !tolerances ? std::nullopt
            : vertex == Vertex::White  ? tolerances->limits.whiteUv
                                       : tolerances->limits.primariesUv;
        if (limit) {
            around.radii = {*limit};
        }
        if (limit || vertex == Vertex::White) {
            rings.append(around);
        }
    }
    return rings;
}

} // namespace gamutviewer
