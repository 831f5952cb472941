// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/descriptionreader.h"
#include "display/descriptionwriter.h"
#include "drawing/chartscene.h"
#include "drawing/diagramkey.h"
#include "drawing/lenswidget.h"
#include "editing/targetsession.h"
#include "panel/groupedtable.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "program/interfacetranslations.h"
#include "window/chartpage.h"
#include "window/comparepage.h"
#include "window/lenspage.h"
#include "window/recentfiles.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
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
    void exportsEveryFormat();
    void copiesTheChart();
    void badFileLeavesWhatWasOpen_data();
    void badFileLeavesWhatWasOpen();
    void droppedFileIsOpened();
    void addedMeasurementsCanBeUndone();
    void openAsksBeforeChangesAreLost();
    void recentFilesAreRemembered();
    void geometryAndPageAreRemembered();
    void pagesByKeyboard();
    void everySwitchChangesTheChart_data();
    void everySwitchChangesTheChart();
    void chartFollowsTheSizeOfTheWindow();
    void keyNamesWhatTheChartShows();
    void switchesHoldForAllPages();
    void exportsWhatIsShown();
    void editPageExportsColours();
    void standardOfTheFileIsShown();
    void keyboardGoesToThePage();
    void pointerIsReadOut();
    void pointerIsReadOutWhereMarksAreDrawn_data();
    void pointerIsReadOutWhereMarksAreDrawn();
    void lensFollowsAndZooms();
    void undefinedTemperatureIsTold();
    void lensTrailIsSeen();
    void comparePageTellsWhatIsLost();
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void everyFieldHasAName();
    void everythingIsReachedByTab();
    void speaksChinese();
};

namespace {

QString write(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        return QString();
    }
    return file.fileName();
}

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
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Q}) {
        WindowFixture f;
        QTest::keyClick(f.window.get(), key, Qt::ControlModifier);
        QVERIFY(!f.window->isVisible());
    }
}

void ViewerWindowTest::closeAsksBeforeChangesAreLost()
{
    WindowFixture f;
    change(f);
    {
        const Answer cancel(QMessageBox::Cancel);
        f.window->close();
        QVERIFY(!cancel.text().isEmpty());
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
    DescriptionReader reader;
    const auto read = reader.readFile(file);
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
    DescriptionReader reader;
    const auto read = reader.readFile(file);
    QVERIFY(read);
    QCOMPARE(read->target, QStringLiteral("DCI-P3(D65) (edited)"));
    QVERIFY(sameTargets(read->gamut(read->target)->getTargets(), f.document().target()->getTargets()));
    // Saving again by keyboard needs no name.
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.65, 0.32));
    QTest::keyClick(f.window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!f.window->isWindowModified());
    const auto again = reader.readFile(file);
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

void ViewerWindowTest::exportsEveryFormat()
{
    WindowFixture f;
    ChartExtent extent;
    extent.size = QSize(300, 200);
    extent.devicePixelRatio = 2;
    const QString png = f.settings.filePath(QStringLiteral("chart.png"));
    QVERIFY(f.window->exportTo(png, extent));
    QCOMPARE(QImage(png).size(), QSize(600, 400));
    for (const char *name : {"chart.svg", "chart.pdf"}) {
        const QString file = f.settings.filePath(QLatin1String(name));
        QVERIFY(f.window->exportTo(file, extent));
        QVERIFY(QFileInfo(file).size() > 1000);
    }
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->exportTo(f.settings.filePath(QStringLiteral("chart.doc")), extent));
    QVERIFY(answer.text().contains(QLatin1String(".svg")));
}

void ViewerWindowTest::copiesTheChart()
{
    WindowFixture f;
    QApplication::clipboard()->clear();
    QTest::keyClick(f.window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QImage copied = QApplication::clipboard()->image();
    QVERIFY(copied.convertToFormat(QImage::Format_RGB32)
        == chartPicture(f.window->shownScene(), ChartExtent()).convertToFormat(QImage::Format_RGB32));
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
    const QString file = write(f.settings, QStringLiteral("bad.json"), bytes);
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
        = write(f.settings, QStringLiteral("other.json"), sample().replace("\"DCI-P3(D65)\",", "\"Rec.709\","));
    QVERIFY(!file.isEmpty());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.window.get(), &drop);
    QCoreApplication::processEvents();
    QCOMPARE(f.document().fileName(), file);
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709"));
}

