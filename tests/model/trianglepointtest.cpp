// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/trianglepoint.h>

#include "model/metaobjectfacts.h"

#include <QTest>

#include <cstddef>
#include <limits>

using ConstPos = const QPointF &(TrianglePoint::*)() const;
using MutablePos = QPointF &(TrianglePoint::*)();
using SetPos = void (TrianglePoint::*)(const QPointF &);
using Lum = double (TrianglePoint::*)() const;
using SetLum = void (TrianglePoint::*)(const double &);

// Each position is read in two forms.
static_assert(std::is_same_v<decltype(static_cast<ConstPos>(&TrianglePoint::redPos)), ConstPos>);
static_assert(std::is_same_v<decltype(static_cast<MutablePos>(&TrianglePoint::redPos)), MutablePos>);
static_assert(std::is_same_v<decltype(static_cast<ConstPos>(&TrianglePoint::greenPos)), ConstPos>);
static_assert(std::is_same_v<decltype(static_cast<MutablePos>(&TrianglePoint::greenPos)), MutablePos>);
static_assert(std::is_same_v<decltype(static_cast<ConstPos>(&TrianglePoint::bluePos)), ConstPos>);
static_assert(std::is_same_v<decltype(static_cast<MutablePos>(&TrianglePoint::bluePos)), MutablePos>);
static_assert(std::is_same_v<decltype(static_cast<ConstPos>(&TrianglePoint::whitePos)), ConstPos>);
static_assert(std::is_same_v<decltype(static_cast<MutablePos>(&TrianglePoint::whitePos)), MutablePos>);

static_assert(std::is_same_v<decltype(&TrianglePoint::setRedPos), SetPos>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setGreenPos), SetPos>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setBluePos), SetPos>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setWhitePos), SetPos>);
static_assert(std::is_same_v<decltype(&TrianglePoint::redLum), Lum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::greenLum), Lum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::blueLum), Lum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::whiteLum), Lum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setRedLum), SetLum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setGreenLum), SetLum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setBlueLum), SetLum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::setWhiteLum), SetLum>);
static_assert(std::is_same_v<decltype(&TrianglePoint::isEmpty), bool (TrianglePoint::*)() const>);
static_assert(std::is_same_v<decltype(&TrianglePoint::convertPointF), PointF (TrianglePoint::*)(QPointF)>);
static_assert(std::is_same_v<decltype(&TrianglePoint::toArray), std::vector<PointF> (TrianglePoint::*)()>);

// Two floats, x then y.
static_assert(std::is_aggregate_v<PointF> && std::is_standard_layout_v<PointF>);
static_assert(std::is_trivially_copyable_v<PointF> && sizeof(PointF) == 2 * sizeof(float));
static_assert(std::is_same_v<decltype(PointF::x), float> && offsetof(PointF, x) == 0);
static_assert(std::is_same_v<decltype(PointF::y), float> && offsetof(PointF, y) == 4);

namespace {

// QPointF compares fuzzily, and so does QCOMPARE with it.
bool same(const QPointF &point, double x, double y)
{
    return point.x() == x && point.y() == y;
}

void fill(TrianglePoint &triangle)
{
    triangle.setRedPos({0.1, 0.2});
    triangle.setGreenPos({0.3, 0.4});
    triangle.setBluePos({0.5, 0.6});
    triangle.setWhitePos({0.7, 0.8});
    triangle.setRedLum(1.0);
    triangle.setGreenLum(2.0);
    triangle.setBlueLum(3.0);
    triangle.setWhiteLum(4.0);
}

bool isFilled(const TrianglePoint &triangle)
{
    return same(triangle.redPos(), 0.1, 0.2) && same(triangle.greenPos(), 0.3, 0.4)
        && same(triangle.bluePos(), 0.5, 0.6) && same(triangle.whitePos(), 0.7, 0.8) && triangle.redLum() == 1.0
        && triangle.greenLum() == 2.0 && triangle.blueLum() == 3.0 && triangle.whiteLum() == 4.0;
}

} // namespace

class TrianglePointTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObjectIsBare() { verifyBareQObject<TrianglePoint>("TrianglePoint"); }
    void defaultIsZero();
    void settersStoreAnything();
    void positionsAreModifiableInPlace();
    void fieldsAreCopied()
    {
        verifyPayloadIsCopied<TrianglePoint>(
            fill, isFilled, [](TrianglePoint &triangle) { triangle.redPos().setX(9.0); });
        verifyPayloadIsCopied<TrianglePoint>(
            fill, isFilled, [](TrianglePoint &triangle) { triangle.setWhiteLum(9.0); });
    }
    void defaultIsEmpty();
    void anyPositionMakesNonEmpty();
    void luminancesDoNotCountForEmpty();
    void nullIsExactlyZero();
    void convertPointFRoundsToNearest();
    void toArrayHasThreeVerticesInOrder();
    void toArrayOfDefault();
};

