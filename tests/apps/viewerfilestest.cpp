// SPDX-License-Identifier: MIT
#include "gamutfiles/samplefiles.h"
#include "windowfixture.h"

#include "display/samples.h"
#include "drawing/layerswitches.h"
#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/groupedtable.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/stepbox.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"
#include "panel/warningbar.h"
#include "window/comparepage.h"
#include "window/filenames.h"
#include "window/librarypage.h"
#include "window/listdialog.h"
#include "window/recentfiles.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QAccessible>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QtTest>

#include <functional>

using namespace gamutviewer;

class ViewerFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sampleGivesWay();
    void touchedSampleDoesNotGiveWay();
    void newAndCloseEmptyTheWindow_data();
    void newAndCloseEmptyTheWindow();
    void newAsksBeforeChangesAreLost();
    void fileIsAddedOrOpenedAlone();
    void canceledQuestionChangesNothing();
    void partIsChosenInTheQuestion();
    void addNeverOpensAlone();
    void descriptionIsAskedAboutToo();
    void nameOfTheDisplayIsAnnounced();
    void imaginaryGamutIsNotOffered();
    void changedFileIsNamed();
    void standardInputIsNoFile();
    void cabinetIsChosen();
    void addOpensWhereNothingIs();
    void questionTellsOfAnotherDisplay();
    void addingIsOneStep();
    void defaultTargetIsShownAsSuch();
    void defaultTargetIsNotSaved();
    void nothingIsSaidWithoutAnOriginal();
    void additionsToADescriptionCanBeLost();
    void dropsAreTakenEverywhere();
    void severalFilesAreDropped();
    void otherDropsAreLeftAlone();
    void warningsAreShown();
    void warningsAreDismissed_data();
    void warningsAreDismissed();
    void openedFilesAreRecent();
    void dialogsBeginWhereTheLastFileWas();
    void listsAreAskedAbout();
    void listOfTwoReadingsIsAskedAbout();
    void canceledListIsNotOpened();
    void namesAreMadeSafe_data();
    void namesAreMadeSafe();
};

namespace {

const QByteArray meter
    = "name,Y (cd/m2),x,y\nred,190,0.69,0.30\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\nwhite,910,0.28,0.30\n";
const QByteArray description
    = R"json({"version": 1, "name": "Wall", "gamuts": [], "original": "Rec.2020", "target": "DCI-P3(D65)"})json";

QString monitor(const WindowFixture &f, const char *name = "monitor.bin")
{
    return writeFile(f.settings, QLatin1String(name), samplefiles::edid());
}

QString otherMonitor(const WindowFixture &f)
{
    return writeFile(f.settings, QStringLiteral("desk.bin"),
        samplefiles::withChecksum(samplefiles::edid().replace("Studio 27", "Desk 24\n ")));
}

//! Original, measured, declared and target.
QStringList parts(const DisplayDescription &d)
{
    return {d.original, d.measured, d.declared, d.target};
}

QStringList parts(WindowFixture &f)
{
    return parts(f.document().description());
}

QString text(const QTableWidget *table)
{
    QString all;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem *cell = table->item(row, column);
            all += (cell ? cell->text() : QString()) + QLatin1Char('\t');
        }
        all += QLatin1Char('\n');
    }
    return all;
}

//! As the toolkit does it; returns how it was taken.
Qt::DropAction drop(QWidget *widget, const QMimeData &data)
{
    const QPoint at = widget->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted()) {
        return Qt::IgnoreAction;
    }
    QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    if (!move.isAccepted()) {
        return Qt::IgnoreAction;
    }
    QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    const Qt::DropAction action = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    QCoreApplication::processEvents();
    return action;
}

//! Returns whether the files are taken. Moved, they would be deleted by where they come from.
bool drop(QWidget *widget, const QStringList &files)
{
    QList<QUrl> urls;
    for (const QString &file : files) {
        urls.append(QUrl::fromLocalFile(file));
    }
    QMimeData data;
    data.setUrls(urls);
    return drop(widget, data) == Qt::CopyAction;
}

//! Answers the next question what a measurement list means.
class ListAnswer : public QObject {
public:
    explicit ListAnswer(const std::function<void(ListDialog *)> &answer)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, answer] {
            auto *dialog = qobject_cast<ListDialog *>(QApplication::activeModalWidget());
            if (dialog && !m_isAsked) {
                m_isAsked = true;
                answer(dialog);
                if (dialog->isVisible()) {
                    dialog->reject(); // it has not been answered
                }
            }
        });
        m_timer.start(1);
    }
    bool isAsked() const { return m_isAsked; }

