// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "wallfixture.h"

#include "display/samples.h"
#include "display/wallassessment.h"
#include "drawing/picture.h"
#include "drawing/wallpainter.h"
#include "editing/targetsession.h"
#include "panel/cabinetmodel.h"
#include "panel/cabinettable.h"
#include "panel/closelook.h"
#include "panel/sidepanel.h"
#include "panel/verdict.h"
#include "panel/wallmap.h"
#include "panel/wallmapmodel.h"
#include "panel/wallverdict.h"
#include "panel/warningbar.h"
#include "window/listdialog.h"
#include "window/wallpage.h"

#include <gamutfiles/correctionsfile.h>

#include <QAccessible>
#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

using namespace gamutviewer;

class WallPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAWallItSaysHowToGetOne();
    void mapHangsAsTheWall();
    void cellsAreAccessible();
    void arrowsSelectInMapLooksAndTable();
    void tableAndDotsSelect();
    void quantityIsChosen();
    void quantityThatIsKnownIsShownFirst();
    void fitIsOneStep();
    void fitIsOfferedAlikeOnPageAndPanel();
    void cabinetIsLeftOut();
    void chosenLineIsFollowed();
    void draggingTheTargetIsFollowed();
    void cabinetsWithoutAPosition();
    void incompleteCabinetsAreShown();
    void sampleWallIsOpened();
    void tableIsSorted();
    void headersTakeTwoLines();
    void valuesDoNotFillTheirCells();
    void marksAreSeenInCellsOfAnySize();
    void narrowCellsHaveNamesAndLetters();
    void smallCellsAreNamedAtTheEdges();
    void edgesNameRowsAndColumns();
    void selectedCabinetIsNamedBesideTheMap();
    void longNamesAreSeen();
    void selectedRowStaysInSight();
    void nameInACloseLookIsWhole();
    void allColumnsAreSeen();
    void tableIsCopiedWhole();
    void wallIsRemoved();
    void verdictOfThePanelFitsToTheWall();
    void warningsAreInThePanel();
    void pictureShowsTheWall();
    void correctionsAreWritten();
    void listIsOpenedAsAWall();
    void manyCabinets();
    void sparseWallKeepsNoGaps();
};

void WallPageTest::withoutAWallItSaysHowToGetOne()
{
    WindowFixture f;
    f.show(f.window->wallPage());
    QVERIFY(f.window->wallPage()->emptyNote()->isVisible());
    QVERIFY(f.window->wallPage()->emptyNote()->text().contains(QStringLiteral("a column for the cabinet")));
    QVERIFY(!f.window->wallPage()->map()->isVisible());
    QVERIFY(!f.window->wallPage()->picture().wall);
    f.window->setDescription(oneDim(), QString());
    QVERIFY(f.window->wallPage()->map()->isVisible());
    QVERIFY(!f.window->wallPage()->emptyNote()->isVisible());
}

void WallPageTest::mapHangsAsTheWall()
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

void WallPageTest::cellsAreAccessible()
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

void WallPageTest::arrowsSelectInMapLooksAndTable()
{
    WallFixture f(oneDim());
    f.click(f.page()->map(), f.page()->map()->model()->index(0, 0));
    QCOMPARE(f.selectedName(), QStringLiteral("A1"));
    QTest::keyClick(f.page()->map(), Qt::Key_Right);
    QTest::keyClick(f.page()->map(), Qt::Key_Down);
    QCOMPARE(f.selectedName(), QStringLiteral("B2"));
    CabinetTable *table = f.page()->table();
    QVERIFY(table->selectionModel()->isRowSelected(0, QModelIndex())); // the worst is first
    QCOMPARE(table->cabinets()->cabinetIn(0), std::size_t(5));
    const QImage with = f.page()->closeLook(Vertex::Green)->grab().toImage();
    QTest::keyClick(f.page()->map(), Qt::Key_Escape);
    QVERIFY(!f.window->session()->selectedCabinet());
    QVERIFY(!table->selectionModel()->hasSelection());
    QVERIFY(f.page()->closeLook(Vertex::Green)->grab().toImage() != with);
}

