// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "hostcharts.h"
#include <reference/picturedifference.h>

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPalette>
#include <QTest>

#include <cmath>

using namespace hostcharts;

class ChartGroundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messageIsLegible_data();
    void messageIsLegible();
    void messageIsLegibleOverDiscs_data();
    void messageIsLegibleOverDiscs();
    void messageWithAnotherEffect();
    void messageInTheColorOfAStyleSheet();
    void lightPictureIsLegible_data();
    void lightPictureIsLegible();
    void outlinesAreLegible();
    void lightColorOfTheHostIsTheGround();
    void backAsItWas_data() { lightPictureIsLegible_data(); }
    void backAsItWas();
    void paletteIsFollowed_data() { lightPictureIsLegible_data(); }
    void paletteIsFollowed();
    void innerViewOfALegacyChart();
};

namespace {

// WCAG 2.1, relative luminance and contrast ratio.
double luminance(QRgb pixel)
{
    const auto linear = [](int component) {
        const double c = component / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) + 0.0722 * linear(qBlue(pixel));
}

double contrast(QRgb a, QRgb b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

//! The greatest contrast of a pixel in \a area with \a ground.
double greatestContrast(const QImage &picture, const QRect &area, QRgb ground)
{
    double greatest = 1.0;
    const QRect within = area.intersected(picture.rect());
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            greatest = std::max(greatest, contrast(picture.pixel(x, y), ground));
        }
    }
    return greatest;
}

QLabel *messageOf(const Current &chart)
{
    return chart.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

QPalette paletteOf(bool light)
{
    return light ? QPalette(QColor(239, 239, 239)) : QPalette(QColor(40, 40, 45));
}

std::unique_ptr<ceiechart::ChartFrame> chartOf(const QString &kind)
{
    if (kind == QLatin1String("current")) {
        auto chart = currentChart();
        chart->setImageSize(QSize(672, 728));
        setGamuts(*chart);
        return chart;
    }
    auto chart = legacyChart(kind == QLatin1String("u', v'") ? DrawCEIPicture::UvDiagram : DrawCEIPicture::XyDiagram);
    chart->setImageSize(QSize(640, 640));
    setGamuts(*chart);
    return chart;
}

} // namespace

void ChartGroundTest::messageIsLegible_data()
{
    QTest::addColumn<bool>("lightPalette");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<bool>("lightPicture");
    for (const bool light : {false, true}) {
        const QByteArray palette = light ? "light palette, " : "dark palette, ";
        QTest::newRow(palette + "default ground") << light << QColor() << false;
        QTest::newRow(palette + "white ground") << light << QColor(Qt::white) << false;
        QTest::newRow(palette + "grey ground") << light << QColor(117, 117, 117) << false;
        QTest::newRow(palette + "blue ground") << light << QColor(0, 0, 160) << false;
        QTest::newRow(palette + "transparent ground") << light << QColor(0, 0, 0, 0) << false;
        QTest::newRow(palette + "half black ground") << light << QColor(0, 0, 0, 200) << false;
        QTest::newRow(palette + "light picture") << light << QColor() << true;
    }
}

void ChartGroundTest::messageIsLegible()
{
    QFETCH(bool, lightPalette);
    QFETCH(QColor, ground);
    QFETCH(bool, lightPicture);
    const auto chart = currentChart();
    chart->setPalette(paletteOf(lightPalette));
    chart->setIsDrawCoordinate(false);
    chart->setImageSize(QSize(672, 728));
    chart->setLightPicture(lightPicture);
    if (ground.isValid()) {
        chart->setGraphColor(Qt::white, ground);
    }
    chart->show();
    settle();
    chart->updateLanGamut(true, QStringLiteral("No measurement yet"));
    settle();
    QLabel *label = messageOf(*chart);
    QVERIFY(label->isVisible());
    // Where the picture has nothing but its ground.
    label->setFixedSize(200, 150);
    label->move(440, 30);
    const QImage picture = chart->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb behind = picture.pixel(label->geometry().bottomRight());
    const double reached = greatestContrast(picture, label->geometry(), behind);
    QVERIFY2(reached >= 4.5, qPrintable(QStringLiteral("%1 on %2").arg(reached).arg(behind, 0, 16)));
}

void ChartGroundTest::messageIsLegibleOverDiscs_data()
{
    QTest::addColumn<bool>("light");
    QTest::newRow("white disc on dark ground") << false;
    QTest::newRow("black disc on light ground") << true;
}

