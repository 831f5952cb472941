// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementmessages.h"

#include <QtTest>

using namespace gamutfiles;

class MeasurementRowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreExact();
    void emptyColumnsAndLines();
    void linesWithoutNumbers();
    void linesThatBeginAsComments();
    void thousands_data();
    void thousands();
    void decimalSignOfOtherColumns();
    void pointWhereCommasDivideFields();
    void black_data();
    void black();
    void luminanceWithoutChromaticity();
    void notMeasured_data();
    void notMeasured();
    void noise_data();
    void noise();
    void noiseIsSmall_data();
    void noiseIsSmall();
    void lightWithoutLuminance();
    void saturatedColorsBelowZero();
    void moreFieldsThanColumns();
    void dividedNumbers_data();
    void dividedNumbers();
    void contradictions_data();
    void contradictions();
};

void MeasurementRowsTest::numbersAreExact()
{
    const auto list = readMeasurementList("a,0.30000000000000004,0.1,0.2");
    QVERIFY(list);
    QVERIFY(list->measurements[0].color->Y == 0.1 + 0.2);
}

void MeasurementRowsTest::emptyColumnsAndLines()
{
    const QByteArray text = "name;Lv;x;y;;;\n;;;;;;\na;1;0,3;0,4;;;\n;;;;;;\nb;2;0,3;0,4\n;;\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(namesOf(list->measurements), (QStringList{"a", "b"}));
    QVERIFY(otherWarningsOf(text).isEmpty());
}

void MeasurementRowsTest::linesWithoutNumbers()
{
    const QByteArray text = "name,Lv,x,y\na,1,0.3,0.4\nSecond run,,,\nOperator: X\nb,2,0.3,0.4\n";
    QCOMPARE(namesOf(readMeasurementList(text)->measurements), (QStringList{"a", "b"}));
    QCOMPARE(otherWarningsOf(text), QStringList{"line 3: has no numbers and is not read; so in 1 further line(s)"});
}

// A cabinet can be called so, and must not be lost without a word.
void MeasurementRowsTest::linesThatBeginAsComments()
{
    const QByteArray text
        = "# Of today, 1, 2, 3\ncabinet,name,Lv,x,y\n#4,red,1,0.3,0.4\n# 3 more, at noon\n#5,red,1,0.3,0.4\n"
          "6,red,1,0.3,0.4\n\"#7\",red,1,0.3,0.4\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements.size(), 2);
    QCOMPARE(list->measurements[1].cabinet, QStringLiteral("#7"));
    QVERIFY(warningsOf(text).contains(
        QStringLiteral("line 3: begins with # and is not read, though it has the numbers of a measurement; to read it, "
                       "put its first field in quotes; so in 1 further line(s)")));
}

void MeasurementRowsTest::thousands_data()
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

void MeasurementRowsTest::thousands()
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

void MeasurementRowsTest::decimalSignOfOtherColumns()
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

void MeasurementRowsTest::pointWhereCommasDivideFields()
{
    const QByteArray text = "name,X,Y (cd/m2),Z\na,5.678,1.234,9.012";
    QCOMPARE(readMeasurementList(text)->measurements[0].luminance, 1.234);
    QCOMPARE(otherWarningsOf(text),
        QStringList{"line 2, column X: \"5.678\" is read with a decimal point; state the decimal sign if the "
                    "point divides thousands"});
}

void MeasurementRowsTest::black_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("luminance");
    QTest::newRow("zeros") << QByteArray("name,Lv,x,y\nBlack,0,0,0\n") << 0.0;
    QTest::newRow("zeros of XYZ") << QByteArray("name,X,Y (cd/m2),Z\nblack,0,0,0\n") << 0.0;
    QTest::newRow("zeros of u'v'") << QByteArray("name,Lv,u',v'\nblack,0,0,0\n") << 0.0;
    QTest::newRow("German") << QByteArray("name;Lv;x;y\nSchwarz;0,000;0,0000;0,0000\n") << 0.0;
    QTest::newRow("dashes") << QByteArray("name,Lv,x,y\nBlack,0,---,---\n") << 0.0;
    QTest::newRow("nothing") << QByteArray("name,Lv,x,y\nBlack,0,,\n") << 0.0;
}

void MeasurementRowsTest::black()
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

void MeasurementRowsTest::luminanceWithoutChromaticity()
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

void MeasurementRowsTest::notMeasured_data()
{
    QTest::addColumn<QByteArray>("word");
    for (const char *word : {"n/a", "N/A", "NA", "n.a.", "-", "--", "—", "‒", "−", "nan", "NaN", "-nan(ind)", "1.#QNAN",
             "null", "None", "/", "#N/A", "#DIV/0!", " n/a "}) {
        QTest::newRow(word) << QByteArray(word);
    }
    QTest::newRow("nothing") << QByteArray();
}

