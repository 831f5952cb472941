// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <reference/rendererstate.h>

#include <vector>

class PointMarksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void measurePoints();
    void pointsLeaveThePainterAsItWas();
    void cmyPoints();
};

void PointMarksTest::measurePoints()
{
    const std::vector<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::white, Qt::black, Qt::black};
    QList<QRectF> rectangles;
    for (int i = 0; i < static_cast<int>(colors.size()); ++i) {
        rectangles.append(QRectF(180 + 19.25 * i, 20 + 7.5 * i, 12 + i, 15 - i));
    }
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 90, 200), QColor(23, 23, 26)); // the outline is white all the same
    const QImage without = skippedPicture(renderer, 320, 320);
    renderer.setPointData(rectangles);
    const QImage with = skippedPicture(renderer, 320, 320);
    const QImage expected = painted(without, [&](QPainter &painter) {
        for (int i = 0; i < rectangles.size(); ++i) {
            painter.setPen(QColor(255, 255, 255));
            painter.setBrush(colors[static_cast<std::size_t>(i)]);
            painter.drawEllipse(rectangles.at(i));
        }
    });
    QCOMPARE(reference::firstDifference(with, expected), QString());
    for (int i = 0; i < rectangles.size(); ++i) {
        QCOMPARE(with.pixelColor(rectangles.at(i).center().toPoint()), colors[static_cast<std::size_t>(i)]);
    }
}

void PointMarksTest::pointsLeaveThePainterAsItWas()
{
    Renderer renderer(nullptr);
    renderer.setPointData({QRectF(20, 20, 9, 9), QRectF(40, 20, 9, 9)});
    renderer.setCMYPointData({QRectF(20, 60, 9, 9), QRectF(40, 60, 9, 9)});
    QImage canvas(100, 100, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    const QPen pen(Qt::darkYellow, 3, Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(Qt::darkBlue);
    reference::drawMeasurePoints(renderer, painter);
    QCOMPARE(canvas.pixel(24, 24), qRgb(255, 0, 0));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::darkBlue));
    renderer.drawCMYPoint(painter);
    QCOMPARE(canvas.pixel(28, 68), qRgb(0, 255, 255));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::darkBlue));
}

void PointMarksTest::cmyPoints()
{
    const QList<QRectF> rectangles{
        {180, 30, 8, 8}, {200.5, 40.25, 1, 1}, {230, 60, 0, 0}, {250, 80, -5, 90}, {270, 100, 9, 9}};
    const std::vector<QColor> colors{Qt::cyan, Qt::magenta, Qt::yellow, Qt::black, Qt::black};
    Renderer renderer(nullptr);
    const QImage without = skippedPicture(renderer, 320, 320);
    renderer.setCMYPointData(rectangles);
    const QImage with = skippedPicture(renderer, 320, 320);
    const QImage expected = painted(without, [&](QPainter &painter) {
        for (int i = 0; i < rectangles.size(); ++i) {
            painter.setPen(QColor(255, 0, 255));
            painter.setBrush(colors[static_cast<std::size_t>(i)]);
            painter.drawEllipse(QRectF(rectangles.at(i).x(), rectangles.at(i).y(), 16, 16));
        }
    });
    QCOMPARE(reference::firstDifference(with, expected), QString());
    for (int i = 0; i < rectangles.size(); ++i) {
        const QPoint centre = (rectangles.at(i).topLeft() + QPointF(8, 8)).toPoint();
        QCOMPARE(with.pixelColor(centre), colors[static_cast<std::size_t>(i)]);
    }
}

CEIECHART_PICTURE_TEST_MAIN(PointMarksTest)
#include "pointmarkstest.moc"
