// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementmessages.h"

#include <QtTest>

#include <cmath>
#include <ctime>

using namespace gamutfiles;

Q_DECLARE_METATYPE(gamutfiles::MeasuredUnit)

class MeasurementHeaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void headerOrdersTheColumns();
    void systemsOfCoordinates_data();
    void systemsOfCoordinates();
    void luminanceOfTwoColumns();
    void surestLuminance_data();
    void surestLuminance();
    void lightnessIsNoLuminance();
    void otherObserver();
    void uvOfTwoSystems();
    void numberedColumns_data();
    void numberedColumns();
    void otherObserverAboveTheHeader_data();
    void otherObserverAboveTheHeader();
    void columnOfUnits_data();
    void columnOfUnits();
    void columnOfUnitsThatContradicts();
    void textBeforeTheHeader();
    void commentedHeader();
    void commentsThatAreNoHeader();
    void repeatedHeader();
    void otherHeader();
    void units_data();
    void units();
    void footLamberts();
    void statedUnit();
    void lineOfUnits();
    void lineOfUnitsBelowUnits();
    void doubledColumn();
    void columnThatNamesColors();
    void remarks();
    void colorsUnderAnUnknownHeader();
    void namelessLines();
    void manyColumns_data();
    void manyColumns();
};

void MeasurementHeaderTest::headerOrdersTheColumns()
{
    const auto list = readMeasurementList("time,x,y,NAME,Y\n12:00,0.3,0.32,white,90\n");
    QVERIFY2(list, qPrintable(list.error()));
    const Measurement &white = list->measurements[0];
    QCOMPARE(white.name, QStringLiteral("white"));
    QVERIFY(white.color && white.color->Y == 90.0 && white.color->x == 0.3 && white.color->y == 0.32);
}

void MeasurementHeaderTest::systemsOfCoordinates_data()
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

void MeasurementHeaderTest::systemsOfCoordinates()
{
    QFETCH(QByteArray, text);
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    const auto &color = list->measurements[0].color;
    QVERIFY(color);
    QVERIFY(std::abs(color->Y - 100.0) < 1e-9);
    QVERIFY(std::abs(color->x - 0.3127) < 1e-8 && std::abs(color->y - 0.329) < 1e-8);
}

void MeasurementHeaderTest::luminanceOfTwoColumns()
{
    // Instruments list the relative Y beside Lv.
    const auto withLv = readMeasurementList("name,Y,Lv,x,y\nwhite,1,200,0.3,0.3\n");
    QCOMPARE(withLv->measurements[0].luminance, 200.0);
    QCOMPARE(withLv->unit, LuminanceUnit::CandelaPerSquareMetre);
    const auto withUnit = readMeasurementList("name,Luminance,Y (cd/m2),x,y\nwhite,1,200,0.3,0.3\n");
    QCOMPARE(withUnit->measurements[0].luminance, 200.0);
}

void MeasurementHeaderTest::surestLuminance_data()
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

void MeasurementHeaderTest::surestLuminance()
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

void MeasurementHeaderTest::lightnessIsNoLuminance()
{
    QCOMPARE(errorOf("name,x,y,L,a,b\nwhite,0.3,0.3,100,0,0"), QStringLiteral("line 1: missing column Y"));
    const auto list = readMeasurementList("name,L,a*,b*,x,y,Lv\nwhite,100,0,0,0.3,0.3,200");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].luminance, 200.0);
    QVERIFY(readMeasurementList("name,L,a,x,y\nwhite,100,0,0.3,0.3"));
}

void MeasurementHeaderTest::otherObserver()
{
    for (const char *header : {"X (10°),Y (10°),Z (10°)", "X (1964),Y (1964),Z (1964)",
             "X [CIE 1964],Y (CIE 1964),Z (10 deg)", "X10,Y10,Z10", "x10,y10,Y10", "x_10,y_10,Y_10 (cd/m²)",
             "CIE x10,CIE y10,Lv", "x₁₀,y₁₀,Y₁₀", "u'10,v'10,Lv", "u10',v10',Y10"}) {
        QCOMPARE(errorOf(QByteArray("name,") + header + "\na,20,30,40"),
            QStringLiteral("line 1: the columns are of the 10° observer: those of CIE 1931 (2°) are needed"));
    }
    const QByteArray both = "name,X (10°),Y (10°),Z (10°),X,Y,Z\na,20,30,40,50,60,70";
    QCOMPARE(readMeasurementList(both)->measurements[0].luminance, 60.0);
    QCOMPARE(warningsOf(both).first(), QStringLiteral("line 1: column 2 is of the 10° observer and is not read"));
}

