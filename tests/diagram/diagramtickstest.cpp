// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramticks_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace ceiechart;

class DiagramTicksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepsAreRound_data();
    void stepsAreRound();
    void stepIsTheLeastThatIsEnough();
    void ticksWithinARange();
    void textsHaveTheDecimalsOfTheStep();
    void nothingIsNeverNegative();
    void tooManyTicksAreNone();
    void rounderComesFirst();

    void linesAreCut();
    void quickAnswersAreThoseOfTheCut();
    void closedLinesAreCutWhereTheyEnd();
    void lengthsBeforeAPart();
    void linesTooLongForANumberAreLeftOut();
    void sharesOfAConvexPolygon();
    void dashesGoOnRoundCorners();
};

void DiagramTicksTest::stepsAreRound_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("step");
    QTest::newRow("a tenth") << 0.1 << 0.1;
    QTest::newRow("above a tenth") << 0.1001 << 0.2;
    QTest::newRow("two") << 0.02 << 0.02;
    QTest::newRow("above two") << 0.021 << 0.05;
    QTest::newRow("five") << 0.005 << 0.005;
    QTest::newRow("above five") << 0.0051 << 0.01;
    QTest::newRow("small") << 3.1e-5 << 5e-5;
    QTest::newRow("large") << 130.0 << 200.0;
    QTest::newRow("one") << 1.0 << 1.0;
}

void DiagramTicksTest::stepsAreRound()
{
    QFETCH(double, least);
    QTEST(roundStep(least), "step");
}

void DiagramTicksTest::stepIsTheLeastThatIsEnough()
{
    for (double least = 1e-6; least < 1e4; least *= 1.037) {
        const double step = roundStep(least);
        QVERIFY(step >= least * (1.0 - 1e-8));
        QVERIFY(step <= least * 2.5 * (1.0 + 1e-8));
    }
}

void DiagramTicksTest::ticksWithinARange()
{
    const TickScale scale = ticksAtLeast(0.1);
    QCOMPARE(scale.within(0.0, 0.3), QVector<qint64>({0, 1, 2, 3}));
    QCOMPARE(scale.within(-0.25, 0.05), QVector<qint64>({-2, -1, 0}));
    QCOMPARE(scale.within(0.11, 0.19), QVector<qint64>());
    QCOMPARE(ticksAtLeast(0.0005).within(0.3125, 0.3135), QVector<qint64>({625, 626, 627}));
}

void DiagramTicksTest::textsHaveTheDecimalsOfTheStep()
{
    QCOMPARE(ticksAtLeast(0.1).text(3), QStringLiteral("0.3"));
    QCOMPARE(ticksAtLeast(0.05).text(3), QStringLiteral("0.15"));
    QCOMPARE(ticksAtLeast(0.0002).text(1564), QStringLiteral("0.3128"));
    QCOMPARE(ticksAtLeast(1.0).text(2), QStringLiteral("2.0"));
    QCOMPARE(ticksAtLeast(0.1).text(-1), QStringLiteral("-0.1"));
}

void DiagramTicksTest::nothingIsNeverNegative()
{
    for (double least = 1e-6; least < 10.0; least *= 1.7) {
        const TickScale scale = ticksAtLeast(least);
        for (const qint64 tick : scale.within(-3.0 * scale.step(), 3.0 * scale.step())) {
            const QString text = scale.text(tick);
            QVERIFY2(text.toDouble() != 0.0 || !text.startsWith(QLatin1Char('-')), qPrintable(text));
            QCOMPARE(text.toDouble() != 0.0, tick != 0);
        }
    }
}

void DiagramTicksTest::tooManyTicksAreNone()
{
    QVERIFY(ticksAtLeast(1e-6).within(0.0, 1.0).isEmpty());
    QVERIFY(ticksAtLeast(0.1).within(0.0, HUGE_VAL).isEmpty());
    QVERIFY(ticksAtLeast(0.1).within(std::nan(""), 1.0).isEmpty());
}

void DiagramTicksTest::rounderComesFirst()
{
    QVERIFY(roundness(500) > roundness(400));
    QVERIFY(roundness(400) > roundness(700));
    QVERIFY(roundness(700) > roundness(450));
    QVERIFY(roundness(450) > roundness(460));
    QVERIFY(roundness(460) > roundness(470));
    QVERIFY(roundness(470) > roundness(475));
    QVERIFY(roundness(475) > roundness(475.5));
    QVERIFY(roundness(0) > roundness(1e6));
}

void DiagramTicksTest::linesAreCut()
{
    const QRectF area(0, 0, 10, 10);
    const auto part = partWithin(QLineF(-5, 5, 20, 5), area);
    QVERIFY(part);
    QCOMPARE(*part, QLineF(0, 5, 10, 5));
    QVERIFY(!partWithin(QLineF(-5, 11, 20, 11), area));
    QVERIFY(!partWithin(QLineF(-5, -1, -1, -5), area));
    QVERIFY(!partWithin(QLineF(-2, 1, 1, -2), area));
    const auto parts
        = partsWithin(QPolygonF() << QPointF(2, 2) << QPointF(20, 2) << QPointF(20, 8) << QPointF(2, 8), false, area);
    QCOMPARE(parts.size(), size_t(2));
    QCOMPARE(parts[0].points.last(), QPointF(10, 2));
    QCOMPARE(parts[1].points.first(), QPointF(10, 8));
}

