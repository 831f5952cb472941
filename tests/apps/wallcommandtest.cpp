// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/wallcommand.h"
#include "display/report.h"
#include "display/textreport.h"
#include "program/commandline.h"

#include "wallprogram.h"

#include <gamutfiles/correctionsfile.h>
#include <gamutfiles/cubepair.h>
#include <gamutfiles/descriptionfile.h>
#include <gamutmodel/nearestinside.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;

/*! Which walls, targets and options the command line takes. */
class WallCommandTest : public QObject, private WallProgram {
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void sampleIsWhatTheScriptGenerates();
    void combinationsWork();
    void exitStatusTellsTheVerdict_data();
    void exitStatusTellsTheVerdict();
    void wallOfADescription();
    void wallAmongTheFiles();
    void wallTakesThePlaceOfAnother();
    void targetsByName();
    void commandLine_data();
    void commandLine();
    void refused_data();
    void refused();
    void cannotWrite();
    void documentedCommandsWork();
};

void WallCommandTest::sampleIsWhatTheScriptGenerates()
{
    const auto file = readGamutFile(sample);
    QVERIFY2(file, qPrintable(file.error()));
    const auto wall = wallFromMeasurements(file->measurements);
    QVERIFY2(wall, qPrintable(wall.error()));
    QVERIFY(wall.warnings().isEmpty());
    QCOMPARE(wall->cabinets.size(), std::size_t(8 * 12));
    QVERIFY(wall->unit == LuminanceUnit::CandelaPerSquareMetre);
    for (const WallCabinet &cabinet : wall->cabinets) {
        QVERIFY(cabinet.white && cabinet.black);
        // The white is the sum of what the primaries add to the black, to the four digits of the meter.
        const double sum = cabinet.red.Y + cabinet.green.Y + cabinet.blue.Y - 2.0 * cabinet.black->Y;
        QVERIFY(std::fabs(cabinet.white->Y / sum - 1.0) < 2e-3);
    }
}

// The options that write, and those that come before them, in pairs and all together.
void WallCommandTest::combinationsWork()
{
    const QVector<QStringList> options{{"--target", "Rec.709"}, {"--fit"}, {"--report", "text"}, {"--check"},
        {"--corrections", "c.csv"}, {"--render", "p.png"}};
    QVector<QVector<int>> sets{{0, 1, 2, 3, 4, 5}};
    for (int first = 0; first < options.size(); ++first) {
        for (int second = std::max(first + 1, 2); second < options.size(); ++second) {
            sets.append({first, second});
        }
    }
    for (const QVector<int> &set : qAsConst(sets)) {
        renewFolder();
        write("wall.csv", wallList);
        write("stage.json", targetText(500.0));
        QStringList arguments{"stage.json", "--wall", "wall.csv"};
        for (const int option : set) {
            arguments += options.at(option);
        }
        const Result result = run(arguments);
        const QByteArray context = arguments.join(' ').toUtf8() + '\n' + result.error;
        QVERIFY2(result.exitCode == 0, context);
        QVERIFY2(QFile::exists(path("c.csv")) == set.contains(4), context);
        QVERIFY2(QFile::exists(path("p.png")) == set.contains(5), context);
        QVERIFY2(result.output.isEmpty() == !(set.contains(2) || set.contains(3)), context);
        QVERIFY2(result.output.contains("Δu′v′ of the white") == set.contains(2), context);
    }
}

