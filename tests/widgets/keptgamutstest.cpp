// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "hostcharts.h"
#include <reference/picturedifference.h>

#include <ceiechart/scene/ceiegraphicsscene.h>

#include <QLabel>
#include <QTest>

using namespace hostcharts;

class KeptGamutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void byDefaultTheDiagramIsBare();
    void everyRenderingShowsTheGamuts_data();
    void everyRenderingShowsTheGamuts();
    void messageStays();
    void cmyPointsMoveWithTheSize();
    void switchedOnAfterTheGamuts();
    void switchedOffAgain();
    void changedList();
    void withoutGamuts();
    void impossibleSizes();
    void sceneOfAHost();
    void deletedScene();

private:
    static QImage expected(const QSize &size, bool axes = true);
};

#define COMPARE_IMAGES(actual, wanted)                                                                                 \
    do {                                                                                                               \
        const QString difference = reference::firstDifference(actual, wanted);                                         \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                                        \
    } while (false)

/*! The picture of a chart to which the gamuts are given last. */
QImage KeptGamutsTest::expected(const QSize &size, bool axes)
{
    const auto chart = currentChart();
    chart->setIsDrawCoordinate(axes);
    chart->setImageSize(size);
    setGamuts(*chart);
    return chart->toImage();
}

void KeptGamutsTest::byDefaultTheDiagramIsBare()
{
    const auto chart = currentChart();
    QVERIFY(!chart->isGamutsKept());
    chart->setImageSize(QSize(200, 220));
    const QImage bare = chart->toImage();
    setGamuts(*chart);
    QVERIFY(chart->toImage() != bare);
    chart->setImageSize(QSize(200, 220));
    COMPARE_IMAGES(chart->toImage(), bare);
}

void KeptGamutsTest::everyRenderingShowsTheGamuts_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("larger") << QSize(320, 300);
    QTest::newRow("smaller") << QSize(90, 100);
    QTest::newRow("default size") << QSize(672, 728);
}

void KeptGamutsTest::everyRenderingShowsTheGamuts()
{
    QFETCH(QSize, size);
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    QVERIFY(chart->isGamutsKept());
    chart->setImageSize(QSize(200, 220));
    setGamuts(*chart);
    chart->setImageSize(size);
    COMPARE_IMAGES(chart->toImage(), expected(size));
    chart->setImageWidth(240);
    chart->setImageHeight(210);
    COMPARE_IMAGES(chart->toImage(), expected(QSize(240, 210)));
    chart->setIsDrawCoordinate(false);
    COMPARE_IMAGES(chart->toImage(), expected(QSize(240, 210), false));
    chart->setIsDrawCoordinate(true);
    chart->setIsDrawBBRLine(false);
    chart->setIsDrawWaveLength(false);
    chart->setLsColorTempertureValuePoints({});
    COMPARE_IMAGES(chart->toImage(), expected(QSize(240, 210)));
}

void KeptGamutsTest::messageStays()
{
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    chart->setImageSize(QSize(300, 300));
    setGamuts(*chart);
    chart->updateLanGamut(true, QStringLiteral("no data"));
    chart->setImageSize(QSize(400, 300));
    const auto other = currentChart();
    other->setImageSize(QSize(400, 300));
    setGamuts(*other);
    other->updateLanGamut(true, QStringLiteral("no data"));
    COMPARE_IMAGES(chart->toImage(), other->toImage());
    const auto messageOf
        = [](const Current &of) { return of.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly); };
    QVERIFY(!messageOf(*chart)->isHidden());
    // In the middle of the new picture.
    QCOMPARE(messageOf(*chart)->pos(), messageOf(*other)->pos());
    chart->setImageWidth(500);
    chart->setImageHeight(420);
    other->setImageSize(QSize(500, 420));
    other->updateLanGamut(true, QStringLiteral("no data"));
    QCOMPARE(messageOf(*chart)->pos(), messageOf(*other)->pos());
}

void KeptGamutsTest::cmyPointsMoveWithTheSize()
{
    const QList<QPointF> points = {QPointF(0.2, 0.3), QPointF(0.4, 0.2), QPointF(0.45, 0.48)};
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    chart->setImageSize(QSize(200, 220));
    chart->setCMYPointData(points);
    setGamuts(*chart);
    chart->setImageSize(QSize(400, 380));
    const auto other = currentChart();
    other->setImageSize(QSize(400, 380));
    other->setCMYPointData(points);
    setGamuts(*other);
    COMPARE_IMAGES(chart->toImage(), other->toImage());
}

void KeptGamutsTest::switchedOnAfterTheGamuts()
{
    const auto chart = currentChart();
    chart->setImageSize(QSize(200, 220));
    setGamuts(*chart);
    const QImage before = chart->toImage();
    chart->setGamutsKept(true);
    COMPARE_IMAGES(chart->toImage(), before);
    chart->setImageSize(QSize(300, 280));
    COMPARE_IMAGES(chart->toImage(), expected(QSize(300, 280)));
}

void KeptGamutsTest::switchedOffAgain()
{
    const auto bare = currentChart();
    bare->setImageSize(QSize(300, 280));
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    chart->setImageSize(QSize(200, 220));
    setGamuts(*chart);
    chart->setGamutsKept(false);
    chart->setImageSize(QSize(300, 280));
    COMPARE_IMAGES(chart->toImage(), bare->toImage());
}

void KeptGamutsTest::changedList()
{
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    chart->setImageSize(QSize(200, 220));
    setGamuts(*chart);
    chart->clear();
    chart->setImageSize(QSize(300, 280));
    const auto other = currentChart();
    other->setImageSize(QSize(300, 280));
    setGamuts(*other);
    other->clear();
    other->updateLanGamut(true, QString());
    COMPARE_IMAGES(chart->toImage(), other->toImage());
}

void KeptGamutsTest::withoutGamuts()
{
    const auto bare = currentChart();
    bare->setImageSize(QSize(300, 280));
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    QVERIFY(chart->toImage().isNull());
    chart->setImageSize(QSize(300, 280));
    COMPARE_IMAGES(chart->toImage(), bare->toImage());
}

void KeptGamutsTest::impossibleSizes()
{
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    chart->setImageSize(QSize(200, 220));
    setGamuts(*chart);
    for (const QSize &size : {QSize(0, 0), QSize(-1, 5), QSize(1, 1), QSize(), QSize(2, 2)}) {
        chart->setImageSize(size);
        QCOMPARE(chart->toImage().isNull(), size.isEmpty());
    }
    chart->setImageSize(QSize(200, 220));
    COMPARE_IMAGES(chart->toImage(), expected(QSize(200, 220)));
}

void KeptGamutsTest::sceneOfAHost()
{
    NewCEIE::CEIEGraphicsScene scene({});
    QVERIFY(!scene.isGamutsKept());
    scene.setGamutsKept(true);
    QVERIFY(scene.isGamutsKept());
    scene.getBitMap();
    const QImage bare = scene.toImage();
    scene.setLsColorTriangleObject({}, {}, TrianglePoint(), TrianglePoint(), true, QString());
    const QImage gamuts = scene.toImage();
    QVERIFY(gamuts != bare);
    scene.getBitMap();
    COMPARE_IMAGES(scene.toImage(), gamuts);
}

void KeptGamutsTest::deletedScene()
{
    const auto chart = currentChart();
    chart->setGamutsKept(true);
    delete chart->view()->scene();
    chart->setGamutsKept(true);
    QVERIFY(!chart->isGamutsKept());
}

QTEST_MAIN(KeptGamutsTest)
#include "keptgamutstest.moc"
