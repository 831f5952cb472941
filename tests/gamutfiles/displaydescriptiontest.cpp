// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/oneline.h>

#include <QtTest>

#include <cmath>

using namespace gamutfiles;

class DisplayDescriptionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messagesAreShort();
    void readsEverything();
    void optionalPartsMayBeMissing();
    void numbersAreExact();
    void ownGamutGoesBeforeThePublishedOne();
    void publishedGamutsNeedNotBeInTheFile();
    void limitsOfTheChromaticityTriangle();
    void refused_data();
    void refused();
    void colorSpaces_data();
    void colorSpaces();
    void colorSpacesAreKept();
    void everyRequiredKeyIsMissed_data();
    void everyRequiredKeyIsMissed();
    void everyNumberMustBeOne_data();
    void everyNumberMustBeOne();
    void refusedFiles();
    void largestFile();
    void readsTheWall();
    void refusedWalls_data();
    void refusedWalls();
    void messageIsOneLine();
    void messageIsReadFromLeftToRight();
    void warnings_data();
    void warnings();
    void manyWarnings();
    void samplesHaveNoWarnings();
    void documentedExampleIsRead();
};

namespace {

// The rows below name lines and columns of it.
const QByteArray description = R"({
    "version": 1,
    "name": "Wall",
    "notes": "made up",
    "gamuts": [
        {
            "name": "native",
            "red": {"Y": 200, "x": 0.7, "y": 0.3},
            "green": {"Y": 700, "x": 0.17, "y": 0.72},
            "blue": {"Y": 100, "x": 0.13, "y": 0.06},
            "white": {"Y": 1000, "x": 0.28, "y": 0.29}
        },
        {
            "name": "as measured",
            "red": {"Y": 190, "x": 0.69, "y": 0.31},
            "green": {"Y": 690, "x": 0.18, "y": 0.71},
            "blue": {"Y": 90, "x": 0.14, "y": 0.07},
            "white": {"Y": 970, "x": 0.29, "y": 0.3}
        }
    ],
    "original": "native",
    "declared": "native",
    "measured": "as measured",
    "target": "Rec.2020",
    "standards": ["Rec.709", "native"],
    "colorTemperaturePoints": [{"name": "warm", "x": 0.44, "y": 0.4}, {"x": 0.3, "y": 0.31}],
    "measurePoints": [{"x": 0.6, "y": 0.35}],
    "cmyPoints": [{"x": 0.2, "y": 0.33}]
})";

QByteArray replaced(const QByteArray &what, const QByteArray &by)
{
    if (description.count(what) != 1) {
        qFatal("not there exactly once: %s", what.constData());
    }
    QByteArray text = description;
    return text.replace(what, by);
}

QString messageFor(const QByteArray &text)
{
    const auto read = readDescription(text);
    return read ? QStringLiteral("taken") : read.problem().message(QStringLiteral("f"));
}

bool isExactly(const Model::Target &target, double Y, double x, double y)
{
    return target.Y == Y && target.x == x && target.y == y;
}

bool isExactly(const NamedPoint &point, const char *name, double x, double y)
{
    return point.name == QLatin1String(name) && point.xy.x() == x && point.xy.y() == y;
}

} // namespace

void DisplayDescriptionTest::readsEverything()
{
    const auto read = readDescription(description);
    QVERIFY(read);
    QCOMPARE(read->name, QStringLiteral("Wall"));
    QCOMPARE(read->notes, QStringLiteral("made up"));
    QCOMPARE(read->gamuts.size(), std::size_t(2));
    QCOMPARE(read->gamuts[0].colorGamutName(), std::string("native"));
    const Model::Targets native = read->gamuts[0].getTargets();
    QVERIFY(isExactly(native.red, 200.0, 0.7, 0.3));
    QVERIFY(isExactly(native.green, 700.0, 0.17, 0.72));
    QVERIFY(isExactly(native.blue, 100.0, 0.13, 0.06));
    QVERIFY(isExactly(native.white, 1000.0, 0.28, 0.29));
    QCOMPARE(native.white.X, Model::Target::fromYxy(1000.0, 0.28, 0.29).X);
    QCOMPARE(read->gamuts[1].colorGamutName(), std::string("as measured"));
    QVERIFY(isExactly(read->gamuts[1].getTargets().blue, 90.0, 0.14, 0.07));
    QCOMPARE(read->original, QStringLiteral("native"));
    QCOMPARE(read->declared, QStringLiteral("native"));
    QCOMPARE(read->measured, QStringLiteral("as measured"));
    QCOMPARE(read->target, QStringLiteral("Rec.2020"));
    QCOMPARE(read->standards, (QStringList{QStringLiteral("Rec.709"), QStringLiteral("native")}));
    QCOMPARE(read->colorTemperaturePoints.size(), 2);
    QVERIFY(isExactly(read->colorTemperaturePoints[0], "warm", 0.44, 0.4));
    QVERIFY(isExactly(read->colorTemperaturePoints[1], "", 0.3, 0.31));
    QCOMPARE(read->measurePoints.size(), 1);
    QVERIFY(isExactly(read->measurePoints[0], "", 0.6, 0.35));
    QCOMPARE(read->cmyPoints.size(), 1);
    QVERIFY(isExactly(read->cmyPoints[0], "", 0.2, 0.33));
}

