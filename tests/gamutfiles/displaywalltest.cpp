// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/measurementlist.h>

#include <QtTest>

#include <ctime>

using namespace gamutfiles;

class DisplayWallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cabinetsAreTakenOver();
    void placesAreTakenOver();
    void cabinetsWithoutAPrimaryAreIncomplete();
    void cabinetsWithAColorTwiceAreIncomplete();
    void cabinetsWithoutNumbersAreIncomplete();
    void blackWithoutChromaticity();
    void incompleteCabinetsKeepTheirPlaces();
    void reasonsAreTranslated();
    void samePlacesArePartsOfNames();
    void listsWithoutAWall_data();
    void listsWithoutAWall();
    void nothingIsSaidOfAGamut();
    void everyWallCanBeStored();
    void timeGrowsWithTheCabinets();
};

namespace {

MeasurementList listOf(const QByteArray &text)
{
    const auto list = readMeasurementList(text);
    if (!list) {
        qFatal("%s", qPrintable(list.error()));
    }
    return *list;
}

QStringList messages(const QVector<Problem> &warnings)
{
    QStringList texts;
    for (const Problem &warning : warnings) {
        texts.append(warning.message());
    }
    return texts;
}

bool isExactly(const Model::Target &target, double Y, double x, double y)
{
    return target.Y == Y && target.x == x && target.y == y;
}

QStringList incompleteOf(const DisplayWall &wall)
{
    QStringList texts;
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        texts.append(incompleteLabel(cabinet) + QStringLiteral(": ") + cabinet.reason);
    }
    return texts;
}

const QByteArray header = "cabinet,name,x,y,Lv (cd/m2)\n";

QByteArray rgb(const QByteArray &cabinet)
{
    return cabinet + ",red,0.7,0.29,200\n" + cabinet + ",green,0.17,0.72,700\n" + cabinet + ",blue,0.13,0.06,100\n";
}

} // namespace

