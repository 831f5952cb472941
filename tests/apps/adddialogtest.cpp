// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "display/samples.h"
#include "window/recentfiles.h"

#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class AddDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fileIsAddedOrOpenedAlone();
    void canceledQuestionChangesNothing();
    void partIsChosenInTheQuestion();
    void addNeverOpensAlone();
    void descriptionIsAskedAboutToo();
    void nameOfTheDisplayIsAnnounced();
    void imaginaryGamutIsNotOffered();
    void addOpensWhereNothingIs();
    void questionTellsOfAnotherDisplay();
    void addingIsOneStep();
};

namespace {

QString otherMonitor(const WindowFixture &f)
{
    return writeFile(f.settings, QStringLiteral("desk.bin"),
        samplefiles::withChecksum(samplefiles::edid().replace("Studio 27", "Desk 24\n ")));
}

} // namespace

void AddDialogTest::fileIsAddedOrOpenedAlone()
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

void AddDialogTest::canceledQuestionChangesNothing()
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

void AddDialogTest::partIsChosenInTheQuestion()
{
    WindowFixture f;
    const FilesAnswer add(FilesAnswer::Add, GamutRole::Original);
    QVERIFY(f.window->openPath(monitor(f)));
    QCOMPARE(parts(f), (QStringList{"Studio 27", "LED wall, warm", "", "DCI-P3(D65)"}));
    QVERIFY2(add.note().contains(QLatin1String("takes the place of \"LED wall\" as the original gamut")),
        qPrintable(add.note()));
    QVERIFY(hasOwnGamut(f.document().description(), QStringLiteral("LED wall")));
}

void AddDialogTest::addNeverOpensAlone()
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

void AddDialogTest::descriptionIsAskedAboutToo()
{
    WindowFixture f;
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPath(wall));
        QVERIFY(add.isAsked() && add.mayOpenAlone());
        QVERIFY2(add.note().contains(QLatin1String("adds its gamuts only, in no role")), qPrintable(add.note()));
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

void AddDialogTest::nameOfTheDisplayIsAnnounced()
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

void AddDialogTest::imaginaryGamutIsNotOffered()
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

void AddDialogTest::addOpensWhereNothingIs()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPaths({monitor(f)}, ViewerWindow::Manner::Add));
    QCOMPARE(parts(f), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(!f.window->isWindowModified());
}

void AddDialogTest::questionTellsOfAnotherDisplay()
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

void AddDialogTest::addingIsOneStep()
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

QTEST_MAIN(AddDialogTest)
#include "adddialogtest.moc"
