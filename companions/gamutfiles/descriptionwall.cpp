// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "descriptionreader_p.h"
#include "textencoding_p.h"

#include <utility>

namespace gamutfiles {

namespace {

std::optional<Model::GridPosition> positionOf(const std::optional<int> &row, const std::optional<int> &column)
{
    return row && column ? std::make_optional(Model::GridPosition{*row, *column}) : std::nullopt;
}

} // namespace

DisplayWall DescriptionReader::readWall(const Node &node)
{
    DisplayWall wall;
    if (!checkObject(node,
            {{luminanceUnitKey(), false}, {QStringLiteral("cabinets"), true}, {QStringLiteral("incomplete"), false}})) {
        return wall;
    }
    wall.unit = readUnit(member(node, luminanceUnitKey()));
    QSet<QString> labels;
    QSet<std::pair<int, int>> places;
    const auto check = [&](const Node &element, const QString &label, const std::optional<Model::GridPosition> &at) {
        if (label.trimmed().isEmpty()) {
            fail(element, tr("a cabinet needs a name, or row and column"));
        }
        if (!isStorable(label)) {
            fail(element, tr("a name has characters that cannot be stored"));
        }
        if (labels.contains(label)) {
            fail(element, tr("there is already a cabinet %1").arg(quoted(label)));
        }
        labels.insert(label);
        if (at) {
            const std::pair<int, int> place(at->row, at->column);
            if (places.contains(place)) {
                fail(element, tr("there is already a cabinet in row %1, column %2").arg(place.first).arg(place.second));
            }
            places.insert(place);
        }
    };
    for (const Node &element : elements(member(node, QStringLiteral("cabinets")))) {
        WallCabinet cabinet = readCabinet(element);
        check(element, cabinet.label(), positionOf(cabinet.row, cabinet.column));
        if (failed()) {
            return {};
        }
        wall.cabinets.push_back(std::move(cabinet));
    }
    const Node incomplete = member(node, QStringLiteral("incomplete"));
    for (const Node &element : elements(incomplete)) {
        IncompleteCabinet cabinet = readIncomplete(element);
        check(element, incompleteLabel(cabinet), cabinet.position);
        if (failed()) {
            return {};
        }
        wall.incomplete.push_back(std::move(cabinet));
    }
    if (wall.cabinets.empty() && !wall.incomplete.empty()) {
        fail(incomplete, tr("there is no other cabinet"));
        return {};
    }
    return wall;
}

IncompleteCabinet DescriptionReader::readIncomplete(const Node &node)
{
    IncompleteCabinet cabinet;
    if (!checkObject(node,
            {{QStringLiteral("name"), false}, {QStringLiteral("row"), false}, {QStringLiteral("column"), false},
                {QStringLiteral("reason"), true}})) {
        return cabinet;
    }
    cabinet.name = readString(member(node, QStringLiteral("name")));
    cabinet.position = readPosition(node);
    const Node reason = member(node, QStringLiteral("reason"));
    cabinet.reason = readString(reason);
    if (cabinet.reason.trimmed().isEmpty()) {
        fail(reason, tr("must not be empty"));
    }
    return cabinet;
}

std::optional<Model::GridPosition> DescriptionReader::readPosition(const Node &node)
{
    const auto whole = [this, &node](const QString &key) {
        const Node found = member(node, key);
        return found.value.isUndefined() ? std::nullopt : std::make_optional(readWhole(found));
    };
    const std::optional<int> row = whole(QStringLiteral("row"));
    const std::optional<int> column = whole(QStringLiteral("column"));
    if (row.has_value() != column.has_value()) {
        fail(member(node, row ? QStringLiteral("column") : QStringLiteral("row")),
            tr("missing: row and column are only known together"));
    }
    return positionOf(row, column);
}

WallCabinet DescriptionReader::readCabinet(const Node &node)
{
    WallCabinet cabinet;
    if (!checkObject(node,
            {{QStringLiteral("name"), false}, {QStringLiteral("row"), false}, {QStringLiteral("column"), false},
                {QStringLiteral("red"), true}, {QStringLiteral("green"), true}, {QStringLiteral("blue"), true},
                {QStringLiteral("white"), false}, {QStringLiteral("black"), false},
                {QStringLiteral("leftOut"), false}})) {
        return cabinet;
    }
    const auto color = [this](const Node &of) { return readMeasured(of); };
    cabinet.name = readString(member(node, QStringLiteral("name")));
    if (const auto position = readPosition(node)) {
        cabinet.row = position->row;
        cabinet.column = position->column;
    }
    cabinet.red = color(member(node, QStringLiteral("red")));
    cabinet.green = color(member(node, QStringLiteral("green")));
    cabinet.blue = color(member(node, QStringLiteral("blue")));
    const Node white = member(node, QStringLiteral("white"));
    if (!white.value.isUndefined()) {
        cabinet.white = color(white);
    }
    readBlack(node, cabinet.black, cabinet.blackLuminance);
    const Node leftOut = member(node, QStringLiteral("leftOut"));
    cabinet.isLeftOut = checkType(leftOut, QJsonValue::Bool) && leftOut.value.toBool();
    return cabinet;
}

//! The chromaticities of deep reds stand on the limit x + y = 1, and u', v' with four digits may exceed it.
Model::Target DescriptionReader::readMeasured(const Node &node)
{
    return readTarget(node, PrimariesOf::Display, chromaticityRounding);
}

//! Where there is no light there is no chromaticity, and where there is little it may not be known.
void DescriptionReader::readBlack(
    const Node &parent, std::optional<Model::Target> &black, std::optional<double> &luminance)
{
    const Node node = member(parent, QStringLiteral("black"));
    if (node.value.isUndefined()) {
        return;
    }
    const auto is = [&node](const char *key) { return !member(node, QString::fromLatin1(key)).value.isUndefined(); };
    if (is("x") || is("y")) {
        black = readMeasured(node);
        return;
    }
    if (!checkObject(node, {{QStringLiteral("Y"), true}})) {
        return;
    }
    const Node Y = member(node, QStringLiteral("Y"));
    const double value = readNumber(Y);
    if (value < 0.0) {
        fail(Y, tr("luminance must not be negative"));
    } else if (value > 0.0) {
        luminance = value;
    } else {
        black = Model::Target();
    }
}

} // namespace gamutfiles
