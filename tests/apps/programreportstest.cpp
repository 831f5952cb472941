// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "gamutfiles/sampleedids.h"
#include "programrunner.h"

#include <gamutmodel/colorgamut.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class ProgramReportsTest : public QObject, private ProgramRunner {
    Q_OBJECT

private Q_SLOTS:
    void init() { renewFolder(); }
    void reports();
    void reportsAndRenders();
    void argumentsOfQtAreTakenOut();
    void checks_data();
    void checks();
    void checkPrintsTheGroundsOrTheReport();
    void refusesTolerances();
    void warnsOfTolerances();
    void checkAndReportNeedAFile();
    void reportHasTheWarnings();
    void textReportHasWhatTheReportHas();
    void listsThatNeedAChoice_data();
    void listsThatNeedAChoice();
    void checkThatCannotRenderFails();
    void outputCannotBeWritten();
};

namespace {

//! Rec.2020 with a white of 1000 cd/m² called Wall, and Rec.709 with \a luminance called Wanted.
QByteArray wallText(const QByteArray &parts, double luminance)
{
    const auto gamut = [](const char *name, const Model::Targets &t, double factor) {
        const auto color = [factor](const Model::Target &c) {
            return QJsonObject{{"Y", c.Y * factor}, {"x", c.x}, {"y", c.y}};
        };
        return QJsonDocument(QJsonObject{{"name", name}, {"luminanceUnit", "cd/m2"}, {"red", color(t.red)},
                                 {"green", color(t.green)}, {"blue", color(t.blue)}, {"white", color(t.white)}})
            .toJson();
    };
    return R"({"version": 1, "gamuts": [)" + gamut("Wall", Model::rec2020().getTargets(), 1000.0) + ','
        + gamut("Wanted", Model::rec709().getTargets(), luminance) + "], " + parts + '}';
}

} // namespace

void ProgramReportsTest::reports()
{
    const Result result = run({"--report", "json", SAMPLE_FILE});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(result.output).object();
    QCOMPARE(report.value("name").toString(), QStringLiteral("LED wall"));
    const QJsonObject validity = report.value("validity").toObject();
    QCOMPARE(validity.value("valid").toBool(true), false);
    QCOMPARE(validity.value("outside").toArray(), (QJsonArray{"red", "green", "blue"}));
    QVERIFY(entries().isEmpty());
}

void ProgramReportsTest::reportsAndRenders()
{
    const Result result = run({"--report", "json", "--render", "chart.svg", SAMPLE_FILE});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QJsonDocument::fromJson(result.output).isObject());
    QCOMPARE(entries(), QStringList("chart.svg"));
}

