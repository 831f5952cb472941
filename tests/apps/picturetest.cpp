// SPDX-License-Identifier: MIT
#include "drawing/picture.h"
#include "drawing/documentcontent.h"
#include "expectedchart.h"
#include <gamutfiles/descriptionfile.h>

#include <ceiechart/diagram/diagrampainter.h>
#include <reference/picturedifference.h>

#include <QMetaEnum>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramLayer;
using ceiechart::DiagramPainter;
using ceiechart::DiagramViewport;

class PictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formatBySuffix_data();
    void formatBySuffix();
    void isWhatTheDiagramPaints_data();
    void isWhatTheDiagramPaints();
    void pictureSizes_data();
    void pictureSizes();
    void higherRatioShowsTheSame();
    void keyStandsOnFreeGround_data();
    void keyStandsOnFreeGround();
    void keyStandsBesideAFullDiagram();
    void keyOnDarkGround();
    void keyIsLeftOutWhereThereIsNoRoom();
    void keyNamesWhatIsShown();
    void longNamesFitIntoTheKey();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void smallPicturesHaveNoTexts();
    void everyLayerCanBeSwitched();
    void svgIsVectors();
    void svgShowsTheSame_data();
    void svgShowsTheSame();
    void ringIsRoundInTheFile_data();
    void ringIsRoundInTheFile();
    void pdfIsVectors();
    void pdfPageSize_data();
    void pdfPageSize();
    void libraryChartIsTheLibrarys();
    void nothingToShow();
    void smallestPictures();
    void cannotWrite();
    void replacesTheFileOnlyWhenComplete();

private:
    QByteArray exported(const Picture &picture, PictureFormat format, const PictureExtent &extent = {});
    Picture sample(Model::Diagram diagram = Model::Diagram::Cie1931) const;

    DiagramContent m_content;
    QTemporaryDir m_folder;
};

Q_DECLARE_METATYPE(Model::Diagram)

namespace {

const QRgb lightGround = ceiechart::diagramPalette(ceiechart::DiagramGround::Light).ground.rgb();

//! The mean difference of a channel, of 255, after both pictures have been made coarse: lines may lie a pixel apart.
double coarseDifference(const QImage &a, const QImage &b)
{
    const QSize coarse(100, 100);
    const QImage first = a.scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage second = b.scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double sum = 0.0;
    for (int y = 0; y < coarse.height(); ++y) {
        for (int x = 0; x < coarse.width(); ++x) {
            const QColor p = first.pixelColor(x, y);
            const QColor q = second.pixelColor(x, y);
            sum += std::abs(p.red() - q.red()) + std::abs(p.green() - q.green()) + std::abs(p.blue() - q.blue());
        }
    }
    return sum / (3.0 * coarse.width() * coarse.height());
}

constexpr double mostCoarseDifference = 0.8;

QImage pixels(Picture picture, const QSize &size, bool withKey, qreal ratio = 1.0)
{
    picture.hasKey = withKey;
    return pixelsOf(picture, {size, ratio});
}

//! Where two pictures of the same size differ.
QRect difference(const QImage &a, const QImage &b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

QImage rendered(const QByteArray &svg, const QSize &size)
{
    QSvgRenderer renderer(svg);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
}

QStringList textsOf(const QByteArray &svg)
{
    QStringList texts;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text")) {
            texts << xml.readElementText().trimmed();
        }
    }
    return texts;
}

void addDiagrams(const QVector<QSize> &sizes)
{
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::addColumn<QSize>("size");
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
        for (const QSize &size : sizes) {
            QTest::addRow("%s %dx%d", Model::diagramTraits(diagram).name, size.width(), size.height())
                << diagram << size;
        }
    }
}

} // namespace

void PictureTest::initTestCase()
{
    const auto description = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY(description);
    m_content = documentContent(*description);
    m_content.trail = {QPointF(0.32, 0.34), QPointF(0.315, 0.335), QPointF(0.3127, 0.329)};
}

QByteArray PictureTest::exported(const Picture &picture, PictureFormat format, const PictureExtent &extent)
{
    const QString name = m_folder.filePath(QStringLiteral("picture"));
    const QString error = exportPicture(picture, QStringLiteral("A & <B>"), extent, format, name);
    QFile file(name);
    return error.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Picture PictureTest::sample(Model::Diagram diagram) const
{
    Picture picture;
    picture.content = m_content;
    picture.view = DiagramViewport(diagram, QSizeF());
    return picture;
}

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
        diagramPainter.setContent(m_content);
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

void PictureTest::keyStandsOnFreeGround_data()
{
    addDiagrams({QSize(1600, 1600), QSize(800, 800), QSize(1200, 500), QSize(400, 900)});
}

void PictureTest::keyStandsOnFreeGround()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    Picture picture = sample(diagram);
    QVERIFY(!lacksRoomForKey(picture, size));
    picture.content.layers.setFlag(DiagramLayer::Grid, false);
    const QImage without = pixels(picture, size, false);
    const QImage with = pixels(picture, size, true);
    const QRect key = difference(with, without);
    QVERIFY(key.width() > 100 && key.height() > 60);
    QVERIFY(QRect(QPoint(), size).adjusted(4, 4, -4, -4).contains(key));
    for (int y = key.top(); y <= key.bottom(); ++y) {
        for (int x = key.left(); x <= key.right(); ++x) {
            QCOMPARE(without.pixel(x, y), lightGround);
        }
    }
}

