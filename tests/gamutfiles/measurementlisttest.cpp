// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementlist.h>

#include <QtTest>

#include <algorithm>
#include <cmath>

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

    void systemsOfCoordinates_data();
    void systemsOfCoordinates();
    void luminanceOfTwoColumns();
    void surestLuminance_data();
    void surestLuminance();
    void lightnessIsNoLuminance();
    void otherObserver();
    void textBeforeTheHeader();
    void emptyColumnsAndLines();
    void linesWithoutNumbers();
    void thousands_data();
    void thousands();
    void decimalSignOfOtherColumns();
    void pointWhereCommasDivideFields();
    void units_data();
    void units();
    void footLamberts();
    void statedUnit();
    void lineOfUnits();
    void lineOfUnitsBelowUnits();
    void levels();
    void levelsOfAnUnknownScale();
    void colorTemperatureIsNotBlack();
    void languages_data();
    void languages();
    void black_data();
    void black();
    void luminanceWithoutChromaticity();
    void colorTwice();
    void chosenLine();
    void chosenName();
    void choiceWithoutMeasurement();
    void missingWhite();
    void whiteAsSum();
    void missingPrimaries();
    void unlikelyTriangles();
    void optionsAreUsed();
    void cabinets();
    void chosenCabinet();
    void cabinetsByRowAndColumn();
    void letteredRows();
    void numbersOfLines();
    void sharedNumbersAreCabinets();
    void namelessLinesOfCabinets();
    void warningsOfCabinets();
    void warningsOfCabinetsEnd();
    void doubledColumn();
    void moreFieldsThanColumns();
    void dividedNumbers_data();
    void dividedNumbers();
    void namelessLines();
    void recognition();
    void messagesAreShort();
    void longest();
    void spreadsheets_data();
    void spreadsheets();
};

namespace {

const QByteArray whole = "name,Y,x,y\nRed,200,0.7,0.29\nGreen,700,0.2,0.7\nBlue,100,0.15,0.05\nWhite,1000,0.28,0.29\n"
                         "grey 50 %,500,0.281,0.291\n";

QString errorOf(const QByteArray &text, const MeasurementOptions &options = {})
{
    const auto list = readMeasurementList(text, options);
    return list ? QStringLiteral("taken") : list.error();
}

QStringList warningsOf(const QByteArray &text, const MeasurementOptions &options = {})
{
    const auto list = readMeasurementList(text, options);
    if (!list) {
        return {QStringLiteral("refused: ") + list.error()};
    }
    QStringList messages;
    for (const Problem &warning : list.warnings()) {
        messages.append(warning.message());
    }
    return messages;
}

//! The warnings of a list without all of the colours of a gamut, but for the last one, which says so.
QStringList otherWarningsOf(const QByteArray &text, const MeasurementOptions &options = {})
{
    QStringList messages = warningsOf(text, options);
    if (messages.isEmpty() || !messages.last().startsWith("there is no gamut; missing: ")) {
        return {QStringLiteral("nothing says that there is no gamut")};
    }
    messages.removeLast();
    return messages;
}

QStringList namesOf(const QVector<Measurement> &measurements)
{
    QStringList names;
    for (const Measurement &measurement : measurements) {
        names.append(measurement.name);
    }
    return names;
}

//! The whole list with a known unit.
const QByteArray known = QByteArray(whole).replace("name,Y", "name,Lv");

bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-9 * std::max(1.0, std::abs(b));
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

void MeasurementListTest::systemsOfCoordinates_data()
{
    QTest::addColumn<QByteArray>("text");
    // D65 at 100 cd/m2: x 0.3127, y 0.329, u' 0.19783, v' 0.46832, X 95.0456, Z 108.9058.
    QTest::newRow("x, y, Y") << QByteArray("name,x,y,Y\nwhite,0.3127,0.3290,100\n");
    QTest::newRow("u', v', Y") << QByteArray("name,Lv,u',v'\nwhite,100,0.1978300066,0.4683199949\n");
    QTest::newRow("primes") << QByteArray("name;Lv;CIE u′;CIE v′\nwhite;100;0,1978300066;0,4683199949\n");
    QTest::newRow("X, Y, Z") << QByteArray("name,X,Y,Z\nwhite,95.0455927,100,108.9057751\n");
    QTest::newRow("XYZ and xy") << QByteArray("name,X,Y,Z,x,y\nwhite,1,100,1,0.3127,0.3290\n");
    QTest::newRow("xy and u'v'") << QByteArray("name,u',v',Y,x,y\nwhite,0.1,0.1,100,0.3127,0.3290\n");
    QTest::newRow("relative XYZ and Lv") << QByteArray("name,X,Y,Z,Lv\nwhite,.950455927,1,1.089057751,100\n");
    QTest::newRow("field names of CGATS")
        << QByteArray("SAMPLE_NAME\tXYY_X\tXYY_Y\tXYY_CAPY\nwhite\t0,3127\t0,3290\t100\n");
    QTest::newRow("Chinese") << QByteArray("名称,亮度,色坐标x,色坐标y\nwhite,100,0.3127,0.3290\n");
}

void MeasurementListTest::systemsOfCoordinates()
{
    QFETCH(QByteArray, text);
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    const auto &color = list->measurements[0].color;
    QVERIFY(color);
    QVERIFY(std::abs(color->Y - 100.0) < 1e-9);
    QVERIFY(std::abs(color->x - 0.3127) < 1e-8 && std::abs(color->y - 0.329) < 1e-8);
}

void MeasurementListTest::luminanceOfTwoColumns()
{
    // Instruments list the relative Y beside Lv.
    const auto withLv = readMeasurementList("name,Y,Lv,x,y\nwhite,1,200,0.3,0.3\n");
    QCOMPARE(withLv->measurements[0].luminance, 200.0);
    QCOMPARE(withLv->unit, LuminanceUnit::CandelaPerSquareMetre);
    const auto withUnit = readMeasurementList("name,Luminance,Y (cd/m2),x,y\nwhite,1,200,0.3,0.3\n");
    QCOMPARE(withUnit->measurements[0].luminance, 200.0);
}

void MeasurementListTest::surestLuminance_data()
{
    QTest::addColumn<QString>("read");
    for (const char *headers :
        {"Brightness,Y", "Helligkeit,Y", "brillo,Y", "L,Y", "FL,Y", "Luminance,Y", "Luminance,Lv", "Luminance (%),Lv",
            "L (%),Y", "Luminance (%),nits", "Y (%),Luminance (cd/m2)", "Y,Lv", "Lv (%),Y (cd/m2)", "Y [1],Lv"}) {
        const QByteArray both(headers);
        const QByteArray first = both.left(both.indexOf(','));
        const QByteArray second = both.mid(both.indexOf(',') + 1);
        QTest::newRow(headers) << QString::fromUtf8(second);
        QTest::newRow((second + ',' + first).constData()) << QString::fromUtf8(second);
    }
}

void MeasurementListTest::surestLuminance()
{
    QFETCH(QString, read);
    const QByteArray headers(QTest::currentDataTag());
    const bool isFirst = headers.startsWith(read.toUtf8() + ',');
    const QByteArray text = "name,x,y," + headers + "\na,0.3,0.4," + (isFirst ? "200,1" : "1,200");
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, 200.0);
    QCOMPARE(warningsOf(text).first(),
        QStringLiteral("line 1: 2 columns give a luminance: column %1, \"%2\", is read")
            .arg(isFirst ? 4 : 5)
            .arg(read));
}