void MeasurementRowsTest::notMeasured()
{
    QFETCH(QByteArray, word);
    const QByteArray pair = word + ',' + word;
    for (const QByteArray &text : {"name,Lv,x,y\nW,100,0.3,0.3\nblack,0," + pair,
             "name,Lv,u',v'\nW,100,0.2,0.4\nblack,0," + pair, "name,Y (cd/m2),X,Z\nW,100,90,80\nblack,0," + pair}) {
        const auto list = readMeasurementList(text);
        QVERIFY2(list, qPrintable(list.error()));
        QVERIFY(list->black() && !list->black()->color && list->black()->luminance == 0.0);
        QCOMPARE(otherWarningsOf(text), QStringList());
        const QByteArray lit = QByteArray(text).replace("black,0", "black,0.002");
        QCOMPARE(readMeasurementList(lit)->black()->luminance, 0.002);
        QCOMPARE(otherWarningsOf(lit), QStringList("line 3: has a luminance but no chromaticity"));
    }
    // Of a line without any numbers nothing is read; half of a chromaticity is an error.
    const QByteArray none = "name,Lv,x,y\nW,100,0.3,0.3\nblack," + word + ',' + pair;
    QVERIFY(!readMeasurementList(none)->black());
    QCOMPARE(otherWarningsOf(none), QStringList("line 3: has no numbers and is not read"));
    QVERIFY(!readMeasurementList("name,Lv,x,y\nblack,0,0.3," + word));
}

void MeasurementRowsTest::noise_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QByteArray>("white");
    QTest::addColumn<QByteArray>("black");
    QTest::addColumn<double>("luminance");
    const auto row = [](const char *name, const char *header, const char *white, const char *black, double luminance) {
        QTest::newRow(name) << QByteArray(header) << QByteArray(white) << QByteArray(black) << luminance;
    };
    row("X below 0", "X,Y (cd/m2),Z", "95,100,109", "-0.0001,0.0002,0.0001", 0.0002);
    row("Y below 0", "X,Y (cd/m2),Z", "95,100,109", "0.0001,-0.0002,0.0001", 0.0002);
    row("all below 0", "X,Y (cd/m2),Z", "95,100,109", "-0.1,-0.1,-0.1", 0.1);
    row("Y is 0", "X,Y (cd/m2),Z", "95,100,109", "-0.1,0,0.05", 0.1);
    row("only Y is 0", "X,Y (cd/m2),Z", "95,100,109", "0.001,0,0.002", 0.002);
    row("relative X, Y, Z beside Lv", "X,Y,Z,Lv", ".95,1,1.09,500", "-0.0001,0,0,0.03", 0.03);
    row("Lv below 0", "x,y,Lv", "0.3,0.3,100", "0.3,0.3,-0.0003", 0.0003);
    row("x below 0", "x,y,Lv", "0.3,0.3,100", "-0.3,0.3,0.0003", 0.0003);
    row("y below 0", "x,y,Lv", "0.3,0.3,100", "0.3,-4.2,0.1", 0.1);
    row("x + y above 1", "x,y,Lv", "0.3,0.3,100", "0.6,0.5,0.0003", 0.0003);
    row("u' below 0", "u',v',Lv", "0.2,0.4,100", "-0.3,0.3,0.0003", 0.0003);
    row("v' below 0", "u',v',Lv", "0.2,0.4,100", "0.3,-0.3,0.0003", 0.0003);
    row("u' and v' of no colour", "u',v',Lv", "0.2,0.4,100", "0.9,0.9,0.0003", 0.0003);
    row("dashes and Lv below 0", "x,y,Lv", "0.3,0.3,100", "-,-,-0.001", 0.001);
    row("a list of dark colours", "x,y,Lv", "0.3,0.3,0.002", "0.3,0.3,-0.01", 0.01);
}

void MeasurementRowsTest::noise()
{
    QFETCH(QByteArray, header);
    QFETCH(QByteArray, white);
    QFETCH(QByteArray, black);
    QFETCH(double, luminance);
    const QByteArray text = header + ",name\n" + white + ",W\n" + black + ",K\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list->black());
    QCOMPARE(list->black()->luminance, luminance);
    QVERIFY(!list->black()->color);
    QVERIFY(list->measurements[0].color);
    QVERIFY2(otherWarningsOf(text).contains(
                 "line 3: is as dark as noise, with numbers that no colour has: it is read without a chromaticity"),
        qPrintable(warningsOf(text).join('\n')));
}

void MeasurementRowsTest::noiseIsSmall_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &text, const char *error) {
        QTest::newRow(name) << text << QString::fromUtf8(error);
    };
    row("X", "name,X,Y,Z\nW,95,100,109\nK,-0.11,0,0", "line 3, column X: a tristimulus value must not be negative");
    row("Lv", "name,Lv,x,y\nW,100,0.3,0.3\nK,-0.11,0.3,0.3", "line 3, column Lv: luminance must not be negative");
    row("x", "name,Lv,x,y\nW,100,0.3,0.3\nK,0.11,-0.1,0.3",
        "line 3, column x: a chromaticity coordinate must not be negative");
    row("u'", "name,Lv,u',v'\nW,100,0.2,0.4\nK,0.11,-0.1,0.3",
        "line 3, column u': a chromaticity coordinate must not be negative");
    row("relative", "name,Y (%),x,y\nW,1,0.3,0.3\nK,-0.005,0.3,0.3",
        "line 3, column Y (%): luminance must not be negative");
}

