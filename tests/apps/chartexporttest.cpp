// SPDX-License-Identifier: MIT
#include "expectedchart.h"

#include "display/descriptionreader.h"
#include "drawing/chartexport.h"
#include "drawing/chartkeypainter.h"
#include "drawing/chartpainter.h"
#include "drawing/diagrampainter.h"
#include <reference/picturedifference.h>

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

using namespace gamutviewer;

class ChartExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formatBySuffix_data();
    void formatBySuffix();
    void pictureIsTheRenderersOwn();
    void pictureSizes_data();
    void pictureSizes();
    void higherRatioShowsTheSame();
    void painterShowsWhatTheRendererShows();
    void painterDrawsWhereTheRendererDraws();
    void numbersFitIntoASmallChart();
    void smallPictureHasWholeDigits();
    void keyStandsBesideTheDiagram_data();
    void keyStandsBesideTheDiagram();
    void uvChartShowsItsParts();
    void everyPartIsPainted();
    void svgIsVectors();
    void svgShowsTheChart();
    void pdfIsVectors();
    void pdfPageSize_data();
    void pdfPageSize();
    void sceneWithoutGamuts();
    void smallestCharts();
    void cannotWrite();
    void replacesTheFileOnlyWhenComplete();

private:
    QByteArray exported(ChartFormat format, const ChartExtent &extent = {});
    QImage painted(const ChartScene &scene, const QSize &size) const;

    ChartScene m_sample;
    QTemporaryDir m_folder;
};

namespace {

//! The mean difference of a channel, of 255, after both pictures have been made coarse: lines may lie a pixel apart.
double coarseDifference(const QImage &a, const QImage &b)
{
    const QSize coarse(50, 50);
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

//! The share of pixels to which \a b has nothing alike within a pixel's distance.
double strangePixels(const QImage &a, const QImage &b)
{
    constexpr int alike = 40; // difference of a channel, of 255
    const auto isAlike = [&](QRgb color, int x, int y) {
        const QRgb other = b.pixel(x, y);
        return std::abs(qRed(color) - qRed(other)) <= alike && std::abs(qGreen(color) - qGreen(other)) <= alike
            && std::abs(qBlue(color) - qBlue(other)) <= alike;
    };
    int strange = 0;
    for (int y = 1; y + 1 < a.height(); ++y) {
        for (int x = 1; x + 1 < a.width(); ++x) {
            bool found = false;
            for (int i = 0; i < 9 && !found; ++i) {
                found = isAlike(a.pixel(x, y), x + i % 3 - 1, y + i / 3 - 1);
            }
            strange += !found;
        }
    }
    return double(strange) / (a.width() * a.height());
}

constexpr double mostStrangePixels = 0.0035; // wavelengths have places of their own too

} // namespace

void ChartExportTest::initTestCase()
{
    DescriptionReader reader;
    const auto description = reader.readFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY(description);
    m_sample = chartScene(*description);
}

QByteArray ChartExportTest::exported(ChartFormat format, const ChartExtent &extent)
{
    const QString name = m_folder.filePath(QStringLiteral("chart"));
    const QString error = exportChart(m_sample, QStringLiteral("A & <B>"), extent, format, name);
    QFile file(name);
    return error.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage ChartExportTest::painted(const ChartScene &scene, const QSize &size) const
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintChart(painter, scene, size, 1.0);
    return picture;
}

void ChartExportTest::formatBySuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::newRow("png") << "a/chart.png" << int(ChartFormat::Png);
    QTest::newRow("svg") << "chart.v2.SVG" << int(ChartFormat::Svg);
    QTest::newRow("pdf") << ".Pdf" << int(ChartFormat::Pdf);
    QTest::newRow("none") << "chart" << -1;
    QTest::newRow("other") << "chart.jpg" << -1;
    QTest::newRow("folder") << "png/chart" << -1;
}

void ChartExportTest::formatBySuffix()
{
    QFETCH(QString, name);
    QFETCH(int, format);
    const auto found = chartFormat(name);
    QCOMPARE(found ? int(*found) : -1, format);
}

