// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/correctionsfile.h>
#include <gamutfiles/measurementlist.h>

#include <QtTest>

#include <cmath>
#include <ctime>
#include <limits>
#include <random>

using namespace gamutfiles;

class CorrectionsFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void csvSurvives();
    void jsonSurvives();
    void anyNumberSurvives();
    void equalCabinetsNeedNoCorrection();
    void matricesOfTheFileShowTheTarget();
    void faultyCabinetIsStated();
    void targetsWithoutMatrices_data();
    void targetsWithoutMatrices();
    void cabinetsThatNoFileCanHold();
    void refusedCsv_data();
    void refusedCsv();
    void refusedJson_data();
    void refusedJson();
    void everyCutIsRefused_data();
    void everyCutIsRefused();
    void tooLarge();
    void readsFiles();
    void timeGrowsWithTheCabinets();
    void documentedExamplesAreRead();
};

namespace {

CabinetCorrection cabinet(const QString &name, std::optional<int> row = {}, std::optional<int> column = {})
{
    CabinetCorrection result;
    result.name = name;
    result.row = row;
    result.column = column;
    Model::CorrectionMatrix matrix;
    matrix.rows = {{{0.9, 0.1 / 3, 1e-300}, {-0.0123, 1.0 - 1e-16, 0.0}, {0.1 + 0.2, 2.0, -1e300}}};
    result.matrix = matrix;
    result.largestWhite = 1234.5678901234567;
    return result;
}

WallCorrections everything()
{
    WallCorrections corrections;
    corrections.unit = LuminanceUnit::CandelaPerSquareMetre;
    corrections.target = {
        QStringLiteral("Stage \"left\"\n# ü"), {0.68, 0.32}, {0.1 + 0.2, 0.6}, {0.15, 0.06}, {0.3127, 0.329}, 1e3 / 3};
    corrections.cabinets = {cabinet(QStringLiteral("A1"), 1, -2), cabinet(QString(), 3, 4),
        cabinet(QStringLiteral("#7")), cabinet(QStringLiteral(" a,b;\"c\"\nd ")), cabinet(QStringLiteral(" # ")),
        cabinet(QStringLiteral("箱体 \u2028 1"))};
    corrections.cabinets[2].largestWhite.reset();
    corrections.cabinets[3].matrix.reset();
    corrections.cabinets[3].fault = QStringLiteral("no light, in: green");
    return corrections;
}

bool same(double a, double b)
{
    return a == b && std::signbit(a) == std::signbit(b);
}

bool same(const Model::DiagramPoint &a, const Model::DiagramPoint &b)
{
    return same(a.x, b.x) && same(a.y, b.y);
}

bool same(const CabinetCorrection &a, const CabinetCorrection &b)
{
    bool isSame = a.name == b.name && a.row == b.row && a.column == b.column && a.fault == b.fault
        && a.largestWhite == b.largestWhite && a.matrix.has_value() == b.matrix.has_value();
    for (std::size_t i = 0; i < 9 && isSame && a.matrix; ++i) {
        isSame = same(a.matrix->rows[i / 3][i % 3], b.matrix->rows[i / 3][i % 3]);
    }
    return isSame;
}

bool same(const WallCorrections &a, const WallCorrections &b)
{
    return a.unit == b.unit && a.target.name == b.target.name && same(a.target.red, b.target.red)
        && same(a.target.green, b.target.green) && same(a.target.blue, b.target.blue)
        && same(a.target.white, b.target.white) && same(a.target.luminance, b.target.luminance)
        && std::equal(a.cabinets.begin(), a.cabinets.end(), b.cabinets.begin(), b.cabinets.end(),
            [](const CabinetCorrection &p, const CabinetCorrection &q) { return same(p, q); });
}

void verifySurvives(const WallCorrections &corrections, const QByteArray &text)
{
    const auto read = readCorrections(text);
    QVERIFY2(read, qPrintable(read.error() + QLatin1Char('\n') + QString::fromUtf8(text)));
    QVERIFY2(same(*read, corrections), text);
}

Model::Target color(double Y, double x, double y)
{
    return Model::Target::fromYxy(Y, x, y);
}

WallCabinet measuredCabinet(const QString &name)
{
    WallCabinet measured;
    measured.name = name;
    measured.red = color(240.0, 0.7, 0.298);
    measured.green = color(640.0, 0.19, 0.72);
    measured.blue = color(125.0, 0.133, 0.075);
    return measured;
}

//! A target inside of measuredCabinet().
Model::Targets target()
{
    return {color(0.0, 0.64, 0.33), color(0.0, 0.3, 0.6), color(0.0, 0.15, 0.08), color(0.0, 0.3127, 0.329)};
}

QString messageFor(const QByteArray &text)
{
    const auto read = readCorrections(text);
    return read ? QStringLiteral("taken") : read.problem().message(QStringLiteral("f"));
}

} // namespace

