// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <reference/rendererstate.h>

#include <QFontMetrics>
#include <QTextOption>

#include <cmath>

class WavelengthsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ticks_data();
    void ticks();
    void halfLengthTicks();
    void tickAt420UsesThePointBefore();
    void zeroChordDrawsNoTick();
    void annotation_data();
    void annotation();
};

void WavelengthsTest::ticks_data()
{
    QTest::addColumn<int>("wavelength");
    QTest::addColumn<bool>("ticked");
    for (const int bare :
        {415, 419, 425, 430, 435, 440, 445, 451, 454, 456, 632, 635, 640, 650, 660, 670, 675, 685, 690}) {
        QTest::addRow("%d nm", bare) << bare << false;
    }
    QTest::newRow("420 nm") << 420 << true;
    for (int wavelength = 450; wavelength <= 630; wavelength += 5) {
        QTest::addRow("%d nm", wavelength) << wavelength << true;
    }
    QTest::newRow("680 nm") << 680 << true;
}

// Large, so that neighbouring wavelengths are pixels apart, and without the edge.
void WavelengthsTest::ticks()
{
    QFETCH(int, wavelength);
    QFETCH(bool, ticked);
    static QImage picture;
    static Renderer renderer(nullptr);
    if (picture.isNull()) {
        renderer.setGraphColor(Qt::white, Qt::black);
        picture = skippedPicture(renderer, 4000, 4000);
    }
    const int level = qGray(picture.pixel(exactPixel(renderer, wavelength).toPoint()));
    if (ticked) {
        QVERIFY2(brightestNear(picture, exactPixel(renderer, wavelength)) > thinLine, "no tick");
    } else {
        QCOMPARE(level, 0);
    }
}

void WavelengthsTest::halfLengthTicks()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = skippedPicture(renderer, 4000, 4000);
    for (int wavelength = 455; wavelength < 630; wavelength += 5) {
        const QPointF here = chromaticityOf(wavelength);
        const QPointF chord = here - chromaticityOf(wavelength - 1);
        const double length = std::hypot(chord.x(), chord.y());
        const QPointF outward(-chord.y() / length, chord.x() / length);
        const auto along
            = [&](double fraction) { return renderer.CoordinateTransformation(here + fraction * 0.0168 * outward); };
        QVERIFY(brightestNear(picture, along(0.25)) > thinLine);
        QVERIFY(brightestNear(picture, along(0.45)) > thinLine);
        if (wavelength % 10 == 0) {
            QVERIFY(brightestNear(picture, along(0.75)) > thinLine);
        } else {
            QCOMPARE(brightestNear(picture, along(0.75)), 0);
            // 8.5 pixels wide at this height
            const QPointF side = QPointF(chord.x(), -chord.y()) / length;
            QCOMPARE(brightestNear(picture, along(0.25) + 2.5 * side), 255);
            QCOMPARE(brightestNear(picture, along(0.25) - 2.5 * side), 255);
            QCOMPARE(brightestNear(picture, along(0.25) + 7.5 * side), 0);
            QCOMPARE(brightestNear(picture, along(0.25) - 7.5 * side), 0);
        }
        QCOMPARE(brightestNear(picture, along(-0.25)), 0);
    }
}

void WavelengthsTest::tickAt420UsesThePointBefore()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = skippedPicture(renderer, 4000, 4000);
    const QPointF here = chromaticityOf(420);
    const QPointF chord = here - chromaticityOf(419);
    const double length = std::hypot(chord.x(), chord.y());
    const QPointF outward(-chord.y() / length, chord.x() / length);
    for (const double fraction : {0.2, 0.4, 0.6, 0.8}) {
        QVERIFY(
            brightestNear(picture, renderer.CoordinateTransformation(here + fraction * 0.0168 * outward)) > thinLine);
    }
}

void WavelengthsTest::zeroChordDrawsNoTick()
{
    Renderer renderer(nullptr);
    std::unique_ptr<QImage>(renderer.drawCEIPicture(200, 200, false, {}, {}, QPolygonF(), false, QString()));
    QImage picture(200, 200, QImage::Format_ARGB32);
    picture.fill(Qt::black);
    const QImage before = picture;
    {
        QPainter painter(&picture);
        const CEIAtlasValue::CEIAtlasCoordinate row = CEIAtlasValue().atlasCoordinates.at(500 - 360);
        renderer.GetPointF(row);
        reference::startTickAtCurrentPoint(renderer);
        renderer.DrawEdgeCoordinates(painter, row);
    }
    QVERIFY(picture == before);
}