void WallPageTest::tableAndDotsSelect()
{
    DisplayDescription d = oneDim();
    WallCabinet &apart = d.wall.cabinets[7];
    apart.green = color(apart.green.Y, 0.18, 0.78);
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    f.click(table, table->model()->index(2, 1));
    QCOMPARE(f.window->session()->selectedCabinet(), std::make_optional(table->cabinets()->cabinetIn(2)));
    QCOMPARE(f.page()->map()->currentIndex(), f.page()->map()->indexOf(table->cabinets()->cabinetIn(2)));
    CloseLook *look = f.page()->closeLook(Vertex::Green);
    const QPoint at = look->viewport().toPosition(QPointF(0.18, 0.78)).toPoint();
    QVERIFY(look->rect().contains(at));
    QTest::mouseClick(look, Qt::LeftButton, Qt::NoModifier, at);
    QCOMPARE(f.selectedName(), QStringLiteral("B4"));
    QCOMPARE(f.page()->map()->currentIndex(), f.page()->map()->indexOf(7));
    QCOMPARE(table->currentIndex().row(), table->cabinets()->rowOf(7));
}

void WallPageTest::quantityIsChosen()
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

void WallPageTest::quantityThatIsKnownIsShownFirst()
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

void WallPageTest::fitIsOneStep()
{
    WallFixture f(oneDim());
    QVERIFY(
        f.page()->verdict()->text().startsWith(QStringLiteral("✗ 11 of 12 cabinets show this target; B2 does not")));
    QTest::mouseClick(f.page()->verdict()->fitButton(), Qt::LeftButton);
    QVERIFY2(f.page()->verdict()->text().startsWith(QStringLiteral("✓ All 12 cabinets show this target")),
        qPrintable(f.page()->verdict()->text()));
    QVERIFY(!f.page()->verdict()->fitButton()->isEnabled());
    QCOMPARE(f.document().target()->getTargets().white.Y, 880.8); // of 880.88, in the digits that are shown
    QCOMPARE(f.document().history()->count(), 1);
    f.document().history()->undo();
    QCOMPARE(f.document().target()->getTargets().white.Y, 1000.0);
    QVERIFY(f.page()->verdict()->text().startsWith(QStringLiteral("✗")));
    // A step that cannot be made says why.
    DisplayDescription d = oneDim();
    WallCabinet &other = d.wall.cabinets[3];
    other.red = color(200.0, 0.05, 0.40);
    other.green = color(200.0, 0.10, 0.80);
    other.blue = color(200.0, 0.04, 0.55);
    f.window->setDescription(d, QString());
    QSignalSpy refused(f.window->session(), &TargetSession::refused);
    QTest::mouseClick(f.page()->verdict()->fitButton(), Qt::LeftButton);
    QCOMPARE(refused.count(), 1);
    QVERIFY(refused.first().first().toString().contains(QStringLiteral("have no colour in common")));
    QCOMPARE(f.document().history()->count(), 0);
}

void WallPageTest::fitIsOfferedAlikeOnPageAndPanel()
{
    DisplayDescription d = oneDim();
    d.gamuts.front().unit = LuminanceUnit::NotKnown;
    d.wall.cabinets[5].red = color(200.0, 0.60, 0.33);
    WallFixture f(d);
    QToolButton *ofPage = f.page()->verdict()->fitButton();
    const auto buttons = f.window->panel()->verdict()->findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
        [](const QPushButton *button) { return button->text() == QLatin1String("F&it target to the wall"); });
    QVERIFY(found != buttons.end());
    QVERIFY(ofPage->isEnabled());
    QVERIFY((*found)->isEnabled());
    QTest::mouseClick(ofPage, Qt::LeftButton);
    QCOMPARE(f.document().history()->count(), 1);
    // Its luminance is not known to be reached still, but there is nothing more to fit.
    QVERIFY(f.window->session()->assessment().wall->judgement == Judgement::NotKnown);
    QVERIFY(!ofPage->isEnabled());
    QVERIFY(!(*found)->isEnabled());
    f.document().history()->undo();
    QVERIFY(ofPage->isEnabled());
    QVERIFY((*found)->isEnabled());
}

