// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
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

/*! Fits and corrections on the command line. */
class WallFitCommandTest : public QObject, private WallProgram {
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void correctionsAreThoseOfTheReport();
    void correctionsOfOneCabinet();
    void fitLeavesNoDriveBelowZero();
    void correctionsSayNoMoreThanIsKnown();
    void notesOnASingleDisplay();
    void tablesOfOneDisplay();
    void fitsTheTarget();
    void tellsWhatAFitCosts();
    void fitsATargetThatIsALittleTooBright();
};

void WallFitCommandTest::correctionsAreThoseOfTheReport()
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

void WallFitCommandTest::correctionsOfOneCabinet()
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

// Also of a target that passes by the tolerance of the verdict.
void WallFitCommandTest::fitLeavesNoDriveBelowZero()
{
    write("one.csv", wallList.left(wallList.indexOf("A2")));
    const auto measured = gamutfiles::readGamutFile(path("one.csv"));
    QVERIFY(measured);
    const auto wall = gamutfiles::wallFromMeasurements(measured->measurements);
    QVERIFY(wall);
    const WallCabinet &of = wall->cabinets[0];
    const auto object = [](const Model::Target &color, double off) {
        return QJsonObject{{"Y", color.Y}, {"x", color.x + off}, {"y", color.y + off}};
    };
    write("edge.json",
        QJsonDocument(QJsonObject{{"version", 1}, {"target", "Edge"},
                          {"gamuts",
                              QJsonArray{QJsonObject{{"name", "Edge"}, {"luminanceUnit", "cd/m2"},
                                  {"red", object(of.red, 0.0001)}, {"green", object(of.green, 0.0)},
                                  {"blue", object(of.blue, 0.0)},
                                  {"white", QJsonObject{{"Y", 300.0}, {"x", 0.3127}, {"y", 0.329}}}}}}})
            .toJson());
    QCOMPARE(run({"edge.json", "--wall", "one.csv", "--check"}).exitCode, 0);
    const QStringList cube{"edge.json", "--wall", "one.csv", "--cabinet", "A1", "--corrections", "k.cube"};
    const Result asItIs = run(cube);
    QCOMPARE(asItIs.exitCode, 2);
    QVERIFY2(asItIs.error.contains("a table is not exact below 0"), asItIs.error);
    const Result fitted = run(cube + QStringList{"--fit", "--report", "json"});
    QVERIFY2(fitted.exitCode == 0, fitted.error);
    QVERIFY2(!fitted.error.contains(QString::fromUtf8("Δu′v′ 0.0000").toUtf8()), fitted.error);
    const QJsonObject done
        = QJsonDocument::fromJson(fitted.output).object().value("wall").toObject().value("fitted").toObject();
    QVERIFY(done.value("red").toObject().value("moved").toDouble() > 0.0);
}

void WallFitCommandTest::correctionsSayNoMoreThanIsKnown()
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
    QVERIFY2(result.error.contains("which the correction is for, so that it is not known what it shows: A2\n"),
        result.error);
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
    QVERIFY2(limited.error.contains("cabinet that does not show the target even so: A2\n"), limited.error);
    const QJsonObject white
        = QJsonDocument::fromJson(limited.output).object().value("wall").toObject().value("largestWhite").toObject();
    QCOMPARE(white.value("cabinet").toString(), QStringLiteral("A2 1/2"));
    QCOMPARE(white.value("Y").toDouble(), 400.0);
    QVERIFY(white.value("fullDrive").isNull());
}

void WallFitCommandTest::notesOnASingleDisplay()
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

void WallFitCommandTest::tablesOfOneDisplay()
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

void WallFitCommandTest::fitsTheTarget()
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
void WallFitCommandTest::tellsWhatAFitCosts()
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

void WallFitCommandTest::fitsATargetThatIsALittleTooBright()
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
        QStringLiteral("c.csv: cabinet that shows the target, but for up to Δu′v′ 0.000[0-9] and 0.1 % of the "
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

QTEST_GUILESS_MAIN(WallFitCommandTest)
#include "wallfitcommandtest.moc"
