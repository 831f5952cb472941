// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "failingcalls.h"

#include "drawing/picture.h"
#include "following/followedinput.h"
#include "following/following.h"
#include "window/diagrampage.h"
#include "window/followmenu.h"
#include "window/listdialog.h"

#include <apps/windowfixture.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>

#include <fcntl.h>
#include <functional>
#include <limits>
#include <unistd.h>
#include <utility>

using namespace gamutviewer;

/*! Saves, exports and opens again and again, and lets another call of the system fail each time. */
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
    void followingWithoutMemory();
    void showingWithoutMemory_data();
    void showingWithoutMemory();
    void keepingWithoutMemory();
    void closingWithoutMemory();
    void drawingWithoutMemory();

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

//! Closes the message of what went wrong, and keeps its text; answers a question by Cancel.
class Message {
public:
    Message()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                failCall(nullptr, 0, nullptr, 0);
                m_text = box->text();
                box->accept();
            } else if (auto *question = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_hasAsked = true;
                question->reject();
            }
        });
        m_timer.start(0);
    }
    bool saysWhy() const
    {
        return !m_text.isEmpty() && !m_text.contains(QLatin1Char('\n'))
            && !m_text.contains(QLatin1String("Unknown error"));
    }

    //! Whether what was asked for went on up to a question.
    bool hasAsked() const { return m_hasAsked; }

private:
    QTimer m_timer;
    QString m_text;
    bool m_hasAsked = false;
};

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
            Message message;
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
        Message message;
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

//! A list of four colours that is there at once. The first read opens a file, from where allocations count.
class GivenInput : public FollowedInput {
public:
    using FollowedInput::FollowedInput;
    QByteArray read(int) override
    {
        if (m_reads++ > 0) {
            m_allocations = m_allocations > 0 ? m_allocations : numberOfCalls();
            return QByteArray();
        }
        const QByteArray path = QFile::encodeName(fileName());
        ::close(::open(path.constData(), O_RDONLY));
        return QByteArray("name,Y (cd/m2),x,y\nred,21,0.64,0.33\ngreen,71,0.3,0.6\nblue,7,0.15,0.06\n"
                          "white,99,0.3127,0.329\n#DIV/0!\n");
    }
    bool isThere() const override { return true; }
    bool hasEnded() const override { return false; }
    bool isRepeatable() const override { return true; }

    //! Whether there was nothing left when it was read again.
    bool isRead() const { return m_reads > 1; }
    //! How many it took to read it.
    int allocations() const { return m_allocations; }

private:
    int m_reads = 0;
    int m_allocations = 0;
};

//! What comes of a list is there when it is given.
class GrowingInput : public FollowedInput {
public:
    using FollowedInput::FollowedInput;
    QByteArray read(int) override { return std::exchange(m_bytes, QByteArray()); }
    bool isThere() const override { return true; }
    bool hasEnded() const override { return false; }
    bool isRepeatable() const override { return false; }

    void give(const QByteArray &bytes)
    {
        m_bytes += bytes;
        Q_EMIT arrived();
    }

private:
    QByteArray m_bytes;
};

const QByteArray firstColors = "name,Y (cd/m2),x,y\nred,21,0.64,0.33\ngreen,71,0.3,0.6\nblue,7,0.15,0.06\n"
                               "white,99,0.3127,0.329\ngrey,50,0.31,0.33\n";
const QByteArray laterColors = "red,22,0.65,0.32\ndark,5,0.3,0.32\n";
const QByteArray firstCabinets = "cabinet,name,Y (cd/m2),x,y\nA1,red,21,0.64,0.33\nA1,green,71,0.3,0.6\n"
                                 "A1,blue,7,0.15,0.06\nA1,white,99,0.3127,0.329\nA2,red,20,0.64,0.33\n"
                                 "A2,green,70,0.3,0.6\nA2,blue,6,0.15,0.06\nA2,white,96,0.3127,0.329\n"
                                 "A3,red,20,0.64,0.33\n";
const QByteArray laterCabinets = "A3,green,60,0.3,0.6\nA3,blue,5,0.15,0.06\nA3,white,85,0.3127,0.329\n"
                                 "A4,red,20,0.64,0.33\n";

//! A window that follows a list, of which the beginning is shown and some lines more have been read.
class Followed {
public:
    Followed(const QByteArray &first, const QByteArray &later)
        : m_first(first)
        , m_later(later)
        , m_path(m_folder.filePath(QStringLiteral("list.csv")).toLocal8Bit())
        , m_own(gamutfiles::descriptionText(f.document().own()))
    {
        writeFile(m_folder, QStringLiteral("list.csv"), former);
    }

    FollowMenu *menu() { return f.window->followMenu(); }
    //! What a slot is told by; a test tells it in its own time.
    Following *following() { return const_cast<Following *>(menu()->following()); }
    QByteArray own() { return gamutfiles::descriptionText(f.document().own()); }
    QByteArray shown() { return gamutfiles::descriptionText(f.document().description()); }
    const QByteArray &ownBefore() const { return m_own; }

