// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/wallgrid.h"

#include "display/valuetexts.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <utility>

namespace gamutviewer {

QString shortName(const WallCabinet &cabinet)
{
    return oneLine(cabinet.name.isEmpty() ? cabinet.label() : cabinet.name);
}

QString shortName(const IncompleteCabinet &cabinet)
{
    return oneLine(cabinet.name.isEmpty() ? incompleteLabel(cabinet) : cabinet.name);
}

namespace {

//! Ranks of the values, so that none is left out.
std::map<int, int> ranks(const std::set<int> &values)
{
    std::map<int, int> result;
    for (const int value : values) {
        result.emplace(value, int(result.size()));
    }
    return result;
}

//! The names of rows or columns that have no others: all from the first to the last, or those that there are.
std::vector<QString> numberNames(const std::set<int> &numbers, bool keepsGaps)
{
    std::vector<QString> names;
    if (keepsGaps) {
        for (int number = *numbers.begin(); number < *numbers.rbegin(); ++number) {
            names.push_back(QString::number(number));
        }
        names.push_back(QString::number(*numbers.rbegin()));
        return names;
    }
    for (const int number : numbers) {
        names.push_back(QString::number(number));
    }
    return names;
}

//! The position of each cabinet, by its number in a WallGrid.
std::vector<std::optional<Model::GridPosition>> gridPositions(const DisplayWall &wall)
{
    std::vector<std::optional<Model::GridPosition>> positions;
    positions.reserve(wall.cabinets.size() + wall.incomplete.size());
    for (const WallCabinet &cabinet : wall.cabinets) {
        positions.push_back(cabinet.row && cabinet.column
                ? std::make_optional(Model::GridPosition{*cabinet.row, *cabinet.column})
                : std::nullopt);
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        positions.push_back(cabinet.position);
    }
    return positions;
}

//! A name of the kind "B7" or "12-C", of two parts of which one is a number.
struct NameParts {
    QString first;
    QString second;
};

std::optional<NameParts> partsOf(const QString &name)
{
    int at = name.size();
    const auto isDigit = [&name](int i) { return name.at(i).isDigit(); };
    if (name.isEmpty() || isDigit(0) == isDigit(at - 1)) {
        return std::nullopt;
    }
    while (at > 1 && isDigit(at - 1) == isDigit(name.size() - 1)) {
        --at;
    }
    return NameParts{name.left(at), name.mid(at)};
}

//! Gives the rows and columns of \a grid the parts of the names of \a cabinets; false where the names have none.
bool nameByParts(WallGrid &grid, const std::vector<QString> &cabinets)
{
    std::vector<QString> rows(std::size_t(grid.rows));
    std::vector<QString> columns(std::size_t(grid.columns));
    const auto takes = [](QString &name, const QString &part) {
        if (name.isEmpty()) {
            name = part;
        }
        return name == part;
    };
    for (const bool wanted : {true, false}) {
        std::fill(rows.begin(), rows.end(), QString());
        std::fill(columns.begin(), columns.end(), QString());
        bool isRight = true;
        for (std::size_t i = 0; i < grid.cells.size() && isRight; ++i) {
            if (!grid.cells[i]) {
                continue;
            }
            const auto parts = partsOf(cabinets[*grid.cells[i]]);
            isRight = parts && takes(rows[i / std::size_t(grid.columns)], wanted ? parts->first : parts->second)
                && takes(columns[i % std::size_t(grid.columns)], wanted ? parts->second : parts->first);
        }
        if (isRight) {
            grid.rowNames = std::move(rows);
            grid.columnNames = std::move(columns);
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<std::size_t> WallGrid::at(int row, int column) const
{
    const bool isInside = row >= 0 && row < rows && column >= 0 && column < columns;
    return isInside ? cells[std::size_t(row) * std::size_t(columns) + std::size_t(column)] : std::nullopt;
}

WallGrid placedCabinets(const DisplayWall &wall)
{
    std::set<int> rows;
    std::set<int> columns;
    std::size_t count = 0;
    const auto positions = gridPositions(wall);
    for (const auto &position : positions) {
        if (position) {
            rows.insert(position->row);
            columns.insert(position->column);
            ++count;
        }
    }
    WallGrid grid;
    if (count == 0) {
        return grid;
    }
    const double height = double(*rows.rbegin()) - double(*rows.begin()) + 1.0;
    const double width = double(*columns.rbegin()) - double(*columns.begin()) + 1.0;
    constexpr double mostGaps = 8.0; // for each cabinet
    const bool keepsGaps = height * width <= mostGaps * double(count) + 64.0;
    const auto rowRanks = ranks(rows);
    const auto columnRanks = ranks(columns);
    grid.rows = keepsGaps ? int(height) : int(rows.size());
    grid.columns = keepsGaps ? int(width) : int(columns.size());
    // A wall whose cabinets share neither row nor column is a diagonal, which no map can show at any size.
    constexpr double mostCells = 4e6;
    if (double(grid.rows) * double(grid.columns) > mostCells) {
        return WallGrid();
    }
    grid.cells.resize(std::size_t(grid.rows) * std::size_t(grid.columns));
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (!positions[i]) {
            continue;
        }
        const Model::GridPosition &at = *positions[i];
        const int row = keepsGaps ? at.row - *rows.begin() : rowRanks.at(at.row);
        const int column = keepsGaps ? at.column - *columns.begin() : columnRanks.at(at.column);
        auto &cell = grid.cells[std::size_t(row) * std::size_t(grid.columns) + std::size_t(column)];
        if (!cell) {
            cell = i;
        }
    }
    std::vector<QString> names;
    names.reserve(positions.size());
    for (const WallCabinet &cabinet : wall.cabinets) {
        names.push_back(shortName(cabinet));
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        names.push_back(shortName(cabinet));
    }
    if (!nameByParts(grid, names)) {
        grid.rowNames = numberNames(rows, keepsGaps);
        grid.columnNames = numberNames(columns, keepsGaps);
    }
    return grid;
}

WallGrid unplacedCabinets(const DisplayWall &wall)
{
    std::vector<bool> isPlaced(wall.cabinets.size() + wall.incomplete.size(), false);
    for (const auto &cell : placedCabinets(wall).cells) {
        if (cell) {
            isPlaced[*cell] = true;
        }
    }
    std::vector<std::optional<std::size_t>> others;
    for (std::size_t i = 0; i < isPlaced.size(); ++i) {
        if (!isPlaced[i]) {
            others.emplace_back(i);
        }
    }
    WallGrid grid;
    if (others.empty()) {
        return grid;
    }
    constexpr double widerThanHigh = 1.5;
    grid.columns = int(std::ceil(std::sqrt(double(others.size()) * widerThanHigh)));
    grid.rows = int((others.size() + std::size_t(grid.columns) - 1) / std::size_t(grid.columns));
    grid.cells = std::move(others);
    grid.cells.resize(std::size_t(grid.rows) * std::size_t(grid.columns));
    return grid;
}

} // namespace gamutviewer