void DisplayDescriptionTest::optionalPartsMayBeMissing()
{
    const auto read = readDescription(R"({"version": 1, "gamuts": []})");
    QVERIFY(read);
    QVERIFY(read->original.isEmpty());
    QVERIFY(read->target.isEmpty());
    QVERIFY(read->name.isEmpty());
    QVERIFY(read->declared.isEmpty());
    QVERIFY(read->measured.isEmpty());
    QVERIFY(!read->gamut(read->measured));
    QVERIFY(read->standards.isEmpty());
    QVERIFY(read->colorTemperaturePoints.isEmpty());
    QVERIFY(read->measurePoints.isEmpty());
    QVERIFY(read->cmyPoints.isEmpty());
}

void DisplayDescriptionTest::numbersAreExact()
{
    const auto read = readDescription(replaced("200", "0.30000000000000004"));
    QVERIFY(read);
    QVERIFY(read->gamuts[0].getTargets().red.Y == 0.1 + 0.2);
}

void DisplayDescriptionTest::ownGamutGoesBeforeThePublishedOne()
{
    const auto read = readDescription(
        replaced("\"name\": \"as measured\"", "\"name\": \"Rec.709\"").replace("\"measured\": \"as measured\",", ""));
    QVERIFY(read);
    QVERIFY(isExactly(read->gamut(QStringLiteral("Rec.709"))->getTargets().red, 190.0, 0.69, 0.31));
    const auto published = DisplayDescription().gamut(QStringLiteral("Rec.709"));
    QVERIFY(published);
    QVERIFY(published->getTargets().red.x == Model::rec709().getTargets().red.x);
}

void DisplayDescriptionTest::publishedGamutsNeedNotBeInTheFile()
{
    for (const char *name : {"Rec.709", "Rec.2020", "DCI-P3(D65)"}) {
        const auto gamut = DisplayDescription().gamut(QString::fromLatin1(name));
        QVERIFY2(gamut, name);
        QCOMPARE(gamut->colorGamutName(), std::string(name));
    }
    QVERIFY(!DisplayDescription().gamut(QStringLiteral("rec.709")));
    QVERIFY(!DisplayDescription().gamut(QString()));
}

void DisplayDescriptionTest::limitsOfTheChromaticityTriangle()
{
    QVERIFY(
        readDescription(replaced("\"Y\": 200, \"x\": 0.7, \"y\": 0.3}", "\"Y\": 0, \"x\": 0.7347, \"y\": 0.2653}")));
    QVERIFY(readDescription(replaced("\"x\": 0.6, \"y\": 0.35", "\"x\": 0, \"y\": 1")));
    QVERIFY(readDescription(replaced("\"x\": 0.6, \"y\": 0.35", "\"x\": 0, \"y\": 1e-300")));
}