void WallCommandTest::exitStatusTellsTheVerdict_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("ground");
    QTest::newRow("pass") << targetText(500.0) << wallList << 0 << QByteArray("pass: Both cabinets show this target.");
    QTest::newRow("one is too dark") << targetText(500.0)
                                     << QByteArray(wallList).replace("0.1812,0.7170,690.4", "0.1812,0.7170,300") << 3
                                     << QByteArray("fail: A2: white reaches ");
    QTest::newRow("one bad red") << targetText(500.0) << QByteArray(wallList).replace("0.6996,0.2999", "0.5996,0.3299")
                                 << 3 << QByteArray("fail: A1: red reaches ");
    QTest::newRow("unit not known") << targetText(500.0) << QByteArray(wallList).replace("Lv (cd/m2)", "Y") << 4
                                    << QByteArray("not known: The luminances cannot be compared");
    QTest::newRow("bright black") << targetText(500.0)
                                  << QByteArray(wallList) + "A1,1,1,black,0.31,0.33,60\nA2,1,2,black,0.31,0.33,60\n"
                                  << 3 << QByteArray("fail: A1: the black is too bright, and keeps it off ");
    QTest::newRow("incomplete") << targetText(500.0) << QByteArray(wallList) + "A3,1,3,red,0.70,0.29,240\n"
                                << 4
                                << QByteArray("not known: 2 of 3 cabinets show this target; of 1 it is not known.");
    QTest::newRow("no target") << QByteArray(R"({"version": 1, "gamuts": []})") << wallList << 4
                               << QByteArray("not known: What the display is to show is not known");
}

void WallCommandTest::exitStatusTellsTheVerdict()
{
    QFETCH(QByteArray, target);
    QFETCH(QByteArray, list);
    QFETCH(QByteArray, ground);
    write("stage.json", target);
    write("wall.csv", list);
    const Result result = run({"stage.json", "--wall", "wall.csv", "--check"});
    QVERIFY2(result.output.contains(ground), result.output);
    QTEST(result.exitCode, "status");
}

void WallCommandTest::wallOfADescription()
{
    const auto list = readGamutFile(path("wall.csv"));
    QVERIFY(list);
    DisplayDescription description;
    description.wall = *wallFromMeasurements(list->measurements);
    write("wall.json", gamutfiles::descriptionText(description));
    const Result fromList = run({"stage.json", "--wall", "wall.csv", "--corrections", "c.csv"});
    const QByteArray corrections = read("c.csv");
    const Result fromDescription = run({"stage.json", "--wall", "wall.json", "--corrections", "d.csv"});
    QCOMPARE(fromList.exitCode, 0);
    QCOMPARE(fromDescription.exitCode, 0);
    QVERIFY(corrections.size() > 500);
    QCOMPARE(read("d.csv"), corrections);
    // As the description itself.
    const Result alone = run({"wall.json", "--target", "Rec.709", "--corrections", "e.csv"});
    QVERIFY2(alone.exitCode == 0, alone.error);
    QCOMPARE(run({"wall.json", "--target", "Rec.709", "--cabinet", "A2", "--corrections", "f.csv"}).exitCode, 0);
    QVERIFY(read("f.csv").contains("\nA2,1,2,") && !read("f.csv").contains("\nA1,1,1,"));
}

// Without a window nobody can be asked what a list of several cabinets is.
void WallCommandTest::wallAmongTheFiles()
{
    QCOMPARE(run({"stage.json", "--wall", "wall.csv", "--corrections", "a.csv"}).exitCode, 0);
    const Result result = run({"stage.json", "wall.csv", "--check", "--corrections", "b.csv"});
    QVERIFY2(result.exitCode == 0, result.output + result.error);
    QCOMPARE(result.error, QByteArray());
    QVERIFY(read("a.csv").size() > 500);
    QCOMPARE(read("b.csv"), read("a.csv"));
    QCOMPARE(run({"stage.json", "wall.csv", "--cabinet", "A2", "--corrections", "c.csv"}).exitCode, 0);
    QVERIFY(read("c.csv").contains("\nA2,1,2,") && !read("c.csv").contains("\nA1,1,1,"));
    // One cabinet that is chosen is a display.
    write("white.csv", wallList + "A1,1,1,white,0.28,0.30,1029.3\nA2,1,2,white,0.28,0.30,1026.5\n");
    const Result one = run({"white.csv", "--cabinet", "A2", "--report", "json"});
    QVERIFY2(one.output.contains("\"measured\"") && !one.output.contains("\"wall\""), one.output);
    // Two lists could both be the wall.
    write("other.csv", wallList);
    QCOMPARE(run({"wall.csv", "other.csv", "--report", "json"}).exitCode, 5);
    QCOMPARE(wallAmong({path("other.csv"), path("wall.csv")}, {}), QString());
    QCOMPARE(
        wallAmong({path("none.csv"), path("wall.csv"), path("stage.json"), "-", "/dev/null"}, {}), path("wall.csv"));

    // What was read for it need not be read again, unless it was read otherwise.
    const auto opensWithoutReading = [this](const MeasurementOptions &options) {
        const QString file = path("gone.csv");
        write("gone.csv", wallList);
        FilesRead filesRead;
        return wallAmong({file}, options, &filesRead) == file && QFile::remove(file)
            && openFiles({file}, options, filesRead);
    };
    MeasurementOptions ofCabinet;
    ofCabinet.cabinet = QStringLiteral("A2");
    QVERIFY(opensWithoutReading({}));
    QVERIFY(!opensWithoutReading(ofCabinet));
}