    void begin()
    {
        const auto sample = readGamutFile(QStringLiteral(SAMPLE_FILE));
        menu()->stop();
        f.window->setDescription(sample->description, QString());
        auto owned = std::make_unique<GrowingInput>(QString::fromLocal8Bit(m_path));
        GrowingInput *input = owned.get();
        menu()->follow(std::move(owned));
        input->give(m_first);
        QTRY_VERIFY(f.document().hasUnkept());
        const qint64 lines = following()->state().lines;
        input->give(m_later);
        QTRY_VERIFY(following()->state().lines > lines);
    }

    //! What can be seen of the document, in words and as a picture.
    QStringList texts()
    {
        QStringList all{f.window->windowTitle()};
        for (const auto *label : f.window->findChildren<QLabel *>()) {
            all.append(label == menu()->label() ? QString() : label->text());
        }
        for (const auto *button : f.window->findChildren<QAbstractButton *>()) {
            all.append(button->text() + QString::number(int(button->isEnabled())));
        }
        for (const auto *view : f.window->findChildren<QAbstractItemView *>()) {
            const QAbstractItemModel *model = view->model();
            for (int row = 0; model && row < model->rowCount(); ++row) {
                for (int column = 0; column < model->columnCount(); ++column) {
                    all.append(model->index(row, column).data().toString());
                }
            }
        }
        return all;
    }
    QImage picture()
    {
        for (const auto *view : f.window->findChildren<ceiechart::DiagramView *>()) {
            if (view->isVisible()) {
                return view->toImage(QSize(200, 200));
            }
        }
        return QImage();
    }

    //! Runs \a action; its allocation of this number fails. Returns how many it made.
    int runFailing(int number, const std::function<void()> &action)
    {
        failCall("own memory", number, m_folder.path().toLocal8Bit().constData(), 0);
        ::close(::open(m_path.constData(), O_RDONLY));
        action();
        const int all = numberOfCalls();
        failCall(nullptr, 0, nullptr, 0);
        return all;
    }
    //! The same with each in turn, leaving out more and more; \a check looks at what became of each.
    void failEachOf(const std::function<void()> &action, const std::function<void()> &check)
    {
        constexpr int none = std::numeric_limits<int>::max();
        begin();
        runFailing(none, action); // the first time makes what stays, too
        begin();
        const int all = runFailing(none, action);
        QVERIFY2(all > 100, qPrintable(QString::number(all)));
        for (int number = 1; number <= all; number += 1 + number / 12) {
            begin();
            runFailing(number, action);
            check();
            if (QTest::currentTestFailed()) {
                qWarning("allocation %d of %d", number, all);
                return;
            }
        }
    }

    //! What is said when it is told next how far it is.
    QString said()
    {
        Q_EMIT following()->stateChanged();
        return menu()->label()->text();
    }

    WindowFixture f;

private:
    QByteArray m_first;
    QByteArray m_later;
    QTemporaryDir m_folder;
    QByteArray m_path;
    QByteArray m_own;
};

const QString brokenOff = QStringLiteral("list.csv is followed no further, as there is not enough memory: ");

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

void WindowFaultsTest::followingWithoutMemory()
{
    QTemporaryDir folder;
    const QByteArray inFolder = folder.path().toLocal8Bit();
    const QString path = writeFile(folder, QStringLiteral("list.csv"), former);
    WindowFixture f;
    FollowMenu *menu = f.window->followMenu();
    const auto follow = [&](int number) {
        auto input = std::make_unique<GivenInput>(path);
        GivenInput *given = input.get();
        menu->follow(std::move(input));
        failCall("memory", number, inFolder.constData(), 0);
        while (!given->isRead() && !menu->following()->isMemoryShort()) {
            QCoreApplication::processEvents();
        }
        failCall(nullptr, 0, nullptr, 0);
        return given;
    };
    follow(std::numeric_limits<int>::max()); // the first time makes what stays, too
    const int all = follow(std::numeric_limits<int>::max())->allocations();
    QVERIFY(all > 50);
    const QVector<Measurement> whole = menu->following()->latest().list().measurements;
    QCOMPARE(whole.size(), 4);
    int failures = 0;
    for (int number = 1; number <= all; number += 1 + number / 20) {
        GivenInput *given = follow(number);
        const Following &following = *menu->following();
        const QVector<Measurement> kept = following.latest().list().measurements;
        if (!following.isMemoryShort()) { // it did without
            QCOMPARE(kept.size(), whole.size());
            continue;
        }
        ++failures;
        // What it came to before stays, and nothing follows it.
        Q_EMIT given->arrived();
        QCoreApplication::processEvents();
        QVERIFY(!given->isRead());
        QCOMPARE(following.latest().list().measurements.size(), kept.size());
        for (const Measurement &measurement : kept) {
            QVERIFY(measurement.color);
            const auto isSame = [&measurement](const Measurement &other) {
                return other.name == measurement.name && other.color->x == measurement.color->x;
            };
            QVERIFY(std::any_of(whole.begin(), whole.end(), isSame));
        }
    }
    QVERIFY2(failures > 20, qPrintable(QString::number(failures)));
    follow(1);
    QTRY_VERIFY(menu->label()->text().startsWith(
        QStringLiteral("list.csv is followed no further, as there is not enough memory: ")));
}

