// SPDX-License-Identifier: MIT
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/samplegamuts.h>
#include <reference/scenestate.h>

#include <QtTest>

#include <cmath>
#include <limits>

using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

double narrowed(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

bool isAt(const QPointF &point, double x, double y)
{
    return point.x() == x && point.y() == y;
}

bool isNear(const QPointF &point, double x, double y)
{
    return std::fabs(point.x() - x) < 1e-5 && std::fabs(point.y() - y) < 1e-5;
}

ColorTriangleObject gamut(const QPointF &red, const QPointF &green, const QPointF &blue)
{
    return reference::sampleGamut(red, green, blue, 200, 700, 100, 0);
}

QPointF at(const QPointF &chroma)
{
    return QPointF(100 * chroma.x(), -100 * chroma.y());
}

QPointF chromaOf(const QPointF &position)
{
    return QPointF(position.x() / 100, -position.y() / 100);
}

const QPointF originalRed(0.75, 0.25);
const QPointF originalGreen(0.25, 0.75);
const QPointF originalBlue(0.125, 0.0625);
const QPointF targetRed(0.5, 0.3);
const QPointF targetGreen(0.3, 0.5);
const QPointF targetBlue(0.2, 0.3);

QList<ColorTriangleObject> gamuts()
{
    return {gamut(originalRed, originalGreen, originalBlue), gamut(targetRed, targetGreen, targetBlue)};
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
    void intersectionBecomesTheRequestedPoint();
    void verticalLinesMeetOthers();
    void parallelsLeaveTheRequestedPoint();
    void crossingIsHeldToTheEdge();
    void pointsOnTheEdgeAreKept();
    void rectangleHoldsPositions();
    void fencesTellWhichPositionsAreInAny();
    void requestGoesToAnEdge_data();
    void requestGoesToAnEdge();
    void otherTabsRequestNothing();
    void fewerThanTwoGamutsRequestNothing();
};

void StraightLinesTest::parallelLinesDoNotMeet()
{
    Scene scene({});
    QPointF crossing = untouched;
    QVERIFY(!scene.SolveLinearSystem(0.5, 0.1, 0.5, 0.4, crossing));
    QVERIFY(!scene.SolveLinearSystem(0.5, 0.1, 0.5, 0.1, crossing));
    QVERIFY(!scene.SolveLinearSystem(0.0, 0.1, -0.0, 0.4, crossing));
    QVERIFY(isAt(crossing, untouched.x(), untouched.y()));
}

void StraightLinesTest::crossingIsNarrowedInEachCoordinate()
{
    Scene scene({});
    QPointF crossing;
    QVERIFY(scene.SolveLinearSystem(0.5, 0.1, -1.0, 0.4, crossing));
    const double x = (0.4 - 0.1) / (0.5 - -1.0);
    const double y = 0.5 * x + 0.1;
    QVERIFY(narrowed(x) != x && narrowed(y) != y);
    QVERIFY(isAt(crossing, narrowed(x), narrowed(y)));
}

// On a steep line the height of the narrowed x is another one.
void StraightLinesTest::heightIsTakenBeforeNarrowing()
{
    Scene scene({});
    const double k1 = 1000003.0;
    const double b1 = -300000.7;
    QPointF crossing;
    QVERIFY(scene.SolveLinearSystem(k1, b1, 0.0, 0.1, crossing));
    const double x = (0.1 - b1) / (k1 - 0.0);
    QVERIFY(narrowed(k1 * x + b1) != narrowed(k1 * narrowed(x) + b1));
    QVERIFY(isAt(crossing, narrowed(x), narrowed(k1 * x + b1)));
}

void StraightLinesTest::almostParallelLinesMeet()
{
    Scene scene({});
    QPointF crossing;
    QVERIFY(scene.SolveLinearSystem(0.5, 0.25, std::nextafter(0.5, 1.0), 0.25, crossing));
    QVERIFY(isAt(crossing, 0.0, 0.25));
}

void StraightLinesTest::lineThroughTwoPoints()
{
    Scene scene({});
    double k = 0.0;
    double b = 0.0;
    QVERIFY(scene.GetStraightLine(QPointF(0.25, 0.5), QPointF(0.75, 0.25), k, b));
    QCOMPARE(k, -0.5);
    QCOMPARE(b, 0.625);
    QVERIFY(scene.GetStraightLine(QPointF(0.75, 0.25), QPointF(0.25, 0.5), k, b));
    QCOMPARE(k, -0.5);
    QCOMPARE(b, 0.625);
    QVERIFY(scene.GetStraightLine(QPointF(-2, 3), QPointF(5, 3), k, b));
    QVERIFY(k == 0.0 && b == 3.0);
}

void StraightLinesTest::verticalLineHasNone()
{
    Scene scene({});
    double k = 11.0;
    double b = 12.0;
    QVERIFY(!scene.GetStraightLine(QPointF(0.25, 0.5), QPointF(0.25, 0.75), k, b));
    QVERIFY(!scene.GetStraightLine(QPointF(0.25, 0.5), QPointF(0.25, 0.5), k, b));
    QVERIFY(k == 11.0 && b == 12.0);
}

void StraightLinesTest::intersectionBecomesTheRequestedPoint()
{
    Scene scene({});
    reference::setRequestedPoint(scene, untouched);
    QVERIFY(scene.GetIntersectionPoint(QPointF(0, 0), QPointF(1, 1), QPointF(0, 0.5), QPointF(0.5, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 25, -25));
}

void StraightLinesTest::verticalLinesMeetOthers()
{
    Scene scene({});
    QVERIFY(scene.GetIntersectionPoint(QPointF(0.5, 0), QPointF(0.5, 1), QPointF(0, 0), QPointF(0.25, 0.125)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 50, -25));
    QVERIFY(scene.GetIntersectionPoint(QPointF(0, 0), QPointF(1, 0.5), QPointF(0.25, 3), QPointF(0.25, 5)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 25, -12.5));
}

void StraightLinesTest::parallelsLeaveTheRequestedPoint()
{
    Scene scene({});
    reference::setRequestedPoint(scene, untouched);
    QVERIFY(!scene.GetIntersectionPoint(QPointF(0, 0), QPointF(1, 0.5), QPointF(0, 1), QPointF(1, 1.5)));
    QVERIFY(!scene.GetIntersectionPoint(QPointF(1, 0), QPointF(1, 0.5), QPointF(2, 1), QPointF(2, 1.5)));
    const QPointF requested = reference::stateOf(scene).requested;
    QVERIFY(isAt(requested, untouched.x(), untouched.y()));
}

void StraightLinesTest::crossingIsHeldToTheEdge()
{
    Scene scene({});
    const QPointF from(0.25, 0.25);
    const QPointF to(0.5, 0.5);
    QVERIFY(scene.GetIntersectionPoint(from, to, QPointF(0, 0.125), QPointF(0.125, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 25, -25));
    QVERIFY(scene.GetIntersectionPoint(from, to, QPointF(0, 2), QPointF(2, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 50, -50));
    QVERIFY(scene.GetIntersectionPoint(to, from, QPointF(0, 2), QPointF(2, 0)));
    QVERIFY(isAt(reference::stateOf(scene).requested, 50, -50));
}

void StraightLinesTest::pointsOnTheEdgeAreKept()
{
    Scene scene({});
    const QPointF from(0.25, 0.75);
    const QPointF to(0.75, 0.25);
    for (const double along : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const QPointF point = from + (to - from) * along;
        const QPointF kept = scene.ComparePointPosition(point, from, to);
        QVERIFY(isAt(kept, point.x(), point.y()));
    }
    const QPointF before = scene.ComparePointPosition(QPointF(0.125, 0.875), from, to);
    QVERIFY(isAt(before, from.x(), from.y()));
    const QPointF after = scene.ComparePointPosition(QPointF(1, 0), from, to);
    QVERIFY(isAt(after, to.x(), to.y()));
    // An edge of no length
    const QPointF only = scene.ComparePointPosition(QPointF(1, 0), from, from);
    QVERIFY(isAt(only, from.x(), from.y()));
}

void StraightLinesTest::rectangleHoldsPositions()
{
    Scene scene({}); // 672 × 728
    const auto held = [&scene](double x, double y) { return scene.LimitInRectangle(QPointF(x, y)); };
    QVERIFY(isAt(held(0, 0), 0, 0));
    QVERIFY(isAt(held(672, 728), 672, 728));
    QVERIFY(isAt(held(12.25, 700.5), 12.25, 700.5));
    QVERIFY(isAt(held(-0.5, 30), 0, 30));
    QVERIFY(isAt(held(30, -0.5), 30, 0));
    QVERIFY(isAt(held(672.5, 30), 672, 30));
    QVERIFY(isAt(held(30, 728.5), 30, 728));
    scene.setImageWidth(0);
    QVERIFY(isAt(held(5, 5), 0, 5));
    scene.setImageHeight(-40);
    QVERIFY(isAt(held(5, 5), 0, 0));
}

void StraightLinesTest::fencesTellWhichPositionsAreInAny()
{
    Scene scene({});
    for (const QPointF &inside : {QPointF(0.6, 0.3), QPointF(0.3, 0.6), QPointF(0.15, 0.1)}) {
        QVERIFY(scene.GetPointInFences(at(inside)));
    }
    for (const QPointF &outside : {QPointF(0.75, 0.5), QPointF(0.02, 0.1), QPointF(0.6, 0.02), QPointF(-1, -1)}) {
        QVERIFY(!scene.GetPointInFences(at(outside)));
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!scene.GetPointInFences(QPointF(nan, nan)));
}

void StraightLinesTest::requestGoesToAnEdge_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QPointF>("edgeFrom");
    QTest::addColumn<QPointF>("edgeTo");
    QTest::addColumn<QPointF>("vertex");
    const int red = NewCEIE::TabSelectedRed;
    const int green = NewCEIE::TabSelectedGreen;
    const int blue = NewCEIE::TabSelectedBlue;
    QTest::newRow("below red") << red << QPointF(0.6, 0.125) << originalBlue << originalRed << targetGreen;
    QTest::newRow("level with red") << red << QPointF(0.8, 0.25) << originalGreen << originalRed << targetBlue;
    QTest::newRow("above red") << red << QPointF(0.8, 0.375) << originalGreen << originalRed << targetBlue;
    QTest::newRow("right of green") << green << QPointF(0.5, 0.75) << originalGreen << originalRed << targetBlue;
    QTest::newRow("straight at green") << green << QPointF(0.25, 0.5) << originalGreen << originalRed << targetBlue;
    QTest::newRow("left of green") << green << QPointF(0.1, 0.5) << originalBlue << originalGreen << targetRed;
    QTest::newRow("right of blue") << blue << QPointF(0.4, 0.05) << originalRed << originalBlue << targetGreen;
    QTest::newRow("straight at blue") << blue << QPointF(0.125, 0.25) << originalGreen << originalBlue << targetRed;
    QTest::newRow("left of blue") << blue << QPointF(0.05, 0.3) << originalGreen << originalBlue << targetRed;
}

void StraightLinesTest::requestGoesToAnEdge()
{
    QFETCH(int, tab);
    QFETCH(QPointF, position);
    QFETCH(QPointF, edgeFrom);
    QFETCH(QPointF, edgeTo);
    QFETCH(QPointF, vertex);

    Scene scene(gamuts());
    reference::placeCoordinates(scene);
    reference::selectTab(scene, tab);
    reference::setRequestedPoint(scene, untouched);
    scene.GetSelectedEllipseSign(at(position));

    // The crossing, by how far along the edge it lies.
    const QPointF edge = edgeTo - edgeFrom;
    const QPointF line = vertex - position;
    const QPointF gap = position - edgeFrom;
    const double along = (gap.x() * line.y() - gap.y() * line.x()) / (edge.x() * line.y() - edge.y() * line.x());
    QVERIFY(along > 0 && along < 1);
    const QPointF expected = edgeFrom + edge * along;
    const QPointF requested = chromaOf(reference::stateOf(scene).requested);
    QVERIFY2(isNear(requested, expected.x(), expected.y()),
        qPrintable(QStringLiteral("(%1, %2) instead of (%3, %4)")
                       .arg(requested.x())
                       .arg(requested.y())
                       .arg(expected.x())
                       .arg(expected.y())));
}

void StraightLinesTest::otherTabsRequestNothing()
{
    for (const int tab : {NewCEIE::TabSelectedNone, NewCEIE::TabSelectedWhite}) {
        Scene scene(gamuts());
        reference::placeCoordinates(scene);
        reference::selectTab(scene, tab);
        reference::setRequestedPoint(scene, untouched);
        scene.GetSelectedEllipseSign(at(QPointF(0.6, 0.125)));
        const QPointF requested = reference::stateOf(scene).requested;
        QVERIFY(isAt(requested, untouched.x(), untouched.y()));
    }
}

void StraightLinesTest::fewerThanTwoGamutsRequestNothing()
{
    for (const QList<ColorTriangleObject> &list : {gamuts().mid(0, 1), QList<ColorTriangleObject>()}) {
        Scene scene(list);
        reference::placeCoordinates(scene);
        reference::selectTab(scene, NewCEIE::TabSelectedRed);
        reference::setRequestedPoint(scene, untouched);
        scene.GetSelectedEllipseSign(at(QPointF(0.6, 0.125)));
        const QPointF requested = reference::stateOf(scene).requested;
        QVERIFY(isAt(requested, untouched.x(), untouched.y()));
    }
}

QTEST_MAIN(StraightLinesTest)
#include "straightlinestest.moc"
