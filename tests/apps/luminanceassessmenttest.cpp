// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessmentfixture.h"

#include "display/wallassessmenttexts.h"

#include <QtTest>

#include <array>
#include <cmath>

using namespace assessmentfixture;

class LuminanceAssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void luminanceAtItsLimit_data();
    void luminanceAtItsLimit();
    void farTooBright();
    void reachedLuminanceIsItselfReached();
    void whatIsReachedDoesNotLookLess();
    void primaryBrighterThanTheDisplay();
    void unitsThatDoNotCompare_data();
    void unitsThatDoNotCompare();
    void relativeScalesNeedNotBeTheSame();
    void whiteThatIsNotTheSum_data();
    void whiteThatIsNotTheSum();
    void notAdditiveAndNotComparable();
    void driveAtItsLimitIsSaid();
    void displayWithoutLuminances();
    void blackIsJudgedAsOfACabinet();
    void blackThatMayKeepItOff();
};

namespace {

using Light = std::array<double, 3>;

Light light(const Model::Target &t)
{
    return {t.x * t.Y / t.y, t.Y, (1.0 - t.x - t.y) * t.Y / t.y};
}

double determinant(const Light &a, const Light &b, const Light &c)
{
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1]) + c[0] * (a[1] * b[2] - a[2] * b[1]);
}

//! The highest drive of the primaries for a colour, by Cramer's rule.
double highestDrive(const Model::Targets &display, const Model::Target &color)
{
    const Light r = light(display.red);
    const Light g = light(display.green);
    const Light b = light(display.blue);
    const Light c = light(color);
    const double all = determinant(r, g, b);
    return std::max({determinant(c, g, b) / all, determinant(r, c, b) / all, determinant(r, g, c) / all});
}

} // namespace

void LuminanceAssessmentTest::luminanceAtItsLimit_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("the white of the wall") << 0.3127 << 0.3290;
    QTest::newRow("warm") << 0.4234 << 0.3990;
    QTest::newRow("cold") << 0.2829 << 0.2971;
}

void LuminanceAssessmentTest::luminanceAtItsLimit()
{
    QFETCH(double, x);
    QFETCH(double, y);
    DisplayDescription d = wall(500);
    const double full = 1.0 / highestDrive(d.gamuts[0].getTargets(), Model::Target::fromYxy(1.0, x, y));
    const auto judged = [&](double luminance) {
        // Of the primaries only the white is to be judged.
        targetsOf(d, 1) = scaled(Model::rec709().getTargets(), 1.0);
        targetsOf(d, 1).white = Model::Target::fromYxy(luminance, x, y);
        return about(assess(d), Subject::Luminance).first().judgement;
    };
    QCOMPARE(judged(full), Judgement::Pass);
    QCOMPARE(judged(full * 1.002 * (1.0 - 1e-9)), Judgement::Pass);
    QCOMPARE(judged(full * 1.002), Judgement::Pass); // as far as it can be computed
    QCOMPARE(judged(full * 1.002 * (1.0 + 1e-9)), Judgement::Fail);
    QVERIFY(std::fabs(assess(d).displays.front().largestWhite->luminance - full) < full * 1e-9);
}

void LuminanceAssessmentTest::farTooBright()
{
    const Assessment a = assess(wall(5000));
    const auto lines = about(a, Subject::Luminance);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QVERIFY(lines.first().vertex == Vertex::White);
    for (const char *said : {"1000.0 cd/m²", "5000.0 cd/m²", "red 500.0 %"}) {
        QVERIFY2(lines.first().text.contains(QString::fromUtf8(said)), qPrintable(lines.first().text));
    }
    QCOMPARE(a.judgement(), Judgement::Fail);
    QVERIFY(std::fabs(*a.displays.front().drive->headroom - 0.2) < 1e-9);
}

void LuminanceAssessmentTest::reachedLuminanceIsItselfReached()
{
    DisplayDescription d = wall(5000);
    targetsOf(d, 1).white = Model::Target::fromYxy(5000, 0.2829, 0.2971);
    const QString text = about(assess(d), Subject::Luminance).first().text;
    const double said = numbers(text.mid(text.indexOf(QLatin1String("Lower")))).first();
    const double full = 1.0 / highestDrive(d.gamuts[0].getTargets(), Model::Target::fromYxy(1.0, 0.2829, 0.2971));
    QVERIFY2(said <= full && said > full - 0.1, qPrintable(text));
}

