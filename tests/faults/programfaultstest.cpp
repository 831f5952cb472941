// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <apps/programrunner.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QtTest>

/*! Runs the program again and again, and lets another call of the system fail each time. */
class ProgramFaultsTest : public QObject, private ProgramRunner {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingHalfWrittenStays_data();
    void nothingHalfWrittenStays();
    void memoryThatIsNotThere_data();
    void memoryThatIsNotThere();
    void namesThatAreNoText();

private:
    using Files = QMap<QString, QByteArray>;
    struct Fault {
        QString call;
        int number = 0;
        bool isLasting = false;
    };

    static void commands();
    Files files() const;
    void begin();
    Result runFailing(const Fault &fault, const QStringList &arguments, bool *hasFailed);
    QStringList withFolder(const QStringList &arguments) const;
    static bool saysWhy(const Result &result);

    Files m_before;
};

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray former = "what was there before\n";

} // namespace

void ProgramFaultsTest::init()
{
    renewFolder();
    QVERIFY(QDir(folder()).mkdir(QStringLiteral("files")));
    begin();
}

//! The inputs, and a file in the place of each output.
void ProgramFaultsTest::begin()
{
    const QDir place(path("files"));
    for (const QString &name : place.entryList(QDir::Files | QDir::Hidden)) {
        QFile::remove(place.filePath(name));
    }
    for (const char *name : {"led-wall.json", "led-wall-measured.csv", "simulated-wall.csv"}) {
        QVERIFY(QFile::copy(
            QDir(QStringLiteral(SAMPLES)).filePath(QLatin1String(name)), place.filePath(QLatin1String(name))));
    }
    for (const char *name : {"out.png", "out.svg", "out.pdf", "out.csv", "out.json"}) {
        write((QByteArray("files/") + name).constData(), former);
    }
    m_before = files();
}

ProgramFaultsTest::Files ProgramFaultsTest::files() const
{
    Files found;
    const QDir place(path("files"));
    for (const QString &name : place.entryList(QDir::Files | QDir::Hidden)) {
        found.insert(name, contentOf(place.filePath(name)));
    }
    return found;
}

QStringList ProgramFaultsTest::withFolder(const QStringList &arguments) const
{
    QStringList result;
    for (const QString &argument : arguments) {
        const bool isFile = argument.contains(QLatin1Char('.')) && argument != QLatin1String("Rec.709");
        result.append(isFile ? path("files/") + argument : argument);
    }
    return result;
}

ProgramFaultsTest::Result ProgramFaultsTest::runFailing(
    const Fault &fault, const QStringList &arguments, bool *hasFailed)
{
    const QString sign = path("failed");
    QFile::remove(sign);
    QProcessEnvironment environment = bare();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(FAILING_CALLS));
    environment.insert(QStringLiteral("FAULT_CALL"), fault.call);
    environment.insert(QStringLiteral("FAULT_NUMBER"), QString::number(fault.number));
    environment.insert(QStringLiteral("FAULT_FOLDER"), path("files"));
    environment.insert(QStringLiteral("FAULT_FIRED"), sign);
    environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("0"));
    if (fault.isLasting) {
        environment.insert(QStringLiteral("FAULT_LASTING"), QStringLiteral("1"));
    }
    const Result result = run(withFolder(arguments), environment);
    *hasFailed = QFile::exists(sign);
    return result;
}

bool ProgramFaultsTest::saysWhy(const Result &result)
{
    // Warnings about the files may come before.
    const QByteArray last = result.error.mid(result.error.lastIndexOf('\n', result.error.size() - 2) + 1);
    return (result.exitCode == 1 || result.exitCode == 2) && isOneLine(last) && !last.contains("Unknown error");
}

void ProgramFaultsTest::commands()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output"); // nothing for standard output
}

void ProgramFaultsTest::nothingHalfWrittenStays_data()
{
    commands();
    for (const char *call : {"open", "read", "write", "fsync", "rename"}) {
        const auto add = [call](const char *output, const QStringList &arguments) {
            QTest::addRow("%s, %s", output, call)
                << QString::fromLatin1(call) << arguments << QString::fromLatin1(output);
        };
        const QString sample = QStringLiteral("led-wall.json");
        const QString wall = QStringLiteral("simulated-wall.csv");
        const QString extent = QStringLiteral("300x300");
        const QString render = QStringLiteral("--render");
        add("out.png", {render, QStringLiteral("out.png"), QStringLiteral("--size"), extent, sample});
        add("out.svg", {render, QStringLiteral("out.svg"), QStringLiteral("--size"), extent, sample});
        add("out.csv",
            {QStringLiteral("--corrections"), QStringLiteral("out.csv"), QStringLiteral("--target"),
                QStringLiteral("Rec.709"), wall});
        add("out.json",
            {QStringLiteral("--corrections"), QStringLiteral("out.json"), QStringLiteral("--target"),
                QStringLiteral("Rec.709"), wall});
        add("", {QStringLiteral("--report"), QStringLiteral("json"), QStringLiteral("led-wall-measured.csv"), sample});
    }
}

