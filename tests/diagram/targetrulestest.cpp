// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/targetrules.h>
#include <ceiechart/diagram/whitepoint.h>
#include <colortemperature/colortemperature.h>
#include <gamutmodel/gamutcoverage.h>

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ceiechart;

Q_DECLARE_METATYPE(Model::Targets)
Q_DECLARE_METATYPE(Model::Diagram)

class TargetRulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movedPrimaryMixesAnotherWhite();
    void heldWhiteExceedsNoPrimary_data();
    void heldWhiteExceedsNoPrimary();
    void heldWhiteOfTheOriginalStays();
    void heldWhiteKeepsItsLuminanceWithoutAnOriginal();
    void movedWhiteRebalancesThePrimaries();
    void whiteOutsideTheTriangleIsRefused();
    void primariesOnALineAreRefused();
    void badChromaticitiesAreRefused_data();
    void badChromaticitiesAreRefused();
    void withoutLightTheWhiteStays();
    void luminanceOfAPrimaryMixesAnotherWhite();
    void luminanceOfTheWhiteScalesAll();
    void luminanceScalesAllWhileTheWhiteIsHeld();

    void nearestInside_data();
    void nearestInside();
    void nearestInsideOfNoTriangle();

    void snapsToTheNearestPointInReach();
    void snapsToPointsBeforeLines();
    void snapsToTheNearestPlaceOfALine();
    void reachIsMeasuredInTheDiagram();
    void snapsAlongALockedLineOnly();

    void standardRulesMoveAnything();
    void standardRulesHoldTheWhite();
    void standardRulesLock();
    void standardRulesStayInside_data();
    void standardRulesStayInside();
    void standardRulesSayWhyNot();
    void standardRulesSnapTo();
    void standardRulesWithoutSnapping();
    void movesAsFarAsAllowed();
    void movesNotAtAllWhenLocked();
    void hostsReplaceTheRules();
};

namespace {

Model::Targets wall()
{
    return {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
        Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)};
}

Model::Targets rec709()
{
    return Model::rec709().getTargets();
}

TargetContext context()
{
    TargetContext c;
    c.target = rec709();
    c.original = wall();
    c.standards = {Model::rec2020(), Model::dciP3D65()};
    return c;
}

QPointF mixture(const Model::Targets &t)
{
    double Y = 0.0;
    double x = 0.0;
    double y = 0.0;
    RGBCxCyToWhiteCxCy(
        t.red.Y, t.red.x, t.red.y, t.green.Y, t.green.x, t.green.y, t.blue.Y, t.blue.x, t.blue.y, &Y, &x, &y);
    return QPointF(x, y);
}

QPolygonF polygon(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points));
}

bool near(const QPointF &a, const QPointF &b, double tolerance = 1e-9)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) < tolerance;
}

QPointF to(Model::Diagram diagram, const QPointF &xy)
{
    const Model::DiagramPoint point = Model::toDiagram(diagram, {xy.x(), xy.y()});
    return QPointF(point.x, point.y);
}

const double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

void TargetRulesTest::movedPrimaryMixesAnotherWhite()
{
    const Model::Targets before = rec709();
    const auto after = withPrimary(before, GamutVertex::Red, QPointF(0.66, 0.32));
    QVERIFY(after);
    QVERIFY(near(xyOf(after->red), QPointF(0.66, 0.32)));
    QCOMPARE(after->red.Y, before.red.Y);
    QVERIFY(near(xyOf(after->white), mixture(*after)));
    QVERIFY(!near(xyOf(after->white), xyOf(before.white), 1e-4));
    QCOMPARE(after->white.Y, before.red.Y + before.green.Y + before.blue.Y);
    QVERIFY(!withPrimary(before, GamutVertex::White, QPointF(0.3, 0.3)));
}

void TargetRulesTest::heldWhiteExceedsNoPrimary_data()
{
    QTest::addColumn<Model::Targets>("original");
    QTest::addColumn<int>("primary");
    QTest::addColumn<QPointF>("xy");
    QTest::newRow("1000 cd/m², red") << wall() << int(GamutVertex::Red) << QPointF(0.66, 0.32);
    QTest::newRow("1000 cd/m², green") << wall() << int(GamutVertex::Green) << QPointF(0.32, 0.59);
    QTest::newRow("relative, red") << rec709() << int(GamutVertex::Red) << QPointF(0.62, 0.34);
    QTest::newRow("relative, green") << rec709() << int(GamutVertex::Green) << QPointF(0.32, 0.59);
    QTest::newRow("relative, blue") << rec709() << int(GamutVertex::Blue) << QPointF(0.16, 0.07);
    Model::Targets dim = rec709();
    dim.blue = Model::Target::fromYxy(1e-4, dim.blue.x, dim.blue.y);
    QTest::newRow("hardly any blue") << dim << int(GamutVertex::Green) << QPointF(0.32, 0.59);
}

