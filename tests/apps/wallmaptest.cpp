// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "wallfixture.h"

#include "display/wallassessment.h"
#include "drawing/picture.h"
#include "drawing/wallpainter.h"
#include "editing/targetsession.h"
#include "panel/wallmap.h"
#include "window/wallpage.h"

#include <QAccessible>
#include <QAction>
#include <QActionGroup>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

using namespace gamutviewer;
using namespace wallfixture;

class WallMapTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mapHangsAsTheWall();
    void cellsAreAccessible();
    void quantityIsChosen();
    void quantityThatIsKnownIsShownFirst();
    void cabinetsWithoutAPosition();
    void valuesDoNotFillTheirCells();
    void marksAreSeenInCellsOfAnySize();
    void narrowCellsHaveNamesAndLetters();
    void smallCellsAreNamedAtTheEdges();
    void edgesNameRowsAndColumns();
    void selectedCabinetIsNamedBesideTheMap();
    void manyCabinets();
    void sparseWallKeepsNoGaps();
};

void WallMapTest::mapHangsAsTheWall()
{
    DisplayDescription d = oneDim();
    d.wall.cabinets.erase(d.wall.cabinets.begin() + 6); // B3 is a gap
    WallFixture f(d);
    const QAbstractItemModel *model = f.page()->map()->model();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->columnCount(), 4);
    QCOMPARE(model->index(1, 1).data().toString(), QStringLiteral("−12 %"));
    QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("+10 %"));
    QVERIFY(!model->index(1, 2).flags().testFlag(Qt::ItemIsSelectable));
    // It fills the room without scrolling.
    const QRect last = f.page()->map()->visualRect(model->index(2, 3));
    QVERIFY(f.page()->map()->viewport()->rect().contains(last));
    // What falls short is marked in its corner, in a colour that is not that of the cell.
    const QImage picture = f.page()->map()->grab().toImage();
    const QRect bad = f.page()->map()->visualRect(model->index(1, 1));
    const QRect good = f.page()->map()->visualRect(model->index(0, 0));
    QVERIFY(picture.pixelColor(bad.topRight() + QPoint(-3, 3)) != picture.pixelColor(bad.topLeft() + QPoint(3, 3)));
    QCOMPARE(picture.pixelColor(good.topRight() + QPoint(-3, 3)), picture.pixelColor(good.topLeft() + QPoint(3, 3)));
}

void WallMapTest::cellsAreAccessible()
{
    WallFixture f(oneDim());
    QAccessibleInterface *map = QAccessible::queryAccessibleInterface(f.page()->map());
    QVERIFY(map && map->tableInterface());
    QAccessibleInterface *cell = map->tableInterface()->cellAt(1, 1);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("B2, headroom −12 %, does not show the target"));
    QCOMPARE(map->tableInterface()->cellAt(0, 0)->text(QAccessible::Name),
        QStringLiteral("A1, headroom +10 %, shows the target"));
    QVERIFY(f.page()
                ->map()
                ->model()
                ->index(1, 1)
                .data(Qt::ToolTipRole)
                .toString()
                .contains(QStringLiteral("B2: white reaches ")));
    DisplayDescription d = oneDim();
    d.wall.cabinets[0].name = QStringLiteral("<b>A&1</b>");
    f.window->setDescription(d, QString());
    QVERIFY(f.page()
                ->map()
                ->model()
                ->index(0, 0)
                .data(Qt::ToolTipRole)
                .toString()
                .contains(QStringLiteral("&lt;b&gt;A&amp;1&lt;/b&gt;")));
}

void WallMapTest::quantityIsChosen()
{
    WallFixture f(oneDim());
    const QModelIndex bad = f.page()->map()->indexOf(5);
    const std::pair<WallQuantity, const char *> expected[]
        = {{WallQuantity::UvBefore, "0.0000"}, {WallQuantity::UvAfter, "0.0000"}, {WallQuantity::Luminance, "880"},
            {WallQuantity::Headroom, "−12 %"}, {WallQuantity::Limit, "red"}};
    QString legend;
    for (const auto &[quantity, text] : expected) {
        for (QAction *action : f.page()->quantities()->actions()) {
            if (WallQuantity(action->data().toInt()) == quantity) {
                const auto buttons = f.page()->findChildren<QToolButton *>();
                const auto button = std::find_if(buttons.begin(), buttons.end(),
                    [action](const QToolButton *of) { return of->defaultAction() == action; });
                QVERIFY(button != buttons.end());
                QTest::mouseClick(*button, Qt::LeftButton);
            }
        }
        QCOMPARE(f.page()->quantity(), quantity);
        QCOMPARE(bad.data().toString(), QString::fromUtf8(text));
        QVERIFY(f.page()->legend()->accessibleName() != legend);
        legend = f.page()->legend()->accessibleName();
    }
}

