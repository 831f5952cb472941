// SPDX-License-Identifier: MIT
#include "expectedchart.h"

#include "display/descriptionreader.h"
#include "drawing/chartrenderer.h"
#include "drawing/diagramframe.h"
#include <reference/picturedifference.h>

#include <QtTest>

using namespace gamutviewer;

class ChartRendererTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawsWhatTheLibraryDraws_data();
    void drawsWhatTheLibraryDraws();
    void everyPartOfTheSceneShows();
    void historyLeavesNoTrace();
    void measurePointsAreColoredByName();
    void commonAreaNeedsBothGamuts();
    void smallestPictures();

private:
    ChartScene m_sample;
};

void ChartRendererTest::initTestCase()
{
    DescriptionReader reader;
    const auto description = reader.readFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY2(description, qPrintable(reader.error().message(QStringLiteral(SAMPLE_FILE))));
    m_sample = chartScene(*description);
}

void ChartRendererTest::drawsWhatTheLibraryDraws_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(800, 800), QSize(801, 799), QSize(640, 360), QSize(101, 300), QSize(49, 50)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void ChartRendererTest::drawsWhatTheLibraryDraws()
{
    QFETCH(QSize, size);
    QCOMPARE(reference::firstDifference(ChartRenderer().draw(m_sample, size), expectedchart::draw(size)), QString());
}

void ChartRendererTest::everyPartOfTheSceneShows()
{
    const QSize size(400, 400);
    const QImage whole = ChartRenderer().draw(m_sample, size);
    const auto differsWithout = [&](auto leaveOut) {
        ChartScene scene = m_sample;
        leaveOut(scene);
        return ChartRenderer().draw(scene, size) != whole;
    };
    QVERIFY(differsWithout([](ChartScene &scene) { scene.triangles.removeFirst(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.triangles.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.standards.removeFirst(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.colorTemperaturePoints.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.measurePoints.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.cmyPoints.removeLast(); }));
}

void ChartRendererTest::historyLeavesNoTrace()
{
    ChartRenderer used;
    used.draw(m_sample, QSize(640, 480));
    ChartScene other = m_sample;
    other.triangles.clear();
    other.colorTemperaturePoints = {QPointF(0.5, 0.4)};
    used.draw(other, QSize(123, 456));
    const QSize size(300, 200);
    QCOMPARE(reference::firstDifference(used.draw(m_sample, size), ChartRenderer().draw(m_sample, size)), QString());
}

void ChartRendererTest::measurePointsAreColoredByName()
{
    ChartScene scene;
    scene.measurePoints = {{QPointF(0.1, 0.8), Qt::black}, {QPointF(0.3, 0.8), Qt::white},
        {QPointF(0.5, 0.8), Qt::green}, {QPointF(0.7, 0.8), Qt::black}};
    const QSize size(800, 800);
    const QImage picture = ChartRenderer().draw(scene, size);
    const DiagramFrame frame(Model::Diagram::Cie1931, size);
    for (const PointMark &mark : scene.measurePoints) {
        QCOMPARE(picture.pixelColor(frame.fromXy(mark.xy).toPoint()), mark.color);
    }
    // And there are no others.
    scene.measurePoints.clear();
    QCOMPARE(picture.pixelColor(0, 0), ChartRenderer().draw(scene, size).pixelColor(0, 0));
}

void ChartRendererTest::commonAreaNeedsBothGamuts()
{
    const auto brightPixels = [](const ChartScene &scene) {
        const QImage picture = ChartRenderer().draw(scene, QSize(400, 400));
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                count += color.hsvSaturation() > 60 && color.value() > 100;
            }
        }
        return count;
    };
    ChartScene bare;
    bare.target = m_sample.target;
    bare.original = m_sample.original;
    // The common area takes up some 0.10 square units of chromaticity, 0.84 x 0.94 of which are 360 x 360 pixels.
    QVERIFY(brightPixels(bare) > 10000);
    bare.original = TrianglePoint();
    QCOMPARE(brightPixels(bare), 0);
    bare.original = m_sample.original;
    bare.target = TrianglePoint();
    QCOMPARE(brightPixels(bare), 0);
}

void ChartRendererTest::smallestPictures()
{
    for (const QSize &size : {QSize(1, 1), QSize(1, 200), QSize(200, 1), QSize(2, 2)}) {
        const QImage picture = ChartRenderer().draw(m_sample, size);
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.format(), QImage::Format_ARGB32);
    }
}

QTEST_MAIN(ChartRendererTest)
#include "chartrenderertest.moc"
