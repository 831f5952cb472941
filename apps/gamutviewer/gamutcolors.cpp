// SPDX-License-Identifier: MIT
#include "gamutcolors.h"

namespace gamutviewer {

// What the library gives the gamuts of its host, and has no public home for: the exported pictures are compared with
// its own in the tests.

QColor chartColor(GamutPart::Role role, bool besideMeasured)
{
    switch (role) {
    case GamutPart::Role::Declared:
        return QColor(196, 146, 255);
    case GamutPart::Role::Original:
        // With a measured gamut beside it the original gives up its colour.
        return besideMeasured ? QColor(13, 189, 73) : QColor(22, 241, 255);
    case GamutPart::Role::Measured:
        return QColor(27, 241, 255);
    case GamutPart::Role::Target:
        break;
    }
    return QColor(255, 163, 56);
}

Qt::PenStyle lineStyle(GamutPart::Role role)
{
    switch (role) {
    case GamutPart::Role::Declared:
        return Qt::DashDotDotLine;
    case GamutPart::Role::Original:
        return Qt::DashLine;
    case GamutPart::Role::Measured:
        return Qt::DashDotLine;
    case GamutPart::Role::Target:
        break;
    }
    return Qt::SolidLine;
}

QColor chartGround(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? QColor(23, 23, 26) : QColor(50, 50, 56);
}

QColor StandardStyle::fill() const
{
    QColor color = outline;
    color.setAlpha(int(fillOpacity * 256.0));
    return color;
}

StandardStyle standardStyle(const QString &name)
{
    if (name == QLatin1String("Rec.709")) {
        return {QColor(255, 255, 255, 17), 0.07};
    }
    if (name == QLatin1String("Rec.2020")) {
        return {QColor(255, 255, 255, 51), 0.1};
    }
    return {QColor(255, 255, 255, 25), 0.05}; // DCI-P3(D65), and a gamut of the file that serves as a standard
}

} // namespace gamutviewer
