// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/wallcommand.h"
#include "display/report.h"
#include "display/textreport.h"
#include "program/commandline.h"

#include "programrunner.h"

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

/*! What the command line does with walls. */
class WallCommandTest : public QObject, private ProgramRunner {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sampleIsWhatTheScriptGenerates();
    void reportsOnTheWall();
    void reportWithoutATarget();
    void textReportHasEveryCabinet();
    void textReportNamesItsColumns();
    void incompleteCabinetsAreNamed();
    void blackOfADisplayAndOfAWall();
    void wallOfOneCabinet();
    void combinationsWork();
    void exitStatusTellsTheVerdict_data();
    void exitStatusTellsTheVerdict();
    void correctionsAreThoseOfTheReport();
    void correctionsOfOneCabinet();
    void correctionsSayNoMoreThanIsKnown();
    void notesOnASingleDisplay();
    void tablesOfOneDisplay();
    void fitsTheTarget();
    void tellsWhatAFitCosts();
    void fitsATargetThatIsALittleTooBright();
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
    void simulatedWallIsHonest();

private:
    QByteArray read(const char *name) const;
};

namespace {

const QString sample = QStringLiteral(SIMULATED_WALL);

const QByteArray wallList = R"(cabinet,row,column,name,x,y,Lv (cd/m2)
A1,1,1,red,0.6996,0.2999,231.2
A1,1,1,green,0.1781,0.7214,718.4
A1,1,1,blue,0.1412,0.0493,79.7
A2,1,2,red,0.6950,0.3040,250.8
A2,1,2,green,0.1812,0.7170,690.4
A2,1,2,blue,0.1405,0.0510,85.3
)";

//! A target in cd/m² whose primaries mix to a white of \a luminance.
QByteArray targetText(double luminance, double redX = 0.64)
{
    const auto color = [](double Y, double x, double y) { return QJsonObject{{"Y", Y}, {"x", x}, {"y", y}}; };
    const auto unit = [](double x, double y) { return Model::Target::fromYxy(1.0, x, y); };
    const Model::DisplayDrive mixture({unit(redX, 0.33), unit(0.3, 0.6), unit(0.15, 0.07), {}});
    const Model::Drive of = *mixture.driveOf(Model::Target::fromYxy(luminance, 0.3127, 0.329));
    return QJsonDocument(
        QJsonObject{{"version", 1}, {"target", "Stage"},
            {"gamuts",
                QJsonArray{QJsonObject{{"name", "Stage"}, {"luminanceUnit", "cd/m2"},
                    {"red", color(of.red, redX, 0.33)}, {"green", color(of.green, 0.3, 0.6)},
                    {"blue", color(of.blue, 0.15, 0.07)}, {"white", color(luminance, 0.3127, 0.329)}}}}})
        .toJson();
}

} // namespace

QByteArray WallCommandTest::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WallCommandTest::init()
{
    renewFolder();
    write("wall.csv", wallList);
    write("stage.json", targetText(500.0));
}

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

void WallCommandTest::reportsOnTheWall()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--report", "json"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(result.output).object();
    QCOMPARE(report.value("verdict").toObject().value("status").toString(), QStringLiteral("pass"));
    const QJsonObject wall = report.value("wall").toObject();
    QCOMPARE(wall.value("unit").toString(), QStringLiteral("cd/m2"));
    QCOMPARE(wall.value("status").toString(), QStringLiteral("pass"));
    QCOMPARE(wall.value("text").toString(), QStringLiteral("All 2 cabinets show this target"));
    QVERIFY(wall.value("comparable").toBool());
    QCOMPARE(wall.value("correctedWhite").toDouble(), 500.0);
    QCOMPARE(wall.value("commonGamut").toObject().value("shape").toString(), QStringLiteral("area"));
    QVERIFY(wall.value("commonGamut").toObject().value("area").toObject().value("uv").toDouble() > 0.09);
    QCOMPARE(wall.value("fit").toObject().value("coverage").toObject().value("xy").toDouble(), 1.0);
    QVERIFY(wall.value("fit").toObject().value("red").toObject().value("limit").isNull());
    const QJsonObject before = wall.value("uniformity").toObject().value("before").toObject();
    const QJsonObject after = wall.value("uniformity").toObject().value("after").toObject();
    QVERIFY(before.value("uv").toObject().value("difference").toDouble() > 0.001);
    QVERIFY(after.value("uv").toObject().value("difference").toDouble() < 1e-12);
    QCOMPARE(before.value("neighborUv").toObject().value("cabinets").toArray(), (QJsonArray{"A1 1/1", "A2 1/2"}));
    const QJsonArray cabinets = wall.value("cabinets").toArray();
    QCOMPARE(cabinets.size(), 2);
    const QJsonObject cabinet = cabinets.at(1).toObject();
    QCOMPARE(cabinet.value("cabinet").toString(), QStringLiteral("A2 1/2"));
    QCOMPARE(cabinet.value("row").toInt(), 1);
    QCOMPARE(cabinet.value("column").toInt(), 2);
    QCOMPARE(cabinet.value("status").toString(), QStringLiteral("pass"));
    QCOMPARE(cabinet.value("headroom").toDouble(), cabinet.value("largestWhite").toDouble() / 500.0);
    QCOMPARE(wall.value("largestWhite").toObject().value("cabinet").toString(), QStringLiteral("A1 1/1"));
    QCOMPARE(cabinet.value("matrix").toArray().size(), 3);
    QVERIFY(cabinet.value("uvBefore").toDouble() > 0.001);
    QVERIFY(cabinet.value("uvAfter").toDouble() < 1e-12);
}

