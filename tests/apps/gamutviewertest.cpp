// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "gamutfiles/samplefiles.h"
#include "programrunner.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class GamutViewerTest : public QObject, private ProgramRunner {
    Q_OBJECT

private Q_SLOTS:
    void init() { renewFolder(); }
    void opensEveryFormat();
    void tellsOfMixedDisplays();
    void listsThatNeedAChoice();
    void namesTheLineOfASyntaxError();
    void readsFromAPipe();
    void opensNamesWithAMark();
    void refusesDescriptions_data();
    void refusesDescriptions();
    void refusesArguments_data();
    void refusesArguments();
    void helpAndVersion();
    void saysThatThereIsNoDisplay();
    void wrongDescriptionComesBeforeTheDisplay();
    void showsAWindow();
    void installedSampleIsFound();
};

void GamutViewerTest::opensEveryFormat()
{
    write("monitor.bin", samplefiles::plainEdid());
    write("profile.icc", samplefiles::version4Profile());
    write("meter.csv",
        "name,Y (cd/m2),x,y\nred,200,0.7,0.29\ngreen,700,0.2,0.7\nblue,100,0.15,0.05\nwhite,1000,0.28,0.29\n");
    write("wall.json", minimal);
    // Each is what it is, and nothing besides.
    const std::pair<const char *, QStringList> expected[] = {{"monitor.bin", {"declared"}},
        {"profile.icc", {"declared"}}, {"meter.csv", {"measured"}}, {"wall.json", {"original", "target"}}};
    for (const auto &file : expected) {
        const Result result = run({"--report", "json", file.first});
        QVERIFY2(result.exitCode == 0, result.error);
        const QByteArray remark("gamutviewer: profile.icc: the profile states exactly sRGB: that is a standard, not a "
                                "measurement of a display\n");
        QCOMPARE(result.error, file.first == QByteArray("profile.icc") ? remark : QByteArray());
        const QJsonObject report = QJsonDocument::fromJson(result.output).object();
        for (const char *part : {"declared", "original", "measured", "target"}) {
            QVERIFY2(report.contains(part) == file.second.contains(part), part);
        }
        QCOMPARE(report.contains("validity"), file.second.contains("target"));
        QCOMPARE(report.contains("givenUp"), file.second.contains("target"));
    }
    const Result all = run({"--report", "json", "profile.icc", "meter.csv", "wall.json"});
    QVERIFY2(all.exitCode == 0, all.error);
    const QJsonObject report = QJsonDocument::fromJson(all.output).object();
    for (const char *part : {"declared", "original", "measured", "target"}) {
        QVERIFY2(report.contains(part), part);
    }
    write("grey.icc", samplefiles::greyProfile());
    const Result grey = run({"wall.json", "grey.icc", "--render", "chart.png"});
    QCOMPARE(grey.error, QByteArray("gamutviewer: grey.icc: has no primaries: it is a grey profile\n"));
    QCOMPARE(grey.exitCode, 2);
    QVERIFY(!entries().contains("chart.png"));
}

void GamutViewerTest::tellsOfMixedDisplays()
{
    write("monitor.bin", samplefiles::plainEdid());
    write("wall.json", QByteArray(minimal).replace("{", "{\"name\": \"Wall\", "));
    const Result result = run({"--report", "json", "monitor.bin", "wall.json"});
    QCOMPARE(result.error, QByteArray("gamutviewer: monitor.bin: is of the display \"Studio 27\", not of \"Wall\"\n"));
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QJsonDocument::fromJson(result.output).object().contains("declared"));
}

