// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessmentfixture.h"

#include <QtTest>

#include <cmath>

using namespace assessmentfixture;

class GamutAssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void primaryOutside();
    void proposedPointIsInside_data();
    void proposedPointIsInside();
    void proposesTheLargestTargetThatFits();
    void whiteOutside();
    void chromaticityOutsideOfTheMeasuredGamutFails();
    void whiteIsExaminedWithoutLuminances();
};

namespace {

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

} // namespace

void GamutAssessmentTest::primaryOutside()
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

void GamutAssessmentTest::proposedPointIsInside_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("above the corner") << 0.17 << 0.81;
    QTest::newRow("left of it") << 0.12 << 0.80;
    QTest::newRow("beyond the side to red") << 0.40 << 0.60;
    QTest::newRow("beyond the side to blue") << 0.10 << 0.50;
    QTest::newRow("just beyond") << 0.1698 << 0.7978;
}

void GamutAssessmentTest::proposedPointIsInside()
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
    // Over a black that point is out of reach.
    targetsOf(d, 1).green = Model::Target::fromYxy(300, x, y);
    d.gamuts[0].black = Model::Target::fromYxy(3.0, 0.31, 0.33);
    const QString overBlack = about(assess(d), Subject::Gamut).first().text;
    QVERIFY2(overBlack.contains(QStringLiteral("move it beyond %1, %2, towards the white, as the black")
                                    .arg(found.at(0), 0, 'f', 4)
                                    .arg(found.at(1), 0, 'f', 4)),
        qPrintable(overBlack));
}

void GamutAssessmentTest::proposesTheLargestTargetThatFits()
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

void GamutAssessmentTest::whiteOutside()
{
    DisplayDescription d = wall(500);
    targetsOf(d, 1).white = Model::Target::fromYxy(500, 0.05, 0.4);
    const auto lines = about(assess(d), Subject::Gamut);
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().vertex == Vertex::White);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QCOMPARE(about(assess(d), Subject::Luminance).first().judgement, Judgement::NotKnown);
}

void GamutAssessmentTest::chromaticityOutsideOfTheMeasuredGamutFails()
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

void GamutAssessmentTest::whiteIsExaminedWithoutLuminances()
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

QTEST_GUILESS_MAIN(GamutAssessmentTest)
#include "gamutassessmenttest.moc"
