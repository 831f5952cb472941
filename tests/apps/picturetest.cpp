// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "expectedchart.h"
#include "picturefixture.h"

#include "drawing/png.h"

#include <ceiechart/diagram/diagrampainter.h>
#include <reference/picturedifference.h>

#include <QMetaEnum>
#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace gamutviewer;
using namespace picturefixture;

class PictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formatBySuffix_data();
    void formatBySuffix();
    void isWhatTheDiagramPaints_data();
    void isWhatTheDiagramPaints();
    void pictureSizes_data();
    void pictureSizes();
    void higherRatioShowsTheSame();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void smallPicturesHaveNoTexts();
    void everyLayerCanBeSwitched();
    void pngHasThePixels_data();
    void pngHasThePixels();
    void libraryChartIsTheLibrarys();
    void nothingToShow();
    void smallestPictures();
    void cannotWrite();
    void replacesTheFileOnlyWhenComplete();

private:
    QTemporaryDir m_folder;
};

void PictureTest::formatBySuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::newRow("png") << "a/chart.png" << int(PictureFormat::Png);
    QTest::newRow("svg") << "chart.v2.SVG" << int(PictureFormat::Svg);
    QTest::newRow("pdf") << ".Pdf" << int(PictureFormat::Pdf);
    QTest::newRow("none") << "chart" << -1;
    QTest::newRow("other") << "chart.jpg" << -1;
    QTest::newRow("folder") << "png/chart" << -1;
}

void PictureTest::formatBySuffix()
{
    QFETCH(QString, name);
    QFETCH(int, format);
    const auto found = pictureFormat(name);
    QCOMPARE(found ? int(*found) : -1, format);
}

void PictureTest::isWhatTheDiagramPaints_data()
{
    addDiagrams({QSize(800, 800), QSize(900, 500), QSize(400, 700)});
}

void PictureTest::isWhatTheDiagramPaints()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    for (const qreal ratio : {1.0, 2.0}) {
        QImage expected(size * ratio, QImage::Format_RGB32);
        expected.setDotsPerMeterX(3780);
        expected.setDotsPerMeterY(3780);
        DiagramPainter diagramPainter;
        diagramPainter.setContent(sampleContent());
        diagramPainter.setViewport(DiagramViewport(diagram, QSizeF()));
        QPainter painter(&expected);
        painter.scale(ratio, ratio);
        diagramPainter.paint(&painter, QRectF(QPointF(), size));
        painter.end();
        QCOMPARE(reference::firstDifference(pixels(sample(diagram), size, false, ratio), expected), QString());
    }
}

void PictureTest::pictureSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("double") << QSize(300, 200) << 2.0 << QSize(600, 400);
    QTest::newRow("one and a half") << QSize(301, 201) << 1.5 << QSize(452, 302);
    QTest::newRow("quarter") << QSize(400, 400) << 0.25 << QSize(100, 100);
    QTest::newRow("longest") << QSize(4096, 10) << 2.0 << QSize(8192, 20);
    QTest::newRow("too long") << QSize(4097, 10) << 2.0 << QSize();
    QTest::newRow("too long at 1") << QSize(8193, 10) << 1.0 << QSize();
    QTest::newRow("empty") << QSize(0, 10) << 2.0 << QSize();
    QTest::newRow("negative") << QSize(-5, 10) << 2.0 << QSize();
    QTest::newRow("ratio 0") << QSize(100, 100) << 0.0 << QSize();
}

void PictureTest::pictureSizes()
{
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QSize, pixels);
    const QImage picture = pixelsOf(sample(), {size, ratio});
    QCOMPARE(picture.isNull(), !pixels.isValid());
    if (pixels.isValid()) {
        QCOMPARE(picture.size(), pixels);
        QCOMPARE(picture.devicePixelRatio(), ratio);
    }
}

void PictureTest::higherRatioShowsTheSame()
{
    const QSize size(800, 800);
    const QImage plain = pixels(sample(), size, true);
    const double same = coarseDifference(plain, pixels(sample(), size, true, 2.0));
    QVERIFY2(same < mostCoarseDifference, qPrintable(QString::number(same)));
    // The measure that this rests on notices a key.
    QVERIFY(coarseDifference(plain, pixels(sample(), size, false, 2.0)) > mostCoarseDifference);
}

void PictureTest::nothingIsClipped_data()
{
    addDiagrams({QSize(800, 800), QSize(640, 480), QSize(300, 300), QSize(1200, 250), QSize(250, 1200), QSize(200, 216),
        QSize(160, 160), QSize(64, 64)});
}

void PictureTest::nothingIsClipped()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    Picture picture = sample(diagram);
    picture.content.layers.setFlag(DiagramLayer::Grid, false);
    const QImage image = pixels(picture, size, true);
    for (int y = 0; y < size.height(); ++y) {
        QCOMPARE(image.pixel(0, y), lightGround);
        QCOMPARE(image.pixel(size.width() - 1, y), lightGround);
    }
    for (int x = 0; x < size.width(); ++x) {
        QCOMPARE(image.pixel(x, 0), lightGround);
        QCOMPARE(image.pixel(x, size.height() - 1), lightGround);
    }
}

