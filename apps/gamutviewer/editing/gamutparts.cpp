// SPDX-License-Identifier: MIT
#include "editing/gamutparts.h"

#include "display/gamutfiles.h"
#include "editing/targetsession.h"

#include <gamutmodel/gamutcoverage.h>

#include <QCoreApplication>

namespace gamutviewer {

QString GamutPart::title() const
{
    return QCoreApplication::translate("gamutviewer", "%1: %2")
        .arg(roleName(), oneLine(shownGamutName(QString::fromStdString(gamut.colorGamutName()))));
}

QVector<GamutPart> gamutParts(const DisplayDescription &description)
{
    using ceiechart::GamutRole;
    QVector<GamutPart> parts;
    const auto add = [&](GamutRole role, const QString &name) {
        if (const auto gamut = description.gamut(name)) {
            parts.append({role, *gamut});
        }
    };
    add(GamutRole::Declared, description.declared);
    add(GamutRole::Original, description.original);
    add(GamutRole::Measured, description.measured);
    add(GamutRole::Target, description.target);
    return parts;
}

double lostShare(const Model::Targets &original, const Model::Targets &target, Model::Diagram diagram)
{
    const double area = Model::gamutArea(original, diagram);
    return area > 0.0 ? 1.0 - Model::commonArea(original, target, diagram) / area : 0.0;
}

} // namespace gamutviewer
