// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/gamutparts.h"

#include "display/gamutfiles.h"
#include "editing/targetsession.h"

#include <gamutmodel/gamutcoverage.h>

#include <QCoreApplication>

namespace gamutviewer {

QString GamutPart::title() const
{
    return QCoreApplication::translate("gamutviewer", "%1: %2").arg(roleName(), name());
}

QString GamutPart::name() const
{
    const QString shown = oneLine(shownGamutName(nameOf(gamut)));
    return isDefault
        ? QCoreApplication::translate("gamutviewer", "%1 (default)", "gamut that nobody has chosen").arg(shown)
        : shown;
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

QVector<GamutPart> gamutPartsToEdit(const DisplayDescription &description)
{
    QVector<GamutPart> parts = gamutParts(description);
    if (description.target.isEmpty()) {
        parts.append({ceiechart::GamutRole::Target, defaultTarget(), true});
    }
    return parts;
}

QString notKnownTitle(ceiechart::GamutRole role)
{
    return QCoreApplication::translate("gamutviewer", "%1: %2")
        .arg(ceiechart::gamutRoleName(role), QCoreApplication::translate("gamutviewer", "not known"));
}

double lostShare(const Model::Targets &original, const Model::Targets &target, Model::Diagram diagram)
{
    const double area = Model::gamutArea(original, diagram);
    return area > 0.0 ? 1.0 - Model::commonArea(original, target, diagram) / area : 0.0;
}

} // namespace gamutviewer
