// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessedwall.h"

#include "display/textreport.h"
#include "display/wallreport.h"
#include "editing/wallcorrections.h"

#include <QJsonArray>
#include <QtTest>

using namespace assessedwall;

class WallCabinetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exchangedPrimariesAreTold();
    void exchangedPrimariesOfManyAreCounted();
    void incompleteCabinetsAreNotKnown();
    void manyIncompleteCabinetsAreCounted();
    void oneCabinet();
    void namesStandOnOneLine();
    void namesThatAreThereTwiceHaveTheirPlace();
};

void WallCabinetsTest::exchangedPrimariesAreTold()
{
    const QString warning
        = QStringLiteral("A3: red and green seem to be exchanged. Check the measurement: a correction drives the "
                         "primaries as they are named.");
    DisplayDescription description;
    description.wall = wallOf(1);
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    QVERIFY(exchangeTexts(description.wall).isEmpty());
    QVERIFY(!textOf(assessWall(description.wall, targetOf(1000.0))).contains(QStringLiteral("exchanged")));
    std::swap(description.wall.cabinets[2].red, description.wall.cabinets[2].green);
    const WallAssessment found = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(found.judgement, Judgement::Pass); // by its triangle it shows the target
    QCOMPARE(found.lines.size(), 2);
    QCOMPARE(found.lines.last().text, warning);
    QVERIFY(found.lines.last().isWarning);
    QVERIFY(!found.lines.last().judgement);
    QCOMPARE(QString::fromUtf8(verdictText(assess(description))).count(QStringLiteral("warning: ") + warning), 1);
    QCOMPARE(QString::fromUtf8(textReport(description)).count(warning), 1);
    const auto made = corrections(description, QString(), QStringLiteral("c.csv"));
    QVERIFY(made);
    QVERIFY2(made->notes.contains(warning), qPrintable(made->notes.join(QLatin1Char('\n'))));
    // Where something fails, the warning comes before what is no ground.
    dim(description.wall.cabinets[7], 0.5);
    const WallAssessment fails = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(fails.lines.at(1).text, warning);
}

void WallCabinetsTest::exchangedPrimariesOfManyAreCounted()
{
    DisplayWall wall = wallOf(2);
    for (WallCabinet &of : wall.cabinets) {
        std::swap(of.red, of.blue);
    }
    std::swap(wall.cabinets[3].red, wall.cabinets[3].green);
    const QStringList texts = exchangeTexts(wall);
    QCOMPARE(texts.size(), 2);
    QVERIFY2(texts.at(0).startsWith(QStringLiteral("A1 and 22 others: red and blue seem to be exchanged.")),
        qPrintable(texts.at(0)));
    QVERIFY2(texts.at(1).startsWith(QStringLiteral("A4: red, green and blue seem to be exchanged.")),
        qPrintable(texts.at(1)));
}

void WallCabinetsTest::incompleteCabinetsAreNotKnown()
{
    DisplayDescription description;
    description.wall = wallOf(1);
    description.wall.cabinets.resize(3);
    description.wall.incomplete.push_back(
        {QStringLiteral("A4"), Model::GridPosition{0, 3}, QStringLiteral("blue is missing")});
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    const WallAssessment found = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(textOf(found),
        QStringLiteral("? 3 of 4 cabinets show this target; of 1 it is not known\n"
                       "? A4: blue is missing.\n"
                       "- All of which it is known reach a white of 1100.0 cd/m² (A1 is the limit, with red at full "
                       "drive)."));
    QCOMPARE(assess(description).judgement(), Judgement::NotKnown);
    const QString report = QString::fromUtf8(textReport(description));
    QVERIFY2(report.contains(QStringLiteral("\nA4 (blue is missing)  "))
            && report.contains(QStringLiteral("A4: blue is missing.")),
        qPrintable(report));
    const QJsonArray reported = wallReport(description.wall, &found).value(QStringLiteral("cabinets")).toArray();
    QVERIFY(!description.wall.cabinets[0].white);
    QVERIFY(reported.at(0).toObject().value(QStringLiteral("additive")).isNull()); // no white was measured
    const QJsonArray listed = wallReport(description.wall, &found).value(QStringLiteral("incomplete")).toArray();
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first().toObject().value(QStringLiteral("cabinet")).toString(), QStringLiteral("A4 0/3"));
    QCOMPARE(listed.first().toObject().value(QStringLiteral("column")).toInt(), 3);
    QCOMPARE(listed.first().toObject().value(QStringLiteral("reason")).toString(), QStringLiteral("blue is missing"));
    // One that fails decides.
    dim(description.wall.cabinets[0], 0.5);
    const WallAssessment fails = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(fails.judgement, Judgement::Fail);
    QCOMPARE(fails.headline, QStringLiteral("2 of 4 cabinets show this target; A1 does not; of 1 it is not known"));
    QVERIFY(!textOf(fails).contains(QStringLiteral("Without A1")));
    description.wall.cabinets.resize(1);
    QCOMPARE(assessWall(description.wall, targetOf(1000.0)).headline,
        QStringLiteral("1 of 2 cabinets does not show this target; of the other it is not known"));
}

