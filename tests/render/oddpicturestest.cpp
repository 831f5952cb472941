// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/drawceipicture.h>
#include <reference/picturedifference.h>
#include <reference/plainrenderer.h>
#include <reference/quietmessages.h>

#include <QPainter>
#include <QtTest>

#include <limits>
#include <memory>
#include <random>

/*! Pictures out of the ordinary against their definition: what the shortcuts of the renderer must not touch. */
class OddPicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beyondTheReachOfThePaintEngine_data();
    void beyondTheReachOfThePaintEngine();
    void clipsThatCannotBeBounded_data();
    void clipsThatCannotBeBounded();
    void tallPictures();
    void chromaticitiesThatAreNoNumbers();
    void pointsThatAreNotFinitePaintAndLogNothing();
};

namespace {

ColorTriangleObject triangle(const QPointF &red, const QPointF &green, const QPointF &blue, int type, int width)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    ColorTriangleObject object;
    object.setTrianglePoint(points);
    object.setType(type);
    object.setTrigleLineWidth(width);
    object.setForeColor(QColor(255, 163, 56, type == 0 ? 51 : 255));
    object.setOpacity(0.1);
    return object;
}

QString differenceOf(const QSize &size, const QColor &picture, const QPolygonF &clip,
    const QList<ColorTriangleObject> &triangles = {}, const QList<ColorTriangleObject> &standards = {})
{
    const reference::QuietMessages quiet;
    NewCEIE::DrawCEIPicture renderer(nullptr);
    reference::PlainRenderer plain;
    renderer.setGraphColor(Qt::white, picture);
    plain.setGraphColor(Qt::white, picture);
    const std::unique_ptr<QImage> actual(
        renderer.drawCEIPicture(size.width(), size.height(), true, triangles, standards, clip, false, QString()));
    return reference::firstDifference(
        *actual, plain.drawCEIPicture(size.width(), size.height(), true, triangles, standards, clip, QString()));
}

} // namespace

void OddPicturesTest::beyondTheReachOfThePaintEngine_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("last within reach") << QSize(32767, 6);
    QTest::newRow("first beyond") << QSize(32768, 6);
    QTest::newRow("far beyond") << QSize(40000, 5);
    QTest::newRow("tall") << QSize(5, 33000);
}

void OddPicturesTest::beyondTheReachOfThePaintEngine()
{
    QFETCH(QSize, size);
    // Memory that was used before, so that what is not cleared shows.
    for (int i = 0; i < 4; ++i) {
        QImage(size, QImage::Format_ARGB32).fill(QColor(1, 2, 3, 4));
    }
    QCOMPARE(differenceOf(size, QColor(23, 23, 26), QPolygonF(QRectF(0, 0, 100, 3))), QString());
}

void OddPicturesTest::clipsThatCannotBeBounded_data()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<QPolygonF>("clip");
    const QPointF a(10, 10);
    const QPointF b(150, 40);
    QTest::newRow("1e15") << QPolygonF({a, b, {80, 1e15}});
    QTest::newRow("1e20") << QPolygonF({a, b, {80, 1e20}});
    QTest::newRow("1.5e308") << QPolygonF({a, b, {1.5e308, -1.5e308}});
    QTest::newRow("both ways") << QPolygonF({{-1e17, 20}, {1e17, 90}, {30, 1e17}});
    QTest::newRow("infinite") << QPolygonF({a, b, {infinity, 100}});
    QTest::newRow("not a number") << QPolygonF({a, b, {80, nan}});
}

void OddPicturesTest::clipsThatCannotBeBounded()
{
    QFETCH(QPolygonF, clip);
    QCOMPARE(differenceOf(QSize(176, 168), QColor(23, 23, 26), clip), QString());
}