void WallMapTest::quantityThatIsKnownIsShownFirst()
{
    // Luminances that cannot be compared have no headroom.
    DisplayDescription d = oneDim();
    d.gamuts.front().unit = LuminanceUnit::NotKnown;
    WallFixture f(d);
    QCOMPARE(f.page()->quantity(), WallQuantity::Luminance);
    QCOMPARE(f.page()->map()->indexOf(5).data().toString(), QStringLiteral("880"));
    QCOMPARE(f.page()->picture().wall->quantity, WallQuantity::Luminance);
    f.window->setDescription(oneDim(), QString());
    QCOMPARE(f.page()->quantity(), WallQuantity::Headroom);
    // Once the user has chosen, that stays.
    for (QAction *action : f.page()->quantities()->actions()) {
        if (WallQuantity(action->data().toInt()) == WallQuantity::Headroom) {
            action->trigger();
        }
    }
    f.window->setDescription(d, QString());
    QCOMPARE(f.page()->quantity(), WallQuantity::Headroom);
    QCOMPARE(f.page()->map()->indexOf(5).data().toString(), QStringLiteral("–"));
}

void WallMapTest::cabinetsWithoutAPosition()
{
    DisplayDescription d = oneDim();
    d.wall.cabinets[5].row.reset();
    d.wall.cabinets[5].column.reset();
    WallFixture f(d);
    QVERIFY(f.page()->map()->isVisible());
    QVERIFY(f.page()->unplacedMap()->isVisible());
    QVERIFY(!f.page()->map()->indexOf(5).isValid());
    const QModelIndex other = f.page()->unplacedMap()->indexOf(5);
    QVERIFY(other.isValid());
    f.click(f.page()->unplacedMap(), other);
    QCOMPARE(f.selectedName(), QStringLiteral("B2"));
    for (WallCabinet &cabinet : d.wall.cabinets) {
        cabinet.row.reset();
        cabinet.column.reset();
    }
    f.window->setDescription(d, QString());
    QVERIFY(!f.page()->map()->isVisible());
    for (std::size_t i = 0; i < d.wall.cabinets.size(); ++i) {
        QVERIFY(f.page()->unplacedMap()->indexOf(i).isValid());
    }
    f.window->setDescription(oneDim(), QString());
    QVERIFY(!f.page()->unplacedMap()->isVisible());
}

void WallMapTest::valuesDoNotFillTheirCells()
{
    for (const char *value : {"+112 %", "−12 %", "0.0123", "1061"}) {
        for (const double width : {26.0, 40.0, 52.0}) {
            const QString text = QString::fromUtf8(value);
            const QString compact = compactValue(text, WallQuantity::Headroom);
            const WallCellFonts fonts
                = wallCellFonts(QGuiApplication::font(), QSizeF(width, width * 1.25), {text, compact, 3});
            QVERIFY(fonts.hasValues);
            const double taken = QFontMetricsF(fonts.value).horizontalAdvance(fonts.isCompact ? compact : text);
            QVERIFY2(taken <= 0.9 * width, qPrintable(QStringLiteral("%1: %2 of %3").arg(text).arg(taken).arg(width)));
            QVERIFY2(taken >= 0.4 * width, qPrintable(QStringLiteral("%1: %2 of %3").arg(text).arg(taken).arg(width)));
        }
    }
}

namespace {

//! A cell of \a side that is judged as \a judgement, in luminances alone.
QImage greyCell(int side, Judgement judgement, const QColor &color)
{
    WallCell cell;
    cell.color = color;
    cell.judgement = judgement;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintWallCell(&painter, image.rect(), cell, {}, QPalette());
    painter.end();
    return image.convertToFormat(QImage::Format_Grayscale8);
}

//! In how many pixels \a a and \a b differ by so much that it is seen.
int differingPixels(const QImage &a, const QImage &b)
{
    constexpr int seen = 60; // of 255
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) >= seen ? 1 : 0;
        }
    }
    return count;
}

} // namespace