void ChartExportTest::pictureIsTheRenderersOwn()
{
    for (const QSize &size : {QSize(800, 800), QSize(333, 200)}) {
        QCOMPARE(reference::firstDifference(chartPicture(m_sample, {size, 1.0}), expectedchart::draw(size)), QString());
    }
}

void ChartExportTest::pictureSizes_data()
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

void ChartExportTest::pictureSizes()
{
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QSize, pixels);
    const QImage picture = chartPicture(m_sample, {size, ratio});
    QCOMPARE(picture.isNull(), !pixels.isValid());
    if (pixels.isValid()) {
        QCOMPARE(picture.size(), pixels);
        QCOMPARE(picture.devicePixelRatio(), ratio);
    }
}

void ChartExportTest::higherRatioShowsTheSame()
{
    const QImage plain = chartPicture(m_sample, {QSize(800, 800), 1.0});
    QImage fine = chartPicture(m_sample, {QSize(800, 800), 2.0});
    fine.setDevicePixelRatio(1.0);
    const double difference = coarseDifference(plain, fine);
    QVERIFY2(difference < 2.0, qPrintable(QString::number(difference)));
}

void ChartExportTest::painterShowsWhatTheRendererShows()
{
    for (const QSize &size : {QSize(800, 800), QSize(900, 700)}) {
        const double difference = coarseDifference(painted(m_sample, size), expectedchart::draw(size));
        QVERIFY2(difference < 2.0, qPrintable(QString::number(difference)));
    }
    // The measure that this rests on tells charts apart.
    ChartScene other = m_sample;
    other.triangles.removeLast();
    other.target = TrianglePoint();
    QVERIFY(coarseDifference(painted(other, QSize(800, 800)), expectedchart::draw(QSize(800, 800))) > 10.0);
}

void ChartExportTest::painterDrawsWhereTheRendererDraws()
{
    const QSize size(800, 800);
    ChartScene scene = m_sample;
    scene.axes = false; // whose digits have places of their own
    const QImage own = painted(scene, size);
    const QImage expected = chartPicture(scene, {size, 1.0});
    const double share = strangePixels(own, expected);
    QVERIFY2(share < mostStrangePixels, qPrintable(QString::number(share)));
    // Three pixels beside is somewhere else.
    const double elsewhere = strangePixels(own.copy(QRect(QPoint(3, 3), size)), expected);
    QVERIFY2(elsewhere > 2 * mostStrangePixels, qPrintable(QString::number(elsewhere)));
}

void ChartExportTest::smallPictureHasWholeDigits()
{
    // The library's own digits are cut off by the edge of a small picture.
    const QSize size(400, 300);
    const auto reachesTheEdge = [&](const QImage &picture) {
        for (int y = 0; y < size.height(); ++y) {
            if (picture.pixelColor(0, y) != QColor(23, 23, 26)) {
                return true;
            }
        }
        return false;
    };
    ChartScene scene = m_sample;
    QVERIFY(reachesTheEdge(chartPicture(scene, {size, 1.0})));
    scene.wholeDigits = true;
    QVERIFY(!reachesTheEdge(chartPicture(scene, {size, 1.0})));
    // Where they fit it is the library's.
    QCOMPARE(
        reference::firstDifference(chartPicture(scene, {QSize(800, 800), 1.0}), expectedchart::draw(QSize(800, 800))),
        QString());
}

void ChartExportTest::keyStandsBesideTheDiagram_data()
{
    QTest::addColumn<bool>("uv");
    QTest::addColumn<QSize>("size");
    for (const bool uv : {false, true}) {
        for (const QSize &size : {QSize(1600, 1600), QSize(800, 800), QSize(1200, 500), QSize(500, 400)}) {
            QTest::addRow("%s %dx%d", uv ? "u'v'" : "xy", size.width(), size.height()) << uv << size;
        }
    }
}