void CorrectionsFileTest::csvSurvives()
{
    const WallCorrections corrections = everything();
    const QByteArray text = correctionsCsv(corrections);
    verifySurvives(corrections, text);
    verifySurvives(corrections, "\xEF\xBB\xBF" + text);
    QByteArray dos = correctionsCsv(corrections);
    dos.replace("\"\nd", "\" d").replace('\n', "\r\n"); // apart from the line end in a name
    QVERIFY(readCorrections(dos));
    for (const LuminanceUnit unit : {LuminanceUnit::Relative, LuminanceUnit::NotKnown}) {
        WallCorrections other = everything();
        other.unit = unit;
        other.target.name.clear();
        verifySurvives(other, correctionsCsv(other));
        verifySurvives(other, correctionsJson(other));
    }
}

void CorrectionsFileTest::jsonSurvives()
{
    const WallCorrections corrections = everything();
    verifySurvives(corrections, correctionsJson(corrections));
    QVERIFY(QJsonDocument::fromJson(correctionsJson(corrections)).isObject());
}

void CorrectionsFileTest::anyNumberSurvives()
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_real_distribution<double> exponent(-300.0, 300.0);
    WallCorrections corrections = everything();
    for (int i = 0; i < 2000; ++i) {
        CabinetCorrection next = cabinet(QString::number(i));
        for (auto &row : next.matrix->rows) {
            for (double &entry : row) {
                entry = i % 2 ? mantissa(random) : mantissa(random) * std::pow(10.0, exponent(random));
            }
        }
        next.largestWhite = std::fabs(mantissa(random)) * 1e4;
        corrections.cabinets.push_back(next);
    }
    verifySurvives(corrections, correctionsCsv(corrections));
    verifySurvives(corrections, correctionsJson(corrections));
}

// A wall of equal cabinets that is to show what it has.
void CorrectionsFileTest::equalCabinetsNeedNoCorrection()
{
    DisplayWall wall;
    wall.cabinets = {measuredCabinet("A"), measuredCabinet("B")};
    const WallCabinet &one = wall.cabinets.front();
    const double X = one.red.X + one.green.X + one.blue.X;
    const double Y = one.red.Y + one.green.Y + one.blue.Y;
    const double Z = one.red.Z + one.green.Z + one.blue.Z;
    const Model::Targets native{one.red, one.green, one.blue, color(Y, X / (X + Y + Z), Y / (X + Y + Z))};
    const auto corrections = wallCorrections(wall, Model::wallCorrection(wall.modelCabinets(), native), "native");
    QVERIFY2(corrections, qPrintable(corrections.error()));
    QCOMPARE(corrections->cabinets.size(), std::size_t(2));
    for (const CabinetCorrection &correction : corrections->cabinets) {
        for (std::size_t i = 0; i < 9; ++i) {
            const double expected = i % 4 == 0 ? 1.0 : 0.0;
            QVERIFY(std::fabs(correction.matrix->rows[i / 3][i % 3] - expected) < 1e-12);
        }
        QVERIFY(std::fabs(*correction.largestWhite / Y - 1.0) < 1e-12);
    }
    QCOMPARE(corrections->target.name, QStringLiteral("native"));
}