void MeasurementListTest::lightnessIsNoLuminance()
{
    QCOMPARE(errorOf("name,x,y,L,a,b\nwhite,0.3,0.3,100,0,0"), QStringLiteral("line 1: missing column Y"));
    const auto list = readMeasurementList("name,L,a*,b*,x,y,Lv\nwhite,100,0,0,0.3,0.3,200");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, 200.0);
    QVERIFY(readMeasurementList("name,L,a,x,y\nwhite,100,0,0.3,0.3"));
}

void MeasurementListTest::otherObserver()
{
    for (const char *header :
        {"X (10°),Y (10°),Z (10°)", "X (1964),Y (1964),Z (1964)", "X [CIE 1964],Y (CIE 1964),Z (10 deg)"}) {
        QCOMPARE(errorOf(QByteArray("name,") + header + "\na,20,30,40"),
            QStringLiteral("line 1: the columns are of the 10° observer: those of CIE 1931 (2°) are needed"));
    }
    const QByteArray both = "name,X (10°),Y (10°),Z (10°),X,Y,Z\na,20,30,40,50,60,70";
    QCOMPARE(readMeasurementList(both)->measurements[0].luminance, 60.0);
    QCOMPARE(warningsOf(both).first(), QStringLiteral("line 1: column 2 is of the 10° observer and is not read"));
}

void MeasurementListTest::textBeforeTheHeader()
{
    const auto list = readMeasurementList(
        "Report, of the wall\nDate;2024-05-01\nx,is,not,a,header\n\nPatch;Lv;x;y;\nred;1,5;0,3;0,4;\n");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->recognized.headerLine, 5);
    QCOMPARE(namesOf(list->measurements), QStringList{"red"});
    QCOMPARE(list->measurements[0].luminance, 1.5);
    QCOMPARE(list->measurements[0].line, 6);
}

void MeasurementListTest::emptyColumnsAndLines()
{
    const QByteArray text = "name;Lv;x;y;;;\n;;;;;;\na;1;0,3;0,4;;;\n;;;;;;\nb;2;0,3;0,4\n;;\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(namesOf(list->measurements), (QStringList{"a", "b"}));
    QVERIFY(otherWarningsOf(text).isEmpty());
}

void MeasurementListTest::linesWithoutNumbers()
{
    const QByteArray text = "name,Lv,x,y\na,1,0.3,0.4\nSecond run,,,\nOperator: X\nb,2,0.3,0.4\n";
    QCOMPARE(namesOf(readMeasurementList(text)->measurements), (QStringList{"a", "b"}));
    QCOMPARE(otherWarningsOf(text), QStringList{"line 3: has no numbers and is not read; so in 1 further line(s)"});
}

void MeasurementListTest::thousands_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("luminance"); // -1: refused
    QTest::addColumn<QString>("separators");
    const auto row = [](const char *name, const QByteArray &text, double luminance, const char *separators) {
        QTest::newRow(name) << text << luminance << QString::fromUtf8(separators);
    };
    row("English", "name;Lv;x;y\na;1,234.5;0.3;0.4", 1234.5, ",");
    row("German", "name;Lv;x;y\na;1.234,5;0,3;0,4", 1234.5, ".");
    row("French", "name;Lv;x;y\na;1 234,5;0,3;0,4", 1234.5, " ");
    row("narrow no-break space", "name;Lv;x;y\na;1\u202F234,5;0,3;0,4", 1234.5, "\u202F");
    row("no-break space of Latin-1",
        "name;Lv;x;y\na;1\xA0"
        "234,5;0,3;0,4",
        1234.5, "\u00A0");
    row("Swiss", "name;Lv;x;y\na;1'234.5;0.3;0.4", 1234.5, "'");
    row("by the chromaticity: comma divides", "name;Lv;x;y\na;1,234;0.3;0.4", 1234.0, ",");
    row("by the chromaticity: comma is decimal", "name;Lv;x;y\na;1,234;0,3;0,4", 1.234, "");
    row("by another line", "name;X;Y;Z\na;5,678;1,234;9,012\nb;1,5;2,5;3,5", 1.234, "");
    row("by a million", "name;X;Y;Z\na;5,678;1,234;9,012\nb;1,234,567;2,000;3,000", 1234.0, ",");
    row("quoted between commas", "name,Lv,x,y\na,\"1,234.5\",0.3,0.4", 1234.5, ",");
    row("nothing tells", "name;X;Y;Z\na;5,678;1,234;9,012", -1.0,
        "line 2, column X: \"5,678\" can be 5678 or 5.678, and "
        "no other number that is read tells: state the decimal sign");
    row("nothing tells, points", "name\tX\tY\tZ\na\t5.678\t1.234\t9.012", -1.0,
        "line 2, column X: \"5.678\" can be 5678 "
        "or 5.678, and no other number that is read tells: state the decimal sign");
    row("nothing tells between commas", "name,X,Y,Z\na,\"5,678\",\"1,234\",\"9,012\"", -1.0,
        "line 2, column X: \"5,678\" "
        "can be 5678 or 5.678, and no other number that is read tells: state the decimal sign");
    row("both signs", "name;Lv;x;y\na;1;0.3;0.4\nb;1;0,3;0,4", -1.0,
        "line 3, column x: \"0,3\" has a decimal comma, but "
        "\"0.3\" (line 2, column x) has a decimal point: state the decimal sign");
    row("decimal commas between commas", "name,Lv,x,y\na,100,5,0,3127,0,329", -1.0,
        "line 2, column y: y must be greater than 0");
}