void MeasurementHeaderTest::uvOfTwoSystems()
{
    for (const char *header : {"name,Lv,u,v", "name,u,v,Y", "name,Lv,CIE u,CIE v", "Patch,U,V,Lv"}) {
        QCOMPARE(errorOf("a title\n" + QByteArray(header) + "\na,1,0.2,0.3"),
            QStringLiteral(
                "line 2: the columns u and v can be those of CIE 1960 or of CIE 1976: call these u' and v'"));
    }
    QVERIFY(readMeasurementList("name,u,v,Lv,x,y\na,0.2,0.3,100,0.3,0.3"));
    QCOMPARE(errorOf("name,Lv,u\na,1,0.2"), QStringLiteral("line 1: missing column x"));
}

void MeasurementHeaderTest::numberedColumns_data()
{
    QTest::addColumn<QByteArray>("format"); // of the number behind a letter
    QTest::newRow("x1 to x10") << QByteArray("%d");
    QTest::newRow("x01 to x10") << QByteArray("%02d");
    QTest::newRow("x_1 to x_10") << QByteArray("_%d");
}

void MeasurementHeaderTest::numberedColumns()
{
    QFETCH(QByteArray, format);
    QByteArray header;
    QByteArray numbers;
    for (int i = 1; i <= 10; ++i) {
        const QByteArray number = QString::asprintf(format.constData(), i).toUtf8();
        header += ",x" + number + ",y" + number;
        numbers += ",0.3127,0.3290";
    }
    QCOMPARE(errorOf("name,Lv" + header + "\na,100" + numbers), QStringLiteral("line 1: missing column x"));
    const QByteArray withMean = "name,Lv,x,y" + header + "\na,100,0.3,0.4" + numbers;
    const auto list = readMeasurementList(withMean);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements[0].color->x, 0.3);
    QVERIFY(!warningsOf(withMean).join(QLatin1Char(' ')).contains(QLatin1String("observer")));
    // Two observers side by side are no series.
    QVERIFY(warningsOf("name,Lv,x2,y2,x,y,x10,y10\na,100,0.3,0.4,0.3,0.4,0.3,0.4")
                .contains(QStringLiteral("line 1: column 7 is of the 10° observer and is not read")));
}

void MeasurementHeaderTest::otherObserverAboveTheHeader_data()
{
    QTest::addColumn<bool>("isTold");
    for (const char *line : {"Observer: 10°", "Observer,10", "Standard observer;CIE 1964", "10° Normalbeobachter",
             "Observateur 10 deg", "观察者：10°", "CIE 1964", "# Observer 10 degrees"}) {
        QTest::newRow(line) << true;
    }
    for (const char *line : {"Observer: 2°", "Observer: 2°, 2024-10-05", "10 patches", "1964", "Observer 2,10 ms"}) {
        QTest::newRow(line) << false;
    }
}

void MeasurementHeaderTest::otherObserverAboveTheHeader()
{
    QFETCH(bool, isTold);
    const QByteArray line(QTest::currentDataTag());
    const QByteArray list = known;
    const QString warning = QStringLiteral("line 1: the list says that it is of the 10° observer, but the names of the "
                                           "columns do not: they are read as those of CIE 1931 (2°)");
    QCOMPARE(warningsOf(line + '\n' + list).contains(warning), isTold);
    QVERIFY(!warningsOf(list + line + '\n').contains(warning));
}

