// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/enginecoverage_p.h>
#include <ceiechart/render/largepaths_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/repeatablerandom.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtTest>

#include <cmath>
#include <utility>
#include <vector>

using ceiechart::HorseshoeFill;
using ceiechart::RowLayers;
using ceiechart::RowThreads;

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int polygonCount = 3000;
#else
constexpr int polygonCount = 100000;
#endif

class Random : public reference::RepeatableRandom {
public:
    using RepeatableRandom::RepeatableRandom;

    QSize size() { return QSize(between(1, 90), between(1, 90)); }
    QColor color()
    {
        QColor color = opaqueColor();
        color.setAlpha(chance(50) ? 255 : between(0, 255));
        return color;
    }

    /*! \brief A polygon in and around a picture: with whole coordinates, quarters or any; some corners coincide. */
    QPolygonF polygon(const QSize &size)
    {
        const double beyond = chance(10) ? 60.0 : chance(50) ? 0.0 : 0.8;
        const double steps = chance(30) ? 1.0 : chance(30) ? 4.0 : 0.0;
        const auto coordinate = [&](int extent) {
            const double value = real(-beyond * extent, (1.0 + beyond) * extent);
            return steps > 0.0 ? std::floor(value * steps) / steps : value;
        };
        QPolygonF polygon;
        for (int corners = between(1, 7); corners > 0; --corners) {
            polygon.append(QPointF(coordinate(size.width()), coordinate(size.height())));
            if (chance(5)) {
                polygon.append(polygon.at(between(0, int(polygon.size()) - 1)));
            }
        }
        return polygon;
    }
};

QPainterPath pathOf(const QPolygonF &polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    return path;
}

QImage opaquePicture(const QSize &size, const QColor &ground, QImage::Format format)
{
    QImage picture(size, format);
    picture.fill(ground);
    return picture;
}

QPen outlinePen(const QColor &color, double width)
{
    return QPen(QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

HorseshoeFill horseshoe(const QSize &size)
{
    ceiechart::DiagramGeometry geometry;
    geometry.set(QRectF(0, 0, size.width(), size.height()), QRectF(0, 0, 0.84, 0.94));
    return {geometry, CEIAtlasValue().colorSystem, 1.0};
}

/*! \brief The definition of RowLayers::add() for the colours of the horseshoe. */
void drawHorseshoeByEngine(
    QImage &picture, const QPainterPath &clip, const HorseshoeFill &fill, const QColor &background)
{
    QImage colors = opaquePicture(picture.size(), background, QImage::Format_ARGB32);
    ceiechart::fillHorseshoe(colors, picture.width(), picture.height(), fill);
    QImage straight(picture.bits(), picture.width(), picture.height(), picture.bytesPerLine(), QImage::Format_ARGB32);
    QPainter painter(&straight);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipPath(clip, Qt::ReplaceClip);
    painter.drawImage(0, 0, colors);
}

} // namespace

/*! Layers that are drawn row by row, against the paint engine. */
class RowLayersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void paths();
    void scaledPictures();
    void tallPictures();
    void clippedHorseshoe();
    void uprightClips();
    void manyLayers();
    void addedAhead();
    void notAddedAhead();
    void leavesOtherPaintersToTheEngine();
    void leavesOtherPathsToTheEngine();
    void leavesOtherHorseshoesToTheEngine();
};

void RowLayersTest::paths()
{
    Random random(1931);
    for (int i = 0; i < polygonCount; ++i) {
        const QSize size = random.size();
        QPainterPath path = pathOf(random.polygon(size));
        const int kind = random.between(0, 2);
        if (kind == 0) {
            path.closeSubpath();
            const QPen pen = outlinePen(Qt::black, random.chance(60) ? 2.0 : random.real(1.0, 9.0));
            path = QPainterPathStroker(pen).createStroke(path);
        } else {
            path.setFillRule(kind == 1 ? Qt::OddEvenFill : Qt::WindingFill);
        }
        const QColor color = random.color();
        QImage expected = opaquePicture(size, random.opaqueColor(), QImage::Format_ARGB32_Premultiplied);
        QImage actual = expected.copy();
        QPainter expectedPainter(&expected);
        expectedPainter.setRenderHint(QPainter::Antialiasing);
        expectedPainter.fillPath(path, color);
        QPainter painter(&actual);
        painter.setRenderHint(QPainter::Antialiasing);
        RowLayers layers;
        QVERIFY2(layers.add(painter, path, color), qPrintable(QStringLiteral("path %1").arg(i)));
        layers.draw();
        const QString difference = reference::firstDifference(actual, expected);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("path %1: %2").arg(i).arg(difference)));
    }
}