void MeasurementListTest::thousands()
{
    QFETCH(QByteArray, text);
    QFETCH(double, luminance);
    QFETCH(QString, separators);
    const auto list = readMeasurementList(text);
    if (luminance < 0.0) {
        QVERIFY(!list);
        QCOMPARE(list.error(), separators);
        return;
    }
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, luminance);
    QCOMPARE(list->recognized.thousandsSeparators, separators);
}

void MeasurementListTest::decimalSignOfOtherColumns()
{
    // The temperature has a decimal comma and is not read.
    const auto list = readMeasurementList("name;X;Y;Z;T\na;5,678;1,234;9,012;6504,3");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, 1.234);
    QVERIFY(!readMeasurementList("name;X;Y;Z;T;D\na;5,678;1,234;9,012;6504,3;0.1"));
    // It may not make thousands of what could be decimals.
    QCOMPARE(errorOf("name;X;Y;Z;T\na;5.678;1.234;9.012;6504,3"),
        QStringLiteral(
            "line 2, column X: \"5.678\" can be 5678 or 5.678, and no other number that is read tells: state "
            "the decimal sign"));
    QVERIFY(!readMeasurementList("name;X;Y;Z;T\na;5,678;1,234;9,012;1.5"));
    QVERIFY(!readMeasurementList("name,X,Y,Z,T\na,5.678,1.234,9.012,\"6504,3\""));
}

void MeasurementListTest::pointWhereCommasDivideFields()
{
    const QByteArray text = "name,X,Y (cd/m2),Z\na,5.678,1.234,9.012";
    QCOMPARE(readMeasurementList(text)->measurements[0].luminance, 1.234);
    QCOMPARE(otherWarningsOf(text),
        QStringList{"line 2, column X: \"5.678\" is read with a decimal point; state the decimal sign if the "
                    "point divides thousands"});
}

void MeasurementListTest::units_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QStringList>("warnings");
    const auto row = [](const char *header, LuminanceUnit unit, const QStringList &warnings = {}) {
        QTest::newRow(header) << QByteArray(header) << int(unit) << warnings;
    };
    row("Lv", LuminanceUnit::CandelaPerSquareMetre);
    row("Y (cd/m2)", LuminanceUnit::CandelaPerSquareMetre);
    row("nits", LuminanceUnit::CandelaPerSquareMetre);
    row("Lv [1]", LuminanceUnit::Relative);
    row("Lv (-)", LuminanceUnit::NotKnown,
        {"line 1, column Lv (-): the unit \"-\" is not known: the luminances are read as numbers of an unknown unit"});
    row("Y (%)", LuminanceUnit::Relative);
    row("Y", LuminanceUnit::NotKnown, {"line 1, column Y: the unit of the luminances is not stated"});
    row("L", LuminanceUnit::NotKnown, {"line 1, column L: the unit of the luminances is not stated"});
    row("Y (asb)", LuminanceUnit::NotKnown,
        {"line 1, column Y (asb): the unit \"asb\" is not known: the luminances are read as "
         "numbers of an unknown unit"});
}

void MeasurementListTest::units()
{
    QFETCH(QByteArray, header);
    QFETCH(int, unit);
    QFETCH(QStringList, warnings);
    const QByteArray text = QByteArray(whole).replace("name,Y", "name," + header);
    const auto list = readMeasurementList(text);
    QVERIFY(list);
    QCOMPARE(int(list->unit), unit);
    QCOMPARE(int(list->gamut(QString())->unit), unit);
    QCOMPARE(warningsOf(text), warnings);
    QCOMPARE(list->measurements[0].luminance, 200.0);
}