void ViewerWindowTest::addedMeasurementsCanBeUndone()
{
    WindowFixture f;
    const QString file = write(f.settings, QStringLiteral("meter.csv"),
        "name,Y,x,y\nred,190,0.69,0.30\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\nwhite,910,0.28,0.30\n");
    QVERIFY(f.window->openPath(file));
    QCOMPARE(f.document().measured()->getTargets().red.x, 0.69);
    QVERIFY(f.window->isWindowModified());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.document().measured()->getTargets().red.x, 0.7031);
}

void ViewerWindowTest::openAsksBeforeChangesAreLost()
{
    WindowFixture f;
    change(f);
    const Answer cancel(QMessageBox::Cancel);
    QVERIFY(!f.window->openPath(QStringLiteral(SAMPLE_FILE)));
    QVERIFY(!cancel.text().isEmpty());
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
}

void ViewerWindowTest::recentFilesAreRemembered()
{
    WindowFixture f;
    QVERIFY(RecentFiles::list().isEmpty());
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
        window.pages()->setCurrentIndex(3);
        size = window.size();
        window.close();
    }
    ViewerWindow window;
    window.show();
    QCOMPARE(window.size(), size);
    QCOMPARE(window.pages()->currentIndex(), 3);
}

void ViewerWindowTest::pagesByKeyboard()
{
    WindowFixture f;
    for (int page = 4; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(f.window->pages()->currentIndex(), page);
    }
}

void ViewerWindowTest::everySwitchChangesTheChart_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 10; ++i) {
        QTest::newRow(QByteArray::number(i).constData()) << i;
    }
}

void ViewerWindowTest::everySwitchChangesTheChart()
{
    QFETCH(int, index);
    WindowFixture f;
    f.window->setDescription(withEverything(f.document().description()), QString());
    f.window->resize(1800, 900); // the key has one line, and the chart its size, whatever is shown
    f.show(f.window->chartPage());
    const QList<QCheckBox *> switches = f.window->chartPage()->findChildren<QCheckBox *>();
    QCOMPARE(switches.size(), 10);
    const auto picture = [&] { return f.window->chartPage()->chart()->view()->grab().toImage(); };
    const QImage before = picture();
    QTest::keyClick(switches.at(index), Qt::Key_Space);
    QVERIFY2(picture() != before, qPrintable(switches.at(index)->text()));
    QTest::keyClick(switches.at(index), Qt::Key_Space);
    QVERIFY2(picture() == before, qPrintable(switches.at(index)->text()));
}

void ViewerWindowTest::chartFollowsTheSizeOfTheWindow()
{
    WindowFixture f;
    f.show(f.window->chartPage());
    const int before = f.window->chartPage()->chart()->view()->height();
    f.window->resize(1024, 660);
    QCoreApplication::processEvents();
    QVERIFY(f.window->chartPage()->chart()->view()->height() < before);
    f.window->resize(1024, 768);
    QCoreApplication::processEvents();
    QCOMPARE(f.window->chartPage()->chart()->view()->height(), before);
    f.show(f.window->editPage());
    const int edit = f.window->editPage()->chart()->imageHeight();
    f.window->resize(1024, 660);
    QCoreApplication::processEvents();
    QVERIFY(f.window->editPage()->chart()->imageHeight() < edit);
}