void GamutViewerTest::listsThatNeedAChoice()
{
    write(
        "meter.csv", "name,Y (lux),x,y\nred,190,0.69,0.30\nred,180,0.64,0.33\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\n");
    const Result open = run({"--report", "json", "meter.csv"});
    QCOMPARE(open.exitCode, 5);
    QVERIFY2(open.error.contains("gamutviewer: meter.csv: line 3: red is there more than once"), open.error);
    QVERIFY(!QJsonDocument::fromJson(open.output).object().contains("measured"));
    const Result chosen
        = run({"--report", "json", "meter.csv", "--red", "line:3", "--white", "sum", "--unit", "cd/m2"});
    QVERIFY2(chosen.exitCode == 0, chosen.error);
    const QJsonObject measured = QJsonDocument::fromJson(chosen.output).object().value("measured").toObject();
    QCOMPARE(measured.value("red").toObject().value("x").toDouble(), 0.64);
    QCOMPARE(measured.value("white").toObject().value("Y").toDouble(), 900.0);
    write("monitor.bin", samplefiles::plainEdid());
    const Result none = run({"--report", "json", "monitor.bin", "--unit", "cd/m2"});
    QCOMPARE(none.error,
        QByteArray("gamutviewer: --red, --green, --blue, --white, --cabinet, --unit and --decimal require a "
                   "measurement list\n"));
    QCOMPARE(none.exitCode, 2);
}

void GamutViewerTest::namesTheLineOfASyntaxError()
{
    write("wall.json", "{\n  \"version\": 1,\n}");
    const Result result = run({"wall.json", "--report", "json"});
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith("gamutviewer: wall.json:3:"), result.error);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QByteArray());
}

void GamutViewerTest::readsFromAPipe()
{
#ifdef Q_OS_UNIX
    QCOMPARE(run({"/dev/stdin", "--render", "chart.png"}, minimal).exitCode, 0);
    const Result result = run({"/dev/stdin", "--render", "other.png"}, "{\n 1}");
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith("gamutviewer: /dev/stdin:2:"), result.error);
    QCOMPARE(entries(), QStringList("chart.png"));
#endif
}

//! A byte order mark at the beginning belongs to the name of a file as any other character does.
void GamutViewerTest::opensNamesWithAMark()
{
#ifdef Q_OS_LINUX
    write("wall.json", minimal);
    write("other", "no description");
    QProcessEnvironment environment = bare();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    const QString command = QStringLiteral("name=$(printf '\\357\\273\\277')other && mv wall.json $name && "
                                           "exec \"$0\" --report json $name");
    const Result result = run({"-c", command, GAMUTVIEWER_PROGRAM}, environment, {}, QStringLiteral("/bin/sh"));
    QVERIFY2(result.exitCode == 0, result.error);
    QVERIFY(QJsonDocument::fromJson(result.output).object().contains("target"));
#endif
}

void GamutViewerTest::refusesDescriptions_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const QByteArray &text, const char *message) {
        QTest::newRow(name) << text << QByteArray(message);
    };
    const auto change = [&row](const char *name, const char *what, const char *by, const char *message) {
        row(name, QByteArray(minimal).replace(what, by), message);
    };
    row("empty", "", "wall.json: is empty");
    change("wrong type", "[]", "{}", "wall.json: gamuts: expected an array, found an object");
    change("unknown key", "version", "versoin", "wall.json: versoin: unknown key");
    change("missing key", "\"version\": 1, ", "", "wall.json: version: missing");
    change("unknown gamut", "Rec.709", "Rec.\\n709", "wall.json: target: there is no gamut named \"Rec.\\u000a709\"");
    row("huge", '{' + QByteArray(16 * 1024 * 1024, ' '),
        "wall.json: is too large for a display description (more than 16384 KiB)");
}

void GamutViewerTest::refusesDescriptions()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, message);
    write("wall.json", text);
    const Result result = run({"wall.json", "--render", "chart.png"});
    QCOMPARE(result.error, "gamutviewer: " + message + '\n');
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(entries(), QStringList("wall.json"));
}