void DisplayWallTest::cabinetsAreTakenOver()
{
    const auto wall = wallFromMeasurements(
        listOf(header + rgb("B") + "A,white,0.31,0.33,1000\nA,black,0.3,0.2,0.25\nA,W 50,0.32,0.33,400\n" + rgb("A")));
    QVERIFY2(wall, qPrintable(wall.error()));
    QCOMPARE(messages(wall.warnings()), QStringList());
    QVERIFY(wall->unit == LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(wall->cabinets.size(), std::size_t(2));
    const WallCabinet &first = wall->cabinets[0];
    QCOMPARE(first.label(), QStringLiteral("B"));
    QVERIFY(isExactly(first.red, 200.0, 0.7, 0.29));
    QVERIFY(isExactly(first.green, 700.0, 0.17, 0.72));
    QVERIFY(isExactly(first.blue, 100.0, 0.13, 0.06));
    QVERIFY(!first.white && !first.black && !first.row && !first.column);
    const WallCabinet &second = wall->cabinets[1];
    QCOMPARE(second.label(), QStringLiteral("A"));
    QVERIFY(isExactly(*second.white, 1000.0, 0.31, 0.33));
    QVERIFY(isExactly(*second.black, 0.25, 0.3, 0.2));
}

void DisplayWallTest::placesAreTakenOver()
{
    const auto wall = wallFromMeasurements(listOf(
        "row,column,name,x,y,Y\n" + rgb("1,2") + rgb("1,3").replace("1,3,red,0.7,0.29,200", "1,3,red,0.69,0.3,0")));
    QVERIFY2(wall, qPrintable(wall.error()));
    QVERIFY(wall->unit == LuminanceUnit::NotKnown);
    QCOMPARE(wall->cabinets.size(), std::size_t(2));
    QCOMPARE(wall->cabinets[1].label(), QStringLiteral("1/3"));
    QVERIFY(wall->cabinets[1].row == 1 && wall->cabinets[1].column == 3);
    QVERIFY(isExactly(wall->cabinets[1].red, 0.0, 0.69, 0.3)); // which the assessment of the wall names
}

void DisplayWallTest::cabinetsWithoutAPrimaryAreIncomplete()
{
    QByteArray text = header + rgb("good");
    for (const char *name : {"a", "b", "c", "d", "e", "f"}) {
        text += QByteArray(name) + ",red,0.7,0.29,200\n" + name + ",blue,0.13,0.06,100\n";
    }
    text += "b,green,0,0,700\n"; // without a chromaticity
    const auto wall = wallFromMeasurements(listOf(text));
    QVERIFY2(wall, qPrintable(wall.error()));
    QCOMPARE(wall->cabinets.size(), std::size_t(1));
    QCOMPARE(messages(wall.warnings()),
        QStringList{"cabinets of which nothing is known, as red, green or blue is missing, or a colour has no "
                    "chromaticity: a, b, c, d and 2 more"});
    QCOMPARE(incompleteOf(*wall),
        (QStringList{"a: green is missing", "b: green has no chromaticity", "c: green is missing",
            "d: green is missing", "e: green is missing", "f: green is missing"}));
}

void DisplayWallTest::cabinetsWithAColorTwiceAreIncomplete()
{
    for (const char *color : {"red", "green", "blue", "white", "black"}) {
        const QByteArray line = QByteArray("two,") + color + ",0.3,0.3,5\n";
        const auto wall = wallFromMeasurements(listOf(header + rgb("good") + rgb("two") + line + line));
        QVERIFY2(wall, qPrintable(wall.error()));
        QCOMPARE(wall->cabinets.size(), std::size_t(1));
        QCOMPARE(messages(wall.warnings()),
            QStringList{"cabinets of which nothing is known, as a colour is there more than once: two"});
        QCOMPARE(incompleteOf(*wall), QStringList{QStringLiteral("two: %1 is there more than once").arg(color)});
    }
}

//! A cabinet that was measured in vain is part of the wall all the same.
void DisplayWallTest::cabinetsWithoutNumbersAreIncomplete()
{
    const QByteArray complete = "cabinet,name,Y (cd/m2),x,y\nA,R,1,0.6,0.3\nA,G,3,0.3,0.6\nA,B,0.5,0.15,0.1\n";
    const QStringList missing{QStringLiteral("B: red is missing, green is missing, blue is missing")};
    for (const QByteArray &lines : {QByteArray("B,R,n/a,n/a,n/a\nB,G,n/a,n/a,n/a\n"), QByteArray("B,R,,,\n")}) {
        const MeasurementList list = listOf(complete + lines);
        QVERIFY(!list.gamut(QString())); // A is not all that there is
        const auto wall = wallFromMeasurements(list);
        QVERIFY(wall);
        QCOMPARE(incompleteOf(*wall), missing);
    }
    // What names no colour, or no cabinet, is no measurement.
    for (const QByteArray &lines :
        {QByteArray("B,Total,,,\n"), QByteArray(",R,,,\n"), QByteArray("Second run,,,,\n")}) {
        QVERIFY(wallFromMeasurements(listOf(complete + lines))->incomplete.empty());
    }
    MeasurementOptions options;
    options.cabinet = QStringLiteral("B");
    QCOMPARE(readMeasurementList(complete + "B,R,n/a,n/a,n/a\n", options).error(),
        QStringLiteral("cabinet \"B\" has no numbers"));
}

void DisplayWallTest::blackWithoutChromaticity()
{
    const auto wall = wallFromMeasurements(
        listOf(header + rgb("dark") + "dark,black,0,0,0\n" + rgb("grey") + "grey,black,,,0.1\n"));
    QVERIFY2(wall, qPrintable(wall.error()));
    QCOMPARE(wall->cabinets.size(), std::size_t(2));
    QVERIFY(wall->cabinets[0].black && isExactly(*wall->cabinets[0].black, 0.0, 0.0, 0.0));
    QVERIFY(!wall->cabinets[0].blackLuminance && !wall->cabinets[1].black);
    QCOMPARE(wall->cabinets[1].blackLuminance, std::make_optional(0.1));
    // A white may say that the cabinet shows less than its primaries add to.
    const auto white = wallFromMeasurements(listOf(header + rgb("good") + rgb("odd") + "odd,white,,,600\n"));
    QVERIFY2(white, qPrintable(white.error()));
    QCOMPARE(incompleteOf(*white), QStringList{"odd: white has no chromaticity"});
    QCOMPARE(messages(wall.warnings()),
        QStringList{"cabinets whose black does not count in corrections, as it has no chromaticity: grey"});
}

void DisplayWallTest::incompleteCabinetsKeepTheirPlaces()
{
    const auto wall = wallFromMeasurements(listOf("cabinet,row,column,name,x,y,Y\n" + rgb("A,1,1")
        + "B,1,2,white,0.3,0.3,900\nB,1,2,red,0.7,0.29,200\nB,1,2,red,0.7,0.29,200\n,2,2,blue,0.13,0.06,100\n"));
    QVERIFY2(wall, qPrintable(wall.error()));
    QCOMPARE(wall->cabinets.size(), std::size_t(1));
    QCOMPARE(incompleteOf(*wall),
        (QStringList{"B 1/2: green is missing, blue is missing, red is there more than once",
            "2/2: red is missing, green is missing"}));
    QCOMPARE(wall->incomplete[0].name, QStringLiteral("B"));
    QVERIFY(wall->incomplete[0].position && wall->incomplete[0].position->row == 1
        && wall->incomplete[0].position->column == 2);
}

// Files have them in English, and people read them in their language.
void DisplayWallTest::reasonsAreTranslated()
{
    class Upper : public QTranslator {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return qstrcmp(context, "gamutfiles::Wall") == 0 ? QString::fromLatin1(text).toUpper() : QString();
        }
    };
    const auto wall = wallFromMeasurements(listOf(header + rgb("good") + "bad,red,0,0,5\n,blue,0.1,0.1,5\n"));
    QVERIFY2(wall, qPrintable(wall.error()));
    QCOMPARE(incompleteOf(*wall),
        (QStringList{
            "bad: red has no chromaticity, green is missing, blue is missing", "?: it has no name of its own"}));
    Upper upper;
    QVERIFY(QCoreApplication::installTranslator(&upper));
    QCOMPARE(incompleteReasonText(wall->incomplete[0]),
        QStringLiteral("RED HAS NO CHROMATICITY, GREEN IS MISSING, BLUE IS MISSING"));
    QCOMPARE(incompleteReasonText(wall->incomplete[1]), QStringLiteral("IT HAS NO NAME OF ITS OWN"));
    QCOMPARE(incompleteReasonText({QString(), std::nullopt, QStringLiteral("fell, off")}), QStringLiteral("fell, off"));
    QCoreApplication::removeTranslator(&upper);
}