void WallCommandTest::reportWithoutATarget()
{
    const Result result = run({"--wall", "wall.csv", "--report", "json"});
    QCOMPARE(result.exitCode, 0);
    const QJsonObject wall = QJsonDocument::fromJson(result.output).object().value("wall").toObject();
    QCOMPARE(wall.value("cabinets").toArray().size(), 2);
    QVERIFY(!wall.contains("status"));
    QCOMPARE(run({"stage.json", "--report", "json"}).output.count("\"wall\""), 0);
}

void WallCommandTest::textReportHasEveryCabinet()
{
    const Result result = run({"stage.json", "--wall", sample, "--report", "text"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains("\npass: All 96 cabinets"), result.output);
    for (int row = 0; row < 8; ++row) {
        for (int column = 1; column <= 12; ++column) {
            const QByteArray name = QByteArray(1, char('A' + row)) + QByteArray::number(column) + ' ';
            QVERIFY2(result.output.contains('\n' + name), name);
        }
    }
    // Columns stand below each other.
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    const int column = QString::fromUtf8(lines.at(lines.size() - 97)).indexOf(QStringLiteral("limit"));
    QVERIFY(column > 0);
    for (int i = lines.size() - 96; i < lines.size(); ++i) {
        QVERIFY2(QString::fromUtf8(lines.at(i)).mid(column - 1, 1) == QLatin1String(" "), lines.at(i));
        QVERIFY2(QString::fromUtf8(lines.at(i)).mid(column, 1) != QLatin1String(" "), lines.at(i));
    }
    // A display without a wall has the verdict and its gamuts.
    const Result plain = run({"stage.json", "--report", "text"});
    QVERIFY2(plain.output.contains("target  Stage"), plain.output);
    QVERIFY2(plain.output.contains("not known: "), plain.output);
}

void WallCommandTest::textReportNamesItsColumns()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--report", "text"});
    for (const char *header : {"largest white, cd/m²", "Δu′v′ of the white without correction",
             "Δu′v′ of the white with correction", "difference of whites"}) {
        QVERIFY2(result.output.contains(header), result.output);
    }
}

//! The list with a cabinet whose green was not measured, and one whose red was measured twice.
static QByteArray gapList()
{
    return wallList + "A3,1,3,red,0.6950,0.3040,250.8\nA3,1,3,blue,0.1405,0.0510,85.3\n"
        + QByteArray(wallList).mid(wallList.indexOf('\n') + 1).replace("A1,1,1", "A4,2,1").replace("A2,1,2", "A5,2,2")
        + "A5,2,2,red,0.6950,0.3040,250.8\n";
}

