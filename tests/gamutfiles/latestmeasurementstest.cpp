// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/latestmeasurements.h>

#include <QtTest>

using namespace gamutfiles;

namespace {

Measurement measured(const QString &name, MeasurementPart part, double x, double y, const QString &cabinet = QString())
{
    Measurement measurement;
    measurement.name = name;
    measurement.part = part;
    measurement.luminance = 100.0;
    measurement.color = Model::Target::fromYxy(100.0, x, y);
    measurement.cabinet = cabinet;
    return measurement;
}

void addGamut(LatestMeasurements &latest, const QString &cabinet = QString(), double redX = 0.64)
{
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, redX, 0.33, cabinet));
    latest.add(measured(QStringLiteral("Green"), MeasurementPart::Green, 0.3, 0.6, cabinet));
    latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06, cabinet));
    latest.add(measured(QStringLiteral("White"), MeasurementPart::White, 0.3127, 0.329, cabinet));
}

double redOf(const LatestMeasurements &latest)
{
    const auto gamut = latest.list().gamut(QStringLiteral("wall"));
    return gamut ? gamut->getTargets().red.x : -1.0;
}

QStringList pointsOf(const LatestMeasurements &latest)
{
    QStringList names;
    for (const Measurement &point : latest.list().others()) {
        names.append(point.name);
    }
    return names;
}

} // namespace

class LatestMeasurementsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsTheLatestOfAColour();
    void showsPointsUntilThereIsAGamut();
    void keepsABlackWithoutAChromaticity();
    void forgetsAPrimaryThatLostItsChromaticity();
    void colourThatCouldNotBeReadIsNotKnown();
    void whatALineWithoutAnEndMayBeOfIsNotKnown_data();
    void whatALineWithoutAnEndMayBeOfIsNotKnown();
    void forgetsTheOldestPoints();
    void forgetsTheOldestCabinets();
    void showsTheCabinetThatWasCompletedLast();
    void tellsTheCabinets();
    void makesAWallOfSeveralCabinets();
    void wallIsThatOfTheWholeList();
    void wallFollowsWhatIsMeasuredAgain();
    void pointsAreNotThoseOfTheWall();
    void namesTheCabinetOfAGamut();
    void forgetsAnotherUnit();
    void takesTheSumAsWhite();
};

void LatestMeasurementsTest::countsTheLatestOfAColour()
{
    LatestMeasurements latest;
    latest.setUnit(LuminanceUnit::CandelaPerSquareMetre);
    addGamut(latest);
    QCOMPARE(redOf(latest), 0.64);
    QVERIFY(pointsOf(latest).isEmpty());
    // Under another name it is red all the same.
    latest.add(measured(QStringLiteral("R 100 %"), MeasurementPart::Red, 0.66, 0.32));
    QCOMPARE(redOf(latest), 0.66);
    QCOMPARE(latest.list().gamut(QStringLiteral("wall"))->unit, LuminanceUnit::CandelaPerSquareMetre);
    latest.add(measured(QStringLiteral("grey 50 %"), MeasurementPart::None, 0.31, 0.33));
    latest.add(measured(QStringLiteral("skin"), MeasurementPart::None, 0.4, 0.35));
    latest.add(measured(QStringLiteral("Grey  50 %"), MeasurementPart::None, 0.32, 0.34));
    QCOMPARE(pointsOf(latest), (QStringList{QStringLiteral("skin"), QStringLiteral("Grey  50 %")}));
    QCOMPARE(latest.list().others().last().color->x, 0.32);
    latest.clear();
    QVERIFY(latest.list().measurements.isEmpty());
    QCOMPARE(latest.pointCount(), 0);
    QCOMPARE(latest.cabinetCount(), 0);
}

void LatestMeasurementsTest::showsPointsUntilThereIsAGamut()
{
    LatestMeasurements latest;
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33));
    latest.add(measured(QStringLiteral("grey"), MeasurementPart::None, 0.31, 0.33));
    QVERIFY(!latest.list().gamut(QString()));
    QCOMPARE(pointsOf(latest), (QStringList{QStringLiteral("Red"), QStringLiteral("grey")}));
}

