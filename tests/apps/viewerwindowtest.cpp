// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/valuetexts.h"
#include "drawing/layerswitches.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/groupedtable.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/signallog.h"
#include "panel/targeteditor.h"
#include "program/interfacetranslations.h"
#include "window/comparepage.h"
#include "window/lens.h"
#include "window/librarypage.h"
#include "window/recentfiles.h"
#include "window/tolerancesmenu.h"
#include "window/wallpage.h"
#include <gamutfiles/descriptionfile.h>

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QtTest>

using namespace gamutviewer;

class ViewerWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void titleNamesTheDisplayAndTheChange();
    void titleNamesTheFileOfANamelessDisplay();
    void closesByKeyboard();
    void closeAsksBeforeChangesAreLost();
    void numberThatIsBeingTypedCounts();
    void windowGoesWhileANumberIsTyped();
    void savedFileReadsBackTheSame();
    void saveThatFailsSaysSo();
    void exportsWhatThePageShows();
    void copiesThePicture();
    void badFileLeavesWhatWasOpen_data();
    void badFileLeavesWhatWasOpen();
    void droppedFileIsOpened();
    void addedMeasurementsCanBeUndone();
    void openAsksBeforeChangesAreLost();
    void recentFilesAreRemembered();
    void geometryAndPageAreRemembered();
    void pagesByKeyboard();
    void keyboardGoesToThePage();
    void pointerIsReadOut();
    void hintsAreThoseOfThePage();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
    void tablesAreCopiedWhole();
    void zeroHasNoSign();
    void libraryChartsShowTheDocument();
    void libraryChartsFillTheirRoom_data();
    void libraryChartsFillTheirRoom();
    void libraryChartsGetNoMeasurePoints();
    void signalsHaveNoNegativeZero();
    void selectedCellsAreCopied();
    void tolerancesAreChosenAndRemembered();
    void dominantWavelengthsAreShown();
    void undefinedTemperatureIsTold();
    void comparePageTellsWhatIsLost();
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void everyFieldHasAName();
    void everythingIsReachedByTab();
    void speaksChinese();
};

namespace {

void change(WindowFixture &f)
{
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32));
}

QByteArray sample()
{
    QFile file(QStringLiteral(SAMPLE_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void ViewerWindowTest::cleanup()
{
    installInterfaceTranslations(QLocale(QLocale::English));
}

void ViewerWindowTest::titleNamesTheDisplayAndTheChange()
{
    WindowFixture f;
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall[*] – Gamut viewer"));
    QVERIFY(!f.window->isWindowModified());
    change(f);
    QVERIFY(f.window->isWindowModified());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!f.window->isWindowModified());
}

void ViewerWindowTest::titleNamesTheFileOfANamelessDisplay()
{
    WindowFixture f;
    DisplayDescription nameless = f.document().description();
    nameless.name.clear();
    f.window->setDescription(nameless, QStringLiteral("some/wall.json"));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("wall.json[*] – Gamut viewer"));
}

void ViewerWindowTest::closesByKeyboard()
{
    WindowFixture f;
    QTest::keyClick(f.window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!f.window->isVisible());
}

void ViewerWindowTest::closeAsksBeforeChangesAreLost()
{
    WindowFixture f;
    change(f);
    {
        const Answer cancel(QMessageBox::Cancel);
        f.window->close();
        QVERIFY2(cancel.text().contains(QLatin1String("\"LED wall\"")), qPrintable(cancel.text()));
        QVERIFY(f.window->isVisible());
    }
    const QString file = f.settings.filePath(QStringLiteral("saved.json"));
    f.document().markSaved(file);
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.67, 0.32));
    {
        const Answer save(QMessageBox::Save);
        f.window->close();
        QVERIFY(!save.text().isEmpty());
        QVERIFY(!f.window->isVisible());
        QVERIFY(QFile::exists(file));
    }
    f.window->show();
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32));
    const Answer discard(QMessageBox::Discard);
    f.window->close();
    QVERIFY(!f.window->isVisible());
}