void MeasurementListTest::footLamberts()
{
    const QByteArray text = "name,Y (fL),x,y\nwhite,100,0.3,0.3";
    const auto list = readMeasurementList(text);
    QVERIFY(list);
    // NIST SP 811: 1 fL = 3.426 259 cd/m2.
    QVERIFY(std::abs(list->measurements[0].luminance - 342.6259) < 5e-5);
    QCOMPARE(list->measurements[0].color->Y, list->measurements[0].luminance);
    QCOMPARE(list->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(list->recognized.unit, MeasuredUnit::FootLambert);
    QCOMPARE(otherWarningsOf(text),
        QStringList{"line 1, column Y (fL): the luminances are converted from foot-lamberts to cd/m²"});
    const auto tristimulus = readMeasurementList("name,X,Y (fL),Z\nwhite,100,100,100");
    QVERIFY(isNear(tristimulus->measurements[0].color->Y, list->measurements[0].luminance));
    QVERIFY(isNear(tristimulus->measurements[0].color->x, 1.0 / 3.0));
}

void MeasurementListTest::statedUnit()
{
    MeasurementOptions options;
    options.unit = MeasuredUnit::CandelaPerSquareMetre;
    const QByteArray text = "name,Y (fL),x,y\nwhite,100,0.3,0.3";
    const auto list = readMeasurementList(text, options);
    QCOMPARE(list->measurements[0].luminance, 100.0);
    QCOMPARE(list->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(otherWarningsOf("name,Y (fL),x,y\nwhite,100,0.3,0.3", options),
        QStringList("line 1, column Y (fL): states foot-lambert; cd/m² was chosen"));
    QCOMPARE(otherWarningsOf("name,Y (lux),x,y\nwhite,100,0.3,0.3", options),
        QStringList("line 1, column Y (lux): states \"lux\"; cd/m² was chosen"));
    // Where the list says the same, or nothing, there is nothing to tell.
    QVERIFY(otherWarningsOf("name,Lv,x,y\nwhite,100,0.3,0.3", options).isEmpty());
    QVERIFY(otherWarningsOf("name,Y,x,y\nwhite,100,0.3,0.3", options).isEmpty());
    // The line of units is named where it is that one that says so.
    options.unit = MeasuredUnit::Relative;
    QCOMPARE(otherWarningsOf("Patch;Y;x;y\n;[cd/m²];-;-\nwhite;100,5;0,3;0,4", options),
        QStringList("line 2, column Y: states cd/m²; relative was chosen"));
    options.unit = MeasuredUnit::FootLambert;
    QCOMPARE(otherWarningsOf("name,Lv,x,y\nwhite,100,0.3,0.3", options),
        (QStringList{"line 1, column Lv: states cd/m²; foot-lambert was chosen",
            "line 1, column Lv: the luminances are converted from foot-lamberts to cd/m²"}));
}

void MeasurementListTest::lineOfUnits()
{
    const QByteArray text = "Patch;Y;x;y\n;[cd/m²];-;-\nwhite;100,5;0,3;0,4";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements.size(), 1);
    QCOMPARE(list->unit, LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(otherWarningsOf(text).isEmpty());
    QVERIFY(!readMeasurementList("Patch;Y;x;y\n;asb;-;-\nwhite;100,5;0,3;0,4"));
}

void MeasurementListTest::lineOfUnitsBelowUnits()
{
    const auto list = readMeasurementList("Patch;Lv;x;y\n;fL;;\nwhite;100;0,3;0,4");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->recognized.unit, MeasuredUnit::FootLambert);
    QVERIFY(std::abs(list->measurements[0].luminance - 342.6259) < 5e-5);
    QVERIFY(readMeasurementList("Patch;Lv (cd/m2);x;y\n;nits;;\nwhite;100;0,3;0,4"));
    const QByteArray contradicting = "Patch;Lv (cd/m2);x;y\n;fL;;\nwhite;100;0,3;0,4";
    QCOMPARE(errorOf(contradicting),
        QStringLiteral("line 2, column Lv (cd/m2): the unit \"fL\" is not that of the line of the names, \"cd/m2\": "
                       "state the unit"));
    MeasurementOptions options;
    options.unit = MeasuredUnit::FootLambert;
    QVERIFY(readMeasurementList(contradicting, options));
    const auto dashes = readMeasurementList("Patch;Lv;x;y\n;-;-;-\nwhite;100;0,3;0,4");
    QVERIFY2(dashes, qPrintable(dashes.error()));
    QCOMPARE(dashes->recognized.unit, MeasuredUnit::CandelaPerSquareMetre);
    QCOMPARE(dashes->measurements.size(), 1);
}

void MeasurementListTest::levels()
{
    const auto list = readMeasurementList("name,Lv,x,y\nRed 50 %,50,0.7,0.29\nRed 100 %,200,0.7,0.29\nG 64,70,0.2,0.7\n"
                                          "G 255,700,0.2,0.7\nBlue 1.0,1,0.3,0.3\nBlue 255/255,100,0.15,0.05\n"
                                          "W 128,500,0.28,0.29\nWhite,1000,0.28,0.29\n");
    QVERIFY(list);
    QCOMPARE(list->recognized.fullLevel.value_or(0.0), 255.0);
    const auto gamut = list->gamut(QStringLiteral("wall"));
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().red.Y, 200.0);
    QCOMPARE(gamut->getTargets().green.Y, 700.0);
    QCOMPARE(gamut->getTargets().blue.Y, 100.0);
    QCOMPARE(gamut->getTargets().white.Y, 1000.0);
    QCOMPARE(namesOf(list->others()), (QStringList{"Red 50 %", "G 64", "Blue 1.0", "W 128"}));
}

void MeasurementListTest::levelsOfAnUnknownScale()
{
    const QByteArray text = "name,Lv,x,y\nR 64,50,0.7,0.29\nG 64,70,0.2,0.7\nB 64,10,0.15,0.05\nW 64,100,0.28,0.29\n";
    const auto list = readMeasurementList(text);
    QVERIFY(list && !list->gamut(QString()));
    QCOMPARE(otherWarningsOf(text),
        QStringList{"line 2: the full level of \"R 64\" is not known: no level without a unit is taken as "
                    "the full one"});
}

void MeasurementListTest::colorTemperatureIsNotBlack()
{
    const auto list = readMeasurementList("name,Lv,x,y\n5000 K,50,0.34,0.35\n");
    QVERIFY(list && !list->black());
    QCOMPARE(list->measurements[0].part, MeasurementPart::None);
}

void MeasurementListTest::languages_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("English") << QStringList{"Red", "Green", "Blue", "White"};
    QTest::newRow("initials") << QStringList{"R", "G", "B", "W"};
    QTest::newRow("German") << QStringList{"rot", "Grün", "blau", "Weiß"};
    QTest::newRow("French") << QStringList{"Rouge 100%", "Vert 100%", "Bleu 100%", "Blanc 100%"};
    QTest::newRow("Spanish") << QStringList{"Rojo", "Verde", "Azul", "Blanco"};
    QTest::newRow("Chinese") << QStringList{"红", "绿", "蓝", "白场"};
    QTest::newRow("mixed") << QStringList{"红", "vert", "B 255", "White 100 %"};
}

void MeasurementListTest::languages()
{
    QFETCH(QStringList, names);
    QByteArray text = known;
    text.replace("Red", names[0].toUtf8()).replace("Green", names[1].toUtf8()).replace("Blue", names[2].toUtf8());
    text.replace("White", names[3].toUtf8());
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list.warnings().isEmpty());
    const auto gamut = list->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().blue.Y, 100.0);
    QCOMPARE(list->recognized.parts.size(), 4);
}

void MeasurementListTest::black_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("luminance");
    QTest::newRow("zeros") << QByteArray("name,Lv,x,y\nBlack,0,0,0\n") << 0.0;
    QTest::newRow("zeros of XYZ") << QByteArray("name,X,Y (cd/m2),Z\nblack,0,0,0\n") << 0.0;
    QTest::newRow("no Y") << QByteArray("name,X,Y (cd/m2),Z\nblack,0.001,0,0.002\n") << 0.0;
    QTest::newRow("zeros of u'v'") << QByteArray("name,Lv,u',v'\nblack,0,0,0\n") << 0.0;
    QTest::newRow("German") << QByteArray("name;Lv;x;y\nSchwarz;0,000;0,0000;0,0000\n") << 0.0;
    QTest::newRow("dashes") << QByteArray("name,Lv,x,y\nBlack,0,---,---\n") << 0.0;
    QTest::newRow("nothing") << QByteArray("name,Lv,x,y\nBlack,0,,\n") << 0.0;
}