void MeasurementRowsTest::noiseIsSmall()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QCOMPARE(errorOf(text), error);
}

// What has no luminance, but X and Z, is not without light.
void MeasurementRowsTest::lightWithoutLuminance()
{
    const QByteArray text = "name,X,Y (cd/m2),Z\nW,95,100,109\nK,0.9,0,0.8\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(!list->black()->color);
    QCOMPARE(list->black()->luminance, 0.9);
    QCOMPARE(otherWarningsOf(text), QStringList("line 3: has a luminance but no chromaticity"));
    const auto none = readMeasurementList("name,X,Y (cd/m2),Z\nW,95,100,109\nK,0,0,0\n");
    QCOMPARE(none->black()->luminance, 0.0);
}

// A laser's red has hardly any Z.
void MeasurementRowsTest::saturatedColorsBelowZero()
{
    const QByteArray text = "name,X,Y (cd/m2),Z\nR,60,20,-0.01\nW,95,100,109\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list->measurements[0].color);
    QCOMPARE(list->measurements[0].color->x, 0.75);
    QCOMPARE(
        otherWarningsOf(text), QStringList("line 2: has a value slightly below 0, as noise gives: it is read as 0"));
}

void MeasurementRowsTest::moreFieldsThanColumns()
{
    const QByteArray text = "name,Lv,x,y\na,1,0.3,0.3,checked\nb,1,0.3,0.3,,\n";
    QCOMPARE(otherWarningsOf(text), QStringList{"line 2: has more fields than the line that names the columns"});
}

void MeasurementRowsTest::dividedNumbers_data()
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

void MeasurementRowsTest::dividedNumbers()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isTaken);
    const QString line = QString::number(text.count('\n') + 1);
    const QString refused
        = QStringLiteral("line %1: the separator seems to divide numbers: quote them or use another separator")
              .arg(line);
    QCOMPARE(errorOf(text), isTaken ? QStringLiteral("taken") : refused);
}

void MeasurementRowsTest::contradictions_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warning");
    const QString ofXyz = QStringLiteral("line 2: x and y are not those of X, Y and Z: x and y are read");
    const QString ofUv = QStringLiteral("line 2: x and y are not those of u' and v': x and y are read");
    // D65: X 95.0456, Y 100, Z 108.9058; u' 0.19783, v' 0.46832.
    const QByteArray header("name,x,y,X,Y (cd/m2),Z\n");
    QTest::newRow("agree") << header + "a,0.3127,0.3290,95.0456,100,108.9058\n" << QString();
    QTest::newRow("few digits") << header + "a,0.3127,0.3290,10,10,11\n" << QString();
    QTest::newRow("exponents") << header + "a,3.127e-1,0.329,9.5e+01,1.0e+02,1.1e+02\n" << QString();
    QTest::newRow("as dark as noise") << header + "w,0.3127,0.3290,95.0456,100,108.9058\na,0.2,0.6,0.01,0.01,0.01\n"
                                      << QString();
    QTest::newRow("empty") << header + "a,0.3127,0.3290,,100,\n" << QString();
    QTest::newRow("differ") << header + "a,0.3127,0.3310,95.0456,100.00,108.9058\n" << ofXyz;
    QTest::newRow("exchanged") << header + "a,0.3290,0.3127,95.0456,100,108.9058\n" << ofXyz;
    QTest::newRow("several") << header + "a,0.34,0.33,95,100,109\nb,0.3127,0.3290,95,100,109\nc,0.34,0.33,95,100,109\n"
                             << ofXyz + QStringLiteral("; so in 1 further line(s)");
    QTest::newRow("relative") << QByteArray("name,Lv,x,y,X,Y,Z\na,200,0.34,0.33,0.950,1.000,1.089\n") << ofXyz;
    QTest::newRow("u', v' agree") << QByteArray("name,Lv,x,y,u',v'\na,200,0.3127,0.3290,0.1978,0.4683\n") << QString();
    QTest::newRow("u', v' differ") << QByteArray("name,Lv,x,y,u',v'\na,200,0.3127,0.3290,0.1978,0.4703\n") << ofUv;
    QTest::newRow("decimal commas") << QByteArray("name;Lv;x;y;u';v'\na;200;0,3127;0,3290;0,1978;0,4703\n") << ofUv;
}

void MeasurementRowsTest::contradictions()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QStringList told = otherWarningsOf(text).filter(QStringLiteral("x and y are"));
    QCOMPARE(told, warning.isEmpty() ? QStringList() : QStringList{warning});
}

QTEST_GUILESS_MAIN(MeasurementRowsTest)
#include "measurementrowstest.moc"