void WallMapTest::marksAreSeenInCellsOfAnySize()
{
    std::vector<QColor> colors{QColor()}; // of a cabinet of which nothing is known
    std::vector<CabinetAssessment> cabinets(20);
    for (std::size_t i = 0; i < cabinets.size(); ++i) {
        cabinets[i].headroom = 0.8 + 0.02 * double(i);
        cabinets[i].largestWhite = 800.0 + 20.0 * double(i);
        cabinets[i].uvBefore = 0.001 * double(i);
        cabinets[i].uvAfter = 0.001 * double(i);
    }
    for (const WallQuantity quantity : allWallQuantities) {
        const WallScale scale(quantity, cabinets, cd);
        QVERIFY(!scale.steps().isEmpty());
        for (const WallScale::Step &step : scale.steps()) {
            colors.push_back(step.color);
        }
    }
    for (const int side : {2, 3, 4, 6, 8, 10, 14, 18, 24, 26, 40, 100}) {
        for (const QColor &color : colors) {
            const QImage passes = greyCell(side, Judgement::Pass, color);
            const QImage fails = greyCell(side, Judgement::Fail, color);
            const QImage unknown = greyCell(side, Judgement::NotKnown, color);
            const QString what = QStringLiteral("%1 pixels, %2").arg(side).arg(color.name());
            const int least = side < 4 ? 1 : 4;
            QVERIFY2(differingPixels(passes, fails) >= least, qPrintable(what));
            QVERIFY2(differingPixels(passes, unknown) >= least, qPrintable(what));
            QVERIFY2(differingPixels(fails, unknown) >= least, qPrintable(what));
        }
    }
    const QString legend = wallLegendText(WallScale());
    QVERIFY2(legend.contains(QStringLiteral("○ not known")), qPrintable(legend));
}

void WallMapTest::narrowCellsHaveNamesAndLetters()
{
    WallFixture f(description(8, 12));
    WallMap *map = f.page()->map();
    // 12 columns in the least width of a map: the cells are higher than wide, as far as there is room.
    const WallGrid grid = placedCabinets(f.wall());
    LongestTexts limits = longestValues({}, WallScale(WallQuantity::Limit, {}, cd));
    limits.nameLength = longestName(f.wall());
    QCOMPARE(compactValue(QStringLiteral("green"), WallQuantity::Limit), QStringLiteral("G"));
    const WallLayout layout = wallLayout(map->font(), QSizeF(216, 500), grid, limits, 150);
    QVERIFY(layout.fonts.hasNames && layout.fonts.hasValues && layout.fonts.isCompact);
    QVERIFY(layout.fonts.name.pixelSize() >= 7 && layout.fonts.value.pixelSize() >= 7);
    QCOMPARE(layout.top, 0.0);
    // All of a name is there.
    QVERIFY(QFontMetricsF(layout.fonts.name).horizontalAdvance(QStringLiteral("H12")) <= layout.cell.width());
    for (const double width : {18.0, 19.0, 20.0}) {
        WallCell cell;
        cell.color = Qt::white;
        cell.name = QStringLiteral("A10");
        const WallCellFonts fonts = wallCellFonts(
            map->font(), QSizeF(width, 36.0), {QStringLiteral("12345678"), QStringLiteral("12345678"), 3});
        QVERIFY(fonts.hasNames && !fonts.hasValues);
        const auto painted = [&](const QString &name) {
            cell.name = name;
            QImage image(QSize(int(width), 36), QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            paintWallCell(&painter, image.rect(), cell, fonts, QPalette());
            return image;
        };
        QVERIFY(painted(QStringLiteral("A10")) != painted(QStringLiteral("B21"))); // not "…" for both
    }
    QVERIFY(layout.cell.height() > 1.25 * layout.cell.width());
    // A value that is too wide does not take the name with it.
    const WallLayout distances
        = wallLayout(map->font(), QSizeF(216, 500), grid, {QStringLiteral("0.0123"), QStringLiteral(".0123"), 3}, 150);
    QVERIFY(distances.fonts.hasNames && !distances.fonts.hasValues);
    // Wide ones are not stretched.
    const WallLayout wide = wallLayout(map->font(), QSizeF(600, 2000), grid, limits, 150);
    QCOMPARE(wide.cell.height(), 62.5);
}

void WallMapTest::smallCellsAreNamedAtTheEdges()
{
    WallFixture f(description(8, 120));
    WallMap *map = f.page()->map();
    QVERIFY(map->horizontalHeader()->isVisible());
    QVERIFY(map->verticalHeader()->isVisible());
    QCOMPARE(map->model()->headerData(2, Qt::Vertical).toString(), QStringLiteral("C"));
    QCOMPARE(map->model()->headerData(99, Qt::Horizontal).toString(), QStringLiteral("100"));
    const QRect last = map->visualRect(map->model()->index(7, 119));
    QVERIFY(map->viewport()->rect().contains(last));
    const auto inkOf = [](QWidget *widget) {
        const QImage image = widget->grab().toImage();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                dark += qGray(image.pixel(x, y)) < 170 ? 1 : 0;
            }
        }
        return dark;
    };
    QVERIFY(inkOf(map->horizontalHeader()) > 30);
    QVERIFY(inkOf(map->verticalHeader()) > 30);
    // The frame of the cabinet that is selected is larger than its cell.
    const auto coloured = [&](const QColor &color) {
        const QImage image = map->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count;
    };
    const QColor accent = map->palette().color(QPalette::Highlight);
    const int before = coloured(accent);
    for (const std::size_t cabinet : {std::size_t(0), std::size_t(403), f.wall().cabinets.size() - 1}) {
        f.window->session()->selectCabinet(cabinet);
        QVERIFY(coloured(accent) > before + 50);
    }
    // Where names fit into the cells, they are there.
    f.window->setDescription(oneDim(), QString());
    QTRY_VERIFY(!map->horizontalHeader()->isVisible());
    QVERIFY(!map->verticalHeader()->isVisible());
}

