// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/wallpainter.h"

#include "display/valuetexts.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

struct PainterText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallMap)
};

constexpr int leastPixels = 7; // of letters that can be read
constexpr int longestShownName = 8;
constexpr double highestCell = 1.25; // as a part of its width
constexpr double highestNarrowCell = 3.0; // the same, up to the height for a value and a name
constexpr double heightForTexts = 36.0; // pixels
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

QString leftOutMark()
{
    return PainterText::tr("left out");
}

} // namespace

WallCell wallCell(
    const DisplayWall &wall, const CabinetAssessment *assessment, const WallScale &scale, std::size_t cabinet)
{
    WallCell cell;
    cell.judgement = Judgement::NotKnown;
    cell.value = undefinedText();
    cell.compactValue = cell.value;
    if (cabinet >= wall.cabinets.size()) {
        cell.name = shortName(wall.incomplete[cabinet - wall.cabinets.size()]);
        return cell;
    }
    cell.name = shortName(wall.cabinets[cabinet]);
    cell.isLeftOut = wall.cabinets[cabinet].isLeftOut;
    if (assessment) {
        cell.color = scale.color(*assessment);
        cell.value = wallValueText(*assessment, scale.quantity());
        cell.compactValue = compactValue(cell.value, scale.quantity());
        cell.judgement = assessment->judgement;
    }
    return cell;
}

LongestTexts longestValues(const std::vector<CabinetAssessment> &cabinets, const WallScale &scale)
{
    LongestTexts longest;
    longest.value = undefinedText();
    longest.compactValue = longest.value;
    if (scale.quantity() == WallQuantity::Limit) {
        // Letters differ in width by far more than digits do.
        const QFontMetricsF metrics(QGuiApplication::font());
        const auto take = [&metrics](QString &widest, const QString &text) {
            if (metrics.horizontalAdvance(text) > metrics.horizontalAdvance(widest)) {
                widest = text;
            }
        };
        for (const WallScale::Step &step : scale.steps()) {
            take(longest.value, step.lower);
            take(longest.compactValue, compactValue(step.lower, scale.quantity()));
        }
        return longest;
    }
    for (const CabinetAssessment &cabinet : cabinets) {
        const QString value = wallValueText(cabinet, scale.quantity());
        if (value.size() > longest.value.size()) {
            longest.value = value;
        }
    }
    longest.compactValue = compactValue(longest.value, scale.quantity());
    return longest;
}

QString compactValue(const QString &value, WallQuantity quantity)
{
    if (quantity == WallQuantity::Limit) {
        return value.left(1).toUpper();
    }
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

WallCellFonts wallCellFonts(const QFont &font, const QSizeF &cell, const LongestTexts &longest)
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
    int value = fitted(widthOf(longest.value), 0.36);
    if (value < leastPixels + 1) {
        fonts.isCompact = true;
        value = fitted(widthOf(longest.compactValue), 0.36);
    }
    // Capitals and digits are about six tenths of the size wide.
    int name = fitted(0.6 * longest.nameLength, 0.33);
    fonts.hasNames = name >= leastPixels;
    if (fonts.hasNames) {
        fonts.hasValues = value >= leastPixels;
    } else {
        // Without one of the two, the other has all of the height.
        constexpr double alone = 0.7;
        value = fitted(widthOf(fonts.isCompact ? longest.compactValue : longest.value), alone);
        fonts.hasValues = value >= leastPixels;
        name = fitted(0.6 * longest.nameLength, alone);
        fonts.hasNames = !fonts.hasValues && name >= leastPixels;
    }
    if (fonts.hasValues && fonts.hasNames) {
        name = std::max(std::min(name, int(value * 0.9)), leastPixels);
    }
    fonts.value = font;
    fonts.value.setPixelSize(std::max(value, 1));
    fonts.name = font;
    fonts.name.setPixelSize(std::max(name, 1));
    return fonts;
}