void WindowFaultsTest::showingWithoutMemory_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("later");
    QTest::addColumn<int>("page");
    QTest::newRow("colours") << firstColors << laterColors << 0;
    QTest::newRow("colours, compared") << firstColors << laterColors << 1;
    QTest::newRow("wall") << firstCabinets << laterCabinets << 2;
}

void WindowFaultsTest::showingWithoutMemory()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, later);
    QFETCH(int, page);
    Followed followed(first, later);
    followed.f.window->pages()->setCurrentIndex(page);
    int failures = 0;
    const auto show = [&] { Q_EMIT followed.following()->measured(); };
    followed.begin();
    const QByteArray shownBefore = followed.shown();
    const QStringList textsBefore = followed.texts();
    const QImage pictureBefore = followed.picture();
    show();
    const QByteArray shownAfter = followed.shown();
    QVERIFY(shownAfter != shownBefore);
    followed.failEachOf(show, [&] {
        if (!followed.following()->isMemoryShort()) {
            QCOMPARE(followed.shown(), shownAfter); // it did without
            return;
        }
        ++failures;
        QCOMPARE(followed.shown(), shownBefore);
        QCOMPARE(followed.own(), followed.ownBefore());
        QCOMPARE(followed.texts(), textsBefore);
        QCOMPARE(followed.picture(), pictureBefore);
        QVERIFY2(followed.said().startsWith(brokenOff), qPrintable(followed.said()));
        // What has been measured can still be kept.
        QVERIFY(followed.menu()->keep());
        QVERIFY(followed.own() != followed.ownBefore());
    });
    QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
}

void WindowFaultsTest::keepingWithoutMemory()
{
    Followed followed(firstColors, laterColors);
    followed.begin();
    QVERIFY(followed.menu()->keep());
    const QByteArray ownAfter = followed.own();
    QVERIFY(ownAfter != followed.ownBefore());
    int failures = 0;
    bool isKept = false;
    followed.failEachOf([&] { isKept = followed.menu()->keep(); },
        [&] {
            QCOMPARE(followed.following()->isMemoryShort(), !isKept);
            QCOMPARE(followed.own(), isKept ? ownAfter : followed.ownBefore());
            QCOMPARE(followed.f.document().history()->count(), isKept ? 1 : 0);
            if (isKept) {
                return;
            }
            ++failures;
            QVERIFY(!followed.f.document().isModified());
            QVERIFY2(followed.said().startsWith(brokenOff), qPrintable(followed.said()));
            QVERIFY(followed.menu()->keep());
            QCOMPARE(followed.own(), ownAfter);
            QVERIFY(followed.f.document().isModified());
        });
    QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
}

void WindowFaultsTest::closingWithoutMemory()
{
    Followed followed(firstColors, laterColors);
    int failures = 0;
    for (int number = 1; number < 1000; number += 1 + number / 4) {
        followed.begin();
        Message message; // once it has been kept, it asks whether to save: Cancel
        bool isClosed = false;
        followed.runFailing(number, [&] { isClosed = followed.f.window->close(); });
        QVERIFY(!isClosed && followed.f.window->isVisible());
        failures += followed.following()->isMemoryShort() ? 1 : 0;
        QCOMPARE(followed.f.document().isModified(), !followed.following()->isMemoryShort());
    }
    QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
}

// What the view computes to draw; the toolkit, which lays it on, takes memory for granted.
void WindowFaultsTest::drawingWithoutMemory()
{
    Followed followed(firstColors, laterColors);
    followed.f.show(followed.f.window->pages()->widget(0));
    auto *view = followed.f.window->pages()->widget(0)->findChild<DocumentView *>();
    QVERIFY(view && view->isVisible());
    const auto paint = [&] {
        QImage image(300, 300, QImage::Format_RGB32);
        view->resize(image.size());
        view->render(&image);
        return image;
    };
    followed.begin();
    Q_EMIT followed.following()->measured();
    const QImage whole = paint();
    followed.failEachOf(
        [&] {
            Q_EMIT followed.following()->measured();
            paint();
        },
        [&] {
            if (!followed.following()->isMemoryShort()) {
                QCOMPARE(paint(), whole);
            }
        });
}

QTEST_MAIN(WindowFaultsTest)
#include "windowfaultstest.moc"
