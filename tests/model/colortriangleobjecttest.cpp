// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/colortriangleobject.h>

#include <QList>
#include <QTest>

#include <limits>
#include <type_traits>

using Object = ColorTriangleObject;

static_assert(!std::is_polymorphic_v<Object> && !std::is_base_of_v<QObject, Object>);
static_assert(std::is_default_constructible_v<Object> && std::is_copy_constructible_v<Object>);
static_assert(std::is_same_v<decltype(std::declval<Object &>() = std::declval<const Object &>()), Object &>);

using ConstTriangle = const TrianglePoint &(Object::*)() const;
using MutableTriangle = TrianglePoint &(Object::*)();
static_assert(std::is_same_v<decltype(static_cast<ConstTriangle>(&Object::trianglePoint)), ConstTriangle>);
static_assert(std::is_same_v<decltype(static_cast<MutableTriangle>(&Object::trianglePoint)), MutableTriangle>);

static_assert(std::is_same_v<decltype(&Object::setTrianglePoint), void (Object::*)(const TrianglePoint &)>);
static_assert(std::is_same_v<decltype(&Object::foreColor), QColor (Object::*)()>);
static_assert(std::is_same_v<decltype(&Object::setForeColor), void (Object::*)(const QColor &)>);
static_assert(std::is_same_v<decltype(&Object::trigleLineWidth), int (Object::*)() const>);
static_assert(std::is_same_v<decltype(&Object::setTrigleLineWidth), void (Object::*)(int)>);
static_assert(std::is_same_v<decltype(&Object::isShow), bool (Object::*)() const>);
static_assert(std::is_same_v<decltype(&Object::setShow), void (Object::*)(bool)>);
static_assert(std::is_same_v<decltype(&Object::type), int (Object::*)() const>);
static_assert(std::is_same_v<decltype(&Object::setType), void (Object::*)(int)>);
static_assert(std::is_same_v<decltype(&Object::opacity), double (Object::*)() const>);
static_assert(std::is_same_v<decltype(&Object::setOpacity), void (Object::*)(double)>);
static_assert(std::is_same_v<decltype(&Object::gamutName), std::string (Object::*)()>);
static_assert(std::is_same_v<decltype(&Object::setGamutName), void (Object::*)(const std::string &)>);

namespace {

// Longer than any string that is stored in place.
const std::string name = "a display of a name that is too long to be stored in place";

void fill(Object &object)
{
    TrianglePoint triangle;
    triangle.setGreenPos({0.3, 0.6});
    triangle.setWhiteLum(100.0);
    object.setTrianglePoint(triangle);
    object.setForeColor(QColor(1, 2, 3, 4));
    object.setTrigleLineWidth(5);
    object.setShow(false);
    object.setType(2);
    object.setOpacity(0.25);
    object.setGamutName(name);
}

bool isFilled(Object &object)
{
    return object.trianglePoint().greenPos().x() == 0.3 && object.trianglePoint().greenPos().y() == 0.6
        && object.trianglePoint().whiteLum() == 100.0 && object.foreColor() == QColor(1, 2, 3, 4)
        && object.trigleLineWidth() == 5 && !object.isShow() && object.type() == 2 && object.opacity() == 0.25
        && object.gamutName() == name;
}

} // namespace

class ColorTriangleObjectTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void settersStore();
    void settersDoNotClamp();
    void setTrianglePointAssigns();
    void copyHasEverything();
    void copyOfTheTriangleHasNoParent();
    void assignmentHasEverything();
    void copyIsIndependent();
    void selfAssignment();
    void gamutNameIsACopyOfBytes();
    void livesInLists();
};

void ColorTriangleObjectTest::defaults()
{
    Object object;
    QVERIFY(object.trianglePoint().isEmpty());
    QVERIFY(object.trianglePoint().redLum() == 0.0 && object.trianglePoint().greenLum() == 0.0);
    QVERIFY(object.trianglePoint().blueLum() == 0.0 && object.trianglePoint().whiteLum() == 0.0);
    QCOMPARE(object.trianglePoint().parent(), nullptr);
    QCOMPARE(object.foreColor(), QColor(255, 255, 255, 255));
    QCOMPARE(object.foreColor().spec(), QColor::Rgb);
    QCOMPARE(object.trigleLineWidth(), 1);
    QCOMPARE(object.isShow(), true);
    QVERIFY(object.opacity() == 1.0);
    QVERIFY(object.gamutName().empty());
}