private:
    bool m_isAsked = false;
    QTimer m_timer;
};

OpenedFiles withWarnings(int count)
{
    OpenedFiles opened;
    for (int i = 1; i <= count; ++i) {
        opened.warnings.append({QStringLiteral("/some/folder/a.bin"),
            {QStringLiteral("is <b>odd</b>"), QStringLiteral("block %1").arg(i), 0, 0}});
    }
    return opened;
}

QAction *action(WindowFixture &f, const QKeySequence &shortcut)
{
    for (const QAction *menu : f.window->menuBar()->actions()) {
        for (QAction *item : menu->menu()->actions()) {
            if (item->shortcuts().contains(shortcut)) {
                return item;
            }
        }
    }
    return nullptr;
}

} // namespace

void ViewerFilesTest::initTestCase()
{
    // The sample is looked for beside the program, which the test is here.
    QDir folder(QCoreApplication::applicationDirPath());
    QVERIFY(folder.mkpath(QStringLiteral("samples")));
    if (!QFile::exists(folder.filePath(QStringLiteral("samples/led-wall.json")))) {
        QVERIFY(QFile::copy(QStringLiteral(SAMPLE_FILE), folder.filePath(QStringLiteral("samples/led-wall.json"))));
    }
    QVERIFY(QFile::exists(sampleFile()));
}

void ViewerFilesTest::sampleGivesWay()
{
    WindowFixture f;
    f.window->setOpened(*openFiles({sampleFile()}));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall (sample)[*] – Gamut viewer"));
    QVERIFY(RecentFiles::list().isEmpty());
    // No question: the test would stop here.
    QVERIFY(f.window->openPath(monitor(f)));
    QCOMPARE(parts(f), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(f.document().description().measurePoints.isEmpty());
    QVERIFY(!f.window->isWindowModified());
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("Studio 27[*] – Gamut viewer"));
    QVERIFY(f.document().fileName().isEmpty());
}

void ViewerFilesTest::touchedSampleDoesNotGiveWay()
{
    WindowFixture f;
    f.window->setOpened(*openFiles({sampleFile()}));
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    const FilesAnswer add(FilesAnswer::Add);
    QVERIFY(f.window->openPath(monitor(f)));
    QVERIFY(add.isAsked());
    QCOMPARE(f.document().description().declared, QStringLiteral("Studio 27"));
    QCOMPARE(f.document().description().original, QStringLiteral("LED wall"));
}

void ViewerFilesTest::newAndCloseEmptyTheWindow_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("new") << int(Qt::Key_N);
    QTest::newRow("close") << int(Qt::Key_W);
}

void ViewerFilesTest::newAndCloseEmptyTheWindow()
{
    QFETCH(int, key);
    WindowFixture f;
    const QString file = f.settings.filePath(QStringLiteral("wall.json"));
    QVERIFY(f.window->saveTo(file));
    QTest::keyClick(f.window.get(), Qt::Key(key), Qt::ControlModifier);
    QVERIFY(f.window->isVisible());
    QVERIFY(isEmpty(f.document().description()));
    QVERIFY(f.document().fileName().isEmpty());
    QVERIFY(!f.document().history()->canUndo());
    QVERIFY(!f.window->isWindowModified());
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("Untitled[*] – Gamut viewer"));
    // What is opened next is opened alone, without a question.
    QVERIFY(f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"), meter)));
    QCOMPARE(parts(f), (QStringList{"", "meter", "", ""}));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("meter.csv[*] – Gamut viewer"));
}

