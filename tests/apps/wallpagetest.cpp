// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "wallfixture.h"

#include "display/samples.h"
#include "drawing/picture.h"
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

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

using namespace gamutviewer;
using namespace wallfixture;

class WallPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAWallItSaysHowToGetOne();
    void arrowsSelectInMapLooksAndTable();
    void tableAndDotsSelect();
    void fitIsOneStep();
    void fitIsOfferedAlikeOnPageAndPanel();
    void cabinetIsLeftOut();
    void chosenLineIsFollowed();
    void draggingTheTargetIsFollowed();
    void incompleteCabinetsAreShown();
    void sampleWallIsOpened();
    void nameInACloseLookIsWhole();
    void wallIsRemoved();
    void verdictOfThePanelFitsToTheWall();
    void warningsAreInThePanel();
    void pictureShowsTheWall();
    void correctionsAreWritten();
    void listIsOpenedAsAWall();
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

    FollowedMeasurement first;
    first.file.content = GamutFile::Content::Measurements;
    first.isOfCabinets = true;
    f.window->document()->showFollowed(first);
    QVERIFY(f.window->wallPage()->emptyNote()->isVisible());
    QVERIFY(f.window->wallPage()->emptyNote()->text().startsWith(QStringLiteral("What is followed is no wall yet.")));
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
        dim(several.wall.cabinets[i], 0.8);
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

QTEST_MAIN(WallPageTest)
#include "wallpagetest.moc"
