// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessmentfixture.h"

#include <QtTest>

#include <cmath>

using namespace assessmentfixture;

class AssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAnOriginalNothingIsKnown();
    void withoutATargetThereIsNoVerdict();
    void measuredGamutStandsForTheOriginal();
    void insideAndBrightEnough();
    void originalAndMeasuredAreBothGrounds_data();
    void originalAndMeasuredAreBothGrounds();
    void worstLineDecides();
    void gamutOfACabinetIsNotThatOfTheDisplay();
};

void AssessmentTest::withoutAnOriginalNothingIsKnown()
{
    DisplayDescription d = wall(500);
    d.original.clear();
    d.declared = QStringLiteral("Wall"); // which is not what it can show
    const Assessment a = assess(d);
    QVERIFY(a.displays.empty());
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    QCOMPARE(a.lines.size(), 1);
    QCOMPARE(a.lines.first().subject, Subject::Display);
    QVERIFY(a.lines.first().text.startsWith(QLatin1String("What the display can show is not known: ")));
}

void AssessmentTest::withoutATargetThereIsNoVerdict()
{
    DisplayDescription d = wall(500);
    d.target.clear();
    const Assessment a = assess(d);
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    QCOMPARE(a.lines.size(), 1);
    QCOMPARE(a.lines.first().subject, Subject::Target);
    QCOMPARE(assess(DisplayDescription()).lines.size(), 2);
    QCOMPARE(assess(DisplayDescription()).judgement(), Judgement::NotKnown);
}

void AssessmentTest::measuredGamutStandsForTheOriginal()
{
    DisplayDescription d = wall(500);
    d.measured = d.original;
    QCOMPARE(assess(d).displays.size(), size_t(1)); // the same gamut is judged once
    QVERIFY(!assess(d).displays.front().display.isMeasured);
    QVERIFY(assess(d).lines.first().text.contains(QLatin1String("original")));
    d.original.clear();
    const Assessment a = assess(d);
    QVERIFY(a.displays.front().display.isMeasured);
    QCOMPARE(a.judgement(), Judgement::Pass);
    QVERIFY(a.lines.first().text.contains(QLatin1String("measured gamut")));
    QVERIFY(!a.lines.first().text.contains(QLatin1String("original")));
}

void AssessmentTest::insideAndBrightEnough()
{
    const DisplayDescription d = wall(500);
    const Assessment a = assess(d);
    QCOMPARE(a.judgement(), Judgement::Pass);
    QCOMPARE(a.lines.size(), 2);
    QCOMPARE(a.headline(), QStringLiteral("The display can show the target"));
    // The white is that of the wall: every primary at half drive, and twice the luminance to spare.
    QVERIFY(std::fabs(a.displays.front().drive->white.red - 0.5) < 1e-9);
    QVERIFY(std::fabs(*a.displays.front().drive->headroom - 2.0) < 1e-9);
    QVERIFY(std::fabs(a.displays.front().largestWhite->luminance - 1000.0) < 1e-6);
    QVERIFY(a.lines.at(1).text.contains(QString::fromUtf8("500.0 cd/m²")));
    QVERIFY(a.lines.at(1).text.contains(QString::fromUtf8("red 50.0 %, green 50.0 %, blue 50.0 %")));
}

void AssessmentTest::originalAndMeasuredAreBothGrounds_data()
{
    QTest::addColumn<double>("original");
    QTest::addColumn<double>("measured");
    QTest::addColumn<LuminanceUnit>("unit"); // of the measured gamut
    QTest::addColumn<Judgement>("judgement");
    constexpr auto relative = LuminanceUnit::Relative;
    QTest::newRow("both reach it") << 1000.0 << 600.0 << cd << Judgement::Pass;
    QTest::newRow("the measured gamut does not") << 1000.0 << 400.0 << cd << Judgement::Fail;
    QTest::newRow("the original does not") << 400.0 << 1000.0 << cd << Judgement::Fail;
    QTest::newRow("measured without a scale") << 1000.0 << 600.0 << relative << Judgement::NotKnown;
    QTest::newRow("fails in any case") << 400.0 << 600.0 << relative << Judgement::Fail;
}