void WallCommandTest::wallTakesThePlaceOfAnother()
{
    const auto list = readGamutFile(path("wall.csv"));
    QVERIFY(list);
    DisplayDescription description;
    description.wall = *wallFromMeasurements(list->measurements);
    write("wall.json", gamutfiles::descriptionText(description));
    const Result result = run({"wall.json", "--wall", sample, "--report", "json"});
    QCOMPARE(result.error, "gamutviewer: " + sample.toUtf8() + ": takes the place of the wall that there was\n");
    const QJsonObject wall = QJsonDocument::fromJson(result.output).object().value("wall").toObject();
    QCOMPARE(wall.value("cabinets").toArray().size(), 96);
}

void WallCommandTest::targetsByName()
{
    for (const char *name : {"Rec.709", "rec.709", "REC.709"}) {
        const auto chosen = withChosenTarget(DisplayDescription(), QString::fromLatin1(name));
        QVERIFY2(chosen, qPrintable(chosen.error()));
        QCOMPARE(chosen->target, QStringLiteral("Rec.709"));
    }
    const auto unknown = withChosenTarget(DisplayDescription(), QStringLiteral("Rec.7"));
    QVERIFY2(unknown.error().startsWith("there is no gamut called \"Rec.7\" for the target; there are Rec.709, "),
        qPrintable(unknown.error()));
    QCOMPARE(withChosenTarget(DisplayDescription(), QStringLiteral("aces2065-1")).error(),
        QStringLiteral("no display can show \"ACES2065-1\""));
}

void WallCommandTest::commandLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("all") << "--wall w.csv --target Rec.709 --fit --corrections c.json" << QString();
    QTest::newRow("in capitals") << "--wall w.csv --corrections C.CSV" << QString();
    QTest::newRow("format") << "--wall w.csv --corrections c.txt"
                            << "Unsupported format of corrections, expected csv, json or cube: c.txt";
    QTest::newRow("no suffix") << "--wall w.csv --corrections c"
                               << "Unsupported format of corrections, expected csv, json or cube: c";
    QTest::newRow("no file") << "--corrections c.csv"
                             << "No file to correct by: --corrections requires one, or --wall.";
    QTest::newRow("empty wall") << "--wall="
                                << "The value of --wall is empty.";
    QTest::newRow("empty target") << "--target="
                                  << "The value of --target is empty.";
    QTest::newRow("empty corrections") << "w.csv --corrections="
                                       << "The value of --corrections is empty.";
    QTest::newRow("report") << "w.csv --report xml"
                            << "Unsupported report format, expected json or text: xml";
}