void PictureTest::keyStandsBesideAFullDiagram()
{
    // The colours fill the plot.
    Picture picture = sample();
    picture.view = DiagramViewport(Model::Diagram::Cie1931, QSizeF(800, 800)).fittedToWhite(QPointF(0.3127, 0.329));
    for (const QSize &size : {QSize(800, 800), QSize(1400, 500), QSize(500, 1000)}) {
        QVERIFY(!lacksRoomForKey(picture, size));
        const QImage image = pixels(picture, size, true);
        // Target, original and measured gamut have their colours in the key only; the target has its rings too.
        QRect key;
        for (const ceiechart::GamutRole role : {ceiechart::GamutRole::Original, ceiechart::GamutRole::Measured}) {
            const QRgb color = ceiechart::gamutStyle(role).color.rgb();
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    if (image.pixel(x, y) == color) {
                        key |= QRect(x, y, 1, 1);
                    }
                }
            }
        }
        QVERIFY(key.isValid());
        const bool isBelow = key.top() > 0.7 * size.height();
        const bool isRight = key.left() > 0.7 * size.width();
        QVERIFY(isBelow || isRight);
        // And no colours behind it.
        const QPoint beside = key.topLeft() - QPoint(3, 3);
        QCOMPARE(image.pixel(beside), lightGround);
    }
}

void PictureTest::keyOnDarkGround()
{
    const QSize size(800, 800);
    Picture picture = sample();
    picture.content.ground = ceiechart::DiagramGround::Dark;
    const QImage with = pixels(picture, size, true);
    const QRect key = difference(with, pixels(picture, size, false));
    QVERIFY(key.isValid());
    int light = 0;
    for (int y = key.top(); y <= key.bottom(); ++y) {
        for (int x = key.left(); x <= key.right(); ++x) {
            light += qGray(with.pixel(x, y)) > 160;
        }
    }
    QVERIFY2(light > 100, qPrintable(QString::number(light))); // letters
    QVERIFY(light < key.width() * key.height() / 4); // on their ground
}

void PictureTest::keyIsLeftOutWhereThereIsNoRoom()
{
    for (const QSize &size : {QSize(60, 60), QSize(150, 150), QSize(2000, 40)}) {
        QVERIFY(lacksRoomForKey(sample(), size));
        QCOMPARE(reference::firstDifference(pixels(sample(), size, true), pixels(sample(), size, false)), QString());
    }
    // Who wants no key, or has nothing to name, lacks nothing.
    Picture picture = sample();
    picture.hasKey = false;
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
    picture = sample();
    picture.content.gamuts.clear();
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
    picture = sample();
    picture.isLibraryChart = true;
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
}

