// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <QFontMetrics>

class AxesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void axes();
    void gridIsDashedAndFaint();
};

void AxesTest::axes()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage without = skippedPicture(renderer, 300, 280);
    const QImage with = skippedPicture(renderer, 300, 280, true);
    const QPoint origin = renderer.CoordinateTransformation(QPointF(0, 0)).toPoint();
    // The y axis from ten pixels below the top, the x axis to the right edge, both in the line colour.
    for (int y = 11; y < origin.y(); ++y) {
        QVERIFY(qGreen(with.pixel(origin.x(), y)) > 100);
    }
    QCOMPARE(with.pixel(origin.x(), 8), without.pixel(origin.x(), 8));
    for (int x = origin.x() + 1; x < 300; ++x) {
        QVERIFY(qGreen(with.pixel(x, origin.y())) > 100);
    }
    QCOMPARE(with.pixel(origin.x() - 3, origin.y()), without.pixel(origin.x() - 3, origin.y()));

    // Numbers below the x axis for 0 to 0.8, left of the y axis for 0 to 0.9.
    const auto changed
        = [&](const QRect &area) { return !reference::changedPixels(with.copy(area), without.copy(area)).isEmpty(); };
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setPixelSize(16);
    const QFontMetrics metrics(font);
    Renderer tall(nullptr);
    tall.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage tallWithout = skippedPicture(tall, 1000, 1000);
    const QImage tallWith = skippedPicture(tall, 1000, 1000, true);
    for (int k = 0; k < 9; ++k) {
        const QPoint tick = tall.CoordinateTransformation(QPointF(k * 0.1, 0)).toPoint();
        const QRect below(tick.x() - 10, tick.y() + 15, 30, metrics.height());
        QVERIFY(!reference::changedPixels(tallWith.copy(below), tallWithout.copy(below)).isEmpty());
        const QRect gap(tick.x() - 10, tick.y() + 2, 30, 12);
        QVERIFY(reference::changedPixels(tallWith.copy(gap), tallWithout.copy(gap)).isEmpty());
    }
    for (int j = 1; j < 10; ++j) {
        const QPoint tick = tall.CoordinateTransformation(QPointF(0, j * 0.1)).toPoint();
        const int width = metrics.horizontalAdvance(QStringLiteral("0.0"));
        const QRect left(tick.x() - 10 - width, tick.y() - 6, width, 12);
        QVERIFY(!reference::changedPixels(tallWith.copy(left), tallWithout.copy(left)).isEmpty());
    }
    // There are no titles: nothing beyond the numbers.
    QVERIFY(!changed(QRect(0, 0, 300, 9)));
}

void AxesTest::gridIsDashedAndFaint()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(255, 255, 255), Qt::black);
    const QImage without = skippedPicture(renderer, 600, 600);
    const QImage with = skippedPicture(renderer, 600, 600, true);
    const QPoint from = renderer.CoordinateTransformation(QPointF(0.61, 0.8)).toPoint();
    const QPoint to = renderer.CoordinateTransformation(QPointF(0.69, 0.8)).toPoint();
    int dashes = 0;
    int gaps = 0;
    int brightest = 0;
    for (int x = from.x(); x < to.x(); ++x) {
        const int level = brightestNear(with, QPointF(x, from.y()));
        brightest = qMax(brightest, level);
        const bool isGap = with.pixel(x, from.y()) == without.pixel(x, from.y());
        dashes += isGap ? 0 : 1;
        gaps += isGap ? 1 : 0;
    }
    QVERIFY(dashes > 10);
    QVERIFY(gaps > 5);
    // 30 % of alpha 80 makes 24 at most.
    QVERIFY(brightest > 8);
    QVERIFY(brightest <= 24);
}

CEIECHART_PICTURE_TEST_MAIN(AxesTest)
#include "axestest.moc"