void MeasurementListTest::black()
{
    QFETCH(QByteArray, text);
    QFETCH(double, luminance);
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(otherWarningsOf(text).isEmpty());
    QVERIFY(list->black());
    QCOMPARE(list->black()->luminance, luminance);
    QVERIFY(!list->black()->color);
    const QByteArray doubled = text + text.mid(text.indexOf('\n') + 1);
    QVERIFY(!readMeasurementList(doubled)->black());
    const QStringList warnings = otherWarningsOf(doubled);
    QCOMPARE(warnings.size(), 1);
    QVERIFY(warnings[0].contains("black is there more than once"));
}

void MeasurementListTest::luminanceWithoutChromaticity()
{
    const QByteArray text = "name,Lv,x,y\nBlack,0.003,0,0\n";
    const auto list = readMeasurementList(text);
    QCOMPARE(list->black()->luminance, 0.003);
    QCOMPARE(otherWarningsOf(text), QStringList{"line 2: has a luminance but no chromaticity"});
    const QByteArray red = QByteArray(known).replace("0.7,0.29", "0,0");
    QVERIFY(!readMeasurementList(red)->gamut(QString()));
    QCOMPARE(warningsOf(red),
        (QStringList{
            "line 2: has a luminance but no chromaticity", "line 2: red has no chromaticity: there is no gamut"}));
}

void MeasurementListTest::colorTwice()
{
    const QByteArray text = QByteArray(known).replace("grey 50 %", "rot");
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    QCOMPARE(warningsOf(text),
        QStringList{"line 6: red is there more than once, first in line 2: there is no gamut; choose "
                    "the line or the name that is red"});
}

void MeasurementListTest::chosenLine()
{
    const QByteArray text = QByteArray(known).replace("grey 50 %,500,0.281,0.291", "Red,210,0.69,0.3");
    MeasurementOptions options;
    options.red.line = 6;
    const auto list = readMeasurementList(text, options);
    QVERIFY(list.warnings().isEmpty());
    QCOMPARE(list->gamut(QString())->getTargets().red.Y, 210.0);
    QCOMPARE(namesOf(list->others()), QStringList{"Red"});
    QCOMPARE(list->others()[0].luminance, 200.0);
}

void MeasurementListTest::chosenName()
{
    const QByteArray text
        = "name,Lv,x,y\nP1,200,0.7,0.29\nP2,700,0.2,0.7\nP3,100,0.15,0.05\nP4,1000,0.28,0.29\nRed,1,.3,.3\n";
    MeasurementOptions options;
    options.red.name = QStringLiteral("p1");
    options.green.name = QStringLiteral("P2");
    options.blue.name = QStringLiteral(" P3 ");
    options.white.name = QStringLiteral("P4");
    const auto list = readMeasurementList(text, options);
    QVERIFY(list && list.warnings().isEmpty());
    const auto gamut = list->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().red.Y, 200.0);
    QCOMPARE(gamut->getTargets().white.Y, 1000.0);
    QCOMPARE(namesOf(list->others()), QStringList{"Red"});
}

void MeasurementListTest::choiceWithoutMeasurement()
{
    MeasurementOptions options;
    options.white.name = QStringLiteral("Weiß");
    QCOMPARE(errorOf(known, options), QStringLiteral("no measurement is called \"Weiß\""));
    options.white.line = 1;
    QCOMPARE(errorOf(known, options), QStringLiteral("line 1 has no measurement to choose"));
}

void MeasurementListTest::missingWhite()
{
    const QByteArray text = QByteArray(known).replace("White", "grey");
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    QCOMPARE(warningsOf(text),
        QStringList{"white is missing: there is no gamut; choose a measurement as white, or ask for the "
                    "sum of red, green and blue"});
}

void MeasurementListTest::whiteAsSum()
{
    MeasurementOptions options;
    options.whiteIsSum = true;
    const QByteArray text = "name,X,Y (cd/m2),Z\nR,41,21,2\nG,36,72,12\nB,18,7,95\n";
    const auto list = readMeasurementList(text, options);
    QVERIFY(list);
    const auto gamut = list->gamut(QString());
    QVERIFY(gamut);
    const Model::Target &white = gamut->getTargets().white;
    QVERIFY(isNear(white.Y, 100.0) && isNear(white.X, 95.0) && isNear(white.Z, 109.0));
    QCOMPARE(
        warningsOf(text, options), QStringList{"white is missing: the sum of red, green and blue is taken as white"});
    // A measured white comes first.
    QCOMPARE(readMeasurementList(known, options)->gamut(QString())->getTargets().white.Y, 1000.0);
    QVERIFY(warningsOf(known, options).isEmpty());
}

void MeasurementListTest::missingPrimaries()
{
    const QByteArray text = QByteArray(known).replace("Blue", "Violet");
    const QString choose = QStringLiteral("; choose the lines or the names that are these colours");
    QCOMPARE(warningsOf(text), QStringList{"there is no gamut; missing: blue" + choose});
    QCOMPARE(warningsOf(QByteArray(text).replace("White", "grey")),
        QStringList{"there is no gamut; missing: blue, white" + choose});
    QCOMPARE(warningsOf(QByteArray(text).replace("Red", "punainen").replace("Green", "zelena")),
        QStringList{"there is no gamut; missing: red, green, blue" + choose});
    QCOMPARE(warningsOf("name,Lv,x,y\npunainen,1,0.3,0.3\n"),
        QStringList{"there is no gamut; missing: red, green, blue, white" + choose});
}

