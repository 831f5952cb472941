// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/displaywall.h>

#include "incompletereasons_p.h"

#include <QCoreApplication>
#include <QStringList>

namespace gamutfiles {

namespace {

//! With their texts for lupdate.
constexpr const char *reasons[] = {QT_TRANSLATE_NOOP("gamutfiles::Wall", "red is missing"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "green is missing"), QT_TRANSLATE_NOOP("gamutfiles::Wall", "blue is missing"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "red has no chromaticity"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "green has no chromaticity"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "blue has no chromaticity"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "white has no chromaticity"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "red is there more than once"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "green is there more than once"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "blue is there more than once"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "white is there more than once"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "black is there more than once"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "red could not be read"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "green could not be read"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "blue could not be read"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "white could not be read"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "black could not be read"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "it has no name of its own"),
    QT_TRANSLATE_NOOP("gamutfiles::Wall", "it is being measured")};

} // namespace

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

QString incompleteLabel(const IncompleteCabinet &cabinet)
{
    const auto &position = cabinet.position;
    return cabinetLabel(cabinet.name, position ? std::make_optional(position->row) : std::nullopt,
        position ? std::make_optional(position->column) : std::nullopt);
}

QString incompleteReasonText(const IncompleteCabinet &cabinet)
{
    QStringList parts = cabinet.reason.split(reasonSeparator());
    for (QString &part : parts) {
        for (const char *reason : reasons) {
            if (part == QLatin1String(reason)) {
                part = QCoreApplication::translate("gamutfiles::Wall", reason);
                break;
            }
        }
    }
    return parts.join(reasonSeparator());
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