void ViewerFilesTest::newAsksBeforeChangesAreLost()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    {
        const Answer cancel(QMessageBox::Cancel);
        QTest::keyClick(f.window.get(), Qt::Key_N, Qt::ControlModifier);
        QVERIFY2(cancel.text().contains(QLatin1String("\"LED wall\"")), qPrintable(cancel.text()));
    }
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    f.activate();
    const Answer discard(QMessageBox::Discard);
    QTest::keyClick(f.window.get(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(isEmpty(f.document().description()));
}

void ViewerFilesTest::fileIsAddedOrOpenedAlone()
{
    for (const FilesAnswer::Choice choice : {FilesAnswer::Add, FilesAnswer::Alone}) {
        WindowFixture f;
        const FilesAnswer answer(choice);
        QVERIFY(f.window->openPath(monitor(f)));
        QVERIFY(answer.mayOpenAlone());
        QCOMPARE(answer.usual(), QStringLiteral("the declared gamut"));
        QCOMPARE(parts(f),
            choice == FilesAnswer::Add ? (QStringList{"LED wall", "LED wall, warm", "Studio 27", "DCI-P3(D65)"})
                                       : (QStringList{"", "", "Studio 27", ""}));
        QCOMPARE(f.window->isWindowModified(), choice == FilesAnswer::Add);
        QCOMPARE(f.document().description().name,
            choice == FilesAnswer::Add ? QStringLiteral("LED wall") : QStringLiteral("Studio 27"));
    }
}

void ViewerFilesTest::canceledQuestionChangesNothing()
{
    WindowFixture f;
    const QStringList before = parts(f);
    const FilesAnswer cancel(FilesAnswer::Cancel);
    QVERIFY(!f.window->openPath(monitor(f)));
    QVERIFY(cancel.isAsked());
    QCOMPARE(parts(f), before);
    QVERIFY(!f.window->isWindowModified());
    QVERIFY(RecentFiles::list().isEmpty());
}

void ViewerFilesTest::partIsChosenInTheQuestion()
{
    WindowFixture f;
    const FilesAnswer add(FilesAnswer::Add, GamutRole::Original);
    QVERIFY(f.window->openPath(monitor(f)));
    QCOMPARE(parts(f), (QStringList{"Studio 27", "LED wall, warm", "", "DCI-P3(D65)"}));
    QVERIFY2(add.note().contains(QLatin1String("takes the place of \"LED wall\" as the original gamut")),
        qPrintable(add.note()));
    QVERIFY(hasOwnGamut(f.document().description(), QStringLiteral("LED wall")));
}

void ViewerFilesTest::addNeverOpensAlone()
{
    WindowFixture f;
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    const FilesAnswer add(FilesAnswer::Add);
    QVERIFY(f.window->openPaths({wall}, ViewerWindow::Manner::Add));
    QVERIFY(add.isAsked());
    QVERIFY(!add.mayOpenAlone());
    QCOMPARE(f.document().description().name, QStringLiteral("LED wall"));
    // Opened, it takes the place.
    QVERIFY(f.window->isWindowModified() || !f.document().history()->canUndo());
    f.document().history()->undo();
    const FilesAnswer alone(FilesAnswer::Alone);
    QVERIFY(f.window->openPath(wall));
    QVERIFY(alone.isAsked());
    QCOMPARE(f.document().description().name, QStringLiteral("Wall"));
}

void ViewerFilesTest::descriptionIsAskedAboutToo()
{
    WindowFixture f;
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPath(wall));
        QVERIFY(add.isAsked() && add.mayOpenAlone());
        QVERIFY2(add.note().contains(QLatin1String("adds its gamuts only, in no part")), qPrintable(add.note()));
        QCOMPARE(f.document().description().name, QStringLiteral("LED wall"));
        f.document().history()->undo();
    }
    // Alone is what Return chooses, unlike for what belongs to a display.
    const auto readAll = [](const QString &file) {
        return *readFiles({file}, [](const QString &name) { return readGamutFile(name); });
    };
    const AddDialog ofWall(f.document().description(), QString(), readAll(wall), true);
    QVERIFY(ofWall.aloneButton()->isDefault() && !ofWall.addButton()->isDefault());
    const AddDialog ofMonitor(f.document().description(), QString(), readAll(monitor(f)), true);
    QVERIFY(ofMonitor.addButton()->isDefault() && !ofMonitor.aloneButton()->isDefault());
    // The sample and an empty window give way.
    f.window->setOpened(*openFiles({sampleFile()}));
    QVERIFY(f.window->openPath(wall));
    QCOMPARE(f.document().fileName(), wall);
}

void ViewerFilesTest::nameOfTheDisplayIsAnnounced()
{
    WindowFixture f;
    const QString said = QStringLiteral("The display is then called \"Studio 27\".");
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"), meter)));
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPath(monitor(f)));
        QVERIFY2(add.note().contains(said), qPrintable(add.note()));
        QCOMPARE(f.document().description().name, QStringLiteral("Studio 27"));
    }
    const FilesAnswer cancel(FilesAnswer::Cancel);
    f.window->openPath(monitor(f));
    QVERIFY(cancel.isAsked());
    QVERIFY(!cancel.note().contains(QLatin1String("The display is then called")));
}

