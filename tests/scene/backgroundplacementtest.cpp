// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/backgroundplacement_p.h>

#include <QTest>

#include <cmath>
#include <limits>

using ceiechart::backgroundPlacement;

class BackgroundPlacementTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void placement_data();
    void placement();
    void emptyViewShowsNothing();
    void meaninglessScenesAreSurvived();
};

void BackgroundPlacementTest::placement_data()
{
    QTest::addColumn<QRectF>("scene");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QRectF>("target");
    const QRectF scene(0, 0, 672, 728);
    QTest::newRow("taller: centred unscaled") << scene << QSize(700, 800) << QRectF(14, 36, 672, 728);
    QTest::newRow("taller by an odd number") << scene << QSize(701, 801) << QRectF(14, 36, 672, 728);
    QTest::newRow("taller and narrower: toward zero") << scene << QSize(601, 729) << QRectF(-35, 0, 672, 728);
    QTest::newRow("as tall") << scene << QSize(680, 728) << QRectF(4, 0, 672, 728);
    QTest::newRow("shorter: scaled down") << scene << QSize(500, 364) << QRectF(82, 0, 336, 364);
    QTest::newRow("shorter and narrow") << scene << QSize(301, 364) << QRectF(-17, 0, 336, 364);
    const double slight = 728.0 / 700.0;
    QTest::newRow("a little shorter") << scene << QSize(680, 700)
                                      << QRectF(std::trunc((680 - 672 / slight) * 0.5), 0, 672 / slight, 728 / slight);
    const double odd = 728.0 / 401.0;
    QTest::newRow("shorter by an odd ratio")
        << scene << QSize(640, 401) << QRectF(std::trunc((640 - 672 / odd) * 0.5), 0, 672 / odd, 728 / odd);
    // Unscaled it moves along, scaled it does not; as tall as the view counts as scaled.
    const QRectF moved(10, 20, 300, 400);
    QTest::newRow("moved, taller") << moved << QSize(340, 402) << QRectF(30, 21, 300, 400);
    QTest::newRow("moved, as tall") << moved << QSize(340, 400) << QRectF(20, 0, 300, 400);
    QTest::newRow("moved, shorter") << moved << QSize(340, 200) << QRectF(95, 0, 150, 200);
}

void BackgroundPlacementTest::placement()
{
    QFETCH(QRectF, scene);
    QFETCH(QSize, view);
    QFETCH(QRectF, target);
    const QRectF placed = backgroundPlacement(scene, view);
    // Not QRectF's own comparison: that takes small differences for none.
    QVERIFY(placed.x() == target.x() && placed.y() == target.y());
    QVERIFY(placed.width() == target.width() && placed.height() == target.height());
}

void BackgroundPlacementTest::emptyViewShowsNothing()
{
    for (const int height : {0, -1, -800}) {
        QVERIFY(backgroundPlacement(QRectF(0, 0, 672, 728), QSize(500, height)).isEmpty());
    }
}

void BackgroundPlacementTest::meaninglessScenesAreSurvived()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double bad : {nan, infinity, -infinity, 1e300}) {
        backgroundPlacement(QRectF(0, 0, bad, bad), QSize(500, 400));
        backgroundPlacement(QRectF(bad, bad, 100, 100), QSize(500, 400));
    }
    QVERIFY(backgroundPlacement(QRectF(), QSize(500, 400)).isEmpty());
}

QTEST_APPLESS_MAIN(BackgroundPlacementTest)
#include "backgroundplacementtest.moc"
