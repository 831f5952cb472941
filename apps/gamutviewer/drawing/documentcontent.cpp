// SPDX-License-Identifier: MIT
#include "drawing/documentcontent.h"

#include "display/gamutfiles.h"

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
    return documentContent(description, gamutParts(description));
}

ceiechart::DiagramContent documentContent(const DisplayDescription &description, const QVector<GamutPart> &parts)
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
    for (const QString &name : description.standards) {
        if (const auto gamut = description.gamut(name)) {
            add({GamutRole::Standard, *gamut});
        }
    }
    content.measurePoints = marks(description.measurePoints);
    content.colorTemperaturePoints = marks(description.colorTemperaturePoints);
    content.cmyPoints = marks(description.cmyPoints);
    if (const ceiechart::DiagramGamut *target = content.find(GamutRole::Target)) {
        const Model::Target &white = target->gamut.getTargets().white;
        content.rings.append({QPointF(white.x, white.y)});
    }
    return content;
}

} // namespace gamutviewer