void TargetRulesTest::heldWhiteExceedsNoPrimary()
{
    QFETCH(Model::Targets, original);
    QFETCH(int, primary);
    QFETCH(QPointF, xy);
    const auto after = withPrimaryHoldingWhite(rec709(), GamutVertex(primary), xy, original);
    QVERIFY(after);
    QCOMPARE(after->white.x, rec709().white.x);
    QCOMPARE(after->white.y, rec709().white.y);
    QVERIFY(near(mixture(*after), xyOf(after->white)));
    // One primary is at its limit, and none beyond.
    double most = 0.0;
    for (const GamutVertex vertex : {GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue}) {
        most = std::max(most, targetAt(*after, vertex).Y / targetAt(original, vertex).Y);
    }
    QVERIFY2(std::fabs(most - 1.0) < 2e-9, qPrintable(QString::number(most)));
}

void TargetRulesTest::heldWhiteOfTheOriginalStays()
{
    Model::Targets original = wall();
    original.white = Model::Target::fromYxy(1000, mixture(original).x(), mixture(original).y());
    const auto after = withPrimaryHoldingWhite(original, GamutVertex::Red, xyOf(original.red), original);
    QVERIFY(after);
    QCOMPARE(after->white.Y, 1000.0);
    QVERIFY(std::fabs(after->red.Y - 240) < 1e-6);
}

void TargetRulesTest::heldWhiteKeepsItsLuminanceWithoutAnOriginal()
{
    const auto after = withPrimaryHoldingWhite(rec709(), GamutVertex::Red, QPointF(0.66, 0.32), std::nullopt);
    QVERIFY(after);
    QCOMPARE(after->white.Y, 1.0);
    QVERIFY(near(mixture(*after), xyOf(rec709().white)));
    QVERIFY(std::fabs(after->red.Y + after->green.Y + after->blue.Y - 1.0) < 1e-9);
}

void TargetRulesTest::movedWhiteRebalancesThePrimaries()
{
    const Model::Targets before = rec709();
    const auto after = withWhite(before, QPointF(0.30, 0.31));
    QVERIFY(after);
    QVERIFY(near(mixture(*after), QPointF(0.30, 0.31)));
    QCOMPARE(after->white.Y, before.white.Y);
    QVERIFY(after->blue.Y > before.blue.Y);
    QVERIFY(near(xyOf(after->red), xyOf(before.red)));
}

void TargetRulesTest::whiteOutsideTheTriangleIsRefused()
{
    QVERIFY(!withWhite(rec709(), QPointF(0.6, 0.39)));
    QVERIFY(!withPrimaryHoldingWhite(rec709(), GamutVertex::Green, QPointF(0.5, 0.2), wall()));
}

void TargetRulesTest::primariesOnALineAreRefused()
{
    const Model::Targets t = rec709();
    QVERIFY(!withPrimary(t, GamutVertex::Red, xyOf(t.green)));
    QVERIFY(!withPrimary(t, GamutVertex::Red, (xyOf(t.green) + xyOf(t.blue)) / 2));
    QVERIFY(!withPrimaryHoldingWhite(t, GamutVertex::Red, xyOf(t.green), wall()));
}

void TargetRulesTest::badChromaticitiesAreRefused_data()
{
    QTest::addColumn<QPointF>("xy");
    QTest::newRow("y 0") << QPointF(0.3, 0.0);
    QTest::newRow("negative x") << QPointF(-0.01, 0.3);
    QTest::newRow("sum above 1") << QPointF(0.6, 0.41);
    QTest::newRow("NaN") << QPointF(notANumber, 0.3);
    QTest::newRow("infinite") << QPointF(0.3, std::numeric_limits<double>::infinity());
}

