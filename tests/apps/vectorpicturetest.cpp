// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "picturefixture.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;
using namespace picturefixture;

class VectorPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void svgIsVectors();
    void svgShowsTheSame_data();
    void svgShowsTheSame();
    void ringIsRoundInTheFile_data();
    void ringIsRoundInTheFile();
    void pdfIsVectors();
    void pdfPageSize_data();
    void pdfPageSize();
};

namespace {

QImage rendered(const QByteArray &svg, const QSize &size)
{
    QSvgRenderer renderer(svg);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
}

} // namespace

void VectorPictureTest::svgIsVectors()
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

void VectorPictureTest::svgShowsTheSame_data()
{
    addDiagrams({QSize(800, 800), QSize(1000, 600)});
}

void VectorPictureTest::svgShowsTheSame()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    const QImage svg = rendered(exported(sample(diagram), PictureFormat::Svg, {size, 1.0}), size);
    const double same = coarseDifference(svg, pixels(sample(diagram), size, true));
    QVERIFY2(same < mostCoarseDifference, qPrintable(QString::number(same)));
}

void VectorPictureTest::ringIsRoundInTheFile_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("square") << QSize(900, 900);
    QTest::newRow("wide") << QSize(1200, 700);
    QTest::newRow("high") << QSize(600, 1000);
}

void VectorPictureTest::ringIsRoundInTheFile()
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

void VectorPictureTest::pdfIsVectors()
{
    const QByteArray pdf = exported(sample(), PictureFormat::Pdf);
    QVERIFY(pdf.startsWith("%PDF-1."));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(pdf.count("/Subtype /Image"), 1);
    QVERIFY(pdf.contains("/Type /Font"));
    QVERIFY(!pdf.contains("/DCTDecode")); // nothing lossy
}

void VectorPictureTest::pdfPageSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSizeF>("points");
    QTest::newRow("square") << QSize(800, 800) << QSizeF(600.0, 600.0);
    QTest::newRow("wide") << QSize(1000, 400) << QSizeF(750.0, 300.0);
    QTest::newRow("near A4") << QSize(792, 1120) << QSizeF(594.0, 840.0);
}

void VectorPictureTest::pdfPageSize()
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

QTEST_MAIN(VectorPictureTest)
#include "vectorpicturetest.moc"