void AssessmentTest::originalAndMeasuredAreBothGrounds()
{
    QFETCH(double, original);
    QFETCH(double, measured);
    QFETCH(LuminanceUnit, unit);
    QFETCH(Judgement, judgement);
    DisplayDescription d = wall(500);
    targetsOf(d, 0) = scaled(Model::rec2020().getTargets(), original);
    d.gamuts.push_back(named("Meter", scaled(Model::rec2020().getTargets(), measured), unit));
    d.measured = QStringLiteral("Meter");
    const Assessment a = assess(d);
    QCOMPARE(a.judgement(), judgement);
    const auto lines = about(a, Subject::Luminance);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).isOfMeasured, std::make_optional(false));
    QCOMPARE(lines.at(1).isOfMeasured, std::make_optional(true));
    QVERIFY(lines.at(0).text.contains(QLatin1String("original")));
    QVERIFY(lines.at(1).text.contains(QLatin1String("measured gamut")));
    QCOMPARE(lines.at(0).judgement, original >= 500.0 ? Judgement::Pass : Judgement::Fail);
    QCOMPARE(about(a, Subject::Gamut).size(), 2);
}

void AssessmentTest::worstLineDecides()
{
    Assessment a;
    const auto line = [](Judgement judgement, Subject subject) {
        return AssessmentLine{subject, judgement, QString(), std::nullopt, QString(), std::nullopt};
    };
    a.lines = {line(Judgement::Pass, Subject::Gamut)};
    QCOMPARE(a.judgement(), Judgement::Pass);
    a.lines.append(line(Judgement::Pass, Subject::Tolerance));
    QCOMPARE(a.headline(), QStringLiteral("The display shows the target within tolerance"));
    a.lines.append(line(Judgement::NotKnown, Subject::Luminance));
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    QCOMPARE(a.headline(), QStringLiteral("Not known whether it can show the target"));
    a.lines.append(line(Judgement::Fail, Subject::Tolerance));
    QCOMPARE(a.judgement(), Judgement::Fail);
    QCOMPARE(a.headline(), QStringLiteral("The display is out of tolerance"));
    a.lines.append(line(Judgement::Fail, Subject::Gamut));
    QCOMPARE(a.headline(), QStringLiteral("The display cannot show the target"));
}

void AssessmentTest::gamutOfACabinetIsNotThatOfTheDisplay()
{
    DisplayDescription d = wall(500);
    d.measured = d.original;
    d.original.clear();
    const auto found = [&d](const std::optional<Tolerances> &tolerances = std::nullopt) {
        return assess(d, tolerances, false, QStringLiteral("A1 1/1"));
    };
    const Assessment a = found();
    QCOMPARE(a.judgement(), Judgement::Pass);
    QCOMPARE(a.headline(), QStringLiteral("Cabinet A1 1/1 can show the target"));
    QCOMPARE(a.lines.first().text,
        QString::fromUtf8("All primaries and the white lie inside of the measured gamut “Wall”."));
    Tolerances tolerances;
    tolerances.limits.whiteUv = 1.0;
    tolerances.standards = {{QStringLiteral("Rec.709"), Model::Diagram::Cie1976, 0.5}};
    QCOMPARE(found(tolerances).headline(), QStringLiteral("Cabinet A1 1/1 is within tolerance"));
    QVERIFY(about(found(tolerances), Subject::Tolerance).last().text.contains(QString::fromUtf8("gamut “Wall”")));
    tolerances.limits.whiteUv = 1e-9;
    targetsOf(d, 0).white = Model::Target::fromYxy(1000.0, 0.31, 0.33);
    QCOMPARE(found(tolerances).headline(), QStringLiteral("Cabinet A1 1/1 is out of tolerance"));
    targetsOf(d, 1).red = Model::Target::fromYxy(100.0, 0.73, 0.26);
    QCOMPARE(found().headline(), QStringLiteral("Cabinet A1 1/1 cannot show the target"));
    d.target.clear();
    QCOMPARE(found().headline(), QStringLiteral("The verdict on cabinet A1 1/1 is not known"));
    // What the original does not show, the display does not.
    d = wall(500);
    targetsOf(d, 1).red = Model::Target::fromYxy(100.0, 0.73, 0.26);
    d.gamuts.push_back(named("Cabinet", scaled(Model::rec2020().getTargets(), 1000.0), cd));
    d.measured = QStringLiteral("Cabinet");
    QCOMPARE(found().headline(), QStringLiteral("The display cannot show the target"));
    // A gamut that has been made the original is the display's.
    d = wall(500);
    d.measured = d.original;
    QCOMPARE(found().headline(), QStringLiteral("The display can show the target"));
}

QTEST_GUILESS_MAIN(AssessmentTest)
#include "assessmenttest.moc"
