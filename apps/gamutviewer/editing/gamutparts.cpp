// SPDX-License-Identifier: MIT
#include "editing/gamutparts.h"

#include "display/messages.h"
#include "editing/targetsession.h"

#include <QCoreApplication>

#include <cmath>

namespace gamutviewer {

QString GamutPart::roleName() const
{
    switch (role) {
    case Role::Declared:
        return QCoreApplication::translate("gamutviewer", "Declared");
    case Role::Original:
        return QCoreApplication::translate("gamutviewer", "Original");
    case Role::Measured:
        return QCoreApplication::translate("gamutviewer", "Measured");
    case Role::Target:
        break;
    }
    return QCoreApplication::translate("gamutviewer", "Target");
}

QString GamutPart::title() const
{
    return QCoreApplication::translate("gamutviewer", "%1: %2")
        .arg(roleName(), oneLine(shownGamutName(QString::fromStdString(gamut.colorGamutName()))));
}

QVector<GamutPart> gamutParts(const DisplayDescription &description)
{
    QVector<GamutPart> parts;
    const auto add = [&](GamutPart::Role role, const QString &name) {
        if (const auto gamut = description.gamut(name)) {
            parts.append({role, *gamut});
        }
    };
    add(GamutPart::Role::Declared, description.declared);
    add(GamutPart::Role::Original, description.original);
    add(GamutPart::Role::Measured, description.measured);
    add(GamutPart::Role::Target, description.target);
    return parts;
}

QString percent(double value)
{
    return QCoreApplication::translate("gamutviewer", "%1 %").arg(value * 100.0, 0, 'f', 1);
}

QString luminanceText(double luminance)
{
    return QString::number(luminance, 'f', std::fabs(luminance) < 10.0 ? 4 : 1);
}

} // namespace gamutviewer
