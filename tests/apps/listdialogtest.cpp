// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "panel/sidepanel.h"
#include "panel/warningbar.h"
#include "program/interfacetranslations.h"
#include "window/listdialog.h"
#include "window/recentfiles.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QtTest>

#include <functional>

using namespace gamutviewer;
using namespace givenfiles;

class ListDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cabinetIsChosen();
    void listsAreAskedAbout();
    void listOfTwoReadingsIsAskedAbout();
    void columnsAreNamedInTheLanguageOfTheWindow();
    void canceledListIsNotOpened();
    void listIsAskedAboutAtTheStart();
    void canceledListIsNotOpenedAtTheStart();
    void listIsReadAgain();
    void namelessLinesAreToldApart();
};

namespace {

const QByteArray redTwice = "name,Lv,x,y\nred,190,0.69,0.30\nred,180,0.64,0.33\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\n"
                            "white,900,0.28,0.3\n";

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

} // namespace

void ListDialogTest::cabinetIsChosen()
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
        QCOMPARE(dialog->question()->text(),
            QStringLiteral("wall.csv has measurements of 2 cabinets. What is to be made of them?"));
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

void ListDialogTest::listsAreAskedAbout()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"),
        "name,Y (lux),x,y\nred,190,0.69,0.30\nred,180,0.64,0.33\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\n");
    QString before;
    QString after;
    const ListAnswer answer([&](ListDialog *dialog) {
        before = dialog->preview()->toPlainText();
        QCOMPARE(dialog->question()->text(),
            QStringLiteral("meter.csv does not say all of what it means. What is known of it?"));
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

void ListDialogTest::listOfTwoReadingsIsAskedAbout()
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

void ListDialogTest::columnsAreNamedInTheLanguageOfTheWindow()
{
    installInterfaceTranslations(QLocale(QLocale::Chinese, QLocale::China));
    WindowFixture f;
    QString preview;
    const ListAnswer answer([&](const ListDialog *dialog) { preview = dialog->preview()->toPlainText(); });
    f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"),
        "cabinet,row,column,name,Y (lux),x,y\nA,1,1,red,190,0.69,0.30\nA,1,1,green,600,0.2,0.7\n"));
    QVERIFY(answer.isAsked());
    for (const char *name : {"箱体", "行", "列", "名称"}) {
        QVERIFY2(preview.contains(QString::fromUtf8("%1 在第").arg(QString::fromUtf8(name))), qPrintable(preview));
    }
    installInterfaceTranslations(QLocale(QLocale::English));
}

void ListDialogTest::canceledListIsNotOpened()
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

void ListDialogTest::listIsAskedAboutAtTheStart()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"), redTwice);
    QVERIFY(ViewerWindow::canAskAbout({file}));
    QVERIFY(!ViewerWindow::canAskAbout({file, QStringLiteral("-")}));
    const ListAnswer answer([](ListDialog *dialog) {
        QTest::keyClick(dialog->choice(Vertex::Red), Qt::Key_Down);
        QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
    });
    // What the command line asks for besides is made with the answer.
    f.window->openWithQuestions({file}, {}, [](const OpenedFiles &answered) {
        OpenedFiles changed = answered;
        changed.description.target = QStringLiteral("Rec.2020");
        return changed;
    });
    QVERIFY(answer.isAsked());
    QCOMPARE(parts(f), (QStringList{"", "meter", "", "Rec.2020"}));
    QCOMPARE(f.document().description().gamut(QStringLiteral("meter"))->getTargets().red.x, 0.69);
    QCOMPARE(RecentFiles::list(), QStringList(file));
    QVERIFY(!f.window->isWindowModified());
}