void PictureTest::keyNamesWhatIsShown()
{
    Picture picture = sample();
    picture.content.layers.setFlag(DiagramLayer::Names, false);
    picture.content.layers.setFlag(DiagramLayer::Standards, false);
    picture.content.gamuts.append({Model::rec709(), ceiechart::GamutRole::Declared});
    QStringList texts = textsOf(exported(picture, PictureFormat::Svg));
    for (const char *text :
        {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.709", "Target", "Original", "Measured", "Declared"}) {
        QVERIFY2(texts.count(QString::fromLatin1(text)) == 1, text);
    }
    QVERIFY(!texts.contains("Rec.2020") && !texts.contains("Standard"));

    picture.content.layers.setFlag(DiagramLayer::Standards);
    picture.content.gamuts.last().visible = false;
    texts = textsOf(exported(picture, PictureFormat::Svg));
    QCOMPARE(texts.count("Rec.2020"), 1);
    QCOMPARE(texts.count("Standard"), 3);
    QVERIFY(!texts.contains("Declared"));

    picture.hasKey = false;
    texts = textsOf(exported(picture, PictureFormat::Svg));
    QVERIFY(!texts.contains("Target") && !texts.contains("LED wall"));
}

void PictureTest::longNamesFitIntoTheKey()
{
    Picture picture = sample();
    const QString name = QStringLiteral("The wall ") + QString(500, QLatin1Char('m')) + QStringLiteral(" of the stage");
    picture.content.gamuts
        = {{Model::ColorGamut(name.toStdString(), Model::rec709().getTargets()), ceiechart::GamutRole::Target}};
    picture.content.layers.setFlag(DiagramLayer::Names, false);
    const QSize size(800, 800);
    QVERIFY(!lacksRoomForKey(picture, size));
    const QRect key = difference(pixels(picture, size, true), pixels(picture, size, false));
    QVERIFY(QRect(QPoint(), size).adjusted(4, 4, -4, -4).contains(key));
    const QStringList texts = textsOf(exported(picture, PictureFormat::Svg, {size, 1.0}));
    QVERIFY(!texts.filter(QRegularExpression(QStringLiteral("^The wall m+…m+ of the stage$"))).isEmpty());
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
    const auto hasName = [this, &picture](const QSize &size) {
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

void PictureTest::svgIsVectors()
{
    QXmlStreamReader xml(exported(sample(), PictureFormat::Svg));
    int images = 0;
    int shapes = 0;
    QString title;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString name = xml.name().toString();
        images += name == QLatin1String("image");
        shapes += name == QLatin1String("path") || name == QLatin1String("polyline") || name == QLatin1String("polygon")
            || name == QLatin1String("ellipse") || name == QLatin1String("circle");
        if (name == QLatin1String("svg")) {
            QCOMPARE(xml.attributes().value("viewBox").toString(), QStringLiteral("0 0 800 800"));
        } else if (name == QLatin1String("title")) {
            title = xml.readElementText();
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(images, 1);
    QVERIFY(shapes > 20);
    QCOMPARE(title, QStringLiteral("A & <B>"));
    const QStringList texts = textsOf(exported(sample(), PictureFormat::Svg));
    QVERIFY(texts.contains("0.8") && texts.contains("520") && texts.contains("y"));
}

void PictureTest::svgShowsTheSame_data()
{
    addDiagrams({QSize(800, 800), QSize(1000, 600)});
}

void PictureTest::svgShowsTheSame()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    const QImage svg = rendered(exported(sample(diagram), PictureFormat::Svg, {size, 1.0}), size);
    const double same = coarseDifference(svg, pixels(sample(diagram), size, true));
    QVERIFY2(same < mostCoarseDifference, qPrintable(QString::number(same)));
}

void PictureTest::ringIsRoundInTheFile_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("square") << QSize(900, 900);
    QTest::newRow("wide") << QSize(1200, 700);
    QTest::newRow("high") << QSize(600, 1000);
}

void PictureTest::ringIsRoundInTheFile()
{
    QFETCH(QSize, size);
    const QPointF white(0.3127, 0.329);
    constexpr double radius = 0.005;
    Picture picture;
    picture.hasKey = false;
    picture.content.layers = DiagramLayer::Rings;
    picture.content.rings = {{white, {radius}}};
    picture.view = DiagramViewport(Model::Diagram::Cie1976, QSizeF(size)).fittedToWhite(white);
    const double expected = radius * picture.view.scale();
    QVERIFY(expected > 100.0);
    for (const QImage &image :
        {rendered(exported(picture, PictureFormat::Svg, {size, 1.0}), size), pixels(picture, size, false)}) {
        const QPointF middle(size.width() / 2.0, size.height() / 2.0);
        double least = HUGE_VAL;
        double most = 0.0;
        int found = 0;
        for (int i = 0; i < 360; ++i) {
            const double angle = i * M_PI / 180.0;
            // Below is the ring's name.
            if (std::fabs(angle - M_PI / 2.0) < 0.4) {
                continue;
            }
            double sum = 0.0;
            double weights = 0.0;
            for (double r = expected - 10.0; r < expected + 10.0; r += 0.25) {
                const QPointF at = middle + r * QPointF(std::cos(angle), std::sin(angle));
                const QColor color = image.pixelColor(int(at.x()), int(at.y()));
                const double weight = color.hsvSaturation() > 120 ? 1.0 : 0.0; // not the casing of the line
                sum += weight * r;
                weights += weight;
            }
            if (weights > 0.0) {
                least = std::min(least, sum / weights);
                most = std::max(most, sum / weights);
                ++found;
            }
        }
        QVERIFY2(found > 120, qPrintable(QString::number(found))); // the line is dashed
        QVERIFY2(least > expected - 0.8 && most < expected + 0.8,
            qPrintable(QStringLiteral("%1 to %2 instead of %3").arg(least).arg(most).arg(expected)));
    }
}

void PictureTest::pdfIsVectors()
{
    const QByteArray pdf = exported(sample(), PictureFormat::Pdf);
    QVERIFY(pdf.startsWith("%PDF-1."));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(pdf.count("/Subtype /Image"), 1);
    QVERIFY(pdf.contains("/Type /Font"));
    QVERIFY(!pdf.contains("/DCTDecode")); // nothing lossy
}

void PictureTest::pdfPageSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSizeF>("points");
    QTest::newRow("square") << QSize(800, 800) << QSizeF(600.0, 600.0);
    QTest::newRow("wide") << QSize(1000, 400) << QSizeF(750.0, 300.0);
    QTest::newRow("near A4") << QSize(792, 1120) << QSizeF(594.0, 840.0);
}

void PictureTest::pdfPageSize()
{
    QFETCH(QSize, size);
    QFETCH(QSizeF, points);
    const QByteArray bytes = exported(sample(), PictureFormat::Pdf, {size, 1.0});
    const QString pdf = QString::fromLatin1(bytes.constData(), bytes.size());
    const QRegularExpression box(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)"));
    const QRegularExpressionMatch match = box.match(pdf);
    QVERIFY(match.hasMatch());
    QCOMPARE(QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()), points);
    QCOMPARE(pdf.count("/Type /Page\n"), 1);
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