void WallCabinetsTest::manyIncompleteCabinetsAreCounted()
{
    DisplayWall wall = wallOf(1);
    for (int i = 0; i < 9; ++i) {
        wall.incomplete.push_back(
            {QStringLiteral("B%1").arg(i), std::nullopt, QStringLiteral("red is there more than once")});
    }
    const QString text = textOf(assessWall(wall, targetOf(1000.0)));
    QVERIFY2(text.contains(QStringLiteral("? B2: red is there more than once.\n? Of 6 other cabinets it is not known "
                                          "either.")),
        qPrintable(text));
    QVERIFY(!text.contains(QStringLiteral("B3")));
    QVERIFY(text.startsWith(QStringLiteral("? 12 of 21 cabinets show this target; of 9 it is not known")));
}

void WallCabinetsTest::oneCabinet()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets.resize(1);
    QCOMPARE(assessWall(wall, targetOf(1000.0)).headline, QStringLiteral("The cabinet A1 shows this target"));
    QVERIFY(
        assessWall(wall, targetOf(1000.0)).lines.last().text.startsWith(QLatin1String("It reaches a white of 1100")));
    QCOMPARE(assessWall(wall, targetOf(2000.0)).headline, QStringLiteral("The cabinet A1 does not show this target"));
    DisplayDescription description;
    description.wall = wall;
    description.gamuts = {targetOf(1000.0)};
    description.target = nameOf(targetOf(1000.0));
    QCOMPARE(assess(description).headline(), QStringLiteral("Cabinet A1 can show the target"));
    wall.unit = LuminanceUnit::NotKnown;
    QCOMPARE(assessWall(wall, targetOf(1000.0)).headline,
        QStringLiteral("Not known whether the cabinet A1 shows this target"));
}

void WallCabinetsTest::namesStandOnOneLine()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[2].name = QStringLiteral("left\nstage <b>");
    dim(wall.cabinets[2], 0.5);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QVERIFY(!found.headline.contains(QLatin1Char('\n')));
    QVERIFY(found.headline.contains(QStringLiteral("<b>")));
}

void WallCabinetsTest::namesThatAreThereTwiceHaveTheirPlace()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[1].name = wall.cabinets[0].name;
    wall.cabinets[2].name.clear();
    const std::vector<QString> names = cabinetNames(wall);
    QCOMPARE(names[0], QStringLiteral("A1 0/0"));
    QCOMPARE(names[1], QStringLiteral("A1 0/1"));
    QCOMPARE(names[2], QStringLiteral("0/2"));
    QCOMPARE(names[3], QStringLiteral("A4"));
    for (std::size_t i = 0; i < names.size(); ++i) {
        QCOMPARE(cabinetName(wall, i), names[i]);
    }
}

QTEST_GUILESS_MAIN(WallCabinetsTest)
#include "wallcabinetstest.moc"
