// SPDX-License-Identifier: MIT
#include "display/assessment.h"

#include <QtTest>

#include <array>
#include <cmath>

using namespace gamutviewer;
using Vertex = ceiechart::GamutVertex;
using Subject = AssessmentLine::Subject;

Q_DECLARE_METATYPE(Judgement)
Q_DECLARE_METATYPE(LuminanceUnit)

class AssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAnOriginalNothingIsKnown();
    void withoutATargetThereIsNoVerdict();
    void measuredGamutStandsForTheOriginal();
    void insideAndBrightEnough();
    void primaryOutside();
    void proposedPointIsInside_data();
    void proposedPointIsInside();
    void proposesTheLargestTargetThatFits();
    void whiteOutside();
    void luminanceAtItsLimit_data();
    void luminanceAtItsLimit();
    void farTooBright();
    void reachedLuminanceIsItselfReached();
    void primaryBrighterThanTheDisplay();
    void unitsThatDoNotCompare_data();
    void unitsThatDoNotCompare();
    void relativeScalesNeedNotBeTheSame();
    void whiteThatIsNotTheSum_data();
    void whiteThatIsNotTheSum();
    void notAdditiveAndNotComparable();
    void originalAndMeasuredAreBothGrounds_data();
    void originalAndMeasuredAreBothGrounds();
    void chromaticityOutsideOfTheMeasuredGamutFails();
    void whiteIsExaminedWithoutLuminances();
    void driveAtItsLimitIsSaid();
    void displayWithoutLuminances();
    void toleranceAtItsLimit_data();
    void toleranceAtItsLimit();
    void tolerancesWithoutAMeasurement();
    void toleranceOfLuminanceNeedsUnits();
    void toleranceOfTheColourTemperature();
    void coverageOfAStandard();
    void valueIsToldApartFromItsLimit();
    void deviationEqualToItsLimit_data();
    void deviationEqualToItsLimit();
    void worstLineDecides();
};

namespace {

constexpr LuminanceUnit cd = LuminanceUnit::CandelaPerSquareMetre;

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

//! The least of the barycentric coordinates of a chromaticity: 0 on an edge, less outside.
double depth(const Model::Targets &gamut, double x, double y)
{
    const auto area = [](double ax, double ay, double bx, double by, double cx, double cy) {
        return (bx - ax) * (cy - ay) - (by - ay) * (cx - ax);
    };
    const auto &[r, g, b, w] = gamut;
    const double all = area(r.x, r.y, g.x, g.y, b.x, b.y);
    return std::min({area(x, y, g.x, g.y, b.x, b.y), area(r.x, r.y, x, y, b.x, b.y), area(r.x, r.y, g.x, g.y, x, y)})
        / std::fabs(all) * (all < 0.0 ? -1.0 : 1.0);
}

DisplayGamut named(const char *name, const Model::Targets &targets, LuminanceUnit unit)
{
    return {Model::ColorGamut(name, targets), unit};
}

Model::Targets scaled(const Model::Targets &targets, double factor)
{
    const auto at = [factor](const Model::Target &t) { return Model::Target::fromYxy(t.Y * factor, t.x, t.y); };
    return {at(targets.red), at(targets.green), at(targets.blue), at(targets.white)};
}

//! Rec.2020 with a white of 1000 cd/m²; its target has the chromaticities of Rec.709 and a white of \a luminance.
DisplayDescription wall(double luminance, LuminanceUnit targetUnit = cd, LuminanceUnit wallUnit = cd)
{
    DisplayDescription d;
    d.gamuts.push_back(named("Wall", scaled(Model::rec2020().getTargets(), 1000.0), wallUnit));
    d.gamuts.push_back(named("Wanted", scaled(Model::rec709().getTargets(), luminance), targetUnit));
    d.original = QStringLiteral("Wall");
    d.target = QStringLiteral("Wanted");
    return d;
}

Model::Targets &targetsOf(DisplayDescription &d, int index)
{
    return const_cast<Model::Targets &>(d.gamuts[size_t(index)].getTargets());
}

QVector<AssessmentLine> about(const Assessment &assessment, Subject subject)
{
    QVector<AssessmentLine> lines;
    for (const AssessmentLine &line : assessment.lines) {
        if (line.subject == subject) {
            lines.append(line);
        }
    }
    return lines;
}

//! All numbers in \a text.
QVector<double> numbers(const QString &text)
{
    QVector<double> found;
    static const QRegularExpression number(QStringLiteral("-?[0-9]+\\.?[0-9]*"));
    for (auto it = number.globalMatch(text); it.hasNext();) {
        found.append(it.next().captured().toDouble());
    }
    return found;
}

} // namespace

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

