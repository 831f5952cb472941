// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <diagram/diagramfile.h>
#include <diagram/fulldiagram.h>

#include <QPainter>
#include <QScopeGuard>
#include <QSvgRenderer>
#include <QtTest>

#include <cmath>

using namespace fulldiagram;

/*! A diagram on paper, in files and on odd pictures. */
class DiagramDevicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coarseDevicesAreNoFault();
    void svgLooksTheSame_data();
    void svgLooksTheSame();
    void svgHasNothingThatFilesDoNotTake();
    void paintStaysInItsPlace();
    void largePicturesAreAsSharpAsOthers();
    void devicesOfHighResolution();
    void textsAreAsLargeAsTheDeviceHasThem();
};

void DiagramDevicesTest::coarseDevicesAreNoFault()
{
    // A pixel is as wide as many logical ones.
    for (const double ratio : {1e-3, 1e-9}) {
        DiagramPainter painter;
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(QColor(1, 2, 3));
        {
            QPainter onto(&image);
            onto.scale(ratio, ratio);
            painter.paint(&onto, QRectF(0, 0, image.width() / ratio, image.height() / ratio));
        }
        QVERIFY(countOf(image, QColor(1, 2, 3), 1) == 0);
        int colored = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colored += image.pixelColor(x, y).saturation() > 60 ? 1 : 0;
            }
        }
        QVERIFY2(colored > 1000, qPrintable(QString::number(colored)));
    }
    // Most of the place is beyond the picture.
    for (const double ratio : {1e-9, 1e-300}) {
        DiagramPainter painter;
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
        QImage image(100, 100, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter onto(&image);
        painter.paint(&onto, QRectF(0, 0, image.width() / ratio, image.height() / ratio));
    }
}

void DiagramDevicesTest::svgLooksTheSame_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 20.0, 300.0}) {
            QTest::addRow("%s %g", Model::diagramTraits(diagram).xName, zoom) << int(diagram) << zoom;
        }
    }
}

void DiagramDevicesTest::svgLooksTheSame()
{
    QFETCH(int, diagram);
    QFETCH(double, zoom);
    const QSize size(600, 500);
    DiagramContent content = fullContent();
    // Texts differ by the hinting of their glyphs, and so may their places.
    content.layers &= ~(DiagramLayer::Axes | DiagramLayer::Names | DiagramLayer::Wavelengths | DiagramLayer::Isotherms
        | DiagramLayer::Rings);
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram(diagram), size, zoom);
    QSvgRenderer renderer(svgOf(painter, size));
    QVERIFY(renderer.isValid());
    QImage svg(size, QImage::Format_RGB32);
    QImage raster(size, QImage::Format_RGB32);
    {
        QPainter onto(&svg);
        renderer.render(&onto);
    }
    {
        QPainter onto(&raster);
        painter.paint(&onto, QRectF(QPointF(), size));
    }
    int differing = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QColor a = svg.pixelColor(x, y);
            const QColor b = raster.pixelColor(x, y);
            differing
                += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) > 90
                ? 1
                : 0;
        }
    }
    const double share = double(differing) / (size.width() * size.height());
    QVERIFY2(share < 0.012, qPrintable(QString::number(share)));
}

void DiagramDevicesTest::svgHasNothingThatFilesDoNotTake()
{
    DiagramPainter painter;
    prepare(painter, fullContent(), Model::Diagram::Cie1976, QSizeF(700, 600), 60.0);
    const QByteArray svg = svgOf(painter, QSize(700, 600));
    QCOMPARE(svg.count("<image"), 1);
    QVERIFY(!svg.contains("clip-path") && !svg.contains("<mask") && !svg.contains("pattern"));
    // Rings whole in view are circles, with equal radii.
    QVERIFY(svg.contains("<circle") || svg.contains("<ellipse"));
    QVERIFY(svg.contains("<text"));
    QVERIFY(hasNumbersOnly(svg));

    DiagramContent content = fullContent();
    content.colors = HorseshoeColors::None;
    painter.setContent(content);
    QVERIFY(!svgOf(painter, QSize(700, 600)).contains("<image"));
}

void DiagramDevicesTest::paintStaysInItsPlace()
{
    const QRect place(60, 40, 300, 260);
    DiagramPainter painter;
    for (const double zoom : {1.0, 30.0, 2000.0}) {
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(800, 800), zoom);
        QImage image(420, 340, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        {
            QPainter onto(&image);
            painter.paint(&onto, place);
        }
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (!place.adjusted(-3, -3, 3, 3).contains(x, y)) {
                    QCOMPARE(image.pixelColor(x, y), QColor(Qt::magenta));
                }
            }
        }
        QVERIFY(image.pixelColor(place.topLeft() + QPoint(3, 3)) != QColor(Qt::magenta));
        QVERIFY(image.pixelColor(place.bottomRight() - QPoint(3, 3)) != QColor(Qt::magenta));
    }
}