void WallPageTest::cabinetIsLeftOut()
{
    WallFixture f(oneDim());
    QToolButton *without = f.page()->verdict()->withoutButton();
    QCOMPARE(without->text(), QStringLiteral("Without B2"));
    QVERIFY(!f.page()->verdict()->countAgainButton()->isVisible());
    QTest::mouseClick(without, Qt::LeftButton);
    QVERIFY(f.wall().cabinets[5].isLeftOut);
    QVERIFY2(f.page()->verdict()->text().startsWith(QStringLiteral("✓ 11 cabinets show this target; one is left out")),
        qPrintable(f.page()->verdict()->text()));
    QVERIFY(f.page()->verdict()->text().contains(QStringLiteral("Left out of this verdict: B2.")));
    QVERIFY(f.window->panel()->verdict()->text().startsWith(QStringLiteral("✓")));
    f.document().history()->undo();
    QVERIFY(!f.wall().cabinets[5].isLeftOut);
    f.document().history()->redo();
    // It is stored.
    const QString file = f.settings.filePath(QStringLiteral("stage.json"));
    QVERIFY(f.window->saveTo(file));
    const auto read = readGamutFile(file);
    QVERIFY(read);
    QVERIFY(read->description.wall.cabinets.at(5).isLeftOut);
    QTest::mouseClick(f.page()->verdict()->countAgainButton(), Qt::LeftButton);
    QVERIFY(!f.wall().cabinets[5].isLeftOut);
    // With none that fails, the one that is selected can be left out.
    f.window->setDescription(description(2, 2), QString());
    QVERIFY(!without->isVisible());
    f.click(f.page()->map(), f.page()->map()->model()->index(1, 0));
    QCOMPARE(without->text(), QStringLiteral("Without B1"));
}

// The line that was chosen is the one that stays highlighted, if it stays at all.
void WallPageTest::chosenLineIsFollowed()
{
    DisplayDescription several = description(3, 4);
    for (const std::size_t i : {1, 5, 6, 9}) {
        dim(several.wall.cabinets[i]);
    }
    WallFixture f(several);
    WallVerdict *verdict = f.page()->verdict();
    QListWidget *lines = verdict->lines();
    const auto choose = [&](const QString &name) {
        const auto found = lines->findItems(QStringLiteral("✗ %1: ").arg(name), Qt::MatchStartsWith);
        QCOMPARE(found.size(), 1);
        lines->setCurrentItem(found.first());
        Q_EMIT lines->itemActivated(found.first());
        QCOMPARE(f.selectedName(), name);
    };
    choose(QStringLiteral("B2"));
    QCOMPARE(verdict->withoutButton()->text(), QStringLiteral("Without B2"));
    QTest::mouseClick(verdict->withoutButton(), Qt::LeftButton);
    QVERIFY(f.wall().cabinets[5].isLeftOut);
    QVERIFY(!lines->currentItem());
    QVERIFY(lines->selectedItems().isEmpty());
    // Another line above it is gone.
    choose(QStringLiteral("B3"));
    f.window->session()->setLeftOut({1}, true);
    QVERIFY(lines->currentItem() && lines->currentItem()->text().startsWith(QStringLiteral("✗ B3: ")));
}

void WallPageTest::draggingTheTargetIsFollowed()
{
    WallFixture f(oneDim());
    const QModelIndex cell = f.page()->map()->indexOf(0);
    const QString before = cell.data().toString();
    const QString white = f.page()->table()->model()->index(0, CabinetModel::White).data().toString();
    f.window->session()->beginDrag(Vertex::White);
    Model::Targets targets = f.document().target()->getTargets();
    targets.white = color(targets.white.Y, 0.29, 0.30);
    f.window->session()->dragTo(targets);
    QVERIFY(cell.data().toString() != before);
    QVERIFY(f.page()->table()->model()->index(0, CabinetModel::White).data().toString() != white);
    f.window->session()->cancelDrag();
    QCOMPARE(cell.data().toString(), before);
}

void WallPageTest::cabinetsWithoutAPosition()
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