void MeasurementHeaderTest::columnOfUnits_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<MeasuredUnit>("read");
    QTest::newRow("English") << QByteArray("name,Y,Unit,x,y") << QByteArray("cd/m2")
                             << MeasuredUnit::CandelaPerSquareMetre;
    QTest::newRow("German") << QByteArray("Name,Leuchtdichte,Einheit,x,y") << QByteArray("nits")
                            << MeasuredUnit::CandelaPerSquareMetre;
    QTest::newRow("Chinese") << QByteArray("名称,亮度,单位,x,y") << QByteArray("cd/㎡")
                             << MeasuredUnit::CandelaPerSquareMetre;
    QTest::newRow("percent") << QByteArray("name,Y,Unit,x,y") << QByteArray("%") << MeasuredUnit::Relative;
    QTest::newRow("foot-lamberts") << QByteArray("name,Y,units,x,y") << QByteArray("fL") << MeasuredUnit::FootLambert;
    QTest::newRow("not known") << QByteArray("name,Y,Unit,x,y") << QByteArray("asb") << MeasuredUnit::NotKnown;
    QTest::newRow("nothing") << QByteArray("name,Y,Unit,x,y") << QByteArray("-") << MeasuredUnit::NotStated;
    QTest::newRow("of something else") << QByteArray("name,Y (cd/m2),Unit,x,y") << QByteArray("px")
                                       << MeasuredUnit::CandelaPerSquareMetre;
    QTest::newRow("the same twice") << QByteArray("name,Y (cd/m2),Unit,x,y") << QByteArray("nits")
                                    << MeasuredUnit::CandelaPerSquareMetre;
}

void MeasurementHeaderTest::columnOfUnits()
{
    QFETCH(QByteArray, header);
    QFETCH(QByteArray, unit);
    QFETCH(MeasuredUnit, read);
    const auto list = readMeasurementList(
        header + "\nred,200," + unit + ",0.64,0.33\nblack,0,,0,0\ngreen,700," + unit + ",0.3,0.6\n");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(int(list->recognized.unit), int(read));
    QCOMPARE(
        list->measurements.at(0).luminance, read == MeasuredUnit::FootLambert ? 200.0 * 3.4262590996353905 : 200.0);
}

void MeasurementHeaderTest::columnOfUnitsThatContradicts()
{
    const QByteArray mixed = "name,Y,Unit,x,y\nred,200,cd/m2,0.64,0.33\ngreen,70,%,0.3,0.6\n";
    QCOMPARE(errorOf(mixed),
        QStringLiteral("line 3, column Unit: the unit \"%\" is not that of line 2, \"cd/m2\": state the unit"));
    MeasurementOptions options;
    options.unit = MeasuredUnit::Relative;
    QCOMPARE(errorOf(mixed, options), QStringLiteral("taken"));
    QCOMPARE(errorOf("name,Y (fL),Unit,x,y\nred,200,cd/m2,0.64,0.33\n"),
        QStringLiteral(
            "line 2, column Unit: the unit \"cd/m2\" is not that of the line of the names, \"fL\": state the unit"));
}

void MeasurementHeaderTest::textBeforeTheHeader()
{
    const auto list = readMeasurementList(
        "Report, of the wall\nDate;2024-05-01\nx,is,not,a,header\n\nPatch;Lv;x;y;\nred;1,5;0,3;0,4;\n");
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->recognized.headerLine, 5);
    QCOMPARE(namesOf(list->measurements), QStringList{"red"});
    QCOMPARE(list->measurements[0].luminance, 1.5);
    QCOMPARE(list->measurements[0].line, 6);
}

