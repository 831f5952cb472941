// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementmessages.h"

#include <QtTest>

using namespace gamutfiles;

class MeasurementListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void gamutOfFourColors();
    void noGamut_data();
    void noGamut();
    void refusals_data();
    void refusals();
    void optionsAreUsed();
    void recognition();
    void messagesAreShort();
    void longest();
    void spreadsheets_data();
    void spreadsheets();
    void blackIsKeptWithTheGamut();
};

void MeasurementListTest::reads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("header") << QByteArray("name,Y,x,y\nwhite,100.5,0.3127,0.329\n");
    QTest::newRow("no header") << QByteArray("white,100.5,0.3127,0.329\n");
    QTest::newRow("no line end") << QByteArray("white,100.5,0.3127,0.329");
    QTest::newRow("spaces") << QByteArray(" white , 100.5,  0.3127 ,0.329 ");
    QTest::newRow("semicolons and commas") << QByteArray("Name;Y;x;y\nwhite;100,5;0,3127;0,329\n");
    QTest::newRow("tabs") << QByteArray("white\t100.5\t0.3127\t0.329\n");
    QTest::newRow("columns aligned by spaces")
        << QByteArray("name       Y      x      y\nwhite  100.5 0.3127  0.329 \n");
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
    row("measurement above the header", "Lab 3\nRed,21,0.64,0.33\nname,Y,x,y\nBlue,7,0.15,0.06\n",
        "line 2: is a measurement above the line that names the columns: move line 3 to the top");
    row("beyond the diagram", "a,1,0.6,0.5", "line 1, column x: x + y must not exceed 1");
}

void MeasurementListTest::refusals()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QCOMPARE(errorOf(text), error);
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
    QCOMPARE(errorOf(text + "#"), QStringLiteral("is too large for a measurement list (more than 8192 KiB)"));
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
    QVERIFY(!gamut->black); // it has no chromaticity
    QCOMPARE(gamut->blackLuminance, std::make_optional(0.003));
}

void MeasurementListTest::blackIsKeptWithTheGamut()
{
    const auto gamutWith = [](const char *black) {
        const auto list = readMeasurementList(QByteArray("name,Y (cd/m2),x,y\nred,230,0.68,0.31\n"
                                                         "green,650,0.2,0.72\nblue,120,0.14,0.06\n"
                                                         "white,1000,0.3127,0.329\n")
            + black);
        return list ? list->gamut(QString()) : std::nullopt;
    };
    const auto bright = gamutWith("black,8,0.3,0.31\n");
    QVERIFY(bright && bright->black);
    QCOMPARE(bright->black->Y, 8.0);
    QCOMPARE(bright->black->x, 0.3);
    QCOMPARE(bright->black->y, 0.31);
    const auto dark = gamutWith("black,0,,\n");
    QVERIFY(dark && dark->black);
    QCOMPARE(dark->black->Y, 0.0);
    const auto none = gamutWith("");
    QVERIFY(none && !none->black);
}

QTEST_GUILESS_MAIN(MeasurementListTest)
#include "measurementlisttest.moc"
