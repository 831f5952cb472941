// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <diagram/diagramfile.h>
#include <diagram/fulldiagram.h>
#include <gamutmodel/publishedgamuts.h>

#include <QPainter>
#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace fulldiagram;

/*! The steps of painting, and what is left out of them. */
class DiagramPainterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colorSpacesAreClippedAtThePlot_data();
    void colorSpacesAreClippedAtThePlot();
    void layersCanBeSwitchedOff_data();
    void layersCanBeSwitchedOff();
    void targetsWithoutWhiteAreNotShown();
    void oddContentIsLeftOut();
    void changedContentIsAsPaintedAnew();
    void colorsArePaintedAsInTheirPicture_data();
    void colorsArePaintedAsInTheirPicture();
    void neededPartsAreAsInTheWhole_data();
    void neededPartsAreAsInTheWhole();
    void placesWithoutAnAreaStayEmpty();
};

void DiagramPainterTest::colorSpacesAreClippedAtThePlot_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 20.0}) {
            QTest::addRow("%s, %g", Model::diagramTraits(diagram).name, zoom) << int(diagram) << zoom;
        }
    }
}

// The blue primary of ACES2065-1 lies below the axis, and its green one at the top.
void DiagramPainterTest::colorSpacesAreClippedAtThePlot()
{
    QFETCH(int, diagram);
    QFETCH(double, zoom);
    const Model::ColorGamut space = Model::publishedGamut("ACES2065-1")->gamut;
    DiagramContent content = fullContent();
    content.layers.setFlag(DiagramLayer::Names, false);
    DiagramPainter painter;
    const QPointF blueEnd(0.17, 0.01);
    prepare(painter, content, Model::Diagram(diagram), QSizeF(500, 500), zoom, blueEnd);
    const QImage without = painted(painter);
    content.gamuts.append({space, GamutRole::Standard});
    content.gamuts.append({space, GamutRole::Declared});
    prepare(painter, content, Model::Diagram(diagram), QSizeF(500, 500), zoom, blueEnd);
    const QImage with = painted(painter);
    QVERIFY(with.size() == without.size());
    // Lines are cut at the plot; their width and their casing stand out of it.
    constexpr int lineWidth = 4;
    const QRect plot = painter.viewport().plot().toAlignedRect().adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
    int inside = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                QVERIFY2(plot.contains(x, y), qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
                ++inside;
            }
        }
    }
    QVERIFY(inside > 0 || zoom > 1.0);
    content.layers.setFlag(DiagramLayer::Names, true);
    painter.setContent(content);
    QVERIFY(!painted(painter).isNull());
    QVERIFY(hasNumbersOnly(svgOf(painter, QSize(500, 500))));
}

void DiagramPainterTest::layersCanBeSwitchedOff_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<double>("zoom");
    for (int bit = 0; bit < 21; ++bit) {
        const int layer = 1 << bit;
        const bool isClose = ShownLayers(layer) & (DiagramLayer::Rings | DiagramLayer::Trail | DiagramLayer::Whites);
        QTest::addRow("%x", layer) << layer << (isClose ? 20.0 : 1.0);
    }
}

void DiagramPainterTest::layersCanBeSwitchedOff()
{
    QFETCH(int, layer);
    QFETCH(double, zoom);
    DiagramContent content = fullContent();
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), zoom);
    const QImage with = painted(painter);
    content.layers.setFlag(DiagramLayer(layer), false);
    painter.setContent(content);
    const QImage without = painted(painter);
    QVERIFY(with != without);
    content.layers.setFlag(DiagramLayer(layer), true);
    painter.setContent(content);
    QCOMPARE(painted(painter), with);
}

void DiagramPainterTest::targetsWithoutWhiteAreNotShown()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const GamutRole role : allRoles) {
        for (const QPointF &white : {QPointF(nan, 0.3), QPointF(0.3, nan), QPointF(HUGE_VAL, 0.3)}) {
            DiagramContent content;
            content.layers &= ~(DiagramLayer::CommonArea | DiagramLayer::LostArea);
            const DiagramGamut odd{gamut("odd", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}, white), role};
            QCOMPARE(content.shows(odd), role != GamutRole::Target);
            DiagramPainter painter;
            prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
            const QImage before = painted(painter);
            content.gamuts.append(odd);
            painter.setContent(content);
            QCOMPARE(painted(painter) == before, role == GamutRole::Target);
        }
    }
}

void DiagramPainterTest::oddContentIsLeftOut()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QPointF odd(nan, 0.3);
    DiagramContent content = fullContent();
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1976, QSizeF(400, 400), 1.0);
    const QImage before = painted(painter);
    content.gamuts.append({gamut("odd", odd, {0.2, 0.7}, {0.1, 0.1}), GamutRole::Standard});
    content.measurePoints.append({odd, QStringLiteral("odd")});
    content.rings.append({odd});
    content.rings.append({d65, {-1.0, 0.0, nan}});
    painter.setContent(content);
    QCOMPARE(painted(painter), before);
    QVERIFY(painter.outline(int(content.gamuts.size()) - 1).isEmpty());

    // Corners on a line, all in one point, and far beyond.
    content.gamuts = {{gamut("line", {0.1, 0.1}, {0.2, 0.2}, {0.3, 0.3}), GamutRole::Target},
        {gamut("point", d65, d65, d65), GamutRole::Original},
        {gamut("far", {1e9, 0.1}, {0.2, 1e9}, {-1e9, 0.3}), GamutRole::Measured},
        {gamut("pole", {1.5, 0.0}, {0.2, 0.7}, {0.1, 0.1}), GamutRole::Declared}};
    content.trail = {odd, d65};
    painter.setContent(content);
    QVERIFY(!painted(painter).isNull());
    QVERIFY(hasNumbersOnly(svgOf(painter, QSize(400, 400))));
}