void DisplayDescriptionTest::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &text, const char *message) {
        QTest::newRow(name) << text << QString::fromUtf8(message);
    };
    const auto change = [&row](const char *name, const char *what, const char *by, const char *message) {
        row(name, replaced(what, by), message);
    };

    row("empty", "", "f: is empty");
    row("white space only", " \n\t ", "f: is empty");
    row("byte order mark only", "\xEF\xBB\xBF", "f: is empty");
    row("array", "[]", "f: expected an object, found an array");
    row("null", " null", "f:1:3: illegal value");
    row("cut short", description.left(description.indexOf("0.72")), "f:9:49: unexpected end of file");
    change("comma missing", "0.7, \"y\": 0.3}", "0.7 \"y\": 0.3}", "f:8:41: unterminated object");

    change("NaN", "0.72", "NaN", "f:9:49: illegal number");
    change("infinity", "0.72", "-Infinity", "f:9:50: illegal number");
    change("overflow", "0.72", "1e999", "f:9:54: illegal number");
    change("string for a number", "0.72", "\"0.72\"", "f: gamuts[0].green.y: expected a number, found a string");
    change("null for a number", "0.72", "null", "f: gamuts[0].green.y: expected a number, found null");
    change("truth value for a number", "0.72", "true", "f: gamuts[0].green.y: expected a number, found a boolean");
    change("array for a number", "0.72", "[0.72]", "f: gamuts[0].green.y: expected a number, found an array");
    change("object for a number", "0.72", "{}", "f: gamuts[0].green.y: expected a number, found an object");
    change("number for a string", "\"made up\"", "7", "f: notes: expected a string, found a number");
    change("number for a name", "\"Wall\"", "7", "f: name: expected a string, found a number");
    change("object for an array", "[{\"x\": 0.6, \"y\": 0.35}]", "{}",
        "f: measurePoints: expected an array, found an object");
    change("number for a point", "{\"x\": 0.6, \"y\": 0.35}", "0.6",
        "f: measurePoints[0]: expected an object, found a number");
    change("number for a standard", "\"Rec.709\"", "709", "f: standards[0]: expected a string, found a number");
    change("number for a part", "\"Rec.2020\"", "2020", "f: target: expected a string, found a number");

    change("unknown key", "\"notes\"", "\"nots\"", "f: nots: unknown key");
    change("unknown key of a gamut", "\"name\": \"as measured\",", "\"name\": \"as measured\", \"grey\": {},",
        "f: gamuts[1].grey: unknown key");
    change("unknown key of a colour", "{\"Y\": 690", "{\"Z\": 0, \"Y\": 690", "f: gamuts[1].green.Z: unknown key");
    change("unknown key of a point", "{\"x\": 0.6,", "{\"Y\": 1, \"x\": 0.6,", "f: measurePoints[0].Y: unknown key");
    change("odd unknown key", "\"notes\"", "\"my notes\"", "f: [\"my notes\"]: unknown key");
    change("other version", "\"version\": 1", "\"version\": 2", "f: version: only version 1 is supported");
    change(
        "version as a string", "\"version\": 1", "\"version\": \"1\"", "f: version: expected a number, found a string");
    change("gamut name twice", "\"name\": \"as measured\"", "\"name\": \"native\"",
        "f: gamuts[1].name: there is already a gamut named \"native\"");
    change("empty gamut name", "\"name\": \"as measured\"", "\"name\": \"\"",
        "f: gamuts[1].name: the name must not be empty");
    change("blank gamut name", "\"name\": \"as measured\"", "\"name\": \" \"",
        "f: gamuts[1].name: the name must not be empty");
    change("no such original", "\"original\": \"native\"", "\"original\": \"Native\"",
        "f: original: there is no gamut named \"Native\"");
    change("no such declared", "\"declared\": \"native\"", "\"declared\": \"x\"",
        "f: declared: there is no gamut named \"x\"");
    change("no such measured", "\"measured\": \"as measured\"", "\"measured\": \"x\"",
        "f: measured: there is no gamut named \"x\"");
    change("empty measured", "\"measured\": \"as measured\"", "\"measured\": \"\"",
        "f: measured: the name must not be empty");
    change("no such target", "\"target\": \"Rec.2020\"", "\"target\": \"Rec. 2020\"",
        "f: target: there is no gamut named \"Rec. 2020\"");
    change("no such standard", "\"Rec.709\", \"native\"", "\"Rec.709\", \"srgb\"",
        "f: standards[1]: there is no gamut named \"srgb\"");
    change("standard twice", "\"Rec.709\", \"native\"", "\"Rec.709\", \"native\", \"Rec.709\"",
        "f: standards[2]: \"Rec.709\" is listed twice");

    change("odd unit", "\"name\": \"as measured\"", "\"name\": \"as measured\", \"luminanceUnit\": \"nits\"",
        "f: gamuts[1].luminanceUnit: expected \"cd/m2\" or \"relative\"");
    change("negative luminance", "\"Y\": 690", "\"Y\": -1e-9", "f: gamuts[1].green.Y: luminance must not be negative");
    change("negative x", "0.17,", "-0.01,", "f: gamuts[0].green.x: a chromaticity coordinate must not be negative");
    change("y zero", "0.72", "0", "f: gamuts[0].green.y: y must be greater than 0");
    change("y minus zero", "0.72", "-0.0", "f: gamuts[0].green.y: y must be greater than 0");
    change("y negative", "0.72", "-0.1", "f: gamuts[0].green.y: y must be greater than 0");
    change("x + y above 1", "0.72", "0.8300000001", "f: gamuts[0].green: x + y must not exceed 1");
    change("x a percentage", "0.17,", "17,", "f: gamuts[0].green: x + y must not exceed 1");
    change("no triangle", "\"x\": 0.17, \"y\": 0.72", "\"x\": 0.7, \"y\": 0.3",
        "f: gamuts[0]: the primaries do not form a triangle");
    change("x of a point", "0.44", "-0.44",
        "f: colorTemperaturePoints[0].x: a chromaticity coordinate must not be negative");
    change("y of a point", "0.31}]", "0}]", "f: colorTemperaturePoints[1].y: y must be greater than 0");
    change("x + y of a point", "0.33", "0.81", "f: cmyPoints[0]: x + y must not exceed 1");
}

void DisplayDescriptionTest::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QCOMPARE(messageFor(text), message);
}

namespace {

//! A description of a gamut "wide" with the given colours, which plays \a part.
QByteArray wide(const QByteArray &part, const QByteArray &blue = R"({"Y": -0.0721, "x": 0.0001, "y": -0.077})",
    const QByteArray &green = R"({"Y": 0.728, "x": 0, "y": 1})",
    const QByteArray &white = R"({"Y": 1, "x": 0.32168, "y": 0.33767})")
{
    return R"({"version": 1, "gamuts": [{"name": "wide", "red": {"Y": 0.344, "x": 0.7347, "y": 0.2653}, "green": )"
        + green + R"(, "blue": )" + blue + R"(, "white": )" + white + R"(}], )" + part + '}';
}

} // namespace