void DisplayWallTest::samePlacesArePartsOfNames()
{
    const auto wall = wallFromMeasurements(
        listOf("cabinet,row,column,name,x,y,Y\n" + rgb("A,1,1") + rgb("A,1,2") + rgb("B,1,1") + rgb("B,1,2")));
    QVERIFY2(wall, qPrintable(wall.error()));
    QStringList labels;
    for (const WallCabinet &cabinet : wall->cabinets) {
        labels.append(cabinet.label());
        QVERIFY(!cabinet.row && !cabinet.column);
    }
    QCOMPARE(labels, (QStringList{"A 1/1", "A 1/2", "B 1/1", "B 1/2"}));
    QCOMPARE(messages(wall.warnings()),
        QStringList{
            "several cabinets have the same row and column: they are parts of the names, and no place is known"});
}

void DisplayWallTest::listsWithoutAWall_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("no cabinets")
        << "name,x,y,Y\n" + rgb("").replace("\n,", "\n").mid(1)
        << "names no cabinets: a wall needs a column with the cabinet, or one with the row and "
           "one with the column";
    QTest::newRow("no primaries")
        << header + "A,white,0.3,0.3,5\nB,white,0.3,0.3,5\n"
        << "no cabinet was measured well enough: each needs a name, and red, green and blue once";
    QTest::newRow("nothing") << QByteArray()
                             << "names no cabinets: a wall needs a column with the cabinet, or one "
                                "with the row and one with the column";
}

