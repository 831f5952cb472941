// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

class ClippedHorseshoeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyClipPolygonHidesTheHorseshoe();
    void clipPolygonConfinesTheHorseshoe();
    void redlessBackgroundLeavesTheClipUncolored();
};

void ClippedHorseshoeTest::emptyClipPolygonHidesTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const Triangles triangles{greenGamut(Qt::red, 1, 1.0, 7)};
    const Triangles standards{gamut({0.7, 0.5}, {0.6, 0.9}, {0.5, 0.7}, Qt::blue, 0, 0.999)};
    const QImage picture = gamutPicture(renderer, 400, 400, triangles, standards);
    for (const QColor &background : {QColor(Qt::white), QColor(1, 2, 3), QColor(0, 9, 9), QColor()}) {
        renderer.setBackgroudColor(background);
        QCOMPARE(
            reference::firstDifference(gamutPicture(renderer, 400, 400, triangles, standards), picture), QString());
    }
    QCOMPARE(picture.pixel(3, 3), qRgb(0, 0, 0));
    const QPointF purples = (exactPixel(renderer, 360) + exactPixel(renderer, 829)) / 2;
    QVERIFY(brightestNear(picture, purples) > 100);
    const QPoint inside = renderer.CoordinateTransformation(QPointF(0.6, 0.7)).toPoint();
    QCOMPARE(picture.pixel(inside), qRgb(0, 0, 255));
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(picture.pixel(onOutline), qRgb(255, 0, 0));
}

void ClippedHorseshoeTest::clipPolygonConfinesTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage without = gamutPicture(renderer, 300, 300);
    const QRect clip(100, 80, 90, 110);
    const QImage picture = gamutPicture(renderer, 300, 300, {}, {}, QPolygonF(QRectF(clip)));
    Renderer planar(nullptr); // its simple form shows the same colours everywhere
    const QImage colors = simplePicture(planar, 300, 300);
    Renderer marks(nullptr); // and this one what lies over them
    marks.setGraphColor(Qt::white, Qt::black);
    const QImage over = gamutPicture(marks, 300, 300);
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 300; ++x) {
            if (!clip.contains(x, y)) {
                QCOMPARE(picture.pixel(x, y), without.pixel(x, y));
            } else if (over.pixel(x, y) == qRgb(0, 0, 0) && picture.pixel(x, y) != colors.pixel(x, y)) {
                // Only the Planckian locus is drawn later, in black.
                QVERIFY(qGray(picture.pixel(x, y)) < qGray(colors.pixel(x, y)));
            }
        }
    }
    QCOMPARE(picture.pixel(102, 82), colors.pixel(102, 82));
    QCOMPARE(picture.pixel(188, 188), colors.pixel(188, 188));
}

void ClippedHorseshoeTest::redlessBackgroundLeavesTheClipUncolored()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    renderer.setBackgroudColor(QColor(0, 90, 60));
    const QImage picture = gamutPicture(renderer, 200, 200, {}, {}, QPolygonF(QRectF(50, 120, 40, 20)));
    QCOMPARE(picture.pixel(51, 121), qRgb(0, 90, 60));
    QCOMPARE(picture.pixel(88, 138), qRgb(0, 90, 60));
    // A translucent background lets the picture colour through.
    renderer.setBackgroudColor(QColor(0, 255, 0, 51));
    QCOMPARE(
        gamutPicture(renderer, 200, 200, {}, {}, QPolygonF(QRectF(50, 120, 40, 20))).pixel(51, 121), qRgb(0, 51, 0));
}

CEIECHART_PICTURE_TEST_MAIN(ClippedHorseshoeTest)
#include "clippedhorseshoetest.moc"