void TrianglePointTest::defaultIsZero()
{
    const TrianglePoint triangle;
    QVERIFY(same(triangle.redPos(), 0.0, 0.0));
    QVERIFY(same(triangle.greenPos(), 0.0, 0.0));
    QVERIFY(same(triangle.bluePos(), 0.0, 0.0));
    QVERIFY(same(triangle.whitePos(), 0.0, 0.0));
    QVERIFY(triangle.redLum() == 0.0);
    QVERIFY(triangle.greenLum() == 0.0);
    QVERIFY(triangle.blueLum() == 0.0);
    QVERIFY(triangle.whiteLum() == 0.0);
}

void TrianglePointTest::settersStoreAnything()
{
    TrianglePoint triangle;
    const double infinity = std::numeric_limits<double>::infinity();
    triangle.setRedPos({-5.0, infinity});
    triangle.setWhiteLum(-infinity);
    triangle.setBlueLum(std::numeric_limits<double>::quiet_NaN());
    QVERIFY(same(triangle.redPos(), -5.0, infinity));
    QVERIFY(triangle.whiteLum() == -infinity);
    QVERIFY(qIsNaN(triangle.blueLum()));
}

void TrianglePointTest::positionsAreModifiableInPlace()
{
    TrianglePoint triangle;
    triangle.redPos() = QPointF(0.1, 0.2);
    triangle.greenPos() = QPointF(0.3, 0.4);
    triangle.bluePos() = QPointF(0.5, 0.6);
    triangle.whitePos().setX(0.7);
    triangle.whitePos().setY(0.8);

    const TrianglePoint &read = triangle;
    QVERIFY(same(read.redPos(), 0.1, 0.2));
    QVERIFY(same(read.greenPos(), 0.3, 0.4));
    QVERIFY(same(read.bluePos(), 0.5, 0.6));
    QVERIFY(same(read.whitePos(), 0.7, 0.8));
    QCOMPARE(&read.redPos(), &triangle.redPos());
}

void TrianglePointTest::defaultIsEmpty()
{
    QVERIFY(TrianglePoint().isEmpty());
}

void TrianglePointTest::anyPositionMakesNonEmpty()
{
    for (const SetPos setPos : {&TrianglePoint::setRedPos, &TrianglePoint::setGreenPos, &TrianglePoint::setBluePos,
             &TrianglePoint::setWhitePos}) {
        for (const QPointF &point : {QPointF(0.3, 0.0), QPointF(0.0, 0.3), QPointF(-0.3, 0.3)}) {
            TrianglePoint triangle;
            (triangle.*setPos)(point);
            QVERIFY(!triangle.isEmpty());
            (triangle.*setPos)(QPointF());
            QVERIFY(triangle.isEmpty());
        }
    }
}

void TrianglePointTest::luminancesDoNotCountForEmpty()
{
    TrianglePoint triangle;
    triangle.setRedLum(1.0);
    triangle.setGreenLum(2.0);
    triangle.setBlueLum(3.0);
    triangle.setWhiteLum(4.0);
    QVERIFY(triangle.isEmpty());
}

void TrianglePointTest::nullIsExactlyZero()
{
    TrianglePoint triangle;
    triangle.setRedPos({-0.0, 0.0});
    QVERIFY(triangle.isEmpty());
    triangle.setRedPos({1e-300, 0.0});
    QVERIFY(!triangle.isEmpty());
    triangle.setRedPos({0.0, std::numeric_limits<double>::quiet_NaN()});
    QVERIFY(!triangle.isEmpty());
}

void TrianglePointTest::convertPointFRoundsToNearest()
{
    TrianglePoint triangle;
    const PointF white = triangle.convertPointF(QPointF(0.3127, 0.3291));
    QVERIFY(white.x == 0.3127F);
    QVERIFY(white.y == 0.3291F);

    // Halfway between two floats: to the even one; a little above: up.
    const double ulp = std::numeric_limits<float>::epsilon();
    const PointF tie = triangle.convertPointF(QPointF(1.0 + ulp / 2, 1.0 + ulp / 2 + 1e-12));
    QVERIFY(tie.x == 1.0F);
    QVERIFY(tie.y == 1.0F + std::numeric_limits<float>::epsilon());

    const PointF huge = triangle.convertPointF(QPointF(1e300, std::numeric_limits<double>::quiet_NaN()));
    QVERIFY(qIsInf(huge.x));
    QVERIFY(qIsNaN(huge.y));
}

void TrianglePointTest::toArrayHasThreeVerticesInOrder()
{
    TrianglePoint triangle;
    fill(triangle);
    const std::vector<PointF> vertices = triangle.toArray();
    QCOMPARE(vertices.size(), std::size_t(3));
    QVERIFY(vertices[0].x == 0.1F && vertices[0].y == 0.2F);
    QVERIFY(vertices[1].x == 0.3F && vertices[1].y == 0.4F);
    QVERIFY(vertices[2].x == 0.5F && vertices[2].y == 0.6F);
}

void TrianglePointTest::toArrayOfDefault()
{
    const std::vector<PointF> vertices = TrianglePoint().toArray();
    QCOMPARE(vertices.size(), std::size_t(3));
    for (const PointF &vertex : vertices) {
        QVERIFY(vertex.x == 0.0F && vertex.y == 0.0F);
    }
}

QTEST_GUILESS_MAIN(TrianglePointTest)
#include "trianglepointtest.moc"