// By plain sums of tristimulus values, from what is read back.
void CorrectionsFileTest::matricesOfTheFileShowTheTarget()
{
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> spread(-0.01, 0.01);
    DisplayWall wall;
    for (int i = 0; i < 50; ++i) {
        WallCabinet measured = measuredCabinet(QString::number(i));
        const auto moved = [&](const Model::Target &of) {
            return color(
                of.Y * (1.0 + 10.0 * spread(random)), of.x + spread(random) * 0.2, of.y + spread(random) * 0.2);
        };
        measured.red = moved(measured.red);
        measured.green = moved(measured.green);
        measured.blue = moved(measured.blue);
        if (i % 2) {
            measured.black = color(0.5, 0.38, 0.38);
        }
        wall.cabinets.push_back(measured);
    }
    const Model::WallCorrection solved = Model::wallCorrection(wall.modelCabinets(), target());
    const auto corrections = wallCorrections(wall, solved, QStringLiteral("target"));
    QVERIFY2(corrections, qPrintable(corrections.error()));
    for (const QByteArray &text : {correctionsCsv(*corrections), correctionsJson(*corrections)}) {
        const auto read = readCorrections(text);
        QVERIFY2(read, qPrintable(read.error()));
        const double luminance = read->target.luminance;
        const Model::Target white = color(luminance, read->target.white.x, read->target.white.y);
        for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
            const WallCabinet &measured = wall.cabinets[i];
            const Model::Target black = measured.black.value_or(Model::Target());
            const auto &rows = read->cabinets[i].matrix->rows;
            double X = black.X;
            double Y = black.Y;
            double Z = black.Z;
            const Model::Target *const primaries[] = {&measured.red, &measured.green, &measured.blue};
            for (std::size_t row = 0; row < 3; ++row) {
                const double drive = rows[row][0] + rows[row][1] + rows[row][2];
                QVERIFY(drive <= 1.0 + 1e-9);
                X += drive * (primaries[row]->X - black.X);
                Y += drive * (primaries[row]->Y - black.Y);
                Z += drive * (primaries[row]->Z - black.Z);
            }
            QVERIFY(std::fabs(X / white.X - 1.0) < 1e-12);
            QVERIFY(std::fabs(Y / white.Y - 1.0) < 1e-12);
            QVERIFY(std::fabs(Z / white.Z - 1.0) < 1e-12);
        }
    }
}

void CorrectionsFileTest::faultyCabinetIsStated()
{
    DisplayWall wall;
    wall.cabinets = {measuredCabinet("good"), measuredCabinet("dark"), measuredCabinet("flat")};
    wall.cabinets[1].green.Y = 0.0;
    wall.cabinets[2].blue = color(125.0, 0.7, 0.2981);
    wall.incomplete = {{QStringLiteral("gap"), Model::GridPosition{4, -1}, QStringLiteral("red is missing")}};
    const auto corrections = wallCorrections(wall, Model::wallCorrection(wall.modelCabinets(), target()), QString());
    QVERIFY2(corrections, qPrintable(corrections.error()));
    QVERIFY(corrections->cabinets[0].matrix);
    QVERIFY(!corrections->cabinets[1].matrix && !corrections->cabinets[1].largestWhite);
    QCOMPARE(corrections->cabinets[1].fault, QStringLiteral("a primary has no more luminance than the black: green"));
    QVERIFY(!corrections->cabinets[2].matrix);
    QVERIFY(corrections->cabinets[2].fault.startsWith("the primaries are nearly on a line"));
    QCOMPARE(corrections->cabinets.size(), std::size_t(4));
    QCOMPARE(corrections->cabinets[3].label(), QStringLiteral("gap 4/-1"));
    QCOMPARE(corrections->cabinets[3].fault, QStringLiteral("red is missing"));
    QVERIFY(!corrections->cabinets[3].matrix && !corrections->cabinets[3].largestWhite);
    verifySurvives(*corrections, correctionsCsv(*corrections));
    verifySurvives(*corrections, correctionsJson(*corrections));
}

void CorrectionsFileTest::targetsWithoutMatrices_data()
{
    QTest::addColumn<double>("whiteX");
    QTest::addColumn<double>("blueX");
    QTest::addColumn<double>("luminance");
    QTest::addColumn<QString>("error");
    QTest::newRow("white") << 0.2 << 0.15 << 100.0 << "the white of the target is not a mixture of its primaries";
    QTest::newRow("line") << 0.3127 << 0.72 << 100.0 << "the primaries of the target lie nearly on a line";
    QTest::newRow("luminance") << 0.3127 << 0.15 << 0.0
                               << "there is no luminance for the white of the target: no cabinet can show it";
    QTest::newRow("infinite") << 0.3127 << 0.15 << std::numeric_limits<double>::infinity()
                              << "a colour of the target is not finite";
}