void DisplayWallTest::listsWithoutAWall()
{
    QFETCH(QByteArray, text);
    const auto wall = wallFromMeasurements(text.isEmpty() ? MeasurementList() : listOf(text));
    QVERIFY(!wall);
    QTEST(wall.error(), "error");
}

void DisplayWallTest::nothingIsSaidOfAGamut()
{
    const QByteArray text = header + rgb("A") + rgb("B") + "B,red,0.7,0.29,200\nB,white,0.3,0.3,900\n";
    MeasurementOptions options;
    QVERIFY(!readMeasurementList(text, options).warnings().isEmpty());
    options.isWall = true;
    const auto list = readMeasurementList(text, options);
    QCOMPARE(messages(list.warnings()), QStringList());
    QCOMPARE(messages(wallFromMeasurements(*list).warnings()),
        QStringList{"cabinets of which nothing is known, as a colour is there more than once: B"});
}

// Names and places as lists have them: some without a name, some called as others are with their place.
void DisplayWallTest::everyWallCanBeStored()
{
    const auto wall = wallFromMeasurements(listOf("cabinet,row,column,name,x,y,Y\n" + rgb("A,3,4") + rgb("A 3/4,,")
        + rgb(",,") + rgb("B,5,") + rgb("C,,5") + rgb("7,,") + rgb(",3,5")));
    QVERIFY2(wall, qPrintable(wall.error()));
    QStringList labels;
    for (const WallCabinet &cabinet : wall->cabinets) {
        labels.append(cabinet.label());
    }
    QCOMPARE(labels, (QStringList{"A 3/4", "B", "C", "7", "3/5"}));
    QCOMPARE(messages(wall.warnings()),
        QStringList{
            "cabinets of which nothing is known, as they have no name of their own: A 3/4, one without a name"});
    DisplayDescription description;
    description.wall = *wall;
    const auto read = readDescription(descriptionText(description));
    QVERIFY2(read, qPrintable(read.error()));
    QCOMPARE(read->wall.cabinets.size(), wall->cabinets.size());
    // Those that nobody can name are there all the same.
    QCOMPARE(incompleteOf(*wall), (QStringList{"?: it has no name of its own", "? 2: it has no name of its own"}));
    QCOMPARE(incompleteOf(read->wall), incompleteOf(*wall));
}

void DisplayWallTest::timeGrowsWithTheCabinets()
{
    const auto listWith = [](int count) {
        MeasurementList list;
        for (int i = 0; i < count; ++i) {
            for (const MeasurementPart part : {MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue}) {
                Measurement measurement;
                measurement.color = Model::Target::fromYxy(100.0, 0.3, 0.3);
                measurement.part = part;
                measurement.cabinet = QString::number(i);
                measurement.row = i / 100;
                measurement.column = i % 100;
                list.measurements.append(measurement);
            }
        }
        return list;
    };
    const auto leastTime = [](const MeasurementList &list) {
        qint64 least = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 3; ++run) {
            const std::clock_t start = std::clock(); // which other programs do not move
            const auto wall = wallFromMeasurements(list);
            least = std::min(least, wall ? qint64(std::clock() - start) : std::numeric_limits<qint64>::max());
        }
        return least;
    };
    const qint64 small = leastTime(listWith(1000));
    const qint64 large = leastTime(listWith(10000));
    QVERIFY2(large < 50 * small, qPrintable(QStringLiteral("%1 and %2 ticks").arg(small).arg(large)));
}

QTEST_GUILESS_MAIN(DisplayWallTest)
#include "displaywalltest.moc"
