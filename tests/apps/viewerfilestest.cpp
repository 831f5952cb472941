// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "display/samples.h"
#include "editing/targetsession.h"
#include "window/filenames.h"
#include "window/recentfiles.h"
#include "window/wallpage.h"

#include <QAction>
#include <QFileDialog>
#include <QMenuBar>
#include <QTabWidget>
#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class ViewerFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sampleGivesWay();
    void touchedSampleDoesNotGiveWay();
    void newAndCloseEmptyTheWindow_data();
    void newAndCloseEmptyTheWindow();
    void newAsksBeforeChangesAreLost();
    void changedFileIsNamed();
    void wallBesideADescriptionIsShown();
    void standardInputIsNoFile();
    void additionsToADescriptionCanBeLost();
    void openedFilesAreRecent();
    void dialogsBeginWhereTheLastFileWas();
    void namesAreMadeSafe_data();
    void namesAreMadeSafe();
};

namespace {

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
    // A list has no name of a display, but one of its own.
    f.window->setOpened(*openFiles({writeFile(f.settings, QStringLiteral("meter.csv"), meter)}));
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.67, 0.31)));
    QVERIFY2(asked().startsWith(QLatin1String("\"meter.csv\"")), qPrintable(asked()));
}

void ViewerFilesTest::wallBesideADescriptionIsShown()
{
    WindowFixture f;
    OpenedFiles opened = *openFiles({writeFile(f.settings, QStringLiteral("stage.json"), description)});
    opened.description.wall.cabinets.resize(2);
    f.window->setOpened(opened);
    QCOMPARE(f.window->pages()->currentWidget(), static_cast<QWidget *>(f.window->wallPage()));
    // The page that was chosen stays where the wall is a part of the description.
    f.window->pages()->setCurrentIndex(0);
    opened.inDescriptionFile = opened.description;
    f.window->setOpened(opened);
    QCOMPARE(f.window->pages()->currentIndex(), 0);
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
