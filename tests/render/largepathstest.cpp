// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/largepaths_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtTest>

#include <random>

/*! Large outlines and fills against the painter calls that they stand for. */
class LargePathsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void samePixels_data();
    void samePixels();
};

namespace {

QPolygonF randomPolygon(std::mt19937 &random, const QSize &size, int corners)
{
    const auto coordinate = [&](int extent) { return double(int(random() % unsigned(2 * extent)) - extent / 2); };
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        polygon.append(QPointF(coordinate(size.width()), coordinate(size.height())));
    }
    return polygon;
}

} // namespace

void LargePathsTest::samePixels_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QColor>("color");
    const QSize tall(600, 2600);
    QTest::newRow("translucent, premultiplied")
        << tall << QImage::Format_ARGB32_Premultiplied << QColor(255, 255, 255, 51);
    QTest::newRow("opaque, premultiplied") << tall << QImage::Format_ARGB32_Premultiplied << QColor(9, 200, 90);
    QTest::newRow("opaque, straight") << tall << QImage::Format_ARGB32 << QColor(9, 200, 90);
    QTest::newRow("invalid colour") << tall << QImage::Format_ARGB32_Premultiplied << QColor();
    QTest::newRow("narrower than the teeth") << QSize(90, 2100) << QImage::Format_RGB32 << QColor(255, 163, 56, 17);
    for (const int height : {320, 340, 460, 640, 660, 1290, 1310, 1690, 1710}) {
        QTest::addRow("%d rows", height) << QSize(1600, height) << QImage::Format_ARGB32_Premultiplied
                                         << QColor(22, 241, 255, 120);
    }
    QTest::newRow("small") << QSize(400, 400) << QImage::Format_ARGB32_Premultiplied << QColor(255, 163, 56, 80);
}

void LargePathsTest::samePixels()
{
    QFETCH(QSize, size);
    QFETCH(QImage::Format, format);
    QFETCH(QColor, color);
    std::mt19937 random(11);
    for (int i = 0; i < 24; ++i) {
        const QPolygonF polygon = randomPolygon(random, size, i % 4 == 3 ? 5 : 3);
        QPainterPath path;
        path.addPolygon(polygon);
        const QPen pen(QBrush(color), i % 5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        const bool antialiased = i % 6 != 5;
        const QBrush brush = i % 7 == 6 ? QBrush(QColor(30, 60, 90, 100)) : QBrush(Qt::NoBrush);

        QImage expected(size, format);
        expected.fill(QColor(23, 23, 26));
        QImage actual = expected;
        {
            QPainter painter(&expected);
            painter.setRenderHint(QPainter::Antialiasing, antialiased);
            painter.setPen(pen);
            painter.setBrush(brush);
            painter.drawPolygon(polygon, Qt::OddEvenFill);
            painter.fillPath(path, QColor(255, 255, 255, 18));
        }
        {
            QPainter painter(&actual);
            painter.setRenderHint(QPainter::Antialiasing, antialiased);
            painter.setPen(pen);
            painter.setBrush(brush);
            ceiechart::RowLayers layers;
            ceiechart::drawPolygonOutline(layers, painter, polygon);
            ceiechart::fillLargePath(layers, painter, path, QColor(255, 255, 255, 18));
            layers.draw();
        }
        QVERIFY2(actual == expected, qPrintable(QStringLiteral("polygon %1").arg(i)));
    }
}

QTEST_MAIN(LargePathsTest)

#include "largepathstest.moc"