void GamutViewerTest::refusesArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown option") << QStringList{"--bogus"} << QByteArray("Unknown option 'bogus'.");
    QTest::newRow("bad size") << QStringList{"--size", "12"}
                              << QByteArray("Invalid size, expected 1x1 to 8192x8192: 12");
    QTest::newRow("negative size") << QStringList{"--size=-1x5"}
                                   << QByteArray("Invalid size, expected 1x1 to 8192x8192: -1x5");
    QTest::newRow("bad ratio") << QStringList{"--dpr", "0"}
                               << QByteArray("Invalid device pixel ratio, expected 0.25 to 16: 0");
    QTest::newRow("bad diagram") << QStringList{"--diagram", "lab", "--render", "a.png"}
                                 << QByteArray("Unknown diagram, expected xy, uv, uv1960, chart or wall: lab");
    QTest::newRow("two descriptions") << QStringList{SAMPLE_FILE,
        SAMPLE_FILE} << QByteArray(SAMPLE_FILE ": is a second display description; the first is " SAMPLE_FILE);
    QTest::newRow("missing file") << QStringList{"no.json"}
                                  << QByteArray("no.json: cannot be read: there is no such file");
    QTest::newRow("folder") << QStringList{"."} << QByteArray(".: is a folder");
}

void GamutViewerTest::refusesArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    for (const QStringList &rendering : {QStringList(), QStringList{"--render", "chart.png"}}) {
        const Result result = run(arguments + rendering);
        QCOMPARE(result.error, "gamutviewer: " + message + '\n');
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.exitCode, 2);
        QVERIFY(entries().isEmpty());
    }
}

void GamutViewerTest::helpAndVersion()
{
    const Result help = run({"--help"});
    QCOMPARE(help.exitCode, 0);
    QCOMPARE(help.error, QByteArray());
    for (const char *part : {"Usage: ", "--render <file>", "--diagram <diagram>", "--view <part>", "--layers <list>",
             "common-area", "--size <width>x<height>", "--dpr <ratio>", "--report <format>", "--version",
             "Exit status: 0 success, 1 ", "file"}) {
        QVERIFY2(help.output.contains(part), part);
    }
    const Result version = run({"--version"});
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.error, QByteArray());
    QCOMPARE(version.output, QByteArray("gamutviewer " GAMUTVIEWER_VERSION "\n"));
}

void GamutViewerTest::saysThatThereIsNoDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const Result result = run({});
    QCOMPARE(result.error,
        QByteArray("gamutviewer: no display is available; use --render to write a picture or --report to print a "
                   "report\n"));
    QCOMPARE(result.exitCode, 1);
#endif
}

void GamutViewerTest::wrongDescriptionComesBeforeTheDisplay()
{
    write("wall.json", "[]");
    const Result result = run({"wall.json"});
    QCOMPARE(result.error, QByteArray("gamutviewer: wall.json: expected an object, found an array\n"));
    QCOMPARE(result.exitCode, 2);
}

void GamutViewerTest::showsAWindow()
{
    QProcess process;
    QProcessEnvironment environment = bare();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(GAMUTVIEWER_PROGRAM), {SAMPLE_FILE});
    QVERIFY(process.waitForStarted());
    // It stays until its window is closed, which nobody does here.
    QVERIFY(!process.waitForFinished(1500));
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void GamutViewerTest::installedSampleIsFound()
{
    // A copy of the program without the samples folder of the build tree beside it.
    QDir folder(this->folder());
    QVERIFY(folder.mkpath(QStringLiteral("bin")));
    const QString program = path("bin/gamutviewer");
    QVERIFY(QFile::copy(QStringLiteral(GAMUTVIEWER_PROGRAM), program));
    Result result = run({"--render", "chart.png"}, bare(), {}, program);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.contains("share/ceiechart/samples/led-wall.json: cannot be read"), result.error);

    QVERIFY(folder.mkpath(QStringLiteral("share/ceiechart/samples")));
    QVERIFY(QFile::copy(QStringLiteral(SAMPLE_FILE), path("share/ceiechart/samples/led-wall.json")));
    result = run({"--render", "chart.png"}, bare(), {}, program);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
}

QTEST_MAIN(GamutViewerTest)
#include "gamutviewertest.moc"