void ViewerFilesTest::imaginaryGamutIsNotOffered()
{
    GamutFile aces;
    aces.content = GamutFile::Content::DeclaredGamut;
    aces.gamut = *DisplayDescription().gamut(QStringLiteral("ACES2065-1"));
    const AddDialog dialog(DisplayDescription(), QString(), {{QString(), aces, {}, GamutRole::Declared}}, true);
    QComboBox *box = dialog.roleBox(0);
    QVERIFY(box);
    for (int index = 0; index < box->count(); ++index) {
        const int role = box->itemData(index).toInt();
        const bool isShown
            = role == int(GamutRole::Original) || role == int(GamutRole::Measured) || role == int(GamutRole::Target);
        const QModelIndex item = box->model()->index(index, 0);
        QCOMPARE(bool(box->model()->flags(item) & Qt::ItemIsEnabled), !isShown);
        QCOMPARE(item.data(Qt::ToolTipRole).toString().contains(QLatin1String("no light has")), isShown);
    }
}

void ViewerFilesTest::changedFileIsNamed()
{
    WindowFixture f;
    const auto asked = [&f] {
        const Answer cancel(QMessageBox::Cancel);
        f.window->close();
        return cancel.text();
    };
    f.window->setOpened(*openFiles({writeFile(f.settings, QStringLiteral("stage.json"), description)}));
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY2(asked().startsWith(QLatin1String("\"stage.json\"")), qPrintable(asked()));
    // What is in no file yet has the name of its display, or none.
    DisplayDescription named = f.document().description();
    f.window->setDescription(named, QString());
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.67, 0.31)));
    QVERIFY2(asked().startsWith(QLatin1String("\"Wall\"")), qPrintable(asked()));
    named.name.clear();
    f.window->setDescription(named, QString());
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.67, 0.31)));
    QVERIFY2(asked().startsWith(QLatin1String("\"Untitled\"")), qPrintable(asked()));
}

void ViewerFilesTest::standardInputIsNoFile()
{
    WindowFixture f;
    OpenedFiles opened;
    opened.description.target = QStringLiteral("Rec.709");
    opened.inDescriptionFile = opened.description;
    opened.fileNames = QStringList("-");
    opened.descriptionFile = QStringLiteral("-");
    f.window->setOpened(opened);
    QVERIFY(RecentFiles::list().isEmpty());
    QVERIFY(f.document().fileName().isEmpty()); // or else it would be saved as "-"
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("Untitled[*] – Gamut viewer"));
    opened.descriptionFile.clear();
    f.window->setOpened(opened);
    QVERIFY(RecentFiles::list().isEmpty());
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("Untitled[*] – Gamut viewer"));
}

void ViewerFilesTest::cabinetIsChosen()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("wall.csv"),
        "cabinet,name,Lv,x,y\nA1,R,200,0.7,0.29\nA1,G,700,0.2,0.7\nA1,B,100,0.15,0.05\nA1,W,1000,0.28,0.29\n"
        "A2,R,210,0.7,0.29\nA2,G,710,0.2,0.7\nA2,B,110,0.15,0.05\nA2,W,1010,0.28,0.29\n");
    QString before;
    QString after;
    const ListAnswer answer([&](ListDialog *dialog) {
        before = dialog->preview()->toPlainText();
        QVERIFY(dialog->cabinet()->isVisible());
        QCOMPARE(dialog->cabinet()->currentText(), QStringLiteral("the whole wall, 2 cabinets"));
        QTest::keyClick(dialog->cabinet(), Qt::Key_Down);
        QTest::keyClick(dialog->cabinet(), Qt::Key_Down);
        QCOMPARE(dialog->cabinet()->currentText(), QStringLiteral("A2"));
        after = dialog->preview()->toPlainText();
        QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
    });
    QVERIFY(f.window->openPath(file));
    QVERIFY(answer.isAsked());
    QVERIFY2(before.contains(QLatin1String("The list makes a wall.")), qPrintable(before));
    QVERIFY2(after.contains(QLatin1String("The list makes a gamut.")), qPrintable(after));
    const auto measured = f.document().description().gamut(QStringLiteral("wall"));
    QVERIFY(measured);
    QCOMPARE(measured->getTargets().white.Y, 1010.0);
}

void ViewerFilesTest::addOpensWhereNothingIs()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPaths({monitor(f)}, ViewerWindow::Manner::Add));
    QCOMPARE(parts(f), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(!f.window->isWindowModified());
}