void WallCommandTest::incompleteCabinetsAreNamed()
{
    write("gaps.csv", gapList());
    const Result result = run({"stage.json", "--wall", "gaps.csv", "--corrections", "c.csv", "--report", "text"});
    QVERIFY2(result.exitCode == 0, result.error);
    QVERIFY2(result.error.contains("gamutviewer: c.csv: cabinets without a correction: A3 1/3 (green is missing), "
                                   "A5 2/2 (red is there more than once)\n"),
        result.error);
    QVERIFY2(result.output.contains("\nA3 (green is missing) "), result.output);
    const auto corrections = gamutfiles::readCorrectionsFile(path("c.csv"));
    QVERIFY2(corrections, qPrintable(corrections.error()));
    QStringList faults;
    for (const CabinetCorrection &cabinet : corrections->cabinets) {
        faults.append(cabinet.label() + QLatin1Char(':') + cabinet.fault);
        QCOMPARE(cabinet.matrix.has_value(), cabinet.fault.isEmpty());
    }
    QCOMPARE(faults,
        (QStringList{
            "A1 1/1:", "A2 1/2:", "A3 1/3:green is missing", "A4 2/1:", "A5 2/2:red is there more than once"}));
    // A list that does not go row by row keeps its order.
    DisplayWall backwards = *wallFromMeasurements(readGamutFile(path("gaps.csv"))->measurements);
    std::reverse(backwards.cabinets.begin(), backwards.cabinets.end());
    DisplayDescription described;
    described.wall = backwards;
    described.target = QStringLiteral("Rec.709");
    write("backwards.json", gamutfiles::descriptionText(described));
    QCOMPARE(run({"backwards.json", "--corrections", "d.csv"}).exitCode, 0);
    const auto reversed = gamutfiles::readCorrectionsFile(path("d.csv"));
    QVERIFY2(reversed, qPrintable(reversed.error()));
    QStringList names;
    for (const CabinetCorrection &cabinet : reversed->cabinets) {
        names.append(cabinet.name);
    }
    QCOMPARE(names, (QStringList{"A4", "A2", "A1", "A3", "A5"}));
    for (const char *name : {"A3", "a3 1/3", "1/3"}) {
        const Result one = run({"stage.json", "--wall", "gaps.csv", "--cabinet", name, "--corrections", "one.json"});
        QCOMPARE(one.exitCode, 2);
        QVERIFY2(one.error.endsWith("one.json: there is no correction for A3 1/3: green is missing\n"), one.error);
    }
    // A cabinet and one that is not known are a wall, too.
    write("two.csv", wallList.left(wallList.indexOf("A2")) + "A2,1,2,red,0.6950,0.3040,250.8\n");
    QCOMPARE(wallAmong({path("two.csv")}, {}), path("two.csv"));
    // The others are corrected as ever.
    const Result one = run({"stage.json", "--wall", "gaps.csv", "--cabinet", "A4", "--corrections", "one.cube"});
    QVERIFY2(one.exitCode == 0, one.error);
    QVERIFY2(!one.error.contains("without a correction"), one.error);
}

// One list means one thing, whether it is read as that of a display or of a wall.
void WallCommandTest::blackOfADisplayAndOfAWall()
{
    const QByteArray white = "A1,1,1,white,0.2793,0.3042,1029.3\n"; // the sum of the primaries
    const QByteArray one = wallList.left(wallList.indexOf("A2")) + white;
    write("dark.csv", one);
    write("one.csv", one + "A1,1,1,black,0.3127,0.3290,8\n");
    write("stage.json", targetText(40.0, 0.66));
    QCOMPARE(run({"stage.json", "dark.csv", "--check"}).exitCode, 0);
    const Result display = run({"stage.json", "one.csv", "--check", "--corrections", "display.json"});
    const Result wall = run({"stage.json", "--wall", "one.csv", "--check", "--corrections", "wall.json"});
    QCOMPARE(wall.exitCode, 3);
    QCOMPARE(display.exitCode, 3);
    QVERIFY2(display.output.contains("fail: The black of the measured gamut is too bright, and keeps it off red by"),
        display.output);
    const auto first = gamutfiles::readCorrectionsFile(path("display.json"));
    const auto second = gamutfiles::readCorrectionsFile(path("wall.json"));
    QVERIFY(first && second && first->cabinets[0].matrix && second->cabinets[0].matrix);
    QVERIFY(first->cabinets[0].matrix->rows == second->cabinets[0].matrix->rows);
}