void LuminanceAssessmentTest::whatIsReachedDoesNotLookLess()
{
    // 755.67 is 755.7 rounded, but 755.6 rounded down.
    const auto text = [](double target) {
        DisplayDescription d = wall(target);
        targetsOf(d, 0) = scaled(Model::rec2020().getTargets(), 755.67);
        return about(assess(d), Subject::Luminance).first().text;
    };
    for (const double target : {755.67, 755.66}) {
        QVERIFY2(
            text(target).startsWith(QString::fromUtf8("The white of 755.7 cd/m² needs")), qPrintable(text(target)));
        QVERIFY2(text(target).contains(QString::fromUtf8("It reaches 755.7 cd/m² at this white (headroom 1.00)")),
            qPrintable(text(target)));
    }
    QVERIFY(text(755.61).contains(QString::fromUtf8("It reaches 755.6 cd/m²")));
    QVERIFY(text(755.75).contains(QString::fromUtf8("It reaches 755.6 cd/m²"))); // within 0.2 %
}

void LuminanceAssessmentTest::primaryBrighterThanTheDisplay()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 1).red = Model::Target::fromYxy(400, 0.64, 0.33);
    const auto lines = about(assess(d), Subject::Luminance);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).judgement, Judgement::Pass); // the white
    QCOMPARE(lines.at(1).judgement, Judgement::Fail);
    QVERIFY(lines.at(1).vertex == Vertex::Red);
    const double reached = 1.0 / highestDrive(d.gamuts[0].getTargets(), Model::Target::fromYxy(1.0, 0.64, 0.33));
    QVERIFY(std::fabs(numbers(lines.at(1).text).at(1) - reached) <= 0.1);
}

void LuminanceAssessmentTest::unitsThatDoNotCompare_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("display");
    const LuminanceUnit all[] = {LuminanceUnit::NotKnown, LuminanceUnit::Relative, cd};
    for (const LuminanceUnit target : all) {
        for (const LuminanceUnit display : all) {
            if (target != cd || display != cd) {
                QTest::addRow("%d and %d", int(target), int(display)) << int(target) << int(display);
            }
        }
    }
}

void LuminanceAssessmentTest::unitsThatDoNotCompare()
{
    QFETCH(int, target);
    QFETCH(int, display);
    // Also where the numbers alone would pass, and where they would fail.
    for (const double luminance : {1.0, 5000.0}) {
        const Assessment a = assess(wall(luminance, LuminanceUnit(target), LuminanceUnit(display)));
        const auto lines = about(a, Subject::Luminance);
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first().judgement, Judgement::NotKnown);
        QVERIFY(lines.first().text.contains(QLatin1String("cannot be compared")));
        QCOMPARE(a.judgement(), Judgement::NotKnown);
        QVERIFY(!a.displays.front().drive);
        // What does not take the target's unit is told all the same.
        QVERIFY(std::fabs(a.displays.front().largestWhite->luminance - 1000.0) < 1e-6);
    }
}

void LuminanceAssessmentTest::relativeScalesNeedNotBeTheSame()
{
    // Equal numbers, and also those of a white of 100 against one of 1, say nothing.
    for (const double luminance : {1000.0, 10.0, 100000.0}) {
        const Assessment a = assess(wall(luminance, LuminanceUnit::Relative, LuminanceUnit::Relative));
        const QString text = about(a, Subject::Luminance).first().text;
        QVERIFY2(text.contains(QLatin1String("scales need not be the same")), qPrintable(text));
        QVERIFY2(text.contains(QLatin1String("in cd/m")), qPrintable(text));
    }
    DisplayDescription d = wall(500, LuminanceUnit::Relative, cd);
    d.gamuts.push_back(named("Meter", d.gamuts[1].getTargets(), LuminanceUnit::Relative));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.luminance = 0.1;
    const AssessmentLine line = about(assess(d, tolerances), Subject::Tolerance).first();
    QCOMPARE(line.judgement, Judgement::NotKnown);
    QVERIFY(line.text.contains(QLatin1String("scales need not be the same")));
}