void ViewerFilesTest::questionTellsOfAnotherDisplay()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    {
        const FilesAnswer cancel(FilesAnswer::Cancel);
        f.window->openPath(otherMonitor(f));
        QVERIFY2(cancel.note().contains(QLatin1String("is of the display \"Desk 24\", not of \"Studio 27\"")),
            qPrintable(cancel.note()));
        QVERIFY(cancel.note().contains(QLatin1String("takes the place of \"Studio 27\" as the declared gamut")));
    }
    const FilesAnswer cancel(FilesAnswer::Cancel);
    f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"), meter));
    QVERIFY(!cancel.note().contains(QLatin1String("is of")));
}

void ViewerFilesTest::addingIsOneStep()
{
    WindowFixture f;
    const QStringList before = parts(f);
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPaths({monitor(f), writeFile(f.settings, QStringLiteral("meter.csv"), meter)}));
    }
    QCOMPARE(parts(f), (QStringList{"LED wall", "meter", "Studio 27", "DCI-P3(D65)"}));
    QCOMPARE(f.document().history()->count(), 1);
    f.activate();
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(parts(f), before);
}

void ViewerFilesTest::defaultTargetIsShownAsSuch()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    const QString name = QStringLiteral("Rec.709 (default)");
    QVERIFY(f.document().targetIsDefault());
    // Where it is edited.
    const auto says = [&f](const QString &text) {
        const QList<QLabel *> labels = f.window->panel()->editor()->findChildren<QLabel *>();
        return std::any_of(
            labels.begin(), labels.end(), [&text](const QLabel *label) { return label->text() == text; });
    };
    QVERIFY(says(name));
    QVERIFY(f.window->diagramPage()->key()->entry(name));
    const auto shown = f.window->diagramPage()->view()->gamut(ceiechart::GamutRole::Target);
    QVERIFY(shown);
    QCOMPARE(shown->colorGamutName(), name.toStdString());
    QVERIFY(f.window->panel()->editor()->isEnabled());
    // And nowhere else.
    QVERIFY(!text(f.window->panel()->values()).contains(QLatin1String("Rec.709")));
    f.show(f.window->comparePage());
    for (const DocumentView *view : f.window->comparePage()->findChildren<DocumentView *>()) {
        QVERIFY(!view->gamut(ceiechart::GamutRole::Target));
    }
    for (int column = 0; column < f.window->comparePage()->table()->columnCount(); ++column) {
        QVERIFY(!f.window->comparePage()->table()->horizontalHeaderItem(column)->text().contains(name));
    }
    QVERIFY(!f.window->comparePage()->picture().content.find(ceiechart::GamutRole::Target));
    f.show(f.window->libraryPage());
    QVERIFY(!f.window->libraryPage()->picture().content.find(ceiechart::GamutRole::Target));
    f.show(f.window->diagramPage());
    // Once edited, by hand, it is the user's.
    QWidget *red = f.window->panel()->editor()->firstCoordinate(Vertex::Red);
    red->setFocus();
    QTest::keyClick(red, Qt::Key_Up);
    QVERIFY(!f.document().targetIsDefault());
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(says(QStringLiteral("Rec.709 (edited)")));
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Rec.709 (edited)")));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(f.document().targetIsDefault());
    QVERIFY(says(name));
    // Also by a drag.
    DiagramPointer pointer(f.window->diagramPage()->view());
    pointer.drag(f.xy(Vertex::Green), QPointF(0.32, 0.55));
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(f.window->diagramPage()->key()->entry(QStringLiteral("Rec.709 (edited)")));
}

void ViewerFilesTest::defaultTargetIsNotSaved()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    const QString file = f.settings.filePath(QStringLiteral("saved.json"));
    QVERIFY(f.window->saveTo(file));
    const auto read = readDescriptionFile(file);
    QVERIFY2(read, qPrintable(read.error()));
    QCOMPARE(parts(*read), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(read->standards.isEmpty());
    // Chosen by name, it is.
    f.window->session()->reset(QStringLiteral("Rec.709"));
    QVERIFY(!f.document().targetIsDefault());
    QVERIFY(f.window->saveTo(file));
    QCOMPARE(readDescriptionFile(file)->target, QStringLiteral("Rec.709"));
}