void AssessmentTest::primaryOutside()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 1).green = Model::Target::fromYxy(300, 0.17, 0.81);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QVERIFY(lines.first().vertex == Vertex::Green);
    QVERIFY(lines.first().mark.contains(QLatin1String("green")));
    // The nearest point of the triangle is its green corner, but for the sides next to it.
    const double u = 4 * 0.17 / (-2 * 0.17 + 12 * 0.81 + 3);
    const double v = 9 * 0.81 / (-2 * 0.17 + 12 * 0.81 + 3);
    const double cornerU = 4 * 0.17 / (-2 * 0.17 + 12 * 0.797 + 3);
    const double cornerV = 9 * 0.797 / (-2 * 0.17 + 12 * 0.797 + 3);
    const double corner = std::hypot(u - cornerU, v - cornerV);
    const double said = distanceOutside(d.gamuts[1].getTargets(), Vertex::Green, d.gamuts[0].getTargets());
    QVERIFY(said > 0.0 && said <= corner + 1e-12);
    QVERIFY(said > 0.5 * corner);
    QCOMPARE(assess(d).judgement(), Judgement::Fail);
    QCOMPARE(assess(d).headline(), QStringLiteral("The display cannot show the target"));
}

void AssessmentTest::proposedPointIsInside_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("above the corner") << 0.17 << 0.81;
    QTest::newRow("left of it") << 0.12 << 0.80;
    QTest::newRow("beyond the side to red") << 0.40 << 0.60;
    QTest::newRow("beyond the side to blue") << 0.10 << 0.50;
    QTest::newRow("just beyond") << 0.1698 << 0.7978;
}

void AssessmentTest::proposedPointIsInside()
{
    QFETCH(double, x);
    QFETCH(double, y);
    DisplayDescription d = wall(500);
    targetsOf(d, 1).green = Model::Target::fromYxy(300, x, y);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.size(), 1);
    const QString text = lines.first().text;
    const auto found = numbers(text.mid(text.indexOf(QLatin1String("move it to"))));
    QVERIFY2(found.size() >= 2, qPrintable(text));
    QVERIFY2(depth(d.gamuts[0].getTargets(), found.at(0), found.at(1)) >= 0.0, qPrintable(text));
    // There it is judged inside, and the primaries that were inside before still are.
    targetsOf(d, 1).green = Model::Target::fromYxy(300, found.at(0), found.at(1));
    QCOMPARE(about(assess(d), Subject::Gamut).first().judgement, Judgement::Pass);
}

void AssessmentTest::proposesTheLargestTargetThatFits()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 1).green = Model::Target::fromYxy(300, 0.17, 0.81);
    // The red of DCI-P3 lies outside of Rec.2020, which fits itself.
    QVERIFY(assess(d).lines.first().text.contains(QLatin1String("choose Rec.2020")));
    d.original = QStringLiteral("Rec.709");
    d.target = QStringLiteral("Rec.2020");
    QVERIFY(assess(d).lines.first().text.contains(QLatin1String("choose Rec.709")));
    d.target = QStringLiteral("Rec.2020");
    targetsOf(d, 0) = scaled(Model::rec709().getTargets(), 1000.0);
    targetsOf(d, 0).green = Model::Target::fromYxy(700, 0.3, 0.5);
    d.original = QStringLiteral("Wall");
    QVERIFY(!assess(d).lines.first().text.contains(QLatin1String("choose")));
}