void LatestMeasurementsTest::keepsABlackWithoutAChromaticity()
{
    LatestMeasurements latest;
    Measurement black = measured(QStringLiteral("Black"), MeasurementPart::Black, 0.3, 0.3);
    black.color.reset();
    black.luminance = 0.02;
    latest.add(black);
    addGamut(latest);
    QCOMPARE(latest.list().black().value_or(Measurement()).luminance, 0.02);
    QCOMPARE(latest.pointCount(), 4);
}

void LatestMeasurementsTest::forgetsAPrimaryThatLostItsChromaticity()
{
    LatestMeasurements latest;
    addGamut(latest);
    Measurement dark = measured(QStringLiteral("Red"), MeasurementPart::Red, 0.3, 0.3);
    dark.color.reset();
    latest.add(dark);
    QCOMPARE(redOf(latest), -1.0);
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.65, 0.33));
    QCOMPARE(redOf(latest), 0.65);
}

void LatestMeasurementsTest::colourThatCouldNotBeReadIsNotKnown()
{
    const auto unread = [](const char *name, MeasurementPart part, const QString &cabinet = QString()) {
        Measurement measurement = measured(QLatin1String(name), part, 0.3, 0.3, cabinet);
        measurement.color.reset();
        measurement.luminance = 0.0;
        measurement.isUnread = true;
        return measurement;
    };
    LatestMeasurements display;
    addGamut(display);
    display.add(unread("Red", MeasurementPart::Red));
    QCOMPARE(redOf(display), 0.64); // the latest that could be read
    display.add(unread("Black", MeasurementPart::Black));
    QCOMPARE(redOf(display), -1.0); // it may be bright
    display.add(measured(QStringLiteral("Black"), MeasurementPart::Black, 0.3, 0.3));
    QCOMPARE(redOf(display), 0.64);

    LatestMeasurements latest;
    const QString other = QStringLiteral("B");
    addGamut(latest, QStringLiteral("A"));
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33, other));
    latest.add(measured(QStringLiteral("Green"), MeasurementPart::Green, 0.3, 0.6, other));
    latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06, other));
    QCOMPARE(latest.wall()->cabinets.size(), std::size_t(2));
    latest.add(unread("White", MeasurementPart::White, other));
    latest.add(unread("Black", MeasurementPart::Black, other));
    QCOMPARE(latest.wall()->cabinets.size(), std::size_t(1));
    QCOMPARE(
        latest.wall()->incomplete.front().reason, QStringLiteral("white could not be read, black could not be read"));
    latest.add(measured(QStringLiteral("White"), MeasurementPart::White, 0.3127, 0.329, other));
    latest.add(measured(QStringLiteral("Black"), MeasurementPart::Black, 0.3, 0.3, other));
    QCOMPARE(latest.wall()->cabinets.size(), std::size_t(2));
}

void LatestMeasurementsTest::whatALineWithoutAnEndMayBeOfIsNotKnown_data()
{
    QTest::addColumn<QString>("cabinet");
    QTest::addColumn<bool>("isCabinetKnown");
    QTest::addColumn<bool>("isColorKnown");
    QTest::addColumn<QString>("judged"); // as if the line had ended
    QTest::addColumn<QString>("inProgress");
    const auto row = [](const char *name, const char *cabinet, bool isCabinetKnown, bool isColorKnown,
                         const char *judged, const char *inProgress) {
        QTest::newRow(name) << QString::fromLatin1(cabinet) << isCabinetKnown << isColorKnown
                            << QString::fromLatin1(judged) << QString::fromLatin1(inProgress);
    };
    // A1 has a white; A2, A3 and B1 have none, and B1 was measured last.
    row("white of A2", "A2", true, true, "A1 A3 B1", "A1 A3");
    row("white of A1", "A1", true, true, "A1 A2 A3 B1", "A1 A2 A3");
    row("some colour of A3", "A3", true, false, "A1 A2 B1", "A1 A2");
    row("white of A...", "A", false, true, "A1 B1", "A1 A2 A3");
    row("some colour of B...", "B", false, false, "A1 A2 A3", "A1 A2 A3");
    row("some colour of A1", "A1", true, false, "A2 A3 B1", "A1 A2 A3"); // a black, which no other has
    row("white of C...", "C", false, true, "A1 A2 A3 B1", "A1 A2 A3");
    row("white of C1, which comes now", "C1", true, true, "A1 A2 A3 B1", "A1 A2 A3");
    row("white", "", false, true, "A1", "A1 A2 A3");
}

