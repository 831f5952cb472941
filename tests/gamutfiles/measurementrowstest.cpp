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
    void thousands_data();
    void thousands();
    void decimalSignOfOtherColumns();
    void pointWhereCommasDivideFields();
    void black_data();
    void black();
    void luminanceWithoutChromaticity();
    void moreFieldsThanColumns();
    void dividedNumbers_data();
    void dividedNumbers();
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
    QTest::newRow("no Y") << QByteArray("name,X,Y (cd/m2),Z\nblack,0.001,0,0.002\n") << 0.0;
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

QTEST_GUILESS_MAIN(MeasurementRowsTest)
#include "measurementrowstest.moc"