void DiagramDevicesTest::largePicturesAreAsSharpAsOthers()
{
    // The edge of the horseshoe at 570 nm on a picture that would take 256 MB, and as a small view shows it.
    const QPointF edge(0.4441, 0.5547);
    const QSize size(300, 200);
    const QSize sizeOfLarge(8000, 8000);
    DiagramContent content;
    content.layers = DiagramLayer::Colors;
    DiagramPainter large;
    prepare(large, content, Model::Diagram::Cie1931, sizeOfLarge, 1.0);
    const QPoint topLeft = large.viewport().toPosition(edge).toPoint() - QPoint(size.width() / 2, size.height() / 2);
    QImage image(size, QImage::Format_RGB32);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    QPainter onto(&image);
    large.paint(&onto, QRect(-topLeft, sizeOfLarge));
    onto.end();

    DiagramPainter small;
    prepare(small, content, Model::Diagram::Cie1931, size, 1.0);
    const QPointF middle = large.viewport().toChromaticity(QRectF(topLeft, size).center());
    small.setViewport(small.viewport().centredOn(middle, large.viewport().scale() / small.viewport().scale()));
    const QImage &expected = small.colors(1.0);
    QVERIFY(countOf(expected, diagramPalette(content.ground).ground) > 1000); // so that there is an edge
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QColor a = image.pixelColor(x, y);
            const QColor b = expected.pixelColor(x, y);
            QVERIFY(std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1
                && std::abs(a.blue() - b.blue()) <= 1);
        }
    }
}

void DiagramDevicesTest::devicesOfHighResolution()
{
    // As paper at three times the resolution: the same picture, three times as fine.
    QImage screen(400, 360, QImage::Format_RGB32);
    screen.setDotsPerMeterX(3780);
    screen.setDotsPerMeterY(3780);
    QImage paper(1200, 1080, QImage::Format_RGB32);
    paper.setDotsPerMeterX(3 * 3780);
    paper.setDotsPerMeterY(3 * 3780);
    DiagramContent content = fullContent();
    content.layers &= ~(DiagramLayer::Names | DiagramLayer::Wavelengths | DiagramLayer::Isotherms | DiagramLayer::Axes);
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 360), 1.0);
    for (QImage *image : {&screen, &paper}) {
        QPainter onto(image);
        painter.paint(&onto, image->rect());
    }
    const QImage reduced = paper.scaled(screen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int differing = 0;
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x) {
            const QColor a = screen.pixelColor(x, y);
            const QColor b = reduced.pixelColor(x, y);
            differing
                += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) > 150
                ? 1
                : 0;
        }
    }
    QVERIFY2(differing < 0.02 * screen.width() * screen.height(), qPrintable(QString::number(differing)));
}

void DiagramDevicesTest::textsAreAsLargeAsTheDeviceHasThem()
{
    const auto inchesOfName = [](double dotsPerInch) {
        constexpr double inchesPerMetre = 1.0 / 0.0254;
        constexpr int inches = 9;
        QFont font;
        font.setPointSizeF(36.0); // hinting plays no part then
        // All corners in one point: nothing but the name and the point is shown.
        const Model::Target point = Model::Target::fromYxy(1.0, 0.3, 0.3);
        DiagramContent content;
        content.layers = DiagramLayer::Standards | DiagramLayer::Names;
        content.gamuts.append(
            {Model::ColorGamut("A name of many letters", {point, point, point, point}), GamutRole::Standard});
        DiagramPainter painter;
        painter.setFont(font);
        prepare(painter, content, Model::Diagram::Cie1931, QSizeF(900, 300), 1.0);
        QImage image(qRound(inches * dotsPerInch), qRound(inches * dotsPerInch / 3), QImage::Format_RGB32);
        image.setDotsPerMeterX(qRound(dotsPerInch * inchesPerMetre));
        image.setDotsPerMeterY(qRound(dotsPerInch * inchesPerMetre));
        QPainter(&image).fillRect(image.rect(), diagramPalette(content.ground).ground);
        {
            QPainter onto(&image);
            painter.paint(&onto, image.rect());
        }
        QRect ink;
        const int ground = qGray(diagramPalette(content.ground).ground.rgb());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                ink |= std::abs(qGray(image.pixel(x, y)) - ground) > 60 ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return ink.width() / dotsPerInch;
    };
    // Whatever the resolution of the screen is, which tests are not told of otherwise.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false);
    const auto restore = qScopeGuard([] { QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true); });
    const double expected = inchesOfName(600.0);
    QVERIFY(expected > 3.0);
    for (const double dotsPerInch : {72.0, 96.0, 100.0, 120.0, 144.0, 192.0}) {
        const double inches = inchesOfName(dotsPerInch);
        QVERIFY2(std::fabs(inches - expected) < 0.02 * expected,
            qPrintable(QStringLiteral("at %1 dpi %2 inches instead of %3").arg(dotsPerInch).arg(inches).arg(expected)));
    }
}

QTEST_MAIN(DiagramDevicesTest)

#include "diagramdevicestest.moc"