void LuminanceAssessmentTest::whiteThatIsNotTheSum_data()
{
    QTest::addColumn<double>("white"); // of the wall, whose primaries add to 1000 cd/m²
    QTest::addColumn<double>("shift"); // of its white, in u'
    QTest::addColumn<double>("target");
    QTest::addColumn<Judgement>("judgement");
    QTest::addColumn<bool>("isDriveKnown");
    constexpr auto pass = Judgement::Pass;
    constexpr auto fail = Judgement::Fail;
    constexpr auto notKnown = Judgement::NotKnown;
    constexpr double beside = 0.0005; // not at the white that was measured, but additive
    QTest::newRow("2 % less") << 980.01 << beside << 979.0 << pass << true;
    QTest::newRow("2 % less, too bright") << 980.01 << beside << 999.0 << fail << true;
    QTest::newRow("more than 2 % less") << 979.99 << beside << 979.0 << notKnown << false;
    QTest::newRow("2 % more") << 1019.99 << beside << 999.0 << pass << true;
    QTest::newRow("2 % more, too bright") << 1019.99 << beside << 1015.0 << fail << true;
    QTest::newRow("more than 2 % more") << 1020.01 << beside << 999.0 << notKnown << false;
    QTest::newRow("limited power") << 400.0 << beside << 999.0 << notKnown << false;
    QTest::newRow("limited power, dark target") << 400.0 << beside << 100.0 << notKnown << false;
    QTest::newRow("limited power, at the sum") << 400.0 << beside << 1001.9 << notKnown << false;
    QTest::newRow("limited power, above the sum") << 400.0 << beside << 1002.1 << fail << false;
    // A white that is brighter than the primaries has light of its own; their sum is no bound.
    QTest::newRow("white of its own") << 2000.0 << beside << 1500.0 << notKnown << false;
    QTest::newRow("no white") << 0.0 << 0.0 << 500.0 << notKnown << false;
    QTest::newRow("no white, above the sum") << 0.0 << 0.0 << 5000.0 << notKnown << false;
    // At the white that was measured, the reading decides.
    QTest::newRow("measured, 2 % less") << 980.01 << 0.0 << 980.0 << pass << true;
    QTest::newRow("measured, 2 % less, too bright") << 980.01 << 0.0 << 999.0 << fail << true;
    QTest::newRow("measured, 2 % more") << 1019.99 << 0.0 << 1019.0 << pass << true;
    QTest::newRow("measured, limited power") << 400.0 << 0.0 << 400.0 << pass << false;
    QTest::newRow("measured, limited power, too bright") << 400.0 << 0.0 << 500.0 << fail << false;
    QTest::newRow("measured, white of its own") << 2000.0 << 0.0 << 1500.0 << pass << false;
    QTest::newRow("other chromaticity, near") << 1000.0 << 0.00299 << 500.0 << pass << true;
    QTest::newRow("other chromaticity, far") << 1000.0 << 0.00301 << 500.0 << notKnown << false;
}

void LuminanceAssessmentTest::whiteThatIsNotTheSum()
{
    QFETCH(double, white);
    QFETCH(double, shift);
    QFETCH(double, target);
    QFETCH(Judgement, judgement);
    QFETCH(bool, isDriveKnown);
    DisplayDescription d = wall(target);
    Model::Targets &wallTargets = targetsOf(d, 0);
    // The sum of the primaries, by its light.
    const Light r = light(wallTargets.red);
    const Light g = light(wallTargets.green);
    const Light b = light(wallTargets.blue);
    const double X = r[0] + g[0] + b[0];
    const double Y = r[1] + g[1] + b[1];
    const double Z = r[2] + g[2] + b[2];
    QVERIFY(std::fabs(Y - 1000.0) < 1e-6);
    const double u = 4.0 * X / (X + 15.0 * Y + 3.0 * Z) + shift;
    const double v = 9.0 * Y / (X + 15.0 * Y + 3.0 * Z);
    const double back = 6.0 * u - 16.0 * v + 12.0;
    wallTargets.white = Model::Target::fromYxy(white, 9.0 * u / back, 4.0 * v / back);
    const Assessment a = assess(d);
    const AssessmentLine line = about(a, Subject::Luminance).first();
    QVERIFY2(line.judgement == judgement, qPrintable(line.text));
    QCOMPARE(a.displays.front().drive.has_value(), isDriveKnown);
    QCOMPARE(a.displays.front().largestWhite.has_value(), isDriveKnown);
    if (isDriveKnown) { // here the white is what limits the target
        const double headroom = *a.displays.front().drive->headroom;
        const double largest = a.displays.front().largestWhite->luminance;
        QVERIFY2(std::fabs(headroom * target - largest) < largest * 1e-9, qPrintable(QString::number(headroom)));
    }
    if (white == 0.0) {
        QCOMPARE(
            line.text, QStringLiteral("What luminance the original reaches is not known: its white has no luminance."));
    }
    if (judgement == Judgement::NotKnown && shift < 0.001 && white > 0.0) {
        const QString texts = QStringLiteral("The white of the original is %1 cd/m², its primaries add to 1000.0 cd/m²")
                                  .arg(white, 0, 'f', 1);
        QVERIFY2(line.text.startsWith(texts), qPrintable(line.text));
        QVERIFY(line.text.contains(QLatin1String("cannot be worked out")));
    }
}

