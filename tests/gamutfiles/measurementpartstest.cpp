// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementmessages.h"

#include <QtTest>

using namespace gamutfiles;

class MeasurementPartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void levels();
    void levelsOfAnUnknownScale();
    void colorTemperatureIsNotBlack();
    void languages_data();
    void languages();
    void colorTwice();
    void chosenLine();
    void chosenName();
    void choiceWithoutMeasurement();
    void missingWhite();
    void whiteAsSum();
    void missingPrimaries();
    void unlikelyTriangles();
    void unlikelyLuminances();
};

void MeasurementPartsTest::levels()
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

void MeasurementPartsTest::levelsOfAnUnknownScale()
{
    const QByteArray text = "name,Lv,x,y\nR 64,50,0.7,0.29\nG 64,70,0.2,0.7\nB 64,10,0.15,0.05\nW 64,100,0.28,0.29\n";
    const auto list = readMeasurementList(text);
    QVERIFY(list && !list->gamut(QString()));
    QCOMPARE(otherWarningsOf(text),
        QStringList{"line 2: the full level of \"R 64\" is not known: no level without a unit is taken as "
                    "the full one"});
}

void MeasurementPartsTest::colorTemperatureIsNotBlack()
{
    const auto list = readMeasurementList("name,Lv,x,y\n5000 K,50,0.34,0.35\n");
    QVERIFY(list && !list->black());
    QCOMPARE(list->measurements[0].part, MeasurementPart::None);
}

void MeasurementPartsTest::languages_data()
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

void MeasurementPartsTest::languages()
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

void MeasurementPartsTest::colorTwice()
{
    const QByteArray text = QByteArray(known).replace("grey 50 %", "rot");
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    QCOMPARE(warningsOf(text),
        QStringList{"line 6: red is there more than once, first in line 2: there is no gamut; choose "
                    "the line or the name that is red"});
}

void MeasurementPartsTest::chosenLine()
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

void MeasurementPartsTest::chosenName()
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

void MeasurementPartsTest::choiceWithoutMeasurement()
{
    MeasurementOptions options;
    options.white.name = QStringLiteral("Weiß");
    QCOMPARE(errorOf(known, options), QStringLiteral("no measurement is called \"Weiß\""));
    options.white.line = 1;
    QCOMPARE(errorOf(known, options), QStringLiteral("line 1 has no measurement to choose"));
}

void MeasurementPartsTest::missingWhite()
{
    const QByteArray text = QByteArray(known).replace("White", "grey");
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    QCOMPARE(warningsOf(text),
        QStringList{"white is missing: there is no gamut; choose a measurement as white, or ask for the "
                    "sum of red, green and blue"});
}

void MeasurementPartsTest::whiteAsSum()
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

void MeasurementPartsTest::missingPrimaries()
{
    const QByteArray text = QByteArray(known).replace("Blue", "Violet");
    const QString choose = QStringLiteral("; choose the lines or the names that are these colours");
    QCOMPARE(warningsOf(text), QStringList{"there is no gamut; missing: blue" + choose});
    QCOMPARE(warningsOf(QByteArray(text).replace("White", "grey")),
        QStringList{"there is no gamut; missing: blue, white" + choose});
    QCOMPARE(warningsOf(QByteArray(text).replace("Red", "punainen").replace("Green", "zelena")),
        QStringList{"there is no gamut; missing: red, green, blue" + choose});
    QCOMPARE(warningsOf("name,Lv,x,y\npunainen,1,0.3,0.3\n"),
        QStringList{
            "there is no gamut, as no measurement is recognised as red, green, blue or white; lines or names can "
            "be chosen as these colours"});
}

void MeasurementPartsTest::unlikelyTriangles()
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

void MeasurementPartsTest::unlikelyLuminances()
{
    const auto withWhite = [](const char *luminance) {
        return warningsOf(QByteArray(known).replace("White,1000", QByteArray("White,") + luminance));
    };
    QCOMPARE(withWhite("650"), QStringList{"line 5: the white is darker than one of the primaries"});
    QCOMPARE(withWhite("699.9"), QStringList()); // within the digits of an instrument
    QCOMPARE(warningsOf(QByteArray(known).replace("Red,200", "Red,0")),
        QStringList{"line 2: red has a chromaticity but a luminance of 0"});
    QCOMPARE(warningsOf(known + "Black,0,0.3,0.3\n"), QStringList());
}

QTEST_GUILESS_MAIN(MeasurementPartsTest)
#include "measurementpartstest.moc"