void TargetRulesTest::badChromaticitiesAreRefused()
{
    QFETCH(QPointF, xy);
    QVERIFY(!isChromaticity(xy));
    QVERIFY(!withPrimary(wall(), GamutVertex::Red, xy));
    QVERIFY(!withPrimaryHoldingWhite(wall(), GamutVertex::Red, xy, wall()));
    QVERIFY(!withWhite(wall(), xy));
    const TargetMove move = StandardTargetRules().move(context(), GamutVertex::Red, xy);
    QVERIFY(!move.targets);
    QVERIFY(!move.reason.isEmpty());
}

void TargetRulesTest::withoutLightTheWhiteStays()
{
    Model::Targets dark = rec709();
    for (const GamutVertex vertex : allGamutVertices) {
        const Model::Target &target = targetAt(dark, vertex);
        targetAt(dark, vertex) = Model::Target::fromYxy(0.0, target.x, target.y);
    }
    const auto after = withPrimary(dark, GamutVertex::Red, QPointF(0.66, 0.32));
    QVERIFY(after);
    QCOMPARE(xyOf(after->red), QPointF(0.66, 0.32));
    QCOMPARE(xyOf(after->white), xyOf(dark.white));
    QCOMPARE(after->white.Y, 0.0);
}

void TargetRulesTest::luminanceOfAPrimaryMixesAnotherWhite()
{
    const auto after = withLuminance(wall(), GamutVertex::Blue, 200, false);
    QVERIFY(after);
    QCOMPARE(after->blue.Y, 200.0);
    QCOMPARE(after->red.Y, 240.0);
    QCOMPARE(after->white.Y, 1074.0);
    QVERIFY(near(xyOf(after->white), mixture(*after)));
    QVERIFY(!withLuminance(wall(), GamutVertex::Blue, -1, false));
    QVERIFY(!withLuminance(wall(), GamutVertex::Blue, std::numeric_limits<double>::infinity(), false));
    QVERIFY(!withLuminance(wall(), GamutVertex::Blue, notANumber, false));
}

void TargetRulesTest::luminanceOfTheWhiteScalesAll()
{
    const auto after = withLuminance(wall(), GamutVertex::White, 500, false);
    QVERIFY(after);
    QCOMPARE(after->white.Y, 500.0);
    QCOMPARE(after->red.Y, 120.0);
    QCOMPARE(after->green.Y, 317.0);
    QCOMPARE(after->white.x, wall().white.x);
}

void TargetRulesTest::luminanceScalesAllWhileTheWhiteIsHeld()
{
    const auto after = withLuminance(wall(), GamutVertex::Red, 120, true);
    QVERIFY(after);
    QCOMPARE(after->green.Y, 317.0);
    QCOMPARE(after->white.Y, 500.0);
    QVERIFY(!withLuminance(Model::Targets(), GamutVertex::White, 1, false));
}

void TargetRulesTest::nearestInside_data()
{
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("x, y") << Model::Diagram::Cie1931;
    QTest::newRow("u', v'") << Model::Diagram::Cie1976;
    QTest::newRow("u, v") << Model::Diagram::Cie1960;
}

void TargetRulesTest::nearestInside()
{
    QFETCH(Model::Diagram, diagram);
    const Model::Targets t = rec709();
    QCOMPARE(ceiechart::nearestInside(t, QPointF(0.3127, 0.329), diagram), QPointF(0.3127, 0.329));
    // Against a search: no point of the edges is nearer than the one that was found.
    for (double x = 0.05; x < 0.75; x += 0.035) {
        for (double y = 0.02; y < 0.85; y += 0.035) {
            const QPointF found = ceiechart::nearestInside(t, QPointF(x, y), diagram);
            if (found == QPointF(x, y)) {
                continue;
            }
            const QPointF wanted = to(diagram, QPointF(x, y));
            const QPointF way = to(diagram, found) - wanted;
            const double away = std::hypot(way.x(), way.y());
            const QPolygonF corners({to(diagram, xyOf(t.red)), to(diagram, xyOf(t.green)), to(diagram, xyOf(t.blue))});
            double least = 10.0;
            for (int side = 0; side < 3; ++side) {
                for (int i = 0; i <= 2000; ++i) {
                    const QPointF p = corners[side] + (corners[(side + 1) % 3] - corners[side]) * (i / 2000.0);
                    least = std::min(least, std::hypot(p.x() - wanted.x(), p.y() - wanted.y()));
                }
            }
            QVERIFY2(away <= least + 1e-9 && away > least - 1e-3, qPrintable(QString::number(away - least)));
        }
    }
}

