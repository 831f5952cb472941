// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/wallpainter.h"

#include "display/valuetexts.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace gamutviewer {

namespace {

struct PainterText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallMap)
};

constexpr int leastPixels = 7; // of letters that can be read
constexpr int longestShownName = 8;
constexpr double cellGap = 1.5;
constexpr double smallCell = 8.0; // below it there is no gap
constexpr double filledWidth = 0.84; // of a cell, by its text

//! Black or white, whichever stands out from \a color: by relative luminance (WCAG 2.1).
QColor textOn(const QColor &color)
{
    const auto linear
        = [](double value) { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
    const double luminance
        = 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    constexpr double middle = 0.179; // where both have the same contrast
    return luminance > middle ? QColor(0x14, 0x16, 0x1a) : QColor(Qt::white);
}

QColor unknownColor(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [](int a, int b) { return (a * 7 + b) / 8; };
    return QColor(mixed(base.red(), text.red()), mixed(base.green(), text.green()), mixed(base.blue(), text.blue()));
}

//! Ranks of the values, so that none is left out.
std::map<int, int> ranks(const std::set<int> &values)
{
    std::map<int, int> result;
    for (const int value : values) {
        result.emplace(value, int(result.size()));
    }
    return result;
}

QString shortName(const WallCabinet &cabinet)
{
    return oneLine(cabinet.name.isEmpty() ? cabinet.label() : cabinet.name);
}

QString shortName(const IncompleteCabinet &cabinet)
{
    return oneLine(cabinet.name.isEmpty() ? incompleteLabel(cabinet) : cabinet.name);
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

QString leftOutMark()
{
    return PainterText::tr("left out");
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

WallCell wallCell(
    const DisplayWall &wall, const CabinetAssessment *assessment, const WallScale &scale, std::size_t cabinet)
{
    WallCell cell;
    cell.judgement = Judgement::NotKnown;
    cell.value = undefinedText();
    if (cabinet >= wall.cabinets.size()) {
        cell.name = shortName(wall.incomplete[cabinet - wall.cabinets.size()]);
        return cell;
    }
    cell.name = shortName(wall.cabinets[cabinet]);
    cell.isLeftOut = wall.cabinets[cabinet].isLeftOut;
    if (assessment) {
        cell.color = scale.color(*assessment);
        cell.value = wallValueText(*assessment, scale.quantity());
        cell.judgement = assessment->judgement;
    }
    return cell;
}

QString longestValue(const std::vector<CabinetAssessment> &cabinets, const WallScale &scale)
{
    QString longest = undefinedText();
    for (const CabinetAssessment &cabinet : cabinets) {
        const QString value = wallValueText(cabinet, scale.quantity());
        if (value.size() > longest.size()) {
            longest = value;
        }
    }
    return longest;
}

QString compactValue(const QString &value)
{
    QString text = value;
    text.remove(QLatin1Char('%'));
    text = text.trimmed();
    return text.startsWith(QLatin1String("0.")) ? text.mid(1) : text;
}

int longestName(const DisplayWall &wall)
{
    int longest = 1;
    for (const WallCabinet &cabinet : wall.cabinets) {
        longest = std::max(longest, int(shortName(cabinet).size()));
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        longest = std::max(longest, int(shortName(cabinet).size()));
    }
    return std::min(longest, longestShownName);
}

WallCellFonts wallCellFonts(const QFont &font, const QSizeF &cell, const QString &longest, int nameLength)
{
    WallCellFonts fonts;
    const double largest = QFontMetricsF(font).height() * 0.8; // about its size in pixels
    // \a ems: how wide a text is, as a part of the size.
    const auto fitted = [&](double ems, double share) {
        const double room = std::min(cell.width() - 3.0, cell.width() * filledWidth);
        return int(std::floor(std::min({room / std::max(ems, 0.1), cell.height() * share, largest})));
    };
    const auto widthOf = [&font](const QString &text) {
        constexpr int size = 100; // pixels, large enough that rounding to whole ones does not matter
        QFont sample = font;
        sample.setPixelSize(size);
        return QFontMetricsF(sample).horizontalAdvance(text) / size;
    };
    int value = fitted(widthOf(longest), 0.36);
    if (value < leastPixels + 1) {
        fonts.isCompact = true;
        value = fitted(widthOf(compactValue(longest)), 0.36);
    }
    // Capitals and digits are about six tenths of the size wide.
    const int name = std::min(fitted(0.6 * nameLength, 0.30), value);
    fonts.hasValues = value >= leastPixels;
    fonts.hasNames = fonts.hasValues && name >= leastPixels;
    fonts.value = font;
    fonts.value.setPixelSize(std::max(value, 1));
    fonts.name = font;
    fonts.name.setPixelSize(std::max(name, 1));
    return fonts;
}

void paintWallCell(
    QPainter *painter, const QRectF &place, const WallCell &cell, const WallCellFonts &fonts, const QPalette &palette)
{
    const double side = std::min(place.width(), place.height());
    const double gap = side < smallCell ? 0.0 : cellGap;
    const QRectF inner = place.adjusted(gap, gap, -gap, -gap);
    const QColor color = cell.color.isValid() ? cell.color : unknownColor(palette);
    const QColor text = cell.color.isValid() ? textOn(color) : palette.color(QPalette::Text);
    painter->fillRect(inner, color);
    const bool isMarked = cell.judgement != Judgement::Pass && !cell.isLeftOut;
    if (fonts.hasValues) {
        painter->setPen(text);
        painter->setFont(fonts.value);
        const double middle = inner.center().y();
        const QRectF upper = fonts.hasNames
            ? QRectF(inner.left(), inner.top() + inner.height() * 0.10, inner.width(), middle - inner.top())
            : inner;
        painter->drawText(
            upper, Qt::AlignCenter | Qt::TextDontClip, fonts.isCompact ? compactValue(cell.value) : cell.value);
        if (fonts.hasNames) {
            painter->setFont(fonts.name);
            const QRectF lower(inner.left() + 1.0, middle, inner.width() - 2.0, inner.height() * 0.42);
            const QString name = QFontMetricsF(fonts.name).elidedText(cell.name, Qt::ElideRight, lower.width());
            painter->drawText(lower, Qt::AlignCenter, name);
        }
    }
    if (isMarked && side >= 3.0) {
        const double corner = std::clamp(side * 0.28, 2.0, 12.0);
        const QPointF at = inner.topRight();
        if (cell.judgement == Judgement::Fail) {
            const QPointF triangle[] = {at, at - QPointF(corner, 0.0), at + QPointF(0.0, corner)};
            painter->setPen(Qt::NoPen);
            painter->setBrush(text);
            painter->drawPolygon(triangle, 3);
        } else if (corner >= leastPixels) {
            QFont font = fonts.value;
            font.setPixelSize(int(corner));
            painter->setFont(font);
            painter->setPen(text);
            painter->drawText(QRectF(at.x() - corner, at.y() - 1.0, corner, corner + 2.0), Qt::AlignCenter,
                judgementMark(cell.judgement));
        }
    }
    if (cell.isLeftOut) {
        painter->setPen(QPen(text, std::clamp(side * 0.04, 1.0, 2.0)));
        painter->drawLine(inner.bottomLeft(), inner.topRight());
    }
    if (cell.isSelected) {
        const double width = std::clamp(side * 0.08, 1.5, 3.0);
        const double inset = width / 2.0;
        painter->setBrush(Qt::NoBrush);
        // Light round the accent, so that it stands out from any colour.
        painter->setPen(QPen(palette.color(QPalette::Base), width * 2.0));
        painter->drawRect(inner.adjusted(inset, inset, -inset, -inset));
        painter->setPen(QPen(palette.color(QPalette::Highlight), width));
        painter->drawRect(place.adjusted(inset, inset, -inset, -inset));
    }
}

double wallLegendHeight(const WallScale &scale, const QFont &font, double width)
{
    const QFontMetricsF metrics(font);
    const QRectF room(0.0, 0.0, std::max(width, 1.0), 1e4);
    return metrics.height() * 1.8 + metrics.boundingRect(room, Qt::TextWordWrap, wallLegendText(scale)).height() + 2.0;
}

void paintWallLegend(
    QPainter *painter, const QRectF &place, const WallScale &scale, const QFont &font, const QPalette &palette)
{
    const QFontMetricsF metrics(font);
    const double line = metrics.height();
    painter->setFont(font);
    const QColor text = palette.color(QPalette::WindowText);
    const int count = int(scale.steps().size());
    const double width = std::min(
        place.width() * (scale.unitText().isEmpty() ? 1.0 : 0.85), 36.0 * metrics.averageCharWidth() + 200.0);
    const double step = count > 0 ? width / count : 0.0;
    // Every second number where there is no room for all.
    const bool isNarrow = std::any_of(scale.steps().cbegin(), scale.steps().cend(),
        [&](const WallScale::Step &of) { return metrics.horizontalAdvance(of.lower) > step * 0.95; });
    for (int i = 0; i < count; ++i) {
        const WallScale::Step &of = scale.steps().at(i);
        const QRectF box(place.left() + i * step, place.top(), step, line * 0.7);
        painter->fillRect(box, of.color);
        painter->setPen(text);
        const double below = place.top() + line * 0.75;
        if (scale.quantity() == WallQuantity::Limit) {
            painter->drawText(QRectF(box.left(), below, step, line), Qt::AlignHCenter | Qt::AlignTop, of.lower);
        } else if (i > 0) {
            // At the border between two steps.
            if (!isNarrow || i % 2 == 0) {
                painter->drawText(
                    QRectF(box.left() - step, below, 2.0 * step, line), Qt::AlignHCenter | Qt::AlignTop, of.lower);
            }
        }
    }
    painter->setPen(text);
    if (!scale.unitText().isEmpty() && count > 0) {
        painter->drawText(QRectF(place.left() + width + 6.0, place.top() + line * 0.75, place.width() - width, line),
            Qt::AlignLeft | Qt::AlignTop, scale.unitText());
    }
    const QRectF words = place.adjusted(0.0, line * 1.75, 0.0, 0.0);
    painter->drawText(words, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, wallLegendText(scale));
}

QString wallLegendText(const WallScale &scale)
{
    return PainterText::tr("%1. ◥ does not show the target, ? not known, ╱ %2", "what is shown, and the legend's marks")
        .arg(wallQuantityDescription(scale.quantity()), leftOutMark());
}

void paintWallPicture(QPainter *painter, const QRectF &place, const WallPicture &picture)
{
    static const std::vector<CabinetAssessment> none;
    const std::vector<CabinetAssessment> &cabinets = picture.assessment ? picture.assessment->cabinets : none;
    const WallScale scale(picture.quantity, cabinets, picture.wall.unit);
    // The same on every screen.
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x14, 0x16, 0x1a));
    palette.setColor(QPalette::WindowText, QColor(0x14, 0x16, 0x1a));
    painter->fillRect(place, Qt::white);
    const double side = std::min(place.width(), place.height());
    const double margin = std::clamp(side * 0.02, 2.0, 16.0);
    QRectF room = place.adjusted(margin, margin, -margin, -margin);
    QFont font = QGuiApplication::font();
    font.setPixelSize(int(std::clamp(side / 40.0, 6.0, 20.0)));
    const QFontMetricsF metrics(font);
    painter->setRenderHint(QPainter::Antialiasing, false);

    const QString verdict = picture.assessment
        ? judgementMark(picture.assessment->judgement) + QLatin1Char(' ') + picture.assessment->headline
        : judgementMark(Judgement::NotKnown) + QLatin1Char(' ')
            + PainterText::tr("Not known whether the cabinets show the target: there is none");
    QFont bold = font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(palette.color(QPalette::WindowText));
    QRectF written;
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, verdict, &written);
    room.setTop(written.bottom() + margin);

    const double legend = wallLegendHeight(scale, font, room.width());
    QRectF map = room;
    map.setBottom(map.bottom() - legend - margin);
    const WallGrid placed = placedCabinets(picture.wall);
    const WallGrid others = unplacedCabinets(picture.wall);
    const double note = others.rows > 0 ? metrics.height() + 4.0 : 0.0;
    const int columns = std::max(placed.columns, others.columns);
    const int rows = placed.rows + others.rows;
    const QSizeF cell(map.width() / std::max(columns, 1),
        std::min((map.height() - note) / std::max(rows, 1), 1.25 * map.width() / std::max(columns, 1)));
    const WallCellFonts fonts = wallCellFonts(font, cell, longestValue(cabinets, scale), longestName(picture.wall));
    double top = map.top();
    const auto paintGrid = [&](const WallGrid &grid) {
        for (int row = 0; row < grid.rows; ++row) {
            for (int column = 0; column < grid.columns; ++column) {
                if (const auto cabinet = grid.at(row, column)) {
                    const CabinetAssessment *assessed = *cabinet < cabinets.size() ? &cabinets[*cabinet] : nullptr;
                    paintWallCell(painter,
                        QRectF(QPointF(map.left() + column * cell.width(), top + row * cell.height()), cell),
                        wallCell(picture.wall, assessed, scale, *cabinet), fonts, palette);
                }
            }
        }
        top += grid.rows * cell.height();
    };
    paintGrid(placed);
    if (others.rows > 0) {
        painter->setFont(font);
        painter->setPen(palette.color(QPalette::WindowText));
        painter->drawText(QRectF(map.left(), top, map.width(), note), Qt::AlignLeft | Qt::AlignBottom,
            PainterText::tr("Position not known"));
        top += note;
        paintGrid(others);
    }
    paintWallLegend(painter, QRectF(room.left(), top + margin, room.width(), legend), scale, font, palette);
}

} // namespace gamutviewer
