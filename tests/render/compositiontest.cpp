// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <cstdlib>

class CompositionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void simpleFormColorsTheWholePictureByDefault();
    void simpleFormOnARedlessPictureColorsTheHorseshoe();
    void skipTextLeavesOutTheGamutBlock();
    void wavelengthsAreInEveryGamutForm();
    void horseshoeCoversEdgeAndStandardsButNotTriangles();
};

void CompositionTest::simpleFormColorsTheWholePictureByDefault()
{
    Renderer renderer(nullptr);
    const QImage picture = simplePicture(renderer, 90, 70, {}, true);
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < 90; ++x) {
            const QRgb pixel = picture.pixel(x, y);
            QCOMPARE(qMax(qRed(pixel), qMax(qGreen(pixel), qBlue(pixel))), 255);
        }
    }
    // ... over axes and edge: they leave no trace.
    QCOMPARE(reference::firstDifference(simplePicture(renderer, 90, 70, {}, false), picture), QString());
    const QImage thin = simplePicture(renderer, 1, 70, {}, false);
    QCOMPARE(thin.pixel(0, 0), qRgba(23, 23, 26, 255));
    QCOMPARE(thin.pixel(0, 69), qRgba(23, 23, 26, 255));
}

void CompositionTest::simpleFormOnARedlessPictureColorsTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = simplePicture(renderer, 400, 400);
    QCOMPARE(picture.pixel(0, 0), qRgba(0, 0, 0, 255));
    QCOMPARE(picture.pixel(399, 399), qRgba(0, 0, 0, 255));
    // Inside, four pixels to the left of where the forward mapping has the white point.
    const QPointF white = renderer.CoordinateTransformation(QPointF(0.3127, 0.3291)) - QPointF(4, 0);
    const QRgb pixel = picture.pixel(static_cast<int>(white.x()), static_cast<int>(white.y()));
    QCOMPARE(qBlue(pixel), 255);
    QVERIFY(std::abs(qRed(pixel) - 162) < 6);
    QVERIFY(std::abs(qGreen(pixel) - 238) < 6);
}

void CompositionTest::skipTextLeavesOutTheGamutBlock()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QPolygonF clip(QRectF(0, 0, 400, 400));
    const Triangles triangles{greenGamut(Qt::red, 1)};
    const Triangles standards{greenGamut(Qt::yellow, 0, 0.5)};
    const QImage skipped = gamutPicture(renderer, 400, 400, triangles, standards, clip, QStringLiteral(" "));
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 400, 400, {}, {}, {}, skip), skipped), QString());
    QVERIFY(!reference::firstDifference(gamutPicture(renderer, 400, 400), skipped).isEmpty());

    // No edge: between 640 and 680 nm nothing else is near the locus.
    const QPointF edge = exactPixel(renderer, 645);
    QCOMPARE(brightestNear(skipped, edge), 0);
    QVERIFY(brightestNear(gamutPicture(renderer, 400, 400), edge) > 0);

    // What belongs to every picture is there: wavelengths, Planckian points, measure points and CMY points.
    QVERIFY(brightestNear(skipped, exactPixel(renderer, 520)) > thinLine);
    simplePicture(renderer, 400, 400, {{0.45, 0.45}});
    QCOMPARE(brightestNear(skippedPicture(renderer, 400, 400), renderer.CoordinateTransformation(QPointF(0.45, 0.45))),
        qGray(0, 255, 0));
    renderer.setPointData({QRectF(300, 50, 9, 9)});
    renderer.setCMYPointData({QRectF(350, 50, 9, 9)});
    const QImage marked = skippedPicture(renderer, 400, 400);
    QCOMPARE(marked.pixel(304, 54), qRgb(255, 0, 0));
    QCOMPARE(marked.pixel(358, 58), qRgb(0, 255, 255));
}

void CompositionTest::wavelengthsAreInEveryGamutForm()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 60, 0), Qt::black);
    const QImage skipped = skippedPicture(renderer, 1000, 1000);
    const QImage gamuts = gamutPicture(renderer, 1000, 1000);
    const QImage simple = simplePicture(renderer, 1000, 1000);
    // White, whatever the line colour is, and absent from the simple form. The tick's outer end is clear of the edge.
    const QPointF tick = exactPixel(renderer, 560);
    const QPointF outer = renderer.CoordinateTransformation(chromaticityOf(560) + QPointF(0.012, 0.012));
    QVERIFY(brightestNear(skipped, tick) > thinLine);
    QVERIFY(brightestNear(skipped, outer) > thinLine);
    QVERIFY(brightestNear(gamuts, outer) > thinLine);
    QCOMPARE(brightestNear(simple, outer), 0);
    QVERIFY(brightestNear(simple, tick) < thinLine);
    QCOMPARE(brightestNear(skipped, exactPixel(renderer, 565)), 255);
}

void CompositionTest::horseshoeCoversEdgeAndStandardsButNotTriangles()
{
    Renderer renderer(nullptr);
    const QPolygonF everywhere(QRectF(-1, -1, 302, 302));
    const Triangles gamuts{greenGamut(Qt::black, 1, 0.999, 7)};
    const QImage bare = gamutPicture(renderer, 300, 300, {}, {}, everywhere);
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {}, gamuts, everywhere), bare), QString());
    // Neither edge nor axes nor wavelengths show, so that their colour makes no difference.
    renderer.setGraphColor(Qt::red, QColor(23, 23, 26));
    QCOMPARE(
        reference::firstDifference(gamutPicture(renderer, 300, 300, {}, {}, everywhere, {}, true), bare), QString());
    const QImage outlined = gamutPicture(renderer, 300, 300, gamuts, {}, everywhere);
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(outlined.pixel(onOutline), qRgb(0, 0, 0));
    QVERIFY(bare.pixel(onOutline) != qRgb(0, 0, 0));
}

CEIECHART_PICTURE_TEST_MAIN(CompositionTest)
#include "compositiontest.moc"