void DiagramPainterTest::changedContentIsAsPaintedAnew()
{
    DiagramPainter kept;
    QVector<DiagramContent> contents(6, fullContent());
    contents[1].ground = DiagramGround::Dark;
    contents[2].ground = DiagramGround::Dark;
    contents[2].colors = HorseshoeColors::None;
    contents[3].layers.setFlag(DiagramLayer::Colors, false);
    contents[4].gamuts.removeLast();
    contents[5].rings.clear();
    for (const double zoom : {1.0, 30.0}) {
        for (const DiagramContent &content : contents) {
            prepare(kept, content, Model::Diagram::Cie1931, QSizeF(420, 380), zoom);
            DiagramPainter anew;
            prepare(anew, content, Model::Diagram::Cie1931, QSizeF(420, 380), zoom);
            QCOMPARE(painted(kept, 1.5), painted(anew, 1.5));
        }
    }
}

void DiagramPainterTest::colorsArePaintedAsInTheirPicture_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

void DiagramPainterTest::colorsArePaintedAsInTheirPicture()
{
    QFETCH(double, ratio);
    DiagramPainter painter;
    DiagramContent content = fullContent();
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(222, 197), 1.0);
    std::mt19937 random(5);
    const auto within
        = [&random](double least, double most) { return std::uniform_real_distribution<double>(least, most)(random); };
    for (int step = 0; step < 150; ++step) {
        DiagramViewport viewport = painter.viewport();
        switch (random() % 6) {
        case 0:
        case 1:
            viewport = viewport.zoomed(within(0.5, 2.0), viewport.plot().center());
            break;
        case 2:
            viewport = viewport.panned(QPointF(int(random() % 40), int(random() % 40)) / ratio);
            break;
        case 3:
            content.gamuts[2].gamut = gamut("t", {0.68, 0.32}, {within(0.1, 0.3), 0.69}, {0.15, 0.06});
            break;
        case 4:
            content.colors = HorseshoeColors(random() % 3);
            break;
        default:
            break; // the same again
        }
        painter.setContent(content);
        painter.setViewport(viewport);
        DiagramPainter anew;
        anew.setContent(content);
        anew.setViewport(viewport);
        const QImage &expected = anew.colors(ratio);
        if (random() % 4 == 0) {
            QCOMPARE(painter.colors(ratio), expected);
        } else {
            QImage image(expected.size(), QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::magenta);
            {
                QPainter onto(&image);
                painter.paintColors(&onto, ratio);
            }
            QVERIFY2(image == expected, qPrintable(QString::number(step)));
        }
    }
}

void DiagramPainterTest::neededPartsAreAsInTheWhole_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("ratio");
    for (const double zoom : {1.0, 4.0, 60.0}) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            QTest::addRow("%g %g", zoom, ratio) << zoom << ratio;
        }
    }
}

void DiagramPainterTest::neededPartsAreAsInTheWhole()
{
    QFETCH(double, zoom);
    QFETCH(double, ratio);
    const QSize size(420, 380);
    DiagramPainter painter;
    prepare(painter, fullContent(), Model::Diagram::Cie1931, size, zoom);
    QImage before = painter.colors(ratio);
    {
        QPainter onto(&before);
        painter.paintScale(&onto);
        painter.paintGamuts(&onto);
    }
    std::mt19937 random(12);
    int differing = 0;
    for (int round = 0; round < 60; ++round) {
        QRegion needed;
        for (unsigned count = 1 + random() % 4; count > 0; --count) {
            const QPoint corner(int(random() % unsigned(size.width())), int(random() % unsigned(size.height())));
            needed += QRect(corner, QSize(1 + int(random() % 60), 1 + int(random() % 60)));
        }
        needed &= QRect(QPoint(), size);
        // A clip cuts lines, which may round them otherwise than in the whole picture: it is the same for both.
        const auto paintedOn = [&](QImage image, const QRegion &asked) {
            QPainter onto(&image);
            onto.setClipRegion(needed);
            painter.paintEdited(&onto, asked);
            return image;
        };
        const QImage actual = paintedOn(before, needed);
        const QImage expected = paintedOn(before, QRegion());
        QCOMPARE(actual, expected);
        differing += actual != before ? 1 : 0;
    }
    QVERIFY2(differing > 30, qPrintable(QString::number(differing)));
}

void DiagramPainterTest::placesWithoutAnAreaStayEmpty()
{
    DiagramPainter painter;
    for (const QSizeF &size :
        {QSizeF(0.0, 50.0), QSizeF(50.0, -5.0), QSizeF(50.0, -2147483648.0), QSizeF(-1.0, -1.0)}) {
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QImage before = image.copy();
        QPainter onImage(&image);
        painter.paint(&onImage, QRectF(QPointF(30.0, 30.0), size));
        onImage.end();
        QCOMPARE(image, before);
    }
}

QTEST_MAIN(DiagramPainterTest)

#include "diagrampaintertest.moc"
