// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

class PlanckianLocusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void planckianLocusTakesThePaintersPen();
    void colorTemperatureDots_data();
    void colorTemperatureDots();
    void colorTemperaturePointOnTheLocus();
};

void PlanckianLocusTest::planckianLocusTakesThePaintersPen()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 500, 500);
    QImage canvas(500, 500, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    const QPen pen(QColor(250, 10, 90), 3.5, Qt::DashLine);
    const QImage picture = painted(canvas, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(pen);
        renderer.painterBBRLine(painter);
        QCOMPARE(painter.pen(), pen);
        QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    });
    QPolygonF locus;
    for (const CEIAtlasValue::CEITemperatureCoordinate &row : atlas().temperatureCoordinates) {
        const double scale = (500 * 95 / 100 - 500 * 5 / 100);
        locus.append(QPointF(4 + 25.5 + row.x * (scale / static_cast<double>(0.84F)),
            25.5 - (row.y - static_cast<double>(0.94F)) * (scale / static_cast<double>(0.94F))));
    }
    QCOMPARE(locus.size(), 54);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setPen(pen);
        painter.drawPolyline(locus);
    });
    QCOMPARE(reference::firstDifference(picture, expected), QString());

    // In a picture the pen is the painter's first one: black.
    Renderer white(nullptr);
    white.setGraphColor(Qt::white, Qt::white);
    const QImage whole = skippedPicture(white, 500, 500);
    for (int i = 5; i < 54; i += 6) {
        const QPointF vertex = locus.at(i);
        int darkest = 255;
        for (int dx = -1; dx <= 1; ++dx) {
            for (int dy = -1; dy <= 1; ++dy) {
                darkest = qMin(
                    darkest, qGray(whole.pixel(static_cast<int>(vertex.x()) + dx, static_cast<int>(vertex.y()) + dy)));
            }
        }
        QVERIFY(darkest < 128);
    }
}

void PlanckianLocusTest::colorTemperatureDots_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<int>("half");
    QTest::newRow("49, no dots") << 49 << 0 << 0;
    QTest::newRow("50") << 50 << 1 << 0;
    QTest::newRow("99") << 99 << 1 << 0;
    QTest::newRow("100") << 100 << 2 << 1;
    QTest::newRow("799") << 799 << 15 << 7;
    QTest::newRow("800") << 800 << 16 << 8;
}

void PlanckianLocusTest::colorTemperatureDots()
{
    QFETCH(int, height);
    QFETCH(int, diameter);
    QFETCH(int, half);
    const QList<QPointF> points{{0.3127, 0.3290}, {0.6, 0.6}, {-0.01, 0.9}};
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(250, 240, 10), QColor(90, 100, 110));
    const QImage without = skippedPicture(renderer, 300, height);
    simplePicture(renderer, 20, 20, points);
    const QImage with = skippedPicture(renderer, 300, height);
    const double spanX = 300 * 95 / 100 - 300 * 5 / 100;
    const double spanY = height * 95 / 100 - height * 5 / 100;
    const QImage expected = painted(without, [&](QPainter &painter) {
        painter.setBrush(QColor(250, 240, 10));
        for (const QPointF &xy : points) {
            const double x = 4 + (300 * 5 / 100 + 0.5) + xy.x() * (spanX / static_cast<double>(0.84F));
            const double y = (height * 5 / 100 + 0.5)
                - (xy.y() - static_cast<double>(0.94F)) * (spanY / static_cast<double>(0.94F));
            painter.drawEllipse(QRectF(x - half, y - half, diameter, diameter));
        }
    });
    QCOMPARE(reference::firstDifference(with, without).isEmpty(), diameter == 0);
    QCOMPARE(reference::firstDifference(with, expected), QString());
}

void PlanckianLocusTest::colorTemperaturePointOnTheLocus()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::white);
    simplePicture(renderer, 20, 20, {{0.314, 0.324}});
    const QImage picture = skippedPicture(renderer, 800, 800);
    // The dot is centred on the locus' vertex of 6500 K: filled for less than its radius all around.
    const QPointF vertex(44.5 + 0.314 * (720 / static_cast<double>(0.84F)),
        40.5 + (static_cast<double>(0.94F) - 0.324) * (720 / static_cast<double>(0.94F)));
    for (const QPointF &step : {QPointF(0, 0), QPointF(6, 0), QPointF(-6, 0), QPointF(0, 6), QPointF(0, -6)}) {
        const QPointF point = vertex + step;
        QCOMPARE(picture.pixel(static_cast<int>(point.x()), static_cast<int>(point.y())), qRgb(0, 255, 0));
    }
    for (const QPointF &step : {QPointF(0, 10), QPointF(0, -10)}) {
        const QPointF point = vertex + step;
        QVERIFY(picture.pixel(static_cast<int>(point.x()), static_cast<int>(point.y())) != qRgb(0, 255, 0));
    }
}

CEIECHART_PICTURE_TEST_MAIN(PlanckianLocusTest)
#include "planckianlocustest.moc"