void ViewerWindowTest::keyNamesWhatTheChartShows()
{
    WindowFixture f;
    f.show(f.window->chartPage());
    const DiagramKey *key = f.window->chartPage()->key();
    QVERIFY(!f.window->chartPage()->chart()->getLegend()->isVisible());
    QCOMPARE(key->accessibleDescription(),
        QStringLiteral("Original, Measured, Target, Standards, Common area, Measured points, CCT points, CMY points"));
    QVERIFY(key->isVisible() && key->height() >= key->heightForWidth(key->width()));
    // Each line in the colour that the chart draws it in.
    QCOMPARE(key->entries().at(0).pen.color(), QColor(13, 189, 73));
    QCOMPARE(key->entries().at(1).pen.color(), QColor(27, 241, 255));
    QCOMPARE(key->entries().at(2).pen.color(), QColor(255, 163, 56));
}

void ViewerWindowTest::switchesHoldForAllPages()
{
    WindowFixture f;
    f.show(f.window->chartPage());
    QCheckBox *original = f.window->chartPage()->findChildren<QCheckBox *>().first();
    QTest::keyClick(original, Qt::Key_Space);
    QVERIFY(!original->isChecked());
    for (const EditPage *page : {f.window->editPage(), f.window->uvPage()}) {
        QCheckBox *other = page->findChildren<QCheckBox *>().first();
        QCOMPARE(other->text(), original->text());
        QVERIFY(!other->isChecked());
    }
}

void ViewerWindowTest::exportsWhatIsShown()
{
    WindowFixture f;
    f.show(f.window->chartPage());
    const auto axes = [](const QWidget *page) {
        const QList<QCheckBox *> switches = page->findChildren<QCheckBox *>();
        return *std::find_if(switches.begin(), switches.end(),
            [](const QCheckBox *box) { return box->text() == QLatin1String("&Axes"); });
    };
    const ChartScene whole = f.window->shownScene();
    QCOMPARE(whole.triangles.size(), 3);
    QCOMPARE(whole.key.size(), 8);
    QTest::keyClick(axes(f.window->chartPage()), Qt::Key_Space);
    QTest::keyClick(f.window->chartPage()->findChildren<QCheckBox *>().first(), Qt::Key_Space);
    const ChartScene part = f.window->shownScene();
    QVERIFY(!part.axes);
    QCOMPARE(part.triangles.size(), 2);
    QCOMPARE(part.key.size(), 7);
    QTemporaryDir folder;
    const ChartExtent extent{QSize(700, 700), 1.0};
    QVERIFY(f.window->exportTo(folder.filePath("part.png"), extent));
    QCOMPARE(QImage(folder.filePath("part.png")).convertToFormat(QImage::Format_RGB32),
        chartPicture(part, extent).convertToFormat(QImage::Format_RGB32));
    QVERIFY(chartPicture(part, extent) != chartPicture(whole, extent));
    // The u', v' page exports its own diagram, and lets it go without wavelengths.
    QVERIFY(part.diagram == Model::Diagram::Cie1931 && part.wavelengths);
    f.show(f.window->uvPage());
    QTest::keyClick(f.window->uvPage()->findChildren<QCheckBox *>().at(6), Qt::Key_Space);
    const ChartScene uv = f.window->shownScene();
    QVERIFY(uv.diagram == Model::Diagram::Cie1976 && !uv.wavelengths && uv.planckianLocus);
    f.show(f.window->comparePage());
    QVERIFY(f.window->shownScene().wavelengths);
}

void ViewerWindowTest::editPageExportsColours()
{
    WindowFixture f;
    f.show(f.window->chartPage());
    const QList<QCheckBox *> switches = f.window->chartPage()->findChildren<QCheckBox *>();
    const auto common = std::find_if(switches.begin(), switches.end(),
        [](const QCheckBox *box) { return box->text().contains(QLatin1String("ommon")); });
    QVERIFY(common != switches.end());
    QTest::keyClick(*common, Qt::Key_Space);
    QVERIFY(f.window->shownScene().original.isEmpty());
    // Its page has no switch that would bring them back.
    f.show(f.window->editPage());
    QVERIFY(!f.window->shownScene().original.isEmpty());
}