void TargetRulesTest::nearestInsideOfNoTriangle()
{
    QCOMPARE(ceiechart::nearestInside(Model::Targets(), QPointF(0.5, 0.4), Model::Diagram::Cie1931), QPointF(0.5, 0.4));
}

void TargetRulesTest::snapsToTheNearestPointInReach()
{
    const QVector<SnapLine> lines{
        {QStringLiteral("a"), polygon({QPointF(0.64, 0.33)})}, {QStringLiteral("b"), polygon({QPointF(0.68, 0.32)})}};
    const auto a = snapped(QPointF(0.642, 0.33), lines, Model::Diagram::Cie1931, 0.01);
    QVERIFY(a);
    QCOMPARE(a->xy, QPointF(0.64, 0.33));
    QCOMPARE(a->to.name, QStringLiteral("a"));
    QCOMPARE(snapped(QPointF(0.675, 0.32), lines, Model::Diagram::Cie1931, 0.1)->to.name, QStringLiteral("b"));
    QVERIFY(!snapped(QPointF(0.66, 0.33), lines, Model::Diagram::Cie1931, 0.01));
    QVERIFY(!snapped(QPointF(notANumber, 0.33), lines, Model::Diagram::Cie1931, 0.01));
}

void TargetRulesTest::snapsToPointsBeforeLines()
{
    const QVector<SnapLine> lines{
        {QStringLiteral("line"), polygon({QPointF(0.0, 0.3), QPointF(0.5, 0.3), QPointF(0.6, 0.3)})},
        {QStringLiteral("point"), polygon({QPointF(0.304, 0.3)})}};
    QCOMPARE(snapped(QPointF(0.3, 0.301), lines, Model::Diagram::Cie1931, 0.005)->to.name, QStringLiteral("point"));
    QCOMPARE(snapped(QPointF(0.29, 0.301), lines, Model::Diagram::Cie1931, 0.005)->to.name, QStringLiteral("line"));
}

void TargetRulesTest::snapsToTheNearestPlaceOfALine()
{
    const QVector<SnapLine> lines{
        {QStringLiteral("line"), polygon({QPointF(0.1, 0.1), QPointF(0.3, 0.3), QPointF(0.5, 0.3)})}};
    QVERIFY(near(snapped(QPointF(0.21, 0.19), lines, Model::Diagram::Cie1931, 0.02)->xy, QPointF(0.2, 0.2)));
    QVERIFY(near(snapped(QPointF(0.4, 0.31), lines, Model::Diagram::Cie1931, 0.02)->xy, QPointF(0.4, 0.3)));
    // Beyond an end it is the end.
    QVERIFY(near(snapped(QPointF(0.51, 0.3), lines, Model::Diagram::Cie1931, 0.02)->xy, QPointF(0.5, 0.3)));
    QVERIFY(!snapped(QPointF(0.53, 0.3), lines, Model::Diagram::Cie1931, 0.02));
}

void TargetRulesTest::reachIsMeasuredInTheDiagram()
{
    // About the green corner, u', v' are denser than x, y.
    const QVector<SnapLine> lines{{QStringLiteral("p"), polygon({QPointF(0.2, 0.7)})}};
    const QPointF beside(0.2, 0.71);
    const QPointF way = to(Model::Diagram::Cie1976, beside) - to(Model::Diagram::Cie1976, QPointF(0.2, 0.7));
    const double distance = std::hypot(way.x(), way.y());
    QVERIFY(distance < 0.005);
    QVERIFY(snapped(beside, lines, Model::Diagram::Cie1976, distance * 1.001));
    QVERIFY(!snapped(beside, lines, Model::Diagram::Cie1976, distance * 0.999));
    QVERIFY(!snapped(beside, lines, Model::Diagram::Cie1931, distance * 1.001));
}

void TargetRulesTest::snapsAlongALockedLineOnly()
{
    const QVector<SnapLine> lines{{QStringLiteral("slope"), polygon({QPointF(0.1, 0.1), QPointF(0.5, 0.5)})},
        {QStringLiteral("aside"), polygon({QPointF(0.3, 0.302)})},
        {QStringLiteral("on it"), polygon({QPointF(0.4, 0.3)})}};
    const QLineF along(QPointF(0.2, 0.3), QPointF(0.25, 0.3));
    const auto crossing = snapped(QPointF(0.304, 0.3), lines, Model::Diagram::Cie1931, 0.01, along);
    QVERIFY(crossing);
    QCOMPARE(crossing->to.name, QStringLiteral("slope"));
    QVERIFY(near(crossing->xy, QPointF(0.3, 0.3)));
    QCOMPARE(
        snapped(QPointF(0.404, 0.3), lines, Model::Diagram::Cie1931, 0.01, along)->to.name, QStringLiteral("on it"));
    QVERIFY(!snapped(QPointF(0.35, 0.3), lines, Model::Diagram::Cie1931, 0.01, along));
}