void WallPageTest::incompleteCabinetsAreShown()
{
    DisplayDescription d = oneDim();
    d.wall.incomplete = {{QStringLiteral("C9"), Model::GridPosition{3, 5}, QStringLiteral("red is missing")},
        {QStringLiteral("X"), std::nullopt, QStringLiteral("lost")}};
    WallFixture f(d);
    WallMap *map = f.page()->map();
    const auto *model = qobject_cast<const WallMapModel *>(map->model());
    QVERIFY(model);
    QCOMPARE(model->columnCount(), 5);
    const QModelIndex index = model->index(2, 4);
    const auto cell = model->cell(index);
    QVERIFY(cell);
    QCOMPARE(cell->name, QStringLiteral("C9"));
    QVERIFY(cell->judgement == Judgement::NotKnown);
    QVERIFY(!cell->color.isValid());
    QCOMPARE(
        index.data(Qt::AccessibleTextRole).toString(), QStringLiteral("C9: nothing is known of it: red is missing"));
    QVERIFY(!model->cell(model->index(0, 4))); // a gap
    f.click(map, index);
    QCOMPARE(f.selectedName(), QString());
    f.click(map, map->indexOf(5));
    QCOMPARE(f.selectedName(), QStringLiteral("B2"));
    QVERIFY(f.page()->unplacedMap()->isVisible());
    QVERIFY(f.page()->incompleteNote()->isVisible());
    QCOMPARE(f.page()->incompleteNote()->text(), QStringLiteral("Nothing is known of C9 (red is missing), X (lost)."));
    PictureExtent extent;
    extent.size = QSize(600, 500);
    const QString file = f.settings.filePath(QStringLiteral("gaps.svg"));
    QVERIFY(f.window->exportTo(file, f.page()->picture(), extent));
    QFile svg(file);
    QVERIFY(svg.open(QIODevice::ReadOnly));
    QVERIFY(svg.readAll().contains("C9"));
    f.window->setDescription(oneDim(), QString());
    QVERIFY(!f.page()->incompleteNote()->isVisible());
    QCOMPARE(model->columnCount(), 4);
}

void WallPageTest::sampleWallIsOpened()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QAction *open = nullptr;
    for (QAction *action : f.window->findChildren<QAction *>()) {
        open = action->text() == QLatin1String("The &cabinets of a simulated wall") ? action : open;
    }
    QVERIFY(open);
    const QString sample
        = QFileInfo(QStringLiteral(SAMPLE_FILE)).dir().filePath(QFileInfo(sampleWallFile()).fileName());
    QVERIFY(f.window->openWall(sample));
    QCOMPARE(f.document().description().wall.cabinets.size(), std::size_t(96));
    QCOMPARE(f.window->currentPage(), f.window->wallPage());
    QVERIFY(f.window->warnings()->isHidden());
}

void WallPageTest::tableIsSorted()
{
    DisplayDescription d = description(1, 12);
    dim(d.wall.cabinets[4]);
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    const auto name = [table](int row) { return table->model()->index(row, CabinetModel::Name).data().toString(); };
    QCOMPARE(name(0), QStringLiteral("✗ A5"));
    table->sortByColumn(CabinetModel::Name, Qt::DescendingOrder);
    QCOMPARE(name(0), QStringLiteral("✓ A12"));
    QCOMPARE(name(2), QStringLiteral("✓ A10"));
    QCOMPARE(name(3), QStringLiteral("✓ A9"));
    table->sortByColumn(CabinetModel::Headroom, Qt::AscendingOrder);
    QCOMPARE(name(0), QStringLiteral("✗ A5"));
    QCOMPARE(name(1), QStringLiteral("✓ A1"));
    // The selection stays with its cabinet.
    f.click(table, table->model()->index(1, 0));
    table->sortByColumn(CabinetModel::Headroom, Qt::DescendingOrder);
    QCOMPARE(f.selectedName(), QStringLiteral("A1"));
    QCOMPARE(name(table->currentIndex().row()), QStringLiteral("✓ A1"));
}