void RowLayersTest::scaledPictures()
{
    Random random(7);
    for (const double ratio : {1.1, 1.25, 1.5, 2.0, 2.75}) {
        for (int i = 0; i < polygonCount / 100; ++i) {
            const QSize size = random.size();
            const QPolygonF polygon = random.polygon(size);
            const QColor color = random.color();
            const QPen pen = outlinePen(color, random.between(2, 4));
            QImage expected = opaquePicture(size * ratio, random.opaqueColor(), QImage::Format_ARGB32_Premultiplied);
            expected.setDevicePixelRatio(ratio);
            QImage actual = expected.copy();
            QPainter expectedPainter(&expected);
            expectedPainter.setRenderHint(QPainter::Antialiasing);
            expectedPainter.setPen(pen);
            expectedPainter.drawPolygon(polygon, Qt::OddEvenFill);
            expectedPainter.fillPath(pathOf(polygon), color);
            {
                QPainter painter(&actual);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(pen);
                RowLayers layers;
                ceiechart::drawPolygonOutline(layers, painter, polygon);
                ceiechart::fillLargePath(layers, painter, pathOf(polygon), color);
                layers.draw();
            }
            const QString difference = reference::firstDifference(actual, expected);
            QVERIFY2(difference.isEmpty(),
                qPrintable(QStringLiteral("%1, polygon %2: %3").arg(ratio).arg(i).arg(difference)));
        }
    }
}

// Rounding could differ along long edges only.
void RowLayersTest::tallPictures()
{
    Random random(17);
    for (const QSize &size : {QSize(40, 4400), QSize(7900, 30), QSize(1500, 1400), QSize(9, 15900)}) {
        for (int i = 0; i < 12; ++i) {
            const QPolygonF polygon = random.polygon(size / 2);
            QImage expected = opaquePicture(size, random.opaqueColor(), QImage::Format_ARGB32_Premultiplied);
            QImage actual = expected.copy();
            const QColor color = random.color();
            QPainter expectedPainter(&expected);
            expectedPainter.setRenderHint(QPainter::Antialiasing);
            expectedPainter.setPen(outlinePen(color, 2.0));
            expectedPainter.drawPolygon(polygon, Qt::OddEvenFill);
            expectedPainter.fillPath(pathOf(polygon), color);
            {
                QPainter painter(&actual);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(outlinePen(color, 2.0));
                RowLayers layers;
                ceiechart::drawPolygonOutline(layers, painter, polygon);
                ceiechart::fillLargePath(layers, painter, pathOf(polygon), color);
                layers.draw();
            }
            const QString difference = reference::firstDifference(actual, expected);
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("polygon %1: %2").arg(i).arg(difference)));
        }
    }
}

void RowLayersTest::clippedHorseshoe()
{
    Random random(76);
    int drawn = 0;
    for (int i = 0; i < polygonCount / 5; ++i) {
        const QSize size = random.size();
        const QPainterPath clip = pathOf(random.polygon(size));
        const HorseshoeFill fill = horseshoe(size);
        const QColor background(23, 23, 26);
        QImage expected = opaquePicture(size, random.opaqueColor(), QImage::Format_ARGB32_Premultiplied);
        QImage actual = expected.copy();
        RowLayers layers;
        if (layers.add(actual, clip, fill, background)) {
            ++drawn;
            layers.draw();
            drawHorseshoeByEngine(expected, clip, fill, background);
            const QString difference = reference::firstDifference(actual, expected);
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("clip %1: %2").arg(i).arg(difference)));
        }
    }
    QVERIFY2(drawn > polygonCount / 5 / 2, qPrintable(QString::number(drawn)));
}