void WallMapTest::edgesNameRowsAndColumns()
{
    DisplayDescription d = description(3, 4);
    for (WallCabinet &cabinet : d.wall.cabinets) { // columns are letters
        cabinet.name = QStringLiteral("%1%2").arg(QChar('A' + *cabinet.column - 1)).arg(*cabinet.row + 10);
    }
    WallGrid grid = placedCabinets(d.wall);
    QCOMPARE(grid.rowNames.at(2), QStringLiteral("13"));
    QCOMPARE(grid.columnNames.at(3), QStringLiteral("D"));
    // Other names say nothing of the place: then the numbers of the rows and columns are told.
    d.wall.cabinets[5].name = QStringLiteral("spare");
    d.wall.cabinets[0].row = 0;
    grid = placedCabinets(d.wall);
    QCOMPARE(grid.rowNames, (std::vector<QString>{"0", "1", "2", "3"}));
    QCOMPARE(grid.columnNames, (std::vector<QString>{"1", "2", "3", "4"}));
}

void WallMapTest::selectedCabinetIsNamedBesideTheMap()
{
    DisplayDescription d = oneDim();
    d.wall.cabinets[11].row.reset();
    d.wall.cabinets[11].column.reset();
    WallFixture f(d);
    QLabel *note = f.page()->selectionNote();
    QCOMPARE(note->text(), QString());
    f.click(f.page()->map(), f.page()->map()->indexOf(5));
    QCOMPARE(note->text(), QStringLiteral("✗ B2: headroom −12 %"));
    QVERIFY(note->isVisible());
    f.window->session()->selectCabinet(11); // without a position
    QVERIFY(note->text().startsWith(QStringLiteral("✓ C4: headroom")));
    for (QAction *action : f.page()->quantities()->actions()) {
        if (WallQuantity(action->data().toInt()) == WallQuantity::Limit) {
            action->trigger();
        }
    }
    f.window->session()->selectCabinet(5);
    QCOMPARE(note->text(), QStringLiteral("✗ B2: limits red"));
    f.window->session()->selectCabinet(std::nullopt);
    QCOMPARE(note->text(), QString());
}

void WallMapTest::manyCabinets()
{
    WallFixture f(description(100, 100));
    WallMap *map = f.page()->map();
    QCOMPARE(map->model()->rowCount(), 100);
    QVERIFY(map->viewport()->rect().contains(map->visualRect(map->model()->index(99, 99))));
    const QSize cell = map->visualRect(map->model()->index(50, 50)).size();
    QVERIFY(cell.width() >= 1 && cell.height() >= 1);
    f.click(map, map->model()->index(99, 99));
    QCOMPARE(f.window->session()->selectedCabinet(), std::make_optional(std::size_t(9999)));
}

void WallMapTest::sparseWallKeepsNoGaps()
{
    DisplayDescription d = description(2, 2);
    d.wall.cabinets[3].row = 2000000000;
    d.wall.cabinets[3].column = -2000000000;
    const WallGrid grid = placedCabinets(d.wall);
    QCOMPARE(grid.rows, 3);
    QCOMPARE(grid.columns, 3);
    QCOMPARE(grid.at(2, 0), std::make_optional(std::size_t(3)));
    QCOMPARE(grid.at(0, 1), std::make_optional(std::size_t(0)));
    QVERIFY(!grid.at(2, 1));
}

QTEST_MAIN(WallMapTest)
#include "wallmaptest.moc"