void WallCommandTest::commandLine()
{
    QFETCH(QString, arguments);
    const CommandLine line(QStringList("gamutviewer") + arguments.split(QLatin1Char(' ')));
    QTEST(line.error(), "error");
    QCOMPARE(line.action() == CommandLine::Action::Refuse, !line.error().isEmpty());
    if (arguments.contains(QLatin1String("--fit"))) {
        QCOMPARE(line.action(), CommandLine::Action::Write);
        QVERIFY(!line.needsDisplay());
        QCOMPARE(line.wallFile(), QStringLiteral("w.csv"));
        QCOMPARE(line.targetName(), QStringLiteral("Rec.709"));
        QCOMPARE(line.correctionsFile(), QStringLiteral("c.json"));
        QVERIFY(line.wantsFit());
    }
}

void WallCommandTest::refused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    const auto row = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << QByteArray(error);
    };
    row("--wall none.csv --check", "none.csv: cannot be read: there is no such file");
    row("--wall stage.json --check",
        "stage.json: has no wall: that is in a measurement list with a column for the cabinet, or in a display "
        "description");
    row("--wall one.csv --check",
        "one.csv: names no cabinets: a wall needs a column with the cabinet, or one with the row and one with the "
        "column");
    row("stage.json --wall wall.csv --corrections ./wall.csv",
        "./wall.csv: is read, and would be replaced by the corrections");
    row("--wall wall.csv --corrections c.csv",
        "c.csv: there is no target, which corrections are for: choose one by --target");
    row("stage.json --corrections c.csv",
        "c.csv: there is nothing to correct: no wall, and no measured or original gamut");
    row("stage.json --wall wall.csv --corrections c.cube",
        "c.cube: a pair of tables is for one display: choose a cabinet by --cabinet, or write csv or json");
    row("stage.json --wall wall.csv --cabinet A3 --corrections c.csv",
        "c.csv: no cabinet of the wall is called \"A3\"");
    row("wide.json --wall wall.csv --cabinet A1 --corrections c.cube",
        "c.cube: the drive of blue for red is -0.001656: a table is not exact below 0; csv and json have the matrix as "
        "it is");
    row("--wall wall.csv --fit --check", "--fit: there is no target to fit to the wall");
    row("stage.json --fit --check", "--fit: there is no wall to fit the target to");
    row("--wall wall.csv --target Rec.700 --check", "--target: there is no gamut called \"Rec.700\" for the target; ");
}

void WallCommandTest::refused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    write("one.csv", "name,x,y,Y\nred,0.7,0.29,200\n");
    write("wide.json", targetText(500.0, 0.67));
    const Result result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    const QByteArray last = result.error.trimmed().split('\n').last();
    QVERIFY2(last.startsWith("gamutviewer: " + error), result.error);
    QVERIFY(QDir(folder()).entryList({"c*"}).isEmpty());
}

void WallCommandTest::cannotWrite()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--corrections", "none/c.csv"});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.error, QByteArray("gamutviewer: none/c.csv: cannot be written: there is no such folder\n"));
}

// Every command of the guide, with its files beside it.
void WallCommandTest::documentedCommandsWork()
{
    QVERIFY(QFile::copy(sample, path("simulated-wall.csv")));
    QFile guide(QStringLiteral(WALL_GUIDE));
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    const QRegularExpression command(
        QStringLiteral("^gamutviewer (.+--(report|check|corrections).*)$"), QRegularExpression::MultilineOption);
    int commands = 0;
    for (auto matches = command.globalMatch(text); matches.hasNext(); ++commands) {
        QStringList arguments = matches.next().captured(1).split(QLatin1Char(' '));
        arguments.replaceInStrings(QStringLiteral("\""), QString());
        const Result result = run(arguments);
        const bool mayFail = arguments.contains("--check") && !arguments.contains("--fit");
        QVERIFY2(result.exitCode == (mayFail ? 3 : 0), result.error + arguments.join(' ').toUtf8());
    }
    QVERIFY(commands >= 3);
}

QTEST_GUILESS_MAIN(WallCommandTest)
#include "wallcommandtest.moc"