void TargetRulesTest::standardRulesMoveAnything()
{
    const StandardTargetRules rules;
    for (const GamutVertex vertex : allGamutVertices) {
        QVERIFY(rules.isMovable(vertex));
        const QPointF xy = xyOf(targetAt(rec709(), vertex)) + QPointF(0.004, -0.003);
        const TargetMove move = rules.move(context(), vertex, xy);
        QVERIFY(move.targets);
        QVERIFY(move.reason.isEmpty());
        QVERIFY(near(xyOf(targetAt(*move.targets, vertex)), xy));
        QVERIFY(near(mixture(*move.targets), xyOf(move.targets->white)));
    }
    // Beyond the original too.
    QVERIFY(rules.move(context(), GamutVertex::Green, QPointF(0.17, 0.79)).targets);
}

void TargetRulesTest::standardRulesHoldTheWhite()
{
    StandardTargetRules rules;
    rules.setHoldsWhite(true);
    QVERIFY(rules.holdsWhite());
    const TargetMove move = rules.move(context(), GamutVertex::Red, QPointF(0.66, 0.32));
    QVERIFY(move.targets);
    QVERIFY(near(xyOf(move.targets->white), xyOf(rec709().white)));
    // The white itself can be moved all the same, as long as it is not locked.
    QVERIFY(rules.move(context(), GamutVertex::White, QPointF(0.3, 0.31)).targets);
}

void TargetRulesTest::standardRulesLock()
{
    StandardTargetRules rules;
    rules.setLocksPrimaries(true);
    QVERIFY(!rules.isMovable(GamutVertex::Green));
    QVERIFY(rules.isMovable(GamutVertex::White));
    QVERIFY(!rules.move(context(), GamutVertex::Green, QPointF(0.3, 0.61)).targets);
    QVERIFY(rules.move(context(), GamutVertex::White, QPointF(0.3, 0.31)).targets);
    rules.setLocksPrimaries(false);
    rules.setLocksWhite(true);
    QVERIFY(rules.isMovable(GamutVertex::Green));
    QVERIFY(!rules.isMovable(GamutVertex::White));
    const TargetMove move = rules.move(context(), GamutVertex::White, QPointF(0.3, 0.31));
    QVERIFY(!move.targets);
    QVERIFY(!move.reason.isEmpty());
}

void TargetRulesTest::standardRulesStayInside_data()
{
    nearestInside_data();
}

void TargetRulesTest::standardRulesStayInside()
{
    QFETCH(Model::Diagram, diagram);
    StandardTargetRules rules;
    rules.setStaysInsideOriginal(true);
    TargetContext c = context();
    c.diagram = diagram;
    const QPointF outside(0.17, 0.79);
    const TargetMove move = rules.move(c, GamutVertex::Green, outside);
    QVERIFY(move.targets);
    QVERIFY(!move.reason.isEmpty());
    QVERIFY(near(xyOf(move.targets->green), ceiechart::nearestInside(wall(), outside, diagram)));
    QVERIFY(!Model::primariesOutside(*move.targets, wall()).green);
    // Inside, nothing is said.
    QVERIFY(rules.move(c, GamutVertex::Green, QPointF(0.25, 0.6)).reason.isEmpty());
    c.original.reset();
    QVERIFY(near(xyOf(rules.move(c, GamutVertex::Green, outside).targets->green), outside));
}

void TargetRulesTest::standardRulesSayWhyNot()
{
    const StandardTargetRules rules;
    QSet<QString> reasons;
    reasons.insert(rules.move(context(), GamutVertex::White, QPointF(0.6, 0.39)).reason);
    reasons.insert(rules.move(context(), GamutVertex::Red, xyOf(rec709().green)).reason);
    reasons.insert(rules.move(context(), GamutVertex::Red, QPointF(0.8, 0.4)).reason);
    QVERIFY(!reasons.contains(QString()));
    QCOMPARE(reasons.size(), 3);
}