void WallPageTest::headersTakeTwoLines()
{
    WallFixture f(oneDim());
    CabinetTable *table = f.page()->table();
    QHeaderView *header = table->horizontalHeader();
    const QFontMetrics metrics(header->font());
    const auto width = [&](int column) { return header->sectionSize(column); };
    const auto isWhole = [&](int column) {
        const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
        const QRect needed
            = metrics.boundingRect(QRect(0, 0, width(column), 1000), Qt::AlignLeft | Qt::TextWordWrap, title);
        const int value = metrics.horizontalAdvance(table->model()->index(0, column).data().toString());
        return needed.width() <= width(column) && needed.height() <= header->height() && value <= width(column);
    };
    for (int column = 0; column < CabinetModel::ColumnCount; ++column) {
        QVERIFY2(isWhole(column), qPrintable(QString::number(column)));
        const int flags = table->model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
        QVERIFY(flags & Qt::TextWordWrap);
    }
    for (const int column : {int(CabinetModel::LimitedBy), int(CabinetModel::UvBefore), int(CabinetModel::UvAfter)}) {
        const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
        QVERIFY2(width(column) < metrics.horizontalAdvance(title), qPrintable(title));
    }
    // The unit is not broken at its slash, and copied as part of the title.
    QCOMPARE(
        table->model()->headerData(CabinetModel::White, Qt::Horizontal).toString(), QStringLiteral("white\ncd/m²"));
    table->copy();
    QVERIFY(QApplication::clipboard()->text().contains(QStringLiteral("\twhite cd/m²\t")));
    // The arrow of the column that is sorted by gets room of its own.
    const int before = width(CabinetModel::Headroom);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
        QPoint(header->sectionViewportPosition(CabinetModel::Headroom) + before / 2, header->height() / 2));
    QVERIFY(width(CabinetModel::Headroom) > before);
    table->sortByJudgement();
    QCOMPARE(width(CabinetModel::Headroom), before);
}

void WallPageTest::valuesDoNotFillTheirCells()
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

void WallPageTest::marksAreSeenInCellsOfAnySize()
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

void WallPageTest::narrowCellsHaveNamesAndLetters()
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

void WallPageTest::smallCellsAreNamedAtTheEdges()
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

void WallPageTest::edgesNameRowsAndColumns()
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

void WallPageTest::selectedCabinetIsNamedBesideTheMap()
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

void WallPageTest::longNamesAreSeen()
{
    DisplayDescription d = oneDim();
    for (WallCabinet &cabinet : d.wall.cabinets) {
        cabinet.name.prepend(QStringLiteral("Stage-"));
    }
    d.wall.cabinets[5].isLeftOut = true;
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    const auto room = [table] {
        return table->columnWidth(CabinetModel::Name)
            - 2 * (table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1);
    };
    const QFontMetrics metrics(table->font());
    const int row = table->cabinets()->rowOf(5);
    const QString leftOut = table->model()->index(row, CabinetModel::Name).data().toString();
    QVERIFY(leftOut.endsWith(QStringLiteral("Stage-B2 (left out)")));
    QVERIFY(room() >= metrics.horizontalAdvance(leftOut));
    // Names of any length are cut in the middle, as their ends differ; the tool tip has all of them.
    const QString longName = QStringLiteral("Stage-left-side-upper-row-cabinet-A1");
    d.wall.cabinets[0].name = longName;
    f.window->setDescription(d, QString());
    QVERIFY(room() < metrics.horizontalAdvance(longName));
    QCOMPARE(table->textElideMode(), Qt::ElideMiddle);
    const QModelIndex first = table->model()->index(table->cabinets()->rowOf(0), CabinetModel::Name);
    QVERIFY(first.data(Qt::ToolTipRole).toString().contains(longName));
    d.target.clear();
    f.window->setDescription(d, QString());
    QVERIFY(table->model()->index(0, 0).data(Qt::ToolTipRole).toString().contains(longName));
    f.window->setDescription(oneDim(), QString());
    QVERIFY(room() < metrics.horizontalAdvance(leftOut));
}

void WallPageTest::selectedRowStaysInSight()
{
    DisplayDescription d = description(8, 12);
    dim(d.wall.cabinets[1]);
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    f.click(table, table->model()->index(0, 1));
    QCOMPARE(f.selectedName(), QStringLiteral("A2"));
    QTest::mouseClick(f.page()->verdict()->withoutButton(), Qt::LeftButton);
    QCOMPARE(table->currentIndex().row(), 95);
    QTRY_VERIFY(table->viewport()->rect().contains(table->visualRect(table->currentIndex()).center()));
}