void DisplayDescriptionTest::colorSpaces_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &text, const char *message) {
        QTest::newRow(name) << text << QString::fromUtf8(message);
    };
    row("declared", wide(R"("declared": "wide")"), "taken");
    row("standard", wide(R"("standards": ["Rec.709", "wide"])"), "taken");
    row("both", wide(R"("declared": "wide", "standards": ["wide"])"), "taken");
    row("published", R"({"version": 1, "gamuts": [], "declared": "ACEScg", "standards": ["ACES2065-1"]})", "taken");
    const char *negative = "f: gamuts[0].blue.y: y must be greater than 0";
    row("original", wide(R"("original": "wide")"), negative);
    row("measured", wide(R"("measured": "wide")"), negative);
    row("target", wide(R"("target": "wide")"), negative);
    row("declared and target", wide(R"("declared": "wide", "target": "wide")"), negative);
    row("standard and original", wide(R"("standards": ["wide"], "original": "wide")"), negative);
    row("no part", wide(R"("name": "none")"), "taken");
    row("published target", R"({"version": 1, "gamuts": [], "target": "ACES2065-1"})",
        "f: target: no display can show \"ACES2065-1\": it has primaries with x < 0, y <= 0 or x + y > 1");
    row("published original", R"({"version": 1, "gamuts": [], "original": "ACEScg"})",
        "f: original: no display can show \"ACEScg\": it has primaries with x < 0, y <= 0 or x + y > 1");

    const QByteArray declared = R"("declared": "wide")";
    row("x + y above 1", wide(declared, R"({"Y": 0.1, "x": 0.13, "y": 0.05})", R"({"Y": 1, "x": 0.17, "y": 1.14})"),
        "taken");
    row("negative x", wide(declared, R"({"Y": 0.1, "x": -0.1, "y": 0.05})"), "taken");
    const char *range = "f: gamuts[0].blue: x and y must be from -1 to 2, y not 0 and -2x + 12y + 3 greater than 0";
    row("y zero", wide(declared, R"({"Y": 0, "x": 0.1, "y": 0})"), range);
    row("x below the range", wide(declared, R"({"Y": 0.1, "x": -1.1, "y": 0.1})"), range);
    row("no place on the uniform diagrams", wide(declared, R"({"Y": -0.1, "x": 0, "y": -0.25})"), range);
    row("positive luminance", wide(declared, R"({"Y": 0.1, "x": 0.0001, "y": -0.077})"),
        "f: gamuts[0].blue.Y: luminance must not be positive where y is negative");
    row("negative luminance", wide(declared, R"({"Y": -0.1, "x": -0.1, "y": 0.05})"),
        "f: gamuts[0].blue.Y: luminance must not be negative");
    row("white beyond the side",
        wide(declared, R"({"Y": -0.1, "x": 0.3, "y": -0.01})", R"({"Y": 1, "x": 0.3, "y": 0.8})",
            R"({"Y": 1, "x": 0.2, "y": 0.3})"),
        "f: gamuts[0]: the white point lies outside the triangle of the primaries");
    row("white of no light",
        wide(declared, R"({"Y": -0.07, "x": 0.0001, "y": -0.077})", R"({"Y": 1, "x": 0, "y": 1})",
            R"({"Y": 1, "x": 0.2, "y": -0.01})"),
        "f: gamuts[0].white.y: y must be greater than 0");
}

void DisplayDescriptionTest::colorSpaces()
{
    refused();
}

// Written and read again the same, the negative luminance included.
void DisplayDescriptionTest::colorSpacesAreKept()
{
    const auto read = readDescription(wide(R"("declared": "wide")"));
    QVERIFY2(read, qPrintable(read.error()));
    QVERIFY(!hasRealPrimaries(read->gamuts[0].getTargets()));
    QVERIFY(hasRealPrimaries(Model::rec2020().getTargets()));
    const auto again = readDescription(descriptionText(*read));
    QVERIFY2(again, qPrintable(again.error()));
    QVERIFY(isExactly(again->gamuts[0].getTargets().blue, -0.0721, 0.0001, -0.077));
    QVERIFY(isExactly(again->gamuts[0].getTargets().green, 0.728, 0.0, 1.0));
}

void DisplayDescriptionTest::everyRequiredKeyIsMissed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *what, const char *by, const char *message) {
        QTest::newRow(message) << replaced(what, by) << QString::fromUtf8(message);
    };
    row("    \"version\": 1,\n", "", "f: version: missing");
    row("\"name\": \"as measured\",", "", "f: gamuts[1].name: missing");
    row("\"red\": {\"Y\": 190, \"x\": 0.69, \"y\": 0.31},", "", "f: gamuts[1].red: missing");
    row("\"green\": {\"Y\": 690, \"x\": 0.18, \"y\": 0.71},", "", "f: gamuts[1].green: missing");
    row("\"blue\": {\"Y\": 90, \"x\": 0.14, \"y\": 0.07},", "", "f: gamuts[1].blue: missing");
    row(",\n            \"white\": {\"Y\": 970, \"x\": 0.29, \"y\": 0.3}", "", "f: gamuts[1].white: missing");
    row("{\"Y\": 190, \"x\": 0.69, \"y\": 0.31}", "{}", "f: gamuts[1].red.Y: missing");
    row("{\"Y\": 690, \"x\": 0.18", "{\"Y\": 690", "f: gamuts[1].green.x: missing");
    row("\"x\": 0.14, \"y\": 0.07}", "\"x\": 0.14}", "f: gamuts[1].blue.y: missing");
    row("{\"x\": 0.6, \"y\": 0.35}", "{\"y\": 0.35}", "f: measurePoints[0].x: missing");
    row("{\"x\": 0.2, \"y\": 0.33}", "{\"x\": 0.2}", "f: cmyPoints[0].y: missing");
    QTest::newRow("gamuts") << QByteArray(R"({"version": 1, "original": "Rec.709", "target": "Rec.709"})")
                            << QStringLiteral("f: gamuts: missing");
}