void ColorTriangleObjectTest::settersStore()
{
    Object object;
    fill(object);
    QVERIFY(isFilled(object));
}

void ColorTriangleObjectTest::settersDoNotClamp()
{
    Object object;
    for (const double opacity : {-1.0, 2.0, std::numeric_limits<double>::infinity()}) {
        object.setOpacity(opacity);
        QVERIFY(object.opacity() == opacity);
    }
    for (const int value : {-7, 0, 99, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        object.setTrigleLineWidth(value);
        object.setType(value);
        QCOMPARE(object.trigleLineWidth(), value);
        QCOMPARE(object.type(), value);
    }
    object.setForeColor(QColor());
    QVERIFY(!object.foreColor().isValid());
}

void ColorTriangleObjectTest::setTrianglePointAssigns()
{
    QObject parent;
    auto *triangle = new TrianglePoint(&parent);
    triangle->setRedPos({0.64, 0.33});
    Object object;
    object.trianglePoint().setObjectName(QStringLiteral("own"));
    object.setTrianglePoint(*triangle);
    QVERIFY(object.trianglePoint().redPos().x() == 0.64);
    QCOMPARE(object.trianglePoint().objectName(), QStringLiteral("own"));
    QCOMPARE(object.trianglePoint().parent(), nullptr);
}

void ColorTriangleObjectTest::copyHasEverything()
{
    Object source;
    fill(source);
    Object copy(source);
    QVERIFY(isFilled(copy));
    QVERIFY(isFilled(source));
}

void ColorTriangleObjectTest::copyOfTheTriangleHasNoParent()
{
    QObject parent;
    Object source;
    source.trianglePoint().setParent(&parent);
    const Object copy(source);
    QCOMPARE(copy.trianglePoint().parent(), nullptr);
    source.trianglePoint().setParent(nullptr);
}

void ColorTriangleObjectTest::assignmentHasEverything()
{
    Object source;
    fill(source);
    Object target;
    QCOMPARE(&(target = source), &target);
    QVERIFY(isFilled(target));
}

void ColorTriangleObjectTest::copyIsIndependent()
{
    Object source;
    fill(source);
    Object copy(source);
    copy.trianglePoint().setGreenPos({0.0, 0.0});
    copy.trianglePoint().redPos().setX(0.9);
    copy.setForeColor(Qt::red);
    copy.setGamutName("other");
    copy.setType(1);
    QVERIFY(isFilled(source));
    QVERIFY(source.trianglePoint().redPos().x() == 0.0);
}

void ColorTriangleObjectTest::selfAssignment()
{
    Object object;
    fill(object);
    const Object &alias = object;
    QCOMPARE(&(object = alias), &object);
    QVERIFY(isFilled(object));
}

void ColorTriangleObjectTest::gamutNameIsACopyOfBytes()
{
    Object object;
    const std::string bytes("\xe7\x9b\xae\0\xff", 5); // UTF-8, a zero and a byte that is no text: stored as they are
    object.setGamutName(bytes);
    QVERIFY(object.gamutName() == bytes);
    object.gamutName().clear();
    QVERIFY(object.gamutName() == bytes);
}

void ColorTriangleObjectTest::livesInLists()
{
    QList<Object> list;
    for (int i = 0; i < 100; ++i) {
        Object object;
        object.setType(i);
        object.trianglePoint().setRedLum(i);
        list.append(object);
    }
    QList<Object> detached = list;
    detached[7].setType(-1);
    detached.removeFirst();
    QCOMPARE(list.at(7).type(), 7);
    QVERIFY(list.at(99).trianglePoint().redLum() == 99.0);
    QCOMPARE(detached.at(6).type(), -1);
}

QTEST_GUILESS_MAIN(ColorTriangleObjectTest)
#include "colortriangleobjecttest.moc"