void DiagramTicksTest::quickAnswersAreThoseOfTheCut()
{
    // On a grid, many lines just touch a side or a corner.
    constexpr int side = 9;
    const QRectF area(2, 3, 4, 2);
    int met = 0;
    for (int i = 0; i < side * side; ++i) {
        for (int k = 0; k < side * side; ++k) {
            const QPoint from(i % side, i / side);
            const QPoint to(k % side, k / side);
            const QLineF line(from, to);
            QCOMPARE(meets(line, area), passesThrough(line, area));
            met += meets(line, area) ? 1 : 0;
            const QRectF box(from, QSizeF(to.x(), to.y()));
            QCOMPARE(overlap(box, area), box.intersects(area));
        }
    }
    QVERIFY(met > 1000 && met < 5000);
}

void DiagramTicksTest::closedLinesAreCutWhereTheyEnd()
{
    const QPolygonF triangle = QPolygonF() << QPointF(1, 1) << QPointF(9, 1) << QPointF(5, 9);
    const auto whole = partsWithin(triangle, true, QRectF(0, 0, 10, 10));
    QCOMPARE(whole.size(), size_t(1));
    QVERIFY(whole[0].closed);
    const auto parts = partsWithin(triangle, true, QRectF(0, 0, 10, 5));
    QCOMPARE(parts.size(), size_t(2));
    QVERIFY(!parts[0].closed);
    QCOMPARE(parts[1].points.last(), QPointF(1, 1));
}

void DiagramTicksTest::lengthsBeforeAPart()
{
    const auto parts
        = partsWithin(QPolygonF() << QPointF(-10, 5) << QPointF(0, 5) << QPointF(20, 5), false, QRectF(3, 0, 4, 10));
    QCOMPARE(parts.size(), size_t(1));
    QCOMPARE(parts[0].begin, 13.0);
}

void DiagramTicksTest::linesTooLongForANumberAreLeftOut()
{
    const double far = 0.9 * std::numeric_limits<double>::max(); // from there, the length is infinite
    const QPolygonF line = QPolygonF() << QPointF(-far, -far) << QPointF(5, 5) << QPointF(6, 6);
    const auto parts = partsWithin(line, false, QRectF(0, 0, 10, 10));
    QCOMPARE(parts.size(), size_t(1));
    QCOMPARE(parts[0].points, QPolygonF() << QPointF(5, 5) << QPointF(6, 6));
    QCOMPARE(parts[0].begin, 0.0);
}

void DiagramTicksTest::sharesOfAConvexPolygon()
{
    const QPolygonF square = QPolygonF() << QPointF(2, 2) << QPointF(8, 2) << QPointF(8, 8) << QPointF(2, 8);
    QPolygonF reversed;
    for (const QPointF &corner : square) {
        reversed.prepend(corner);
    }
    for (const QPolygonF &polygon : {square, reversed}) {
        const auto shares = sharesWithin(QLineF(0, 5, 10, 5), polygon);
        QVERIFY(shares);
        QCOMPARE(shares->first, 0.2);
        QCOMPARE(shares->second, 0.8);
        QVERIFY(!sharesWithin(QLineF(0, 9, 10, 9), polygon));
    }
    QVERIFY(!sharesWithin(QLineF(0, 5, 10, 5), QPolygonF() << QPointF(1, 5) << QPointF(2, 5) << QPointF(3, 5)));
}

void DiagramTicksTest::dashesGoOnRoundCorners()
{
    const QPolygonF line = QPolygonF() << QPointF(0, 0) << QPointF(5, 0) << QPointF(5, 7);
    const auto dashes = dashesOf(line, false, {4.0, 2.0}, 0.0);
    QCOMPARE(dashes.size(), size_t(2));
    QCOMPARE(dashes[0], QPolygonF() << QPointF(0, 0) << QPointF(4, 0));
    QCOMPARE(dashes[1], QPolygonF() << QPointF(5, 1) << QPointF(5, 5));
    const auto later = dashesOf(line, false, {4.0, 2.0}, 5.0);
    QCOMPARE(later[0], QPolygonF() << QPointF(1, 0) << QPointF(5, 0));
    QCOMPARE(later[1], QPolygonF() << QPointF(5, 2) << QPointF(5, 6));
    const auto corner = dashesOf(line, false, {8.0, 2.0}, 0.0);
    QCOMPARE(corner[0], QPolygonF() << QPointF(0, 0) << QPointF(5, 0) << QPointF(5, 3));
    QVERIFY(dashesOf(line, false, {}, 0.0).empty());
    double length = 0.0;
    for (const QPolygonF &dash : dashesOf(line, true, {1.0, 1.0}, 0.5)) {
        for (int i = 0; i + 1 < dash.size(); ++i) {
            length += QLineF(dash.at(i), dash.at(i + 1)).length();
        }
    }
    QVERIFY(std::fabs(length - (12.0 + std::hypot(5.0, 7.0)) / 2.0) < 0.6);
}

QTEST_APPLESS_MAIN(DiagramTicksTest)
#include "diagramtickstest.moc"
