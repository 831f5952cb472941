// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/tolerancesfile.h>

#include <QtTest>

using namespace gamutfiles;

class TolerancesFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsEverything();
    void everyLimitIsOptional_data();
    void everyLimitIsOptional();
    void refused_data();
    void refused();
    void writtenTextReadsBackTheSame();
    void documentedExampleIsRead();
    void suppliedFilesAreReadAndNameTheirSource();
};

namespace {

const QByteArray everything = R"({
    "version": 1, "name": "Stage", "source": "contract",
    "whiteUv": 0.004, "primariesUv": 0.006, "luminance": 0.1, "temperature": 200,
    "coverage": 0.95, "coverageDiagram": "xy",
    "standards": [{"standard": "Rec.2020", "diagram": "xy", "coverage": 0.6},
                  {"standard": "Rec.2020", "diagram": "uv", "coverage": 0.7}]
})";

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TolerancesFileTest::readsEverything()
{
    const auto read = readTolerances(everything);
    QVERIFY2(read, qPrintable(read.error()));
    QCOMPARE(read->name, QStringLiteral("Stage"));
    QCOMPARE(read->source, QStringLiteral("contract"));
    QVERIFY(read->limits.whiteUv == 0.004);
    QVERIFY(read->limits.primariesUv == 0.006);
    QVERIFY(read->limits.luminance == 0.1);
    QVERIFY(read->limits.temperature == 200.0);
    QVERIFY(read->limits.coverage == 0.95);
    QCOMPARE(int(read->coverageDiagram), int(Model::Diagram::Cie1931));
    QCOMPARE(read->standards.size(), 2);
    QCOMPARE(read->standards.at(0).standard, QStringLiteral("Rec.2020"));
    QCOMPARE(int(read->standards.at(0).diagram), int(Model::Diagram::Cie1931));
    QCOMPARE(read->standards.at(0).coverage, 0.6);
    QCOMPARE(int(read->standards.at(1).diagram), int(Model::Diagram::Cie1976));
    QCOMPARE(read->standards.at(1).coverage, 0.7);
}

void TolerancesFileTest::everyLimitIsOptional_data()
{
    QTest::addColumn<QByteArray>("limit");
    for (const char *limit : {"\"whiteUv\": 0", "\"primariesUv\": 1", "\"luminance\": 2.5", "\"temperature\": 0",
             "\"coverage\": 1, \"coverageDiagram\": \"uv\"",
             "\"standards\": [{\"standard\": \"A\", \"diagram\": \"uv\", \"coverage\": 0}]"}) {
        QTest::newRow(limit) << QByteArray(limit);
    }
}

void TolerancesFileTest::everyLimitIsOptional()
{
    QFETCH(QByteArray, limit);
    const auto read = readTolerances("{\"version\": 1, " + limit + '}');
    QVERIFY2(read, qPrintable(read.error()));
    int limits = read->standards.size();
    for (const auto &value : {read->limits.whiteUv, read->limits.primariesUv, read->limits.luminance,
             read->limits.temperature, read->limits.coverage}) {
        limits += value ? 1 : 0;
    }
    QCOMPARE(limits, 1);
}

