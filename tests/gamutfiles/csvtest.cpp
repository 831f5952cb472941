// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/csv_p.h>

#include <QtTest>

using namespace gamutfiles;

class CsvTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fields_data();
    void fields();
    void linesAreThoseOfTheFile();
    void separators_data();
    void separators();
    void statedSeparatorIsUsed();
    void openQuoteIsReported();
};

void CsvTest::fields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("plain") << QString("a,b,c") << QStringList{"a", "b", "c"};
    QTest::newRow("line end") << QString("a,b\n") << QStringList{"a", "b"};
    QTest::newRow("carriage return") << QString("a,b\r\n") << QStringList{"a", "b"};
    QTest::newRow("empty fields") << QString(",a,,") << QStringList{"", "a", "", ""};
    QTest::newRow("quoted separator") << QString("\"a,b\",c") << QStringList{"a,b", "c"};
    QTest::newRow("space before a quote") << QString("a, \"b,c\"") << QStringList{"a", "b,c"};
    QTest::newRow("quoted quote") << QString("\"a\"\"b\",c") << QStringList{"a\"b", "c"};
    QTest::newRow("quoted line end") << QString("\"a\nb\",c") << QStringList{"a\nb", "c"};
    QTest::newRow("quote inside a field") << QString("a\"b,c") << QStringList{"a\"b", "c"};
    QTest::newRow("empty quotes") << QString("\"\",c") << QStringList{"", "c"};
    QTest::newRow("semicolons") << QString("a;b,c") << QStringList{"a", "b,c"};
    QTest::newRow("tabs") << QString("a\tb;c") << QStringList{"a", "b;c"};
    QTest::newRow("quoted semicolon") << QString("\"a;b\",c") << QStringList{"a;b", "c"};
}

void CsvTest::fields()
{
    QFETCH(QString, text);
    QFETCH(QStringList, fields);
    const CsvTable table = readCsv(text);
    QCOMPARE(table.rows.size(), 1);
    QCOMPARE(table.rows[0].fields, fields);
}

void CsvTest::linesAreThoseOfTheFile()
{
    const CsvTable table = readCsv("# comment\n\n  \na,b\n\"c\nd\",e\r\r# x\nf,g");
    QCOMPARE(table.rows.size(), 3);
    QCOMPARE(table.rows[0].line, 4);
    QCOMPARE(table.rows[1].line, 5);
    QCOMPARE(table.rows[2].line, 9);
}

void CsvTest::separators_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<int>("fields");
    const auto row = [](const char *name, const char *text, char separator, int fields) {
        QTest::newRow(name) << QString::fromUtf8(text) << QChar(QLatin1Char(separator)) << fields;
    };
    row("decimal commas", "a;1,5;0,3;0,4\nb;1,5;0,3;0,4", ';', 4);
    row("semicolon in a comment of the first line", "made; today\na,1.5,0.3,0.4", ',', 4);
    row("commas in the text before", "wall, left, 3 m\n\na\t1\t2\t3", '\t', 4);
    row("quoted decimal commas", "a,\"1,5\",\"0,3\",\"0,4\"", ',', 4);
    row("semicolons inside of names", "a;b;c;d,1,2,3\ne,1,2,3", ',', 4);
    row("stated semicolon", "sep=;\na;1,2,3", ';', 2);
    row("stated bar", "sep=|\r\na|1|2|3", '|', 4);
    row("stated tab", "sep=\\t\na\t1,2,3", '\t', 2);
    row("stated in capitals", "SEP=|\na|1,2,3,4", '|', 2);
    row("spaces", "# made by hand\n  red   0.7 0.29   200 \n\"light green\" 0.2 0.7 700", ' ', 4);
    row("spaces beside tabs", "a\t1\t2\t3\nb 1 2 3", '\t', 1);
    row("stated space", "sep= \na 1,2 3", ' ', 3);
    row("as many by either", "1,2,3,a;4;5;6", ';', 4);
    row("stated in quotes", "\"sep=;\"\na;1,2,3", ';', 2);
    row("stated letter is no separator", "sep=x\na,1,2,3", ',', 4);
}

void CsvTest::separators()
{
    QFETCH(QString, text);
    QFETCH(QChar, separator);
    QFETCH(int, fields);
    const CsvTable table = readCsv(text);
    QCOMPARE(table.separator, separator);
    QCOMPARE(table.rows.last().fields.size(), fields);
}

void CsvTest::statedSeparatorIsUsed()
{
    const CsvTable table = readCsv("sep=;\na;1,2", QLatin1Char(','));
    QCOMPARE(table.rows.size(), 1);
    QCOMPARE(table.rows[0].line, 2);
    QCOMPARE(table.rows[0].fields, (QStringList{"a;1", "2"}));
}

void CsvTest::openQuoteIsReported()
{
    const CsvTable table = readCsv("a,1,2,3\nb,\"1,2,3\nc,1,2,3");
    QCOMPARE(table.separator, QChar(','));
    QCOMPARE(table.rows.size(), 1);
    QCOMPARE(table.unterminatedLine, 2);
}

QTEST_GUILESS_MAIN(CsvTest)
#include "csvtest.moc"