void CorrectionsFileTest::targetsWithoutMatrices()
{
    QFETCH(double, whiteX);
    QFETCH(double, blueX);
    QFETCH(double, luminance);
    DisplayWall wall;
    wall.cabinets = {measuredCabinet("A")};
    Model::Targets wanted = target();
    wanted.white = color(1.0, whiteX, 0.329);
    if (blueX > 0.5) {
        wanted.blue = color(1.0, 2.0 * 0.64 - 0.3, 2.0 * 0.33 - 0.6);
    }
    const auto corrections
        = wallCorrections(wall, Model::wallCorrection(wall.modelCabinets(), wanted, luminance), QString());
    QVERIFY(!corrections);
    QTEST(corrections.error(), "error");

    wall.cabinets[0].red.Y = 0.0;
    const auto none = wallCorrections(wall, Model::wallCorrection(wall.modelCabinets(), target(), 1.0), QString());
    QCOMPARE(
        none.error(), QStringLiteral("no cabinet has a matrix: a primary has no more luminance than the black: red"));
}

// A file with them could not be read.
void CorrectionsFileTest::cabinetsThatNoFileCanHold()
{
    DisplayWall wall;
    wall.cabinets = {measuredCabinet("A"), measuredCabinet("B")};
    const auto errorOf = [&wall] {
        return wallCorrections(wall, Model::wallCorrection(wall.modelCabinets(), target(), 1.0), QString()).error();
    };
    wall.cabinets[0].name = QString(QChar::Null);
    QCOMPARE(errorOf(), QStringLiteral("a name has characters that cannot be stored"));
    wall.cabinets[0] = wall.cabinets[1];
    QVERIFY(errorOf().startsWith(QStringLiteral("there is already a cabinet ")));
}

void CorrectionsFileTest::refusedCsv_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    WallCorrections corrections = everything();
    corrections.cabinets.resize(2);
    const QByteArray text = correctionsCsv(corrections);
    const auto change = [&text](const char *what, const char *by, const char *message) {
        if (!text.contains(what)) {
            qFatal("not there: %s", what);
        }
        QByteArray changed = text;
        const int at = changed.indexOf(what);
        changed.replace(at, int(qstrlen(what)), by);
        QTest::newRow(message) << changed << QString::fromUtf8(message);
    };
    QTest::newRow("empty") << QByteArray() << "f: line 1: expected \"# wall corrections, version 1\"";
    QTest::newRow("list") << QByteArray("name,x,y,Y\n") << "f: line 1: expected \"# wall corrections, version 1\"";
    change("version 1", "version 2", "f: line 1: expected \"# wall corrections, version 1\"");
    change("linear light", "gamma 2.4",
        "f: line 2: expected \"# linear light: levels of the content and drives of the cabi…\"");
    change("m00 red + m01", "m00 red + m10",
        "f: line 3: expected \"# drive of red = m00 red + m01 green + m02 blue of the conte…\"");
    change("# target: \"", "# target: ", "f: line 6: expected the name of the target in quotes");
    change("# target: ", "# target ", "f: line 6: expected \"# target: …\"");
    change("0.68 0.32", "0.68", "f: line 7: expected x and y");
    change("0.68 0.32", "0.68 ", "f: line 7: not a number: \"\"");
    change("0.68", "nan", "f: line 7: not a number: \"nan\"");
    change("target white x, y", "white", "f: line 10: expected \"# target white x, y: …\"");
    change("333.3333333333333", "0", "f: line 11: the luminance of the white must be greater than 0");
    change("333.3333333333333", "inf", "f: line 11: not a number: \"inf\"");
    change("cd/m2", "nits", "f: line 12: expected \"cd/m2\", \"relative\" or \"unknown\"");
    change("m01,m02", "m02,m01",
        "f: line 13: expected the columns cabinet,row,column,m00,m01,m02,m10,m11,m12,m20,m21,m22,largest white,fault");
    change("A1,1,-2", "A1,1", "f: line 14: expected 14 fields, found 13");
    change("A1,1,-2", "A1,1,-2,", "f: line 14: expected 14 fields, found 15");
    change("A1,1,-2", "A1,1,", "f: line 14: row and column are only known together");
    change("A1,1,-2", "A1,1.5,-2", "f: line 14, column row: expected a whole number");
    change("A1,1,-2", "A1,1,9999999999", "f: line 14, column column: expected a whole number");
    change("A1,1,-2", ",,", "f: line 14: a cabinet needs a name, or row and column");
    change("A1,1,-2", ",3,4", "f: line 15: there is already a cabinet \"3/4\"");
    change(",0.9,", ",,", "f: line 14, column m00: not a number: \"\"");
    change(",0.9,", ",1e999,", "f: line 14, column m00: not a number: \"1e999\"");
    change(",0.9,", ",0x1,", "f: line 14, column m00: not a number: \"0x1\"");
    change("-0.0123,", "\"-0,0123\",", "f: line 14, column m10: not a number: \"-0,0123\"");
    change("1234.5678901234567", "-", "f: line 14, column largest white: not a number: \"-\"");
    change("1234.5678901234567,", "1,broken", "f: line 14: there is a matrix, and a reason why there is none");
    change("A1,1,-2", "\"A1,1,-2", "f: line 14: a quote is never closed");
    QTest::newRow("no cabinet") << text.left(text.indexOf("A1,")) << "f: line 14: there is no cabinet";
    QTest::newRow("nothing of a cabinet") << text.left(text.indexOf("A1,")) + "A1,1,2,,,,,,,,,,,\n"
                                          << "f: line 14: there is neither a matrix nor a reason why there is none";
}