void DisplayDescriptionTest::everyRequiredKeyIsMissed()
{
    refused();
}

void DisplayDescriptionTest::everyNumberMustBeOne_data()
{
    QTest::addColumn<QByteArray>("text");
    // Wherever a number stands in the description, outside of a string.
    const QRegularExpression number(QStringLiteral(": ([0-9.]+)"));
    QRegularExpressionMatchIterator matches = number.globalMatch(QString::fromUtf8(description));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        for (const char *wrong : {"NaN", "nan", "Infinity", "-Infinity", "1e999", "-1e999", "\"0.3\"", "null", "[]"}) {
            QByteArray text = description;
            text.replace(match.capturedStart(1), match.capturedLength(1), wrong);
            QTest::addRow("%s at %d", wrong, int(match.capturedStart(1))) << text;
        }
    }
}

void DisplayDescriptionTest::everyNumberMustBeOne()
{
    QFETCH(QByteArray, text);
    const auto read = readDescription(text);
    QVERIFY(!read);
    QVERIFY(read.problem().line > 0 || !read.problem().place.isEmpty());
}

void DisplayDescriptionTest::refusedFiles()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const auto messageForFile = [](const QString &name) {
        const auto read = readDescriptionFile(name);
        return read ? QStringLiteral("taken") : read.problem().message(name);
    };
    const auto write = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", name);
        }
        return file.fileName();
    };

    QCOMPARE(messageForFile(folder.path()), folder.path() + QStringLiteral(": is a folder"));
    const QString missing = folder.filePath(QStringLiteral("missing.json"));
    QCOMPARE(messageForFile(missing), missing + QStringLiteral(": cannot be read: there is no such file"));
    const QString empty = write("empty.json", "");
    QCOMPARE(messageForFile(empty), empty + QStringLiteral(": is empty"));
    const QString good = write("good.json", description);
    QCOMPARE(messageForFile(good), QStringLiteral("taken"));
    const QString beyond = good + QStringLiteral("/x.json");
    QCOMPARE(messageForFile(beyond), beyond + QStringLiteral(": cannot be read: there is no such file"));
#ifdef Q_OS_UNIX
    const QString loop = folder.filePath(QStringLiteral("loop.json"));
    QVERIFY(QFile::link(loop, loop));
    QVERIFY(messageForFile(loop).startsWith(loop + QStringLiteral(": cannot be read: ")));
    QCOMPARE(messageForFile(QStringLiteral("/dev/null")), QStringLiteral("/dev/null: is empty"));
    QCOMPARE(messageForFile(QStringLiteral("/dev/zero")), QStringLiteral("/dev/zero: is larger than 16384 KiB"));
#endif
}

void DisplayDescriptionTest::largestFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const QByteArray largest = description.leftJustified(maximumDescriptionBytes, ' ');
    QCOMPARE(file.write(largest), qint64(largest.size()));
    QVERIFY(file.flush());
    QVERIFY(readDescriptionFile(file.fileName()));
    QCOMPARE(file.write(" "), qint64(1));
    QVERIFY(file.flush());
    const auto read = readDescriptionFile(file.fileName());
    QCOMPARE(read.problem().message(QStringLiteral("f")), QStringLiteral("f: is larger than 16384 KiB"));
    QVERIFY(!readDescription(largest + ' '));
}

namespace {

const QByteArray colors = R"("red": {"Y": 200, "x": 0.7, "y": 0.3}, "green": {"Y": 700, "x": 0.17, "y": 0.72},
    "blue": {"Y": 100, "x": 0.13, "y": 0.06})";

QByteArray described(const QByteArray &wall)
{
    return R"({"version": 1, "gamuts": [], "wall": )" + wall + '}';
}

QByteArray withCabinets(const QList<QByteArray> &cabinets)
{
    return described("{\"cabinets\": [{" + cabinets.join("}, {") + "}]}");
}

} // namespace