void TargetRulesTest::standardRulesSnapTo()
{
    const StandardTargetRules rules;
    const auto names = [&](GamutVertex vertex) {
        QStringList result;
        for (const SnapLine &line : rules.snapLines(context(), vertex)) {
            result.append(line.name);
        }
        return result;
    };
    const QStringList red = names(GamutVertex::Red);
    QCOMPARE(red,
        QStringList({QStringLiteral("Rec.2020 red"), QStringLiteral("DCI-P3(D65) red"), QStringLiteral("original red"),
            QStringLiteral("edge of the original")}));
    const QStringList white = names(GamutVertex::White);
    QVERIFY(white.contains(QStringLiteral("D65")) && white.contains(QStringLiteral("D50")));
    QVERIFY(white.contains(QStringLiteral("Planckian locus")));
    QVERIFY(white.contains(QStringLiteral("original white")));
    QVERIFY(!white.contains(QStringLiteral("edge of the original")));

    // A white near the locus lands on it: its Duv is zero.
    const auto locus = chromaticityAt(4200.0, 0.0004);
    const auto snap = snapped(*locus, rules.snapLines(context(), GamutVertex::White), Model::Diagram::Cie1931, 0.002);
    QVERIFY(snap);
    QCOMPARE(snap->to.name, QStringLiteral("Planckian locus"));
    QVERIFY(std::fabs(colorTemperature(snap->xy)->duv) < 1e-6);
}

void TargetRulesTest::standardRulesWithoutSnapping()
{
    StandardTargetRules rules;
    rules.setSnaps(false);
    QVERIFY(!rules.snaps());
    QVERIFY(rules.snapLines(context(), GamutVertex::White).isEmpty());
}

void TargetRulesTest::movesAsFarAsAllowed()
{
    const StandardTargetRules rules;
    // The white downwards: as far as the edge from blue to red, which x = 0.3127 crosses at this y.
    const double edge = 0.060 + (0.3127 - 0.150) * (0.330 - 0.060) / (0.640 - 0.150);
    const QPointF wanted(0.3127, 0.05);
    QVERIFY(!rules.move(context(), GamutVertex::White, wanted).targets);
    const TargetMove move = movedTowards(rules, context(), GamutVertex::White, wanted);
    QVERIFY(move.targets);
    QVERIFY(!move.reason.isEmpty());
    const QPointF white = xyOf(move.targets->white);
    QVERIFY(std::fabs(white.x() - 0.3127) < 1e-12);
    QVERIFY2(white.y() >= edge && white.y() < edge + 0.0003, qPrintable(QString::number(white.y() - edge)));
    // What is allowed is taken as it is.
    QVERIFY(near(
        xyOf(movedTowards(rules, context(), GamutVertex::White, QPointF(0.3, 0.3)).targets->white), QPointF(0.3, 0.3)));
    QVERIFY(!movedTowards(rules, context(), GamutVertex::White, QPointF(notANumber, 0.3)).targets);
}

void TargetRulesTest::movesNotAtAllWhenLocked()
{
    StandardTargetRules rules;
    rules.setLocksWhite(true);
    const TargetMove move = movedTowards(rules, context(), GamutVertex::White, QPointF(0.3, 0.3));
    QVERIFY(!move.targets);
    QVERIFY(!move.reason.isEmpty());
}

void TargetRulesTest::hostsReplaceTheRules()
{
    class WhiteOnTheLocus : public StandardTargetRules {
    public:
        TargetMove move(const TargetContext &c, GamutVertex vertex, const QPointF &xy) const override
        {
            const auto white = colorTemperature(xy);
            const auto onLocus = white ? chromaticityAt(white->kelvin, 0.0) : std::nullopt;
            return StandardTargetRules::move(c, vertex, vertex == GamutVertex::White ? onLocus.value_or(xy) : xy);
        }
    };
    const std::unique_ptr<TargetRules> rules = std::make_unique<WhiteOnTheLocus>();
    const TargetMove move = rules->move(context(), GamutVertex::White, QPointF(0.3127, 0.329));
    QVERIFY(move.targets);
    QVERIFY(std::fabs(colorTemperature(xyOf(move.targets->white))->duv) < 1e-8);
}

QTEST_GUILESS_MAIN(TargetRulesTest)
#include "targetrulestest.moc"