void ViewerWindowTest::numberThatIsBeingTypedCounts()
{
    WindowFixture f;
    const QString file = f.settings.filePath(QStringLiteral("saved.json"));
    QVERIFY(f.window->saveTo(file));
    StepBox *box = f.window->panel()->editor()->firstCoordinate(Vertex::Green);
    const auto type = [&](const QString &text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    };
    type(QStringLiteral("0.3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
    const auto read = readDescriptionFile(file);
    QVERIFY(read);
    QCOMPARE(read->gamut(read->target)->getTargets().green.x, 0.3);
    type(QStringLiteral("0.29"));
    const Answer cancel(QMessageBox::Cancel);
    f.window->close();
    QVERIFY(!cancel.text().isEmpty());
    QVERIFY(f.window->isVisible());
}

void ViewerWindowTest::windowGoesWhileANumberIsTyped()
{
    WindowFixture f;
    StepBox *box = f.window->panel()->editor()->luminance(Vertex::Green);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("12"));
    bool isMade = false;
    connect(&f.document(), &Document::changed, this, [&isMade] { isMade = true; });
    f.window.reset();
    QVERIFY(isMade);
}

void ViewerWindowTest::savedFileReadsBackTheSame()
{
    WindowFixture f;
    change(f);
    const QString file = f.settings.filePath(QStringLiteral("saved.json"));
    QVERIFY(f.window->saveTo(file));
    QVERIFY(!f.window->isWindowModified());
    QCOMPARE(f.document().fileName(), file);
    const auto read = readDescriptionFile(file);
    QVERIFY(read);
    QCOMPARE(read->target, QStringLiteral("DCI-P3(D65) (edited)"));
    QVERIFY(sameTargets(read->gamut(read->target)->getTargets(), f.document().target()->getTargets()));
    // Saving again by keyboard needs no name.
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.65, 0.32));
    QTest::keyClick(f.window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!f.window->isWindowModified());
    const auto again = readDescriptionFile(file);
    QVERIFY(again);
    QCOMPARE(again->gamut(again->target)->getTargets().red.x, 0.65);
}

void ViewerWindowTest::saveThatFailsSaysSo()
{
    WindowFixture f;
    change(f);
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->saveTo(f.settings.filePath(QStringLiteral("no/such/folder/saved.json"))));
    QVERIFY(answer.text().contains(QLatin1String("saved.json")));
    QVERIFY(f.window->isWindowModified());
}

void ViewerWindowTest::exportsWhatThePageShows()
{
    WindowFixture f;
    const PictureExtent extent{QSize(300, 200), 2.0};
    const Picture picture = f.window->currentPage()->picture();
    const QString png = f.settings.filePath(QStringLiteral("chart.png"));
    QVERIFY(f.window->exportTo(png, picture, extent));
    QCOMPARE(QImage(png).size(), QSize(600, 400));
    QImage expected = pixelsOf(picture, extent).convertToFormat(QImage::Format_RGB32);
    expected.setDevicePixelRatio(1.0);
    QCOMPARE(QImage(png).convertToFormat(QImage::Format_RGB32), expected);
    for (const char *name : {"chart.svg", "chart.pdf"}) {
        const QString file = f.settings.filePath(QLatin1String(name));
        QVERIFY(f.window->exportTo(file, picture, extent));
        QVERIFY(QFileInfo(file).size() > 1000);
    }
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->exportTo(f.settings.filePath(QStringLiteral("chart.doc")), picture, extent));
    QVERIFY(answer.text().contains(QLatin1String(".svg")));
    // What the switches and the view let through, and each page its own.
    f.window->diagramPage()->switches()->setShown(ceiechart::DiagramLayer::Grid, false);
    f.window->diagramPage()->view()->setDiagram(Model::Diagram::Cie1976);
    const Picture other = f.window->currentPage()->picture();
    QVERIFY(!other.content.layers.testFlag(ceiechart::DiagramLayer::Grid));
    QCOMPARE(other.view.diagram(), Model::Diagram::Cie1976);
    f.show(f.window->libraryPage());
    QVERIFY(f.window->currentPage()->picture().isLibraryChart);
}