void ProgramReportsTest::argumentsOfQtAreTakenOut()
{
    const Result result = run({"-platform", "offscreen", "--report", "json", SAMPLE_FILE, "-style=fusion"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, run({"--report", "json", SAMPLE_FILE}).output);
}

void ProgramReportsTest::checks_data()
{
    QTest::addColumn<QByteArray>("parts");
    QTest::addColumn<double>("luminance");
    QTest::addColumn<QByteArray>("tolerances");
    QTest::addColumn<int>("status");
    const QByteArray original = R"("original": "Wall", "target": "Wanted")";
    const QByteArray measured = original + R"(, "measured": "Wall")";
    QTest::newRow("passes") << original << 1000.0 << QByteArray() << 0;
    QTest::newRow("too bright") << original << 5000.0 << QByteArray() << 3;
    QTest::newRow("outside") << QByteArray(R"("original": "Wanted", "target": "Rec.2020")") << 1000.0 << QByteArray()
                             << 3;
    QTest::newRow("published target") << QByteArray(R"("original": "Wall", "target": "Rec.709")") << 1000.0
                                      << QByteArray() << 4;
    QTest::newRow("no original") << QByteArray(R"("declared": "Wall", "target": "Wanted")") << 1000.0 << QByteArray()
                                 << 4;
    QTest::newRow("no target") << QByteArray(R"("original": "Wall")") << 1000.0 << QByteArray() << 4;
    QTest::newRow("within tolerance") << measured << 1000.0 << QByteArray(R"({"version": 1, "whiteUv": 0.001})") << 0;
    QTest::newRow("out of tolerance") << measured << 1000.0 << QByteArray(R"({"version": 1, "primariesUv": 0.001})")
                                      << 3;
    QTest::newRow("not measured") << original << 1000.0 << QByteArray(R"({"version": 1, "whiteUv": 0.001})") << 4;
}

void ProgramReportsTest::checks()
{
    QFETCH(QByteArray, parts);
    QFETCH(double, luminance);
    QFETCH(QByteArray, tolerances);
    QFETCH(int, status);
    QStringList arguments{"--check", write("wall.json", wallText(parts, luminance))};
    if (!tolerances.isEmpty()) {
        arguments << "--tolerances" << write("tolerances.json", tolerances);
    }
    const Result result = run(arguments);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, status);
    const QByteArray first = status == 0 ? "pass: " : status == 3 ? "fail: " : "not known: ";
    QVERIFY2(result.output.startsWith(first), result.output.constData());
    QVERIFY(result.output.count('\n') >= 2);
    // The report has the same verdict, and leaves the exit status alone.
    const Result reported = run(QStringList{"--report", "json"} + arguments.mid(1));
    QCOMPARE(reported.exitCode, 0);
    const QJsonObject verdict = QJsonDocument::fromJson(reported.output).object().value("verdict").toObject();
    QCOMPARE(verdict.value("status").toString().toLatin1() + ": ", first);
    QStringList lines{verdict.value("status").toString() + ": " + verdict.value("text").toString()};
    for (const QJsonValue &line : verdict.value("lines").toArray()) {
        lines << line.toObject().value("status").toString() + ": " + line.toObject().value("text").toString();
    }
    QCOMPARE(QString::fromUtf8(result.output), lines.join('\n') + '\n');
}

void ProgramReportsTest::checkPrintsTheGroundsOrTheReport()
{
    const QString file = write("wall.json", wallText(R"("original": "Wall", "target": "Wanted")", 5000.0));
    const Result grounds = run({"--check", file});
    QVERIFY(grounds.output.contains("5000.0 cd/m\xC2\xB2"));
    QVERIFY(grounds.output.contains("1000.0 cd/m\xC2\xB2"));
    const Result report = run({"--check", "--report", "json", file});
    QCOMPARE(report.exitCode, 3);
    QVERIFY(QJsonDocument::fromJson(report.output).isObject());
}

void ProgramReportsTest::refusesTolerances()
{
    const QString file = write("t.json", R"({"version": 1, "whiteUV": 0.001})");
    for (const QStringList &asked : {QStringList{"--check"}, QStringList{"--report", "json"}, QStringList()}) {
        const Result result = run(asked + QStringList{"--tolerances", file, QStringLiteral(SAMPLE_FILE)});
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.error, "gamutviewer: " + file.toUtf8() + ": whiteUV: unknown key\n");
    }
    QCOMPARE(run({"--check", "--tolerances", "missing.json", SAMPLE_FILE}).exitCode, 2);
}

void ProgramReportsTest::warnsOfTolerances()
{
    const QString file = write("t.json", R"({"version": 1, "whiteUv": 0.001, "whiteUv": 1})");
    const QString warning = file + ":1:34: the key \"whiteUv\" is there twice in this object: the last one counts";
    const Result result = run({"--report", "json", "--tolerances", file, QStringLiteral(SAMPLE_FILE)});
    QCOMPARE(QString::fromUtf8(result.error), "gamutviewer: " + warning + '\n');
    QCOMPARE(QJsonDocument::fromJson(result.output).object().value(QLatin1String("warnings")).toArray(),
        QJsonArray{warning});
}

