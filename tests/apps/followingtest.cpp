// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "following/following.h"
#include "following/followedfile.h"
#include "program/streaminput.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace gamutviewer;

namespace {

const QByteArray header = QByteArrayLiteral("name,Y (cd/m2),x,y\n");
const QByteArray gamut
    = QByteArrayLiteral("Red,21,0.64,0.33\nGreen,71,0.3,0.6\nBlue,7,0.15,0.06\nWhite,99,0.3127,0.329\n");

double redOf(const Following &following)
{
    const auto measured = following.inProgress().file.measurements.gamut(QString());
    return measured ? measured->getTargets().red.x : -1.0;
}

//! A file in a folder of its own, written as an instrument's tool writes it, and what follows it.
struct FileFixture {
    void append(const QByteArray &bytes) { write(path, bytes, QIODevice::Append); }
    void overwrite(const QByteArray &bytes) { write(path, bytes, QIODevice::Truncate); }
    void replace(const QByteArray &bytes)
    {
        const QString other = path + QStringLiteral(".new");
        write(other, bytes, QIODevice::Truncate);
        QVERIFY(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()) == 0);
    }
    static void write(const QString &name, const QByteArray &bytes, QIODevice::OpenMode mode)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly | mode));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    void follow(const MeasurementOptions &options = MeasurementOptions())
    {
        following = std::make_unique<Following>(std::make_unique<FollowedFile>(path), options);
    }
    qint64 lines() const { return following->state().lines; }
    double redX() const { return redOf(*following); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("wall.csv"));
    std::unique_ptr<Following> following;
};

} // namespace

class FollowingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsAFileThatGrows();
    void waitsForTheEndOfALine();
    void countsTheLatestOfAColour();
    void followsAFileInUtf16();
    void beginsAnewWithAFileThatIsReplaced();
    void beginsAnewWithAFileThatIsTruncated();
    void goesOnWithAListThatIsWrittenAnew();
    void beginsAnewWithAListThatWasCorrected();
    void waitsForAFileThatIsNotThere();
    void followsAFileWithoutNotices();
    void countsBrokenLines();
    void tellsTheRate();
    void tellsOncePerFrame();
    void doesALittleInEachTurn();
    void followsCabinets();
    void followsAWall();
    void takesLongerWhereItsSlotsDo();
    void readsStandardInputAsItComes();
    void whatIsCutOffIsNotKnown();
    void awaitsTheNextWriterOfANamedPipe();
    void readsAStreamInAThread();
    void threadEndsWithItsReader();
    void refusesWhatCannotBeFollowed();
};