void ProgramFaultsTest::nothingHalfWrittenStays()
{
    QFETCH(QString, call);
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    bool hasFailed = false;
    const Result whole = runFailing({QString(), 0, false}, arguments, &hasFailed);
    QCOMPARE(whole.exitCode, 0);
    QVERIFY(!hasFailed);
    const Files complete = files();
    QVERIFY(output.isEmpty() || complete.value(output) != former);

    constexpr int most = 100;
    for (const bool isLasting : {false, true}) {
        for (int number = 1;; ++number) {
            QVERIFY2(number < most, "the calls do not come to an end");
            begin();
            const Result result = runFailing({call, number, isLasting}, arguments, &hasFailed);
            if (!hasFailed) {
                QVERIFY(number > 1 || call != QLatin1String("read"));
                break;
            }
            const QByteArray what = QStringLiteral("%1 %2%3: status %4: ")
                                        .arg(call)
                                        .arg(number)
                                        .arg(isLasting ? QStringLiteral(" and later") : QString())
                                        .arg(result.exitCode)
                                        .toUtf8()
                + result.error;
            const Files left = files();
            if (result.exitCode == 0) {
                // It found another way.
                QVERIFY2(left == complete, what.constData());
                QVERIFY2(result.output == whole.output, what.constData());
            } else {
                QVERIFY2(saysWhy(result), what.constData());
                QVERIFY2(left == m_before, what.constData());
            }
        }
    }
}

void ProgramFaultsTest::memoryThatIsNotThere_data()
{
    commands();
    const QString sample = QStringLiteral("led-wall.json");
    for (const char *name : {"out.png", "out.svg", "out.pdf"}) {
        const QString output = QString::fromLatin1(name);
        QTest::newRow(name) << QStringLiteral("memory")
                            << QStringList{QStringLiteral("--render"), output, QStringLiteral("--size"),
                                   QStringLiteral("300x300"), sample}
                            << output;
    }
    QTest::newRow("corrections") << QStringLiteral("memory")
                                 << QStringList{QStringLiteral("--corrections"), QStringLiteral("out.csv"),
                                        QStringLiteral("--target"), QStringLiteral("Rec.709"),
                                        QStringLiteral("simulated-wall.csv")}
                                 << QStringLiteral("out.csv");
    QTest::newRow("report") << QStringLiteral("memory")
                            << QStringList{QStringLiteral("--report"), QStringLiteral("json"), sample} << QString();
}

// Each is one of very many calls: some of them, closer together at the beginning, where files are read.
void ProgramFaultsTest::memoryThatIsNotThere()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    bool hasFailed = false;
    const Result whole = runFailing({QString(), 0, false}, arguments, &hasFailed);
    QCOMPARE(whole.exitCode, 0);
    const Files complete = files();
    const bool draws = arguments.contains(QLatin1String("--render"));
    for (int number = 1;; number += 1 + number / 3) {
        begin();
        const Result result = runFailing({QStringLiteral("memory"), number, false}, arguments, &hasFailed);
        if (!hasFailed) {
            QVERIFY(number > 1);
            break;
        }
        const QByteArray what
            = QStringLiteral("allocation %1: status %2: ").arg(number).arg(result.exitCode).toUtf8() + result.error;
        const Files left = files();
        if (result.exitCode == 0 && draws) {
            // Where a painter does without, a glyph or a line may be missing; the file is whole.
            constexpr int end = 5; // "/svg>" and "%%EOF"
            QVERIFY2(output == QLatin1String("out.png")
                    ? QImage::fromData(left.value(output)).size() == QImage::fromData(complete.value(output)).size()
                    : left.value(output).trimmed().right(end) == complete.value(output).trimmed().right(end),
                what.constData());
        } else if (result.exitCode == 0) {
            QVERIFY2(left == complete, what.constData());
            QVERIFY2(result.output == whole.output, what.constData());
        } else {
            // Libraries of fonts and text take memory for granted, and end the process without it. Reading and writing
            // say why, as the other commands show; whoever ends the process, no half of a file is left.
            constexpr int killed = -1;
            QVERIFY2(saysWhy(result) || (draws && result.exitCode == killed), what.constData());
            QVERIFY2(left == m_before, what.constData());
        }
    }
}

// The toolkit would write to a file of another name.
void ProgramFaultsTest::namesThatAreNoText()
{
    const QString program
        = QStringLiteral("exec \"$0\" --render \"files/$(printf 'a\\351b').png\" files/led-wall.json");
    const Result result = run(
        {QStringLiteral("-c"), program, QStringLiteral(GAMUTVIEWER_PROGRAM)}, bare(), {}, QStringLiteral("/bin/sh"));
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(isOneLine(result.error) && result.error.contains("is not text"), result.error.constData());
    QCOMPARE(files(), m_before);
}

QTEST_GUILESS_MAIN(ProgramFaultsTest)
#include "programfaultstest.moc"
