// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/report.h"
#include "display/textreport.h"
#include "editing/wallcommand.h"
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

/*! What reports and verdicts say of walls on the command line. */
class WallReportsTest : public QObject, private WallProgram {
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void reportsOnTheWall();
    void reportWithoutATarget();
    void textReportHasEveryCabinet();
    void textReportNamesItsColumns();
    void incompleteCabinetsAreNamed();
    void blackOfADisplayAndOfAWall();
    void wallOfOneCabinet();
    void simulatedWallIsHonest();
};

void WallReportsTest::reportsOnTheWall()
{
    const Result result = run({"stage.json", "--wall", "wall.csv", "--report", "json"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(result.output).object();
    QCOMPARE(report.value("verdict").toObject().value("status").toString(), QStringLiteral("pass"));
    const QJsonObject wall = report.value("wall").toObject();
    QCOMPARE(wall.value("unit").toString(), QStringLiteral("cd/m2"));
    QCOMPARE(wall.value("status").toString(), QStringLiteral("pass"));
    QCOMPARE(wall.value("text").toString(), QStringLiteral("Both cabinets show this target"));
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

void WallReportsTest::reportWithoutATarget()
{
    const Result result = run({"--wall", "wall.csv", "--report", "json"});
    QCOMPARE(result.exitCode, 0);
    const QJsonObject wall = QJsonDocument::fromJson(result.output).object().value("wall").toObject();
    QCOMPARE(wall.value("cabinets").toArray().size(), 2);
    QVERIFY(!wall.contains("status"));
    QCOMPARE(run({"stage.json", "--report", "json"}).output.count("\"wall\""), 0);
}

void WallReportsTest::textReportHasEveryCabinet()
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

void WallReportsTest::textReportNamesItsColumns()
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

void WallReportsTest::incompleteCabinetsAreNamed()
{
    write("gaps.csv", gapList());
    const Result result = run({"stage.json", "--wall", "gaps.csv", "--corrections", "c.csv", "--report", "text"});
    QVERIFY2(result.exitCode == 0, result.error);
    QVERIFY2(result.error.contains("gamutviewer: c.csv: cabinets without a correction: A3 (green is missing), "
                                   "A5 (red is there more than once)\n"),
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
        QVERIFY2(one.error.endsWith("one.json: there is no correction for A3: green is missing\n"), one.error);
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
void WallReportsTest::blackOfADisplayAndOfAWall()
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
    // Without a chromaticity it is not known how much it counts; measured twice, it is not known which of them is
    // right.
    for (const char *black : {"A1,1,1,black,,,8\n", "A1,1,1,black,0.31,0.33,0.1\nA1,1,1,black,0.31,0.33,8\n"}) {
        write("one.csv", one + black);
        const Result unknown = run({"stage.json", "one.csv", "--check"});
        QCOMPARE(unknown.exitCode, 4);
        QVERIFY2(unknown.output.contains("not known: Whether the black of the measured gamut keeps it off the target "
                                         "is not known: one of its luminance can keep it off red by "),
            unknown.output);
    }
    write("one.csv", one + "A1,1,1,black,,,8\n");
    QCOMPARE(run({"stage.json", "--wall", "one.csv", "--check"}).exitCode, 4);
    // It may take light as well, here more than a primary has.
    write("dim.json", targetText(700.0));
    write("one.csv", one + "A1,1,1,black,,,100\n");
    const Result dim = run({"dim.json", "one.csv", "--check"});
    QCOMPARE(dim.exitCode, 4);
    QVERIFY2(
        dim.output.contains("not known: Whether the measured gamut reaches the luminance of the target is not known"),
        dim.output);
    QVERIFY2(!dim.output.contains("inf"), dim.output);
    write("one.csv", one + "A1,1,1,black,,,0.002\n"); // too dark to be seen
    QCOMPARE(run({"stage.json", "one.csv", "--check"}).exitCode, 0);
}

// Nobody needs a white for a wall, however small.
void WallReportsTest::wallOfOneCabinet()
{
    write("one.csv", wallList.left(wallList.indexOf("A2")));
    const Result wall = run({"stage.json", "--wall", "one.csv", "--check"});
    QCOMPARE(wall.error, QByteArray());
    QCOMPARE(wall.exitCode, 0);
    // As a display, it lacks one.
    const Result display = run({"stage.json", "one.csv", "--check"});
    QVERIFY2(display.error.contains("white is missing: there is no gamut; "), display.error);
}

void WallReportsTest::simulatedWallIsHonest()
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

QTEST_GUILESS_MAIN(WallReportsTest)
#include "wallreportstest.moc"
