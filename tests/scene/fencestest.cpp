// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/fences_p.h>

#include <QTest>

#include <limits>

using ceiechart::narrowed;
using ceiechart::regionOf;

class FencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void regions_data();
    void regions();
    void rejectsWhatIsNoChromaticity();
};

// 0 red, 1 green, 2 blue, 3 none.
void FencesTest::regions_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<int>("region");

    QTest::newRow("corner of all fences is red") << QPointF(0.33, 0.33) << 0;
    QTest::newRow("red") << QPointF(0.5, 0.2) << 0;
    QTest::newRow("green") << QPointF(0.2, 0.6) << 1;
    QTest::newRow("blue") << QPointF(0.15, 0.05) << 2;
    QTest::newRow("none") << QPointF(0.6, 0.6) << 3;
    QTest::newRow("none, between green and blue") << QPointF(0.16, 0.31) << 3;
    QTest::newRow("Rec. 709 red") << QPointF(0.64, 0.33) << 0;
    QTest::newRow("Rec. 709 green") << QPointF(0.30, 0.60) << 1;
    QTest::newRow("Rec. 709 blue") << QPointF(0.15, 0.06) << 2;

    QTest::newRow("shared edge's end is red") << QPointF(0.493, 0.517) << 0;
    QTest::newRow("beside the shared end, still red") << QPointF(0.4925, 0.5175) << 0;

    // The tolerance at the first three corners is 0.0010123456789, in each coordinate for itself.
    QTest::newRow("red corner, in reach of x") << QPointF(0.745012, 0.262) << 0;
    QTest::newRow("red corner, out of reach of x") << QPointF(0.745013, 0.262) << 3;
    QTest::newRow("red corner, in reach of y") << QPointF(0.744, 0.260988) << 0;
    QTest::newRow("red corner, out of reach of y") << QPointF(0.744, 0.260987) << 3;
    QTest::newRow("red corner, in reach of both") << QPointF(0.745, 0.263) << 0;
    QTest::newRow("green corner, in reach") << QPointF(0.2207, 0.7707) << 1;
    QTest::newRow("blue corner, in reach") << QPointF(0.1795, 0.0002) << 2;
    QTest::newRow("red fence's fourth corner has no reach") << QPointF(0.427, 0.1085) << 3;
    QTest::newRow("green fence's fourth corner has no reach") << QPointF(0.1187, 0.8309) << 3;
    QTest::newRow("blue fence's fourth corner has no reach") << QPointF(0.16, 0.0012) << 3;

    // At the height of a corner one of its two edges counts, and none at the topmost one.
    QTest::newRow("level with a corner") << QPointF(0.6, 0.262) << 0;
    QTest::newRow("topmost corner") << QPointF(0.073, 0.84) << 3;
    QTest::newRow("just below the topmost corner") << QPointF(0.073, 0.8395) << 1;

    // Each corner of each fence: a point a little inside and a little outside of it.
    QTest::newRow("red inside 1") << QPointF(0.4929, 0.514) << 0;
    QTest::newRow("red outside 1") << QPointF(0.4945, 0.5185) << 3;
    QTest::newRow("red inside 3") << QPointF(0.428, 0.114) << 0;
    QTest::newRow("green inside 3") << QPointF(0.118, 0.828) << 1;
    QTest::newRow("green outside 3") << QPointF(0.119, 0.831) << 3;
    QTest::newRow("green inside 5") << QPointF(0.028, 0.793) << 1;
    QTest::newRow("green outside 5") << QPointF(0.0245, 0.7945) << 3;
    QTest::newRow("green inside 6") << QPointF(0.009, 0.726) << 1;
    QTest::newRow("green outside 6") << QPointF(0.006, 0.727) << 3;
    QTest::newRow("green inside 7") << QPointF(0.006, 0.598) << 1;
    QTest::newRow("green outside 7") << QPointF(0.003, 0.598) << 3;
    QTest::newRow("green inside 8") << QPointF(0.011, 0.503) << 1;
    QTest::newRow("green outside 8") << QPointF(0.008, 0.501) << 3;
    QTest::newRow("green inside 9") << QPointF(0.030, 0.361) << 1;
    QTest::newRow("green outside 9") << QPointF(0.026, 0.361) << 3;
    QTest::newRow("green inside 10") << QPointF(0.042, 0.311) << 1;
    QTest::newRow("green outside 10") << QPointF(0.040, 0.308) << 3;
    QTest::newRow("blue inside 1") << QPointF(0.424, 0.1105) << 2;
    QTest::newRow("blue outside 1") << QPointF(0.4345, 0.1125) << 3;
    QTest::newRow("blue inside 3") << QPointF(0.161, 0.0035) << 2;
    QTest::newRow("blue inside 4") << QPointF(0.1525, 0.0075) << 2;
    QTest::newRow("blue outside 4") << QPointF(0.1500, 0.0065) << 3;
    QTest::newRow("blue inside 5") << QPointF(0.1465, 0.0145) << 2;
    QTest::newRow("blue outside 5") << QPointF(0.1440, 0.0135) << 3;
    QTest::newRow("blue inside 6") << QPointF(0.1245, 0.0435) << 2;
    QTest::newRow("blue outside 6") << QPointF(0.1220, 0.0425) << 3;
    QTest::newRow("blue inside 7") << QPointF(0.0815, 0.1465) << 2;
    QTest::newRow("blue outside 7") << QPointF(0.0790, 0.1455) << 3;
    QTest::newRow("blue inside 8") << QPointF(0.0430, 0.2905) << 2;
    // Where the blue fence's lower corners lie close together, a twentieth of a corner's height tells.
    QTest::newRow("blue corner 2, in reach below") << QPointF(0.179, 0.00001) << 2;
    QTest::newRow("blue just inside 3") << QPointF(0.16, 0.00205) << 2;
    QTest::newRow("blue just inside 4") << QPointF(0.1511, 0.0071) << 2;
    QTest::newRow("blue just inside 5") << QPointF(0.1451, 0.0143) << 2;
    QTest::newRow("blue outside 8") << QPointF(0.0400, 0.2910) << 3;
    QTest::newRow("Rec. 2020 red") << QPointF(0.708, 0.292) << 0;
    QTest::newRow("Rec. 2020 green") << QPointF(0.170, 0.797) << 1;
    QTest::newRow("Rec. 2020 blue") << QPointF(0.131, 0.046) << 2;
    QTest::newRow("on the edge of red and green, inside red") << QPointF(0.4115, 0.4235) << 0;
    QTest::newRow("on the edge of red and green, inside green") << QPointF(0.4115, 0.4240) << 1;
    QTest::newRow("green corner, in reach of y") << QPointF(0.22, 0.771) << 1;
    QTest::newRow("green corner, out of reach of y") << QPointF(0.22, 0.7711) << 3;
    QTest::newRow("blue corner, in reach of y") << QPointF(0.179, 0.0) << 2;
    QTest::newRow("blue corner, out of reach of y") << QPointF(0.179, -0.0001) << 3;

    // On the edge that red and green share: as doubles, all of these lie on its green side.
    QTest::newRow("the point is narrowed") << QPointF(0.34664582251053716, 0.34909674153263948) << 0;
    QTest::newRow("the crossing is narrow") << QPointF(0.35087498904516295, 0.35394860877225931) << 0;
    QTest::newRow("the crossing is narrow too") << QPointF(0.33118748965983585, 0.33136233436462126) << 0;
}

void FencesTest::regions()
{
    QFETCH(QPointF, chroma);
    QTEST(int(regionOf(narrowed(chroma))), "region");
}

// Left of all fences, at their height, every edge would count twice.
void FencesTest::rejectsWhatIsNoChromaticity()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const QPointF &chroma :
        {QPointF(nan, nan), QPointF(nan, 0.3), QPointF(0.3, nan), QPointF(inf, 0.3), QPointF(-inf, 0.3),
            QPointF(0.3, inf), QPointF(0.3, -inf), QPointF(inf, inf), QPointF(-inf, -inf), QPointF(1e300, -1e300)}) {
        QCOMPARE(int(regionOf(narrowed(chroma))), int(ceiechart::NoRegion));
    }
}

QTEST_APPLESS_MAIN(FencesTest)
#include "fencestest.moc"