void CorrectionsFileTest::refusedCsv()
{
    QFETCH(QByteArray, text);
    QTEST(messageFor(text), "message");
}

void CorrectionsFileTest::refusedJson_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    WallCorrections corrections = everything();
    corrections.cabinets.resize(2);
    const QByteArray text = correctionsJson(corrections);
    const auto change = [&text](const char *what, const char *by, const char *message) {
        if (!text.contains(what)) {
            qFatal("not there: %s", what);
        }
        QByteArray changed = text;
        changed.replace(changed.indexOf(what), int(qstrlen(what)), by);
        QTest::newRow(message) << changed << QString::fromUtf8(message);
    };
    QTest::newRow("description") << QByteArray(R"({"version": 1, "gamuts": []})") << "f: gamuts: unknown key";
    QTest::newRow("empty object") << QByteArray("{}") << "f: version: missing";
    change("\"version\": 1", "\"version\": 2", "f: version: only version 1 is supported");
    change("\"linear\"", "\"gamma 2.4\"", "f: convention.light: expected \"linear\"");
    change("matrix * content", "content * matrix", "f: convention.formula: expected \"drive = matrix * content\"");
    change("\"rows\": \"drives of red, green, blue\"", "\"rows\": \"drives of blue, green, red\"",
        "f: convention.rows: expected \"drives of red, green, blue\"");
    change("\"light\"", "\"lights\"", "f: convention.lights: unknown key");
    change("cd/m2", "nits", "f: luminanceUnit: expected \"cd/m2\", \"relative\" or \"unknown\"");
    change("\"x\": 0.68", "\"x\": \"0.68\"", "f: target.red.x: expected a number, found a string");
    change("333.3333333333333", "-1", "f: target.luminance: the luminance of the white must be greater than 0");
    change("\"name\": \"A1\", ", "", "taken");
    change("\"name\": \"A1\", \"row\": 1, \"column\": -2, ", "",
        "f: cabinets[0]: a cabinet needs a name, or row and column");
    change("\"row\": 1, ", "", "f: cabinets[0]: row and column are only known together");
    change("\"row\": 1", "\"row\": 1.5", "f: cabinets[0].row: expected a whole number");
    change("[0.9, ", "[", "f: cabinets[0].matrix[0]: expected three numbers");
    change("[[0.9", "[[0], [0.9", "f: cabinets[0].matrix: expected three rows of three numbers");
    change("0.9, ", "null, ", "f: cabinets[0].matrix[0][0]: expected a number, found null");
    change("\"largestWhite\": 1234.5678901234567", "\"largestWhite\": true",
        "f: cabinets[0].largestWhite: expected a number, found a boolean");
    change("\"largestWhite\": 1234.5678901234567", "\"largestWhite\": null, \"fault\": \"no\"",
        "f: cabinets[0]: there is a matrix, and a reason why there is none");
    change("\"name\": \"A1\"", "\"name\": \"A\\u0000\"", "f: cabinets[0]: a name has characters that cannot be stored");
    change("\"largestWhite\": 1234.5678901234567", "\"largestWhite\": null, \"fault\": \"\\ud83d0\"", // half a pair
        "f: cabinets[0]: a reason has characters that cannot be stored");
    change("\"name\": \"A1\", \"row\": 1, \"column\": -2", "\"name\": \"3/4\"",
        "f: cabinets[1]: there is already a cabinet \"3/4\"");
    QTest::newRow("no cabinets") << text.left(text.indexOf("{ \"name\": \"A1\"")) + "]}"
                                 << "f: cabinets: there is no cabinet";
}