void WallPageTest::nameInACloseLookIsWhole()
{
    DisplayDescription d = description(3, 4);
    for (std::size_t i = 0; i < d.wall.cabinets.size(); ++i) {
        WallCabinet &cabinet = d.wall.cabinets[i];
        cabinet.name = QString(int(i) * 4 + 2, QLatin1Char('M')) + QString::number(i);
        cabinet.green
            = color(cabinet.green.Y, 0.17 + 0.002 * double((i * 5) % 12), 0.797 - 0.01 * double((i * 7) % 12));
    }
    WallFixture f(d);
    for (const Vertex vertex : ceiechart::allGamutVertices) {
        const CloseLook *look = f.page()->closeLook(vertex);
        QVERIFY(look->selectedLabel().isEmpty());
        for (std::size_t i = 0; i < d.wall.cabinets.size(); ++i) {
            f.window->session()->selectCabinet(i);
            QVERIFY(!look->selectedLabel().isEmpty());
            QVERIFY(QRectF(look->rect()).contains(look->selectedLabel()));
        }
        f.window->session()->selectCabinet(std::nullopt);
    }
}

void WallPageTest::allColumnsAreSeen()
{
    const QFont before = QApplication::font();
    QFont usual = before;
    usual.setPointSize(9); // as on desktops
    QApplication::setFont(usual);
    const std::unique_ptr<const QFont, void (*)(const QFont *)> restored(
        &before, [](const QFont *font) { QApplication::setFont(*font); });
    WallFixture f(description(8, 12));
    f.window->resize(1024, 768);
    QTRY_COMPARE(f.window->size(), QSize(1024, 768));
    CabinetTable *table = f.page()->table();
    const auto areSeen = [table] { return table->horizontalHeader()->length() <= table->viewport()->width(); };
    QTRY_VERIFY(areSeen());
    table->sortByColumn(CabinetModel::Headroom, Qt::DescendingOrder); // with an arrow
    QTRY_VERIFY(areSeen());
    QVERIFY(f.page()->map()->width() > 200);
    QVERIFY(f.page()->map()->isVisible());
}

void WallPageTest::tableIsCopiedWhole()
{
    WallFixture f(oneDim());
    f.page()->table()->setFocus();
    QTest::keyClick(f.page()->table(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 13);
    QCOMPARE(lines.first(),
        QStringLiteral("cabinet\tlimited by\twhite cd/m²\theadroom\tΔu′v′ before\tΔu′v′ after\tΔu′v′ beside"));
    QCOMPARE(lines.at(1), QStringLiteral("✗ B2\tred\t880.8\t−12 %\t0.0000\t0.0000\t0.0000"));
}

void WallPageTest::wallIsRemoved()
{
    WallFixture f(oneDim());
    f.window->session()->selectCabinet(3);
    f.window->session()->removeWall();
    QVERIFY(f.wall().cabinets.empty());
    QVERIFY(!f.window->session()->selectedCabinet());
    QVERIFY(f.page()->emptyNote()->isVisible());
    f.document().history()->undo();
    QCOMPARE(f.wall().cabinets.size(), std::size_t(12));
    QVERIFY(f.page()->map()->isVisible());
}

void WallPageTest::verdictOfThePanelFitsToTheWall()
{
    WallFixture f(oneDim());
    Verdict *verdict = f.window->panel()->verdict();
    QVERIFY(verdict->text().contains(QStringLiteral("11 of 12 cabinets show this target; B2 does not.")));
    QCOMPARE(verdict->fitButton()->text(), QStringLiteral("F&it target to the wall"));
    QTest::mouseClick(verdict->fitButton(), Qt::LeftButton);
    QVERIFY(verdict->text().startsWith(QStringLiteral("✓")));
}

void WallPageTest::warningsAreInThePanel()
{
    DisplayDescription bright = description(1, 4);
    bright.wall.cabinets[2].black = color(2.0, 0.36, 0.38);
    WallFixture f(bright);
    QVERIFY2(
        f.window->panel()->verdict()->text().contains(QStringLiteral("\n! Content that is darker than the target")),
        qPrintable(f.window->panel()->verdict()->text()));
}

void WallPageTest::pictureShowsTheWall()
{
    WallFixture f(oneDim());
    const Picture picture = f.page()->picture();
    QVERIFY(picture.wall);
    PictureExtent extent;
    extent.size = QSize(600, 500);
    const QImage pixels = pixelsOf(picture, extent);
    const WallScale scale(WallQuantity::Headroom, f.window->session()->assessment().wall->cabinets, cd);
    const QRgb bad = scale.color(f.window->session()->assessment().wall->cabinets.at(5)).rgb();
    const QRgb good = scale.color(f.window->session()->assessment().wall->cabinets.at(0)).rgb();
    int badPixels = 0;
    int goodPixels = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            badPixels += pixels.pixel(x, y) == bad;
            goodPixels += pixels.pixel(x, y) == good;
        }
    }
    QVERIFY(badPixels > 1000);
    QVERIFY(goodPixels > 5 * badPixels);
    const QString file = f.settings.filePath(QStringLiteral("wall.svg"));
    QVERIFY(f.window->exportTo(file, picture, extent));
    QFile svg(file);
    QVERIFY(svg.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(svg.readAll());
    QVERIFY(text.contains(QStringLiteral("11 of 12 cabinets show this target")));
    QVERIFY(text.contains(QStringLiteral("B2")));
}