void LatestMeasurementsTest::whatALineWithoutAnEndMayBeOfIsNotKnown()
{
    QFETCH(QString, cabinet);
    QFETCH(bool, isCabinetKnown);
    QFETCH(bool, isColorKnown);
    QFETCH(QString, judged);
    QFETCH(QString, inProgress);
    LatestMeasurements latest;
    addGamut(latest, QStringLiteral("A1"));
    for (const char *name : {"A2", "A3", "B1"}) {
        latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33, QLatin1String(name)));
        latest.add(measured(QStringLiteral("Green"), MeasurementPart::Green, 0.3, 0.6, QLatin1String(name)));
        latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06, QLatin1String(name)));
    }
    const auto complete = [](const std::optional<DisplayWall> &wall) {
        QStringList names;
        for (const WallCabinet &of : wall.value_or(DisplayWall()).cabinets) {
            names.append(of.name);
        }
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(complete(latest.wall()), QStringLiteral("A1 A2 A3 B1"));
    UnfinishedMeasurement line;
    line.measurement.cabinet = cabinet;
    line.parts = {MeasurementPart::White};
    if (!isColorKnown) {
        line.parts += {MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue, MeasurementPart::Black};
    }
    line.measurement.isUnread = true;
    line.isCabinetKnown = isCabinetKnown;
    line.isColorKnown = isColorKnown;
    QCOMPARE(complete(latest.wallInProgress(line)), inProgress);
    LatestMeasurements ended(latest);
    ended.addUnfinished(line);
    QCOMPARE(complete(ended.wall()), judged);
    const bool isNew = isCabinetKnown && cabinet == QLatin1String("C1");
    QCOMPARE(ended.cabinetCount(), isNew ? 5 : 4);
    QCOMPARE(ended.wall()->cabinets.size() + ended.wall()->incomplete.size(), std::size_t(isNew ? 5 : 4));
    QCOMPARE(complete(latest.wall()), QStringLiteral("A1 A2 A3 B1")); // it may go on
}

void LatestMeasurementsTest::forgetsTheOldestPoints()
{
    LatestMeasurements latest;
    addGamut(latest);
    for (int i = 0; i < 2 * mostLatestPoints; ++i) {
        Measurement nameless = measured(QString(), MeasurementPart::None, 0.3, 0.3);
        nameless.line = i + 1;
        latest.add(nameless);
        QVERIFY(latest.pointCount() <= mostLatestPoints);
    }
    QCOMPARE(latest.pointCount(), mostLatestPoints);
    const auto points = latest.list().others();
    QCOMPARE(points.first().line, mostLatestPoints + 1);
    QCOMPARE(points.last().line, 2 * mostLatestPoints);
    QCOMPARE(redOf(latest), 0.64); // of the gamut none is forgotten
}

void LatestMeasurementsTest::forgetsTheOldestCabinets()
{
    LatestMeasurements latest;
    for (int i = 0; i <= mostLatestCabinets; ++i) {
        latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33, QString::number(i)));
    }
    latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06, QStringLiteral("1")));
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33, QStringLiteral("new")));
    QCOMPARE(latest.cabinetCount(), mostLatestCabinets);
    const auto cabinets = latest.cabinets();
    QCOMPARE(cabinets.size(), mostLatestCabinets);
    QCOMPARE(cabinets.first().cabinet, QStringLiteral("3"));
    QCOMPARE(cabinets.last().cabinet, QStringLiteral("new"));
    QCOMPARE(cabinets.at(cabinets.size() - 2).cabinet, QStringLiteral("1"));
    QCOMPARE(cabinets.at(cabinets.size() - 2).list.measurements.size(), 2);
}