void OddPicturesTest::tallPictures()
{
    std::mt19937 random(4);
    const auto chroma = [&random] { return QPointF(random() % 840 / 1000.0, random() % 940 / 1000.0); };
    for (int i = 0; i < 6; ++i) {
        const QSize size(300 + int(random() % 300), 1350 + int(random() % 900));
        QPolygonF clip;
        for (int corner = 0; corner < 3 + i % 3; ++corner) {
            clip.append(QPointF(int(random() % unsigned(size.width())), int(random() % unsigned(size.height()))));
        }
        const auto any = [&](int type) { return triangle(chroma(), chroma(), chroma(), type, 1 + int(random() % 4)); };
        const QList<ColorTriangleObject> triangles{any(1), any(2), any(3)};
        QCOMPARE(differenceOf(size, QColor(23, 23, 26), clip, triangles, {any(0), any(0)}), QString());
    }
}

void OddPicturesTest::chromaticitiesThatAreNoNumbers()
{
    const reference::QuietMessages quiet;
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    NewCEIE::DrawCEIPicture renderer(nullptr);
    for (const double bad : {nan, infinity, -infinity, 1e300, -1e9}) {
        const ColorTriangleObject object = triangle({bad, 0.3}, {0.2, bad}, {bad, bad}, 1, 2);
        const std::unique_ptr<QImage> simple(
            renderer.drawCEIPicture(120, 100, true, false, false, {QPointF(bad, 0.3), QPointF(0.3, bad)}));
        const std::unique_ptr<QImage> gamuts(
            renderer.drawCEIPicture(120, 100, true, {object}, {object}, QPolygonF(), false, QString()));
        QCOMPARE(gamuts->size(), QSize(120, 100));
        // The picture colour is still where nothing else is drawn.
        QCOMPARE(gamuts->pixelColor(119, 0), QColor(23, 23, 26));
    }
}

namespace {

int loggedMessages = 0;

void countMessage(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++loggedMessages;
}

QImage currentPicture(const QList<QPointF> &temperatures, const QList<QRectF> &marks)
{
    NewCEIE::DrawCEIPicture renderer(nullptr);
    delete renderer.drawCEIPicture(1, 1, false, false, false, temperatures);
    renderer.setPointData(marks);
    renderer.setCMYPointData(marks);
    return *std::unique_ptr<QImage>(renderer.drawCEIPicture(160, 140, true, {}, {}, QPolygonF(), false, QString()));
}

QImage legacyPicture(DrawCEIPicture::CEIEType type, const QList<QPointF> &points)
{
    DrawCEIPicture renderer(type, nullptr);
    renderer.setMeasurePoints(points);
    return *std::unique_ptr<QImage>(type == DrawCEIPicture::UvDiagram
            ? renderer.drawCEIEPicture(160, 140, true, true, true, points)
            : renderer.drawCEIPicture(160, 140, true, true, true, points));
}

} // namespace

void OddPicturesTest::pointsThatAreNotFinitePaintAndLogNothing()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const QImage current = currentPicture({}, {});
    const QImage xy = legacyPicture(DrawCEIPicture::XyDiagram, {});
    const QImage uv = legacyPicture(DrawCEIPicture::UvDiagram, {});
    for (const double bad : {nan, infinity, -infinity}) {
        const QList<QPointF> points{QPointF(bad, 0.3), QPointF(0.3, bad), QPointF(bad, bad)};
        const QList<QRectF> marks{QRectF(bad, 50, 16, 16), QRectF(50, bad, 16, 16), QRectF(bad, bad, bad, bad)};
        loggedMessages = 0;
        const QtMessageHandler previous = qInstallMessageHandler(countMessage);
        const QImage pictures[] = {currentPicture(points, marks), legacyPicture(DrawCEIPicture::XyDiagram, points),
            legacyPicture(DrawCEIPicture::UvDiagram, points)};
        qInstallMessageHandler(previous);
        QCOMPARE(loggedMessages, 0);
        QCOMPARE(reference::firstDifference(pictures[0], current), QString());
        QCOMPARE(reference::firstDifference(pictures[1], xy), QString());
        QCOMPARE(reference::firstDifference(pictures[2], uv), QString());
    }
}

QTEST_MAIN(OddPicturesTest)

#include "oddpicturestest.moc"