void MeasurementListTest::unlikelyTriangles()
{
    const QByteArray exchanged
        = QByteArray(known).replace("Red", "x").replace("Green", "Red").replace("\nx,", "\nGreen,");
    QVERIFY(readMeasurementList(exchanged)->gamut(QString()));
    QCOMPARE(
        warningsOf(exchanged), QStringList{"red, green and blue lie clockwise in x, y: two of them may be exchanged"});
    const QByteArray outside = QByteArray(known).replace("White,1000,0.28,0.29", "White,1000,0.1,0.5");
    QCOMPARE(warningsOf(outside), QStringList{"the white lies outside of the triangle of the primaries"});
    QCOMPARE(warningsOf(known), QStringList());
}

void MeasurementListTest::optionsAreUsed()
{
    MeasurementOptions options;
    options.separator = QLatin1Char('|');
    options.decimalSign = QLatin1Char(',');
    options.encoding = TextEncoding::Windows1252;
    const auto list = readMeasurementList("name|X|Y|Z\nGr\xF6\xDF"
                                          "e|5,678|1,234|9,012",
        options);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, 1.234);
    QCOMPARE(list->measurements[0].name, QStringLiteral("Größe"));
    options.decimalSign = QLatin1Char('.');
    QCOMPARE(readMeasurementList("name|X|Y|Z\na|5,678|1,234|9,012", options)->measurements[0].luminance, 1234.0);
    options.decimalSign = QLatin1Char('x');
    QCOMPARE(errorOf("a|1|0.3|0.3", options), QStringLiteral("the decimal sign must be a point or a comma"));
}

void MeasurementListTest::cabinets()
{
    const auto list
        = readMeasurementList("Cabinet,name,Lv,x,y\nA1,R,200,0.7,0.29\nA1,G,700,0.2,0.7\nA2,R,210,0.7,0.29\n"
                              "A1,B,100,0.15,0.05\nA1,W,1000,0.28,0.29\nA2,G,710,0.2,0.7\n"
                              "A2,B,110,0.15,0.05\nA2,W,1010,0.28,0.29\n");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list.warnings().size(), 1);
    QCOMPARE(list.warnings().first().message(),
        QStringLiteral("2 cabinets (A1, A2): there is no measured gamut of all of them; choose a cabinet"));
    QVERIFY(!list->gamut(QString()));
    QCOMPARE(list->others().size(), 8);
    const QVector<CabinetMeasurements> cabinets = list->cabinets();
    QCOMPARE(cabinets.size(), 2);
    QCOMPARE(cabinets[1].cabinet, QStringLiteral("A2"));
    QCOMPARE(cabinets[1].list.measurements.size(), 4);
    const auto gamut = cabinets[1].list.gamut(QStringLiteral("A2"));
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().red.Y, 210.0);
    QCOMPARE(gamut->unit, LuminanceUnit::CandelaPerSquareMetre);
    // Colours of different cabinets make no gamut.
    const auto scattered = readMeasurementList("Cabinet,name,Lv,x,y\nA1,R,200,0.7,0.29\nA1,G,700,0.2,0.7\n"
                                               "A2,B,110,0.15,0.05\nA2,W,1010,0.28,0.29\n");
    QVERIFY(scattered && !scattered->gamut(QString()));
    // One cabinet is the display.
    const auto single
        = readMeasurementList(QByteArray(known).replace("name", "Cabinet,name").replace("\n", "\nA,").chopped(2));
    QVERIFY2(single, qPrintable(single.error()));
    QVERIFY(single->gamut(QString()));
    QCOMPARE(single->cabinets().size(), 1);
    QVERIFY(readMeasurementList(known)->cabinets().isEmpty());
}

void MeasurementListTest::chosenCabinet()
{
    const QByteArray text = "Cabinet,name,Lv,x,y\nA1,R,200,0.7,0.29\nA1,G,700,0.2,0.7\nA2,R,210,0.7,0.29\n"
                            "A1,B,100,0.15,0.05\nA1,W,1000,0.28,0.29\nA2,G,710,0.2,0.7\n"
                            "A2,B,110,0.15,0.05\nA2,W,1010,0.28,0.29\n";
    MeasurementOptions options;
    options.cabinet = QStringLiteral(" a2 ");
    const auto list = readMeasurementList(text, options);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list.warnings().isEmpty());
    const auto gamut = list->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().white.Y, 1010.0);
    QCOMPARE(list->measurements.size(), 4);
    QCOMPARE(list->recognized.parts.size(), 4);
    options.cabinet = QStringLiteral("A3");
    QCOMPARE(errorOf(text, options), QStringLiteral("no cabinet is called \"A3\""));
    QCOMPARE(errorOf(known, options), QStringLiteral("no cabinet is called \"A3\""));
    // Colours are chosen in it.
    options.cabinet = QStringLiteral("A1");
    options.red.line = 4;
    QCOMPARE(errorOf(text, options), QStringLiteral("line 4 has no measurement to choose"));
    // By its place; its name alone is enough if no other cabinet has it.
    const QByteArray places = "Tile,Row,Column,name,Lv,x,y\nA,1,2,W,100,0.3,0.3\nA,1,3,W,101,0.3,0.3\n"
                              "B,1,4,W,102,0.3,0.3\n,1,5,W,103,0.3,0.3\n";
    options = MeasurementOptions();
    const auto luminanceOf = [&](const char *cabinet) {
        options.cabinet = QString::fromLatin1(cabinet);
        const auto one = readMeasurementList(places, options);
        return one && one->measurements.size() == 1 ? one->measurements[0].luminance : 0.0;
    };
    QCOMPARE(luminanceOf("A 1/3"), 101.0);
    QCOMPARE(luminanceOf("b"), 102.0);
    QCOMPARE(luminanceOf("1/5"), 103.0);
    options.cabinet = QStringLiteral("A");
    QCOMPARE(
        errorOf(places, options), QStringLiteral("several cabinets are called \"A\": A 1/2 and A 1/3, for example"));
}

void MeasurementListTest::cabinetsByRowAndColumn()
{
    const auto list = readMeasurementList("Row;Column;name;Lv;x;y\n1;2;W;100;0,3;0,3\n1;3;W;101;0,3;0,3\n");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[1].row.value_or(0), 1);
    QCOMPARE(list->measurements[1].column.value_or(0), 3);
    QCOMPARE(list->cabinets().size(), 2);
    QCOMPARE(list->cabinets()[0].column.value_or(0), 2);
    // A row alone counts the lines.
    QVERIFY(!readMeasurementList("Row,name,Lv,x,y\n1,W,100,0.3,0.3\n")->measurements[0].row);
}