void FollowingTest::followsAFileThatGrows()
{
    FileFixture f;
    f.overwrite(header);
    f.follow();
    QSignalSpy measured(f.following.get(), &Following::measured);
    QTRY_COMPARE(f.lines(), 1);
    QVERIFY(f.following->input().isThere());
    f.append("Red,21,0.64,0.33\r\n");
    QTRY_COMPARE(measured.size(), 1);
    QVERIFY(!f.following->inProgress().file.measurements.gamut(QString()));
    QCOMPARE(f.following->inProgress().file.measurements.others().size(), 1);
    f.append("Green,71,0.3,0.6\r\nBlue,7,0.15,0.06\r\nWhite,99,0.3127,0.329\r\n");
    QTRY_COMPARE(f.redX(), 0.64);
    QCOMPARE(f.following->inProgress().file.name, QStringLiteral("wall"));
    QCOMPARE(f.following->inProgress().file.measurements.unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(f.following->inProgress().file.measurements.recognized.headerLine, 1);
    QCOMPARE(f.lines(), 5);
    QCOMPARE(f.following->state().notRead, 0);
}

void FollowingTest::waitsForTheEndOfALine()
{
    FileFixture f;
    f.overwrite(header + "Red,21,0.6");
    f.follow();
    QTRY_VERIFY(f.following->state().heldBytes > 0);
    QCOMPARE(f.following->state().measurements, 0);
    f.append("4,0.33\n");
    QTRY_COMPARE(f.following->state().measurements, 1);
    QCOMPARE(f.following->inProgress().file.measurements.measurements.first().color->x, 0.64);
    QCOMPARE(f.following->state().notRead, 0);
}

void FollowingTest::countsTheLatestOfAColour()
{
    FileFixture f;
    f.overwrite(header + gamut);
    f.follow();
    QTRY_COMPARE(f.redX(), 0.64);
    f.append("Red,22,0.65,0.33\n");
    QTRY_COMPARE(f.redX(), 0.65);
    f.append("R 100 %,22,0.66,0.33\n");
    QTRY_COMPARE(f.redX(), 0.66);
    QVERIFY(f.following->inProgress().file.measurements.others().isEmpty());
}

void FollowingTest::followsAFileInUtf16()
{
    const auto utf16 = [](const QString &text) {
        QByteArray bytes;
        for (const QChar c : text) {
            bytes.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
        }
        return bytes;
    };
    FileFixture f;
    f.overwrite("\xFF\xFE" + utf16(QString::fromUtf8("名称\tY\tx\ty\r\n红\t21\t0,64\t0,")));
    f.follow();
    QTRY_COMPARE(f.lines(), 1);
    f.append(utf16(QString::fromUtf8("33\r\n绿\t71\t0,3\t0,6\r\n蓝\t7\t0,15\t0,06\r\n")).chopped(1));
    f.append(QByteArray(1, '\0') + utf16(QString::fromUtf8("白\t99\t0,3127\t0,329\r\n")));
    QTRY_COMPARE(f.redX(), 0.64);
    QCOMPARE(f.following->state().notRead, 0);
}

void FollowingTest::beginsAnewWithAFileThatIsReplaced()
{
    FileFixture f;
    f.overwrite(header + gamut + "grey,3,0.31,0.33\nRed,#N/A\n");
    f.follow();
    QTRY_COMPARE(f.lines(), 7);
    QCOMPARE(f.redX(), 0.64);
    // Of the same length, and a longer one.
    f.replace(header + "Red,21,0.69,0.30\nGreen,71,0.3,0.6\nBlue,7,0.15,0.06\nWhite,99,0.3127,0.329\n");
    QTRY_COMPARE(f.redX(), 0.69);
    QCOMPARE(f.lines(), 5);
    QCOMPARE(f.following->state().notRead, 0);
    QVERIFY(f.following->inProgress().file.measurements.others().isEmpty());
    f.replace("name;Y;x;y\nBlau;7,5;0,15;0,06\n" + QByteArray(2000, '#') + '\n');
    QTRY_COMPARE(f.following->state().recognized.separator, QLatin1Char(';'));
    QCOMPARE(f.redX(), -1.0);
    f.append("Rot;21,5;0,7;0,29\n");
    QTRY_COMPARE(f.following->state().measurements, 2);
}

void FollowingTest::beginsAnewWithAFileThatIsTruncated()
{
    FileFixture f;
    f.overwrite(header + gamut);
    f.follow();
    QTRY_COMPARE(f.redX(), 0.64);
    QSignalSpy measured(f.following.get(), &Following::measured);
    f.overwrite(QByteArray());
    QTRY_COMPARE(f.lines(), 0);
    QTRY_VERIFY(!measured.isEmpty()); // what is shown goes, too
    QVERIFY(f.following->inProgress().file.measurements.measurements.isEmpty());
    f.append(header + "Red,21,0.7,0.29\n");
    QTRY_COMPARE(f.following->state().measurements, 1);
}

void FollowingTest::goesOnWithAListThatIsWrittenAnew()
{
    FileFixture f;
    f.overwrite(header + gamut);
    f.follow();
    QTRY_COMPARE(f.lines(), 5);
    QSignalSpy restarted(&f.following->input(), &FollowedInput::restarted);
    f.replace(header + gamut + "Red,22,0.65,0.33\n");
    QTRY_COMPARE(f.redX(), 0.65);
    QCOMPARE(f.lines(), 6);
    QVERIFY(restarted.isEmpty());
}

// A patch that was measured again may stand far before the end, and have as many digits.
void FollowingTest::beginsAnewWithAListThatWasCorrected()
{
    QByteArray grey;
    while (grey.size() < 200000) { // of several blocks
        grey += "grey " + QByteArray::number(grey.size()) + ",21,0.31,0.33\n";
    }
    const QByteArray corrected = QByteArray(gamut).replace("Red,21,0.64", "Red,22,0.65");
    QVERIFY(corrected.size() == gamut.size() && corrected != gamut);
    for (const QByteArray &end : {QByteArray(), grey}) {
        const QByteArray padding(end.isEmpty() ? 2000 : 0, '#'); // more than what is compared at once
        FileFixture f;
        f.overwrite(header + gamut + padding + '\n' + end);
        f.follow();
        QTRY_COMPARE(f.redX(), 0.64);
        QSignalSpy restarted(&f.following->input(), &FollowedInput::restarted);
        f.replace(header + corrected + padding + '\n' + end);
        QTRY_COMPARE(f.redX(), 0.65);
        f.overwrite(header + gamut + padding + '\n' + end); // the same file
        QTRY_COMPARE(f.redX(), 0.64);
        QCOMPARE(restarted.size(), 2);
    }
}

void FollowingTest::waitsForAFileThatIsNotThere()
{
    FileFixture f;
    f.follow();
    QSignalSpy told(f.following.get(), &Following::stateChanged);
    QTRY_VERIFY(told.size() > 1);
    QVERIFY(!f.following->input().isThere());
    f.overwrite(header + gamut);
    QTRY_COMPARE(f.redX(), 0.64);
    QVERIFY(f.following->input().isThere());
    QVERIFY(QFile::remove(f.path));
    QTRY_VERIFY(!f.following->input().isThere());
    QCOMPARE(f.redX(), 0.64); // until there is something else
    f.overwrite(header + gamut + "Red,22,0.65,0.33\n");
    QTRY_COMPARE(f.redX(), 0.65);
    // What has become a folder is not there, either.
    QVERIFY(QFile::remove(f.path));
    QVERIFY(QDir().mkdir(f.path));
    QTRY_VERIFY(!f.following->input().isThere());
}

void FollowingTest::followsAFileWithoutNotices()
{
    FileFixture f;
    f.overwrite(header + gamut);
    f.follow();
    QTRY_COMPARE(f.lines(), 5);
    const auto *input = qobject_cast<const FollowedFile *>(&f.following->input());
    QVERIFY(input);
    auto *watcher = input->findChild<QFileSystemWatcher *>();
    QVERIFY(watcher);
    watcher->blockSignals(true);
    f.append("Red,22,0.65,0.33\n");
    QTRY_COMPARE(f.redX(), 0.65);
}

void FollowingTest::countsBrokenLines()
{
    FileFixture f;
    f.overwrite(header + gamut + "Red,#DIV/0!,0.64,0.33\nRed,22,0.65,0.33\n\nGreen\n");
    f.follow();
    QTRY_COMPARE(f.lines(), 9);
    QCOMPARE(f.following->state().notRead, 2);
    QCOMPARE(f.following->state().lastNotRead.place, QStringLiteral("line 9"));
    QCOMPARE(f.redX(), 0.65);
}

void FollowingTest::tellsTheRate()
{
    FileFixture f;
    f.overwrite(header);
    f.follow();
    QSignalSpy told(f.following.get(), &Following::stateChanged);
    QTRY_COMPARE(f.lines(), 1);
    QByteArray lines;
    for (int i = 0; i < 300; ++i) {
        lines += "grey,21,0.31,0.33\n";
    }
    f.append(lines);
    QTRY_VERIFY(f.following->linesPerSecond() >= 300);
    QVERIFY(f.following->linesPerSecond() <= 301);
    QTRY_COMPARE(f.following->linesPerSecond(), 0);
}

void FollowingTest::tellsOncePerFrame()
{
    FileFixture f;
    f.overwrite(header);
    f.follow();
    QTRY_COMPARE(f.lines(), 1);
    QSignalSpy measured(f.following.get(), &Following::measured);
    QElapsedTimer time;
    time.start();
    constexpr int count = 200;
    for (int i = 0; i < count; ++i) {
        f.append("grey,21,0.31,0.33\n");
        QTest::qWait(1);
    }
    QTRY_COMPARE(f.following->state().measurements, count);
    QVERIFY(!measured.isEmpty());
    QVERIFY2(measured.size() <= time.elapsed() / Following::frameMilliseconds + 1,
        qPrintable(QStringLiteral("%1 in %2 ms").arg(measured.size()).arg(time.elapsed())));
}

void FollowingTest::doesALittleInEachTurn()
{
    FileFixture f;
#ifdef CEIECHART_SHORT_TESTS
    constexpr int count = 60000;
#else
    constexpr int count = 600000;
#endif
    {
        QFile file(f.path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("cabinet,name,Y (cd/m2),x,y\n");
        for (int i = 1; i < count; ++i) {
            file.write(i % 50 == 0 ? QByteArrayLiteral("instrument ready\n")
                                   : QByteArray::number(i / 5) + ",patch " + QByteArray::number(i) + ",21,0.31,0.33\n");
        }
    }
    f.follow();
    // Every turn of the event loop that reads lines lets others have theirs.
    int othersTurns = 0;
    QTimer other;
    connect(&other, &QTimer::timeout, [&othersTurns] { ++othersTurns; });
    other.start(0);
    qint64 mostBytes = 0;
    connect(&other, &QTimer::timeout, [&] { mostBytes = std::max<qint64>(mostBytes, f.following->state().heldBytes); });
    QTRY_COMPARE_WITH_TIMEOUT(f.lines(), count, 120000);
    QCOMPARE(f.following->state().notRead, (count - 1) / 50);
    QVERIFY2(f.following->mostLinesInATurn() <= Following::linesPerTurn,
        qPrintable(QString::number(f.following->mostLinesInATurn())));
    QVERIFY2(othersTurns >= count / Following::linesPerTurn, qPrintable(QString::number(othersTurns)));
    QVERIFY2(mostBytes <= 32 * 1024, qPrintable(QString::number(mostBytes)));
    QVERIFY(f.following->state().heldLines <= maximumHeldLines);
    QVERIFY(f.following->latest().pointCount() <= mostLatestPoints);
    QVERIFY(f.following->latest().cabinetCount() <= mostLatestCabinets);
    QCOMPARE(f.following->inProgress().file.measurements.measurements.size(), mostLatestPoints);
}

void FollowingTest::followsCabinets()
{
    FileFixture f;
    f.overwrite("row,column,name,Y,x,y\n");
    f.follow();
    for (const QByteArray &cabinet : {QByteArray("1,1,"), QByteArray("1,2,")}) {
        for (const QByteArray &line : gamut.trimmed().split('\n')) {
            f.append(cabinet + line + '\n');
        }
    }
    QTRY_COMPARE(f.lines(), 9);
    QCOMPARE(f.redX(), -1.0); // of two cabinets there is no gamut
    const auto cabinets = f.following->latest().cabinets();
    QCOMPARE(cabinets.size(), 2);
    QCOMPARE(cabinets.last().label(), QStringLiteral("1/2"));
    QVERIFY(cabinets.first().list.gamut(QString()));

    MeasurementOptions options;
    options.cabinet = QStringLiteral("1/1");
    f.follow(options);
    QTRY_COMPARE(f.lines(), 9);
    QCOMPARE(f.following->latest().cabinets().size(), 1);
    QVERIFY(!f.following->inProgress().wall);
    QCOMPARE(f.redX(), 0.64);
    QCOMPARE(f.following->inProgress().file.name, QStringLiteral("wall: 1/1"));
}

void FollowingTest::followsAWall()
{
    FileFixture f;
    const QByteArray first = "A1,Red,21,0.64,0.33\nA1,Green,71,0.3,0.6\nA1,Blue,7,0.15,0.06\nA1,grey,30,0.31,0.33\n";
    f.overwrite("cabinet,name,Y (cd/m2),x,y\n" + first);
    f.follow();
    QTRY_COMPARE(f.lines(), 5);
    QVERIFY(!f.following->inProgress().wall);
    QCOMPARE(f.redX(), -1.0); // a gamut needs its white
    f.append("A1,White,99,0.3127,0.329\n");
    QTRY_COMPARE(f.redX(), 0.64);
    QCOMPARE(f.following->inProgress().file.name, QStringLiteral("wall: A1"));

    QSignalSpy measured(f.following.get(), &Following::measured);
    f.append("A2,Red,22,0.65,0.33\n");
    QTRY_VERIFY(f.following->inProgress().wall);
    QTRY_COMPARE(measured.size(), 1);
    QCOMPARE(f.following->inProgress().wall->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(f.following->inProgress().wall->cabinets.size(), std::size_t(1));
    QCOMPARE(f.following->inProgress().wall->incomplete.size(), std::size_t(1));
    QCOMPARE(f.redX(), -1.0);
    QCOMPARE(f.following->inProgress().file.name, QStringLiteral("wall"));
    QCOMPARE(f.following->inProgress().file.measurements.measurements.size(), 2); // grey, and red of A2
    f.append("A2,Green,71,0.3,0.6\nA2,Blue,7,0.15,0.06\n");
    QTRY_COMPARE(f.following->latest().wall()->cabinets.size(), std::size_t(2));
    // Its white may still come, as that of A1 did, until another cabinet is measured or there is no more.
    QCOMPARE(f.following->inProgress().wall->cabinets.size(), std::size_t(1));
    QCOMPARE(f.following->inProgress().wall->incomplete.front().reason, QStringLiteral("it is being measured"));
    QCOMPARE(f.following->inProgress().file.measurements.measurements.size(),
        4); // its colours are shown meanwhile, and grey
    f.append("A1,White,99,0.3127,0.329\n");
    QTRY_COMPARE(f.following->inProgress().wall->cabinets.size(), std::size_t(2));
    QVERIFY(f.following->inProgress().wall->incomplete.empty());
    QCOMPARE(f.following->inProgress().wall->cabinets.back().red.x, 0.65);
    QCOMPARE(f.following->inProgress().file.measurements.measurements.size(), 1);
    // Another file is another wall.
    f.replace("cabinet,name,Y (cd/m2),x,y\n" + first);
    QTRY_VERIFY(!f.following->inProgress().wall);
}

void FollowingTest::takesLongerWhereItsSlotsDo()
{
    FileFixture f;
    f.overwrite(header);
    f.follow();
    QTRY_COMPARE(f.lines(), 1);
    constexpr int taken = 100; // milliseconds
    QElapsedTimer time;
    time.start();
    QVector<qint64> told;
    connect(f.following.get(), &Following::measured, this, [&] {
        told.append(time.elapsed());
        QThread::msleep(taken);
    });
    while (told.size() < 3 && time.elapsed() < 30000) {
        f.append("grey,21,0.31,0.33\n");
        QTest::qWait(1);
    }
    QCOMPARE(told.size(), 3);
    // Two thirds of the time are for others.
    QVERIFY2(told.at(2) - told.at(0) >= 2 * 3 * taken, qPrintable(QString::number(told.at(2) - told.at(0))));
}

void FollowingTest::readsStandardInputAsItComes()
{
#ifdef Q_OS_UNIX
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const auto write = [&ends](const QByteArray &bytes) {
        QCOMPARE(::write(ends[1], bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
    };
    Following following(
        std::make_unique<StreamInput>(QStringLiteral("-"), ends[0], StreamInput::AtEnd::Ends), MeasurementOptions());
    QVERIFY(!following.input().isRepeatable());
    write(header + gamut);
    QTRY_COMPARE(redOf(following), 0.64);
    QTest::qWait(50); // nothing comes, and nothing waits for it
    write("Red,22,0.65,");
    QTRY_VERIFY(following.state().heldBytes > 0);
    write("0.33\nRed,23,0.66,0.3");
    QTRY_COMPARE(redOf(following), 0.65);
    QVERIFY(!following.input().hasEnded());
    ::close(ends[1]);
    // The last line may have been cut off.
    QTRY_COMPARE(following.state().notRead, 1);
    QVERIFY(following.input().hasEnded());
    QCOMPARE(redOf(following), 0.65);
    QCOMPARE(following.inProgress().file.name, QStringLiteral("standard input"));
    ::close(ends[0]);
#else
    QSKIP("reads pipes by a thread");
#endif
}

void FollowingTest::whatIsCutOffIsNotKnown()
{
#ifdef Q_OS_UNIX
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const auto write = [&ends](const QByteArray &bytes) {
        QCOMPARE(::write(ends[1], bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
    };
    const auto primaries = [](const QByteArray &cabinet) {
        return cabinet + ",Red,21,0.64,0.33\n" + cabinet + ",Green,72,0.3,0.6\n" + cabinet + ",Blue,7,0.15,0.06\n";
    };
    Following following(
        std::make_unique<StreamInput>(QStringLiteral("-"), ends[0], StreamInput::AtEnd::Ends), MeasurementOptions());
    write("cabinet,name,Y (cd/m2),x,y\n" + primaries("A1") + "A1,White,100,0.3127,0.329\n");
    QTRY_VERIFY(following.inProgress().isOfCabinets);
    QVERIFY(!following.inProgress().wall);
    write(primaries("A2") + "A2,White,80,0.3127,0.3");
    ::close(ends[1]);
    QTRY_COMPARE(following.state().notRead, 1);
    const auto wall = following.inProgress().wall;
    QVERIFY(wall);
    QCOMPARE(wall->cabinets.size(), std::size_t(1));
    QCOMPARE(wall->incomplete.front().reason, QStringLiteral("white could not be read"));
    ::close(ends[0]);

    // The end of a line in a file may still come.
    FileFixture f;
    f.follow();
    f.append("cabinet,name,Y (cd/m2),x,y\n" + primaries("A1") + primaries("A2") + "A1,White,80,0.3127,0.3");
    QTRY_VERIFY(f.following->inProgress().wall);
    const auto incomplete = [](const FollowedMeasurement &measurement) {
        QStringList told;
        for (const IncompleteCabinet &cabinet : measurement.wall.value_or(DisplayWall()).incomplete) {
            told.append(cabinet.name + QStringLiteral(": ") + cabinet.reason);
        }
        return told.join(QLatin1Char(';'));
    };
    QTRY_COMPARE(incomplete(f.following->inProgress()), QStringLiteral("A1: it is being measured"));
    QCOMPARE(incomplete(f.following->asIfEnded()), QStringLiteral("A1: white could not be read"));
    f.append("29\n");
    QTRY_COMPARE(incomplete(f.following->asIfEnded()), QString());
#else
    QSKIP("reads pipes by a thread");
#endif
}

void FollowingTest::awaitsTheNextWriterOfANamedPipe()
{
#ifdef Q_OS_UNIX
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("meter"));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    InputToFollow opened = inputToFollow(path); // which does not wait for a writer
    QVERIFY2(opened.input, qPrintable(opened.error));
    Following following(std::move(opened.input), MeasurementOptions());
    FileFixture::write(path, header + gamut, QIODevice::NotOpen);
    QTRY_COMPARE(redOf(following), 0.64);
    QTRY_VERIFY(!following.input().isThere());
    QVERIFY(!following.input().hasEnded());
    FileFixture::write(path, "Red,22,0.65,0.33\n", QIODevice::NotOpen);
    QTRY_COMPARE(redOf(following), 0.65);
    FileFixture::write(path, header + "Red,22,0.66,0.33\n", QIODevice::NotOpen);
    QTRY_COMPARE(redOf(following), 0.66);
    QCOMPARE(following.state().notRead, 0);
#else
    QSKIP("has no named pipes of this kind");
#endif
}

void FollowingTest::readsAStreamInAThread()
{
    FileFixture f;
    QByteArray lines = header + gamut;
    while (lines.size() < 1024 * 1024) { // more than is kept at a time
        lines += "grey,21,0.31,0.33\n";
    }
    f.overwrite(lines + "Red,22,0.65,0.33\n");
    std::FILE *stream = std::fopen(QFile::encodeName(f.path).constData(), "rb");
    QVERIFY(stream);
    Following following(std::make_unique<ThreadInput>(QStringLiteral("-"), stream), MeasurementOptions());
    QTRY_VERIFY_WITH_TIMEOUT(following.input().hasEnded() && redOf(following) == 0.65, 60000);
    QCOMPARE(following.state().lines, lines.count('\n') + 1);
    QCOMPARE(following.state().notRead, 0);
    std::fclose(stream);
}

void FollowingTest::threadEndsWithItsReader()
{
    FileFixture f;
    f.overwrite(QByteArray(1024 * 1024, '\n'));
    std::FILE *stream = std::fopen(QFile::encodeName(f.path).constData(), "rb");
    QVERIFY(stream);
    {
        ThreadInput input(QStringLiteral("-"), stream);
        QTRY_VERIFY(!input.read(1).isEmpty());
    }
    // The thread was waiting for room; the stream is not read to its end.
    long before = -1;
    QTRY_VERIFY(std::exchange(before, std::ftell(stream)) == std::ftell(stream));
    QVERIFY(std::ftell(stream) < 1024 * 1024);
    std::fclose(stream);
}

void FollowingTest::refusesWhatCannotBeFollowed()
{
    QTemporaryDir folder;
    QCOMPARE(inputToFollow(folder.path()).error, QStringLiteral("%1: is a folder").arg(folder.path()));
    const QString nowhere = folder.filePath(QStringLiteral("none/wall.csv"));
    QCOMPARE(inputToFollow(nowhere).error, QStringLiteral("%1: there is no such folder").arg(nowhere));
    const InputToFollow later = inputToFollow(folder.filePath(QStringLiteral("later.csv")));
    QVERIFY(later.input && later.error.isEmpty());
    QVERIFY(later.input->isRepeatable());
}

QTEST_GUILESS_MAIN(FollowingTest)
#include "followingtest.moc"