// Nobody needs a white for a wall, however small.
void WallCommandTest::wallOfOneCabinet()
{
    write("one.csv", wallList.left(wallList.indexOf("A2")));
    const Result wall = run({"stage.json", "--wall", "one.csv", "--check"});
    QCOMPARE(wall.error, QByteArray());
    QCOMPARE(wall.exitCode, 0);
    // As a display, it lacks one.
    const Result display = run({"stage.json", "one.csv", "--check"});
    QVERIFY2(display.error.contains("white is missing: there is no gamut; "), display.error);
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
    QTest::newRow("pass") << targetText(500.0) << wallList << 0 << QByteArray("pass: All 2 cabinets show this target.");
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

void WallCommandTest::correctionsAreThoseOfTheReport()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--corrections", "c.csv", "--report", "json"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(run({"stage.json", "--wall", "wall.csv", "--corrections", "c.json"}).exitCode, 0);
    const QJsonArray reported
        = QJsonDocument::fromJson(result.output).object().value("wall").toObject().value("cabinets").toArray();
    for (const char *name : {"c.csv", "c.json"}) {
        const auto corrections = gamutfiles::readCorrectionsFile(path(name));
        QVERIFY2(corrections, qPrintable(corrections.error()));
        QCOMPARE(corrections->target.name, QStringLiteral("Stage"));
        QCOMPARE(corrections->target.luminance, 500.0);
        QCOMPARE(corrections->cabinets.size(), std::size_t(2));
        for (std::size_t i = 0; i < 18; ++i) {
            const QJsonArray matrix = reported.at(int(i / 9)).toObject().value("matrix").toArray();
            QVERIFY(matrix.at(int(i % 9 / 3)).toArray().at(int(i % 3)).toDouble()
                == corrections->cabinets[i / 9].matrix->rows[i % 9 / 3][i % 3]);
        }
    }
}

void WallCommandTest::correctionsOfOneCabinet()
{
    for (const char *name : {"A2", "a2 1/2", "1/2"}) {
        const Result result = run({"stage.json", "--wall", "wall.csv", "--cabinet", name, "--corrections", "c.csv"});
        QVERIFY2(result.exitCode == 0, result.error);
        const auto corrections = gamutfiles::readCorrectionsFile(path("c.csv"));
        QVERIFY2(corrections, qPrintable(corrections.error()));
        QCOMPARE(corrections->cabinets.size(), std::size_t(1));
        QCOMPARE(corrections->cabinets[0].name, QStringLiteral("A2"));
    }
    // Its white is that of the wall, which all reach.
    const Result relative
        = run({"--target", "rec.709", "--wall", "wall.csv", "--cabinet", "A2", "--corrections", "c.json"});
    QVERIFY2(relative.error.contains("c.json: the corrections are for a white of "), relative.error);
    QVERIFY2(relative.error.contains(" cd/m²,"), relative.error);
    const auto one = gamutfiles::readCorrectionsFile(path("c.json"));
    QVERIFY(one);
    QVERIFY(one->target.luminance < *one->cabinets[0].largestWhite);
}

void WallCommandTest::correctionsSayNoMoreThanIsKnown()
{
    // The white of A1 is 1.5 % below the sum of its primaries, that of A2 far below; the target is brighter than both.
    const QByteArray list = wallList + "A1,1,1,white,0.2793,0.3042,1013.9\nA2,1,2,white,0.2840,0.2966,800\n";
    write("wall.csv", list);
    const Result result
        = run({"--wall", "wall.csv", "--report", "json", "--target", "sRGB", "--corrections", "c.json"});
    QVERIFY2(result.error.contains("the largest that all cabinets reach of which it is known, as the luminance of the "
                                   "target cannot be compared with theirs"),
        result.error);
    QVERIFY2(
        result.error.contains("Measured whites are up to 1.5 % off the sums of the primaries (A1)."), result.error);
    QVERIFY2(result.error.contains("are for, so that it is not known what they show: A2\n"), result.error);
    const QJsonObject wall = QJsonDocument::fromJson(result.output).object().value("wall").toObject();
    const auto corrections = gamutfiles::readCorrectionsFile(path("c.json"));
    QVERIFY(corrections);
    QCOMPARE(*corrections->cabinets[0].largestWhite,
        wall.value("cabinets").toArray().at(0).toObject().value("largestWhite").toDouble());
    QVERIFY(!corrections->cabinets[1].largestWhite);

    // Where no cabinet is known to reach a white, the sums of the primaries are what there is.
    write("wall.csv", QByteArray(list).replace("1013.9", "700"));
    const Result sums = run({"--wall", "wall.csv", "--target", "sRGB", "--corrections", "c.json"});
    QVERIFY2(sums.error.contains("the largest that the primaries of all cabinets add to, as the luminance of the "
                                 "target cannot be compared with theirs"),
        sums.error);

    // A2 reaches the white that was measured at the white of the target, with all primaries at full drive.
    write("wall.csv", wallList + "A2,1,2,white,0.3127,0.3290,400\n");
    const Result limited
        = run({"stage.json", "--wall", "wall.csv", "--report", "json", "--corrections", "c.json", "--check"});
    QCOMPARE(limited.exitCode, 3);
    QVERIFY2(limited.error.contains("cabinets that do not show the target even so: A2\n"), limited.error);
    const QJsonObject white
        = QJsonDocument::fromJson(limited.output).object().value("wall").toObject().value("largestWhite").toObject();
    QCOMPARE(white.value("cabinet").toString(), QStringLiteral("A2 1/2"));
    QCOMPARE(white.value("Y").toDouble(), 400.0);
    QVERIFY(white.value("fullDrive").isNull());
}