void MeasurementListTest::letteredRows()
{
    const auto list = readMeasurementList("Row,Column,name,Lv,x,y\nA,2,W,100,0.3,0.3\nB,2,W,100,0.3,0.3\n");
    QVERIFY(list);
    QCOMPARE(list->measurements[0].cabinet, QStringLiteral("A/2"));
    QVERIFY(!list->measurements[0].row);
    QCOMPARE(list->cabinets().size(), 2);
}

void MeasurementListTest::numbersOfLines()
{
    const auto list = readMeasurementList("id,name,Lv,x,y\n1,R,200,0.7,0.29\n2,G,700,0.2,0.7\n3,B,100,0.15,0.05\n"
                                          "4,W,1000,0.28,0.29\n");
    QVERIFY(list && list->gamut(QString()));
    QVERIFY(list->cabinets().isEmpty());
    // Without a name the number is the name.
    QCOMPARE(namesOf(readMeasurementList("No.,Lv,x,y\n7,1,0.3,0.3\n")->measurements), QStringList{"7"});
}

void MeasurementListTest::sharedNumbersAreCabinets()
{
    const auto list = readMeasurementList("id,name,Lv,x,y\n1,R,200,0.7,0.29\n1,G,700,0.2,0.7\n2,R,100,0.7,0.29\n");
    QVERIFY(list);
    QCOMPARE(list->cabinets().size(), 2);
    QCOMPARE(list->measurements[2].cabinet, QStringLiteral("2"));
}

void MeasurementListTest::namelessLinesOfCabinets()
{
    const auto list = readMeasurementList("Module,Lv,x,y\nM1,200,0.3,0.3\nM2,201,0.3,0.3\n");
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list.warnings().isEmpty());
    QVERIFY(list->measurements[0].name.isEmpty());
    QCOMPARE(list->cabinets().size(), 2);
}

void MeasurementListTest::warningsOfCabinets()
{
    const QByteArray text
        = "Tile,Row,Column,name,Lv,x,y\nA,1,2,R,200,0.7,0.29\nA,1,2,G,700,0.2,0.7\nA,1,2,B,1,0.15,0.05\n"
          "B,1,3,R,1,0.3,0.3\nB,1,3,G,1,0.3,0.3\nB,1,3,B,1,0.3,0.3\nB,1,3,W,1,0.3,0.3\n";
    QCOMPARE(warningsOf(text),
        (QStringList{"2 cabinets (A 1/2, B 1/3): there is no measured gamut of all of them; choose a cabinet",
            "cabinet \"A\", row 1, column 2: white is missing: there is no gamut; choose a "
            "measurement as white, or ask for the sum of red, green and blue",
            "cabinet \"B\", row 1, column 3: the primaries do not form a triangle"}));
}

void MeasurementListTest::warningsOfCabinetsEnd()
{
    QByteArray text = "Tile,name,Lv,x,y\n";
    for (int i = 0; i < 100; ++i) {
        for (const char *name : {"R", "R"}) {
            text += QByteArray::number(i) + ',' + name + ",1,0.7,0.29\n";
        }
    }
    const QStringList warnings = warningsOf(text);
    QCOMPARE(warnings.size(), 22);
    QCOMPARE(warnings.first(),
        QStringLiteral("100 cabinets (0, 1, 2, 3, …): there is no measured gamut of all of them; choose a cabinet"));
    QCOMPARE(warnings.last(), QStringLiteral("further cabinets are not checked: there are too many warnings"));
}

void MeasurementListTest::doubledColumn()
{
    const QByteArray text = "name,Lv,x,y,CIE x\na,1,0.3,0.3,0.4\n";
    QCOMPARE(readMeasurementList(text)->measurements[0].color->x, 0.3);
    QCOMPARE(otherWarningsOf(text), QStringList{"line 1: columns 3 and 5 are both x: column 3 is read"});
}

void MeasurementListTest::moreFieldsThanColumns()
{
    const QByteArray text = "name,Lv,x,y\na,1,0.3,0.3,checked\nb,1,0.3,0.3,,\n";
    QCOMPARE(otherWarningsOf(text), QStringList{"line 2: has more fields than the line that names the columns"});
}

void MeasurementListTest::dividedNumbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("thousand") << QByteArray("name,Lv,x,y\na,1,000,0.3127,0.329") << false;
    QTest::newRow("thousand, no header") << QByteArray("a,1,000,0.3127,0.329") << false;
    QTest::newRow("thousand before a further column")
        << QByteArray("name,Lv,x,y,T\na,1,000,0.3127,0.329,6504") << false;
    QTest::newRow("decimal commas") << QByteArray("name,Lv,x,y\na,100,0,0,3127,0,329") << false;
    QTest::newRow("decimal commas, no header") << QByteArray("a,100,0,0,3127,0,329") << false;
    QTest::newRow("decimal commas of XYZ") << QByteArray("name,X,Y,Z\na,41,24,21,26,1,93") << false;
    QTest::newRow("thousand of XYZ") << QByteArray("name,X,Y,Z\na,1,234.5,900.1,700.2") << false;
    QTest::newRow("decimal commas of XYZ, padded header") << QByteArray("name,X,Y,Z,,,\na,41,24,21,26,1,93") << false;
    QTest::newRow("thousand of XYZ, padded header") << QByteArray("name,X,Y,Z,\na,1,234.5,900.1,700.2") << false;
    QTest::newRow("decimal commas, padded header") << QByteArray("name,Lv,x,y,,,\na,100,0,0,3127,0,329") << false;
    QTest::newRow("padded lines") << QByteArray("name,X,Y,Z,,\na,41.2,21.3,1.9,,") << true;
    QTest::newRow("semicolons") << QByteArray("name;Lv;x;y\na;1;000;0.3127;0.329") << true;
    QTest::newRow("further column, no header") << QByteArray("a,100.5,0.3127,0.329,6504") << true;
    QTest::newRow("black, no header") << QByteArray("a,0,0,0,0") << true;
    QTest::newRow("further column without a name") << QByteArray("name,Lv,x,y,\na,100.5,0.3127,0.329,6504") << true;
}

