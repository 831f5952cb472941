// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>

#include "model/metaobjectfacts.h"

#include <QTest>

using Args = TriangleObjecIinitializedEventArgs;
using List = QList<ColorTriangleObject>;
using baseCommon::LEDColorType;

static_assert(std::is_same_v<decltype(&Args::colorTriangleObjectList), List (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setColorTriangleObjectList), void (Args::*)(const List &)>);
static_assert(std::is_same_v<decltype(&Args::isEffectiveValue), bool (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setIsEffectiveValue), void (Args::*)(bool)>);
static_assert(std::is_same_v<decltype(&Args::beyondColorType), LEDColorType (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setBeyondColorType), void (Args::*)(const LEDColorType &)>);

namespace {

void fill(Args &args)
{
    List list;
    for (const int type : {2, 1}) {
        ColorTriangleObject object;
        object.setType(type);
        list.append(object);
    }
    args.setColorTriangleObjectList(list);
    args.setIsEffectiveValue(true);
    args.setBeyondColorType(baseCommon::Red);
}

bool isFilled(const Args &args)
{
    const List list = args.colorTriangleObjectList();
    return list.size() == 2 && list.at(0).type() == 2 && list.at(1).type() == 1 && args.isEffectiveValue()
        && args.beyondColorType() == baseCommon::Red;
}

} // namespace

class TriangleObjecIinitializedEventArgsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObjectIsBare() { verifyBareQObject<Args>("TriangleObjecIinitializedEventArgs"); }
    void defaults();
    void settersStore();
    void listIsReturnedByValue();
    void payloadIsCopied()
    {
        verifyPayloadIsCopied<Args>(fill, isFilled, [](Args &args) { args.setBeyondColorType(baseCommon::Blue); });
        verifyPayloadIsCopied<Args>(fill, isFilled, [](Args &args) { args.setColorTriangleObjectList({}); });
        verifyPayloadIsCopied<Args>(fill, isFilled, [](Args &args) { args.setIsEffectiveValue(false); });
    }
    void copyOfADefault();
};

void TriangleObjecIinitializedEventArgsTest::defaults()
{
    const Args args;
    QVERIFY(args.colorTriangleObjectList().isEmpty());
    QCOMPARE(int(args.beyondColorType()), 3);
}

void TriangleObjecIinitializedEventArgsTest::settersStore()
{
    Args args;
    fill(args);
    QVERIFY(isFilled(args));
    args.setIsEffectiveValue(false);
    QCOMPARE(args.isEffectiveValue(), false);
    args.setColorTriangleObjectList({});
    QVERIFY(args.colorTriangleObjectList().isEmpty());
}

void TriangleObjecIinitializedEventArgsTest::listIsReturnedByValue()
{
    Args args;
    fill(args);
    List list = args.colorTriangleObjectList();
    list[0].setType(9);
    list.removeLast();
    QVERIFY(isFilled(args));
}

// Under the undefined-behaviour sanitizer: the flag that has no stated default can be copied.
void TriangleObjecIinitializedEventArgsTest::copyOfADefault()
{
    const Args source;
    Args copy(source);
    Args assigned;
    assigned = source;
    QCOMPARE(copy.isEffectiveValue(), source.isEffectiveValue());
    QCOMPARE(assigned.isEffectiveValue(), source.isEffectiveValue());
    QCOMPARE(int(copy.beyondColorType()), 3);
    copy.setIsEffectiveValue(true);
    QCOMPARE(copy.isEffectiveValue(), true);
}

QTEST_GUILESS_MAIN(TriangleObjecIinitializedEventArgsTest)
#include "triangleobjeciinitializedeventargstest.moc"