void LuminanceAssessmentTest::notAdditiveAndNotComparable()
{
    DisplayDescription d = wall(500, LuminanceUnit::Relative);
    QVERIFY(about(assess(d), Subject::Luminance).first().text.contains(QLatin1String("reaches 1000.0")));
    targetsOf(d, 0).white = Model::Target::fromYxy(400, 0.3127, 0.3290);
    QVERIFY(!about(assess(d), Subject::Luminance).first().text.contains(QLatin1String("reaches")));
}

void LuminanceAssessmentTest::driveAtItsLimitIsSaid()
{
    const QString within = QStringLiteral("within 0.2 % of full drive");
    const auto text = [](double luminance) { return about(assess(wall(luminance)), Subject::Luminance).first().text; };
    QVERIFY(!text(999.9).contains(within));
    QVERIFY2(text(1000.1).contains(within), qPrintable(text(1000.1)));
    QVERIFY2(text(1001.9).contains(within), qPrintable(text(1001.9)));
    QVERIFY2(text(1002.1).contains(QLatin1String("more than 0.2 % above full drive")), qPrintable(text(1002.1)));
    QVERIFY(!text(1010.0).contains(QLatin1String("0.2 %")));
}

void LuminanceAssessmentTest::displayWithoutLuminances()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 0).green = Model::Target::fromYxy(0.0, 0.17, 0.797);
    const auto lines = about(assess(d), Subject::Luminance);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::NotKnown);
    QVERIFY(lines.first().text.contains(QLatin1String("green")));
    DisplayDescription dark = wall(0.0);
    QCOMPARE(about(assess(dark), Subject::Luminance).first().judgement, Judgement::NotKnown);
}

void LuminanceAssessmentTest::blackIsJudgedAsOfACabinet()
{
    // At this luminance the red of the target, which is nearly that of the display, is darker than the black allows.
    DisplayDescription d = wall(100);
    targetsOf(d, 1) = scaled(Model::rec2020().getTargets(), 100.0);
    QCOMPARE(assess(d).judgement(), Judgement::Pass);
    d.gamuts[0].black = Model::Target::fromYxy(8.0, 0.31, 0.33);
    const Model::Targets &of = d.gamuts[0].getTargets();
    WallCabinet cabinet;
    cabinet.red = of.red;
    cabinet.green = of.green;
    cabinet.blue = of.blue;
    cabinet.black = d.gamuts[0].black;
    DisplayWall alone;
    alone.unit = cd;
    alone.cabinets = {cabinet};
    // The same light as a white.
    targetsOf(d, 0).white = *Model::DisplayDrive(of, cabinet.black).lightAt({1.0, 1.0, 1.0});
    const Assessment display = assess(d);
    const WallAssessment judged = assessWall(alone, d.gamuts[1]);
    QCOMPARE(judged.judgement, Judgement::Fail);
    QCOMPARE(display.judgement(), Judgement::Fail);
    QCOMPARE(display.displays.front().largestWhite->luminance, judged.largestWhite->luminance);
    const AssessmentLine line = about(display, Subject::Luminance).last();
    QCOMPARE(line.judgement, Judgement::Fail);
    QVERIFY(line.vertex == judged.cabinets[0].limit);
    const QString off = offByBlackText(judged.cabinets[0].offByBlack);
    QVERIFY2(
        !off.isEmpty() && line.text.contains(QStringLiteral("keeps it off %1: raise").arg(off)), qPrintable(line.text));
    // Neither what is too little to be seen nor a target that is bright enough fails.
    d.gamuts[0].black = Model::Target::fromYxy(0.002, 0.31, 0.33);
    QCOMPARE(assess(d).judgement(), Judgement::Pass);
    d.gamuts[0].black = Model::Target::fromYxy(0.0, 0.0, 0.0);
    QCOMPARE(assess(d).judgement(), Judgement::Pass);
}

void LuminanceAssessmentTest::blackThatMayKeepItOff()
{
    DisplayDescription d = wall(100);
    targetsOf(d, 1) = scaled(Model::rec2020().getTargets(), 100.0);
    targetsOf(d, 0).white = Model::Target::fromYxy(800.0, 0.3127, 0.3290); // less than the sum
    QCOMPARE(assess(d).judgement(), Judgement::Pass);
    d.gamuts[0].black = Model::Target::fromYxy(8.0, 0.31, 0.33);
    const Assessment a = assess(d);
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    const QString text = about(a, Subject::Luminance).last().text;
    QVERIFY2(
        text.contains(QLatin1String("do not add to its white. If they did, it would be off red by")), qPrintable(text));
    d.gamuts[0].black = Model::Target::fromYxy(0.002, 0.31, 0.33);
    QCOMPARE(assess(d).judgement(), Judgement::Pass);
}

QTEST_GUILESS_MAIN(LuminanceAssessmentTest)
#include "luminanceassessmenttest.moc"