void WallCommandTest::notesOnASingleDisplay()
{
    write("one.csv",
        "name,x,y,Lv\nred,0.6996,0.2999,231.2\ngreen,0.1781,0.7214,718.4\nblue,0.1412,0.0493,79.7\n"
        "white,0.2900,0.3110,800\n");
    write("stage.json", targetText(3000.0));
    const Result bright = run({"stage.json", "one.csv", "--corrections", "one.json"});
    QVERIFY2(bright.error.contains("one.json: the display does not show the target even so\n"), bright.error);
    QVERIFY2(bright.error.contains("one.json: the white of the display is not the sum of its primaries, which the "
                                   "correction is for; what it shows is not known\n"),
        bright.error);
    QVERIFY2(!bright.error.contains("cabinet"), bright.error);
    write("stage.json", targetText(0.0));
    const Result dark = run({"stage.json", "one.csv", "--corrections", "one.json"});
    QVERIFY2(dark.error.contains(
                 "the largest that the primaries of the display add to, as the white of the target has no luminance\n"),
        dark.error);
}

void WallCommandTest::tablesOfOneDisplay()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--cabinet", "A1", "--corrections", "c.cube"});
    QVERIFY2(result.exitCode == 0, result.error);
    QVERIFY(!QFile::exists(path("c.cube")));
    const auto pair = gamutfiles::readCubePair(read("c-3x3.cube"), read("c-1d.cube"));
    QVERIFY2(pair, qPrintable(pair.error()));
    QVERIFY(run({"stage.json", "--wall", "wall.csv", "--corrections", "c.csv"}).exitCode == 0);
    const auto corrections = gamutfiles::readCorrectionsFile(path("c.csv"));
    QVERIFY(corrections);
    for (std::size_t i = 0; i < 9; ++i) {
        QVERIFY(std::fabs(pair->gains[i / 3] * pair->matrix.rows[i / 3][i % 3]
                    - corrections->cabinets[0].matrix->rows[i / 3][i % 3])
            < 1e-15);
    }

    // A display without a wall: what was measured of it goes before its original.
    write("one.csv",
        "name,x,y,Lv\nred,0.6996,0.2999,231.2\ngreen,0.1781,0.7214,718.4\nblue,0.1412,0.0493,79.7\n"
        "white,0.29,0.31,1029.3\n");
    const Result measured = run({"stage.json", "one.csv", "--corrections", "one.json"});
    QVERIFY2(measured.exitCode == 0, measured.error);
    const auto display = gamutfiles::readCorrectionsFile(path("one.json"));
    QVERIFY2(display, qPrintable(display.error()));
    QCOMPARE(display->cabinets.size(), std::size_t(1));
    QCOMPARE(display->cabinets[0].name, QStringLiteral("one"));
    QVERIFY(display->cabinets[0].matrix->rows == corrections->cabinets[0].matrix->rows);
    const Result tables = run({"stage.json", "one.csv", "--corrections", "sub/one.cube"});
    QCOMPARE(tables.exitCode, 1); // there is no such folder
    QVERIFY2(tables.error.startsWith("gamutviewer: sub/one-3x3.cube: cannot be written: "), tables.error);
}