void ChartExportTest::keyStandsBesideTheDiagram()
{
    QFETCH(bool, uv);
    QFETCH(QSize, size);
    DescriptionReader reader;
    const auto description = reader.readFile(QStringLiteral(SAMPLE_FILE));
    const Model::Diagram diagram = uv ? Model::Diagram::Cie1976 : Model::Diagram::Cie1931;
    ChartScene scene = chartScene(*description, allLayers, diagram);
    const QImage without = chartPicture(scene, {size, 1.0});
    scene.key = keyEntries(*description, allLayers, KeyStyle::Picture);
    const QImage with = chartPicture(scene, {size, 1.0});
    const DiagramFrame frame(diagram, size);
    const QRectF place = chartKeyPlace(scene.key, frame);
    QVERIFY(!place.isEmpty());
    QVERIFY(QRectF(QPointF(), size).contains(place));
    QVERIFY(spectralLocus(frame).intersected(place).isEmpty());
    int changed = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                QVERIFY(place.adjusted(-2, -2, 2, 2).contains(QPointF(x, y)));
                ++changed;
            }
        }
    }
    QVERIFY(changed > 300);
    // No room: no key.
    QVERIFY(chartKeyPlace(scene.key, DiagramFrame(diagram, QSize(60, 60))).isEmpty());
}

void ChartExportTest::uvChartShowsItsParts()
{
    DescriptionReader reader;
    const auto description = reader.readFile(QStringLiteral(SAMPLE_FILE));
    const ChartExtent extent{QSize(600, 600), 1.0};
    const auto picture = [&](Layers layers) {
        return chartPicture(chartScene(*description, layers, Model::Diagram::Cie1976), extent);
    };
    const QImage whole = picture(allLayers);
    for (const Layer layer :
        {Layer::Original, Layer::Measured, Layer::Target, Layer::Standards, Layer::Axes, Layer::Wavelengths,
            Layer::PlanckianLocus, Layer::MeasurePoints, Layer::ColorTemperaturePoints, Layer::CmyPoints}) {
        QVERIFY(picture(allLayers & ~Layers(layer)) != whole);
    }
    // The ground of the library's u', v' picture, and colours where Rec.2020 has its green.
    QCOMPARE(whole.pixelColor(2, 2), QColor(50, 50, 56));
    const QPointF cyan = DiagramFrame(Model::Diagram::Cie1976, extent.size).fromXy(QPointF(0.1, 0.3));
    QVERIFY(whole.pixelColor(cyan.toPoint()).hsvSaturation() > 100);
}

void ChartExportTest::numbersFitIntoASmallChart()
{
    for (const QSize &size : {QSize(640, 480), QSize(400, 300), QSize(300, 300), QSize(1200, 400), QSize(200, 216)}) {
        const QImage picture = painted(m_sample, size);
        for (int y = 0; y < size.height(); ++y) {
            QCOMPARE(picture.pixelColor(0, y), QColor(23, 23, 26));
        }
        for (int x = 0; x < size.width(); ++x) {
            QCOMPARE(picture.pixelColor(x, size.height() - 1), QColor(23, 23, 26));
        }
    }
}

void ChartExportTest::everyPartIsPainted()
{
    const QSize size(400, 400);
    const QImage whole = painted(m_sample, size);
    const auto differsWithout = [&](auto leaveOut) {
        ChartScene scene = m_sample;
        leaveOut(scene);
        return painted(scene, size) != whole;
    };
    for (int i = 0; i < m_sample.triangles.size(); ++i) {
        QVERIFY(differsWithout([i](ChartScene &scene) { scene.triangles.removeAt(i); }));
    }
    for (int i = 0; i < m_sample.standards.size(); ++i) {
        QVERIFY(differsWithout([i](ChartScene &scene) { scene.standards.removeAt(i); }));
    }
    QVERIFY(differsWithout([](ChartScene &scene) { scene.colorTemperaturePoints.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.measurePoints.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.cmyPoints.removeLast(); }));
    QVERIFY(differsWithout([](ChartScene &scene) { scene.target = TrianglePoint(); }));
}