void ViewerWindowTest::copiesThePicture()
{
    WindowFixture f;
    QApplication::clipboard()->clear();
    QTest::keyClick(f.window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QImage copied = QApplication::clipboard()->image();
    const Picture shown = f.window->currentPage()->picture();
    const PictureExtent extent{f.window->diagramPage()->view()->size(), f.window->devicePixelRatioF()};
    QVERIFY(
        copied.convertToFormat(QImage::Format_RGB32) == pixelsOf(shown, extent).convertToFormat(QImage::Format_RGB32));
}

void ViewerWindowTest::badFileLeavesWhatWasOpen_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("broken description") << QByteArray("{ \"version\": 1,");
    QTest::newRow("nothing known") << QByteArray("\x89nothing\x00", 9);
    QTest::newRow("empty") << QByteArray();
}

void ViewerWindowTest::badFileLeavesWhatWasOpen()
{
    QFETCH(QByteArray, bytes);
    WindowFixture f;
    change(f);
    const QString file = writeFile(f.settings, QStringLiteral("bad.json"), bytes);
    QVERIFY(!file.isEmpty());
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->openPath(file));
    QVERIFY(answer.text().contains(QLatin1String("bad.json")));
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QVERIFY(f.window->isWindowModified());
    QVERIFY(!RecentFiles::list().contains(file));
}

void ViewerWindowTest::droppedFileIsOpened()
{
    WindowFixture f;
    const QString file
        = writeFile(f.settings, QStringLiteral("other.json"), sample().replace("\"DCI-P3(D65)\",", "\"Rec.709\","));
    QVERIFY(!file.isEmpty());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.window.get(), &enter);
    QVERIFY(enter.isAccepted());
    const FilesAnswer alone(FilesAnswer::Alone);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.window.get(), &drop);
    QCoreApplication::processEvents();
    QVERIFY(alone.isAsked());
    QCOMPARE(f.document().fileName(), file);
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709"));
}

void ViewerWindowTest::addedMeasurementsCanBeUndone()
{
    WindowFixture f;
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"),
        "name,Y,x,y\nred,190,0.69,0.30\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\nwhite,910,0.28,0.30\n");
    const FilesAnswer add(FilesAnswer::Add);
    QVERIFY(f.window->openPath(file));
    QVERIFY(add.isAsked());
    QCOMPARE(f.document().measured()->getTargets().red.x, 0.69);
    f.activate();
    QVERIFY(f.window->isWindowModified());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.document().measured()->getTargets().red.x, 0.7031);
}

void ViewerWindowTest::openAsksBeforeChangesAreLost()
{
    WindowFixture f;
    change(f);
    const FilesAnswer alone(FilesAnswer::Alone);
    const Answer cancel(QMessageBox::Cancel);
    QVERIFY(!f.window->openPath(QStringLiteral(SAMPLE_FILE)));
    QVERIFY(!cancel.text().isEmpty());
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
}

void ViewerWindowTest::recentFilesAreRemembered()
{
    WindowFixture f;
    QVERIFY(RecentFiles::list().isEmpty());
    const FilesAnswer alone(FilesAnswer::Alone);
    QVERIFY(f.window->openPath(QStringLiteral(SAMPLE_FILE)));
    QCOMPARE(RecentFiles::list(), QStringList(QFileInfo(QStringLiteral(SAMPLE_FILE)).absoluteFilePath()));
    for (int i = 0; i < 12; ++i) {
        RecentFiles::add(f.settings.filePath(QString::number(i)));
    }
    QCOMPARE(RecentFiles::list().size(), RecentFiles::most);
    QVERIFY(RecentFiles::list().first().endsWith(QLatin1String("11")));
    RecentFiles::clear();
    QVERIFY(RecentFiles::list().isEmpty());
}

