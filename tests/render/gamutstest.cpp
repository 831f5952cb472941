// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <QPainterPath>

class GamutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void standardTintAndOutline_data();
    void standardTintAndOutline();
    void onePainterPerKind();
    void intersectionOutline();
};

void GamutsTest::standardTintAndOutline_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("alpha");
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("quarter") << 0.25 << 64;
    QTest::newRow("half") << 0.5 << 128;
    QTest::newRow("truncated") << 0.07 << 17;
    QTest::newRow("nearly full") << 0.999 << 255;
    // Above 255 and below 0 there is no such colour, and nothing is filled.
    QTest::newRow("full") << 1.0 << 0;
    QTest::newRow("more than full") << 1.5 << 0;
    QTest::newRow("negative") << -0.25 << 0;
}

void GamutsTest::standardTintAndOutline()
{
    QFETCH(double, opacity);
    QFETCH(int, alpha);
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const ColorTriangleObject standard = greenGamut(QColor(255, 0, 0), 0, opacity, 7);
    const QImage picture = gamutPicture(renderer, 400, 400, {}, {standard});
    const QPoint inside = renderer.CoordinateTransformation(QPointF(0.18, 0.55)).toPoint();
    QCOMPARE(picture.pixel(inside), qRgb(alpha, 0, 0));
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(picture.pixel(onOutline), qRgb(255, 0, 0));

    // The layer alone, painted on a canvas: outline, then tint, with the brush of the painter inside the outline.
    QImage canvas(400, 400, QImage::Format_ARGB32);
    canvas.fill(QColor(10, 60, 20));
    const Triangles standards{
        standard, gamut({0.7, 0.2}, {0.3, 0.7}, {0.2, 0.1}, QColor(0, 200, 250, 90), 7, opacity, 2)};
    const QImage layer = painted(canvas, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(QColor(0, 0, 90));
        renderer.painterStandard(painter, standards);
        QCOMPARE(painter.brush(), QBrush(QColor(0, 0, 90)));
        QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    });
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setBrush(QColor(0, 0, 90));
        for (ColorTriangleObject element : standards) {
            painter.setPen(gamutPen(element.foreColor(), element.trigleLineWidth()));
            const QPolygonF polygon = polygonOf(renderer, element);
            painter.drawPolygon(polygon, Qt::OddEvenFill);
            QPainterPath path;
            path.addPolygon(polygon);
            QColor tint = element.foreColor();
            tint.setAlpha(alpha);
            painter.fillPath(path, tint);
        }
    });
    QCOMPARE(reference::firstDifference(layer, expected), QString());
}

void GamutsTest::onePainterPerKind()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 300, 300);
    QImage canvas(300, 300, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    // Each paints what it is given, whatever its kind.
    const ColorTriangleObject triangle = greenGamut(QColor(250, 160, 10, 180), 0, 0.5, 3);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setBrush(Qt::blue);
        painter.setPen(gamutPen(QColor(250, 160, 10, 180), 3.0));
        painter.drawPolygon(polygonOf(renderer, triangle), Qt::OddEvenFill);
    });
    for (const auto paint :
        {&Renderer::painterTargetTriangle, &Renderer::painterOriginalTriangle, &Renderer::painterInputTriangle}) {
        const QImage picture = painted(canvas, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.setBrush(Qt::blue);
            painter.setPen(Qt::DotLine);
            (renderer.*paint)(painter, triangle);
            QCOMPARE(painter.pen(), QPen(Qt::DotLine));
            QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
        });
        QCOMPARE(reference::firstDifference(picture, expected), QString());
    }
}

void GamutsTest::intersectionOutline()
{
    Renderer renderer(nullptr);
    QImage canvas(120, 120, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    const auto outline = [&renderer](QPainter &painter) { renderer.painterIntersectsTriangle(painter); };
    QCOMPARE(reference::firstDifference(painted(canvas, outline), canvas), QString());

    const QPolygonF clip(QVector<QPointF>{{20, 100}, {60, 10}, {100, 100}, {10, 40}, {110, 40.5}});
    gamutPicture(renderer, 50, 50, {}, {}, clip);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setPen(gamutPen(QColor(255, 255, 255, 128), 1.0));
        painter.drawPolygon(clip, Qt::OddEvenFill);
    });
    QCOMPARE(reference::firstDifference(painted(canvas, outline), expected), QString());
}

CEIECHART_PICTURE_TEST_MAIN(GamutsTest)
#include "gamutstest.moc"