void ChartExportTest::svgIsVectors()
{
    QXmlStreamReader xml(exported(ChartFormat::Svg));
    int images = 0;
    int shapes = 0;
    QStringList texts;
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
        } else if (name == QLatin1String("text")) {
            texts << xml.readElementText().trimmed();
        } else if (name == QLatin1String("title")) {
            title = xml.readElementText();
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(images, 1);
    QVERIFY(shapes > 20);
    QVERIFY(texts.contains("0.9") && texts.contains("520") && texts.contains("680"));
    QCOMPARE(title, QStringLiteral("A & <B>"));
}

void ChartExportTest::svgShowsTheChart()
{
    QSvgRenderer renderer(exported(ChartFormat::Svg));
    QVERIFY(renderer.isValid());
    QImage picture(800, 800, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    painter.end();
    const double difference = coarseDifference(picture, expectedchart::draw(QSize(800, 800)));
    QVERIFY2(difference < 2.5, qPrintable(QString::number(difference)));
}

void ChartExportTest::pdfIsVectors()
{
    const QByteArray pdf = exported(ChartFormat::Pdf);
    QVERIFY(pdf.startsWith("%PDF-1."));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(pdf.count("/Subtype /Image"), 2); // the horseshoe and its transparency
    QVERIFY(pdf.contains("/Type /Font"));
    QVERIFY(!pdf.contains("/DCTDecode")); // nothing lossy
}

void ChartExportTest::pdfPageSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSizeF>("points");
    QTest::newRow("square") << QSize(800, 800) << QSizeF(600.0, 600.0);
    QTest::newRow("wide") << QSize(1000, 400) << QSizeF(750.0, 300.0);
    QTest::newRow("near A4") << QSize(792, 1120) << QSizeF(594.0, 840.0);
}

void ChartExportTest::pdfPageSize()
{
    QFETCH(QSize, size);
    QFETCH(QSizeF, points);
    const QByteArray bytes = exported(ChartFormat::Pdf, {size, 1.0});
    const QString pdf = QString::fromLatin1(bytes.constData(), bytes.size());
    const QRegularExpression box(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)"));
    const QRegularExpressionMatch match = box.match(pdf);
    QVERIFY(match.hasMatch());
    QCOMPARE(QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()), points);
    QCOMPARE(pdf.count("/Type /Page\n"), 1);
}

void ChartExportTest::sceneWithoutGamuts()
{
    const ChartScene empty;
    QVERIFY(!painted(empty, QSize(200, 200)).isNull());
    for (const ChartFormat format : {ChartFormat::Png, ChartFormat::Svg, ChartFormat::Pdf}) {
        QCOMPARE(exportChart(empty, QString(), {}, format, m_folder.filePath(QStringLiteral("empty"))), QString());
    }
}

void ChartExportTest::smallestCharts()
{
    for (const ChartFormat format : {ChartFormat::Png, ChartFormat::Svg, ChartFormat::Pdf}) {
        for (const QSize &size : {QSize(1, 1), QSize(3, 300), QSize(300, 3)}) {
            QVERIFY(!exported(format, {size, 2.0}).isEmpty());
        }
    }
}

void ChartExportTest::cannotWrite()
{
    for (const ChartFormat format : {ChartFormat::Png, ChartFormat::Svg, ChartFormat::Pdf}) {
        const QString name = m_folder.filePath(QStringLiteral("no/chart"));
        QVERIFY(!exportChart(m_sample, QString(), {QSize(50, 50), 1.0}, format, name).isEmpty());
    }
}

void ChartExportTest::replacesTheFileOnlyWhenComplete()
{
    const QString name = m_folder.filePath(QStringLiteral("kept.png"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("as it was") > 0);
    file.close();
    QVERIFY(!exportChart(m_sample, QString(), {QSize(9000, 9000), 1.0}, ChartFormat::Png, name).isEmpty());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("as it was"));
}

QTEST_MAIN(ChartExportTest)
#include "chartexporttest.moc"
