// SPDX-License-Identifier: MIT
#include "drawing/documentcontent.h"

#include "display/gamutfiles.h"
#include "editing/targetsession.h"

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
    using ceiechart::GamutRole;
    ceiechart::DiagramContent content;
    const auto add = [&](GamutRole role, const QString &name) {
        if (const auto gamut = description.gamut(name)) {
            content.gamuts.append(
                {Model::ColorGamut(oneLine(shownGamutName(name)).toStdString(), gamut->getTargets()), role});
        }
    };
    add(GamutRole::Target, description.target);
    add(GamutRole::Original, description.original);
    add(GamutRole::Measured, description.measured);
    add(GamutRole::Declared, description.declared);
    for (const QString &name : description.standards) {
        add(GamutRole::Standard, name);
    }
    content.measurePoints = marks(description.measurePoints);
    content.colorTemperaturePoints = marks(description.colorTemperaturePoints);
    content.cmyPoints = marks(description.cmyPoints);
    content.rings = targetRings(description, std::nullopt);
    return content;
}

QVector<ceiechart::DiagramRings> targetRings(
    const DisplayDescription &description, const std::optional<Tolerances> &tolerances)
{
    QVector<ceiechart::DiagramRings> rings;
    const auto target = description.gamut(description.target);
    if (!target) {
        return rings;
    }
    for (const Vertex vertex : {Vertex::White, Vertex::Red, Vertex::Green, Vertex::Blue}) {
        ceiechart::DiagramRings around{xyOf(targetAt(target->getTargets(), vertex))};
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