void ListDialogTest::canceledListIsNotOpenedAtTheStart()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"), redTwice);
    const ListAnswer answer([](ListDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    f.window->openWithQuestions({file}, {}, [](const OpenedFiles &answered) { return answered; });
    QVERIFY(answer.isAsked());
    QVERIFY(isEmpty(f.document().description()));
    QVERIFY(RecentFiles::list().isEmpty());
    QVERIFY(!f.window->warnings()->isVisible());
    // What cannot be made with an answer is told, and nothing is opened either.
    const ListAnswer use([](ListDialog *dialog) { QTest::mouseClick(dialog->useButton(), Qt::LeftButton); });
    const Answer ok(QMessageBox::Ok);
    f.window->openWithQuestions({file}, {}, [](const OpenedFiles &) {
        return Outcome<OpenedFiles>::failure(QStringLiteral("--target: there is no such gamut"));
    });
    QCOMPARE(ok.text(), QStringLiteral("--target: there is no such gamut"));
    QVERIFY(isEmpty(f.document().description()));
}

void ListDialogTest::listIsReadAgain()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const auto menu = [&f] {
        QMenu *lists = nullptr;
        QMenu *file = f.window->menuBar()->actions().first()->menu();
        Q_EMIT file->aboutToShow();
        for (const QAction *action : file->actions()) {
            lists = action->text() == QLatin1String("Read &list again") ? action->menu() : lists;
        }
        Q_EMIT lists->aboutToShow();
        return lists;
    };
    QVERIFY(!menu()->menuAction()->isEnabled());
    // It has no colours that are recognised and no unit, which needs no choice.
    QVERIFY(f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"),
        "name,Y,x,y\nP1,190,0.69,0.30\nP2,600,0.2,0.7\nP3,120,0.14,0.08\nP4,900,0.28,0.3\nP5,100,0.28,0.3\n")));
    QCOMPARE(parts(f), (QStringList{"", "", "", ""}));
    QCOMPARE(f.document().description().measurePoints.size(), 5);
    QCOMPARE(f.window->warnings()->warnings().size(), 2);
    QVERIFY(menu()->menuAction()->isEnabled());
    QCOMPARE(menu()->actions().size(), 1);
    QCOMPARE(menu()->actions().first()->text(), QString::fromUtf8("meter.csv…"));
    {
        const ListAnswer cancel([](ListDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        menu()->actions().first()->trigger();
        QVERIFY(cancel.isAsked());
        QVERIFY(!f.window->isWindowModified());
        QCOMPARE(f.window->warnings()->warnings().size(), 2);
    }
    const ListAnswer answer([](ListDialog *dialog) {
        QTest::keyClick(dialog->unit(), Qt::Key_Down);
        for (const Vertex vertex : allVertices) {
            QTest::keyClick(dialog->choice(vertex), Qt::Key_Down);
            const QString line = QStringLiteral("line %1:").arg(2 + int(vertex));
            while (!dialog->choice(vertex)->currentText().startsWith(line)) {
                QTest::keyClick(dialog->choice(vertex), Qt::Key_Down);
            }
        }
        QTest::mouseClick(dialog->useButton(), Qt::LeftButton);
    });
    const FilesAnswer add(FilesAnswer::Add);
    menu()->actions().first()->trigger();
    QVERIFY(answer.isAsked() && add.isAsked());
    QCOMPARE(parts(f), (QStringList{"", "meter", "", ""}));
    const auto measured = f.document().description().gamut(QStringLiteral("meter"));
    QCOMPARE(measured->getTargets().white.Y, 900.0);
    QVERIFY(measured->unit == LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(f.document().description().measurePoints.size(), 1);
    // What was said of the first reading is gone.
    QCOMPARE(f.window->warnings()->warnings(), QStringList());
    QCOMPARE(menu()->actions().size(), 1);
    QCOMPARE(f.window->panel()->fileNotes().lists.size(), 1);
    QCOMPARE(f.window->panel()->fileNotes().lists.first().recognized.parts.size(), 4);
    f.document().history()->undo();
    QCOMPARE(f.document().description().measurePoints.size(), 5);
}

void ListDialogTest::namelessLinesAreToldApart()
{
    WindowFixture f;
    const ListDialog dialog(
        writeFile(f.settings, QStringLiteral("meter.csv"), "Lv,x,y\n190,0.69,0.30\n600,0.2,0.70004\n"), {});
    QCOMPARE(dialog.choice(Vertex::Red)->itemText(1), QStringLiteral("line 2: x 0.6900, y 0.3000"));
    QCOMPARE(dialog.choice(Vertex::Red)->itemText(2), QStringLiteral("line 3: x 0.2000, y 0.7000"));
}

QTEST_MAIN(ListDialogTest)
#include "listdialogtest.moc"