void WavelengthsTest::annotation_data()
{
    QTest::addColumn<QPoint>("direction");
    QTest::addColumn<double>("widths");
    QTest::addColumn<double>("heights");
    QTest::newRow("right") << QPoint(20, 0) << 0.0 << 0.5;
    QTest::newRow("right, a little down") << QPoint(20, 3) << 0.0 << 0.5;
    QTest::newRow("right, a little up") << QPoint(20, -3) << 0.0 << 0.5;
    QTest::newRow("right up") << QPoint(20, -20) << 0.0 << 1.0;
    QTest::newRow("up") << QPoint(0, -20) << 0.5 << 1.0;
    QTest::newRow("left up") << QPoint(-20, -20) << 1.0 << 1.0;
    QTest::newRow("left") << QPoint(-20, 0) << 1.0 << 0.5;
    QTest::newRow("left down") << QPoint(-20, 20) << 1.0 << 0.0;
    QTest::newRow("down") << QPoint(0, 20) << 0.5 << 0.0;
    QTest::newRow("right down") << QPoint(20, 20) << 0.0 << 0.0;
    // On either side of each half octant: the tangent of 22.5 degrees lies between 12/29 and 17/41.
    QTest::newRow("22.48 degrees") << QPoint(29, -12) << 0.0 << 0.5;
    QTest::newRow("22.52 degrees") << QPoint(41, -17) << 0.0 << 1.0;
    QTest::newRow("67.48 degrees") << QPoint(17, -41) << 0.0 << 1.0;
    QTest::newRow("67.52 degrees") << QPoint(12, -29) << 0.5 << 1.0;
    QTest::newRow("112.48 degrees") << QPoint(-12, -29) << 0.5 << 1.0;
    QTest::newRow("112.52 degrees") << QPoint(-17, -41) << 1.0 << 1.0;
    QTest::newRow("157.48 degrees") << QPoint(-41, -17) << 1.0 << 1.0;
    QTest::newRow("157.52 degrees") << QPoint(-29, -12) << 1.0 << 0.5;
    QTest::newRow("202.48 degrees") << QPoint(-29, 12) << 1.0 << 0.5;
    QTest::newRow("202.52 degrees") << QPoint(-41, 17) << 1.0 << 0.0;
    QTest::newRow("247.48 degrees") << QPoint(-17, 41) << 1.0 << 0.0;
    QTest::newRow("247.52 degrees") << QPoint(-12, 29) << 0.5 << 0.0;
    QTest::newRow("292.48 degrees") << QPoint(12, 29) << 0.5 << 0.0;
    QTest::newRow("292.52 degrees") << QPoint(17, 41) << 0.0 << 0.0;
    QTest::newRow("337.48 degrees") << QPoint(41, 17) << 0.0 << 0.0;
    QTest::newRow("337.52 degrees") << QPoint(29, 12) << 0.0 << 0.5;
    QTest::newRow("no length") << QPoint(0, 0) << 1.0 << 0.5;
}

void WavelengthsTest::annotation()
{
    QFETCH(QPoint, direction);
    QFETCH(double, widths);
    QFETCH(double, heights);
    const QPoint base(100, 90);
    const QPoint tip = base + direction;
    const QString text = QStringLiteral("520");
    QImage canvas(200, 180, QImage::Format_ARGB32);
    canvas.fill(Qt::black);

    Renderer renderer(nullptr);
    simplePicture(renderer, 800, 800);
    QImage picture = canvas.copy();
    QPainter painter(&picture);
    const QPen pen(Qt::red, 5.0, Qt::DotLine);
    painter.setPen(pen);
    const QFont font = painter.font();
    renderer.ShowAnnotation(painter, tip.x(), tip.y(), base.x(), base.y(), text);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.font(), font);
    QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    painter.end();

    const QFont labelFont(QStringLiteral("Arial"), 8);
    const QFontMetrics metrics(labelFont);
    const int w = metrics.horizontalAdvance(text);
    const int h = metrics.height();
    // Whole widths and heights, or halves truncated.
    const QPoint corner(tip.x() - (widths == 0.5 ? w / 2 : static_cast<int>(widths) * w),
        tip.y() - (heights == 0.5 ? h / 2 : static_cast<int>(heights) * h));
    const QImage expected = painted(canvas, [&](QPainter &plain) {
        plain.setPen(QColor(255, 255, 255));
        plain.setFont(labelFont);
        plain.drawLine(tip, base);
        plain.drawText(QRectF(QRect(corner, QSize(w, h))), text, QTextOption());
    });
    QCOMPARE(reference::firstDifference(picture, expected), QString());
}

CEIECHART_PICTURE_TEST_MAIN(WavelengthsTest)
#include "wavelengthstest.moc"