void DisplayDescriptionTest::readsTheWall()
{
    const auto read = readDescription(described(R"({"luminanceUnit": "cd/m2", "cabinets": [{"name": "A1", )" + colors
        + R"(}, {"row": 2, "column": -3, "white": {"Y": 1000, "x": 0.31, "y": 0.33}, "black": {"Y": 0.1, "x": 0.3,
            "y": 0.2}, )"
        + colors + R"(}, {"name": "A1", "row": 0, "column": 1, "black": {"Y": 0}, )" + colors
        + R"(}, {"name": "B", "black": {"Y": 0.1}, )" + colors + "}]}"));
    QVERIFY2(read, qPrintable(read.error()));
    const DisplayWall &wall = read->wall;
    QVERIFY(wall.unit == LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(wall.cabinets.size(), std::size_t(4));
    QCOMPARE(wall.cabinets[0].label(), QStringLiteral("A1"));
    QVERIFY(!wall.cabinets[0].row && !wall.cabinets[0].column);
    QVERIFY(!wall.cabinets[0].white && !wall.cabinets[0].black);
    QVERIFY(isExactly(wall.cabinets[0].red, 200.0, 0.7, 0.3));
    QVERIFY(isExactly(wall.cabinets[0].green, 700.0, 0.17, 0.72));
    QVERIFY(isExactly(wall.cabinets[0].blue, 100.0, 0.13, 0.06));
    QCOMPARE(wall.cabinets[1].label(), QStringLiteral("2/-3"));
    QVERIFY(isExactly(*wall.cabinets[1].white, 1000.0, 0.31, 0.33));
    QVERIFY(isExactly(*wall.cabinets[1].black, 0.1, 0.3, 0.2));
    QCOMPARE(wall.cabinets[2].label(), QStringLiteral("A1 0/1"));
    QVERIFY(isExactly(*wall.cabinets[2].black, 0.0, 0.0, 0.0));
    QVERIFY(!wall.cabinets[1].blackLuminance && !wall.cabinets[2].blackLuminance && !wall.cabinets[3].black);
    QCOMPARE(wall.cabinets[3].blackLuminance, std::make_optional(0.1));
    QVERIFY(readDescription(described(R"({"cabinets": []})")));
    // What the assessment of the wall names, and what the rounding of u', v' takes.
    QCOMPARE(messageFor(withCabinets(
                 {"\"name\": \"a\"," + QByteArray(colors).replace("0.17, \"y\": 0.72", "0.7, \"y\": 0.3")})),
        QStringLiteral("taken"));
    QCOMPARE(messageFor(withCabinets({"\"name\": \"a\"," + QByteArray(colors).replace("0.7,", "0.7005,")})),
        QStringLiteral("taken"));
}