// A disc of the text's own colour is in the middle of the message.
void ChartGroundTest::messageIsLegibleOverDiscs()
{
    QFETCH(bool, light);
    const auto chart = currentChart();
    chart->setImageSize(QSize(672, 728));
    chart->setLightPicture(light);
    chart->show();
    settle();
    const QString message = QStringLiteral("M ").repeated(600);
    chart->updateLanGamut(true, message);
    const QPoint middle = messageOf(*chart)->geometry().center();
    // Cyan, magenta, yellow and black, one over the other.
    const QPointF xy = *chart->chromaticityInView(middle);
    if (light) {
        chart->setCMYPointData({QPointF(0.6, 0.1), QPointF(0.6, 0.1), QPointF(0.6, 0.1), xy});
        chart->updateLanGamut(true, message);
    } else {
        using Model::Target;
        chart->setColorGamut(Model::ColorGamut("target",
                                 {Target::fromYxy(1, 0.64, 0.33), Target::fromYxy(1, 0.3, 0.6),
                                     Target::fromYxy(1, 0.15, 0.06), Target::fromYxy(3, xy.x(), xy.y())}),
            wall(), {});
        chart->updateLanGamut(true, message);
    }
    settle();
    const QRect disc(middle - QPoint(4, 4), QSize(9, 9));
    const QRgb ink = light ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
    const QImage without = chart->toImage();
    QVERIFY(contrast(without.pixel(without.width() / 2, without.height() / 2), ink) < 1.3);
    const QImage picture = chart->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QVERIFY(greatestContrast(picture, disc, ink) >= 4.5);
}

// A host finds the label among the children of the chart.
void ChartGroundTest::messageWithAnotherEffect()
{
    const auto chart = currentChart();
    chart->setImageSize(QSize(300, 300));
    chart->show();
    chart->updateLanGamut(true, QStringLiteral("No measurement yet"));
    for (QGraphicsEffect *effect : std::initializer_list<QGraphicsEffect *>{new QGraphicsDropShadowEffect, nullptr}) {
        messageOf(*chart)->setGraphicsEffect(effect);
        chart->setLightPicture(effect != nullptr);
        chart->updateLanGamut(true, QStringLiteral("Still none"));
        QVERIFY(!chart->grab().isNull());
        QCOMPARE(messageOf(*chart)->graphicsEffect(), effect);
    }
}

void ChartGroundTest::messageInTheColorOfAStyleSheet()
{
    const auto chart = currentChart();
    chart->setStyleSheet(QStringLiteral("QLabel { color: rgb(250, 0, 250); font-size: 24px }"));
    chart->setImageSize(QSize(600, 600));
    chart->show();
    chart->updateLanGamut(true, QStringLiteral("No measurement yet"));
    settle();
    const QImage picture = chart->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect area = messageOf(*chart)->geometry();
    int inColor = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            inColor += picture.pixel(x, y) == qRgb(250, 0, 250);
        }
    }
    QVERIFY2(inColor > 20, qPrintable(QString::number(inColor)));
}

void ChartGroundTest::lightPictureIsLegible_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

// The axes with their numbers, the locus edge and the wavelengths.
void ChartGroundTest::lightPictureIsLegible()
{
    QFETCH(QString, kind);
    const auto chart = chartOf(kind);
    chart->setLightPicture(true);
    const QImage picture = chart->toImage();
    const QRgb ground = picture.pixel(1, 1);
    QVERIFY(luminance(ground) > 0.9);
    QCOMPARE(picture.pixel(picture.width() - 2, 1), ground);

    const auto near = [&](const QPointF &xy, int reach) {
        const QPoint middle = chart->picturePosition(xy)->toPoint();
        return QRect(middle - QPoint(reach, reach), middle + QPoint(reach, reach));
    };
    // In the middle of the first axis, left of the second one, and at the locus edge.
    const QPointF origin = *chart->picturePosition(QPointF(0, 0));
    const QRect below(origin.toPoint() + QPoint(5, 3), QSize(picture.width() / 2, 30));
    QVERIFY(greatestContrast(picture, below, ground) >= 4.5);
    const QRect beside(QPoint(0, picture.height() / 3), QPoint(int(origin.x()) - 3, int(origin.y()) - 5));
    QVERIFY(greatestContrast(picture, beside, ground) >= 4.5);
    const QPointF edge(0.0139, 0.7502); // 515 nm
    if (kind != QLatin1String("u', v'")) {
        QVERIFY(greatestContrast(picture, near(edge, 4), ground) >= 4.5);
        // The numbers of the wavelengths, beyond the locus between 520 and 540 nm
        const QPoint peak = chart->picturePosition(QPointF(0.14, 0.84))->toPoint();
        QVERIFY(greatestContrast(picture, QRect(peak - QPoint(45, 20), QSize(100, 40)), ground) >= 4.5);
    }
}