void ViewerFilesTest::nothingIsSaidWithoutAnOriginal()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    f.window->session()->reset(QStringLiteral("Rec.2020"));
    const auto isSilent = [&f] {
        const QString verdict = f.window->panel()->verdict()->text();
        return !verdict.contains(QString::fromUtf8("✓")) && !verdict.contains(QString::fromUtf8("✗"));
    };
    QVERIFY(isSilent());
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Original: not known")));
    QVERIFY(text(f.window->panel()->coverage()).contains(QLatin1String("Original: not known")));
    f.show(f.window->comparePage());
    const QTableWidget *table = f.window->comparePage()->table();
    const int last = table->columnCount() - 1;
    QCOMPARE(table->horizontalHeaderItem(last)->text(), QStringLiteral("Original: not known"));
    for (int row = 0; row < table->rowCount(); ++row) {
        QCOMPARE(table->item(row, last)->text(), QString::fromUtf8("–"));
    }
    QVERIFY(f.window->comparePage()->loss()->text().contains(QLatin1String("not known")));
    // Nor of a target that nobody has chosen.
    DisplayDescription known = f.document().description();
    known.original = QStringLiteral("Studio 27");
    known.target.clear();
    f.document().change(known, QString());
    QVERIFY(isSilent());
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Target: not known")));
    f.show(f.window->diagramPage());
    const auto hatches = [&f] {
        return f.window->diagramPage()->view()->content().layers.testFlag(ceiechart::DiagramLayer::LostArea);
    };
    QVERIFY(!hatches());
    known.target = QStringLiteral("Rec.2020");
    f.document().change(known, QString());
    QVERIFY(!isSilent());
    QVERIFY(hatches());
}

void ViewerFilesTest::additionsToADescriptionCanBeLost()
{
    WindowFixture f;
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    f.window->setOpened(*openFiles({wall, writeFile(f.settings, QStringLiteral("meter.csv"), meter)}));
    QCOMPARE(f.document().fileName(), wall);
    QCOMPARE(f.document().description().measured, QStringLiteral("meter"));
    // The file does not have them.
    QVERIFY(f.window->isWindowModified());
    const Answer cancel(QMessageBox::Cancel);
    f.window->close();
    QVERIFY2(cancel.text().contains(QLatin1String("\"wall.json\"")), qPrintable(cancel.text()));
    f.document().history()->undo();
    QVERIFY(!f.window->isWindowModified());
    QVERIFY(f.document().description().measured.isEmpty());
}

void ViewerFilesTest::dropsAreTakenEverywhere()
{
    WindowFixture f;
    StepBox *box = f.window->panel()->editor()->firstCoordinate(Vertex::Red);
    auto *field = box->findChild<QLineEdit *>();
    QVERIFY(field);
    QWidget *const places[] = {f.window.get(), field, f.window->diagramPage()->view(),
        f.window->diagramPage()->key()->viewport(), f.window->panel()->values()->viewport(),
        f.window->warnings()->list()->viewport(), f.window->libraryPage()->currentChart()->view()->viewport()};
    for (QWidget *place : places) {
        QVERIFY(f.window->closeDocument());
        const QString before = field->text();
        QVERIFY2(drop(place, QStringList(monitor(f))), place->metaObject()->className());
        QCOMPARE(parts(f), (QStringList{"", "", "Studio 27", ""}));
        QVERIFY(!field->text().contains(QLatin1String("monitor")));
        QCOMPARE(field->text(), before);
    }
}

void ViewerFilesTest::severalFilesAreDropped()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    QVERIFY(drop(f.window->diagramPage()->view(), {monitor(f), wall}));
    QCOMPARE(parts(f), (QStringList{"Rec.2020", "", "Studio 27", "DCI-P3(D65)"}));
    QCOMPARE(f.document().fileName(), wall);
    QVERIFY(f.window->warnings()->list()->toPlainText().contains(
        QLatin1String("monitor.bin: is of the display \"Studio 27\", not of \"Wall\"")));
    // One that cannot be read leaves all as it was.
    f.document().history()->undo();
    const QStringList before = parts(f);
    const Answer answer(QMessageBox::Ok);
    drop(f.window.get(), {monitor(f), writeFile(f.settings, QStringLiteral("bad.icc"), "bad")});
    QTRY_VERIFY2(answer.text().contains(QLatin1String("bad.icc")), qPrintable(answer.text()));
    QCOMPARE(parts(f), before);
}

void ViewerFilesTest::otherDropsAreLeftAlone()
{
    WindowFixture f;
    QMimeData address;
    address.setUrls({QUrl(QStringLiteral("https://example.org/a.icc"))});
    QCOMPARE(drop(f.window.get(), address), Qt::IgnoreAction);
    QMimeData number;
    number.setText(QStringLiteral("0.5"));
    QCOMPARE(drop(f.window.get(), number), Qt::IgnoreAction);
    QCOMPARE(f.document().description().name, QStringLiteral("LED wall"));
}