// The engine takes them for rectangles.
void RowLayersTest::uprightClips()
{
    const QSize size(20, 30);
    QImage picture = opaquePicture(size, Qt::black, QImage::Format_ARGB32_Premultiplied);
    const QImage before = picture.copy();
    const QPolygonF rectangle(QRectF(3.5, 4.25, 9.0, 11.5));
    const QPolygonF withinAColumn({{4.2, 3.0}, {4.9, 20.0}, {4.4, 25.0}});
    for (const QPolygonF &polygon : {rectangle, withinAColumn, QPolygonF()}) {
        RowLayers layers;
        QVERIFY(!layers.add(picture, pathOf(polygon), horseshoe(size), QColor(23, 23, 26)));
        layers.draw();
        QCOMPARE(picture, before);
    }
}

void RowLayersTest::manyLayers()
{
    Random random(31);
    for (int i = 0; i < polygonCount / 20; ++i) {
        const QSize size = random.size();
        const HorseshoeFill fill = horseshoe(size);
        QImage expected = opaquePicture(size, random.opaqueColor(), QImage::Format_ARGB32_Premultiplied);
        QImage actual = expected.copy();
        {
            QPainter painter(&actual);
            painter.setRenderHint(QPainter::Antialiasing);
            RowLayers layers;
            for (int layer = random.between(1, 6); layer > 0; --layer) {
                const QPainterPath path = pathOf(random.polygon(size));
                if (random.chance(30)) {
                    drawHorseshoeByEngine(expected, path, fill, QColor(1, 200, 26));
                    if (!layers.add(actual, path, fill, QColor(1, 200, 26))) {
                        drawHorseshoeByEngine(actual, path, fill, QColor(1, 200, 26));
                    }
                } else {
                    const QColor color = random.color();
                    QPainter expectedPainter(&expected);
                    expectedPainter.setRenderHint(QPainter::Antialiasing);
                    expectedPainter.fillPath(path, color);
                    QVERIFY(layers.add(painter, path, color));
                }
            }
            layers.draw();
        }
        const QString difference = reference::firstDifference(actual, expected);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("picture %1: %2").arg(i).arg(difference)));
    }
}

void RowLayersTest::addedAhead()
{
    Random random(57);
    RowThreads threads;
    threads.setCount(3);
    for (int i = 0; i < polygonCount / 50; ++i) {
        const QSize size(random.between(50, 300), random.between(50, 600)); // some bands high
        const QColor ground = random.opaqueColor();
        std::vector<std::pair<QPainterPath, QColor>> paths;
        for (int k = random.between(0, 5); k > 0; --k) {
            const QPainterPath path = pathOf(random.polygon(size));
            if (ceiechart::EngineCoverage::isKnown(path)) {
                paths.emplace_back(path, random.color());
            }
        }
        const auto draw = [&](QImage &picture, bool isAhead) {
            QPainter painter(&picture);
            painter.setRenderHint(QPainter::Antialiasing);
            RowLayers layers(isAhead ? &threads : nullptr);
            const auto add = [&] {
                for (const auto &[path, color] : paths) {
                    QVERIFY(layers.add(painter, path, color));
                }
            };
            if (isAhead) {
                QVERIFY(layers.addAhead(add));
                if (i % 4 > 0) {
                    layers.computeAhead();
                }
            }
            painter.fillRect(picture.rect(), ground); // below them
            if (!isAhead) {
                add();
            }
            if (i % 7 > 0) {
                layers.draw();
            }
        };
        QImage expected = opaquePicture(size, Qt::black, QImage::Format_ARGB32_Premultiplied);
        QImage actual = expected.copy();
        draw(expected, false);
        draw(actual, true);
        const QString difference = reference::firstDifference(actual, expected);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("picture %1: %2").arg(i).arg(difference)));
    }
}

void RowLayersTest::notAddedAhead()
{
    QImage picture = opaquePicture(QSize(20, 200), Qt::black, QImage::Format_ARGB32_Premultiplied);
    const QImage before = picture.copy();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    RowLayers alone;
    QVERIFY(!alone.addAhead([] { QFAIL("there are no threads"); }));

    RowThreads threads;
    threads.setCount(2);
    RowLayers layers(&threads);
    const QPainterPath known = pathOf(QPolygonF({{2, 3}, {17, 5}, {9, 180}}));
    QPainterPath curve;
    curve.addEllipse(2, 3, 10, 90);
    QVERIFY(!layers.addAhead([&] {
        QVERIFY(layers.add(painter, known, Qt::white));
        QVERIFY(layers.add(painter, curve, Qt::white)); // so that no one draws it yet
        QVERIFY(layers.add(painter, known, Qt::red));
    }));
    QPen thin(Qt::white, 1.0);
    painter.setPen(thin);
    QVERIFY(!layers.addAhead([&] { ceiechart::drawPolygonOutline(layers, painter, known.toFillPolygon()); }));
    QCOMPARE(picture, before);
    layers.computeAhead();
    layers.draw();
    QCOMPARE(picture, before);

    // And then as without threads.
    QVERIFY(layers.add(painter, known, Qt::white));
    QVERIFY(!layers.add(painter, curve, Qt::white));
    QCOMPARE(picture.pixelColor(9, 60), QColor(Qt::white));
}