WallLayout wallLayout(
    const QFont &font, const QSizeF &room, const WallGrid &grid, const LongestTexts &longest, double widest)
{
    WallLayout layout;
    const int rows = std::max(grid.rows, 1);
    const int columns = std::max(grid.columns, 1);
    const auto share = [&] {
        const double width = std::min((room.width() - layout.left) / columns, widest);
        const double highest = std::max(width * highestCell, std::min(width * highestNarrowCell, heightForTexts));
        layout.cell = QSizeF(width, std::min((room.height() - layout.top) / rows, highest));
        layout.fonts = wallCellFonts(font, QSizeF(std::floor(width), std::floor(layout.cell.height())), longest);
    };
    share();
    layout.edgeFont = font;
    if (!layout.fonts.hasNames && !grid.rowNames.empty()) {
        layout.edgeFont.setPixelSize(std::clamp(int(QFontMetricsF(font).height() * 0.6), leastPixels, 2 * leastPixels));
        const QFontMetricsF metrics(layout.edgeFont);
        constexpr double mostOfRoom = 0.2;
        for (const QString &name : grid.rowNames) {
            layout.left = std::max(layout.left, metrics.horizontalAdvance(name));
        }
        layout.left = std::ceil(std::min(layout.left + 4.0, room.width() * mostOfRoom));
        layout.top = std::ceil(metrics.height());
        share();
    }
    return layout;
}

//! Paints the mark of \a judgement into the upper right corner of \a inner.
static void paintMark(QPainter *painter, const QRectF &inner, Judgement judgement, const QColor &color)
{
    const double side = std::min(inner.width(), inner.height());
    constexpr double leastShape = 3.0; // pixels, in which a corner and a circle differ
    constexpr double leastSize = 5.0;
    const bool isFail = judgement == Judgement::Fail;
    const double size = side < leastShape ? (isFail ? 1.0 : 2.0)
                                          : std::clamp(side * 0.28, std::min(std::floor(side), leastSize), 12.0);
    const QRectF mark(std::round(inner.right() - size), std::round(inner.top()), std::round(size), std::round(size));
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    if (side < leastShape) {
        painter->drawRect(mark);
    } else if (isFail) {
        const QPointF triangle[] = {mark.topRight(), mark.topLeft(), mark.bottomRight()};
        painter->drawPolygon(triangle, 3);
    } else if (size < 7.0) {
        // A circle of so few pixels is a square.
        QPainterPath ring;
        ring.addRect(mark);
        ring.addRect(mark.adjusted(1.0, 1.0, -1.0, -1.0));
        painter->drawPath(ring);
    } else {
        const double line = std::max(size * 0.16, 1.2);
        const double inset = line / 2.0 + 0.5;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(color, line));
        painter->drawEllipse(mark.adjusted(inset, inset, -inset, -inset));
    }
    painter->restore();
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
    const double middle = inner.center().y();
    const bool hasBoth = fonts.hasValues && fonts.hasNames;
    painter->setPen(text);
    if (fonts.hasValues) {
        painter->setFont(fonts.value);
        const QRectF upper = hasBoth
            ? QRectF(inner.left(), inner.top() + inner.height() * 0.10, inner.width(), middle - inner.top())
            : inner;
        painter->drawText(upper, Qt::AlignCenter | Qt::TextDontClip, fonts.isCompact ? cell.compactValue : cell.value);
    }
    if (fonts.hasNames) {
        painter->setFont(fonts.name);
        const QRectF lower = hasBoth ? QRectF(inner.left(), middle, inner.width(), inner.height() * 0.42) : inner;
        const QString name = QFontMetricsF(fonts.name).elidedText(cell.name, Qt::ElideMiddle, place.width());
        painter->drawText(lower, Qt::AlignCenter | Qt::TextDontClip, name);
    }
    if (isMarked && side >= 2.0) {
        paintMark(painter, inner, cell.judgement, text);
    }
    if (cell.isLeftOut) {
        painter->setPen(QPen(text, std::clamp(side * 0.04, 1.0, 2.0)));
        painter->drawLine(inner.bottomLeft(), inner.topRight());
    }
}