void CorrectionsFileTest::refusedJson()
{
    QFETCH(QByteArray, text);
    QTEST(messageFor(text), "message");
}

void CorrectionsFileTest::everyCutIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    WallCorrections corrections = everything();
    corrections.cabinets.resize(1);
    QTest::newRow("CSV") << correctionsCsv(corrections);
    QTest::newRow("JSON") << correctionsJson(corrections);
}

void CorrectionsFileTest::everyCutIsRefused()
{
    QFETCH(QByteArray, text);
    // A last line without its end, and without the empty field of the fault, is complete.
    for (int size = 0; size < text.trimmed().size(); ++size) {
        QVERIFY2(!readCorrections(text.left(size)), text.left(size));
    }
}

void CorrectionsFileTest::tooLarge()
{
    const QByteArray text = correctionsCsv(everything());
    QVERIFY(readCorrections(text + QByteArray(maximumCorrectionsBytes - text.size(), '\n')));
    QCOMPARE(messageFor(text + QByteArray(maximumCorrectionsBytes - text.size() + 1, '\n')),
        QStringLiteral("f: is too large for a file of corrections (more than 16384 KiB)"));
}

void CorrectionsFileTest::readsFiles()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(correctionsCsv(everything()));
    file.close();
    const auto read = readCorrectionsFile(file.fileName());
    QVERIFY2(read, qPrintable(read.error()));
    QVERIFY(same(*read, everything()));
    QCOMPARE(readCorrectionsFile(folder.filePath(QStringLiteral("b.csv"))).error(),
        QStringLiteral("cannot be read: there is no such file"));
}

void CorrectionsFileTest::timeGrowsWithTheCabinets()
{
    const auto correctionsOf = [](int count) {
        WallCorrections corrections = everything();
        for (int i = 0; i < count; ++i) {
            corrections.cabinets.push_back(cabinet(QString::number(i), i / 100, 1000 + i % 100));
        }
        return corrections;
    };
    const auto leastTime = [](const WallCorrections &corrections) {
        qint64 least = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 3; ++run) {
            const std::clock_t start = std::clock(); // which other programs do not move
            const auto csv = readCorrections(correctionsCsv(corrections));
            const auto json = readCorrections(correctionsJson(corrections));
            if (!csv || !json || !same(*csv, corrections) || !same(*json, corrections)) {
                return qint64(-1);
            }
            least = std::min(least, qint64(std::clock() - start));
        }
        return least;
    };
    const qint64 small = leastTime(correctionsOf(1000));
    const qint64 large = leastTime(correctionsOf(10000));
    QVERIFY(small > 0 && large > 0);
    QVERIFY2(large < 50 * small, qPrintable(QStringLiteral("%1 and %2 ticks").arg(small).arg(large)));
}

void CorrectionsFileTest::documentedExamplesAreRead()
{
    QFile file(QStringLiteral(CORRECTIONS_DOCUMENTATION));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray documentation = file.readAll();
    const auto example = [&documentation](const QByteArray &language) {
        const int begin = documentation.indexOf("```" + language + '\n') + 4 + language.size();
        return documentation.mid(begin, documentation.indexOf("```\n", begin) - begin);
    };
    const auto csv = readCorrections(example("csv"));
    QVERIFY2(csv, qPrintable(csv.error()));
    const auto json = readCorrections(example("json"));
    QVERIFY2(json, qPrintable(json.error()));
    QVERIFY(same(*csv, *json));
    QCOMPARE(QString::fromUtf8(correctionsCsv(*json)), QString::fromUtf8(example("csv")));
    QCOMPARE(QString::fromUtf8(correctionsJson(*csv)), QString::fromUtf8(example("json")));
}

QTEST_GUILESS_MAIN(CorrectionsFileTest)
#include "correctionsfiletest.moc"