void ViewerWindowTest::standardOfTheFileIsShown()
{
    WindowFixture f;
    DisplayDescription description = f.document().description();
    description.standards = QStringList{description.original};
    f.window->setDescription(description, QString());
    f.show(f.window->chartPage());
    const auto picture = [&] { return f.window->chartPage()->chart()->view()->grab().toImage(); };
    const QImage with = picture();
    description.standards.clear();
    f.window->setDescription(description, QString());
    QVERIFY(picture() != with);
}

void ViewerWindowTest::keyboardGoesToThePage()
{
    WindowFixture f;
    const QWidget *inside[] = {f.window->chartPage()->chart()->view(), f.window->editPage()->chart()->view(),
        f.window->uvPage()->chart()->view(), f.window->lensPage()->lens(), f.window->comparePage()->table()};
    for (int page = 4; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(static_cast<const QWidget *>(QApplication::focusWidget()), inside[page]);
    }
}

void ViewerWindowTest::pointerIsReadOut()
{
    WindowFixture f;
    f.show(f.window->editPage());
    ChartPointer pointer(f.window->editPage());
    pointer.move(QPointF(0.3127, 0.3290), Qt::NoButton);
    QVERIFY2(f.window->readout()->text().contains(QRegularExpression(QStringLiteral("x 0\\.3[012].* K"))),
        qPrintable(f.window->readout()->text()));
    pointer.move(QPointF(0.1, 0.8), Qt::NoButton);
    QVERIFY(!f.window->readout()->text().contains(QLatin1String(" K")));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(f.window->editPage()->chart()->view()->viewport(), &leave);
    QVERIFY(f.window->readout()->text().isEmpty());
}

void ViewerWindowTest::pointerIsReadOutWhereMarksAreDrawn_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("width");
    for (const int page : {0, 1, 2}) {
        for (const int width : {1024, 1500}) {
            QTest::addRow("page %d, %d wide", page, width) << page << width;
        }
    }
}

void ViewerWindowTest::pointerIsReadOutWhereMarksAreDrawn()
{
    QFETCH(int, page);
    QFETCH(int, width);
    WindowFixture f;
    f.window->resize(width, width * 3 / 4);
    const QPointF marked(0.5, 0.4);
    DisplayDescription description = f.document().description();
    description.colorTemperaturePoints = {{QString(), marked}};
    f.window->setDescription(description, QString());
    f.window->pages()->setCurrentIndex(page);
    QCoreApplication::processEvents();
    QWidget *viewport = page == 0 ? f.window->chartPage()->chart()->view()->viewport()
        : page == 1               ? f.window->editPage()->chart()->view()->viewport()
                                  : f.window->uvPage()->chart()->view()->viewport();
    const QImage with = viewport->grab().toImage();
    description.colorTemperaturePoints = {{QString(), {0.15, 0.65}}}; // far to the left
    f.window->setDescription(description, QString());
    QCoreApplication::processEvents();
    const QImage without = viewport->grab().toImage();
    QPolygonF drawn;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = with.width() * 35 / 100; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                drawn.append(QPointF(x, y));
            }
        }
    }
    QVERIFY(drawn.size() > 20);
    const QPoint middle = drawn.boundingRect().center().toPoint();
    const auto readAt = [&](const QPoint &position) {
        QMouseEvent move(
            QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        const QRegularExpression numbers(QStringLiteral("x (\\S+)  y (\\S+)"));
        const QRegularExpressionMatch match = numbers.match(f.window->readout()->text());
        return QPointF(match.captured(1).toDouble(), match.captured(2).toDouble());
    };
    // Within a pixel, by what the readout tells of pixels.
    constexpr int step = 10;
    const QPointF read = readAt(middle);
    const QPointF perX = (readAt(middle + QPoint(step, 0)) - read) / step;
    const QPointF perY = (readAt(middle + QPoint(0, step)) - read) / step;
    bool isInvertible = false;
    const QTransform toPixels = QTransform(perX.x(), perX.y(), perY.x(), perY.y(), 0, 0).inverted(&isInvertible);
    QVERIFY(isInvertible);
    const QPointF error = toPixels.map(marked - read);
    QVERIFY2(qAbs(error.x()) <= 1.0 && qAbs(error.y()) <= 1.0,
        qPrintable(QStringLiteral("%1, %2 pixels").arg(error.x()).arg(error.y())));
}