void AssessmentTest::whiteOutside()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 1).white = Model::Target::fromYxy(500, 0.05, 0.4);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().vertex == Vertex::White);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QCOMPARE(about(assess(d), Subject::Luminance).first().judgement, Judgement::NotKnown);
}

void AssessmentTest::luminanceAtItsLimit_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("the white of the wall") << 0.3127 << 0.3290;
    QTest::newRow("warm") << 0.4234 << 0.3990;
    QTest::newRow("cold") << 0.2829 << 0.2971;
}

void AssessmentTest::luminanceAtItsLimit()
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
    QCOMPARE(judged(full * 1.002 * (1.0 + 1e-9)), Judgement::Fail);
    QVERIFY(std::fabs(assess(d).displays.front().largestWhite->luminance - full) < full * 1e-9);
}

void AssessmentTest::farTooBright()
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

void AssessmentTest::reachedLuminanceIsItselfReached()
{
    DisplayDescription d = wall(5000);
    targetsOf(d, 1).white = Model::Target::fromYxy(5000, 0.2829, 0.2971);
    const QString text = about(assess(d), Subject::Luminance).first().text;
    const double said = numbers(text.mid(text.indexOf(QLatin1String("Lower")))).first();
    const double full = 1.0 / highestDrive(d.gamuts[0].getTargets(), Model::Target::fromYxy(1.0, 0.2829, 0.2971));
    QVERIFY2(said <= full && said > full - 0.1, qPrintable(text));
}

void AssessmentTest::primaryBrighterThanTheDisplay()
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

void AssessmentTest::unitsThatDoNotCompare_data()
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

void AssessmentTest::unitsThatDoNotCompare()
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

void AssessmentTest::relativeScalesNeedNotBeTheSame()
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

void AssessmentTest::whiteThatIsNotTheSum_data()
{
    QTest::addColumn<double>("white"); // of the wall, whose primaries add to 1000 cd/m²
    QTest::addColumn<double>("shift"); // of its white, in u'
    QTest::addColumn<double>("target");
    QTest::addColumn<Judgement>("judgement");
    QTest::addColumn<bool>("isDriveKnown");
    constexpr auto pass = Judgement::Pass;
    constexpr auto fail = Judgement::Fail;
    constexpr auto notKnown = Judgement::NotKnown;
    QTest::newRow("2 % less") << 980.01 << 0.0 << 999.0 << pass << true;
    QTest::newRow("more than 2 % less") << 979.99 << 0.0 << 999.0 << notKnown << false;
    QTest::newRow("2 % more") << 1019.99 << 0.0 << 999.0 << pass << true;
    QTest::newRow("more than 2 % more") << 1020.01 << 0.0 << 999.0 << notKnown << false;
    QTest::newRow("limited power") << 400.0 << 0.0 << 999.0 << notKnown << false;
    QTest::newRow("limited power, dark target") << 400.0 << 0.0 << 100.0 << notKnown << false;
    QTest::newRow("limited power, at the sum") << 400.0 << 0.0 << 1001.9 << notKnown << false;
    QTest::newRow("limited power, above the sum") << 400.0 << 0.0 << 1002.1 << fail << false;
    // A white that is brighter than the primaries has light of its own; their sum is no bound.
    QTest::newRow("white of its own") << 2000.0 << 0.0 << 1500.0 << notKnown << false;
    QTest::newRow("no white") << 0.0 << 0.0 << 500.0 << notKnown << false;
    QTest::newRow("other chromaticity, near") << 1000.0 << 0.00299 << 500.0 << pass << true;
    QTest::newRow("other chromaticity, far") << 1000.0 << 0.00301 << 500.0 << notKnown << false;
}