void ViewerWindowTest::geometryAndPageAreRemembered()
{
    QTemporaryDir settings;
    WindowFixture::useSettings(settings.path());
    QSize size;
    {
        ViewerWindow window;
        window.resize(1100, 790);
        window.show();
        window.pages()->setCurrentIndex(2);
        size = window.size();
        window.close();
    }
    ViewerWindow window;
    window.show();
    QCOMPARE(window.size(), size);
    QCOMPARE(window.pages()->currentIndex(), 2);
}

void ViewerWindowTest::pagesByKeyboard()
{
    WindowFixture f;
    for (int page = 3; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(f.window->pages()->currentIndex(), page);
    }
}

void ViewerWindowTest::keyboardGoesToThePage()
{
    WindowFixture f;
    const QWidget *inside[] = {f.window->diagramPage()->view(), f.window->comparePage()->table(),
        f.window->wallPage()->emptyNote(), f.window->libraryPage()->currentChart()->view()};
    for (int page = 3; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(static_cast<const QWidget *>(QApplication::focusWidget()), inside[page]);
    }
}

void ViewerWindowTest::pointerIsReadOut()
{
    WindowFixture f;
    for (DocumentView *view : {f.window->diagramPage()->view(), f.window->diagramPage()->lens()->view()}) {
        DiagramPointer pointer(view);
        pointer.move(QPointF(0.3127, 0.3290), Qt::NoButton);
        const QString text = f.window->readout()->text();
        QVERIFY2(text.contains(QRegularExpression(QStringLiteral("x 0\\.31.* K"))), qPrintable(text));
        QVERIFY(f.window->readout()->accessibleName().contains(text));
        // Within a pixel of where the diagram shows it.
        const QRegularExpressionMatch read = QRegularExpression(QStringLiteral("x (\\S+)  y (\\S+)")).match(text);
        QVERIFY(qAbs(read.captured(1).toDouble() - 0.3127) < pointer.pixel() + 1e-4);
        QVERIFY(qAbs(read.captured(2).toDouble() - 0.3290) < pointer.pixel() + 1e-4);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave);
        QVERIFY(f.window->readout()->text().isEmpty());
    }
    DiagramPointer pointer(f.window->diagramPage()->view());
    pointer.move(QPointF(0.1, 0.8), Qt::NoButton);
    QVERIFY(!f.window->readout()->text().isEmpty());
    QVERIFY(!f.window->readout()->text().contains(QLatin1String(" K")));
}

void ViewerWindowTest::hintsAreThoseOfThePage()
{
    WindowFixture f;
    const auto says = [&] {
        const QList<QLabel *> labels = f.window->statusBar()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [](const QLabel *label) { return label->text().contains(QLatin1String("Shift")); });
    };
    QVERIFY(says());
    f.show(f.window->comparePage());
    QVERIFY(!says());
}

void ViewerWindowTest::mnemonicsAreUnique_data()
{
    fitsASmallScreen_data();
}

void ViewerWindowTest::mnemonicsAreUnique()
{
    QFETCH(QLocale, locale);
    installInterfaceTranslations(locale);
    WindowFixture f;
    QStringList found;
    const auto add = [&found](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            found.append(key.toString());
        }
    };
    for (const QAction *action : f.window->menuBar()->actions()) {
        add(action->text());
    }
    for (const QAbstractButton *button : f.window->findChildren<QAbstractButton *>()) {
        add(button->text());
    }
    for (const QTabWidget *tabs : f.window->findChildren<QTabWidget *>()) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            add(tabs->tabText(tab));
        }
    }
    QVERIFY(found.size() > 10);
    QStringList once = found;
    QVERIFY2(once.removeDuplicates() == 0, qPrintable(found.join(QLatin1Char(' '))));
    for (const QAction *action : f.window->menuBar()->actions()) {
        found.clear();
        for (const QAction *item : action->menu()->actions()) {
            add(item->text());
        }
        once = found;
        QVERIFY2(once.removeDuplicates() == 0, qPrintable(action->text() + found.join(QLatin1Char(' '))));
    }
}

