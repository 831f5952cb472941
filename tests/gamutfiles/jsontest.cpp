// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/json_p.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace gamutfiles;

class JsonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsObjectsAndArrays();
    void byteOrderMark();
    void numbersAreExact_data();
    void numbersAreExact();
    void refusals_data();
    void refusals();
    void cutShort();
    void otherErrorsAreNotTakenForCuts_data();
    void otherErrorsAreNotTakenForCuts();
    void deepNesting();
    void byteOrderMarksInStrings();
    void keysThatRepeat();
    void positions_data();
    void positions();
};

void JsonTest::readsObjectsAndArrays()
{
    QCOMPARE(parseJson("[1, 2]").document.array().size(), 2);
    QCOMPARE(parseJson(" {\"a\": \"\\u00e9\"} ").document.object().value("a").toString(), QString::fromUtf8("é"));
    QVERIFY(parseJson("{}").error.isEmpty());
    QVERIFY(!parseJson("{}").document.isNull());
}

void JsonTest::byteOrderMark()
{
    QVERIFY(parseJson("\xEF\xBB\xBF{}").document.isObject());
    const ParsedJson wrong = parseJson("\xEF\xBB\xBF{\n  x}");
    QVERIFY(wrong.document.isNull());
    QCOMPARE(wrong.position.line, 2);
}

void JsonTest::numbersAreExact_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("sum") << QByteArray("0.30000000000000004") << 0.1 + 0.2;
    QTest::newRow("seventeen digits") << QByteArray("0.31269999999999998") << 0.3127;
    QTest::newRow("tiny") << QByteArray("5e-324") << 5e-324;
    QTest::newRow("great") << QByteArray("1.7976931348623157e308") << 1.7976931348623157e308;
    QTest::newRow("integer") << QByteArray("9007199254740993") << 9007199254740992.0;
    QTest::newRow("negative exponent") << QByteArray("-25E-2") << -0.25;
}

void JsonTest::numbersAreExact()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    const QJsonValue read = parseJson('[' + text + ']').document.array().at(0);
    QVERIFY(read.isDouble());
    QVERIFY(read.toDouble() == value);
}

void JsonTest::refusals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    const auto row = [](const char *name, const QByteArray &text, int line) { QTest::newRow(name) << text << line; };
    row("empty", "", 1);
    row("number alone", "1", 1);
    row("trailing comma", "{\n\"a\": 1,\n}", 3);
    row("comma missing", "[1\n2]", 2);
    row("cut short", "{\"a\": [1,\n", 2);
    row("comment", "{} // end", 1);
    row("NaN", "[NaN]", 1);
    row("infinity", "[-Infinity]", 1);
    row("overflow", "[\n1e999]", 2);
    row("single quotes", "{'a': 1}", 1);
    row("string not closed", "[\"a]", 1);
    row("not UTF-8", "[\"\xFF\"]", 1);
    row("more after the end", "{}\n\n{}", 3);
}

void JsonTest::refusals()
{
    QFETCH(QByteArray, text);
    QFETCH(int, line);
    const ParsedJson parsed = parseJson(text);
    QVERIFY(parsed.document.isNull());
    QVERIFY(!parsed.error.isEmpty());
    QCOMPARE(parsed.position.line, line);
    QVERIFY(parsed.position.column >= 1);
}

// Wherever a text is cut, that is what is said.
void JsonTest::cutShort()
{
    const QByteArray whole
        = " {\"a\": [1.5, -2e-3, true, false, null, \"x\\n\\u00e9\xC3\xA9\xF0\x9F\x98\x80\"],\n \"b\": {\"c\": {}, "
          "\"d\": []}}";
    QVERIFY(parseJson(whole).error.isEmpty());
    for (int length = 2; length < whole.size(); ++length) {
        for (const char *space : {"", "\n", " \r\n"}) {
            const QByteArray cut = whole.left(length) + space;
            QVERIFY2(parseJson(cut).error == QLatin1String("unexpected end of file"), cut);
        }
    }
}

