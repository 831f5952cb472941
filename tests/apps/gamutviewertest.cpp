// SPDX-License-Identifier: MIT
#include "expectedchart.h"
#include "gamutfiles/samplefiles.h"

#include <reference/picturedifference.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/*! Runs the program as a script would: with nothing in its environment, no display above all. */
class GamutViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rendersTheSample();
    void rendersTheLibraryChart();
    void rendersWhatIsAskedFor();
    void namesTheGamuts();
    void tellsOfAKeyWithoutRoom();
    void rendersAtARatio();
    void rendersVectors();
    void reports();
    void reportsAndRenders();
    void checks_data();
    void checks();
    void checkPrintsTheGroundsOrTheReport();
    void refusesTolerances();
    void checkNeedsAFile();
    void reportHasTheWarnings();
    void checkThatCannotRenderFails();
    void reportCannotBeWritten();
    void opensEveryFormat();
    void tellsOfMixedDisplays();
    void listsThatNeedAChoice();
    void namesTheLineOfASyntaxError();
    void rendersInTheSizeAskedFor_data();
    void rendersInTheSizeAskedFor();
    void rendersAGivenDescription();
    void rendersWhateverThePlatformIsSaidToBe();
    void readsFromAPipe();
    void replacesAPicture();
    void keepsAPictureWhenTheDescriptionIsWrong();
    void refusesDescriptions_data();
    void refusesDescriptions();
    void refusesArguments_data();
    void refusesArguments();
    void cannotWrite_data();
    void cannotWrite();
    void leavesNothingOfAPictureThatDoesNotFit();
    void writesToAPipe();
    void helpAndVersion();
    void saysThatThereIsNoDisplay();
    void wrongDescriptionComesBeforeTheDisplay();
    void showsAWindow();
    void installedSampleIsFound();

private:
    struct Result {
        int exitCode = -1;
        QByteArray output;
        QByteArray error;
    };

    Result run(const QStringList &arguments, const QProcessEnvironment &environment, const QByteArray &input = {},
        const QString &program = QStringLiteral(GAMUTVIEWER_PROGRAM));
    Result run(const QStringList &arguments, const QByteArray &input = {}) { return run(arguments, bare(), input); }
    static QProcessEnvironment bare();
    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString write(const char *name, const QByteArray &bytes);
    QStringList entries() const { return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray minimal = R"({"version": 1, "gamuts": [], "original": "Rec.2020", "target": "Rec.709"})";

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

QImage pictureIn(const QByteArray &png)
{
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_ARGB32);
}

QImage pictureInFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? pictureIn(file.readAll()) : QImage();
}

bool isOneLine(const QByteArray &text)
{
    return text.startsWith("gamutviewer: ") && text.endsWith('\n') && text.count('\n') == 1;
}

} // namespace

QProcessEnvironment GamutViewerTest::bare()
{
    QProcessEnvironment environment;
    // An instrumented program needs to be told about its instruments.
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (own.contains(QLatin1String(name))) {
            environment.insert(QLatin1String(name), own.value(QLatin1String(name)));
        }
    }
    // They must not write where the program's own lines are expected.
    const QString leaks = environment.value(QStringLiteral("LSAN_OPTIONS"));
    environment.insert(QStringLiteral("LSAN_OPTIONS"), leaks + QStringLiteral(":print_suppressions=0"));
    // QProcess takes an empty environment for "as here".
    environment.insert(QStringLiteral("GAMUTVIEWERTEST"), QStringLiteral("1"));
    return environment;
}

GamutViewerTest::Result GamutViewerTest::run(const QStringList &arguments, const QProcessEnvironment &environment,
    const QByteArray &input, const QString &program)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QString GamutViewerTest::write(const char *name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", name);
    }
    return file.fileName();
}

void GamutViewerTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void GamutViewerTest::rendersTheSample()
{
    const Result result = run({"--render", "chart.png"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(entries(), QStringList("chart.png"));
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(800, 800));
}

void GamutViewerTest::rendersTheLibraryChart()
{
    const Result result = run({"--render", "chart.png", "--diagram", "chart"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(
        reference::firstDifference(pictureInFile(path("chart.png")), expectedchart::draw(QSize(800, 800))), QString());
}

void GamutViewerTest::rendersWhatIsAskedFor()
{
    QVector<QImage> pictures;
    for (const QStringList &asked : {QStringList(), QStringList{"--diagram", "uv"}, QStringList{"--diagram", "uv1960"},
             QStringList{"--layers", "-names"}, QStringList{"--layers", "-key"}, QStringList{"--view", "white"}}) {
        const Result result = run(QStringList{"--render", "chart.png", "--size", "600x600"} + asked);
        QCOMPARE(result.error, QByteArray());
        QCOMPARE(result.exitCode, 0);
        const QImage picture = pictureInFile(path("chart.png"));
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
    }
}

void GamutViewerTest::namesTheGamuts()
{
    QCOMPARE(run({"--render", "chart.svg", "--layers", "-names"}).exitCode, 0);
    QFile file(path("chart.svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    for (const char *text :
        {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.2020", "Target", "Original", "Measured"}) {
        QVERIFY2(svg.contains(text), text);
    }
}

void GamutViewerTest::tellsOfAKeyWithoutRoom()
{
    const Result result = run({"--render", "icon.png", "--size", "64x64"});
    QCOMPARE(result.error, QByteArray("gamutviewer: icon.png: has no room for the key\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(pictureInFile(path("icon.png")).size(), QSize(64, 64));
}

void GamutViewerTest::rendersAtARatio()
{
    const Result result = run({"--size", "200x100", "--dpr", "1.5", "--layers", "-key", "--render", "chart.png"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(300, 150));
}

void GamutViewerTest::rendersVectors()
{
    const auto start = [this](const char *name) {
        const Result result = run({"--render", name, "--size", "9000x10"});
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(run({"--render", name}).exitCode, 0);
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.peek(100).startsWith(QByteArray(name).endsWith("svg") ? "<?xml" : "%PDF-"));
    };
    start("chart.svg");
    start("chart.pdf");
}

void GamutViewerTest::reports()
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

void GamutViewerTest::reportsAndRenders()
{
    const Result result = run({"--report", "json", "--render", "chart.svg"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QJsonDocument::fromJson(result.output).isObject());
    QCOMPARE(entries(), QStringList("chart.svg"));
}

void GamutViewerTest::checks_data()
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

void GamutViewerTest::checks()
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

void GamutViewerTest::checkPrintsTheGroundsOrTheReport()
{
    const QString file = write("wall.json", wallText(R"("original": "Wall", "target": "Wanted")", 5000.0));
    const Result grounds = run({"--check", file});
    QVERIFY(grounds.output.contains("5000.0 cd/m\xC2\xB2"));
    QVERIFY(grounds.output.contains("1000.0 cd/m\xC2\xB2"));
    const Result report = run({"--check", "--report", "json", file});
    QCOMPARE(report.exitCode, 3);
    QVERIFY(QJsonDocument::fromJson(report.output).isObject());
}

void GamutViewerTest::refusesTolerances()
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

void GamutViewerTest::checkNeedsAFile()
{
    for (const QStringList &asked : {QStringList{"--check"}, QStringList{"--check", "--report", "json"}}) {
        const Result result = run(asked);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.error, QByteArray("gamutviewer: No file to check: --check requires one.\n"));
    }
}

void GamutViewerTest::reportHasTheWarnings()
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

void GamutViewerTest::checkThatCannotRenderFails()
{
    QCOMPARE(run({"--check", "--render", "no/such/folder.png", SAMPLE_FILE}).exitCode, 1);
}

void GamutViewerTest::reportCannotBeWritten()
{
#ifdef Q_OS_LINUX
    const Result result = run(
        {"-c", "exec \"$0\" --report json >/dev/full", GAMUTVIEWER_PROGRAM}, bare(), {}, QStringLiteral("/bin/sh"));
    QCOMPARE(result.error, QByteArray("gamutviewer: the report cannot be written to standard output\n"));
    QCOMPARE(result.exitCode, 1);
#endif
}

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
        QCOMPARE(result.error, QByteArray());
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

void GamutViewerTest::rendersInTheSizeAskedFor_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(640, 360);
    QTest::newRow("odd") << QSize(333, 511);
    QTest::newRow("smallest") << QSize(1, 1);
    QTest::newRow("longest") << QSize(8192, 3);
}

void GamutViewerTest::rendersInTheSizeAskedFor()
{
    QFETCH(QSize, size);
    const QString text = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    const Result result = run({"--size", text, SAMPLE_FILE, "--render", "chart", "--diagram", "chart"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage picture = pictureInFile(path("chart"));
    QCOMPARE(picture.size(), size);
    if (size != QSize(1, 1)) { // whose mapping depends on what was drawn before
        QCOMPARE(reference::firstDifference(picture, expectedchart::draw(size)), QString());
    }
}

void GamutViewerTest::rendersAGivenDescription()
{
    write("wall.json", minimal);
    const Result result = run({"wall.json", "--render", "chart.png", "--size", "200x200"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage picture = pictureInFile(path("chart.png"));
    QCOMPARE(picture.size(), QSize(200, 200));
    QVERIFY(run({"--render", "sample.png", "--size", "200x200"}).exitCode == 0);
    QVERIFY(picture != pictureInFile(path("sample.png")));
}

void GamutViewerTest::rendersWhateverThePlatformIsSaidToBe()
{
    QProcessEnvironment environment = bare();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9999"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("gtk3"));
    const Result result = run({"--render", "chart.png"}, environment);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!pictureInFile(path("chart.png")).isNull());
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

void GamutViewerTest::replacesAPicture()
{
    write("chart.png", QByteArray(1000000, 'x'));
    QCOMPARE(run({"--render", "chart.png", "--size", "20x30"}).exitCode, 0);
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(20, 30));
    QVERIFY(QFileInfo(path("chart.png")).size() < 10000);
    QCOMPARE(entries(), QStringList("chart.png"));
}

void GamutViewerTest::keepsAPictureWhenTheDescriptionIsWrong()
{
    write("chart.png", "as it was");
    write("wall.json", "{}");
    QCOMPARE(run({"wall.json", "--render", "chart.png"}).exitCode, 2);
    QFile file(path("chart.png"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("as it was"));
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

void GamutViewerTest::cannotWrite_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such folder") << "no/chart.png";
    QTest::newRow("a folder") << ".";
    QTest::newRow("below a file") << QStringLiteral(GAMUTVIEWER_PROGRAM) + QStringLiteral("/chart.png");
#ifdef Q_OS_LINUX
    QTest::newRow("full device") << "/dev/full";
#endif
}

void GamutViewerTest::cannotWrite()
{
    QFETCH(QString, name);
    const Result result = run({"--render", name, "--size", "50x50"});
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith(("gamutviewer: " + name + ": cannot be written: ").toLocal8Bit()), result.error);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(entries().isEmpty());
}

void GamutViewerTest::leavesNothingOfAPictureThatDoesNotFit()
{
#ifdef Q_OS_UNIX
    // A limit on the size of files stands in for a full disk.
    const QString script = QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$0\" --render chart.png");
    const Result result = run({"-c", script, GAMUTVIEWER_PROGRAM}, bare(), {}, QStringLiteral("/bin/sh"));
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith("gamutviewer: chart.png: cannot be written: "), result.error);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(entries().isEmpty(), qPrintable(entries().join(QLatin1Char(' '))));
#endif
}

void GamutViewerTest::writesToAPipe()
{
#ifdef Q_OS_UNIX
    const Result result = run({"--render", "/dev/stdout", "--size", "300x200", "--diagram", "chart"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(reference::firstDifference(pictureIn(result.output), expectedchart::draw(QSize(300, 200))), QString());
#endif
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
    QDir folder(m_folder->path());
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
