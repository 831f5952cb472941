// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "answeredmessage.h"
#include "failingcalls.h"

#include "drawing/picture.h"
#include "window/diagrampage.h"
#include "window/listdialog.h"

#include <apps/windowfixture.h>

#include <QComboBox>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <functional>
#include <limits>
#include <unistd.h>

using namespace gamutviewer;

/*! Saves, exports and opens again and again, and lets another call of the system or allocation fail each time. */
class WindowFaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { failCall(nullptr, 0, nullptr, 0); }
    void saving_data() { calls(); }
    void saving();
    void exporting_data() { calls(); }
    void exporting();
    void opening_data() { calls(); }
    void opening();
    void savingWithoutMemory();
    void openingWithoutMemory_data();
    void openingWithoutMemory();
    void choosingWithoutMemory();

private:
    static void calls();
};

namespace {

const QByteArray former = "what was there before\n";

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

//! Runs \a action with another call failing each time, until none does; \a check is told whether it was done.
void failEach(const QString &call, const QString &folder, const std::function<void()> &begin,
    const std::function<bool()> &action, const std::function<void(bool isDone, bool saysWhy)> &check)
{
    constexpr int most = 100;
    int failures = 0;
    for (const bool isLasting : {false, true}) {
        for (int number = 1;; ++number) {
            QVERIFY2(number < most, "the calls do not come to an end");
            begin();
            AnsweredMessage message;
            failCall(call.toLatin1().constData(), number, folder.toLocal8Bit().constData(), isLasting ? 1 : 0);
            const bool isDone = action();
            const bool hasFailed = hasCallFailed() != 0 || !isDone;
            failCall(nullptr, 0, nullptr, 0);
            if (!hasFailed) {
                QVERIFY(isDone);
                break;
            }
            ++failures;
            check(isDone, message.saysWhy());
            if (QTest::currentTestFailed()) {
                qWarning("%s %d%s", qPrintable(call), number, isLasting ? " and later" : "");
                return;
            }
        }
    }
    QVERIFY2(failures > 0 || call == QLatin1String("rename") || call == QLatin1String("fsync"), "no call has failed");
}

/*!
 * \brief Runs \a action with another allocation failing each time, of those that \a part of it makes.
 *
 * What the toolkit does with the result, such as drawing it, is left out: its libraries take memory for granted. A
 * question counts as saying why, since it is asked after all has been read.
 */
void failAllocations(const QString &folder, const std::function<void()> &part, const std::function<void()> &begin,
    const std::function<bool()> &action, const std::function<void(bool isDone, bool saysWhy)> &check)
{
    const QByteArray inFolder = folder.toLocal8Bit();
    part(); // the first time makes what stays, too
    failCall("memory", std::numeric_limits<int>::max(), inFolder.constData(), 0);
    part();
    const int all = numberOfCalls();
    failCall(nullptr, 0, nullptr, 0);
    int failures = 0;
    for (int number = 1; number <= all; number += 1 + number / 20) {
        begin();
        AnsweredMessage message;
        failCall("memory", number, inFolder.constData(), 0);
        const bool isDone = action();
        const bool hasFailed = hasCallFailed() != 0 || !isDone;
        failCall(nullptr, 0, nullptr, 0);
        QVERIFY(hasFailed);
        failures += message.saysWhy() ? 1 : 0;
        check(isDone, message.saysWhy() || message.hasAsked());
        if (QTest::currentTestFailed()) {
            qWarning("allocation %d of %d", number, all);
            return;
        }
    }
    QVERIFY2(failures > 10, "hardly any allocation matters");
}

} // namespace

void WindowFaultsTest::calls()
{
    QTest::addColumn<QString>("call");
    for (const char *call : {"open", "write", "fsync", "rename", "read"}) {
        QTest::newRow(call) << QString::fromLatin1(call);
    }
}

void WindowFaultsTest::saving()
{
    QFETCH(QString, call);
    if (call == QLatin1String("read")) {
        return; // nothing is
    }
    WindowFixture f;
    QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("saved.json"), former);
    f.change();
    const QByteArray shown = gamutfiles::descriptionText(f.document().own());
    failEach(
        call, folder.path(),
        [&] {
            writeFile(folder, QStringLiteral("saved.json"), former);
            f.document().history()->undo();
            f.change();
        },
        [&] { return f.window->saveTo(file); },
        [&](bool isDone, bool saysWhy) {
            QCOMPARE(gamutfiles::descriptionText(f.document().own()), shown);
            QCOMPARE(
                QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("saved.json")});
            QCOMPARE(contentOf(file), isDone ? shown : former);
            QCOMPARE(f.document().isModified(), !isDone);
            QVERIFY(isDone || saysWhy);
        });
    // What was not saved can be saved as soon as there is room.
    QVERIFY(f.window->saveTo(file));
    QCOMPARE(contentOf(file), shown);
    QVERIFY(!f.document().isModified());
}

