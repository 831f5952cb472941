// SPDX-License-Identifier: MIT
#include <gamutfiles/displaywall.h>

namespace gamutfiles {

QString cabinetLabel(const QString &name, const std::optional<int> &row, const std::optional<int> &column)
{
    if (!row || !column) {
        return name;
    }
    const QString place = QStringLiteral("%1/%2").arg(*row).arg(*column);
    return name.isEmpty() ? place : name + QLatin1Char(' ') + place;
}

QString WallCabinet::label() const
{
    return cabinetLabel(name, row, column);
}

std::vector<Model::Cabinet> DisplayWall::modelCabinets() const
{
    std::vector<Model::Cabinet> result;
    result.reserve(cabinets.size());
    for (const WallCabinet &cabinet : cabinets) {
        Model::Cabinet measured;
        measured.colors.red = cabinet.red;
        measured.colors.green = cabinet.green;
        measured.colors.blue = cabinet.blue;
        measured.colors.white = cabinet.white.value_or(Model::Target());
        measured.black = cabinet.black;
        if (cabinet.row && cabinet.column) {
            measured.position = Model::GridPosition{*cabinet.row, *cabinet.column};
        }
        result.push_back(measured);
    }
    return result;
}

} // namespace gamutfiles