// Each gamut that is drawn as an outline: that of the display and the standards too, which are faint on dark ground.
void ChartGroundTest::outlinesAreLegible()
{
    const auto chart = currentChart();
    chart->setIsDrawCoordinate(false);
    chart->setIsShowActual(false); // no colours of the horseshoe, which no line of one colour stands out from
    chart->setImageSize(QSize(672, 728));
    setGamuts(*chart);
    chart->setLightPicture(true);
    const QImage picture = chart->toImage();
    const QRgb ground = picture.pixel(1, 1);
    for (const Model::ColorGamut &gamut : {Model::rec709(), wall(), Model::rec2020(), Model::dciP3D65()}) {
        const Model::Targets &targets = gamut.getTargets();
        const QPointF red = *chart->picturePosition(QPointF(targets.red.x, targets.red.y));
        const QPointF green = *chart->picturePosition(QPointF(targets.green.x, targets.green.y));
        for (const double along : {0.3, 0.5, 0.8}) {
            const QPoint at = (red + along * (green - red)).toPoint();
            const double reached = greatestContrast(picture, QRect(at - QPoint(2, 2), QSize(5, 5)), ground);
            QVERIFY2(reached >= 2.9,
                qPrintable(QStringLiteral("%1: %2").arg(QString::fromStdString(gamut.colorGamutName())).arg(reached)));
        }
    }
    // The list has the colours that it has always had.
    QCOMPARE(chart->lsColorTriangleObject()[0].foreColor(), QColor(22, 241, 255));
}

void ChartGroundTest::lightColorOfTheHostIsTheGround()
{
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        const auto chart = chartOf(QString::fromLatin1(kind));
        chart->setLightPicture(true);
        chart->setGraphPictureColor(QColor(255, 250, 220));
        QCOMPARE(chart->toImage().pixelColor(1, 1), QColor(255, 250, 220));
        // A dark or a translucent one is not.
        for (const QColor &unfit : {QColor(0, 0, 90), QColor(255, 250, 220, 100)}) {
            chart->setGraphPictureColor(unfit);
            QVERIFY(luminance(chart->toImage().pixel(1, 1)) > 0.9);
        }
    }
}

void ChartGroundTest::backAsItWas()
{
    QFETCH(QString, kind);
    const auto chart = chartOf(kind);
    QVERIFY(!chart->isLightPicture());
    const QImage before = chart->toImage();
    chart->setLightPicture(true);
    QVERIFY(chart->isLightPicture());
    QVERIFY(chart->toImage() != before);
    chart->setLightPicture(false);
    const QString difference = reference::firstDifference(chart->toImage(), before);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void ChartGroundTest::paletteIsFollowed()
{
    QFETCH(QString, kind);
    const auto chart = chartOf(kind);
    const QImage dark = chart->toImage();
    chart->setPalette(paletteOf(true));
    QCOMPARE(chart->toImage(), dark); // not switched on
    chart->setPaletteFollowed(true);
    const QImage light = chart->toImage();
    QVERIFY(light != dark);
    chart->setPalette(paletteOf(false));
    QCOMPARE(chart->toImage(), dark);
    chart->setPalette(paletteOf(true));
    QCOMPARE(chart->toImage(), light);
    // The other switch waits.
    chart->setPalette(paletteOf(false));
    chart->setLightPicture(true);
    QCOMPARE(chart->toImage(), dark);
    chart->setPaletteFollowed(false);
    QCOMPARE(chart->toImage(), light);
    chart->setPalette(paletteOf(true));
    chart->setLightPicture(false);
    QCOMPARE(chart->toImage(), dark);

    // The palette of the application, too.
    const QPalette usual = QApplication::palette();
    chart->setPalette(QPalette());
    chart->setPaletteFollowed(true);
    for (const bool lightPalette : {false, true, false}) {
        QApplication::setPalette(paletteOf(lightPalette));
        settle();
        QCOMPARE(chart->toImage(), lightPalette ? light : dark);
    }
    QApplication::setPalette(usual);
}

void ChartGroundTest::innerViewOfALegacyChart()
{
    const auto chart = legacyChart(DrawCEIPicture::XyDiagram);
    chart->setImageSize(QSize(200, 200));
    QCOMPARE(chart->view()->styleSheet(), QStringLiteral("background: #323238"));
    chart->setLightPicture(true);
    QCOMPARE(chart->view()->styleSheet(), QStringLiteral("background: ") + chart->toImage().pixelColor(1, 1).name());
    chart->setLightPicture(false);
    QCOMPARE(chart->view()->styleSheet(), QStringLiteral("background: #323238"));
    chart->view()->setStyleSheet(QStringLiteral("background: red"));
    chart->setLightPicture(true);
    QCOMPARE(chart->view()->styleSheet(), QStringLiteral("background: red"));
}

QTEST_MAIN(ChartGroundTest)
#include "chartgroundtest.moc"
