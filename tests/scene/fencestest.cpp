// SPDX-License-Identifier: MIT
#include <ceiechart/scene/fences_p.h>

#include <QTest>

#include <limits>

using ceiechart::regionOf;

class FencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void classifies_data();
    void classifies();
    void cornersAreTolerant();
    void rejectsWhatIsNoChromaticity();
};

void FencesTest::classifies_data()
{
    QTest::addColumn<float>("x");
    QTest::addColumn<float>("y");
    QTest::addColumn<int>("region");
    QTest::newRow("corner of all three") << 0.33F << 0.33F << int(ceiechart::RedRegion);
    QTest::newRow("red") << 0.5F << 0.2F << int(ceiechart::RedRegion);
    QTest::newRow("green") << 0.2F << 0.6F << int(ceiechart::GreenRegion);
    QTest::newRow("blue") << 0.15F << 0.05F << int(ceiechart::BlueRegion);
    QTest::newRow("none") << 0.6F << 0.6F << int(ceiechart::NoRegion);
    QTest::newRow("Rec. 2020 red") << 0.708F << 0.292F << int(ceiechart::RedRegion);
    QTest::newRow("Rec. 2020 green") << 0.170F << 0.797F << int(ceiechart::GreenRegion);
    QTest::newRow("Rec. 2020 blue") << 0.131F << 0.046F << int(ceiechart::BlueRegion);
    QTest::newRow("on the edge of red and green, inside red") << 0.4115F << 0.4235F << int(ceiechart::RedRegion);
    QTest::newRow("on the edge of red and green, inside green") << 0.4115F << 0.4240F << int(ceiechart::GreenRegion);
}

void FencesTest::classifies()
{
    QFETCH(float, x);
    QFETCH(float, y);
    QTEST(int(regionOf({x, y})), "region");
}

// The first three corners of each fence reach about 0.001 further than its edges.
void FencesTest::cornersAreTolerant()
{
    QCOMPARE(int(regionOf({0.745F, 0.262F})), int(ceiechart::RedRegion));
    QCOMPARE(int(regionOf({0.7451F, 0.262F})), int(ceiechart::NoRegion));
    QCOMPARE(int(regionOf({0.22F, 0.771F})), int(ceiechart::GreenRegion));
    QCOMPARE(int(regionOf({0.22F, 0.7711F})), int(ceiechart::NoRegion));
    QCOMPARE(int(regionOf({0.179F, 0.0F})), int(ceiechart::BlueRegion));
    QCOMPARE(int(regionOf({0.179F, -0.0001F})), int(ceiechart::NoRegion));
}

void FencesTest::rejectsWhatIsNoChromaticity()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    QCOMPARE(int(regionOf({nan, 0.3F})), int(ceiechart::NoRegion));
    QCOMPARE(int(regionOf({0.3F, nan})), int(ceiechart::NoRegion));
    QCOMPARE(int(regionOf({infinity, infinity})), int(ceiechart::NoRegion));
    QCOMPARE(int(regionOf({-infinity, -infinity})), int(ceiechart::NoRegion));
}

QTEST_APPLESS_MAIN(FencesTest)
#include "fencestest.moc"