void ViewerWindowTest::tablesAreCopiedWhole()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    for (CopyTable *table : {f.window->comparePage()->table(), static_cast<CopyTable *>(f.window->panel()->values()),
             static_cast<CopyTable *>(f.window->panel()->coverage())}) {
        QApplication::clipboard()->clear();
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), table->rowCount() + 1);
        const int rowHeaders = table == f.window->comparePage()->table();
        for (const QString &line : lines) {
            QCOMPARE(line.count(QLatin1Char('\t')), table->columnCount() - 1 + rowHeaders);
        }
        QVERIFY(lines.at(0).contains(table->horizontalHeaderItem(table->columnCount() - 1)->text()));
        QVERIFY(lines.last().endsWith(table->item(table->rowCount() - 1, table->columnCount() - 1)->text()));
        // And by the menu.
        QApplication::clipboard()->clear();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), table->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(table, &event);
        auto *menu = table->findChild<QMenu *>();
        QVERIFY(menu);
        menu->actions().first()->trigger();
        QCOMPARE(QApplication::clipboard()->text(), table->text());
        delete menu;
    }
}

void ViewerWindowTest::zeroHasNoSign()
{
    QCOMPARE(fixedText(-0.00004, 4), QStringLiteral("0.0000"));
    QCOMPARE(fixedText(-0.4, 0), QStringLiteral("0"));
    QCOMPARE(fixedText(-0.00006, 4), QStringLiteral("-0.0001"));
    WindowFixture f;
    QVERIFY(f.window->session()->setWhiteTemperature(6500, -0.00001));
    QCOMPARE(f.window->panel()->editor()->duv()->text(), QStringLiteral("0.0000"));
    const GroupedTable *values = f.window->panel()->values();
    for (int row = 0; row < values->rowCount(); ++row) {
        for (int column = 0; column < values->columnCount(); ++column) {
            QVERIFY(!values->item(row, column) || values->item(row, column)->text() != QLatin1String("-0.0000"));
        }
    }
}

void ViewerWindowTest::libraryChartsShowTheDocument()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    auto *current = f.window->libraryPage()->currentChart()->view();
    auto *legacy = f.window->libraryPage()->legacyChart()->view();
    const QImage currentBefore = current->grab().toImage();
    const QImage legacyBefore = legacy->grab().toImage();
    QVERIFY(f.window->session()->setChromaticity(Vertex::Green, QPointF(0.4, 0.5)));
    QCoreApplication::processEvents();
    QVERIFY(current->grab().toImage() != currentBefore);
    QVERIFY(legacy->grab().toImage() != legacyBefore);
    // What is moved in a chart is logged, and nothing else.
    const Model::Targets before = f.document().target()->getTargets();
    const int lines = f.window->libraryPage()->log()->blockCount();
    QWidget *viewport = legacy->viewport();
    const ceiechart::DiagramGeometry geometry = ceiechart::chartGeometry(ceiechart::ChartKind::LegacyXy,
        f.window->libraryPage()->legacyChart()->imageWidth(), f.window->libraryPage()->legacyChart()->imageHeight());
    const QPoint green = legacy->mapFromScene(geometry.toPixel(QPointF(0.4, 0.5)));
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, green);
    for (int i = 1; i < 20; ++i) {
        const QPoint position = green + QPoint(i, i);
        QMouseEvent move(
            QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, green + QPoint(20, 20));
    QCoreApplication::processEvents();
    QVERIFY(f.window->libraryPage()->log()->blockCount() > lines);
    QVERIFY(sameTargets(f.document().target()->getTargets(), before));
}