void DisplayDescriptionTest::refusedWalls_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &text, const char *message) {
        QTest::newRow(name) << text << QString::fromUtf8(message);
    };
    const QByteArray a = "\"name\": \"a\", " + colors;
    row("array", described("[]"), "f: wall: expected an object, found an array");
    row("no cabinets", described("{}"), "f: wall.cabinets: missing");
    row("unknown key", described("{\"cabinets\": [], \"rows\": 2}"), "f: wall.rows: unknown key");
    row("leaving out by a number", withCabinets({a + ", \"leftOut\": 1"}),
        "f: wall.cabinets[0].leftOut: expected a boolean, found a number");
    row("odd unit", described("{\"cabinets\": [], \"luminanceUnit\": \"fL\"}"),
        "f: wall.luminanceUnit: expected \"cd/m2\" or \"relative\"");
    row("number for a cabinet", described("{\"cabinets\": [1]}"),
        "f: wall.cabinets[0]: expected an object, found a number");
    row("unknown key of a cabinet", withCabinets({a + ", \"grey\": 1"}), "f: wall.cabinets[0].grey: unknown key");
    row("no name", withCabinets({colors}), "f: wall.cabinets[0]: a cabinet needs a name, or row and column");
    row("blank name", withCabinets({"\"name\": \" \", " + colors}),
        "f: wall.cabinets[0]: a cabinet needs a name, or row and column");
    row("no blue", withCabinets({QByteArray(a).replace("\"blue\"", "\"white\"")}), "f: wall.cabinets[0].blue: missing");
    row("null in the name", withCabinets({"\"name\": \"A\\u0000\", " + colors}),
        "f: wall.cabinets[0]: a name has characters that cannot be stored");
    row("half a surrogate pair in the name", withCabinets({"\"name\": \"\\ud83d0\", " + colors}),
        "f: wall.cabinets[0]: a name has characters that cannot be stored");
    row("row alone", withCabinets({a + ", \"row\": 1"}),
        "f: wall.cabinets[0].column: missing: row and column are only known together");
    row("column alone", withCabinets({a + ", \"column\": 1"}),
        "f: wall.cabinets[0].row: missing: row and column are only known together");
    row("half a row", withCabinets({a + ", \"row\": 1.5, \"column\": 1"}),
        "f: wall.cabinets[0].row: expected a whole number");
    row("column beyond", withCabinets({a + ", \"row\": 1, \"column\": 1e10"}),
        "f: wall.cabinets[0].column: expected a whole number");
    row("same name", withCabinets({a, a}), "f: wall.cabinets[1]: there is already a cabinet \"a\"");
    row("same name by its place", withCabinets({"\"row\": 3, \"column\": 4, " + a, "\"name\": \"a 3/4\", " + colors}),
        "f: wall.cabinets[1]: there is already a cabinet \"a 3/4\"");
    row("same place", withCabinets({"\"row\": 3, \"column\": 4, " + a, "\"row\": 3, \"column\": 4, " + colors}),
        "f: wall.cabinets[1]: there is already a cabinet in row 3, column 4");
    row("negative luminance", withCabinets({QByteArray(a).replace("700", "-1")}),
        "f: wall.cabinets[0].green.Y: luminance must not be negative");
    row("no chromaticity", withCabinets({QByteArray(a).replace("0.72", "0")}),
        "f: wall.cabinets[0].green.y: y must be greater than 0");
    row("beyond the rounding", withCabinets({QByteArray(a).replace("0.7,", "0.7006,")}),
        "f: wall.cabinets[0].red: x + y must not exceed 1");
    row("black with half a chromaticity", withCabinets({a + ", \"black\": {\"Y\": 0.1, \"y\": 0.3}"}),
        "f: wall.cabinets[0].black.x: missing");
    row("black below 0", withCabinets({a + ", \"black\": {\"Y\": -0.1}"}),
        "f: wall.cabinets[0].black.Y: luminance must not be negative");
    row("black without anything", withCabinets({a + ", \"black\": {}"}), "f: wall.cabinets[0].black.Y: missing");
    row("odd black", withCabinets({a + ", \"black\": {\"Y\": 0, \"z\": 1}"}),
        "f: wall.cabinets[0].black.z: unknown key");
    row("black as a number", withCabinets({a + ", \"black\": 0"}),
        "f: wall.cabinets[0].black: expected an object, found a number");
    const auto incomplete = [&](const char *name, const QByteArray &entries, const char *message) {
        row(name, described("{\"cabinets\": [{" + a + "}], \"incomplete\": " + entries + '}'), message);
    };
    incomplete("incomplete as an object", "{}", "f: wall.incomplete: expected an array, found an object");
    incomplete("incomplete as a name", "[\"b\"]", "f: wall.incomplete[0]: expected an object, found a string");
    incomplete("incomplete without a reason", R"([{"name": "b"}])", "f: wall.incomplete[0].reason: missing");
    incomplete("incomplete by a blank", R"([{"name": "b", "reason": " "}])",
        "f: wall.incomplete[0].reason: must not be empty");
    incomplete("incomplete by a number", R"([{"name": "b", "reason": 1}])",
        "f: wall.incomplete[0].reason: expected a string, found a number");
    incomplete("incomplete without a name", R"([{"reason": "r"}])",
        "f: wall.incomplete[0]: a cabinet needs a name, or row and column");
    incomplete("incomplete with a colour", R"([{"name": "b", "reason": "r", "red": {}}])",
        "f: wall.incomplete[0].red: unknown key");
    incomplete("incomplete with a row", R"([{"name": "b", "reason": "r", "row": 1}])",
        "f: wall.incomplete[0].column: missing: row and column are only known together");
    incomplete("incomplete called as another", R"([{"name": "a", "reason": "r"}])",
        "f: wall.incomplete[0]: there is already a cabinet \"a\"");
    incomplete("incomplete in the same place", R"([{"name": "b", "row": 1, "column": 2, "reason": "r"},
        {"name": "c", "row": 1, "column": 2, "reason": "r"}])",
        "f: wall.incomplete[1]: there is already a cabinet in row 1, column 2");
    row("nothing but incomplete", described(R"({"cabinets": [], "incomplete": [{"name": "b", "reason": "r"}]})"),
        "f: wall.incomplete: there is no other cabinet");
}

void DisplayDescriptionTest::refusedWalls()
{
    refused();
}

void DisplayDescriptionTest::messageIsOneLine()
{
    const auto read = readDescription(replaced("\"target\": \"Rec.2020\"", "\"target\": \"a\\nb\\u0000\\u2028\""));
    QVERIFY(!read);
    QCOMPARE(read.problem().message(QStringLiteral("odd\nname")),
        QStringLiteral("odd\\u000aname: target: there is no gamut named \"a\\u000ab\\u0000\\u2028\""));
}

void DisplayDescriptionTest::messageIsReadFromLeftToRight()
{
    // U+202E turns the direction, U+200B and U+FEFF are not to be seen, half a pair cannot be written; U+E0041 is a
    // tag.
    const QString odd = QString::fromUtf8("\u202Eevil\u2066\u200F\u200B\uFEFF\U000E0041") + QChar(0xD800);
    QCOMPARE(oneLine(odd), QStringLiteral("\\u202eevil\\u2066\\u200f\\u200b\\ufeff\\udb40\\udc41\\ud800"));
    // Joiners belong to words and to emoji; right-to-left text is no mark.
    const QString fair = QString::fromUtf8("می‌خواهم 👨‍👩‍👧 שלום 屏幕");
    QCOMPARE(oneLine(fair), fair);
    QCOMPARE(messageFor(replaced("\"Rec.2020\"", "\"\u202Exyz\"")),
        QStringLiteral("f: target: there is no gamut named \"\\u202exyz\""));
}

