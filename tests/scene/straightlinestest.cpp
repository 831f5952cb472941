// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/straightlines_p.h>

#include <QTest>

#include <cmath>

using ceiechart::heldToEdge;
using ceiechart::intersection;
using ceiechart::solveLinearSystem;
using ceiechart::straightLine;

namespace {

double narrowed(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

bool isAt(const QPointF &point, double x, double y)
{
    return point.x() == x && point.y() == y;
}

const QPointF untouched(-7, -8);

} // namespace

class StraightLinesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parallelLinesDoNotMeet();
    void crossingIsNarrowedInEachCoordinate();
    void heightIsTakenBeforeNarrowing();
    void almostParallelLinesMeet();
    void lineThroughTwoPoints();
    void verticalLineHasNone();
    void linesMeet();
    void parallelsDoNotMeet();
    void pointsOnTheEdgeAreKept();
};

void StraightLinesTest::parallelLinesDoNotMeet()
{
    QPointF crossing = untouched;
    QVERIFY(!solveLinearSystem(0.5, 0.1, 0.5, 0.4, crossing));
    QVERIFY(!solveLinearSystem(0.5, 0.1, 0.5, 0.1, crossing));
    QVERIFY(!solveLinearSystem(0.0, 0.1, -0.0, 0.4, crossing));
    QVERIFY(isAt(crossing, untouched.x(), untouched.y()));
}

void StraightLinesTest::crossingIsNarrowedInEachCoordinate()
{
    QPointF crossing;
    QVERIFY(solveLinearSystem(0.5, 0.1, -1.0, 0.4, crossing));
    const double x = (0.4 - 0.1) / (0.5 - -1.0);
    const double y = 0.5 * x + 0.1;
    QVERIFY(narrowed(x) != x && narrowed(y) != y);
    QVERIFY(isAt(crossing, narrowed(x), narrowed(y)));
}

// On a steep line the height of the narrowed x is another one.
void StraightLinesTest::heightIsTakenBeforeNarrowing()
{
    const double k1 = 1000003.0;
    const double b1 = -300000.7;
    QPointF crossing;
    QVERIFY(solveLinearSystem(k1, b1, 0.0, 0.1, crossing));
    const double x = (0.1 - b1) / (k1 - 0.0);
    QVERIFY(narrowed(k1 * x + b1) != narrowed(k1 * narrowed(x) + b1));
    QVERIFY(isAt(crossing, narrowed(x), narrowed(k1 * x + b1)));
}

void StraightLinesTest::almostParallelLinesMeet()
{
    QPointF crossing;
    QVERIFY(solveLinearSystem(0.5, 0.25, std::nextafter(0.5, 1.0), 0.25, crossing));
    QVERIFY(isAt(crossing, 0.0, 0.25));
}

void StraightLinesTest::lineThroughTwoPoints()
{
    double k = 0.0;
    double b = 0.0;
    QVERIFY(straightLine(QPointF(0.25, 0.5), QPointF(0.75, 0.25), k, b));
    QCOMPARE(k, -0.5);
    QCOMPARE(b, 0.625);
    QVERIFY(straightLine(QPointF(0.75, 0.25), QPointF(0.25, 0.5), k, b));
    QCOMPARE(k, -0.5);
    QCOMPARE(b, 0.625);
    QVERIFY(straightLine(QPointF(-2, 3), QPointF(5, 3), k, b));
    QVERIFY(k == 0.0 && b == 3.0);
}

void StraightLinesTest::verticalLineHasNone()
{
    double k = 11.0;
    double b = 12.0;
    QVERIFY(!straightLine(QPointF(0.25, 0.5), QPointF(0.25, 0.75), k, b));
    QVERIFY(!straightLine(QPointF(0.25, 0.5), QPointF(0.25, 0.5), k, b));
    QVERIFY(k == 11.0 && b == 12.0);
}

void StraightLinesTest::linesMeet()
{
    QPointF crossing;
    QVERIFY(intersection(QPointF(0, 0), QPointF(1, 1), QPointF(0, 0.5), QPointF(0.5, 0), crossing));
    QVERIFY(isAt(crossing, 0.25, 0.25));
    QVERIFY(intersection(QPointF(0.5, 0), QPointF(0.5, 1), QPointF(0, 0), QPointF(0.25, 0.125), crossing));
    QVERIFY(isAt(crossing, 0.5, 0.25));
    QVERIFY(intersection(QPointF(0, 0), QPointF(1, 0.5), QPointF(0.25, 3), QPointF(0.25, 5), crossing));
    QVERIFY(isAt(crossing, 0.25, 0.125));
    // With a vertical line, too, both coordinates are narrowed.
    QVERIFY(intersection(QPointF(0.1, 0), QPointF(0.1, 1), QPointF(0, 0.1), QPointF(1, 0.4), crossing));
    QVERIFY(isAt(crossing, narrowed(0.1), narrowed(crossing.y())));
}

void StraightLinesTest::parallelsDoNotMeet()
{
    QPointF crossing = untouched;
    QVERIFY(!intersection(QPointF(0, 0), QPointF(1, 0.5), QPointF(0, 1), QPointF(1, 1.5), crossing));
    QVERIFY(!intersection(QPointF(1, 0), QPointF(1, 0.5), QPointF(2, 1), QPointF(2, 1.5), crossing));
    QVERIFY(isAt(crossing, untouched.x(), untouched.y()));
}

void StraightLinesTest::pointsOnTheEdgeAreKept()
{
    const QPointF from(0.25, 0.75);
    const QPointF to(0.75, 0.25);
    for (const double along : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const QPointF point = from + (to - from) * along;
        const QPointF kept = heldToEdge(point, from, to);
        QVERIFY(isAt(kept, point.x(), point.y()));
    }
    const QPointF before = heldToEdge(QPointF(0.125, 0.875), from, to);
    QVERIFY(isAt(before, from.x(), from.y()));
    const QPointF after = heldToEdge(QPointF(1, 0), from, to);
    QVERIFY(isAt(after, to.x(), to.y()));
    // An edge of no length
    const QPointF only = heldToEdge(QPointF(1, 0), from, from);
    QVERIFY(isAt(only, from.x(), from.y()));
}

QTEST_APPLESS_MAIN(StraightLinesTest)
#include "straightlinestest.moc"