void AssessmentTest::whiteThatIsNotTheSum()
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
    if (judgement == Judgement::NotKnown && shift == 0.0 && white > 0.0) {
        const QString texts = QStringLiteral("The white of the original is %1 cd/m², its primaries add to 1000.0 cd/m²")
                                  .arg(white, 0, 'f', 1);
        QVERIFY2(line.text.startsWith(texts), qPrintable(line.text));
        QVERIFY(line.text.contains(QLatin1String("cannot be worked out")));
    }
}

void AssessmentTest::notAdditiveAndNotComparable()
{
    DisplayDescription d = wall(500, LuminanceUnit::Relative);
    QVERIFY(about(assess(d), Subject::Luminance).first().text.contains(QLatin1String("reaches 1000.0")));
    targetsOf(d, 0).white = Model::Target::fromYxy(400, 0.3127, 0.3290);
    QVERIFY(!about(assess(d), Subject::Luminance).first().text.contains(QLatin1String("reaches")));
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

void AssessmentTest::chromaticityOutsideOfTheMeasuredGamutFails()
{
    DisplayDescription d = wall(500);
    Model::Targets meter = d.gamuts[0].getTargets();
    meter.green = Model::Target::fromYxy(meter.green.Y, 0.2, 0.5);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    QVERIFY(exceededDisplay(d)->isMeasured);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.first().judgement, Judgement::Pass);
    QCOMPARE(lines.last().judgement, Judgement::Fail);
    QVERIFY(lines.last().vertex == Vertex::Green);
    QCOMPARE(assess(d).judgement(), Judgement::Fail);
    // No published gamut lies inside of both.
    QVERIFY(!lines.last().text.contains(QLatin1String("choose")));
    d.measured.clear();
    QVERIFY(!exceededDisplay(d));
}

void AssessmentTest::whiteIsExaminedWithoutLuminances()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 0).green = Model::Target::fromYxy(0.0, 0.17, 0.797);
    // Right and left of the side from blue, 0.131, 0.046, to green, at y = 0.4.
    const double edge = 0.131 + (0.170 - 0.131) * (0.4 - 0.046) / (0.797 - 0.046);
    targetsOf(d, 1).white = Model::Target::fromYxy(500, edge + 1e-5, 0.4);
    QCOMPARE(about(assess(d), Subject::Gamut).first().judgement, Judgement::Pass);
    targetsOf(d, 1).white = Model::Target::fromYxy(500, edge - 1e-5, 0.4);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QVERIFY(lines.first().vertex == Vertex::White);
    QVERIFY2(!lines.first().text.contains(QLatin1String("0.0000 ")), qPrintable(lines.first().text));
    targetsOf(d, 1).white = Model::Target::fromYxy(500, std::nan(""), 0.4);
    QCOMPARE(about(assess(d), Subject::Gamut).first().judgement, Judgement::NotKnown);
}

void AssessmentTest::driveAtItsLimitIsSaid()
{
    const QString within = QStringLiteral("within 0.2 % of full drive");
    const auto text = [](double luminance) { return about(assess(wall(luminance)), Subject::Luminance).first().text; };
    QVERIFY(!text(999.9).contains(within));
    QVERIFY2(text(1000.1).contains(within), qPrintable(text(1000.1)));
    QVERIFY2(text(1001.9).contains(within), qPrintable(text(1001.9)));
    QVERIFY2(text(1002.1).contains(QLatin1String("more than 0.2 % above full drive")), qPrintable(text(1002.1)));
    QVERIFY(!text(1010.0).contains(QLatin1String("0.2 %")));
}

void AssessmentTest::displayWithoutLuminances()
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