void ViewerFilesTest::warningsAreShown()
{
    WindowFixture f;
    WarningBar *bar = f.window->warnings();
    QVERIFY(!bar->isVisible());
    f.window->setOpened(withWarnings(2));
    QVERIFY(bar->isVisible());
    // One a line, as they are written, without the folders.
    QCOMPARE(
        bar->list()->toPlainText(), QStringLiteral("a.bin: block 1: is <b>odd</b>\na.bin: block 2: is <b>odd</b>"));
    QVERIFY(bar->list()->isReadOnly());
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(bar);
    QVERIFY(interface && interface->text(QAccessible::Name).contains(QLatin1String("block 2: is <b>odd</b>")));
    // The window stays as it is, and the rest keeps its room.
    f.window->setOpened(withWarnings(40));
    QCoreApplication::processEvents();
    QCOMPARE(f.window->size(), QSize(1024, 768));
    QVERIFY(bar->height() < 150);
    // Those of what was opened before go with it.
    f.window->setOpened(withWarnings(0));
    QVERIFY(!bar->isVisible());
    QVERIFY(bar->warnings().isEmpty());
}

void ViewerFilesTest::warningsAreDismissed_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("click") << false;
    QTest::newRow("Esc") << true;
}

void ViewerFilesTest::warningsAreDismissed()
{
    QFETCH(bool, byKey);
    WindowFixture f;
    WarningBar *bar = f.window->warnings();
    f.window->setOpened(withWarnings(1));
    if (byKey) {
        bar->list()->setFocus();
        QTest::keyClick(bar->list(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(bar->dismissButton(), Qt::LeftButton);
    }
    QVERIFY(!bar->isVisible());
    // Reading on, it stays away; the next ones bring all of them back.
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.62, 0.33)));
    QVERIFY(!bar->isVisible());
    bar->addWarnings({QStringLiteral("b.bin: is odd, too")});
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->warnings().size(), 2);
}

void ViewerFilesTest::openedFilesAreRecent()
{
    WindowFixture f;
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    const QString list = writeFile(f.settings, QStringLiteral("meter.csv"), meter);
    f.window->setOpened(*openFiles({wall, list}));
    QCOMPARE(RecentFiles::list(), (QStringList{wall, list}));
    const FilesAnswer add(FilesAnswer::Add);
    QVERIFY(f.window->openPath(monitor(f)));
    QCOMPARE(RecentFiles::list(), (QStringList{monitor(f), wall, list}));
    RecentFiles::add(QStringLiteral("/dev/null"));
    QCOMPARE(RecentFiles::list().first(), monitor(f));
}

void ViewerFilesTest::dialogsBeginWhereTheLastFileWas()
{
    WindowFixture f;
    QCOMPARE(RecentFiles::folder(), QDir::currentPath());
    QVERIFY(QDir(f.settings.path()).mkpath(QStringLiteral("in")));
    DisplayDescription named = f.document().description();
    named.name = QStringLiteral("Stage: left/right");
    f.window->setDescription(named, QString());
    QVERIFY(writeFile(f.settings, QStringLiteral("in/meter.csv"), meter).size() > 0);
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPath(f.settings.filePath(QStringLiteral("in/meter.csv"))));
    }
    f.activate();
    QString folder;
    QStringList selected;
    QStringList filters;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            folder = dialog->directory().path();
            selected = dialog->selectedFiles();
            filters = dialog->nameFilters();
            dialog->reject();
        }
    });
    timer.start(1);
    QTest::keyClick(f.window.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(QFileInfo(folder), QFileInfo(f.settings.filePath(QStringLiteral("in"))));
    QCOMPARE(selected.size(), 1);
    QCOMPARE(QFileInfo(selected.first()).fileName(), QStringLiteral("Stage_ left_right.json"));
    f.activate();
    folder.clear();
    QTest::keyClick(f.window.get(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(QFileInfo(folder), QFileInfo(f.settings.filePath(QStringLiteral("in"))));
    QCOMPARE(filters.size(), 2);
    for (const QString &pattern : gamutFilePatterns()) {
        QVERIFY2(filters.first().contains(pattern), qPrintable(pattern));
    }
    QCOMPARE(filters.last(), QStringLiteral("All files (*)"));
    // A folder that has gone is none.
    QVERIFY(QDir(f.settings.filePath(QStringLiteral("in"))).removeRecursively());
    QCOMPARE(RecentFiles::folder(), QDir::currentPath());
    // Each has a shortcut.
    for (const QKeySequence &shortcut : {QKeySequence(QKeySequence::New), QKeySequence(QKeySequence::Open),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O), QKeySequence(QKeySequence::Close)}) {
        QVERIFY2(action(f, shortcut), qPrintable(shortcut.toString()));
    }
}

void ViewerFilesTest::listsAreAskedAbout()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"),
        "name,Y (lux),x,y\nred,190,0.69,0.30\nred,180,0.64,0.33\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\n");
    QString before;
    QString after;
    const ListAnswer answer([&](ListDialog *dialog) {
        before = dialog->preview()->toPlainText();
        // By its keys, as a user: the second red, the sum, cd/m2.
        QComboBox *red = dialog->choice(Vertex::Red);
        QTest::keyClick(red, Qt::Key_End);
        while (!red->currentText().startsWith(QLatin1String("line 3:")) && red->currentIndex() > 0) {
            QTest::keyClick(red, Qt::Key_Up);
        }
        QTest::keyClick(dialog->choice(Vertex::White), Qt::Key_Down);
        QTest::keyClick(dialog->unit(), Qt::Key_Down);
        after = dialog->preview()->toPlainText();
        QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
    });
    QVERIFY(f.window->openPath(file));
    QVERIFY(answer.isAsked());
    QVERIFY2(before.contains(QLatin1String("makes no gamut")), qPrintable(before));
    QVERIFY2(after.contains(QLatin1String("The list makes a gamut.")), qPrintable(after));
    const auto measured = f.document().description().gamut(QStringLiteral("meter"));
    QVERIFY(measured);
    QCOMPARE(f.document().description().measured, QStringLiteral("meter"));
    QCOMPARE(measured->getTargets().red.x, 0.64);
    QCOMPARE(measured->getTargets().white.Y, 180.0 + 600.0 + 120.0);
    QVERIFY(measured->unit == LuminanceUnit::CandelaPerSquareMetre);
}