void ViewerWindowTest::libraryChartsFillTheirRoom_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(1024, 768), QSize(1280, 800), QSize(1920, 1200)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void ViewerWindowTest::libraryChartsFillTheirRoom()
{
    QFETCH(QSize, size);
    WindowFixture f;
    f.window->resize(size);
    f.show(f.window->libraryPage());
    QCoreApplication::processEvents();
    const auto *area = f.window->libraryPage()->findChild<QScrollArea *>();
    QVERIFY(!area->horizontalScrollBar()->isVisible());
    QVERIFY(!area->verticalScrollBar()->isVisible());
    const QSize room = area->viewport()->size();
    for (const QWidget *view : {static_cast<QWidget *>(f.window->libraryPage()->currentChart()->view()),
             static_cast<QWidget *>(f.window->libraryPage()->legacyChart()->view())}) {
        const QRect place(view->mapTo(area->viewport(), QPoint()), view->size());
        QVERIFY(area->viewport()->rect().contains(place));
        QVERIFY2(view->width() > 0.9 * room.width() / 2 || view->height() > 0.8 * room.height(),
            qPrintable(QStringLiteral("%1x%2").arg(view->width()).arg(view->height())));
    }
    const SignalLog *log = f.window->libraryPage()->log();
    QVERIFY(log->viewport()->height() >= 4 * log->fontMetrics().lineSpacing());
    QVERIFY(log->height() <= 7 * log->fontMetrics().lineSpacing());
    // A chart is bare once it has another size.
    auto *view = f.window->libraryPage()->currentChart()->view();
    const QImage shown = view->grab().toImage();
    QVERIFY(f.window->session()->setChromaticity(Vertex::Green, QPointF(0.4, 0.5)));
    f.document().history()->undo();
    QCOMPARE(view->grab().toImage(), shown);
}

void ViewerWindowTest::libraryChartsGetNoMeasurePoints()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    QVERIFY(!f.document().description().measurePoints.isEmpty());
    // They would be taken for u', v'.
    QVERIFY(f.window->libraryPage()->legacyChart()->getMeasureValuePoints().isEmpty());
}

void ViewerWindowTest::signalsHaveNoNegativeZero()
{
    WindowFixture f;
    f.show(f.window->libraryPage());
    ColorTriangleObject target;
    TrianglePoint triangle;
    triangle.setWhitePos(QPointF(-0.00001, 0.3));
    target.setTrianglePoint(triangle);
    Q_EMIT f.window->libraryPage()->currentChart()->signal_colorGamutWhiteChanged(target);
    QCoreApplication::processEvents();
    const QString text = f.window->libraryPage()->log()->toPlainText();
    QVERIFY(text.contains(QStringLiteral("W (0.0000, 0.3000)")));
    QVERIFY(!text.contains(QStringLiteral("-0.0000")));
}

void ViewerWindowTest::selectedCellsAreCopied()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    CopyTable *table = f.window->comparePage()->table();
    QVERIFY(table->columnCount() > 1);
    table->selectColumn(1);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), table->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(table, &event);
    auto *menu = table->findChild<QMenu *>();
    QVERIFY(menu);
    menu->actions().at(1)->trigger();
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.first(), QLatin1Char('\t') + table->horizontalHeaderItem(1)->text());
    QCOMPARE(lines.at(1), table->verticalHeaderItem(0)->text() + QLatin1Char('\t') + table->item(0, 1)->text());
    menu->close();
}