void ProgramReportsTest::checkAndReportNeedAFile()
{
    const auto refusal = [this](const QStringList &asked) {
        const Result result = run(asked);
        return result.exitCode == 2 && result.output.isEmpty() ? result.error : QByteArray("accepted");
    };
    const QByteArray noCheck("gamutviewer: No file to check: --check requires one.\n");
    QCOMPARE(refusal({"--check"}), noCheck);
    QCOMPARE(refusal({"--check", "--report", "json"}), noCheck);
    QCOMPARE(refusal({"--report", "json"}), QByteArray("gamutviewer: No file to report on: --report requires one.\n"));
    QVERIFY(refusal({"--report", "json", "-have.icc"}).contains("'have.icc'"));
}

void ProgramReportsTest::reportHasTheWarnings()
{
    const QString list = write("meter.csv",
        "name,Y (cd/m2),x,y\nred,200,0.64,0.33\nred,210,0.64,0.33\ngreen,600,0.3,0.6\nblue,70,0.15,0.06\n");
    const Result result = run({"--report", "json", list});
    QCOMPARE(result.exitCode, 5);
    const QJsonArray warnings = QJsonDocument::fromJson(result.output).object().value("warnings").toArray();
    QVERIFY(!warnings.isEmpty());
    QByteArray lines;
    for (const QJsonValue &warning : warnings) {
        lines += "gamutviewer: " + warning.toString().toUtf8() + '\n';
    }
    QCOMPARE(lines, result.error);
    QVERIFY(warnings.first().toString().startsWith(list));
}

void ProgramReportsTest::textReportHasWhatTheReportHas()
{
    const QString list = write("meter.csv",
        "name,Y (cd/m2),x,y\nred,200,0.64,0.33\ngreen,700,0.3,0.6\nblue,100,0.15,0.06\nwhite,990,0.3127,0.329\n"
        "a line of text\n");
    const QByteArray hex = samplefiles::hdrDisplay(QByteArray("\x8A\x6A\x02", 3));
    const QString monitor = write("monitor.bin", hex);
    const Result json = run({"--report", "json", list, monitor});
    const Result text = run({"--report", "text", list, monitor});
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.error, json.error);
    const QJsonObject report = QJsonDocument::fromJson(json.output).object();
    QVERIFY(!report.value("warnings").toArray().isEmpty());
    for (const QJsonValue &warning : report.value("warnings").toArray()) {
        QVERIFY2(text.output.contains("\nwarning: " + warning.toString().toUtf8() + '\n'), text.output.constData());
    }
    QVERIFY(!report.value("facts").toArray().isEmpty());
    for (const QJsonValue &fact : report.value("facts").toArray()) {
        const QJsonObject of = fact.toObject();
        const QString line = of.value("fact").toString() + ": " + of.value("value").toString();
        QVERIFY2(text.output.contains("\n  " + line.toUtf8() + '\n'), qPrintable(line));
    }
    for (const QJsonValue &line : report.value("lists").toArray().first().toObject().value("text").toArray()) {
        QVERIFY2(text.output.contains("\n  " + line.toString().toUtf8()), qPrintable(line.toString()));
    }
    for (const QJsonValue &standard : report.value("measured").toObject().value("standards").toArray()) {
        const QJsonObject of = standard.toObject();
        QString line;
        for (const QByteArray &candidate : text.output.split('\n')) {
            line = candidate.startsWith(of.value("standard").toString().toUtf8() + ' ') ? QString::fromUtf8(candidate)
                                                                                        : line;
        }
        for (const char *diagram : {"xy", "uv"}) {
            const double coverage = of.value(diagram).toObject().value("coverage").toDouble();
            QVERIFY2(line.contains(QString::number(coverage * 100.0, 'f', 1) + " %"), qPrintable(line));
        }
    }
    const double kelvin = report.value("measured").toObject().value("white").toObject().value("cct").toDouble();
    QVERIFY2(text.output.contains(QByteArray::number(kelvin, 'f', 0) + " K"), text.output.constData());
}

