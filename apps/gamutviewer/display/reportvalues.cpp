// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/reportvalues.h"

#include "display/chromaticity.h"

namespace gamutviewer {

QJsonValue unitValue(LuminanceUnit unit)
{
    return unit == LuminanceUnit::NotKnown ? QJsonValue() : QJsonValue(luminanceUnitName(unit));
}

QString colorName(ceiechart::GamutVertex vertex)
{
    switch (vertex) {
    case ceiechart::GamutVertex::Red:
        return QStringLiteral("red");
    case ceiechart::GamutVertex::Green:
        return QStringLiteral("green");
    case ceiechart::GamutVertex::Blue:
        return QStringLiteral("blue");
    case ceiechart::GamutVertex::White:
        break;
    }
    return QStringLiteral("white");
}

QString primaryName(Model::Primary primary)
{
    return colorName(vertexOf(primary));
}

} // namespace gamutviewer