void ViewerWindowTest::tolerancesAreChosenAndRemembered()
{
    WindowFixture f;
    TolerancesMenu *menu = f.window->tolerancesMenu();
    QVERIFY(!f.window->session()->tolerances());
    const QString file = f.settings.filePath(QStringLiteral("t.json"));
    const auto write = [&file](const QByteArray &text) {
        QFile t(file);
        return t.open(QIODevice::WriteOnly) && t.write(text) == text.size();
    };
    QVERIFY(write(R"({"version": 1, "name": "Stage", "whiteUv": 0.004})"));
    QVERIFY(menu->choose(file));
    QVERIFY(f.window->session()->tolerances());
    const auto checked = [menu] {
        QStringList texts;
        Q_EMIT menu->aboutToShow();
        for (const QAction *action : menu->actions()) {
            if (action->isChecked()) {
                texts << action->text();
            }
        }
        return texts;
    };
    QCOMPARE(checked(), QStringList(QStringLiteral("Stage")));
    {
        const ViewerWindow other;
        QVERIFY(other.session()->tolerances()->limits.whiteUv == 0.004);
    }
    // What cannot be read leaves what was chosen.
    QVERIFY(write("{}"));
    Answer answer(QMessageBox::Ok);
    QVERIFY(!menu->choose(file));
    QVERIFY(answer.text().contains(QLatin1String("version: missing")));
    QVERIFY(f.window->session()->tolerances());
    QVERIFY(menu->choose(QString()));
    QVERIFY(!f.window->session()->tolerances());
    QCOMPARE(checked(), QStringList(QStringLiteral("&None")));
    const ViewerWindow none;
    QVERIFY(!none.session()->tolerances());
}

void ViewerWindowTest::dominantWavelengthsAreShown()
{
    WindowFixture f;
    const GroupedTable *hues = f.window->panel()->hues();
    // The target comes first: its title with the reference white, red, green, blue and white.
    QVERIFY(hues->item(0, 0)->text().contains(QLatin1String("0.3127, 0.3290")));
    const auto hue = Model::dominantWavelength({0.265, 0.69}, {0.3127, 0.3290});
    QCOMPARE(hues->item(2, 1)->text(), QString::number(hue->wavelength, 'f', 1));
    QCOMPARE(hues->item(2, 2)->text(), QString::number(hue->purity, 'f', 3));
    QCOMPARE(hues->item(4, 1)->text(), QString::fromUtf8("–"));
    Q_EMIT f.window->diagramPage()->view()->hovered(QPointF(0.265, 0.69));
    QVERIFY(f.window->readout()->text().contains(hues->item(2, 1)->text()));
}

void ViewerWindowTest::undefinedTemperatureIsTold()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::White, QPointF(0.22, 0.329)));
    const QString none = QString::fromUtf8("–");
    // Everywhere in the same way: the lens, the table of the panel and that of the comparison.
    QVERIFY(f.window->diagramPage()->lens()->view()->accessibleDescription().contains(
        QLatin1String("no colour temperature")));
    f.show(f.window->comparePage());
    const QTableWidget *table = f.window->comparePage()->table();
    const int target = table->columnCount() - 1;
    int undefined = 0;
    for (int row = 0; row < table->rowCount(); ++row) {
        undefined += table->item(row, target)->text() == none;
    }
    QCOMPARE(undefined, 2);
    const GroupedTable *values = f.window->panel()->values();
    const int last = values->columnCount() - 1;
    for (int row = 0; row < values->rowCount(); ++row) {
        const QTableWidgetItem *temperature = values->item(row, last - 1);
        const QTableWidgetItem *duv = values->item(row, last);
        if (temperature && duv) {
            QCOMPARE(temperature->text() == none, duv->text() == none);
        }
    }
    // The target comes first: its title, red, green, blue and white.
    QCOMPARE(values->item(4, last)->text(), none);
}

void ViewerWindowTest::comparePageTellsWhatIsLost()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    QCOMPARE(f.window->comparePage()->table()->columnCount(), 3);
    f.window->session()->reset(QStringLiteral("LED wall"));
    QVERIFY(f.window->comparePage()->loss()->text().contains(QLatin1String(" 0.0 %")));
    // Both lie inside of Rec.2020: of it Rec.709 gives up 1 - 0.1120 / 0.2119 of the area in x, y.
    const Model::Targets rec2020 = Model::rec2020().getTargets();
    QVERIFY(qAbs(lostShare(rec2020, Model::rec709().getTargets(), Model::Diagram::Cie1931) - 0.4711) < 1e-3);
    QVERIFY(qAbs(lostShare(Model::rec709().getTargets(), rec2020, Model::Diagram::Cie1976)) < 1e-9);
    QCOMPARE(lostShare(Model::Targets(), rec2020, Model::Diagram::Cie1931), 0.0);
}