void WindowFaultsTest::exporting()
{
    QFETCH(QString, call);
    if (call == QLatin1String("read")) {
        return; // nothing is
    }
    WindowFixture f;
    QTemporaryDir folder;
    const QString name = QStringLiteral("out.png");
    const QString file = writeFile(folder, name, former);
    const Picture picture = f.window->diagramPage()->picture();
    PictureExtent extent;
    extent.size = QSize(120, 120);
    failEach(
        call, folder.path(), [&] { writeFile(folder, name, former); },
        [&] { return f.window->exportTo(file, picture, extent); },
        [&](bool isDone, bool saysWhy) {
            QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
            if (isDone) {
                QVERIFY(!QImage(file).isNull());
            } else {
                QCOMPARE(contentOf(file), former);
                QVERIFY(saysWhy);
            }
        });
}

void WindowFaultsTest::opening()
{
    QFETCH(QString, call);
    if (call != QLatin1String("open") && call != QLatin1String("read")) {
        return; // nothing else is called
    }
    WindowFixture f;
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("other.json"));
    QVERIFY(QFile::copy(QStringLiteral(SAMPLE_FILE), file));
    const QByteArray before = gamutfiles::descriptionText(DisplayDescription());
    const QByteArray whole = gamutfiles::descriptionText(f.document().own()); // the sample
    failEach(
        call, folder.path(), [&] { f.window->setDescription(DisplayDescription(), QString()); },
        [&] { return f.window->openPath(file); },
        [&](bool isDone, bool saysWhy) {
            QCOMPARE(gamutfiles::descriptionText(f.document().own()), isDone ? whole : before);
            QVERIFY(isDone || saysWhy);
        });
}

void WindowFaultsTest::savingWithoutMemory()
{
    WindowFixture f;
    QTemporaryDir folder;
    const QString name = QStringLiteral("saved.json");
    const QString file = writeFile(folder, name, former);
    f.change();
    const QByteArray shown = gamutfiles::descriptionText(f.document().own());
    // Before the file is opened there is work, too; allocations count from the first open.
    const QByteArray path = QFile::encodeName(file);
    const auto beginToCount = [&path] { ::close(::open(path.constData(), O_RDONLY)); };
    failAllocations(
        folder.path(),
        [&] {
            beginToCount();
            gamutfiles::writeDescription(f.document().own(), file);
        },
        [&] {
            writeFile(folder, name, former);
            f.document().history()->undo();
            f.change();
        },
        [&] {
            beginToCount();
            return f.window->saveTo(file);
        },
        [&](bool isDone, bool saysWhy) {
            QCOMPARE(gamutfiles::descriptionText(f.document().own()), shown);
            QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
            QCOMPARE(contentOf(file), isDone ? shown : former);
            QCOMPARE(f.document().isModified(), !isDone);
            QVERIFY(isDone || saysWhy);
        });
}

void WindowFaultsTest::openingWithoutMemory_data()
{
    QTest::addColumn<QString>("sample");
    QTest::newRow("description") << QStringLiteral(SAMPLE_FILE);
    QTest::newRow("measurements") << QFileInfo(QStringLiteral(SAMPLE_FILE)).path()
            + QStringLiteral("/led-wall-measured.csv");
}

void WindowFaultsTest::openingWithoutMemory()
{
    QFETCH(QString, sample);
    WindowFixture f;
    QTemporaryDir folder;
    const QString file = folder.filePath(QFileInfo(sample).fileName());
    QVERIFY(QFile::copy(sample, file));
    f.change();
    const QByteArray shown = gamutfiles::descriptionText(f.document().own());
    failAllocations(
        folder.path(), [&] { QVERIFY(readGamutFile(file)); }, [] {}, [&] { return f.window->openPath(file); },
        [&](bool isDone, bool saysWhy) {
            QVERIFY(!isDone && saysWhy); // or it asks whether to add the file, having read it without that memory
            QCOMPARE(gamutfiles::descriptionText(f.document().own()), shown);
            QVERIFY(f.document().isModified());
        });
}

// The dialog reads the list again for each choice, in the event loop.
void WindowFaultsTest::choosingWithoutMemory()
{
    QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("list.csv"),
        "name,Y,x,y\nred,21,0.64,0.33\ngreen,71,0.3,0.6\nblue,7,0.15,0.06\nwhite,99,0.3127,0.329\n");
    ListDialog dialog(file, {}, nullptr);
    auto *unit = dialog.findChild<QComboBox *>();
    QVERIFY(dialog.read());
    const auto choose = [&](int number) {
        unit->setCurrentIndex(0);
        failCall("memory", number, folder.path().toLocal8Bit().constData(), 0);
        unit->setCurrentIndex(1);
        failCall(nullptr, 0, nullptr, 0);
    };
    int failures = 0;
    for (int number = 1; number < 50; ++number) { // of more than that, which reading makes
        choose(number);
        failures += dialog.read() ? 0 : 1;
        QVERIFY(dialog.read() || dialog.read().error() == QLatin1String("there is not enough memory"));
    }
    QVERIFY2(failures > 40, qPrintable(QString::number(failures)));
    unit->setCurrentIndex(0);
    unit->setCurrentIndex(1);
    QVERIFY(dialog.read());
    QCOMPARE(dialog.read()->measurements.unit, LuminanceUnit::CandelaPerSquareMetre);
}

QTEST_MAIN(WindowFaultsTest)
#include "windowfaultstest.moc"