void LatestMeasurementsTest::showsTheCabinetThatWasCompletedLast()
{
    LatestMeasurements latest;
    addGamut(latest, QStringLiteral("A"), 0.64);
    QCOMPARE(redOf(latest), 0.64);
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.7, 0.29, QStringLiteral("B")));
    latest.add(measured(QStringLiteral("grey"), MeasurementPart::None, 0.31, 0.33, QStringLiteral("A")));
    // Of two cabinets no gamut is made.
    QCOMPARE(redOf(latest), 0.64);
    QCOMPARE(pointsOf(latest), (QStringList{QStringLiteral("B Red"), QStringLiteral("A grey")}));
    addGamut(latest, QStringLiteral("B"), 0.71);
    QCOMPARE(redOf(latest), 0.71);
    QVERIFY(pointsOf(latest).contains(QStringLiteral("A Red")));
    QVERIFY(!pointsOf(latest).contains(QStringLiteral("B Red")));
}

void LatestMeasurementsTest::tellsTheCabinets()
{
    LatestMeasurements latest;
    addGamut(latest);
    QVERIFY(latest.cabinets().isEmpty());
    latest.clear();
    addGamut(latest, QStringLiteral("A"), 0.64);
    addGamut(latest, QStringLiteral("B"), 0.65);
    addGamut(latest, QStringLiteral("A"), 0.66);
    const auto cabinets = latest.cabinets();
    QCOMPARE(cabinets.size(), 2);
    QCOMPARE(cabinets.first().label(), QStringLiteral("B"));
    QCOMPARE(cabinets.last().list.measurements.size(), 4);
    QCOMPARE(cabinets.last().list.gamut(QString())->getTargets().red.x, 0.66);
}

void LatestMeasurementsTest::makesAWallOfSeveralCabinets()
{
    LatestMeasurements latest;
    latest.setUnit(LuminanceUnit::CandelaPerSquareMetre);
    addGamut(latest);
    QVERIFY(!latest.wall());
    latest.clear();
    addGamut(latest, QStringLiteral("A"), 0.64);
    QVERIFY(!latest.wall()); // it may be the only one
    latest.add(measured(QStringLiteral("grey"), MeasurementPart::None, 0.31, 0.33, QStringLiteral("B")));
    QVERIFY(latest.wall());
    QCOMPARE(latest.wall()->unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(latest.wall()->cabinets.size(), std::size_t(1));
    QCOMPARE(latest.wall()->incomplete.size(), std::size_t(1));
    QCOMPARE(latest.wall()->incomplete.front().name, QStringLiteral("B"));
    // Without a white, too.
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.65, 0.33, QStringLiteral("B")));
    latest.add(measured(QStringLiteral("Green"), MeasurementPart::Green, 0.3, 0.6, QStringLiteral("B")));
    latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06, QStringLiteral("B")));
    QCOMPARE(latest.wall()->cabinets.size(), std::size_t(2));
    QVERIFY(latest.wall()->cabinets.front().white);
    QVERIFY(!latest.wall()->cabinets.back().white);
    latest.clear();
    QVERIFY(!latest.wall());
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.65, 0.33, QStringLiteral("A")));
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.65, 0.33, QStringLiteral("B")));
    QVERIFY(!latest.wall()); // none is complete
}

void LatestMeasurementsTest::wallIsThatOfTheWholeList()
{
    const QByteArray bytes = "cabinet,row,column,name,Y (cd/m2),x,y\n"
                             "B1,2,1,Red,21,0.64,0.33\nA1,1,1,Red,22,0.65,0.33\nA1,1,1,Green,71,0.3,0.6\n"
                             "A1,1,1,Blue,7,0.15,0.06\nA1,1,1,Black,0,,\nB1,2,1,Green,72,0.3,0.61\n"
                             "C1,3,1,Green,70,0.3,0.6\nB1,2,1,Blue,8,0.15,0.07\nB1,2,1,White,100,0.3127,0.329\n"
                             "D1,4,1,Red,0,,\n,,,Red,1,0.5,0.3\n";
    const auto list = readMeasurementList(bytes);
    QVERIFY2(list, qPrintable(list.problem().message()));
    const auto whole = wallFromMeasurements(*list);
    QVERIFY(whole);
    QCOMPARE(whole->cabinets.size(), std::size_t(2));
    LatestMeasurements latest;
    latest.setUnit(list->unit);
    for (const Measurement &measurement : list->measurements) {
        latest.add(measurement);
    }
    DisplayDescription expected;
    expected.wall = *whole;
    DisplayDescription followed;
    QVERIFY(latest.wall());
    followed.wall = *latest.wall();
    QCOMPARE(descriptionText(followed), descriptionText(expected));
}