void DisplayDescriptionTest::warnings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char *name, const QByteArray &text, const QStringList &messages = {}) {
        QTest::newRow(name) << text << messages;
    };
    row("none", description);
    row("key twice", replaced("\"blue\": {\"Y\": 100", "\"blue\": {\"Y\": 1, \"Y\": 100"),
        {"f:10:30: the key \"Y\" is there twice in this object: the last one counts"});
    row("part twice", replaced("\"target\":", "\"target\": \"Rec.709\",\n\"target\":"),
        {"f:25:1: the key \"target\" is there twice in this object: the last one counts"});
    row("exchanged primaries",
        replaced("\"x\": 0.7, \"y\": 0.3}", "\"x\": 0.1, \"y\": 0.1}").replace("0.13, \"y\": 0.06", "0.7, \"y\": 0.3"),
        {"f: gamuts[0]: red, green and blue lie clockwise in x, y: two of them may be exchanged"});
    row("white outside", replaced("0.29, \"y\": 0.3}", "0.29, \"y\": 0.03}"),
        {"f: gamuts[1]: the white lies outside of the triangle of the primaries"});
    row("dark white", replaced("1000", "100"), {"f: gamuts[0].white: the white is darker than one of the primaries"});
    row("one each", replaced("1000", "100").replace("0.28, \"y\": 0.29", "0.28, \"y\": 0.029"),
        {"f: gamuts[0]: the white lies outside of the triangle of the primaries"});
    row("white as bright as a primary", replaced("1000", "700"));
    row("white that is no sum", replaced("1000", "1800"));
    row("no luminance of the white", replaced("1000", "0"));
    row("role without a display",
        replaced("\"measured\": \"as measured\",", "").replace("0.29, \"y\": 0.3}", "0.9, \"y\": 0.03}"));
}

void DisplayDescriptionTest::warnings()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, messages);
    const auto read = readDescription(text);
    QVERIFY2(read, qPrintable(read.error()));
    QStringList given;
    for (const Problem &warning : read.warnings()) {
        given += warning.message(QStringLiteral("f"));
    }
    QCOMPARE(given, messages);
}

void DisplayDescriptionTest::manyWarnings()
{
    const auto warningsOf = [](int gamuts) {
        DisplayDescription description;
        Model::Targets dark = Model::rec709().getTargets();
        dark.white = Model::Target::fromYxy(0.1 * dark.white.Y, dark.white.x, dark.white.y);
        for (int i = 0; i < gamuts; ++i) {
            description.gamuts.emplace_back(Model::ColorGamut(std::to_string(i), dark));
        }
        description.target = QString::number(gamuts - 1);
        QStringList messages;
        const auto read = readDescription(descriptionText(description));
        for (const Problem &warning : read.warnings()) {
            messages.append(warning.message(QStringLiteral("f")));
        }
        return messages;
    };
    const QStringList few = warningsOf(21);
    QCOMPARE(few.size(), 21);
    QVERIFY(few.last().startsWith(QLatin1String("f: gamuts[20].white: ")));
    // What the display is meant to show is told all the same.
    const QStringList many = warningsOf(51);
    QCOMPARE(many.size(), 22);
    QVERIFY(many.at(19).startsWith(QLatin1String("f: gamuts[19].white: ")));
    QVERIFY(many.at(20).startsWith(QLatin1String("f: gamuts[50].white: ")));
    QCOMPARE(many.at(21), QStringLiteral("f: gamuts: 30 further warning(s)"));
}

void DisplayDescriptionTest::samplesHaveNoWarnings()
{
    const auto sample = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY(sample && sample.warnings().isEmpty());
}

void DisplayDescriptionTest::documentedExampleIsRead()
{
    QFile file(QStringLiteral(DESCRIPTION_DOCUMENTATION));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray documentation = file.readAll();
    const int begin = documentation.indexOf("```json\n") + 8;
    QVERIFY(begin > 8);
    QByteArray example = documentation.mid(begin, documentation.indexOf("```\n", begin) - begin);
    const auto read = readDescription(example);
    QVERIFY2(read, qPrintable(read.problem().message(QStringLiteral("the example"))));
    QCOMPARE(read->name, QStringLiteral("Stage left"));

    // The message that the documentation shows is the one for y = 0 in the first colour.
    example.replace("0.299", "0");
    const auto refused = readDescription(example);
    QVERIFY(!refused);
    const QString message = refused.problem().message(QStringLiteral("wall.json"));
    QVERIFY2(documentation.contains(("gamutviewer: " + message + "\n").toUtf8()), qPrintable(message));
}

void DisplayDescriptionTest::messagesAreShort()
{
    const QByteArray word(100000, 'k');
    for (const QByteArray &text : {QByteArray("{\"version\": 1, \"gamuts\": [], \"" + word + "\": 1}"),
             QByteArray("{\"version\": 1, \"gamuts\": [], \" " + word + "\": 1}"),
             QByteArray("{\"version\": 1, \"gamuts\": [], \"target\": \"" + word + "\"}")}) {
        const auto description = readDescription(text);
        QVERIFY(!description);
        QVERIFY2(description.problem().message().size() < 150, qPrintable(description.problem().message().left(200)));
    }
}

QTEST_GUILESS_MAIN(DisplayDescriptionTest)
#include "displaydescriptiontest.moc"