void RowLayersTest::leavesOtherPaintersToTheEngine()
{
    const QPainterPath path = pathOf(QPolygonF({{2, 3}, {17, 5}, {9, 18}}));
    const auto isAdded = [&path](QImage::Format format, const auto &prepare) {
        QImage picture = opaquePicture(QSize(20, 20), Qt::black, format);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        prepare(painter);
        RowLayers layers;
        return layers.add(painter, path, Qt::white);
    };
    constexpr auto usual = QImage::Format_ARGB32_Premultiplied;
    QVERIFY(isAdded(usual, [](QPainter &) {}));
    QVERIFY(!isAdded(QImage::Format_ARGB32, [](QPainter &) {}));
    QVERIFY(!isAdded(QImage::Format_RGB888, [](QPainter &) {}));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.setRenderHint(QPainter::Antialiasing, false); }));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.setClipRect(3, 3, 9, 9); }));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.setOpacity(0.5); }));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.rotate(3); }));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Plus); }));
    QVERIFY(!isAdded(usual, [](QPainter &painter) { painter.end(); }));
}

void RowLayersTest::leavesOtherPathsToTheEngine()
{
    QImage picture = opaquePicture(QSize(20, 20), Qt::black, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    RowLayers layers;
    QPainterPath curve;
    curve.addEllipse(2, 3, 10, 9);
    QVERIFY(!layers.add(painter, curve, Qt::white));
    for (const double far : {16001.0, -1e9, 1e300, std::nan(""), double(INFINITY)}) {
        QVERIFY(!layers.add(painter, pathOf(QPolygonF({{2, 3}, {far, 5}, {9, 18}})), Qt::white));
        QVERIFY(!layers.add(painter, pathOf(QPolygonF({{2, 3}, {5, far}, {9, 18}})), Qt::white));
    }
    QVERIFY(!layers.add(painter, pathOf(QPolygonF({{2, 3}, {7, 5}, {9, 18}})), QBrush(Qt::white, Qt::Dense4Pattern)));

    // What has been added before is drawn, so that the engine can draw over it.
    QVERIFY(layers.add(painter, pathOf(QPolygonF({{2, 3}, {17, 3}, {17, 18}, {2, 18}})), Qt::white));
    QCOMPARE(picture.pixelColor(5, 5), QColor(Qt::black));
    QVERIFY(!layers.add(painter, curve, Qt::white));
    QCOMPARE(picture.pixelColor(5, 5), QColor(Qt::white));
}

void RowLayersTest::leavesOtherHorseshoesToTheEngine()
{
    const QSize size(20, 20);
    const QPainterPath clip = pathOf(QPolygonF({{2, 3}, {17, 5}, {9, 18}}));
    const auto isAdded = [&](QImage::Format format, const QColor &background, const QSize &extent) {
        QImage picture = opaquePicture(extent, Qt::black, format);
        RowLayers layers;
        return layers.add(picture, clip, horseshoe(size), background);
    };
    constexpr auto usual = QImage::Format_ARGB32_Premultiplied;
    QVERIFY(isAdded(usual, QColor(1, 0, 0), size));
    QVERIFY(!isAdded(QImage::Format_ARGB32, QColor(1, 0, 0), size));
    QVERIFY(!isAdded(usual, QColor(0, 200, 0), size));
    QVERIFY(!isAdded(usual, QColor(1, 0, 0, 254), size));
    QVERIFY(!isAdded(usual, QColor(), size));
    QVERIFY(!isAdded(usual, QColor(1, 0, 0), QSize(1, 20)));
}

CEIECHART_PICTURE_TEST_MAIN(RowLayersTest)

#include "rowlayerstest.moc"