void LatestMeasurementsTest::wallFollowsWhatIsMeasuredAgain()
{
    LatestMeasurements latest;
    addGamut(latest, QStringLiteral("A"), 0.64);
    addGamut(latest, QStringLiteral("B"), 0.65);
    QCOMPARE(latest.wall()->cabinets.front().red.x, 0.64);
    addGamut(latest, QStringLiteral("A"), 0.66);
    // The cabinets stay in their order.
    QCOMPARE(latest.wall()->cabinets.front().name, QStringLiteral("A"));
    QCOMPARE(latest.wall()->cabinets.front().red.x, 0.66);
    QCOMPARE(latest.wall()->cabinets.back().red.x, 0.65);
    Measurement brighter = measured(QStringLiteral("Red"), MeasurementPart::Red, 0.66, 0.33, QStringLiteral("A"));
    brighter.color = Model::Target::fromYxy(200.0, 0.66, 0.33);
    latest.add(brighter);
    QCOMPARE(latest.wall()->cabinets.front().red.Y, 200.0);
    // It is not worked out anew for what does not belong to it.
    const WallCabinet *before = latest.wall()->cabinets.data();
    latest.add(brighter);
    latest.add(measured(QStringLiteral("grey"), MeasurementPart::None, 0.31, 0.33, QStringLiteral("A")));
    QCOMPARE(latest.wall()->cabinets.data(), before);
}

void LatestMeasurementsTest::pointsAreNotThoseOfTheWall()
{
    const auto names = [](const MeasurementList &list) {
        QStringList result;
        for (const Measurement &measurement : list.measurements) {
            result.append(measurement.name);
        }
        return result;
    };
    LatestMeasurements latest;
    addGamut(latest, QStringLiteral("A"));
    latest.add(measured(QStringLiteral("grey"), MeasurementPart::None, 0.31, 0.33, QStringLiteral("A")));
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.7, 0.29, QStringLiteral("B")));
    QVERIFY(latest.wall());
    QCOMPARE(
        names(latest.listBeside(*latest.wall())), (QStringList{QStringLiteral("A grey"), QStringLiteral("B Red")}));
    QVERIFY(!latest.listBeside(*latest.wall()).gamut(QString()));
    addGamut(latest, QStringLiteral("B"));
    QCOMPARE(names(latest.listBeside(*latest.wall())), QStringList{QStringLiteral("A grey")});
}

void LatestMeasurementsTest::namesTheCabinetOfAGamut()
{
    LatestMeasurements latest;
    addGamut(latest);
    QVERIFY(latest.listedCabinet().isEmpty());
    latest.clear();
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.7, 0.29, QStringLiteral("A")));
    QVERIFY(latest.listedCabinet().isEmpty()); // there is no gamut
    addGamut(latest, QStringLiteral("A"));
    QCOMPARE(latest.listedCabinet(), QStringLiteral("A"));
    // A red that lies between green and blue leaves no gamut.
    latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.225, 0.33, QStringLiteral("A")));
    QVERIFY(!latest.list().gamut(QString()));
    QVERIFY(latest.listedCabinet().isEmpty());
}

void LatestMeasurementsTest::forgetsAnotherUnit()
{
    LatestMeasurements latest;
    addGamut(latest);
    latest.setUnit(LuminanceUnit::NotKnown);
    QCOMPARE(redOf(latest), 0.64);
    latest.setUnit(LuminanceUnit::Relative);
    QVERIFY(latest.list().measurements.isEmpty());
}

void LatestMeasurementsTest::takesTheSumAsWhite()
{
    for (const bool isSum : {false, true}) {
        LatestMeasurements latest(isSum);
        latest.add(measured(QStringLiteral("Red"), MeasurementPart::Red, 0.64, 0.33));
        latest.add(measured(QStringLiteral("Green"), MeasurementPart::Green, 0.3, 0.6));
        latest.add(measured(QStringLiteral("Blue"), MeasurementPart::Blue, 0.15, 0.06));
        QCOMPARE(latest.list().gamut(QString()).has_value(), isSum);
    }
}

QTEST_GUILESS_MAIN(LatestMeasurementsTest)
#include "latestmeasurementstest.moc"
