// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementlist.h>

#include <QtTest>

using namespace gamutfiles;

class MeasurementListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void headerOrdersTheColumns();
    void numbersAreExact();
    void gamutOfFourColors();
    void noGamut_data();
    void noGamut();
    void refusals_data();
    void refusals();
};

namespace {

const QByteArray whole = "name,Y,x,y\nRed,200,0.7,0.29\nGreen,700,0.2,0.7\nBlue,100,0.15,0.05\nWhite,1000,0.28,0.29\n"
                         "grey 50 %,500,0.281,0.291\n";

QString errorOf(const QByteArray &text)
{
    const auto list = readMeasurementList(text);
    return list ? QStringLiteral("taken") : list.error();
}

} // namespace

void MeasurementListTest::reads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("header") << QByteArray("name,Y,x,y\nwhite,100.5,0.3127,0.329\n");
    QTest::newRow("no header") << QByteArray("white,100.5,0.3127,0.329\n");
    QTest::newRow("no line end") << QByteArray("white,100.5,0.3127,0.329");
    QTest::newRow("spaces") << QByteArray(" white , 100.5,  0.3127 ,0.329 ");
    QTest::newRow("semicolons and commas") << QByteArray("Name;Y;x;y\nwhite;100,5;0,3127;0,329\n");
    QTest::newRow("tabs") << QByteArray("white\t100.5\t0.3127\t0.329\n");
    QTest::newRow("quotes") << QByteArray("\"name\",\"Y\",\"x\",\"y\"\n\"white\",\"100.5\",0.3127,0.329\n");
    QTest::newRow("exponents") << QByteArray("white,1.005e2,3127e-4,0.329\n");
    QTest::newRow("more columns") << QByteArray("white,100.5,0.3127,0.329,6504,\n");
    QTest::newRow("old line ends") << QByteArray("name,Y,x,y\rwhite,100.5,0.3127,0.329\r");
}

void MeasurementListTest::reads()
{
    QFETCH(QByteArray, text);
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements.size(), 1);
    const Measurement &white = list->measurements[0];
    QCOMPARE(white.name, QStringLiteral("white"));
    QVERIFY(white.color && white.color->Y == 100.5 && white.color->x == 0.3127 && white.color->y == 0.329);
    QVERIFY(white.color->X == Model::Target::fromYxy(100.5, 0.3127, 0.329).X);
}

void MeasurementListTest::headerOrdersTheColumns()
{
    const auto list = readMeasurementList("time,x,y,NAME,Y\n12:00,0.3,0.32,white,90\n");
    QVERIFY2(list, qPrintable(list.error()));
    const Measurement &white = list->measurements[0];
    QCOMPARE(white.name, QStringLiteral("white"));
    QVERIFY(white.color && white.color->Y == 90.0 && white.color->x == 0.3 && white.color->y == 0.32);
}

void MeasurementListTest::numbersAreExact()
{
    const auto list = readMeasurementList("a,0.30000000000000004,0.1,0.2");
    QVERIFY(list);
    QVERIFY(list->measurements[0].color->Y == 0.1 + 0.2);
}

void MeasurementListTest::gamutOfFourColors()
{
    for (const QByteArray &text : {whole,
             QByteArray("b,100,0.15,0.05\nW,1000,0.28,0.29\nR,200,0.7,0.29\ng,700,0.2,0.7\n"
                        "grey 50 %,500,0.281,0.291\n")}) {
        const auto list = readMeasurementList(text);
        QVERIFY(list);
        const auto gamut = list->gamut(QStringLiteral("meter"));
        QVERIFY(gamut);
        QCOMPARE(gamut->colorGamutName(), std::string("meter"));
        const Model::Targets &targets = gamut->getTargets();
        QVERIFY(targets.red.Y == 200.0 && targets.red.x == 0.7);
        QVERIFY(targets.green.Y == 700.0 && targets.blue.Y == 100.0);
        QVERIFY(targets.white.Y == 1000.0 && targets.white.y == 0.29);
        QCOMPARE(list->others().size(), 1);
        QCOMPARE(list->others()[0].name, QStringLiteral("grey 50 %"));
    }
}

void MeasurementListTest::noGamut_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("blue missing") << QByteArray(whole).replace("Blue", "Violet");
    QTest::newRow("red twice") << QByteArray(whole).replace("grey 50 %", "red");
    QTest::newRow("red by both names") << QByteArray(whole).replace("grey 50 %", "R");
}

void MeasurementListTest::noGamut()
{
    QFETCH(QByteArray, text);
    const auto list = readMeasurementList(text);
    QVERIFY(list);
    QVERIFY(!list->gamut(QStringLiteral("meter")));
    QCOMPARE(list->others().size(), 5);
}

void MeasurementListTest::refusals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &text, const char *error) {
        QTest::newRow(name) << text << QString::fromUtf8(error);
    };
    row("empty", "", "contains no measurements");
    row("comments only", "# nothing\n\n", "contains no measurements");
    row("header only", "name,Y,x,y\n", "contains no measurements");
    row("Latin-1 behind a number", "a,1,0.3,0.3\xFF", "line 1, column y: not a number: \"0.3ÿ\"");
    row("binary", QByteArray("a,1,0.3,\0", 9), "is not UTF-8 text");
    row("quote not closed", "a,1,0.3,0.3\n\"b,1,0.3,0.3\n", "line 2: unterminated quote");
    row("column missing", "name,Y,x\na,1,0.3\n", "line 1: missing column y");
    row("luminance missing", "\nname,Q,x,y\na,1,0.3,0.3\n", "line 2: missing column Y");
    row("cut short", "a,1,0.3,0.3\nb,1,0.", "line 2, column y: missing");
    row("name missing", "a,1,0.3,0.3\n,1,0.3,0.3", "line 2, column name: the name must not be empty");
    row("word for a number", "a,1,0.3,0.3\nb,1,x,0.3", "line 2, column x: not a number: \"x\"");
    row("empty number", "a,,0.3,0.3", "line 1, column Y: not a number: \"\"");
    row("NaN", "a,1,nan,0.3", "line 1, column x: not a number: \"nan\"");
    row("infinite", "a,inf,0.3,0.3", "line 1, column Y: not a number: \"inf\"");
    row("overflow", "a,1e999,0.3,0.3", "line 1, column Y: not a number: \"1e999\"");
    row("negative luminance", "a,-1,0.3,0.3", "line 1, column Y: luminance must not be negative");
    row("negative x", "a,1,-0.3,0.3", "line 1, column x: a chromaticity coordinate must not be negative");
    row("y zero", "a,1,0.3,0", "line 1, column y: y must be greater than 0");
    row("gamut of one point", "R,1,0.3,0.3\nG,1,0.3,0.3\nB,1,0.3,0.3\nW,3,0.3,0.3",
        "the primaries do not form a triangle");
    row("gamut on a line", "R,1,0.6,0.3\nG,1,0.4,0.3\nB,1,0.2,0.3\nW,3,0.3,0.3",
        "the primaries do not form a triangle");
    row("beyond the diagram", "a,1,0.6,0.5", "line 1, column x: x + y must not exceed 1");
}

void MeasurementListTest::refusals()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QCOMPARE(errorOf(text), error);
}

QTEST_GUILESS_MAIN(MeasurementListTest)
#include "measurementlisttest.moc"