void MeasurementListTest::dividedNumbers()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isTaken);
    const QString line = QString::number(text.count('\n') + 1);
    const QString refused
        = QStringLiteral("line %1: the separator seems to divide numbers: quote them or use another separator")
              .arg(line);
    QCOMPARE(errorOf(text), isTaken ? QStringLiteral("taken") : refused);
}

void MeasurementListTest::namelessLines()
{
    const QByteArray text = "Lv,x,y\n200,0.7,0.29\n700,0.2,0.7\n100,0.15,0.05\n1000,0.28,0.29\n";
    QCOMPARE(warningsOf(text),
        QStringList{"line 1: no column names the measurements: choose the lines of red, green, blue and white"});
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    MeasurementOptions options;
    options.red.line = 2;
    options.green.line = 3;
    options.blue.line = 4;
    options.white.line = 5;
    const auto gamut = readMeasurementList(text, options)->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().white.Y, 1000.0);
}

void MeasurementListTest::recognition()
{
    const auto list = readMeasurementList(
        "\xEF\xBB\xBFWall\nPatch;Lv [cd/m²];CIE x;CIE y\nR 255;1.234,5;0,7;0,29\nSchwarz;0;0;0\n");
    QVERIFY2(list, qPrintable(list.error()));
    const MeasurementRecognition &recognized = list->recognized;
    QCOMPARE(recognized.encoding, TextEncoding::Utf8);
    QCOMPARE(recognized.separator, QChar(';'));
    QCOMPARE(recognized.decimalSign.value_or(QChar()), QChar(','));
    QCOMPARE(recognized.headerLine, 2);
    QCOMPARE(recognized.columns.size(), 4);
    QCOMPARE(recognized.columns[2].part, QStringLiteral("x"));
    QCOMPARE(recognized.columns[2].column, 3);
    QCOMPARE(recognized.columns[2].header, QStringLiteral("CIE x"));
    QCOMPARE(recognized.unit, MeasuredUnit::CandelaPerSquareMetre);
    QCOMPARE(recognized.parts.size(), 2);
    QCOMPARE(recognized.parts[1].part, MeasurementPart::Black);
    QCOMPARE(recognized.parts[1].line, 4);
    const QStringList lines{"Encoding: UTF-8", "Separator of the fields: semicolon", "Decimal sign: comma",
        "Thousands separator: point",
        "Columns, named in line 2: name in column 1 \"Patch\", Y in column 2 \"Lv [cd/m²]\", x in column 3 \"CIE x\", "
        "y in "
        "column 4 \"CIE y\"",
        "Unit of the luminances: cd/m² (the list says \"cd/m2\")", "Full level in names: 255", "Line 3, \"R 255\": red",
        "Line 4, \"Schwarz\": black"};
    QCOMPARE(recognized.text().split('\n'), lines);
    const auto plain = readMeasurementList("a,1,1,0\nb,1,1e-1,3e-1");
    QVERIFY(!plain); // y is 0
    const QString text = readMeasurementList("a,1,1e-1,3e-1")->recognized.text();
    QVERIFY(text.contains("Decimal sign: none\nColumns, which no line names: name in column 1, Y in column 2"));
    QVERIFY(text.contains("Unit of the luminances: not stated"));
}

void MeasurementListTest::messagesAreShort()
{
    const QByteArray text = "a,1,0.3,0.3\nb,1," + QByteArray(100000, 'z') + ",0.3";
    QCOMPARE(errorOf(text), "line 2, column x: not a number: \"" + QString(60, 'z') + QStringLiteral("…\""));
    // No half of a surrogate pair is left at the end.
    const QString error = errorOf("a,1," + QByteArray(59, 'z') + "\xF0\x9F\x94\xB4\xF0\x9F\x94\xB4,0.3");
    QVERIFY(error.endsWith("z…\""));
}

void MeasurementListTest::longest()
{
    QByteArray text = "a,1,0.3,0.3\n";
    text += QByteArray(maximumMeasurementBytes - text.size(), '#');
    QVERIFY(readMeasurementList(text));
    QCOMPARE(errorOf(text + "#"), QStringLiteral("is too large for a measurement list (more than 1024 KiB)"));
}

void MeasurementListTest::spreadsheets_data()
{
    QTest::addColumn<int>("encoding");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QChar>("decimalSign");
    const auto row = [](const char *file, TextEncoding encoding, char separator, char decimalSign) {
        QTest::newRow(file) << int(encoding) << QChar(separator) << QChar(decimalSign);
    };
    row("german-windows.csv", TextEncoding::Windows1252, ';', ',');
    row("french-utf8.csv", TextEncoding::Utf8, ';', ',');
    row("french-comma.csv", TextEncoding::Utf8, ',', ',');
    row("swiss-utf16.csv", TextEncoding::Utf16LittleEndian, '\t', '.');
    row("american-comma.csv", TextEncoding::Utf8, ',', '.');
    row("spanish-windows.csv", TextEncoding::Windows1252, ';', ',');
    row("chinese-gbk.csv", TextEncoding::Gb18030, ',', '.');
}

void MeasurementListTest::spreadsheets()
{
    QFETCH(int, encoding);
    QFETCH(QChar, separator);
    QFETCH(QChar, decimalSign);
    QFile file(QStringLiteral(LISTS "/%1").arg(QTest::currentDataTag()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto list = readMeasurementList(file.readAll());
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(int(list->recognized.encoding), encoding);
    QCOMPARE(list->recognized.separator, separator);
    QCOMPARE(list->recognized.decimalSign.value_or(QChar()), decimalSign);
    QCOMPARE(list->recognized.headerLine, 3);
    QCOMPARE(list.warnings().size(), 1);
    QCOMPARE(list.warnings()[0].message(), QStringLiteral("line 8: has a luminance but no chromaticity"));
    const auto gamut = list->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(gamut->getTargets().white.Y, 1928.9);
    QCOMPARE(gamut->getTargets().green.x, 0.1954);
    QVERIFY(list->black());
    QCOMPARE(list->black()->luminance, 0.003);
}

QTEST_GUILESS_MAIN(MeasurementListTest)
#include "measurementlisttest.moc"