void WallPageTest::correctionsAreWritten()
{
    WallFixture f(oneDim());
    QSignalSpy wanted(f.page(), &WallPage::exportWanted);
    QVERIFY(f.page()->verdict()->exportButton()->isEnabled());
    disconnect(f.page(), &WallPage::exportWanted, f.window.get(), nullptr); // the dialog of files
    QTest::mouseClick(f.page()->verdict()->exportButton(), Qt::LeftButton);
    QCOMPARE(wanted.count(), 1);
    for (const QString &suffix : {QStringLiteral("csv"), QStringLiteral("json")}) {
        const QString file = f.settings.filePath(QStringLiteral("corrections.") + suffix);
        QVERIFY(f.window->exportCorrectionsTo(file));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.readAll().contains("B2"));
    }
}

void WallPageTest::listIsOpenedAsAWall()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("stage.csv"),
        "cabinet,row,column,name,Y (cd/m2),x,y\n"
        "A1,1,1,R,200,0.7,0.29\nA1,1,1,G,700,0.2,0.7\nA1,1,1,B,100,0.15,0.05\n"
        "A2,1,2,R,210,0.7,0.29\nA2,1,2,G,710,0.2,0.7\nA2,1,2,B,110,0.15,0.05\n"
        "A3,1,3,R,210,0.7,0.29\n");
    QString first;
    QString preview;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<ListDialog *>(QApplication::activeModalWidget())) {
            timer.stop();
            first = dialog->cabinet()->currentText();
            preview = dialog->preview()->toPlainText();
            QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
        }
    });
    timer.start(1);
    QVERIFY(f.window->openPath(file));
    QCOMPARE(first, QStringLiteral("the whole wall, 3 cabinets"));
    QVERIFY2(preview.contains(QStringLiteral("The list makes a wall.")), qPrintable(preview));
    QVERIFY2(preview.contains(QStringLiteral("A3")), qPrintable(preview));
    QVERIFY2(!preview.contains(QStringLiteral("choose")), qPrintable(preview)); // nothing is missing for a wall
    const DisplayDescription &description = f.document().description();
    QCOMPARE(description.wall.cabinets.size(), std::size_t(2));
    QVERIFY(description.measurePoints.isEmpty());
    QVERIFY(description.measured.isEmpty());
    QCOMPARE(f.window->currentPage(), f.window->wallPage());
    QVERIFY2(f.window->warnings()->warnings().join(QLatin1Char('\n')).contains(QStringLiteral("A3")),
        qPrintable(f.window->warnings()->warnings().join(QLatin1Char('\n'))));
}

void WallPageTest::manyCabinets()
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

void WallPageTest::sparseWallKeepsNoGaps()
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

QTEST_MAIN(WallPageTest)
#include "wallpagetest.moc"