void PictureTest::smallPicturesHaveNoTexts()
{
    Picture picture = sample();
    picture.hasKey = false;
    QVERIFY(textsOf(exported(picture, PictureFormat::Svg, {QSize(199, 400), 1.0})).isEmpty());
    QVERIFY(!textsOf(exported(picture, PictureFormat::Svg, {QSize(200, 400), 1.0})).isEmpty());
    // Names and temperatures need more room than numbers.
    const auto hasName = [&picture](const QSize &size) {
        return textsOf(exported(picture, PictureFormat::Svg, {size, 1.0})).contains(QStringLiteral("LED wall"));
    };
    QVERIFY(!hasName(QSize(349, 600)));
    QVERIFY(hasName(QSize(350, 600)));
    // The horseshoe has the room instead: of an icon of 64 pixels it covers a good part.
    const QImage icon = pixels(sample(), QSize(64, 64), true);
    int coloured = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            coloured += icon.pixelColor(x, y).hsvSaturation() > 60;
        }
    }
    QVERIFY2(coloured > 64 * 64 / 8, qPrintable(QString::number(coloured)));
}

void PictureTest::everyLayerCanBeSwitched()
{
    Picture picture = sample();
    picture.content.gamuts.append({Model::rec709(), ceiechart::GamutRole::Declared});
    picture.hasKey = false;
    const auto layers = QMetaEnum::fromType<ceiechart::ShownLayers>();
    for (int i = 0; i < layers.keyCount(); ++i) {
        const auto layer = DiagramLayer(layers.value(i));
        // Rings and trail are too small to be seen on the whole.
        const bool isSmall = layer == DiagramLayer::Rings || layer == DiagramLayer::Trail;
        picture.view = DiagramViewport(Model::Diagram::Cie1931, QSizeF(500, 500));
        if (isSmall) {
            picture.view = picture.view.fittedToWhite(QPointF(0.3127, 0.329));
        }
        picture.content.layers = ceiechart::allDiagramLayers;
        const QImage whole = pixelsOf(picture, {QSize(500, 500), 1.0});
        picture.content.layers.setFlag(layer, false);
        QVERIFY2(pixelsOf(picture, {QSize(500, 500), 1.0}) != whole, layers.key(i));
    }
}

void PictureTest::pngHasThePixels_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    for (const QSize &size : {QSize(1, 1), QSize(1, 90), QSize(257, 3), QSize(640, 480)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size << QImage::Format_RGB32;
    }
    QTest::newRow("translucent") << QSize(30, 20) << QImage::Format_ARGB32;
    QTest::newRow("too large to be held twice") << QSize(8192, 2800) << QImage::Format_RGB32;
}

void PictureTest::pngHasThePixels()
{
    QFETCH(QSize, size);
    QFETCH(QImage::Format, format);
    QImage image(size, format);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(1234);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        // Noise in the first rows, then what can be compressed.
        std::generate_n(line, size.width(), [&] { return y < 100 ? random.generate() : 0xff804020U + QRgb(y % 200); });
    }
    const QByteArray file = png(image);
    QCOMPARE(QImage::fromData(file, "PNG").convertToFormat(format), image.convertToFormat(format));
    QCOMPARE(QImage::fromData(file, "PNG").dotsPerMeterX(), 3780);
    QCOMPARE(QImage::fromData(file, "PNG").dotsPerMeterY(), 1234);
    QVERIFY(png(QImage()).isEmpty());
}

void PictureTest::libraryChartIsTheLibrarys()
{
    Picture picture = sample(Model::Diagram::Cie1976);
    picture.content.layers = DiagramLayer::Grid;
    picture.isLibraryChart = true;
    for (const QSize &size : {QSize(800, 800), QSize(333, 200)}) {
        QCOMPARE(reference::firstDifference(pixelsOf(picture, {size, 1.0}), expectedchart::draw(size)), QString());
    }
    QVERIFY(pixelsOf(picture, {QSize(9000, 10), 1.0}).isNull());
    for (const PictureFormat format : {PictureFormat::Svg, PictureFormat::Pdf}) {
        const QString name = m_folder.filePath(QStringLiteral("chart"));
        QCOMPARE(exportPicture(picture, QString(), {}, format, name),
            QStringLiteral("the library's chart is written as PNG only"));
        QVERIFY(!QFileInfo::exists(name));
    }
}

void PictureTest::nothingToShow()
{
    Picture picture;
    picture.content.layers = {};
    const QImage image = pixelsOf(picture, {QSize(300, 300), 1.0});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixel(x, y), lightGround);
        }
    }
    for (const PictureFormat format : {PictureFormat::Svg, PictureFormat::Pdf}) {
        QVERIFY(!exported(picture, format).isEmpty());
    }
}

void PictureTest::smallestPictures()
{
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        for (const QSize &size : {QSize(1, 1), QSize(3, 300), QSize(300, 3)}) {
            QVERIFY(!exported(sample(), format, {size, 2.0}).isEmpty());
        }
    }
}

void PictureTest::cannotWrite()
{
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        const QString name = m_folder.filePath(QStringLiteral("no/chart"));
        QVERIFY(!exportPicture(sample(), QString(), {QSize(50, 50), 1.0}, format, name).isEmpty());
    }
}

void PictureTest::replacesTheFileOnlyWhenComplete()
{
    const QString name = m_folder.filePath(QStringLiteral("kept.png"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("as it was") > 0);
    file.close();
    QVERIFY(!exportPicture(sample(), QString(), {QSize(9000, 9000), 1.0}, PictureFormat::Png, name).isEmpty());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("as it was"));
}

QTEST_MAIN(PictureTest)
#include "picturetest.moc"
