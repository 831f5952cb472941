// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementmessages.h"

#include <QtTest>

using namespace gamutfiles;

class MeasurementCabinetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cabinets();
    void chosenCabinet();
    void cabinetsByRowAndColumn();
    void letteredRows();
    void numbersOfLines();
    void sharedNumbersAreCabinets();
    void namelessLinesOfCabinets();
    void warningsOfCabinets();
    void warningsOfCabinetsEnd();
};

void MeasurementCabinetsTest::cabinets()
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

void MeasurementCabinetsTest::chosenCabinet()
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

void MeasurementCabinetsTest::cabinetsByRowAndColumn()
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

void MeasurementCabinetsTest::letteredRows()
{
    const auto list = readMeasurementList("Row,Column,name,Lv,x,y\nA,2,W,100,0.3,0.3\nB,2,W,100,0.3,0.3\n");
    QVERIFY(list);
    QCOMPARE(list->measurements[0].cabinet, QStringLiteral("A/2"));
    QVERIFY(!list->measurements[0].row);
    QCOMPARE(list->cabinets().size(), 2);
}

void MeasurementCabinetsTest::numbersOfLines()
{
    const auto list = readMeasurementList("id,name,Lv,x,y\n1,R,200,0.7,0.29\n2,G,700,0.2,0.7\n3,B,100,0.15,0.05\n"
                                          "4,W,1000,0.28,0.29\n");
    QVERIFY(list && list->gamut(QString()));
    QVERIFY(list->cabinets().isEmpty());
    // Without a name the number is the name.
    QCOMPARE(namesOf(readMeasurementList("No.,Lv,x,y\n7,1,0.3,0.3\n")->measurements), QStringList{"7"});
}

void MeasurementCabinetsTest::sharedNumbersAreCabinets()
{
    const auto list = readMeasurementList("id,name,Lv,x,y\n1,R,200,0.7,0.29\n1,G,700,0.2,0.7\n2,R,100,0.7,0.29\n");
    QVERIFY(list);
    QCOMPARE(list->cabinets().size(), 2);
    QCOMPARE(list->measurements[2].cabinet, QStringLiteral("2"));
}

void MeasurementCabinetsTest::namelessLinesOfCabinets()
{
    const auto list = readMeasurementList("Module,Lv,x,y\nM1,200,0.3,0.3\nM2,201,0.3,0.3\n");
    QVERIFY2(list, qPrintable(list.error()));
    QVERIFY(list.warnings().isEmpty());
    QVERIFY(list->measurements[0].name.isEmpty());
    QCOMPARE(list->cabinets().size(), 2);
}

void MeasurementCabinetsTest::warningsOfCabinets()
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

void MeasurementCabinetsTest::warningsOfCabinetsEnd()
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

QTEST_GUILESS_MAIN(MeasurementCabinetsTest)
#include "measurementcabinetstest.moc"
