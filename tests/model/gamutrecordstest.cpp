// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/gamutkind.h>
#include <ceiechart/model/gamutrecords.h>

#include <QTest>

#include <cstring>
#include <limits>

using namespace ceiechart;

namespace {

const Model::Targets distinct{Model::Target::fromYxy(101, 0.641, 0.331), Model::Target::fromYxy(202, 0.302, 0.602),
    Model::Target::fromYxy(33, 0.153, 0.063), Model::Target::fromYxy(334, 0.3127, 0.3290)};

bool same(const Model::Targets &a, const Model::Targets &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

class GamutRecordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void triangleOfARecord();
    void thereAndBack();
    void objectOfARecord();
    void appearanceIsNotPartOfARecord();
    void impossibleValues();
};

void GamutRecordsTest::triangleOfARecord()
{
    const Model::ColorGamutInfo legacy{distinct.red, distinct.green, distinct.blue, distinct.white};
    for (const TrianglePoint &triangle : {gamutTriangle(distinct), gamutTriangle(legacy)}) {
        QCOMPARE(triangle.redPos(), QPointF(0.641, 0.331));
        QCOMPARE(triangle.greenPos(), QPointF(0.302, 0.602));
        QCOMPARE(triangle.bluePos(), QPointF(0.153, 0.063));
        QCOMPARE(triangle.whitePos(), QPointF(0.3127, 0.3290));
        QCOMPARE(triangle.redLum(), 101.0);
        QCOMPARE(triangle.greenLum(), 202.0);
        QCOMPARE(triangle.blueLum(), 33.0);
        QCOMPARE(triangle.whiteLum(), 334.0);
    }
}

// To the last bit, derived values too.
void GamutRecordsTest::thereAndBack()
{
    QVERIFY(same(gamutTargets(gamutTriangle(distinct)), distinct));
    const Model::ColorGamut record("LED 墙", distinct);
    const ColorTriangleObject object = gamutObject(record, TargetGamut);
    QVERIFY(same(gamutRecord(object).getTargets(), distinct));
    QCOMPARE(gamutRecord(object).colorGamutName(), record.colorGamutName());
    const Model::ColorGamutInfo legacy = legacyGamutRecord(object);
    QVERIFY(same({legacy.red, legacy.green, legacy.blue, legacy.white}, distinct));
}

void GamutRecordsTest::objectOfARecord()
{
    for (const int type : {0, 1, 2, 3, 17}) {
        ColorTriangleObject object = gamutObject(Model::rec2020(), type);
        QCOMPARE(object.type(), type);
        QCOMPARE(object.gamutName(), std::string("Rec.2020"));
        QCOMPARE(object.trianglePoint().redPos(), QPointF(0.708, 0.292));
        QCOMPARE(object.foreColor(), QColor(255, 255, 255, 255));
        QCOMPARE(object.trigleLineWidth(), 1);
        QVERIFY(object.isShow());
        QCOMPARE(object.opacity(), 1.0);
    }
}

void GamutRecordsTest::appearanceIsNotPartOfARecord()
{
    ColorTriangleObject object = gamutObject(Model::rec709(), OriginalGamut);
    object.setForeColor(Qt::red);
    object.setShow(false);
    object.setTrigleLineWidth(7);
    QVERIFY(same(gamutRecord(object).getTargets(), Model::rec709().getTargets()));
    QCOMPARE(gamutRecord(ColorTriangleObject()).colorGamutName(), std::string());
    QVERIFY(same(gamutRecord(ColorTriangleObject()).getTargets(), Model::Targets()));
}

void GamutRecordsTest::impossibleValues()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    TrianglePoint triangle;
    triangle.setRedPos(QPointF(infinite, std::numeric_limits<double>::quiet_NaN()));
    triangle.setRedLum(-infinite);
    const Model::Targets targets = gamutTargets(triangle);
    QVERIFY(targets.red.x == infinite && targets.red.y != targets.red.y && targets.red.Y == -infinite);
    QCOMPARE(targets.red.X, 0.0);
    const TrianglePoint back = gamutTriangle(targets);
    QVERIFY(back.redPos().x() == infinite && back.redLum() == -infinite);
}

QTEST_APPLESS_MAIN(GamutRecordsTest)
#include "gamutrecordstest.moc"