void MeasurementHeaderTest::commentedHeader()
{
    const QByteArray text = "Wall 3\n# made by hand, \"today\n# Name, x, y, Y (cd/m2)\nred,0.7,0.29,200\n# x, Y, y\n"
                            "green,0.2,0.7,700\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->recognized.headerLine, 3);
    QCOMPARE(list->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(namesOf(list->measurements), (QStringList{"red", "green"}));
    QCOMPARE(list->measurements[0].luminance, 200.0);
    QCOMPARE(list->measurements[1].color->y, 0.7);
    QVERIFY(otherWarningsOf(text).isEmpty());
    const auto indented = readMeasurementList("  ## name;Lv;x;y\n;nits;;\na;1,5;0,3;0,4\n");
    QVERIFY2(indented, qPrintable(indented.error()));
    QCOMPARE(indented->measurements[0].luminance, 1.5);
    QCOMPARE(namesOf(indented->measurements), QStringList{"a"});
}

void MeasurementHeaderTest::commentsThatAreNoHeader()
{
    // A line that is not commented comes first.
    const auto both = readMeasurementList("# name,x,y,Y\nname,Y,x,y\nred,200,0.7,0.29\n");
    QCOMPARE(both->measurements[0].luminance, 200.0);
    QCOMPARE(both->recognized.headerLine, 2);
    // What stands behind numbers does not name them.
    const auto behind = readMeasurementList("red,200,0.7,0.29\n# name,x,y,Y\n");
    QCOMPARE(behind->measurements[0].luminance, 200.0);
    QCOMPARE(behind->recognized.headerLine, 0);
    const auto incomplete = readMeasurementList("# name,x\nred,200,0.7,0.29\n");
    QCOMPARE(incomplete->recognized.headerLine, 0);
}

// Programs append a session to the last one.
void MeasurementHeaderTest::repeatedHeader()
{
    const QByteArray text = "No.;Patch;Y;x;y\n;;cd/m²;;\n1;red;200;0,7;0,29\n2;green;700;0,2;0,7\n\nSession 2\n"
                            "No.; patch ;Y;x;y;\n;;cd/m²;;\n1;red;210;0,7;0,29\n2;green;710;0,2;0,7\n";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(namesOf(list->measurements), (QStringList{"red", "green", "red", "green"}));
    QCOMPARE(list->measurements[2].luminance, 210.0);
    QVERIFY(list->cabinets().isEmpty()); // though each number is there twice
    QCOMPARE(warningsOf(text),
        (QStringList{"line 7: repeats the line that names the columns and is not read; so in 1 further line(s)",
            "line 6: has no numbers and is not read",
            "line 9: red is there more than once, first in line 3: there is no gamut; choose the line or the name that "
            "is red"}));
}

void MeasurementHeaderTest::otherHeader()
{
    QCOMPARE(errorOf("name,Lv,x,y\nred,200,0.7,0.29\nname,x,y,Lv\nred,0.7,0.29,200\n"),
        QStringLiteral("line 3: names other columns than line 1: divide the list here"));
    QCOMPARE(errorOf("name,Y (cd/m2),x,y\nred,200,0.7,0.29\nname,Y (%),x,y\nred,20,0.7,0.29\n"),
        QStringLiteral("line 3: names other columns than line 1: divide the list here"));
}

void MeasurementHeaderTest::units_data()
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

void MeasurementHeaderTest::units()
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

void MeasurementHeaderTest::footLamberts()
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

void MeasurementHeaderTest::statedUnit()
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

void MeasurementHeaderTest::lineOfUnits()
{
    const QByteArray text = "Patch;Y;x;y\n;[cd/m²];-;-\nwhite;100,5;0,3;0,4";
    const auto list = readMeasurementList(text);
    QVERIFY2(list, qPrintable(list.error()));
    QCOMPARE(list->measurements.size(), 1);
    QCOMPARE(list->unit, LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(otherWarningsOf(text).isEmpty());
    QVERIFY(!readMeasurementList("Patch;Y;x;y\n;asb;-;-\nwhite;100,5;0,3;0,4"));
}

void MeasurementHeaderTest::lineOfUnitsBelowUnits()
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

void MeasurementHeaderTest::doubledColumn()
{
    const QByteArray text = "name,Lv,x,y,CIE x\na,1,0.3,0.3,0.4\n";
    QCOMPARE(readMeasurementList(text)->measurements[0].color->x, 0.3);
    QCOMPARE(otherWarningsOf(text), QStringList{"line 1: columns 3 and 5 are both x: column 3 is read"});
}

void MeasurementHeaderTest::columnThatNamesColors()
{
    const QByteArray text = "Measurement;Label;Lv;x;y\n1;red;200;0,7;0,29\n2;P2;100;0,3;0,3\n";
    QCOMPARE(namesOf(readMeasurementList(text)->measurements), (QStringList{"red", "P2"}));
    QVERIFY(otherWarningsOf(text).isEmpty());
    const QByteArray unknown = QByteArray(text).replace("red", "P1");
    QCOMPARE(namesOf(readMeasurementList(unknown)->measurements), (QStringList{"1", "2"}));
    QCOMPARE(otherWarningsOf(unknown), QStringList{"line 1: columns 1 and 2 are both name: column 1 is read"});
}

void MeasurementHeaderTest::remarks()
{
    const QByteArray text = "No.,Lv,x,y,Note\n1,200,0.7,0.29,Red\n2,100,0.3,0.3,again\n";
    QCOMPARE(namesOf(readMeasurementList(text)->measurements), (QStringList{"Red", "again"}));
    for (const char *some : {"again", "red"}) { // which name not all
        const QByteArray partly = QByteArray("No.,Lv,x,y,Note\n1,200,0.7,0.29,\n2,100,0.3,0.3,") + some;
        QCOMPARE(namesOf(readMeasurementList(partly)->measurements), (QStringList{"1", "2"}));
    }
    const QByteArray named = "Patch,Lv,x,y,Note\nRed,200,0.7,0.29,green\nW,100,0.3,0.3,\n";
    QCOMPARE(namesOf(readMeasurementList(named)->measurements), (QStringList{"Red", "W"}));
}

void MeasurementHeaderTest::colorsUnderAnUnknownHeader()
{
    for (const char *header : {"Messpunkt", "", "Nr.,Messpunkt"}) {
        const bool isNumbered = qstrcmp(header, "Nr.,Messpunkt") == 0;
        QByteArray text = QByteArray(header) + ",Lv,x,y\n";
        for (const char *line : {"Rot,200,0.7,0.29", "Grün,700,0.2,0.7", "Blau,100,0.15,0.05", "P4,50,0.3,0.3"}) {
            text += (isNumbered ? "1," : "") + QByteArray(line) + '\n';
        }
        const auto list = readMeasurementList(text);
        QVERIFY2(list, qPrintable(list.error()));
        QCOMPARE(namesOf(list->measurements), (QStringList{"Rot", QString::fromUtf8("Grün"), "Blau", "P4"}));
        QCOMPARE(list->recognized.columns.first().part, QStringLiteral("name"));
        QCOMPARE(list->recognized.columns.first().column, isNumbered ? 2 : 1);
        QVERIFY(warningsOf(text).join(QLatin1Char(' ')).contains(QLatin1String("white is missing")));
    }
    // Neither grades nor remarks on some of the lines are names.
    for (const char *third : {"R", "", "other"}) {
        const QByteArray text
            = "Lv,x,y,Grade\n200,0.7,0.29,R\n700,0.2,0.7,G\n100,0.15,0.05," + QByteArray(third) + "\n";
        QCOMPARE(namesOf(readMeasurementList(text)->measurements), (QStringList{"", "", ""}));
    }
}

void MeasurementHeaderTest::namelessLines()
{
    const QByteArray text = "Lv,x,y\n200,0.7,0.29\n700,0.2,0.7\n100,0.15,0.05\n1000,0.28,0.29\n";
    QCOMPARE(warningsOf(text),
        QStringList{"line 1: no column names the measurements; lines can be chosen as red, green, blue and white"});
    QVERIFY(!readMeasurementList(text)->gamut(QString()));
    MeasurementOptions options;
    options.red.line = 2;
    QCOMPARE(warningsOf(text, options).last(),
        QStringLiteral("there is no gamut; missing: green, blue, white; choose the lines or the names that are these "
                       "colours"));
    options.green.line = 3;
    options.blue.line = 4;
    options.white.line = 5;
    const auto gamut = readMeasurementList(text, options)->gamut(QString());
    QVERIFY(gamut);
    QCOMPARE(gamut->getTargets().white.Y, 1000.0);
}

void MeasurementHeaderTest::manyColumns_data()
{
    QTest::addColumn<QByteArray>("few");
    QTest::addColumn<QByteArray>("many");
    constexpr int least = 1000;
    constexpr int most = 16 * least;
    const auto line = [](const QByteArray &columns) { return columns + '\n'; };
    const auto add = [](const char *name, const auto &listOf) { QTest::newRow(name) << listOf(least) << listOf(most); };
    add("of the other observer", [&](int n) { return line(QByteArray("x10,").repeated(n)); });
    add("without a name",
        [&](int n) { return line("Y,x,y" + QByteArray(",").repeated(n)) + line("1,0.3,0.3").repeated(n); });
    add("of names",
        [&](int n) { return line("Y,x,y" + QByteArray(",Name").repeated(n)) + line("1,0.3,0.3").repeated(n); });
}

//! A list takes its time by its length, also where the header has thousands of columns that the lines do not have.
void MeasurementHeaderTest::manyColumns()
{
    const auto timeOf = [](const QByteArray &text) {
        const std::clock_t start = std::clock(); // which other programs do not move
        readMeasurementList(text);
        return double(std::clock() - start) / CLOCKS_PER_SEC;
    };
    QFETCH(QByteArray, few);
    QFETCH(QByteArray, many);
    const double fast = timeOf(few);
    const double slow = timeOf(many);
    // 16 times the length; by columns times lines, or columns times columns, it would be 256.
    QVERIFY2(slow < 64.0 * fast + 0.1, qPrintable(QStringLiteral("%1 s, then %2 s").arg(fast).arg(slow)));
}

QTEST_GUILESS_MAIN(MeasurementHeaderTest)
#include "measurementheadertest.moc"