void TolerancesFileTest::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *text, const char *error) {
        QTest::newRow(text) << QByteArray(text) << QString::fromUtf8(error);
    };
    row("", "is empty");
    row("{\"version\": 1,}", "1:16: object is missing after a comma");
    row("[]", "expected an object, found an array");
    row("{\"whiteUv\": 1}", "version: missing");
    row("{\"version\": 2, \"whiteUv\": 1}", "version: only version 1 is supported");
    row("{\"version\": 1}", "has no limit");
    row("{\"version\": 1, \"standards\": []}", "has no limit");
    row("{\"version\": 1, \"white\": 0.1}", "white: unknown key");
    row("{\"version\": 1, \"whiteUv\": \"0.1\"}", "whiteUv: expected a number, found a string");
    row("{\"version\": 1, \"whiteUv\": null}", "whiteUv: expected a number, found null");
    row("{\"version\": 1, \"whiteUv\": -0.001}", "whiteUv: a limit must not be negative");
    row("{\"version\": 1, \"whiteUv\": 1.001}", "whiteUv: must not be greater than 1");
    row("{\"version\": 1, \"primariesUv\": 2}", "primariesUv: must not be greater than 1");
    row("{\"version\": 1, \"luminance\": -1}", "luminance: a limit must not be negative");
    row("{\"version\": 1, \"coverage\": 95, \"coverageDiagram\": \"uv\"}", "coverage: must not be greater than 1");
    row("{\"version\": 1, \"coverage\": 0.9}", "coverageDiagram: missing: a coverage differs from diagram to diagram");
    row("{\"version\": 1, \"whiteUv\": 1, \"coverageDiagram\": \"uv\"}", "coverageDiagram: there is no coverage");
    row("{\"version\": 1, \"coverage\": 0.9, \"coverageDiagram\": \"uv1960\"}",
        "coverageDiagram: expected \"xy\" or \"uv\"");
    row("{\"version\": 1, \"standards\": [{\"standard\": \"A\", \"diagram\": \"xy\"}]}",
        "standards[0].coverage: missing");
    row("{\"version\": 1, \"standards\": [{\"standard\": \" \", \"diagram\": \"xy\", \"coverage\": 1}]}",
        "standards[0].standard: the name must not be empty");
    row("{\"version\": 1, \"standards\": [{\"standard\": \"A\", \"diagram\": \"xy\", \"coverage\": 1.1}]}",
        "standards[0].coverage: must not be greater than 1");
    row("{\"version\": 1, \"standards\": [{\"standard\": \"A\", \"diagram\": \"xy\", \"coverage\": 1, \"x\": 0}]}",
        "standards[0].x: unknown key");
    row("{\"version\": 1, \"standards\": [{\"standard\": \"A\", \"diagram\": \"xy\", \"coverage\": 1},"
        "{\"standard\": \"A\", \"diagram\": \"xy\", \"coverage\": 0.5}]}",
        "standards[1]: \"A\" in this diagram is listed twice");
}

void TolerancesFileTest::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    const auto read = readTolerances(text);
    QVERIFY(!read);
    QCOMPARE(read.error(), error);
}

void TolerancesFileTest::writtenTextReadsBackTheSame()
{
    Tolerances tolerances = *readTolerances(everything);
    tolerances.limits.whiteUv = 0.1 + 0.2; // no short decimal
    const QByteArray text = tolerancesText(tolerances);
    const auto read = readTolerances(text);
    QVERIFY2(read, qPrintable(read.error()));
    QVERIFY(read->limits.whiteUv == tolerances.limits.whiteUv);
    QCOMPARE(tolerancesText(*read), text);
    QCOMPARE(read->standards.size(), 2);
    Tolerances little;
    little.limits.temperature = 100.0;
    QVERIFY(!tolerancesText(little).contains("coverage"));
    QVERIFY(readTolerances(tolerancesText(little)));
}

void TolerancesFileTest::documentedExampleIsRead()
{
    const QString text = QString::fromUtf8(bytesOf(QStringLiteral(TOLERANCES_DOCUMENTATION)));
    const int begin = text.indexOf(QLatin1String("```json")) + 7;
    const auto read = readTolerances(text.mid(begin, text.indexOf(QLatin1String("```"), begin) - begin).toUtf8());
    QVERIFY2(read, qPrintable(read.error()));
    QVERIFY(read->limits.whiteUv && read->limits.primariesUv && read->limits.luminance && read->limits.temperature
        && read->limits.coverage && !read->standards.isEmpty());
}

void TolerancesFileTest::suppliedFilesAreReadAndNameTheirSource()
{
    const QByteArray documentation = bytesOf(QStringLiteral(TOLERANCES_DOCUMENTATION));
    const QDir folder(QStringLiteral(SUPPLIED_TOLERANCES));
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        const auto read = readTolerancesFile(folder.filePath(name));
        QVERIFY2(read, qPrintable(name + read.error()));
        QVERIFY(read.warnings().isEmpty());
        QVERIFY2(!read->source.isEmpty() && !read->name.isEmpty(), qPrintable(name));
        QVERIFY2(documentation.contains(name.toUtf8()), qPrintable(name));
        // Limits of a standard need a text that says so; only an example can do without.
        QVERIFY2(read->name.startsWith("Example") == read->source.startsWith("None."), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(TolerancesFileTest)
#include "tolerancesfiletest.moc"
