// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/luminanceunit.h>

namespace gamutfiles {

QString luminanceUnitName(LuminanceUnit unit)
{
    switch (unit) {
    case LuminanceUnit::Relative:
        return QStringLiteral("relative");
    case LuminanceUnit::CandelaPerSquareMetre:
        return QStringLiteral("cd/m2");
    case LuminanceUnit::NotKnown:
        break;
    }
    return {};
}

} // namespace gamutfiles