void WallCommandTest::fitsTheTarget()
{
    const Result before = run({"--wall", sample, "--target", "DCI-P3(D65)", "--check"});
    QCOMPARE(before.exitCode, 3);
    const Result after = run({"--wall", sample, "--target", "DCI-P3(D65)", "--fit", "--check"});
    QVERIFY2(after.exitCode == 0, after.output + after.error);
    QVERIFY2(
        after.error.contains("gamutviewer: --fit: the luminance of the target is relative; its white is taken at "),
        after.error);
    QVERIFY2(
        after.error.contains("gamutviewer: --fit: fitted to the wall, the target has moved towards its white: red "),
        after.error);
    const Result bright = run({write("bright.json", targetText(5000.0)), "--wall", "wall.csv", "--fit", "--check"});
    QVERIFY2(bright.exitCode == 0, bright.output + bright.error);
    QVERIFY2(bright.error.contains("cd/m² instead of 5000.0 cd/m²"), bright.error);
    const Result none = run({write("none.json", targetText(0.0)), "--wall", "wall.csv", "--fit", "--check"});
    QVERIFY2(none.exitCode == 0, none.output + none.error);
    QVERIFY2(none.error.contains("the white of the target has no luminance; its white is taken at "), none.error);
    write("relative.json", targetText(0.0).replace("cd/m2", "relative"));
    const Result relative = run({"relative.json", "--wall", "wall.csv", "--fit", "--check"});
    QCOMPARE(relative.exitCode, 0);
    QCOMPARE(relative.error, none.error);
    const Result fits = run({"stage.json", "--wall", "wall.csv", "--fit", "--check"});
    QCOMPARE(fits.exitCode, 0);
    QVERIFY2(fits.error.contains("--fit: the target fits the wall as it is"), fits.error);
}

// The report is of the fitted target; what was lost of the wished one is told besides.
void WallCommandTest::tellsWhatAFitCosts()
{
    write("wide.json", targetText(300.0, 0.669));
    const auto wished = readGamutFile(path("wide.json"));
    QVERIFY(wished);
    const Result result = run({"wide.json", "--wall", "wall.csv", "--fit", "--report", "json"});
    QVERIFY2(result.exitCode == 0, result.error);
    const QJsonObject report = QJsonDocument::fromJson(result.output).object();
    const QJsonObject target = report.value("target").toObject();
    const auto from = [&](const char *color) {
        const QJsonObject of = target.value(color).toObject();
        return Model::Target::fromYxy(of.value("Y").toDouble(), of.value("x").toDouble(), of.value("y").toDouble());
    };
    const Model::Targets fitted{from("red"), from("green"), from("blue"), from("white")};
    const Model::Targets wish = wished->description.gamuts.front().getTargets();
    const QJsonObject lost = report.value("wall").toObject().value("fitted").toObject();
    QStringList parts;
    for (const auto &[key, diagram] :
        {std::pair("xy", Model::Diagram::Cie1931), std::pair("uv", Model::Diagram::Cie1976)}) {
        const Model::GamutCoverage cost = Model::gamutCoverage(fitted, wish, diagram);
        QVERIFY(cost.coverage < 0.999);
        QVERIFY(std::fabs(lost.value("coverage").toObject().value(key).toDouble() - cost.coverage) < 1e-9);
        QVERIFY(std::fabs(lost.value("areaRatio").toObject().value(key).toDouble() - cost.areaRatio) < 1e-9);
        parts.append(QString::number(100.0 * cost.coverage, 'f', 1));
    }
    const QJsonObject red = lost.value("red").toObject();
    const double moved = *Model::uvDifference(fitted.red, wish.red);
    QVERIFY(moved > 0.0005 && std::fabs(red.value("moved").toDouble() - moved) < 1e-9);
    QVERIFY(red.value("limit").isString());
    const QString text
        = QString::fromUtf8("--fit: the fitted target covers %1 % of the area of the wished one in x, y and %2 % in "
                            "u′, v′")
              .arg(parts.at(0), parts.at(1));
    QVERIFY2(QString::fromUtf8(result.error).contains(text), result.error);
    QVERIFY2(report.value("remarks").toArray().contains(text), result.output);
    QVERIFY(report.value("warnings").toArray().isEmpty());
    const Result people = run({"wide.json", "--wall", "wall.csv", "--fit", "--report", "text"});
    QVERIFY2(QString::fromUtf8(people.output).contains(QLatin1Char('\n') + text + QLatin1Char('\n')), people.output);
    // Without a fit there is nothing to tell, and one that has nothing to do costs nothing.
    const Result asItIs = run({"stage.json", "--wall", "wall.csv", "--fit", "--report", "text"});
    QVERIFY2(asItIs.output.contains("\n--fit: the target fits the wall as it is"), asItIs.output);
    const auto fittedOf = [this](const QStringList &arguments) {
        return QJsonDocument::fromJson(run(arguments).output).object().value("wall").toObject().value("fitted");
    };
    QVERIFY(fittedOf({"wide.json", "--wall", "wall.csv", "--report", "json"}).isUndefined());
    QCOMPARE(fittedOf({"stage.json", "--wall", "wall.csv", "--fit", "--report", "json"})
                 .toObject()
                 .value("coverage")
                 .toObject()
                 .value("uv")
                 .toDouble(),
        1.0);
}