void ViewerWindowTest::lensFollowsAndZooms()
{
    WindowFixture f;
    f.show(f.window->lensPage());
    LensWidget *lens = f.window->lensPage()->lens();
    QVERIFY(lens->accessibleDescription().contains(QLatin1String("6504 K")));
    const QImage before = lens->grab().toImage();
    f.window->session()->setWhiteTemperature(7000, 0.0);
    QVERIFY(lens->accessibleDescription().contains(QLatin1String("7000 K, Duv 0.0000")));
    QVERIFY(lens->grab().toImage() != before);
    const double reach = lens->reach();
    lens->setFocus();
    QTest::keyClick(lens, Qt::Key_Plus);
    QVERIFY(lens->reach() < reach);
    QTest::keyClick(lens, Qt::Key_0);
    QCOMPARE(lens->reach(), reach);
    // From then on whatever comes is shown.
    f.window->session()->setWhiteTemperature(3500, 0.0);
    QVERIFY(lens->reach() > reach);
}

void ViewerWindowTest::undefinedTemperatureIsTold()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::White, QPointF(0.22, 0.329)));
    const QString none = QString::fromUtf8("–");
    // Everywhere in the same way: the lens, the table of the panel and that of the comparison.
    f.show(f.window->lensPage());
    QVERIFY(
        f.window->lensPage()->lens()->accessibleDescription().contains(QLatin1String("Target: no colour temperature")));
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

void ViewerWindowTest::lensTrailIsSeen()
{
    const QVector<GamutPart> parts{{GamutPart::Role::Target, Model::dciP3D65()}};
    QVector<QPointF> trail;
    for (int i = 8; i > 0; --i) {
        trail.append(QPointF(0.3127 - 0.0006 * i, 0.329));
    }
    LensWidget lens;
    lens.resize(500, 500);
    lens.setWhites(parts, {});
    const QImage without = lens.grab().toImage();
    lens.setWhites(parts, trail);
    const QImage with = lens.grab().toImage();
    // The oldest stands farthest to the left.
    for (int x = 0; x < with.width(); ++x) {
        int strongest = 0;
        for (int y = 0; y < with.height(); ++y) {
            strongest = std::max(strongest, qAbs(qBlue(with.pixel(x, y)) - qBlue(without.pixel(x, y))));
        }
        if (strongest > 0 && x + 3 < with.width()) {
            int middle = 0;
            for (int y = 0; y < with.height(); ++y) {
                middle = std::max(middle, qAbs(qBlue(with.pixel(x + 3, y)) - qBlue(without.pixel(x + 3, y))));
            }
            QVERIFY2(middle > 170, qPrintable(QString::number(middle)));
            return;
        }
    }
    QFAIL("there is no trail");
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
    f.show(f.window->editPage());
    QSet<QWidget *> reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : f.window.get(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    TargetEditor *editor = f.window->panel()->editor();
    QVERIFY(reached.contains(f.window->editPage()->chart()->view()));
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
    QCOMPARE(f.window->pages()->tabText(1), QString::fromUtf8("编辑目标"));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall[*] – 色域查看器"));
    change(f);
    const auto says = [&](const char *text) {
        const QList<QLabel *> labels = f.window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel *label) { return label->text() == QString::fromUtf8(text); });
    };
    QVERIFY(says("DCI-P3(D65)（已修改）"));
    f.show(f.window->chartPage());
    QVERIFY(f.window->chartPage()->key()->accessibleDescription().startsWith(QString::fromUtf8("原始")));
    // What is saved does not depend on the language.
    QCOMPARE(f.document().description().target, QStringLiteral("DCI-P3(D65) (edited)"));
}

QTEST_MAIN(ViewerWindowTest)
#include "viewerwindowtest.moc"
