// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "window/recentfiles.h"
#include <gamutfiles/descriptionfile.h>

#include <QFile>
#include <QMimeData>
#include <QtTest>

using namespace gamutviewer;

class WindowDocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void titleNamesTheDisplayAndTheChange();
    void titleNamesTheFileOfANamelessDisplay();
    void closesByKeyboard();
    void closeAsksBeforeChangesAreLost();
    void numberThatIsBeingTypedCounts();
    void windowGoesWhileANumberIsTyped();
    void savedFileReadsBackTheSame();
    void saveThatFailsSaysSo();
    void badFileLeavesWhatWasOpen_data();
    void badFileLeavesWhatWasOpen();
    void droppedFileIsOpened();
    void addedMeasurementsCanBeUndone();
    void openAsksBeforeChangesAreLost();
    void recentFilesAreRemembered();
};

namespace {

QByteArray sample()
{
    QFile file(QStringLiteral(SAMPLE_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void WindowDocumentTest::titleNamesTheDisplayAndTheChange()
{
    WindowFixture f;
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall[*] – Gamut viewer"));
    QVERIFY(!f.window->isWindowModified());
    f.change();
    QVERIFY(f.window->isWindowModified());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!f.window->isWindowModified());
}

void WindowDocumentTest::titleNamesTheFileOfANamelessDisplay()
{
    WindowFixture f;
    DisplayDescription nameless = f.document().description();
    nameless.name.clear();
    f.window->setDescription(nameless, QStringLiteral("some/wall.json"));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("wall.json[*] – Gamut viewer"));
}

void WindowDocumentTest::closesByKeyboard()
{
    WindowFixture f;
    QTest::keyClick(f.window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!f.window->isVisible());
}

void WindowDocumentTest::closeAsksBeforeChangesAreLost()
{
    WindowFixture f;
    f.change();
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

void WindowDocumentTest::numberThatIsBeingTypedCounts()
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

void WindowDocumentTest::windowGoesWhileANumberIsTyped()
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

void WindowDocumentTest::savedFileReadsBackTheSame()
{
    WindowFixture f;
    f.change();
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

void WindowDocumentTest::saveThatFailsSaysSo()
{
    WindowFixture f;
    f.change();
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->saveTo(f.settings.filePath(QStringLiteral("no/such/folder/saved.json"))));
    QVERIFY(answer.text().contains(QLatin1String("saved.json")));
    QVERIFY(f.window->isWindowModified());
}

void WindowDocumentTest::badFileLeavesWhatWasOpen_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("broken description") << QByteArray("{ \"version\": 1,");
    QTest::newRow("nothing known") << QByteArray("\x89nothing\x00", 9);
    QTest::newRow("empty") << QByteArray();
}

void WindowDocumentTest::badFileLeavesWhatWasOpen()
{
    QFETCH(QByteArray, bytes);
    WindowFixture f;
    f.change();
    const QString file = writeFile(f.settings, QStringLiteral("bad.json"), bytes);
    QVERIFY(!file.isEmpty());
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->openPath(file));
    QVERIFY(answer.text().contains(QLatin1String("bad.json")));
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QVERIFY(f.window->isWindowModified());
    QVERIFY(!RecentFiles::list().contains(file));
}

void WindowDocumentTest::droppedFileIsOpened()
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

void WindowDocumentTest::addedMeasurementsCanBeUndone()
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

void WindowDocumentTest::openAsksBeforeChangesAreLost()
{
    WindowFixture f;
    f.change();
    const FilesAnswer alone(FilesAnswer::Alone);
    const Answer cancel(QMessageBox::Cancel);
    QVERIFY(!f.window->openPath(QStringLiteral(SAMPLE_FILE)));
    QVERIFY(!cancel.text().isEmpty());
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
}

void WindowDocumentTest::recentFilesAreRemembered()
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

QTEST_MAIN(WindowDocumentTest)
#include "windowdocumenttest.moc"