void ProgramReportsTest::listsThatNeedAChoice_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<bool>("needsChoice");
    QTest::newRow("any colours") << QByteArray("name,Lv,x,y\np1,200,0.64,0.33\np2,210,0.3,0.6\n") << false;
    QTest::newRow("without names") << QByteArray("Lv,x,y\n200,0.64,0.33\n210,0.3,0.6\n") << false;
    QTest::newRow("black") << QByteArray("name,Lv,x,y\na,200,0.64,0.33\nblack,0.1,0.3,0.3\n") << false;
    QTest::newRow("white") << QByteArray("name,Lv,x,y\na,200,0.64,0.33\nwhite,900,0.3,0.3\n") << true;
    QTest::newRow("red") << QByteArray("name,Lv,x,y\na,200,0.64,0.33\nred,210,0.6,0.3\n") << true;
    QTest::newRow("no unit stated") << QByteArray("name,Y,x,y\na,200,0.64,0.33\n") << false;
    QTest::newRow("unit not recognised") << QByteArray("name,Y (asb),x,y\na,200,0.64,0.33\n") << true;
}

//! A script must learn of what has to be chosen, and only of that.
void ProgramReportsTest::listsThatNeedAChoice()
{
    QFETCH(QByteArray, list);
    QFETCH(bool, needsChoice);
    const QString file = write("meter.csv", list);
    const Result report = run({"--report", "json", file});
    QVERIFY(QJsonDocument::fromJson(report.output).isObject());
    QCOMPARE(report.exitCode, needsChoice ? 5 : 0);
    QVERIFY2(needsChoice || !report.error.contains("; choose"), report.error.constData());
    QCOMPARE(run({"--check", file}).exitCode, needsChoice ? 5 : 4);
    const auto check = [&](double luminance) {
        return run(
            {"--check", write("wall.json", wallText(R"("original": "Wall", "target": "Wanted")", luminance)), file});
    };
    // What was left out could be what fails.
    const Result fits = check(700.0);
    QCOMPARE(fits.exitCode, needsChoice ? 5 : 0);
    QVERIFY2(fits.output.startsWith(needsChoice ? "not known: " : "pass: "), fits.output.constData());
    QCOMPARE(fits.output.contains("not all that it says of the display can be judged"), needsChoice);
    const Result isTooBright = check(5000.0);
    QCOMPARE(isTooBright.exitCode, needsChoice ? 5 : 3);
    QVERIFY2(isTooBright.output.startsWith("fail: "), isTooBright.output.constData());
    const Result reported = run({"--check", "--report", "json", path("wall.json"), file});
    const QJsonObject verdict = QJsonDocument::fromJson(reported.output).object().value("verdict").toObject();
    QCOMPARE(verdict.value("lines").toArray().first().toObject().value("subject").toString() == "display", needsChoice);
}

void ProgramReportsTest::checkThatCannotRenderFails()
{
    QCOMPARE(run({"--check", "--render", "no/such/folder.png", SAMPLE_FILE}).exitCode, 1);
}

void ProgramReportsTest::outputCannotBeWritten()
{
#ifdef Q_OS_LINUX
    const std::pair<const char *, const char *> calls[] = {{"--report json \"$1\"", "report"},
        {"--check \"$1\"", "verdict"}, {"--help", "help"}, {"--version", "version"}};
    for (const auto &[arguments, what] : calls) {
        const QString command = QStringLiteral("exec \"$0\" %1 >/dev/full").arg(QLatin1String(arguments));
        const Result result
            = run({"-c", command, GAMUTVIEWER_PROGRAM, SAMPLE_FILE}, bare(), {}, QStringLiteral("/bin/sh"));
        const auto message = QStringLiteral("gamutviewer: the %1 cannot be written to standard output: No space left "
                                            "on device\n");
        QCOMPARE(result.error, message.arg(QLatin1String(what)).toLatin1());
        QCOMPARE(result.exitCode, 1);
    }
#endif
}

QTEST_MAIN(ProgramReportsTest)
#include "programreportstest.moc"