void paintWallSelection(QPainter *painter, const QRectF &place, const QRectF &map, const QPalette &palette)
{
    // Round the cell, so that nothing of it is hidden, and never so small that it is lost among the cells.
    constexpr double least = 14.0;
    constexpr double line = 2.5;
    constexpr double casing = 1.5;
    const double wider = std::max((least - place.width()) / 2.0, 0.0);
    const double higher = std::max((least - place.height()) / 2.0, 0.0);
    const double room = line / 2.0 + casing;
    const QRectF frame
        = place.adjusted(-wider, -higher, wider, higher).intersected(map.adjusted(room, room, -room, -room));
    painter->setBrush(Qt::NoBrush);
    // Ground on both sides of the accent, so that it stands out from any colour.
    painter->setPen(
        QPen(palette.color(QPalette::Base), line + 2.0 * casing, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(frame);
    painter->setPen(QPen(palette.color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(frame);
}

void paintWallEdge(QPainter *painter, const QRectF &place, Qt::Orientation orientation,
    const std::vector<QString> &names, const std::vector<double> &borders, const QFont &font, const QPalette &palette)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    const std::size_t count = borders.empty() ? 0 : std::min(names.size(), borders.size() - 1);
    if (count == 0) {
        return;
    }
    const QFontMetricsF metrics(font);
    double longest = isHorizontal ? 0.0 : metrics.height() * 0.9;
    for (std::size_t i = 0; i < count && isHorizontal; ++i) {
        longest = std::max(longest, metrics.horizontalAdvance(names[i]) + 3.0);
    }
    // All, or every second, fifth, tenth and so on, as numbers are counted.
    const double each = (borders[count] - borders[0]) / double(count);
    std::size_t step = 1;
    for (const std::size_t factor : {2, 5, 10, 20, 50, 100, 200, 500, 1000}) {
        if (double(step) * each < longest) {
            step = factor;
        }
    }
    painter->setFont(font);
    painter->setPen(palette.color(QPalette::WindowText));
    double end = borders[0] - 1.0; // of the name before
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0 && (i + 1) % step != 0) {
            continue;
        }
        const double length = isHorizontal ? metrics.horizontalAdvance(names[i]) : metrics.height() * 0.9;
        const double from
            = std::max(std::min((borders[i] + borders[i + 1] - length) / 2.0, borders[count] - length), borders[0]);
        if (from < end) {
            continue;
        }
        end = from + length;
        const QRectF box = isHorizontal ? QRectF(from, place.top(), length, place.height())
                                        : QRectF(place.left(), from, place.width() - 3.0, length);
        painter->drawText(box, (isHorizontal ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter | Qt::TextDontClip,
            metrics.elidedText(names[i], Qt::ElideMiddle, isHorizontal ? length + 1.0 : box.width()));
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
    return PainterText::tr("%1. ◥ does not show the target, ○ not known, ╱ %2", "what is shown, and the legend's marks")
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
    WallGrid both = placed;
    both.columns = std::max(placed.columns, others.columns);
    both.rows = placed.rows + others.rows;
    LongestTexts longest = longestValues(cabinets, scale);
    longest.nameLength = longestName(picture.wall);
    const WallLayout layout = wallLayout(font, QSizeF(map.width(), map.height() - note), both, longest, map.width());
    const QSizeF &cell = layout.cell;
    const auto borders = [](double first, double each, int count) {
        std::vector<double> result;
        for (int i = 0; i <= count; ++i) {
            result.push_back(first + each * i);
        }
        return result;
    };
    if (layout.top > 0.0) {
        paintWallEdge(painter, QRectF(map.left(), map.top(), map.width(), layout.top), Qt::Horizontal,
            placed.columnNames, borders(map.left() + layout.left, cell.width(), placed.columns), layout.edgeFont,
            palette);
        paintWallEdge(painter, QRectF(map.left(), map.top(), layout.left, map.height()), Qt::Vertical, placed.rowNames,
            borders(map.top() + layout.top, cell.height(), placed.rows), layout.edgeFont, palette);
    }
    map.adjust(layout.left, layout.top, 0.0, 0.0);
    double top = map.top();
    const auto paintGrid = [&](const WallGrid &grid) {
        for (int row = 0; row < grid.rows; ++row) {
            for (int column = 0; column < grid.columns; ++column) {
                if (const auto cabinet = grid.at(row, column)) {
                    const CabinetAssessment *assessed = *cabinet < cabinets.size() ? &cabinets[*cabinet] : nullptr;
                    paintWallCell(painter,
                        QRectF(QPointF(map.left() + column * cell.width(), top + row * cell.height()), cell),
                        wallCell(picture.wall, assessed, scale, *cabinet), layout.fonts, palette);
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