void JsonTest::otherErrorsAreNotTakenForCuts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("comma missing") << QByteArray("{\"a\": [1\n2], \"b\": [");
    QTest::newRow("trailing comma") << QByteArray("{\"a\": 1,}");
    QTest::newRow("wrong bracket") << QByteArray("{\"a\": [1}");
    QTest::newRow("other word") << QByteArray("[nul]");
    QTest::newRow("other escape") << QByteArray("[\"\\u00x0\"]");
    QTest::newRow("not UTF-8") << QByteArray("[\"\xFF\"]");
    QTest::newRow("more after the end") << QByteArray("{} {");
}

void JsonTest::otherErrorsAreNotTakenForCuts()
{
    QFETCH(QByteArray, text);
    const QString error = parseJson(text).error;
    QVERIFY(!error.isEmpty());
    QVERIFY(error != QLatin1String("unexpected end of file"));
}

void JsonTest::deepNesting()
{
    QVERIFY(parseJson(QByteArray(1000000, '[')).document.isNull());
    QVERIFY(parseJson(QByteArray("{\"a\":").repeated(200000)).document.isNull());
}

void JsonTest::byteOrderMarksInStrings()
{
    const QJsonObject object = parseJson(
        "\xEF\xBB\xBF{\"a\": \"\xEF\xBB\xBFx\", \"b\": \"\\ufeffx\", \"\xEF\xBB\xBFkey\": \"\\\"\xEF\xBB\xBF\"}")
                                   .document.object();
    const QString mark(QChar(0xFEFF));
    QCOMPARE(object.value("a").toString(), mark + 'x');
    QCOMPARE(object.value("b").toString(), mark + 'x');
    QCOMPARE(object.value(mark + "key").toString(), '"' + mark);
    QVERIFY(object.value("key").isUndefined());
    // An error keeps its place.
    const ParsedJson wrong = parseJson("[\"\xEF\xBB\xBF\", x]");
    QCOMPARE(wrong.position.column, parseJson("[\"_\", x]").position.column);
}

void JsonTest::keysThatRepeat()
{
    const auto keys = [](const QByteArray &text, int most = 9) {
        QStringList all;
        for (const RepeatedKey &repeated : repeatedKeys(text, most)) {
            all += QStringLiteral("%1 %2:%3")
                       .arg(repeated.key)
                       .arg(repeated.position.line)
                       .arg(repeated.position.column);
        }
        return all;
    };
    QCOMPARE(
        keys("{\"a\": 1, \"b\": {\"a\": 2}, \"c\": [{\"a\": 3}, {\"a\": 4}], \"d\": \"a\", \"e\": \"\\\"a\\\":\"}"),
        QStringList());
    QCOMPARE(keys("{\"a\": {\"b\": 1,\n \"b\" : 2}, \"\\u0061\": [\"a\"]}"), (QStringList{"b 2:2", "a 2:12"}));
    QCOMPARE(keys("{\"a\": 1, \"a\": 2, \"a\": 3, \"a\": 4}", 2).size(), 2);
    QCOMPARE(keys("[1, \"a\", \"a\"]"), QStringList());
}

void JsonTest::positions_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    const auto row = [](const char *name, const QByteArray &text, int offset, int line, int column) {
        QTest::newRow(name) << text << offset << line << column;
    };
    row("begin", "abc", 0, 1, 1);
    row("middle", "abc", 2, 1, 3);
    row("end", "abc", 3, 1, 4);
    row("beyond", "abc", 99, 1, 4);
    row("before", "abc", -1, 1, 1);
    row("after a line end", "a\nb", 2, 2, 1);
    row("on a line end", "a\nb", 1, 1, 2);
    row("empty lines", "\n\n\nx", 3, 4, 1);
    row("carriage return", "a\r\nbc", 4, 2, 2);
    row("two bytes", "\xC3\xA9x", 2, 1, 2);
    row("beyond the basic plane", "\xF0\x9F\x98\x80x", 4, 1, 2);
    row("byte order mark", "\xEF\xBB\xBFx", 3, 1, 1);
}

void JsonTest::positions()
{
    QFETCH(QByteArray, text);
    QFETCH(int, offset);
    QFETCH(int, line);
    QFETCH(int, column);
    const TextPosition position = textPosition(text, offset);
    QCOMPARE(position.line, line);
    QCOMPARE(position.column, column);
}

QTEST_GUILESS_MAIN(JsonTest)
#include "jsontest.moc"
