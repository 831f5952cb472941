// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "answeredmessage.h"
#include "failingcalls.h"

#include "following/followedinput.h"
#include "following/following.h"
#include "window/followmenu.h"

#include <apps/windowfixture.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QFile>
#include <QLabel>

#include <fcntl.h>
#include <functional>
#include <limits>
#include <unistd.h>
#include <utility>

using namespace gamutviewer;

/*! Follows, shows, keeps and paints a measurement again and again, and lets another allocation fail each time. */
class FollowingFaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { failCall(nullptr, 0, nullptr, 0); }
    void followingWithoutMemory();
    void showingWithoutMemory_data();
    void showingWithoutMemory();
    void keepingWithoutMemory();
    void closingWithoutMemory();
    void drawingWithoutMemory();
};

namespace {

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
        writeFile(m_folder, QStringLiteral("list.csv"), QByteArray());
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

void FollowingFaultsTest::followingWithoutMemory()
{
    QTemporaryDir folder;
    const QByteArray inFolder = folder.path().toLocal8Bit();
    const QString path = writeFile(folder, QStringLiteral("list.csv"), QByteArray());
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

void FollowingFaultsTest::showingWithoutMemory_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("later");
    QTest::addColumn<int>("page");
    QTest::newRow("colours") << firstColors << laterColors << 0;
    QTest::newRow("colours, compared") << firstColors << laterColors << 1;
    QTest::newRow("wall") << firstCabinets << laterCabinets << 2;
}

void FollowingFaultsTest::showingWithoutMemory()
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
    followed.picture(); // glyphs that the toolkit paints for the first time may differ by a rounding error
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

void FollowingFaultsTest::keepingWithoutMemory()
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

void FollowingFaultsTest::closingWithoutMemory()
{
    Followed followed(firstColors, laterColors);
    int failures = 0;
    for (int number = 1; number < 1000; number += 1 + number / 4) {
        followed.begin();
        AnsweredMessage message; // once it has been kept, it asks whether to save: Cancel
        bool isClosed = false;
        followed.runFailing(number, [&] { isClosed = followed.f.window->close(); });
        QVERIFY(!isClosed && followed.f.window->isVisible());
        failures += followed.following()->isMemoryShort() ? 1 : 0;
        QCOMPARE(followed.f.document().isModified(), !followed.following()->isMemoryShort());
    }
    QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
}

// What the view computes to draw; the toolkit, which lays it on, takes memory for granted.
void FollowingFaultsTest::drawingWithoutMemory()
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

QTEST_MAIN(FollowingFaultsTest)
#include "followingfaultstest.moc"
