// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/targetinfochangedeventargs.h>

#include "model/metaobjectfacts.h"

#include <QTest>

using Args = TargetInfoChangedEventArgs;
using baseCommon::LEDColorType;

static_assert(std::is_same_v<decltype(&Args::colorTriangleObject), ColorTriangleObject (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setColorTriangleObject), void (Args::*)(const ColorTriangleObject &)>);
static_assert(std::is_same_v<decltype(&Args::colourTemperature), double (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setColourTemperature), void (Args::*)(double)>);
static_assert(std::is_same_v<decltype(&Args::beyondColorType), LEDColorType (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setBeyondColorType), void (Args::*)(const LEDColorType &)>);
static_assert(std::is_same_v<decltype(&Args::isReasonableData), bool (Args::*)() const>);
static_assert(std::is_same_v<decltype(&Args::setIsReasonableData), void (Args::*)(bool)>);

namespace {

void fill(Args &args)
{
    ColorTriangleObject object;
    object.setType(1);
    object.setGamutName("target");
    object.trianglePoint().setWhitePos({0.3127, 0.3291});
    args.setColorTriangleObject(object);
    args.setColourTemperature(6503.0);
    args.setBeyondColorType(baseCommon::Green);
    args.setIsReasonableData(true);
}

bool isFilled(const Args &args)
{
    ColorTriangleObject object = args.colorTriangleObject();
    return object.type() == 1 && object.gamutName() == "target" && object.trianglePoint().whitePos().x() == 0.3127
        && object.trianglePoint().whitePos().y() == 0.3291 && args.colourTemperature() == 6503.0
        && args.beyondColorType() == baseCommon::Green && args.isReasonableData();
}

} // namespace

class TargetInfoChangedEventArgsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObjectIsBare() { verifyBareQObject<Args>("TargetInfoChangedEventArgs"); }
    void defaults();
    void settersStore();
    void triangleIsReturnedByValue();
    void payloadIsCopied()
    {
        verifyPayloadIsCopied<Args>(fill, isFilled, [](Args &args) { args.setBeyondColorType(baseCommon::Blue); });
        verifyPayloadIsCopied<Args>(fill, isFilled, [](Args &args) { args.setColourTemperature(0.0); });
    }
};

void TargetInfoChangedEventArgsTest::defaults()
{
    const Args args;
    QVERIFY(args.colourTemperature() == 0.0);
    QCOMPARE(int(args.beyondColorType()), 3);
    QCOMPARE(args.isReasonableData(), false);

    ColorTriangleObject object = args.colorTriangleObject();
    QVERIFY(object.trianglePoint().isEmpty());
    QCOMPARE(object.foreColor(), QColor(255, 255, 255, 255));
    QCOMPARE(object.trigleLineWidth(), 1);
    QCOMPARE(object.isShow(), true);
    QVERIFY(object.opacity() == 1.0);
    QVERIFY(object.gamutName().empty());
}

void TargetInfoChangedEventArgsTest::settersStore()
{
    Args args;
    fill(args);
    QVERIFY(isFilled(args));
    args.setColourTemperature(-1.5);
    QVERIFY(args.colourTemperature() == -1.5);
    args.setIsReasonableData(false);
    QCOMPARE(args.isReasonableData(), false);
}

void TargetInfoChangedEventArgsTest::triangleIsReturnedByValue()
{
    Args args;
    fill(args);
    ColorTriangleObject object = args.colorTriangleObject();
    object.setType(3);
    object.trianglePoint().setWhitePos({0.0, 0.0});
    QVERIFY(isFilled(args));
}

QTEST_GUILESS_MAIN(TargetInfoChangedEventArgsTest)
#include "targetinfochangedeventargstest.moc"