void WallCommandTest::fitsATargetThatIsALittleTooBright()
{
    write("wall.csv", QByteArray(wallList).replace("718.4", "418.4")); // green is the limit
    const Result known = run({"stage.json", "--wall", "wall.csv", "--report", "json"});
    const double most = QJsonDocument::fromJson(known.output)
                            .object()
                            .value("wall")
                            .toObject()
                            .value("largestWhite")
                            .toObject()
                            .value("Y")
                            .toDouble();
    write("stage.json", targetText(most * 1.0015));
    const Result passes = run({"stage.json", "--wall", "wall.csv", "--check", "--corrections", "c.csv"});
    QCOMPARE(passes.exitCode, 0);
    QVERIFY2(passes.output.contains(" cd/m². That is within 0.2 % of full drive, and counts as full."), passes.output);
    QVERIFY2(!passes.error.contains("cannot show"), passes.error);
    // Only the primary at full drive is short of light: by less than the whole 0.15 %.
    const QRegularExpression but(
        QStringLiteral("c.csv: cabinets that show the target, but for up to Δu′v′ 0.000[0-9] and 0.1 % of the "
                       "luminance: A1\n"));
    QVERIFY2(QString::fromUtf8(passes.error).contains(but), passes.error);
    QCOMPARE(run({"stage.json", "--wall", "wall.csv", "--cabinet", "A1", "--corrections", "c.cube"}).exitCode, 2);

    const Result fitted = run({"stage.json", "--wall", "wall.csv", "--fit", "--check", "--corrections", "c.csv"});
    QCOMPARE(fitted.exitCode, 0);
    QVERIFY2(!fitted.output.contains("counts as full"), fitted.output);
    QVERIFY2(fitted.error.contains("--fit: fitted to the wall, the target has a white of "), fitted.error);
    QVERIFY2(!fitted.error.contains("c.csv"), fitted.error);
    const auto corrections = gamutfiles::readCorrectionsFile(path("c.csv"));
    QVERIFY(corrections);
    QVERIFY(corrections->target.luminance <= most && corrections->target.luminance > most - 0.1);
    const Result table
        = run({"stage.json", "--wall", "wall.csv", "--fit", "--cabinet", "A1", "--corrections", "c.cube"});
    QVERIFY2(table.exitCode == 0, table.error);
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

void WallCommandTest::simulatedWallIsHonest()
{
    QVERIFY(QFile::copy(sample, path("simulated-wall.csv")));
    const Result result = run({"--wall", "simulated-wall.csv", "--target", "DCI-P3(D65)", "--fit", "--report", "json",
        "--corrections", "c.csv"});
    QVERIFY2(!result.error.contains("exchanged") && !result.error.contains("differ from the target"), result.error);
    const QJsonObject wall = QJsonDocument::fromJson(result.output).object().value("wall").toObject();
    QCOMPARE(wall.value("status").toString(), QStringLiteral("pass"));
    const QJsonArray lines = wall.value("lines").toArray();
    QVERIFY(!lines.isEmpty());
    for (const QJsonValue &line : lines) {
        // Its blacks are those of a lit room, and dark content is not judged.
        const bool isOfDarkContent = line.toObject().value("text").toString().startsWith(QLatin1String("Content that"));
        QCOMPARE(line.toObject().value("warning").toBool(), isOfDarkContent);
    }
    QVERIFY(wall.value("incomplete").toArray().isEmpty());
}

QTEST_GUILESS_MAIN(WallCommandTest)
#include "wallcommandtest.moc"