void ViewerFilesTest::listOfTwoReadingsIsAskedAbout()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    // A thousand and more, or one and a bit.
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"),
        "name;X (cd/m2);Y;Z\nred;1,234;1,000;1,500\ngreen;1,000;2,000;1,000\n");
    QVERIFY(!readGamutFile(file));
    const ListAnswer answer([](ListDialog *dialog) {
        QVERIFY(!dialog->useButton()->isEnabled());
        QTest::keyClick(dialog->decimalSign(), Qt::Key_End);
        QVERIFY2(dialog->useButton()->isEnabled(), qPrintable(dialog->preview()->toPlainText()));
        QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
    });
    QVERIFY(f.window->openPath(file));
    QVERIFY(answer.isAsked());
    QVERIFY(!f.document().description().measurePoints.isEmpty());
}

void ViewerFilesTest::canceledListIsNotOpened()
{
    WindowFixture f;
    const QString file
        = writeFile(f.settings, QStringLiteral("meter.csv"), "name,Y,x,y\nred,190,0.69,0.30\nred,180,0.64,0.33\n");
    const ListAnswer answer([](ListDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    QVERIFY(!f.window->openPath(file));
    QVERIFY(answer.isAsked());
    QCOMPARE(f.document().description().name, QStringLiteral("LED wall"));
    QVERIFY(!f.window->isWindowModified());
    QVERIFY(RecentFiles::list().isEmpty());
}

void ViewerFilesTest::namesAreMadeSafe_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("as it is") << "Stage left 2"
                              << "Stage left 2";
    QTest::newRow("Chinese") << QString::fromUtf8("左侧屏幕") << QString::fromUtf8("左侧屏幕");
    QTest::newRow("folders") << "../../etc/passwd"
                             << "_.._etc_passwd";
    QTest::newRow("of another system") << "C:\\wall?*"
                                       << "C__wall__";
    QTest::newRow("control characters") << "a\nb\tc"
                                        << "a_b_c";
    QTest::newRow("right to left mark") << QStringLiteral("a\u202Egnp.b") << "a_gnp.b";
    QTest::newRow("hidden") << ".config"
                            << "config";
    QTest::newRow("dots and spaces at the end") << " wall . ."
                                                << "wall";
    QTest::newRow("device") << "NUL"
                            << "_NUL";
    QTest::newRow("device with suffix") << "com1.b"
                                        << "_com1.b";
    QTest::newRow("nothing readable") << "///"
                                      << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("long") << QString(500, 'w') << QString(60, 'w');
}

void ViewerFilesTest::namesAreMadeSafe()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(safeFileName(name), expected);
}

QTEST_MAIN(ViewerFilesTest)
#include "viewerfilestest.moc"