void AssessmentTest::toleranceAtItsLimit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("limit");
    // The meter has u', v' of white and green shifted along u', a brighter white, and another colour temperature.
    QTest::newRow("white") << 0.003 << 0;
    QTest::newRow("green") << 0.005 << 1;
    QTest::newRow("luminance") << 0.2 << 2;
    QTest::newRow("coverage") << 1.0 << 3;
}

void AssessmentTest::toleranceAtItsLimit()
{
    QFETCH(double, value);
    QFETCH(int, limit);
    const auto shifted = [](const Model::Target &t, double du, double Y) {
        const double d = -2 * t.x + 12 * t.y + 3;
        const double u = 4 * t.x / d + du;
        const double v = 9 * t.y / d;
        const double back = 6 * u - 16 * v + 12;
        return Model::Target::fromYxy(Y, 9 * u / back, 4 * v / back);
    };
    DisplayDescription d = wall(500);
    Model::Targets meter = d.gamuts[1].getTargets();
    meter.white = shifted(meter.white, 0.003, 600.0);
    meter.green = shifted(meter.green, limit == 3 ? 0.0 : -0.005, meter.green.Y);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    const auto judged = [&](double at) {
        Tolerances tolerances;
        std::optional<double> Model::Tolerances::*const limits[] = {&Model::Tolerances::whiteUv,
            &Model::Tolerances::primariesUv, &Model::Tolerances::luminance, &Model::Tolerances::coverage};
        tolerances.limits.*limits[limit] = at;
        const auto lines = about(assess(d, tolerances), Subject::Tolerance);
        return lines.at(limit == 1 ? 1 : 0).judgement; // of red, green and blue
    };
    QCOMPARE(judged(limit == 3 ? value - 1e-6 : value + 1e-6), Judgement::Pass);
    QCOMPARE(judged(limit == 3 ? value + 1e-6 : value - 1e-6), Judgement::Fail);
}

void AssessmentTest::tolerancesWithoutAMeasurement()
{
    Tolerances tolerances;
    tolerances.limits.whiteUv = 0.004;
    tolerances.limits.primariesUv = 0.004;
    tolerances.standards.append({QStringLiteral("Rec.709"), Model::Diagram::Cie1976, 0.5});
    const Assessment a = assess(wall(500), tolerances);
    const auto lines = about(a, Subject::Tolerance);
    QCOMPARE(lines.size(), 5);
    for (const AssessmentLine &line : lines) {
        QCOMPARE(line.judgement, Judgement::NotKnown);
        QVERIFY(line.text.contains(QLatin1String("no measured gamut of the display is known")));
    }
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    QCOMPARE(a.headline(), QStringLiteral("Not known whether it is in tolerance"));
}

void AssessmentTest::toleranceOfLuminanceNeedsUnits()
{
    DisplayDescription d = wall(500);
    d.measured = QStringLiteral("Rec.709");
    Tolerances tolerances;
    tolerances.limits.luminance = 1e9;
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::NotKnown);
    QVERIFY(lines.first().text.contains(QLatin1String("cannot be compared")));
}

void AssessmentTest::toleranceOfTheColourTemperature()
{
    DisplayDescription d = wall(500);
    Model::Targets meter = d.gamuts[1].getTargets();
    // Illuminant A, 2856 K by its definition; D65 of the target has 6504 K (CIE 15:2018, tables T.3 and 9.5).
    meter.white = Model::Target::fromYxy(500, 0.44758, 0.40745);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.temperature = 6504.0 - 2856.0 + 2.0;
    QCOMPARE(about(assess(d, tolerances), Subject::Tolerance).first().judgement, Judgement::Pass);
    tolerances.limits.temperature = 6504.0 - 2856.0 - 2.0;
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QVERIFY(lines.first().text.contains(QLatin1String("-36")));
    targetsOf(d, 2).white = Model::Target::fromYxy(500, 0.3, 0.6);
    QCOMPARE(about(assess(d, tolerances), Subject::Tolerance).first().judgement, Judgement::NotKnown);
}