void ViewerWindowTest::fitsASmallScreen_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("Chinese") << QLocale(QLocale::Chinese);
}

void ViewerWindowTest::fitsASmallScreen()
{
    QFETCH(QLocale, locale);
    installInterfaceTranslations(locale);
    WindowFixture f;
    QCOMPARE(f.window->size(), QSize(1024, 768));
    auto *tables = f.window->panel()->findChild<QTabWidget *>();
    for (const GroupedTable *table : {f.window->panel()->values(), f.window->panel()->coverage()}) {
        tables->setCurrentIndex(table == f.window->panel()->values() ? 0 : 1);
        QCoreApplication::processEvents();
        QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
    }
    for (int page = 0; page < f.window->pages()->count(); ++page) {
        f.window->pages()->setCurrentIndex(page);
        QCoreApplication::processEvents();
        QCOMPARE(f.window->size(), QSize(1024, 768));
        // No label or button is given less than its text needs.
        for (QWidget *widget : f.window->findChildren<QWidget *>()) {
            const bool hasText = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QAbstractSpinBox *>(widget);
            if (widget->isVisible() && hasText) {
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), widget->metaObject()->className());
                const QRect place(widget->mapTo(f.window.get(), QPoint()), widget->size());
                QVERIFY2(f.window->rect().contains(place), widget->metaObject()->className());
            }
        }
    }
}

void ViewerWindowTest::everyFieldHasAName()
{
    WindowFixture f;
    int fields = 0;
    for (QWidget *widget : f.window->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || qobject_cast<QTabBar *>(widget)
            || widget->objectName().startsWith(QLatin1String("qt_"))) {
            continue;
        }
        ++fields;
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(
            interface && (!interface->text(QAccessible::Name).isEmpty() || qobject_cast<QMenuBar *>(widget) || qobject_cast<QTabWidget *>(widget)),
            widget->metaObject()->className());
    }
    QVERIFY(fields > 30);
}

void ViewerWindowTest::everythingIsReachedByTab()
{
    WindowFixture f;
    QSet<QWidget *> reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : f.window.get(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    TargetEditor *editor = f.window->panel()->editor();
    QVERIFY(reached.contains(f.window->diagramPage()->view()));
    QVERIFY(reached.contains(f.window->diagramPage()->lens()->view()));
    QVERIFY(reached.contains(f.window->diagramPage()->key()));
    for (const Vertex vertex : allVertices) {
        QVERIFY(reached.contains(editor->firstCoordinate(vertex)));
        QVERIFY(reached.contains(editor->secondCoordinate(vertex)));
        QVERIFY(reached.contains(editor->luminance(vertex)));
    }
    QVERIFY(reached.contains(editor->temperature()));
    QVERIFY(reached.contains(editor->duv()));
    QVERIFY(reached.contains(editor->holdWhite()));
    QVERIFY(reached.contains(editor->snap()));
}

void ViewerWindowTest::speaksChinese()
{
    installInterfaceTranslations(QLocale(QLocale::Chinese, QLocale::China));
    WindowFixture f;
    QCOMPARE(f.window->pages()->tabText(1), QString::fromUtf8("比较(&C)"));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall[*] – 色域查看器"));
    change(f);
    const auto says = [&](const char *text) {
        const QList<QLabel *> labels = f.window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel *label) { return label->text() == QString::fromUtf8(text); });
    };
    QVERIFY(says("DCI-P3(D65)（已修改）"));
    QVERIFY(f.window->diagramPage()->key()->entry(QString::fromUtf8("公共区域")));
    // What is saved does not depend on the language.
    QCOMPARE(f.document().description().target, QStringLiteral("DCI-P3(D65) (edited)"));
}

QTEST_MAIN(ViewerWindowTest)
#include "viewerwindowtest.moc"
