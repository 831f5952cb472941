// SPDX-License-Identifier: MIT
#include "display/reportvalues.h"

namespace gamutviewer {

QJsonValue unitValue(LuminanceUnit unit)
{
    switch (unit) {
    case LuminanceUnit::CandelaPerSquareMetre:
        return QStringLiteral("cd/m2");
    case LuminanceUnit::Relative:
        return QStringLiteral("relative");
    case LuminanceUnit::NotKnown:
        break;
    }
    return QJsonValue::Null;
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
    return colorName(primary == Model::Primary::Red ? ceiechart::GamutVertex::Red
            : primary == Model::Primary::Green      ? ceiechart::GamutVertex::Green
                                                    : ceiechart::GamutVertex::Blue);
}

} // namespace gamutviewer