void AssessmentTest::coverageOfAStandard()
{
    DisplayDescription d = wall(500);
    d.measured = QStringLiteral("Wall");
    // Rec.709 lies inside of Rec.2020: the areas are 0.11205 and 0.2118665 in x, y (shoelace formula).
    const double covered = 0.11205 / 0.2118665;
    targetsOf(d, 0) = scaled(Model::rec709().getTargets(), 1000.0);
    Tolerances tolerances;
    const auto judged = [&](double limit) {
        tolerances.standards = {{QStringLiteral("Rec.2020"), Model::Diagram::Cie1931, limit}};
        return about(assess(d, tolerances), Subject::Tolerance).first().judgement;
    };
    QCOMPARE(judged(covered - 1e-6), Judgement::Pass);
    QCOMPARE(judged(covered + 1e-6), Judgement::Fail);
    tolerances.standards = {{QStringLiteral("No such gamut"), Model::Diagram::Cie1931, 0.0}};
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.first().judgement, Judgement::NotKnown);
    QVERIFY(lines.first().text.contains(QLatin1String("no gamut of that name")));
}

void AssessmentTest::valueIsToldApartFromItsLimit()
{
    DisplayDescription d = wall(500);
    d.gamuts.push_back(named("Meter", scaled(Model::rec709().getTargets(), 500.0 * 1.10001), cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.luminance = 0.1;
    const QString text = about(assess(d, tolerances), Subject::Tolerance).first().text;
    const auto found = numbers(text);
    QVERIFY2(found.at(0) > found.at(1), qPrintable(text));
}

void AssessmentTest::deviationEqualToItsLimit_data()
{
    QTest::addColumn<double>("beyond"); // what the deviation has more than the limit of 0.004
    QTest::addColumn<Judgement>("judgement");
    QTest::addColumn<QString>("text");
    const QString equal = QString::fromUtf8("Δu′v′ 0.0040 from the target, limit 0.0040.");
    QTest::newRow("equal") << 0.0 << Judgement::Pass << equal;
    QTest::newRow("less") << -1e-7 << Judgement::Pass << equal;
    QTest::newRow("by rounding") << 2e-10 << Judgement::Pass << equal;
    QTest::newRow("a billionth") << 2e-9 << Judgement::Fail
                                 << QString::fromUtf8("Δu′v′ beyond 0.0040 from the target, limit 0.0040.");
    QTest::newRow("two more decimals") << 2e-6 << Judgement::Fail
                                       << QString::fromUtf8("Δu′v′ 0.004002 from the target, limit 0.004000.");
    QTest::newRow("more") << 1e-3 << Judgement::Fail
                          << QString::fromUtf8("Δu′v′ 0.0050 from the target, limit 0.0040.");
}

void AssessmentTest::deviationEqualToItsLimit()
{
    QFETCH(double, beyond);
    QFETCH(Judgement, judgement);
    QFETCH(QString, text);
    DisplayDescription d = wall(500);
    const Model::Target &white = d.gamuts[1].getTargets().white;
    const double sum = -2.0 * white.x + 12.0 * white.y + 3.0;
    const double u = 4.0 * white.x / sum + 0.004 + beyond;
    const double v = 9.0 * white.y / sum;
    const double back = 6.0 * u - 16.0 * v + 12.0;
    Model::Targets meter = d.gamuts[1].getTargets();
    meter.white = Model::Target::fromYxy(500, 9.0 * u / back, 4.0 * v / back);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.whiteUv = 0.004;
    const AssessmentLine line = about(assess(d, tolerances), Subject::Tolerance).first();
    QVERIFY2(line.judgement == judgement, qPrintable(line.text));
    QVERIFY2(line.text.contains(text), qPrintable(line.text));
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

QTEST_GUILESS_MAIN(AssessmentTest)
#include "assessmenttest.moc"
